#pragma once

// Date and time patterns as the program writes them, with English names whatever the machine's
// locale. Tokens: d dd ddd dddd, m mm mmm mmmm (minutes when they follow an hour), yy yyyy,
// h hh, n nn, s ss, AM/PM and am/pm (which also turn the hour to 12-hour form). Anything else is
// copied as it stands.

#include "core/DateTime.h"

#include <string>
#include <string_view>

namespace veyrant {

std::string FormatDate(const DateTime& when, std::string_view pattern);

} // namespace veyrant
