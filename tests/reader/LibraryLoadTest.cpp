#include "core/ProgramError.h"
#include "core/Text.h"
#include "reader/FixedLibrary.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrant {
namespace {

// The rows tell what is so of this program on a Linux desktop, and where to mend the Library. An
// empty last title ends the start, except in the Advanced Knowledge Library.
TEST(LoadedLibraries, RowsTellWhatHoldsOnLinuxAndAnEmptyLastTitleEndsTheStart) {
    using enum LibraryId;
    FixedLibraries loaded;
    LoadLibraries(loaded);
    for (const auto id : {Information, Knowledge, Advanced}) {
        BuildLibraryIndex(loaded[id]);
    }
    const struct {
        LibraryId Library;
        std::string Title, Says;
    } cases[] = {
        {Information, "\t\tRepairing the Dialogue Library", "Dialogue Library Corrupted"},
        {Information, "\t\tCommand Buttons", "Three buttons"},
        {Information, "\t\tCommand Buttons", "while a Suppose or a Comment is under way"},
        {Information, "\tDialogue Commands",
         "and \x91"
         "Continue\x92 have none"},
        {Information, "\tDialogue Commands", "Alt+P"},
        {Information, "\t\tEntry Requirements and Limits", "up to 121 pairs"},
        {Information, "\tLegal Notices", "/usr/share/doc/veyrant-sagrel/copyright"},
        {Information, "\t\tLicense", "/usr/share/common-licenses/GPL-3"},
        {Information, "\t\tOpening the Veyrant Libraries", "on Wayland clicking it"},
        {Information, "\tRead Window", "on Wayland clicking it"},
        {Advanced, "< The Ambrel >", "forty-seven Topics"},
    };
    for (const auto& c : cases) {
        const auto& titles = loaded[c.Library].Titles;
        const auto row = std::find(titles.begin(), titles.end(), c.Title) - titles.begin();
        ASSERT_LT(row, std::ssize(titles)) << c.Title;
        EXPECT_NE(loaded[c.Library].Texts[static_cast<std::size_t>(row)].find(c.Says),
                  std::string::npos)
            << c.Title;
    }
    EXPECT_NO_THROW(CheckLibraryContent(loaded));
    for (const auto id : {Information, Knowledge, Advanced}) {
        FixedLibraries damaged = loaded;
        damaged[id].Titles.back().clear();
        int number = 0;
        try {
            CheckLibraryContent(damaged);
        } catch (const ProgramError& error) {
            number = error.Number();
        }
        EXPECT_EQ(number, id == Advanced ? 0 : 1001);
    }
}

// The search composes each row into one string it keeps; a row must read as the shown text does,
// whatever row the string held before: the title without tabs or outer blanks, then the record
// without its padding, a text that fills its record keeping its last character.
TEST(ComposeRowText, ARowComposedIntoAKeptStringReadsAsTheShownText) {
    std::string kept = std::string(5000, 'x');
    FixedLibrary odd;
    odd.Titles = {"  \t\tTabbed  title  ", "   ", "\tOuter\tInner ", "\tEmpty", "< Section >"};
    odd.Texts = {"\tA text   ", "\tTwo", "\tTen char.", "", "\tIntro.\r\n   "};
    odd.RecordWidth = 10;
    const char* const composed[] = {"Tabbed  title\r\n\r\n\tA text", "\r\n\r\n\tTwo",
                                    "Inner\r\n\r\n\tTen char.", "Empty\r\n\r\n",
                                    "< Section >\r\n\r\n\tIntro.\r\n"};
    for (int row = 0; row < 5; ++row) {
        ComposeRowText(odd, row, kept);
        EXPECT_EQ(kept, composed[row]);
    }
}

} // namespace
} // namespace veyrant
