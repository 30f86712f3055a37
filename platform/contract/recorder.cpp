// The process-wide switch and stream of the recorder, and the messages that could not be recorded.
#include <atomic>

#include "platform/contract/handle.hpp"

namespace {

std::atomic<uint32_t> recording{0};
std::atomic<FILE *> recording_stream{nullptr};
std::atomic<uint64_t> failures{0};
std::atomic<uint32_t> last_failure{0};
thread_local bool skip_next = false;

}  // namespace

namespace mirk {

void skip_next_recording(bool skip) { skip_next = skip; }

void count_recording_failure(uint32_t number) {
    last_failure.store(number);
    failures.fetch_add(1);
}

}  // namespace mirk

extern "C" {

uint32_t mirklib_msg_recorder_get_state(void) { return std::exchange(skip_next, false) ? 0 : recording.load(); }

FILE *mirklib_msg_recorder_get_handle(void) { return recording_stream.load(); }

void mirk_platform_recorder_set(uint32_t on, FILE *stream) {
    // Switched off first and on last, so that no thread sees it on with the previous stream.
    recording.store(0);
    recording_stream.store(stream);
    if (on == 0) return;
    failures.store(0);
    last_failure.store(0);
    recording.store(1);
}

uint64_t mirk_platform_recorder_failures(uint32_t *number) {
    if (number != nullptr) *number = last_failure.load();
    return failures.load();
}

}  // extern "C"
