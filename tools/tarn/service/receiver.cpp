#include "tools/tarn/service/receiver.h"

#include <algorithm>
#include <cerrno>

#include "lumo_ui_tarn.h"
#include "tools/tarn/formats/message.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

Via via_named(std::string_view word) {
    const std::vector<std::string> words = via_words();
    return static_cast<Via>(std::find(words.begin(), words.end(), word) - words.begin());
}

std::vector<std::string> via_words() { return {"lut", "handle", "module", "bundle", "linked"}; }

Receiver::Receiver(bool tracked, Via via) : handle_(tracked), via_(via) { register_types(); }

Receiver::~Receiver() {
    received_.clear();
    if (via_ == Via::module) lumo_ui_tarn_bundle_handler_unregister();
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        if (via_ == Via::bundle) b.unregister_handler();
    }
}

void Receiver::register_types() {
    for (const reflect::MessageOperations &o : reflect::messages()) {
        const mirk_platform_message entry{o.luid, o.name, o.unmarshal, o.unmarshal_only, o.destroy, on_message};
        mirk_platform_dispatch_register(handle_.get(), &entry);
    }
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        for (const Control control : controls) {
            const reflect::MessageOperations &o = operations_of(b, control);
            const mirk_platform_message entry{o.luid, o.name, o.unmarshal, nullptr, nullptr, nullptr};
            mirk_platform_dispatch_register(handle_.get(), &entry);
        }
        if (via_ == Via::lut) mirk_platform_dispatch_set_bundle_handler(handle_.get(), b.commit.luid, on_bundle);
        if (via_ == Via::bundle) b.register_handler(on_bundle);
    }
    if (via_ == Via::handle) mirk_platform_handle_set_bundle_handler(handle_.get(), on_bundle);
    if (via_ == Via::module) lumo_ui_tarn_bundle_handler_register(on_bundle);
}

void Receiver::keep(const Identity &identity, void *object) {
    received_.push_back({identity, Message(handle_, *identity.operations, object), {}});
}

void Receiver::on_bundle(mirk_handle *h, std::uint32_t, void *dispatch_ctx, std::uint32_t *) {
    auto *self = static_cast<Receiver *>(dispatch_ctx);
    ++self->handled_;
    while (mirk_platform_received *item = mirk_platform_received_first(h)) {
        const Identity identity = *identify(mirk_platform_received_luid(item));
        self->keep(identity, mirk_platform_received_detach(h, item));
    }
}

void Receiver::on_message(mirk_handle *, std::uint32_t, void *dispatch_ctx, void *message, std::uint32_t *) {
    auto *self = static_cast<Receiver *>(dispatch_ctx);
    self->keep(self->current_->identity, message);
}

void Receiver::feed(const Frame &frame, const std::string &origin) {
    try {
        require_admitted(handle_, *frame.identity.operations, frame.bytes);
    } catch (const Failure &failure) {
        throw Failure(failure.exit(), frame_location(origin, frame.offset) + ": " + failure.what());
    }
    Bytes buffer(frame.bytes.begin(), frame.bytes.end());
    buffer.push_back(0);
    current_ = &frame;
    mirk_platform_report report;
    const mirk_platform_error error = mirk_platform_dispatch(
        handle_.get(), context_id, buffer.data(), static_cast<std::uint32_t>(frame.bytes.size()), this, &report);
    current_ = nullptr;
    if (error != 0) {
        throw Failure(Exit::input,
                      frame_location(origin, frame.offset) + ": " + report.sentence + " (" + error_name(error) + ")");
    }
}

void Receiver::release() {
    received_.clear();
    while (mirk_platform_received *item = mirk_platform_received_first(handle_.get())) {
        const Identity identity = *identify(mirk_platform_received_luid(item));
        const Message released(handle_, *identity.operations, mirk_platform_received_detach(handle_.get(), item));
    }
}

Item Receiver::read(const Frame &frame, const std::string &origin) const {
    Bytes buffer(frame.bytes.begin(), frame.bytes.end());
    buffer.push_back(0);
    void *object = nullptr;
    std::uint32_t err = 0;
    const reflect::MessageOperations &operations = *frame.identity.operations;
    operations.unmarshal_only(handle_.get(), context_id, &object, buffer.data(),
                              static_cast<std::uint32_t>(frame.bytes.size()), &err);
    Item item{frame.identity, Message(handle_, operations, object), frame_location(origin, frame.offset)};
    if (err == 0 && object == nullptr) err = ENOMEM;
    if (err != 0) throw Failure(exit_of(err), item.location + ": " + operations.name + ": " + error_text(err));
    return item;
}

}  // namespace tarn::tool
