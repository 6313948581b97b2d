#pragma once

// The printed page in inches and points, and how many body lines it holds.

namespace veyrant::PageGeometry {

inline constexpr double PageWidth = 8.5;
inline constexpr double LeftMargin = 1.25;
inline constexpr int BodyLinesPerPage = 32;
// The margins are measured in blanks of the font in use.
inline constexpr int IndentBlanks = 22;
inline constexpr int WrapMarginBlanks = 50;

inline constexpr double BodyPoints = 14;
inline constexpr double RulePoints = 15;
inline constexpr double HeadingPoints = 18;
inline constexpr double FootPoints = 12;

} // namespace veyrant::PageGeometry
