#pragma once

#include <QWidget>

#include "review/review_file.h"

namespace gullymark::shell {

class CalculationSheet;

/// The worked calculation of the inlet that is picked, on a copy of it. It is worked out when somebody sees it.
class CalculationPage : public QWidget {
  public:
    explicit CalculationPage(QWidget* parent = nullptr);

    /// Shows an inlet of the project, whose units are in force.
    void show_inlet(const review::Reviewed& reviewed, std::size_t inlet);
    /// Shows none.
    void clear();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void work_out();

    review::Project project_;  // its details alone
    engine::InletRecord inlet_;
    bool is_shown_ = false;  // what is to be seen is this inlet
    bool has_inlet_ = false;
    CalculationSheet* sheet_;
};

}  // namespace gullymark::shell
