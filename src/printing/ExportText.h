#pragma once

// A Dialogue as plain text for the user to keep: a heading with its date, the text, and the
// program's closing lines; lines end in CR LF, as the program's texts do.

#include "core/DateTime.h"
#include "core/WindowLayer.h"

#include <string>
#include <string_view>

namespace veyrant {

std::string ExportText(const DateTime& date, std::string_view text);

// The name Save As proposes: the Dialogue's date, so that two days' Dialogues never clash.
std::string ExportFileName(const DateTime& date);

// The box for a Save As that failed with a program error number.
MessageBoxRequest SaveFileErrorBox(int errorNumber, std::string_view fileName);

// Opens the exported text in the program's editor, where the user saves it under a name of
// their choice.
void ExportToEditor(WindowLayer& windows, const DateTime& date, std::string_view text);

} // namespace veyrant
