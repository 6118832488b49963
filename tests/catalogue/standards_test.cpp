#include "catalogue/standards.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace gullymark::catalogue {
namespace {

using Fields = std::vector<std::string>;

struct Transcription {
    std::vector<Fields> headings;
    std::vector<Fields> rows;
};

/// tests/cases/standards.tsv: table, "heading" or "row", then the fields in the order of the columns.
std::map<std::string, Transcription> read_transcription() {
    std::map<std::string, Transcription> result;
    std::ifstream file(GULLYMARK_TEST_DIR "/cases/standards.tsv");
    for (std::string line; std::getline(file, line);) {
        Fields fields;
        std::size_t start = 0;
        for (std::size_t tab = 0; tab != std::string::npos; start = tab + 1) {
            tab = line.find('\t', start);
            fields.push_back(line.substr(start, tab == std::string::npos ? tab : tab - start));
        }
        Transcription& transcription = result[fields.at(0)];
        (fields.at(1) == "heading" ? transcription.headings : transcription.rows)
            .emplace_back(fields.begin() + 2, fields.end());
    }
    return result;
}

Fields headings_of(const Table& table) {
    Fields fields;
    for (const TableColumn& column : table.columns) {
        std::string text(column.heading);
        if (!column.unit.empty()) {
            text.append(" (").append(column.unit).append(")");
        }
        fields.push_back(text);
    }
    return fields;
}

std::vector<Fields> rows_of(const Table& table) {
    std::vector<Fields> rows;
    for (const Row& row : table.rows) {
        if (!is_separator(row)) {
            rows.emplace_back(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(table.columns.size()));
        }
    }
    return rows;
}

TEST(Standards, EveryHeadingAndRowAgreesWithTheTranscription) {
    const auto transcription = read_transcription();
    EXPECT_EQ(transcription.size(), 8U);
    ASSERT_EQ(tables().size(), 8U);
    for (const Table& table : tables()) {
        SCOPED_TRACE(table.name);
        const auto found = transcription.find(std::string(table.name));
        ASSERT_NE(found, transcription.end());
        EXPECT_EQ(std::vector<Fields>{headings_of(table)}, found->second.headings);
        EXPECT_EQ(rows_of(table), found->second.rows);
    }
}

TEST(Standards, NoRowIsWiderThanItsTable) {
    for (const Table& table : tables()) {
        for (const Row& row : table.rows) {
            for (std::size_t i = is_separator(row) ? 0 : table.columns.size(); i < row.size(); ++i) {
                EXPECT_TRUE(row.at(i).empty()) << table.name << ": " << row_text(table, row);
            }
        }
    }
}

TEST(Standards, ASeparatorStandsBetweenTwoStandardsAndNowhereElse) {
    for (const Table& table : tables()) {
        SCOPED_TRACE(table.name);
        ASSERT_FALSE(is_separator(table.rows.front()));
        ASSERT_FALSE(is_separator(table.rows.back()));
        std::set<std::string_view> seen;
        for (std::size_t i = 0; i < table.rows.size(); ++i) {
            const std::string_view name = table.rows[i].front();
            if (is_separator(table.rows[i])) {
                EXPECT_NE(table.rows[i - 1].front(), table.rows[i + 1].front());
            } else if (i == 0 || is_separator(table.rows[i - 1])) {
                EXPECT_TRUE(seen.insert(name).second) << name;
            } else {
                EXPECT_EQ(table.rows[i - 1].front(), name);
            }
        }
    }
}

TEST(Standards, ARowsTextIsItsFieldsBetweenTabs) {
    const Table& table = *table_for("CONTINUOUS GRADE", "Curb Inlet");
    EXPECT_EQ(row_text(table, table.rows[1]), "S1 ONE WING\t10\t10.25\t9.23");
    EXPECT_EQ(row_text(table, separator), "");
}

struct Caption {
    std::string_view location;
    std::string_view type;
    std::string_view name;
    std::string_view title;
    std::array<std::string_view, 2> heading;
    std::string_view select_command;
};

// clang-format off
constexpr std::array<Caption, 8> captions = {{
    {"CONTINUOUS GRADE", "Curb Inlet", "frmCIG",
     "ALDOT CURB INLET TYPES", {"ALDOT STANDARD CURB INLETS", "ON GRADE"}, "cigselect"},
    {"SUMP", "Curb Inlet", "frmCIS",
     "ALDOT CURB INLET TYPES", {"ALDOT STANDARD CURB INLETS", "IN SUMP"}, "cisselect"},
    {"CONTINUOUS GRADE", "Grate Inlet", "frmGIG",
     "ALDOT GRATE INLET TYPES", {"ALDOT STANDARD GRATE INLETS", "ON GRADE"}, "gigselect"},
    {"SUMP", "Grate Inlet", "frmGIS",
     "ALDOT GRATE INLET TYPES", {"ALDOT STANDARD GRATE INLETS", "IN SUMP"}, "gisselect"},
    {"CONTINUOUS GRADE", "Combination Curb and Grate Inlet", "frmCCGG",
     "ALDOT COMB. CURB & GRATE INLET TYPES", {"ALDOT STD. COMB. CURB & GRATE INLETS", "ON GRADE"}, "ccggselect"},
    {"SUMP", "Combination Curb and Grate Inlet", "frmCCGS",
     "ALDOT COMB. CURB & GRATE INLET TYPES", {"ALDOT STD. COMB. CURB & GRATE INLETS", "IN SUMP"}, "ccgsselect"},
    {"CONTINUOUS GRADE", "Grate Inlet in a Ditch", "frmDitchInletCG",
     "ALDOT STANDARD DITCH INLETS ON GRADE", {"ALDOT STANDARD DITCH INLETS ON GRADE"}, "diselect"},
    {"SUMP", "Grate Inlet in a Ditch", "frmDitchInletSU",
     "ALDOT STANDARD DITCH INLETS IN SUMP", {"ALDOT STANDARD DITCH INLETS IN SUMP"}, "diselect"},
}};
// clang-format on

TEST(TableFor, EachLocationAndTypeWithStandardsHasItsTableWithItsTexts) {
    for (const Caption& caption : captions) {
        const Table* table = table_for(caption.location, caption.type);
        ASSERT_NE(table, nullptr) << caption.name;
        EXPECT_EQ(table->name, caption.name);
        EXPECT_EQ(table->title, caption.title);
        EXPECT_EQ(table->heading, caption.heading);
        EXPECT_EQ(table->select_command, caption.select_command);
    }
}

TEST(TableFor, ASlottedInletHasNoTable) {
    EXPECT_EQ(table_for("CONTINUOUS GRADE", "Slotted Inlet"), nullptr);
    EXPECT_EQ(table_for("SUMP", "Slotted Inlet"), nullptr);
}

TEST(TableFor, OnlyTheExactTextsFindATable) {
    EXPECT_EQ(table_for("", ""), nullptr);
    EXPECT_EQ(table_for("SUMP", "Curb inlet"), nullptr);
    EXPECT_EQ(table_for("SUMP", "Curb Inlet "), nullptr);
    EXPECT_EQ(table_for("Sump", "Curb Inlet"), nullptr);
    EXPECT_EQ(table_for("SUMP", "Cu"), nullptr);
}

}  // namespace
}  // namespace gullymark::catalogue
