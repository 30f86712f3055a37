#include "tools/tarn/formats/frame_writer.h"

#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/message.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

// A bundle is open on one handle, so its control messages are written through the handle of its messages.
class FrameWriter {
public:
    FrameWriter(const Handles &handles, std::uint32_t stamp) : handles_(handles), stamp_(stamp) {}

    void add(const Item &item, bool tracked) {
        const Handle &handle = handles_.choose(tracked);
        mirk_platform_handle_set_message_stamp(handle.get(), stamp_);
        try {
            frames_ += chars_of(frame_of(handle, *item.identity.operations, item.object()));
        } catch (const Failure &failure) {
            close();
            // The library reports ENOENT.
            if (open_ != nullptr && !item.identity.is_control() && !admits(*open_, *item.identity.operations)) {
                throw Failure(Exit::input, not_admitted(item.location, *open_, *item.identity.operations));
            }
            throw Failure(failure.exit(), item.location + ": " + failure.what());
        }
        if (item.identity.is_control()) {
            open_ = item.identity.control == Control::start ? item.identity.bundle : nullptr;
        }
    }
    const std::string &finish(const std::string &origin) {
        if (close()) throw Failure(Exit::input, origin + ": ends inside a bundle");
        return frames_;
    }

private:
    bool close() {
        bool was_open = false;
        for (const bool tracked : {false, true}) {
            mirk_handle *h = handles_.choose(tracked).get();
            std::uint32_t err = 0;
            if (h->send_bundle_open == 0) continue;
            bundle_send_message_list_destroy(h, context_id, &err);
            was_open = true;
        }
        return was_open;
    }

    const Handles &handles_;
    std::uint32_t stamp_;
    const reflect::BundleOperations *open_ = nullptr;
    std::string frames_;
};

bool is_tracked(const Item &item) { return item.message && item.message->handle().tracked(); }

}  // namespace

std::string frames_of(const Handles &handles, const std::vector<Item> &items, const std::string &origin,
                      const reflect::BundleOperations *bundle, std::uint32_t stamp) {
    // All messages go through one handle, since a bundle is open on one handle only.
    bool tracked = false;
    for (const Item &item : items) tracked = tracked || is_tracked(item);
    for (const Item &item : items) {
        if (item.message && is_tracked(item) != tracked) {
            throw Failure(Exit::input,
                          item.location + ": messages with and without per-field state cannot be mixed; use --tracked");
        }
    }
    FrameWriter writer(handles, stamp);
    const auto control = [&](Control c) { writer.add({identity_of(*bundle, c), std::nullopt, origin}, tracked); };
    if (bundle != nullptr) control(Control::start);
    for (const Item &item : items) writer.add(item, tracked);
    if (bundle != nullptr) control(Control::commit);
    return writer.finish(origin);
}

}  // namespace tarn::tool
