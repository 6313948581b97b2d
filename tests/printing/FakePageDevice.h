#pragma once

#include "printing/PageDevice.h"

#include <algorithm>
#include <gtest/gtest.h>
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
    double TextWidth(std::string_view text) const override {
        const double character = font_.Points / 112.0;
        double width = 0;
        for (const char c : text) {
            width += c == '_' ? character / 2 : character;
        }
        return width;
    }
    void SetCurrentX(double inches) override { x_ = inches; }
    void Print(std::string_view text) override {
        Drawings.push_back({Pages, line_, x_, font_, std::string(text)});
        x_ += TextWidth(text);
    }
    void EndLine() override {
        ++line_;
        x_ = 0;
    }
    void NewPage() override {
        ++Pages;
        line_ = 0;
        x_ = 0;
    }
    void EndDocument() override { ++Ended; }

    // The first drawing whose text is exactly this; where there is none the test fails.
    const Drawn& Find(const std::string& text) const {
        static const Drawn missing{0, -1, -1, {}, ""};
        const auto found = std::ranges::find(Drawings, text, &Drawn::Text);
        if (found == Drawings.end()) {
            ADD_FAILURE() << "nothing drawn reads " << text;
            return missing;
        }
        return *found;
    }
    // The drawings of one page in order.
    std::vector<Drawn> OnPage(int page) const {
        std::vector<Drawn> drawn;
        std::ranges::copy_if(Drawings, std::back_inserter(drawn),
                             [page](const Drawn& item) { return item.Page == page; });
        return drawn;
    }

    std::vector<Drawn> Drawings;
    int Pages = 1;
    int Ended = 0;

private:
    PrintFont font_;
    int line_ = 0; // lines ended on this page
    double x_ = 0;
};

} // namespace veyrant::testing
