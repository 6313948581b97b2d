#include "storage/LockedFileError.h"

#include "core/Cp1252.h"
#include "core/Text.h"
#include "storage/StorageFailure.h"

namespace veyrant {

MessageBoxRequest LockedFileBox(const std::filesystem::path& file) {
    return WarningBox("Error " + std::to_string(ErrorNumber::LockedFile) +
                          " Opening the Locked Library",
                      "The file " + PathText(file) +
                          " of the locked Dialogue Library cannot be opened: it is damaged, or "
                          "the Library's key file is damaged, missing or not the one it was "
                          "locked with." +
                          std::string(CrLf) + std::string(CrLf) +
                          "The file is kept as it is, and nothing else is changed.");
}

} // namespace veyrant
