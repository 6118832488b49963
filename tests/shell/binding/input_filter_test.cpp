#include "shell/binding/input_filter.h"

#include <gtest/gtest.h>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

#include "editor/form/field_keys.h"
#include "editor/form/screen_fields.h"
#include "platform/outside.h"
#include "small_form.h"

namespace gullymark::shell {
namespace {

using testing_support::activate;
using testing_support::click;
using testing_support::press;
using testing_support::settle;
using testing_support::SmallForm;
using testing_support::type;

/// That of a field for a number of at most ten characters.
InputFilter number_filter() {
    constexpr auto field = editor::FieldId::TopElevation;
    return {.key = [](char32_t key, std::string_view whole,
                      std::string_view selected) { return editor::filter_key(field, key, whole, selected); },
            .text =
                [](std::string_view incoming, std::string_view whole, std::string_view selected) {
                    return editor::filter_text(field, incoming, whole, selected);
                }};
}

struct FilteredForm : SmallForm {
    int beeps = 0;

    FilteredForm() {
        platform::outside.beep = [this] { ++beeps; };
        auto all = items();
        all[0].filter = number_filter();
        all[1].filter = number_filter();
        bind(std::move(all));
        activate(window);
        click(*number_line);
    }
    ~FilteredForm() { platform::outside = {}; }

    /// Pastes in place of all that stands there.
    void paste(const QString& text) {
        number_line->selectAll();
        paste_here(text);
    }
    void paste_here(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        press(window, Qt::Key_V, Qt::ControlModifier);
    }
    /// As a screen keyboard or a composed key does.
    void commit(QWidget& into, const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(&into, &event);
        settle();
    }
    void drop(QLineEdit& into, const QString& text) {
        QMimeData data;
        data.setText(text);
        const QPointF at(into.width() - 4, into.height() / 2.0);
        QDragEnterEvent enters(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&into, &enters);
        QDropEvent drops(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&into, &drops);
        settle();
    }
};

TEST(InputFilter, DropsKeysThatDoNotCount) {
    FilteredForm form;
    form.number_line->selectAll();
    type(form.window, "4x-5");
    EXPECT_EQ(form.number.text, "45");
    EXPECT_EQ(form.beeps, 0);
}

TEST(InputFilter, DropsThemInAListToo) {
    FilteredForm form;
    click(*form.kind_list->lineEdit());
    form.kind_list->lineEdit()->selectAll();
    type(form.window, "2x5");
    EXPECT_EQ(form.kind.text, "25");
}

struct IncomingRow {
    const char* text;
    const char* gives;  // in place of "1"; null where it is refused
};

const std::vector<IncomingRow> incoming{
    {"12.5", "12.5"},
    {" 12.5 ", "12.5"},
    {"12.5\n", "12.5"},  // a cell of a spreadsheet
    {"\t12.5\r\n", "12.5"},
    {"5.", "5."},
    {".5", ".5"},
    {"1234567890", "1234567890"},
    {"1 ", "1"},
    {"12345678901", nullptr},
    {"1e5", nullptr},
    {"1E-3", nullptr},
    {"-5", nullptr},
    {"+5", nullptr},
    {"12.5.7 ft", nullptr},
    {"12.5.7", nullptr},
    {"12.5 ft", nullptr},
    {"1 1", nullptr},
    {"1,234.5", nullptr},
    {"12\t13", nullptr},
    {"12\n13\n", nullptr},
    {"0x10", nullptr},
    {"inf", nullptr},
    {"xyz", nullptr},
    {"\u0661", nullptr},
};

TEST(InputFilter, TakesAPastedNumberWholeOrNothingOfIt) {
    FilteredForm form;
    int refused = 0;
    for (const auto& row : incoming) {
        form.number_line->selectAll();
        type(form.window, "1");
        form.paste(row.text);
        EXPECT_EQ(form.number.text, row.gives == nullptr ? "1" : row.gives) << row.text;
        EXPECT_EQ(form.number_line->text().toStdString(), form.number.text) << row.text;
        refused += row.gives == nullptr ? 1 : 0;
        EXPECT_EQ(form.beeps, refused) << row.text;
    }
}

TEST(InputFilter, JudgesADropAndTheInputMethodAsAPaste) {
    FilteredForm form;
    const auto fresh = [&form] {
        form.number_line->selectAll();
        type(form.window, "1");
        form.number_line->selectAll();
    };
    for (const auto& row : incoming) {
        fresh();
        form.commit(*form.number_line, row.text);
        EXPECT_EQ(form.number.text, row.gives == nullptr ? "1" : row.gives) << "committed " << row.text;
    }
    for (const auto& row : incoming) {
        fresh();
        form.number_line->clear();
        form.number.text.clear();
        type(form.window, ".");
        press(form.window, Qt::Key_Backspace);
        form.drop(*form.number_line, row.text);
        EXPECT_EQ(form.number.text, row.gives == nullptr ? "" : row.gives) << "dropped " << row.text;
    }
}

TEST(InputFilter, JudgesAPasteByWhatItGivesWithTheRest) {
    FilteredForm form;
    form.paste("1.5");
    press(form.window, Qt::Key_End);
    form.paste_here("2.5");
    EXPECT_EQ(form.number.text, "1.5") << "a second point";
    form.paste_here(" 25\n");
    EXPECT_EQ(form.number.text, "1.525");
    form.paste_here("123456");
    EXPECT_EQ(form.number.text, "1.525") << "eleven characters";
    press(form.window, Qt::Key_Home);
    form.paste_here("2");
    EXPECT_EQ(form.number.text, "21.525");
    EXPECT_EQ(form.number_line->cursorPosition(), 1);
    type(form.window, "0");
    EXPECT_EQ(form.number.text, "201.525");
}

TEST(InputFilter, KeepsUndoThroughTakenAndRefusedPastes) {
    FilteredForm form;
    press(form.window, Qt::Key_End);
    form.paste_here(" 23 ");
    EXPECT_EQ(form.number.text, "123");
    form.paste_here("1e5");
    EXPECT_EQ(form.number.text, "123");
    press(form.window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.number.text, "1");
    press(form.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(form.number.text, "123");
}

TEST(InputFilter, KeepsTheSelectionOfARefusedPaste) {
    FilteredForm form;
    form.paste("x");
    EXPECT_EQ(form.number_line->selectedText(), "1");
    EXPECT_EQ(form.beeps, 1);
}

TEST(InputFilter, TakesAComposedKeyAsTheKey) {
    FilteredForm form;
    press(form.window, Qt::Key_End);
    for (const char* key : {"7", ".", "5", ".", "é", "-"}) {
        form.commit(*form.number_line, key);
    }
    EXPECT_EQ(form.number.text, "17.5");
}

TEST(InputFilter, LeavesTheProgramsOwnTextAlone) {
    FilteredForm form;
    form.number.text = "-5.000";
    show_all();
    EXPECT_EQ(form.number_line->text(), "-5.000");
    press(form.window, Qt::Key_End);
    form.paste_here("1");
    EXPECT_EQ(form.number.text, "-5.0001");
}

TEST(InputFilter, ADropIntoAnotherFieldLeavesTheOneThatTheUserIsIn) {
    FilteredForm form;
    click(*form.kind_list->lineEdit());
    form.heard.clear();
    form.drop(*form.number_line, "5");
    EXPECT_EQ(form.heard, (std::vector<std::string>{"leave kind", "enter number"}));
    EXPECT_TRUE(form.number_line->hasFocus());
    form.stays = true;
    form.drop(*form.kind_list->lineEdit(), "7");
    EXPECT_EQ(form.kind.text, "Curb") << "the field before keeps the focus";
    EXPECT_TRUE(form.number_line->hasFocus());
}

// Fields of any text.

TEST(OneLine, TakesAPastedTextOnOneLine) {
    SmallForm form;
    form.open();
    click(*form.number_line);
    for (const auto& [pasted, gives] : {std::pair("I-1\n", "I-1"),
                                        {"\r\nI-1\r\n", "I-1"},
                                        {"a\tb\r\nc\nd", "a b c d"},
                                        {" a ", " a "},
                                        {"123456789", "12345678"},
                                        {"12345678\n", "12345678"},
                                        {"ééééééééé", "éééééééé"}}) {
        form.number_line->selectAll();
        QGuiApplication::clipboard()->setText(pasted);
        press(form.window, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(form.number.text, gives);
    }
    press(form.window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.number.text, "12345678");
}

}  // namespace
}  // namespace gullymark::shell
