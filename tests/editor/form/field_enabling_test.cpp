#include "editor/form/field_enabling.h"
#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/windows/workspace_menu.h"

#include <array>

#include "editor/editor_test.h"

namespace gullymark::editor {
namespace {

struct FieldEnabling : EditorTest {
    FieldEnabling() {
        show_workspace();
        add_inlet("N1");
    }
    /// Texts, colors and states that no operation leaves behind by chance.
    static void make_strange() {
        for (const FieldId id : all_fields) {
            if (screen_field(id).tab == 2 && screen_field(id).column) {
                frminletMDIC.screen.set_text(id, "kept");
                frminletMDIC.screen[id].enabled = false;
                frminletMDIC.screen[id].locked = false;
                frminletMDIC.screen[id].color = Color::gray;
            }
        }
    }
};

struct OfferRow {
    FieldId field;
    const char* kinds;
};

// In the order of the operations below: E enabled, C disabled and emptied, D disabled with its text, T by throat,
// - not touched.
constexpr auto offers = std::to_array<OfferRow>({
    {txtS, "EEEEEEEED"},     {txtn, "EEEEEEEEC"},      {txtW, "EEEEEEEEC"},      {txtSx, "EEEEEEECC"},
    {txtSw, "EEEEEEECC"},    {txtSdashW, "EEEEEEECC"}, {txtWa, "EEEEEEECC"},     {txta, "-------CC"},
    {txtWg, "CCEEEECEE"},    {txtzl, "CCCCCCCEC"},     {txtzr, "CCCCCCCEC"},     {cboLCOUG, "CCCCECCCC"},
    {cboType, "CCECECCEC"},  {txthco, "CECCCECCC"},    {cboThroat, "CECCCECCC"}, {txtAngle, "CTCCCTCCC"},
    {txtPeri, "CCCECECCE"},  {txtArea, "CCCECECCE"},   {cboClog, "EEEEEEECD"},   {cboCurb, "CCCECCCCC"},
    {txtslotw, "CCCCCCECC"}, {cboLength, "EEEEEEEEE"},
});

constexpr std::array<void (*)(), 9> operations = {EnableCurbOnGrade,   EnableCurbInSump,   EnableGrateOnGrade,
                                                  EnableGrateInSump,   EnableComboOnGrade, EnableComboInSump,
                                                  EnableSlottedInSump, EnableDitchOnGrade, EnableDitchInSump};

TEST_F(FieldEnabling, TheNineOperationsOfferTheFieldsOfTheirKind) {
    for (std::size_t kind = 0; kind < operations.size(); ++kind) {
        make_strange();
        operations.at(kind)();
        for (const auto& row : offers) {
            const char mark = row.kinds[kind];
            const auto where = std::string(field_name(row.field)) + " of operation " + std::to_string(kind);
            EXPECT_EQ(field(row.field).enabled, mark == 'E') << where;
            EXPECT_EQ(field(row.field).color, mark == 'E' ? Color::window : Color::gray) << where;
            EXPECT_EQ(shown(row.field), mark == 'C' ? "" : "kept") << where;
        }
    }
}

TEST_F(FieldEnabling, AnInclinedThroatOpensItsAngle) {
    for (const auto operation : {EnableCurbInSump, EnableComboInSump}) {
        make_strange();
        frminletMDIC.screen.set_text(cboThroat, "Inclined");
        frminletMDIC.screen[txtAngle].locked = true;
        operation();
        EXPECT_TRUE(field(txtAngle).enabled);
        EXPECT_FALSE(field(txtAngle).locked);
        EXPECT_EQ(field(txtAngle).color, Color::window);
        EXPECT_EQ(shown(txtAngle), "kept");

        frminletMDIC.screen.set_text(cboThroat, "Vertical");
        operation();
        EXPECT_TRUE(field(txtAngle).locked);
        EXPECT_EQ(field(txtAngle).color, Color::gray);
        EXPECT_EQ(shown(txtAngle), "kept");
    }
}

struct KindRow {
    const char* type;
    const char* location;
    std::size_t operation;
    const char* slope;
    const char* width;
    const char* cross_slope;
    const char* length;
};

constexpr const char* gls = "GUTTER LONGITUDINAL SLOPE";
constexpr const char* guw = "GUTTER WIDTH";
constexpr const char* gcs = "GUTTER CROSS SLOPE";

constexpr auto kinds = std::to_array<KindRow>({
    {"Curb Inlet", "CONTINUOUS GRADE", 0, gls, guw, gcs, "INLET LENGTH"},
    {"Curb Inlet", "SUMP", 1, gls, guw, gcs, "INLET LENGTH"},
    {"Grate Inlet", "CONTINUOUS GRADE", 2, gls, guw, gcs, "GRATE LENGTH"},
    {"Grate Inlet", "SUMP", 3, gls, guw, gcs, "GRATE LENGTH"},
    {"Combination Curb and Grate Inlet", "CONTINUOUS GRADE", 4, gls, guw, gcs, "GRATE LENGTH"},
    {"Combination Curb and Grate Inlet", "SUMP", 5, gls, guw, gcs, "INLET LENGTH"},
    {"Slotted Inlet", "CONTINUOUS GRADE", 0, gls, guw, gcs, "INLET LENGTH"},
    {"Slotted Inlet", "SUMP", 6, gls, guw, gcs, "INLET LENGTH"},
    {"Grate Inlet in a Ditch", "CONTINUOUS GRADE", 7, "DITCH LONGITUDINAL SLOPE", "BOTTOM WIDTH OF DITCH",
     "DITCH CROSS SLOPE", "GRATE LENGTH"},
    {"Grate Inlet in a Ditch", "SUMP", 8, gls, guw, gcs, "GRATE LENGTH"},
});

TEST_F(FieldEnabling, EnteringTabTwoRunsTheOperationOfTheKindAndSetsTheCaptions) {
    for (const auto& row : kinds) {
        make_strange();
        frminletMDIC.screen.set_text(inlet_type, row.type);
        frminletMDIC.screen.set_text(inlet_location, row.location);
        click_tab(2);
        for (const auto& offer : offers) {
            const char mark = offer.kinds[row.operation];
            EXPECT_EQ(field(offer.field).enabled, mark == 'E') << row.type << row.location;
        }
        EXPECT_EQ(field(lbl_GLS).caption, row.slope) << row.type << row.location;
        EXPECT_EQ(field(lbl_GUW).caption, row.width) << row.type << row.location;
        EXPECT_EQ(field(lbl_GCS).caption, row.cross_slope) << row.type << row.location;
        EXPECT_EQ(field(lbl_IL).caption, row.length) << row.type << row.location;
        click_tab(0);
    }
}

TEST_F(FieldEnabling, ATypeThatIsOnlyBegunRunsNoOperation) {
    make_strange();
    frminletMDIC.screen.set_text(inlet_type, "Cu");
    click_tab(2);
    for (const auto& offer : offers) {
        EXPECT_FALSE(field(offer.field).enabled);
        EXPECT_EQ(shown(offer.field), "kept");
    }
    EXPECT_EQ(field(lbl_IL).caption, "INLET LENGTH");
}

TEST_F(FieldEnabling, ASlottedInletOnGradeHasTheFieldsOfACurbInletWithoutASlot) {
    pick(inlet_type, "Slotted Inlet");
    leave_focused_field();
    click_tab(2);
    EXPECT_TRUE(field(cboLength).enabled);
    EXPECT_FALSE(field(txtslotw).enabled);
    EXPECT_EQ(shown(txtslotw), "");
}

struct FieldEnablingInView : EditorTest {
    FieldEnablingInView() {
        put_inlets({{{"INLET_NUMBER", "1"},
                     {"INLET_TYPE", "Curb Inlet"},
                     {"INLET_LOCATION", "CONTINUOUS GRADE"},
                     {"SLOTWIDTH", "4.00"},
                     {"QINT", "1.000"}}});
        show_workspace();
    }
};

TEST_F(FieldEnablingInView, AFieldThatDoesNotApplyIsEmptiedOnTheScreenAlone) {
    EXPECT_EQ(shown(txtslotw), "4.00");
    click_tab(2);
    EXPECT_EQ(shown(txtslotw), "");
    EXPECT_EQ(shown(txtQi), "1.000");
    EXPECT_EQ(stored("SELECT SLOTWIDTH FROM INLET"), "4.00");
    mnuflexrefresh_Click();
    EXPECT_EQ(shown(txtslotw), "4.00");
}

}  // namespace
}  // namespace gullymark::editor
