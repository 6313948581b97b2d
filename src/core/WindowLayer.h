#pragma once

// Everything the logic needs from the windowing platform, and nothing more. The Qt program
// implements it; tests use a fake that answers message boxes from a script.

#include "core/DateTime.h"

#include <filesystem>
#include <optional>
#include <string>

namespace veyrant {

enum class MessageIcon { None, Stop, Question, Warning, Information };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

struct MessageBoxRequest {
    std::string Title; // Windows-1252, as everywhere in the core
    std::string Text;
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::Ok;
    int DefaultButton = 1; // 1-based among the buttons shown
};

// A Dialogue for the printed pages: its two texts, the heading's title and the date it shows.
struct PrintRequest {
    std::string Inspiration;
    std::string Dialogue; // without the blank line that leads every saved Dialogue
    std::string Title;
    DateTime ShownDate;
};

// Closing the print dialog or the preview unprinted is a cancel, not a failure.
enum class PrintOutcome { Printed, Cancelled, Failed };

enum class WindowId { Banner, Back, Mirror, Read, Options, Utility, Resize, Check, Export };
enum class TimerId { BannerTimer, BackTimer, MirrorTimer1, MirrorHover, ReadHover };

class WindowLayer {
public:
    virtual ~WindowLayer() = default;

    virtual MessageAnswer ShowMessage(const MessageBoxRequest& request) = 0;
    // One turn of the event loop, so that pending paints happen.
    virtual void Yield() = 0;
    virtual void SetBusyPointer(bool busy) = 0;

    virtual void StartTimer(TimerId timer, int milliseconds) = 0;
    virtual void StopTimer(TimerId timer) = 0;

    // Creates a window without showing it; showing a window that is not loaded loads it first.
    virtual void LoadWindow(WindowId window) = 0;
    // Hides and destroys a window; it is built afresh at its next load.
    virtual void UnloadWindow(WindowId window) = 0;
    virtual void ShowWindow(WindowId window) = 0;
    virtual void HideWindow(WindowId window) = 0;
    virtual void MinimiseWindow(WindowId window) = 0;
    virtual void RestoreWindow(WindowId window) = 0;
    virtual bool IsWindowVisible(WindowId window) const = 0;
    virtual bool IsWindowMinimised(WindowId window) const = 0;

    // Logical pixels times 15.
    virtual int ScreenWidthTwips() const = 0;
    virtual int ScreenHeightTwips() const = 0;

    // Width in twips of a line of text in the named face at a point size.
    virtual int TextWidthTwips(const std::string& face, double points, bool bold, bool italic,
                               const std::string& text) const = 0;

    // True when this machine really has the face, not a stand-in for it.
    virtual bool HasFontFace(const std::string& face, bool italic) const = 0;

    // The print dialog with its preview and its PDF output, then the pages themselves.
    virtual PrintOutcome PrintDialogue(const PrintRequest& request) = 0;
    // Opens the text in the program's own editor; Save As proposes the file name.
    virtual void ShowInEditor(const std::string& text, const std::string& proposedFileName) = 0;
    // Asks where to save a file, proposing the name in the folder last saved into, or else the
    // documents folder or home; nothing when the user cancels.
    virtual std::optional<std::filesystem::path>
    AskSaveFileName(const std::string& proposedFileName) = 0;
    // Asks for a folder with the system's folder dialog, titled as given; nothing when the user
    // cancels.
    virtual std::optional<std::filesystem::path> AskFolder(const std::string& title) = 0;
    // Opens the folder in the desktop's file manager.
    virtual void OpenFolder(const std::filesystem::path& folder) = 0;

    // Ends the process after the given delay; the event loop runs until then.
    virtual void EndProcessAfter(int milliseconds) = 0;
    // Ends the process at once.
    virtual void EndProcess() = 0;
};

inline constexpr int TwipsPerPixel = 15;

} // namespace veyrant
