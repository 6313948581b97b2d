#pragma once

// The spelling marks over a Hunspell dictionary of the machine. Words arrive in the program's
// code page and are converted to the encoding the dictionary declares (its SET line).

#include "app/Application.h"
#include "shell/Dictionary.h"
#include "shell/DictionaryChoice.h"

#include <filesystem>
#include <memory>

class Hunspell;

namespace veyrant {

class HunspellDictionary final : public Dictionary {
public:
    // Nothing when the dictionary's encoding cannot be converted to.
    static std::unique_ptr<HunspellDictionary> Open(const std::filesystem::path& affixes,
                                                    const std::filesystem::path& words);
    ~HunspellDictionary() override;

    bool Knows(std::string_view word) const override;
    std::vector<std::string> Suggest(std::string_view word) const override;
    void Add(std::string_view word) override;

private:
    class Encoding;
    HunspellDictionary(std::unique_ptr<Hunspell> hunspell, std::unique_ptr<Encoding> encoding);

    std::unique_ptr<Hunspell> hunspell_;
    std::unique_ptr<Encoding> encoding_;
};

// The dictionary of the user's language where one is installed, else American English; nothing
// where no dictionary is installed at all.
std::unique_ptr<Dictionary> OpenInstalledDictionary(const std::filesystem::path& folder);

// Opens the program's spelling marks over the dictionaries in the folder, or leaves them idle
// when the user turned them off.
void OpenSpelling(Application& app, const std::filesystem::path& folder);

} // namespace veyrant
