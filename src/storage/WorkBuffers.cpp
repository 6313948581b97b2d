#include "storage/WorkBuffers.h"

#include "core/Cp1252.h"
#include "core/DateFormat.h"
#include "core/FieldReader.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "storage/FileTransaction.h"
#include "storage/StorageFailure.h"

#include <array>
#include <string_view>
#include <system_error>
#include <tuple>
#include <utility>

namespace veyrant {

namespace {

constexpr const char* InspirationBuffer = "savei.tmp";
constexpr const char* DialogueBuffer = "savem.tmp";
constexpr const char* SuggestionBuffer = "saves.tmp";
constexpr const char* PairCountBuffer = "savep.tmp";

// What the program itself can write. The Dialogue limit lets a Dialogue grow to 121 kept runs,
// and a run is one entry of at most 280 characters with its marks and one reply of at most
// MaxComponents composed rows: 8 KiB holds either with room to spare, and an Inspiration or a
// Suggestion too. More, or a longer line, is no buffer of ours: it would keep the window's
// text layout busy for minutes.
constexpr std::size_t MostRuns = 121;
constexpr std::size_t MostRunBytes = 8 * 1024;
constexpr std::size_t MostCountBytes = 64;

bool LinesFit(std::string_view text) {
    std::size_t start = 0;
    for (;;) {
        const auto end = text.find('\n', start);
        if ((end == std::string_view::npos ? text.size() : end) - start > MostRunBytes) {
            return false;
        }
        if (end == std::string_view::npos) {
            return true;
        }
        start = end + 1;
    }
}

// Every run begins with a blank line, a tab and the opening mark, and nothing the program puts
// inside a run holds that sequence, so the runs can be counted again when savep.tmp is damaged.
int RunsIn(std::string_view dialogueText) {
    static constexpr std::string_view RunStart = "\r\n\r\n\t\x93";
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
std::string ReadCountBuffer(const std::filesystem::path& path) {
    try {
        return ReadWholeFile(path, MostCountBytes);
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
    return folder.Exe() / InspirationBuffer;
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
    const std::array<std::tuple<const char*, std::size_t, std::string*>, 3> texts = {{
        {InspirationBuffer, MostRunBytes, &prior.Buffers.InspirationText},
        {DialogueBuffer, MostRuns * MostRunBytes, &prior.Buffers.DialogueText},
        {SuggestionBuffer, MostRunBytes, &prior.Buffers.SuggestionText},
    }};
    bool whole = true;
    for (const auto& [name, limit, text] : texts) {
        const auto path = folder_.Exe() / name;
        try {
            *text = ReadWholeFile(path, limit);
            if (LinesFit(*text)) {
                continue;
            }
            SetAside(path);
        } catch (const ProgramError& error) {
            if (error.Number() != ErrorNumber::FileNotFound) {
                SetAside(path);
            }
        }
        whole = false;
    }
    if (!whole) {
        return std::nullopt;
    }
    try {
        const std::string pairCount = ReadCountBuffer(folder_.Exe() / PairCountBuffer);
        prior.Buffers.PairCount = PairCountOf(pairCount, prior.Buffers.DialogueText);
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
