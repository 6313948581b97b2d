#pragma once

// The Library status that the Write window shows under the Suggestion while no Dialogue is on
// show.

#include "shell/Settings.h"
#include "storage/LibraryListing.h"

#include <string>
#include <string_view>

namespace veyrant {

inline constexpr std::string_view LibraryStatusHeading = "Dialogue Library Status";

// The status text, heading first. The Write window's txtSaved is the Suggestion, a blank line,
// and this.
std::string GenLibStatus(const LibraryListing& listing, const Settings& settings);

} // namespace veyrant
