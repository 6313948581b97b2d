#pragma once

// The spelling marks of the boxes the user writes in, over whatever dictionary the machine has.
// The program's own names are known, and so is every word the user added, which is kept in a
// personal word list and shared by every window that marks. With no dictionary the checker is
// idle: nothing is marked, and nothing complains.

#include "shell/Dictionary.h"
#include "shell/SpellingWords.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace veyrant {

// Corrections offered for one word, at most.
inline constexpr std::size_t MaxSuggestions = 5;

class SpellChecker {
public:
    // Takes the dictionary, or none, and reads the personal word list; a list that cannot be
    // read counts as empty.
    void Open(std::unique_ptr<Dictionary> dictionary, std::filesystem::path personalWords);

    bool Active() const { return dictionary_ != nullptr; }
    // An idle checker knows every word.
    bool Knows(std::string_view word) const;
    // The finished words the dictionary does not know; the word at the caret is still being typed.
    std::vector<WordSpan> Misspelt(std::string_view text, std::size_t caret = NoCaret) const;
    std::vector<std::string> Suggestions(std::string_view word) const;
    // Known at once in every window, and from the next start. Raises ProgramError when the list
    // cannot be written; the word is then known for this run only.
    void Add(std::string_view word);

    // Called after a word was added, so that every marking window looks again; a window that is
    // gone answers false and is forgotten.
    void Watch(std::function<bool()> changed);

private:
    bool Judge(std::string_view word) const;

    std::unique_ptr<Dictionary> dictionary_;
    std::filesystem::path personalFile_;
    std::vector<std::string> personalWords_;
    // The dictionary's answers so far: a text marked again after each key asks about the same
    // words again.
    mutable std::unordered_map<std::string, bool> answers_;
    std::vector<std::function<bool()>> watchers_;
};

} // namespace veyrant
