#pragma once

// veyrant-sagrel --export-library FOLDER [--pdf]: the Library exported from a script or a
// scheduled backup. It opens no window, leaves the running Dialogue and the program's folder as
// they are, replaces no file, and says on its output what it wrote.

#include "app/LibraryExport.h"

#include <ostream>
#include <string>
#include <vector>

namespace veyrant {

inline constexpr std::string_view ExportLibraryOption = "--export-library";
inline constexpr std::string_view PdfOption = "--pdf";

// The arguments after the program's name. Exit codes: 0 written, 1 nothing to export, 2 a fault
// (a Dialogue or a file not written, a file already there, or arguments not understood).
int ExportLibraryCommand(const std::vector<std::string>& arguments, const AppFolder& library,
                         LibraryPdfMaker& pdf, std::ostream& out);

// Whether the command line asks for the PDF; the caller then needs a PDF maker.
bool WantsPdf(const std::vector<std::string>& arguments);

} // namespace veyrant
