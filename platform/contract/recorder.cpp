// The process-wide switch and stream of the recorder.
#include <atomic>

#include "platform/contract/handle.hpp"

namespace {

std::atomic<uint32_t> recording{0};
std::atomic<FILE *> recording_stream{nullptr};
thread_local bool skip_next = false;

}  // namespace

namespace mirk {

void skip_next_recording(bool skip) { skip_next = skip; }

}  // namespace mirk

extern "C" {

uint32_t mirklib_msg_recorder_get_state(void) { return std::exchange(skip_next, false) ? 0 : recording.load(); }

FILE *mirklib_msg_recorder_get_handle(void) { return recording_stream.load(); }

void mirk_platform_recorder_set(uint32_t on, FILE *stream) {
    // Switched off first and on last, so that no thread sees it on with the previous stream.
    recording.store(0);
    recording_stream.store(stream);
    recording.store(on != 0 ? 1 : 0);
}

}  // extern "C"
