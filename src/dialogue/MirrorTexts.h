#pragma once

// The fixed texts of the Write window that more than one routine shows.

#include "engine/EntryCodes.h"

#include <string>
#include <string_view>

namespace veyrant::MirrorText {

inline constexpr std::string_view HelpTitle = "Veyrant Sagrel Help";
inline constexpr std::string_view InvalidKeyTitle = "Invalid Key";
inline constexpr std::string_view Processing = "Processing . . .";
inline constexpr std::string_view TitleLead = "Veyrant Sagrel -- ";
inline constexpr std::string_view TitleDateFormat = "dddd, h:nn am/pm, mmmm d, yyyy";
// What the title says the first time a run reaches the New Dialogue state.
inline constexpr std::string_view ProductLine =
    "Veyrant Sagrel 4.1 -- Written Dialogues of Self-Reflection";

inline constexpr std::string_view TooShort =
    ">> Your entry is too short. Add more detail to clarify its meaning until the display status "
    "to the right no longer shows 'X'. Or click 'Rewrite' or the text to begin again.";
inline constexpr std::string_view TooShortInstruction =
    "Lengthen your entry, or click 'Rewrite' to begin again. Press 'Enter' when 'X' no longer "
    "shows.";
inline constexpr std::string_view TooLong =
    ">> Your entry is too long. Delete text with the backspace, or arrows and delete key, until "
    "the display status to the right no longer shows 'X'. Or click the text or 'Rewrite' to "
    "begin again.";
inline constexpr std::string_view TooLongInstruction =
    "Shorten your entry, or click 'Rewrite' to begin again. Press 'Enter' when 'X' no longer "
    "shows.";

inline constexpr std::string_view Added =
    "Text was added into the Dialogue. Click 'Remove' to erase it, before continuing. Press "
    "'Enter' to continue.";
inline constexpr std::string_view NotAdded =
    "Text was not added into the Dialogue. Click 'Keep' to retain it, before continuing. Press "
    "'Enter' to continue.";

inline constexpr std::string_view TipDirection =
    "Click the text to toggle between the Direction, Inspiration, and Suggestion.";
inline constexpr std::string_view TipQuestion =
    "Click the text to toggle between the Question, Inspiration, and Suggestion.";
inline constexpr std::string_view TipKeys =
    "F1=Help F2=Know F3=Retrieve F4=Aknow F5=Converse F6=Suppose F7=Comment F9=Rewrite F10=Edit "
    "F11=Display";
inline constexpr std::string_view TipKeysLead = "Function key alternates for mouse clicks . . .";
inline constexpr std::string_view TipRestoreBackground =
    "Click to restore the background that surrounds the window.";

// The direction of a method as txtResponse shows it: heading, line end, tab, body.
std::string DirectionConversation();
std::string DirectionSupposition();
std::string DirectionBeginningNotation();
std::string DirectionNotation();

// The ">>" message for a refused entry, by EntryStatus and method.
std::string RejectionMessage(EntryVerdict entryStatus, WriteMethod activeMethod);

} // namespace veyrant::MirrorText
