#pragma once

// The Read window's standing texts: library names, the instruction texts shown while a list is
// in use, and the key lines.

#include "shell/LibraryId.h"

#include <string>

namespace veyrant {

// "Information", "Advanced Knowledge" and the like: the name that stands before "Library".
std::string LibraryShortName(LibraryId library);
// "Information Library" and the like.
std::string LibraryHeading(LibraryId library);
// "Veyrant Information Library" and the like.
std::string LibraryLongName(LibraryId library);
// The instruction text of a library's index, heading first.
std::string ReadInstructions(LibraryId library);
// What the Dialogue Library shows when no Dialogue is saved.
std::string EmptyLibraryInstructions();

inline constexpr const char* KeyHintDialogue =
    "F1=Help  SpaceBar=Window  Page/ArrowUp=Later  Page/ArrowDown=Earlier  Esc=Index";
inline constexpr const char* KeyHintLibrary =
    "F1=Help  SpaceBar=Window  Page/ArrowUp=Prior  Page/ArrowDown=Next  Esc=Index/Cancel";

} // namespace veyrant
