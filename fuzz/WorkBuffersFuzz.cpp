// The bytes as the four work buffers, parted at NUL bytes in the order savei.tmp, savem.tmp,
// saves.tmp, savep.tmp, read as the next start reads the Prior Dialogue.

#include "FakeClock.h"
#include "FakeWindowLayer.h"
#include "FuzzInput.h"
#include "shell/Settings.h"
#include "storage/WorkBuffers.h"

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    const AppFolder& folder = fuzz::ScratchFolder();
    std::string_view rest = fuzz::AsText(data, size);
    for (const char* name : {"savei.tmp", "savem.tmp", "saves.tmp", "savep.tmp"}) {
        WriteWholeFile(folder.Exe() / name, fuzz::TakePart(rest, '\0'));
    }
    testing::FakeWindowLayer windows;
    testing::FakeClock clock;
    const Settings settings;
    const WorkBuffers buffers(folder, settings, clock, windows);
    buffers.ReadWorkBuffers();
    return 0;
}
