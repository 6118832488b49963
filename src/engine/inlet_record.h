#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace gullymark::engine {

/// The columns of table INLET by their names, in the table's order.
enum class Column : unsigned char {
#define INLET_COLUMN(name, unit, meaning) name,
#include "engine/inlet_columns.def"
};

inline constexpr std::size_t column_count = static_cast<std::size_t>(Column::INLETPERF) + 1;

/// All columns in order, to walk over.
inline constexpr auto all_columns = [] {
    std::array<Column, column_count> columns{};
    for (std::size_t i = 0; i < column_count; ++i) {
        columns.at(i) = static_cast<Column>(i);
    }
    return columns;
}();

/// The name of a column as the table has it: "QINT".
std::string_view column_name(Column column);

/// The column of that name, case counting; nothing for a word that names none.
std::optional<Column> column_named(std::string_view name);

/// One row of table INLET in memory: a text or null for each column. A column that nothing has filled is null.
class InletRecord {
  public:
    /// The text of a column, empty for a null.
    [[nodiscard]] const std::string& text(Column column) const;
    /// True for a column that nothing has filled, other than one with an empty text.
    [[nodiscard]] bool is_null(Column column) const;

    /// The value of a column as the store holds it.
    [[nodiscard]] const std::optional<std::string>& value(Column column) const {
        return values_[index(column)];
    }

    /// Writes a text. The first write after `load` or `begin_new_changes` tells `on_first_change`, when that is set;
    /// writing the text that already stands there tells it too, for a field that was written has changed.
    void set(Column column, std::string_view text);

    /// Takes a value as the store holds it; that is no change of the row.
    void load(Column column, std::optional<std::string> value) { values_[index(column)] = std::move(value); }

    /// From here on the next write counts as the first change again.
    void begin_new_changes() { changed_ = false; }
    /// True from the first write on.
    [[nodiscard]] bool changed() const { return changed_; }

    /// Told once at the first change of the row.
    void (*on_first_change)() = nullptr;

  private:
    static constexpr std::size_t index(Column column) { return static_cast<std::size_t>(column); }

    std::array<std::optional<std::string>, column_count> values_{};
    bool changed_ = false;
};

/// The open inlet: the one truth that the form shows, the solvers work on and a save stores.
extern InletRecord open_inlet;

}  // namespace gullymark::engine
