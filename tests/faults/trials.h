#pragma once

#include "faults/deeds.h"
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

/// The same for each of SQLite's calls in turn, the failing one and all after it. A file is always as one of the deed's
/// statements left it.
Outcome fail_each_call(const Site& site, const Deed& deed, CallFailure failure);

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
