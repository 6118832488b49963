#include "roads/road_file.h"

#include <filesystem>
#include <stdexcept>

#include "support/project_file.h"

namespace gullymark::roads {
namespace {

std::string quoted(const std::string& text) {
    std::string literal = "'";
    for (const char character : text) {
        literal.append(character == '\'' ? 2U : 1U, character);
    }
    return literal + "'";
}

}  // namespace

void RoadFile::make(const std::string& name, const std::string& units) {
    path_ = path(name);
    testing_support::make_project_file(path_);
    static_cast<void>(
        run("INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, COUNTY, STATE, DESIGNER, UNITS, PRODUCT_NAME, "
            "MAJOR_RELEASE, RELEASE_DATE) VALUES ('P-1', 'Mill Road', 'Mobile', 'AL', 'A. Smith', " +
            quoted(units) + ", 'GULLYMARKAL', '1', 'MAY 2010')"));
}

void RoadFile::copy(const std::string& name) {
    path_ = path(name);
    std::filesystem::copy_file(std::string(GULLYMARK_TEST_DIR) + "/files/" + name, path_);
}

void RoadFile::put_inlet(const std::vector<std::string>& number_columns_values) const {
    const auto& words = number_columns_values;
    std::string columns = "INLET_NUMBER";
    std::string values = quoted(words.at(0));
    for (std::size_t i = 1; i < words.size(); i += 2) {
        columns += ", " + words[i];
        values += ", " + quoted(words.at(i + 1));
    }
    static_cast<void>(run("INSERT INTO INLET (" + columns + ") VALUES (" + values + ")"));
}

std::string RoadFile::run(const std::string& statement) const {
    return testing_support::run_sql(path_, statement);
}

std::string RoadFile::saved(const std::string& number, const std::string& columns) const {
    return run("SELECT " + columns + " FROM INLET WHERE INLET_NUMBER = " + quoted(number));
}

void RoadFile::hold(bool for_reading_too) {
    holder_.reset();
    sqlite3* file = nullptr;
    const int opened = sqlite3_open(path_.c_str(), &file);
    holder_ = {file, sqlite3_close};
    if (opened != SQLITE_OK || sqlite3_exec(file, for_reading_too ? "BEGIN EXCLUSIVE" : "BEGIN IMMEDIATE",
                                            nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(file));
    }
}

}  // namespace gullymark::roads
