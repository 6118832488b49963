#include "platform/text_rows.h"

namespace gullymark::platform {

void TextRows::add(std::string_view text) {
    texts_.append(text);
    ends_.push_back(texts_.size());
}

std::string_view TextRows::text(std::size_t row, std::size_t column) const {
    const std::size_t added_as = !order_ ? row : row < order_->size() ? (*order_)[row] : count_added();
    if (added_as >= count_added() || column >= columns_) {
        return "";
    }
    const std::size_t cell = added_as * columns_ + column;
    const std::size_t begin = cell == 0 ? 0 : ends_[cell - 1];
    return std::string_view(texts_).substr(begin, ends_[cell] - begin);
}

}  // namespace gullymark::platform
