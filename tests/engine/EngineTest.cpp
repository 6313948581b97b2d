#include "EngineFixture.h"
#include "core/Text.h"
#include "engine/KeptPlans.h"
#include "engine/Suggestions.h"

#include <tuple>

namespace veyrant {
namespace {

// The boxes by their first words.
const std::string MemoryText = "The system cannot load";
const std::string ParityText = "Parity error";

// A small table file that is whole in itself, with the number of stocks given.
std::string SmallSystemFile(int sysBlocks) {
    std::string text = "1, 2\r\n1, 1\r\n0, 0\r\n5\r\n2, 0\r\n1\r\n0\r\n" +
                       std::to_string(sysBlocks) + "\r\n1, 1\r\n1, 1\r\n1\r\n\r\n0, 1\r\n1, 2\r\n";
    for (int b = 1; b <= sysBlocks; ++b) {
        text += (b > 1 ? ", " : "") + std::string("10");
    }
    return text + "\r\n1, 1, 1, 2\r\n1, 3, 1, 4, 1, 5\r\n\"Parity\"\r\n";
}

std::string ShippedWith(std::string_view from, std::string_view to) {
    std::string text(ShippedSystemFile());
    const auto at = text.rfind(from);
    EXPECT_NE(at, std::string::npos);
    return text.replace(at, from.size(), to);
}

using LoadSystem = testing::EngineFixture;

TEST_F(LoadSystem, ADamagedTableFileEndsTheStartWithItsBox) {
    const std::pair<std::string, std::string> cases[] = {
        {ShippedWith("\"Parity\"", "7, \"Parity\""), ParityText},
        {ShippedWith("\"Parity\"", "\"Parity\"").replace(0, 1, "x"), MemoryText},
        {"", MemoryText},
        {std::string(ShippedSystemFile().substr(0, 200)), MemoryText},
        // One byte changed: the line end before MaxSections turned to a minus sign.
        {ShippedWith("40\r\n8, 0", "40\r-8, 0"), MemoryText},
        {SmallSystemFile(14).replace(0, 4, "1, -2"), MemoryText},
        {SmallSystemFile(14).replace(0, 4, "1, 1"), MemoryText},
        // Counts far beyond what the file holds are refused before anything is allocated.
        {SmallSystemFile(14).replace(6, 4, "32767, 1"), MemoryText},
        {ShippedWith("\r\n4\r\n1\r\n14\r\n", "\r\n4\r\n1\r\n32767\r\n"), MemoryText},
        {SmallSystemFile(15), "DESIGN ERROR: Sysblocks too large for current system design. "
                              "Sysblocks=15 exceeds MaxDataBlocks=14"},
        {SmallSystemFile(13), "Incorrect number=14 of LCMs in LoadSystem. Probable missing BAS "
                              "file(s) in system MAK. Required SysBlocks=13"}};
    for (const auto& [systemFile, text] : cases) {
        SCOPED_TRACE(systemFile.substr(0, 40));
        Windows.Boxes.clear();
        std::filesystem::remove(Folder.Exe() / "qdr41.sys");
        if (!systemFile.empty()) { // empty: no file at all
            WriteWholeFile(Folder.Exe() / "qdr41.sys", systemFile);
        }
        Engine engine(TheRandom, TheClock, Windows);
        EXPECT_FALSE(engine.LoadSystem(Folder));
        ASSERT_EQ(Windows.Boxes.size(), 1u);
        const auto& box = Windows.Boxes[0];
        EXPECT_EQ(box.Title + std::to_string(engine.SystemError), "Error LoadSystem1");
        EXPECT_TRUE(box.Text.starts_with(text)) << box.Text;
    }
}

// The shipped tables, read back by the engine's own reader, fit the stocks and the plans.
TEST_F(LoadSystem, TheShippedTablesFitTheStocksAndThePlans) {
    const EngineTables& t = TheEngine.Tables();
    const PhraseStocks& stocks = TheEngine.Stocks();
    EXPECT_EQ(std::tuple(t.SysBlockCount, t.MessageCount, stocks.LastLoaded),
              std::tuple(14, 16, 14));
    for (std::size_t b = 1; b <= 14; ++b) {
        EXPECT_EQ(t.BlockRows[b] + 1u, stocks.Rows[b].size());
    }
    for (int c = 0; c <= t.ComponentCount; ++c) {
        const int block = t.ComponentBlock[static_cast<std::size_t>(c)];
        ASSERT_TRUE(block >= 1 && block <= 14) << block;
        const auto& rows = stocks.Rows[static_cast<std::size_t>(block)];
        EXPECT_FALSE(rows.at(static_cast<std::size_t>(t.Map.At(0, c, 0))).empty());
        const int count = t.ComponentRows[static_cast<std::size_t>(c)];
        ASSERT_TRUE(count >= 1 && count <= t.RowCap) << count;
        for (int r = 1; r <= count; ++r) {
            const std::string_view row = rows.at(static_cast<std::size_t>(t.Map.At(block, c, r)));
            const bool punctuation = row == "." || row == "?" || row == "," || row == "\x97";
            const bool phrase = row.size() > 1 && row[0] == ' ' &&
                                (LowerChar(row[1]) != row[1] || row[1] == '\x97');
            EXPECT_TRUE(punctuation || phrase) << "component " << c << " row " << r;
        }
    }
    const KeptPlans plans(ShippedPlanFile(), t);
    for (std::int16_t m = 1; m <= t.MessageCount; ++m) {
        EXPECT_EQ(plans.TrueCombos("Message", m), t.MessageCombos[static_cast<std::size_t>(m)]);
    }
    for (std::int16_t s = 1; s <= t.SectionCount; ++s) {
        EXPECT_EQ(plans.TrueCombos("Section", s), t.SectionCombos[static_cast<std::size_t>(s)]);
    }
}

// A file damaged in place is left for the program's box; a newer build replaces them all.
TEST_F(LoadSystem, TheShippedFilesAreLaidDownOnceAndAgainForANewerBuild) {
    const auto onDisk = [&](std::string_view name) { return ReadWholeFile(Folder.Exe() / name); };
    WriteWholeFile(Folder.Exe() / "qdr41.sys", "damaged");
    InstallEngineFiles(Folder);
    EXPECT_EQ(onDisk("qdr41.sys"), "damaged");
    WriteWholeFile(Folder.Exe() / "qdr41.mtx", "old plans");
    WriteWholeFile(Folder.Exe() / "qdr41.ver", "0123456789abcdef");
    InstallEngineFiles(Folder);
    EXPECT_EQ(onDisk("qdr41.sys"), ShippedSystemFile());
    EXPECT_EQ(onDisk("qdr41.mtx"), ShippedPlanFile());
    EXPECT_EQ(onDisk("qdr41.ver"), ShippedEngineStamp());
}

class Requests : public testing::EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        TheEngine.SeedSeries();
        TheEngine.SeriesSeed = 50000.5f;
        TheEngine.StretchSeeds();
    }
};

// A type with no message of its own gives the last composition again (message 0 below).
TEST_F(Requests, AnswerAndRemarkPickTheirMessageByEntryTypeAndOnlyTheAnswerShowsTheBusyPointer) {
    // Answer or remark, the entry type, and the message that answers (0: none).
    const std::tuple<bool, std::int16_t, std::int16_t> cases[] = {
        {true, 1, 1},    {true, 10, 2},  {true, 20, 3}, {true, 30, 4}, {true, 40, 5},
        {true, 50, 6},   {true, 60, 7},  {true, 2, 8},  {true, 0, 0},  {false, 1, 11},
        {false, 10, 12}, {false, 2, 13}, {false, 0, 0}, {false, 9, 14}};
    for (const auto& [answer, type, message] : cases) {
        SCOPED_TRACE(std::to_string(answer) + " for type " + std::to_string(type));
        const std::string wanted = message == 0 ? "" : Composed(message);
        const std::string last = Composed(message == 16 ? 15 : 16); // something in between
        Windows.BusyChanges.clear();
        answer ? TheEngine.RequestAnswer(static_cast<SentenceType>(type))
               : TheEngine.RequestRemark(static_cast<SentenceType>(type));
        EXPECT_EQ(TheEngine.ReplyText, message == 0 ? last : wanted);
        EXPECT_EQ(TheEngine.ReplyText.substr(0, 2), "\t ");
        EXPECT_EQ(Windows.BusyChanges,
                  (answer ? std::vector<bool>{true, false} : std::vector<bool>{}));
    }
}

TEST_F(Requests, VerdictInspirationInterjectionAndGuidanceTakeTheirText) {
    // Chosen, the verdict goes on the user's sentence in lower case.
    std::string chosen = Mid(Composed(9), 3);
    LowerAt(chosen, 1);
    TheEngine.RequestIdeaVerdict(ReplyKind::Answer);
    EXPECT_EQ(TheEngine.IdeaVerdict, chosen);
    EXPECT_NE(UpperChar(TheEngine.IdeaVerdict.front()), TheEngine.IdeaVerdict.front());
    TheEngine.RequestIdeaVerdict(ReplyKind::Remark);
    EXPECT_EQ(TheEngine.IdeaVerdict, Composed(10));
    // The Inspiration keeps its first capital.
    const std::string inspiration = Composed(15);
    TheEngine.RequestInspiration();
    EXPECT_EQ(TheEngine.InspirationText, "\t" + Mid(inspiration, 3));
    EXPECT_NE(LowerChar(TheEngine.InspirationText[1]), TheEngine.InspirationText[1]);
    TheEngine.RequestInterjection();
    EXPECT_EQ(TheEngine.ReplyText, Composed(16));
    const auto suggestions = SuggestionTexts();
    ASSERT_GT(suggestions.size(), 10u);
    EXPECT_TRUE(suggestions[0].empty());
    TheRandom.Script = {0.0f};
    TheEngine.PickGuidance();
    EXPECT_EQ(TheEngine.SuggestionText, suggestions[1]);
    TheRandom.Script = {0.99999f};
    TheEngine.PickGuidance();
    EXPECT_EQ(TheEngine.SuggestionText, suggestions.back());
    EXPECT_NE(TheEngine.SuggestionText.find("\r\n\t"), std::string::npos);
    EXPECT_TRUE(Windows.Boxes.empty());
}

TEST_F(Requests, RollAnswerGivesARemarkForDrawsUpToThePercent) {
    // The draw, the percent of remarks, and the flag: 0 a remark, 1 an answer.
    const std::tuple<float, std::int16_t, int> cases[] = {
        {0.24f, 25, 0}, {0.25f, 25, 1}, {0.5f, 0, 1}, {0.99f, 100, 0}};
    for (const auto& [draw, percent, flag] : cases) {
        TheClock.Seconds = 1234.5f;
        TheRandom.Seeds.clear();
        TheRandom.Script = {draw};
        TheEngine.RollAnswer(percent);
        EXPECT_EQ(static_cast<int>(TheEngine.AnswerFlag), flag) << draw << " of " << percent;
        EXPECT_EQ(TheRandom.Seeds, std::vector<float>{1234.5f});
    }
}

// The plans are read at the first request.
TEST_F(Requests, ADamagedPlanFileGivesItsBoxAndTheProgramGoesOn) {
    WriteWholeFile(Folder.Exe() / "qdr41.mtx", "1, 2, x\r\n");
    TheEngine.RequestAnswer(SentenceType::YesNoQuestion);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Title, "Error LoadPlan");
    EXPECT_TRUE(
        Windows.Boxes[0].Text.starts_with("Error 13 reading the message plans in qdr41.mtx."));
    EXPECT_EQ(TheEngine.ReplyText, "\t");
    // Restored, the file is read at the next request.
    WriteWholeFile(Folder.Exe() / "qdr41.mtx", ShippedPlanFile());
    TheEngine.RequestAnswer(SentenceType::YesNoQuestion);
    EXPECT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_GT(TheEngine.ReplyText.size(), 3u);
}

} // namespace
} // namespace veyrant
