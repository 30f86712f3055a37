// Compares the library with the codec of the tests, which was written from the tables alone.
#include <cstdio>
#include <cstdlib>

#include "fuzz.h"
#include "reference/lengths.h"
#include "reference/text.h"

namespace {

using namespace fuzz;
using reference::Record;

constexpr unsigned generated_bit = 4, strange_bit = 5;

void require_same(const testing::AssertionResult &result) {
    if (result) return;
    std::fprintf(stderr, "differs: %s\n", result.message());
    std::abort();
}

struct Text {
    std::string text;
    std::uint32_t error = 0;
};
template <class Call>
Text text_of(Call &&call) {
    Text result{std::string(1U << 17, '\0')};
    const std::uint32_t size = call(result.text.data(), static_cast<std::int32_t>(result.text.size()), &result.error);
    require(size < result.text.size(), "a text fits");
    result.text.resize(size);
    return result;
}

// The codec must write the same frame and texts as the library.
void hold_against(mirk_handle *h, bool tracks, const RecordOperations &record, void *instance, const Record &value) {
    const bridge::Marshalled written = write(h, record, instance);
    require(written.error == 0, "a value is written without an error");
    require_same(bridge::same(reference::encode(value, tracks), written.bytes));
    require(record.len(h, id, instance) == reference::length(value, tracks), "lengths agree");
    const Text printed = text_of([&](char *to, std::int32_t size, std::uint32_t *err) {
        return record.print(h, id, to, 0, "o", instance, size, err);
    });
    require(printed.error == 0 && printed.text == reference::print(value, "o"), "texts agree");
    const Text rendered = text_of([&](char *to, std::int32_t size, std::uint32_t *err) {
        return record.to_xml(h, id, "o", to, instance, size, 0, err);
    });
    require(rendered.error == 0 && rendered.text == reference::to_xml(value, "o", tracks), "documents agree");
    require_same(bridge::same(value, bridge::extract(h, record, instance)));
}

// Bytes that the codec can read, the library must read to the same value.
void bytes(const Choice &choice, const RecordOperations &record, std::span<const std::uint8_t> frame) {
    const Handle handle(options(choice));
    for (const bool tracked : {false, true}) {
        const reference::Decoded decoded = reference::decode(record.record->name, frame, tracked);
        if (!decoded.value) continue;
        void *instance = record.create(handle, id);
        std::uint32_t err = 0;
        const std::uint32_t consumed = record.unmarshal(handle, id, guarded(frame.first(decoded.consumed)), instance,
                                                        static_cast<std::uint32_t>(decoded.consumed), 0, &err);
        require(err == 0, "a good frame is read without an error");
        require(consumed == decoded.consumed, "a valid frame is read to its end");
        const Record expected = reference::as_received(*decoded.value, tracked && handle.tracks());
        require_same(bridge::same(expected, bridge::extract(handle, record, instance)));
        record.destroy(handle, id, instance);
    }
}

// Values chosen by the input, set through accessors, written and read.
void generated(const Choice &choice, const RecordOperations &record, Input &input) {
    const Handle handle(options(choice));
    const std::uint64_t seed = input.u64();
    const auto elements = input.u8() % 5U, text = input.u8() % 60U;
    reference::Generator generator(seed, {.min_elements = elements / 2,
                                          .max_elements = elements,
                                          .min_text = 0,
                                          .max_text = text,
                                          .budget = 2048,
                                          .states = handle.tracks(),
                                          .strange = choice.bit(strange_bit)});
    const Record value = generator.make(record.record->name);
    void *instance = record.create(handle, id);
    bridge::fill(handle, record, instance, value);
    hold_against(handle, handle.tracks(), record, instance, value);
    // Read on a handle of any kind.
    const Bytes frame = reference::encode(value, handle.tracks());
    record.destroy(handle, id, instance);
    const Handle peer(options(Choice(input.u8())));
    void *received = record.create(peer, id);
    std::uint32_t err = 0;
    record.unmarshal(peer, id, guarded(frame), received, static_cast<std::uint32_t>(frame.size()), 0, &err);
    require(err == 0, "a good frame is read without an error");
    require_same(bridge::same(reference::as_received(value, handle.tracks() && peer.tracks()),
                              bridge::extract(peer, record, received)));
    record.destroy(peer, id, received);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Input input(data, size);
    const RecordOperations &record = tarn::reflect::records()[input.u8() % tarn::reflect::records().size()];
    const Choice choice(input.u8());
    if (choice.bit(generated_bit)) {
        generated(choice, record, input);
    } else {
        bytes(choice, record, input.rest());
    }
    return 0;
}
