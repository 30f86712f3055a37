// What a collector knows, in the text format of OpenMetrics 1.0, for Prometheus. The library prometheus-cpp writes the
// older format only, whose end has no mark, so that a text that is cut off looks whole; and its numbers are doubles.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fleet/bus/asker.h"
#include "fleet/http/series.h"
#include "fleet/store/recorder.h"

namespace tarn::fleet {

struct MetricsOptions {
    std::vector<std::string> members;  // such as "dp-tc.proto"
    Time expire = 0;                   // values of a device go if it has not answered for that time
    bool has_times = false;            // values with the time of their answer
};

inline constexpr char metrics_type[] = "application/openmetrics-text; version=1.0.0; charset=utf-8";

// Answers come from one thread, requests for the text from others.
class Metrics {
public:
    // A device has no more values of one member than this.
    static constexpr std::size_t most_values = 10'000;

    // Throws a Failure for a name that is not the one of a numeric member, or of none that the bundles can contain.
    Metrics(const MetricsOptions &options, const std::set<const reflect::BundleOperations *> &bundles);

    // The end of a request; it takes the messages out of the answer. Returns the members of which the device has more
    // than `most_values` values, for the first time.
    std::vector<std::string> add(Answer &answer);
    // Of all other devices, nothing is known any more.
    void keep_only(const std::set<std::string> &devices);

    std::string text(Time now, const Recorder::Counts &kept) const;

private:
    using Bundle = const reflect::BundleOperations *;
    using Values = std::map<std::string, std::uint64_t>;  // by their labels

    static constexpr std::size_t replies = 4;
    struct Asked {
        std::string labels;  // of the site, the device and the bundle
        Reply reply = Reply::silent;
        Time answered = 0;  // 0: never
        std::size_t size = 0;
        std::vector<Values> values;  // by member
        bool is_reported = false;
    };

    std::vector<std::string> read_values(Answer &answer, std::vector<Values> &values) const;

    const MetricsOptions options_;
    std::vector<NumericMember> members_;
    mutable std::mutex lock_;
    std::map<Bundle, std::array<std::uint64_t, replies>> requests_;
    std::map<std::pair<std::string, Bundle>, Asked> asked_;  // by device and bundle
};

}  // namespace tarn::fleet
