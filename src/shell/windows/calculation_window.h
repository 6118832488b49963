#pragma once

#include <QDialog>

#include "calculation/document.h"
#include "section/section.h"

namespace gullymark::shell {

/// The worked calculation of one inlet: to read, to print, to save as PDF and to copy as text.
class CalculationWindow : public QDialog {
  public:
    /// Of the open inlet, which stays as it is while the window is open.
    CalculationWindow(calculation::Document document, section::Water water, QWidget* parent = nullptr);
};

/// Shows the worked calculation of the open inlet, modal, and waits until it is closed. `form` has the captions of the columns.
void show_worked_calculation(const QWidget& form);

}  // namespace gullymark::shell
