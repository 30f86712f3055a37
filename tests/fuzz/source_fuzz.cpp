// Frames as text for editors: bytes that are written as text are assembled as they were, and so are the bytes of a text
// that somebody wrote.
#include <utility>

#include "tool_target.h"
#include "tools/tarn/formats/source.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned is_text = 0;

std::string assembled(std::string text) {
    ByteStream stream = stream_of(std::move(text), "input");
    std::string bytes;
    assemble(stream, [&](std::string_view piece) { bytes += piece; });
    return bytes;
}

void there_and_back(const std::string &bytes) {
    std::string text;
    ByteStream stream = stream_of(bytes, "input");
    write_source(stream, [&](std::string_view piece) { text += piece; });
    std::string again;
    const bool is_assembled = fuzz::succeeds([&] { again = assembled(text); });
    require(is_assembled, "text that was written can be assembled");
    require(again == bytes, "bytes that were written as text are assembled as they were");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size);
    const fuzz::Choice choice(input.u8());
    std::string bytes = input.rest_of_text();
    if (choice.bit(is_text) && !fuzz::succeeds([&] { bytes = assembled(bytes); })) return 0;
    there_and_back(bytes);
    return 0;
}
