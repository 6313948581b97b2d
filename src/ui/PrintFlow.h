#pragma once

// What a Linux user expects of Print: the pages previewed first, then the system print dialog,
// which also offers printing to a PDF file. Works on a machine with no printer at all.

#include "core/WindowLayer.h"

#include <functional>

class QPrinter;

namespace veyrant {

// draw paints every page on the printer it is given and returns false when that failed.
PrintOutcome PreviewAndPrint(QPrinter& printer, const std::function<bool(QPrinter&)>& draw);

} // namespace veyrant
