// Frames as text for editors: bytes that are written as text are assembled as they were, and so are the bytes of a text
// that somebody wrote.
#include "fuzz.h"
#include "tools/tarn/formats/source.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/trace.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned is_text = 0;

void there_and_back(const std::string &bytes) {
    std::string text;
    write_source(bytes_of(bytes), [&](std::string_view piece) { text += piece; });
    std::string again;
    try {
        again = assemble(text, "output");
    } catch (const Failure &) {
        require(false, "text that was written can be assembled");
    }
    require(again == bytes, "bytes that were written as text are assembled as they were");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const bool set_up = (set_up_trace(false), mirk_platform_trace_set_levels(1), true);
    require(set_up, "the trace is set up");
    fuzz::Input input(data, size);
    const fuzz::Choice choice(input.u8());
    const auto rest = input.rest();
    std::string bytes(rest.begin(), rest.end());
    try {
        if (choice.bit(is_text)) bytes = assemble(bytes, "input");
    } catch (const Failure &failure) {
        require(failure.what()[0] != 0, "a failure has a sentence");
        return 0;
    }
    there_and_back(bytes);
    return 0;
}
