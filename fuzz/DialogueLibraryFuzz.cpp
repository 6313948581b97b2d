// The bytes as a Dialogue Library: each line is the name of a saved Dialogue and the text of
// both its files, listed and put under the retention limits as at every start.

#include "FakeClock.h"
#include "FakeWindowLayer.h"
#include "FuzzInput.h"
#include "shell/Settings.h"
#include "storage/DialogueLibrary.h"

#include <system_error>

namespace {

// What the file system can hold as a name of its own in one folder.
bool IsFileName(std::string_view name) {
    return !name.empty() && name.size() <= 255 && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    const AppFolder& folder = fuzz::ScratchFolder();
    std::error_code ignored;
    std::filesystem::remove_all(folder.Isp(), ignored);
    std::filesystem::remove_all(folder.Dlg(), ignored);
    std::filesystem::create_directories(folder.Isp());
    std::filesystem::create_directories(folder.Dlg());
    std::string_view rest = fuzz::AsText(data, size);
    for (int files = 0; !rest.empty() && files < 40; ++files) {
        const auto end = rest.find('\n');
        const auto line = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
        if (IsFileName(line)) {
            WriteWholeFile(folder.Isp() / line, line);
            WriteWholeFile(folder.Dlg() / line, line);
        }
    }
    testing::FakeWindowLayer windows;
    testing::FakeClock clock;
    Settings settings;
    settings.MaxLibraryFiles = 3;
    DialogueLibrary library(folder, settings, clock, windows);
    library.ScanLibrary();
    return 0;
}
