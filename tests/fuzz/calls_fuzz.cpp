// A state machine of calls on one handle.
#include "machine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input(data, size);
    const fuzz::Choice choice(input.u8());
    fuzz::Machine(input, choice, false).run();
    return 0;
}
