// Owners of objects that the runtime and the library allocate: handles, messages, parsed documents.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "mirk_platform.h"
#include "tools/reflect/operations.h"

namespace tarn::tool {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::uint32_t context_id = 1;

class Handle {
public:
    // `memory_limit` is in bytes; 0 means the defaults of the runtime.
    explicit Handle(bool tracked, std::uint64_t memory_limit = 0);
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;
    ~Handle() { mirk_platform_handle_close(handle_); }

    mirk_handle *get() const { return handle_; }
    bool tracked() const { return tracked_; }
    bool reached_memory_limit() const { return mirk_platform_ceiling_refusals(handle_) != 0; }

private:
    mirk_handle *handle_;
    bool tracked_;
};

// Whether messages are created with per-field state: like the input, never or always.
enum class Tracking : std::uint8_t { as_input, off, on };

// A handle with and one without tracking, since an object belongs to the handle that created it.
class Handles {
public:
    explicit Handles(Tracking tracking, std::uint64_t memory_limit = 0)
        : tracking_(tracking), plain_(false, memory_limit), tracked_(true, memory_limit) {}

    bool reached_memory_limit() const { return plain_.reached_memory_limit() || tracked_.reached_memory_limit(); }

    const Handle &choose(bool input_tracked) const {
        const bool tracked = tracking_ == Tracking::as_input ? input_tracked : tracking_ == Tracking::on;
        return tracked ? tracked_ : plain_;
    }

private:
    Tracking tracking_;
    Handle plain_, tracked_;
};

// A plain message with its payload. The handle must outlive it.
class Message {
public:
    Message(const Handle &handle, const reflect::MessageOperations &operations, void *object)
        : handle_(&handle), operations_(&operations), object_(object) {}
    Message(Message &&other) noexcept
        : handle_(other.handle_), operations_(other.operations_), object_(std::exchange(other.object_, nullptr)) {}
    Message &operator=(Message &&other) noexcept {
        std::swap(handle_, other.handle_);
        std::swap(operations_, other.operations_);
        std::swap(object_, other.object_);
        return *this;
    }
    ~Message() { operations_->destroy(handle_->get(), context_id, object_); }

    static Message create(const Handle &handle, const reflect::MessageOperations &operations);

    const Handle &handle() const { return *handle_; }
    const reflect::MessageOperations &operations() const { return *operations_; }
    const reflect::RecordOperations &record() const { return reflect::operations_of(operations_->message->payload); }
    void *object() const { return object_; }
    void *payload() const;

private:
    const Handle *handle_;
    const reflect::MessageOperations *operations_;
    void *object_;
};

struct DocumentRelease {
    void operator()(void *document) const { mirk_platform_document_free(document); }
};
using Document = std::unique_ptr<void, DocumentRelease>;

}  // namespace tarn::tool
