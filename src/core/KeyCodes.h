#pragma once

// Key codes as the key-down stage sees them, and the character codes of the key-press stage
// that the rules name.

namespace veyrant::KeyCode {

inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Shift = 16;
inline constexpr int Control = 17;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F1 = 112;

// F1 to F12.
constexpr int Function(int number) {
    return F1 + number - 1;
}

} // namespace veyrant::KeyCode
