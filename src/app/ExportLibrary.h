#pragma once

// The logic of the Export Library window, reached from the Utilities: it asks where the new
// folder goes and whether to add the PDF, writes the Library there under a progress bar with
// Cancel, and ends with a box that says what was written and offers to open the folder. As with
// every window of the Utilities, leaving it ends the program; the running Dialogue is already in
// its work buffers, which the right-click stored before the Utilities opened.

#include "app/LibraryExport.h"
#include "core/Clock.h"
#include "shell/Settings.h"

#include <functional>
#include <string>

namespace veyrant {

struct ExportControls {
    std::string Title = "Export Library";
    std::string lblStatus = "Every saved Dialogue goes into a new folder of its own.";
    int prgExport = 0;
    int prgExportMax = 1;
    std::string cmdCancelCaption = "Cancel";
    bool cmdCancelEnabled = false;
};

// The new folder's name: the day of the export.
std::string ExportFolderName(const DateTime& today);

class ExportLibrary {
public:
    ExportLibrary(const AppFolder& library, const Settings& settings, const Clock& clock,
                  WindowLayer& windows, LibraryPdfMaker& pdf, std::function<void()> exitProgram);

    const ExportControls& Controls() const { return controls_; }

    // Called whenever the controls changed, before the window yields, so that it shows them.
    std::function<void()> Changed = [] {};

    // Runs the whole export once the window is on show.
    void Form_Activate();
    void cmdCancel_Click();
    // While the export runs, closing is a Cancel; after it, the way out of the program.
    void Form_Close();

    std::string Dump() const;

private:
    void Run();
    bool Progress(int done, int total);
    void BackToUtilities();
    void Finish(const ExportReport& report);
    MessageAnswer Ask(const std::string& text, MessageButtons buttons);

    const AppFolder& library_;
    const Settings& settings_;
    const Clock& clock_;
    WindowLayer& windows_;
    LibraryPdfMaker& pdf_;
    std::function<void()> exitProgram_;
    ExportControls controls_;
    bool running_ = false;
    bool cancelled_ = false;
};

} // namespace veyrant
