#include <gtest/gtest.h>

#include "base/StringTable.h"

namespace skylob::test {

TEST(StringTable, TakesNumberedLinesAndNothingElse) {
    StringTable table;
    table.addLines("# for the reader\n\n1000  two  blanks \n12 #\n7 last");
    EXPECT_EQ(table.text(1000), " two  blanks ");
    EXPECT_EQ(table.text(12), "#");
    EXPECT_EQ(table.text(7), "last");
    EXPECT_THROW(table.text(8), std::out_of_range);
    for (const char* wrong : {"12 again", "text", "13", "13\ttext", " 13 text"})
        EXPECT_THROW(table.addLines(wrong), std::invalid_argument) << wrong;
}

}  // namespace skylob::test
