// The time from the accepted file name to the visible sheet, with the user's screen: run by bench/report_times.sh.
//
//   report_times BIN TABLE       BIN: the folder of the program; TABLE: solved inlets, see tests/cases

#include <chrono>
#include <exception>
#include <functional>
#include <iomanip>
#include <iostream>
#include <string>

#include "engine/inlet_record.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/spreadsheet.h"
#include "platform/spreadsheet_office.h"
#include "reports/inlet_design_form.h"
#include "reports/inlet_report.h"
#include "store/project_store.h"
#include "tests/support/test_office.h"
#include "tools/project_maker.h"

namespace {

using namespace gullymark;
using Clock = std::chrono::steady_clock;

constexpr int rounds = 5;

struct Stage {
    testing_support::TestOffice office;
    Clock::time_point named;  // when the file name was accepted
    int sheets = 0;

    explicit Stage(const std::string& bin) : office(bin + "/gullymark-office") {
        platform::OfficeSettings settings = office.settings();
        settings.first_questions = {{"profile", office.path("profile")}};  // with windows
        settings.last_questions.clear();                                   // which stay open
        use_office(settings);
        platform::outside.choose_file = [this](const platform::FileDialogRequest&) {
            named = Clock::now();
            return office.path("sheet" + std::to_string(++sheets) + ".xls");
        };
        const auto open = platform::spreadsheet.open;
        platform::spreadsheet.open = [open](const platform::SheetFile& file) {
            try {
                return open(file);
            } catch (const std::exception& failure) {
                std::cerr << "nothing is shown: " << failure.what() << '\n';
                throw;
            }
        };
    }

    void time(const std::string& what, const std::function<void()>& write) {
        write();
        const std::chrono::duration<double> taken = Clock::now() - named;
        std::cout << std::left << std::setw(50) << what << std::fixed << std::setprecision(2) << taken.count()
                  << " s" << std::endl;
    }
};

void open_project(const std::string& bin, const std::string& table, const std::string& path,
                  std::size_t inlets) {
    tools::make_project(bin + "/GullymarkAL10.rdb", table, path, inlets);
    store::project_store = {};
    store::project_store.connection.open(path);
}

void measure(const std::string& bin, const std::string& table) {
    Stage stage(bin);
    const auto report = [] { reports::inlet_report(1, engine::open_inlet); };
    open_project(bin, table, stage.office.path("road.gmk"), 30);
    stage.time("Inlet Report, the user's first office ever", report);
    for (int round = 0; round < rounds; ++round) {
        stage.office.end();
        stage.time("Inlet Report, fresh office", report);
    }
    for (int round = 0; round < rounds; ++round) {
        stage.time("Inlet Report, running office", report);
    }
    stage.time("Design Form of 30 inlets, running office", [] { reports::InletDesignForm(1); });
    open_project(bin, table, stage.office.path("long_road.gmk"), 1000);
    for (int round = 0; round < rounds; ++round) {
        stage.time("Design Form of 1,000 inlets, running office", [] { reports::InletDesignForm(1); });
    }
    store::project_store = {};
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: report_times BIN TABLE\n";
        return 2;
    }
    try {
        platform::set_program_folder(argv[1]);
        measure(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
