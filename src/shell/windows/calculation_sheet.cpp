#include "shell/windows/calculation_sheet.h"

#include <utility>

#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "calculation/as_text.h"
#include "platform/outside.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "shell/windows/calculation_html.h"
#include "shell/windows/calculation_pages.h"
#include "shell/windows/chosen_file.h"
#include "shell/windows/section_picture.h"

namespace gullymark::shell {
namespace {

constexpr int picture_height = 220;
constexpr int text_height = 580;

QTextBrowser* text_view() {
    auto* view = new QTextBrowser;
    view->setObjectName(QStringLiteral("calculation"));
    view->setAccessibleName(QStringLiteral("Worked calculation"));
    view->setOpenLinks(false);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return view;
}

}  // namespace

CalculationSheet::CalculationSheet(QWidget* parent)
    : QWidget(parent), picture_(new SectionPicture), text_(text_view()), buttons_(new QDialogButtonBox) {
    picture_->setObjectName(QStringLiteral("section"));
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(picture_);
    parts->addWidget(text_);
    parts->setStretchFactor(1, 1);
    parts->setSizes({picture_height, text_height});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(parts, 1);
    add_buttons();
    layout->addWidget(buttons_);
    setFocusProxy(text_);
}

void CalculationSheet::show_calculation(calculation::Document document, const engine::InletRecord& inlet,
                                        section::Water water) {
    const bool same = document.inlet == document_.inlet;
    const int scrolled = text_->verticalScrollBar()->value();
    document_ = std::move(document);
    section_ = section::draw_section(inlet, water);
    picture_->draw(inlet);
    picture_->follow(water);
    text_->setHtml(document_html(document_));
    text_->verticalScrollBar()->setValue(same ? scrolled : 0);
}

void CalculationSheet::add_buttons() {
    const auto add = [this](const char* name, const char* caption, const QKeySequence& keys, auto command) {
        QPushButton* button = buttons_->addButton(QString::fromLatin1(caption), QDialogButtonBox::ActionRole);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, command] { handle([this, command] { (this->*command)(); }); });
        if (!keys.isEmpty()) {
            auto* action = new QAction(this);
            action->setShortcut(keys);
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            connect(action, &QAction::triggered, button, &QPushButton::click);
            addAction(action);
        }
    };
    add("print", "&Print...", QKeySequence::Print, &CalculationSheet::print);
    add("save_as_pdf", "&Save as PDF...", QKeySequence::Save, &CalculationSheet::save_as_pdf);
    add("copy_as_text", "Copy as &Text", {}, &CalculationSheet::copy_as_text);
}

void CalculationSheet::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(letter_page());
    printer.setDocName("Worked Calculation of Inlet " + to_qt(document_.inlet));
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    if (!CalculationPages(document_, section_, printer).paint()) {
        platform::tell("The calculation was not printed.", platform::BoxKind::warning);
    }
}

void CalculationSheet::save_as_pdf() {
    if (const auto target =
            choose_file_to_write(pdf_file, "Save Worked Calculation of Inlet " + document_.inlet)) {
        write_chosen_file(pdf_file, *target, [this] { return calculation_pdf(document_, section_); });
    }
}

void CalculationSheet::copy_as_text() const {
    QGuiApplication::clipboard()->setText(to_qt(calculation::as_text(document_)));
}

}  // namespace gullymark::shell
