#include "ContentSources.h"
#include "core/Text.h"

#include <algorithm>
#include <sstream>

namespace veyrant::content {

namespace {

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

int Number(const SourcePlace& place, const std::string& text, const std::string& what) {
    if (text.empty() || text.size() > 5 ||
        text.find_first_not_of("0123456789") != std::string::npos) {
        throw ContentError(place, what + " must be a whole number: " + text);
    }
    return std::stoi(text);
}

void CheckPlanName(const SourcePlace& place, const std::string& name) {
    if (name.empty() || name.find_first_of("\",|") != std::string::npos) {
        throw ContentError(place, "a plan needs a name without quotation marks, commas or \"|\"");
    }
}

// Choices parted by "|"; "-" alone is the empty choice.
void AddChoices(const SourcePlace& place, const std::string& text, std::vector<PlanChoice>& slot) {
    std::size_t start = 0;
    for (;;) {
        const auto bar = text.find('|', start);
        const std::string item =
            Trim(text.substr(start, bar == std::string::npos ? std::string::npos : bar - start));
        if (item.empty()) {
            throw ContentError(place, "a slot has a choice with nothing in it; write \"-\" for "
                                      "the empty choice");
        }
        PlanChoice choice = Words(item);
        if (choice.size() == 1 && choice.front() == "-") {
            choice.clear();
        } else if (std::find(choice.begin(), choice.end(), "-") != choice.end()) {
            throw ContentError(place, "\"-\" stands alone as the empty choice");
        }
        slot.push_back(std::move(choice));
        if (bar == std::string::npos) {
            return;
        }
        start = bar + 1;
    }
}

struct PlanReader {
    const std::string& FileName;
    ContentSources& Sources;
    PlanDefinition* Plan = nullptr;
    int LastSlot = 0;

    void Line(const SourcePlace& place, const std::string& text) {
        const auto words = Words(text);
        const std::string& key = words.front();
        if (key == "MaxSections" || key == "MaxComponents") {
            if (words.size() != 2) {
                throw ContentError(place, key + " takes one number");
            }
            (key == "MaxSections" ? Sources.MaxSections : Sources.MaxComponents) =
                Number(place, words[1], key);
            Sources.LimitsPlace = place;
            Plan = nullptr;
        } else if (key == "CaseKeepers" || key == "TightJoiners") {
            NameList& list = key == "CaseKeepers" ? Sources.CaseKeepers : Sources.TightJoiners;
            if (list.Names.empty()) {
                list.Place = place;
            }
            list.Names.insert(list.Names.end(), words.begin() + 1, words.end());
            Plan = nullptr;
        } else if (key == "section") {
            if (words.size() != 2) {
                throw ContentError(place, "a section plan begins \"section Name\"");
            }
            CheckPlanName(place, words[1]);
            Sources.Sections.push_back({words[1], 0, {}, place});
            Plan = &Sources.Sections.back();
        } else if (key == "message") {
            if (words.size() != 3) {
                throw ContentError(place, "a message plan begins \"message Number Name\"");
            }
            CheckPlanName(place, words[2]);
            Sources.Messages.push_back(
                {words[2], Number(place, words[1], "A message number"), {}, place});
            Plan = &Sources.Messages.back();
        } else if (key == "block") {
            if (Plan == nullptr) {
                throw ContentError(place, "a block stands outside a plan");
            }
            Plan->Blocks.push_back({{}, {}, place});
            LastSlot = 0;
        } else if (text.front() == '|') {
            if (Plan == nullptr || Plan->Blocks.empty() || LastSlot == 0) {
                throw ContentError(place, "a continued slot needs a slot above it");
            }
            AddChoices(place, text.substr(1),
                       Plan->Blocks.back().Slots[static_cast<std::size_t>(LastSlot)]);
        } else {
            Slot(place, text);
        }
    }

    void Slot(const SourcePlace& place, const std::string& text) {
        const auto colon = text.find(':');
        if (colon == std::string::npos || colon != 1 || text[0] < '1' || text[0] > '6') {
            throw ContentError(place, "not understood: \"" + text + "\"");
        }
        if (Plan == nullptr || Plan->Blocks.empty()) {
            throw ContentError(place, "a slot stands outside a block");
        }
        const int slot = text[0] - '0';
        if (slot <= LastSlot) {
            throw ContentError(place, "slots of a block stand in order 1 to 6, each once");
        }
        LastSlot = slot;
        Plan->Blocks.back().SlotPlaces[static_cast<std::size_t>(slot)] = place;
        const std::string choices = Trim(text.substr(2));
        if (choices.empty()) {
            throw ContentError(place, "slot " + std::to_string(slot) + " has no choice");
        }
        AddChoices(place, choices, Plan->Blocks.back().Slots[static_cast<std::size_t>(slot)]);
    }
};

} // namespace

void ReadPlanSource(const std::string& fileName, std::string_view utf8, ContentSources& sources) {
    PlanReader reader{fileName, sources};
    const auto lines = SourceLines(fileName, utf8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) {
            continue;
        }
        reader.Line({fileName, static_cast<int>(i) + 1}, lines[i]);
    }
}

} // namespace veyrant::content
