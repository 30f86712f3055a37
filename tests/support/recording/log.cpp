#include <pthread.h>

#include <algorithm>
#include <atomic>

#include "internal.h"

namespace recording {

namespace {

struct Region {
    std::string name;
    std::uintptr_t start;
    std::size_t size;
};

std::vector<Call> calls;
std::vector<Region> regions;
std::atomic<bool> is_paused{false};
std::atomic<std::uint64_t> block_number{0};
bool inner_shown = false;

std::string within(const std::string &name, std::uintptr_t offset) {
    return offset == 0 ? name : name + "+" + std::to_string(offset);
}

bool on_stack(std::uintptr_t address) {
    thread_local std::uintptr_t lowest = 0, size = 0;
    if (size == 0) {
        pthread_attr_t attributes;
        if (pthread_getattr_np(pthread_self(), &attributes) != 0) return false;
        void *start = nullptr;
        pthread_attr_getstack(&attributes, &start, &size);
        pthread_attr_destroy(&attributes);
        lowest = reinterpret_cast<std::uintptr_t>(start);
    }
    return address - lowest < size;
}

std::string in_handle(const State &state, std::uintptr_t address) {
    auto after = state.blocks.upper_bound(address);
    if (after != state.blocks.begin()) {
        const auto &[start, block] = *std::prev(after);
        // The end of a block belongs to it, so that a state area of no bytes has a name too.
        if (address - start <= block.size) {
            return within(block.number ? "block" + std::to_string(block.number) : "earlier", address - start);
        }
    }
    if (address == reinterpret_cast<std::uintptr_t>(&state.last_error)) return "last_error";
    std::uintptr_t offset = address - reinterpret_cast<std::uintptr_t>(static_cast<const mirk_handle *>(&state));
    if (offset < sizeof(mirk_handle)) return within("handle", offset);
    offset = address - reinterpret_cast<std::uintptr_t>(state.workspace.data());
    return offset < state.workspace.size() ? within("workspace", offset) : "";
}

std::string in_type(const mirk_type_info &type, const char *suffix, std::uintptr_t address) {
    std::uintptr_t offset = address - reinterpret_cast<std::uintptr_t>(&type);
    if (offset < sizeof type) return within(type.name + std::string(suffix), offset);
    if (!type.variant_info || !type.variant_info->entries) return "";
    const mirk_variant_entry *first = type.variant_info->entries - 128;
    offset = address - reinterpret_cast<std::uintptr_t>(first);
    if (offset >= 129 * sizeof *first) return "";
    const int variant = static_cast<int>(offset / sizeof *first) - 128;
    static const std::map<std::size_t, const char *> counters = {
        {offsetof(mirk_variant_entry, num_created), "num_created"},
        {offsetof(mirk_variant_entry, num_destroyed), "num_destroyed"},
        {offsetof(mirk_variant_entry, num_live), "num_live"}};
    const auto counter = counters.find(offset % sizeof *first);
    return type.name + std::string(suffix) + (variant ? "[" + std::to_string(variant) + "]" : "") + "." +
           (counter == counters.end() ? "entry" : counter->second);
}

std::string in_types(std::uintptr_t address) {
    for (const mirk_type_info *own : {&_mirk_boolean_type_info_internal, &_ip_address_type_info_internal}) {
        if (std::string text = in_type(*own, "", address); !text.empty()) return text;
    }
    for (const mirk_module *module = mirk_module_tot_root.first; module; module = module->next) {
        for (mirk_type_info **type = module->types; *type; ++type) {
            if (std::string text = in_type(**type, "", address); !text.empty()) return text;
        }
    }
    for (const State *state : open_handles()) {
        for (const auto &[key, copy] : state->copies) {
            if (std::string text = in_type(copy->info, "(copy)", address); !text.empty()) return text;
        }
    }
    return "";
}

bool shown(const Call &call) { return inner_shown || !call.inner; }

template <class Wanted>
std::vector<std::string> select(Detail detail, Wanted wanted) {
    std::vector<std::string> result;
    for (const Call &call : log()) {
        if (shown(call) && wanted(call.function)) result.push_back(line(call, detail));
    }
    return result;
}

bool among(std::initializer_list<std::string_view> functions, const std::string &function) {
    return std::find(functions.begin(), functions.end(), function) != functions.end();
}

}  // namespace

std::recursive_mutex guard;
thread_local int Entry::depth = 0;

bool is_recording() { return !is_paused.load(std::memory_order_relaxed); }
std::uint64_t next_block_number() { return ++block_number; }

void Entry::append(Call call) {
    call.inner = depth > 0;
    std::lock_guard lock(guard);
    calls.push_back(std::move(call));
}

void Entry::set_result(std::string result) {
    std::lock_guard lock(guard);
    calls.back().result = std::move(result);
}

bool Entry::refused(mirk_handle *h, std::uint32_t *err) const {
    if (*err) return true;
    const Knobs &knobs = state_of(h).knobs;
    if (knobs.errors.empty()) return false;
    if (const auto found = knobs.errors.find(std::string_view(function_)); found != knobs.errors.end()) {
        *err = found->second;
    }
    return *err != 0;
}

std::string show(At shown_address) { return address_text(shown_address.address); }
std::string show(const mirk_type_info *type) {
    const std::string text = address_text(type);
    return text == "elsewhere" || text == "local" ? type->name : text;
}

std::string line(const Call &call, Detail detail) {
    std::string text = call.function;
    for (const std::string &argument : call.arguments) text += " " + argument;
    if (!call.text.empty()) text += " " + call.text;
    if (detail == Detail::full) {
        if (call.ctx_id) text += " ctx=" + std::to_string(*call.ctx_id);
        if (!call.slot.empty()) text += " err=" + call.slot;
    }
    return text;
}

std::vector<Call> log() {
    std::lock_guard lock(guard);
    return calls;
}
void clear_log() {
    std::lock_guard lock(guard);
    calls.clear();
}
void show_inner(bool on) { inner_shown = on; }
void pause(bool on) { is_paused = on; }

std::vector<std::string> lines(Detail detail) {
    return select(detail, [](const std::string &) { return true; });
}
std::vector<std::string> lines_of(std::initializer_list<std::string_view> functions, Detail detail) {
    return select(detail, [&](const std::string &function) { return among(functions, function); });
}
std::vector<std::string> lines_without(std::initializer_list<std::string_view> functions, Detail detail) {
    return select(detail, [&](const std::string &function) { return !among(functions, function); });
}
std::size_t count_of(std::string_view function) { return lines_of({function}).size(); }

std::vector<std::string> traces() {
    std::vector<std::string> result;
    for (const Call &call : log()) {
        if (call.function == "skald_wrapper") result.push_back(call.text);
    }
    return result;
}

void name_region(std::string name, const void *address, std::size_t size) {
    std::lock_guard lock(guard);
    regions.push_back({std::move(name), reinterpret_cast<std::uintptr_t>(address), size});
}
void remove_region(std::string_view name) {
    std::lock_guard lock(guard);
    std::erase_if(regions, [&](const Region &region) { return region.name == name; });
}
void clear_names() {
    std::lock_guard lock(guard);
    regions.clear();
    block_number = 0;
    for (State *state : open_handles()) {
        for (auto &[start, block] : state->blocks) block.number = 0;
    }
}

std::string address_text(const void *address) {
    if (!address) return "null";
    std::lock_guard lock(guard);
    const auto number = reinterpret_cast<std::uintptr_t>(address);
    for (auto region = regions.rbegin(); region != regions.rend(); ++region) {
        if (number - region->start < std::max<std::size_t>(region->size, 1)) {
            return within(region->name, number - region->start);
        }
    }
    for (const State *state : open_handles()) {
        if (std::string text = in_handle(*state, number); !text.empty()) return text;
    }
    if (std::string text = in_types(number); !text.empty()) return text;
    return on_stack(number) ? "local" : "elsewhere";
}

}  // namespace recording
