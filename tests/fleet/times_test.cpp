// Times as people write them.
#include "fleet/store/times.h"

#include <gtest/gtest.h>

#include <string>

#include "tools/tarn/support/failure.h"

namespace fleet_test {

namespace {

using namespace tarn::fleet;

constexpr Time now = 1'795'000'000'123;

TEST(Times, ReadsIso8601) {
    const auto text = [](const char *input) { return time_text(time_of(input, now)); };
    EXPECT_EQ(text("2026-11-23"), "2026-11-23T00:00:00.000Z");
    EXPECT_EQ(text("2026-11-23T06:05"), "2026-11-23T06:05:00.000Z");
    EXPECT_EQ(text("2026-11-23 06:05:07Z"), "2026-11-23T06:05:07.000Z");
    EXPECT_EQ(text("2026-11-23T06:05:07.5Z"), "2026-11-23T06:05:07.500Z");
    EXPECT_EQ(text("2026-11-23T06:05:07.1239+01:00"), "2026-11-23T05:05:07.123Z");
    EXPECT_EQ(text("2026-11-23T00:05-0130"), "2026-11-23T01:35:00.000Z");
    EXPECT_EQ(text("2024-02-29"), "2024-02-29T00:00:00.000Z");
    EXPECT_EQ(text("1969-12-31T23:59:59.999"), "1969-12-31T23:59:59.999Z");
}

TEST(Times, ReadsTimesBeforeNow) {
    EXPECT_EQ(time_of("now", now), now);
    EXPECT_EQ(time_of("-500ms", now), now - 500);
    EXPECT_EQ(time_of("-90s", now), now - 90'000);
    EXPECT_EQ(time_of("-1d", now), now - 86'400'000);
    EXPECT_EQ(time_of("-1w", now), now - 604'800'000);
}

TEST(Times, NamesWhatIsNoTime) {
    for (const char *const text :
         {"", "yesterday", "2026-02-29", "2026-13-01", "2026-11-23T24:00", "2026-11-23T06:60", "2026-11-23T6:05",
          "2026-11-23T06:05:07.", "2026-11-23T06:05+1", "2026-11-23T06:05Zz", "-1", "-1y", "--1d", "-d", "1d",
          "-99999999999999999999d", "-9999999999w"}) {
        EXPECT_THROW(time_of(text, now), tarn::tool::Failure) << text;
    }
}

TEST(Times, ReadsAndWritesDurations) {
    EXPECT_EQ(duration_of("30d"), Time{30} * 86'400'000);
    EXPECT_THROW(duration_of("30"), tarn::tool::Failure);
    EXPECT_THROW(duration_of("-30d"), tarn::tool::Failure);
    EXPECT_EQ(duration_text(0), "0 ms");
    EXPECT_EQ(duration_text(1500), "1 s");
    EXPECT_EQ(duration_text(61'500), "1 min 1 s");
    EXPECT_EQ(duration_text(2 * 86'400'000 + 3 * 3'600'000), "2 d 3 h");
    EXPECT_EQ(duration_text(2 * 86'400'000 + 59'000), "2 d");
}

}  // namespace

}  // namespace fleet_test
