#include "shell/review/sizing_page.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

#include "review/made_road.h"
#include "review_pictures.h"
#include "review_stage.h"
#include "shell/review/plot_curve.h"
#include "shell/review/plot_scale.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using engine::Column;

class SizingPageTest : public testing::Test {
  protected:
    void SetUp() override {
        prepare_review();
        reviewed.project = MadeRoad::make(30);
        engine::UnitSystem = "ENGLISH";
        engine::set_unit_defaults();
        page = std::make_unique<SizingPage>();
        page->resize(640, 600);
    }
    void TearDown() override {
        page.reset();
        platform::outside = {};
    }

    void show(std::size_t inlet) {
        page->show_inlet(reviewed, inlet);
        activate(*page);
    }
    template <class Widget>
    [[nodiscard]] Widget& find(const char* name) const {
        return *page->findChild<Widget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QTableView& table() const { return find<QTableView>("sizing"); }
    [[nodiscard]] std::vector<std::string> headings() const {
        std::vector<std::string> all;
        for (int column = 0; column < table().model()->columnCount(); ++column) {
            all.push_back(
                table().model()->headerData(column, Qt::Horizontal).toString().simplified().toStdString());
        }
        return all;
    }
    [[nodiscard]] std::string cell(int row, const std::string& heading) const {
        const auto all = headings();
        const auto column = std::ranges::find(all, heading) - all.begin();
        return table().model()->index(row, static_cast<int>(column)).data().toString().toStdString();
    }

    review::Reviewed reviewed;
    std::unique_ptr<SizingPage> page;
};

TEST_F(SizingPageTest, ShowsEachStandardWithItsUnits) {
    show(10);  // a curb inlet on a grade
    EXPECT_EQ(table().model()->rowCount(), 17);
    EXPECT_EQ(headings(), (std::vector<std::string>{
                              "Allowable spread", "Inlet Std.", "% Clogged", "Length [Ft.]", "Spread [ft]",
                              "Depth [in]", "Inter- cepted [cfs]", "Bypass [cfs]", "Effi- ciency [%]",
                              "Largest area [Ac]", "First inlet after [ft]", "Next inlets every [ft]"}));
    EXPECT_EQ(cell(0, "Inlet Std."), "this inlet");
    EXPECT_EQ(cell(0, "Spread [ft]"), reviewed.project.inlets[10].text(Column::OPENSPREAD));
    EXPECT_THAT(cell(1, "Allowable spread"), testing::AnyOf("\u2713 within", "\u2717 beyond"));
    EXPECT_EQ(cell(1, "Inlet Std."), "S1 ONE WING");
    EXPECT_NE(cell(1, "First inlet after [ft]"), "");
}

TEST_F(SizingPageTest, MarksWhatIsWithinByASignAndAColor) {
    auto& inlet = reviewed.project.inlets[10];
    show(10);
    const auto& model = *table().model();
    EXPECT_EQ(cell(0, "Allowable spread"), "\u2713 within");
    const QVariant within = model.index(0, 0).data(Qt::ForegroundRole);
    EXPECT_TRUE(model.index(0, 3).data(Qt::BackgroundRole).isValid());
    inlet.load(Column::ALLOWABLE_SPREAD, "2.0");
    show(10);
    EXPECT_EQ(cell(0, "Allowable spread"), "\u2717 beyond");
    EXPECT_NE(model.index(0, 0).data(Qt::ForegroundRole), within);
    EXPECT_FALSE(model.index(0, 3).data(Qt::BackgroundRole).isValid());
}

TEST_F(SizingPageTest, TakesTheRunoffForALengthFromTheStationsUntilAnotherIsTyped) {
    show(10);
    auto& area = find<QLineEdit>("sizing_area");
    EXPECT_NE(area.text(), "");
    EXPECT_THAT(find<QLabel>("sizing_area_source").text().toStdString(),
                testing::HasSubstr("over 120.00 ft from inlet 9"));
    const double first = std::stod(cell(1, "First inlet after [ft]"));
    area.setFocus();
    area.selectAll();
    type(*page, "0.01");
    press(*page, Qt::Key_Return);
    EXPECT_LT(std::stod(cell(1, "First inlet after [ft]")), first);
    EXPECT_THAT(find<QLabel>("sizing_area_source").text().toStdString(), testing::StartsWith("As typed"));
    area.selectAll();
    type(*page, "-");
    press(*page, Qt::Key_Return);
    EXPECT_EQ(cell(1, "First inlet after [ft]"), "");
    EXPECT_EQ(find<QLabel>("sizing_area_source").text(), "This is no number above 0.");
}

TEST_F(SizingPageTest, CopiesARowByItsKey) {
    show(10);
    QGuiApplication::clipboard()->setText("before");
    table().setFocus();
    press(*page, Qt::Key_Down);
    press(*page, Qt::Key_C, Qt::ControlModifier);
    const std::string copied = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_THAT(copied,
                testing::StartsWith("Allowable spread\tInlet Std.\t% Clogged\tLength [Ft.]\tSpread [ft]"));
    EXPECT_THAT(copied, testing::HasSubstr("\tS1 ONE WING\t0\t10.25\t"));
    EXPECT_EQ(std::ranges::count(copied, '\n'), 2);
}

TEST_F(SizingPageTest, PlotsTheRowThatIsMarked) {
    show(10);
    const auto& plot = dynamic_cast<CurvePlot&>(find<QWidget>("sizing_plot"));
    ASSERT_FALSE(plot.curve().points.empty());
    const auto own = plot.curve().points.back().share;
    table().setFocus();
    press(*page, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(plot.accessibleDescription(), "S4 ONE WING, 50 % clogged");
    EXPECT_NE(plot.curve().points.back().share, own);
}

TEST_F(SizingPageTest, TellsWhatASlottedInletAndADitchHaveNot) {
    show(8);  // slotted, on a grade
    EXPECT_EQ(table().model()->rowCount(), 1);
    EXPECT_EQ(find<QLabel>("sizing_note").text(),
              "There is no table of standards for: Slotted Inlet, CONTINUOUS GRADE.");
    EXPECT_EQ(cell(0, "Inlet"), "this inlet");
    show(4);  // a ditch
    EXPECT_EQ(cell(0, "Allowable spread"), "\u2013");
    EXPECT_FALSE(find<QLineEdit>("sizing_area").isVisible());
    EXPECT_THAT(headings(), testing::Not(testing::Contains("Largest area [Ac]")));
}

TEST_F(SizingPageTest, TellsWhyNoAreaIsSearched) {
    reviewed.project.inlets[10].load(Column::LDISCHARGE_OVERRIDE, "YES");
    show(10);
    EXPECT_THAT(find<QLabel>("sizing_note").text().toStdString(),
                testing::StartsWith("No discharge follows from a runoff area here: it is typed,"));
    EXPECT_EQ(cell(1, "Largest area [Ac]"), "\u2013");
}

TEST_F(SizingPageTest, CopiesARowByItsMenu) {
    show(10);
    QGuiApplication::clipboard()->setText("before");
    QTimer::singleShot(50, [] {
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().constFirst()).center());
    });
    const QPoint at(40, 20);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, table().viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(table().viewport(), &event);
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), testing::HasSubstr("\tthis inlet\t"));
}

TEST_F(SizingPageTest, ShowsBothAreasOfASump) {
    show(11);
    EXPECT_THAT(headings(), testing::IsSupersetOf({"Gutter spread [ft]", "Largest area, left [Ac]",
                                                   "Largest area, right [Ac]"}));
    EXPECT_THAT(headings(), testing::Not(testing::Contains("Bypass [cfs]")));
}

TEST_F(SizingPageTest, TellsThatTheTableIsInFeetInAMetricProject) {
    reviewed.project.units = "METRIC";
    engine::UnitSystem = "METRIC";
    engine::set_unit_defaults();
    show(10);
    EXPECT_THAT(find<QLabel>("sizing_note").text().toStdString(),
                testing::StartsWith("The table is in feet."));
    EXPECT_THAT(headings(), testing::Contains("Spread [m]"));
}

TEST_F(SizingPageTest, SolvesNothingUntilItIsLookedAt) {
    page->show_inlet(reviewed, 10);
    EXPECT_EQ(table().model()->rowCount(), 0);
    activate(*page);
    EXPECT_EQ(table().model()->rowCount(), 17);
    page->clear();
    EXPECT_EQ(table().model()->rowCount(), 0);
}

TEST_F(SizingPageTest, PaintsAPlotOfAnyInlet) {
    for (std::size_t inlet = 0; inlet < 30; ++inlet) {
        show(inlet);
        EXPECT_FALSE(page->grab().isNull());
    }
    reviewed.project.inlets[0] = {};
    show(0);
    EXPECT_FALSE(page->grab().isNull());
}

TEST(PlotScale, HasRoundTicks) {
    const auto texts = [](double greatest, int ticks) {
        const PlotScale scale = plot_scale(greatest, ticks);
        std::string all;
        for (const double tick : scale.ticks()) {
            all += scale.text(tick).toStdString() + ' ';
        }
        return all;
    };
    EXPECT_EQ(texts(7.3, 4), "0 2 4 6 8 ");
    EXPECT_EQ(texts(100, 5), "0 20 40 60 80 100 ");
    EXPECT_EQ(texts(0.37, 4), "0.0 0.1 0.2 0.3 0.4 ");
    EXPECT_EQ(texts(0, 2), "0.0 0.5 1.0 ");
    EXPECT_LE(plot_scale(1e300, 5).ticks().size(), 7U);
    EXPECT_LE(plot_scale(1e-300, 5).ticks().size(), 7U);
}

/// With GULLYMARK_PICTURES=FOLDER the page is kept as a picture, on a light and on a dark palette.
TEST_F(SizingPageTest, LooksLikeATableAndAPlotOnLightAndDark) {
    for (const std::size_t inlet : {10U, 6U, 11U, 4U}) {
        show(inlet);
        keep_pictures(*page, "sizing_" + std::to_string(inlet));
    }
}

}  // namespace
}  // namespace gullymark::shell
