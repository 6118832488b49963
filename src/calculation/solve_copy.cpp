#include "calculation/solve_copy.h"

#include <functional>
#include <utility>

#include "engine/solve.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"

namespace gullymark::calculation {
namespace {

/// Puts back what a solve changes, whatever ends it. A solver's own quantities are all set anew by its next solve: this one
/// has read the discharge before, or the command has refused it.
class Kept {
  public:
    Kept() = default;
    ~Kept() {
        engine::open_inlet = std::move(inlet_);
        engine::DataSolved = solved_;
        engine::UnitSystem = std::move(units_);
        engine::unit_constants = std::move(constants_);
        engine::onlooker = onlooker_;
        platform::outside.show_box = std::move(show_box_);
    }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;
    Kept(Kept&&) = delete;
    Kept& operator=(Kept&&) = delete;

  private:
    engine::InletRecord inlet_ = std::move(engine::open_inlet);
    bool solved_ = engine::DataSolved;
    std::string units_ = engine::UnitSystem;
    engine::UnitConstants constants_ = engine::unit_constants;
    engine::Onlooker onlooker_ = engine::onlooker;
    std::function<platform::Answer(const platform::Box&)> show_box_ = platform::outside.show_box;
};

SolvedCopy solve(const engine::InletRecord& inlet, std::string units, std::string number_format,
                 bool is_traced) {
    SolvedCopy copy{.inlet = inlet, .number_format = std::move(number_format)};  // it may be the open one
    const Kept kept;
    engine::open_inlet = std::move(copy.inlet);
    engine::open_inlet.on_first_change = nullptr;
    engine::UnitSystem = std::move(units);
    engine::set_unit_defaults();
    engine::unit_constants.numberFormat = copy.number_format;
    platform::outside.show_box = [&copy](const platform::Box& box) {
        copy.boxes.push_back({.text = box.text, .behind = copy.trace.size()});
        return platform::Answer::ok;
    };
    engine::onlooker =
        is_traced ? engine::Onlooker{.trace = &copy.trace, .roundings = &copy.roundings} : engine::Onlooker{};
    copy.solved = engine::check_and_solve();
    copy.inlet = std::move(engine::open_inlet);
    return copy;
}

}  // namespace

SolvedCopy solve_copy(const engine::InletRecord& inlet, std::string units, std::string number_format) {
    return solve(inlet, std::move(units), std::move(number_format), true);
}

SolvedCopy solve_untraced(const engine::InletRecord& inlet, std::string units, std::string number_format) {
    return solve(inlet, std::move(units), std::move(number_format), false);
}

}  // namespace gullymark::calculation
