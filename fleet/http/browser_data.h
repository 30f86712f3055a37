// What the page of a collector shows of its store, as JSON, and the pages of answers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <semaphore>
#include <string>

#include "fleet/store/store.h"

namespace tarn::fleet {

// Of a plot.
struct PlotRequest {
    std::string device, bundle, member;  // SITE/DEVICE, dp-intf, dp_tc.proto
    Time since, until;
    std::string filter;  // only series whose labels contain it
};

// May be called by several threads. What a request asks for and is not there throws a Failure with Exit::input.
class BrowserData {
public:
    // An answer that is greater is neither shown as a page nor plotted.
    static constexpr std::int64_t most_viewed = std::int64_t{4} << 20;
    // A history has the newest of its answers and gaps.
    static constexpr std::size_t most_events = 1000;
    // Of more answers, a plot shows every second one, every third one and so on; and the first of more series.
    static constexpr std::size_t most_plotted = 1000, most_series = 50;
    // More requests at once are refused, so that those for the metrics do not wait for the store.
    static constexpr std::ptrdiff_t most_waiting = 12;

    explicit BrowserData(std::string store);
    ~BrowserData();

    // All devices and bundles with the last answer and the gap after it.
    std::string devices(Time now);
    // The numeric members by bundle.
    static std::string members();
    // The answers and gaps of a device, newest first.
    std::string history(const std::string &device, Time since, Time until);
    // How much differs between two answers, by what it is.
    std::string changes(std::int64_t a, std::int64_t b);
    std::string values(const PlotRequest &request);
    // The page that "tarn view" writes.
    std::string view(std::int64_t a, std::optional<std::int64_t> b);

private:
    std::string with_store(const std::function<std::string(Store &)> &work);

    const std::string where_;
    std::counting_semaphore<most_waiting> turns_{most_waiting};
    std::mutex lock_;
    std::unique_ptr<Store> store_;
};

}  // namespace tarn::fleet
