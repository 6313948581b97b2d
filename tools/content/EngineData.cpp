#include "EngineData.h"

#include <algorithm>
#include <climits>
#include <map>

namespace veyrant::content {

namespace {

constexpr int MessageCount = 16;
constexpr int MaxSlotChoices = 250;
const std::string LineEnd = "\r\n";

struct Component {
    int Stock = 0;
    int LabelRow = 0;
    int Rows = 0;
};

struct CompiledPlan {
    std::string Name;
    std::vector<std::string> Terms;                     // term texts, from term 1
    std::vector<std::array<std::vector<int>, 7>> Slots; // term numbers per block and slot
    std::int64_t Combos = 0;
    int MostParts = 0;      // sections (message) or components (section) at most
    int MostComponents = 0; // message only
};

std::string Joined(const std::vector<int>& numbers, const std::string& separator) {
    std::string text;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        text += (i == 0 ? "" : separator) + std::to_string(numbers[i]);
    }
    return text;
}

class Compiler {
public:
    explicit Compiler(const ContentSources& sources) : sources_(sources) {}

    EngineData Run() {
        NumberComponents();
        NumberSections();
        for (const auto& section : sources_.Sections) {
            sections_.push_back(CompileSection(section));
        }
        CompileMessages();
        EngineData data;
        data.StockRows = stockRows_;
        data.SystemFile = SystemFile();
        data.PlanFile = PlanFile();
        data.Suggestions = sources_.Suggestions;
        return data;
    }

private:
    void NumberComponents() {
        for (int b = 1; b <= StockCount; ++b) {
            auto& rows = stockRows_[static_cast<std::size_t>(b)];
            rows.assign(1, std::string());
            const PhraseGroup* lastPlaced = nullptr;
            for (const PhraseGroup& group : sources_.Stocks[static_cast<std::size_t>(b)].Groups) {
                if (componentByLabel_.count(group.Label) > 0) {
                    throw ContentError(group.Place,
                                       "the label " + group.Label + " is used by another group");
                }
                if (group.Rows.size() > INT16_MAX) {
                    throw ContentError(group.Place,
                                       "the group " + group.Label + " has too many rows");
                }
                CheckPlace(b, group, lastPlaced);
                componentByLabel_[group.Label] = static_cast<int>(components_.size());
                components_.push_back(
                    {b, static_cast<int>(rows.size()), static_cast<int>(group.Rows.size())});
                rows.push_back(IsPunctuation(group.Label) ? group.Label : " " + group.Label);
                rows.insert(rows.end(), group.Rows.begin(), group.Rows.end());
            }
            if (rows.size() - 1 > INT16_MAX) {
                throw ContentError(sources_.Stocks[static_cast<std::size_t>(b)].Place,
                                   "the stock holds more than 32767 rows");
            }
        }
        if (components_.empty()) {
            throw ContentError({"data/stocks", 0}, "the stocks hold no group");
        }
    }

    // Named groups keep the stock and the order of the group order list.
    void CheckPlace(int stock, const PhraseGroup& group, const PhraseGroup*& lastPlaced) const {
        const auto place = sources_.GroupOrder.find(group.Label);
        if (place == sources_.GroupOrder.end()) {
            return;
        }
        if (place->second.Stock != stock) {
            throw ContentError(group.Place, "the group " + group.Label + " belongs in stock " +
                                                std::to_string(place->second.Stock));
        }
        if (lastPlaced != nullptr &&
            sources_.GroupOrder.at(lastPlaced->Label).Order > place->second.Order) {
            throw ContentError(group.Place,
                               "the group " + group.Label + " belongs before " + lastPlaced->Label);
        }
        lastPlaced = &group;
    }

    static bool IsPunctuation(const std::string& label) {
        return label == "." || label == "?" || label == "," || label == "\x97";
    }

    int ComponentOf(const SourcePlace& place, const std::string& label) const {
        const auto found = componentByLabel_.find(label);
        if (found == componentByLabel_.end()) {
            throw ContentError(place, "unknown label " + label);
        }
        return found->second;
    }

    void NumberSections() {
        for (const auto& section : sources_.Sections) {
            if (sectionByName_.count(section.Name) > 0) {
                throw ContentError(section.Place, "a second section is named " + section.Name);
            }
            const int number = static_cast<int>(sectionByName_.size()) + 1;
            sectionByName_[section.Name] = number;
        }
    }

    // Terms are numbered in the order they first appear; the same text is one term.
    template <typename PartsOf>
    CompiledPlan CompilePlan(const PlanDefinition& plan, PartsOf partsOf) {
        CompiledPlan compiled;
        compiled.Name = plan.Name;
        if (plan.Blocks.empty()) {
            throw ContentError(plan.Place, "the plan " + plan.Name + " has no block");
        }
        std::map<std::string, int> termByText;
        for (const PlanBlockSource& block : plan.Blocks) {
            std::array<std::vector<int>, 7> slots;
            std::int64_t combos = 1;
            for (std::size_t s = 1; s <= 6; ++s) {
                const SourcePlace& place =
                    block.SlotPlaces[s].Line > 0 ? block.SlotPlaces[s] : block.Place;
                std::vector<PlanChoice> choices = block.Slots[s];
                if (choices.empty()) {
                    choices.emplace_back(); // an unwritten slot holds the empty choice
                }
                if (choices.size() > MaxSlotChoices) {
                    throw ContentError(place, "slot " + std::to_string(s) + " holds " +
                                                  std::to_string(choices.size()) +
                                                  " choices, more than 250");
                }
                for (const PlanChoice& choice : choices) {
                    std::vector<int> numbers;
                    for (const std::string& name : choice) {
                        numbers.push_back(partsOf(place, name));
                    }
                    const std::string text = Joined(numbers, ", ");
                    auto [found, added] =
                        termByText.emplace(text, static_cast<int>(compiled.Terms.size()) + 1);
                    if (added) {
                        compiled.Terms.push_back(text);
                    }
                    slots[s].push_back(found->second);
                }
                combos *= static_cast<std::int64_t>(choices.size());
            }
            compiled.Combos += combos;
            if (compiled.Combos > INT32_MAX) {
                throw ContentError(block.Place, "the plan " + plan.Name +
                                                    " yields more combinations than a count holds");
            }
            compiled.Slots.push_back(slots);
        }
        if (compiled.Terms.size() > INT16_MAX) {
            throw ContentError(plan.Place, "the plan " + plan.Name + " has too many terms");
        }
        return compiled;
    }

    // The most numbers a combination of the plan can give, weighing each number by size.
    template <typename Size>
    static int Longest(const CompiledPlan& plan, Size size) {
        int longest = 0;
        for (const auto& slots : plan.Slots) {
            int length = 0;
            for (std::size_t s = 1; s <= 6; ++s) {
                int most = 0;
                for (const int term : slots[s]) {
                    most = std::max(most, size(plan.Terms[static_cast<std::size_t>(term - 1)]));
                }
                length += most;
            }
            longest = std::max(longest, length);
        }
        return longest;
    }

    static std::vector<int> Numbers(const std::string& term) {
        std::vector<int> numbers;
        std::size_t start = 0;
        while (start < term.size()) {
            auto comma = term.find(',', start);
            if (comma == std::string::npos) {
                comma = term.size();
            }
            numbers.push_back(std::stoi(term.substr(start, comma - start)));
            start = comma + 1;
        }
        return numbers;
    }

    CompiledPlan CompileSection(const PlanDefinition& section) {
        CompiledPlan compiled =
            CompilePlan(section, [this](const SourcePlace& place, const std::string& label) {
                return ComponentOf(place, label);
            });
        compiled.MostParts = Longest(compiled, [](const std::string& term) {
            return static_cast<int>(Numbers(term).size());
        });
        return compiled;
    }

    void CompileMessages() {
        std::array<const PlanDefinition*, MessageCount + 1> byNumber{};
        for (const auto& message : sources_.Messages) {
            if (message.Number < 1 || message.Number > MessageCount) {
                throw ContentError(message.Place, "message numbers run from 1 to 16");
            }
            if (byNumber[static_cast<std::size_t>(message.Number)] != nullptr) {
                throw ContentError(message.Place, "message " + std::to_string(message.Number) +
                                                      " has a second plan");
            }
            byNumber[static_cast<std::size_t>(message.Number)] = &message;
        }
        CheckLimits();
        for (int m = 1; m <= MessageCount; ++m) {
            const PlanDefinition* message = byNumber[static_cast<std::size_t>(m)];
            if (message == nullptr) {
                throw ContentError({"data/plans", 0},
                                   "message " + std::to_string(m) + " has no plan");
            }
            CompiledPlan compiled =
                CompilePlan(*message, [this](const SourcePlace& place, const std::string& name) {
                    const auto found = sectionByName_.find(name);
                    if (found == sectionByName_.end()) {
                        throw ContentError(place, "unknown section " + name);
                    }
                    return found->second;
                });
            compiled.MostParts = Longest(compiled, [](const std::string& term) {
                return static_cast<int>(Numbers(term).size());
            });
            compiled.MostComponents = Longest(compiled, [this](const std::string& term) {
                int components = 0;
                for (const int section : Numbers(term)) {
                    components += sections_[static_cast<std::size_t>(section - 1)].MostParts;
                }
                return components;
            });
            if (compiled.MostParts > sources_.MaxSections) {
                throw ContentError(message->Place, "message " + std::to_string(m) + " can hold " +
                                                       std::to_string(compiled.MostParts) +
                                                       " sections, more than MaxSections " +
                                                       std::to_string(sources_.MaxSections));
            }
            if (compiled.MostComponents > sources_.MaxComponents) {
                throw ContentError(message->Place, "message " + std::to_string(m) + " can hold " +
                                                       std::to_string(compiled.MostComponents) +
                                                       " components, more than MaxComponents " +
                                                       std::to_string(sources_.MaxComponents));
            }
            messages_.push_back(std::move(compiled));
        }
    }

    void CheckLimits() {
        if (sources_.MaxSections < 1 || sources_.MaxComponents < 1) {
            throw ContentError(sources_.LimitsPlace.File.empty() ? SourcePlace{"data/plans", 0}
                                                                 : sources_.LimitsPlace,
                               "MaxSections and MaxComponents must both be set above 0");
        }
        const auto& keepers = sources_.CaseKeepers;
        if (keepers.Names.empty() || keepers.Names.front() != ",") {
            throw ContentError(keepers.Place.File.empty() ? SourcePlace{"data/plans", 0}
                                                          : keepers.Place,
                               "the first of the CaseKeepers must be the comma's group \",\"");
        }
        for (const auto* list : {&sources_.CaseKeepers, &sources_.TightJoiners}) {
            for (const std::string& label : list->Names) {
                ComponentOf(list->Place, label);
            }
        }
    }

    std::string SystemFile() const {
        const int componentCount = static_cast<int>(components_.size()) - 1;
        int rowCap = 0;
        int totalRows = 0;
        for (const Component& c : components_) {
            rowCap = std::max(rowCap, c.Rows);
        }
        for (int b = 1; b <= StockCount; ++b) {
            totalRows += static_cast<int>(stockRows_[static_cast<std::size_t>(b)].size()) - 1;
        }
        std::string text;
        const auto line = [&text](const std::string& value) { text += value + LineEnd; };
        line(std::to_string(componentCount) + ", " + std::to_string(rowCap));
        line(std::to_string(MessageCount) + ", " + std::to_string(sections_.size()));
        line(std::to_string(totalRows) + ", " + std::to_string(components_.size()));
        line(std::to_string(sources_.MaxComponents));
        line(std::to_string(sources_.MaxSections) + ", 0");
        line(std::to_string(sources_.CaseKeepers.Names.size()));
        line(std::to_string(sources_.TightJoiners.Names.size()));
        line(std::to_string(StockCount));
        for (std::size_t m = 0; m < messages_.size(); ++m) {
            line(std::to_string(m + 1) + ", " + std::to_string(messages_[m].Combos));
        }
        for (std::size_t s = 0; s < sections_.size(); ++s) {
            line(std::to_string(s + 1) + ", " + std::to_string(sections_[s].Combos));
        }
        for (const auto* list : {&sources_.CaseKeepers, &sources_.TightJoiners}) {
            std::vector<int> numbers;
            for (const std::string& label : list->Names) {
                numbers.push_back(ComponentOf(list->Place, label));
            }
            line(Joined(numbers, ", "));
        }
        for (std::size_t c = 0; c < components_.size(); ++c) {
            line(std::to_string(c) + ", " + std::to_string(components_[c].Rows));
        }
        std::vector<int> blockRows;
        for (int b = 1; b <= StockCount; ++b) {
            blockRows.push_back(static_cast<int>(stockRows_[static_cast<std::size_t>(b)].size()) -
                                1);
        }
        line(Joined(blockRows, ", "));
        for (const Component& c : components_) {
            std::vector<int> pairs;
            for (int r = 0; r <= c.Rows; ++r) {
                pairs.push_back(c.Stock);
                pairs.push_back(c.LabelRow + r);
            }
            line(Joined(pairs, ", "));
        }
        line("\"Parity\"");
        return text;
    }

    static void AppendPlan(std::string& text, int running, const CompiledPlan& plan) {
        text += std::to_string(running) + ", " + std::to_string(plan.Terms.size()) + ", " +
                std::to_string(plan.Slots.size()) + LineEnd;
        for (std::size_t b = 0; b < plan.Slots.size(); ++b) {
            text += "\"" + plan.Name + " block " + std::to_string(b + 1) + "\"" + LineEnd;
            for (std::size_t s = 1; s <= 6; ++s) {
                const auto& choices = plan.Slots[b][s];
                text += "\"slot " + std::to_string(s) + "\", " + std::to_string(choices.size());
                for (const int term : choices) {
                    text += ", " + std::to_string(term);
                }
                text += LineEnd;
            }
        }
        text += "0" + LineEnd;
        for (std::size_t t = 0; t < plan.Terms.size(); ++t) {
            text += std::to_string(t + 1) + ", 1, \"" + plan.Terms[t] + "\"" + LineEnd;
        }
    }

    std::string PlanFile() const {
        std::string text;
        int running = 0;
        for (const auto& message : messages_) {
            AppendPlan(text, ++running, message);
        }
        for (const auto& section : sections_) {
            AppendPlan(text, ++running, section);
        }
        return text;
    }

    const ContentSources& sources_;
    std::array<std::vector<std::string>, StockCount + 1> stockRows_;
    std::vector<Component> components_;
    std::map<std::string, int> componentByLabel_;
    std::map<std::string, int> sectionByName_;
    std::vector<CompiledPlan> sections_;
    std::vector<CompiledPlan> messages_;
};

} // namespace

EngineData CompileEngine(const ContentSources& sources) {
    return Compiler(sources).Run();
}

} // namespace veyrant::content
