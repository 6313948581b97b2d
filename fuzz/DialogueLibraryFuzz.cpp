// The bytes as a Dialogue Library: each line is the name of a saved Dialogue and the text of
// both its files, listed and put under the retention limits as at every start.

#include "FakeClock.h"
#include "FakeWindowLayer.h"
#include "FuzzInput.h"
#include "shell/Settings.h"
#include "storage/DialogueLibrary.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    const AppFolder& folder = fuzz::EmptyLibraryFolder();
    std::string_view rest = fuzz::AsText(data, size);
    for (int files = 0; !rest.empty() && files < 40; ++files) {
        const auto line = fuzz::TakePart(rest, '\n');
        if (fuzz::IsFileName(line)) {
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
