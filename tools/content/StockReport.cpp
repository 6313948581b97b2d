#include "StockReport.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <set>

namespace veyrant::content {

std::vector<StockTarget> StockTargets(const ContentSources& sources) {
    // Rows each stock is allocated, counting its label rows and repeats.
    static constexpr std::array<int, StockCount + 1> Sizes = {
        0, 1602, 1221, 1227, 2098, 1796, 1954, 1273, 1169, 881, 2044, 1354, 1768, 2110, 1728};
    std::vector<StockTarget> targets(StockCount + 1);
    for (int b = 1; b <= StockCount; ++b) {
        targets[static_cast<std::size_t>(b)].Rows = Sizes[static_cast<std::size_t>(b)];
    }
    std::vector<std::pair<GroupPlace, std::string>> named;
    for (const auto& [label, place] : sources.GroupOrder) {
        named.emplace_back(place, label);
    }
    std::sort(named.begin(), named.end(), [](const auto& x, const auto& y) {
        return std::pair(x.first.Stock, x.first.Order) < std::pair(y.first.Stock, y.first.Order);
    });
    for (const auto& [place, label] : named) {
        targets[static_cast<std::size_t>(place.Stock)].Labels.push_back(label);
    }
    return targets;
}

bool StockTally::SizeFits() const {
    return std::abs(Rows - TargetRows) * 10 <= TargetRows;
}

StockTally TallyStock(const StockSource& stock, const StockTarget& target) {
    StockTally tally;
    tally.TargetRows = target.Rows;
    tally.Groups = static_cast<int>(stock.Groups.size());
    std::set<std::string> texts;
    int phraseRows = 0;
    for (const PhraseGroup& group : stock.Groups) {
        phraseRows += static_cast<int>(group.Rows.size());
        texts.insert(group.Rows.begin(), group.Rows.end());
    }
    tally.Rows = tally.Groups + phraseRows;
    tally.DistinctRows = static_cast<int>(texts.size());
    tally.Repeats = phraseRows - tally.DistinctRows;

    // A table label must stand behind the one before it that was found.
    std::ptrdiff_t lastPlace = -1;
    for (const std::string& label : target.Labels) {
        const auto found = std::find_if(stock.Groups.begin(), stock.Groups.end(),
                                        [&](const PhraseGroup& g) { return g.Label == label; });
        if (found == stock.Groups.end()) {
            tally.MissingLabels.push_back(label);
            continue;
        }
        ++tally.LabelsFound;
        const std::ptrdiff_t place = found - stock.Groups.begin();
        if (place < lastPlace) {
            tally.LabelsOutOfOrder.push_back(label);
        } else {
            lastPlace = place;
        }
    }
    return tally;
}

} // namespace veyrant::content
