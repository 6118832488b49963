#include "engine/solve.h"

#include <array>
#include <string>

#include "engine/CISI_CG_RESULTS.h"
#include "engine/CI_SU_RESULTS.h"
#include "engine/COMBO_CG_RESULTS.h"
#include "engine/COMBO_SU_RESULTS.h"
#include "engine/GI_CG_RESULTS.h"
#include "engine/GI_SU_RESULTS.h"
#include "engine/SI_SU_RESULTS.h"
#include "engine/TRAP_CG_RESULTS.h"
#include "engine/TRAP_SU_RESULTS.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "platform/outside.h"

namespace gullymark::engine {
namespace {

enum class ResultFormat : unsigned char { follows_units, four_decimals, stays_as_written };

struct ResultColumn {
    Column column;
    ResultFormat format;
};

constexpr auto result_columns = std::to_array<ResultColumn>({
#define RESULT_COLUMN(name, format, unit, meaning) {Column::name, ResultFormat::format},
#include "engine/inlet_columns.def"
});

struct Solver {
    std::string_view location;
    std::string_view type;
    void (*compute_results)();
};

constexpr std::string_view on_grade = "CONTINUOUS GRADE";
constexpr std::string_view in_sump = "SUMP";

constexpr auto solvers = std::to_array<Solver>({
    {on_grade, "Curb Inlet", CISI_CG_RESULTS::compute_results},
    {on_grade, "Grate Inlet", GI_CG_RESULTS::compute_results},
    {on_grade, "Combination Curb and Grate Inlet", COMBO_CG_RESULTS::compute_results},
    {on_grade, "Slotted Inlet", CISI_CG_RESULTS::compute_results},
    {on_grade, "Grate Inlet in a Ditch", TRAP_CG_RESULTS::compute_results},
    {in_sump, "Curb Inlet", CI_SU_RESULTS::compute_results},
    {in_sump, "Grate Inlet", GI_SU_RESULTS::compute_results},
    {in_sump, "Combination Curb and Grate Inlet", COMBO_SU_RESULTS::compute_results},
    {in_sump, "Slotted Inlet", SI_SU_RESULTS::compute_results},
    {in_sump, "Grate Inlet in a Ditch", TRAP_SU_RESULTS::compute_results},
});

}  // namespace

bool DataSolved = false;

bool cmdsolve_Click() {
    try {
        if (number_in(Column::TOTAL_DISCHARGE) <= 0.0) {
            platform::tell("No results computed.  Check your input for discharge.",
                           platform::BoxKind::warning, "Errur");
            return false;
        }
        solve_inlet();
    } catch (Fault) {
        platform::tell(invalid_input, platform::BoxKind::warning);
        return false;
    }
    DataSolved = true;
    open_inlet.begin_new_changes();
    return true;
}

void solve_inlet() {
    clear_results();
    const std::string& location = open_inlet.text(Column::INLET_LOCATION);
    const std::string& type = open_inlet.text(Column::INLET_TYPE);
    for (const auto& solver : solvers) {
        if (solver.location == location && solver.type == type) {
            solver.compute_results();
        }
    }
}

void clear_results() {
    for (const auto& result : result_columns) {
        open_inlet.set(result.column, "");
    }
}

void format_results() {
    for (const auto& [column, format] : result_columns) {
        const std::string& text = open_inlet.text(column);
        if (format == ResultFormat::stays_as_written || text.empty()) {
            continue;
        }
        const std::string_view decimals =
            format == ResultFormat::four_decimals ? "0.0000" : std::string_view(unit_constants.numberFormat);
        open_inlet.set(column, platform::format_text(text, decimals));
    }
}

}  // namespace gullymark::engine
