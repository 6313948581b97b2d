// The bytes as a file of a locked Library, read as the Reader reads a saved Dialogue; and as
// the Library's key file, opened with a passphrase as the start does.

#include "FuzzInput.h"
#include "storage/DialogueFile.h"
#include "storage/KeyFile.h"
#include "storage/LibraryLock.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    static const auto key = [] {
        AppFolder locked = fuzz::EmptyLibraryFolder();
        // A key of zeros, so that the seeds can be sealed under it.
        std::shared_ptr<const SecretKey> made = std::make_shared<SecretKey>();
        locked.Key = made;
        return locked;
    }();
    const std::string_view bytes = fuzz::AsText(data, size);
    WriteWholeFile(key.Dlg() / "76112502.040", bytes);
    try {
        DialogueFile::SavedDialogue(key, "76112502.040").Read();
    } catch (const ProgramError&) {
    }
    WriteWholeFile(KeyFilePath(key), bytes);
    try {
        AppFolder opening{key.Root};
        OpenLibrary(opening, "sea otters");
    } catch (const ProgramError&) {
    }
    return 0;
}
