#include "tools/tarn/service/client.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

void require_no_refusal(FrameBytes frame, const std::string &origin) {
    mirk_platform_request reply;
    if (mirk_platform_request_decode(frame.data(), frame.size(), &reply) != 0) return;
    if ((reply.options & MIRK_PLATFORM_REQUEST_REFUSED) == 0) {
        throw Failure(Exit::input, origin + ": the answer is a request");
    }
    throw Failure(Exit::negative, origin + ": refused: " + printable(reply.sentence) + ": " + error_text(reply.number));
}

// The dispatcher delivers every well-formed frame; the requesting side checks that it belongs to the answer.
void require_expected(const Frame &frame, const reflect::BundleOperations &bundle, const Receiver &receiver,
                      const std::string &origin) {
    const Identity &identity = frame.identity;
    const bool admitted = identity.is_control() ? identity.bundle == &bundle : admits(bundle, *identity.operations);
    if (!admitted) {
        throw Failure(Exit::input, not_admitted(frame_location(origin, frame.offset), bundle, *identity.operations));
    }
    if (!identity.is_control() && !receiver.in_bundle()) {
        throw Failure(Exit::input, frame_location(origin, frame.offset) + ": " + identity.operations->name +
                                       " precedes the start of its bundle");
    }
}

}  // namespace

std::uint32_t Deadline::left_ms() const {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end_ - std::chrono::steady_clock::now());
    return left.count() > 0 ? static_cast<std::uint32_t>(left.count()) : 0;
}

Connection::Connection(const Endpoint &endpoint, const Deadline &deadline, const AnswerLimits &limits,
                       WhileWaiting while_waiting)
    : name_(printable(endpoint.text())),
      deadline_(deadline),
      limits_(limits),
      while_waiting_(std::move(while_waiting)) {
    const auto open = endpoint.tcp.empty() ? mirk_platform_client_open : mirk_platform_client_open_tcp;
    const mirk_platform_error error =
        open(endpoint.text().c_str(), static_cast<std::uint32_t>(limits.frame), deadline.left_ms(), &client_);
    check(error, !endpoint.tcp.empty() && error == EADDRNOTAVAIL
                     ? "cannot connect: the host is unknown or has no address"
                 : endpoint.tcp.empty() && error == ENOENT ? "cannot connect: there is no such socket"
                 : error == ECONNREFUSED                   ? "cannot connect: no process listens there"
                                                           : "cannot connect");
}

void Connection::request(const reflect::BundleOperations &bundle, bool tracked) {
    std::uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::string name(bundle.bundle->name);
    const std::uint8_t options = tracked ? MIRK_PLATFORM_REQUEST_TRACKED : 0;
    const std::uint32_t size = mirk_platform_request_encode(frame, sizeof frame, 0, name.c_str(), options, nullptr);
    const mirk_platform_error error = mirk_platform_client_send(client_, frame, size, deadline_.left_ms());
    // A process that has no place for this peer refuses it without waiting for the request.
    if (error == EPIPE || error == ECONNRESET) {
        void *reply = nullptr;
        std::uint32_t length = 0;
        if (mirk_platform_client_receive(client_, &reply, &length, deadline_.left_ms()) == 0) {
            require_no_refusal({static_cast<const std::uint8_t *>(reply), length}, name_);
        }
    }
    check(error, "cannot send the request");
}

void Connection::renew(const Deadline &deadline) {
    deadline_ = deadline;
    received_ = 0;
}

FrameBytes Connection::receive() {
    if (deadline_.left_ms() == 0) check(ETIMEDOUT, "no complete answer");
    void *frame = nullptr;
    std::uint32_t size = 0;
    mirk_platform_error error = ETIMEDOUT;
    while (error == ETIMEDOUT && deadline_.left_ms() != 0) {
        constexpr std::uint32_t between_calls_ms = 100;
        const std::uint32_t left = deadline_.left_ms();
        error = mirk_platform_client_receive(client_, &frame, &size,
                                             while_waiting_ ? std::min(left, between_calls_ms) : left);
        if (error == ETIMEDOUT && while_waiting_) while_waiting_();
    }
    check(error, error == EMSGSIZE ? "a frame is longer than --frame-limit" : "no complete answer");
    received_ += size;
    if (received_ > limits_.answer) check(EMSGSIZE, "the answer is longer than --answer-limit");
    return {static_cast<const std::uint8_t *>(frame), size};
}

void Connection::check(mirk_platform_error error, const char *what) const {
    if (error == 0) return;
    const bool bad_input = error == EBADMSG || error == EMSGSIZE || error == EINVAL;
    throw Failure(bad_input ? Exit::input : Exit::environment, name_ + ": " + what + ": " + error_text(error));
}

bool AnswerFrames::add(FrameBytes bytes, const Feed &feed) {
    require_no_refusal(bytes, origin_);
    Frame frame = frame_at(bytes, 0, origin_);
    frame.offset = offset_;
    offset_ += bytes.size();
    require_expected(frame, bundle_, receiver_, origin_);
    feed(frame);
    if (!frame.identity.is_control() || frame.identity.control == Control::start) return false;
    if (frame.identity.control == Control::commit) return true;
    throw Failure(Exit::negative, origin_ + ": the answering process aborted " + std::string(bundle_.bundle->name));
}

void receive_answer(Connection &connection, const Receiver &receiver, const reflect::BundleOperations &bundle,
                    const AnswerFrames::Feed &feed) {
    AnswerFrames answer(receiver, bundle, connection.name());
    while (!answer.add(connection.receive(), feed)) {
    }
}

}  // namespace tarn::tool
