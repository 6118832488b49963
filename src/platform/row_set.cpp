#include "platform/row_set.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

#include "platform/database.h"
#include "platform/database_lists.h"
#include "platform/database_sqlite.h"
#include "platform/database_statements.h"
#include "platform/failure.h"
#include "platform/stored_row.h"

namespace gullymark::platform {
namespace {

Source read_source(sqlite3* file, const std::string& statement) {
    const Statement select(file, statement);
    if (select.column_count() == 0) {
        throw Failure("the statement returns no rows");
    }
    Source source;
    for (int column = 0; column < select.column_count(); ++column) {
        const char* table = sqlite3_column_table_name(select.get(), column);
        const char* origin = sqlite3_column_origin_name(select.get(), column);
        if (table == nullptr || origin == nullptr || (column > 0 && source.table != table)) {
            throw Failure("a row set holds columns of one table only");
        }
        source.table = table;
        source.columns.emplace_back(origin);
        source.names.emplace_back(sqlite3_column_name(select.get(), column));
    }
    return source;
}

}  // namespace

/// The position counts from 0; -1 is before the first row and the number of rows behind the last.
struct RowSet::State {
    std::shared_ptr<DatabaseHandle> handle;
    std::string select;
    Source source;
    std::shared_ptr<const Keys> keys = std::make_shared<const Keys>();
    std::int64_t position = 0;
    bool adding = false;
    std::optional<Row> loaded;  // the current row as it was read
    /// What failed saves of the current row tried to store, and under which key. Any of them may have taken effect: the
    /// engine also fails when the row is stored and only the end of the save could not be made durable. So a save that
    /// is tried again begins with undoing them; the texts tell whether there is anything to undo.
    std::vector<std::pair<std::int64_t, Row>> attempts;

    [[nodiscard]] sqlite3* file() const {
        if (handle->file == nullptr) {
            throw Failure(no_file_is_open);
        }
        return handle->file;
    }

    [[nodiscard]] std::int64_t count() const { return static_cast<std::int64_t>(keys->size()); }
    /// Keys of its own from here on: other sets keep those that they read.
    void change_keys(const std::function<void(Keys&)>& change);

    void run_query();
    /// Goes to a position, or to the end marker beyond which it lies.
    void go(std::int64_t to);
    [[nodiscard]] std::int64_t current_key() const;
    [[nodiscard]] std::size_t index_of(std::string_view column) const;
    [[nodiscard]] Row read(std::int64_t key) const;
    const Row& load();
    void insert(const Row& values);
    void update(const Row& values);
    /// A row that could not be written as it was loaded: it is gone, or another program changed it.
    [[noreturn]] void fail_on_changed_row(std::int64_t key) const;
};

void RowSet::State::run_query() {
    auto new_source = read_source(file(), select);
    const auto keys_query = keys_statement(select);
    if (!keys_query) {
        throw Failure("a row set is opened on SELECT list FROM table");
    }
    keys = handle->keys_of(*keys_query);
    source = std::move(new_source);
    go(0);
}

void RowSet::State::change_keys(const std::function<void(Keys&)>& change) {
    auto own = std::make_shared<Keys>(*keys);
    change(*own);
    keys = std::move(own);
}

void RowSet::State::go(std::int64_t to) {
    position = std::clamp<std::int64_t>(to, -1, count());
    adding = false;
    loaded.reset();
    attempts.clear();
}

std::int64_t RowSet::State::current_key() const {
    if (adding || position < 0 || position >= count()) {
        throw Failure("there is no current row");
    }
    return (*keys)[static_cast<std::size_t>(position)];
}

std::size_t RowSet::State::index_of(std::string_view column) const {
    const auto found = std::ranges::find(source.names, column);
    if (found == source.names.end()) {
        throw Failure("no such column: " + std::string(column));
    }
    return static_cast<std::size_t>(found - source.names.begin());
}

Row RowSet::State::read(std::int64_t key) const {
    auto row = read_row(file(), source, key);
    if (!row) {
        throw Failure("the row is no longer in the file");
    }
    return *std::move(row);
}

const Row& RowSet::State::load() {
    if (!loaded) {
        loaded = adding ? Row(source.columns.size()) : read(current_key());
    }
    return *loaded;
}

void RowSet::State::insert(const Row& values) {
    sqlite3_set_last_insert_rowid(file(), 0);
    try {
        if (attempts.empty()) {
            insert_row(file(), source, values);
        } else {
            Transaction again(file());
            std::optional<std::int64_t> key;
            for (const auto& [attempted, stored] : attempts) {
                key = delete_row(file(), source, attempted, stored) ? attempted : key;
            }
            insert_row(file(), source, values, key);
            again.commit();
        }
    } catch (const Failure&) {
        if (const auto key = sqlite3_last_insert_rowid(file()); key != 0) {
            attempts.emplace_back(key, values);
        }
        throw;
    }
    change_keys([&](Keys& own) { own.push_back(sqlite3_last_insert_rowid(file())); });
    go(count() - 1);
}

void RowSet::State::update(const Row& values) {
    const auto key = current_key();
    const Row& old = load();
    bool replaced = false;
    try {
        if (attempts.empty()) {
            replaced = replace_row(file(), source, key, old, values);
        } else {
            Transaction again(file());
            for (const auto& [attempted, stored] : attempts) {
                static_cast<void>(replace_row(file(), source, attempted, stored, old));
            }
            replaced = replace_row(file(), source, key, old, values);
            again.commit();
        }
    } catch (const Failure&) {
        attempts.emplace_back(key, values);
        throw;
    }
    if (!replaced) {
        fail_on_changed_row(key);
    }
    loaded = values;
    attempts.clear();
}

void RowSet::State::fail_on_changed_row(std::int64_t key) const {
    static_cast<void>(read(key));
    throw Failure("the row was changed by another program");
}

RowSet::RowSet() = default;
RowSet::~RowSet() = default;
RowSet::RowSet(RowSet&&) noexcept = default;
RowSet& RowSet::operator=(RowSet&&) noexcept = default;

RowSet::State& RowSet::state() const {
    if (!state_) {
        throw Failure("nothing was read from the project file");
    }
    static_cast<void>(state_->file());
    return *state_;
}

void RowSet::open(const Connection& connection, const std::string& statement) {
    if (!connection.is_open()) {
        throw Failure(no_file_is_open);
    }
    refuse_comments(statement);
    auto opened = std::make_unique<State>();
    opened->handle = connection.handle();
    opened->select = statement;
    opened->run_query();
    state_ = std::move(opened);
}

void RowSet::close() {
    state_.reset();
}

bool RowSet::is_open() const {
    return state_ != nullptr;
}

std::size_t RowSet::record_count() const {
    return state().keys->size();
}

const std::vector<std::string>& RowSet::columns() const {
    return state().source.names;
}

bool RowSet::at_beginning() const {
    const auto& set = state();
    return !set.adding && (set.position < 0 || set.keys->empty());
}

bool RowSet::at_end() const {
    const auto& set = state();
    return !set.adding && (set.position >= set.count() || set.keys->empty());
}

void RowSet::move_first() {
    state().go(0);
}

void RowSet::move_last() {
    auto& set = state();
    set.go(set.count() - 1);
}

void RowSet::move_next() {
    move(1);
}

void RowSet::move(std::int64_t rows) {
    auto& set = state();
    const auto farthest = set.count() + 1;
    set.go(set.position + std::clamp(rows, -farthest, farthest));
}

void RowSet::find(const std::string& condition) {
    auto& set = state();
    const auto start = std::max<std::int64_t>(set.position, 0);
    set.go(set.count());  // where a failure leaves it
    const auto searched = read_condition(condition);
    if (!searched) {
        throw Failure("a condition has the form COLUMN = 'text': " + condition);
    }
    const auto& column = set.source.columns[set.index_of(searched->column)];
    Statement query(set.file(), "SELECT rowid FROM " + quoted_name(set.source.table) + " WHERE " +
                                    quoted_name(column) + " = ?1 ORDER BY rowid");
    query.bind(1, searched->text);
    const auto found = read_keys(query);
    const auto is_found = [&](std::int64_t key) { return std::ranges::binary_search(found, key); };
    set.go(std::find_if(set.keys->begin() + start, set.keys->end(), is_found) - set.keys->begin());
}

bool RowSet::has_same_rows(const RowSet& other) const {
    return other.is_open() && state().keys == other.state().keys;
}

std::int64_t RowSet::bookmark() const {
    return state().current_key();
}

void RowSet::go_to(std::int64_t bookmark) {
    auto& set = state();
    const auto found = std::ranges::find(*set.keys, bookmark);
    if (found == set.keys->end()) {
        throw Failure("the row is no longer in the project");
    }
    set.go(found - set.keys->begin());
}

Row RowSet::row() const {
    return state().load();
}

std::optional<std::string> RowSet::value(std::string_view column) const {
    auto& set = state();
    return set.load()[set.index_of(column)];
}

TextRows RowSet::read_texts() const {
    const auto& set = state();
    return platform::read_texts(set.file(), set.source.table, set.source.columns, *set.keys);
}

Row RowSet::all_values(std::string_view column) const {
    const auto& set = state();
    return read_values(set.file(), set.source.table, set.source.columns[set.index_of(column)], *set.keys);
}

void RowSet::add_new() {
    auto& set = state();
    set.go(set.position);
    set.adding = true;
}

bool RowSet::adding() const {
    return state().adding;
}

void RowSet::save(const Row& values) {
    auto& set = state();
    if (values.size() != set.source.columns.size()) {
        throw Failure("a row has a value for each column");
    }
    if (set.adding) {
        set.insert(values);
    } else {
        set.update(values);
    }
}

void RowSet::cancel() {
    auto& set = state();
    set.go(set.position);
}

void RowSet::remove() {
    auto& set = state();
    const auto key = set.current_key();
    if (!delete_row(set.file(), set.source, key, {set.load().front()})) {
        set.fail_on_changed_row(key);
    }
    set.change_keys([&](Keys& own) { own.erase(own.begin() + set.position); });
    set.go(set.position);
}

void RowSet::requery() {
    state().run_query();
}

}  // namespace gullymark::platform
