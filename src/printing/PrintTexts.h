#pragma once

// The fixed lines of the printed pages and of the exported text.

#include <string_view>

namespace veyrant::PrintTexts {

inline constexpr std::string_view TitleLine =
    "Psychological Self-Reflection with the Veyrant Sagrel Dovrin";
// Printed between the curly quotation marks; the export has its own spelling of it.
inline constexpr std::string_view PrintedMotto =
    "The Power of your Inspiration Is in the Worth that You Give It";
inline constexpr std::string_view ExportedMotto =
    "The Power of Your Inspiration is in the Worth that You Give It";
inline constexpr std::string_view MakerLine = "Veyrant Sagrel for Linux";
inline constexpr std::string_view WriteWindowTitle = "Veyrant Dialogue";

} // namespace veyrant::PrintTexts
