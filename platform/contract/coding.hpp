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

// False if one of the two is null; may also be false for others. Addresses that have a bit in common are not null,
// which takes one test instead of two. Where primitives are inlined, the compiler knows most addresses and drops plain
// tests.
inline bool known_nonnull(const void *buffer, const void *value) {
#ifdef MIRK_SEPARATE_LIBRARY
    return (reinterpret_cast<uintptr_t>(buffer) & reinterpret_cast<uintptr_t>(value)) != 0;
#else
    return buffer != nullptr && value != nullptr;
#endif
}

// The same for a size known at compile time, with as few tests as the usual case needs.
template <size_t Size>
bool can_move(const void *buffer, const void *value, int32_t remaining, uint32_t *err) {
#ifdef MIRK_SEPARATE_LIBRARY
    if (*err == 0 && known_nonnull(buffer, value) && remaining >= static_cast<int32_t>(Size)) [[likely]]
        return true;
#endif
    return can_move(buffer, value, Size, remaining, err);
}

template <typename T>
uint32_t marshal_number(void *buffer, const T *value, int32_t remaining, uint32_t *err) {
    if (!can_move<sizeof(T)>(buffer, value, remaining, err)) return 0;
    put_big_endian<T>(buffer, *value);
    return sizeof(T);
}

template <typename T>
uint32_t unmarshal_number(const void *buffer, T *value, int32_t remaining, uint32_t *err) {
    if (!can_move<sizeof(T)>(buffer, value, remaining, err)) return 0;
    *value = get_big_endian<T>(buffer);
    return sizeof(T);
}

}  // namespace mirk
