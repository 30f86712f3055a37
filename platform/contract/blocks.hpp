// The blocks of obj_alloc. Small ones are cells of slabs, with their records in the slab but apart from the cells, so
// that writing past the end of a block does not damage them. Larger ones come from malloc and have their records in a
// table.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/contract/address_table.hpp"

namespace mirk {

// What the runtime records about a block.
struct Block {
    uint64_t serial;  // 0: the block is not live
    size_t size;
    uint32_t ctx_id;
    bool has_offsets;  // room for the state offsets of objects in it is reserved
};

class Blocks {
    struct Slab;

public:
    static constexpr size_t largest_cell = 1024;

    // Without cells every block comes from malloc.
    explicit Blocks(bool use_cells) : cells_below_(use_cells ? largest_cell + 1 : 0) {}
    Blocks(const Blocks &) = delete;
    Blocks &operator=(const Blocks &) = delete;
    ~Blocks() {
        large_.for_each([](uintptr_t address, const Block &) { std::free(reinterpret_cast<void *>(address)); });
        for_each_slab([](Slab *slab) { std::free(slab); });
    }

    size_t size() const { return live_; }

    struct Place {
        void *address;  // null: allocation failed
        Block *block;   // null: there is no live block at the address
        Slab *slab;     // null: the block is not a cell
    };

    // The caller fills in the record at once. Its serial must not be 0.
    [[gnu::always_inline]] Place allocate(size_t size) {
        if (const Place *kept = reuse(size); kept != nullptr) return *kept;
        const Place place = size < cells_below_ ? allocate_cell(size) : allocate_large(size);
        if (place.address != nullptr) ++live_;
        return place;
    }

    // The same, if a cell of this size was kept by the last release. Otherwise null.
    [[gnu::always_inline]] const Place *reuse(size_t size) {
        if (size > largest_cell) return nullptr;
        const Place &kept = kept_[class_of(size)];
        if (kept.block->serial != 0) return nullptr;
        ++live_;
        return &kept;
    }

    // The block at the address, if it is live and its cell was kept by its last release. Otherwise null.
    [[gnu::always_inline]] Block *find_kept(const void *address, size_t size) const {
        if (size > largest_cell) return nullptr;
        const Place &kept = kept_[class_of(size)];
        return kept.address == address && kept.block->serial != 0 ? kept.block : nullptr;
    }
    [[gnu::always_inline]] void release_kept(Block *block) {
        --live_;
        block->serial = 0;
    }

    [[gnu::always_inline]] Place find(void *address) const {
        Slab **const slab = slabs_.find(page_of(address));
        if (slab != nullptr) return {address, (*slab)->find(address), *slab};
        return {address, large_.find(address_of(address)), nullptr};
    }

    [[gnu::always_inline]] void release(const Place &place) {
        --live_;
        if (place.slab != nullptr) {
            release_cell(place);
        } else {
            large_.erase(address_of(place.address));
            std::free(place.address);
        }
    }

    // Gives a live block another size. It may move, with as much of its contents as fits. Its record has to be filled
    // in again. If allocation fails, the address is null and the block stays as it is.
    Place resize(const Place &old, size_t size) {
        if (old.slab == nullptr && size >= cells_below_) return resize_large(old, size);
        if (old.slab != nullptr && size <= old.slab->cell_size) return old;
        const size_t kept = std::min(old.block->size, size);
        const Place place = allocate(size);
        if (place.address == nullptr) return place;
        std::memcpy(place.address, old.address, kept);
        release(old);
        return place;
    }

    template <typename Visit>
    void for_each(Visit visit) const {
        large_.for_each(
            [&](uintptr_t address, const Block &block) { visit(reinterpret_cast<void *>(address), block); });
        for_each_slab([&](Slab *slab) { slab->for_each(visit); });
    }

private:
    static constexpr size_t unit = 16;  // the alignment of malloc
    static constexpr size_t page_size = 4096;
    static constexpr size_t slab_size = 4 * page_size;
    static constexpr size_t most_spare = 4;
    static inline Block in_use{1, 0, 0, false};
    static constexpr Place none_kept{nullptr, &in_use, nullptr};

    static constexpr std::array<uint32_t, 20> cell_sizes{16,  32,  48,  64,  80,  96,  112, 128, 160, 192,
                                                         224, 256, 320, 384, 448, 512, 640, 768, 896, largest_cell};
    static constexpr auto class_of_units = [] {
        std::array<uint8_t, largest_cell / unit + 1> classes{};
        uint8_t size_class = 0;
        size_t size = 0;
        for (uint8_t &class_of_size : classes) {
            if (size > cell_sizes[size_class]) ++size_class;
            class_of_size = size_class;
            size += unit;
        }
        return classes;
    }();

    struct Slab {
        Slab *next, *previous;  // of the same class, with free cells; a spare slab has a next one only
        Block *free;            // free cells form a list: the size in a free record is the address of the next
        uint32_t used;          // cells that were live at least once; the others are free, too
        uint32_t live;
        uint32_t size_class, cell_size, cell_count;
        uint32_t reciprocal;  // 2^32 / cell_size, rounded up, which is exact for all offsets in a slab
        char *cells;

        void start(uint32_t new_class) {
            size_class = new_class;
            cell_size = cell_sizes[size_class];
            cell_count = static_cast<uint32_t>((slab_size - sizeof(Slab)) / (cell_size + sizeof(Block)));
            reciprocal = static_cast<uint32_t>((uint64_t{1} << 32) / cell_size + 1);
            cells = reinterpret_cast<char *>(this) + slab_size - size_t{cell_count} * cell_size;
            free = nullptr;
            used = live = 0;
        }

        bool is_full() const { return live == cell_count; }
        Block *blocks() { return reinterpret_cast<Block *>(this + 1); }

        Place take() {
            Block *const block = free != nullptr ? free : blocks() + used++;
            if (block == free) free = reinterpret_cast<Block *>(block->size);
            ++live;
            return {cells + static_cast<size_t>(block - blocks()) * cell_size, block, this};
        }

        Block *find(const void *address) {
            const uintptr_t offset = address_of(address) - address_of(cells);
            const size_t index = offset * reciprocal >> 32;
            // An address before the first cell has an offset that is too large.
            if (offset >= slab_size || index * cell_size != offset || index >= used) return nullptr;
            Block *const block = blocks() + index;
            return block->serial != 0 ? block : nullptr;
        }

        void give_back(Block *block) {
            block->serial = 0;
            block->size = address_of(std::exchange(free, block));
            --live;
        }

        template <typename Visit>
        void for_each(Visit visit) {
            for (size_t i = 0; i < used; ++i) {
                if (blocks()[i].serial != 0) visit(cells + i * cell_size, blocks()[i]);
            }
        }
    };

    static size_t class_of(size_t size) { return class_of_units[(size + unit - 1) / unit]; }

    Place allocate_cell(size_t size) {
        const auto size_class = static_cast<uint32_t>(class_of(size));
        Slab *slab = partial_[size_class];
        if (slab == nullptr) [[unlikely]] {
            slab = start_slab(size_class);
            if (slab == nullptr) return {};
        }
        const Place place = slab->take();
        if (slab->is_full()) unlink(slab);
        return place;
    }

    // Keeps the cell if the one that was kept before is in use.
    void release_cell(const Place &place) {
        Place &kept = kept_[place.slab->size_class];
        if (kept.address != place.address && kept.block->serial == 0) return give_back(place.block, place.slab);
        kept = place;
        place.block->serial = 0;
    }

    void give_back(Block *block, Slab *slab) {
        if (slab->is_full()) link(slab);
        slab->give_back(block);
        if (slab->live == 0) retire(slab);
    }

    [[gnu::noinline]] Place allocate_large(size_t size) {
        void *const address = std::malloc(size == 0 ? 1 : size);
        if (address == nullptr) return {};
        Block *const block = large_.put(address_of(address), {});
        if (block != nullptr) return {address, block, nullptr};
        std::free(address);
        return {};
    }

    Place resize_large(const Place &old, size_t size) {
        const uintptr_t old_address = address_of(old.address);
        void *const address = std::realloc(old.address, size == 0 ? 1 : size);
        if (address == nullptr || address_of(address) == old_address) return {address, old.block, nullptr};
        // The table has room for the new entry, since it had room for the old one.
        large_.erase(old_address);
        return {address, large_.put(address_of(address), {}), nullptr};
    }

    // Null if allocation fails.
    [[gnu::noinline]] Slab *start_slab(uint32_t size_class) {
        if (spare_ == nullptr) give_back_kept();
        Slab *slab = spare_;
        if (slab != nullptr) {
            spare_ = slab->next;
            --spare_count_;
        } else if (slab = make_slab(); slab == nullptr) {
            return nullptr;
        }
        slab->start(size_class);
        link(slab);
        return slab;
    }

    // The kept cells may be the last ones of their slabs.
    void give_back_kept() {
        for (Place &kept : kept_) {
            if (kept.block->serial == 0) give_back(kept.block, kept.slab);
            kept = none_kept;
        }
    }

    // Some empty slabs are spare, for whatever class needs one next.
    [[gnu::noinline]] void retire(Slab *slab) {
        unlink(slab);
        if (spare_count_ < most_spare) {
            slab->next = std::exchange(spare_, slab);
            ++spare_count_;
        } else {
            forget_pages(slab);
            std::free(slab);
        }
    }

    // Slabs begin at a page, and each of their pages is in the table.
    Slab *make_slab() {
        auto *const slab = static_cast<Slab *>(std::aligned_alloc(page_size, slab_size));
        if (slab == nullptr) return nullptr;
        for (uintptr_t page = address_of(slab); page != address_of(slab) + slab_size; page += page_size) {
            if (slabs_.put(page, slab) == nullptr) {
                forget_pages(slab);
                std::free(slab);
                return nullptr;
            }
        }
        return slab;
    }

    void forget_pages(Slab *slab) {
        for (uintptr_t page = address_of(slab); page != address_of(slab) + slab_size; page += page_size) {
            slabs_.erase(page);
        }
    }

    void link(Slab *slab) {
        Slab *&first = partial_[slab->size_class];
        slab->next = first;
        slab->previous = nullptr;
        if (first != nullptr) first->previous = slab;
        first = slab;
    }

    void unlink(Slab *slab) {
        (slab->previous != nullptr ? slab->previous->next : partial_[slab->size_class]) = slab->next;
        if (slab->next != nullptr) slab->next->previous = slab->previous;
    }

    template <typename Visit>
    void for_each_slab(Visit visit) const {
        slabs_.for_each([&](uintptr_t page, Slab *slab) {
            if (page == address_of(slab)) visit(slab);
        });
    }

    static uintptr_t page_of(const void *address) { return address_of(address) / page_size * page_size; }

    const size_t cells_below_;
    size_t live_ = 0;
    AddressMap<Block, unit> large_;
    AddressMap<Slab *, page_size> slabs_;  // by page
    std::array<Slab *, cell_sizes.size()> partial_{};
    // One cell of each class that is not given back to its slab, so that a block which is made and released again and
    // again takes few steps. Whether it is live shows its serial.
    std::array<Place, cell_sizes.size()> kept_ = [] {
        std::array<Place, cell_sizes.size()> all;
        all.fill(none_kept);
        return all;
    }();
    Slab *spare_ = nullptr;
    size_t spare_count_ = 0;
};

}  // namespace mirk
