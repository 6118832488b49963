#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gullymark::platform {

/// A text or null for each column of a row.
using Row = std::vector<std::optional<std::string>>;

/// The texts of many rows, as one query gave them: they stay whatever happens to the file. A null is an empty text.
/// All of them stand in one piece of memory, for a list of 100,000 inlets has a million.
class TextRows {
  public:
    TextRows() = default;
    explicit TextRows(std::size_t columns) : columns_(columns) {}

    /// Adds the text of the next cell, row by row and from column 0 on; before `put_in_order`.
    void add(std::string_view text);

    /// Row i is from now on the one that was added as number order[i], from 0; one that never was has empty texts.
    void put_in_order(std::vector<std::size_t> order) { order_ = std::move(order); }

    /// How many rows there are; those in order, once `put_in_order` has told it.
    [[nodiscard]] std::size_t count() const { return order_ ? order_->size() : count_added(); }

    /// A cell, both counted from 0; empty for one that is not there.
    [[nodiscard]] std::string_view text(std::size_t row, std::size_t column) const;

  private:
    [[nodiscard]] std::size_t count_added() const { return columns_ == 0 ? 0 : ends_.size() / columns_; }

    std::size_t columns_ = 0;
    std::string texts_;
    std::vector<std::size_t> ends_;  // of each cell in `texts_`
    std::optional<std::vector<std::size_t>> order_;
};

}  // namespace gullymark::platform
