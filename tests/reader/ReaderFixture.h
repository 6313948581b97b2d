#pragma once

#include "app/Application.h"
#include "core/Random.h"
#include "core/WholeFile.h"
#include "reader/Reader.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrant::testing {

// A library of the given titles, each row's text naming its row.
FixedLibrary LibraryOf(const std::vector<std::string>& titles);
// The Information Library's real titles, with a short text for each row.
FixedLibrary InformationCatalogue();

// A whole program in a fresh folder with small fixed libraries, the clock at noon on
// 22 November 2026, and the Write window's logic wired to the Reader.
class ReaderFixture : public ::testing::Test {
public:
    ReaderFixture();
    void TestBody() override {}
    // Opens a library as the Write window does: 1 Dialogue, 2 Information, 3 Knowledge,
    // 4 Advanced Knowledge.
    void Open(int library);
    Reader& Read() { return *App.Read; }
    // The line of Dump() that shows a control, without its name.
    std::string Line(ReaderControl control);
    // The lines of several controls, joined by " | ".
    std::string Lines(std::initializer_list<ReaderControl> controls);
    std::string Title() { return Read().Controls().Title; }
    void Key(int keyCode);
    // Saves a Dialogue at that date as the Write window would.
    void SaveDialogue(const DateTime& when, const std::string& inspiration);
    // The titles of the message boxes shown so far.
    std::vector<std::string> BoxTitles() const;
    TempFolder Temp;
    AppFolder Folder{Temp / "veyrant-sagrel"};
    FakeClock Clock;
    Random Series;
    FakeWindowLayer Windows;
    Application App{Folder, Temp / "program", Clock, Series, Windows};
};

} // namespace veyrant::testing
