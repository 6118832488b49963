#pragma once

#include <QWidget>

#include "review/review_file.h"

class QLabel;
class QTextBrowser;

namespace gullymark::shell {

class SectionPicture;

/// One inlet: what it is, what was found of it, and its section with the water that it stores.
class InletPage : public QWidget {
  public:
    explicit InletPage(QWidget* parent = nullptr);

    /// Shows an inlet of the project, whose units are in force.
    void show_inlet(const review::Reviewed& reviewed, std::size_t inlet);
    /// Shows none.
    void clear();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void tell();

    engine::InletRecord inlet_;
    std::vector<review::Finding> findings_;
    QLabel* title_;
    QLabel* place_;
    QLabel* numbers_;
    QTextBrowser* told_;
    SectionPicture* picture_;
};

}  // namespace gullymark::shell
