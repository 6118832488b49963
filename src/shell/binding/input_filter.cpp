#include "shell/binding/input_filter.h"

#include <optional>
#include <utility>

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

#include "platform/characters.h"
#include "platform/outside.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"

namespace gullymark::shell {
namespace {

constexpr char32_t enter_key = 13;

/// Delete and others send such a character along.
bool prints(char32_t key) {
    return key >= 32 && (key < 127 || key >= 160);
}

/// The part of a text that is to be replaced: the selection, or the place of the cursor.
struct Span {
    qsizetype at = 0;
    qsizetype length = 0;
};

/// What a change put into a text, and in place of what.
struct Change {
    Span replaced;
    QString inserted;
};

/// The change where the cursor or the selection was; nothing when the texts differ elsewhere.
std::optional<Change> change_at(Span place, const QString& before, const QString& after) {
    const qsizetype tail = before.size() - place.at - place.length;
    const qsizetype inserted = after.size() - place.at - tail;
    if (tail < 0 || inserted < 0 || before.left(place.at) != after.left(place.at) ||
        before.right(tail) != after.right(tail)) {
        return std::nullopt;
    }
    return Change{.replaced = place, .inserted = after.mid(place.at, inserted)};
}

/// Judges every change that the user makes. A change with text that does not count is taken back as a whole by the
/// line, which keeps its history, and then made again with what counts of it.
class InputJudge : public QValidator {
  public:
    InputJudge(QLineEdit& line, TextFilter filter)
        : QValidator(&line), line_(line), filter_(std::move(filter)), judged_(line.text()) {
        // Queued, for the line tells of the rejection before it takes the change back.
        connect(
            &line, &QLineEdit::inputRejected, this, [this] { make_again(); }, Qt::QueuedConnection);
        connect(&line, &QLineEdit::textChanged, this, [this](const QString& text) { judged_ = text; });
        connect(&line, &QLineEdit::selectionChanged, this, [this] { remember_place(); });
        connect(&line, &QLineEdit::cursorPositionChanged, this, [this] { remember_place(); });
    }

    State validate(QString& text, int& /*cursor*/) const override {
        const bool by_the_program = !line_.isUndoAvailable();  // which begins a new history
        const bool undoing = line_.isRedoAvailable();
        if (by_the_program || undoing || text.size() < judged_.size() - place_.length) {
            return Acceptable;
        }
        const Change change =
            change_at(place_, judged_, text).value_or(Change{{.at = 0, .length = judged_.size()}, text});
        if (change.inserted.isEmpty()) {
            return Acceptable;
        }
        QString counts = to_qt(filter_(from_qt(change.inserted), from_qt(judged_),
                                       from_qt(judged_.mid(change.replaced.at, change.replaced.length))));
        if (counts == change.inserted) {
            return Acceptable;
        }
        again_ = {.replaced = change.replaced, .inserted = std::move(counts)};
        return Invalid;
    }

  private:
    void remember_place() {
        const bool marked = line_.hasSelectedText();
        place_ = {.at = marked ? line_.selectionStart() : line_.cursorPosition(),
                  .length = marked ? line_.selectionLength() : 0};
    }

    void make_again() {
        const auto change = std::exchange(again_, std::nullopt);
        if (!change) {
            return;
        }
        if (change->inserted.isEmpty()) {
            platform::beep();
            return;
        }
        line_.setSelection(static_cast<int>(change->replaced.at), static_cast<int>(change->replaced.length));
        line_.insert(change->inserted);
        emit line_.textEdited(line_.text());
    }

    QLineEdit& line_;
    TextFilter filter_;
    QString judged_;                       // the line's text before the change
    Span place_;                           // where it comes
    mutable std::optional<Change> again_;  // what of a refused change is to go in
};

bool is_line_end(QChar character) {
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

QString on_one_line(QString text) {
    while (!text.isEmpty() && is_line_end(text.back())) {
        text.chop(1);
    }
    while (!text.isEmpty() && is_line_end(text.front())) {
        text.remove(0, 1);
    }
    text.replace("\r\n", " ");
    for (QChar& character : text) {
        if (is_line_end(character) || !prints(character.unicode())) {
            character = u' ';
        }
    }
    return text;
}

}  // namespace

QLineEdit* line_of(QWidget& widget) {
    auto* list = qobject_cast<QComboBox*>(&widget);
    return list != nullptr ? list->lineEdit() : qobject_cast<QLineEdit*>(&widget);
}

bool takes_key(const InputFilter& filter, const QKeyEvent& press, const QLineEdit& line) {
    const bool enter = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    const QList<uint> characters = press.text().toUcs4();
    const char32_t key = enter ? enter_key : (characters.size() == 1 ? characters.front() : 0);
    const bool command =
        (press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::ControlModifier;
    if (command || (!prints(key) && !enter)) {
        return true;
    }
    char32_t counts = 0;
    const auto ask = [&] { counts = filter.key(key, from_qt(line.text()), from_qt(line.selectedText())); };
    if (enter) {
        handle(ask);  // it moves on, and leaves the field for that
    } else {
        ask();
    }
    return counts == key;
}

void filter_incoming_text(QLineEdit& line, TextFilter filter) {
    line.setValidator(new InputJudge(line, std::move(filter)));
}

TextFilter one_line(std::size_t limit) {
    return [limit](std::string_view incoming, std::string_view whole, std::string_view selected) {
        const std::size_t kept = platform::count_characters(whole) - platform::count_characters(selected);
        const std::string text = from_qt(on_one_line(to_qt(incoming)));
        return platform::first_characters(text, limit > kept ? limit - kept : 0);
    };
}

}  // namespace gullymark::shell
