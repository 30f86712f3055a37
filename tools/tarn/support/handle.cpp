#include "tools/tarn/support/handle.h"

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

Handle::Handle(bool tracked, std::uint64_t memory_limit) : tracked_(tracked) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = tracked ? MIRK_PLATFORM_TRACKING_ON : MIRK_PLATFORM_TRACKING_NONE;
    if (memory_limit != 0) options.request_ceiling = options.total_ceiling = memory_limit;
    handle_ = mirk_platform_handle_open(&options);
    if (handle_ == nullptr) throw Failure(Exit::environment, "out of memory for a handle");
}

Message Message::create(const Handle &handle, const reflect::MessageOperations &operations) {
    void *object = operations.create(handle.get(), context_id);
    if (object == nullptr) throw Failure(Exit::environment, "out of memory for a message");
    return {handle, operations, object};
}

void *Message::payload() const {
    std::uint32_t err = 0;
    return operations_->payload_get(handle_->get(), context_id, object_, &err);
}

}  // namespace tarn::tool
