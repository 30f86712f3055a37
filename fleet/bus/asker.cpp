#include "fleet/bus/asker.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "mirk_platform.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

using tool::Exit;
using tool::Failure;
using tool::FrameBytes;

namespace {

// A server drops a connection when more than 64 MiB wait for it, so only about half of that is asked for at once.
constexpr std::size_t bytes_in_flight = 32 << 20;
// An answer that has not come after this time is probably none of those bytes.
constexpr std::chrono::milliseconds room_time(250);
constexpr std::size_t longest_description = 8 << 10;
// The devices that are remembered because of what they did wrong.
constexpr std::size_t most_reported = 10000;
constexpr unsigned many_strays = 16;

// Many at once, since the instruction and the system call that return random numbers take microseconds.
std::uint64_t random_number() {
    thread_local std::array<std::uint64_t, 32> numbers;
    thread_local std::size_t left = 0;
    if (left == 0) {
        if (::getentropy(numbers.data(), sizeof numbers) != 0) throw Failure(Exit::environment, "no random numbers");
        left = numbers.size();
    }
    return numbers[--left];
}

std::string random_run() {
    std::string run;
    for (int i = 0; i < 22; ++i) run += "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[random_number() % 36];
    return run;
}

// "2/5"
std::optional<std::pair<std::size_t, std::size_t>> part_of(std::string_view text) {
    std::pair<std::size_t, std::size_t> part;
    const char *end = text.data() + text.size();
    const auto first = std::from_chars(text.data(), end, part.first);
    if (first.ec != std::errc() || first.ptr == end || *first.ptr != '/') return std::nullopt;
    const auto second = std::from_chars(first.ptr + 1, end, part.second);
    if (second.ec != std::errc() || second.ptr != end) return std::nullopt;
    return part;
}

}  // namespace

std::string_view word(Reply reply) {
    constexpr std::string_view words[] = {"answered", "refused", "silent", "broken"};
    return words[static_cast<std::size_t>(reply)];
}

Asker::Asker(const AskerOptions &options, AskerEvents events)
    : options_(options),
      events_(std::move(events)),
      subjects_(random_run()),
      receiver_(std::make_unique<tool::Receiver>(options.tracked, tool::Via::handle)) {
    const BusSettings settings = bus_settings(options.bus, "tarn");
    const auto on_lost = [](natsConnection *, void *self) { ++static_cast<Asker *>(self)->lost_connections_; };
    check_bus(natsOptions_SetDisconnectedCB(settings.get(), on_lost, this), options.bus.shown());
    const auto on_closed = [](natsConnection *, void *self) { static_cast<Asker *>(self)->closed_.set_value(); };
    check_bus(natsOptions_SetClosedCB(settings.get(), on_closed, this), options.bus.shown());
    connection_ = connect_bus(options.bus, settings.get());
    inbox_.emplace(connection_.get(), subjects_.all());
}

// Callbacks about the connection come from a thread of the library, the one for its end as the last.
Asker::~Asker() {
    inbox_.reset();
    natsConnection_Close(connection_.get());
    closed_.get_future().wait();
}

bool Asker::is_connected() const { return natsConnection_Status(connection_.get()) == NATS_CONN_STATUS_CONNECTED; }

void Asker::discover() {
    if (!is_connected()) return;
    check_bus(natsConnection_PublishRequest(connection_.get(), "$SRV.PING", subjects_.discovery().c_str(), nullptr, 0),
              "discovery");
}

void Asker::ask(const DeviceName &device, const reflect::BundleOperations &bundle, Clock::time_point deadline) {
    std::uint64_t number = random_number();
    while (number == 0 || open_.count(number) != 0) number = random_number();
    open_.emplace(number, Open{.device = device, .bundle = &bundle, .asked = {}, .deadline = deadline, .frames = {}});
    deadlines_.emplace(deadline, number);
    waiting_.push_back(number);
    send_waiting();
}

std::size_t Asker::window() const { return std::clamp<std::size_t>(bytes_in_flight / typical_size_, 4, 4096); }

void Asker::send_waiting() {
    const auto old = Clock::now() - room_time;
    for (; !sent_.empty() && sent_.front().first < old; sent_.pop_front()) {
        if (const auto found = open_.find(sent_.front().second); found != open_.end()) free_room(found->second);
    }
    // Without a connection, the library would keep them and at last fail.
    if (!is_connected()) return;
    while (!waiting_.empty() && in_flight_ < window()) {
        const std::uint64_t number = waiting_.front();
        waiting_.pop_front();
        if (const auto found = open_.find(number); found != open_.end()) send(number, found->second);
    }
}

void Asker::send(std::uint64_t number, Open &open) {
    std::uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::string name(open.bundle->bundle->name);
    const std::uint8_t tracked = options_.tracked ? MIRK_PLATFORM_REQUEST_TRACKED : 0;
    const std::uint32_t size = mirk_platform_request_encode(frame, sizeof frame, 0, name.c_str(), tracked, nullptr);
    BusMessage message(ask_subject(open.device), subjects_.of(open.device, number).c_str(), {frame, size});
    message.set(headers::schema, own_digest());
    open.asked = std::chrono::system_clock::now();
    check_bus(natsConnection_PublishMsg(connection_.get(), message.get()), "request");
    open.is_sent = open.takes_room = true;
    ++in_flight_;
    sent_.emplace_back(Clock::now(), number);
}

void Asker::free_room(Open &open) {
    if (std::exchange(open.takes_room, false)) --in_flight_;
}

bool Asker::wait(Clock::time_point until) {
    require_open(options_.bus, connection_.get());
    end_lost();
    end_overdue();
    send_waiting();
    if (const std::int64_t lost = inbox_->take_lost(); lost != 0) {
        events_.on_problem("", std::to_string(lost) + " messages were lost, because they arrived too fast");
    }
    // Ten times a second for what becomes overdue meanwhile.
    const std::optional<BusMessage> message =
        inbox_->take(std::min(until, Clock::now() + std::chrono::milliseconds(100)));
    if (message) handle(*message);
    return message.has_value();
}

// Requests and answers that were under way are lost.
void Asker::end_lost() {
    const unsigned lost = lost_connections_;
    if (std::exchange(seen_lost_, lost) == lost) return;
    std::vector<std::uint64_t> numbers;
    for (const auto &[number, open] : open_) {
        if (open.is_sent) numbers.push_back(number);
    }
    for (const std::uint64_t number : numbers) {
        if (const auto found = open_.find(number); found != open_.end()) {
            end(found, Reply::silent, "the connection to the bus was lost");
        }
    }
}

void Asker::end_overdue() {
    const auto now = Clock::now();
    while (!deadlines_.empty() && deadlines_.begin()->first <= now) {
        const auto found = open_.find(deadlines_.begin()->second);
        const Open &open = found->second;
        end(found, Reply::silent,
            !open.is_sent     ? "the request could not be sent"
            : open.parts == 0 ? "no answer"
                              : "only " + std::to_string(open.received) + " of " + std::to_string(open.parts) +
                                    " parts of the answer");
    }
}

void Asker::report(const std::string &device, const std::string &text) {
    if (reported_.size() >= most_reported || !reported_.insert(device + " " + text).second) return;
    events_.on_problem(device, text);
}

void Asker::handle(const BusMessage &message) {
    if (message.subject() == subjects_.discovery()) return handle_reply(message);
    const auto parts = subjects_.parse(message.subject());
    if (!parts) return report("", "a message on a subject of no device");
    const std::string name = parts->device.text();
    const auto found = open_.find(parts->request);
    if (found == open_.end() || found->second.device != parts->device) {
        if (strays_.size() < most_reported && ++strays_[name] == many_strays) {
            report(name, "sends messages that were not asked for, or come too late; they are ignored");
        }
        return;
    }
    if (message.has_no_responders()) return end(found, Reply::silent, "no such device is on the bus");
    if (const std::string_view claimed = message.header(headers::device); claimed != name) {
        return report(name, "sends messages of another device, " + tool::in_quotes(claimed) + "; they are ignored");
    }
    add_part(found, message);
}

void Asker::handle_reply(const BusMessage &message) {
    // No service is there at all.
    if (message.has_no_responders()) return;
    try {
        const FrameBytes text = message.payload();
        if (text.size() > longest_description) throw Failure(Exit::input, "a reply to the discovery is too long");
        const std::optional<Device> device = device_of(tool::chars_of(text));
        if (!device) return;
        if (discovered_.size() >= options_.most_devices && discovered_.count(device->name) == 0) {
            throw Failure(Exit::input, "more than " + std::to_string(options_.most_devices) +
                                           " devices reply to the discovery; the others are ignored");
        }
        discovered_.insert(device->name);
        events_.on_device(*device);
    } catch (const Failure &failure) {
        report("", failure.what());
    }
}

void Asker::add_part(Requests::iterator found, const BusMessage &message) {
    Open &open = found->second;
    const auto broken = [&](const std::string &reason) { end(found, Reply::broken, reason); };
    const std::string_view schema = message.header(headers::schema), status = message.header(headers::status);
    if (schema != own_digest()) {
        return broken("its schema is " + tool::printable(schema, 64) + ", the schema here " + own_digest());
    }
    if (status != "answered" && status != "refused") return broken("unknown status " + tool::in_quotes(status));
    const FrameBytes bytes = message.payload();
    const auto part = part_of(message.header(headers::part));
    if (!part || part->second == 0 || (open.parts != 0 && part->second != open.parts) ||
        part->first != open.received + 1 || part->first > part->second || bytes.empty()) {
        return broken("part " + tool::in_quotes(message.header(headers::part)) + " of " + std::to_string(bytes.size()) +
                      " bytes follows part " + std::to_string(open.received) + " of " + std::to_string(open.parts));
    }
    if (open.frames.size() + bytes.size() > options_.limits.answer) {
        return broken("the answer is longer than --answer-limit");
    }
    open.parts = part->second;
    open.received = part->first;
    open.frames.insert(open.frames.end(), bytes.begin(), bytes.end());
    kept_ += bytes.size();
    if (open.received != open.parts) return keep_below_limit();
    try {
        std::vector<tool::Item> messages = read(open);
        if (status != "answered") return broken("an answer is marked as refused");
        end(found, Reply::answered, {}, std::move(messages));
    } catch (const Failure &failure) {
        // The receiver may be inside a bundle.
        receiver_ = std::make_unique<tool::Receiver>(options_.tracked, tool::Via::handle);
        end(found, failure.exit() == Exit::negative ? Reply::refused : Reply::broken, failure.what());
    }
}

// Incomplete answers together take no more memory than the largest complete one may.
void Asker::keep_below_limit() {
    if (kept_ <= options_.limits.answer) return;
    const auto largest = std::max_element(open_.begin(), open_.end(), [](const auto &a, const auto &b) {
        return a.second.frames.size() < b.second.frames.size();
    });
    end(largest, Reply::broken, "incomplete answers take more memory than --answer-limit");
}

std::vector<tool::Item> Asker::read(const Open &open) {
    const std::string origin = open.device.text();
    tool::AnswerFrames frames(*receiver_, *open.bundle, origin);
    const FrameBytes all(open.frames);
    for (std::size_t offset = 0; offset < all.size();) {
        const FrameBytes bytes = tool::frame_bytes_at(all, offset, origin);
        offset += bytes.size();
        if (bytes.size() > options_.limits.frame) {
            throw Failure(Exit::input, origin + ": a frame is longer than --frame-limit");
        }
        if (!frames.add(bytes, [&](const tool::Frame &frame) { receiver_->feed(frame, origin); })) continue;
        if (offset == all.size()) return receiver_->take();
        throw Failure(Exit::input, tool::frame_location(origin, offset) + ": follows the end of the bundle");
    }
    throw Failure(Exit::input, origin + ": the answer ends inside its bundle");
}

void Asker::end(Requests::iterator found, Reply reply, const std::string &reason, std::vector<tool::Item> messages) {
    Open open = std::move(found->second);
    deadlines_.erase({open.deadline, found->first});
    open_.erase(found);
    free_room(open);
    kept_ -= open.frames.size();
    if (reply == Reply::answered) {
        typical_size_ = std::max<std::size_t>(1024, (typical_size_ * 7 + open.frames.size()) / 8);
    } else {
        open.frames.clear();
    }
    // Which device it is, and that it refuses, is known.
    std::string words = reason;
    for (const std::string &known : {open.device.text() + ": ", std::string("refused: ")}) {
        if (words.starts_with(known)) words.erase(0, known.size());
    }
    events_.on_answer({open.device, open.bundle, reply, std::move(words), open.asked, std::chrono::system_clock::now(),
                       std::move(open.frames), std::move(messages)});
}

}  // namespace tarn::fleet
