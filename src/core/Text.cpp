#include "core/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace veyrant {

std::string Mid(std::string_view text, long start, long length) {
    if (start < 1) {
        start = 1;
    }
    const auto from = static_cast<std::size_t>(start - 1);
    if (from >= text.size()) {
        return {};
    }
    const auto count = length < 0 ? std::string_view::npos : static_cast<std::size_t>(length);
    return std::string(text.substr(from, count));
}

std::string Left(std::string_view text, long length) {
    return length <= 0 ? std::string()
                       : std::string(text.substr(0, static_cast<std::size_t>(length)));
}

std::string Right(std::string_view text, long length) {
    if (length <= 0) {
        return {};
    }
    const auto count = std::min(text.size(), static_cast<std::size_t>(length));
    return std::string(text.substr(text.size() - count));
}

long Find(std::string_view text, std::string_view needle, long start) {
    if (start < 1 || static_cast<std::size_t>(start - 1) > text.size()) {
        return 0;
    }
    const auto at = text.find(needle, static_cast<std::size_t>(start - 1));
    return at == std::string_view::npos ? 0 : static_cast<long>(at) + 1;
}

namespace {

// How common a folded character is in the libraries' English prose: blanks and line ends most,
// then letters by their usual frequency; digits, marks and accented letters least.
constexpr std::string_view ByFrequency = "zqxjkvbpygfwmucldrhsniotae \r\n";

// Each byte's lower case, as LowerChar gives it, and how common it is, looked up rather than
// worked out for each byte.
struct FoldTable {
    unsigned char Lower[256];
    signed char Commonness[256];
    FoldTable() {
        for (int b = 0; b < 256; ++b) {
            Lower[b] = static_cast<unsigned char>(LowerChar(static_cast<char>(b)));
            const auto at = ByFrequency.find(static_cast<char>(b));
            Commonness[b] = at == std::string_view::npos ? -1 : static_cast<signed char>(at);
        }
    }
};

const FoldTable& Folds() {
    static const FoldTable table;
    return table;
}

// Sixteen bytes compared at once; GCC and Clang give this on every target the program builds
// for.
using Bytes16 = unsigned char __attribute__((vector_size(16)));

Bytes16 Load16(const unsigned char* bytes) {
    Bytes16 loaded;
    std::memcpy(&loaded, bytes, sizeof loaded);
    return loaded;
}

} // namespace

// The needle's two least common characters are looked for in both cases, sixteen starting places
// at a time; only where both stand is the whole needle compared, through the fold table. No
// lower-case copy of the text is made.
NoCaseFinder::NoCaseFinder(std::string_view needle) : needle_(needle.size(), '\0') {
    const auto& table = Folds();
    for (std::size_t k = 0; k < needle.size(); ++k) {
        needle_[k] = static_cast<char>(table.Lower[static_cast<unsigned char>(needle[k])]);
    }
    if (needle_.empty()) {
        return;
    }
    const auto commonness = [&](std::size_t k) {
        return table.Commonness[static_cast<unsigned char>(needle_[k])];
    };
    const auto rarest = [&](std::size_t other) {
        std::size_t best = other == 0 && needle_.size() > 1 ? 1 : 0;
        for (std::size_t k = 0; k < needle_.size(); ++k) {
            if (k != other && commonness(k) < commonness(best)) {
                best = k;
            }
        }
        return best;
    };
    first_ = rarest(needle_.size());
    second_ = needle_.size() > 1 ? rarest(first_) : first_;
    const auto fill = [&](std::size_t k, unsigned char(&lower)[16], unsigned char(&upper)[16]) {
        const char folded = needle_[k];
        std::memset(lower, static_cast<unsigned char>(folded), sizeof lower);
        std::memset(upper, static_cast<unsigned char>(UpperChar(folded)), sizeof upper);
    };
    fill(first_, firstLower_, firstUpper_);
    fill(second_, secondLower_, secondUpper_);
}

long NoCaseFinder::Find(std::string_view text, long start) const {
    if (start < 1 || static_cast<std::size_t>(start - 1) > text.size()) {
        return 0;
    }
    auto at = static_cast<std::size_t>(start - 1);
    if (needle_.empty()) {
        return start;
    }
    if (needle_.size() > text.size() - at) {
        return 0;
    }
    const auto& fold = Folds().Lower;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    const auto* const wanted = reinterpret_cast<const unsigned char*>(needle_.data());
    const auto matchesAt = [&](std::size_t from) {
        for (std::size_t k = 0; k < needle_.size(); ++k) {
            if (fold[bytes[from + k]] != wanted[k]) {
                return false;
            }
        }
        return true;
    };

    const Bytes16 firstLower = Load16(firstLower_);
    const Bytes16 firstUpper = Load16(firstUpper_);
    const Bytes16 secondLower = Load16(secondLower_);
    const Bytes16 secondUpper = Load16(secondUpper_);
    const std::size_t last = text.size() - needle_.size(); // the last place a match can start
    for (; at + 16 <= last + 1; at += 16) {
        const Bytes16 one = Load16(bytes + at + first_);
        const Bytes16 two = Load16(bytes + at + second_);
        const auto both = ((one == firstLower) | (one == firstUpper)) &
                          ((two == secondLower) | (two == secondUpper));
        std::uint64_t halves[2];
        std::memcpy(halves, &both, sizeof halves);
        if ((halves[0] | halves[1]) == 0) {
            continue;
        }
        for (std::size_t k = 0; k < 16; ++k) {
            if (both[k] != 0 && matchesAt(at + k)) {
                return static_cast<long>(at + k) + 1;
            }
        }
    }
    for (; at <= last; ++at) {
        if (matchesAt(at)) {
            return static_cast<long>(at) + 1;
        }
    }
    return 0;
}

long FindNoCase(std::string_view text, std::string_view needle, long start) {
    return NoCaseFinder(needle).Find(text, start);
}

std::string LTrim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string RTrim(std::string_view text) {
    const auto last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string Trim(std::string_view text) {
    return LTrim(RTrim(text));
}

namespace {

unsigned char Byte(char c) {
    return static_cast<unsigned char>(c);
}

} // namespace

char UpperChar(char c) {
    const auto b = Byte(c);
    if (b >= 'a' && b <= 'z') {
        return static_cast<char>(b - 32);
    }
    // Latin-1 letters, except the division sign; the five Windows-1252 extras pair off in
    // their own places.
    if (b >= 0xE0 && b <= 0xFE && b != 0xF7) {
        return static_cast<char>(b - 32);
    }
    switch (b) {
    case 0x9A:
        return '\x8A';
    case 0x9C:
        return '\x8C';
    case 0x9E:
        return '\x8E';
    case 0xFF:
        return '\x9F';
    default:
        return c;
    }
}

char LowerChar(char c) {
    const auto b = Byte(c);
    if (b >= 'A' && b <= 'Z') {
        return static_cast<char>(b + 32);
    }
    if (b >= 0xC0 && b <= 0xDE && b != 0xD7) {
        return static_cast<char>(b + 32);
    }
    switch (b) {
    case 0x8A:
        return '\x9A';
    case 0x8C:
        return '\x9C';
    case 0x8E:
        return '\x9E';
    case 0x9F:
        return '\xFF';
    default:
        return c;
    }
}

std::string Upper(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), UpperChar);
    return result;
}

std::string Lower(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), LowerChar);
    return result;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && Lower(a) == Lower(b);
}

void UpperAt(std::string& text, long position) {
    if (position >= 1 && static_cast<std::size_t>(position) <= text.size()) {
        text[static_cast<std::size_t>(position - 1)] =
            UpperChar(text[static_cast<std::size_t>(position - 1)]);
    }
}

void LowerAt(std::string& text, long position) {
    if (position >= 1 && static_cast<std::size_t>(position) <= text.size()) {
        text[static_cast<std::size_t>(position - 1)] =
            LowerChar(text[static_cast<std::size_t>(position - 1)]);
    }
}

} // namespace veyrant
