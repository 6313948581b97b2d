#include "printing/FakePageDevice.h"

#include <algorithm>

namespace veyrant::testing {

double FakePageDevice::TextWidth(std::string_view text) const {
    const double character = font_.Points / 112.0;
    double width = 0;
    for (const char c : text) {
        width += c == '_' ? character / 2 : character;
    }
    return width;
}

void FakePageDevice::Print(std::string_view text) {
    Drawings.push_back({Pages, LinesPerPage.back(), x_, font_, std::string(text)});
    x_ += TextWidth(text);
}

void FakePageDevice::EndLine() {
    ++LinesPerPage.back();
    x_ = 0;
}

void FakePageDevice::NewPage() {
    ++Pages;
    LinesPerPage.push_back(0);
    x_ = 0;
}

const FakePageDevice::Drawn* FakePageDevice::Find(const std::string& text) const {
    const auto found = std::find_if(Drawings.begin(), Drawings.end(),
                                    [&](const Drawn& drawn) { return drawn.Text == text; });
    return found == Drawings.end() ? nullptr : &*found;
}

std::vector<FakePageDevice::Drawn> FakePageDevice::OnPage(int page) const {
    std::vector<Drawn> drawn;
    std::copy_if(Drawings.begin(), Drawings.end(), std::back_inserter(drawn),
                 [page](const Drawn& item) { return item.Page == page; });
    return drawn;
}

} // namespace veyrant::testing
