#pragma once

#include <functional>

#include <QWidget>

#include "review/inlet_list.h"

namespace gullymark::shell {

class InletsModel;
class ReviewTable;

/// All inlets with what they store beside what would be, sorted by a heading.
class InletsPage : public QWidget {
  public:
    explicit InletsPage(QWidget* parent = nullptr);

    /// Told when an inlet is picked.
    std::function<void(std::size_t inlet)> picked;
    /// Told when Enter or a double click asks to see the inlet.
    std::function<void()> entered;

    /// What is shown from now on, with this inlet picked; it must outlive the page or the next call. Order and place stay.
    void show_review(const review::Reviewed& reviewed, std::size_t current);
    void set_current(std::size_t inlet);
    [[nodiscard]] QString marked_as_text() const;

  private:
    const review::Reviewed* shown_ = nullptr;
    review::ListColumn order_ = review::ListColumn::station;
    bool descending_ = false;
    InletsModel* model_;
    ReviewTable* table_;
};

}  // namespace gullymark::shell
