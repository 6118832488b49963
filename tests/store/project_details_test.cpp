#include "store/project_details.h"

#include <algorithm>

#include "project_level.h"
#include "store/counties.h"

namespace gullymark::store {
namespace {

const Box saved{BoxKind::information, "Project Details are Saved!", "GullymarkAL"};
const Box cancelled{BoxKind::plain, "Update Cancelled", "GullymarkAL"};
const Box state_required{BoxKind::warning, "State Name is a Required Field!", "GullymarkAL"};
const Box id_required{BoxKind::warning, "Project ID is a Required Field!", "GullymarkAL"};
const Box exit_question{BoxKind::warning_question, "Exit without saving? ", "GullymarkAL"};
const Box not_listed{BoxKind::plain, "Value not present in the list... Please enter a valid value..",
                     "GullymarkAL"};

class DetailsForm : public ProjectLevel {
  protected:
    /// The form on a file without a row, or on the file's row.
    void load_on_new_row() { load_on(make_empty_project("a.gmk")); }
    void load_on_row(const Values& changes = {}) { load_on(make_project("a.gmk", changes)); }

    [[nodiscard]] static Steps texts() {
        Steps all;
        for (const DetailsField& field : details_fields) {
            all.push_back((frmProject.*field.field).text);
        }
        return all;
    }

  private:
    void load_on(const std::string& path) {
        frmProject = {};
        session.projectFilePath = path;
        open_database();
        load_details_form();
        frmProject.visible = true;
        EXPECT_EQ(steps, Steps{});
    }
};

TEST_F(DetailsForm, HasTheseFieldsWithTheirColumnsLabelsAndLimits) {
    Steps lines;
    for (const DetailsField& field : details_fields) {
        lines.push_back(std::string(field.name) + " " + std::string(field.column) + " \"" +
                        std::string(field.label) + "\" " + std::to_string(field.limit));
    }
    EXPECT_EQ(lines, (Steps{
                         "project_id PROJECT_ID \"PROJECT ID\" 20",
                         "project_name PROJECT_NAME \"PROJECT NAME\" 50",
                         "description DESCRIPTION \"DESCRIPTION\" 200",
                         "location LOCATION \"LOCATION\" 50",
                         "county COUNTY \"COUNTY/CITY\" 0",
                         "state STATE \"STATE\" 0",
                         "designer DESIGNER \"DESIGNED BY\" 25",
                         "units UNITS \"UNITS\" 0",
                     }));
    EXPECT_EQ(details_title, "Project");
    EXPECT_EQ(details_frame_caption, "Project Details");
}

TEST_F(DetailsForm, HasThisMenu) {
    Steps lines;
    for (const DetailsMenuItem& item : details_menu) {
        lines.push_back(std::string(item.menu) + "/" + std::string(item.name) + ": " +
                        std::string(item.caption));
    }
    EXPECT_EQ(lines, (Steps{
                         "/mnuProjFile: &File",
                         "mnuProjFile/mnuprojsave: &Save",
                         "mnuProjFile/mnuprojcancel: &Cancel",
                         "mnuProjFile/mnuprojexit: &Exit",
                         "/mnuprojhelp: &Help",
                         "mnuprojhelp/mnuprojsubhelp: &Help",
                         "mnuprojhelp/mnuprojabout: &About Tarnel Brook",
                     }));
}

TEST_F(DetailsForm, ListsTheCountiesAndOneSystemOfUnits) {
    load_on_new_row();
    EXPECT_EQ(
        frmProject.county.entries,
        (Steps{"Autauga",    "Baldwin",   "Barbour",    "Blount",    "Bullock",    "Butler",     "Calhoun",
               "Chambers",   "Cherokee",  "Chilton",    "Choctaw",   "Clarke",     "Clay",       "Cleburne",
               "Coffee",     "Colbert",   "Conecuh",    "Coosa",     "Covington",  "Crenshaw",   "Cullman",
               "Dale",       "Dallas",    "Dekalb",     "Elmore",    "Escambia",   "Etowah",     "Fayette",
               "Franklin",   "Geneva",    "Greene",     "Hale",      "Henry",      "Houston",    "Jackson",
               "Jefferson",  "Lamar",     "Lauderdale", "Lawrence",  "Lee",        "Limestone",  "Lowndes",
               "Macon",      "Madison",   "Marengo",    "Marion",    "Marshall",   "Mobile",     "Monroe",
               "Montgomery", "Morgan",    "Perry",      "Pickens",   "Pike",       "Randolph",   "Russell",
               "Shelby",     "St. Clair", "Sumter",     "Talladega", "Tallapoosa", "Tuscaloosa", "Walker",
               "Washington", "Wilcox",    "Winston"}));
    EXPECT_EQ(frmProject.units.entries, (Steps{"ENGLISH"}));
}

TEST_F(DetailsForm, ANewRowStartsWithStateCountyAndUnits) {
    session.projectUnits = "kept";
    load_on_new_row();
    EXPECT_EQ(texts(), (Steps{"", "", "", "", "Autauga", "AL", "", "ENGLISH"}));
    EXPECT_TRUE(frmProject.adding);
    EXPECT_FALSE(frmProject.changed);
    EXPECT_FALSE(frmProject.mnuprojcancel.enabled);
    EXPECT_TRUE(frmProject.project_id.enabled);
    EXPECT_EQ(frmProject.project_id.color, Color::window);
    EXPECT_TRUE(frmProject.units.enabled);
    EXPECT_EQ(frmProject.units.color, Color::window);
    EXPECT_EQ(session.productName, "GULLYMARKAL");
    EXPECT_EQ(session.projectUnits, "kept");
    EXPECT_EQ(frmsoftwaremain.status_panels[0], "Create Project");
}

TEST_F(DetailsForm, ARowThatExistsKeepsItsIdentifierAndUnits) {
    load_on_row();
    EXPECT_EQ(texts(),
              (Steps{"P-1", "Mill Road", "Widening", "Bay Front", "Mobile", "AL", "A. Smith", "ENGLISH"}));
    EXPECT_FALSE(frmProject.adding);
    EXPECT_FALSE(frmProject.changed);
    EXPECT_TRUE(frmProject.mnuprojcancel.enabled);
    EXPECT_FALSE(frmProject.project_id.enabled);
    EXPECT_EQ(frmProject.project_id.color, Color::gray);
    EXPECT_FALSE(frmProject.units.enabled);
    EXPECT_EQ(frmProject.units.color, Color::gray);
    EXPECT_EQ(session.projectUnits, "ENGLISH");
}

TEST_F(DetailsForm, WithoutAnOpenFileItsLoadTellsTheFailures) {
    load_details_form();
    EXPECT_TRUE(frmProject.loaded);
    ASSERT_EQ(user.boxes.size(), 2U);  // reading the row, then attaching to it
    for (const Box& box : user.boxes) {
        EXPECT_EQ(box.kind, BoxKind::plain);
        EXPECT_EQ(box.title, "GullymarkAL");
        EXPECT_NE(box.text, "");
    }
    EXPECT_FALSE(frmProject.adding);
}

TEST_F(DetailsForm, TheFirstEditSetsTheChangedFlag) {
    load_on_row();
    type("designer", "A. Smith");
    EXPECT_FALSE(frmProject.changed);
    type("designer", "A. Smit");
    EXPECT_TRUE(frmProject.changed);
}

TEST_F(DetailsForm, OnlyTheFirstChangeOfTheRowSetsTheChangedFlag) {
    for (const int reason : {1, 2, 3, 10, 12}) {
        brookprojrs_WillChangeRecord(reason);
        EXPECT_FALSE(frmProject.changed) << reason;
    }
    brookprojrs_WillChangeRecord(11);
    EXPECT_TRUE(frmProject.changed);
}

TEST_F(DetailsForm, TypingStopsAtTheLimit) {
    load_on_new_row();
    type("project_id", std::string(25, 'x'));
    EXPECT_EQ(frmProject.project_id.text, std::string(20, 'x'));
    type("description", std::string(201, 'y'));
    EXPECT_EQ(frmProject.description.text, std::string(200, 'y'));
    type("county", std::string(300, 'z'));
    EXPECT_EQ(frmProject.county.text, std::string(300, 'z'));
}

TEST_F(DetailsForm, AStoredTextBeyondTheLimitCanBeShortened) {
    load_on_row({{"DESIGNER", std::string(30, 'd')}});
    type("designer", std::string(31, 'd'));
    EXPECT_EQ(frmProject.designer.text, std::string(30, 'd'));
    type("designer", std::string(28, 'd'));
    EXPECT_EQ(frmProject.designer.text, std::string(28, 'd'));
}

TEST_F(DetailsForm, UnitsThatAreNotListedAreRefused) {
    load_on_new_row();
    type("units", "METRIC");
    EXPECT_EQ(user.boxes, (Boxes{not_listed}));
    EXPECT_EQ(frmProject.units.text, "ENGLISH");
}

TEST_F(DetailsForm, ACountyThatIsNotListedIsSavedAsTyped) {
    load_on_row();
    type("county", "City of Foley");
    mnuprojsave_Click();
    EXPECT_EQ(user.boxes, (Boxes{saved}));
    EXPECT_EQ(stored("a.gmk")["COUNTY"], "City of Foley");
}

TEST_F(DetailsForm, ASaveWithBothRequiredFieldsEmptyNamesTheStateOnly) {
    load_on_new_row();
    type("state", "");
    mnuprojsave_Click();
    EXPECT_EQ(user.boxes, (Boxes{state_required}));
    type("state", "AL");
    mnuprojsave_Click();
    EXPECT_EQ(user.boxes, (Boxes{state_required, id_required}));
    EXPECT_EQ(count_rows("a.gmk"), 0);
    EXPECT_TRUE(frmProject.visible);
    EXPECT_TRUE(frmProject.changed);
}

TEST_F(DetailsForm, ASavedNewRowHoldsAllEightTextsAndTheProductsMark) {
    load_on_new_row();
    type("project_id", "P-9");
    mnuprojsave_Click();
    Values row = stored("a.gmk");
    EXPECT_EQ(row["PROJECT_ID"], "P-9");
    EXPECT_EQ(row["PROJECT_NAME"], "");
    EXPECT_EQ(row["DESCRIPTION"], "");
    EXPECT_EQ(row["LOCATION"], "");
    EXPECT_EQ(row["COUNTY"], "Autauga");
    EXPECT_EQ(row["STATE"], "AL");
    EXPECT_EQ(row["DESIGNER"], "");
    EXPECT_EQ(row["UNITS"], "ENGLISH");
    EXPECT_EQ(row["PRODUCT_NAME"], "GULLYMARKAL");
}

TEST_F(DetailsForm, AColumnThatTheFileLacksIsToldAndTheFormStays) {
    const std::string path = make_project("a.gmk");
    testing_support::run_sql(path, "ALTER TABLE PROJECT DROP COLUMN DESIGNER");
    session.projectFilePath = path;
    open_database();
    load_details_form();
    frmProject.visible = true;
    user.boxes.clear();
    type("project_name", "Mill Road East");
    mnuprojsave_Click();
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::plain, "The project has no column DESIGNER."}}));
    EXPECT_TRUE(frmProject.visible);
    EXPECT_EQ(stored("a.gmk")["PROJECT_NAME"], "Mill Road");
}

TEST_F(DetailsForm, ASaveTellsEverybodyAndGoesOnToTheWorkspace) {
    load_on_row();
    type("project_name", "Mill Road East");
    type("county", "Dale");
    type("state", "GA");
    type("designer", "");
    look = [](const std::string& step) {
        if (step == "box Project Details are Saved!") {
            EXPECT_FALSE(session.detailsUpdateMode);
            EXPECT_TRUE(frmProject.visible);
            EXPECT_FALSE(frmProject.changed);
            EXPECT_EQ(frmsoftwaremain.status_panels[0], "GA - Dale: Mill Road East");
        } else {
            EXPECT_TRUE(session.detailsUpdateMode);
            EXPECT_FALSE(frmProject.visible);
        }
    };
    mnuprojsave_Click();
    EXPECT_EQ(steps, (Steps{"box Project Details are Saved!", "workspace"}));
    EXPECT_EQ(user.boxes, (Boxes{saved}));
    EXPECT_EQ(session.projectId, "P-1");
    EXPECT_EQ(session.projectName, "Mill Road East");
    EXPECT_EQ(session.projectCounty, "Dale");
    EXPECT_EQ(session.projectState, "GA");
    EXPECT_EQ(session.projectDesigner, "");
    EXPECT_EQ(session.projectUnits, "ENGLISH");
    EXPECT_EQ(frmsoftwaremain.status_panels[2], "UNITS: ENGLISH");
    EXPECT_FALSE(frmsoftwaremain.visible);
    Values row = stored("a.gmk");
    EXPECT_EQ(row["PROJECT_NAME"], "Mill Road East");
    EXPECT_EQ(row["DESIGNER"], "");
    EXPECT_EQ(row["RELEASE_DATE"], "MAY 2010");
    EXPECT_EQ(row["DESCRIPTION"], "Widening");
}

TEST_F(DetailsForm, ASaveInAFileOfAnotherProductEndsTheProgramAfterTheMessage) {
    load_on_row({{"PRODUCT_NAME", "GULLYMARKTN"}});
    type("project_name", "Mill Road East");
    EXPECT_THROW(mnuprojsave_Click(), ProgramEnded);
    EXPECT_EQ(user.boxes,
              (Boxes{saved,
                     {BoxKind::warning,
                      "This is an Incompatible Project Database! Please use correct version of the database",
                      "Tarnel Brook"}}));
    EXPECT_EQ(stored("a.gmk")["PROJECT_NAME"], "Mill Road East");
}

TEST_F(DetailsForm, ANewRowSavedTwiceIsOneRow) {
    load_on_new_row();
    type("project_id", "P-9");
    mnuprojsave_Click();
    EXPECT_FALSE(frmProject.adding);
    in_details_form = [] {
        type("description", "Second");
        mnuprojsave_Click();
    };
    mnuupdateProj_Click();
    EXPECT_EQ(stored("a.gmk")["DESCRIPTION"], "Second");
}

TEST_F(DetailsForm, HiddenAfterASaveItComesBackWithItsTextsAndItsRow) {
    load_on_new_row();
    type("project_id", "P-9");
    type("project_name", "Mill Road");
    mnuprojsave_Click();
    session.projectUnits = "something else";
    in_details_form = [] {
        EXPECT_EQ(frmProject.project_name.text, "Mill Road");
        EXPECT_FALSE(frmProject.project_id.enabled);
        EXPECT_TRUE(frmProject.mnuprojcancel.enabled);
        EXPECT_EQ(session.projectUnits, "ENGLISH");
        type("project_name", "Mill Lane");
        mnuprojsave_Click();
    };
    mnuupdateProj_Click();
    EXPECT_EQ(stored("a.gmk")["PROJECT_NAME"], "Mill Lane");
}

TEST_F(DetailsForm, ASaveThatFailsIsToldAndEndsThere) {
    load_on_row();
    type("project_name", "Mill Lane");
    project_store.connection.close();
    mnuprojsave_Click();
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0].kind, BoxKind::plain);
    EXPECT_EQ(user.boxes[0].title, "GullymarkAL");
    EXPECT_NE(user.boxes[0].text, "");
    EXPECT_EQ(steps.size(), 1U);
    EXPECT_TRUE(frmProject.visible);
    EXPECT_TRUE(frmProject.changed);
    EXPECT_EQ(session.projectName, "Mill Road");
}

TEST_F(DetailsForm, CancelReadsTheRowAgain) {
    load_on_row();
    type("project_name", "Mill Lane");
    type("county", "Dale");
    mnuprojcancel_Click();
    EXPECT_EQ(steps, (Steps{"focus on", "box Update Cancelled"}));
    EXPECT_EQ(user.boxes, (Boxes{cancelled}));
    EXPECT_EQ(texts(),
              (Steps{"P-1", "Mill Road", "Widening", "Bay Front", "Mobile", "AL", "A. Smith", "ENGLISH"}));
    EXPECT_FALSE(frmProject.changed);
    EXPECT_TRUE(frmProject.visible);
    EXPECT_EQ(stored("a.gmk")["PROJECT_NAME"], "Mill Road");
}

TEST_F(DetailsForm, CancelWithoutAFileTellsNoFailure) {
    frmProject.changed = true;
    mnuprojcancel_Click();
    EXPECT_EQ(user.boxes, (Boxes{cancelled}));
    EXPECT_FALSE(frmProject.changed);
}

TEST_F(DetailsForm, ExitWithoutAnEditUnloadsTheFormAndAsksNothing) {
    load_on_new_row();
    mnuprojexit_Click();
    EXPECT_EQ(steps, (Steps{"focus on"}));
    EXPECT_FALSE(frmProject.loaded);
    EXPECT_FALSE(frmProject.visible);
    EXPECT_FALSE(frmProject.brookprojrs.is_open());
    EXPECT_EQ(count_rows("a.gmk"), 0);
}

TEST_F(DetailsForm, ExitAfterAnEditStaysOnNo) {
    load_on_new_row();
    type("project_id", "P-9");
    user.answers = {Answer::no};
    mnuprojexit_Click();
    EXPECT_EQ(user.boxes, (Boxes{exit_question}));
    EXPECT_TRUE(frmProject.visible);
    EXPECT_TRUE(frmProject.changed);
    EXPECT_EQ(frmProject.project_id.text, "P-9");
    mnuprojsave_Click();
    EXPECT_EQ(stored("a.gmk")["PROJECT_ID"], "P-9");
}

TEST_F(DetailsForm, ExitAfterAnEditCancelsAndUnloadsOnYes) {
    load_on_new_row();
    type("project_id", "P-9");
    user.answers = {Answer::yes};
    mnuprojexit_Click();
    EXPECT_EQ(steps, (Steps{"focus on", "box Exit without saving? ", "focus on", "box Update Cancelled"}));
    EXPECT_EQ(user.boxes, (Boxes{exit_question, cancelled}));
    EXPECT_FALSE(frmProject.loaded);
    EXPECT_FALSE(frmProject.visible);
    EXPECT_EQ(count_rows("a.gmk"), 0);
}

TEST_F(DetailsForm, OtherUnitsInTheFileAreRefusedLikeTypedOnes) {
    make_project("a.gmk", {{"UNITS", "METRIC"}});
    open_project("a.gmk");
    EXPECT_EQ(session.projectUnits, "METRIC");
    EXPECT_EQ(frmsoftwaremain.status_panels[1], "UNITS: METRIC");
    forget_steps();
    in_details_form = [] {
        EXPECT_EQ(frmProject.units.text, "ENGLISH");
        EXPECT_FALSE(frmProject.changed);
        mnuprojexit_Click();
    };
    mnuupdateProj_Click();
    EXPECT_EQ(user.boxes, (Boxes{not_listed}));
    EXPECT_EQ(session.projectUnits, "ENGLISH");
}

}  // namespace
}  // namespace gullymark::store
