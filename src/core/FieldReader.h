#pragma once

// The one reader of the program's data files. Values stand one after another, parted by commas
// or line ends, with blanks around them skipped; a string stands between double quotes; a
// number is decimal. Line breaks carry no other meaning. A failure raises ProgramError: 62 at an
// early end, 6 on overflow, 13 on a field that is not a number.

#include <cstdint>
#include <string>
#include <string_view>

namespace veyrant {

class FieldReader {
public:
    explicit FieldReader(std::string_view text) : text_(text) {}
    // The reader keeps a view of the text: a temporary would be gone before the first field.
    explicit FieldReader(std::string&&) = delete;
    explicit FieldReader(const char* text) : text_(text) {}

    std::int16_t ReadInt16();
    std::int32_t ReadInt32();
    // A quoted string without its quotes, or an unquoted field up to its comma or line end
    // with its outer blanks removed.
    std::string ReadString();
    // Any field as text, for labels that are read and ignored.
    std::string ReadAny() { return ReadString(); }

    // Raises 62 unless the rest of the text could still hold that many fields. Every field takes
    // at least one character, so a count read from a file that passes this sizes nothing beyond
    // the file's own size.
    void RequireRoomFor(std::int64_t fields) const;

    // True when only blanks and line ends remain.
    bool AtEnd() const;
    // 1-based line of the next field, for messages that name a place.
    int Line() const;

private:
    std::int64_t ReadNumber(std::int64_t low, std::int64_t high);
    void SkipBlanks();
    void FinishField();
    void RequireField();

    std::string_view text_;
    std::size_t pos_ = 0;
};

} // namespace veyrant
