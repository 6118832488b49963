#include "shell/review/calculation_page.h"

#include <utility>

#include <QVBoxLayout>

#include "calculation/worked_calculation.h"
#include "platform/outside.h"
#include "shell/windows/calculation_sheet.h"
#include "shell/windows/calculation_water.h"

namespace gullymark::shell {

CalculationPage::CalculationPage(QWidget* parent) : QWidget(parent), sheet_(new CalculationSheet) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(sheet_);
    setFocusProxy(sheet_);
    sheet_->hide();
}

void CalculationPage::show_inlet(const review::Reviewed& reviewed, std::size_t inlet) {
    const review::Project& project = reviewed.project;
    project_ = {.id = project.id,
                .name = project.name,
                .county = project.county,
                .state = project.state,
                .designer = project.designer,
                .units = project.units};
    inlet_ = project.inlets[inlet];
    has_inlet_ = true;
    is_shown_ = false;
    if (isVisible()) {
        work_out();
    }
}

void CalculationPage::clear() {
    has_inlet_ = false;
    sheet_->hide();
}

void CalculationPage::work_out() {
    calculation::Document document = calculation::work_out({.inlet = inlet_,
                                                            .units = project_.units,
                                                            .project = {.id = project_.id,
                                                                        .name = project_.name,
                                                                        .county = project_.county,
                                                                        .state = project_.state,
                                                                        .designer = project_.designer},
                                                            .today = platform::today()});
    const section::Water water = water_of(inlet_, document);
    sheet_->show();
    sheet_->show_calculation(std::move(document), inlet_, water);
    is_shown_ = true;
}

void CalculationPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (has_inlet_ && !is_shown_) {
        work_out();
    }
}

}  // namespace gullymark::shell
