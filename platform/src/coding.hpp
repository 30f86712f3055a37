// Numbers on the wire: big-endian and byte by byte, since buffers are not aligned.
#pragma once

#include <cstddef>
#include <cstdint>

namespace mirk {

template <typename T>
void put_big_endian(void *to, T value) {
    auto *bytes = static_cast<uint8_t *>(to);
    for (size_t i = 0; i < sizeof(T); ++i) bytes[i] = static_cast<uint8_t>(value >> (8 * (sizeof(T) - 1 - i)));
}

template <typename T>
T get_big_endian(const void *from) {
    const auto *bytes = static_cast<const uint8_t *>(from);
    T value = 0;
    for (size_t i = 0; i < sizeof(T); ++i) value = static_cast<T>(static_cast<uint64_t>(value) << 8 | bytes[i]);
    return value;
}

// The entry of every primitive that moves bytes: an earlier error, a null pointer, room.
inline bool can_move(const void *buffer, const void *value, size_t size, int32_t remaining, uint32_t *err) {
    if (*err != 0) return false;
    if (buffer == nullptr || value == nullptr) {
        *err = 22;
        return false;
    }
    if (remaining < 0 || static_cast<size_t>(remaining) < size) {
        *err = 90;
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
