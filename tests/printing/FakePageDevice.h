#pragma once

#include "printing/PageDevice.h"

#include <string>
#include <vector>

namespace veyrant::testing {

// Records what was drawn where: page, line and inches from the left edge. Every character is
// an eighth of an inch wide at 14 points and the underscore half as wide, so wraps and rules
// fall on exact, predictable places.
class FakePageDevice : public PageDevice {
public:
    struct Drawn {
        int Page = 1;
        int Line = 0; // lines ended on this page before it
        double X = 0;
        PrintFont Font;
        std::string Text;
    };

    void SetFont(const PrintFont& font) override { font_ = font; }
    double TextWidth(std::string_view text) const override;
    void SetCurrentX(double inches) override { x_ = inches; }
    void Print(std::string_view text) override;
    void EndLine() override;
    void NewPage() override;
    void EndDocument() override { ++Ended; }

    // The first drawing whose text is exactly this, or nullptr.
    const Drawn* Find(const std::string& text) const;
    // The drawings of one page in order.
    std::vector<Drawn> OnPage(int page) const;

    std::vector<Drawn> Drawings;
    int Pages = 1;
    int Ended = 0;
    std::vector<int> LinesPerPage{0};

private:
    PrintFont font_;
    double x_ = 0;
};

} // namespace veyrant::testing
