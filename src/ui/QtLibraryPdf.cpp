#include "ui/QtLibraryPdf.h"

#include "printing/LibraryPrint.h"
#include "ui/QtPageDevice.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace veyrant {

namespace {

// Fine enough for print; a higher one only makes the file larger.
constexpr int PdfDotsPerInch = 600;

} // namespace

std::optional<std::string>
QtLibraryPdf::LibraryPdf(const std::vector<PrintRequest>& dialogues,
                         const std::function<bool(std::size_t done)>& goOn) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    bool stopped = false;
    {
        QPdfWriter writer(&bytes);
        writer.setResolution(PdfDotsPerInch);
        // The layout measures from the paper's edge, as on a printer set to the full page.
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                         QMarginsF(0, 0, 0, 0), QPageLayout::Inch));
        writer.setTitle(QStringLiteral("Veyrant Sagrel Dialogue Library"));
        writer.setCreator(QStringLiteral("Veyrant Sagrel"));
        QPainter painter;
        if (!painter.begin(&writer)) {
            return std::nullopt;
        }
        QtPageDevice device(painter, writer, face_());
        LayOutLibrary(device, dialogues, [&](std::size_t done) {
            stopped = !goOn(done);
            return !stopped;
        });
        if (stopped) {
            painter.end();
            return std::nullopt;
        }
        if (!device.Succeeded()) {
            return std::nullopt;
        }
    }
    return bytes.data().toStdString();
}

} // namespace veyrant
