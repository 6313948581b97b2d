#include "storage/WorkBuffers.h"

#include "core/FieldReader.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "storage/FileTransaction.h"
#include "storage/StorageFailure.h"

#include <array>
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
    // All four are laid down beside the old set and then put in place as one change, so that a
    // full disk or a crash halfway leaves the old set whole.
    std::filesystem::path writing = folder_.Exe();
    try {
        MakeFolder(folder_.Exe());
        FileTransaction change(folder_.Root);
        for (const auto& [path, text] : files) {
            writing = path;
            change.Write(path, text);
        }
        writing = folder_.Exe();
        change.Commit();
        return true;
    } catch (const ProgramError& error) {
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
    FileTransaction change(folder_.Root);
    for (const char* name : {InspirationBuffer, DialogueBuffer, PairCountBuffer}) {
        change.Remove(folder_.Exe() / name);
    }
    try {
        change.Commit();
    } catch (const ProgramError&) {
        // The buffers stay as they were, or go at the next start; either is harmless.
    }
}

} // namespace veyrant
