#include "ui/ExportLibraryCommand.h"

#include "app/ExportCommand.h"
#include "app/FontCheck.h"
#include "shell/AppFolder.h"
#include "ui/QtLibraryPdf.h"
#include "ui/QtText.h"
#include "ui/QtWindowLayer.h"

#include <QApplication>
#include <iostream>
#include <memory>

namespace veyrant {

std::optional<int> RunExportLibraryCommand(int argc, char** argv) {
    if (argc < 2 || argv[1] != ExportLibraryOption) {
        return std::nullopt;
    }
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    // Only the PDF needs Qt, for its fonts and pages, and then off any screen.
    std::unique_ptr<QApplication> qt;
    std::unique_ptr<QtWindowLayer> windows;
    if (WantsPdf(arguments)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qt = std::make_unique<QApplication>(argc, argv);
        windows = std::make_unique<QtWindowLayer>();
    }
    QtLibraryPdf pdf([&] { return ToQt(InstalledFaceNames(*windows).Main); });
    return ExportLibraryCommand(arguments, AppFolder::FromEnvironment(), pdf, std::cout);
}

} // namespace veyrant
