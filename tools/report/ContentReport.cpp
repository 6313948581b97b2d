// content-report [DATA_DIR]
//
// Prints, for each phrase stock, its rows (labels and repeats counted), distinct rows, repeats,
// groups and the named groups of stocks/order.txt that it holds, against the size it is
// allocated. Exits with 1 when a stock lies outside a tenth of its size, or a named group is
// missing or out of order; with 2 on a bad call. Without DATA_DIR it reads the data/ of this source
// tree.

#include "ContentSources.h"
#include "StockReport.h"

#include <cstdio>
#include <iostream>
#include <string>

using namespace veyrant::content;

namespace {

void PrintList(int stock, const char* what, const std::vector<std::string>& labels) {
    if (labels.empty()) {
        return;
    }
    std::cout << "  stock " << stock << " " << what << ":";
    for (const std::string& label : labels) {
        std::cout << " " << label;
    }
    std::cout << "\n";
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::cerr << "usage: content-report [DATA_DIR]\n";
        return 2;
    }
    ContentSources sources;
    try {
        sources = ReadContentFolder(argc == 2 ? argv[1] : VEYRANT_DATA_DIR);
    } catch (const std::exception& error) {
        std::cerr << "content-report: " << error.what() << "\n";
        return 1;
    }
    const auto targets = StockTargets(sources);
    std::printf("%5s %6s %6s %13s %8s %7s %6s %7s  %s\n", "Stock", "Rows", "Target", "Allowed",
                "Distinct", "Repeats", "Groups", "Labels", "Verdict");
    int totalRows = 0;
    int totalTarget = 0;
    bool allFit = true;
    std::string faults;
    for (int b = 1; b <= StockCount; ++b) {
        const StockTarget& target = targets[static_cast<std::size_t>(b)];
        const StockTally tally = TallyStock(sources.Stocks[static_cast<std::size_t>(b)], target);
        const int slack = tally.TargetRows / 10;
        const std::string allowed = std::to_string(tally.TargetRows - slack) + "-" +
                                    std::to_string(tally.TargetRows + slack);
        const std::string labels =
            std::to_string(tally.LabelsFound) + "/" + std::to_string(target.Labels.size());
        const char* verdict = !tally.SizeFits()
                                  ? (tally.Rows < tally.TargetRows ? "too small" : "too large")
                              : !tally.MissingLabels.empty()    ? "labels missing"
                              : !tally.LabelsOutOfOrder.empty() ? "labels out of order"
                                                                : "fits";
        std::printf("%5d %6d %6d %13s %8d %7d %6d %7s  %s\n", b, tally.Rows, tally.TargetRows,
                    allowed.c_str(), tally.DistinctRows, tally.Repeats, tally.Groups,
                    labels.c_str(), verdict);
        PrintList(b, "lacks", tally.MissingLabels);
        PrintList(b, "holds out of table order", tally.LabelsOutOfOrder);
        totalRows += tally.Rows;
        totalTarget += tally.TargetRows;
        allFit = allFit && tally.Fits();
    }
    std::printf("%5s %6d %6d\n", "All", totalRows, totalTarget);
    return allFit ? 0 : 1;
}
