// A frame of any root, read into a new instance or into one that was used before.
#include "fuzz.h"

namespace {

using namespace fuzz;

constexpr unsigned occupied = 4, reuse = 5, clean_second = 6, prepared = 7;

void read_record(const Choice &choice, const RecordOperations &record, Input &input) {
    Handle handle(options(choice));
    void *instance = record.create(handle, id);
    if (choice.bit(prepared)) prepare(handle, record, instance, input);
    const auto frame = input.rest();
    const auto size = static_cast<std::uint32_t>(frame.size());
    std::uint32_t err = 0;
    if (choice.bit(occupied)) {
        // Read twice, since losing blocks of a filled instance is part of the behavior.
        handle.allow_lost_blocks();
        record.unmarshal(handle, id, guarded(frame), instance, size, 0, &err);
        err = 0;
    }
    record.unmarshal(handle, id, guarded(frame), instance, size, choice.bit(reuse) ? 1 : 0, &err);
    mirk_clear_last_error(handle);
    use(handle, record, instance);
    mirk_platform_domain_clear(handle);
    const bridge::Marshalled written = write(handle, record, instance);
    if (err == 0 && written.error == 0) {
        void *again = record.create(handle, id);
        std::uint32_t error = 0;
        record.unmarshal(handle, id, guarded(written.bytes), again, static_cast<std::uint32_t>(written.bytes.size()), 0,
                         &error);
        if (error == 0 && choice.bit(prepared)) {
            // What an instance without a body contained before is not sent.
            const reference::Record sent =
                reference::as_received(bridge::extract(handle, record, instance), handle.tracks());
            require(bridge::same(sent, bridge::extract(handle, record, again)), "what was written reads back as sent");
        } else if (error == 0) {
            require(record.compare(instance, again) == 0, "what was written reads back as it was");
            require(record.hash(instance, 5) == record.hash(again, 5), "what is equal hashes alike");
        }
        std::uint32_t assigned = 0;
        void *third = record.create(handle, id);
        if (third != nullptr) record.set(handle, id, third, again, &assigned);
        if (third != nullptr) record.destroy(handle, id, third);
        if (again != nullptr) record.destroy(handle, id, again);
    }
    void *copy = record.clone_cr(handle, instance);
    if (copy != nullptr) {
        use(handle, record, copy, 256);
        record.destroy(handle, id, copy);
    }
    mirk_clear_last_error(handle);
    std::uint32_t word = 0;
    record.type_type_backpropagate(handle, id, instance, &word);
    bridge::extract(handle, record, instance);
    record.destroy(handle, id, instance);
}

void read_enumeration(const Choice &choice, const EnumerationOperations &enumeration,
                      std::span<const std::uint8_t> frame) {
    const Handle handle(options(choice));
    void *instance = enumeration.create(handle, id);
    std::uint32_t err = 0;
    enumeration.unmarshal(handle, id, guarded(frame), instance, static_cast<std::uint32_t>(frame.size()),
                          choice.bit(reuse) ? 1 : 0, &err);
    use(handle, enumeration, instance);
    enumeration.destroy(handle, id, instance);
}

void read_message(const Choice &choice, const MessageOperations &message, std::span<const std::uint8_t> frame) {
    Handle handle(options(choice));
    const auto size = static_cast<std::uint32_t>(frame.size());
    void *object = nullptr;
    std::uint32_t err = 0;
    message.unmarshal_only(handle, id, &object, guarded(frame), size, &err);
    if (object != nullptr) {
        use(handle, message, object);
        message.destroy(handle, id, object);
    }
    if (!choice.bit(clean_second)) return;
    // The delivering operation does not release the message of a bad frame.
    err = 0;
    handle.allow_lost_blocks();
    static const mirk_message_handler end = [](mirk_handle *h, std::uint32_t ctx_id, void *context, void *received,
                                               std::uint32_t *) {
        static_cast<const MessageOperations *>(context)->destroy(h, ctx_id, received);
    };
    message.unmarshal(handle, id, const_cast<MessageOperations *>(&message), nullptr, guarded(frame), size, end, &err);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Input input(data, size);
    const Root root = fuzz::root(input.u8());
    const Choice choice(input.u8());
    if (root.record != nullptr) read_record(choice, *root.record, input);
    if (root.enumeration != nullptr) read_enumeration(choice, *root.enumeration, input.rest());
    if (root.message != nullptr) read_message(choice, *root.message, input.rest());
    return 0;
}
