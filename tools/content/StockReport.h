#pragma once

// How far the phrase stocks have grown against the engine's design: the rows each stock is
// allocated, and the named groups of the group order list that it must hold, in that order.

#include "ContentSources.h"

#include <string>
#include <vector>

namespace veyrant::content {

struct StockTarget {
    int Rows = 0;                    // counting each label row and every repeat
    std::vector<std::string> Labels; // in row order; a stock may hold others between them
};

// The targets of stocks 1 to 14, their labels taken from the group order list; entry 0 is
// idle.
std::vector<StockTarget> StockTargets(const ContentSources& sources);

struct StockTally {
    int Rows = 0; // label rows and phrase rows, repeats included
    int Groups = 0;
    int DistinctRows = 0; // different phrase texts
    int Repeats = 0;      // phrase rows beyond the first of each text
    int TargetRows = 0;
    int LabelsFound = 0;
    std::vector<std::string> MissingLabels;
    std::vector<std::string> LabelsOutOfOrder;

    // Within a tenth of the target.
    bool SizeFits() const;
    bool Fits() const { return SizeFits() && MissingLabels.empty() && LabelsOutOfOrder.empty(); }
};

StockTally TallyStock(const StockSource& stock, const StockTarget& target);

} // namespace veyrant::content
