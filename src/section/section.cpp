#include "section/section.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "engine/unit_constants.h"
#include "engine/units.h"
#include "platform/number_text.h"
#include "section/approaches.h"
#include "section/ditch.h"
#include "section/gutter.h"
#include "section/inputs.h"
#include "section/measures.h"

namespace gullymark::section {
namespace {

using engine::Column;
using engine::Unit;

constexpr auto results = [] {
    std::array<Column, engine::column_count - static_cast<std::size_t>(Column::OPENSPREAD)> columns{};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns.at(i) = static_cast<Column>(static_cast<std::size_t>(Column::OPENSPREAD) + i);
    }
    return columns;
}();

bool has_results(const engine::InletRecord& record) {
    return std::ranges::any_of(results, [&record](Column column) { return !record.text(column).empty(); });
}

bool is_ditch(const engine::InletRecord& record) {
    return inlet_of(record) == Inlet::ditch;
}

/// "Section at the inlet, L 10.25 ft, Weir Flow".
std::string title_of(const engine::InletRecord& record, Water water) {
    std::string title = is_ditch(record) && in_sump(record) ? "Profile along the ditch"
                        : is_ditch(record)                  ? "Section of the ditch"
                                                            : "Section at the inlet";
    if (const auto length = measure_in(record, Column::INLETLENGTH);
        length && !(is_ditch(record) && in_sump(record))) {
        title += ", L " + length->text;
    }
    if (const auto opening = measure_in(record, Column::OPENLEN_GRATE);
        opening && inlet_of(record) == Inlet::combination && !in_sump(record)) {
        title += ", opening " + opening->text;
    }
    constexpr std::size_t longest_regime = 20;
    if (const std::string& regime = record.text(Column::INLETPERF);
        water == Water::solved && !regime.empty() && regime.size() <= longest_regime) {
        title += ", " + regime;
    }
    return title;
}

View titled(View view, std::string title) {
    view.title = std::move(title);
    return view;
}

std::string approach_title(const engine::InletRecord& record, const char* side, const Approach& approach) {
    std::string title = side + (" approach, Q " + approach.flow);
    if (measure_in(record, Column::LONGSLOPE)) {
        title += ", S " + shown_number(record.text(Column::LONGSLOPE), Unit::ratio);
    }
    return title;
}

std::vector<View> views_of(const engine::InletRecord& record, Water water) {
    const std::string title = title_of(record, water);
    const Approaches approaches =
        in_sump(record) ? approaches_of(record, water == Water::solved) : Approaches{};
    if (is_ditch(record)) {
        return {titled(in_sump(record) ? view_along_ditch(record, approaches) : view_across_ditch(record),
                       title)};
    }
    std::vector<View> views{titled(view_at_inlet(record, record.text(Column::OPENSPREAD)), title)};
    if (in_sump(record)) {
        views.push_back(titled(mirrored(view_of_approach(record, approaches.left.spread)),
                               approach_title(record, "Left", approaches.left)));
        views.push_back(titled(view_of_approach(record, approaches.right.spread),
                               approach_title(record, "Right", approaches.right)));
    }
    return views;
}

/// The largest round number that leaves a view wider than high by far.
double exaggeration_for(const View& view) {
    constexpr std::array rounds{1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 8.0, 10.0, 15.0, 20.0, 30.0, 40.0, 50.0, 100.0};
    constexpr double most = 0.46;  // height over width
    const double room = (view.high.x - view.low.x) * most;
    const double height = view.high.y - view.low.y;
    double chosen = rounds.front();
    for (const double round : rounds) {
        chosen = height * round <= room ? round : chosen;
    }
    return chosen;
}

constexpr std::array<std::string_view, 2> rated_by_depth{"Y-Weld", "Y-DI Gr"};
constexpr std::array<std::string_view, 2> depth_alone{"X - DI Grate", "X - Welded Steel"};

bool is_one_of(std::span<const std::string_view> standards, const engine::InletRecord& record) {
    return std::ranges::find(standards, std::string_view(record.text(Column::INLET_SUBTYPE))) !=
           standards.end();
}

void note_capture(const engine::InletRecord& record, std::vector<std::string>& notes) {
    if (!is_ditch(record) || !record.text(Column::QINT).empty()) {
        return;
    }
    if (in_sump(record) && is_one_of(rated_by_depth, record)) {
        notes.emplace_back("Q INTERCEPTED is blank: nothing is intercepted");
    } else if (!in_sump(record) && is_one_of(depth_alone, record)) {
        notes.emplace_back("depth alone: no interception is computed");
    }
}

/// What the record has a text for that cannot be drawn.
void note_undrawn(const engine::InletRecord& record, std::vector<std::string>& notes) {
    constexpr std::array sizes{
        std::pair{Column::OPENSPREAD, "spread"}, std::pair{Column::ALLOWABLE_SPREAD, "allowable spread"},
        std::pair{Column::CURB_HEIGHT, "curb"},  std::pair{Column::GUTWIDTH, "gutter width"},
        std::pair{Column::PAVXSLOPE, "Sx"},      std::pair{Column::GUTXSLOPE, "Sw"},
        std::pair{Column::INLETXSLOPE, "S'w"},   std::pair{Column::LOCDEPWIDTH, "Wa"},
        std::pair{Column::HEIGHTOFCURB, "h"},    std::pair{Column::GRATEWIDTH, "Wg"},
        std::pair{Column::SLOTWIDTH, "slot"},    std::pair{Column::LSCOPERATIO, "zl"},
        std::pair{Column::RSCOPERATIO, "zr"}};
    std::string undrawn;
    for (const auto& [column, name] : sizes) {
        const bool is_own = is_input(column, record) || column == Column::OPENSPREAD ||
                            (column == Column::CURB_HEIGHT && !is_ditch(record));
        const std::string& text = record.text(column);
        if (is_own && !text.empty() && text != "-" && !measure_in(record, column)) {
            undrawn += (undrawn.empty() ? "cannot be drawn: " : ", ") + std::string(name);
        }
    }
    if (!undrawn.empty()) {
        notes.push_back(undrawn);
    }
}

std::vector<std::string> notes_of(const engine::InletRecord& record, const Section& section) {
    std::vector<std::string> notes{"vertical x " + platform::number_text(section.exaggeration)};
    if (section.water == Water::none) {
        notes.emplace_back("no results");
    } else if (section.water == Water::unsolved) {
        notes.emplace_back("not solved");
    }
    if (const auto spread = measure_in(record, Column::OPENSPREAD); spread && spread->size == 0) {
        notes.push_back("spread " + spread->text);
    }
    if (section.water != Water::none) {
        note_capture(record, notes);
    }
    note_undrawn(record, notes);
    return notes;
}

std::string spread_sentence(const engine::InletRecord& record) {
    const Spread water = judge_spread(record, record.text(Column::OPENSPREAD));
    if (!water.spread) {
        return "no spread";
    }
    std::string text = "spread " + water.spread->text;
    if (water.allowable) {
        text += water.beyond ? ", " + water.excess + " beyond the allowable " : ", within the allowable ";
        text += water.allowable->text;
    }
    return text;
}

std::string sentence_of(const engine::InletRecord& record, const Section& section) {
    std::string text = section.views.front().title + ": ";
    if (section.water == Water::none) {
        return text + "no results.";
    }
    if (!is_ditch(record)) {
        text += spread_sentence(record) + ", ";
    }
    const Column column = in_sump(record) ? Column::DEPTHATINLET : Column::CURBDEPTH;
    const auto depth = measure_in(record, column);
    text += depth ? "depth " + depth->text : "no depth";
    text += section.water == Water::unsolved ? ", not solved since the inputs changed." : ".";
    return text;
}

}  // namespace

Water water_of(const engine::InletRecord& record) {
    if (!has_results(record)) {
        return Water::none;
    }
    return record.changed() ? Water::unsolved : Water::solved;
}

Section draw_section(const engine::InletRecord& record, Water water) {
    engine::set_depthFactor();
    Section section{.water = has_results(record) ? water : Water::none};
    section.views = views_of(record, section.water);
    section.exaggeration = exaggeration_for(section.views.front());
    for (const View& view : section.views) {
        section.exaggeration = std::min(section.exaggeration, exaggeration_for(view));
    }
    section.notes = notes_of(record, section);
    section.sentence = sentence_of(record, section);
    return section;
}

}  // namespace gullymark::section
