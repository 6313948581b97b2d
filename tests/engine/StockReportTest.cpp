#include "StockReport.h"

#include <array>
#include <gtest/gtest.h>
#include <ostream>

namespace veyrant::content {
namespace {

struct TallyCase {
    const char* Name;
    const char* Source;
    int Target;
    std::array<int, 3> RowsDistinctRepeats;
    std::vector<std::string> Missing;
    std::vector<std::string> OutOfOrder;
    bool Fits;
};

void PrintTo(const TallyCase& c, std::ostream* out) {
    *out << c.Name;
}

class TallyTable : public ::testing::TestWithParam<TallyCase> {};

// The table asks for Alpha, Beta and Gamma; a stock may hold groups of its own between them.
TEST_P(TallyTable, CountsRowsAndChecksTheLabelTable) {
    const TallyCase& c = GetParam();
    const StockTarget target{c.Target, {"Alpha", "Beta", "Gamma"}};
    const StockTally tally = TallyStock(ReadStockSource("07.txt", c.Source), target);
    EXPECT_EQ((std::array<int, 3>{tally.Rows, tally.DistinctRows, tally.Repeats}),
              c.RowsDistinctRepeats);
    EXPECT_EQ(tally.MissingLabels, c.Missing);
    EXPECT_EQ(tally.LabelsOutOfOrder, c.OutOfOrder);
    EXPECT_EQ(tally.Fits(), c.Fits);
}

const char* const InOrder =
    "[Alpha]\n(3) One\nTwo\n[Own-group]\nTwo\n[Beta]\nThree\n[Gamma]\nFour\n";

INSTANTIATE_TEST_SUITE_P(
    Stocks, TallyTable,
    ::testing::Values(TallyCase{"InOrderAndInSize", InOrder, 11, {11, 4, 3}, {}, {}, true},
                      TallyCase{"UpperEdgeOfTheTenth", InOrder, 10, {11, 4, 3}, {}, {}, true},
                      TallyCase{"LowerEdgeOfTheTenth", InOrder, 12, {11, 4, 3}, {}, {}, true},
                      TallyCase{"TooLarge", InOrder, 9, {11, 4, 3}, {}, {}, false},
                      TallyCase{"TooSmall", InOrder, 13, {11, 4, 3}, {}, {}, false},
                      TallyCase{"LabelMissing",
                                "[Alpha]\n(5) One\n[Gamma]\n(3) Three\n",
                                10,
                                {10, 2, 6},
                                {"Beta"},
                                {},
                                false},
                      TallyCase{"LabelOutOfOrder",
                                "[Beta]\n(3) Two\n[Alpha]\n(2) One\n[Gamma]\nThree\n",
                                10,
                                {9, 3, 3},
                                {},
                                {"Beta"},
                                false}),
    [](const auto& info) { return std::string(info.param.Name); });

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
