#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "keys.h"
#include "platform/outside.h"
#include "support/outside_double.h"

/// A user at mouse and keyboard: every event goes through the window, as a real one does.
namespace gullymark::testing_support {

/// Lets everything happen that is under way.
inline void settle() {
    QTest::qWait(1);
    QCoreApplication::processEvents();
}

/// Shows a window and waits until it takes keys.
inline void activate(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    settle();
}

inline void click(QWidget& widget, QPoint at = {}) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
    settle();
}

inline void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    strike_key(*window.window()->windowHandle(), key, modifiers);
    settle();
}

inline void type(QWidget& window, const std::string& text) {
    for (const char character : text) {
        strike_letter(*window.window()->windowHandle(), character);
    }
    settle();
}

/// Chooses a command of a window's menu, with the mouse.
inline void choose(QMainWindow& window, const char* menu_name, const char* command) {
    auto* menu = window.menuBar()->findChild<QMenu*>(menu_name);
    auto* action = window.findChild<QAction*>(command);
    ASSERT_NE(menu, nullptr) << menu_name;
    ASSERT_NE(action, nullptr) << command;
    QTest::mouseClick(window.menuBar(), Qt::LeftButton, Qt::NoModifier,
                      window.menuBar()->actionGeometry(menu->menuAction()).center());
    ASSERT_TRUE(menu->isVisible()) << menu_name;
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
    settle();
}

/// Serves what is modal while a command runs: answers message boxes by clicking their buttons, types into file dialogs,
/// and works in modal windows. It keeps what the boxes showed.
class Robot {
  public:
    /// For the next boxes; after them the default button.
    std::deque<QMessageBox::StandardButton> answers;
    std::vector<platform::Box> boxes;
    bool strikes_enter = false;  // in place of the click on a button of a box
    /// Names typed into the next file dialogs; nothing cancels.
    std::deque<std::optional<std::string>> files;
    std::vector<std::string> file_titles;
    /// What to do in the next modal windows that are neither.
    std::deque<std::function<void(QWidget&)>> in_window;

    /// Is shown everything modal before it is served.
    std::function<void(QWidget&)> look_at;

    // Where one is set it is asked in place of its queue.
    std::function<platform::Answer(const platform::Box&)> ask_box;
    std::function<std::optional<std::string>()> ask_file;
    std::function<void(QWidget&)> ask_window;

    Robot() { look_again(); }
    ~Robot() {
        EXPECT_TRUE(answers.empty() && files.empty() && in_window.empty()) << "something never came up";
    }
    Robot(const Robot&) = delete;
    Robot& operator=(const Robot&) = delete;

  private:
    /// One timer for each look: one that is being served does not fire in the event loop of a box.
    void look_again() {
        QTimer::singleShot(2, &life_, [this] {
            look_again();
            look();
        });
    }

    void look() {
        QWidget* window = QApplication::activeModalWidget();
        if (window == nullptr || !window->isVisible() ||
            std::ranges::find(served_, window) != served_.end()) {
            return;
        }
        served_.push_back(window);
        if (look_at) {
            look_at(*window);
        }
        if (auto* box = qobject_cast<QMessageBox*>(window)) {
            answer(*box);
        } else if (auto* dialog = qobject_cast<QFileDialog*>(window)) {
            choose_file(*dialog);
        } else if (ask_window) {
            ask_window(*window);
        } else if (!in_window.empty()) {
            const auto work = std::move(in_window.front());
            in_window.pop_front();
            work(*window);
        }
        served_.pop_back();
    }

    void answer(QMessageBox& box) {
        boxes.push_back(
            {.kind = kind_of(box),
             .text = box.text().toStdString(),
             .title = box.windowTitle().toStdString(),
             .on_enter = box.defaultButton() != nullptr && box.defaultButton() == box.button(QMessageBox::Yes)
                             ? platform::Answer::yes
                             : platform::Answer::no});
        QAbstractButton* button = box.defaultButton();
        if (ask_box) {
            button = box.button(button_of(ask_box(boxes.back())));
        } else if (!answers.empty()) {
            button = box.button(answers.front());
            answers.pop_front();
        } else if (button == nullptr) {
            button = box.button(QMessageBox::Ok);
        }
        ASSERT_NE(button, nullptr) << "no such button in the box \"" << box.text().toStdString() << '"';
        if (strikes_enter) {
            QTest::keyClick(box.windowHandle(), Qt::Key_Return);
        } else {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    void choose_file(QFileDialog& dialog) {
        file_titles.push_back(dialog.windowTitle().toStdString());
        const auto name = next_file();
        auto* buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
        if (!name) {
            QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
            return;
        }
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(*name));
        const bool saving = dialog.acceptMode() == QFileDialog::AcceptSave;
        QTest::mouseClick(buttons->button(saving ? QDialogButtonBox::Save : QDialogButtonBox::Open),
                          Qt::LeftButton);
    }

    std::optional<std::string> next_file() {
        if (ask_file) {
            return ask_file();
        }
        if (files.empty()) {
            return std::nullopt;
        }
        auto name = files.front();
        files.pop_front();
        return name;
    }

    static QMessageBox::StandardButton button_of(platform::Answer answer) {
        switch (answer) {
            case platform::Answer::yes:
                return QMessageBox::Yes;
            case platform::Answer::no:
                return QMessageBox::No;
            default:
                return QMessageBox::Ok;
        }
    }

    static platform::BoxKind kind_of(const QMessageBox& box) {
        const bool question = box.standardButtons() == (QMessageBox::Yes | QMessageBox::No);
        switch (box.icon()) {
            case QMessageBox::Information:
                return question ? platform::BoxKind::information_question : platform::BoxKind::information;
            case QMessageBox::Warning:
                return question ? platform::BoxKind::warning_question : platform::BoxKind::warning;
            default:
                return platform::BoxKind::plain;
        }
    }

    QObject life_;
    /// From the outermost to the one on top, which may be closed by now, while the one below it is not at work again.
    std::vector<QWidget*> served_;
};

}  // namespace gullymark::testing_support
