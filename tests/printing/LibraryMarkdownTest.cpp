#include "printing/LibraryMarkdown.h"

#include "core/WholeFile.h"
#include "printing/SaveFolder.h"
#include "support/FakeClock.h"
#include "support/TempFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// Save As never proposes a folder that is not there: a missing documents folder gives home, and
// the folder of the last save is kept only while it exists.
TEST(SaveFolder, ProposesOnlyAFolderThatExists) {
    TempFolder home;
    const auto documents = home / "Documents";
    const auto chosen = home / "Letters";
    SaveFolder folder;
    EXPECT_EQ(folder.Proposed(documents, home.Path()), home.Path());
    std::filesystem::create_directory(documents);
    EXPECT_EQ(folder.Proposed(documents, home.Path()), documents);
    folder.Saved(chosen / "Dialogue.txt");
    EXPECT_EQ(folder.Proposed(documents, home.Path()), documents);
    std::filesystem::create_directory(chosen);
    EXPECT_EQ(folder.Proposed(documents, home.Path()), chosen);
}

// The Markdown as a CommonMark reader shows it.
std::string CommonMarkHtml(const std::string& markdown) {
    TempFolder folder;
    WriteWholeFile(folder / "d.md", markdown);
    const std::string command =
        "cmark '" + (folder / "d.md").string() + "' > '" + (folder / "d.html").string() + "'";
    EXPECT_EQ(std::system(command.c_str()), 0) << "cmark is installed by scripts/install-deps";
    return ReadWholeFile(folder / "d.html");
}

// A Dialogue shows its entries as quotations, its responses as paragraphs, and the user's own
// characters never taken for markup; the index links each file, latest first.
TEST(LibraryMarkdown, ADialogueReadsAsTheUserWroteItAndTheIndexLinksEachFile) {
    const std::string dialogue =
        "\r\n\r\n\t\x93Is # a *star* <b> & [link](x)?\x94\r\n\t1. Not a list, \\ nor "
        "`code`.\r\n\r\n\t\x93Suppose it rains.\x94\r\n\tYour idea \x93Stay in.\x94 "
        "Yes.\r\n\r\n\t\x93- A comment, caf\xE9.\x94";
    EXPECT_EQ(CommonMarkHtml(DialogueMarkdown(FakeClock{}.Date, "\t> Begin here.", dialogue)),
              "<h1>Sunday, 12:00 PM, November 22, 2026</h1>\n<h2>Inspiration</h2>\n<p>&gt; Begin "
              "here.</p>\n<h2>Dialogue</h2>\n<blockquote>\n<p>“Is # a *star* &lt;b&gt; &amp; "
              "[link](x)?”</p>\n</blockquote>\n<p>1. Not a list, \\ nor "
              "`code`.</p>\n<blockquote>\n<p>“Suppose it rains.”</p>\n</blockquote>\n<p>Your idea "
              "“Stay in.” Yes.</p>\n<blockquote>\n<p>“- A comment, café.”</p>\n</blockquote>\n");
    const DateTime first{2026, 11, 22, 12, 0, 0};
    const DateTime later{2026, 11, 23, 9, 15, 0};
    const auto names = MarkdownFileNames({first, later, later});
    EXPECT_EQ(names, (std::vector<std::string>{"2026-11-22 12.00.md", "2026-11-23 09.15.md",
                                               "2026-11-23 09.15 (2).md"}));
    EXPECT_EQ(CommonMarkHtml(IndexMarkdown(
                  {{first, names[0], "\tOne *day*."}, {later, names[2], "no tab\r\nsecond line"}})),
              "<h1>Veyrant Sagrel Dialogue Library</h1>\n<ul>\n<li><a "
              "href=\"2026-11-23%2009.15%20%282%29.md\">Monday, 9:15 AM, November 23, 2026</a>: no "
              "tab</li>\n<li><a href=\"2026-11-22%2012.00.md\">Sunday, 12:00 PM, November 22, "
              "2026</a>: One *day*.</li>\n</ul>\n");
}

} // namespace
} // namespace veyrant::testing
