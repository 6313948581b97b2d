#pragma once

// The one codec of the files that hold the user's Dialogues: the pair of a saved Dialogue in isp/
// and dlg/, and the work buffers in exe/ that hold the running one. Nothing else turns the bytes
// of those files into text or text into their bytes, and it does so knowing the file it codes,
// so that how a Dialogue is kept on disk is changed here alone.
//
// On disk a file is its text and nothing more: cp1252, one byte per character as the program
// holds its text, with no byte-order mark, no header and no line end added. An isp/ file, like
// savei.tmp, is a tab and the Inspiration. A dlg/ file, like savem.tmp, is the Dialogue's runs,
// oldest first, each led by a blank line.
//
// In a locked Library every one of these files is instead an envelope of that text, bound to the
// file's own folder and name.

#include "core/SecretKey.h"
#include "core/WholeFile.h"
#include "shell/AppFolder.h"
#include "storage/FileTransaction.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace veyrant {

// The blank line that leads every run of a Dialogue, and so every Dialogue file.
inline constexpr std::string_view RunLead = "\r\n\r\n";

// The Dialogue as a page shows it: without the blank line that leads it.
std::string WithoutLead(std::string_view dialogueText);

// How much of a file reads back as text: at most Bytes in all, at most LineBytes in one line.
struct TextLimit {
    std::size_t Bytes = WholeFileLimit;
    std::size_t LineBytes = WholeFileLimit;
};

// What the program itself can write into a work buffer. The Dialogue limit lets a Dialogue grow
// to 121 kept runs, and a run is one entry of at most 280 characters with its marks and one reply
// of at most MaxComponents composed rows: 8 KiB holds either with room to spare, and an
// Inspiration or a Suggestion too. More, or a longer line, is no buffer of ours: it would keep
// the window's text layout busy for minutes. A saved Dialogue reads whole, as the user kept it.
inline constexpr std::size_t MostRuns = 121;
inline constexpr std::size_t MostRunBytes = 8 * 1024;

enum class WorkBuffer { Inspiration, Dialogue, Suggestion, PairCount };

class DialogueFile {
public:
    explicit DialogueFile(std::filesystem::path file, TextLimit limit = {},
                          std::shared_ptr<const SecretKey> key = {});

    static DialogueFile SavedInspiration(const AppFolder& folder, const std::string& fileName);
    static DialogueFile SavedDialogue(const AppFolder& folder, const std::string& fileName);
    static DialogueFile Buffer(const AppFolder& folder, WorkBuffer buffer);

    const std::filesystem::path& Path() const { return file_; }

    // The file's text. Raises ProgramError as ReadWholeFile does: 53 when the file is missing,
    // 75 when it cannot be read, 7 when it is over the limit or holds a line over it; raises
    // LockedFileError naming the file when it is sealed and does not open with the key, or when
    // it is sealed and the Library has no key open.
    std::string Read() const;

    // Lays the text down as the file's new content within the change, which puts it in place;
    // raises ProgramError as FileTransaction::Write does.
    void Stage(FileTransaction& change, std::string_view text) const;

private:
    // The folder and name an envelope is bound to: dlg/ and isp/ files of one name differ.
    std::string SealedName() const;

    std::filesystem::path file_;
    TextLimit limit_;
    std::shared_ptr<const SecretKey> key_;
};

} // namespace veyrant
