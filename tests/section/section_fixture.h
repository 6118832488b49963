#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "engine/inlet_record.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"
#include "section/section.h"

namespace gullymark::section {

using engine::Column;
using Texts = std::initializer_list<std::pair<Column, std::string_view>>;

/// A record with these texts, as it is loaded from a file.
inline engine::InletRecord record_of(Texts texts, Texts others = {}) {
    engine::InletRecord record;
    for (const Texts& list : {texts, others}) {
        for (const auto& [column, text] : list) {
            record.load(column, std::string(text));
        }
    }
    return record;
}

/// A curb inlet on a grade in feet, with the water of its last Solve; `others` on top of it.
inline engine::InletRecord curb_on_grade(Texts others = {}) {
    return record_of({{Column::INLET_TYPE, "Curb Inlet"},
                      {Column::INLET_LOCATION, "CONTINUOUS GRADE"},
                      {Column::CURB_HEIGHT, "6.0"},
                      {Column::ALLOWABLE_SPREAD, "8.0"},
                      {Column::LONGSLOPE, "0.0100"},
                      {Column::PAVXSLOPE, "0.0208"},
                      {Column::GUTWIDTH, "2.00"},
                      {Column::GUTXSLOPE, "0.0833"},
                      {Column::INLETXSLOPE, "0.3333"},
                      {Column::LOCDEPWIDTH, "2.00"},
                      {Column::INLETLENGTH, "10.25"},
                      {Column::OPENSPREAD, "10.209"},
                      {Column::CURBDEPTH, "4.048"}},
                     others);
}

/// An inlet of a type in a sump, with water.
inline engine::InletRecord inlet_in_sump(std::string_view type, Texts others = {}) {
    auto record = curb_on_grade({{Column::INLET_TYPE, type},
                                 {Column::INLET_LOCATION, "SUMP"},
                                 {Column::MANNINGS, "0.016"},
                                 {Column::HEIGHTOFCURB, "6.00"},
                                 {Column::THROATYPE, "Horizontal"},
                                 {Column::SLOTWIDTH, "21.00"},
                                 {Column::GRATEWIDTH, "1.833"},
                                 {Column::DISCHARGE1, "2.200"},
                                 {Column::CARRYOVER1, "0.0"},
                                 {Column::DISCHARGE2, "1.800"},
                                 {Column::CARRYOVER2, "0.0"},
                                 {Column::CURBDEPTH, ""},
                                 {Column::GUTTERSPREAD, "8.320"},
                                 {Column::DEPTHATINLET, "9.868"}});
    for (const auto& [column, text] : others) {
        record.load(column, std::string(text));
    }
    return record;
}

/// A project in these units, whose boxes would be a failure.
class SectionTest : public testing::Test {
  protected:
    void SetUp() override {
        engine::UnitSystem = "ENGLISH";
        engine::unit_constants = {};
        platform::outside = {};
        platform::outside.show_box = [](const platform::Box& box) {
            ADD_FAILURE() << "a drawing shows a box: " << box.text;
            return platform::Answer::ok;
        };
    }
    void TearDown() override { platform::outside = {}; }
};

inline const Shape* find_shape(const View& view, Part part) {
    const auto found = std::ranges::find(view.shapes, part, &Shape::part);
    return found == view.shapes.end() ? nullptr : &*found;
}

/// The shape of a part; without one the test ends.
inline const Shape& shape_of(const View& view, Part part) {
    const Shape* found = find_shape(view, part);
    return found != nullptr ? *found : throw std::out_of_range("no such shape");
}

inline std::ptrdiff_t count_shapes(const View& view, Part part) {
    return std::ranges::count(view.shapes, part, &Shape::part);
}

inline double farthest_right(const Shape& shape) {
    return std::ranges::max(shape.points, {}, &Point::x).x;
}

inline double farthest_left(const Shape& shape) {
    return std::ranges::min(shape.points, {}, &Point::x).x;
}

/// The dimension whose text begins with `symbol`.
inline const Dimension* find_dimension(const View& view, std::string_view symbol) {
    const auto found = std::ranges::find_if(
        view.dimensions, [&](const Dimension& one) { return one.text.starts_with(symbol); });
    return found == view.dimensions.end() ? nullptr : &*found;
}

/// The same; without one the test ends.
inline const Dimension& dimension_of(const View& view, std::string_view symbol) {
    const Dimension* found = find_dimension(view, symbol);
    return found != nullptr ? *found : throw std::out_of_range(std::string(symbol));
}

inline bool has_note(const Section& section, std::string_view note) {
    return std::ranges::find(section.notes, note) != section.notes.end();
}

/// Every point is finite and within the frame of its view, and every text is short.
inline void expect_drawable(const Section& section) {
    ASSERT_FALSE(section.views.empty());
    EXPECT_TRUE(std::isfinite(section.exaggeration) && section.exaggeration >= 1);
    EXPECT_LT(section.sentence.size(), 400U);
    for (const View& view : section.views) {
        EXPECT_LT(view.low.x, view.high.x);
        EXPECT_LT(view.low.y, view.high.y);
        const auto expect_within = [&view](const Point& point) {
            EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y)) << point.x << ' ' << point.y;
            EXPECT_TRUE(point.x >= view.low.x && point.x <= view.high.x) << point.x;
            EXPECT_TRUE(point.y >= view.low.y && point.y <= view.high.y) << point.y;
            EXPECT_LT(std::abs(point.x) + std::abs(point.y), 1e6);
        };
        for (const Shape& shape : view.shapes) {
            std::ranges::for_each(shape.points, expect_within);
        }
        for (const Dimension& dimension : view.dimensions) {
            expect_within(dimension.from);
            expect_within(dimension.to);
            EXPECT_LT(dimension.text.size(), 60U) << dimension.text;
        }
        for (const Mark& mark : view.marks) {
            expect_within(mark.at);
            EXPECT_LT(mark.text.size(), 90U) << mark.text;
        }
    }
}

}  // namespace gullymark::section
