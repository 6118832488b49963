#include "review/summary.h"

#include <algorithm>

#include "platform/characters.h"
#include "review/inlet_list.h"
#include "review/texts.h"

namespace gullymark::review {
namespace {

std::string number_of_inlet(const Project& project, std::size_t inlet) {
    constexpr std::size_t most_characters = 30;
    const std::string number = platform::first_characters(
        platform::on_one_line(project.inlets[inlet].text(engine::Column::INLET_NUMBER)), most_characters);
    return number.empty() ? "(inlet " + std::to_string(inlet + 1) + " of the file, without a number)"
                          : number;
}

}  // namespace

std::string balance_line(const Balance& balance) {
    return "Runoff in " + told_flow(balance.in) + ", intercepted " + told_flow(balance.intercepted) +
           ", bypass out " + told_flow(balance.out) +
           (balance.closes() ? ": the balance closes" : ", unexplained " + told_flow(balance.unexplained()));
}

std::string to_do_line(const Reviewed& reviewed, std::size_t most) {
    const auto& to_do = reviewed.fresh.to_do;
    if (to_do.empty()) {
        return reviewed.project.inlets.empty() ? "No inlets" : "Every inlet is up to date";
    }
    std::string line = "Open, solve and save, in this order: ";
    const std::size_t told = std::min(most, to_do.size());
    for (std::size_t i = 0; i < told; ++i) {
        line += (i == 0 ? "" : ", ") + number_of_inlet(reviewed.project, to_do[i]);
    }
    return told < to_do.size() ? line + " and " + std::to_string(to_do.size() - told) + " more" : line;
}

std::string numbers_line(const Reviewed& reviewed, std::size_t inlet, bool fresh) {
    const auto with_unit = [&](ListColumn column) {
        const std::string text = list_cell(reviewed, inlet, column);
        return text.empty() ? "blank" : text + " " + heading_of(column).unit;
    };
    return "total " + with_unit(fresh ? ListColumn::fresh_total : ListColumn::total) + ", spread " +
           with_unit(fresh ? ListColumn::fresh_spread : ListColumn::spread) + ", bypass " +
           with_unit(fresh ? ListColumn::fresh_bypass : ListColumn::bypass);
}

std::string obstacle_line(const Reviewed& reviewed) {
    const auto& obstacles = reviewed.fresh.obstacles;
    if (obstacles.empty()) {
        return "";
    }
    constexpr std::size_t most_characters = 300;
    const std::string first = platform::first_characters(obstacles.front().text, most_characters);
    const std::size_t more = obstacles.size() - 1;
    return "What cannot be brought up to date: inlet " +
           number_of_inlet(reviewed.project, obstacles.front().index) + ". " + first +
           (more == 0 ? "" : " And " + std::to_string(more) + " more of the kind.");
}

}  // namespace gullymark::review
