#include "storage/FileTransaction.h"

#include "core/FileCalls.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <cerrno>
#include <set>
#include <sstream>

namespace veyrant {

namespace {

using Steps = std::vector<std::pair<std::filesystem::path, std::filesystem::path>>;

constexpr const char* NoteName = ".change";
constexpr const char* LegacySuffix = ".new";

std::filesystem::path NotePath(const std::filesystem::path& root) {
    return root / NoteName;
}

// One step a line: "R", staged and file, or "D" and file, each name relative to the root and
// parted by tabs.
std::string NoteText(const std::filesystem::path& root, const Steps& steps) {
    std::string text;
    for (const auto& [staged, file] : steps) {
        const auto relative = file.lexically_relative(root).string();
        text += staged.empty()
                    ? "D\t" + relative + "\n"
                    : "R\t" + staged.lexically_relative(root).string() + "\t" + relative + "\n";
    }
    return text;
}

// Renames and deletes may have been done already by an earlier try: a staged file that is gone
// has been renamed, a file that is gone has been deleted.
void CarryOut(const std::filesystem::path& root, const Steps& steps) {
    std::set<std::filesystem::path> folders;
    for (const auto& [staged, file] : steps) {
        const int result = staged.empty() ? files::Unlink(file) : files::Rename(staged, file);
        if (result != 0 && errno != ENOENT) {
            RaiseFromErrno();
        }
        folders.insert(file.parent_path());
    }
    for (const auto& folder : folders) {
        SyncFolder(folder);
    }
    if (files::Unlink(NotePath(root)) != 0 && errno != ENOENT) {
        RaiseFromErrno();
    }
    SyncFolder(root);
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
        if (fields.size() == 3 && fields[0] == "R") {
            steps.emplace_back(root / fields[1], root / fields[2]);
        } else if (fields.size() == 2 && fields[0] == "D") {
            steps.emplace_back(std::filesystem::path(), root / fields[1]);
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

} // namespace

FileTransaction::FileTransaction(std::filesystem::path root) : root_(std::move(root)) {}

FileTransaction::~FileTransaction() {
    if (noteDown_) {
        return;
    }
    for (const auto& [staged, file] : steps_) {
        if (!staged.empty()) {
            files::Unlink(staged);
        }
    }
}

void FileTransaction::Write(const std::filesystem::path& file, std::string_view bytes) {
    steps_.emplace_back(StageWholeFile(file, bytes), file);
}

void FileTransaction::Remove(const std::filesystem::path& file) {
    steps_.emplace_back(std::filesystem::path(), file);
}

void FileTransaction::Commit() {
    const auto staged = StageWholeFile(NotePath(root_), NoteText(root_, steps_));
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
    try {
        CarryOut(root_, steps_);
    } catch (const ProgramError&) {
        CarryOut(root_, steps_);
    }
}

void FinishInterruptedChanges(const std::filesystem::path& root) {
    std::error_code error;
    if (!std::filesystem::is_directory(root, error)) {
        return;
    }
    if (std::filesystem::exists(NotePath(root), error)) {
        CarryOut(root, ReadNote(root, ReadWholeFile(NotePath(root))));
    }
    for (const auto& folder : {root, root / "exe", root / "dlg", root / "isp"}) {
        RemoveStagedFiles(folder);
    }
    FinishLegacyWrites(root);
}

} // namespace veyrant
