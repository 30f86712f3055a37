// The requesting side: one request, and the frames of its answer.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>

#include "mirk_platform.h"
#include "tools/tarn/service/receiver.h"

namespace tarn::tool {

class Deadline {
public:
    explicit Deadline(double seconds)
        : end_(std::chrono::steady_clock::now() + std::chrono::milliseconds(static_cast<long>(seconds * 1000))) {}
    std::uint32_t left_ms() const;

private:
    std::chrono::steady_clock::time_point end_;
};

// Of the answering process: a socket file or a TCP address; the other member is empty.
struct Endpoint {
    std::string socket, tcp;

    bool is_given() const { return !socket.empty() || !tcp.empty(); }
    const std::string &text() const { return socket.empty() ? tcp : socket; }
};

// Limits on an answer, since the answering process may be faulty or hostile. In bytes.
struct AnswerLimits {
    std::uint64_t frame = 16 << 20, answer = 256 << 20;
};

// Called ten times a second while a connection waits for a frame. What it throws ends the waiting.
using WhileWaiting = std::function<void()>;

class Connection {
public:
    Connection(const Endpoint &endpoint, const Deadline &deadline, const AnswerLimits &limits,
               WhileWaiting while_waiting = nullptr);
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection() { mirk_platform_client_close(client_); }

    const std::string &name() const { return name_; }  // printable
    void request(const reflect::BundleOperations &bundle, bool tracked);
    // For another request. Limits apply to each answer.
    void renew(const Deadline &deadline);
    // One whole frame, valid until the next call. Throws a Failure if the frame or the whole answer exceeds its limit,
    // and at the deadline even if frames are ready.
    FrameBytes receive();

private:
    void check(mirk_platform_error error, const char *what) const;

    std::string name_;
    Deadline deadline_;
    AnswerLimits limits_;
    WhileWaiting while_waiting_;
    std::uint64_t received_ = 0;
    mirk_platform_client *client_ = nullptr;
};

// The frames of an answer, which must be a bundle that was requested, one after the other.
class AnswerFrames {
public:
    using Feed = std::function<void(const Frame &)>;

    AnswerFrames(const Receiver &receiver, const reflect::BundleOperations &bundle, std::string origin)
        : receiver_(receiver), bundle_(bundle), origin_(std::move(origin)) {}

    // Passes the next frame to `feed`, which has to feed it to the receiver. True if it is the last one. Throws a
    // Failure for a refusal, an abort, and a frame that does not belong to this answer.
    bool add(FrameBytes bytes, const Feed &feed);

private:
    const Receiver &receiver_;
    const reflect::BundleOperations &bundle_;
    std::string origin_;
    std::size_t offset_ = 0;
};

// Passes each frame of the answer to `feed`, until the bundle ends. Throws a Failure as AnswerFrames::add(), and at the
// deadline.
void receive_answer(Connection &connection, const Receiver &receiver, const reflect::BundleOperations &bundle,
                    const AnswerFrames::Feed &feed);

}  // namespace tarn::tool
