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
    bool by_opening = false;  // the deed is to open the file
};

/// Save, copy, delete, renumber, details, upgrade. Makes the files that they begin with.
std::vector<Deed> deeds_in_a_project(const Site& site);

/// What one sees of a file after each statement while `count` deeds run undisturbed, from opening it on.
struct Course {
    std::vector<std::string> states;
    std::vector<std::size_t> after_deed;  // index of the state in which the deeds of that number left it
};
Course run_undisturbed(const Site& site, const Deed& deed, int count);

}  // namespace gullymark::faults
