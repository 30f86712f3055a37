// Shared by the sources of the recording runtime.
#ifndef TESTS_SUPPORT_RECORDING_INTERNAL_H
#define TESTS_SUPPORT_RECORDING_INTERNAL_H

#include <cerrno>
#include <concepts>
#include <cstring>
#include <list>
#include <mutex>
#include <type_traits>

#include "recording.h"

namespace recording {

// ---- one call under way ----

struct At {
    const void *address;
};
inline At at(const void *address) { return {address}; }

std::string show(At shown);
std::string show(const mirk_type_info *type);
inline std::string show(const char *text) { return text ? text : "null"; }
template <std::integral T>
std::string show(T number) {
    return std::to_string(+number);
}

bool is_recording();
// Over the log, the names and the list of handles.
extern std::recursive_mutex guard;

// Records a call when it starts; calls recorded before it ends are inner ones.
class Entry {
public:
    template <class... Shown>
    Entry(const char *function, std::optional<std::uint32_t> ctx_id, const std::uint32_t *err, Shown... shown)
        : function_(function) {
        if (is_recording()) {
            Call call;
            call.function = function;
            call.arguments = {show(shown)...};
            call.ctx_id = ctx_id;
            if (err) call.slot = address_text(err);
            append(std::move(call));
        }
        ++depth;
    }
    ~Entry() { --depth; }
    Entry(const Entry &) = delete;
    Entry &operator=(const Entry &) = delete;

    // True if the slot holds an error already, or the handle's knobs make this function fail.
    bool refused(mirk_handle *h, std::uint32_t *err) const;

    static void append(Call call);
    static void set_result(std::string result);  // of the last call recorded

    static thread_local int depth;

private:
    const char *function_;
};

// For the duration of a callback into the library, whose calls are not inner ones.
class Outside {
public:
    Outside() : depth_(Entry::depth) { Entry::depth = 0; }
    ~Outside() { Entry::depth = depth_; }
    Outside(const Outside &) = delete;
    Outside &operator=(const Outside &) = delete;

private:
    int depth_;
};

// ---- the handle ----

struct Block {
    std::size_t size;
    std::uint64_t number;  // 0 after clear_names
};

// Each callback has a context of its own, so that a mix-up is noticed.
struct Context {
    State *owner;
    const char *purpose;
};

struct Node {
    mirk_list_head link;
    std::string name;
    const std::uint8_t *luid;
    std::uint32_t count;
};

struct PrivateVariants {
    mirk_variant_info info;
    mirk_variant_entry entries[129];
};

struct Failing {
    std::uint64_t requests = 0;
    std::uint64_t first = 0;  // the request that fails, 0 for none
    bool later_too = false;

    void arm(std::uint64_t nth, bool all) {
        first = nth ? requests + nth : 0;
        later_too = all;
    }
    bool next() {
        ++requests;
        return first != 0 && (requests == first || (later_too && requests > first));
    }
};

struct State : mirk_handle {
    Knobs knobs;
    Context memory{this, "mem_ctx"}, store{this, "type_store"}, system{this, "sys_ctx"};
    mirk_sttr_desc descriptor{};
    Failing obj_failing, sys_failing;
    std::map<std::uintptr_t, Block> blocks;
    std::list<void *> sys_blocks;
    std::map<std::string, mirk_type_info_copy *, std::less<>> copies;
    std::list<PrivateVariants> variants;
    std::map<const void *, std::uint32_t> offsets;
    std::map<const void *, RaData> ra;
    std::list<Node> nodes;
    std::vector<std::uint8_t> workspace;
};

inline State &state_of(mirk_handle *h) { return *static_cast<State *>(h); }
// Handles that are open, for the naming of addresses.
std::list<State *> &open_handles();
std::uint64_t next_block_number();

inline bool tracks(const mirk_handle *h) { return h->sttr_desc && h->sttr_desc->sttr_mode == 0xEEEE; }

// ---- bytes and text ----

// Numbers are on the wire with the lowest byte first.
template <std::unsigned_integral T>
void put_number(std::uint8_t *to, T number) {
    for (std::size_t i = 0; i < sizeof(T); ++i)
        to[i] = static_cast<std::uint8_t>(static_cast<std::uint64_t>(number) >> (8 * i));
}
template <std::unsigned_integral T>
T take_number(const std::uint8_t *from) {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) number |= static_cast<std::uint64_t>(from[i]) << (8 * i);
    return static_cast<T>(number);
}

// Whether size bytes fit; 90 in the slot if not.
inline bool fits(std::size_t size, std::int32_t remaining, std::uint32_t *err) {
    if (remaining >= 0 && size <= static_cast<std::size_t>(remaining)) return true;
    *err = EMSGSIZE;
    return false;
}
inline bool present(const void *field, std::uint32_t *err) {
    if (!field) *err = EFAULT;
    return field != nullptr;
}

// The whole text without a NUL, or nothing and an error.
std::uint32_t put_text(char *buffer, std::int32_t remaining, const std::string &text, std::uint32_t *err);
std::uint32_t print_line(char *buffer, std::uint32_t indent, const char *name, const std::string &value,
                         std::int32_t remaining, std::uint32_t *err);
std::uint32_t print_element(const char *name, char *buffer, const std::string &value, std::int32_t remaining,
                            std::uint8_t state, std::uint32_t *err);
// The first element's value, or null and the error in the slot.
const std::string *element_value(const void *document, const char *path, std::uint32_t *err);

std::uint32_t mix(const void *data, std::size_t length, std::uint32_t seed);

// ---- objects ----

inline constexpr std::uint8_t flag_embedded = 2, flag_nested = 4, flag_tracked = 8, flag_ra = 32, flag_offset = 64,
                              flag_modified = 128;

// Initializes an object of one of the runtime's own types; false if an error is set.
bool initialize_header(mirk_handle *h, std::uint32_t ctx_id, void *object, mirk_type_info *type, std::uint32_t notify,
                       std::uint32_t skip_count, std::uint8_t flags, std::uint32_t *err);
void count(mirk_handle *h, std::uint32_t ctx_id, const mirk_type_info *type, std::uint64_t *counter,
           std::int64_t delta);
void notify_write(mirk_handle *h, std::uint32_t ctx_id, void *address, std::size_t size);
// Null for an object without state.
std::uint8_t *state_area(mirk_handle *h, void *object, std::size_t base_size);

}  // namespace recording

#endif
