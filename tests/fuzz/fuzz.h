// Shared by the fuzz targets: an input that is consumed from its front, the options of handles, and all operations on
// an instance that a hostile peer has filled.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
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

// Prints the text and aborts, so that a fuzzer keeps the input. Prints to the standard error of the start, since
// fuzzers may close it to silence the code under test.
void require(bool holds, const char *words);

// Returns zeros after its end.
class Input {
public:
    Input(const std::uint8_t *data, std::size_t size) : rest_(data, size) {}
    explicit Input(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    bool empty() const { return rest_.empty(); }
    std::uint8_t u8();
    std::uint16_t u16();
    std::uint32_t u32();
    std::uint64_t u64();
    std::span<const std::uint8_t> take(std::size_t size);
    std::span<const std::uint8_t> rest() { return take(rest_.size()); }
    std::string text(std::size_t size);
    std::string rest_of_text() { return text(rest_.size()); }

private:
    std::span<const std::uint8_t> rest_;
};

// Options of a handle from one byte: tracking in bits 0 and 1, then private types, the lenient policy, and three bits
// that the target defines.
struct Choice {
    explicit Choice(std::uint8_t byte) : byte_(byte) {}
    bool bit(unsigned n) const { return (byte_ >> n & 1U) != 0; }
    kit::Tracking tracking() const;

private:
    std::uint8_t byte_;
};

// With little memory. Unless allowed, all blocks must be released when the handle closes.
kit::Options options(const Choice &choice);

// An instance of a record or an enumeration, or a message with its payload: the root of a frame or a document.
struct Root {
    const RecordOperations *record = nullptr;
    const EnumerationOperations *enumeration = nullptr;
    const MessageOperations *message = nullptr;
};
Root root(std::uint8_t number);
std::size_t roots();

// A value of at most two elements to an array and five characters to a string, and of a few hundred bytes.
reference::Record small_value(std::string_view type, bool printable = false);

// What happens to a new instance before it is used, as the next bytes of the input describe it: it is filled, gets RA
// data, refers to an object that waits for its destruction, or the domain gets another variant of its type.
void prepare(Handle &handle, const RecordOperations &record, void *instance, Input &input);

// A folder for files and sockets of this process, removed at its end.
const std::string &scratch_folder();

// Readable bytes with exactly one guard byte; valid until the next call.
std::uint8_t *guarded(std::span<const std::uint8_t> bytes);

// Prints, renders, writes, measures, compares and hashes, into buffers of that many bytes.
void use(mirk_handle *h, const RecordOperations &record, void *instance, std::uint32_t size = 4096);
void use(mirk_handle *h, const EnumerationOperations &enumeration, void *instance, std::uint32_t size = 4096);
void use(mirk_handle *h, const MessageOperations &message, void *object, std::uint32_t size = 4096);

// The frame of an instance, written to a buffer of ample size.
bridge::Marshalled write(mirk_handle *h, const RecordOperations &record, void *instance);

}  // namespace fuzz
