#pragma once

// The authored content as read from data/, before it is compiled: phrase stocks as groups of
// rows, plans that name their parts by label, the engine settings, and the Suggestions. Text is
// already Windows-1252 here; every item remembers where it was written.

#include <array>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace veyrant::content {

struct SourcePlace {
    std::string File;
    int Line = 0;
};

// A fault in the content, named by file and line.
class ContentError : public std::runtime_error {
public:
    ContentError(const SourcePlace& place, const std::string& message)
        : std::runtime_error(place.File + ":" + std::to_string(place.Line) + ": " + message) {}
};

inline constexpr int StockCount = 14;

// A group becomes one component: its label row, then its phrase rows (repeats written out).
struct PhraseGroup {
    std::string Label; // as authored, e.g. "Expect-yes" or "."
    std::vector<std::string> Rows;
    SourcePlace Place;
};

struct StockSource {
    std::vector<PhraseGroup> Groups;
    SourcePlace Place;
};

// A choice is a list of names (labels in a section, section names in a message); an empty
// list is the empty choice.
using PlanChoice = std::vector<std::string>;

struct PlanBlockSource {
    std::array<std::vector<PlanChoice>, 7> Slots; // slots 1 to 6
    std::array<SourcePlace, 7> SlotPlaces;
    SourcePlace Place;
};

struct PlanDefinition {
    std::string Name;
    int Number = 0; // messages only
    std::vector<PlanBlockSource> Blocks;
    SourcePlace Place;
};

struct NameList {
    std::vector<std::string> Names;
    SourcePlace Place;
};

// Where a named group belongs: its stock, and its place among the named groups of that stock.
struct GroupPlace {
    int Stock = 0;
    int Order = 0;
};

struct ContentSources {
    std::array<StockSource, StockCount + 1> Stocks; // 1 to 14
    std::vector<PlanDefinition> Messages;
    std::vector<PlanDefinition> Sections;
    int MaxSections = 0;
    int MaxComponents = 0;
    SourcePlace LimitsPlace;
    NameList CaseKeepers;
    NameList TightJoiners;
    std::vector<std::string> Suggestions;
    std::map<std::string, GroupPlace> GroupOrder;
};

// Each raises ContentError.
StockSource ReadStockSource(const std::string& fileName, std::string_view utf8);
void ReadPlanSource(const std::string& fileName, std::string_view utf8, ContentSources& sources);
void ReadGroupOrder(const std::string& fileName, std::string_view utf8, ContentSources& sources);
std::vector<std::string> ReadSuggestionSource(const std::string& fileName, std::string_view utf8);

// A stock's number as its files are named: "07".
std::string StockNumberText(int stock);

// Every source under a data folder: stocks/order.txt, stocks/01.txt to 14.txt, plans/*.txt in
// name order, and suggestions.txt.
ContentSources ReadContentFolder(const std::string& dataFolder);

// The text lines of a source file in Windows-1252, with comments and outer blanks removed;
// blank lines are kept as empty strings so that line numbers hold.
std::vector<std::string> SourceLines(const std::string& fileName, std::string_view utf8);

// The same lines exactly as written, blanks, tabs and comments included; only the line ends are
// gone.
std::vector<std::string> ExactSourceLines(const std::string& fileName, std::string_view utf8);

} // namespace veyrant::content
