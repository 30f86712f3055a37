#include "fleet/bus/event_loop.h"

#include <event2/event.h>
#include <nats/adapters/libevent.h>

#include <new>

#include "fleet/bus/connection.h"

namespace tarn::fleet {

void EventLoop::Free::operator()(event_base *base) const { event_base_free(base); }

EventLoop::EventLoop() {
    natsLibevent_Init();
    base_.reset(event_base_new());
    if (base_ == nullptr) throw std::bad_alloc();
    // Without connections, too, the loop goes on.
    thread_ = std::thread([this] { event_base_loop(base_.get(), EVLOOP_NO_EXIT_ON_EMPTY); });
}

EventLoop::~EventLoop() {
    event_base_loopbreak(base_.get());
    thread_.join();
}

void EventLoop::use_for(natsOptions *settings) const {
    check_bus(natsOptions_SetEventLoop(settings, base_.get(), natsLibevent_Attach, natsLibevent_Read,
                                       natsLibevent_Write, natsLibevent_Detach),
              "event loop");
    // Without a thread that flushes, either.
    check_bus(natsOptions_SetSendAsap(settings, true), "event loop");
}

}  // namespace tarn::fleet
