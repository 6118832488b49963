#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/inlet_record.h"
#include "engine/solve.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"

namespace gullymark::engine {

inline void PrintTo(Real number, std::ostream* out) {
    *out << number.number();
}

/// What a solver says that refuses its input; some say it as a warning.
inline const platform::Box refusal_box{.text = "No results computed.  Invalid input."};
inline const platform::Box refusal_warning{.kind = platform::BoxKind::warning, .text = refusal_box.text};

/// A fresh engine in ENGLISH units whose boxes are kept in `boxes`.
class EngineTest : public testing::Test {
  protected:
    void SetUp() override {
        UnitSystem = "ENGLISH";
        unit_constants = {};
        set_unit_defaults();
        open_inlet = {};
        onlooker = {};
        DataSolved = false;
        platform::outside = {};
        platform::outside.show_box = [this](const platform::Box& box) {
            boxes.push_back(box);
            return platform::Answer::ok;
        };
    }
    void TearDown() override {
        platform::outside = {};
        onlooker = {};
    }

    static void use_units(std::string_view units) {
        UnitSystem = units;
        set_unit_defaults();
    }

    static void fill(std::initializer_list<std::pair<Column, std::string_view>> values) {
        for (const auto& [column, text] : values) {
            open_inlet.load(column, std::string(text));
        }
    }

    /// Solves the open inlet as it stands; the text of a column then.
    static const std::string& solved(Column column) {
        check_and_solve();
        return open_inlet.text(column);
    }

    /// Solves the open inlet as it stands; the value of a quantity of the solver's sheet at its end, with all
    /// digits.
    static double solved(std::string_view symbol) {
        std::vector<TraceLine> trace;
        onlooker.trace = &trace;
        check_and_solve();
        onlooker.trace = nullptr;
        double value = 0.0;
        for (const auto& line : trace) {
            value = line.symbol == symbol ? line.number : value;
        }
        return value;
    }

    static const std::string& text(Column column) { return open_inlet.text(column); }

    std::vector<platform::Box> boxes;
};

}  // namespace gullymark::engine
