#pragma once

// What a Linux user expects of Print: the pages previewed first, then the system print dialog,
// which also offers printing to a PDF file. Works on a machine with no printer at all.

#include "core/WindowLayer.h"

#include <functional>
#include <memory>

class QPrinter;
class QPrintPreviewDialog;
class QWidget;

namespace veyrant {

// The preview over the printer, every control of it named for a screen reader.
std::unique_ptr<QPrintPreviewDialog> BuildPrintPreview(QPrinter& printer, QWidget* parent);

// draw paints every page on the printer it is given and returns false when that failed.
PrintOutcome PreviewAndPrint(QPrinter& printer, const std::function<bool(QPrinter&)>& draw);

} // namespace veyrant
