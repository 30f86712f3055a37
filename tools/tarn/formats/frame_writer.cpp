#include "tools/tarn/formats/frame_writer.h"

#include <utility>

#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/message.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

FrameWriter::FrameWriter(const Handles &handles, const reflect::BundleOperations *bundle, std::uint32_t stamp,
                         std::function<void(std::string_view)> write)
    : handles_(handles), enclosing_(bundle), stamp_(stamp), write_(std::move(write)) {
    if (bundle != nullptr) held_.push_back({identity_of(*bundle, Control::start), std::nullopt, {}});
}

void FrameWriter::choose(bool tracked) {
    handle_ = &handles_.choose(tracked);
    mirk_platform_handle_set_message_stamp(handle_->get(), stamp_);
    for (const Item &control : std::exchange(held_, {})) write(control);
}

void FrameWriter::add(const Item &item) {
    if (handle_ == nullptr && !item.message) {
        held_.push_back({item.identity, std::nullopt, item.location});
        return;
    }
    if (handle_ == nullptr) choose(item.message->handle().tracked());
    if (item.message && &item.message->handle() != handle_) {
        throw Failure(Exit::input,
                      item.location + ": messages with and without per-field state cannot be mixed; use --tracked");
    }
    write(item);
}

void FrameWriter::write(const Item &item) {
    Bytes frame;
    try {
        frame = frame_of(*handle_, *item.identity.operations, item.object());
    } catch (const Failure &failure) {
        // The library reports ENOENT.
        if (open_ != nullptr && !item.identity.is_control() && !admits(*open_, *item.identity.operations)) {
            throw Failure(Exit::input, not_admitted(item.location, *open_, *item.identity.operations));
        }
        throw Failure(failure.exit(), item.location + ": " + failure.what());
    }
    ready_ += chars_of(frame);
    if (item.identity.is_control()) {
        open_ = item.identity.control == Control::start ? item.identity.bundle : nullptr;
    }
    // The start of a bundle waits for what follows, which may be refused.
    const bool is_start = item.identity.is_control() && open_ != nullptr;
    if (!is_start) write_(std::exchange(ready_, {}));
}

void FrameWriter::finish(const std::string &origin) {
    if (handle_ == nullptr) choose(false);
    if (enclosing_ != nullptr) write({identity_of(*enclosing_, Control::commit), std::nullopt, origin});
    if (close()) throw Failure(Exit::input, origin + ": ends inside a bundle");
}

// True if a bundle was open.
bool FrameWriter::close() {
    if (handle_ == nullptr || handle_->get()->send_bundle_open == 0) return false;
    std::uint32_t err = 0;
    bundle_send_message_list_destroy(handle_->get(), context_id, &err);
    return true;
}

std::string frames_of(const Handles &handles, const std::vector<Item> &items, const std::string &origin) {
    std::string frames;
    FrameWriter writer(handles, nullptr, 0, [&](std::string_view frame) { frames += frame; });
    for (const Item &item : items) writer.add(item);
    writer.finish(origin);
    return frames;
}

}  // namespace tarn::tool
