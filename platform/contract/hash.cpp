// The function behind every hash. The result depends only on data, length and seed, not on the host, so equal values
// have equal hashes in every process.
#include <bit>
#include <cstring>

#include "platform/contract/contract.hpp"

namespace {

constexpr uint64_t spread = 0xd6e8feb86659fd93u;
constexpr uint64_t blend = 0xa0761d6478bd642fu;

// Little-endian on every host.
uint64_t load(const uint8_t *bytes, uint32_t count) {
    uint64_t word = 0;
    if constexpr (std::endian::native == std::endian::little) {
        if (count == 8) {
            std::memcpy(&word, bytes, sizeof word);
            return word;
        }
    }
    for (uint32_t i = 0; i < count; ++i) word |= uint64_t{bytes[i]} << (8 * i);
    return word;
}

uint64_t mix(uint64_t state, uint64_t word) { return std::rotl((state ^ (word * spread)) * blend, 29); }

}  // namespace

extern "C" uint32_t SuperFastHash(const void *data, uint32_t length, uint32_t seed) {
    const auto *bytes = static_cast<const uint8_t *>(data);
    uint64_t state = mix(seed + blend, length);
    uint32_t left = bytes == nullptr ? 0 : length;
    for (; left >= 8; left -= 8, bytes += 8) state = mix(state, load(bytes, 8));
    if (left != 0) state = mix(state, load(bytes, left));
    state ^= state >> 32;
    state *= spread;
    state ^= state >> 29;
    return static_cast<uint32_t>(state ^ state >> 32);
}
