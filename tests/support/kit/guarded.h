// Memory followed by an inaccessible page.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kit {

class GuardedMemory {
public:
    explicit GuardedMemory(std::size_t size) {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        room_ = (size + page) / page * page;
        mapped_ = room_ + page;
        void *memory = mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        start_ = static_cast<std::uint8_t *>(memory);
        mprotect(start_ + room_, page, PROT_NONE);
    }
    ~GuardedMemory() { munmap(start_, mapped_); }
    GuardedMemory(const GuardedMemory &) = delete;
    GuardedMemory &operator=(const GuardedMemory &) = delete;

    // Room for size bytes, followed by exactly one accessible guard byte.
    std::uint8_t *room(std::size_t size) { return start_ + room_ - size - 1; }
    // The bytes, followed by the guard byte.
    std::uint8_t *put(const std::uint8_t *bytes, std::size_t size, std::uint8_t guard_byte = 0xEE) {
        std::uint8_t *to = room(size);
        if (size != 0) std::memcpy(to, bytes, size);
        to[size] = guard_byte;
        return to;
    }

private:
    std::uint8_t *start_ = nullptr;
    std::size_t room_ = 0, mapped_ = 0;
};

}  // namespace kit
