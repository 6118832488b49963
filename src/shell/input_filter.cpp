#include "shell/input_filter.h"

#include <algorithm>
#include <utility>

#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

#include "shell/turn.h"

namespace gullymark::shell {
namespace {

constexpr char32_t enter_key = 13;
constexpr char32_t first_printable_key = 32;

/// What a change put into a text, and in place of what.
struct Change {
    QString removed;
    QString inserted;
};

Change change_between(const QString& old_text, const QString& new_text) {
    const qsizetype shorter = std::min(old_text.size(), new_text.size());
    qsizetype head = 0;
    while (head < shorter && old_text[head] == new_text[head]) {
        ++head;
    }
    qsizetype tail = 0;
    while (tail < shorter - head &&
           old_text[old_text.size() - 1 - tail] == new_text[new_text.size() - 1 - tail]) {
        ++tail;
    }
    return {.removed = old_text.mid(head, old_text.size() - head - tail),
            .inserted = new_text.mid(head, new_text.size() - head - tail)};
}

/// Judges every change that the user makes. A change with text that does not count is taken back as a whole by the
/// line, which keeps its history, and then made again with what is left of it.
class InputJudge : public QValidator {
  public:
    InputJudge(QLineEdit& line, InputFilter filter)
        : QValidator(&line), line_(line), filter_(std::move(filter)), judged_(line.text()) {
        // Queued, for the line tells of the rejection before it takes the change back.
        connect(
            &line, &QLineEdit::inputRejected, this,
            [this] {
                if (!rest_.isEmpty()) {
                    line_.insert(std::exchange(rest_, QString()));
                    emit line_.textEdited(line_.text());
                }
            },
            Qt::QueuedConnection);
        connect(&line, &QLineEdit::textChanged, this, [this](const QString& text) { judged_ = text; });
    }

    State validate(QString& text, int& /*cursor*/) const override {
        const bool by_the_program = !line_.isUndoAvailable();  // which begins a new history
        const bool undoing = line_.isRedoAvailable();
        const Change change = change_between(judged_, text);
        if (by_the_program || undoing || change.inserted.isEmpty()) {
            return Acceptable;
        }
        const QString counts = QString::fromStdString(
            filter_.text(change.inserted.toStdString(), judged_.toStdString(), change.removed.toStdString()));
        if (counts == change.inserted) {
            return Acceptable;
        }
        rest_ = counts;
        return Invalid;
    }

  private:
    QLineEdit& line_;
    InputFilter filter_;
    QString judged_;        // the line's text before the change
    mutable QString rest_;  // what of a refused change is to go in
};

}  // namespace

bool takes_key(const InputFilter& filter, const QKeyEvent& press, const QLineEdit& line) {
    const bool enter = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    const QList<uint> characters = press.text().toUcs4();
    const char32_t key = enter ? enter_key : (characters.size() == 1 ? characters.front() : 0);
    const bool command = (press.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
    if (command || (key < first_printable_key && !enter)) {
        return true;
    }
    char32_t counts = 0;
    const auto ask = [&] {
        counts = filter.key(key, line.text().toStdString(), line.selectedText().toStdString());
    };
    if (enter) {
        handle(ask);  // it moves on, and leaves the field for that
    } else {
        ask();
    }
    return counts == key;
}

void filter_incoming_text(QLineEdit& line, const InputFilter& filter) {
    line.setValidator(new InputJudge(line, filter));
}

}  // namespace gullymark::shell
