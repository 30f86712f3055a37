#include "tools/tarn/support/instance.h"

#include <cerrno>
#include <cstring>

#include "schema/layout.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

constexpr std::uint8_t has_state_offset = 64, has_ra_data = 32;

template <typename T>
T load(const void *object, std::size_t offset) {
    T value;
    std::memcpy(&value, static_cast<const char *>(object) + offset, sizeof value);
    return value;
}

}  // namespace

std::string string_at(const schema::Record &record, std::size_t index, void *instance) {
    const schema::Layout layout = schema::lay_out(record);
    const auto length = load<std::uint16_t>(instance, layout.members[index - 1].offset);
    const auto *body = load<const char *>(instance, layout.members[index].offset);
    return body != nullptr ? std::string(body, length) : std::string();
}

std::int8_t variant_of(const void *object) { return static_cast<const mirk_object *>(object)->variant; }

void set_variant(void *object, std::int8_t variant) { static_cast<mirk_object *>(object)->variant = variant; }

std::optional<RaData> ra_data_of(const Handle &handle, void *object) {
    if ((static_cast<const mirk_object *>(object)->obj_flag & has_ra_data) == 0) return std::nullopt;
    void *value = nullptr;
    RaData data{};
    if (mirk_platform_ra_data(handle.get(), object, &value, &data.byte) != 0) return data;
    data.value = reinterpret_cast<std::uintptr_t>(value);
    return data;
}

void set_ra_data(const Handle &handle, void *object, const RaData &data) {
    void *value = nullptr;
    static_assert(sizeof value == sizeof data.value);
    std::memcpy(&value, &data.value, sizeof value);
    if (mirk_platform_set_ra_data(handle.get(), object, value, data.byte) != 0) {
        throw Failure(Exit::environment, "out of memory for RA data");
    }
}

std::string address_text(const Handle &handle, ip_address *address) {
    char buffer[256];
    std::uint32_t err = 0;
    const std::uint32_t size =
        ip_address_to_xml(handle.get(), context_id, "a", buffer, address, sizeof buffer, 0, &err);
    if (err != 0) throw Failure(exit_of(err), "cannot write an address: " + error_text(err));
    const std::string_view element(buffer, size);
    constexpr std::string_view open = "<a>", close = "</a>";
    return std::string(element.substr(open.size(), element.size() - open.size() - close.size()));
}

std::string address_text(const Handle &handle, std::span<const std::uint64_t> members) {
    ip_address address{};
    address.af = static_cast<std::uint8_t>(members[0]);
    address.prefix_len = static_cast<std::uint8_t>(members[1]);
    address.scope = static_cast<std::uint16_t>(members[2]);
    for (std::size_t i = 0; i < std::size(address.word); ++i) {
        address.word[i] = static_cast<std::uint32_t>(members[3 + i]);
    }
    return address_text(handle, &address);
}

bool set_address(ip_address *address, std::string_view text) {
    return mirk_platform_address_parse(text.data(), text.size(), address) == 0;
}

std::uint8_t *address_state(const Handle &handle, ip_address *address) {
    if (!handle.tracked() || (address->obj_flag & has_state_offset) == 0) return nullptr;
    return reinterpret_cast<std::uint8_t *>(address) + mirklib_get_sttr_offset(handle.get(), context_id, address);
}

// Setting the last element first grows the array only once.
std::uint32_t lengthen(const Handle &handle, const reflect::MemberOperations &list, void *instance,
                       std::uint32_t count) {
    const reflect::RecordOperations &element = reflect::operations_of(*list.member->record);
    void *const fresh = element.create(handle.get(), context_id);
    if (fresh == nullptr) return ENOMEM;
    std::uint32_t err = 0;
    list.element_set(handle.get(), context_id, instance, count - 1, fresh, &err);
    element.destroy(handle.get(), context_id, fresh);
    return err;
}

std::uint32_t enumeration_value(const void *enumeration) {
    return load<std::uint32_t>(enumeration, schema::enumeration_value_offset);
}

void set_enumeration_value(void *enumeration, std::uint32_t value) {
    std::memcpy(static_cast<char *>(enumeration) + schema::enumeration_value_offset, &value, sizeof value);
}

}  // namespace tarn::tool
