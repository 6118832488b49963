#include "shell/review/sizing_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QApplication>
#include <QFont>
#include <QPalette>

#include "engine/units.h"
#include "platform/number_text.h"
#include "shell/binding/contrast.h"
#include "shell/binding/qt_text.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {
namespace {

using engine::Unit;
using review::LargestArea;
using review::SizedRow;
using review::Verdict;
using Target = engine::Column;

QString with_unit(const char* heading, Unit unit) {
    return QString::fromLatin1(heading) + "\n[" + to_qt(engine::unit_text(unit)) + ']';
}

QString verdict_text(const SizedRow& row) {
    switch (row.verdict) {
        case Verdict::within:
            return QStringLiteral("\u2713 within");
        case Verdict::beyond:
            return QStringLiteral("\u2717 beyond");
        case Verdict::unknown:
            break;
    }
    return row.solved ? QStringLiteral("\u2013") : QStringLiteral("? not solved");
}

QString area_text(const SizedRow& row, bool is_right) {
    switch (row.area.kind) {
        case LargestArea::Kind::none:
            return QStringLiteral("\u2013");
        case LargestArea::Kind::unlimited:
            return is_right ? QString() : QStringLiteral("any");
        case LargestArea::Kind::found:
            break;
    }
    const std::string& text = is_right ? row.area.right : row.area.left;
    return text.empty() ? QStringLiteral("\u2013") : to_qt(text);
}

QString share_text(const SizedRow& row) {
    return row.share ? to_qt(platform::format_number(*row.share * 100, "0.0")) : QString();
}

/// What a designer compares rows by: areas and perimeters of grates follow from the rest.
bool is_shown(const catalogue::TableColumn& column) {
    constexpr std::array hidden{Target::RAREA, Target::EFFPERI, Target::GRATEAREA, Target::GRATEPERI};
    return column.target && std::ranges::find(hidden, *column.target) == hidden.end();
}

QColor within_color(const QPalette& palette) {
    const std::array grounds{palette.color(QPalette::Base), palette.color(QPalette::AlternateBase)};
    return readable(QColor(20, 120, 50), grounds, text_contrast);
}

}  // namespace

void SizingModel::show_sizing(review::Sizing sizing) {
    beginResetModel();
    sizing_ = std::move(sizing);
    columns_.clear();
    columns_.push_back({.heading = QStringLiteral("Allowable\nspread"),
                        .text = [](const SizedRow& row, std::size_t) { return verdict_text(row); },
                        .is_text = true,
                        .tip = QStringLiteral("How its spread stands to the allowable spread of the inlet")});
    add_table_columns();
    add_result_columns();
    endResetModel();
}

void SizingModel::add_table_columns() {
    if (sizing_.table == nullptr) {
        columns_.push_back({.heading = QStringLiteral("Inlet"),
                            .text = [](const SizedRow&, std::size_t) { return QStringLiteral("this inlet"); },
                            .is_text = true});
        return;
    }
    for (std::size_t i = 0; i < sizing_.table->columns.size(); ++i) {
        const auto& column = sizing_.table->columns[i];
        if (is_shown(column)) {
            const QString unit = to_qt(column.unit);
            QString heading = to_qt(column.heading);
            heading.replace(' ', '\n');
            columns_.push_back({.heading = heading + (unit.isEmpty() ? QString() : "\n[" + unit + ']'),
                                .text =
                                    [](const SizedRow& row, std::size_t field) {
                                        const QString text = to_qt(row.fields.at(field)).simplified();
                                        return field == 0 && row.standard == nullptr
                                                   ? "this inlet" + (text.isEmpty() ? QString() : ": " + text)
                                                   : text;
                                    },
                                .field = i,
                                .is_text = i == 0});
        }
    }
}

void SizingModel::add_result_columns() {
    const auto add = [this](QString heading, QString (*text)(const SizedRow&, std::size_t), const char* tip) {
        columns_.push_back({.heading = std::move(heading), .text = text, .tip = QString::fromLatin1(tip)});
    };
    if (sizing_.has_spread) {
        add(
            with_unit("Spread", Unit::length),
            [](const SizedRow& row, std::size_t) { return to_qt(row.spread); }, "At the opening");
    }
    if (sizing_.has_spread && sizing_.in_sump) {
        add(
            with_unit("Gutter\nspread", Unit::length),
            [](const SizedRow& row, std::size_t) { return to_qt(row.gutter_spread); },
            "Of the larger approach");
    }
    add(
        with_unit("Depth", Unit::depth), [](const SizedRow& row, std::size_t) { return to_qt(row.depth); },
        sizing_.in_sump ? "At the inlet" : "At the curb or in the ditch");
    add(
        with_unit("Inter-\ncepted", Unit::discharge),
        [](const SizedRow& row, std::size_t) { return to_qt(row.intercepted); }, "");
    if (!sizing_.in_sump) {
        add(
            with_unit("Bypass", Unit::discharge),
            [](const SizedRow& row, std::size_t) { return to_qt(row.bypass); }, "");
    }
    add(
        QStringLiteral("Effi-\nciency\n[%]"),
        [](const SizedRow& row, std::size_t) { return share_text(row); }, "Intercepted of the total flow");
    if (!sizing_.has_spread) {
        return;
    }
    add(
        with_unit(sizing_.in_sump ? "Largest\narea, left" : "Largest\narea", Unit::runoff_area),
        [](const SizedRow& row, std::size_t) { return area_text(row, false); },
        "The largest runoff area with which the spread is still within");
    if (sizing_.in_sump) {
        add(
            with_unit("Largest\narea, right", Unit::runoff_area),
            [](const SizedRow& row, std::size_t) { return area_text(row, true); },
            "Both areas grow in their proportion");
        return;
    }
    add(
        with_unit("First\ninlet after", Unit::length),
        [](const SizedRow& row, std::size_t) { return to_qt(row.first_distance); },
        "So far from the top of the road may the first inlet stand, to which nothing is carried over");
    add(
        with_unit("Next inlets\nevery", Unit::length),
        [](const SizedRow& row, std::size_t) { return to_qt(row.next_distance); },
        "So far apart may inlets of one row stand, each of which takes the bypass of the one before");
}

void SizingModel::show_colors() {
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

int SizingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(sizing_.rows.size());
}

int SizingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant SizingModel::data(const QModelIndex& index, int role) const {
    const auto& column = columns_.at(static_cast<std::size_t>(index.column()));
    const auto& row = sizing_.rows.at(static_cast<std::size_t>(index.row()));
    const QPalette palette = QApplication::palette();
    switch (role) {
        case Qt::DisplayRole:
            return column.text(row, column.field);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue((column.is_text ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        case Qt::ForegroundRole:
            if (index.column() == 0 && row.verdict != Verdict::unknown) {
                return row.verdict == Verdict::within ? within_color(palette)
                                                      : severity_color(review::Severity::beyond, palette);
            }
            return {};
        case Qt::BackgroundRole:
            if (row.verdict == Verdict::within) {
                return between(palette.color(QPalette::Base), QColor(40, 170, 80), 0.13);
            }
            return {};
        case Qt::FontRole: {
            QFont font = QApplication::font();
            font.setBold(row.standard == nullptr);
            return font;
        }
        case Qt::ToolTipRole:
            return row.told.empty() ? QVariant() : QVariant(to_qt(row.told));
        default:
            return {};
    }
}

QVariant SizingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const auto& column = columns_[static_cast<std::size_t>(section)];
    switch (role) {
        case Qt::DisplayRole:
            return column.heading;
        case Qt::ToolTipRole:
            return column.tip;
        case Qt::TextAlignmentRole:
            return QVariant::fromValue((column.is_text ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignBottom);
        default:
            return {};
    }
}

}  // namespace gullymark::shell
