#pragma once

// Draws a Dialogue's printed pages on a printer, whatever the printer stands for: paper, the
// preview or a PDF file.

#include "core/WindowLayer.h"

#include <QString>
#include <optional>

class QPrinter;

namespace veyrant {

// The printer in the layout's terms: letter paper, measured from the paper's edge.
void PreparePrinter(QPrinter& printer, const PrintRequest& request);

// The number of pages drawn, or nothing when the printer failed; nothing is then promised of
// the pages.
std::optional<int> PrintDialogueOn(QPrinter& printer, const PrintRequest& request,
                                   const QString& face);

} // namespace veyrant
