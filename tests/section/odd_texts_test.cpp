// Whatever stands in a record: a section comes out that can be painted.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "engine/words.h"
#include "section_fixture.h"

namespace gullymark::section {
namespace {

class OddTexts : public SectionTest {};

const std::vector<std::string>& odd_texts() {
    static const std::vector<std::string> texts{"",
                                                " ",
                                                "0",
                                                "-0",
                                                "0.000",
                                                "-1",
                                                "-1e300",
                                                "1e300",
                                                "1e-300",
                                                "1e999",
                                                "nan",
                                                "NaN",
                                                "inf",
                                                "-inf",
                                                "1,000",
                                                "0x10",
                                                ".",
                                                "-",
                                                "+",
                                                "1.5ft",
                                                "999",
                                                "1000",
                                                "1001",
                                                "1e15",
                                                "0.0001",
                                                "4",
                                                "4.0001",
                                                "90",
                                                "91",
                                                "1e-9",
                                                "\n",
                                                "\t8.0",
                                                "8.0\n",
                                                "\xff\xfe",
                                                "%n%s",
                                                "<b>8</b>",
                                                std::string(400, '8'),
                                                std::string(400, ' '),
                                                std::string(399, '0') + "8",
                                                "0." + std::string(398, '0') + "8",
                                                std::string(400, 'x'),
                                                "8." + std::string(398, '0')};
    return texts;
}

constexpr std::array kinds{engine::words::curb_inlet,        engine::words::grate_inlet,
                           engine::words::combination_inlet, engine::words::slotted_inlet,
                           engine::words::ditch_inlet,       std::string_view("Cu")};

constexpr std::array drawn_columns{
    Column::CURB_HEIGHT,  Column::ALLOWABLE_SPREAD, Column::DISCHARGE1,  Column::CARRYOVER2,
    Column::LONGSLOPE,    Column::PAVXSLOPE,        Column::INLETXSLOPE, Column::INLETLENGTH,
    Column::THROATYPE,    Column::SLOTWIDTH,        Column::GRATEWIDTH,  Column::THROATANGLE,
    Column::HEIGHTOFCURB, Column::RSCOPERATIO,      Column::GUTWIDTH,    Column::GUTXSLOPE,
    Column::LOCDEPWIDTH,  Column::OPENSPREAD,       Column::CURBDEPTH,   Column::GUTTERSPREAD,
    Column::DEPTHATINLET, Column::INLETPERF,        Column::MANNINGS};

constexpr std::array locations{engine::words::continuous_grade, engine::words::sump};

TEST_F(OddTexts, InOneColumnAtATimeLeaveASectionOfEveryKind) {
    for (const auto kind : kinds) {
        for (const auto location : locations) {
            for (const Column column : drawn_columns) {
                for (const std::string& text : odd_texts()) {
                    auto record =
                        inlet_in_sump(kind, {{Column::INLET_LOCATION, location}, {Column::CURBDEPTH, "3.0"}});
                    record.load(column, text);
                    const testing::ScopedTrace trace(__FILE__, __LINE__,
                                                     std::string(kind) + ' ' + std::string(location) + ' ' +
                                                         std::string(engine::column_name(column)) + "=" +
                                                         text);
                    expect_drawable(draw_section(record, Water::solved));
                }
            }
        }
    }
}

TEST_F(OddTexts, InAllColumnsAtOnceLeaveASection) {
    std::mt19937 random(20260731);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts on every run
    const auto pick = [&random](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    for (int round = 0; round < 2000; ++round) {
        engine::UnitSystem = round % 2 == 0 ? "ENGLISH" : "METRIC";
        engine::InletRecord record;
        for (const Column column : engine::all_columns) {
            record.load(column, odd_texts()[pick(odd_texts().size())]);
        }
        record.load(Column::INLET_TYPE, std::string(kinds.at(pick(kinds.size()))));
        record.load(Column::INLET_LOCATION, std::string(locations.at(pick(locations.size()))));
        expect_drawable(draw_section(record, Water::solved));
    }
}

TEST_F(OddTexts, AreNamedInTheNotes) {
    const Section section = draw_section(
        curb_on_grade({{Column::OPENSPREAD, "1e300"}, {Column::GUTWIDTH, "two"}}), Water::solved);
    EXPECT_TRUE(has_note(section, "cannot be drawn: spread, gutter width"));
}

TEST_F(OddTexts, OfANumberAreShownShort) {
    const auto record = curb_on_grade({{Column::OPENSPREAD, "0008." + std::string(390, '0') + "1"}});
    const View view = draw_section(record, Water::solved).views.front();
    EXPECT_NE(find_dimension(view, "spread 8 ft"), nullptr);
}

TEST_F(OddTexts, LeaveAnEmptyRecordAsAPlainRoad) {
    const Section section = draw_section({}, Water::none);
    expect_drawable(section);
    EXPECT_NE(find_shape(section.views.front(), Part::ground), nullptr);
}

}  // namespace
}  // namespace gullymark::section
