#include "fleet/bus/event_loop.h"

#include <event2/event.h>
#include <nats/adapters/libevent.h>

#include <new>

#include "fleet/bus/connection.h"

namespace tarn::fleet {

namespace {

// On a new socket, the adapter's function frees the events of the old one, and waits until they are not in work. But
// the thread that reconnects holds a lock of the connection, for which the work may wait.
natsStatus attach(void **data, void *loop, natsConnection *connection, natsSock socket) {
    if (auto *events = static_cast<natsLibeventEvents *>(*data)) {
        for (event **old : {&events->read, &events->write}) {
            if (*old != nullptr) event_free_finalize(0, *old, [](event *, void *) {});
            *old = nullptr;
        }
    }
    return natsLibevent_Attach(data, loop, connection, socket);
}

}  // namespace

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
    check_bus(natsOptions_SetEventLoop(settings, base_.get(), attach, natsLibevent_Read, natsLibevent_Write,
                                       natsLibevent_Detach),
              "event loop");
    // Without a thread that flushes, either.
    check_bus(natsOptions_SetSendAsap(settings, true), "event loop");
}

}  // namespace tarn::fleet
