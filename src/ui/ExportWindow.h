#pragma once

// The Export Library window over its logic: what the export is doing, a progress bar and Cancel.
// The export starts once the window is on show; the folder dialog and the boxes stand over it.

#include "app/ExportLibrary.h"
#include "ui/UtilityDialog.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace veyrant {

class ExportWindow : public UtilityDialog {
public:
    ExportWindow(ExportLibrary& logic, double scaleFactor, QWidget* parent = nullptr);

    // Escape and the close box: a Cancel while the export runs, the way out after it.
    void reject() override;

    void Render();

protected:
    void showEvent(QShowEvent* event) override;

private:
    ExportLibrary& logic_;
    QLabel* lblStatus_;
    QProgressBar* prgExport_;
    QPushButton* cmdCancel_;
};

} // namespace veyrant
