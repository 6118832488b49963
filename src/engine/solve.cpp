#include "engine/solve.h"

#include <array>
#include <string>

#include "engine/inlet_record.h"
#include "engine/results.h"
#include "engine/solvers/CISI_CG_RESULTS.h"
#include "engine/solvers/CI_SU_RESULTS.h"
#include "engine/solvers/COMBO_CG_RESULTS.h"
#include "engine/solvers/COMBO_SU_RESULTS.h"
#include "engine/solvers/GI_CG_RESULTS.h"
#include "engine/solvers/GI_SU_RESULTS.h"
#include "engine/solvers/SI_SU_RESULTS.h"
#include "engine/solvers/TRAP_CG_RESULTS.h"
#include "engine/solvers/TRAP_SU_RESULTS.h"
#include "engine/step.h"
#include "engine/words.h"
#include "platform/outside.h"

namespace gullymark::engine {
namespace {

struct Solver {
    std::string_view location;
    std::string_view type;
    void (*compute_results)();
    std::string_view sheet;
};

constexpr auto solvers = std::to_array<Solver>({
    {words::continuous_grade, words::curb_inlet, CISI_CG_RESULTS::compute_results, "cisi-cg"},
    {words::continuous_grade, words::grate_inlet, GI_CG_RESULTS::compute_results, "gi-cg"},
    {words::continuous_grade, words::combination_inlet, COMBO_CG_RESULTS::compute_results, "combo-cg"},
    {words::continuous_grade, words::slotted_inlet, CISI_CG_RESULTS::compute_results, "cisi-cg"},
    {words::continuous_grade, words::ditch_inlet, TRAP_CG_RESULTS::compute_results, "trap-cg"},
    {words::sump, words::curb_inlet, CI_SU_RESULTS::compute_results, "ci-su"},
    {words::sump, words::grate_inlet, GI_SU_RESULTS::compute_results, "gi-su"},
    {words::sump, words::combination_inlet, COMBO_SU_RESULTS::compute_results, "combo-su"},
    {words::sump, words::slotted_inlet, SI_SU_RESULTS::compute_results, "si-su"},
    {words::sump, words::ditch_inlet, TRAP_SU_RESULTS::compute_results, "trap-su"},
});

}  // namespace

bool DataSolved = false;

bool check_and_solve() {
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

std::string_view sheet_of(std::string_view location, std::string_view type) {
    for (const auto& solver : solvers) {
        if (solver.location == location && solver.type == type) {
            return solver.sheet;
        }
    }
    return {};
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

}  // namespace gullymark::engine
