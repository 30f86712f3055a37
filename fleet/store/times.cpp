#include "fleet/store/times.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <optional>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;
using tool::in_quotes;

constexpr Time second = 1000, minute = 60 * second, hour = 60 * minute, day = 24 * hour;

// Reads a text from its beginning to its end.
class Scanner {
public:
    explicit Scanner(std::string_view text) : left_(text) {}

    bool is_at_end() const { return left_.empty(); }
    bool take(char c) {
        if (!left_.starts_with(c)) return false;
        left_.remove_prefix(1);
        return true;
    }
    // A number of exactly so many digits.
    std::optional<int> number(std::size_t digits) {
        const std::string_view text = left_.substr(0, digits);
        if (text.size() != digits || text.find_first_not_of("0123456789") != std::string_view::npos) return {};
        int value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        left_.remove_prefix(digits);
        return value;
    }
    // The digits behind a decimal point as milliseconds; further digits are not kept.
    std::optional<int> milliseconds() {
        int value = 0, weight = 100, digits = 0;
        for (; !left_.empty() && left_[0] >= '0' && left_[0] <= '9'; left_.remove_prefix(1), ++digits) {
            value += (left_[0] - '0') * weight;
            weight /= 10;
        }
        return digits == 0 ? std::nullopt : std::optional(value);
    }

private:
    std::string_view left_;
};

std::optional<int> in_range(std::optional<int> value, int most) {
    return value && *value <= most ? value : std::nullopt;
}

// "+01:00", "+0100", "+01" or "Z"; nothing is UTC.
std::optional<Time> zone(Scanner &scanner) {
    if (scanner.is_at_end() || scanner.take('Z')) return 0;
    const bool is_west = scanner.take('-');
    if (!is_west && !scanner.take('+')) return {};
    const auto hours = in_range(scanner.number(2), 23);
    if (!hours) return {};
    scanner.take(':');
    const auto minutes = scanner.is_at_end() ? std::optional(0) : in_range(scanner.number(2), 59);
    if (!minutes) return {};
    return (is_west ? -1 : 1) * (*hours * hour + *minutes * minute);
}

std::optional<Time> time_of_day(Scanner &scanner) {
    const auto hours = in_range(scanner.number(2), 23);
    if (!hours || !scanner.take(':')) return {};
    const auto minutes = in_range(scanner.number(2), 59);
    if (!minutes) return {};
    Time time = *hours * hour + *minutes * minute;
    if (!scanner.take(':')) return time;
    const auto seconds = in_range(scanner.number(2), 59);
    if (!seconds) return {};
    time += *seconds * second;
    if (!scanner.take('.') && !scanner.take(',')) return time;
    const auto fraction = scanner.milliseconds();
    if (!fraction) return {};
    return time + *fraction;
}

std::optional<Time> iso_time(std::string_view text) {
    Scanner scanner(text);
    const auto year = scanner.number(4);
    if (!year || !scanner.take('-')) return {};
    const auto month = scanner.number(2);
    if (!month || !scanner.take('-')) return {};
    const auto day_of_month = scanner.number(2);
    if (!day_of_month) return {};
    const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day_of_month))};
    if (!date.ok()) return {};
    Time time = std::chrono::sys_days(date).time_since_epoch().count() * day;
    if (scanner.take('T') || scanner.take(' ')) {
        const auto of_day = time_of_day(scanner);
        const auto offset = of_day ? zone(scanner) : std::nullopt;
        if (!offset) return {};
        time += *of_day - *offset;
    }
    return scanner.is_at_end() ? std::optional(time) : std::nullopt;
}

std::optional<Time> duration(std::string_view text) {
    Time value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || value < 0 || end == text.data()) return {};
    const std::string_view unit(end, text.data() + text.size());
    for (const auto &[name, length] : {std::pair<std::string_view, Time>("ms", 1),
                                       {"s", second},
                                       {"m", minute},
                                       {"h", hour},
                                       {"d", day},
                                       {"w", 7 * day}}) {
        if (unit == name) return value <= 365'250 * day / length ? std::optional(value * length) : std::nullopt;
    }
    return {};
}

}  // namespace

Time time_now() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::string time_text(Time time) {
    using namespace std::chrono;
    const sys_time<milliseconds> point{milliseconds(time)};
    const sys_days days = floor<std::chrono::days>(point);
    const year_month_day date(days);
    const hh_mm_ss clock(point - days);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()), static_cast<int>(clock.subseconds().count()));
    return text;
}

Time time_of(std::string_view text, Time now) {
    if (text == "now") return now;
    if (text.starts_with('-')) {
        if (const auto before = duration(text.substr(1))) return now - *before;
    } else if (const auto time = iso_time(text)) {
        return *time;
    }
    throw Failure(Exit::input, in_quotes(text) + " is not a time such as 2026-11-23T06:05:00Z, now or -1d");
}

Time duration_of(std::string_view text) {
    if (const auto value = duration(text)) return *value;
    throw Failure(Exit::input, in_quotes(text) + " is not a duration such as 90s, 15m, 2h, 30d or 1w");
}

std::string duration_text(Time duration) {
    struct Unit {
        Time length;
        const char *name;
    };
    constexpr Unit units[] = {{day, "d"}, {hour, "h"}, {minute, "min"}, {second, "s"}, {1, "ms"}};
    for (std::size_t i = 0; i < std::size(units); ++i) {
        if (duration < units[i].length && i + 1 < std::size(units)) continue;
        std::string text = std::to_string(duration / units[i].length) + " " + units[i].name;
        // Milliseconds matter only below a second.
        const Time rest = duration % units[i].length;
        if (units[i].length > second && rest >= units[i + 1].length) {
            text += " " + std::to_string(rest / units[i + 1].length) + " " + units[i + 1].name;
        }
        return text;
    }
    return {};
}

}  // namespace tarn::fleet
