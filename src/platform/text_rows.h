#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gullymark::platform {

/// The texts of many rows, as one query gave them: they stay whatever happens to the file. A null is an empty text.
/// All of them stand in one piece of memory, for a list of 100,000 inlets has a million.
class TextRows {
  public:
    TextRows() = default;
    explicit TextRows(std::size_t columns) : columns_(columns) {}

    /// Adds the text of the next cell, row by row and from column 0 on.
    void add(std::string_view text);

    [[nodiscard]] std::size_t count() const { return columns_ == 0 ? 0 : ends_.size() / columns_; }

    /// A cell, both counted from 0; empty for one that is not there.
    [[nodiscard]] std::string_view text(std::size_t row, std::size_t column) const;

  private:
    std::size_t columns_ = 0;
    std::string texts_;
    std::vector<std::size_t> ends_;  // of each cell in `texts_`
};

}  // namespace gullymark::platform
