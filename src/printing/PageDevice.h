#pragma once

// The drawing seam under the print layout: what the layout asks of a printer, in inches from
// the paper's left edge. The printer keeps its own face; the layout chooses size and style.

#include <string_view>

namespace veyrant {

struct PrintFont {
    double Points = 14;
    bool Bold = false;
    bool Italic = false;
};

class PageDevice {
public:
    virtual ~PageDevice() = default;

    virtual void SetFont(const PrintFont& font) = 0;
    // Width of a Windows-1252 text in the current font.
    virtual double TextWidth(std::string_view text) const = 0;
    virtual void SetCurrentX(double inches) = 0;
    // Draws the text at the current position; the position moves to the text's end.
    virtual void Print(std::string_view text) = 0;
    // Down one line of the current font, back to the left edge.
    virtual void EndLine() = 0;
    virtual void NewPage() = 0;
    virtual void EndDocument() = 0;
};

} // namespace veyrant
