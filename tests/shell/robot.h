#pragma once

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

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
    QTest::keyClick(window.window()->windowHandle(), key, modifiers);
    settle();
}

inline void type(QWidget& window, const std::string& text) {
    for (const char character : text) {
        QTest::keyClick(window.window()->windowHandle(), character);
    }
    settle();
}

/// Answers message boxes by clicking their buttons, from its queue and then by the default button, and keeps what
/// they showed.
class BoxRobot {
  public:
    std::deque<QMessageBox::StandardButton> answers;
    std::vector<platform::Box> boxes;

    BoxRobot() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
        timer_.start(2);
    }

  private:
    void look() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible() || clicking_) {
            return;
        }
        clicking_ = true;
        boxes.push_back({.kind = kind(*box),
                         .text = box->text().toStdString(),
                         .title = box->windowTitle().toStdString()});
        QAbstractButton* button = box->defaultButton();
        if (!answers.empty()) {
            button = box->button(answers.front());
            answers.pop_front();
        } else if (button == nullptr) {
            button = box->button(QMessageBox::Ok);
        }
        ASSERT_NE(button, nullptr) << "no such button in the box \"" << box->text().toStdString() << '"';
        QTest::mouseClick(button, Qt::LeftButton);
        clicking_ = false;
    }

    static platform::BoxKind kind(const QMessageBox& box) {
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

    QTimer timer_;
    bool clicking_ = false;
};

}  // namespace gullymark::testing_support
