#pragma once

#include "faults/deeds.h"
#include "faults/rehearsal.h"
#include "faults/site.h"
#include "faults/system_calls.h"

/// Faults tried on the program, many times over. Seeds make every run the same but for the moments of the kills.
namespace gullymark::faults {

/// Kills the program `times` times at a random moment while it opens a project and does six of these deeds. Found
/// afterwards must be the file as one of the deeds' statements left it, none that had come back undone.
Outcome kill_during(const Site& site, const Deed& deed, int times);

/// The same while it creates a project: on a new name, and over an old project in turn.
Outcome kill_while_creating(const Site& site, int times);

/// Allows no file to grow beyond one limit after another, `limits` in all, and does each deed once under each.
Outcome deny_growth(const Site& site, const Deed& deed, int limits);
Outcome deny_growth_while_creating(const Site& site, int limits);
Outcome deny_growth_of_report(const Site& site, int limits);

/// What becomes of the calls that change files, from one of them on.
enum class CallFailure {
    full,    // no room: half of the bytes of that write, and no new file or byte from then on
    broken,  // nothing can be written, cut, made, renamed or removed any more
    killed   // half of the bytes of that write, and the process ends
};

/// Lets each of those calls of the deed fail in its turn, and all after it. The files are always as one of the deed's
/// statements left them.
Outcome fail_each_call(const Site& site, Prospect& prospect, CallFailure failure);

/// Lets one call of this kind fail in a deed of any kind, or more of them, `times` times over. The files are always as one
/// of the deed's statements left them, and nothing else is shown.
Outcome fail_calls_of(const Site& site, CallKind kind, int times, int first_seed);

/// Lets another program hold a lock of 0.1 to 2 s on the project, from a random moment of a command on, `times` times over.
/// Nothing is stored that was not asked for, and nothing is shown that is not so.
Outcome lock_during_commands(const Site& site, int times, int first_seed);

/// Lets power fail at a random moment of a deed of any kind, `times` times over. What had come back is there.
Outcome cut_power(const Site& site, int times, int first_seed);

/// The same on a disk of its own with from none to `pages` free pages. Needs the rights of root.
Outcome fill_disk(const Site& site, const Deed& deed, int pages);
Outcome fill_disk_while_creating(const Site& site, int pages);
Outcome fill_disk_of_report(const Site& site, int pages);
/// Mounts that disk as the folder of the project, for this process alone; false without the rights.
bool mount_small_disk(const Site& site);
void unmount_small_disk(const Site& site);

/// What happens to the file or its folder while the program works in it, and what must not be found afterwards.
struct Taking {
    std::string name;
    void (*take)(const Site& site);
    std::string (*complaint)(const Site& site, const Course& course);
};
/// Removed, its folder removed, replaced by another, both made read-only.
std::vector<Taking> takings();
/// Does that at a random moment of six of these deeds, `times` times.
Outcome take_away(const Site& site, const Deed& deed, const Taking& taking, int times);

/// Changes random bytes of a project, opens it, looks at every row, edits, copies and deletes one, `times` times over.
/// The program must neither crash nor hang, and no row that could be read before and was not touched may be lost.
Outcome damage_bytes(const Site& site, int times, int first_seed = 1);

/// Works in a project of this many inlets.
Outcome work_in_many(const Site& site, int inlets);

/// Two programs edit random inlets of one project at the same time, `edits` times each. A save may be dropped, for the
/// file is locked or the row is another one by now; what was stored is never overwritten unseen.
Outcome work_two_at_once(const Site& site, int edits);

}  // namespace gullymark::faults
