#include "shell/windows/status_panels.h"

#include <QDateTime>
#include <QLocale>

#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

void show_text(QLabel& label, const QString& text) {
    if (label.text() != text) {
        label.setText(text);
        label.setToolTip(text);
    }
}

}  // namespace

StatusPanels::StatusPanels(QStatusBar& bar, const std::vector<int>& widths, bool with_clock) {
    for (std::size_t i = 0; i < widths.size(); ++i) {
        panels_.push_back(add(bar, QStringLiteral("%1_panel%2").arg(bar.objectName()).arg(i + 1), widths[i]));
    }
    if (with_clock) {
        date_ = add(bar, bar.objectName() + "_date", 0);
        time_ = add(bar, bar.objectName() + "_time", 0);
        show_clock();
        QObject::connect(&clock_, &QTimer::timeout, &bar, [this] { show_clock(); });
        clock_.start(1000);
    }
}

void StatusPanels::show(int number, const std::string& text) {
    show_text(*panels_.at(static_cast<std::size_t>(number) - 1), to_qt(text));
}

QLabel* StatusPanels::add(QStatusBar& bar, const QString& name, int stretch) {
    auto* label = new QLabel(&bar);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setMargin(2);
    label->setMinimumWidth(1);  // a long name is no reason for a wide window
    bar.addWidget(label, stretch);
    return label;
}

void StatusPanels::show_clock() {
    const QDateTime now = QDateTime::currentDateTime();
    show_text(*date_, QLocale().toString(now.date(), QLocale::ShortFormat));
    show_text(*time_, QLocale().toString(now.time(), QLocale::ShortFormat));
}

}  // namespace gullymark::shell
