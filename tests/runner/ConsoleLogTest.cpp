#include "ConsoleLog.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

TEST(ConsoleLog, ReportKeepsOnlyTheTailOfALargeOutput)
{
    std::ostringstream out, err;
    TConsoleLog log(out, err);
    log.BeginAction(1, 1, "Big");
    std::string everything;
    for (int i = 0; i < 50000; ++i) {
        const std::string line = "line " + std::to_string(i) + " of a long listing";
        log.Line(IWFLogSink::Stream::StdOut, line);
        everything += line + "\n";
    }
    log.Flush();
    EXPECT_EQ(out.str(), "[1/1] Big\n" + everything) << "the console gets every line";
    const std::string report = log.ActionText();
    EXPECT_LT(report.size(), 200u * 1024);
    EXPECT_EQ(report.rfind("[... ", 0), 0u) << report.substr(0, 80);
    const std::string tail = "line 49999 of a long listing\n";
    EXPECT_EQ(report.compare(report.size() - tail.size(), tail.size(), tail), 0);
    const auto firstKept = report.find('\n') + 1;
    EXPECT_EQ(report.compare(firstKept, 5, "line "), 0) << "the tail starts at a line boundary";

    log.BeginAction(2, 2, "Small");
    log.Line(IWFLogSink::Stream::Message, "only line");
    EXPECT_EQ(log.ActionText(), "only line\n");
}

} // namespace
