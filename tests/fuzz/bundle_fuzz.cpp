// A stream of frames through the dispatcher, with each kind of receiver.
#include <cstdio>

#include "fuzz.h"

namespace {

using namespace fuzz;

constexpr unsigned recorded_bit = 4, linked_handler_bit = 5, takes_nothing_bit = 6, for_the_module_bit = 7;

struct Receiver {
    bool takes_messages;
};

const MessageOperations &operations_of(const std::uint8_t *luid) {
    for (const MessageOperations &m : tarn::reflect::messages()) {
        if (std::equal(luid, luid + 16, m.luid)) return m;
    }
    std::abort();
}

// A bundle's messages: some are read and destroyed, some are left to the dispatcher.
extern "C" void on_bundle(mirk_handle *h, std::uint32_t ctx_id, void *context, std::uint32_t *) {
    if (context == nullptr || !static_cast<Receiver *>(context)->takes_messages) return;
    while (mirk_platform_received *item = mirk_platform_received_first(h)) {
        const MessageOperations &message = operations_of(mirk_platform_received_luid(item));
        void *object = mirk_platform_received_detach(h, item);
        use(h, message, object, 512);
        message.destroy(h, ctx_id, object);
    }
}

template <std::size_t I>
void on_message(mirk_handle *h, std::uint32_t ctx_id, void *, void *message, std::uint32_t *) {
    const MessageOperations &operations = tarn::reflect::messages()[I];
    use(h, operations, message, 512);
    operations.destroy(h, ctx_id, message);
}

template <std::size_t... I>
void enlist(mirk_handle *h, bool with_handlers, std::index_sequence<I...>) {
    const mirk_message_handler handlers[] = {on_message<I>...};
    for (std::size_t i = 0; i < tarn::reflect::messages().size(); ++i) {
        const MessageOperations &m = tarn::reflect::messages()[i];
        const mirk_platform_message entry{m.luid,           m.name,    m.unmarshal,
                                          m.unmarshal_only, m.destroy, with_handlers ? handlers[i] : nullptr};
        mirk_platform_dispatch_register(h, &entry);
    }
    for (const tarn::reflect::BundleOperations &b : tarn::reflect::bundles()) {
        for (const MessageOperations *m : {&b.start, &b.abort, &b.commit}) {
            const mirk_platform_message entry{m->luid, m->name, m->unmarshal, nullptr, nullptr, nullptr};
            mirk_platform_dispatch_register(h, &entry);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    constexpr std::size_t messages = 10;
    require(tarn::reflect::messages().size() == messages, "each message has a handler here");
    static FILE *nowhere = std::fopen("/dev/null", "w");
    Input input(data, size);
    const Choice choice(input.u8());
    Receiver receiver{!choice.bit(takes_nothing_bit)};
    {
        const Handle handle(options(choice));
        enlist(handle, !choice.bit(linked_handler_bit), std::make_index_sequence<messages>{});
        if (choice.bit(for_the_module_bit)) {
            lumo_ui_tarn_bundle_handler_register(on_bundle);
        } else {
            mirk_platform_handle_set_bundle_handler(handle, on_bundle);
        }
        mirk_platform_recorder_set(choice.bit(recorded_bit) ? 1 : 0, nowhere);
        const auto frames = input.rest();
        mirk_platform_report report;
        mirk_platform_dispatch(handle, id, guarded(frames), static_cast<std::uint32_t>(frames.size()), &receiver,
                               &report);
        mirk_platform_recorder_set(0, nullptr);
    }
    if (choice.bit(for_the_module_bit)) lumo_ui_tarn_bundle_handler_unregister();
    return 0;
}
