// An allocation fails at a point chosen by the input: in one read, which must leave no block, or within any calls.
#include <string>

#include "machine.h"

namespace {

using namespace fuzz;

constexpr unsigned any_calls_bit = 5, onwards_bit = 6, document_bit = 7;

void fail(mirk_handle *h, std::uint64_t nth, bool onwards) {
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, nth, onwards ? 1 : 0);
}

void read_record(const Handle &handle, const RecordOperations &record, std::span<const std::uint8_t> bytes,
                 std::uint64_t nth, const Choice &choice) {
    void *instance = record.create(handle, id);
    std::uint32_t err = 0;
    const std::uint64_t before = mirk_platform_testing_allocations(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC);
    if (choice.bit(document_bit)) {
        void *document = mirk_platform_document_load_memory(bytes.data(), bytes.size(), nullptr);
        const std::string path = "/" + std::string(record.record->name);
        char words[64];
        fail(handle, nth, choice.bit(onwards_bit));
        if (document != nullptr) {
            record.from_xml(handle, id, path.c_str(), document, instance, &err, words, sizeof words);
        }
        mirk_platform_document_free(document);
    } else {
        fail(handle, nth, choice.bit(onwards_bit));
        record.unmarshal(handle, id, guarded(bytes), instance, static_cast<std::uint32_t>(bytes.size()), 0, &err);
        const bool met = mirk_platform_testing_allocations(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC) - before >= nth;
        require(nth == 0 || !met || err != 0, "a failed allocation sets an error");
    }
    fail(handle, 0, false);
    mirk_clear_last_error(handle);
    use(handle, record, instance);
    bridge::extract(handle, record, instance);
    record.destroy(handle, id, instance);
}

void read_message(const Handle &handle, const MessageOperations &message, std::span<const std::uint8_t> bytes,
                  std::uint64_t nth, const Choice &choice) {
    void *object = nullptr;
    std::uint32_t err = 0;
    fail(handle, nth, choice.bit(onwards_bit));
    message.unmarshal_only(handle, id, &object, guarded(bytes), static_cast<std::uint32_t>(bytes.size()), &err);
    fail(handle, 0, false);
    mirk_clear_last_error(handle);
    if (object == nullptr) return;
    use(handle, message, object);
    message.destroy(handle, id, object);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Input input(data, size);
    const Choice choice(input.u8());
    if (choice.bit(any_calls_bit)) {
        Machine(input, choice, true).run();
        return 0;
    }
    Handle handle(options(choice));
    // Elements that were created before the failure are not destroyed.
    if (choice.bit(document_bit)) handle.allow_lost_blocks();
    const Root root = fuzz::root(input.u8());
    const std::uint64_t nth = input.u8() % 32;
    if (root.record != nullptr) read_record(handle, *root.record, input.rest(), nth, choice);
    if (root.message != nullptr) read_message(handle, *root.message, input.rest(), nth, choice);
    return 0;
}
