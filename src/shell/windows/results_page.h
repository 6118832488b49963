#pragma once

class QWidget;

namespace gullymark::shell {

/// Lays the results page of a form out as wide as it is: three groups of results beside each other where there is room,
/// else two. The picture stands beside spread and depth in both. To be called once the pages scroll.
void fit_results_page(QWidget& form);

}  // namespace gullymark::shell
