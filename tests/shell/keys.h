#pragma once

#include <QChar>
#include <QString>
#include <QTest>
#include <QWindow>

/// Keys as a keyboard sends them: with the text that the window system gives each of them.
namespace gullymark::testing_support {

/// A printing key gives its letter, small without Shift. Several keys that print nothing have a text too: with Ctrl a
/// letter gives its control character, and Delete gives 127.
inline QString text_of_key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const bool keypad = modifiers.testFlag(Qt::KeypadModifier);
    switch (key) {
        case Qt::Key_Backspace:
            return "\b";
        case Qt::Key_Tab:
            return "\t";
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return "\r";
        case Qt::Key_Escape:
            return "\x1b";
        case Qt::Key_Delete:
            return keypad ? QString() : QString(QChar(127));
        default:
            break;
    }
    if (key < Qt::Key_Space || key > Qt::Key_AsciiTilde) {
        return {};
    }
    const auto letter = QChar(static_cast<char16_t>(key));
    if (modifiers.testFlag(Qt::ControlModifier) && key >= Qt::Key_A && key <= Qt::Key_Z) {
        return QChar(static_cast<char16_t>(key - Qt::Key_A + 1));
    }
    return modifiers.testFlag(Qt::ShiftModifier) ? letter : letter.toLower();
}

inline void strike_key(QWindow& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::sendKeyEvent(QTest::Click, &window, key, text_of_key(key, modifiers), modifiers);
}

/// A letter, digit or sign; a capital one with Shift.
inline void strike_letter(QWindow& window, char letter) {
    const QChar wanted = QChar::fromLatin1(letter);
    const auto key = static_cast<Qt::Key>(wanted.toUpper().unicode());
    const bool capital = wanted.isUpper();
    QTest::sendKeyEvent(QTest::Click, &window, key, QString(wanted),
                        capital ? Qt::ShiftModifier : Qt::NoModifier);
}

}  // namespace gullymark::testing_support
