// The bytes as each of the three settings files in turn, read as at start-up and as the Reader
// reads its positions.

#include "FakeClock.h"
#include "FakeWindowLayer.h"
#include "FuzzInput.h"
#include "app/Application.h"
#include "app/SettingsFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    const AppFolder& folder = fuzz::ScratchFolder();
    const auto text = fuzz::AsText(data, size);
    for (const char* name : {"Tolmira.ini", "Read.ini", "Qdrfonts.ini"}) {
        WriteWholeFile(folder.Exe() / name, text);
    }
    testing::FakeWindowLayer windows;
    testing::FakeClock clock;
    Random random;
    Application app(folder, folder.Exe() / "veyrant-sagrel", clock, random, windows);
    LoadSettings(app);
    app.ReaderSettings.OpenFlags[LibraryId::Knowledge] = OpenFlag::Marked;
    LoadReadSettings(app);
    LoadFontNames(app);
    return 0;
}
