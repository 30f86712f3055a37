// What the fuzz targets share: an input that is taken apart from its front, the options of handles, and everything that
// can be done with what a hostile peer made.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "bridge/bridge.h"
#include "kit/guarded.h"
#include "lumo_ui_tarn.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz {

using bridge::id;
using bridge::RecordOperations;
using kit::Handle;
using reference::Bytes;
using tarn::reflect::EnumerationOperations;
using tarn::reflect::MessageOperations;

// Ends the process with the words, so that a fuzzer keeps the input.
void require(bool holds, const char *words);

// Behind its end it gives zeros.
class Input {
public:
    Input(const std::uint8_t *data, std::size_t size) : rest_(data, size) {}

    bool empty() const { return rest_.empty(); }
    std::uint8_t u8();
    std::uint16_t u16();
    std::uint32_t u32();
    std::uint64_t u64();
    std::span<const std::uint8_t> take(std::size_t size);
    std::span<const std::uint8_t> rest() { return take(rest_.size()); }

private:
    std::span<const std::uint8_t> rest_;
};

// How a handle is made, from one byte: tracking in bits 0 and 1, then types of its own, a lenient runtime, and three
// bits that the target gives a meaning.
struct Choice {
    explicit Choice(std::uint8_t byte) : byte_(byte) {}
    bool bit(unsigned n) const { return (byte_ >> n & 1U) != 0; }
    kit::Tracking tracking() const;

private:
    std::uint8_t byte_;
};

// With little memory. A handle that is made with these requires that nothing is left on it, unless told otherwise.
kit::Options options(const Choice &choice);

// An instance of a record or an enumeration, or a message with its payload: what stands at the front of a frame or a
// document.
struct Root {
    const RecordOperations *record = nullptr;
    const EnumerationOperations *enumeration = nullptr;
    const MessageOperations *message = nullptr;
};
Root root(std::uint8_t number);
std::size_t roots();

// Readable bytes with exactly one byte of slack; valid until the next call.
std::uint8_t *guarded(std::span<const std::uint8_t> bytes);

// Prints, renders, writes, measures, compares and hashes, into buffers of that many bytes.
void use(mirk_handle *h, const RecordOperations &record, void *instance, std::uint32_t size = 4096);
void use(mirk_handle *h, const EnumerationOperations &enumeration, void *instance, std::uint32_t size = 4096);
void use(mirk_handle *h, const MessageOperations &message, void *object, std::uint32_t size = 4096);

// The frame of an instance, with room to spare.
bridge::Marshalled write(mirk_handle *h, const RecordOperations &record, void *instance);

}  // namespace fuzz
