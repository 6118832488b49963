#include "faults/rehearsal.h"

#include <filesystem>
#include <optional>

#include "faults/statements.h"

namespace gullymark::faults {
namespace {

namespace fs = std::filesystem;

/// Looks at the files whenever a statement has come back, or a box tells how far the program is: what is there then has
/// been promised.
class Promises {
  public:
    Promises(const Site& site, Rehearsal& rehearsal) : site_(site), rehearsal_(rehearsal) { look(); }

    void look() {
        auto& [states, calls, statements, sheet, disk, promised] = rehearsal_;
        if (!states.empty() && disk.changes() == seen_) {
            return;
        }
        const Unwatched unwatched;
        seen_ = disk.changes();
        promised.resize(seen_, states.empty() ? 0 : states.size() - 1);
        if (State state = state_of(site_); states.empty() || !(state == states.back())) {
            states.push_back(std::move(state));
        }
        promised.push_back(states.size() - 1);
    }

  private:
    const Site& site_;
    Rehearsal& rehearsal_;
    std::size_t seen_ = 0;
};

}  // namespace

Rehearsal rehearse(const Site& site, const Deed& deed, int number, int times) {
    prepare(site, deed);
    Rehearsal rehearsal{.disk = Disk(site.path("work"))};
    std::optional<Promises> promises;
    const auto look = [&] { promises ? promises->look() : void(); };
    const StatementsSeen seen(look, [&] { rehearsal.statements += promises ? 1 : 0; });
    Designer designer(site.program());
    designer.on_box = look;
    if (!deed.from_the_start) {
        designer.open(site.file());
    }
    promises.emplace(site, rehearsal);
    const Watching watching(site.path(""), [&](const SystemCall& call) {
        rehearsal.calls.push_back({call.kind, call.path});
        rehearsal.disk.note(call);
        return Fate{};
    });
    for (int time = 0; time < times; ++time) {
        deed.act(designer, site, number);
    }
    promises->look();
    rehearsal.sheet = designer.sheet;
    return rehearsal;
}

std::vector<Prospect> prospects_of(const Site& site, const std::vector<Deed>& deeds,
                                   const std::vector<int>& numbers, const std::vector<int>& times) {
    std::vector<Prospect> prospects;
    for (const auto& deed : deeds) {
        for (const int number : numbers) {
            for (const int often : times) {
                prospects.emplace_back(site, deed, number, often);
            }
        }
    }
    return prospects;
}

void leave_unfinished(const Site& site, const Deed& deed, const std::string& file,
                      const std::string& journal) {
    const Rehearsal rehearsal = rehearse(site, deed, 0, 1);
    auto change = rehearsal.disk.changes() - 1;
    while (rehearsal.disk.kind_of(change) != CallKind::remove) {
        --change;
    }
    rehearsal.disk.kill_writer(change);
    fs::copy_file(site.file(), file, fs::copy_options::overwrite_existing);
    fs::copy_file(site.journal(), journal, fs::copy_options::overwrite_existing);
}

}  // namespace gullymark::faults
