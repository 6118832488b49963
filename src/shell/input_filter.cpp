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
    int at = 0;
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
    return {.at = static_cast<int>(head),
            .removed = old_text.mid(head, old_text.size() - head - tail),
            .inserted = new_text.mid(head, new_text.size() - head - tail)};
}

/// Judges every change that the user makes. A change with text that does not count is taken back as a whole by the
/// line, which keeps its history, and then made again with what is left of it.
class InputJudge : public QValidator {
  public:
    InputJudge(QLineEdit& line, InputFilter filter, int limit)
        : QValidator(&line), line_(line), filter_(std::move(filter)), limit_(limit), judged_(line.text()) {
        // Queued, for the line tells of the rejection before it takes the change back.
        connect(
            &line, &QLineEdit::inputRejected, this,
            [this] {
                if (!rest_.inserted.isEmpty()) {
                    const Change rest = std::exchange(rest_, {});
                    // Not where the cursor is: a pasted text can begin like the selection that it replaces.
                    line_.setSelection(rest.at, static_cast<int>(rest.removed.size()));
                    line_.insert(rest.inserted);
                    emit line_.textEdited(line_.text());
                }
            },
            Qt::QueuedConnection);
        connect(&line, &QLineEdit::textChanged, this, [this](const QString& text) { judged_ = text; });
    }

    State validate(QString& text, int& /*cursor*/) const override {
        const bool by_the_program = !line_.isUndoAvailable();  // which begins a new history
        const bool undoing = line_.isRedoAvailable();
        Change change = change_between(judged_, text);
        if (by_the_program || undoing || change.inserted.isEmpty()) {
            return Acceptable;
        }
        QString counts = QString::fromStdString(
            filter_.text(change.inserted.toStdString(), judged_.toStdString(), change.removed.toStdString()));
        counts.truncate(std::max<qsizetype>(0, limit_ - (judged_.size() - change.removed.size())));
        if (counts == change.inserted) {
            return Acceptable;
        }
        change.inserted = counts;
        rest_ = std::move(change);
        return Invalid;
    }

  private:
    QLineEdit& line_;
    InputFilter filter_;
    int limit_;            // of characters; the line's own would cut a pasted text before it is filtered
    QString judged_;       // the line's text before the change
    mutable Change rest_;  // what of a refused change is to go in
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

void filter_incoming_text(QLineEdit& line, const InputFilter& filter, int limit) {
    line.setValidator(new InputJudge(line, filter, limit));
}

}  // namespace gullymark::shell
