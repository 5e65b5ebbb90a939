#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ccsim {

/// Seconds since the epoch; local time is used for display and input.
using Time = std::int64_t;

/// The clock: $CCSIM_NOW (ISO "YYYY-MM-DDTHH:MM:SS", or epoch seconds) when set, else the system time.
/// Gives nullopt when $CCSIM_NOW is set but unreadable.
std::optional<Time> clockNow(const char* fixed);

/// "28-Jul-99.14:00:26"
std::string formatLong(Time t);
/// "16-Dec.15:47" in the year of `now`, else "16-Dec-12".
std::string formatShort(Time t, Time now);
/// "13-Dec-02.12:33:50" as used in update log names.
std::string formatStamp(Time t);
/// "130312.102231" (yymmdd.HHMMSS), the stem of generated names.
std::string formatCompact(Time t);

/// Reads the date-time forms users type: now, today, yesterday, day names,
/// d[d]-month[-[yy]yy][.h[h]:m[m][:s[s]]], or a time alone (today). Case-insensitive.
std::optional<Time> parseDateTime(std::string_view text, Time now);

} // namespace ccsim
