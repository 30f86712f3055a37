// The frames of an answer until it is complete. Memory is bounded: a large answer is kept in a temporary file without a
// name.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "tools/tarn/formats/frames.h"

namespace tarn::tool {

class Spool {
public:
    // Throws a Failure if the file cannot be written.
    void append(FrameBytes frame);
    // Calls `each` with every frame, in order. The bytes are valid until it returns.
    void for_each(const std::function<void(FrameBytes)> &each);

private:
    static constexpr std::size_t most_in_memory = std::size_t{1} << 20;

    struct Close {
        void operator()(FILE *file) const { std::fclose(file); }
    };
    void move_to_file();

    std::string pieces_;  // not in the file: the length of each frame, and its bytes
    std::unique_ptr<FILE, Close> file_;
};

}  // namespace tarn::tool
