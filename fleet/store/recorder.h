// Puts what a collector receives into a store, on a thread of its own, so that receiving does not wait for it.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "fleet/store/store.h"

namespace tarn::fleet {

struct RecorderOptions {
    std::string store;
    Time patience = 0;         // as the keeper has it
    std::optional<Time> keep;  // what is older is forgotten
    bool rows = false;         // as the keeper has it
    // What happened to the store; called by the thread.
    std::function<void(std::string_view)> log = [](std::string_view) {};
};

// An outcome with text of its own.
struct Received {
    std::string device;
    std::string_view bundle;  // from the schema
    Time asked, ended;
    std::string frames, reason;
};

class Recorder {
public:
    // A collector that is killed has lost its devices after this time.
    static constexpr Time lease = 5000;

    // Opens the store; then the thread begins.
    explicit Recorder(const RecorderOptions &options);
    Recorder(const Recorder &) = delete;
    Recorder &operator=(const Recorder &) = delete;
    ~Recorder();

    const std::string &shown() const { return shown_; }

    // Devices, SITE/DEVICE with their sites, which the store should have.
    void add_devices(std::vector<std::pair<std::string, std::string>> devices);
    // The devices of this collector, if they have changed since the last call.
    std::optional<std::vector<std::string>> take_devices();

    void add(Received received);
    // True if so much waits that no more should be asked for.
    bool is_full() const;

    struct Counts {
        std::uint64_t answers = 0, silences = 0, commits = 0;
    };
    Counts counts() const;

    // Throws what ended the thread, such as a full disk.
    void check() const;
    // Waits until the store has all that was added, but not long if it is not available. Throws as check().
    void finish();

private:
    static constexpr std::size_t most_bytes = std::size_t{64} << 20, most_waiting = 50'000;
    static constexpr std::size_t batch_bytes = std::size_t{8} << 20, batch_size = 2000;

    void run();
    // Keeps trying while the store is unavailable.
    void insist(const std::function<void()> &work);
    bool gives_up() const;
    void renew_if_due();
    void forget_if_due();
    std::vector<Received> take_batch();
    void put(const std::vector<Received> &batch);

    const RecorderOptions options_;
    std::string shown_;
    mutable std::mutex lock_;
    std::condition_variable changed_;
    std::deque<Received> waiting_;
    std::size_t waiting_bytes_ = 0;
    std::vector<std::pair<std::string, std::string>> new_devices_;
    std::optional<std::vector<std::string>> owned_;
    Counts counts_;
    bool ends_ = false, is_cut_short_ = false;
    Time ends_at_ = 0;
    std::exception_ptr failure_;

    // Of the thread.
    Keeper keeper_;
    Time next_renewal_ = 0, next_forgetting_ = 0;
    std::thread thread_;
};

}  // namespace tarn::fleet
