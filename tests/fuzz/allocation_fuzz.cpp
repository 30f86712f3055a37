// An allocation fails at a point chosen by the input: in one read, or within any calls.
#include <string>

#include "machine.h"

namespace {

using namespace fuzz;

constexpr unsigned prepared = 4, any_calls = 5, onwards = 6, from_document = 7;

// Which allocator fails, and at which request; 0: none.
struct Failure {
    mirk_platform_testing_allocator allocator;
    std::uint64_t nth;
    bool onwards;

    Failure(std::uint8_t byte, bool lasting)
        : allocator(static_cast<mirk_platform_testing_allocator>(byte >> 5U & 3U)), nth(byte % 32), onwards(lasting) {}
    void start(mirk_handle *h) const { mirk_platform_testing_fail_allocation(h, allocator, nth, onwards ? 1 : 0); }
    void end(mirk_handle *h) const { mirk_platform_testing_fail_allocation(h, allocator, 0, 0); }
};

void read_record(Handle &handle, const RecordOperations &record, Input &input, const Failure &failure,
                 const Choice &choice) {
    void *instance = record.create(handle, id);
    if (choice.bit(prepared)) prepare(handle, record, instance, input);
    const auto bytes = input.rest();
    std::uint32_t err = 0;
    const std::uint64_t before = mirk_platform_testing_allocations(handle, failure.allocator);
    if (choice.bit(from_document)) {
        void *document = mirk_platform_document_load_memory(bytes.data(), bytes.size(), nullptr);
        const std::string path = "/" + std::string(record.record->name);
        char words[64];
        failure.start(handle);
        if (document != nullptr) {
            record.from_xml(handle, id, path.c_str(), document, instance, &err, words, sizeof words);
        }
        failure.end(handle);
        mirk_platform_document_free(document);
    } else {
        failure.start(handle);
        record.unmarshal(handle, id, guarded(bytes), instance, static_cast<std::uint32_t>(bytes.size()), 0, &err);
        const bool met = mirk_platform_testing_allocations(handle, failure.allocator) - before >= failure.nth;
        failure.end(handle);
        // Without another allocator's block the read takes another way, or does without.
        const bool reported = failure.allocator == MIRK_PLATFORM_TESTING_OBJ_ALLOC;
        require(!reported || failure.nth == 0 || !met || err != 0, "a failed allocation sets an error");
    }
    mirk_clear_last_error(handle);
    use(handle, record, instance);
    bridge::extract(handle, record, instance);
    // The instance takes the next frame, too.
    err = 0;
    if (choice.bit(prepared) && !choice.bit(from_document)) {
        record.unmarshal(handle, id, guarded(bytes), instance, static_cast<std::uint32_t>(bytes.size()), 0, &err);
        use(handle, record, instance);
    }
    record.destroy(handle, id, instance);
}

void read_message(const Handle &handle, const MessageOperations &message, std::span<const std::uint8_t> bytes,
                  const Failure &failure) {
    void *object = nullptr;
    std::uint32_t err = 0;
    failure.start(handle);
    message.unmarshal_only(handle, id, &object, guarded(bytes), static_cast<std::uint32_t>(bytes.size()), &err);
    failure.end(handle);
    mirk_clear_last_error(handle);
    if (object == nullptr) return;
    use(handle, message, object);
    message.destroy(handle, id, object);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Input input(data, size);
    const Choice choice(input.u8());
    if (choice.bit(any_calls)) {
        Machine(input, choice, true).run();
        return 0;
    }
    Handle handle(options(choice));
    // Elements that were created before the failure are not destroyed.
    if (choice.bit(from_document)) handle.allow_lost_blocks();
    const Root root = fuzz::root(input.u8());
    const Failure failure(input.u8(), choice.bit(onwards));
    if (root.record != nullptr) read_record(handle, *root.record, input, failure, choice);
    if (root.message != nullptr) read_message(handle, *root.message, input.rest(), failure);
    return 0;
}
