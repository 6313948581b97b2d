#include "core/Cp1252.h"

#include <array>
#include <utility>

namespace veyrant {

namespace {

// Bytes 0x80 to 0x9F; the unassigned ones keep their own number.
constexpr std::array<char16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

} // namespace

char32_t Cp1252ToCodePoint(char byte) {
    const auto b = static_cast<unsigned char>(byte);
    if (b >= 0x80 && b < 0xA0) {
        return HighControls[b - 0x80];
    }
    return b;
}

std::optional<char> CodePointToCp1252(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
        return static_cast<char>(cp);
    }
    for (std::size_t i = 0; i < HighControls.size(); ++i) {
        if (HighControls[i] == cp) {
            return static_cast<char>(0x80 + i);
        }
    }
    return std::nullopt;
}

std::u16string Cp1252ToUtf16(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (char c : text) {
        out += static_cast<char16_t>(Cp1252ToCodePoint(c));
    }
    return out;
}

std::string Cp1252ToUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        AppendUtf8(out, Cp1252ToCodePoint(c));
    }
    return out;
}

std::optional<std::string> Utf16ToCp1252(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char16_t unit : text) {
        // Surrogates never have a Windows-1252 code.
        const auto byte = CodePointToCp1252(unit);
        if (!byte) {
            return std::nullopt;
        }
        out += *byte;
    }
    return out;
}

Utf8Conversion Utf8ToCp1252(std::string_view text) {
    Utf8Conversion result;
    result.Text.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const auto lead = static_cast<unsigned char>(text[i]);
        int extra = 0;
        char32_t cp = 0;
        if (lead < 0x80) {
            cp = lead;
        } else if ((lead & 0xE0) == 0xC0) {
            extra = 1;
            cp = lead & 0x1F;
        } else if ((lead & 0xF0) == 0xE0) {
            extra = 2;
            cp = lead & 0x0F;
        } else if ((lead & 0xF8) == 0xF0) {
            extra = 3;
            cp = lead & 0x07;
        } else {
            return {{}, false, i};
        }
        if (i + static_cast<std::size_t>(extra) >= text.size() && extra > 0) {
            return {{}, false, i};
        }
        for (int k = 1; k <= extra; ++k) {
            const auto next = static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]);
            if ((next & 0xC0) != 0x80) {
                return {{}, false, i};
            }
            cp = (cp << 6) | (next & 0x3F);
        }
        const auto byte = CodePointToCp1252(cp);
        // The C1 stand-ins exist for round trips of files, not as authored characters.
        if (!byte || (cp >= 0x80 && cp < 0xA0)) {
            return {{}, false, i};
        }
        result.Text += *byte;
        i += static_cast<std::size_t>(extra) + 1;
    }
    return result;
}

std::string PathText(const std::filesystem::path& path) {
    const std::string bytes = path.string();
    auto converted = Utf8ToCp1252(bytes);
    return converted.Ok ? std::move(converted.Text) : bytes;
}

} // namespace veyrant
