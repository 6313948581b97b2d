#pragma once

// A change of several files of the application folder that lands as one step: the work buffers
// as a set, a Dialogue's pair in the Library, the pairs that retention or a clean deletes.
//
// New texts are laid down first under hidden names beside their files. Then a note of every
// rename and delete still to do is written whole into the folder: from that moment the change
// has happened, and what remains is only to carry the note out. A crash before the note leaves
// every file as it was, and the next start clears the hidden leftovers; a crash after it is
// finished by the next start.

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veyrant {

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

    bool Empty() const { return steps_.empty(); }

    // Makes the change. Raises ProgramError: before the note is down every file is as it was;
    // after it, the change is carried out here if a second try can, or else at the next start.
    void Commit();

private:
    std::filesystem::path root_;
    // The staged text (empty for a delete) and the file it becomes.
    std::vector<std::pair<std::filesystem::path, std::filesystem::path>> steps_;
    bool noteDown_ = false;
};

// At start: finishes a change whose note was written, clears what a change cut short left in
// exe/, dlg/ and isp/, and does the same for the leftovers of earlier versions of the program.
// Raises ProgramError when the disk refuses; the next start tries again.
void FinishInterruptedChanges(const std::filesystem::path& root);

} // namespace veyrant
