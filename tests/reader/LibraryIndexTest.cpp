#include "reader/FixedLibrary.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrant {
namespace {

FixedLibrary LibraryOf(std::vector<std::string> titles, int width = 40) {
    FixedLibrary library;
    library.LastRow = static_cast<std::int16_t>(titles.size()) - 1;
    library.Texts.assign(titles.size(), "\tText.\r\n");
    library.Titles = std::move(titles);
    library.RecordWidth = width;
    BuildLibraryIndex(library);
    return library;
}

// Each row knows the last row of the Section it stands in; the last Section runs to the end.
TEST(LibraryIndex, SectionsEndWhereTheNextBegins) {
    const FixedLibrary library =
        LibraryOf({"< One >", "\tA", "\t\tA1", "< Two >", "< Three >", "\tB", "\t\tB1", "\t\tB2"});
    EXPECT_EQ(library.LastSection, 2);
    EXPECT_EQ(library.SectionRow, (std::vector<std::int16_t>{0, 3, 4}));
    EXPECT_EQ(library.SectionEnd, (std::vector<std::int16_t>{2, 2, 2, 3, 7, 7, 7, 7}));
    EXPECT_EQ(library.RowKind, (std::vector<std::int16_t>{2, 0, 0, 2, 2, 0, 0, 0}));
    EXPECT_EQ(library.SectionTitle[1], "< Two >");
}

TEST(LibraryIndex, CleanTitleDropsTabsAndOuterBlanks) {
    const struct {
        const char* Title;
        const char* Clean;
    } cases[] = {
        {"< Introduction for the New User >", "< Introduction for the New User >"},
        {"\tResisting Yourself ", "Resisting Yourself"},
        {"\t\tDual Identity of Self and World ", "Dual Identity of Self and World"},
        {"  < Padded >  ", "< Padded >"},
        {"\tOuter\tInner", "Inner"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CleanTitle(c.Title), c.Clean) << c.Title;
    }
}

TEST(LibraryIndex, RowTextIsTitleThenRecordWithoutPadding) {
    FixedLibrary library = LibraryOf({"< Section >", "\tFull", "\tEmpty"}, 10);
    library.Texts[0] = "\tIntro.\r\n   ";
    library.Texts[1] = "\tTen char.";
    library.Texts[2] = "";
    EXPECT_EQ(ComposeRowText(library, 0), "< Section >\r\n\r\n\tIntro.\r\n");
    // A text that fills its record keeps its last character.
    EXPECT_EQ(ComposeRowText(library, 1), "Full\r\n\r\n\tTen char.");
    EXPECT_EQ(ComposeRowText(library, 2), "Empty\r\n\r\n");
}

} // namespace
} // namespace veyrant
