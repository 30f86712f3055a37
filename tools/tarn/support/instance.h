// Values that the accessors do not return in full. They are read and written through the layout of the schema and the
// operations of the runtime.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

// The whole string; the accessors stop at the first NUL, which a string from a frame may contain.
std::string string_at(const schema::Record &record, std::size_t index, void *instance);

std::int8_t variant_of(const void *object);
void set_variant(void *object, std::int8_t variant);

struct RaData {
    std::uint64_t value;
    std::uint8_t byte;
};
std::optional<RaData> ra_data_of(const Handle &handle, void *object);
void set_ra_data(const Handle &handle, void *object, const RaData &data);

std::string address_text(const Handle &handle, ip_address *address);
// The same for its members.
std::string address_text(const Handle &handle, std::span<const std::uint64_t> members);
// False if the text is not an address.
bool set_address(ip_address *address, std::string_view text);

// The seven state bytes of an address; null if it has none.
std::uint8_t *address_state(const Handle &handle, ip_address *address);

// Gives an empty list this number of elements, which is at least one. Returns the error of the library.
std::uint32_t lengthen(const Handle &handle, const reflect::MemberOperations &list, void *instance,
                       std::uint32_t count);

std::uint32_t enumeration_value(const void *enumeration);
void set_enumeration_value(void *enumeration, std::uint32_t value);

}  // namespace tarn::tool
