#include "JUnitReport.h"

#include "WFUtf8.h"

#include <cstdio>

namespace {

constexpr const char* kReplacement = "\xEF\xBF\xBD";

/// Length of the character at text[i] as XML may hold it, or 0: U+FFFE and U+FFFF are
/// well-formed UTF-8 but no XML character.
std::size_t xmlCharacterLength(const std::string& text, std::size_t i)
{
    const std::size_t length = utf8SequenceLength(text, i);
    const bool notCharacter = length == 3 && text.compare(i, 2, "\xEF\xBF") == 0
        && (static_cast<unsigned char>(text[i + 2]) & 0xFE) == 0xBE;
    return notCharacter ? 0 : length;
}

std::string escape(const std::string& text, bool attribute)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        const std::size_t length = xmlCharacterLength(text, i);
        if (length == 0) {
            out += kReplacement;
            ++i;
            continue;
        }
        if (length > 1) {
            out.append(text, i, length);
            i += length;
            continue;
        }
        ++i;
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += attribute ? "&quot;" : "\""; break;
        case '\n': out += attribute ? "&#10;" : "\n"; break;
        case '\r': out += "&#13;"; break;
        case '\t': out += attribute ? "&#9;" : "\t"; break;
        default:
            if (static_cast<unsigned char>(c) < 0x20)
                out += kReplacement;
            else
                out += c;
        }
    }
    return out;
}

std::string seconds(double value)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.3f", value < 0 ? 0.0 : value);
    return buffer;
}

} // namespace

namespace {

struct TTally {
    std::size_t tests = 0;
    std::size_t failures = 0;
    std::size_t skipped = 0;
    double seconds = 0;

    void add(const TJUnitCase& c)
    {
        ++tests;
        failures += c.outcome == TJUnitCase::Outcome::Failed;
        skipped += c.outcome == TJUnitCase::Outcome::Skipped;
        seconds += c.seconds;
    }
    std::string attributes() const
    {
        return " tests=\"" + std::to_string(tests) + "\" failures=\"" + std::to_string(failures)
            + "\" errors=\"0\" skipped=\"" + std::to_string(skipped) + "\" time=\"" + ::seconds(seconds) + "\"";
    }
};

std::string renderCase(const TJUnitCase& c)
{
    std::string xml = "    <testcase name=\"" + escape(c.name, true) + "\" classname=\"" + escape(c.className, true)
        + "\" time=\"" + seconds(c.seconds) + "\"";
    switch (c.outcome) {
    case TJUnitCase::Outcome::Passed:
        xml += "/>\n";
        break;
    case TJUnitCase::Outcome::Skipped:
        xml += ">\n      <skipped message=\"" + escape(c.message, true) + "\"/>\n    </testcase>\n";
        break;
    case TJUnitCase::Outcome::Failed:
        xml += ">\n      <failure message=\"" + escape(c.message, true) + "\" type=\"ActionFailed\">"
            + escape(c.log, false) + "</failure>\n    </testcase>\n";
        break;
    }
    return xml;
}

} // namespace

std::string renderJUnitReport(const std::string& suiteName, const std::vector<TJUnitCase>& cases)
{
    TTally all;
    TTally suites[2];
    for (const auto& c : cases) {
        all.add(c);
        suites[c.cleanup].add(c);
    }
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    xml += "<testsuites name=\"wfbuild\"" + all.attributes() + ">\n";
    for (const bool cleanup : {false, true}) {
        if (cleanup && suites[1].tests == 0)
            continue;
        const std::string name = cleanup ? suiteName + " (clean-up)" : suiteName;
        xml += "  <testsuite name=\"" + escape(name, true) + "\"" + suites[cleanup].attributes() + ">\n";
        for (const auto& c : cases)
            if (c.cleanup == cleanup)
                xml += renderCase(c);
        xml += "  </testsuite>\n";
    }
    xml += "</testsuites>\n";
    return xml;
}
