#pragma once

// A change of several files of the application folder that lands as one step: the work buffers
// as a set, a Dialogue's pair in the Library, the pairs that retention, a clean or a delete moves
// to the trash.
//
// New texts are laid down first under hidden names beside their files. Then a note of every
// rename and delete still to do is written whole into the folder: from that moment the change
// has happened, and what remains is only to carry the note out. A crash before the note leaves
// every file as it was, and the next start clears the hidden leftovers; a crash after it is
// finished by the next start.

#include "core/DateTime.h"
#include "core/FileCallError.h"
#include "shell/AppFolder.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veyrant {

struct ChangeStep {
    char Kind = 'R'; // 'R' a staged text put in place, 'D' a delete, 'T' a move to the trash
    std::filesystem::path Other; // the staged text, or the file's place in the trash
    std::filesystem::path File;
};

class FileTransaction {
public:
    explicit FileTransaction(std::filesystem::path root);
    FileTransaction(const FileTransaction&) = delete;
    FileTransaction& operator=(const FileTransaction&) = delete;
    // A change never committed leaves no hidden file behind.
    ~FileTransaction();

    // Lays the text down at once; raises ProgramError when it cannot.
    void Write(const std::filesystem::path& file, std::string_view bytes);
    void Remove(const std::filesystem::path& file);
    // Claims the file's place in the trash at once, its .trashinfo dated as deleted; raises
    // ProgramError when the trash cannot take it, and then the change holds no step of it.
    void MoveToTrash(const std::filesystem::path& file, const std::filesystem::path& trash,
                     const DateTime& deleted);

    bool Empty() const { return steps_.empty(); }

    // Makes the change. Raises ProgramError: before the note is down every file is as it was;
    // after it, the change is carried out here if a second try can, or else at the next start.
    // A change an earlier run could not finish is carried into this one's note and tried again
    // first; it raises nothing here, where this change's own steps were done.
    void Commit();

private:
    std::filesystem::path root_;
    std::vector<ChangeStep> steps_;
    bool noteDown_ = false;
};

// A change whose note is down, which the disk would not let finish: the note and every file it
// names stay for a later start.
class UnfinishedChange : public FileCallError {
public:
    UnfinishedChange(int cause, std::filesystem::path file);
    // The first file the disk refused.
    const std::filesystem::path& File() const noexcept { return file_; }

private:
    std::filesystem::path file_;
};

// At start: finishes a change whose note was written, clears what a change cut short left in
// exe/, dlg/, isp/ and the trash's info/, and does the same for the leftovers of earlier versions
// of the program. Raises UnfinishedChange when a step of the note is refused, having done every
// other step and cleared nothing; ProgramError when the disk refuses anything else. The next start
// tries again.
void FinishInterruptedChanges(const AppFolder& folder);

} // namespace veyrant
