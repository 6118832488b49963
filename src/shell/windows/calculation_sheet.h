#pragma once

#include <QWidget>

#include "calculation/document.h"
#include "engine/inlet_record.h"
#include "section/section.h"

class QDialogButtonBox;
class QTextBrowser;

namespace gullymark::shell {

class SectionPicture;

/// The worked calculation of one inlet on a window: its section, the text, and buttons to print, to save as PDF and to copy as
/// text, whose keys count while the focus is in here.
class CalculationSheet : public QWidget {
  public:
    explicit CalculationSheet(QWidget* parent = nullptr);

    /// Shows a calculation beside the section of its inlet, which must outlive the sheet or the next call. What is scrolled stays
    /// so where the inlet is the same.
    void show_calculation(calculation::Document document, const engine::InletRecord& inlet,
                          section::Water water);

    /// For who adds a button of its own.
    [[nodiscard]] QDialogButtonBox& buttons() { return *buttons_; }

  private:
    void add_buttons();
    void print();
    void save_as_pdf();
    void copy_as_text() const;

    calculation::Document document_;
    section::Section section_;
    SectionPicture* picture_;
    QTextBrowser* text_;
    QDialogButtonBox* buttons_;
};

}  // namespace gullymark::shell
