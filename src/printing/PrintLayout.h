#pragma once

// The printed Dialogue: a first page with the title, the Inspiration and the start of the
// Dialogue, then numbered pages of the rest, each holding the same number of body lines.

#include "core/WindowLayer.h"
#include "printing/PageDevice.h"

namespace veyrant {

// The pages for so many wrapped lines of Inspiration and of Dialogue; the first page also
// holds the two section heads and the empty lines around them.
int PrintPageCount(int inspirationLines, int dialogueLines);

// Draws every page and ends the document; returns the number of pages.
int LayOutDialogue(PageDevice& device, const PrintRequest& request);

} // namespace veyrant
