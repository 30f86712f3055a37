#include <algorithm>
#include <cstdlib>

#include "internal.h"

namespace recording {

namespace {

State &owner_of(void *context, const char *purpose) {
    auto *given = static_cast<Context *>(context);
    if (!given || std::strcmp(given->purpose, purpose) != 0) {
        std::fprintf(stderr, "recording runtime: a callback did not get %s\n", purpose);
        std::abort();
    }
    return *given->owner;
}

void *sys_alloc(void *sys_ctx, std::uint32_t id, std::size_t size) {
    State &state = owner_of(sys_ctx, "sys_ctx");
    Entry entry("sys_alloc", std::nullopt, nullptr, id, size);
    void *block = state.sys_failing.next() ? nullptr : std::malloc(size);
    if (block) {
        std::memset(block, 0xA5, size);
        state.sys_blocks.push_back(block);
    }
    if (is_recording()) Entry::set_result(block ? "block" : "null");
    return block;
}

void *obj_alloc(void *mem_ctx, std::uint32_t ctx_id, std::size_t size) {
    State &state = owner_of(mem_ctx, "mem_ctx");
    Entry entry("obj_alloc", ctx_id, nullptr, size);
    const bool refused =
        state.obj_failing.next() || size > state.knobs.block_ceiling || (size == 0 && state.knobs.null_for_size_0);
    void *block = refused ? nullptr : std::malloc(size);
    if (block) {
        std::memset(block, 0xA5, size);
        state.blocks[reinterpret_cast<std::uintptr_t>(block)] = {size, next_block_number()};
    }
    if (is_recording()) Entry::set_result(address_text(block));
    return block;
}

template <class Entries>
void erase_within(Entries &entries, void *start, std::size_t size) {
    auto *last = static_cast<char *>(start) + size;
    entries.erase(entries.lower_bound(start), entries.lower_bound(last));
}

void obj_free(void *mem_ctx, std::uint32_t ctx_id, void *p) {
    State &state = owner_of(mem_ctx, "mem_ctx");
    Entry entry("obj_free", ctx_id, nullptr, at(p));
    const auto block = state.blocks.find(reinterpret_cast<std::uintptr_t>(p));
    if (block == state.blocks.end()) return;  // such as the sentinel of a control message
    const std::size_t size = block->second.size;
    state.blocks.erase(block);
    erase_within(state.offsets, p, std::max<std::size_t>(size, 1));
    erase_within(state.ra, p, std::max<std::size_t>(size, 1));
    std::memset(p, 0xDD, size);
    std::free(p);
}

int write_notify(void *mem_ctx, void *address, std::size_t size, std::uint32_t ctx_id) {
    owner_of(mem_ctx, "mem_ctx");
    Entry entry("write_notify", ctx_id, nullptr, at(address), size);
    return 1;
}

int count_notify(void *mem_ctx, std::uint64_t *address, std::int64_t delta, std::uint32_t ctx_id) {
    owner_of(mem_ctx, "mem_ctx");
    Entry entry("count_notify", ctx_id, nullptr, at(address), delta);
    return 1;
}

void type_store_put(void *type_store, std::uint32_t ctx_id, const char *key, mirk_type_info_copy *copy) {
    State &state = owner_of(type_store, "type_store");
    Entry entry("type_store_put", ctx_id, nullptr, key, copy->info.name);
    state.copies[key] = copy;
}

mirk_type_info_copy *type_store_get(void *type_store, std::uint32_t ctx_id, const char *key) {
    State &state = owner_of(type_store, "type_store");
    Entry entry("type_store_get", ctx_id, nullptr, key);
    const auto found = state.copies.find(std::string_view(key));
    return found == state.copies.end() ? nullptr : found->second;
}

}  // namespace

std::list<State *> &open_handles() {
    static std::list<State *> handles;
    return handles;
}

Handle::Handle(Options options) : state_(std::make_unique<State>()) {
    State &state = *state_;
    state.sys_alloc = sys_alloc;
    state.obj_alloc = obj_alloc;
    state.obj_free = obj_free;
    state.write_notify = write_notify;
    state.count_notify = count_notify;
    state.type_store_put = type_store_put;
    state.type_store_get = type_store_get;
    state.private_types = options.private_types;
    state.mem_ctx = &state.memory;
    state.type_store = &state.store;
    state.sys_ctx = &state.system;
    state.send_bundle_list = {&state.send_bundle_list, &state.send_bundle_list};
    state.recv_bundle_list = {&state.recv_bundle_list, &state.recv_bundle_list};
    state.domain_name = "observed";
    state.message_stamp = 0x01020304;
    state.default_id = 77;
    state.oid_mapping = options.oid_mapping;
    set_tracking(options.tracking);
    set_workspace(48 * 1024);
    std::lock_guard lock(guard);
    open_handles().push_back(&state);
}

Handle::~Handle() {
    std::lock_guard lock(guard);
    open_handles().remove(state_.get());
    for (const auto &[start, block] : state_->blocks) std::free(reinterpret_cast<void *>(start));
    for (void *block : state_->sys_blocks) std::free(block);
}

mirk_handle *Handle::get() const { return state_.get(); }
Knobs &Handle::knobs() const { return state_->knobs; }

void Handle::set_tracking(Tracking tracking) {
    state_->descriptor.sttr_mode = tracking == Tracking::on ? 0xEEEE : tracking == Tracking::off ? 0xDDDD : 0xEEED;
    state_->sttr_desc = tracking == Tracking::none ? nullptr : &state_->descriptor;
}

void Handle::fail_obj_alloc(std::uint64_t nth) { state_->obj_failing.arm(nth, false); }
void Handle::fail_obj_alloc_from(std::uint64_t nth) { state_->obj_failing.arm(nth, true); }
void Handle::fail_sys_alloc(std::uint64_t nth) { state_->sys_failing.arm(nth, false); }
void Handle::fail_sys_alloc_from(std::uint64_t nth) { state_->sys_failing.arm(nth, true); }
std::uint64_t Handle::obj_allocs() const { return state_->obj_failing.requests; }

std::size_t Handle::live_blocks() const { return state_->blocks.size(); }
std::size_t Handle::live_bytes() const {
    std::size_t sum = 0;
    for (const auto &[start, block] : state_->blocks) sum += block.size;
    return sum;
}
std::size_t Handle::block_size(const void *block) const {
    const auto found = state_->blocks.find(reinterpret_cast<std::uintptr_t>(block));
    return found == state_->blocks.end() ? 0 : found->second.size;
}

std::optional<std::uint32_t> Handle::state_offset(const void *object) const {
    const auto found = state_->offsets.find(object);
    return found == state_->offsets.end() ? std::nullopt : std::optional(found->second);
}
void Handle::set_state_offset(void *object, std::uint32_t offset) {
    state_->offsets[object] = offset;
    static_cast<mirk_object *>(object)->obj_flag |= flag_offset;
}
std::optional<RaData> Handle::ra_data(const void *object) const {
    const auto found = state_->ra.find(object);
    return found == state_->ra.end() ? std::nullopt : std::optional(found->second);
}
std::size_t Handle::mappings() const { return state_->offsets.size() + state_->ra.size(); }

std::size_t Handle::private_copies() const { return state_->copies.size(); }
mirk_type_info_copy *Handle::private_copy(std::string_view type_name) const {
    for (const auto &[key, copy] : state_->copies) {
        if (copy->info.name == type_name) return copy;
    }
    return nullptr;
}

void Handle::set_workspace(std::uint32_t size) { state_->workspace.assign(std::size_t{size} + 1, 0xA5); }

std::vector<std::pair<std::string, std::uint32_t>> Handle::send_bundle() const {
    std::vector<std::pair<std::string, std::uint32_t>> result;
    const mirk_list_head &head = state_->send_bundle_list;
    // New entries are added at the front.
    for (const mirk_list_head *link = head.prev; link && link != &head; link = link->prev) {
        const auto *node = reinterpret_cast<const Node *>(link);
        result.emplace_back(node->name, node->count);
    }
    return result;
}

void Handle::file_received(std::string name) {
    Node &node = state_->nodes.emplace_back(Node{{}, std::move(name), nullptr, 0});
    mirk_list_head &head = state_->recv_bundle_list;
    if (!head.next) head = {&head, &head};
    node.link = {&head, head.prev};
    head.prev->next = &node.link;
    head.prev = &node.link;
}

}  // namespace recording
