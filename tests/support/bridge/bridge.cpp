#include "bridge/bridge.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "reference/layout.h"

namespace bridge {

using reference::Class;
using reference::MemberTable;
using reference::RecordTable;
using tarn::reflect::MemberOperations;

namespace {

constexpr std::size_t enumeration_value = 12;  // offset of an enumeration's value
constexpr std::uint8_t ra_data_flag = 32, offset_flag = 64;

mirk_object *header(void *object) { return static_cast<mirk_object *>(object); }

void check(std::uint32_t err, const RecordTable &table, const std::string &member) {
    if (err != 0) throw std::runtime_error(table.name + "." + member + ": error " + std::to_string(err));
}

// While an object without a body is accessed.
class WithBody {
public:
    explicit WithBody(void *object) : object_(header(object)), variant_(object_->variant) { object_->variant = 0; }
    ~WithBody() { object_->variant = variant_; }
    WithBody(const WithBody &) = delete;
    WithBody &operator=(const WithBody &) = delete;

private:
    mirk_object *object_;
    std::int8_t variant_;
};

bool tracks(mirk_handle *h) { return h->sttr_desc != nullptr && h->sttr_desc->sttr_mode == 0xEEEE; }

// An address has no operations for its members, but its struct is public.
std::uint8_t *address_area(mirk_handle *h, ip_address *address) {
    const std::uint32_t away = (address->obj_flag & offset_flag) != 0 ? mirklib_get_sttr_offset(h, id, address)
                                                                      : static_cast<std::uint32_t>(sizeof *address);
    return reinterpret_cast<std::uint8_t *>(address) + away;
}

void fill_header(mirk_handle *h, void *object, const reference::Record &value) {
    if (value.ra) {
        void *word = reinterpret_cast<void *>(static_cast<std::uintptr_t>(value.ra->value));
        check(mirk_platform_set_ra_data(h, object, word, value.ra->byte), *value.table, "RA data");
    }
    header(object)->variant = value.variant;
}

void extract_header(mirk_handle *h, void *object, reference::Record &value) {
    value.variant = header(object)->variant;
    if ((header(object)->obj_flag & ra_data_flag) == 0) return;
    value.ra.emplace();
    void *word = nullptr;
    if (mirk_platform_ra_data(h, object, &word, &value.ra->byte) == 0) {
        value.ra->value = reinterpret_cast<std::uintptr_t>(word);
    }
}

void fill_address(mirk_handle *h, ip_address *address, const reference::Record &value) {
    const reference::Address a = reference::get_address(value);
    address->af = a.af;
    address->prefix_len = a.prefix_len;
    address->scope = a.scope;
    std::memcpy(address->word, a.word.data(), sizeof address->word);
    if (tracks(h)) {
        for (std::size_t i = 0; i < value.members.size(); ++i) address_area(h, address)[i] = value.members[i].state;
    }
    fill_header(h, address, value);
}

reference::Record extract_address(mirk_handle *h, ip_address *address) {
    reference::Record value("ip_address");
    reference::Address a{address->af, address->prefix_len, address->scope, {}};
    std::memcpy(a.word.data(), address->word, sizeof address->word);
    reference::set_address(value, a);
    if (tracks(h)) {
        for (std::size_t i = 0; i < value.members.size(); ++i) value.members[i].state = address_area(h, address)[i];
    }
    extract_header(h, address, value);
    return value;
}

void fill_array(mirk_handle *h, const MemberOperations &operation, const MemberTable &row, void *instance,
                const reference::Member &value, std::uint32_t *err) {
    const RecordOperations &element = operations(row.type);
    const auto n = static_cast<std::uint32_t>(value.items.size());
    if (n == 0) return;
    {
        const Instance fresh(h, element);
        operation.element_set(h, id, instance, n - 1, fresh.get(), err);
    }
    for (std::uint32_t i = 0; i < n && *err == 0; ++i) {
        void *at = operation.element_get(h, id, instance, i, err);
        if (at != nullptr) fill(h, element, at, value.items[i]);
        if (tracks(h)) operation.element_state_flag_set(h, id, instance, i, value.element_state[i], err);
    }
}

void fill_member(mirk_handle *h, const RecordOperations &record, const MemberOperations &operation,
                 const MemberTable &row, void *instance, const reference::Member &value, std::uint32_t *err) {
    switch (row.cls) {
        case Class::count:
        case Class::length:
            return;
        case Class::integer:
            operation.set_value(h, id, instance, value.number, err);
            return;
        case Class::boolean: {
            operation.set_value(h, id, instance, value.number != 0, err);
            auto *boolean = static_cast<mirk_boolean *>(operation.get(h, id, instance, err));
            if (boolean == nullptr) return;
            boolean->value = static_cast<std::uint8_t>(value.number);
            boolean->variant = value.variant;
            return;
        }
        case Class::enumeration: {
            // Its setter refuses a number out of range, which a sender can choose nevertheless.
            operation.set_value(h, id, instance, 0, err);
            void *enumeration = operation.get(h, id, instance, err);
            if (enumeration == nullptr) return;
            const auto number = static_cast<std::uint32_t>(value.number);
            std::memcpy(static_cast<char *>(enumeration) + enumeration_value, &number, sizeof number);
            header(enumeration)->variant = value.variant;
            return;
        }
        case Class::address:
            fill_address(h, static_cast<ip_address *>(operation.get(h, id, instance, err)), value.items[0]);
            return;
        case Class::nested:
            fill(h, operations(row.type), operation.get(h, id, instance, err), value.items[0]);
            return;
        case Class::string:
            if (value.text.empty()) return;
            // Its setter stops at the first NUL byte, so the characters are written directly.
            operation.text_set(h, id, instance, value.text.data(), static_cast<std::uint32_t>(value.text.size()), err);
            if (*err == 0) std::memcpy(block_of(record, instance, row.name), value.text.data(), value.text.size());
            return;
        case Class::array:
            fill_array(h, operation, row, instance, value, err);
            return;
    }
}

// size: the number of elements or characters in the block.
void extract_member(mirk_handle *h, const RecordOperations &record, const MemberOperations &operation,
                    const MemberTable &row, void *instance, std::uint32_t size, reference::Member &value,
                    std::uint32_t *err) {
    switch (row.cls) {
        case Class::count:
        case Class::length:
            return;
        case Class::integer:
            value.number = operation.get_value(h, id, instance, err);
            return;
        case Class::boolean: {
            const auto *boolean = static_cast<mirk_boolean *>(operation.get(h, id, instance, err));
            if (boolean == nullptr) return;
            value.number = boolean->value;
            value.variant = boolean->variant;
            return;
        }
        case Class::enumeration: {
            void *enumeration = operation.get(h, id, instance, err);
            if (enumeration == nullptr) return;
            std::uint32_t number = 0;
            std::memcpy(&number, static_cast<char *>(enumeration) + enumeration_value, sizeof number);
            value.number = number;
            value.variant = header(enumeration)->variant;
            return;
        }
        case Class::address:
            value.items[0] = extract_address(h, static_cast<ip_address *>(operation.get(h, id, instance, err)));
            return;
        case Class::nested:
            value.items[0] = extract(h, operations(row.type), operation.get(h, id, instance, err));
            return;
        case Class::string:
            // Its getter stops at the first NUL byte, so the characters are read directly.
            if (size != 0) value.text.assign(static_cast<const char *>(block_of(record, instance, row.name)), size);
            return;
        case Class::array:
            value.items.clear();
            value.items.reserve(size);
            for (std::uint32_t i = 0; i < size && *err == 0; ++i) {
                void *element = operation.element_get(h, id, instance, i, err);
                if (element == nullptr) return;
                value.items.push_back(extract(h, operations(row.type), element));
                const std::uint8_t state =
                    tracks(h) ? operation.element_state_flag_get(h, id, instance, i, err) : std::uint8_t{0};
                value.element_state.push_back(state);
            }
            return;
    }
}

}  // namespace

const RecordOperations &operations(std::string_view record) {
    const RecordOperations *found = tarn::reflect::find_record(record);
    if (found == nullptr) throw std::out_of_range("no record " + std::string(record));
    return *found;
}

void fill(mirk_handle *h, const RecordOperations &record, void *instance, const reference::Record &value) {
    const RecordTable &table = *value.table;
    for (std::size_t i = 0; i < table.members.size(); ++i) {
        std::uint32_t err = 0;
        fill_member(h, record, record.members[i], table.members[i], instance, value.members[i], &err);
        check(err, table, table.members[i].name);
    }
    // States after all values, whose setters mark them as written.
    for (std::size_t i = 0; tracks(h) && i < table.members.size(); ++i) {
        if (!table.members[i].tracked()) continue;
        std::uint32_t err = 0;
        record.members[i].state_flag_set(h, id, instance, value.members[i].state, &err);
        check(err, table, table.members[i].name);
    }
    fill_header(h, instance, value);
}

reference::Record extract(mirk_handle *h, const RecordOperations &record, void *instance) {
    const RecordTable &table = reference::record_table(record.record->name);
    reference::Record value(table);
    extract_header(h, instance, value);
    const WithBody body(instance);
    for (std::size_t i = 0; i < table.members.size(); ++i) {
        std::uint32_t err = 0;
        // A count or length without a block, as after a failed read, counts nothing.
        const bool has_block = block_of(record, instance, table.members[i].name) != nullptr;
        const auto size = has_block ? static_cast<std::uint32_t>(record.members[i - 1].get_value(h, id, instance, &err))
                                    : std::uint32_t{0};
        extract_member(h, record, record.members[i], table.members[i], instance, size, value.members[i], &err);
        if (tracks(h) && table.members[i].tracked()) {
            value.members[i].state = record.members[i].state_flag_get(h, id, instance, &err);
        }
        check(err, table, table.members[i].name);
    }
    return value;
}

Instance::Instance(mirk_handle *h, const RecordOperations &record)
    : handle_(h), record_(&record), instance_(record.create(h, id)) {
    if (instance_ == nullptr) throw std::runtime_error("no " + std::string(record.record->name));
}

void *Instance::release() {
    void *instance = instance_;
    instance_ = nullptr;
    return instance;
}

void Instance::reset() {
    if (instance_ != nullptr) record_->destroy(handle_, id, instance_);
    instance_ = nullptr;
}

Marshalled marshal(mirk_handle *h, const RecordOperations &record, void *instance) {
    // len counts no RA data, which each nested frame may contain.
    constexpr std::size_t ra_room = 3;
    std::vector<std::uint8_t> buffer(ra_room * record.len(h, id, instance) + 64);
    Marshalled result;
    const std::uint32_t written =
        record.marshal(h, id, buffer.data(), instance, static_cast<std::int32_t>(buffer.size() - 1), &result.error);
    buffer.resize(written);
    result.bytes = std::move(buffer);
    return result;
}

const MemberOperations &member(const RecordOperations &record, std::string_view name) {
    for (const MemberOperations &m : record.members) {
        if (m.member->name == name) return m;
    }
    throw std::out_of_range("no member " + std::string(name));
}

void *block_of(const RecordOperations &record, const void *instance, std::string_view name) {
    const RecordTable &table = reference::record_table(record.record->name);
    const std::uint32_t offset = reference::layout_of(table).members[table.index_of(name)].block_offset;
    void *block = nullptr;
    if (offset != reference::no_slot) std::memcpy(&block, static_cast<const char *>(instance) + offset, sizeof block);
    return block;
}

bool owns_blocks(const RecordTable &table) {
    for (const MemberTable &row : table.members) {
        if (row.cls == Class::array || row.cls == Class::string) return true;
        if (row.cls == Class::nested && owns_blocks(row.element())) return true;
    }
    return false;
}

testing::AssertionResult same(const reference::Record &expected, const reference::Record &actual) {
    const std::string difference = reference::first_difference(expected, actual);
    if (difference.empty()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << difference;
}

testing::AssertionResult same(const reference::Bytes &expected, const reference::Bytes &actual) {
    const std::size_t shorter = std::min(expected.size(), actual.size());
    for (std::size_t i = 0; i < shorter; ++i) {
        if (expected[i] == actual[i]) continue;
        return testing::AssertionFailure() << "byte " << i << " of " << expected.size() << ": expected "
                                           << unsigned{expected[i]} << ", found " << unsigned{actual[i]};
    }
    if (expected.size() == actual.size()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected " << expected.size() << " bytes, found " << actual.size();
}

}  // namespace bridge
