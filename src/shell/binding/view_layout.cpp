#include "shell/binding/view_layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QStringList>

#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

using section::Dimension;
using section::View;
using Run = section::Dimension::Run;

/// Rows in which pieces stand beside each other.
class Rows {
  public:
    explicit Rows(double gap) : gap_(gap) {}

    /// The first row that is free from `left` to `right`, which then is taken.
    std::size_t take(double left, double right) {
        const auto is_free = [&](const auto& row) {
            return std::ranges::none_of(row, [&](const auto& taken) {
                return left < taken.second + gap_ && taken.first < right + gap_;
            });
        };
        auto row = std::ranges::find_if(rows_, is_free);
        if (row == rows_.end()) {
            row = rows_.insert(rows_.end(), {{}});
            row->clear();
        }
        row->emplace_back(left, right);
        return static_cast<std::size_t>(row - rows_.begin());
    }

    [[nodiscard]] std::size_t count() const { return rows_.size(); }

  private:
    double gap_;
    std::vector<std::vector<std::pair<double, double>>> rows_;
};

/// What is shown of a view, from all to nothing but the drawing.
enum class Detail { all, no_marks, no_widths, no_heights, spread_alone, none };

bool shows(Detail detail, const Dimension& dimension) {
    switch (dimension.run) {
        case Run::below:
            return detail < Detail::no_widths;
        case Run::upright:
            return detail < Detail::no_heights;
        case Run::above:
            break;
    }
    return detail < Detail::spread_alone ||
           (detail == Detail::spread_alone && !dimension.text.starts_with("allow"));
}

/// Places one view in its room.
class ViewPlacer {
  public:
    ViewPlacer(const QRectF& room, const View& view, double exaggeration, const QFontMetricsF& font,
               Detail detail)
        : font_(font), unit_(font_unit(font)), detail_(detail) {
        placed_.view = &view;
        placed_.room = room;
        placed_.exaggeration = exaggeration;
        for (const Dimension& dimension : view.dimensions) {
            if (shows(detail, dimension)) {
                shown_.push_back(&dimension);
            }
        }
        std::ranges::stable_sort(shown_, {},
                                 [](const Dimension* one) { return std::abs(one->to.x - one->from.x); });
    }

    PlacedView place() {
        place_title();
        constexpr int rounds = 4;  // more rows leave less room, which needs other rows
        std::size_t above = 0;
        std::size_t below = 0;
        for (int round = 0; round < rounds; ++round) {
            place_drawing(above, below);
            place_all();
            const bool fits = above_ <= above && below_ <= below;
            above = std::max(above, above_);
            below = std::max(below, below_);
            if (fits) {
                break;
            }
        }
        place_drawing(above, below);
        place_all();
        return placed_;
    }

  private:
    [[nodiscard]] double row_height() const { return font_.height() + 3 * unit_; }

    void place_title() {
        if (placed_.view->title.empty() || placed_.room.height() < 6 * font_.height()) {
            return;
        }
        QString line;
        const auto end_line = [&] {
            const QString text = font_.elidedText(line, Qt::ElideRight, placed_.room.width());
            const double y = placed_.room.top() + title_height();
            placed_.title.push_back(
                {text, QRectF(placed_.room.left(), y, font_.horizontalAdvance(text), font_.height())});
        };
        for (const QString& piece : to_qt(placed_.view->title).split(QStringLiteral(", "))) {
            const QString longer = line.isEmpty() ? piece : line + QStringLiteral(", ") + piece;
            if (!line.isEmpty() && font_.horizontalAdvance(longer) > placed_.room.width()) {
                end_line();
                line = piece;
            } else {
                line = longer;
            }
        }
        end_line();
    }

    [[nodiscard]] double title_height() const {
        return font_.height() * static_cast<double>(placed_.title.size());
    }

    void place_drawing(std::size_t above, std::size_t below) {
        const View& view = *placed_.view;
        const double width = view.high.x - view.low.x;
        const double height = (view.high.y - view.low.y) * placed_.exaggeration;
        QRectF room = placed_.room;
        room.setTop(room.top() + title_height() + (placed_.title.empty() ? 0 : 2 * unit_));
        room.adjust(left_margin(), static_cast<double>(above) * row_height() + 2 * unit_, -2 * unit_,
                    -static_cast<double>(below) * row_height() - 2 * unit_);
        const QSizeF size(std::max(1.0, room.width()), std::max(1.0, room.height()));
        placed_.scale = std::min(size.width() / width, size.height() / height);
        placed_.drawing = QRectF(0, 0, width * placed_.scale, height * placed_.scale);
        placed_.drawing.moveCenter(room.center());
    }

    [[nodiscard]] double left_margin() const {
        double widest = 0;
        int lines = 0;
        for (const Dimension* dimension : shown_) {
            if (dimension->run == Run::upright) {
                widest = std::max(widest, font_.horizontalAdvance(to_qt(dimension->text)));
                ++lines;
            }
        }
        return lines == 0 ? 2 * unit_ : widest + (lines * line_gap + 10) * unit_;
    }

    void place_all() {
        placed_.dimensions.clear();
        placed_.marks.clear();
        placed_.losses = static_cast<int>(detail_);
        find_text_room();
        above_ = place_across(Run::above, placed_.drawing.top(), -row_height());
        below_ = place_marks();
        below_ += place_across(
            Run::below, placed_.drawing.bottom() + static_cast<double>(below_) * row_height(), row_height());
        place_uprights();
    }

    /// The texts above and below stay off the column of those beside the section.
    void find_text_room() {
        const auto lines = std::ranges::count(shown_, Run::upright, &Dimension::run);
        texts_from_ = lines == 0
                          ? placed_.room.left()
                          : placed_.drawing.left() - (static_cast<double>(lines) * line_gap + 4) * unit_;
    }

    /// A text, cut short where it is longer than the room, with its middle as near to `middle` as the room lets it be.
    [[nodiscard]] PlacedText text_around(double middle, const std::string& text) const {
        const double room = placed_.room.right() - texts_from_;
        const QString shown = font_.elidedText(to_qt(text), Qt::ElideRight, room - 2 * unit_);
        QRectF box(0, 0, font_.horizontalAdvance(shown) + 2 * unit_, font_.height());
        box.moveLeft(
            std::max(texts_from_, std::min(middle - box.width() / 2, placed_.room.right() - box.width())));
        return {shown, box};
    }

    /// The dimensions of one run in rows from `start` on; how many rows.
    std::size_t place_across(Run run, double start, double pitch) {
        Rows rows(6 * unit_);
        for (const Dimension* dimension : shown_) {
            if (dimension->run != run) {
                continue;
            }
            const auto [left, right] =
                std::minmax({placed_.at(dimension->from).x(), placed_.at(dimension->to).x()});
            PlacedDimension placed{.label = label_beside(left, right, dimension->text),
                                   .beyond = dimension->beyond};
            QRectF& box = placed.label.box;
            const auto row = rows.take(std::min(left, box.left()), std::max(right, box.right()));
            const double y = start + pitch * (static_cast<double>(row) + 0.5);
            box.moveCenter({box.center().x(), y});
            const bool beside = box.left() >= right || box.right() <= left;
            const bool within = right - left >= box.width() + arrows * unit_;
            const double line =
                beside || within ? y : box.bottom() + unit_;  // a wide text stands on its line
            placed.line = {left, line, right, line};
            const double over = 3 * unit_ * (pitch < 0 ? -1 : 1);
            const auto extension = [&](const section::Point& point) {
                return QLineF(placed_.at(point), QPointF(placed_.at(point).x(), line + over));
            };
            placed.from = extension(dimension->from);
            placed.to = extension(dimension->to);
            placed_.dimensions.push_back(placed);
        }
        return rows.count();
    }

    /// The text of a dimension from `left` to `right`: within it, else beside it, in the room.
    PlacedText label_beside(double left, double right, const std::string& text) {
        PlacedText label = text_around((left + right) / 2, text);
        const double width = label.box.width();
        if (right - left < width + arrows * unit_) {
            const double after = right + 12 * unit_;
            const double before = left - 12 * unit_ - width;
            if (after + width <= placed_.room.right()) {
                label.box.moveLeft(after);
            } else if (before >= texts_from_) {
                label.box.moveLeft(before);
            } else {
                ++placed_.losses;
            }
        }
        return label;
    }

    std::size_t place_marks() {
        if (detail_ >= Detail::no_marks) {
            return 0;
        }
        Rows rows(8 * unit_);
        for (const section::Mark& mark : placed_.view->marks) {
            const QPointF tip = placed_.at(mark.at);
            PlacedText label = text_around(tip.x(), mark.text);
            QRectF& box = label.box;
            const auto row = rows.take(box.left(), box.right());
            box.moveTop(placed_.drawing.bottom() + row_height() * static_cast<double>(row) + 3 * unit_);
            placed_.marks.push_back({label, QLineF(QPointF(tip.x(), box.top()), tip)});
        }
        return rows.count();
    }

    void place_uprights() {
        std::vector<std::size_t> uprights;
        double x = placed_.drawing.left() - 6 * unit_;
        for (const Dimension* dimension : shown_) {
            if (dimension->run != Run::upright) {
                continue;
            }
            const QPointF from = placed_.at(dimension->from);
            const QPointF to = placed_.at(dimension->to);
            PlacedDimension placed;
            placed.line = {x, from.y(), x, to.y()};
            placed.from = {from, {x - 3 * unit_, from.y()}};
            placed.to = {to, {x - 3 * unit_, to.y()}};
            placed.label = {to_qt(dimension->text), {}};
            uprights.push_back(placed_.dimensions.size());
            placed_.dimensions.push_back(placed);
            x -= line_gap * unit_;
        }
        place_upright_labels(uprights, x);
    }

    /// The texts in one column that ends at `right`, each as near to the middle of its line as the others let it be.
    void place_upright_labels(std::vector<std::size_t>& uprights, double right) {
        const auto middle = [this](std::size_t index) { return placed_.dimensions[index].line.center().y(); };
        std::ranges::sort(uprights, {}, middle);
        double free_from = placed_.room.top() + title_height();
        for (const std::size_t index : uprights) {
            PlacedText& label = placed_.dimensions[index].label;
            const double width = font_.horizontalAdvance(label.text) + 2 * unit_;
            const double top = std::max(free_from, middle(index) - font_.height() / 2);
            label.box = QRectF(std::max(placed_.room.left(), right - width), top, width, font_.height());
            free_from = label.box.bottom();
        }
        double free_to = placed_.room.bottom();
        std::ranges::reverse(uprights);
        for (const std::size_t index : uprights) {
            QRectF& box = placed_.dimensions[index].label.box;
            box.moveBottom(std::min(box.bottom(), free_to));
            free_to = box.top();
        }
    }

    static constexpr double line_gap = 9;
    static constexpr double arrows = 22;  // what both arrows of a line take beside a text

    const QFontMetricsF& font_;
    double unit_;
    Detail detail_;
    PlacedView placed_;
    std::vector<const Dimension*> shown_;  // the short ones first: they stand nearest to the drawing
    double texts_from_ = 0;
    std::size_t above_ = 0;
    std::size_t below_ = 0;
};

}  // namespace

double font_unit(const QFontMetricsF& font) {
    constexpr double usual_height = 17;
    return font.height() / usual_height;
}

QPointF PlacedView::at(const section::Point& point) const {
    return {drawing.left() + (point.x - view->low.x) * scale,
            drawing.bottom() - (point.y - view->low.y) * exaggeration * scale};
}

PlacedView place_view(const QRectF& room, const View& view, double exaggeration, const QFontMetricsF& font) {
    constexpr double enough = 0.45;
    constexpr double enough_for_the_spread = 0.3;
    const double widest =
        room.height() / ((view.high.y - view.low.y) * exaggeration) * (view.high.x - view.low.x);
    PlacedView placed;
    for (int detail = 0; detail <= static_cast<int>(Detail::none); ++detail) {
        placed = ViewPlacer(room, view, exaggeration, font, static_cast<Detail>(detail)).place();
        const bool heights_shown = detail < static_cast<int>(Detail::no_heights);
        const double wanted = heights_shown ? enough : enough_for_the_spread;
        if (placed.drawing.width() >= wanted * std::min(room.width(), widest)) {
            break;
        }
    }
    return placed;
}

}  // namespace gullymark::shell
