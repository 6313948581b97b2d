#include "storage/LockedFileError.h"

#include "core/Cp1252.h"
#include "core/Text.h"
#include "storage/StorageFailure.h"

namespace veyrant {

MessageBoxRequest LockedFileBox(const std::filesystem::path& file) {
    return WarningBox(
        "Error " + std::to_string(ErrorNumber::LockedFile) + " Opening the Locked Library",
        "The file " + PathText(file) +
            " of the locked Dialogue Library cannot be opened: it is missing or damaged, or it "
            "was not locked with this Library's key file, exe/library.key." +
            std::string(CrLf) + std::string(CrLf) +
            "Nothing is changed: every file of the Library is kept as it is. Put back a sound "
            "copy of the file from a backup, then start the program again.");
}

} // namespace veyrant
