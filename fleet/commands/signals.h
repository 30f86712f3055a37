// SIGINT and SIGTERM of a program whose libraries start threads.
#pragma once

#include <csignal>

namespace tarn::fleet {

// Threads that are started during its lifetime do not get the signals either.
class BlockedSignals {
public:
    BlockedSignals() {
        sigemptyset(&signals_);
        sigaddset(&signals_, SIGINT);
        sigaddset(&signals_, SIGTERM);
        pthread_sigmask(SIG_BLOCK, &signals_, &before_);
    }
    BlockedSignals(const BlockedSignals &) = delete;
    BlockedSignals &operator=(const BlockedSignals &) = delete;
    ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

    void wait() const {
        int number = 0;
        sigwait(&signals_, &number);
    }
    // True if one has arrived within this time.
    bool wait_for(double seconds) const {
        const timespec time{static_cast<std::time_t>(seconds),
                            static_cast<long>((seconds - static_cast<double>(static_cast<long>(seconds))) * 1e9)};
        return sigtimedwait(&signals_, nullptr, &time) > 0;
    }

private:
    sigset_t signals_, before_;
};

}  // namespace tarn::fleet
