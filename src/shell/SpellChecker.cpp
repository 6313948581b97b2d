#include "shell/SpellChecker.h"

#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veyrant {

namespace {

// The program's names, which no dictionary holds.
constexpr std::array<std::string_view, 7> OwnWords{"Ambrel", "Ardelune", "Dovrin", "Hexality",
                                                   "Sagrel", "Tolmira",  "Veyrant"};

// A list far longer than anyone adds by hand is damaged.
constexpr std::size_t PersonalWordsLimit = 1024 * 1024;

std::vector<std::string> ReadPersonalWords(const std::filesystem::path& path) {
    std::vector<std::string> words;
    std::string text;
    try {
        text = ReadWholeFile(path, PersonalWordsLimit);
    } catch (const ProgramError&) {
        return words;
    }
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        std::string word = text.substr(start, end - start);
        if (!word.empty() && word.back() == '\r') {
            word.pop_back();
        }
        if (!word.empty()) {
            words.push_back(std::move(word));
        }
        start = end + 1;
    }
    return words;
}

// The possessive of a known word is known: "Sagrel's".
std::string_view WithoutPossessive(std::string_view word) {
    if (word.size() > 2 && (word.back() == 's' || word.back() == 'S') &&
        (word[word.size() - 2] == '\'' || word[word.size() - 2] == '\x92')) {
        return word.substr(0, word.size() - 2);
    }
    return word;
}

// Dictionaries spell the apostrophe straight.
std::string StraightApostrophes(std::string_view word) {
    std::string plain(word);
    std::replace(plain.begin(), plain.end(), '\x92', '\'');
    return plain;
}

} // namespace

void SpellChecker::Open(std::unique_ptr<Dictionary> dictionary,
                        std::filesystem::path personalWords) {
    dictionary_ = std::move(dictionary);
    personalFile_ = std::move(personalWords);
    personalWords_ = ReadPersonalWords(personalFile_);
    answers_.clear();
    if (!dictionary_) {
        return;
    }
    // In lower case too, as the program's web address and file names spell them.
    for (const std::string_view word : OwnWords) {
        dictionary_->Add(word);
        dictionary_->Add(Lower(word));
    }
    for (const std::string& word : personalWords_) {
        dictionary_->Add(word);
    }
}

bool SpellChecker::Knows(std::string_view word) const {
    if (!dictionary_) {
        return true;
    }
    const std::string plain = StraightApostrophes(word);
    if (const auto known = answers_.find(plain); known != answers_.end()) {
        return known->second;
    }
    const bool known = Judge(plain);
    answers_.emplace(plain, known);
    return known;
}

bool SpellChecker::Judge(std::string_view word) const {
    if (dictionary_->Knows(word)) {
        return true;
    }
    const std::string_view stem = WithoutPossessive(word);
    return stem.size() < word.size() && dictionary_->Knows(stem);
}

std::vector<WordSpan> SpellChecker::Misspelt(std::string_view text, std::size_t caret) const {
    std::vector<WordSpan> marks;
    if (!dictionary_) {
        return marks;
    }
    for (const WordSpan& word : CheckableWords(text, caret)) {
        if (!Knows(text.substr(word.Start, word.Length))) {
            marks.push_back(word);
        }
    }
    return marks;
}

std::vector<std::string> SpellChecker::Suggestions(std::string_view word) const {
    if (!dictionary_) {
        return {};
    }
    std::vector<std::string> offered = dictionary_->Suggest(StraightApostrophes(word));
    if (offered.size() > MaxSuggestions) {
        offered.resize(MaxSuggestions);
    }
    return offered;
}

void SpellChecker::Add(std::string_view word) {
    if (!dictionary_ || word.empty()) {
        return;
    }
    const std::string plain = StraightApostrophes(word);
    dictionary_->Add(plain);
    answers_.clear();
    std::erase_if(watchers_, [](const std::function<bool()>& changed) { return !changed(); });
    if (std::find(personalWords_.begin(), personalWords_.end(), plain) != personalWords_.end()) {
        return;
    }
    personalWords_.push_back(plain);
    std::string text;
    for (const std::string& known : personalWords_) {
        text += known;
        text += CrLf;
    }
    WriteWholeFile(personalFile_, text);
}

void SpellChecker::Watch(std::function<bool()> changed) {
    watchers_.push_back(std::move(changed));
}

} // namespace veyrant
