#include "fleet/bus/responder.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <exception>
#include <random>
#include <utility>

#include "mirk_platform.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

using tool::Failure;
using tool::FrameBytes;

namespace {

// Of each part, at most.
constexpr std::size_t size_of_headers = 1024;

std::string utc_now() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text;
}

}  // namespace

Device this_device(const DeviceName &name, std::vector<std::string> bundles) {
    std::random_device random;
    std::string id;
    for (int i = 0; i < 22; ++i) id += "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[random() % 36];
    return {name, id, TARN_VERSION, own_digest(), utc_now(), std::move(bundles)};
}

Responder::Responder(BusConnection connection, Device device, Events events, std::uint64_t frame_limit)
    : connection_(std::move(connection)),
      device_(std::move(device)),
      events_(std::move(events)),
      frame_limit_(frame_limit) {
    subscribe(ask_subject(device_.name), on_request);
    for (const std::string &subject : service_subjects(device_)) subscribe(subject, on_service_request);
    // From now on, the server passes requests on.
    check_bus(natsConnection_FlushTimeout(connection_.get(), 10'000), device_.name.text());
}

// Closing ends the subscriptions; the last message of each may still be in work.
Responder::~Responder() {
    natsConnection_Close(connection_.get());
    std::unique_lock<std::mutex> hold(lock_);
    completed_.wait(hold, [this] { return live_ == 0; });
}

void Responder::subscribe(const std::string &subject, natsMsgHandler handler) {
    natsSubscription *subscription = nullptr;
    check_bus(natsConnection_Subscribe(&subscription, connection_.get(), subject.c_str(), handler, this), subject);
    subscriptions_.emplace_back(subscription);
    const std::lock_guard<std::mutex> hold(lock_);
    check_bus(natsSubscription_SetOnCompleteCB(subscription, on_complete, this), subject);
    ++live_;
}

void Responder::on_complete(void *self) {
    auto *responder = static_cast<Responder *>(self);
    const std::lock_guard<std::mutex> hold(responder->lock_);
    --responder->live_;
    responder->completed_.notify_all();
}

void Responder::on_request(natsConnection *, natsSubscription *, natsMsg *message, void *self) {
    auto *responder = static_cast<Responder *>(self);
    const BusMessage owner(message);
    const auto begin = std::chrono::steady_clock::now();
    ++responder->statistics_.requests;
    try {
        responder->handle(owner);
    } catch (const std::exception &error) {
        ++responder->statistics_.errors;
        responder->statistics_.last_error = error.what();
        responder->events_.on_event(error.what(), true);
    }
    const std::chrono::nanoseconds taken = std::chrono::steady_clock::now() - begin;
    responder->statistics_.processing_ns += static_cast<std::uint64_t>(taken.count());
}

void Responder::on_service_request(natsConnection *connection, natsSubscription *, natsMsg *message, void *self) {
    const auto *responder = static_cast<const Responder *>(self);
    const BusMessage owner(message);
    if (owner.reply().empty()) return;
    try {
        const std::string reply = service_reply(responder->device_, owner.subject(), responder->statistics_);
        if (reply.empty()) return;
        check_bus(natsConnection_PublishString(connection, natsMsg_GetReply(message), reply.c_str()), "reply");
    } catch (const std::exception &error) {
        responder->events_.on_event(error.what(), true);
    }
}

void Responder::handle(const BusMessage &message) {
    // A process must not make the device publish elsewhere.
    const std::string prefix = answer_prefix(device_.name);
    if (!message.reply().starts_with(prefix)) {
        throw Failure(tool::Exit::input, "a request wants its answer at " + tool::in_quotes(message.reply()));
    }
    Request request{{}, false, std::string(message.reply()), std::string(message.reply().substr(prefix.size()))};
    mirk_platform_request decoded;
    const FrameBytes frame = message.payload();
    if (frame.size() > frame_limit_) {
        refuse(request, EMSGSIZE, "the request is longer than --frame-limit");
    } else if (mirk_platform_request_decode(frame.data(), frame.size(), &decoded) != 0 ||
               (decoded.options & MIRK_PLATFORM_REQUEST_REFUSED) != 0) {
        refuse(request, EBADMSG, "not a request");
    } else if (message.header(headers::schema) != own_digest()) {
        refuse(request, EPROTO,
               "the schema here is " + own_digest() + ", that of the request " +
                   tool::printable(message.header(headers::schema), 64));
    } else {
        request.bundle = decoded.bundle;
        request.tracked = (decoded.options & MIRK_PLATFORM_REQUEST_TRACKED) != 0;
        events_.on_request(*this, request);
    }
}

void Responder::answer(const Request &request, FrameBytes frames, const Distortion &distortion) const {
    send(request, frames, "answered", distortion);
}

void Responder::refuse(const Request &request, std::uint32_t number, const std::string &sentence) {
    ++statistics_.errors;
    statistics_.last_error = sentence;
    events_.on_event("refused: " + sentence, false);
    std::uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::uint32_t size = mirk_platform_refusal_encode(frame, sizeof frame, 0, number, sentence.c_str(), nullptr);
    send(request, {frame, size}, "refused", {});
}

void Responder::send(const Request &request, FrameBytes bytes, const char *status, const Distortion &distortion) const {
    const auto limit = static_cast<std::size_t>(natsConnection_GetMaxPayload(connection_.get()));
    if (limit <= size_of_headers) throw Failure(tool::Exit::environment, "the server limits messages to a few bytes");
    const std::size_t most = limit - size_of_headers;
    const std::size_t parts = std::max<std::size_t>(1, (bytes.size() + most - 1) / most);
    const std::size_t claimed = parts + (distortion.is_torn && parts == 1 ? 1 : 0);
    const std::size_t sent = claimed - (distortion.is_torn ? 1 : 0);
    for (std::size_t part = 1; part <= sent; ++part) {
        BusMessage message(request.reply, nullptr, bytes.first(std::min(most, bytes.size())));
        bytes = bytes.subspan(std::min(most, bytes.size()));
        message.set(headers::schema, distortion.schema.empty() ? device_.schema : distortion.schema);
        message.set(headers::device, device_.name.text());
        message.set(headers::request, request.id);
        message.set(headers::part, std::to_string(part) + "/" + std::to_string(claimed));
        message.set(headers::status, status);
        check_bus(natsConnection_PublishMsg(connection_.get(), message.get()), "answer");
    }
}

}  // namespace tarn::fleet
