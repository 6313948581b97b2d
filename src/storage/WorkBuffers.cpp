#include "storage/WorkBuffers.h"

#include "core/Cp1252.h"
#include "core/DateFormat.h"
#include "core/FieldReader.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "storage/DialogueFile.h"
#include "storage/FileTransaction.h"
#include "storage/StorageFailure.h"

#include <array>
#include <string_view>
#include <system_error>
#include <utility>

namespace veyrant {

namespace {

// Every run begins with a blank line, a tab and the opening mark, and nothing the program puts
// inside a run holds that sequence, so the runs can be counted again when savep.tmp is damaged.
int RunsIn(std::string_view dialogueText) {
    static const std::string RunStart = std::string(RunLead) + "\t\x93";
    int runs = 0;
    for (auto at = dialogueText.find(RunStart); at != std::string_view::npos;
         at = dialogueText.find(RunStart, at + RunStart.size())) {
        ++runs;
    }
    return runs;
}

// The count as savep.tmp holds it, or, when that file is there but damaged, the runs of the
// Dialogue: the Prior Dialogue is not lost for one bad byte.
int PairCountOf(const std::string& countText, std::string_view dialogueText) {
    try {
        FieldReader reader(countText);
        const int count = reader.ReadInt16();
        if (reader.AtEnd()) {
            return count;
        }
    } catch (const ProgramError&) {
    }
    return RunsIn(dialogueText);
}

// savep.tmp as it stands. Missing, as after a delete by hand, it raises; there but unreadable,
// it reads as damaged.
std::string ReadCountBuffer(const DialogueFile& buffer) {
    try {
        return buffer.Read();
    } catch (const ProgramError& error) {
        if (error.Number() == ErrorNumber::FileNotFound) {
            throw;
        }
        return {};
    }
}

// The number form of the settings files: a blank before a number that has no sign, a blank
// after every number.
std::string NumberLine(int value) {
    return (value < 0 ? "" : " ") + std::to_string(value) + " " + std::string(CrLf);
}

} // namespace

std::filesystem::path InspirationBufferPath(const AppFolder& folder) {
    return DialogueFile::Buffer(folder, WorkBuffer::Inspiration).Path();
}

WorkBuffers::WorkBuffers(const AppFolder& folder, const Settings& settings, const Clock& clock,
                         WindowLayer& windows)
    : folder_(folder), settings_(settings), clock_(clock), windows_(windows) {}

bool WorkBuffers::WriteWorkBuffers(const DialogueBuffers& dialogue) {
    const auto failure = Write(dialogue);
    if (failure) {
        windows_.ShowMessage(KeepFailureBox(failure->Number, failure->File));
    }
    return !failure;
}

KeepOutcome WorkBuffers::WriteWorkBuffersLeaving(const DialogueBuffers& dialogue) {
    const auto failure = Write(dialogue);
    if (!failure) {
        return KeepOutcome::Kept;
    }
    const auto answer = windows_.ShowMessage(LeavingKeepFailureBox(failure->Number, failure->File));
    return answer == MessageAnswer::Yes ? KeepOutcome::SaveElsewhere : KeepOutcome::NotKept;
}

std::optional<WorkBuffers::WriteFailure> WorkBuffers::Write(const DialogueBuffers& dialogue) const {
    if (settings_.GuestMode == 1) {
        return std::nullopt;
    }
    const std::array<std::pair<WorkBuffer, std::string>, 4> files = {{
        {WorkBuffer::Inspiration, dialogue.InspirationText},
        {WorkBuffer::Dialogue, dialogue.DialogueText},
        {WorkBuffer::Suggestion, dialogue.SuggestionText},
        {WorkBuffer::PairCount, NumberLine(dialogue.PairCount)},
    }};
    // All four are laid down beside the old set and then put in place as one change, so that a
    // full disk or a crash halfway leaves the old set whole.
    std::filesystem::path writing = folder_.Exe();
    try {
        MakeFolder(folder_.Exe());
        FileTransaction change(folder_.Root);
        for (const auto& [buffer, text] : files) {
            const auto file = DialogueFile::Buffer(folder_, buffer);
            writing = file.Path();
            file.Stage(change, text);
        }
        writing = folder_.Exe();
        change.Commit();
        return std::nullopt;
    } catch (const ProgramError& error) {
        return WriteFailure{error.Number(), writing};
    }
}

std::optional<PriorDialogue> WorkBuffers::ReadWorkBuffers() const {
    if (settings_.GuestMode == 1) {
        return std::nullopt;
    }
    PriorDialogue prior;
    const std::array<std::pair<WorkBuffer, std::string*>, 3> texts = {{
        {WorkBuffer::Inspiration, &prior.Buffers.InspirationText},
        {WorkBuffer::Dialogue, &prior.Buffers.DialogueText},
        {WorkBuffer::Suggestion, &prior.Buffers.SuggestionText},
    }};
    bool whole = true;
    for (const auto& [buffer, text] : texts) {
        const auto file = DialogueFile::Buffer(folder_, buffer);
        try {
            *text = file.Read();
            continue;
        } catch (const ProgramError& error) {
            if (error.Number() != ErrorNumber::FileNotFound) {
                SetAside(file.Path());
            }
        }
        whole = false;
    }
    if (!whole) {
        return std::nullopt;
    }
    try {
        const std::string pairCount =
            ReadCountBuffer(DialogueFile::Buffer(folder_, WorkBuffer::PairCount));
        prior.Buffers.PairCount = PairCountOf(pairCount, prior.Buffers.DialogueText);
        const auto written = clock_.FileDate(InspirationBufferPath(folder_));
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

// A buffer the program cannot use would be written over at the next close: it is moved aside
// under a dated name next to it, and the user is told where.
void WorkBuffers::SetAside(const std::filesystem::path& buffer) const {
    const std::string stamp = FormatDate(clock_.Now(), "yyyy-mm-dd-hhnnss");
    std::filesystem::path aside;
    std::error_code error;
    for (int copy = 1;; ++copy) {
        aside = buffer.parent_path() / (buffer.filename().string() + "." + stamp +
                                        (copy > 1 ? "-" + std::to_string(copy) : "") + ".unusable");
        if (!std::filesystem::exists(std::filesystem::symlink_status(aside, error))) {
            break;
        }
    }
    const std::string told = "The work buffer " + PathText(buffer) +
                             " cannot be read as a Dialogue: it is too large, no text the "
                             "program wrote, or no plain file.";
    try {
        RenameFile(buffer, aside);
        windows_.ShowMessage(
            WarningBox("Prior Dialogue Set Aside",
                       told + std::string(CrLf) + std::string(CrLf) + "It has been kept as " +
                           PathText(aside) +
                           ", where nothing will write over it, and a new Dialogue " + "begins."));
    } catch (const ProgramError& failure) {
        windows_.ShowMessage(WarningBox(
            "Error " + std::to_string(failure.Number()) + " Setting the Prior Dialogue Aside",
            told + std::string(CrLf) + std::string(CrLf) +
                "It could not be moved aside, and a new Dialogue begins: copy the file to a safe "
                "place before you close the program, which writes over it."));
    }
}

void WorkBuffers::DeleteWorkBuffers() {
    if (settings_.GuestMode == 1) {
        return;
    }
    FileTransaction change(folder_.Root);
    for (const auto buffer :
         {WorkBuffer::Inspiration, WorkBuffer::Dialogue, WorkBuffer::PairCount}) {
        change.Remove(DialogueFile::Buffer(folder_, buffer).Path());
    }
    try {
        change.Commit();
    } catch (const ProgramError&) {
        // The buffers stay as they were, or go at the next start; either is harmless.
    }
}

} // namespace veyrant
