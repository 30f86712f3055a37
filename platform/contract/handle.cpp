// Opens, configures and closes handles.
#include "platform/contract/handle.hpp"

#include "platform/contract/options.hpp"

using mirk::Handle;
using mirk::own;

namespace {

constexpr size_t workspace_size = 65536;

void make_empty(mirk_list_head &head) { head.next = head.prev = &head; }

mirk_platform_handle_options default_options() {
    mirk_platform_handle_options options{};
    options.request_ceiling = uint64_t{256} << 20;
    options.total_ceiling = uint64_t{1} << 30;
    options.domain_name = "default";
    options.default_id = 1;
    options.oid_mapping = 1;
    return options;
}

void track(Handle &handle, mirk_platform_tracking tracking) {
    handle.descriptor.sttr_mode = tracking == MIRK_PLATFORM_TRACKING_ON ? mirk::tracking_on : mirk::tracking_off;
    handle.sttr_desc = tracking == MIRK_PLATFORM_TRACKING_NONE ? nullptr : &handle.descriptor;
}

}  // namespace

void Handle::call_hook(mirk_platform_testing_event_kind kind, const void *address, uint64_t size, int64_t value,
                       uint32_t ctx_id) {
    const mirk_platform_testing_event what{kind, const_cast<void *>(address), size, value, ctx_id};
    hook(hook_user, this, &what);
}

extern "C" {

void mirk_platform_handle_options_init_sized(mirk_platform_handle_options *options, size_t size) {
    mirk::initialize_options(options, size, default_options());
}

mirk_handle *mirk_platform_handle_open(const mirk_platform_handle_options *chosen) {
    mirk_platform_handle_options options = default_options();
    if (chosen != nullptr) options = mirk::read_options(chosen, options);
    Handle *opened = nullptr;
    mirk::guarded([&]() -> mirk_platform_error {
        auto handle = std::make_unique<Handle>(!mirk::memory_is_checked());
        handle->workspace = std::make_unique<char[]>(workspace_size + 1);
        handle->domain_text = options.domain_name != nullptr ? options.domain_name : "";
        handle->domain_name = handle->domain_text.c_str();
        handle->private_types = options.private_types;
        handle->request_ceiling = options.request_ceiling;
        handle->total_ceiling = options.total_ceiling;
        handle->lenient = options.epoch_policy == MIRK_PLATFORM_LENIENT_EIDRM;
        handle->bundle_handler = options.bundle_handler;
        handle->default_id = options.default_id;
        handle->message_stamp = options.message_stamp;
        handle->oid_mapping = options.oid_mapping;
        handle->domain.opaque[0] = handle.get();
        make_empty(handle->send_bundle_list);
        make_empty(handle->recv_bundle_list);
        track(*handle, options.tracking);
        mirk::memory_callbacks(*handle);
        mirk::type_store_callbacks(*handle);
        opened = handle.release();
        return 0;
    });
    return opened;
}

size_t mirk_platform_handle_close(mirk_handle *h) {
    if (h == nullptr) return 0;
    std::unique_ptr<Handle> handle(own(h));
    uint32_t err = 0;
    bundle_receive_message_list_destroy(h, h->default_id, &err);
    bundle_send_message_list_destroy(h, h->default_id, &err);
    const size_t left = handle->blocks.size();
    for (void *block : handle->system_blocks) std::free(block);
    return left;
}

void mirk_platform_handle_set_default_id(mirk_handle *h, uint32_t ctx_id) { h->default_id = ctx_id; }

void mirk_platform_handle_set_message_stamp(mirk_handle *h, uint32_t stamp) { h->message_stamp = stamp; }

mirk_platform_error mirk_platform_handle_set_domain_name(mirk_handle *h, const char *name) {
    return mirk::guarded([&]() -> mirk_platform_error {
        own(h)->domain_text = name;
        h->domain_name = own(h)->domain_text.c_str();
        return 0;
    });
}

void mirk_platform_handle_set_oid_mapping(mirk_handle *h, uint32_t oid_mapping) { h->oid_mapping = oid_mapping; }

void mirk_platform_handle_set_bundle_handler(mirk_handle *h, mirk_bundle_handler handler) {
    h->bundle_handler = handler;
}

void mirk_platform_handle_set_epoch_policy(mirk_handle *h, mirk_platform_epoch_policy policy) {
    own(h)->lenient = policy == MIRK_PLATFORM_LENIENT_EIDRM;
}

void mirk_platform_handle_set_suppress_messages(mirk_handle *h, uint32_t enabled) {
    own(h)->suppress_messages = enabled != 0;
}

void mirk_platform_handle_set_tracking(mirk_handle *h, mirk_platform_tracking tracking) { track(*own(h), tracking); }

uint32_t mirklib_suppress_messages_enabled(mirk_handle *h) { return own(h)->suppress_messages ? 1 : 0; }

void mirklib_get_handle_ws(mirk_handle *h, void **buffer, uint32_t *size) {
    *buffer = own(h)->workspace.get();
    *size = workspace_size;
    own(h)->event(MIRK_PLATFORM_TESTING_WORKSPACE, *buffer, *size, 0, 0);
}

// ---- test controls ----

void mirk_platform_testing_set_sttr_mode(mirk_handle *h, uint32_t sttr_mode) {
    own(h)->descriptor.sttr_mode = sttr_mode;
    h->sttr_desc = &own(h)->descriptor;
}

void mirk_platform_testing_fail_operation(mirk_handle *h, mirk_platform_testing_operation operation, uint32_t skip,
                                          uint32_t count, uint32_t number) {
    auto &failure = own(h)->operation_failures.at(static_cast<size_t>(operation));
    failure.skip = skip;
    failure.count = count;
    failure.number = number;
    own(h)->update_unobserved();
}

uint64_t mirk_platform_testing_calls(mirk_handle *h, mirk_platform_testing_operation operation) {
    return own(h)->operation_failures.at(static_cast<size_t>(operation)).calls;
}

void mirk_platform_testing_set_hook(mirk_handle *h, mirk_platform_testing_hook hook, void *user) {
    own(h)->hook = hook;
    own(h)->hook_user = user;
    own(h)->update_unobserved();
}

}  // extern "C"
