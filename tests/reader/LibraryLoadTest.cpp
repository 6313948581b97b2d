#include "core/ProgramError.h"
#include "core/Text.h"
#include "reader/FixedLibrary.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrant {
namespace {

// The libraries as the program loads them at start-up, index and all.
class LoadedLibraries : public ::testing::Test {
protected:
    void SetUp() override {
        LoadLibraries(Libraries);
        BuildLibraryIndex(Libraries[LibraryId::Information]);
        BuildLibraryIndex(Libraries[LibraryId::Knowledge]);
        BuildLibraryIndex(Libraries[LibraryId::Advanced]);
    }
    FixedLibraries Libraries;
};

TEST_F(LoadedLibraries, EachOpensWithASectionAndItsLastSectionRunsToTheEnd) {
    const struct {
        const char* Name;
        const FixedLibrary& Library;
        int Rows;
        int Sections;
    } cases[] = {
        {"Information", Libraries[LibraryId::Information], 185, 6},
        {"Knowledge", Libraries[LibraryId::Knowledge], 175, 7},
        {"Advanced Knowledge", Libraries[LibraryId::Advanced], 61, 3},
    };
    for (const auto& c : cases) {
        const FixedLibrary& library = c.Library;
        EXPECT_EQ(library.LastRow + 1, c.Rows) << c.Name;
        EXPECT_EQ(library.LastSection + 1, c.Sections) << c.Name;
        EXPECT_EQ(library.RowKind[0], RowKinds::Section) << c.Name;
        EXPECT_EQ(library.SectionEnd.back(), library.LastRow) << c.Name;
        EXPECT_EQ(library.Texts.size(), library.Titles.size()) << c.Name;
    }
}

// The rows tell what is so of this program on a Linux desktop, and where to mend the Library.
TEST_F(LoadedLibraries, RowsTellWhatHoldsOnLinux) {
    const struct {
        const FixedLibrary& Library;
        const char* Title;
        const char* Says;
    } cases[] = {
        {Libraries[LibraryId::Information], "\t\tRepairing the Dialogue Library",
         "Dialogue Library Corrupted"},
        {Libraries[LibraryId::Information], "\t\tCommand Buttons", "Three buttons"},
        {Libraries[LibraryId::Information], "\t\tCommand Buttons",
         "while a Suppose or a Comment is under way"},
        {Libraries[LibraryId::Information], "\tDialogue Commands",
         "and \x91"
         "Continue\x92 have none"},
        {Libraries[LibraryId::Information], "\tDialogue Commands", "Alt+P"},
        {Libraries[LibraryId::Information], "\t\tEntry Requirements and Limits", "up to 121 pairs"},
        {Libraries[LibraryId::Information], "\tLegal Notices",
         "/usr/share/doc/veyrant-sagrel/copyright"},
        {Libraries[LibraryId::Information], "\t\tLicense", "/usr/share/common-licenses/GPL-3"},
        {Libraries[LibraryId::Information], "\t\tOpening the Veyrant Libraries",
         "on Wayland clicking it"},
        {Libraries[LibraryId::Information], "\tRead Window", "on Wayland clicking it"},
        {Libraries[LibraryId::Advanced], "< The Ambrel >", "forty-seven Topics"},
    };
    for (const auto& c : cases) {
        const auto& titles = c.Library.Titles;
        const auto row = std::find(titles.begin(), titles.end(), c.Title) - titles.begin();
        ASSERT_LT(row, std::ssize(titles)) << c.Title;
        EXPECT_NE(c.Library.Texts[static_cast<std::size_t>(row)].find(c.Says), std::string::npos)
            << c.Title;
    }
}

// Every row has a text in record form, inside its library's width.
TEST_F(LoadedLibraries, TextsAreParagraphsLedByATabAndEndedByALineEnd) {
    for (const FixedLibrary* library :
         {&Libraries[LibraryId::Information], &Libraries[LibraryId::Knowledge],
          &Libraries[LibraryId::Advanced]}) {
        for (std::size_t row = 0; row < library->Texts.size(); ++row) {
            const std::string& text = library->Texts[row];
            ASSERT_GE(text.size(), 3u) << library->Titles[row];
            EXPECT_EQ(text.front(), '\t') << library->Titles[row];
            EXPECT_TRUE(text.ends_with("\r\n")) << library->Titles[row];
            EXPECT_LE(static_cast<int>(text.size()), library->RecordWidth - 10)
                << library->Titles[row];
        }
    }
}

// The search composes each row into one string it keeps; every row must read as the shown text
// does, whatever row the string held before.
TEST_F(LoadedLibraries, ARowComposedIntoAKeptStringReadsAsTheShownText) {
    std::string kept = std::string(5000, 'x');
    for (const FixedLibrary* library :
         {&Libraries[LibraryId::Information], &Libraries[LibraryId::Knowledge],
          &Libraries[LibraryId::Advanced]}) {
        for (int row = library->LastRow; row >= 0; --row) {
            const auto index = static_cast<std::size_t>(row);
            ComposeRowText(*library, row, kept);
            const std::string shown = CleanTitle(library->Titles[index]) + "\r\n\r\n" +
                                      RTrim(library->Texts[index].substr(
                                          0, static_cast<std::size_t>(library->RecordWidth)));
            ASSERT_EQ(kept, shown) << row;
            ASSERT_EQ(ComposeRowText(*library, row), shown) << row;
        }
    }
    FixedLibrary odd;
    odd.Titles = {"  \t\tTabbed  title  ", "   "};
    odd.Texts = {"\tA text   ", "\tTwo"};
    odd.RecordWidth = 8;
    ComposeRowText(odd, 0, kept);
    EXPECT_EQ(kept, CleanTitle(odd.Titles[0]) + "\r\n\r\n\tA text");
    ComposeRowText(odd, 1, kept);
    EXPECT_EQ(kept, "\r\n\r\n\tTwo");
}

TEST_F(LoadedLibraries, AnEmptyLastTitleEndsTheStartExceptInTheAdvancedLibrary) {
    EXPECT_NO_THROW(CheckLibraryContent(Libraries));
    const struct {
        const char* Name;
        LibraryId Library;
        bool Refused;
    } cases[] = {
        {"Information", LibraryId::Information, true},
        {"Knowledge", LibraryId::Knowledge, true},
        {"Advanced Knowledge", LibraryId::Advanced, false},
    };
    for (const auto& c : cases) {
        FixedLibraries libraries = Libraries;
        libraries[c.Library].Titles.back().clear();
        try {
            CheckLibraryContent(libraries);
            EXPECT_FALSE(c.Refused) << c.Name;
        } catch (const ProgramError& error) {
            EXPECT_TRUE(c.Refused) << c.Name;
            EXPECT_EQ(error.Number(), 1001) << c.Name;
        }
    }
}

} // namespace
} // namespace veyrant
