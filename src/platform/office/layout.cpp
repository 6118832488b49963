#include "platform/office/layout.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSheetPageBreak.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/sheet/XViewFreezable.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/XNumberFormats.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

#include <thread>

#include "platform/office/texts.h"

namespace gullymark::office {
namespace {

namespace star = com::sun::star;
using star::uno::Any;
using star::uno::Reference;
using star::uno::UNO_QUERY_THROW;

constexpr int freezing_tries = 40;
constexpr std::chrono::milliseconds pause_before_freezing(50);

class Formats {
  public:
    explicit Formats(const Workbook& workbook)
        : formats_(Reference<star::util::XNumberFormatsSupplier>(workbook.model, UNO_QUERY_THROW)
                       ->getNumberFormats()) {}

    [[nodiscard]] std::string code(const Reference<star::uno::XInterface>& cells) const {
        const Reference<star::beans::XPropertySet> properties(cells, UNO_QUERY_THROW);
        const auto key = properties->getPropertyValue("NumberFormat").get<sal_Int32>();
        return utf8_of(formats_->getByKey(key)->getPropertyValue("FormatString").get<rtl::OUString>());
    }
    void set(const Reference<star::uno::XInterface>& cells, const std::string& code) const {
        const star::lang::Locale english("en", "US", "");
        sal_Int32 key = formats_->queryKey(text_of(code), english, false);
        key = key >= 0 ? key : formats_->addNew(text_of(code), english);
        const Reference<star::beans::XPropertySet> properties(cells, UNO_QUERY_THROW);
        properties->setPropertyValue("NumberFormat", Any(key));
    }

  private:
    Reference<star::util::XNumberFormats> formats_;
};

int decimals_of(const std::string& code) {
    return static_cast<int>(code.size() - code.find('.')) - 1;
}

bool needs(int decimals, const platform::CellValue& value) {
    const auto* number = std::get_if<double>(&value);
    const double scaled = number == nullptr ? 0 : *number * std::pow(10, decimals - 1);
    return std::abs(scaled - std::round(scaled)) > 1e-6 * std::max(1.0, std::abs(scaled));
}

// Rows and columns count from 0 in an address, from 1 in a cell.
bool any_needs(int decimals, sal_Int32 column, const star::table::CellRangeAddress& range,
               const platform::Cells& filled) {
    return std::ranges::any_of(filled, [&](const auto& cell) {
        return cell.first.column == column + 1 && cell.first.row > range.StartRow &&
               cell.first.row <= range.EndRow + 1 && needs(decimals, cell.second);
    });
}

// The office calls it deprecated, and has nothing else that works out where pages end.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
star::uno::Sequence<star::sheet::TablePageBreakData> ends_of_pages(const Workbook& workbook) {
    return Reference<star::sheet::XSheetPageBreak>(workbook.sheet, UNO_QUERY_THROW)->getRowPageBreaks();
}
#pragma GCC diagnostic pop

}  // namespace

void align_decimals(const Workbook& workbook, int heading_rows, const platform::Cells& filled) {
    const Formats formats(workbook);
    const Reference<star::sheet::XUniqueCellFormatRangesSupplier> supplier(workbook.sheet, UNO_QUERY_THROW);
    const Reference<star::container::XIndexAccess> groups(supplier->getUniqueCellFormatRanges(),
                                                          UNO_QUERY_THROW);
    for (sal_Int32 at = 0; at < groups->getCount(); ++at) {
        const Reference<star::sheet::XSheetCellRanges> group(groups->getByIndex(at), UNO_QUERY_THROW);
        std::string code = formats.code(group);
        if (!code.ends_with('?') || code.find('.') == std::string::npos) {
            continue;
        }
        code.back() = '0';
        for (const star::table::CellRangeAddress& range : group->getRangeAddresses()) {
            if (range.StartRow < heading_rows) {
                continue;
            }
            for (sal_Int32 column = range.StartColumn; column <= range.EndColumn; ++column) {
                const auto cells =
                    workbook.sheet->getCellRangeByPosition(column, range.StartRow, column, range.EndRow);
                const bool whole = any_needs(decimals_of(code), column, range, filled);
                formats.set(cells, whole ? code : code.substr(0, code.size() - 1));
            }
        }
    }
}

void keep_rows_together(const Workbook& workbook, const std::vector<platform::RowRange>& kept_rows) {
    const Reference<star::table::XColumnRowRange> sheet(workbook.sheet, UNO_QUERY_THROW);
    // From above: a page that is ended earlier moves the ends of those behind it.
    auto ends = ends_of_pages(workbook);
    for (const platform::RowRange& kept : kept_rows) {
        const bool parted = std::ranges::any_of(ends, [&](const star::sheet::TablePageBreakData& end) {
            const sal_Int32 next = end.Position + 1;  // the first row of the next page
            return kept.first < next && next <= kept.last;
        });
        if (parted) {
            const Reference<star::beans::XPropertySet> row(sheet->getRows()->getByIndex(kept.first - 1),
                                                           UNO_QUERY_THROW);
            row->setPropertyValue("IsStartOfNewPage", Any(true));
            ends = ends_of_pages(workbook);
        }
    }
}

void freeze(const Workbook& workbook, int rows, int columns) {
    const Reference<star::sheet::XViewFreezable> view(workbook.model->getCurrentController(),
                                                      UNO_QUERY_THROW);
    // The office splits the window by its size, which it has some time after it is shown.
    for (int tries = 0; tries < freezing_tries && !view->hasFrozenPanes(); ++tries) {
        std::this_thread::sleep_for(pause_before_freezing);
        view->freezeAtPosition(columns, rows);
    }
}

}  // namespace gullymark::office
