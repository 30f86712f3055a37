// Hash tables keyed by address, for what the runtime records about blocks and objects. obj_alloc and every access to a
// state byte use them, so they do not throw and do not allocate memory per entry.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <utility>

namespace mirk {

inline uintptr_t address_of(const void *p) { return reinterpret_cast<uintptr_t>(p); }

// Open addressing with linear probing; key 0 marks a free cell and must not be inserted. Keys are multiples of `Unit`.
template <typename Value, size_t Unit = 1>
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
        return static_cast<size_t>((uint64_t{key} / Unit * 0x9e3779b97f4a7c15u) >> shift_);
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
// has one bucket per stretch. Buckets in recent use are found by the low bits of the number of their stretch.
//
// Callers that cannot handle a failed insertion reserve the buckets of a block before it holds objects.
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
        const uintptr_t begin = stretch(address_of(block)), last = stretch(last_address(address_of(block), size));
        for (uintptr_t key = begin; key <= last; ++key) {
            Bucket *bucket = bucket_of(key);
            if (bucket == nullptr) bucket = add_bucket(key);
            if (bucket == nullptr) {
                while (key-- > begin) release(key, 0, true);
                return false;
            }
            ++bucket->blocks;
            ++reserved_;
        }
        return true;
    }

    size_t size() const { return entries_; }
    bool is_empty() const { return (buckets_.size() | reserved_) == 0; }
    size_t bytes() const { return std::max(buckets_.size(), reserved_) * sizeof(Bucket); }
    // Upper bound of bytes() after reserving buckets for a block of this size at any address.
    size_t bytes_with(size_t block_size) const {
        const size_t most_stretches = (block_size + stretch_size - 2) / stretch_size + 1;
        return std::max(buckets_.size(), reserved_ + most_stretches) * sizeof(Bucket);
    }

    Value *find(const void *object) const {
        Bucket *const bucket = bucket_of(stretch(address_of(object)));
        const unsigned slot = slot_of(address_of(object));
        return bucket != nullptr && (bucket->present >> slot & 1u) != 0 ? &bucket->values[slot] : nullptr;
    }

    // The same, but may be null for objects whose bucket was not used lately.
    const Value *find_recent(const void *object) const {
        const uintptr_t key = stretch(address_of(object));
        const Recent &known = recent(key);
        const unsigned slot = slot_of(address_of(object));
        return known.key == key && (known.bucket->present >> slot & 1u) != 0 ? &known.bucket->values[slot] : nullptr;
    }

    // False if allocation fails, which cannot happen for objects in a block with reserved buckets.
    bool put(const void *object, const Value &value) {
        const uintptr_t key = stretch(address_of(object));
        Bucket *bucket = bucket_of(key);
        if (bucket == nullptr) bucket = add_bucket(key);
        if (bucket == nullptr) return false;
        const unsigned slot = slot_of(address_of(object));
        entries_ += (bucket->present >> slot & 1u) ^ 1u;
        bucket->present |= 1u << slot;
        bucket->values[slot] = value;
        return true;
    }

    void erase(const void *object) {
        if (entries_ == 0) return;
        const uintptr_t key = stretch(address_of(object));
        Bucket *const bucket = bucket_of(key);
        if (bucket == nullptr) return;
        const unsigned slot = slot_of(address_of(object));
        entries_ -= bucket->present >> slot & 1u;
        bucket->present &= ~(1u << slot);
        if (bucket->is_unused()) remove(key, bucket);
    }

    // Erases the entries in a block that is or was freed, and releases what was reserved for it.
    void erase_block(uintptr_t begin, size_t size, bool reserved) {
        if (reserved || entries_ != 0) release_block(begin, size, reserved);
    }

private:
    static constexpr uintptr_t stretch_size = 256;
    static constexpr unsigned slots = 32;
    static constexpr size_t min_spare = 64;

    struct Bucket {
        uint32_t present;
        uint32_t blocks;  // that reserved this bucket
        union {
            Value values[slots];
            Bucket *next;  // in the list of spare buckets
        };

        bool is_unused() const { return present == 0 && blocks == 0; }
    };
    struct Recent {
        uintptr_t key = 0;
        Bucket *bucket = nullptr;
    };

    // Never 0, which the map reserves.
    static uintptr_t stretch(uintptr_t address) { return address / stretch_size + 1; }
    static uintptr_t last_address(uintptr_t begin, size_t size) { return begin + (size == 0 ? 0 : size - 1); }
    static unsigned slot_of(uintptr_t address) { return static_cast<unsigned>(address / 8 % slots); }

    Recent &recent(uintptr_t key) const { return recent_[key % recent_.size()]; }

    // Null if there is none.
    Bucket *bucket_of(uintptr_t key) const {
        const Recent &known = recent(key);
        return known.key == key ? known.bucket : look_up(key);
    }
    [[gnu::noinline]] Bucket *look_up(uintptr_t key) const {
        Bucket **const found = buckets_.find(key);
        if (found == nullptr) return nullptr;
        recent(key) = {key, *found};
        return *found;
    }

    // Null if allocation fails.
    [[gnu::noinline]] Bucket *add_bucket(uintptr_t key) {
        Bucket *const bucket = spare_ != nullptr ? spare_ : static_cast<Bucket *>(std::malloc(sizeof(Bucket)));
        if (bucket == nullptr) return nullptr;
        if (bucket == spare_) {
            spare_ = bucket->next;
            --spare_count_;
        }
        bucket->present = bucket->blocks = 0;
        if (buckets_.put(key, bucket) == nullptr) {
            add_spare(bucket);
            return nullptr;
        }
        recent(key) = {key, bucket};
        return bucket;
    }

    [[gnu::noinline]] void release_block(uintptr_t begin, size_t size, bool reserved) {
        const uintptr_t last = last_address(begin, size);
        for (uintptr_t key = stretch(begin); key <= stretch(last); ++key) {
            uint32_t mask = 0xffffffffu;
            if (key == stretch(begin)) mask &= 0xffffffffu << slot_of(begin);
            if (key == stretch(last)) mask &= 0xffffffffu >> (slots - 1 - slot_of(last));
            release(key, mask, reserved);
        }
    }

    // Erases the entries of the mask, and one reservation.
    void release(uintptr_t key, uint32_t mask, bool reserved) {
        Bucket *const bucket = bucket_of(key);
        if (bucket == nullptr) return;
        if (const uint32_t erased = bucket->present & mask; erased != 0) {
            entries_ -= static_cast<size_t>(std::popcount(erased));
            bucket->present &= ~mask;
        }
        bucket->blocks -= reserved;
        reserved_ -= reserved;
        if (bucket->is_unused()) remove(key, bucket);
    }

    [[gnu::noinline]] void remove(uintptr_t key, Bucket *bucket) {
        buckets_.erase(key);
        recent(key) = {};
        add_spare(bucket);
    }

    // Keeps some spare buckets, since freed blocks are usually followed by new ones.
    void add_spare(Bucket *bucket) {
        bucket->next = std::exchange(spare_, bucket);
        ++spare_count_;
        while (spare_count_ > reserved_ / 2 + min_spare) free_spare();
    }
    void free_spare() {
        std::free(std::exchange(spare_, spare_->next));
        --spare_count_;
    }

    AddressMap<Bucket *> buckets_;
    mutable std::array<Recent, 128> recent_{};
    size_t entries_ = 0;
    size_t reserved_ = 0;  // reservations, which are more than buckets if blocks share a stretch
    Bucket *spare_ = nullptr;
    size_t spare_count_ = 0;
};

}  // namespace mirk
