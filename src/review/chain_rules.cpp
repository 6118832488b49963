#include "review/chain_rules.h"

#include <algorithm>
#include <iterator>

#include "engine/inlet_flow.h"

namespace gullymark::review {

using engine::Column;
using Index = Survey::Index;

namespace {

void judge_carryover(Survey& survey, Index index, const Side& side) {
    const auto& record = survey.inlet(index);
    const auto& previous = record.text(side.preinlet);
    const std::string carryover(engine::carryover_from(record.text(side.carryover)));
    const std::string stored =
        "Carryover" + std::string(side.behind) + " is stored as " + told(record, side.carryover);
    const char* const advice = "Open the inlet, go through its previous inlet, solve and save.";
    if (previous.empty()) {
        if (!is_same_number(carryover, "0")) {
            survey.report(rules::carryover_differs, index, stored + ", but no previous inlet is named.",
                          advice);
        }
        return;
    }
    const auto& found = survey.links().with_number(previous);
    if (found.empty()) {
        survey.report(rules::previous_missing, index,
                      "Previous inlet" + std::string(side.behind) + " is " + told(record, side.preinlet) +
                          ", which is not in the project.",
                      "Open the inlet and pick its previous inlet from the list.");
        return;
    }
    const auto& source = survey.inlet(found.front());
    if (!is_same_number(carryover, engine::carryover_from(source.text(Column::QCARRY)))) {
        survey.report(rules::carryover_differs, index,
                      stored + ", but the bypass of inlet " + told(source, Column::INLET_NUMBER) + " is " +
                          told(source, Column::QCARRY) + ".",
                      advice);
    }
}

void judge_bypass(Survey& survey, Index index) {
    const auto& record = survey.inlet(index);
    const auto& takers = survey.links().takers_of(record.text(Column::INLET_NUMBER));
    if (takers.size() > 1 && survey.links().with_number(record.text(Column::INLET_NUMBER)).front() == index) {
        survey.report(rules::previous_named_twice, index,
                      "The inlet is the previous inlet of " + listed(survey.project(), takers) +
                          ": its bypass of " + told(record, Column::QCARRY) + " counts more than once.",
                      "Keep it as previous inlet of one side.");
    }
    const auto bypass = number_of(record.text(Column::QCARRY));
    if (takers.empty() && bypass && *bypass > number_of(survey.limits().bypass).value_or(0.0)) {
        survey.report(rules::bypass_untaken, index,
                      "Bypass of " + told(record, Column::QCARRY) + " is taken by no inlet.",
                      "Name the inlet as previous inlet of the next one, or make sure where the water goes.");
    }
}

/// Walks up from inlet to previous inlet, each inlet once, and keeps the way.
class LoopSearch {
  public:
    explicit LoopSearch(Survey& survey) : survey_(survey), states_(survey.count(), State::unseen) {}

    void search() {
        for (Index start = 0; start < survey_.count(); ++start) {
            if (states_[start] == State::unseen) {
                enter(start);
                walk();
            }
        }
    }

  private:
    enum class State : unsigned char { unseen, on_the_way, seen };
    struct Step {
        Index index = 0;
        std::size_t next_side = 0;
    };

    void enter(Index index) {
        states_[index] = State::on_the_way;
        way_.push_back({.index = index});
    }

    void walk() {
        while (!way_.empty()) {
            Step& step = way_.back();
            const auto sides = sides_of(survey_.inlet(step.index));
            if (step.next_side == sides.size()) {
                states_[step.index] = State::seen;
                way_.pop_back();
                continue;
            }
            const auto& previous = survey_.inlet(step.index).text(sides[step.next_side++].preinlet);
            if (const auto& found = survey_.links().with_number(previous);
                !previous.empty() && !found.empty()) {
                go_to(found.front());
            }
        }
    }

    void go_to(Index index) {
        if (states_[index] == State::unseen) {
            enter(index);
        } else if (states_[index] == State::on_the_way) {
            tell_loop(index);
        }
    }

    void tell_loop(Index back_at) {
        const auto first = std::find_if(way_.begin(), way_.end(),
                                        [back_at](const Step& step) { return step.index == back_at; });
        std::vector<Index> loop;
        std::transform(first, way_.end(), std::back_inserter(loop),
                       [](const Step& step) { return step.index; });
        std::reverse(loop.begin(), loop.end());  // the way leads up, the water down
        std::rotate(loop.begin(), std::min_element(loop.begin(), loop.end()), loop.end());
        survey_.report(rules::previous_in_loop, loop.front(),
                       loop.size() == 1
                           ? "The inlet is its own previous inlet."
                           : "Inlets " + listed(survey_.project(), loop) + " feed each other in a loop.",
                       "Take the previous inlet away where the road is highest.");
    }

    Survey& survey_;
    std::vector<State> states_;
    std::vector<Step> way_;
};

}  // namespace

void judge_links(Survey& survey, Index index) {
    for (const auto& side : sides_of(survey.inlet(index))) {
        judge_carryover(survey, index, side);
    }
    judge_bypass(survey, index);
}

void judge_loops(Survey& survey) {
    LoopSearch(survey).search();
}

}  // namespace gullymark::review
