#pragma once

// Text helpers on Windows-1252 strings: one byte is one character, and positions count from 1
// as the program counts them.

#include <cstddef>
#include <string>
#include <string_view>

namespace veyrant {

inline constexpr char Tab = '\t';
inline constexpr char OpenQuote = '\x93';  // code 147
inline constexpr char CloseQuote = '\x94'; // code 148
inline constexpr std::string_view CrLf = "\r\n";

// Characters from 1-based position start; length < 0 means to the end. Out-of-range positions
// give what exists, never an error.
std::string Mid(std::string_view text, long start, long length = -1);
std::string Left(std::string_view text, long length);
std::string Right(std::string_view text, long length);

// 1-based position of needle at or behind start, or 0. An empty needle is found at start.
long Find(std::string_view text, std::string_view needle, long start = 1);
long FindNoCase(std::string_view text, std::string_view needle, long start = 1);

// FindNoCase with the needle made ready once, for a search that looks through many texts. It
// finds what comparing lower-cased copies would find, without making them.
class NoCaseFinder {
public:
    explicit NoCaseFinder(std::string_view needle);
    long Find(std::string_view text, long start = 1) const;

private:
    std::string needle_; // lower-cased
    // The needle's two least common characters, and each of their cases sixteen times over.
    std::size_t first_ = 0;
    std::size_t second_ = 0;
    unsigned char firstLower_[16] = {};
    unsigned char firstUpper_[16] = {};
    unsigned char secondLower_[16] = {};
    unsigned char secondUpper_[16] = {};
};

// Blanks (code 32) only, as the program trims.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

char UpperChar(char c);
char LowerChar(char c);
std::string Upper(std::string_view text);
std::string Lower(std::string_view text);
bool EqualNoCase(std::string_view a, std::string_view b);

// Replaces the character at 1-based position with its upper or lower case, if it exists.
void UpperAt(std::string& text, long position);
void LowerAt(std::string& text, long position);

} // namespace veyrant
