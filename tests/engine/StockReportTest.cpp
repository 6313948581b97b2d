#include "StockReport.h"

#include <array>
#include <gtest/gtest.h>

namespace veyrant::content {
namespace {

const char* const InOrder =
    "[Alpha]\n(3) One\nTwo\n[Own-group]\nTwo\n[Beta]\nThree\n[Gamma]\nFour\n";

// The table asks for Alpha, Beta and Gamma; a stock may hold groups of its own between them.
TEST(StockTally, CountsRowsAndChecksTheLabelTable) {
    const struct {
        const char* Source;
        int Target;
        std::array<int, 3> RowsDistinctRepeats;
        std::vector<std::string> Missing, OutOfOrder;
        bool Fits;
    } cases[] = {{InOrder, 11, {11, 4, 3}, {}, {}, true},
                 {InOrder, 10, {11, 4, 3}, {}, {}, true},
                 {InOrder, 12, {11, 4, 3}, {}, {}, true},
                 {InOrder, 9, {11, 4, 3}, {}, {}, false},
                 {InOrder, 13, {11, 4, 3}, {}, {}, false},
                 {"[Alpha]\n(5) One\n[Gamma]\n(3) Three\n", 10, {10, 2, 6}, {"Beta"}, {}, false},
                 {"[Beta]\n(3) Two\n[Alpha]\n(2) One\n[Gamma]\nThree\n",
                  10,
                  {9, 3, 3},
                  {},
                  {"Beta"},
                  false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.Source) + " of " + std::to_string(c.Target));
        const StockTarget target{c.Target, {"Alpha", "Beta", "Gamma"}};
        const StockTally tally = TallyStock(ReadStockSource("07.txt", c.Source), target);
        EXPECT_EQ((std::array<int, 3>{tally.Rows, tally.DistinctRows, tally.Repeats}),
                  c.RowsDistinctRepeats);
        EXPECT_EQ(tally.MissingLabels, c.Missing);
        EXPECT_EQ(tally.LabelsOutOfOrder, c.OutOfOrder);
        EXPECT_EQ(tally.Fits(), c.Fits);
    }
}

TEST(StockTargets, TakeTheNamedGroupsOfEachStockInListOrder) {
    ContentSources sources;
    ReadGroupOrder("order.txt", "9: Consider-yes Can-change\n7: Not-experience\n", sources);
    const auto targets = StockTargets(sources);
    ASSERT_EQ(targets.size(), static_cast<std::size_t>(StockCount + 1));
    EXPECT_EQ(targets[9].Labels, (std::vector<std::string>{"Consider-yes", "Can-change"}));
    EXPECT_EQ(targets[7].Labels, std::vector<std::string>{"Not-experience"});
    EXPECT_EQ(targets[7].Rows, 1273);
    EXPECT_TRUE(targets[8].Labels.empty());
}

} // namespace
} // namespace veyrant::content
