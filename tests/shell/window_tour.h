#pragma once

#include <functional>
#include <string>

#include <QWidget>

namespace gullymark::testing_support {

/// Goes through every window and box of the program, the four pages of the form in each mode, and shows each to `visit`
/// under a name such as "workspace VIEW results".
void tour_windows(const std::function<void(const std::string& name, QWidget& window)>& visit);

}  // namespace gullymark::testing_support
