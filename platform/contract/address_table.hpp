// Hash tables keyed by address, for what the runtime records about blocks and objects. obj_alloc and every access to a
// state byte use them, so they do not throw and do not allocate memory per entry.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <utility>

namespace mirk {

inline uintptr_t address_of(const void *p) { return reinterpret_cast<uintptr_t>(p); }

// Open addressing with linear probing; key 0 marks a free cell and must not be inserted. The hash spreads runs of keys
// that are `Unit` apart and keeps each run contiguous, since neighboring blocks are often used together.
template <typename Value, size_t Unit = 1, size_t RunLength = 64>
class AddressMap {
    static_assert(std::is_trivially_copyable_v<Value>);

public:
    AddressMap() = default;
    AddressMap(const AddressMap &) = delete;
    AddressMap &operator=(const AddressMap &) = delete;
    ~AddressMap() { std::free(cells_); }

    size_t size() const { return used_; }

    Value *find(uintptr_t key) const {
        if (used_ == 0) return nullptr;
        for (size_t i = home(key);; i = (i + 1) & mask_) {
            if (cells_[i].key == key) return &cells_[i].value;
            if (cells_[i].key == 0) return nullptr;
        }
    }

    // Reserves capacity for this many entries in total. False if allocation fails.
    bool reserve(size_t entries) {
        while (entries * 2 > capacity()) {
            if (!grow()) return false;
        }
        return true;
    }

    // Inserts or replaces the entry of the key. Null if allocation fails.
    Value *put(uintptr_t key, const Value &value) {
        if (used_ * 2 >= capacity() && !grow()) return nullptr;
        size_t i = home(key);
        while (cells_[i].key != 0 && cells_[i].key != key) i = (i + 1) & mask_;
        if (cells_[i].key == 0) ++used_;
        cells_[i].key = key;
        cells_[i].value = value;
        return &cells_[i].value;
    }

    bool erase(uintptr_t key) {
        if (used_ == 0) return false;
        size_t hole = home(key);
        while (cells_[hole].key != key) {
            if (cells_[hole].key == 0) return false;
            hole = (hole + 1) & mask_;
        }
        // Moves entries back that a probe could no longer reach across the hole.
        for (size_t i = (hole + 1) & mask_; cells_[i].key != 0; i = (i + 1) & mask_) {
            if (((i - home(cells_[i].key)) & mask_) >= ((i - hole) & mask_)) {
                cells_[hole] = cells_[i];
                hole = i;
            }
        }
        cells_[hole].key = 0;
        --used_;
        return true;
    }

    template <typename Visit>
    void for_each(Visit visit) const {
        for (size_t i = 0; i < capacity(); ++i) {
            if (cells_[i].key != 0) visit(cells_[i].key, cells_[i].value);
        }
    }

private:
    struct Cell {
        uintptr_t key;
        Value value;
    };

    size_t capacity() const { return cells_ == nullptr ? 0 : mask_ + 1; }
    size_t home(uintptr_t key) const {
        const uint64_t unit = key / Unit, run = unit / RunLength;
        return (static_cast<size_t>((run * 0x9e3779b97f4a7c15u) >> shift_) + unit % RunLength) & mask_;
    }

    bool grow() {
        const size_t size = cells_ == nullptr ? 64 : capacity() * 2;
        auto *cells = static_cast<Cell *>(std::calloc(size, sizeof(Cell)));
        if (cells == nullptr) return false;
        Cell *old = cells_;
        const size_t old_size = capacity();
        cells_ = cells;
        mask_ = size - 1;
        shift_ = 64;
        for (size_t n = size; n > 1; n /= 2) --shift_;
        for (size_t i = 0; i < old_size; ++i) {
            if (old[i].key == 0) continue;
            size_t to = home(old[i].key);
            while (cells_[to].key != 0) to = (to + 1) & mask_;
            cells_[to] = old[i];
        }
        std::free(old);
        return true;
    }

    Cell *cells_ = nullptr;
    size_t mask_ = 0;
    size_t used_ = 0;
    int shift_ = 64;
};

// One value per object. Objects are aligned to 8 bytes, so a 256-byte stretch holds at most 32 of them, and the table
// has one bucket per stretch. Erasing the entries of a freed block visits each stretch that the block touches, which
// costs less than clearing the block did when it was allocated, and nothing while the table is empty.
//
// Callers that cannot handle a failed insertion reserve buckets for a block before it holds objects.
template <typename Value>
class ObjectTable {
    static_assert(std::is_trivially_copyable_v<Value>);

public:
    ObjectTable() = default;
    ObjectTable(const ObjectTable &) = delete;
    ObjectTable &operator=(const ObjectTable &) = delete;
    ~ObjectTable() {
        buckets_.for_each([](uintptr_t, Bucket *bucket) { std::free(bucket); });
        while (spare_ != nullptr) free_spare();
    }

    // False if allocation fails.
    bool reserve(const void *block, size_t size) {
        const size_t wanted = reserved_ + stretches(block, size);
        while (owned_ < wanted) {
            if (!add_spare()) return false;
        }
        if (!buckets_.reserve(wanted)) return false;
        reserved_ = wanted;
        return true;
    }
    void unreserve(const void *block, size_t size) {
        reserved_ -= stretches(block, size);
        trim();
    }

    size_t size() const { return entries_; }
    size_t bytes() const { return owned_ * sizeof(Bucket); }
    // Upper bound of bytes() after reserving buckets for a block of this size at any address.
    size_t bytes_with(size_t block_size) const {
        const size_t most_stretches = (block_size + stretch_size - 2) / stretch_size + 1;
        return std::max(owned_, reserved_ + most_stretches) * sizeof(Bucket);
    }

    Value *find(const void *object) const {
        if (entries_ == 0) return nullptr;
        Bucket *bucket = bucket_of(stretch(address_of(object)));
        const unsigned slot = slot_of(address_of(object));
        return bucket != nullptr && (bucket->present >> slot & 1u) != 0 ? &bucket->values[slot] : nullptr;
    }

    // False if allocation fails, which cannot happen for objects in a block with reserved buckets.
    bool put(const void *object, const Value &value) {
        const uintptr_t key = stretch(address_of(object));
        Bucket *bucket = bucket_of(key);
        if (bucket == nullptr) {
            if (spare_ == nullptr && !add_spare()) return false;
            if (buckets_.put(key, spare_) == nullptr) return false;
            bucket = spare_;
            spare_ = bucket->next;
            bucket->present = 0;
            last_key_ = key;
            last_ = bucket;
        }
        const unsigned slot = slot_of(address_of(object));
        if ((bucket->present >> slot & 1u) == 0) ++entries_;
        bucket->present |= 1u << slot;
        bucket->values[slot] = value;
        return true;
    }

    void erase(const void *object) { clear(stretch(address_of(object)), 1u << slot_of(address_of(object))); }

    void erase_block(const void *block, size_t size) {
        if (entries_ == 0) return;
        const uintptr_t begin = address_of(block);
        const uintptr_t last = begin + (size == 0 ? 0 : size - 1);
        for (uintptr_t key = stretch(begin); key <= stretch(last); ++key) clear(key, covered(key, begin, last));
    }

private:
    static constexpr uintptr_t stretch_size = 256;
    static constexpr unsigned slots = 32;
    static constexpr size_t min_spare = 64;

    struct Bucket {
        union {
            uint32_t present;
            Bucket *next;  // in the list of spare buckets
        };
        Value values[slots];
    };

    // Never 0, which the map reserves.
    static uintptr_t stretch(uintptr_t address) { return address / stretch_size + 1; }
    static size_t stretches(const void *block, size_t size) {
        return stretch(address_of(block) + (size == 0 ? 0 : size - 1)) - stretch(address_of(block)) + 1;
    }
    static unsigned slot_of(uintptr_t address) { return static_cast<unsigned>(address / 8 % slots); }

    static uint32_t covered(uintptr_t key, uintptr_t begin, uintptr_t last) {
        uint32_t mask = 0xffffffffu;
        if (key == stretch(begin)) mask &= 0xffffffffu << slot_of(begin);
        if (key == stretch(last)) mask &= 0xffffffffu >> (slots - 1 - slot_of(last));
        return mask;
    }

    Bucket *bucket_of(uintptr_t key) const {
        if (key == last_key_) return last_;
        Bucket **found = buckets_.find(key);
        if (found == nullptr) return nullptr;
        last_key_ = key;
        last_ = *found;
        return last_;
    }

    void clear(uintptr_t key, uint32_t mask) {
        Bucket *bucket = bucket_of(key);
        if (bucket == nullptr) return;
        entries_ -= static_cast<size_t>(__builtin_popcount(bucket->present & mask));
        bucket->present &= ~mask;
        if (bucket->present != 0) return;
        buckets_.erase(key);
        last_key_ = 0;
        bucket->next = spare_;
        spare_ = bucket;
        trim();
    }

    bool add_spare() {
        auto *bucket = static_cast<Bucket *>(std::malloc(sizeof(Bucket)));
        if (bucket == nullptr) return false;
        bucket->next = spare_;
        spare_ = bucket;
        ++owned_;
        return true;
    }

    void free_spare() {
        std::free(std::exchange(spare_, spare_->next));
        --owned_;
    }
    // Keeps some spare buckets, since freed blocks are usually followed by new ones.
    void trim() {
        while (spare_ != nullptr && owned_ > reserved_ + reserved_ / 2 + min_spare) free_spare();
    }

    AddressMap<Bucket *> buckets_;
    size_t entries_ = 0;
    size_t reserved_ = 0;  // buckets that must exist
    size_t owned_ = 0;     // buckets that exist, in use or spare
    mutable uintptr_t last_key_ = 0;
    mutable Bucket *last_ = nullptr;
    Bucket *spare_ = nullptr;
};

}  // namespace mirk
