#pragma once

#include <string>
#include <utility>

#include "engine/unit_constants.h"

namespace gullymark::calculation {

/// The units of a project tell the captions of what is written, also where another project is open. At its end units and
/// constants are as they were.
class UnitsInForce {
  public:
    explicit UnitsInForce(const std::string& units) { engine::UnitSystem = units; }
    ~UnitsInForce() {
        engine::UnitSystem = std::move(before_);
        engine::unit_constants = std::move(constants_);
    }
    UnitsInForce(const UnitsInForce&) = delete;
    UnitsInForce& operator=(const UnitsInForce&) = delete;
    UnitsInForce(UnitsInForce&&) = delete;
    UnitsInForce& operator=(UnitsInForce&&) = delete;

  private:
    std::string before_ = engine::UnitSystem;
    engine::UnitConstants constants_ = engine::unit_constants;
};

}  // namespace gullymark::calculation
