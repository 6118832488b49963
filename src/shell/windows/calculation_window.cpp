#include "shell/windows/calculation_window.h"

#include <utility>

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "calculation/worked_calculation.h"
#include "engine/inlet_record.h"
#include "platform/outside.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "shell/windows/calculation_sheet.h"
#include "shell/windows/calculation_water.h"
#include "shell/windows/inlet_items.h"
#include "store/project_session.h"

namespace gullymark::shell {

CalculationWindow::CalculationWindow(calculation::Document document, section::Water water, QWidget* parent)
    : QDialog(parent) {
    constexpr QSize wanted_size{1000, 800};
    setObjectName(QStringLiteral("worked_calculation"));
    setWindowTitle("Worked Calculation of Inlet " + to_qt(document.inlet));
    setSizeGripEnabled(true);
    auto* sheet = new CalculationSheet;
    sheet->show_calculation(std::move(document), engine::open_inlet, water);
    QPushButton* close = sheet->buttons().addButton(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("close"));
    close->setText(QStringLiteral("Close"));
    close->setAutoDefault(false);
    connect(&sheet->buttons(), &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(sheet);
    resize(wanted_size);
    sheet->setFocus();
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
    const section::Water water = water_of(engine::open_inlet, document);
    CalculationWindow(std::move(document), water, QApplication::activeWindow()).exec();
}

}  // namespace gullymark::shell
