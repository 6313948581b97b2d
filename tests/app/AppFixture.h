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

// Tolmira.ini as the program writes it, with the given font step and display option.
inline std::string SettingsText(int option, int writeStep = 1) {
    return " " + std::to_string(writeStep) + " \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n " +
           std::to_string(option) + " \r\n 21  30 \r\n 0 \r\n";
}

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
    // nullptr leaves the file missing.
    void PutExeFile(const std::string& name, const char* text) const {
        if (text != nullptr) {
            PutExeFile(name, std::string(text));
        }
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
