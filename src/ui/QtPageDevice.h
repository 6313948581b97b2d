#pragma once

// The print layout's page device over a painter on a printer or a PDF writer: inches from the
// paper's edge, text measured with the device's own font metrics.

#include "printing/PageDevice.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>

class QPagedPaintDevice;
class QPainter;

namespace veyrant {

class QtPageDevice final : public PageDevice {
public:
    // The painter is active on the pages; the face is the program's serif face.
    QtPageDevice(QPainter& painter, QPagedPaintDevice& pages, const QString& face);

    void SetFont(const PrintFont& font) override;
    double TextWidth(std::string_view text) const override;
    void SetCurrentX(double inches) override { x_ = inches; }
    void Print(std::string_view text) override;
    void EndLine() override;
    void NewPage() override;
    void EndDocument() override;

    // False once the printer refused a page or the end of the document.
    bool Succeeded() const { return succeeded_; }

private:
    double LineSpacing() const;

    QPainter& painter_;
    QPagedPaintDevice& pages_;
    QFont font_;
    // Measured again only when the font changes: the word wrap measures at every character.
    QFontMetricsF metrics_;
    double dotsPerInch_;
    double x_ = 0;
    double y_; // the top of the present line, in printer dots
    bool succeeded_ = true;
};

} // namespace veyrant
