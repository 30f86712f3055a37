// The receiving side: frames go to the dispatcher, which delivers the messages of a bundle to its handler.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tools/tarn/formats/frames.h"

namespace tarn::tool {

// Where the bundle handler is registered, in the order in which the library tries them.
enum class Via : std::uint8_t { lut, handle, module, bundle, linked };

Via via_named(std::string_view word);
std::vector<std::string> via_words();

class Receiver {
public:
    Receiver(bool tracked, Via via);
    Receiver(const Receiver &) = delete;
    Receiver &operator=(const Receiver &) = delete;
    ~Receiver();

    const Handle &handle() const { return handle_; }

    // Throws a Failure with the report of the dispatcher.
    void feed(const Frame &frame, const std::string &origin);

    // Messages of committed bundles, and messages outside bundles, in order of arrival.
    std::vector<Item> take() { return std::exchange(received_, {}); }
    // Destroys the messages that have arrived, also those of a bundle that is still open.
    void release();
    // The message of a plain frame, read as feed() reads it.
    Item read(const Frame &frame, const std::string &origin) const;
    bool in_bundle() const { return handle_.get()->recv_bundle_open != 0; }
    // Bundles that reached a registered handler; those for the linked-in stub do not count.
    unsigned handled() const { return handled_; }

private:
    static void on_bundle(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, std::uint32_t *err);
    static void on_message(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void *message, std::uint32_t *err);
    void register_types();
    void keep(const Identity &identity, void *object);

    Handle handle_;
    Via via_;
    std::vector<Item> received_;
    unsigned handled_ = 0;
    const Frame *current_ = nullptr;
};

}  // namespace tarn::tool
