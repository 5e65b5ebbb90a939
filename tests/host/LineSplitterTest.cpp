#include "WFLineSplitter.h"
#include "RowName.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct SplitCase {
    const char* name;
    /// The stream as it arrives, chunk by chunk.
    std::vector<std::string> chunks;
    std::vector<std::string> lines;
};
WF_ROW_PRINTER(SplitCase)

class LineSplitter : public ::testing::TestWithParam<SplitCase> {};

/// A bound of 4 bytes, so that cut lines are short enough to read in the table.
TEST_P(LineSplitter, CutsTheStreamIntoLines)
{
    TWFLineSplitter splitter(4);
    std::vector<std::string> lines;
    const auto collect = [&](std::string_view line) { lines.emplace_back(line); };
    for (const auto& chunk : GetParam().chunks)
        splitter.add(chunk, collect);
    splitter.finish(collect);
    EXPECT_EQ(lines, GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LineSplitter,
    ::testing::Values(SplitCase{"LineFeeds", {"ab\n\ncd\n"}, {"ab", "", "cd"}},
                      SplitCase{"LoneCarriageReturnStays", {"a\rb\n"}, {"a\rb"}},
                      SplitCase{"LastLineEndingInCarriageReturn", {"ab\r"}, {"ab"}},
                      SplitCase{"LineAcrossChunks", {"a", "b", "c\nd", "e\n"}, {"abc", "de"}},
                      SplitCase{"CarriageReturnAndLineFeedInTwoChunks", {"ab\r", "\ncd\n"}, {"ab", "cd"}},
                      SplitCase{"LineOfExactlyTheBound", {"abcd\n"}, {"abcd"}},
                      SplitCase{"LongLineAcrossChunksIsCut", {"ab", "cdef", "gh", "i\n"}, {"abcd", "efgh", "i"}},
                      SplitCase{"BreakRightAfterACutAddsNoEmptyLine", {"abcd", "\nx\n"}, {"abcd", "x"}},
                      SplitCase{"CarriageReturnAtTheCutStaysWithItsLineFeed", {"abc\r", "\nd\n"}, {"abc", "d"}},
                      SplitCase{"CutCarriageReturnPairsAcrossTheCut", {"abcd\r\n"}, {"abcd"}},
                      SplitCase{"UnendedLongLineAtTheEnd", {"abcdefgh"}, {"abcd", "efgh"}}), wftest::byName);

} // namespace
