#pragma once

#include <string>
#include <vector>

#include "faults/designer.h"
#include "faults/site.h"

/// The deeds that store something, and every state in which the file may be found when one was cut short.
namespace gullymark::faults {

struct Deed {
    std::string name;
    std::string old_file;  // of the site: what is opened before the deed
    /// The deed of this number; further ones change something else.
    void (*act)(Designer& designer, const Site& site, int number);
    bool from_the_start = false;  // nothing is open before it: the deed is to open the file, or to make it
    std::string old_report;       // what lies where the report goes
    std::string old_journal;      // of a save in the old file that is to be rolled back
};

/// What only looks at a project, or is refused.
std::vector<Deed> deeds_that_store_nothing(const Site& site);

/// The folder of the project holds what lies there before the deed.
void prepare(const Site& site, const Deed& deed);

/// Save, copy, delete, renumber, details, upgrade. Makes the files that they begin with, the project with so many inlets.
std::vector<Deed> deeds_in_a_project(const Site& site, int inlets = 20);

/// Those in a project of few inlets, all of which are looked at after each trial, and: open and save, a file with a save
/// to roll back too, create over a project, over such a file and on a new name, previous inlet, both reports.
std::vector<Deed> deeds_of_all_kinds(const Site& site);

/// What one sees of a file after each statement while `count` deeds run undisturbed, from opening it on.
struct Course {
    std::vector<std::string> states;
    std::vector<std::size_t> after_deed;  // index of the state in which the deeds of that number left it
};
Course run_undisturbed(const Site& site, const Deed& deed, int count);

}  // namespace gullymark::faults
