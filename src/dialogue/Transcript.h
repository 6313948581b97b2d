#pragma once

// How the length of a Dialogue is told to the user.

#include <string>

namespace veyrant {

// Int((PairCount + 2) / 8) + 1: one page up to five items, one more for each eight after.
int PageCount(int pairCount);

// "Dialogue, 1 Page" or "Dialogue, N Pages", the title of a finished Dialogue.
std::string PagesTitle(int pairCount);

// The instruction of the full view: the length and how to leave the view.
std::string FullViewPagePhrase(int pairCount);

// The text of the full view, which the text export takes: the Inspiration, then the Dialogue as
// its view shows it.
std::string FullViewText(const std::string& inspirationText, const std::string& dialogueView);

} // namespace veyrant
