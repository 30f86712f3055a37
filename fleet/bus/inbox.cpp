#include "fleet/bus/inbox.h"

#include <utility>

namespace tarn::fleet {

namespace {

// Here, and in the library. Beyond the second limit, it drops messages.
constexpr std::size_t most_arrived = 1024;
constexpr int most_pending = 1 << 20, most_pending_bytes = 256 << 20;

}  // namespace

Inbox::Inbox(natsConnection *connection, const std::string &subject) {
    natsSubscription *subscription = nullptr;
    check_bus(natsConnection_Subscribe(&subscription, connection, subject.c_str(), on_message, this), subject);
    subscription_.reset(subscription);
    check_bus(natsSubscription_SetOnCompleteCB(subscription, on_complete, this), subject);
    check_bus(natsSubscription_SetPendingLimits(subscription, most_pending, most_pending_bytes), subject);
}

Inbox::~Inbox() {
    std::unique_lock<std::mutex> hold(lock_);
    is_closed_ = true;
    changed_.notify_all();
    hold.unlock();
    natsSubscription_Unsubscribe(subscription_.get());
    hold.lock();
    changed_.wait(hold, [this] { return is_complete_; });
}

void Inbox::on_message(natsConnection *, natsSubscription *, natsMsg *message, void *self) {
    auto *inbox = static_cast<Inbox *>(self);
    BusMessage owner(message);
    std::unique_lock<std::mutex> hold(inbox->lock_);
    inbox->changed_.wait(hold, [&] { return inbox->arrived_.size() < most_arrived || inbox->is_closed_; });
    if (inbox->is_closed_) return;
    inbox->arrived_.push_back(std::move(owner));
    if (inbox->arrived_.size() == 1) inbox->changed_.notify_all();
}

void Inbox::on_complete(void *self) {
    auto *inbox = static_cast<Inbox *>(self);
    const std::lock_guard<std::mutex> hold(inbox->lock_);
    inbox->is_complete_ = true;
    inbox->changed_.notify_all();
}

std::optional<BusMessage> Inbox::take(std::chrono::steady_clock::time_point until) {
    if (taken_.empty()) {
        std::unique_lock<std::mutex> hold(lock_);
        changed_.wait_until(hold, until, [this] { return !arrived_.empty(); });
        std::swap(taken_, arrived_);
        changed_.notify_all();
        if (taken_.empty()) return std::nullopt;
    }
    BusMessage message = std::move(taken_.front());
    taken_.pop_front();
    return message;
}

std::int64_t Inbox::take_lost() {
    std::int64_t lost = 0;
    natsSubscription_GetDropped(subscription_.get(), &lost);
    return lost - std::exchange(lost_, lost);
}

}  // namespace tarn::fleet
