#pragma once

#include <optional>
#include <string>
#include <vector>

#include "faults/deeds.h"
#include "faults/disk.h"
#include "faults/state.h"

/// A deed done without a fault, and all that is to know of it before faults are tried on it.
namespace gullymark::faults {

/// A call as a fault picks it.
struct CallMade {
    CallKind kind = CallKind::read;
    std::string path;
};

struct Rehearsal {
    std::vector<State> states;    // one after the other, from before the deed on
    std::vector<CallMade> calls;  // those on the site's files
    int statements = 0;           // how many statements the deed sends
    platform::Cells sheet;        // what a report shows in the end
    Disk disk;                    // with what the deed changed
    std::vector<std::size_t>
        promised;  // the state that has been reached for good after so many changes of the disk
};

/// Does the deed `times` times over.
Rehearsal rehearse(const Site& site, const Deed& deed, int number, int times);

/// A deed to be tried, so often; rehearsed when that is asked for first.
class Prospect {
  public:
    Prospect(const Site& site, const Deed& what, int which, int often)
        : deed(what), number(which), times(often), site_(site) {}

    const Deed& deed;
    int number;
    int times;

    const Rehearsal& rehearsal() {
        if (!rehearsal_) {
            rehearsal_ = rehearse(site_, deed, number, times);
        }
        return *rehearsal_;
    }

  private:
    const Site& site_;
    std::optional<Rehearsal> rehearsal_;
};

/// Each deed with each of the numbers, done once and tried again.
std::vector<Prospect> prospects_of(const Site& site, const std::vector<Deed>& deeds,
                                   const std::vector<int>& numbers, const std::vector<int>& times);

/// Leaves the deed's file and the journal beside it under these paths as they are when power fails at the end of the deed:
/// the next one to open the file takes back what is in it.
void leave_unfinished(const Site& site, const Deed& deed, const std::string& file,
                      const std::string& journal);

}  // namespace gullymark::faults
