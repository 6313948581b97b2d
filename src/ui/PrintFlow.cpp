#include "ui/PrintFlow.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace veyrant {

namespace {

void Name(QWidget* widget, const QString& name, const QString& description) {
    if (widget != nullptr) {
        widget->setAccessibleName(name);
        widget->setAccessibleDescription(description);
    }
}

} // namespace

std::unique_ptr<QPrintPreviewDialog> BuildPrintPreview(QPrinter& printer, QWidget* parent) {
    auto preview = std::make_unique<QPrintPreviewDialog>(&printer, parent);
    preview->setWindowTitle(QStringLiteral("Veyrant Sagrel Print Preview"));
    // Qt draws the tool icons from images of 24 and 32 pixels: on a screen of more pixels than
    // that they would be blown up and blurred, so they stand a little smaller there instead.
    if (auto* tools = preview->findChild<QToolBar*>()) {
        const int side = std::min(24, static_cast<int>(32 / preview->devicePixelRatioF()));
        tools->setIconSize(QSize(side, side));
    }
    // Qt names its tool buttons after their actions; the page number, the zoom, the button for
    // the tools that do not fit and the pages themselves it leaves unnamed.
    Name(preview->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")),
         QStringLiteral("More tools"),
         QStringLiteral("The tools that the window is too narrow for."));
    Name(preview->findChild<QPrintPreviewWidget*>(), QStringLiteral("Pages"),
         QStringLiteral("The pages as they will print."));
    const QString zoomName = QStringLiteral("Zoom");
    const QString zoomDescription = QStringLiteral("How large the pages show, in per cent.");
    auto* zoom = preview->findChild<QComboBox*>();
    Name(zoom, zoomName, zoomDescription);
    for (auto* edit : preview->findChildren<QLineEdit*>()) {
        if (zoom != nullptr && edit == zoom->lineEdit()) {
            Name(edit, zoomName, zoomDescription);
        } else {
            Name(edit, QStringLiteral("Page"),
                 QStringLiteral("The page on show. Type a number to go to that page."));
        }
    }
    return preview;
}

PrintOutcome PreviewAndPrint(QPrinter& printer, const std::function<bool(QPrinter&)>& draw) {
    const auto preview = BuildPrintPreview(printer, QApplication::activeWindow());
    bool failed = false;
    QObject::connect(preview.get(), &QPrintPreviewDialog::paintRequested, preview.get(),
                     [&](QPrinter* target) { failed = !draw(*target) || failed; });
    // The preview's own Print button opens the print dialog and closes the preview as accepted.
    const int result = preview->exec();
    if (failed) {
        return PrintOutcome::Failed;
    }
    return result == QDialog::Accepted ? PrintOutcome::Printed : PrintOutcome::Cancelled;
}

} // namespace veyrant
