#pragma once

#include <QIcon>
#include <QString>

namespace gullymark::shell {

/// The icon resources/icons/NAME.svg of a command, drawn in the colors of the palette in force whenever it is painted.
/// The drawing has three colors, as they are for a light palette: a dark line, a blue line and a pale fill.
QIcon tool_icon(const QString& name);

}  // namespace gullymark::shell
