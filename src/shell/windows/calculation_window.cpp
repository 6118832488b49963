#include "shell/windows/calculation_window.h"

#include <optional>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "calculation/as_text.h"
#include "calculation/worked_calculation.h"
#include "engine/inlet_record.h"
#include "platform/failure.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/project_copy.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "shell/windows/calculation_html.h"
#include "shell/windows/calculation_pages.h"
#include "shell/windows/inlet_items.h"
#include "shell/windows/section_picture.h"
#include "store/project_session.h"

namespace gullymark::shell {
namespace {

constexpr QSize wanted_size{1000, 800};
constexpr int picture_height = 220;

QTextBrowser* text_view(const calculation::Document& document) {
    auto* view = new QTextBrowser;
    view->setObjectName(QStringLiteral("calculation"));
    view->setAccessibleName(QStringLiteral("Worked calculation"));
    view->setOpenLinks(false);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setHtml(document_html(document));
    return view;
}

/// Where the pages go; nothing where the user chose none.
std::optional<std::string> choose_pdf(const std::string& inlet) {
    platform::FileDialog dialog{.filter = "PDF files (*.pdf)|*.pdf",
                                .initial_folder = store::dialog_start_folder(),
                                .title = "Save Worked Calculation of Inlet " + inlet};
    dialog.show_save();
    if (dialog.file_name.empty() || dialog.file_name == "*.pdf") {
        return std::nullopt;
    }
    store::session.workingDirectory = platform::current_folder();
    return store::may_overwrite(dialog.file_name) ? std::optional(dialog.file_name) : std::nullopt;
}

}  // namespace

CalculationWindow::CalculationWindow(calculation::Document document, section::Water water, QWidget* parent)
    : QDialog(parent),
      document_(std::move(document)),
      section_(section::draw_section(engine::open_inlet, water)),
      text_(text_view(document_)) {
    setObjectName(QStringLiteral("worked_calculation"));
    setWindowTitle("Worked Calculation of Inlet " + to_qt(document_.inlet));
    setSizeGripEnabled(true);
    auto* layout = new QVBoxLayout(this);
    auto* picture = new SectionPicture;
    picture->setObjectName(QStringLiteral("section"));
    picture->draw(engine::open_inlet);
    picture->follow(water);
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(picture);
    parts->addWidget(text_);
    parts->setStretchFactor(1, 1);
    parts->setSizes({picture_height, wanted_size.height() - picture_height});
    layout->addWidget(parts, 1);
    add_buttons(*layout);
    resize(wanted_size);
    text_->setFocus();
}

void CalculationWindow::add_buttons(QLayout& layout) {
    auto* buttons = new QDialogButtonBox;
    const auto add = [this, buttons](const char* name, const char* caption, const QKeySequence& keys,
                                     auto command) {
        QPushButton* button = buttons->addButton(QString::fromLatin1(caption), QDialogButtonBox::ActionRole);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, command] { handle([this, command] { (this->*command)(); }); });
        if (!keys.isEmpty()) {
            auto* action = new QAction(this);
            action->setShortcut(keys);
            connect(action, &QAction::triggered, button, &QPushButton::click);
            addAction(action);
        }
    };
    add("print", "&Print...", QKeySequence::Print, &CalculationWindow::print);
    add("save_as_pdf", "&Save as PDF...", QKeySequence::Save, &CalculationWindow::save_as_pdf);
    add("copy_as_text", "Copy as &Text", {}, &CalculationWindow::copy_as_text);
    QPushButton* close = buttons->addButton(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("close"));
    close->setText(QStringLiteral("Close"));
    close->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout.addWidget(buttons);
}

void CalculationWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(letter_page());
    printer.setDocName(windowTitle());
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    if (!CalculationPages(document_, section_, printer).paint()) {
        platform::tell("The calculation was not printed.", platform::BoxKind::warning);
    }
}

void CalculationWindow::save_as_pdf() {
    const auto target = choose_pdf(document_.inlet);
    if (!target) {
        return;
    }
    try {
        platform::refuse_project(*target);
        const QByteArray file = calculation_pdf(document_, section_);
        platform::replace_file(*target, {file.constData(), static_cast<std::size_t>(file.size())});
    } catch (const platform::Failure& failure) {
        platform::tell("The PDF file was not written: " + std::string(failure.what()),
                       platform::BoxKind::warning);
    }
}

void CalculationWindow::copy_as_text() const {
    QGuiApplication::clipboard()->setText(to_qt(calculation::as_text(document_)));
}

void show_worked_calculation(const QWidget& form) {
    show_all();
    count_modal_round();
    const auto& project = store::session;
    calculation::Document document = calculation::work_out(
        {.inlet = engine::open_inlet,
         .units = project.projectUnits,
         .project = {.id = project.projectId,
                     .name = project.projectName,
                     .county = project.projectCounty,
                     .state = project.projectState,
                     .designer = project.projectDesigner},
         .today = platform::today(),
         .caption = [&form](engine::Column column) { return caption_of(form, column); }});
    // The inlet was worked out anew: whether the water belongs to it is known, whatever was typed since.
    section::Water water = section::water_of(engine::open_inlet);
    if (water != section::Water::none) {
        water = document.warnings.empty() ? section::Water::solved : section::Water::unsolved;
    }
    CalculationWindow(std::move(document), water, QApplication::activeWindow()).exec();
}

}  // namespace gullymark::shell
