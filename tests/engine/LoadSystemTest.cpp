#include "EngineFixture.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "engine/KeptPlans.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

const std::string MemoryText =
    "The system cannot load the Veyrant Sagrel because it has insufficient available "
    "memory.\r\n\r\n"
    "The immediate solution is to close one or more open programs. However, we recommend that "
    "you clear your computer's memory by closing all open programs, then logging out and in "
    "again.";
const std::string ParityText =
    "Parity error loading the configuration system file. Data structure is incorrect.";

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

// A damaged table file ends the start with the program's box.
using LoadSystem = testing::EngineFixture;

TEST_F(LoadSystem, ADamagedTableFileEndsTheStartWithItsBox) {
    const std::string tooLarge =
        "DESIGN ERROR: Sysblocks too large for current system design. Sysblocks=";
    const std::pair<std::string, std::string> cases[] = {
        {ShippedWith("\"Parity\"", "7, \"Parity\""), ParityText},
        {ShippedWith("\"Parity\"", "\"parity\""), ParityText},
        {ShippedWith("\"Parity\"", "\"Parity\"").replace(0, 1, "x"), MemoryText},
        {"", MemoryText},
        {std::string(ShippedSystemFile().substr(0, 200)), MemoryText},
        // One byte changed: the line end before MaxSections turned to a minus sign.
        {ShippedWith("40\r\n8, 0", "40\r-8, 0"), MemoryText},
        {ShippedWith("40\r\n8, 0", "40\r\n-2, 0"), MemoryText},
        {SmallSystemFile(14).replace(0, 4, "1, -2"), MemoryText},
        {SmallSystemFile(14).replace(0, 4, "1, 1"), MemoryText},
        // Counts that would size tables far beyond what the file holds are refused before
        // anything is allocated for them.
        {SmallSystemFile(14).replace(6, 4, "32767, 1"), MemoryText},
        {ShippedWith("\r\n4\r\n1\r\n14\r\n", "\r\n4\r\n1\r\n32767\r\n"), MemoryText},
        {SmallSystemFile(15), tooLarge + "15 exceeds MaxDataBlocks=14"},
        {SmallSystemFile(32767), tooLarge + "32767 exceeds MaxDataBlocks=14"},
        {SmallSystemFile(13),
         "Incorrect number=14 of LCMs in LoadSystem. Probable missing BAS file(s) in "
         "system MAK. Required SysBlocks=13\r\n\r\nThe missing cmp.BAS files must be "
         "added to the MAK file, sub LoadSystem reconfigured, and the EXE "
         "re-compiled."}};
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
        EXPECT_EQ(Windows.Boxes[0].Title, "Error LoadSystem");
        EXPECT_EQ(Windows.Boxes[0].Icon, MessageIcon::Warning);
        EXPECT_EQ(Windows.Boxes[0].Text, text);
        EXPECT_EQ(engine.SystemError, 1);
    }
}

// The shipped tables, read back by the engine's own reader, fit the stocks and the plans.
TEST_F(LoadSystem, TheShippedTablesFitTheStocksAndThePlans) {
    const EngineTables& t = TheEngine.Tables();
    const PhraseStocks& stocks = TheEngine.Stocks();
    EXPECT_EQ(t.SysBlockCount, 14);
    EXPECT_EQ(t.MessageCount, 16);
    EXPECT_EQ(stocks.LastLoaded, 14);
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

// The first run lays down the shipped files; a file damaged in place is left for the program's
// box, and a newer build replaces them all.
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

} // namespace
} // namespace veyrant
