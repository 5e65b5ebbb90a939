#include "Dates.h"

#include <array>
#include <cctype>
#include <charconv>
#include <ctime>
#include <vector>

namespace ccsim {

namespace {

constexpr std::array<const char*, 12> kMonths = {"jan", "feb", "mar", "apr", "may", "jun",
                                                 "jul", "aug", "sep", "oct", "nov", "dec"};
constexpr std::array<const char*, 12> kMonthNames = {"january", "february", "march", "april", "may", "june",
                                                     "july", "august", "september", "october", "november",
                                                     "december"};
constexpr std::array<const char*, 7> kDays = {"sunday", "monday", "tuesday", "wednesday",
                                              "thursday", "friday", "saturday"};

std::tm local(Time t)
{
    std::time_t tt = static_cast<std::time_t>(t);
    std::tm tm{};
    localtime_r(&tt, &tm);
    return tm;
}

Time fromLocal(std::tm tm)
{
    tm.tm_isdst = -1;
    return static_cast<Time>(std::mktime(&tm));
}

std::string lower(std::string_view s)
{
    std::string out(s);
    for (char& c : out)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

std::string format(Time t, const char* fmt)
{
    std::tm tm = local(t);
    char buf[64];
    const size_t n = std::strftime(buf, sizeof buf, fmt, &tm);
    return std::string(buf, n);
}

std::optional<int> number(std::string_view s, size_t maxDigits)
{
    if (s.empty() || s.size() > maxDigits)
        return std::nullopt;
    int v = 0;
    auto [p, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
    if (ec != std::errc() || p != s.data() + s.size())
        return std::nullopt;
    return v;
}

std::vector<std::string_view> split(std::string_view s, char sep)
{
    std::vector<std::string_view> parts;
    size_t start = 0;
    for (;;) {
        size_t pos = s.find(sep, start);
        parts.push_back(s.substr(start, pos == std::string_view::npos ? std::string_view::npos : pos - start));
        if (pos == std::string_view::npos)
            return parts;
        start = pos + 1;
    }
}

/// Sets hours, minutes and seconds of `tm` from "h[h]:m[m][:s[s]]".
bool applyTime(std::string_view text, std::tm& tm)
{
    auto parts = split(text, ':');
    if (parts.size() < 2 || parts.size() > 3)
        return false;
    auto h = number(parts[0], 2), m = number(parts[1], 2);
    auto s = parts.size() == 3 ? number(parts[2], 2) : std::optional<int>(0);
    if (!h || !m || !s || *h > 23 || *m > 59 || *s > 59)
        return false;
    tm.tm_hour = *h;
    tm.tm_min = *m;
    tm.tm_sec = *s;
    return true;
}

std::optional<int> month(std::string_view word)
{
    const std::string w = lower(word);
    for (size_t i = 0; i < 12; ++i) {
        if (w == kMonths[i] || w == kMonthNames[i])
            return static_cast<int>(i);
    }
    return std::nullopt;
}

std::optional<int> weekday(std::string_view word)
{
    const std::string w = lower(word);
    for (size_t i = 0; i < 7; ++i) {
        if (w == kDays[i] || w == std::string(kDays[i]).substr(0, 3))
            return static_cast<int>(i);
    }
    return std::nullopt;
}

std::optional<Time> parseDate(std::string_view date, std::tm base)
{
    std::tm tm = base;
    tm.tm_hour = tm.tm_min = tm.tm_sec = 0;
    const std::string d = lower(date);
    if (d == "today")
        return fromLocal(tm);
    if (d == "yesterday") {
        tm.tm_mday -= 1;
        return fromLocal(tm);
    }
    if (auto wd = weekday(d)) {
        int back = (base.tm_wday - *wd + 7) % 7;
        tm.tm_mday -= back;
        return fromLocal(tm);
    }
    auto parts = split(date, '-');
    if (parts.size() < 2 || parts.size() > 3)
        return std::nullopt;
    auto day = number(parts[0], 2);
    auto mon = month(parts[1]);
    if (!day || !mon || *day < 1 || *day > 31)
        return std::nullopt;
    tm.tm_mday = *day;
    tm.tm_mon = *mon;
    if (parts.size() == 3) {
        auto year = number(parts[2], 4);
        if (!year || (parts[2].size() != 2 && parts[2].size() != 4))
            return std::nullopt;
        tm.tm_year = parts[2].size() == 2 ? (*year < 70 ? *year + 100 : *year) : *year - 1900;
    }
    return fromLocal(tm);
}

} // namespace

std::optional<Time> clockNow(const char* fixed)
{
    if (!fixed || !*fixed)
        return static_cast<Time>(std::time(nullptr));
    std::string_view s(fixed);
    if (auto epoch = number(s, 12))
        return *epoch;
    // YYYY-MM-DD[T ]HH:MM[:SS]
    if (s.size() < 16 || s[4] != '-' || s[7] != '-' || (s[10] != 'T' && s[10] != ' '))
        return std::nullopt;
    auto y = number(s.substr(0, 4), 4), mo = number(s.substr(5, 2), 2), d = number(s.substr(8, 2), 2);
    if (!y || !mo || !d || *mo < 1 || *mo > 12 || *d < 1 || *d > 31)
        return std::nullopt;
    std::tm tm{};
    tm.tm_year = *y - 1900;
    tm.tm_mon = *mo - 1;
    tm.tm_mday = *d;
    if (!applyTime(s.substr(11), tm))
        return std::nullopt;
    return fromLocal(tm);
}

std::string formatLong(Time t)
{
    return format(t, "%d-%b-%y.%H:%M:%S");
}

std::string formatShort(Time t, Time now)
{
    if (local(t).tm_year == local(now).tm_year)
        return format(t, "%d-%b.%H:%M");
    return format(t, "%d-%b-%y");
}

std::string formatStamp(Time t)
{
    return format(t, "%d-%b-%y.%H:%M:%S");
}

std::string formatCompact(Time t)
{
    return format(t, "%y%m%d.%H%M%S");
}

std::optional<Time> parseDateTime(std::string_view text, Time now)
{
    const std::tm base = local(now);
    if (lower(text) == "now")
        return now;
    if (text.find('-') == std::string_view::npos && text.find('.') == std::string_view::npos &&
        text.find(':') != std::string_view::npos) {
        std::tm tm = base;
        if (!applyTime(text, tm))
            return std::nullopt;
        return fromLocal(tm);
    }
    const size_t dot = text.find('.');
    auto date = parseDate(text.substr(0, dot), base);
    if (!date || dot == std::string_view::npos)
        return date;
    std::tm tm = local(*date);
    if (!applyTime(text.substr(dot + 1), tm))
        return std::nullopt;
    return fromLocal(tm);
}

} // namespace ccsim
