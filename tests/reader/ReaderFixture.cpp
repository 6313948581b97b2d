#include "ReaderFixture.h"

#include "shell/DisplayScale.h"
#include "support/SavedDialogue.h"

#include <sstream>

namespace veyrant::testing {

FixedLibrary LibraryOf(const std::vector<std::string>& titles) {
    FixedLibrary library;
    library.LastRow = static_cast<std::int16_t>(titles.size() - 1);
    library.Titles = titles;
    for (std::size_t row = 0; row < titles.size(); ++row) {
        library.Texts.push_back("\tText of row " + std::to_string(row) + ".\r\n");
    }
    library.RecordWidth = 40;
    BuildLibraryIndex(library);
    return library;
}

FixedLibrary InformationCatalogue() {
    std::istringstream catalogue(ReadWholeFile(std::filesystem::path(VEYRANT_TEST_DATA) / ".." /
                                               ".." / "data" / "libraries" / "catalogue" /
                                               "information.txt"));
    std::vector<std::string> titles;
    std::string line;
    while (std::getline(catalogue, line)) {
        if (line.size() > 4 && line[0] == '[') {
            titles.push_back(std::string(static_cast<std::size_t>(line[1] - '0'), '\t') +
                             line.substr(4));
        }
    }
    return LibraryOf(titles);
}

ReaderFixture::ReaderFixture() {
    std::filesystem::create_directories(Folder.Exe());
    App.UserSettings.DisplayOption = 1;
    SetDisplayScale(1, App.Scale);
    App.Libraries[LibraryId::Information] = InformationCatalogue();
    App.Libraries[LibraryId::Knowledge] =
        LibraryOf({"< First >", "\tA", "\t\tA1", "\tB", "< Second >", "\tC", "< Third >"});
    App.Libraries[LibraryId::Advanced] = LibraryOf({"< Adv One >", "\tX", "\tY"});
    App.Write = std::make_unique<Mirror>(App.WriteWorld(), App.Replies, App.Buffers, App.Library);
    App.Write->ConnectLibraries(App.Links, App.Back);
}

void ReaderFixture::Open(int library) {
    App.Links.BeginOpening();
    App.Links.OpenLibrary(static_cast<LibraryId>(library));
}

std::string ReaderFixture::Line(ReaderControl control) {
    const std::string name = std::string(ControlName(control)) + ": ";
    std::istringstream dump(Read().Dump());
    std::string line;
    while (std::getline(dump, line)) {
        if (line.rfind(name, 0) == 0) {
            return line.substr(name.size());
        }
    }
    return "(hidden)";
}

std::string ReaderFixture::Lines(std::initializer_list<ReaderControl> controls) {
    std::string joined;
    for (const auto control : controls) {
        joined += (joined.empty() ? "" : " | ") + Line(control);
    }
    return joined;
}

std::vector<std::string> ReaderFixture::BoxTitles() const {
    std::vector<std::string> titles;
    for (const auto& box : Windows.Boxes) {
        titles.push_back(box.Title);
    }
    return titles;
}

void ReaderFixture::Key(int keyCode) {
    Read().KeyDown(keyCode);
}

void ReaderFixture::SaveDialogue(const DateTime& when, const std::string& inspiration) {
    PutDialogue(Folder, when, inspiration, "\r\n\r\n\t\x93Hello.\x94\r\n\tA reply.", &Clock);
}

} // namespace veyrant::testing
