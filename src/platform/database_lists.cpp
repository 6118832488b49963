#include "platform/database_lists.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace gullymark::platform {
namespace {

std::string select_with_key(const std::string& table, const std::vector<std::string>& columns) {
    std::string list = "rowid";
    for (const auto& column : columns) {
        list += "," + quoted_name(column);
    }
    return "SELECT " + list + " FROM " + quoted_name(table) + " ORDER BY rowid";
}

}  // namespace

TextRows read_texts(sqlite3* file, const std::string& table, const std::vector<std::string>& columns,
                    const Keys& keys) {
    Statement query(file, select_with_key(table, columns));
    Keys keys_in_file;
    TextRows texts(columns.size());
    while (query.step()) {
        keys_in_file.push_back(query.integer(0));
        for (std::size_t column = 0; column < columns.size(); ++column) {
            texts.add(query.text_view(static_cast<int>(column) + 1));
        }
    }
    std::vector<std::size_t> order;
    order.reserve(keys.size());
    for (const auto key : keys) {
        const auto at = std::ranges::lower_bound(keys_in_file, key);
        const bool is_there = at != keys_in_file.end() && *at == key;
        order.push_back(is_there ? static_cast<std::size_t>(at - keys_in_file.begin()) : keys_in_file.size());
    }
    texts.put_in_order(std::move(order));
    return texts;
}

Row read_values(sqlite3* file, const std::string& table, const std::string& column, const Keys& keys) {
    Statement query(file, select_with_key(table, {column}));
    std::unordered_map<std::int64_t, std::optional<std::string>> values;
    values.reserve(keys.size());
    while (query.step()) {
        values.emplace(query.integer(0), query.text(1));
    }
    Row in_order;
    in_order.reserve(keys.size());
    for (const auto key : keys) {
        in_order.push_back(std::move(values[key]));
    }
    return in_order;
}

}  // namespace gullymark::platform
