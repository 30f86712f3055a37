#include "tools/tarn/support/log.h"

#include <pthread.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <utility>

namespace tarn::tool {

struct Log::Queue {
    std::mutex lock;
    std::condition_variable changed;
    std::string lines, writing;
    std::size_t dropped = 0;
    bool ended = false;
};

namespace {

// Lines that cannot be written are lost: there is nowhere to report that.
void write_to_standard_error(std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
        if (written < 0 && errno != EINTR) return;
        if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

Log::Log() : queue_(std::make_shared<Queue>()) {
    // Signals stay with the thread that runs the server.
    sigset_t all, before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    writer_ = std::thread(write_lines, queue_);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

Log::~Log() {
    std::unique_lock<std::mutex> hold(queue_->lock);
    queue_->ended = true;
    queue_->changed.notify_all();
    const auto written = [this] { return queue_->lines.empty() && queue_->writing.empty(); };
    const bool all_written = queue_->changed.wait_for(hold, std::chrono::seconds(1), written);
    hold.unlock();
    if (all_written) {
        writer_.join();
    } else {
        // The thread still uses the queue when the process ends: it must not look like a leak.
        [[maybe_unused]] static const auto *const left = new std::shared_ptr<Queue>(queue_);
        writer_.detach();
    }
}

void Log::line(std::string_view text) {
    const std::lock_guard<std::mutex> hold(queue_->lock);
    if (queue_->dropped != 0 || queue_->lines.size() + text.size() + 1 > capacity) {
        ++queue_->dropped;
        return;
    }
    queue_->lines.append(text).append("\n");
    queue_->changed.notify_all();
}

void Log::write_lines(const std::shared_ptr<Queue> &queue) {
    std::unique_lock<std::mutex> hold(queue->lock);
    for (;;) {
        queue->changed.wait(hold, [&] { return !queue->lines.empty() || queue->ended; });
        if (queue->lines.empty()) return;
        queue->writing = std::exchange(queue->lines, {});
        if (const std::size_t dropped = std::exchange(queue->dropped, 0); dropped != 0) {
            queue->writing += "tarn: " + std::to_string(dropped) + " lines were dropped: standard error is too slow\n";
        }
        hold.unlock();
        write_to_standard_error(queue->writing);
        hold.lock();
        queue->writing.clear();
        queue->changed.notify_all();
    }
}

}  // namespace tarn::tool
