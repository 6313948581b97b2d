// Every word the program shows from its content, in the phrase stocks, the Suggestions and the
// fixed libraries, is checked against hunspell's American English dictionary, so a typing slip
// fails here with its word, file and line. The program's own words stand in
// data/spelling-allowlist.txt.

#include "ContentSources.h"
#include "EngineFixture.h"
#include "LibrarySource.h"
#include "core/Cp1252.h"
#include "core/Text.h"

#include <algorithm>
#include <cstdlib>
#include <regex>
#include <set>

namespace veyrant {
namespace {

namespace fs = std::filesystem;

struct PhraseLine {
    std::string File; // relative to the content folder, e.g. "stocks/01.txt"
    int Line = 0;
    std::string Text; // UTF-8
};

// Paths, addresses, settings and keys ("~/.local", "support@...", "$XDG_DATA_HOME", "F1") are
// names the manual quotes, not words: a token with a digit or a mark of a path is left out.
std::string WithoutQuotedNames(const std::string& text) {
    std::istringstream tokens(text);
    std::string kept;
    for (std::string token; tokens >> token;) {
        const auto inner = token.substr(0, token.find_last_not_of(".,;:!?)\x94\x92") + 1);
        if (inner.find_first_of("0123456789/@~$_\\.") == std::string::npos) {
            kept += (kept.empty() ? "" : " ") + token;
        }
    }
    return kept;
}

// The text a line shows: a stock's without its label lines and repeat marks, a Suggestion's
// heading without its mark, a library's title without its level mark and item without its star.
std::string Phrase(const std::string& file, const std::string& line) {
    if (file.starts_with("stocks/")) {
        return line.starts_with("[")   ? ""
               : line.starts_with("(") ? line.substr(line.find(')') + 1)
                                       : line;
    }
    if (!file.starts_with("libraries/")) {
        return line.starts_with("=") ? line.substr(1) : line;
    }
    if (line.size() >= 4 && line.front() == '[' && line[2] == ']') {
        return line.substr(4);
    }
    return WithoutQuotedNames(line.starts_with("* ") ? line.substr(2) : line);
}

// The stocks without their group order, which shows no phrase, the Suggestions, and the libraries'
// bodies, which hold their titles too; in name order.
std::vector<PhraseLine> PhraseLines(const fs::path& content) {
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(content)) {
        const std::string file = fs::relative(entry.path(), content).generic_string();
        const bool body =
            std::ranges::any_of(content::LibraryFolders, [&](std::string_view folder) {
                return file.starts_with("libraries/" + std::string(folder) + "/");
            });
        if (file.ends_with(".txt") &&
            (body || file == "suggestions.txt" ||
             (file.starts_with("stocks/") && file != "stocks/order.txt"))) {
            files.push_back(file);
        }
    }
    std::sort(files.begin(), files.end());
    std::vector<PhraseLine> lines;
    for (const std::string& file : files) {
        const auto source = content::SourceLines(file, ReadWholeFile(content / file));
        for (std::size_t i = 0; i < source.size(); ++i) {
            if (const std::string text = Phrase(file, source[i]); !text.empty()) {
                lines.push_back({file, static_cast<int>(i) + 1, Cp1252ToUtf8(text)});
            }
        }
    }
    return lines;
}

// Runs hunspell in its pipe mode, one content line to one input line, and reads back the words
// it does not know. The program's own words pass alone, in their possessive, and in lower case
// as a package or a web address writes them.
std::vector<std::string> FindMisspellings(const fs::path& content) {
    const auto lines = PhraseLines(content);
    std::set<std::string> allowed;
    for (const std::string& word : testing::ListedLines(content / "spelling-allowlist.txt")) {
        allowed.insert({word, word + "'s", Lower(word)});
    }
    testing::TempFolder scratch;
    std::string input;
    for (const auto& line : lines) {
        // The plain quote is read both as an apostrophe and as a quotation mark; "^": never read
        // as a command.
        input += "^" + std::regex_replace(line.Text, std::regex("‘|’"), "'") + "\n";
    }
    WriteWholeFile(scratch / "phrases.txt", input);
    // An empty personal dictionary, so that no word list of the machine's user slips in.
    const std::string command = "hunspell -d en_US -i UTF-8 -a -p '" +
                                (scratch / "personal.dic").string() + "' < '" +
                                (scratch / "phrases.txt").string() + "' > '" +
                                (scratch / "verdicts.txt").string() + "' 2>&1";
    if (std::system(command.c_str()) != 0) {
        ADD_FAILURE() << "hunspell with its en_US dictionary is needed (scripts/install-deps): "
                      << ReadWholeFile(scratch / "verdicts.txt");
        return {};
    }
    std::istringstream verdicts(ReadWholeFile(scratch / "verdicts.txt"));
    std::string verdict;
    std::getline(verdicts, verdict); // the banner
    std::vector<std::string> found;
    std::size_t line = 0;
    while (std::getline(verdicts, verdict)) {
        // hunspell ends the verdicts on each input line with a blank one.
        line += verdict.empty() ? 1 : 0;
        if (!verdict.empty() && (verdict[0] == '&' || verdict[0] == '#') && line < lines.size()) {
            const std::string word = verdict.substr(2, verdict.find(' ', 2) - 2);
            if (!allowed.contains(word)) {
                found.push_back("data/" + lines[line].File + ":" +
                                std::to_string(lines[line].Line) + ": unknown word \"" + word +
                                "\"");
            }
        }
    }
    EXPECT_EQ(line, lines.size()) << "hunspell answered for another number of lines";
    return found;
}

TEST(Spelling, NamesEachUnknownWordWithItsFileAndLine) {
    testing::TempFolder content;
    fs::create_directories(content / "stocks");
    fs::create_directories(content / "libraries" / "advanced");
    const std::pair<const char*, const char*> files[] = {
        {"stocks/01.txt", "# The quiet mornnig is a comment.\n[Quiet-mornnig]\n(3) The quiet of "
                          "the mornnig\nYour Sagrel’s gentle voice\n\n[—]\n—\n—can\n"},
        {"stocks/order.txt", "1: Quiet-mornnig Cond-lead\n"},
        {"suggestions.txt", "= Reveal What Is Hiden\nClick ‘Keep’ and let it setle.\n"},
        {"libraries/advanced/1-awakening.txt",
         "[0] < Awakening into Wonder >\nThe Ambrel shows itself.\n[1] Yearning to Remembr\n* A "
         "quiet listt\nPress F1, see ~/.local/share/veyrant-sagrel/exe or write to "
         "support@veyrant-sagrel.org.\nType sudo apt remove veyrant-sagrel.\n"},
        {"spelling-allowlist.txt", "# The program's own words.\nAmbrel\nSagrel\nVeyrant\n"}};
    for (const auto& [name, text] : files) {
        WriteWholeFile(content / name, text);
    }
    const std::string library = "data/libraries/advanced/1-awakening.txt:";
    EXPECT_EQ(FindMisspellings(content.Path()),
              (std::vector<std::string>{library + "3: unknown word \"Remembr\"",
                                        library + "4: unknown word \"listt\"",
                                        library + "6: unknown word \"sudo\"",
                                        "data/stocks/01.txt:3: unknown word \"mornnig\"",
                                        "data/suggestions.txt:1: unknown word \"Hiden\"",
                                        "data/suggestions.txt:2: unknown word \"setle\""}));
}

TEST(Spelling, EveryWordOfTheContentIsInTheDictionary) {
    const fs::path content = VEYRANT_CONTENT_DATA;
    ASSERT_GT(PhraseLines(content).size(), 289u) << "no content found in " << content;
    EXPECT_EQ(FindMisspellings(content), std::vector<std::string>{});
}

} // namespace
} // namespace veyrant
