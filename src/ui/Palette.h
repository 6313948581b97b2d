#pragma once

// The screen's value of each colour the logic names.

#include "core/Colour.h"

#include <QColor>
#include <QString>

namespace veyrant {

QColor ColourValue(Colour colour);

// The colour as a style sheet writes it.
QString Css(Colour colour);

} // namespace veyrant
