#include "calculation/worked_calculation.h"

#include "calculation_fixture.h"
#include "engine/results.h"

namespace gullymark::calculation {
namespace {

using engine::open_inlet;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class WorkedCalculation : public CalculationTest {
  protected:
    static constexpr std::size_t of_each_kind = 30;  // rows of solves_ordinary.tsv
    enum Kind : std::size_t {
        curb,
        curb_sump,
        grate,
        grate_sump,
        combination,
        combination_sump,
        slot,
        slot_sump,
        ditch,
        ditch_sump
    };

    static void load_kind(Kind kind) { load("solves_ordinary.tsv", kind * of_each_kind); }
};

TEST_F(WorkedCalculation, AStepTellsFormulaNumbersValueUnitMeaningAndSource) {
    const Row LT = row_for(work_out_open_inlet(), "LT");
    EXPECT_EQ(LT.step, 48);
    EXPECT_EQ(LT.formula, "K_L \u00D7 Q^0.42 \u00D7 S^0.3 \u00D7 (1 / (n \u00D7 Se))^0.6");
    EXPECT_EQ(LT.numbers, "0.6 \u00D7 2.7^0.42 \u00D7 0.03^0.3 \u00D7 (1 / (0.016 \u00D7 0.2555))^0.6");
    EXPECT_EQ(LT.value, "8.62093");
    EXPECT_EQ(LT.unit, "ft");
    EXPECT_EQ(LT.meaning, "length for total interception");
    EXPECT_EQ(LT.source, "3e Eq. 4-22a; 4e Eq. 7.12; H12 7.2, for slots 7.3");
    EXPECT_EQ(LT.departure, 0);
}

TEST_F(WorkedCalculation, TheHeadingsOfEachKindAreThoseOfItsDesign) {
    const char* const constants = "Constants";
    const char* const inputs = "Inlet and section";
    const char* const check = "Check of the inputs";
    const char* const spread = "Spread of the approaching flow";
    const char* const ratio = "Flow ratio";
    const char* const depressed = "Depressed section";
    const char* const length = "Length for total interception";
    const char* const depth = "Depth and velocity";
    const char* const at_inlet = "Spread and depth at the inlet";
    const char* const in_sump = "Depths and interception";
    load_kind(curb);
    EXPECT_THAT(headings(work_out_open_inlet()), ElementsAre(constants, inputs, spread, ratio, depressed,
                                                             length, depth, "Interception", "Results"));
    load_kind(slot);
    EXPECT_THAT(headings(work_out_open_inlet()), ElementsAre(constants, inputs, spread, ratio, depressed,
                                                             length, depth, "Interception", "Results"));
    load_kind(grate);
    EXPECT_THAT(headings(work_out_open_inlet()),
                ElementsAre(constants, inputs, spread, ratio, depressed, length, depth, "Efficiency",
                            "Interception", "Results"));
    load_kind(combination);
    EXPECT_THAT(headings(work_out_open_inlet()),
                ElementsAre(constants, inputs, check, spread, ratio, depressed, length, depth,
                            "Interception by the curb opening", "Efficiency", "Interception", "Results"));
    load_kind(ditch);
    EXPECT_THAT(headings(work_out_open_inlet()),
                ElementsAre(constants, inputs, "Depth in the ditch", ratio, depth, "Efficiency",
                            "Interception", "Downstream berm", "Results"));
    load_kind(curb_sump);
    EXPECT_THAT(headings(work_out_open_inlet()),
                ElementsAre(constants, "Flow", inputs, spread, "Depth as a weir", "Depth as an orifice",
                            "Flow regime", at_inlet, "Results"));
    load_kind(slot_sump);
    EXPECT_THAT(headings(work_out_open_inlet()),
                ElementsAre(constants, "Flow", inputs, spread, "Depth over the inlet", "Flow regime",
                            at_inlet, "Results"));
    load_kind(grate_sump);
    EXPECT_THAT(headings(work_out_open_inlet()),
                ElementsAre(constants, "Flow", inputs, spread, check, "Depth over the inlet", at_inlet,
                            in_sump, "Results"));
    load_kind(combination_sump);
    EXPECT_THAT(
        headings(work_out_open_inlet()),
        ElementsAre(constants, "Flow", inputs, spread, "Depth over the inlet", at_inlet, in_sump, "Results"));
    load_kind(ditch_sump);
    EXPECT_THAT(headings(work_out_open_inlet()),
                ElementsAre(constants, "Flow", inputs, "Depth over the inlet", in_sump, "Results"));
    open_inlet.set(Column::INLET_SUBTYPE, "Y-Weld");
    EXPECT_THAT(headings(work_out_open_inlet()), ElementsAre(constants, "Flow", "Rated depth", "Results"));
}

TEST_F(WorkedCalculation, AnInputIsToldAsItIsTypedUnderTheCaptionOfTheForm) {
    const Document document =
        work_out({.inlet = open_inlet, .units = "ENGLISH", .caption = [](Column column) {
                      return column == Column::LONGSLOPE ? "LONGITUDINAL SLOPE" : "";
                  }});
    const Row S = row_for(document, "S", Row::Kind::input);
    EXPECT_EQ(S.formula, "LONGSLOPE");
    EXPECT_EQ(S.value, "0.0300");
    EXPECT_EQ(S.unit, "ft/ft");
    EXPECT_EQ(S.meaning, "LONGITUDINAL SLOPE");
    EXPECT_EQ(row_for(document, "n", Row::Kind::input).meaning, "Manning's roughness coefficient");
}

TEST_F(WorkedCalculation, AResultTellsItsRoundingAndTheStepThatStoredIt) {
    const Document document = work_out_open_inlet();
    const Row spread = row_for(document, "OPENSPREAD", Row::Kind::result);
    EXPECT_EQ(spread.step, 18);
    EXPECT_EQ(spread.formula, "round(T, 3)");
    EXPECT_EQ(spread.numbers, "round(6.94667053222656, 3)");
    EXPECT_EQ(spread.value, "6.947");
    EXPECT_EQ(row_for(document, "QCARRY", Row::Kind::result).formula, "round(QCARRY, 3)");
    EXPECT_EQ(row_for(document, "QCARRY").formula, "Q \u2212 Qi");
}

TEST_F(WorkedCalculation, ConstantsAreToldByNameInTheUnitsOfTheProject) {
    EXPECT_EQ(row_for(work_out_open_inlet(), "K_L", Row::Kind::constant).value, "0.6");
    const Document metric = work_out({.inlet = open_inlet, .units = "METRIC"});
    EXPECT_EQ(row_for(metric, "K_L", Row::Kind::constant).value, "0.817");
    EXPECT_EQ(row_for(metric, "LT").unit, "m");
    EXPECT_EQ(engine::UnitSystem, "ENGLISH");
}

TEST_F(WorkedCalculation, ASheetOfStoredResultsHasNoWarning) {
    EXPECT_THAT(work_out_open_inlet().warnings, IsEmpty());
}

TEST_F(WorkedCalculation, StoredResultsThatDoNotFollowAreToldFirst) {
    open_inlet.set(Column::QCARRY, "0.500");
    open_inlet.set(Column::INTLEN, "");
    EXPECT_THAT(
        work_out_open_inlet().warnings,
        ElementsAre("The stored results do not follow from the stored inputs: INTLEN is stored as blank and "
                    "comes out as 8.621; QCARRY is stored as 0.500 and comes out as 0.532."));
}

TEST_F(WorkedCalculation, AnInletThatWasNeverSolvedIsToldSo) {
    engine::clear_results();
    EXPECT_THAT(work_out_open_inlet().warnings,
                ElementsAre("This inlet has not been solved: no results are stored."));
}

TEST_F(WorkedCalculation, InputsThatSolveRefusesAreToldWithTheBox) {
    open_inlet.set(Column::TOTAL_DISCHARGE, "0");
    const Document document = work_out_open_inlet();
    EXPECT_THAT(document.warnings,
                ElementsAre("Solve gives no results for these inputs. Those that are stored belong "
                            "to other inputs."));
    ASSERT_THAT(rows_of_kind(document, Row::Kind::message), SizeIs(1));
    EXPECT_EQ(rows_of_kind(document, Row::Kind::message).front().remark,
              "No results computed.  Check your input for discharge.");
    EXPECT_THAT(boxes, IsEmpty());
    engine::clear_results();
    EXPECT_THAT(work_out_open_inlet().warnings, ElementsAre("Solve gives no results for these inputs."));
}

TEST_F(WorkedCalculation, ABoxThatTheSolverShowsStandsBehindTheStepThatLedToIt) {
    load_kind(grate_sump);
    open_inlet.set(Column::GRATEPERI, "0");
    const Document document = work_out_open_inlet();
    const auto& last = document.sections.back();
    EXPECT_EQ(last.heading, "Check of the inputs");
    ASSERT_THAT(last.rows, SizeIs(2));
    EXPECT_EQ(last.rows[0].kind, Row::Kind::condition);
    EXPECT_EQ(last.rows[0].value, "yes");
    EXPECT_EQ(last.rows[1].remark, "No results computed.  Invalid input.");
    EXPECT_THAT(document.warnings, SizeIs(1));
    EXPECT_THAT(boxes, IsEmpty());
    EXPECT_EQ(row_for(document, "GUTTERSPREAD").step, 27) << "stored, and then taken back";
}

TEST_F(WorkedCalculation, AnUnknownKindIsToldSo) {
    open_inlet.set(Column::INLET_TYPE, "Manhole");
    const Document document = work_out_open_inlet();
    EXPECT_THAT(document.warnings, testing::Contains("No rule solves an inlet of this type and location."));
    EXPECT_THAT(document.sections, IsEmpty());
}

TEST_F(WorkedCalculation, AnAbandonedStepTellsWhyAndWhatStays) {
    open_inlet.set(Column::LONGSLOPE, "steep");
    const Row S = row_for(work_out_open_inlet(), "S", Row::Kind::input);
    EXPECT_EQ(S.value, "steep");
    EXPECT_EQ(S.remark, "abandoned, unreadable number; it stays 0 ft/ft");
}

TEST_F(WorkedCalculation, ASearchTellsItsBoundsItsPassesAndItsCeiling) {
    open_inlet.set(Column::ALLOWABLE_SPREAD, "1.0");
    const auto searches = rows_of_kind(work_out_open_inlet(), Row::Kind::search);
    ASSERT_THAT(searches, SizeIs(1));
    EXPECT_EQ(searches.front().symbol, "T");
    EXPECT_EQ(searches.front().value, "6");
    EXPECT_THAT(searches.front().remark, HasSubstr("searched from 2 to 6 so that the residual vanishes: "));
    EXPECT_THAT(searches.front().remark,
                HasSubstr("the ceiling of the search, which no greater discharge passes"));
}

TEST_F(WorkedCalculation, TheFitOfAGrateAndThePieceOfARatingAreTold) {
    load_kind(ditch);
    const auto notes = rows_of_kind(work_out_open_inlet(), Row::Kind::note);
    ASSERT_THAT(notes, SizeIs(1));
    EXPECT_EQ(notes.front().remark, "the fit of \"P-1-7/8\" for lengths between 4.5 and 10 ft");
    load_kind(ditch_sump);
    open_inlet.set(Column::INLET_SUBTYPE, "Y-Weld");
    open_inlet.set(Column::GRATEPERCLOG, "0");
    open_inlet.set(Column::TOTAL_DISCHARGE, "3.000");
    const Document document = work_out_open_inlet();
    EXPECT_EQ(row_for(document, "d").formula, "0.0493 \u00D7 Q + 0.2129");
    EXPECT_THAT(row_for(document, "d").source, HasSubstr("measured"));
    EXPECT_EQ(rows_of_kind(document, Row::Kind::condition).back().formula, "Q < 6");
}

TEST_F(WorkedCalculation, MetricResultsOfThreeDecimalsFollowToo) {
    load("solves_ordinary.tsv", 10 * of_each_kind);
    EXPECT_THAT(work_out_open_inlet().warnings, IsEmpty());
    engine::unit_constants.numberFormat = "0.000";  // as after a look at the listing
    EXPECT_THAT(work_out_open_inlet().warnings, IsEmpty()) << "stored with four";
    engine::check_and_solve();
    EXPECT_THAT(work_out_open_inlet().warnings, IsEmpty());
    engine::unit_constants.numberFormat = "0.0000";
    EXPECT_THAT(work_out_open_inlet().warnings, IsEmpty()) << "stored with three";
}

TEST_F(WorkedCalculation, TheLegendTellsThePublicationsThatAreCited) {
    const auto legend = work_out_open_inlet().legend;
    ASSERT_THAT(legend, SizeIs(4));
    EXPECT_THAT(legend[0], HasSubstr("HEC-22, third edition"));
    EXPECT_THAT(legend[2], HasSubstr("HEC-12"));
}

}  // namespace
}  // namespace gullymark::calculation
