// The asking side: requests to many devices at once, and their answers.
#pragma once

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "fleet/bus/connection.h"
#include "fleet/bus/discovery.h"
#include "fleet/bus/inbox.h"
#include "tools/tarn/service/client.h"

namespace tarn::fleet {

enum class Reply : std::uint8_t { answered, refused, silent, broken };
std::string_view word(Reply reply);

struct Answer {
    DeviceName device;
    const reflect::BundleOperations *bundle;
    Reply reply;
    std::string reason;  // printable; of anything but an answer
    std::chrono::system_clock::time_point asked, ended;
    // Of an answer: all frames as the device sent them, and the messages that they contain. Every frame has been read
    // and belongs to the answer; the messages must not outlive the callback.
    tool::Bytes frames;
    std::vector<tool::Item> messages;
};

struct AskerOptions {
    BusOptions bus;
    tool::AnswerLimits limits;
    bool tracked = false;
    std::size_t most_devices = 100'000;  // that may be discovered
};

struct AskerEvents {
    std::function<void(const Device &)> on_device = [](const Device &) {};  // each reply to discover()
    std::function<void(Answer &&)> on_answer;                               // once for each request
    // What a device did wrong, once for each device. `device` is empty if it is not known.
    std::function<void(const std::string &device, const std::string &text)> on_problem;
};

// All functions are called by one thread, also the callbacks. Callbacks may call ask() and discover().
class Asker {
public:
    using Clock = std::chrono::steady_clock;

    Asker(const AskerOptions &options, AskerEvents events);
    Asker(const Asker &) = delete;
    Asker &operator=(const Asker &) = delete;
    ~Asker();

    // Asks all devices to describe themselves, if there is a connection.
    void discover();
    // The request is sent as soon as the answers that are on their way leave room. A device without a whole answer at
    // the deadline is silent.
    void ask(const DeviceName &device, const reflect::BundleOperations &bundle, Clock::time_point deadline);
    // Requests without an answer so far.
    std::size_t open() const { return open_.size(); }
    // Handles the next message, but waits for it at most until then. False if there was none.
    bool wait(Clock::time_point until);

private:
    struct Open {
        DeviceName device;
        const reflect::BundleOperations *bundle;
        std::chrono::system_clock::time_point asked;
        Clock::time_point deadline;
        bool is_sent = false, takes_room = false;
        std::size_t parts = 0, received = 0;
        tool::Bytes frames;
    };
    using Requests = std::unordered_map<std::uint64_t, Open>;

    bool is_connected() const;
    void send_waiting();
    void send(std::uint64_t number, Open &open);
    void end_overdue();
    void end_lost();
    void handle(const BusMessage &message);
    void handle_reply(const BusMessage &message);
    void add_part(Requests::iterator open, const BusMessage &message);
    void keep_below_limit();
    std::vector<tool::Item> read(const Open &open);
    void end(Requests::iterator open, Reply reply, const std::string &reason, std::vector<tool::Item> messages = {});
    void free_room(Open &open);
    void report(const std::string &device, const std::string &text);
    std::size_t window() const;

    AskerOptions options_;
    AskerEvents events_;
    AnswerSubjects subjects_;
    BusConnection connection_;
    std::optional<Inbox> inbox_;
    std::unique_ptr<tool::Receiver> receiver_;
    std::atomic<unsigned> lost_connections_ = 0;
    std::promise<void> closed_;
    unsigned seen_lost_ = 0;

    Requests open_;
    std::deque<std::uint64_t> waiting_;
    std::set<std::pair<Clock::time_point, std::uint64_t>> deadlines_;
    std::deque<std::pair<Clock::time_point, std::uint64_t>> sent_;  // and take room
    std::size_t in_flight_ = 0;                                     // requests that take room
    std::size_t typical_size_ = 32 << 10;                           // of an answer
    std::uint64_t kept_ = 0;                                        // bytes of incomplete answers
    std::set<DeviceName> discovered_;
    std::map<std::string, unsigned> strays_;  // messages that were not asked for, by device
    std::set<std::string> reported_;
};

}  // namespace tarn::fleet
