#include "ui/QtPageDevice.h"

#include "ui/QtText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>

namespace veyrant {

namespace {

// Printers cannot mark the paper's very edge; the page starts below that strip.
constexpr double TopInches = 0.25;

} // namespace

QtPageDevice::QtPageDevice(QPainter& painter, QPagedPaintDevice& pages, const QString& face)
    : painter_(painter), pages_(pages), font_(face), metrics_(font_, &pages),
      dotsPerInch_(static_cast<double>(pages.logicalDpiY())), y_(TopInches * dotsPerInch_) {
    font_.setStyleHint(QFont::Serif);
    metrics_ = QFontMetricsF(font_, &pages_);
}

void QtPageDevice::SetFont(const PrintFont& font) {
    font_.setPointSizeF(font.Points);
    font_.setBold(font.Bold);
    font_.setItalic(font.Italic);
    painter_.setFont(font_);
    metrics_ = QFontMetricsF(font_, &pages_);
}

double QtPageDevice::TextWidth(std::string_view text) const {
    return metrics_.horizontalAdvance(ToQt(std::string(text))) / dotsPerInch_;
}

void QtPageDevice::Print(std::string_view text) {
    painter_.drawText(QPointF(x_ * dotsPerInch_, y_ + metrics_.ascent()), ToQt(std::string(text)));
    x_ += TextWidth(text);
}

void QtPageDevice::EndLine() {
    y_ += LineSpacing();
    x_ = 0;
}

void QtPageDevice::NewPage() {
    if (!pages_.newPage()) {
        succeeded_ = false;
    }
    x_ = 0;
    y_ = TopInches * dotsPerInch_;
}

void QtPageDevice::EndDocument() {
    const auto* printer = dynamic_cast<const QPrinter*>(&pages_);
    if (!painter_.end() || (printer != nullptr && printer->printerState() == QPrinter::Error)) {
        succeeded_ = false;
    }
}

double QtPageDevice::LineSpacing() const {
    return metrics_.lineSpacing();
}

} // namespace veyrant
