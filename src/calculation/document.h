#pragma once

#include <string>
#include <vector>

/// The worked calculation of one inlet as plain values, which a window, a page and a text are made of.
///
/// Formulas stand in the field's notation with the signs of print ("LT", "K_L × Q^0.42"): a power stands behind ^, an index
/// behind _, in parentheses where it is more than a word.
namespace gullymark::calculation {

/// One line of a calculation.
struct Row {
    enum class Kind : unsigned char {
        input,  // what is read: symbol, formula is its column, value, unit, meaning is the caption on the form
        constant,   // symbol, value, meaning, source
        formula,    // a step: symbol = formula = numbers = value unit, meaning, source
        detail,     // the same for a line of a function or a search within the step above it
        condition,  // formula, numbers, value is yes or no
        search,     // symbol, value, unit; remark tells how it went
        message,    // remark is what the program tells in a box
        note,       // remark
        result,  // what is stored: symbol is its column, formula and numbers tell the rounding, value, unit, meaning
    };

    Kind kind = Kind::formula;
    int step = 0;         // its number in the calculation sheet, 0 for none
    std::string symbol;   // empty for a condition
    std::string formula;  // with symbols
    std::string numbers;  // the same with numbers; empty where that says nothing more
    std::string value;
    std::string unit;
    std::string meaning;
    std::string source;  // "3e Eq. 4-23"
    int departure = 0;   // the number of the note on how the rule departs from its source, 0 for none
    std::string remark;  // why a step was abandoned, or as told above
};

struct Section {
    std::string heading;
    std::vector<Row> rows;
};

struct TitleField {
    std::string label;
    std::string text;
};

struct Document {
    std::string title;
    std::string inlet;                    // its number
    std::string date;                     // "11/22/2026"
    std::vector<std::string> warnings;    // the first lines: what a reader must know before all else
    std::vector<TitleField> title_block;  // as on the Inlet Report
    std::vector<Section> sections;        // in the order of the design; results come last
    std::vector<std::string> departures;  // the notes: number 1 is the first
    std::vector<std::string> legend;      // the publications under their short names
};

}  // namespace gullymark::calculation
