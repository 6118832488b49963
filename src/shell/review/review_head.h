#pragma once

#include <QWidget>

#include "review/review_file.h"

class QLabel;

namespace gullymark::shell {

/// What stands above all pages: the project, how much was found, where its water stays, what is to do, and, where the file cannot be read, since when what is shown is
/// of another day.
class ReviewHead : public QWidget {
  public:
    explicit ReviewHead(QWidget* parent = nullptr);

    void show_project(const review::Reviewed& reviewed, const QString& file);
    /// A line that warns; none for an empty text.
    void warn(const QString& text);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void color_warning();

    QLabel* project_;
    QLabel* counts_;
    QLabel* balance_;
    QLabel* to_do_;
    QWidget* warning_;
    QLabel* warning_sign_;
    QLabel* warning_text_;
};

}  // namespace gullymark::shell
