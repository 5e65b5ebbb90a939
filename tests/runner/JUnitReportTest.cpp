#include "JUnitReport.h"
#include "RowName.h"

#include <gtest/gtest.h>

namespace {

struct TextCase {
    std::string name;
    std::string text;
    std::string escaped;
};
WF_ROW_PRINTER(TextCase)

class JUnitText : public ::testing::TestWithParam<TextCase> {};

/// How the log of a failed case appears inside <failure>.
std::string failureBody(const std::string& log)
{
    TJUnitSuite suite{"s", "2026-01-02T03:04:05", "h", {}, {{"n", "c", 0, TJUnitCase::Outcome::Failed, "m", log, ""}}};
    const std::string xml = renderJUnitReport(suite);
    const auto open = xml.find("\">", xml.find("<failure")) + 2;
    return xml.substr(open, xml.find("</failure>") - open);
}

TEST_P(JUnitText, CarriesWhatEveryReaderCanAndDropsTheRest)
{
    EXPECT_EQ(failureBody(GetParam().text), GetParam().escaped);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, JUnitText,
    ::testing::Values(TextCase{"Markup", "a<b>&\"c\"", "a&lt;b&gt;&amp;\"c\""},
                      TextCase{"LineBreaksAndTabsKeptCarriageReturnsDropped", "one\ntwo\r\n\tthree", "one\ntwo\n\tthree"},
                      TextCase{"ControlCharactersDropped", std::string("x\x01y\x1Fz\0w\x7F\xC2\x9B" "v", 11), "xyzwv"},
                      // Colours, a title, a character set and a link, then a sequence cut short.
                      TextCase{"EscapeSequencesStripped", "\x1B[1;31merror:\x1B[0m bad\x1B[K \x1B]0;title\a\x1B(Bok"
                                                          "\x1B]8;;u\x1B\\ cut\x1B[1;3", "error: bad ok cut"},
                      TextCase{"Utf8Kept", "Zo\xC3\xAB \xE6\x97\xA5 \xF0\x9F\x98\x80", "Zo\xC3\xAB \xE6\x97\xA5 \xF0\x9F\x98\x80"},
                      // A Latin-1 byte, an overlong slash, a surrogate, then a sequence cut short.
                      TextCase{"BytesThatAreNotUtf8", "caf\xE9!\xC0\xAF\xED\xA0\x80" "end\xE6\x97", "caf?!?????end??"},
                      TextCase{"NotACharacterAndTheReplacementCharacter", "\xEF\xBF\xBF\xEF\xBF\xBD", "??????"}), wftest::byName);

// The whole report of a run is in the end-to-end tests; here only what no run can make.
TEST(JUnitReport, AttributesEscapeLineBreaksTabsAndMarkup)
{
    const TJUnitSuite suite{"a\"b",
                            "2026-01-02T03:04:05",
                            "build-7",
                            {{"V", "x\ty"}},
                            {{"x\ny", "T<1>", 1.23456, TJUnitCase::Outcome::Skipped, "why\t\"", "", ""},
                             {"bad", "T", 0, TJUnitCase::Outcome::Error, "no \x1B[1mprogram", "log\n", ""}}};
    const std::string xml = renderJUnitReport(suite);
    for (const char* piece : {"<testsuite name=\"a&quot;b\" tests=\"2\" failures=\"0\" errors=\"1\" skipped=\"1\" time=\"1.235\"",
                              "<property name=\"V\" value=\"x&#9;y\"/>",
                              "<testcase name=\"x&#10;y\" classname=\"T&lt;1&gt;\" time=\"1.235\">",
                              "<skipped message=\"why&#9;&quot;\"/>",
                              "<error message=\"no program\" type=\"ActionNotStarted\">log\n</error>"})
        EXPECT_NE(xml.find(piece), std::string::npos) << piece << "\n" << xml;
}

} // namespace
