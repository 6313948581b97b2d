#pragma once

#include "core/Random.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <deque>
#include <gtest/gtest.h>

namespace veyrant::testing {

// Draws what the test lists, then falls back to the real series; counts the draws.
class ScriptedRandom : public Random {
public:
    void Seed(float seed) override {
        Seeds.push_back(seed);
        Random::Seed(seed);
    }
    float Draw() override {
        ++Draws;
        if (Script.empty()) {
            return Random::Draw();
        }
        const float value = Script.front();
        Script.pop_front();
        return value;
    }
    std::deque<float> Script;
    std::vector<float> Seeds;
    int Draws = 0;
};

// A program folder with the shipped engine files laid down and the engine loaded from them.
class EngineFixture : public ::testing::Test {
protected:
    void SetUp() override {
        InstallEngineFiles(Folder);
        ASSERT_TRUE(TheEngine.LoadSystem(Folder));
        Windows.Boxes.clear();
    }

    TempFolder Temp;
    AppFolder Folder{Temp.Path()};
    FakeWindowLayer Windows;
    FakeClock TheClock;
    ScriptedRandom TheRandom;
    Engine TheEngine{TheRandom, TheClock, Windows};
};

} // namespace veyrant::testing
