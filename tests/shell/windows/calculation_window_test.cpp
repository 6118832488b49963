// The worked calculation on the windows: the command, and what its window does.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QClipboard>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>

#include "engine/inlet_record.h"
#include "engine/solve.h"
#include "shell/new_road.h"
#include "shell/windows/inlet_items.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

QPushButton& command() {
    return *workspace().findChild<QPushButton*>("fixed_worked_calculation");
}

QTextBrowser& text_of(const QWidget& window) {
    return *window.findChild<QTextBrowser*>("calculation");
}

/// The toolkit shows a button down for a while before its letter clicks it.
void strike_letter_of_a_button(QWidget& window, Qt::Key letter) {
    press(window, letter, Qt::AltModifier);
    QTest::qWait(200);
    settle();
}

/// A road with one saved inlet, in VIEW, on the page of its results.
struct SolvedRoad : NewRoad {
    SolvedRoad() {
        save_a_curb_inlet();
        robot.boxes.clear();
        robot.file_titles.clear();
        press(workspace(), Qt::Key_R, Qt::AltModifier);
    }

    /// Opens the window by its letter; it is closed by Esc behind `work`.
    void in_calculation(const std::function<void(QWidget&)>& work) {
        robot.in_window.emplace_back([work](QWidget& window) {
            activate(window);
            work(window);
            press(window, Qt::Key_Escape);
        });
        strike_letter_of_a_button(workspace(), Qt::Key_W);
        activate(workspace());
    }
};

TEST(CalculationWindow, OpensByAClickAndShowsTheInletOnTheForm) {
    SolvedRoad road;
    std::string text;
    road.robot.in_window.emplace_back([&](QWidget& window) {
        activate(window);
        EXPECT_EQ(window.objectName().toStdString(), "worked_calculation");
        EXPECT_EQ(window.windowTitle().toStdString(), "Worked Calculation of Inlet I-1");
        EXPECT_TRUE(window.isModal());
        EXPECT_TRUE(text_of(window).hasFocus());
        text = text_of(window).toPlainText().toStdString();
        click(*window.findChild<QPushButton*>("close"));
    });
    click(command());
    EXPECT_THAT(text, HasSubstr("Oak Street"));
    EXPECT_THAT(text, HasSubstr("LT = KL \u00D7 Q0.42"));
    EXPECT_THAT(text, testing::Not(HasSubstr("do not follow")));
    road.leave();
}

TEST(CalculationWindow, OpensByKeyboardClosesByEscAndTheFocusComesBack) {
    SolvedRoad road;
    QWidget* tabs = workspace().findChild<QTabWidget*>("SSTab1")->tabBar();
    tabs->setFocus();
    settle();
    bool shown = false;
    road.in_calculation([&shown](QWidget& /*window*/) { shown = true; });
    EXPECT_TRUE(shown);
    EXPECT_TRUE(tabs->hasFocus());
    command().setFocus();
    shown = false;
    road.robot.in_window.emplace_back([&shown](QWidget& window) {
        shown = true;
        activate(window);
        press(window, Qt::Key_Escape);
    });
    press(workspace(), Qt::Key_Space);
    activate(workspace());
    EXPECT_TRUE(shown);
    EXPECT_TRUE(command().hasFocus());
    road.leave();
}

TEST(CalculationWindow, IsThereInEveryModeAsSoonAsAnInletIsOnTheForm) {
    NewRoad road;
    EXPECT_FALSE(command().isEnabled()) << "no inlet";
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-9");
    EXPECT_TRUE(command().isEnabled()) << "ADD";
    road.robot.answers.push_back(QMessageBox::Yes);
    press(workspace(), Qt::Key_Q, Qt::ControlModifier);
    activate(workspace());
    EXPECT_FALSE(command().isEnabled()) << "the new inlet was given up";
    save_a_curb_inlet();
    EXPECT_TRUE(command().isEnabled()) << "VIEW";
    press(workspace(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(command().isEnabled()) << "EDIT";
    road.leave();
}

TEST(CalculationWindow, ChangesNeitherTheOpenInletNorTheFile) {
    SolvedRoad road;
    std::vector<std::optional<std::string>> before;
    for (const auto column : engine::all_columns) {
        before.push_back(engine::open_inlet.value(column));
    }
    const std::string file = read_file(road.folder.path("road.gmk"));
    const bool solved = engine::DataSolved;
    road.in_calculation([](QWidget& /*window*/) {});
    for (const auto column : engine::all_columns) {
        EXPECT_EQ(engine::open_inlet.value(column), before[static_cast<std::size_t>(column)]);
    }
    EXPECT_EQ(engine::DataSolved, solved);
    EXPECT_TRUE(read_file(road.folder.path("road.gmk")) == file);
    EXPECT_THAT(road.robot.boxes, IsEmpty());
    road.leave();
}

TEST(CalculationWindow, TellsFirstThatStoredResultsDoNotFollow) {
    SolvedRoad road;
    press(workspace(), Qt::Key_E, Qt::ControlModifier);
    press(workspace(), Qt::Key_I, Qt::AltModifier);
    line("txtS").setFocus();
    type(workspace(), "0.05");
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    std::string text;
    road.in_calculation([&text](QWidget& window) { text = text_of(window).toPlainText().toStdString(); });
    EXPECT_THAT(text, StartsWith("The stored results do not follow from the stored inputs: "));
    road.leave();
}

TEST(CalculationWindow, TellsInputsUnderTheCaptionsOfTheForm) {
    SolvedRoad road;
    std::string text;
    road.in_calculation([&text](QWidget& window) { text = text_of(window).toPlainText().toStdString(); });
    const auto& form = *workspace().findChild<QWidget*>("frminletMDIC");
    for (const auto column : engine::all_columns) {
        // Three fields stand beside a check box or the one that they belong to; no step reads them.
        const bool has_none = column == engine::Column::LDISCHARGE_OVERRIDE ||
                              column == engine::Column::RDISCHARGE_OVERRIDE ||
                              column == engine::Column::OFFSET_LOCATION;
        EXPECT_EQ(caption_of(form, column).empty(), has_none) << engine::column_name(column);
    }
    EXPECT_EQ(caption_of(form, engine::Column::DISCHARGE1), "DISCHARGE");
    for (const char* caption : {"TOTAL DISCHARGE", "LONGITUDINAL SLOPE", "PAVEMENT CROSS SLOPE",
                                "GUTTER WIDTH", "SPREAD AT OPENING", "Q BYPASS", "ALLOWABLE SPREAD"}) {
        EXPECT_THAT(text, HasSubstr(caption));
    }
    road.leave();
}

/// How the picture is told to who cannot see it.
std::string picture_in(const QWidget& window) {
    return window.findChild<QWidget*>("section")->accessibleDescription().toStdString();
}

TEST(CalculationWindow, DrawsTheSectionWithItsWater) {
    SolvedRoad road;
    std::string solved;
    road.in_calculation([&solved](QWidget& window) { solved = picture_in(window); });
    EXPECT_THAT(solved, HasSubstr("spread 8.813 ft"));
    EXPECT_THAT(solved, testing::Not(HasSubstr("not solved")));
    press(workspace(), Qt::Key_E, Qt::ControlModifier);
    press(workspace(), Qt::Key_I, Qt::AltModifier);
    line("txtS").setFocus();
    type(workspace(), "0.05");
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    std::string unsolved;
    road.in_calculation([&unsolved](QWidget& window) { unsolved = picture_in(window); });
    EXPECT_THAT(unsolved, HasSubstr("not solved"));
    road.leave();
}

TEST(CalculationWindow, CopyAsTextPutsAllOfItOnTheClipboard) {
    SolvedRoad road;
    QGuiApplication::clipboard()->clear();
    road.in_calculation([](QWidget& window) { strike_letter_of_a_button(window, Qt::Key_T); });
    const std::string text = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_THAT(text, StartsWith("WORKED CALCULATION\n\nProject           P-1 "));
    EXPECT_THAT(text, HasSubstr("LT = K_L \u00D7 Q^0.42 \u00D7 S^0.3"));
    road.leave();
}

TEST(CalculationWindow, SavesItsPagesAsPdfAndAsksBeforeItReplacesAFile) {
    SolvedRoad road;
    const std::string path = road.folder.path("I-1.pdf");
    road.robot.files.emplace_back(road.folder.path("I-1"));
    road.in_calculation([](QWidget& window) { click(*window.findChild<QPushButton*>("save_as_pdf")); });
    EXPECT_THAT(road.robot.file_titles, ElementsAre("Save Worked Calculation of Inlet I-1"));
    EXPECT_THAT(read_file(path), StartsWith("%PDF-"));
    EXPECT_THAT(road.robot.boxes, IsEmpty());

    write_file(path, "old");
    road.robot.files.emplace_back(path);
    road.robot.answers.push_back(QMessageBox::No);
    road.in_calculation([](QWidget& window) { press(window, Qt::Key_S, Qt::ControlModifier); });
    EXPECT_EQ(read_file(path), "old");
    road.robot.files.emplace_back(path);
    road.robot.answers.push_back(QMessageBox::Yes);
    road.in_calculation([](QWidget& window) { strike_letter_of_a_button(window, Qt::Key_S); });
    EXPECT_THAT(read_file(path), StartsWith("%PDF-"));
    ASSERT_EQ(road.robot.boxes.size(), 2U);
    EXPECT_EQ(road.robot.boxes.front().text, "File Already Exists!   Overwrite?");
    road.leave();
}

TEST(CalculationWindow, ACanceledDialogWritesNothingAndSaysNothing) {
    SolvedRoad road;
    road.robot.files.emplace_back(std::nullopt);
    road.in_calculation([](QWidget& window) { click(*window.findChild<QPushButton*>("save_as_pdf")); });
    EXPECT_THAT(road.robot.boxes, IsEmpty());
    road.leave();
}

TEST(CalculationWindow, TellsWhyAPdfWasNotWritten) {
    SolvedRoad road;
    const std::string project = road.folder.path("road.gmk");
    const std::string before = read_file(project);
    road.robot.files.emplace_back(project);
    road.robot.answers.push_back(QMessageBox::Yes);
    road.in_calculation([](QWidget& window) { click(*window.findChild<QPushButton*>("save_as_pdf")); });
    ASSERT_EQ(road.robot.boxes.size(), 2U);
    EXPECT_EQ(road.robot.boxes.back(),
              (platform::Box{.kind = platform::BoxKind::warning,
                             .text = "The PDF file was not written: This is a project file: " + project}));
    EXPECT_TRUE(read_file(project) == before);
    road.leave();
}

TEST(CalculationWindow, AsksForThePrinterAndPrintsNothingAfterACancel) {
    SolvedRoad road;
    bool asked = false;
    road.robot.in_window.emplace_back([&](QWidget& window) {
        activate(window);
        road.robot.in_window.emplace_back([&asked](QWidget& dialog) {
            asked = qobject_cast<QPrintDialog*>(&dialog) != nullptr;
            press(dialog, Qt::Key_Escape);
        });
        press(window, Qt::Key_P, Qt::ControlModifier);
        press(window, Qt::Key_Escape);
    });
    strike_letter_of_a_button(workspace(), Qt::Key_W);
    activate(workspace());
    EXPECT_TRUE(asked);
    EXPECT_THAT(road.robot.boxes, IsEmpty());
    road.leave();
}

/// Prints into a file, as the printer that stands for one does.
void print_into(SolvedRoad& road, const std::string& path) {
    road.robot.in_window.emplace_back([&road, path](QWidget& window) {
        activate(window);
        road.robot.in_window.emplace_back([path](QWidget& asked) {
            auto& dialog = dynamic_cast<QPrintDialog&>(asked);
            dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog.printer()->setOutputFileName(QString::fromStdString(path));
            dialog.done(QDialog::Accepted);
        });
        click(*window.findChild<QPushButton*>("print"));
        press(window, Qt::Key_Escape);
    });
    click(command());
    activate(workspace());
}

TEST(CalculationWindow, PrintsItsPages) {
    SolvedRoad road;
    print_into(road, road.folder.path("printed.pdf"));
    EXPECT_THAT(read_file(road.folder.path("printed.pdf")), StartsWith("%PDF-"));
    EXPECT_THAT(road.robot.boxes, IsEmpty());
    road.leave();
}

TEST(CalculationWindow, TellsThatThePrinterTookNothing) {
    SolvedRoad road;
    print_into(road, road.folder.path("none/printed.pdf"));
    EXPECT_THAT(road.robot.boxes, ElementsAre(platform::Box{.kind = platform::BoxKind::warning,
                                                            .text = "The calculation was not printed."}));
    road.leave();
}

TEST(CalculationWindow, GoesThroughItsTextAndItsCommandsByTab) {
    SolvedRoad road;
    std::vector<std::string> way;
    road.in_calculation([&way](QWidget& window) {
        for (int i = 0; i < 5; ++i) {
            way.push_back(window.focusWidget()->objectName().toStdString());
            press(window, Qt::Key_Tab);
        }
    });
    EXPECT_EQ(way.front(), "calculation");
    EXPECT_THAT(
        way, testing::UnorderedElementsAre("calculation", "print", "save_as_pdf", "copy_as_text", "close"));
    road.leave();
}

}  // namespace
}  // namespace gullymark::shell
