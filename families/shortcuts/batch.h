// What the archive's operations on whole trees share. They apply to handles without an observer: the calls that the
// general way makes for each object are invisible there, except for the counters that they change.
//
// Each operation first checks all headers of a tree, and takes one branch: a usual tree is processed in one piece; any
// other is left untouched for the general way.
#pragma once

#include <sys/single_threaded.h>

#include <bit>

#include "core/object_header.h"
#include "families/shortcuts/shape.h"

extern "C" {
bool mirk_inside_is_unobserved(const mirk_handle *h);
void mirk_inside_count_lookups(mirk_handle *h, std::uint64_t n);
mirk_type_info **mirk_inside_numbered_types(mirk_handle *h);
mirk_type_info *mirk_inside_known_type(mirk_handle *h, std::uint32_t ctx_id, mirk_type_info *type);
void *mirk_inside_allocate(mirk_handle *h, std::uint32_t ctx_id, std::size_t size);
void mirk_inside_release(mirk_handle *h, std::uint32_t ctx_id, void *p, std::size_t size);
}

namespace tarn::shortcut {

inline bool has_states(const mirk_handle *h) { return h->sttr_desc != nullptr && h->sttr_desc->sttr_mode != 0xDDDD; }
// False if the mode is corrupted, too: the general way ends the process.
inline bool tracks_states(const mirk_handle *h) { return has_states(h) && h->sttr_desc->sttr_mode == 0xEEEE; }
// True if the shortcuts for handles without tracking apply.
[[gnu::always_inline]] inline bool is_plain(const mirk_handle *h) {
    return !has_states(h) && mirk_inside_is_unobserved(h);
}

// The type records that objects on a handle point to, by number.
class Types {
public:
    // False: one of these types has no private copy yet. The general way makes it.
    template <const Counts &counts>
    [[gnu::always_inline]] bool bind(mirk_handle *h, std::uint32_t ctx_id) {
        if (h->private_types == 0) return true;
        records_ = mirk_inside_numbered_types(h);
        if (records_ == nullptr) return false;
        const auto is_known = [&](std::size_t number, std::uint32_t)
                                  TARN_INLINE { return records_[number] != nullptr; };
        return each_type<counts>(is_known) || find<counts>(h, ctx_id);
    }
    mirk_type_info *operator[](std::size_t number) const { return records_[number]; }

private:
    static_assert(n_types <= 64, "the runtime has no room for so many types");

    template <const Counts &counts>
    [[gnu::noinline]] static bool find(mirk_handle *h, std::uint32_t ctx_id) {
        mirk_type_info **const records = mirk_inside_numbered_types(h);
        return each_type<counts>([&](std::size_t number, std::uint32_t) {
            records[number] = mirk_inside_known_type(h, ctx_id, own_types[number]);
            return records[number] != nullptr;
        });
    }

    mirk_type_info *const *records_ = own_types.data();
};

// Changes the counters of a type for n objects. The general way traces a damaged number of variants once per object.
enum class Change { created, destroyed };

template <Change change>
[[gnu::cold, gnu::noinline]] void count_carefully(const mirk_type_info *type, std::uint64_t n) {
    if constexpr (change == Change::destroyed) check_type(type);
    const mirk_variant_info &info = variant_info(type);
    for (std::uint64_t i = 0; i < n && info.n_variants < 0; ++i) check_variant_count(info, 0);
    mirk_variant_entry &entry = info.entries[0];
    std::uint64_t &counter = change == Change::created ? entry.num_created : entry.num_destroyed;
    __atomic_fetch_add(&counter, n, __ATOMIC_SEQ_CST);
    __atomic_fetch_add(&entry.num_live, change == Change::created ? n : std::uint64_t{0} - n, __ATOMIC_SEQ_CST);
}

// An atomic addition costs about twenty plain ones, and a process with one thread needs none.
template <Change change>
[[gnu::always_inline]] inline void count(const mirk_type_info *type, std::uint64_t n) {
    const mirk_variant_info *info = type->variant_info;
    const bool usual = info != nullptr && info->n_variants >= 0 && type->magic == type_magic &&
                       (type->plain_counters != 0 || __libc_single_threaded);
    if (!usual) return count_carefully<change>(type, n);
    mirk_variant_entry &entry = info->entries[0];
    if constexpr (change == Change::created) {
        entry.num_created += n;
        entry.num_live += n;
    } else {
        entry.num_destroyed += n;
        entry.num_live -= n;
    }
}

// An operation on a tree with arrays: counts the objects, and updates the counters at its end.
struct Batch {
    mirk_handle *h;
    std::uint32_t ctx_id;
    Types types{};
    Counts counts{};
    std::uint64_t lookups = 0;

    // Adds n trees.
    template <const Counts &tree>
    [[gnu::always_inline]] void add(std::uint32_t n) {
        each_type<tree>([&](std::size_t number, std::uint32_t uses) {
            counts[number] += n * uses;
            return true;
        });
    }
    template <const Counts &possible, Change change>
    [[gnu::always_inline]] void finish() {
        each_type<possible>([&](std::size_t number, std::uint32_t) {
            if (counts[number] != 0) count<change>(types[number], counts[number]);
            return true;
        });
        if (lookups != 0) mirk_inside_count_lookups(h, lookups);
    }
};

// Updates the counters for n trees without arrays.
template <const Counts &tree, Change change>
[[gnu::always_inline]] inline void count_trees(const Types &types, std::uint64_t n) {
    each_type<tree>([&](std::size_t number, std::uint32_t uses) {
        count<change>(types[number], n * uses);
        return true;
    });
}

// The header of an object, apart from its type: variant, home variant and flags.
inline std::uint32_t header_bits(const void *object) {
    std::uint32_t bits;
    std::memcpy(&bits, static_cast<const std::uint8_t *>(object) + offsetof(mirk_object, variant), sizeof bits);
    return bits;
}
// The bits of it that are 0 in a usual object: the variant and the given flags.
consteval std::uint32_t unusual_bits(std::uint8_t flags) {
    std::array<std::uint8_t, 4> bytes{};
    bytes[offsetof(mirk_object, variant) - offsetof(mirk_object, variant)] = 0xff;
    bytes[offsetof(mirk_object, obj_flag) - offsetof(mirk_object, variant)] = flags;
    return std::bit_cast<std::uint32_t>(bytes);
}

}  // namespace tarn::shortcut
