#pragma once

// The Library's pages as one PDF, drawn in memory by Qt's PDF writer, so that the export writes
// the file whole through the program's own file calls.

#include "app/LibraryExport.h"

#include <QString>

namespace veyrant {

class QtLibraryPdf final : public LibraryPdfMaker {
public:
    // The face is the program's serif face, as on the printer.
    explicit QtLibraryPdf(std::function<QString()> face) : face_(std::move(face)) {}

    std::optional<std::string>
    LibraryPdf(const std::vector<PrintRequest>& dialogues,
               const std::function<bool(std::size_t done)>& goOn) override;

private:
    std::function<QString()> face_;
};

} // namespace veyrant
