#include "shell/SpellChecker.h"

#include "core/WholeFile.h"
#include "shell/DictionaryChoice.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <set>

namespace veyrant::testing {
namespace {

// A dictionary of a few words, with no corrections.
class FewWords final : public Dictionary {
public:
    bool Knows(std::string_view word) const override { return words_.contains(word); }
    std::vector<std::string> Suggest(std::string_view) const override { return {}; }
    void Add(std::string_view word) override { words_.emplace(word); }

private:
    std::set<std::string, std::less<>> words_{"I", "the", "cat", "sat", "caf\xE9", "don't", "on"};
};

std::vector<std::string> Marked(const SpellChecker& checker, std::string_view text,
                                std::size_t caret) {
    std::vector<std::string> words;
    for (const WordSpan& word : checker.Misspelt(text, caret)) {
        words.emplace_back(text.substr(word.Start, word.Length));
    }
    return words;
}

// Finished words the dictionary does not know are marked; an added word is known. The dictionary
// is chosen by the user's language.
TEST(SpellChecker, MarksFinishedWordsTheDictionaryOfTheUsersLanguageDoesNotKnow) {
    const struct {
        std::string_view Text;
        std::size_t Caret;
        std::vector<std::string> Marked;
    } cases[] = {
        {"the cta sat", NoCaret, {"cta"}},
        {"the cta", 7, {}},            // still being typed
        {"the cta sta", 5, {"sta"}},   // the caret is back in it
        {"the cta, sat", 11, {"cta"}}, // finished by a mark
        {"Sagrel's Veyrant, Ardelune and Tolmira at veyrant-sagrel", NoCaret, {"and", "at"}},
        {"caf\xE9 c\xE0t", NoCaret, {"c\xE0t"}},
        {"I don\x92t 'sat' on R2D2 in 1999 \x81x", NoCaret, {"in"}},
        {"the-cta\xD7sat", NoCaret, {"cta"}},
    };
    TempFolder folder;
    SpellChecker checker;
    checker.Open(std::make_unique<FewWords>(), folder / "Words.txt");
    for (const auto& c : cases) {
        EXPECT_EQ(Marked(checker, c.Text, c.Caret), c.Marked) << c.Text;
    }
    SpellChecker idle;
    idle.Open(nullptr, folder / "Words.txt");
    EXPECT_EQ(Marked(idle, "the cta sat", NoCaret), std::vector<std::string>{});
    // An added word is known at once and after a restart.
    int looks = 0;
    checker.Watch([&] { return ++looks < 2; });
    EXPECT_FALSE(checker.Knows("Qwerty"));
    checker.Add("Qwerty");
    checker.Add("Zorp");
    checker.Add("Zorp");
    EXPECT_TRUE(checker.Knows("Qwerty"));
    EXPECT_EQ(looks, 2); // the watcher that answered false was forgotten
    EXPECT_EQ(ReadWholeFile(folder / "Words.txt"), "Qwerty\r\nZorp\r\n");
    SpellChecker restarted;
    restarted.Open(std::make_unique<FewWords>(), folder / "Words.txt");
    EXPECT_TRUE(restarted.Knows("Qwerty") && restarted.Knows("Zorp"));
    // The dictionary of the user's language comes first, American English last.
    const struct {
        std::string_view All, Messages, Lang;
        std::vector<std::string> Names;
    } languages[] = {
        {"", "", "de_DE.UTF-8", {"de_DE", "de", "en_US"}},
        {"", "fr_CA.UTF-8@euro", "de_DE.UTF-8", {"fr_CA", "fr", "en_US"}},
        {"C", "fr_CA", "de_DE", {"en_US"}},
        {"", "", "en_US.UTF-8", {"en_US", "en"}},
        {"", "", "", {"en_US"}},
    };
    for (const auto& c : languages) {
        EXPECT_EQ(DictionaryNames(c.All, c.Messages, c.Lang), c.Names) << c.Lang;
    }
    WriteWholeFile(folder / "de_DE.aff", "SET UTF-8\n");
    EXPECT_FALSE(FindDictionary(folder.Path(), {"de_DE", "en_US"}));
    WriteWholeFile(folder / "en_US.aff", "SET UTF-8\n");
    WriteWholeFile(folder / "en_US.dic", "0\n");
    EXPECT_EQ(FindDictionary(folder.Path(), {"de_DE", "en_US"})->Words, folder / "en_US.dic");
}

} // namespace
} // namespace veyrant::testing
