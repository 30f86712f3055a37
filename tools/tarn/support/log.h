// Lines on standard error that a server prints while it runs. Their reader may be slow or gone, so a thread
// writes them: the caller never waits.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

namespace tarn::tool {

class Log {
public:
    // Bytes that wait to be written. Further lines are dropped and counted, and a line reports their number.
    static constexpr std::size_t capacity = std::size_t{64} << 10;

    Log();
    Log(const Log &) = delete;
    Log &operator=(const Log &) = delete;
    // Waits until the lines are written, but at most a second.
    ~Log();

    void line(std::string_view text);

private:
    struct Queue;
    static void write_lines(const std::shared_ptr<Queue> &queue);

    // Shared with the thread, which outlives the log if a write never returns.
    std::shared_ptr<Queue> queue_;
    std::thread writer_;
};

}  // namespace tarn::tool
