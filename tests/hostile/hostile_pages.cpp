// Files that are spoiled below the tables, in the bytes of their pages.

#include <cstdint>

#include "hostile/hostile_files.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace gullymark::hostile {
namespace {

using testing_support::read_file;
using testing_support::run_sql;
using testing_support::write_file;

using Spoil = std::function<void(const std::string&)>;

void put(std::string& bytes, std::size_t place, std::uint32_t value, unsigned count = 4) {
    for (unsigned i = 0; i < count; ++i) {
        bytes[place + i] = static_cast<char>((value >> (8 * (count - 1 - i))) & 0xffU);
    }
}

std::uint32_t number_at(const std::string& bytes, std::size_t place) {
    std::uint32_t value = 0;
    for (std::size_t i = place; i < place + 4; ++i) {
        value = (value << 8U) | static_cast<unsigned char>(bytes[i]);
    }
    return value;
}

/// A number in the header of the file.
Spoil header(std::size_t place, std::uint32_t value, unsigned count = 4) {
    return [=](const std::string& path) {
        std::string bytes = read_file(path);
        put(bytes, place, value, count);
        write_file(path, bytes);
    };
}

Spoil content(const std::string& bytes) {
    return [=](const std::string& path) { write_file(path, bytes); };
}

/// INLET begins on this page, whatever is there.
Spoil root_of_inlet(const std::string& page) {
    return [=](const std::string& path) {
        run_sql(path, "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET rootpage = " + page +
                          " WHERE name = 'INLET'");
    };
}

constexpr std::size_t page_size = 4096;
constexpr std::size_t size_in_header = 28;
constexpr unsigned children = 400;
constexpr unsigned levels = 14;

/// A page of a tree: all its children are one page, so that a tree of a few pages has rows without end. `place` is where
/// its head stands, behind the file's header on the first page.
std::string page_of_children(std::uint32_t child, std::string page = std::string(page_size, '\0'),
                             std::size_t place = 0) {
    constexpr std::size_t head = 12;
    constexpr std::size_t cell = 5;
    page[place] = 5;
    put(page, place + 3, children, 2);
    put(page, place + 5, static_cast<std::uint32_t>(page_size - children * cell), 2);
    put(page, place + 8, child);
    for (unsigned i = 0; i < children; ++i) {
        const std::size_t at = page_size - (i + 1) * cell;
        put(page, place + head + 2 * i, static_cast<std::uint32_t>(at), 2);
        put(page, at, child);
        page[at + 4] = 1;
    }
    return page;
}

/// The table, or the schema itself, becomes the top of such a tree; its old page is its leaf.
Spoil endless_tree(const std::string& table) {
    return [=](const std::string& path) {
        const std::uint32_t root =
            table.empty() ? 1
                          : static_cast<std::uint32_t>(std::stoul(run_sql(
                                path, "SELECT rootpage FROM sqlite_schema WHERE name = '" + table + "'")));
        std::string bytes = read_file(path);
        const std::size_t place = (root - 1) * page_size;
        std::string leaf = bytes.substr(place, page_size);
        auto next = static_cast<std::uint32_t>(bytes.size() / page_size);
        if (root == 1) {
            leaf = bytes.substr(page_size, page_size);  // any leaf does
        }
        bytes += leaf;
        ++next;
        for (unsigned level = 0; level < levels; ++level, ++next) {
            bytes += page_of_children(next);
        }
        const std::size_t head = root == 1 ? 100 : 0;
        bytes.replace(place, page_size, page_of_children(next, bytes.substr(place, page_size), head));
        put(bytes, size_in_header, next);
        write_file(path, bytes);
    };
}

/// 3000 rows whose long texts are one and the same chain of pages.
void share_texts(const std::string& path) {
    run_sql(
        path,
        "DELETE FROM INLET; INSERT INTO INLET (INLET_NUMBER, STATION) VALUES ('1', hex(zeroblob(45000)))");
    run_sql(path,
            "WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
            " INSERT INTO INLET (INLET_NUMBER, STATION) SELECT i, hex(zeroblob(3000)) FROM n");
    std::string bytes = read_file(path);
    // Every first page of a chain goes on with the chain of the first row.
    std::uint32_t first = 0;
    for (std::size_t place = page_size; place + page_size <= bytes.size(); place += page_size) {
        const bool is_text = bytes.compare(place + 4, 64, std::string(64, '0')) == 0;
        if (is_text && first == 0) {
            first = number_at(bytes, place);
        } else if (is_text) {
            put(bytes, place, first);
        }
    }
    write_file(path, bytes);
}

void make_free_pages(const std::string& path) {
    run_sql(path, "CREATE TABLE T (A TEXT); INSERT INTO T VALUES (hex(zeroblob(20000))); DROP TABLE T");
}

/// The list of free pages goes on where `next` says, behind its first page.
Spoil free_list(bool to_itself) {
    return [=](const std::string& path) {
        make_free_pages(path);
        std::string bytes = read_file(path);
        const std::uint32_t trunk = number_at(bytes, 32);
        put(bytes, (trunk - 1) * page_size, to_itself ? trunk : 0x7fffffff);
        write_file(path, bytes);
    };
}

}  // namespace

std::vector<HostileFile> page_files() {
    using enum Outcome;
    const std::string malformed = "database disk image is malformed";
    const std::string no_database = "file is not a database";
    const std::string large = "the file is larger than a project can be: more than 256 MB";
    const std::string magic("SQLite format 3\0", 16);
    return {
        {"pages_that_are_not_there", refused, malformed, header(size_in_header, 0xfffffffe)},
        {"pages_too_few", refused, malformed, header(size_in_header, 3)},
        {"file_with_a_hole_of_300_MB", refused, large,
         [](const std::string& path) { std::filesystem::resize_file(path, 300'000'000); }},
        {"file_with_a_hole_of_a_terabyte", refused, large,
         [](const std::string& path) { std::filesystem::resize_file(path, 1'000'000'000'000); }},
        {"file_with_a_hole_of_200_MB", opens, "",
         [](const std::string& path) { std::filesystem::resize_file(path, 200'000'000); }},
        {"free_pages_in_a_circle", damaged, "", free_list(true)},
        {"free_pages_beyond_the_end", damaged, "", free_list(false)},
        {"free_pages_without_number", damaged, "",
         [](const std::string& path) {
             make_free_pages(path);
             header(36, 0x7fffffff)(path);
         }},
        {"free_pages_in_use", damaged, "",
         [](const std::string& path) {
             header(32, 2)(path);
             header(36, 1)(path);
         }},
        {"map_of_pages_that_is_none", damaged, "", header(52, 3)},
        {"format_of_tomorrow", refused, "unsupported file format", header(44, 99)},
        {"texts_of_no_kind", opens, "", header(56, 9)},
        {"writing_of_tomorrow", refused, "attempt to write a readonly database: the file is read-only",
         header(18, 3, 1)},
        {"reading_of_tomorrow", refused, no_database, header(19, 3, 1)},
        {"pages_of_3_bytes", refused, no_database, header(16, 3, 2)},
        {"pages_of_other_size", refused, malformed, header(16, 512, 2)},
        {"pages_with_no_room", refused, malformed, header(20, 255, 1)},
        {"zeros", refused, no_database, content(std::string(1'000'000, '\0'))},
        {"beginning_alone", refused, malformed, content(magic)},
        {"beginning_and_zeros", refused, "this is not a Gullymark project file",
         content(magic + std::string(8192, '\0'))},
        {"one_page_alone", refused, malformed,
         [](const std::string& path) { std::filesystem::resize_file(path, page_size); }},
        {"old_engine", refused, "this is a file of the old database engine, which this program cannot read",
         content(std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(100'000, '\1'))},
        {"inlets_on_the_page_of_the_details", damaged, "",
         root_of_inlet("(SELECT rootpage FROM sqlite_schema WHERE name = 'PROJECT')")},
        {"inlets_on_the_page_of_the_schema", refused, "malformed database schema (INLET)",
         root_of_inlet("1")},
        {"inlets_on_no_page", damaged, "", root_of_inlet("0")},
        {"inlets_beyond_the_end", refused, "malformed database schema (INLET) - invalid rootpage",
         root_of_inlet("99999")},
        {"rows_without_end", damaged, "", endless_tree("INLET")},
        {"details_without_end", damaged, "", endless_tree("PROJECT")},
        {"schema_without_end", refused, "the file cannot be read: it is damaged, or too large for a project",
         endless_tree("")},
        {"rows_that_share_a_text", damaged, "", share_texts},
    };
}

}  // namespace gullymark::hostile
