#include "storage/FileTransaction.h"

#include "core/FileCallError.h"
#include "core/FileCalls.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"
#include "storage/Trash.h"

#include <cerrno>
#include <set>
#include <sstream>
#include <system_error>

namespace veyrant {

namespace {

using Steps = std::vector<ChangeStep>;

constexpr const char* NoteName = ".change";
constexpr const char* LegacySuffix = ".new";

std::filesystem::path NotePath(const std::filesystem::path& root) {
    return root / NoteName;
}

// One step a line: "R", staged and file; "D" and file; or "T", the place in the trash and
// file; each name relative to the root and parted by tabs.
std::string NoteText(const std::filesystem::path& root, const Steps& steps) {
    std::string text;
    for (const auto& step : steps) {
        const auto relative = step.File.lexically_relative(root).string();
        text += step.Kind == 'D'
                    ? "D\t" + relative + "\n"
                    : std::string(1, step.Kind) + "\t" +
                          step.Other.lexically_relative(root).string() + "\t" + relative + "\n";
    }
    return text;
}

// A file that is gone has been deleted or moved already; a staged file that is gone has been
// renamed.
int CarryOutStep(const ChangeStep& step) {
    switch (step.Kind) {
    case 'D':
        return files::Unlink(step.File);
    case 'T':
        return files::Rename(step.File, step.Other);
    default:
        return files::Rename(step.Other, step.File);
    }
}

// A step the disk refused: its place in the note, the file and the system's cause.
struct Refusal {
    std::size_t Step = 0;
    std::filesystem::path File;
    int Cause = 0;
};

// Renames and deletes may have been done already by an earlier try. Every step is tried, so that
// one file the disk refuses holds up no other; the note goes only when all are done.
std::vector<Refusal> CarryOut(const std::filesystem::path& root, const Steps& steps) {
    std::set<std::filesystem::path> folders;
    std::vector<Refusal> refused;
    for (std::size_t step = 0; step < steps.size(); ++step) {
        if (CarryOutStep(steps[step]) != 0 && errno != ENOENT) {
            refused.push_back({step, steps[step].File, errno});
        }
        folders.insert(steps[step].File.parent_path());
        if (steps[step].Kind == 'T') {
            folders.insert(steps[step].Other.parent_path());
        }
    }
    for (const auto& folder : folders) {
        SyncFolder(folder);
    }
    if (!refused.empty()) {
        return refused;
    }
    if (files::Unlink(NotePath(root)) != 0 && errno != ENOENT) {
        RaiseFromErrno();
    }
    SyncFolder(root);
    return refused;
}

Steps ReadNote(const std::filesystem::path& root, const std::string& text) {
    Steps steps;
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) {
        std::vector<std::string> fields;
        std::istringstream parts(line);
        std::string field;
        while (std::getline(parts, field, '\t')) {
            fields.push_back(field);
        }
        if (fields.size() == 3 && (fields[0] == "R" || fields[0] == "T")) {
            steps.push_back(
                {fields[0][0], (root / fields[1]).lexically_normal(), root / fields[2]});
        } else if (fields.size() == 2 && fields[0] == "D") {
            steps.push_back({'D', {}, root / fields[1]});
        }
    }
    return steps;
}

// The earlier versions staged the four work buffers as "save?.tmp.new" and renamed them one by
// one, savep.tmp last of the four to be staged: when its staged file is there, all four were
// complete and the renames only need finishing. An isp/ file staged as ".NAME.new" was put in
// place only after its dlg/ file was written.
void FinishLegacyWrites(const std::filesystem::path& root) {
    const auto exe = root / "exe";
    const bool buffersComplete = std::filesystem::exists(exe / "savep.tmp.new");
    for (const char* buffer : {"savei.tmp", "savem.tmp", "saves.tmp", "savep.tmp"}) {
        const auto staged = exe / (std::string(buffer) + LegacySuffix);
        if (std::filesystem::exists(staged)) {
            buffersComplete ? RenameFile(staged, exe / buffer) : RemoveFile(staged);
        }
    }
    std::error_code error;
    if (!std::filesystem::is_directory(root / "isp", error)) {
        return;
    }
    for (const auto& name : ListFiles(root / "isp")) {
        if (name.front() != '.' || !name.ends_with(LegacySuffix)) {
            continue;
        }
        const std::string saved =
            name.substr(1, name.size() - 1 - std::string(LegacySuffix).size());
        if (std::filesystem::exists(root / "dlg" / saved, error)) {
            RenameFile(root / "isp" / name, root / "isp" / saved);
        } else {
            RemoveFile(root / "isp" / name);
        }
    }
}

// A change an earlier run could not finish goes first in the new note, less the steps on the
// files this change rewrites: those would undo it if they were tried again after it.
Steps PendingSteps(const std::filesystem::path& root, const Steps& own) {
    std::error_code error;
    if (!std::filesystem::exists(NotePath(root), error)) {
        return own;
    }
    std::set<std::filesystem::path> rewritten;
    for (const auto& step : own) {
        rewritten.insert(step.File);
    }
    Steps all;
    for (auto& step : ReadNote(root, ReadWholeFile(NotePath(root)))) {
        if (!rewritten.contains(step.File)) {
            all.push_back(std::move(step));
        }
    }
    all.insert(all.end(), own.begin(), own.end());
    return all;
}

} // namespace

UnfinishedChange::UnfinishedChange(int cause, std::filesystem::path file)
    : FileCallError(ErrorNumberFor(std::error_code(cause, std::generic_category())), cause),
      file_(std::move(file)) {}

FileTransaction::FileTransaction(std::filesystem::path root) : root_(std::move(root)) {}

FileTransaction::~FileTransaction() {
    if (noteDown_) {
        return;
    }
    // A staged text, or the .trashinfo of a place claimed in the trash.
    for (const auto& step : steps_) {
        if (step.Kind == 'R') {
            files::Unlink(step.Other);
        } else if (step.Kind == 'T') {
            files::Unlink(TrashInfoPath(step.Other));
        }
    }
}

void FileTransaction::Write(const std::filesystem::path& file, std::string_view bytes) {
    steps_.push_back({'R', StageWholeFile(file, bytes), file});
}

void FileTransaction::Remove(const std::filesystem::path& file) {
    steps_.push_back({'D', {}, file});
}

void FileTransaction::MoveToTrash(const std::filesystem::path& file,
                                  const std::filesystem::path& trash, const DateTime& deleted) {
    steps_.push_back({'T', ClaimTrashPlace(trash, file, deleted).Trashed, file});
}

void FileTransaction::Commit() {
    const Steps all = PendingSteps(root_, steps_);
    const std::size_t own = all.size() - steps_.size();
    const auto staged = StageWholeFile(NotePath(root_), NoteText(root_, all));
    if (files::Rename(staged, NotePath(root_)) != 0) {
        const int error = errno;
        files::Unlink(staged);
        errno = error;
        RaiseFromErrno();
    }
    try {
        SyncFolder(root_);
    } catch (const ProgramError&) {
        // The note may not survive a power loss: take it back, and the change with it.
        files::Unlink(NotePath(root_));
        throw;
    }
    noteDown_ = true;
    std::vector<Refusal> refused;
    try {
        refused = CarryOut(root_, all);
    } catch (const ProgramError&) {
        refused.clear();
    }
    if (!refused.empty() || std::filesystem::exists(NotePath(root_))) {
        refused = CarryOut(root_, all);
    }
    // What an earlier run left unfinished waits for a later start; only this change's own steps
    // decide whether it has been made.
    for (const auto& refusal : refused) {
        if (refusal.Step >= own) {
            errno = refusal.Cause;
            RaiseFromErrno();
        }
    }
}

void FinishInterruptedChanges(const AppFolder& folder) {
    const auto& root = folder.Root;
    std::error_code error;
    if (!std::filesystem::is_directory(root, error)) {
        return;
    }
    if (std::filesystem::exists(NotePath(root), error)) {
        const auto refused = CarryOut(root, ReadNote(root, ReadWholeFile(NotePath(root))));
        if (!refused.empty()) {
            // The note stays, and with it every file it names, staged ones included.
            throw UnfinishedChange(refused.front().Cause, refused.front().File);
        }
    }
    for (const auto& place :
         {root, folder.Exe(), folder.Dlg(), folder.Isp(), folder.Trash() / "info"}) {
        RemoveStagedFiles(place);
    }
    FinishLegacyWrites(root);
}

} // namespace veyrant
