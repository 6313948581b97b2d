// Every word the program shows from its content, in the phrase stocks, the Suggestions and the
// fixed libraries, is checked against the American English dictionary of hunspell, so a typing slip
// in the content fails here with its word, file and line. The program's own words stand in
// data/spelling-allowlist.txt.

#include "ContentSources.h"
#include "LibrarySource.h"
#include "core/Cp1252.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace veyrant {
namespace {

namespace fs = std::filesystem;

struct PhraseLine {
    std::string File; // relative to the content folder, e.g. "stocks/01.txt"
    int Line = 0;
    std::string Text; // UTF-8
};

struct Misspelling {
    std::string Word;
    std::string File;
    int Line = 0;
    bool operator==(const Misspelling&) const = default;
};

std::string Describe(const Misspelling& found) {
    return "data/" + found.File + ":" + std::to_string(found.Line) + ": unknown word \"" +
           found.Word + "\"";
}

// The typographic single quotes become the plain one, which the dictionary's word breaking
// understands both as an apostrophe and as a quotation mark.
std::string PlainQuotes(std::string text) {
    for (const std::string curly : {"\u2018", "\u2019"}) {
        for (auto at = text.find(curly); at != std::string::npos; at = text.find(curly, at)) {
            text.replace(at, curly.size(), "'");
        }
    }
    return text;
}

// The text a line of a stock shows: no label line, no repeat mark.
std::string StockPhrase(const std::string& line) {
    if (line.empty() || line.front() == '[') {
        return {};
    }
    if (line.front() == '(') {
        const auto close = line.find(')');
        return close == std::string::npos ? line : line.substr(close + 1);
    }
    return line;
}

// The text a line of the Suggestions shows: the heading without its mark, or the text itself.
std::string SuggestionPhrase(const std::string& line) {
    return !line.empty() && line.front() == '=' ? line.substr(1) : line;
}

// Paths, addresses, settings and keys ("~/.local", "support@...", "$XDG_DATA_HOME", "F1") are
// names the manual quotes, not words: a token with a digit or a mark of a path is left out.
std::string WithoutQuotedNames(const std::string& text) {
    std::istringstream tokens(text);
    std::string kept;
    for (std::string token; tokens >> token;) {
        const auto inner = token.substr(0, token.find_last_not_of(".,;:!?)\x94\x92") + 1);
        if (inner.find_first_of("0123456789/@~$_\\") == std::string::npos &&
            inner.find('.') == std::string::npos) {
            kept += (kept.empty() ? "" : " ") + token;
        }
    }
    return kept;
}

// The text a line of a library shows: a title without its level mark, an item without its star.
std::string LibraryPhrase(const std::string& line) {
    if (line.size() >= 4 && line.front() == '[' && line[2] == ']') {
        return line.substr(4);
    }
    return WithoutQuotedNames(line.starts_with("* ") ? line.substr(2) : line);
}

void AddLines(const fs::path& content, const std::string& relative,
              std::string (*phraseOf)(const std::string&), std::vector<PhraseLine>& lines) {
    const auto source = content::SourceLines(relative, ReadWholeFile(content / relative));
    for (std::size_t i = 0; i < source.size(); ++i) {
        const std::string text = phraseOf(source[i]);
        if (!text.empty()) {
            lines.push_back({relative, static_cast<int>(i) + 1, Cp1252ToUtf8(text)});
        }
    }
}

// The stocks are the files 01.txt to 14.txt; the folder holds their group order as well. The
// libraries' titles are read where their bodies stand.
std::vector<PhraseLine> PhraseLines(const fs::path& content) {
    std::vector<PhraseLine> lines;
    for (int stock = 1; stock <= content::StockCount; ++stock) {
        const std::string name =
            std::string("stocks/") + (stock < 10 ? "0" : "") + std::to_string(stock) + ".txt";
        if (fs::exists(content / name)) {
            AddLines(content, name, StockPhrase, lines);
        }
    }
    AddLines(content, "suggestions.txt", SuggestionPhrase, lines);
    for (const std::string_view folder : content::LibraryFolders) {
        const fs::path library = content / "libraries" / folder;
        if (!fs::is_directory(library)) {
            continue;
        }
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(library)) {
            if (entry.path().extension() == ".txt") {
                names.push_back(fs::relative(entry.path(), content).generic_string());
            }
        }
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) {
            AddLines(content, name, LibraryPhrase, lines);
        }
    }
    return lines;
}

std::set<std::string> Allowlist(const fs::path& content) {
    std::set<std::string> words;
    std::istringstream text(ReadWholeFile(content / "spelling-allowlist.txt"));
    for (std::string word; std::getline(text, word);) {
        word.erase(word.find_last_not_of(" \t\r") + 1);
        if (!word.empty() && word.front() != '#') {
            words.insert(word);
        }
    }
    return words;
}

// A word of the program's own, alone or in its possessive.
bool IsAllowed(const std::set<std::string>& allowed, const std::string& word) {
    if (allowed.contains(word)) {
        return true;
    }
    // The program's name in a package or a web address is written in lower case.
    for (const std::string& name : allowed) {
        if (word == Lower(name)) {
            return true;
        }
    }
    return word.size() > 2 && word.ends_with("'s") &&
           allowed.contains(word.substr(0, word.size() - 2));
}

// Runs hunspell in its pipe mode, one content line to one input line, and reads back the words
// it does not know. Fails the calling test if hunspell cannot be run.
std::vector<Misspelling> FindMisspellings(const fs::path& content) {
    const auto lines = PhraseLines(content);
    const auto allowed = Allowlist(content);
    testing::TempFolder scratch;
    std::string input;
    for (const auto& line : lines) {
        input += "^" + PlainQuotes(line.Text) + "\n"; // "^": never read as a command
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
    std::vector<Misspelling> found;
    std::size_t line = 0;
    while (std::getline(verdicts, verdict)) {
        if (verdict.empty()) { // hunspell ends the verdicts on each input line with a blank one
            ++line;
            continue;
        }
        if ((verdict.front() == '&' || verdict.front() == '#') && line < lines.size()) {
            const auto end = verdict.find(' ', 2);
            const std::string word = verdict.substr(2, end == std::string::npos ? end : end - 2);
            if (!IsAllowed(allowed, word)) {
                found.push_back({word, lines[line].File, lines[line].Line});
            }
        }
    }
    EXPECT_EQ(line, lines.size()) << "hunspell answered for another number of lines";
    return found;
}

TEST(Spelling, NamesEachUnknownWordWithItsFileAndLine) {
    testing::TempFolder content;
    fs::create_directories(content / "stocks");
    WriteWholeFile(content / "stocks" / "01.txt", "# The quiet mornnig is a comment.\n"
                                                  "[Quiet-mornnig]\n"
                                                  "(3) The quiet of the mornnig\n"
                                                  "Your Sagrel’s gentle voice\n"
                                                  "\n"
                                                  "[—]\n"
                                                  "—\n"
                                                  "—can\n");
    WriteWholeFile(content / "stocks" / "02.txt", "[Open]\n"
                                                  "An honest, open question\n"
                                                  "Your parents’ wishes\n");
    WriteWholeFile(content / "stocks" / "order.txt", "1: Quiet-mornnig Cond-lead\n"); // no phrases
    WriteWholeFile(content / "suggestions.txt", "= Reveal What Is Hiden\n"
                                                "Use the Converse method to create new ideas.\n"
                                                "Click ‘Keep’ and let it setle.\n");
    fs::create_directories(content / "libraries" / "advanced");
    WriteWholeFile(content / "libraries" / "advanced" / "1-awakening.txt",
                   "[0] < Awakening into Wonder >\n"
                   "The Ambrel shows itself.\n"
                   "[1] Yearning to Remembr\n"
                   "* A quiet listt\n"
                   "Press F1, see ~/.local/share/veyrant-sagrel/exe or write to "
                   "support@veyrant-sagrel.org.\n"
                   "Type sudo apt remove veyrant-sagrel.\n");
    WriteWholeFile(content / "spelling-allowlist.txt", "# The program's own words.\n"
                                                       "Ambrel\n"
                                                       "Sagrel\n"
                                                       "Veyrant\n");
    const std::vector<Misspelling> expected = {{"mornnig", "stocks/01.txt", 3},
                                               {"Hiden", "suggestions.txt", 1},
                                               {"setle", "suggestions.txt", 3},
                                               {"Remembr", "libraries/advanced/1-awakening.txt", 3},
                                               {"listt", "libraries/advanced/1-awakening.txt", 4},
                                               {"sudo", "libraries/advanced/1-awakening.txt", 6}};
    EXPECT_EQ(FindMisspellings(content.Path()), expected);
}

TEST(Spelling, EveryWordOfTheContentIsInTheDictionary) {
    const fs::path content = VEYRANT_CONTENT_DATA;
    ASSERT_GT(PhraseLines(content).size(), 289u) << "no content found in " << content;
    for (const auto& found : FindMisspellings(content)) {
        ADD_FAILURE() << Describe(found);
    }
}

} // namespace
} // namespace veyrant
