#include "ui/HunspellDictionary.h"

#include "app/PreferencesFile.h"
#include "core/Cp1252.h"
#include "shell/DictionaryChoice.h"

#include <cerrno>
#include <cstdlib>
#include <hunspell/hunspell.hxx>
#include <iconv.h>
#include <optional>

namespace veyrant {

namespace {

std::string_view Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view{} : std::string_view{value};
}

// One direction of iconv, for a dictionary in a code other than UTF-8.
class Converter {
public:
    Converter(const std::string& to, const std::string& from)
        : handle_(iconv_open(to.c_str(), from.c_str())) {}
    ~Converter() {
        if (Usable()) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool Usable() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

    std::optional<std::string> operator()(std::string_view text) const {
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        std::string input(text);
        std::string output(text.size() * 4 + 4, '\0');
        char* in = input.data();
        std::size_t inLeft = input.size();
        char* out = output.data();
        std::size_t outLeft = output.size();
        if (iconv(handle_, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) {
            return std::nullopt;
        }
        output.resize(output.size() - outLeft);
        return output;
    }

private:
    iconv_t handle_;
};

// Hunspell names a Windows code page "microsoft-cp1251"; iconv knows it as "cp1251".
std::string IconvName(std::string name) {
    constexpr std::string_view Microsoft = "microsoft-";
    if (name.rfind(Microsoft, 0) == 0) {
        name.erase(0, Microsoft.size());
    }
    return name;
}

} // namespace

// Between the program's code page and the dictionary's.
class HunspellDictionary::Encoding {
public:
    explicit Encoding(const std::string& name)
        : utf8_(name == "UTF-8" || name == "utf-8"), toDictionary_(IconvName(name), "CP1252"),
          fromDictionary_("CP1252", IconvName(name)) {}

    bool Usable() const { return utf8_ || (toDictionary_.Usable() && fromDictionary_.Usable()); }

    std::optional<std::string> ToDictionary(std::string_view word) const {
        return utf8_ ? Cp1252ToUtf8(word) : toDictionary_(word);
    }
    std::optional<std::string> FromDictionary(std::string_view word) const {
        if (!utf8_) {
            return fromDictionary_(word);
        }
        Utf8Conversion converted = Utf8ToCp1252(word);
        return converted.Ok ? std::optional(std::move(converted.Text)) : std::nullopt;
    }

private:
    bool utf8_;
    Converter toDictionary_;
    Converter fromDictionary_;
};

std::unique_ptr<HunspellDictionary> HunspellDictionary::Open(const std::filesystem::path& affixes,
                                                             const std::filesystem::path& words) {
    auto hunspell = std::make_unique<Hunspell>(affixes.c_str(), words.c_str());
    auto encoding = std::make_unique<Encoding>(hunspell->get_dict_encoding());
    if (!encoding->Usable()) {
        return nullptr;
    }
    return std::unique_ptr<HunspellDictionary>(
        new HunspellDictionary(std::move(hunspell), std::move(encoding)));
}

HunspellDictionary::HunspellDictionary(std::unique_ptr<Hunspell> hunspell,
                                       std::unique_ptr<Encoding> encoding)
    : hunspell_(std::move(hunspell)), encoding_(std::move(encoding)) {}

HunspellDictionary::~HunspellDictionary() = default;

bool HunspellDictionary::Knows(std::string_view word) const {
    // A word the dictionary's code cannot spell is none of its words.
    const auto converted = encoding_->ToDictionary(word);
    return converted && hunspell_->spell(*converted);
}

std::vector<std::string> HunspellDictionary::Suggest(std::string_view word) const {
    std::vector<std::string> offered;
    const auto converted = encoding_->ToDictionary(word);
    if (!converted) {
        return offered;
    }
    for (const std::string& suggestion : hunspell_->suggest(*converted)) {
        // A correction the program's code page cannot hold could not be typed either.
        if (auto back = encoding_->FromDictionary(suggestion)) {
            offered.push_back(std::move(*back));
        }
    }
    return offered;
}

void HunspellDictionary::Add(std::string_view word) {
    if (const auto converted = encoding_->ToDictionary(word)) {
        hunspell_->add(*converted);
    }
}

std::unique_ptr<Dictionary> OpenInstalledDictionary(const std::filesystem::path& folder) {
    const auto names =
        DictionaryNames(Environment("LC_ALL"), Environment("LC_MESSAGES"), Environment("LANG"));
    for (const std::string& name : names) {
        if (const auto files = FindDictionary(folder, {name})) {
            if (auto dictionary = HunspellDictionary::Open(files->Affixes, files->Words)) {
                return dictionary;
            }
        }
    }
    return nullptr;
}

void OpenSpelling(Application& app, const std::filesystem::path& folder) {
    app.Spelling.Open(app.UserPreferences.SpellingMarks ? OpenInstalledDictionary(folder) : nullptr,
                      PersonalWordsFile(app));
}

} // namespace veyrant
