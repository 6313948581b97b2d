#include "engine/Composer.h"

#include "core/Random.h"
#include "engine/KeptPlans.h"
#include "support/FakeWindowLayer.h"

#include <gtest/gtest.h>
#include <utility>

namespace veyrant {
namespace {

// Components 0 to 6 in stock 1, one row each: the comma (first CaseKeeper), the period, the
// dash (TightJoiner), " I am" (CaseKeeper), and three plain phrases.
enum : std::int16_t { Comma, Period, Dash, IAm, Hello, Big, Third };

class Composing : public ::testing::Test {
protected:
    void SetUp() override {
        stocks.Rows[1] = {"",      " Label",       ",",         ".",     "\x97",
                          " I am", " Hello there", " Big news", " Third"};
        tables.ComponentCount = 6;
        tables.RowCap = 1;
        tables.SysBlockCount = 14;
        tables.CaseKeepers = {0, Comma, Period, IAm};
        tables.TightJoiners = {0, Dash};
        tables.ComponentRows.assign(7, 1);
        tables.ComponentBlock.assign(7, 1);
        tables.Map.Allocate(14, tables.ComponentRows);
        for (int c = 0; c <= 6; ++c) {
            tables.Map.At(1, c, 1) = static_cast<std::int16_t>(c + 2);
        }
        composer.MarkJoiners();
    }

    std::string Assemble(const std::vector<std::int16_t>& components) {
        composer.CompositionComponents = {0};
        composer.CompositionComponents.insert(composer.CompositionComponents.end(),
                                              components.begin(), components.end());
        composer.CompositionRows.assign(components.size() + 1, 1);
        composer.CompositionLength = static_cast<std::int16_t>(components.size());
        composer.AssembleMessage();
        return composer.ComposedText;
    }

    EngineTables tables;
    PhraseStocks stocks;
    Random random;
    testing::FakeWindowLayer windows;
    Composer composer{tables, stocks, random, windows};
};

// Row 0 of a component, its label, lies in the idle plane; the draw runs from row 1, so a label
// row marked there never shows. A component outside the stocks is reported.
TEST_F(Composing, AssembleSetsCaseAndSpacingByTheListsHidesTheLabelRowAndReportsAStrayComponent) {
    tables.Map.At(0, Hello, 0) = 1;
    const std::pair<std::vector<std::int16_t>, const char*> cases[] = {
        {{Hello}, "\t Hello there"}, // a tab and the row, lead blank included
        {{Hello, Big}, "\t Hello there big news"},
        {{Hello, Comma, Big}, "\t Hello there, big news"},  // the first CaseKeeper lowers
        {{Hello, Period, Big}, "\t Hello there. Big news"}, // any other keeps the capital
        {{Hello, IAm, Big}, "\t Hello there I am Big news"},
        {{Hello, Comma, IAm}, "\t Hello there, I am"},
        {{IAm, Big}, "\t I am Big news"},
        // Behind the dash the next row loses its blank, waiting past a CaseKeeper for a lowered
        // row.
        {{Hello, Dash, Big}, "\t Hello there\227big news"},
        {{Hello, Dash, Period, Big}, "\t Hello there\x97. Big news"},
        {{Hello, Dash, Period, Big, Third}, "\t Hello there\x97. Big newsthird"},
        {{Hello, Hello}, "\t Hello there hello there"},
        {{}, "\t"}};
    for (const auto& [components, text] : cases) {
        EXPECT_EQ(Assemble(components), text);
    }
    EXPECT_TRUE(windows.Boxes.empty());
    // Tables that name no CaseKeeper have no comma rule: every row after the first is lowered.
    tables.CaseKeepers = {0};
    composer.MarkJoiners();
    EXPECT_EQ(Assemble({Hello, Comma, IAm, Big}), "\t Hello there, i am big news");
    tables.ComponentBlock[Big] = 0;
    EXPECT_EQ(Assemble({Hello, Big}), "\t Hello there hello there");
    ASSERT_EQ(windows.Boxes.size(), 1u);
    EXPECT_EQ(windows.Boxes[0].Title, "Coding error in Rcmp, Engine21");
    EXPECT_EQ(windows.Boxes[0].Text, "Error in Sub Rcmp configuration. Must be put into "
                                     "comformity for the correct number of SysBlocks.");
    EXPECT_EQ(windows.Boxes[0].Buttons, MessageButtons::OkCancel);
}

// Message 1 takes section 1 twice; section 1 takes component 0 once, twice or three times.
const std::string RepeatingPlans =
    "1, 2, 1\r\n\"m\"\r\n\"s\", 1, 1\r\n\"s\", 1, 2\r\n\"s\", 1, 2\r\n"
    "\"s\", 1, 2\r\n\"s\", 1, 2\r\n\"s\", 1, 2\r\n0\r\n1, 1, \"1, 1\"\r\n2, 1, \"\"\r\n"
    "2, 4, 1\r\n\"x\"\r\n\"s\", 3, 1, 2, 3\r\n\"s\", 1, 4\r\n\"s\", 1, 4\r\n"
    "\"s\", 1, 4\r\n\"s\", 1, 4\r\n\"s\", 1, 4\r\n0\r\n"
    "1, 1, \"0\"\r\n2, 1, \"0, 0\"\r\n3, 1, \"0,0 0\"\r\n4, 1, \"\"\r\n";

TEST_F(Composing, BuildMessageDrawsEachSectionAndEachRowWithASeedOfItsOwn) {
    tables.MessageCount = 1;
    tables.SectionCount = 1;
    tables.MaxSections = 2;
    tables.MaxComponents = 6;
    tables.MessageCombos = {0, 1};
    tables.SectionCombos = {0, 3};
    tables.ComponentRows = {100};
    tables.ComponentBlock = {1};
    KeptPlans plans(RepeatingPlans, tables);
    std::vector<float> pool(2 + 6 + 15 + 1);
    for (std::size_t i = 1; i < pool.size(); ++i) {
        pool[i] = 1000.25f * static_cast<float>(i);
    }
    composer.BuildMessage(1, pool, plans);
    // The message draws with the first seed, the sections with the next, one spare among them.
    EXPECT_EQ(composer.MessageSeed, pool[1]);
    EXPECT_EQ(composer.SectionSeeds, (std::vector<float>{0, pool[2], pool[3], pool[4], 0, 0}));
    ASSERT_EQ(composer.RowSeeds.size(), pool.size());
    EXPECT_EQ(composer.RowSeeds[19], pool[23]); // MaxComponents + 13 filled
    EXPECT_EQ(composer.RowSeeds[20], 0.0f);

    Random expected;
    const auto draw = [&expected](float seed, int scale) {
        expected.Seed(seed);
        return expected.Scaled(scale);
    };
    const int length = draw(pool[2], 3) + draw(pool[3], 3);
    ASSERT_EQ(composer.CompositionLength, length);
    for (int i = 1; i <= length; ++i) {
        EXPECT_EQ(composer.CompositionComponents[static_cast<std::size_t>(i)], 0);
        EXPECT_EQ(composer.CompositionRows[static_cast<std::size_t>(i)],
                  draw(pool[static_cast<std::size_t>(2 + 2 + i)], 100))
            << "row " << i;
    }
}

} // namespace
} // namespace veyrant
