#include "engine/sources.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "engine/unit_constants.h"

namespace gullymark::engine {
namespace {

constexpr auto rows = std::to_array<Source>({
#define SOURCE(sheet, symbols, part, publication, departure) {sheet, symbols, part, publication, departure},
#include "engine/sources.def"
#undef SOURCE
});

/// A sheet, and the sections in which its formulas are told, its own first.
struct Sections {
    std::string_view sheet;
    std::array<std::string_view, 4> sections;
};

constexpr auto sections_of_sheets = std::to_array<Sections>({
    {"cisi-cg", {"cisi-cg", "repairs"}},
    {"gi-cg", {"gi-cg", "frontal", "repairs"}},
    {"combo-cg", {"combo-cg", "gi-cg", "frontal", "repairs"}},
    {"trap-cg", {"trap-cg", "frontal"}},
    {"ci-su", {"ci-su", "sump-inlets", "repairs"}},
    {"si-su", {"si-su", "sump-inlets", "repairs"}},
    {"gi-su", {"gi-su", "sump-inlets", "repairs"}},
    {"combo-su", {"combo-su", "gi-su", "sump-inlets", "repairs"}},
    {"trap-su", {"trap-su"}},
});

constexpr std::string_view metric_alone = "in metric units: ";

/// Whether a list "B, Eo" has the symbol.
bool names(std::string_view symbols, std::string_view symbol) {
    while (true) {
        const auto comma = symbols.find(", ");
        if (symbols.substr(0, comma) == symbol) {
            return true;
        }
        if (comma == std::string_view::npos) {
            return false;
        }
        symbols.remove_prefix(comma + 2);
    }
}

const Source* find_in(std::string_view section, std::string_view symbol, const std::string& formula) {
    const auto* const found = std::find_if(rows.begin(), rows.end(), [&](const Source& row) {
        return row.sheet == section && names(row.symbols, symbol) &&
               formula.find(row.part) != std::string::npos;
    });
    return found == rows.end() ? nullptr : found;
}

const Source* find_in_sheet(std::string_view sheet, std::string_view symbol, const std::string& formula) {
    const auto* const known =
        std::find_if(sections_of_sheets.begin(), sections_of_sheets.end(),
                     [sheet](const Sections& sections) { return sections.sheet == sheet; });
    if (known == sections_of_sheets.end()) {
        return nullptr;
    }
    for (const auto section : known->sections) {
        if (const Source* const row = section.empty() ? nullptr : find_in(section, symbol, formula)) {
            return row;
        }
    }
    return nullptr;
}

/// The section of a function that works in lines of its own: "gutter-spread" of "gutter_spread".
std::string section_of(const formula::Spelling& step) {
    if (step.kind != formula::Spelling::Kind::call) {
        return "";
    }
    std::string section(step.sign);
    std::replace(section.begin(), section.end(), '_', '-');
    return section;
}

}  // namespace

std::span<const Source> all_sources() {
    return rows;
}

std::string_view departure_of(const Source& source) {
    const auto& told = source.departure;
    return told.starts_with(metric_alone) && is_english() ? std::string_view() : told;
}

const Source* source_of_step(std::string_view sheet, std::string_view symbol,
                             const formula::Spelling& formula) {
    const Source* const of_function = formula.kind == formula::Spelling::Kind::call
                                          ? find_in(section_of(formula), formula.sign, "")
                                          : nullptr;
    return of_function != nullptr ? of_function
                                  : find_in_sheet(sheet, symbol, text_of(formula, formula::Style::symbols));
}

const Source* source_of_working(std::string_view sheet, const formula::Spelling& step,
                                std::string_view symbol, const formula::Spelling& formula) {
    const std::string text = text_of(formula, formula::Style::symbols);
    const Source* const of_function = find_in(section_of(step), symbol, text);
    return of_function != nullptr ? of_function : find_in_sheet(sheet, symbol, text);
}

const Source* source_of_constant(std::string_view name) {
    return find_in("constants", name, "");
}

}  // namespace gullymark::engine
