#include "core/FieldReader.h"

#include "core/ProgramError.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

// Numbers read alike in any spacing or separator; strings quoted or bare, the limits of each
// width, and an empty field between commas as zero; failures carry their numbers.
TEST(FieldReader, NumbersInAnySpacingStringsQuotedOrBareTheLimitsOfEachWidthAndFailures) {
    const struct {
        std::string Text;
        bool Wide;
        int Error;
    } cases[] = {
        {"", false, 62},         {" \r\n ", false, 62},   {"32768", false, 6},
        {"-32769", false, 6},    {"2147483648", true, 6}, {"12x", false, 13},
        {"\"text\"", false, 13}, {"-", false, 13},        {"1.5", false, 13},
    };
    for (const auto& c : cases) {
        FieldReader reader(c.Text);
        try {
            c.Wide ? reader.ReadInt32() : reader.ReadInt16();
            ADD_FAILURE() << "no failure for " << c.Text;
        } catch (const ProgramError& error) {
            EXPECT_EQ(error.Number(), c.Error) << c.Text;
        }
    }
    for (const std::string form :
         {" 1 \r\n 2 \r\n 0  -1 \r\n 21 \r\n", "1,2,0,-1,21", "1\n2\n0\n-1\n21",
          "1\r2\r0\r-1\r21\r", "  1 ,  2,0 , -1\r\n\r\n21", "1 2 0 -1 21"}) {
        FieldReader reader(form);
        std::vector<int> values;
        for (int i = 0; i < 5; ++i) {
            values.push_back(reader.ReadInt16());
        }
        EXPECT_EQ(values, (std::vector<int>{1, 2, 0, -1, 21})) << form;
    }
    FieldReader reader("\"Parity\", \"a, b\",\"\"\r\n  Liberation Serif  \r\nx,7\r\n\"Tail\" "
                       "junk,8,32767,-32768,,2147483647,-2147483648");
    for (const char* expected : {"Parity", "a, b", "", "Liberation Serif"}) {
        EXPECT_EQ(reader.ReadString(), expected);
    }
    EXPECT_EQ(reader.Line(), 3);
    EXPECT_EQ(reader.ReadAny(), "x");
    EXPECT_EQ(reader.ReadInt16(), 7);
    EXPECT_EQ(reader.ReadString(), "Tail");
    for (const int expected : {8, 32767, -32768, 0}) {
        EXPECT_EQ(reader.ReadInt16(), expected);
    }
    EXPECT_EQ(reader.ReadInt32(), 2147483647);
    EXPECT_EQ(reader.ReadInt32(), INT32_MIN);
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_THROW(reader.ReadString(), ProgramError);
}

} // namespace
} // namespace veyrant
