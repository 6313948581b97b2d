#pragma once

// Windows-1252 is the program's text form in memory and on disk; Qt speaks UTF-16 and the
// authored content is UTF-8. These conversions are the only bridges between them.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace veyrant {

// The Unicode character of a Windows-1252 byte. The five bytes with no assigned character map
// to the C1 control of the same number, so every byte converts and round-trips.
char32_t Cp1252ToCodePoint(char byte);

// The byte of a Unicode character, or nothing where Windows-1252 has no code for it.
std::optional<char> CodePointToCp1252(char32_t codePoint);

std::u16string Cp1252ToUtf16(std::string_view text);
std::string Cp1252ToUtf8(std::string_view text);

// Nothing when a character has no Windows-1252 code.
std::optional<std::string> Utf16ToCp1252(std::u16string_view text);

struct Utf8Conversion {
    std::string Text; // the converted text, when Ok
    bool Ok = true;
    std::size_t BadOffset = 0; // byte offset of the first character that cannot be converted
};

// Refuses malformed UTF-8 as well as characters with no Windows-1252 code.
Utf8Conversion Utf8ToCp1252(std::string_view text);

// A path as the program's boxes name it: in Windows-1252 where every character has a code,
// else as its bytes stand.
std::string PathText(const std::filesystem::path& path);

} // namespace veyrant
