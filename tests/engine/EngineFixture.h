#pragma once

#include "core/Random.h"
#include "core/WholeFile.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <deque>
#include <gtest/gtest.h>
#include <sstream>

namespace veyrant::testing {

// The lines of a list file, leaving out empty ones and comments, which begin with '#'.
inline std::vector<std::string> ListedLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    std::istringstream text(ReadWholeFile(file));
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.front() != '#') {
            lines.push_back(line);
        }
    }
    return lines;
}

// Draws what the test lists, then falls back to the real series.
class ScriptedRandom : public Random {
public:
    void Seed(float seed) override {
        Seeds.push_back(seed);
        Random::Seed(seed);
    }
    float Draw() override {
        if (Script.empty()) {
            return Random::Draw();
        }
        const float value = Script.front();
        Script.pop_front();
        return value;
    }
    std::deque<float> Script;
    std::vector<float> Seeds;
};

class BusyRecordingWindows : public FakeWindowLayer {
public:
    void SetBusyPointer(bool busy) override { BusyChanges.push_back(busy); }
    std::vector<bool> BusyChanges;
};

// A program folder with the shipped engine files laid down and the engine loaded from them.
class EngineFixture : public ::testing::Test {
protected:
    void SetUp() override {
        InstallEngineFiles(Folder);
        ASSERT_TRUE(TheEngine.LoadSystem(Folder));
        Windows.Boxes.clear();
    }
    // The text that composing the message itself gives from the seed pool as it stands.
    std::string Composed(std::int16_t message) {
        TheEngine.Compose(static_cast<MessageNumber>(message));
        return TheEngine.MessageComposer().ComposedText;
    }

    TempFolder Temp;
    AppFolder Folder{Temp.Path()};
    BusyRecordingWindows Windows;
    FakeClock TheClock;
    ScriptedRandom TheRandom;
    Engine TheEngine{TheRandom, TheClock, Windows};
};

} // namespace veyrant::testing
