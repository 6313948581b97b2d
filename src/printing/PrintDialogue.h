#pragma once

// Printing a Dialogue from a window: the platform's print dialog, preview and pages, and the
// program's box when printing fails. A cancelled print shows nothing.

#include "core/DateTime.h"
#include "core/WindowLayer.h"

#include <string>

namespace veyrant {

// What the user is told when the printer failed.
MessageBoxRequest PrintErrorBox();

// The dialogue text comes without the blank line that leads every saved Dialogue; the heading
// shows shownDate.
void PrintDialogue(WindowLayer& windows, const DateTime& shownDate, const std::string& inspiration,
                   const std::string& dialogue, const std::string& title);

} // namespace veyrant
