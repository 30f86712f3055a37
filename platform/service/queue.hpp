// What is queued for peers, and the memory that it takes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>

namespace mirk {

// Complete frames that wait to be sent. Those of mirk_platform_server_send_shared() may be queued for several peers.
struct Chunk {
    std::shared_ptr<const char> bytes;
    size_t size;
    bool shared;
};

// The memory of chunks: shared bytes count once, and each chunk costs its entry in the queue.
class Held {
public:
    static constexpr uint64_t entry_cost = 128;

    uint64_t bytes() const { return bytes_; }
    // How much bytes() grows if the chunk is added.
    uint64_t cost(const Chunk &chunk) const {
        return entry_cost + (chunk.shared && queued_.contains(key(chunk)) ? 0 : chunk.size);
    }
    void add(const Chunk &chunk) {
        const uint64_t added = cost(chunk);
        if (chunk.shared) ++queued_[key(chunk)];
        bytes_ += added;
    }
    void remove(const Chunk &chunk) {
        if (chunk.shared) {
            const auto found = queued_.find(key(chunk));
            if (--found->second == 0) queued_.erase(found);
        }
        bytes_ -= cost(chunk);
    }

private:
    using Key = std::pair<const char *, size_t>;
    static Key key(const Chunk &chunk) { return {chunk.bytes.get(), chunk.size}; }

    uint64_t bytes_ = 0;
    std::map<Key, size_t> queued_;  // how often shared bytes are queued
};

}  // namespace mirk
