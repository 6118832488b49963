#include "review/trials.h"

#include <utility>

#include "engine/results.h"
#include "engine/solve.h"

namespace gullymark::review {

Trials::Trials(const std::string& units)
    : inlet_(engine::open_inlet),
      solved_(engine::DataSolved),
      units_(engine::UnitSystem),
      constants_(engine::unit_constants),
      onlooker_(engine::onlooker),
      show_box_(platform::outside.show_box) {
    engine::open_inlet.on_first_change = nullptr;
    engine::onlooker = {};
    engine::UnitSystem = units;
    engine::set_unit_defaults();
    platform::outside.show_box = [this](const platform::Box& box) {
        told_ += (told_.empty() ? "" : " ") + box.text;
        return platform::Answer::ok;
    };
}

Trials::~Trials() {
    engine::open_inlet = std::move(inlet_);
    engine::DataSolved = solved_;
    engine::UnitSystem = std::move(units_);
    engine::unit_constants = std::move(constants_);
    engine::onlooker = onlooker_;
    platform::outside.show_box = std::move(show_box_);
}

void Trials::open(const engine::InletRecord& inlet) {
    engine::open_inlet = inlet;
    engine::open_inlet.on_first_change = nullptr;
}

bool Trials::solve() {
    told_.clear();
    if (engine::check_and_solve()) {
        return true;
    }
    engine::clear_results();
    return false;
}

}  // namespace gullymark::review
