#include "fuzz.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace fuzz {

namespace {

// Low enough that a count from an input costs little, high enough for the seeds.
constexpr std::uint64_t request_ceiling = 12 << 10, total_ceiling = 48 << 10;
constexpr std::size_t most_bytes = std::size_t{1} << 21;

const int report_descriptor = ::dup(STDERR_FILENO);

template <class Number>
Number number(Input &input) {
    Number value = 0;
    for (std::size_t i = 0; i < sizeof value; ++i) value = static_cast<Number>(value << 8 | input.u8());
    return value;
}

kit::GuardedMemory &output() {
    static kit::GuardedMemory memory(most_bytes);
    return memory;
}

}  // namespace

void require(bool holds, const char *words) {
    if (holds) return;
    ::dprintf(report_descriptor, "required: %s\n", words);
    std::abort();
}

std::uint8_t Input::u8() {
    if (rest_.empty()) return 0;
    const std::uint8_t byte = rest_.front();
    rest_ = rest_.subspan(1);
    return byte;
}
std::uint16_t Input::u16() { return static_cast<std::uint16_t>(u8() << 8 | u8()); }
std::uint32_t Input::u32() { return number<std::uint32_t>(*this); }
std::uint64_t Input::u64() { return number<std::uint64_t>(*this); }

std::span<const std::uint8_t> Input::take(std::size_t size) {
    const auto taken = rest_.first(std::min(size, rest_.size()));
    rest_ = rest_.subspan(taken.size());
    return taken;
}

std::string Input::text(std::size_t size) {
    const auto bytes = take(size);
    return {bytes.begin(), bytes.end()};
}

kit::Tracking Choice::tracking() const {
    return (byte_ & 3) == 0 ? kit::Tracking::none : (byte_ & 3) == 1 ? kit::Tracking::off : kit::Tracking::on;
}

kit::Options options(const Choice &choice) {
    mirk_platform_trace_set_levels(1);
    return {.tracking = choice.tracking(),
            .private_types = choice.bit(2),
            .lenient = choice.bit(3),
            .request_ceiling = request_ceiling,
            .total_ceiling = total_ceiling,
            .fresh_fill = 0xDB,
            .on_leak = [](std::size_t, std::size_t, const kit::Options &) {
                require(false, "no block is left on the handle");
            }};
}

Root root(std::uint8_t number) {
    std::size_t at = number % roots();
    if (at < tarn::reflect::records().size()) return {.record = &tarn::reflect::records()[at]};
    at -= tarn::reflect::records().size();
    if (at < tarn::reflect::enumerations().size()) return {.enumeration = &tarn::reflect::enumerations()[at]};
    return {.message = &tarn::reflect::messages()[at - tarn::reflect::enumerations().size()]};
}

std::size_t roots() {
    return tarn::reflect::records().size() + tarn::reflect::enumerations().size() + tarn::reflect::messages().size();
}

reference::Record small_value(std::string_view type, bool printable) {
    return reference::small_value(type, 3, printable);
}

namespace {

using tarn::schema::Kind;

// The addresses of an instance, at any depth but in arrays.
void add_addresses(mirk_handle *h, const RecordOperations &record, void *instance, std::vector<ip_address *> &to) {
    for (const auto &m : record.members) {
        std::uint32_t err = 0;
        const bool embedded = m.member->kind == Kind::address || m.member->kind == Kind::record;
        void *at = embedded ? m.get(h, id, instance, &err) : nullptr;
        if (at == nullptr) continue;
        if (m.member->kind == Kind::address) {
            to.push_back(static_cast<ip_address *>(at));
        } else {
            add_addresses(h, tarn::reflect::operations_of(*m.member->record), at, to);
        }
    }
}

// Each address of the instance refers to another object. That one is destroyed before the instance, and so remains
// until the last of these references ends.
void refer(mirk_handle *h, const RecordOperations &record, void *instance) {
    std::vector<ip_address *> addresses;
    add_addresses(h, record, instance, addresses);
    void *target = record.create(h, id);
    if (target == nullptr) return;
    void *oid = nullptr;
    mirk_platform_oid_mapping_make(h, target, static_cast<std::uint32_t>(addresses.size()), record.destroy, &oid);
    for (const ip_address *address : addresses) mirk_platform_address_set_oids(h, address, &oid, 1);
    record.destroy(h, id, target);
}

}  // namespace

void prepare(Handle &handle, const RecordOperations &record, void *instance, Input &input) {
    // What a read overwrites is lost, as documented.
    handle.allow_lost_blocks();
    constexpr unsigned filled = 1, with_ra_data = 2, refers = 4, of_another_variant = 8, strange = 16;
    const unsigned how = input.u8();
    if ((how & filled) != 0) {
        reference::Generator generator(input.u8(), {.min_elements = how >> 5U & 1U,
                                                    .max_elements = 1 + (how >> 6U),
                                                    .max_text = 12,
                                                    .budget = 1024,
                                                    .states = handle.tracks(),
                                                    .strange = (how & strange) != 0});
        bridge::fill(handle, record, instance, generator.make(record.record->name));
    }
    if ((how & with_ra_data) != 0) mirk_platform_set_ra_data(handle, instance, nullptr, input.u8());
    if ((how & refers) != 0) refer(handle, record, instance);
    if ((how & of_another_variant) != 0) handle.set_variant(*record.type, static_cast<std::int8_t>(input.u8()));
    mirk_clear_last_error(handle);
}

const std::string &scratch_folder() {
    struct Folder {
        Folder() {
            path = (std::filesystem::temp_directory_path() / "tarn-fuzz-XXXXXX").string();
            require(::mkdtemp(path.data()) != nullptr, "a folder can be created");
        }
        ~Folder() {
            std::error_code ignored;
            std::filesystem::remove_all(path, ignored);
        }
        std::string path;
    };
    static const Folder folder;
    return folder.path;
}

std::uint8_t *guarded(std::span<const std::uint8_t> bytes) {
    static kit::GuardedMemory memory(most_bytes);
    return memory.put(bytes.data(), std::min(bytes.size(), most_bytes));
}

void use(mirk_handle *h, const RecordOperations &record, void *instance, std::uint32_t size) {
    std::uint8_t *buffer = output().room(size);
    char *text = reinterpret_cast<char *>(buffer);
    const auto room = static_cast<std::int32_t>(size);
    std::uint32_t err = 0;
    record.print(h, id, text, 0, "instance", instance, room, &err);
    err = 0;
    record.to_xml(h, id, "instance", text, instance, room, 0, &err);
    err = 0;
    record.marshal(h, id, buffer, instance, room, &err);
    record.len(h, id, instance);
    require(record.compare(instance, instance) == 0, "an instance equals itself");
    record.hash(instance, 0);
    mirk_clear_last_error(h);
}

void use(mirk_handle *h, const EnumerationOperations &enumeration, void *instance, std::uint32_t size) {
    std::uint8_t *buffer = output().room(size);
    char *text = reinterpret_cast<char *>(buffer);
    const auto room = static_cast<std::int32_t>(size);
    std::uint32_t err = 0;
    enumeration.print(h, id, text, 0, "instance", instance, room, &err);
    err = 0;
    enumeration.to_xml(h, id, "instance", text, instance, room, 0, &err);
    err = 0;
    enumeration.marshal(h, id, buffer, instance, room, &err);
    require(enumeration.compare(instance, instance) == 0, "an instance equals itself");
    enumeration.hash(instance, 0);
    mirk_clear_last_error(h);
}

void use(mirk_handle *h, const MessageOperations &message, void *object, std::uint32_t size) {
    std::uint8_t *buffer = output().room(size);
    char *text = reinterpret_cast<char *>(buffer);
    std::uint32_t err = 0;
    message.print(h, id, text, object, size, &err);
    err = 0;
    message.to_xml(h, id, text, object, size, &err);
    err = 0;
    message.marshal(h, id, buffer, object, size, &err);
    message.len(h, id, object);
    mirk_clear_last_error(h);
}

bridge::Marshalled write(mirk_handle *h, const RecordOperations &record, void *instance) {
    // An instance's content came from an arena of this size, and each of its bytes takes at most four in any form.
    constexpr std::size_t room = 4 * total_ceiling;
    static_assert(room < most_bytes);
    std::uint8_t *buffer = output().room(room);
    bridge::Marshalled result;
    const std::uint32_t written =
        record.marshal(h, id, buffer, instance, static_cast<std::int32_t>(room), &result.error);
    require(written <= room, "no more is written than there is room");
    result.bytes.assign(buffer, buffer + written);
    mirk_clear_last_error(h);
    return result;
}

}  // namespace fuzz
