#pragma once

#include <exception>
#include <string>

namespace veyrant {

// A numbered error of the program. Routines raise it and their own handler (never a window
// handler's caller) turns it into the program's message box. Numbers below 1000 follow the
// classic run-time numbers (6 overflow, 13 type mismatch, 53 file not found, 62 input past end
// of file, 75 path/file access error); 1001 and upward are the program's own.
class ProgramError : public std::exception {
public:
    explicit ProgramError(int number) : number_(number), what_("error " + std::to_string(number)) {}
    int Number() const noexcept { return number_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    int number_;
    std::string what_;
};

namespace ErrorNumber {
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ProgramState = 1001;
} // namespace ErrorNumber

} // namespace veyrant
