// Any texts in the columns of an inlet, of all kinds and both unit systems: a solve ends soon, changes nothing but the
// results and what it repairs, and leaves each result empty or a number in its format.
//
// An input is lines of text: first a digit for the kind and location and a letter for the units ("3E"), then one line
// for each column of `columns`. Lines that are missing leave their column null, further ones are not looked at.

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <string_view>

#include "engine/inlet_record.h"
#include "engine/solve.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "platform/outside.h"
#include "target.h"

namespace {

using namespace gullymark;
using engine::Column;
using enum engine::Column;

constexpr std::array columns = {
    INLET_SUBTYPE, TOTAL_DISCHARGE, DISCHARGE1,   CARRYOVER1, DISCHARGE2,  CARRYOVER2,  ALLOWABLE_SPREAD,
    LONGSLOPE,     MANNINGS,        GUTWIDTH,     PAVXSLOPE,  GUTXSLOPE,   INLETXSLOPE, LOCDEPWIDTH,
    INLETLENGTH,   GRATEPERCLOG,    HEIGHTOFCURB, THROATYPE,  THROATANGLE, SLOTWIDTH,   OPENLEN_GRATE,
    GRATETYPE,     GRATEWIDTH,      GRATEAREA,    GRATEPERI,  CURBOPTION,  LSCOPERATIO, RSCOPERATIO,
};

constexpr std::array types = {"Curb Inlet", "Grate Inlet", "Combination Curb and Grate Inlet",
                              "Slotted Inlet", "Grate Inlet in a Ditch"};

// A solve takes 20 ms at most; this build is ten times slower. Processor time, for the machine may be busy.
constexpr std::clock_t time_limit = 1 * CLOCKS_PER_SEC;

[[noreturn]] void fail(const std::string& what) {
    std::fprintf(stderr, "solve_fuzz: %s\n", what.c_str());
    std::abort();
}

std::string_view take_line(std::string_view& rest) {
    const auto end = rest.find('\n');
    const auto line = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return line;
}

void load(std::string_view input) {
    engine::open_inlet = {};
    const auto heading = take_line(input);
    const auto kind = static_cast<unsigned char>(heading.empty() ? 0 : heading.front() - '0') % 10U;
    engine::open_inlet.load(INLET_TYPE, types.at(kind % types.size()));
    engine::open_inlet.load(INLET_LOCATION, kind < types.size() ? "CONTINUOUS GRADE" : "SUMP");
    engine::UnitSystem = heading.size() > 1 && heading[1] == 'M' ? "METRIC" : "ENGLISH";
    engine::set_unit_defaults();
    for (const auto column : columns) {
        if (input.empty()) {
            break;
        }
        engine::open_inlet.load(column, std::string(take_line(input)));
    }
}

bool is_regime(std::string_view text) {
    return text.empty() || text == "Weir Flow" || text == "Orifice Flow" || text == "Transition Flow" ||
           text == "Transition flow";
}

bool has_four_decimals(Column column) {
    return !engine::is_english() || column == DEPXSLOPE || column == COMPXSLOPE || column == FFLOWEFF ||
           column == SFLOWEFF;
}

/// A number as a format writes it: a sign, digits without needless zeros, the point and its decimals; no minus 0.
bool is_formatted(std::string_view text, std::size_t decimals) {
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    const auto point = text.find('.');
    if (point == 0 || point == std::string_view::npos || text.size() != point + 1 + decimals ||
        text.find_first_not_of("0123456789.") != std::string_view::npos ||
        text.find('.', point + 1) != std::string_view::npos || (text.front() == '0' && point > 1)) {
        return false;
    }
    return !negative || text.find_first_not_of("0.") != std::string_view::npos;
}

void check_result(Column column, bool ended_by_fault) {
    const auto& text = engine::open_inlet.text(column);
    if (column == INLETPERF ? is_regime(text) : text.empty()) {
        return;
    }
    // A ditch in a sump whose solve ends at a fault keeps what it wrote before, not yet in its format.
    const bool plain_number =
        ended_by_fault && platform::read_number(text).fault == platform::NumberFault::none;
    if (column == INLETPERF || (!plain_number && !is_formatted(text, has_four_decimals(column) ? 4 : 3))) {
        fail(std::string(engine::column_name(column)) + " is \"" + text + '"');
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    load({reinterpret_cast<const char*>(data), size});
    const engine::InletRecord before = engine::open_inlet;
    bool ended_by_fault = false;
    platform::outside.show_box = [&ended_by_fault](const platform::Box& box) {
        ended_by_fault = ended_by_fault || box.kind == platform::BoxKind::warning;
        return platform::Answer::ok;
    };

    const std::clock_t started = std::clock();
    const bool solved = engine::check_and_solve();
    if (std::clock() - started > time_limit) {
        fail("the solve took too long");
    }
    for (const auto column : engine::all_columns) {
        if (column >= OPENSPREAD) {
            check_result(column, ended_by_fault);
        } else if (engine::open_inlet.value(column) != before.value(column) &&
                   !(solved && (column == INLETXSLOPE || column == GRATEPERCLOG))) {
            fail(std::string(engine::column_name(column)) + " was changed");
        }
    }
    return 0;
}
