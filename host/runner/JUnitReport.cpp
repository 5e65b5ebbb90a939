#include "JUnitReport.h"

#include "WFUtf8.h"

#include <cstdio>
#include <ctime>

#include <unistd.h>

namespace {

/// Length of the character at text[i] as a report may hold it, or 0: U+FFFE and U+FFFF are
/// well-formed UTF-8 but no XML character, and some readers refuse U+FFFD.
std::size_t reportCharacterLength(const std::string& text, std::size_t i)
{
    const std::size_t length = utf8SequenceLength(text, i);
    const bool refused = length == 3 && text.compare(i, 2, "\xEF\xBF") == 0
        && static_cast<unsigned char>(text[i + 2]) >= 0xBD;
    return refused ? 0 : length;
}

bool inRange(char c, unsigned char low, unsigned char high)
{
    const auto u = static_cast<unsigned char>(c);
    return u >= low && u <= high;
}

/// Where the escape sequence starting with the ESC at text[i] ends (one past it): CSI
/// ("ESC [ params final"), strings ended by BEL or ST (OSC, DCS, PM, APC), or ESC with
/// intermediates and one final byte.
std::size_t escapeEnd(const std::string& text, std::size_t i)
{
    std::size_t j = i + 1;
    if (j >= text.size())
        return j;
    const char kind = text[j++];
    if (kind == '[') {
        while (j < text.size() && inRange(text[j], 0x20, 0x3F))
            ++j;
        return j < text.size() && inRange(text[j], 0x40, 0x7E) ? j + 1 : j;
    }
    if (kind == ']' || kind == 'P' || kind == 'X' || kind == '^' || kind == '_') {
        for (; j < text.size(); ++j) {
            if (text[j] == '\a')
                return j + 1;
            if (text[j] == '\x1B' && j + 1 < text.size() && text[j + 1] == '\\')
                return j + 2;
        }
        return j;
    }
    j = i + 1;
    while (j < text.size() && inRange(text[j], 0x20, 0x2F))
        ++j;
    return j < text.size() && inRange(text[j], 0x30, 0x7E) ? j + 1 : j;
}

std::string escape(const std::string& text, bool attribute)
{
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += attribute ? "&quot;" : "\""; break;
        case '\n': out += attribute ? "&#10;" : "\n"; break;
        case '\t': out += attribute ? "&#9;" : "\t"; break;
        default: out += c;
        }
    }
    return out;
}

/// Report text as element content.
std::string content(const std::string& value)
{
    return escape(reportText(value), false);
}

/// ` name="value"` with the value as report text.
std::string attr(const char* name, const std::string& value)
{
    return std::string(" ") + name + "=\"" + escape(reportText(value), true) + "\"";
}

std::string seconds(double value)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.3f", value < 0 ? 0.0 : value);
    return buffer;
}

/// <name>text</name> on its own line, or nothing for no text.
std::string block(const char* name, const std::string& value)
{
    if (value.empty())
        return {};
    return std::string("      <") + name + ">" + content(value) + "</" + name + ">\n";
}

std::string renderCase(const TJUnitCase& c)
{
    std::string xml = "    <testcase" + attr("name", c.name) + attr("classname", c.className)
        + " time=\"" + seconds(c.seconds) + "\"";
    std::string inner;
    switch (c.outcome) {
    case TJUnitCase::Outcome::Passed:
        inner = block("system-out", c.log);
        break;
    case TJUnitCase::Outcome::Skipped:
        inner = "      <skipped" + attr("message", c.message) + "/>\n";
        break;
    case TJUnitCase::Outcome::Failed:
    case TJUnitCase::Outcome::Error: {
        const bool failed = c.outcome == TJUnitCase::Outcome::Failed;
        const char* element = failed ? "failure" : "error";
        inner = std::string("      <") + element + attr("message", c.message)
            + attr("type", failed ? "ActionFailed" : "ActionNotStarted") + ">" + content(c.log) + "</" + element
            + ">\n";
        break;
    }
    }
    inner += block("system-err", c.errors);
    return xml + (inner.empty() ? "/>\n" : ">\n" + inner + "    </testcase>\n");
}

struct TTally {
    std::size_t tests = 0;
    std::size_t failures = 0;
    std::size_t errors = 0;
    std::size_t skipped = 0;
    double seconds = 0;

    void add(const TJUnitCase& c)
    {
        ++tests;
        failures += c.outcome == TJUnitCase::Outcome::Failed;
        errors += c.outcome == TJUnitCase::Outcome::Error;
        skipped += c.outcome == TJUnitCase::Outcome::Skipped;
        seconds += c.seconds;
    }
    std::string counts() const
    {
        return " tests=\"" + std::to_string(tests) + "\" failures=\"" + std::to_string(failures) + "\" errors=\""
            + std::to_string(errors) + "\"";
    }
    std::string time() const { return " time=\"" + ::seconds(seconds) + "\""; }
};

} // namespace

std::string reportText(const std::string& value)
{
    std::string out;
    out.reserve(value.size());
    for (std::size_t i = 0; i < value.size();) {
        const char c = value[i];
        if (c == '\x1B') {
            i = escapeEnd(value, i);
            continue;
        }
        const std::size_t length = reportCharacterLength(value, i);
        if (length == 0) {
            out += '?';
            ++i;
            continue;
        }
        // C1 controls (U+0080 to U+009F) are two bytes starting with 0xC2.
        const bool control = length == 1 ? (inRange(c, 0x00, 0x1F) && c != '\n' && c != '\t') || c == '\x7F'
                                         : length == 2 && c == '\xC2' && inRange(value[i + 1], 0x80, 0x9F);
        if (!control)
            out.append(value, i, length);
        i += length;
    }
    return out;
}

std::string renderJUnitReport(const TJUnitSuite& suite)
{
    TTally all;
    TTally suites[2];
    for (const auto& c : suite.cases) {
        all.add(c);
        suites[c.cleanup].add(c);
    }
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    xml += "<testsuites name=\"wfbuild\"" + all.counts() + all.time() + ">\n";
    for (const bool cleanup : {false, true}) {
        const TTally& tally = suites[cleanup];
        if (cleanup && tally.tests == 0)
            continue;
        const std::string name = cleanup ? suite.name + " (clean-up)" : suite.name;
        xml += "  <testsuite" + attr("name", name) + tally.counts() + " skipped=\"" + std::to_string(tally.skipped)
            + "\"" + tally.time() + attr("timestamp", suite.timestamp) + attr("hostname", suite.hostname) + ">\n";
        if (!suite.properties.empty()) {
            xml += "    <properties>\n";
            for (const auto& [property, value] : suite.properties)
                xml += "      <property" + attr("name", property) + attr("value", value) + "/>\n";
            xml += "    </properties>\n";
        }
        for (const auto& c : suite.cases)
            if (c.cleanup == cleanup)
                xml += renderCase(c);
        xml += "  </testsuite>\n";
    }
    xml += "</testsuites>\n";
    return xml;
}

std::string junitTimestamp()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    char buffer[32];
    std::strftime(buffer, sizeof buffer, "%Y-%m-%dT%H:%M:%S", &local);
    return buffer;
}

std::string junitHostname()
{
    char buffer[256] = {};
    if (::gethostname(buffer, sizeof buffer - 1) != 0 || buffer[0] == '\0')
        return "localhost";
    return buffer;
}
