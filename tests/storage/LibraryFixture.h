#pragma once

#include "core/DateTime.h"
#include "core/WholeFile.h"
#include "shell/AppFolder.h"
#include "shell/Settings.h"
#include "storage/DialogueLibrary.h"
#include "storage/LibraryFileName.h"
#include "storage/WorkBuffers.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/SavedDialogue.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <tuple>
#include <vector>

namespace veyrant::testing {

// A Dialogue under way, as the work buffers keep it.
inline const DialogueBuffers Kept{"\tA quiet river carves the stone.",
                                  "\r\n\r\n\t\x93What is next?\x94\r\n\tWhat you choose.",
                                  "Begin with what is nearest to you.", 1};

// A program's worth of storage in a fresh folder under the base, with the clock at noon on 22
// November 2026.
struct LibraryStorage {
    explicit LibraryStorage(const std::filesystem::path& base) : Temp(base) {}
    TempFolder Temp;
    AppFolder Folder{Temp.Path()};
    Settings UserSettings;
    FakeClock Clock;
    FakeWindowLayer Windows;
    DialogueLibrary Library{Folder, UserSettings, Clock, Windows};
    WorkBuffers Buffers{Folder, UserSettings, Clock, Windows};
    // Puts a saved Dialogue into the Library as a save at that date would.
    std::string SaveAt(const DateTime& when, const std::string& dialogue = "\r\n\r\n\t\x93Hi\x94") {
        return PutDialogue(Folder, when, "\tInspiration of " + MakeFileName(when), dialogue);
    }
    // A date the given number of days (and hours) before the clock's.
    DateTime DaysAgo(double days) const { return FromDayNumber(DayNumber(Clock.Date) - days); }
    std::vector<std::string> Names(const std::filesystem::path& folder) const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    // Dates a file through the fake clock, the one clock every test reads.
    void SetFileDate(const std::filesystem::path& path, const DateTime& when) {
        Clock.FileDates[path] = when;
    }
    // Both files of a saved pair, as "inspiration|dialogue".
    std::string SavedPair(const std::string& name) const {
        return ReadWholeFile(Folder.Isp() / name) + "|" + ReadWholeFile(Folder.Dlg() / name);
    }
    std::vector<std::string> BoxTitles() const {
        std::vector<std::string> titles;
        for (const auto& box : Windows.Boxes) {
            titles.push_back(box.Title);
        }
        return titles;
    }
};

class LibraryFixture : public ::testing::Test, protected LibraryStorage {
protected:
    LibraryFixture() : LibraryStorage(std::filesystem::temp_directory_path()) {}
};

// Runs the action with files limited to 4 KiB: the kernel then refuses a write part way, as a
// full disk would.
template <typename Action>
auto WithDiskNearlyFull(Action action) {
    rlimit saved{};
    getrlimit(RLIMIT_FSIZE, &saved);
    const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = saved;
    small.rlim_cur = 4096;
    setrlimit(RLIMIT_FSIZE, &small);
    const auto result = action();
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previousHandler);
    return result;
}

} // namespace veyrant::testing
