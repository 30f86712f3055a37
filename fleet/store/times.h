// Points in time as the store keeps them and as people write them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarn::fleet {

// Milliseconds since 1970-01-01T00:00:00Z.
using Time = std::int64_t;

Time time_now();

// "2026-11-23T06:05:00.123Z"
std::string time_text(Time time);

inline constexpr char time_rule[] =
    "A time is a date or a date and time of ISO 8601, such as 2026-11-23, 2026-11-23T06:05\n"
    "or 2026-11-23T07:05:00.5+01:00, in UTC unless it says otherwise; now; or a time\n"
    "before now, such as -90s, -15m, -2h, -1d or -1w.";

// Throws a Failure that names the text.
Time time_of(std::string_view text, Time now);
// "90s", "15m", "2h", "30d", "1w", in milliseconds; the unit is required, at most 1000 years.
Time duration_of(std::string_view text);

// "3 d 4 h", "5 min 7 s", "200 ms": the two greatest units.
std::string duration_text(Time duration);

}  // namespace tarn::fleet
