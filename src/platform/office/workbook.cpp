#include "platform/office/workbook.h"

#include <unistd.h>

#include <chrono>
#include <com/sun/star/awt/XCallback.hpp>
#include <com/sun/star/awt/XRequestCallback.hpp>
#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/document/MacroExecMode.hpp>
#include <com/sun/star/document/UpdateDocMode.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/util/Date.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>
#include <condition_variable>
#include <cppuhelper/implbase1.hxx>
#include <filesystem>
#include <mutex>
#include <rtl/ref.hxx>

#include "platform/failure.h"
#include "platform/office/cell_blocks.h"
#include "platform/office/texts.h"

namespace gullymark::office {
namespace {

namespace star = com::sun::star;
using star::uno::Any;
using star::uno::Reference;
using star::uno::Sequence;
using star::uno::UNO_QUERY_THROW;

using platform::CellPosition;
using platform::CellRange;
using platform::CellValue;

template <typename Type>
star::beans::PropertyValue property(const char* name, const Type& value) {
    return {text_of(name), 0, Any(value), star::beans::PropertyState_DIRECT_VALUE};
}

Sequence<star::beans::PropertyValue> properties(const std::vector<star::beans::PropertyValue>& all) {
    return {all.data(), static_cast<sal_Int32>(all.size())};
}

// Rows and columns count from 1 here, from 0 in the office.
Reference<star::table::XCellRange> cells_at(const Workbook& workbook, const CellRange& range) {
    return workbook.sheet->getCellRangeByPosition(range.first.column - 1, range.first.row - 1,
                                                  range.last.column - 1, range.last.row - 1);
}

CellRange range_of(const star::table::CellRangeAddress& address) {
    return {{address.StartRow + 1, address.StartColumn + 1}, {address.EndRow + 1, address.EndColumn + 1}};
}

// The office counts days from a day that belongs to the workbook.
std::chrono::sys_days first_day(const Workbook& workbook) {
    const Reference<star::beans::XPropertySet> settings(workbook.model, UNO_QUERY_THROW);
    const auto day = settings->getPropertyValue("NullDate").get<star::util::Date>();
    return std::chrono::year(day.Year) / day.Month / day.Day;
}

// An Any without a value would show as an error: an empty text is what empties a cell.
Any any_of(const platform::CellValue& value, std::chrono::sys_days first) {
    if (const auto* number = std::get_if<double>(&value)) {
        return Any(*number);
    }
    if (const auto* date = std::get_if<platform::Date>(&value)) {
        return Any(static_cast<double>((std::chrono::sys_days(*date) - first).count()));
    }
    const auto* text = std::get_if<std::string>(&value);
    return Any(text != nullptr ? text_of(*text) : rtl::OUString());
}

void write_block(const Workbook& workbook, const CellRange& block, const platform::Cells& cells,
                 std::chrono::sys_days first) {
    Sequence<Sequence<Any>> rows(block.last.row - block.first.row + 1);
    for (sal_Int32 row = 0; row < rows.getLength(); ++row) {
        Sequence<Any> columns(block.last.column - block.first.column + 1);
        for (sal_Int32 column = 0; column < columns.getLength(); ++column) {
            const auto found = cells.find({block.first.row + row, block.first.column + column});
            columns.getArray()[column] = any_of(found == cells.end() ? CellValue() : found->second, first);
        }
        rows.getArray()[row] = columns;
    }
    const Reference<star::sheet::XCellRangeData> range(cells_at(workbook, block), UNO_QUERY_THROW);
    range->setDataArray(rows);
}

sal_Int16 kind_of_format(const Workbook& workbook, sal_Int32 format) {
    const Reference<star::util::XNumberFormatsSupplier> formats(workbook.model, UNO_QUERY_THROW);
    const auto found = formats->getNumberFormats()->getByKey(format);
    return static_cast<sal_Int16>(found->getPropertyValue("Type").get<sal_Int16>() &
                                  ~star::util::NumberFormat::DEFINED);
}

sal_Int32 format_of(const Reference<star::uno::XInterface>& cells) {
    const Reference<star::beans::XPropertySet> properties(cells, UNO_QUERY_THROW);
    return properties->getPropertyValue("NumberFormat").get<sal_Int32>();
}

void format_as_date(const Workbook& workbook, const CellPosition& cell) {
    const auto range = cells_at(workbook, {cell, cell});
    if (kind_of_format(workbook, format_of(range)) == star::util::NumberFormat::DATE) {
        return;
    }
    const Reference<star::util::XNumberFormatsSupplier> supplier(workbook.model, UNO_QUERY_THROW);
    const Reference<star::util::XNumberFormatTypes> formats(supplier->getNumberFormats(), UNO_QUERY_THROW);
    const sal_Int32 date = formats->getStandardFormat(star::util::NumberFormat::DATE, star::lang::Locale());
    const Reference<star::beans::XPropertySet> properties(range, UNO_QUERY_THROW);
    properties->setPropertyValue("NumberFormat", Any(date));
}

platform::Cells filled_cells(const Workbook& workbook) {
    namespace flags = star::sheet::CellFlags;
    platform::Cells cells;
    const Reference<star::sheet::XCellRangesQuery> query(workbook.sheet, UNO_QUERY_THROW);
    const auto filled =
        query->queryContentCells(flags::VALUE | flags::DATETIME | flags::STRING | flags::FORMULA);
    for (const star::table::CellRangeAddress& address : filled->getRangeAddresses()) {
        const CellRange block = range_of(address);
        const Reference<star::sheet::XCellRangeData> range(cells_at(workbook, block), UNO_QUERY_THROW);
        CellPosition cell = block.first;
        for (const Sequence<Any>& row : range->getDataArray()) {
            cell.column = block.first.column;
            for (const Any& held : row) {
                double number = 0;
                rtl::OUString text;
                cells[cell] =
                    (held >>= number) ? CellValue(number) : CellValue((held >>= text) ? utf8_of(text) : "");
                ++cell.column;
            }
            ++cell.row;
        }
    }
    return cells;
}

std::vector<CellRange> text_cells(const Workbook& workbook) {
    std::vector<CellRange> ranges;
    const Reference<star::sheet::XUniqueCellFormatRangesSupplier> supplier(workbook.sheet, UNO_QUERY_THROW);
    const Reference<star::container::XIndexAccess> groups(supplier->getUniqueCellFormatRanges(),
                                                          UNO_QUERY_THROW);
    for (sal_Int32 at = 0; at < groups->getCount(); ++at) {
        const Reference<star::sheet::XSheetCellRanges> group(groups->getByIndex(at), UNO_QUERY_THROW);
        if (kind_of_format(workbook, format_of(group)) != star::util::NumberFormat::TEXT) {
            continue;
        }
        for (const star::table::CellRangeAddress& address : group->getRangeAddresses()) {
            ranges.push_back(range_of(address));
        }
    }
    return ranges;
}

Reference<star::frame::XModel> load(const Office& office, const std::string& path, bool as_template) {
    const auto how = properties({
        property("Hidden", true),
        property("AsTemplate", as_template),
        property("FilterName", text_of("MS Excel 97")),  // else the extension decides what it is
        property("OnMainThread", true),
        property("MacroExecutionMode", star::document::MacroExecMode::NEVER_EXECUTE),
        property("UpdateDocMode", star::document::UpdateDocMode::NO_UPDATE),
    });
    return {office.desktop->loadComponentFromURL(file_url(path), "_blank", 0, how), star::uno::UNO_QUERY};
}

// A second workbook of the same name would overwrite the first one's changes, or the other way round.
bool has_open(const Office& office, const std::string& path) {
    const auto url = file_url(std::filesystem::weakly_canonical(path).string());
    const auto components = office.desktop->getComponents()->createEnumeration();
    while (components->hasMoreElements()) {
        const Reference<star::frame::XModel> model(components->nextElement(), star::uno::UNO_QUERY);
        if (model.is() && model->getURL() == url) {
            return true;
        }
    }
    return false;
}

// Nothing when it cannot be opened under its name; the office gives nothing for one that another user has open.
Reference<star::frame::XModel> load_under_name(const Office& office, const std::string& path) {
    if (path.empty() || access(path.c_str(), R_OK) != 0 || has_open(office, path)) {
        return {};
    }
    Workbook workbook;
    workbook.model = load(office, path, false);
    // One that cannot be saved under its name could not be filled either.
    if (workbook.model.is() &&
        Reference<star::frame::XStorable>(workbook.model, UNO_QUERY_THROW)->isReadonly()) {
        close_workbook(workbook);
    }
    return workbook.model;
}

// Called back by the office on its own main thread; from any other, showing a window may wait for ever.
class ShowWindow : public cppu::WeakImplHelper1<star::awt::XCallback> {
  public:
    explicit ShowWindow(const Reference<star::awt::XWindow>& window) : window_(window) {}

    void SAL_CALL notify(const Any& /*nothing*/) override {
        window_->setVisible(true);
        const Reference<star::awt::XTopWindow> top(window_, star::uno::UNO_QUERY);
        if (top.is()) {
            top->toFront();
        }
        const std::lock_guard lock(mutex_);
        done_ = true;
        changed_.notify_all();
    }

    void wait() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return done_; });
    }

  private:
    Reference<star::awt::XWindow> window_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool done_ = false;
};

Reference<star::sheet::XSpreadsheetView> view_of(const Workbook& workbook) {
    return {workbook.model->getCurrentController(), UNO_QUERY_THROW};
}

}  // namespace

void open_workbook(const Office& office, const platform::SheetFile& file, Workbook& workbook) {
    workbook.model = load_under_name(office, file.path);
    if (!workbook.model.is() && !file.template_path.empty()) {
        workbook.model = load(office, file.template_path, true);
    }
    if (!workbook.model.is()) {
        throw platform::Failure("The spreadsheet program cannot open " + file.path + ".");
    }
    if (file.sheet == platform::SheetChoice::active) {
        // As long as it is unseen, a workbook of several sheets is at its first, whichever it was saved at.
        workbook.sheet = view_of(workbook)->getActiveSheet();
    } else {
        const Reference<star::sheet::XSpreadsheetDocument> document(workbook.model, UNO_QUERY_THROW);
        const Reference<star::container::XIndexAccess> sheets(document->getSheets(), UNO_QUERY_THROW);
        workbook.sheet.set(sheets->getByIndex(0), UNO_QUERY_THROW);
    }
}

platform::SheetContent read_content(const Workbook& workbook) {
    return {.cells = filled_cells(workbook), .text_cells = text_cells(workbook)};
}

void write_cells(const Workbook& workbook, const platform::Cells& cells, const platform::Cells& kept) {
    const std::chrono::sys_days first = first_day(workbook);
    for (const CellRange& block : cell_blocks(cells, kept)) {
        write_block(workbook, block, cells, first);
    }
    for (const auto& [cell, value] : cells) {
        if (std::holds_alternative<platform::Date>(value)) {
            format_as_date(workbook, cell);
        }
    }
}

void show_workbook(const Office& office, const Workbook& workbook) {
    view_of(workbook)->setActiveSheet(workbook.sheet);
    const auto window = workbook.model->getCurrentController()->getFrame()->getContainerWindow();
    const rtl::Reference<ShowWindow> show(new ShowWindow(window));
    const Reference<star::awt::XRequestCallback> main_thread(
        office.context->getServiceManager()->createInstanceWithContext("com.sun.star.awt.AsyncCallback",
                                                                       office.context),
        UNO_QUERY_THROW);
    main_thread->addCallback(Reference<star::awt::XCallback>(show.get()), Any());
    show->wait();
}

void save(const Workbook& workbook) {
    Reference<star::frame::XStorable>(workbook.model, UNO_QUERY_THROW)->store();
}

void save_copy(const Workbook& workbook, const std::string& path) {
    const Reference<star::frame::XStorable> storable(workbook.model, UNO_QUERY_THROW);
    storable->storeToURL(file_url(path), properties({property("FilterName", text_of("MS Excel 97"))}));
}

void close_workbook(Workbook& workbook) {
    const Reference<star::util::XCloseable> closeable(workbook.model, star::uno::UNO_QUERY);
    workbook = {};
    if (closeable.is()) {
        closeable->close(true);
    }
}

}  // namespace gullymark::office
