#pragma once

#include "app/Application.h"
#include "core/Random.h"
#include "core/WholeFile.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <string>

namespace veyrant::testing {

// A whole application in a fresh folder, with an executable of a known date.
struct AppFixture {
    AppFixture() {
        std::filesystem::create_directories(Folder.Exe());
        WriteWholeFile(Program, "program");
        Clock.FileDates[Program] = DateTime{2026, 3, 9, 10, 30, 0};
    }

    std::string ExeFile(const std::string& name) const {
        return ReadWholeFile(Folder.Exe() / name);
    }
    void PutExeFile(const std::string& name, const std::string& text) const {
        WriteWholeFile(Folder.Exe() / name, text);
    }

    // In memory where the system allows: a start flushes a good many files to the disk.
    TempFolder Temp{MemoryFolder()};
    AppFolder Folder{Temp / "veyrant-sagrel"};
    std::filesystem::path Program = Temp / "veyrant-sagrel-program";
    FakeClock Clock;
    Random Series;
    FakeWindowLayer Windows;
    Application App{Folder, Program, Clock, Series, Windows};
};

} // namespace veyrant::testing
