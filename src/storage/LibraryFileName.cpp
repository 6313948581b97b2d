#include "storage/LibraryFileName.h"

#include "core/DateFormat.h"
#include "core/ProgramError.h"
#include "core/Text.h"

#include <cctype>
#include <charconv>
#include <optional>

namespace veyrant {

namespace {

bool IsDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

std::optional<int> DigitsValue(std::string_view field) {
    if (field.empty() || field.size() > 6) {
        return std::nullopt;
    }
    int value = 0;
    for (const char c : field) {
        if (!IsDigit(c)) {
            return std::nullopt;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

// Reads "m/d/yyyy h:n" strictly; anything else is no date.
std::optional<DateTime> ReadDateText(std::string_view text) {
    static constexpr char Separators[] = {'/', '/', ' ', ':'};
    int parts[5] = {};
    std::size_t at = 0;
    for (int i = 0; i < 5; ++i) {
        const std::size_t end = i < 4 ? text.find(Separators[i], at) : text.size();
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const auto value = DigitsValue(text.substr(at, end - at));
        if (!value) {
            return std::nullopt;
        }
        parts[i] = *value;
        at = end + 1;
    }
    const DateTime when{parts[2], parts[0], parts[1], parts[3], parts[4], 0};
    if (!IsValidDate(when.Year, when.Month, when.Day) || when.Hour > 23 || when.Minute > 59) {
        return std::nullopt;
    }
    return when;
}

} // namespace

std::string MakeFileName(const DateTime& when, int fileTag) {
    return std::to_string(when.Year - 1950) + FormatDate(when, "mmddhh") + "." +
           FormatDate(when, "nn") + std::to_string(fileTag);
}

ParsedFileName ParseFileName(std::string_view name) {
    const std::string yearField = Mid(name, 1, 2);
    const auto year = DigitsValue(yearField);
    ParsedFileName parsed;
    parsed.FileDateText = Mid(name, 3, 2) + "/" + Mid(name, 5, 2) + "/" +
                          (year ? std::to_string(*year + 1950) : yearField) + " " +
                          Mid(name, 7, 2) + ":" + Mid(name, 10, 2);
    const std::string tag = Mid(name, 12, 1);
    parsed.FileTag = !tag.empty() && IsDigit(tag[0]) ? tag[0] - '0' : 0;
    return parsed;
}

DateTime FileDateValue(std::string_view fileDateText) {
    const auto when = ReadDateText(fileDateText);
    if (!when) {
        throw ProgramError(ErrorNumber::TypeMismatch);
    }
    return *when;
}

double SortKey(std::string_view name) {
    // The leading number only: blanks, a sign, digits and one decimal point.
    const std::string key = LTrim(Left(name, static_cast<long>(name.size()) - 1));
    std::size_t end = 0;
    if (end < key.size() && (key[end] == '-' || key[end] == '+')) {
        ++end;
    }
    bool point = false;
    while (end < key.size() && (IsDigit(key[end]) || (key[end] == '.' && !point))) {
        point = point || key[end] == '.';
        ++end;
    }
    // from_chars, not strtod: the number form must not follow the user's locale.
    const std::size_t start = end > 0 && key[0] == '+' ? 1 : 0;
    double value = 0;
    std::from_chars(key.data() + start, key.data() + end, value);
    return value;
}

} // namespace veyrant
