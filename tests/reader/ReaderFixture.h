#pragma once

#include "app/Application.h"
#include "core/Random.h"
#include "core/WholeFile.h"
#include "reader/Reader.h"
#include "shell/DisplayScale.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/SavedDialogue.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace veyrant::testing {

using RC = ReaderControl;

// A library of the given titles, each row's text naming its row.
inline FixedLibrary LibraryOf(const std::vector<std::string>& titles) {
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

// A whole program in a fresh folder with small fixed libraries, the clock at noon on 22 November
// 2026, and the Write window's logic wired to the Reader.
class ReaderFixture : public ::testing::Test {
public:
    ReaderFixture() {
        std::filesystem::create_directories(Folder.Exe());
        SetDisplayScale(App.UserSettings.DisplayOption, App.Scale);
        // The Information Library's real titles, with a short text for each row.
        LoadLibraries(App.Libraries);
        App.Libraries[LibraryId::Information] =
            LibraryOf(App.Libraries[LibraryId::Information].Titles);
        App.Libraries[LibraryId::Knowledge] =
            LibraryOf({"< First >", "\tA", "\t\tA1", "\tB", "< Second >", "\tC", "< Third >"});
        App.Libraries[LibraryId::Advanced] = LibraryOf({"< Adv One >", "\tX", "\tY"});
        App.Write =
            std::make_unique<Mirror>(App.WriteWorld(), App.Replies, App.Buffers, App.Library);
        App.Write->ConnectLibraries(App.Links, App.Back);
    }
    void TestBody() override {}
    // Opens a library as the Write window does: 1 Dialogue, 2 Information, 3 Knowledge, 4 Advanced
    // Knowledge.
    void Open(int library) {
        App.Links.BeginOpening();
        App.Links.OpenLibrary(static_cast<LibraryId>(library));
    }
    // Closes the open library and opens another.
    void Reopen(int library) {
        App.Links.CloseLibrary();
        Open(library);
    }
    Reader& Read() { return *App.Read; }
    // The line of Dump() that shows a control, without its name.
    std::string Line(ReaderControl control) {
        const std::string name = std::string(ControlName(control)) + ": ";
        std::istringstream dump(Read().Dump());
        for (std::string line; std::getline(dump, line);) {
            if (line.rfind(name, 0) == 0) {
                return line.substr(name.size());
            }
        }
        return "(hidden)";
    }
    // The lines of several controls, joined by " | ".
    std::string Lines(std::initializer_list<ReaderControl> controls) {
        std::string joined;
        for (const auto control : controls) {
            joined += (joined.empty() ? "" : " | ") + Line(control);
        }
        return joined;
    }
    // The title, then the lines of the controls.
    std::string Shows(std::initializer_list<ReaderControl> controls) {
        return Title() + " | " + Lines(controls);
    }
    std::string Title() { return Read().Controls().Title; }
    void Key(int keyCode) { Read().KeyDown(keyCode); }
    // The pointer comes onto a button of the Write window and clicks it.
    void Press(MirrorControl button, MouseButton mouse = MouseButton::Left) {
        App.Write->MouseDown(button, mouse);
        App.Write->Click(button);
    }
    // Saves a Dialogue at that date as the Write window would.
    void SaveDialogue(const DateTime& when, const std::string& inspiration) {
        PutDialogue(Folder, when, inspiration, "\r\n\r\n\t\x93Hello.\x94\r\n\tA reply.", &Clock);
    }
    // The titles of the message boxes shown so far.
    std::vector<std::string> BoxTitles() const {
        std::vector<std::string> titles;
        std::ranges::transform(Windows.Boxes, std::back_inserter(titles),
                               &MessageBoxRequest::Title);
        return titles;
    }
    TempFolder Temp;
    AppFolder Folder{Temp / "veyrant-sagrel"};
    FakeClock Clock;
    Random Series;
    FakeWindowLayer Windows;
    Application App{Folder, Temp / "program", Clock, Series, Windows};
};

} // namespace veyrant::testing
