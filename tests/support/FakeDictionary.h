#pragma once

#include "shell/Dictionary.h"

#include <map>
#include <set>

namespace veyrant::testing {

// A dictionary of a few words, with the corrections a test gives it.
class FakeDictionary final : public Dictionary {
public:
    explicit FakeDictionary(
        std::set<std::string, std::less<>> words,
        std::map<std::string, std::vector<std::string>, std::less<>> corrections = {})
        : words_(std::move(words)), corrections_(std::move(corrections)) {}

    bool Knows(std::string_view word) const override { return words_.contains(word); }
    std::vector<std::string> Suggest(std::string_view word) const override {
        const auto found = corrections_.find(word);
        return found == corrections_.end() ? std::vector<std::string>{} : found->second;
    }
    void Add(std::string_view word) override { words_.emplace(word); }

private:
    std::set<std::string, std::less<>> words_;
    std::map<std::string, std::vector<std::string>, std::less<>> corrections_;
};

} // namespace veyrant::testing
