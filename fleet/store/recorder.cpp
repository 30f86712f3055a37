#include "fleet/store/recorder.h"

#include <algorithm>
#include <chrono>

namespace tarn::fleet {

namespace {

constexpr Time renewal = Recorder::lease / 5, forgetting = 600'000, longest_end = 10'000;
constexpr std::chrono::milliseconds pause(200);

Time steady_now() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

Recorder::Recorder(const RecorderOptions &options)
    : options_(options), keeper_(options.store, lease, options.patience, options.rows) {
    shown_ = keeper_.shown();
    thread_ = std::thread([this] {
        try {
            run();
        } catch (...) {
            const std::lock_guard<std::mutex> hold(lock_);
            failure_ = std::current_exception();
        }
        changed_.notify_all();
    });
}

Recorder::~Recorder() {
    {
        const std::lock_guard<std::mutex> hold(lock_);
        ends_ = is_cut_short_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void Recorder::add_devices(std::vector<std::pair<std::string, std::string>> devices) {
    const std::lock_guard<std::mutex> hold(lock_);
    new_devices_.insert(new_devices_.end(), devices.begin(), devices.end());
}

std::optional<std::vector<std::string>> Recorder::take_devices() {
    const std::lock_guard<std::mutex> hold(lock_);
    return std::exchange(owned_, std::nullopt);
}

void Recorder::add(Received received) {
    {
        const std::lock_guard<std::mutex> hold(lock_);
        waiting_bytes_ += received.frames.size();
        waiting_.push_back(std::move(received));
    }
    changed_.notify_all();
}

bool Recorder::is_full() const {
    const std::lock_guard<std::mutex> hold(lock_);
    return waiting_bytes_ > most_bytes || waiting_.size() > most_waiting;
}

Recorder::Counts Recorder::counts() const {
    const std::lock_guard<std::mutex> hold(lock_);
    return counts_;
}

void Recorder::check() const {
    const std::lock_guard<std::mutex> hold(lock_);
    if (failure_ != nullptr) std::rethrow_exception(failure_);
}

void Recorder::finish() {
    {
        const std::lock_guard<std::mutex> hold(lock_);
        ends_ = true;
        ends_at_ = steady_now() + longest_end;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
    check();
}

void Recorder::run() {
    for (;;) {
        insist([this] { renew_if_due(); });
        insist([this] { forget_if_due(); });
        const std::vector<Received> batch = take_batch();
        if (!batch.empty()) {
            insist([&] { put(batch); });
            continue;
        }
        const std::lock_guard<std::mutex> hold(lock_);
        if (ends_ && (waiting_.empty() || is_cut_short_)) return;
    }
}

void Recorder::insist(const std::function<void()> &work) {
    for (bool is_connected = true;;) {
        try {
            if (!is_connected) {
                keeper_.connect();
                options_.log(shown_ + ": available again");
                is_connected = true;
                next_renewal_ = 0;
                renew_if_due();
            }
            return work();
        } catch (const Unavailable &failure) {
            if (is_connected) options_.log(std::string(failure.what()) + "; trying again");
            is_connected = false;
            if (gives_up()) throw;
        }
        std::unique_lock<std::mutex> hold(lock_);
        if (changed_.wait_for(hold, pause, [this] { return is_cut_short_; })) return;
    }
}

// A collector that is to end waits no longer for its store.
bool Recorder::gives_up() const {
    const std::lock_guard<std::mutex> hold(lock_);
    return ends_ && steady_now() > ends_at_;
}

void Recorder::renew_if_due() {
    const Time now = steady_now();
    if (now < next_renewal_) return;
    std::vector<std::pair<std::string, std::string>> added;
    {
        const std::lock_guard<std::mutex> hold(lock_);
        added = new_devices_;
    }
    keeper_.add_devices(added);
    {
        const std::lock_guard<std::mutex> hold(lock_);
        new_devices_.erase(new_devices_.begin(), new_devices_.begin() + static_cast<std::ptrdiff_t>(added.size()));
    }
    const bool has_changed = keeper_.renew();
    next_renewal_ = now + renewal;
    if (!has_changed) return;
    std::vector<std::string> devices = keeper_.devices();
    const std::lock_guard<std::mutex> hold(lock_);
    owned_ = std::move(devices);
}

void Recorder::forget_if_due() {
    const Time now = steady_now();
    if (!options_.keep || now < next_forgetting_) return;
    keeper_.forget(time_now() - *options_.keep);
    next_forgetting_ = now + forgetting;
}

std::vector<Received> Recorder::take_batch() {
    std::unique_lock<std::mutex> hold(lock_);
    changed_.wait_for(hold, pause, [this] { return ends_ || !waiting_.empty(); });
    std::vector<Received> batch;
    for (std::size_t bytes = 0; !waiting_.empty() && batch.size() < batch_size && bytes < batch_bytes;) {
        bytes += waiting_.front().frames.size();
        batch.push_back(std::move(waiting_.front()));
        waiting_.pop_front();
    }
    for (const Received &received : batch) waiting_bytes_ -= received.frames.size();
    return batch;
}

void Recorder::put(const std::vector<Received> &batch) {
    std::vector<Outcome> outcomes;
    for (const Received &r : batch) outcomes.push_back({r.device, r.bundle, r.asked, r.ended, r.frames, r.reason});
    const Stored stored = keeper_.put(outcomes);
    const std::lock_guard<std::mutex> hold(lock_);
    counts_.answers += stored.answers;
    counts_.silences += stored.silences;
    ++counts_.commits;
}

}  // namespace tarn::fleet
