#pragma once

// The whole Library as one printed document: each Dialogue in the print layout, each beginning
// on a new page, one after the other in the order given.

#include "core/WindowLayer.h"
#include "printing/PageDevice.h"

#include <functional>
#include <vector>

namespace veyrant {

// Draws the Dialogues and ends the document. Before each Dialogue, goOn is told how many are done
// and may stop the drawing by answering false; the document is then left unended. Returns the
// number of pages drawn.
int LayOutLibrary(PageDevice& device, const std::vector<PrintRequest>& dialogues,
                  const std::function<bool(std::size_t done)>& goOn);

} // namespace veyrant
