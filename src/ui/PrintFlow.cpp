#include "ui/PrintFlow.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace veyrant {

PrintOutcome PreviewAndPrint(QPrinter& printer, const std::function<bool(QPrinter&)>& draw) {
    QPrintPreviewDialog preview(&printer, QApplication::activeWindow());
    bool failed = false;
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* target) { failed = !draw(*target) || failed; });
    // The preview's own Print button opens the print dialog and closes the preview as accepted.
    const int result = preview.exec();
    if (failed) {
        return PrintOutcome::Failed;
    }
    return result == QDialog::Accepted ? PrintOutcome::Printed : PrintOutcome::Cancelled;
}

} // namespace veyrant
