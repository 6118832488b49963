#pragma once

#include <QString>

#include "calculation/document.h"

/// The worked calculation in the toolkit's rich text. It names no colors: they are those of the palette.
namespace gullymark::shell {

/// A formula with its powers set high and its indexes low: "Q^0.42", "K_L". What stands in quotes stays as it is.
QString formula_html(const std::string& formula);

/// What stands above the sections: the warnings, the title, the title block.
QString head_html(const calculation::Document& document);

/// One line, as a row of a table as wide as the page: number, formula, value, meaning, source.
QString row_html(const calculation::Row& row);

/// The heading of a section.
QString heading_html(const std::string& heading);

/// The notes and the publications, a paragraph each; the first is their heading. Empty where there is none.
QStringList departures_html(const calculation::Document& document);
QStringList legend_html(const calculation::Document& document);

/// All of it.
QString document_html(const calculation::Document& document);

/// How a table with rows begins; it ends with "</table>".
QString table_html();

}  // namespace gullymark::shell
