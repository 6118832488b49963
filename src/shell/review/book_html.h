#pragma once

#include <string>

#include <QString>
#include <QStringList>

#include "review/review_file.h"

/// What stands in a reviewer's book before the inlets, in the toolkit's rich text: black on white, without colors. The units of
/// the project are in force meanwhile.
namespace gullymark::shell {

/// What the title tells: the project, its file, the day, how much was found.
QString book_title_html(const review::Reviewed& reviewed, const QString& file, const QString& date);

/// What must be opened, solved and saved, in this order, and what keeps the road from being up to date; a paragraph each.
QStringList book_to_do_html(const review::Reviewed& reviewed);

/// Where the water stays.
QString book_balance_html(const review::Balance& balance);

/// A heading, and a block for each finding of a severity; nothing where there is none.
QString book_findings_heading(review::Severity severity, std::size_t count);
QString book_finding_html(const review::Finding& finding);

/// The table of inlets: what stands over its columns, and a row. A value that would be another one up to date has that below it,
/// behind an arrow.
QString book_table_head();
QString book_table_row(const review::Reviewed& reviewed, std::size_t index);

}  // namespace gullymark::shell
