#include "JUnitReport.h"

#include <gtest/gtest.h>

namespace {

struct TextCase {
    std::string name;
    std::string text;
    std::string escaped;
};

class JUnitText : public ::testing::TestWithParam<TextCase> {};

/// How the log of a failed case appears inside <failure>.
std::string failureBody(const std::string& log)
{
    const std::string xml = renderJUnitReport("s", {{"n", "c", 0, TJUnitCase::Outcome::Failed, "m", log}});
    const auto open = xml.find("\">", xml.find("<failure")) + 2;
    return xml.substr(open, xml.find("</failure>") - open);
}

TEST_P(JUnitText, CarriesWhatXmlCanAndReplacesTheRest)
{
    EXPECT_EQ(failureBody(GetParam().text), GetParam().escaped);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, JUnitText,
    ::testing::Values(TextCase{"Markup", "a<b>&\"c\"", "a&lt;b&gt;&amp;\"c\""},
                      TextCase{"LineBreaks", "one\ntwo\r\n\tthree", "one\ntwo&#13;\n\tthree"},
                      TextCase{"ControlCharacters", std::string("x\x01y\x1Fz\0w", 7), "x\xEF\xBF\xBDy\xEF\xBF\xBDz\xEF\xBF\xBDw"},
                      TextCase{"Utf8Kept", "Zo\xC3\xAB \xE6\x97\xA5 \xF0\x9F\x98\x80", "Zo\xC3\xAB \xE6\x97\xA5 \xF0\x9F\x98\x80"},
                      TextCase{"Latin1Byte", "caf\xE9!", "caf\xEF\xBF\xBD!"},
                      TextCase{"TruncatedSequence", "end\xE6\x97", "end\xEF\xBF\xBD\xEF\xBF\xBD"},
                      TextCase{"OverlongSlash", "\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD"},
                      TextCase{"Surrogate", "\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
                      TextCase{"NotACharacter", "\xEF\xBF\xBF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"}),
    [](const auto& info) { return info.param.name; });

TEST(JUnitReport, AttributesEscapeLineBreaksAndQuotes)
{
    const std::string xml = renderJUnitReport("a\"b", {{"x\ny", "T<1>", 1.23456, TJUnitCase::Outcome::Skipped, "why\t\"", ""}});
    EXPECT_EQ(xml, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                   "<testsuites name=\"wfbuild\" tests=\"1\" failures=\"0\" errors=\"0\" skipped=\"1\" time=\"1.235\">\n"
                   "  <testsuite name=\"a&quot;b\" tests=\"1\" failures=\"0\" errors=\"0\" skipped=\"1\" time=\"1.235\">\n"
                   "    <testcase name=\"x&#10;y\" classname=\"T&lt;1&gt;\" time=\"1.235\">\n"
                   "      <skipped message=\"why&#9;&quot;\"/>\n"
                   "    </testcase>\n"
                   "  </testsuite>\n"
                   "</testsuites>\n");
}

} // namespace
