#pragma once

#include <array>
#include <functional>

#include <QWidget>

#include "review/finding_list.h"
#include "review/review_file.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QTextBrowser;

namespace gullymark::shell {

class FindingsModel;
class ReviewTable;

/// The findings of a project: which ones by severity and by a text, sorted by a heading; below them the one that is picked, with
/// what to do about it.
class FindingsPage : public QWidget {
  public:
    explicit FindingsPage(QWidget* parent = nullptr);

    /// Told when a finding is picked: the index of its inlet, which may be `review::whole_project`.
    std::function<void(std::size_t inlet)> picked;
    /// Told when Enter or a double click asks to see the inlet.
    std::function<void()> entered;
    /// Told when the user wants another limit of what is told: a number that is not negative.
    std::function<void(const std::string& bypass)> limit_wanted;

    /// What is shown from now on; it must outlive the page or the next `show_review`. What is chosen, the order, the place in the list
    /// and, where it is still found, the finding that is picked stay as they are. `before` is what was shown so far.
    void show_review(const review::Reviewed& now, const review::Reviewed* before);
    /// Picks the first finding that is shown of an inlet, unless one of its findings is picked; none where there is none.
    void set_current(std::size_t inlet);

    /// The user's next text chooses.
    void find();
    void sort(review::FindingOrder order);
    [[nodiscard]] QString marked_as_text() const;
    /// "12 of 30 findings".
    [[nodiscard]] QString shown_of_all() const;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void build_choice(class QLayout& layout);
    void build_limit(class QLayout& row);
    void take_limit();
    void choose();
    void show_counts();
    void show_details();
    void follow_order(review::FindingOrder order, bool descending);
    void mark_order();
    [[nodiscard]] const review::Finding* current() const;

    const review::Reviewed* shown_ = nullptr;
    review::FindingChoice choice_;
    FindingsModel* model_ = nullptr;
    ReviewTable* table_ = nullptr;
    QLineEdit* text_ = nullptr;
    QLineEdit* limit_ = nullptr;
    QLabel* limit_unit_ = nullptr;
    std::string limit_in_force_ = "0";
    std::array<QCheckBox*, 3> severities_{};
    QLabel* count_ = nullptr;
    QTextBrowser* details_ = nullptr;
    QObject life_;  // what a field tells when it goes with the page, which is none any more, is not heard
};

}  // namespace gullymark::shell
