#include "core/FieldReader.h"

#include "core/ProgramError.h"

#include <algorithm>

namespace veyrant {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

} // namespace

void FieldReader::SkipBlanks() {
    while (pos_ < text_.size() && IsBlank(text_[pos_])) {
        ++pos_;
    }
}

bool FieldReader::AtEnd() const {
    return std::all_of(text_.begin() + static_cast<std::ptrdiff_t>(pos_), text_.end(),
                       [](char c) { return IsBlank(c) || IsLineEnd(c); });
}

void FieldReader::RequireRoomFor(std::int64_t fields) const {
    if (fields > static_cast<std::int64_t>(text_.size() - pos_)) {
        throw ProgramError(ErrorNumber::InputPastEnd);
    }
}

int FieldReader::Line() const {
    return 1 + static_cast<int>(std::count(
                   text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(pos_), '\n'));
}

void FieldReader::RequireField() {
    // Empty lines between fields are no fields of their own.
    while (pos_ < text_.size() && (IsBlank(text_[pos_]) || IsLineEnd(text_[pos_]))) {
        ++pos_;
    }
    if (pos_ >= text_.size()) {
        throw ProgramError(ErrorNumber::InputPastEnd);
    }
}

// After a value: blanks, then at most one comma or one line end.
void FieldReader::FinishField() {
    SkipBlanks();
    if (pos_ >= text_.size()) {
        return;
    }
    if (text_[pos_] == ',') {
        ++pos_;
    } else if (text_[pos_] == '\r') {
        ++pos_;
        if (pos_ < text_.size() && text_[pos_] == '\n') {
            ++pos_;
        }
    } else if (text_[pos_] == '\n') {
        ++pos_;
    }
}

std::int64_t FieldReader::ReadNumber(std::int64_t low, std::int64_t high) {
    RequireField();
    const auto start = pos_;
    while (pos_ < text_.size() && !IsBlank(text_[pos_]) && !IsLineEnd(text_[pos_]) &&
           text_[pos_] != ',') {
        ++pos_;
    }
    std::string_view token = text_.substr(start, pos_ - start);
    FinishField();
    if (token.empty()) {
        return 0; // an empty field between two commas reads as zero
    }
    bool negative = false;
    if (token.front() == '-' || token.front() == '+') {
        negative = token.front() == '-';
        token.remove_prefix(1);
    }
    if (token.empty() ||
        !std::all_of(token.begin(), token.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        throw ProgramError(ErrorNumber::TypeMismatch);
    }
    std::int64_t value = 0;
    for (char c : token) {
        value = value * 10 + (c - '0');
        if (value > high + 1) {
            throw ProgramError(ErrorNumber::Overflow);
        }
    }
    if (negative) {
        value = -value;
    }
    if (value < low || value > high) {
        throw ProgramError(ErrorNumber::Overflow);
    }
    return value;
}

std::int16_t FieldReader::ReadInt16() {
    return static_cast<std::int16_t>(ReadNumber(INT16_MIN, INT16_MAX));
}

std::int32_t FieldReader::ReadInt32() {
    return static_cast<std::int32_t>(ReadNumber(INT32_MIN, INT32_MAX));
}

std::string FieldReader::ReadString() {
    RequireField();
    if (text_[pos_] == '"') {
        const auto close = text_.find('"', pos_ + 1);
        const auto end = close == std::string_view::npos ? text_.size() : close;
        std::string value(text_.substr(pos_ + 1, end - pos_ - 1));
        pos_ = close == std::string_view::npos ? text_.size() : close + 1;
        // Whatever stands between the closing quote and the delimiter is not part of the value.
        while (pos_ < text_.size() && text_[pos_] != ',' && !IsLineEnd(text_[pos_])) {
            ++pos_;
        }
        FinishField();
        return value;
    }
    const auto start = pos_;
    while (pos_ < text_.size() && text_[pos_] != ',' && !IsLineEnd(text_[pos_])) {
        ++pos_;
    }
    std::string value(text_.substr(start, pos_ - start));
    while (!value.empty() && IsBlank(value.back())) {
        value.pop_back();
    }
    FinishField();
    return value;
}

} // namespace veyrant
