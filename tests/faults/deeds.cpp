#include "faults/deeds.h"

#include <filesystem>
#include <fstream>

#include "faults/rehearsal.h"
#include "faults/statements.h"

namespace gullymark::faults {
namespace {

constexpr int few_inlets = 8;

std::string label(const char* word, int number) {
    return word + std::to_string(number);
}

void edit(Designer& designer, const Site& /*site*/, int number) {
    if (Designer::rows() > 0) {  // nothing is listed any more of a file that was taken away
        designer.edit(1 + number % Designer::rows(), label("edited ", number));
    }
}
void copy(Designer& designer, const Site& /*site*/, int number) {
    designer.copy(1, label("C-", number));
}
/// The last row: no other names it.
void remove(Designer& designer, const Site& /*site*/, int /*number*/) {
    designer.remove(Designer::rows());
}
void renumber(Designer& designer, const Site& /*site*/, int number) {
    designer.renumber(1 + number, label("I-0000", 1 + number) + "A");
}
void save_details(Designer& designer, const Site& /*site*/, int number) {
    designer.save_details(label("Mill Road ", number));
}
void open_file(Designer& designer, const Site& site, int /*number*/) {
    designer.open(site.file());
}
void open_and_save(Designer& designer, const Site& site, int number) {
    designer.open(site.file());
    edit(designer, site, number);
}
void create(Designer& designer, const Site& site, int number) {
    designer.create(site.file(), label("New Road ", number));
}
void report(Designer& designer, const Site& site, int /*number*/) {
    designer.write_report(site.report());
}

void design_form(Designer& designer, const Site& site, int /*number*/) {
    designer.write_design_form(site.report());
}
void pick_inlet(Designer& designer, const Site& /*site*/, int number) {
    designer.pick(Designer::rows());
    designer.pick(1 + number);
}
void view(Designer& designer, const Site& /*site*/, int number) {
    designer.view(1 + number);
}
/// Nobody else names the last inlet.
void name_previous(Designer& designer, const Site& /*site*/, int /*number*/) {
    designer.name_previous(1, label("I-00000", few_inlets));
}
void name_one_that_is_named(Designer& designer, const Site& /*site*/, int number) {
    designer.name_previous(1, label("I-00000", 2 + number));
}
void copy_to_number_there(Designer& designer, const Site& /*site*/, int number) {
    designer.copy(1, label("I-00000", 2 + number));
}
void renumber_to_number_there(Designer& designer, const Site& /*site*/, int number) {
    designer.renumber(1, label("I-00000", 2 + number));
}
void remove_one_that_feeds(Designer& designer, const Site& /*site*/, int number) {
    designer.remove(1 + number);
}

}  // namespace

std::vector<Deed> deeds_in_a_project(const Site& site, int inlets) {
    const std::string road = site.path("road.gmk");
    const std::string old_road = site.path("old_road.gmk");
    make_project(site.program(), road, inlets);
    std::filesystem::copy_file(GULLYMARK_TEST_DIR "/files/augustl_2007.gmk", old_road,
                               std::filesystem::copy_options::overwrite_existing);
    return {
        {"save", road, edit},         {"copy and save", road, copy},   {"delete", road, remove},
        {"renumber", road, renumber}, {"details", road, save_details}, {"upgrade", old_road, open_file, true},
    };
}

std::vector<Deed> deeds_of_all_kinds(const Site& site) {
    auto deeds = deeds_in_a_project(site, few_inlets);
    const std::string road = deeds.front().old_file;
    deeds.push_back({"open and save", road, open_and_save, true});
    deeds.push_back({"create over a project", road, create, true});
    const auto unfinished = site.path("unfinished.gmk");
    const auto journal = site.path("unfinished.gmk-journal");
    leave_unfinished(site, deeds.front(), unfinished, journal);
    deeds.push_back({"create over an unfinished save", unfinished, create, true, "", journal});
    deeds.push_back({"open an unfinished save", unfinished, open_and_save, true, "", journal});
    deeds.push_back({"create", "", create, true});
    deeds.push_back({"previous inlet", road, name_previous});
    deeds.push_back({"report", road, report});
    deeds.push_back({"design form", road, design_form});
    const auto old_report = site.path("old_report.xls");
    std::ofstream(old_report, std::ios::binary)
        << bytes_of(site.program() + "/INLET_REPORTAL.xlr") << "of another inlet";
    deeds.push_back({"report over an old one", road, report, false, old_report});
    deeds.push_back({"report over a project", road, report, false, road});
    return deeds;
}

std::vector<Deed> deeds_that_store_nothing(const Site& site) {
    const std::string road = site.path("road.gmk");
    return {
        {"pick in the grid", road, pick_inlet},
        {"listing", road, view},
        {"a previous inlet that is named", road, name_one_that_is_named},
        {"copy under a number that is there", road, copy_to_number_there},
        {"renumber to a number that is there", road, renumber_to_number_there},
        {"delete of an inlet that feeds another", road, remove_one_that_feeds},
    };
}

void prepare(const Site& site, const Deed& deed) {
    site.begin_anew(deed.old_file);
    if (!deed.old_report.empty()) {
        std::filesystem::copy_file(deed.old_report, site.report());
    }
    if (!deed.old_journal.empty()) {
        std::filesystem::copy_file(deed.old_journal, site.journal());
    }
}

Course run_undisturbed(const Site& site, const Deed& deed, int count) {
    site.begin_anew(deed.old_file);
    Course course;
    course.states.push_back(content_of(site.file()));
    Designer designer(site.program());
    const StatementsSeen seen([&] {
        const auto content = content_of(site.file());
        if (content != course.states.back()) {
            course.states.push_back(content);
        }
    });
    if (!deed.from_the_start) {
        designer.open(site.file());
    }
    course.after_deed.push_back(course.states.size() - 1);
    for (int number = 0; number < count; ++number) {
        deed.act(designer, site, number);
        course.after_deed.push_back(course.states.size() - 1);
    }
    return course;
}

}  // namespace gullymark::faults
