// The bytes as a Dialogue Library read in the Read window: records parted by the byte 0x1E, each
// the name of a saved Dialogue, its isp/ text and its dlg/ text, parted by NUL bytes. A record
// without a usable name is saved under a name of the program's form; one without a dlg/ part has
// lost its dlg/ file. The Reader opens the Library, steps through every Dialogue both ways,
// picks each list row, files and prints, deletes one, and closes.

#include "FakeClock.h"
#include "FakeWindowLayer.h"
#include "FuzzInput.h"
#include "app/Application.h"
#include "core/KeyCodes.h"
#include "core/Random.h"
#include "shell/DisplayScale.h"

#include <memory>
#include <string>

namespace {

constexpr int MostDialogues = 40;

// 20 November 2026, an hour or a minute apart for each record.
std::string ProgramFileName(int record) {
    const auto two = [](int value) {
        return std::string(value < 10 ? "0" : "") + std::to_string(value);
    };
    return "761120" + two(record % 24) + "." + two(record / 24) + "0";
}

void LayDownLibrary(const veyrant::AppFolder& folder, std::string_view bytes) {
    for (int record = 0; !bytes.empty() && record < MostDialogues; ++record) {
        std::string_view fields = veyrant::fuzz::TakePart(bytes, '\x1e');
        const auto name = veyrant::fuzz::TakePart(fields, '\0');
        const auto inspiration = veyrant::fuzz::TakePart(fields, '\0');
        const std::string file =
            veyrant::fuzz::IsFileName(name) ? std::string(name) : ProgramFileName(record);
        veyrant::WriteWholeFile(folder.Isp() / file, inspiration);
        if (!fields.empty()) {
            veyrant::WriteWholeFile(folder.Dlg() / file, veyrant::fuzz::TakePart(fields, '\0'));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    using RC = ReaderControl;
    const AppFolder& folder = fuzz::EmptyLibraryFolder();
    LayDownLibrary(folder, fuzz::AsText(data, size));

    testing::FakeWindowLayer windows;
    testing::FakeClock clock;
    Random series;
    Application app(folder, folder.Exe() / "program", clock, series, windows);
    app.UserSettings.MaxLibraryFiles = 99;
    app.UserSettings.MaxLibraryDays = 99;
    app.UserSettings.DisplayOption = 1;
    SetDisplayScale(1, app.Scale);
    app.Write = std::make_unique<Mirror>(app.WriteWorld(), app.Replies, app.Buffers, app.Library);
    app.Write->ConnectLibraries(app.Links, app.Back);
    app.Library.ScanLibrary();

    app.Links.BeginOpening();
    app.Links.OpenLibrary(LibraryId::Dialogue);
    Reader& reader = *app.Read;
    const int dialogues = app.Library.Listing().LibraryCount;
    reader.Click(RC::cmdNext);
    for (int step = 0; step <= dialogues; ++step) {
        reader.KeyDown(KeyCode::PageDown);
    }
    for (int step = 0; step <= dialogues; ++step) {
        reader.KeyDown(KeyCode::PageUp);
    }
    for (int row = 0; row < dialogues; ++row) {
        reader.ListRowClicked(row);
        reader.Dump();
    }
    reader.Click(RC::cmdFile);
    reader.Click(RC::cmdPrint);
    reader.Click(RC::cmdDelete);
    reader.Dump();
    reader.KeyDown(KeyCode::Escape);
    app.Links.CloseLibrary();
    return 0;
}
