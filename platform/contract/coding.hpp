// Numbers on the wire: big-endian, in buffers that are not aligned.
#pragma once

#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mirk {

// Reverses the bytes on little-endian hosts. Uses builtins, since compilers do not turn a loop over bytes into one
// instruction.
template <typename T>
T to_or_from_big_endian(T value) {
    if constexpr (std::endian::native == std::endian::big || sizeof(T) == 1) {
        return value;
    } else if constexpr (sizeof(T) == 2) {
        return static_cast<T>(__builtin_bswap16(static_cast<uint16_t>(value)));
    } else if constexpr (sizeof(T) == 4) {
        return static_cast<T>(__builtin_bswap32(static_cast<uint32_t>(value)));
    } else {
        return static_cast<T>(__builtin_bswap64(static_cast<uint64_t>(value)));
    }
}

template <typename T>
void put_big_endian(void *to, T value) {
    value = to_or_from_big_endian(value);
    std::memcpy(to, &value, sizeof value);
}

template <typename T>
T get_big_endian(const void *from) {
    T value;
    std::memcpy(&value, from, sizeof value);
    return to_or_from_big_endian(value);
}

// The checks at the start of every primitive that moves bytes: an earlier error, a null pointer, too little room.
inline bool can_move(const void *buffer, const void *value, size_t size, int32_t remaining, uint32_t *err) {
    if (*err != 0) return false;
    if (buffer == nullptr || value == nullptr) {
        *err = EINVAL;
        return false;
    }
    if (remaining < 0 || static_cast<size_t>(remaining) < size) {
        *err = EMSGSIZE;
        return false;
    }
    return true;
}

template <typename T>
uint32_t marshal_number(void *buffer, const T *value, int32_t remaining, uint32_t *err) {
    if (!can_move(buffer, value, sizeof(T), remaining, err)) return 0;
    put_big_endian<T>(buffer, *value);
    return sizeof(T);
}

template <typename T>
uint32_t unmarshal_number(const void *buffer, T *value, int32_t remaining, uint32_t *err) {
    if (!can_move(buffer, value, sizeof(T), remaining, err)) return 0;
    *value = get_big_endian<T>(buffer);
    return sizeof(T);
}

}  // namespace mirk
