// The schema as plain tables, independent of the library so that tests can compare the two.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace reference {

enum class Class { integer, boolean, enumeration, address, nested, length, string, count, array };

using Luid = std::array<std::uint8_t, 16>;

struct RecordTable;

struct MemberTable {
    std::string name;
    Class cls = Class::integer;
    std::string type;        // u_int8 to u_int64, mirk_boolean, ip_address, var_string, an enumeration, a record
    unsigned width = 0;      // bytes of an integer, count or length
    std::string counted_by;  // count member of an array, length member of a string
    bool product = false;    // array whose length is computed as that of element 0 times the count

    // Members with a state byte of their own.
    bool tracked() const { return cls != Class::count && cls != Class::length; }
    // The record of a nested record, an address or an array element.
    const RecordTable &element() const;
};

struct RecordTable {
    std::string name;
    Luid luid{};
    // Expected sizes: end of the last member, that rounded up to 8, slop, base size, state area, both together.
    std::uint32_t used = 0, rounded = 0, slop = 0, base = 0, state = 0, tracked = 0;
    std::vector<MemberTable> members;

    std::size_t index_of(std::string_view member) const;  // throws std::out_of_range
    const MemberTable &member(std::string_view member) const { return members[index_of(member)]; }
};

struct EnumerationTable {
    std::string name;
    Luid luid{};
    std::vector<std::string> enumerators;
};

struct MessageTable {
    std::string name;
    Luid luid{};
    std::string payload;
    std::vector<std::string> bundles;
};

struct BundleTable {
    std::string name, message;
    Luid start{}, abort{}, commit{};

    const Luid &luid(std::string_view kind) const;  // throws std::out_of_range
};

// In the order of the type table. An address is not among the records, but has a table of the same form.
const std::vector<RecordTable> &records();
const std::vector<EnumerationTable> &enumerations();
const std::vector<MessageTable> &messages();
const std::vector<BundleTable> &bundles();
const RecordTable &address_table();

// These throw std::out_of_range for a name that is not in the schema; record_table knows ip_address too.
const RecordTable &record_table(std::string_view name);
const EnumerationTable &enumeration_table(std::string_view name);
const MessageTable &message_table(std::string_view name);
const BundleTable &bundle_table(std::string_view name);

// Number of members of that class in all records.
std::size_t members_of(Class cls);

std::string luid_text(const Luid &luid);

extern const char *const record_tables;
extern const char *const catalogue_tables;

}  // namespace reference
