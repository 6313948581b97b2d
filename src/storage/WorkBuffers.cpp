#include "storage/WorkBuffers.h"

#include "core/FieldReader.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "storage/FileOperations.h"
#include "storage/StorageFailure.h"

#include <array>
#include <system_error>
#include <utility>

namespace veyrant {

namespace {

constexpr const char* InspirationBuffer = "savei.tmp";
constexpr const char* DialogueBuffer = "savem.tmp";
constexpr const char* SuggestionBuffer = "saves.tmp";
constexpr const char* PairCountBuffer = "savep.tmp";

// The number form of the settings files: a blank before a number that has no sign, a blank
// after every number.
std::string NumberLine(int value) {
    return (value < 0 ? "" : " ") + std::to_string(value) + " " + std::string(CrLf);
}

std::filesystem::path Staged(const std::filesystem::path& path) {
    return path.parent_path() / (path.filename().string() + ".new");
}

} // namespace

std::filesystem::path InspirationBufferPath(const AppFolder& folder) {
    return folder.Exe() / InspirationBuffer;
}

WorkBuffers::WorkBuffers(const AppFolder& folder, const Settings& settings, const Clock& clock,
                         WindowLayer& windows)
    : folder_(folder), settings_(settings), clock_(clock), windows_(windows) {}

bool WorkBuffers::WriteWorkBuffers(const DialogueBuffers& dialogue) {
    if (settings_.GuestMode == 1) {
        return true;
    }
    const std::array<std::pair<std::filesystem::path, std::string>, 4> files = {{
        {folder_.Exe() / InspirationBuffer, dialogue.InspirationText},
        {folder_.Exe() / DialogueBuffer, dialogue.DialogueText},
        {folder_.Exe() / SuggestionBuffer, dialogue.SuggestionText},
        {folder_.Exe() / PairCountBuffer, NumberLine(dialogue.PairCount)},
    }};
    // All four are laid down beside the old set first, so that a full disk halfway leaves the
    // old set whole; renaming them over it cannot run out of room.
    std::filesystem::path writing = folder_.Exe();
    try {
        MakeFolder(folder_.Exe());
        for (const auto& [path, text] : files) {
            writing = path;
            WriteWholeFile(Staged(path), text);
        }
        for (const auto& [path, text] : files) {
            writing = path;
            RenameFile(Staged(path), path);
        }
        return true;
    } catch (const ProgramError& error) {
        for (const auto& [path, text] : files) {
            std::error_code ignored;
            std::filesystem::remove(Staged(path), ignored);
        }
        windows_.ShowMessage(KeepFailureBox(error.Number(), writing));
        return false;
    }
}

std::optional<PriorDialogue> WorkBuffers::ReadWorkBuffers() const {
    if (settings_.GuestMode == 1) {
        return std::nullopt;
    }
    try {
        PriorDialogue prior;
        prior.Buffers.InspirationText = ReadWholeFile(folder_.Exe() / InspirationBuffer);
        prior.Buffers.DialogueText = ReadWholeFile(folder_.Exe() / DialogueBuffer);
        prior.Buffers.SuggestionText = ReadWholeFile(folder_.Exe() / SuggestionBuffer);
        const std::string pairCount = ReadWholeFile(folder_.Exe() / PairCountBuffer);
        prior.Buffers.PairCount = FieldReader(pairCount).ReadInt16();
        const auto written = clock_.FileDate(folder_.Exe() / InspirationBuffer);
        if (!written) {
            return std::nullopt;
        }
        prior.BufferDate = *written;
        prior.PriorAge = AgeInDays(clock_.Now(), *written);
        return prior;
    } catch (const ProgramError&) {
        return std::nullopt;
    }
}

void WorkBuffers::DeleteWorkBuffers() {
    if (settings_.GuestMode == 1) {
        return;
    }
    for (const char* name : {InspirationBuffer, DialogueBuffer, PairCountBuffer}) {
        std::error_code error;
        if (!std::filesystem::remove(folder_.Exe() / name, error)) {
            return;
        }
    }
}

} // namespace veyrant
