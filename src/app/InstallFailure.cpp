#include "app/InstallFailure.h"

#include "core/Cp1252.h"

#include <cerrno>
#include <string>
#include <system_error>

namespace veyrant {

namespace {

struct PlainCause {
    std::string Cause;
    std::string Remedy;
};

PlainCause PlainCauseOf(int cause) {
    switch (cause) {
    case EROFS:
        return {"The disk is read-only.", "Make the disk writable"};
    case ENOSPC:
    case EDQUOT:
        return {"The disk is full.", "Make room on the disk"};
    case ENOTDIR:
    case EEXIST:
        return {"A file stands where the folder should be.", "Move that file out of the way"};
    case EISDIR:
        return {"A folder stands where the file should be.", "Move that folder out of the way"};
    case EACCES:
    case EPERM:
        return {"The program is not allowed to write there.", "Allow the program to write there"};
    default:
        return {"The folder cannot be written.", "Check the folder and the disk"};
    }
}

} // namespace

std::filesystem::path FailedFolder(const std::filesystem::path& path) {
    std::filesystem::path walked;
    for (const auto& part : path) {
        walked /= part;
        std::error_code error;
        if (!std::filesystem::is_directory(walked, error)) {
            return walked;
        }
    }
    return path;
}

MessageBoxRequest InstallFailureBox(const InstallFailure& failure) {
    const PlainCause plain = PlainCauseOf(failure.Cause());
    // The system's own words, for whoever helps the user; they follow the user's language.
    const auto systemWords = Utf8ToCp1252(std::generic_category().message(failure.Cause()));
    MessageBoxRequest box;
    box.Title = "Cannot Set Up the Veyrant Sagrel Folder";
    box.Text = "The Veyrant Sagrel cannot start, because it cannot make or write its folder " +
               PathText(failure.Folder()) + ".\r\n\r\n" + plain.Cause +
               (systemWords.Ok ? " The system reports: " + systemWords.Text + "." : "") +
               "\r\n\r\nYour Dialogues are not affected. " + plain.Remedy +
               ", then start the program again.";
    box.Icon = MessageIcon::Warning;
    box.Buttons = MessageButtons::Ok;
    return box;
}

MessageBoxRequest UnfinishedChangeBox(int cause, const std::filesystem::path& file) {
    const PlainCause plain = PlainCauseOf(cause);
    MessageBoxRequest box;
    box.Title = "Cannot Finish Storing the Dialogues";
    box.Text = "The Veyrant Sagrel cannot finish a change of its files that it began earlier, "
               "because the disk refuses the file " +
               PathText(file) + ".\r\n\r\n" + plain.Cause +
               "\r\n\r\nNothing is lost: the change is kept and will be finished at a later "
               "start, and you can go on writing now. " +
               plain.Remedy + ".";
    box.Icon = MessageIcon::Warning;
    box.Buttons = MessageButtons::Ok;
    return box;
}

} // namespace veyrant
