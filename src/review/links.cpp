#include "review/links.h"

#include <algorithm>
#include <utility>

#include "review/sides.h"

namespace gullymark::review {
namespace {

using Index = Links::Index;

const std::vector<Index> nowhere;

/// Walks from inlet to previous inlet and gives out what feeds each other (strongly connected components, by Tarjan): an
/// inlet is given out when the walk has come back to it, behind all that lie above. The way is kept here and not on the
/// stack of calls: a chain may have any length.
class UpwardWalk {
  public:
    UpwardWalk(const Project& project, const Links& links)
        : project_(project), links_(links), places_(project.inlets.size()) {}

    std::vector<Link> take_all() {
        for (Index start = 0; start < places_.size(); ++start) {
            if (places_[start].visit == 0) {
                enter(start);
                walk();
            }
        }
        return std::move(links_found_);
    }

  private:
    struct Place {
        std::size_t visit = 0;    // counted from 1; 0 before it
        std::size_t highest = 0;  // the first visit that it leads back to
        bool given_out = false;
        bool feeds_itself = false;
    };
    struct Step {
        Index index = 0;
        std::size_t next_side = 0;
    };

    void enter(Index index) {
        ++visits_;
        places_[index].visit = visits_;
        places_[index].highest = visits_;
        way_.push_back({.index = index});
        waiting_.push_back(index);
    }

    void walk() {
        while (!way_.empty()) {
            Step& step = way_.back();
            const auto sides = sides_of(project_.inlets[step.index]);
            if (step.next_side == sides.size()) {
                leave(step.index);
                continue;
            }
            const auto& previous = project_.inlets[step.index].text(sides[step.next_side++].preinlet);
            if (const auto source = links_.source(previous)) {
                look_at(step.index, *source);
            }
        }
    }

    void look_at(Index from, Index to) {
        places_[from].feeds_itself = places_[from].feeds_itself || from == to;
        if (places_[to].visit == 0) {
            enter(to);
        } else if (!places_[to].given_out) {
            places_[from].highest = std::min(places_[from].highest, places_[to].visit);
        }
    }

    void leave(Index index) {
        way_.pop_back();
        const Place& place = places_[index];
        if (!way_.empty()) {
            auto& below = places_[way_.back().index];
            below.highest = std::min(below.highest, place.highest);
        }
        if (place.highest == place.visit) {
            give_out_down_to(index);
        }
    }

    void give_out_down_to(Index index) {
        Link link;
        Index last = 0;
        do {
            last = waiting_.back();
            waiting_.pop_back();
            places_[last].given_out = true;
            link.inlets.push_back(last);
        } while (last != index);
        std::ranges::sort(link.inlets);
        link.in_loop = link.inlets.size() > 1 || places_[index].feeds_itself;
        links_found_.push_back(std::move(link));
    }

    const Project& project_;
    const Links& links_;
    std::vector<Place> places_;
    std::vector<Step> way_;
    std::vector<Index> waiting_;
    std::size_t visits_ = 0;
    std::vector<Link> links_found_;
};

}  // namespace

Links::Links(const Project& project) : project_(project) {
    for (Index index = 0; index < project.inlets.size(); ++index) {
        const auto& record = project.inlets[index];
        by_number_[record.text(engine::Column::INLET_NUMBER)].push_back(index);
        for (const auto& side : sides_of(record)) {
            if (const auto& previous = record.text(side.preinlet); !previous.empty()) {
                takers_[previous].push_back(index);
            }
        }
    }
}

const std::vector<Index>& Links::with_number(const std::string& number) const {
    const auto found = by_number_.find(number);
    return found == by_number_.end() ? nowhere : found->second;
}

const std::vector<Index>& Links::takers_of(const std::string& number) const {
    const auto found = takers_.find(number);
    return found == takers_.end() ? nowhere : found->second;
}

std::optional<Index> Links::source(const std::string& number) const {
    const auto& found = with_number(number);
    return number.empty() || found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<Link> Links::in_order() const {
    return UpwardWalk(project_, *this).take_all();
}

}  // namespace gullymark::review
