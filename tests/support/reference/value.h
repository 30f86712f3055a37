// The value of one record instance as a tree, independent of its layout in memory.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "reference/tables.h"

namespace reference {

struct Record;

// One member. Its class determines which parts are used; the others keep their defaults. So do count and length
// members, whose number is that of the array or the string after them.
struct Member {
    std::uint64_t number = 0;                 // integer, boolean (0 or 1 to 255), enumeration
    std::int8_t variant = 0;                  // boolean, enumeration
    std::string text;                         // string: any bytes
    std::vector<Record> items;                // nested record and address: exactly one; array: its elements
    std::uint8_t state = 0;                   // the member's state byte; for an array that of the whole
    std::vector<std::uint8_t> element_state;  // array: one byte for each element

    bool operator==(const Member &other) const;
};

struct ReferenceData {
    std::uint64_t value = 0;
    std::uint8_t byte = 0;

    bool operator==(const ReferenceData &) const = default;
};

// A record or an address; an address is a record of seven integers (af, prefix_len, scope, word[0] to word[3]).
struct Record {
    const RecordTable *table = nullptr;
    std::int8_t variant = 0;
    std::optional<ReferenceData> ra;
    std::vector<Member> members;  // one for each row of the table

    Record() = default;
    explicit Record(const RecordTable &t);  // all zero, like a new instance
    explicit Record(std::string_view type) : Record(record_table(type)) {}

    Member &operator[](std::string_view name) { return members[table->index_of(name)]; }
    const Member &operator[](std::string_view name) const { return members[table->index_of(name)]; }
    // The nested record or address.
    Record &nested(std::string_view name) { return (*this)[name].items.at(0); }
    const Record &nested(std::string_view name) const { return (*this)[name].items.at(0); }
    // Adds an element with the state given, and returns it.
    Record &append(std::string_view array, std::uint8_t element_state = 0);
    // The number of a member: for a count that of the elements, for a length that of the bytes.
    std::uint64_t number(std::size_t index) const;

    bool operator==(const Record &other) const;
};

struct Address {
    std::uint8_t af = 0, prefix_len = 0;
    std::uint16_t scope = 0;
    std::array<std::uint32_t, 4> word{};
};

void set_address(Record &address, const Address &value);
Address get_address(const Record &address);

// The value after its frame was read into a new instance: variants above 0 are 0, a body that was not sent is as new,
// the state of empty arrays and strings is not sent, and without tracking there is none.
Record as_received(const Record &value, bool tracked);

// Empty if equal, else the path of the first member that differs and both values.
std::string first_difference(const Record &a, const Record &b);

struct GeneratorOptions {
    std::uint32_t min_elements = 0, max_elements = 3;  // of every array, as far as the count member allows
    std::uint32_t min_text = 0, max_text = 40;         // bytes of every string
    std::size_t budget = 16384;                        // bytes of arrays and strings in one value, on the wire
    bool states = true;                                // random state bytes, also of empty arrays and strings
    bool strange = false;                              // negative variants, enumerations out of range, RA data
    bool printable = false;                            // strings of printable ASCII only
};

// The same seed and options give the same values everywhere.
class Generator {
public:
    explicit Generator(std::uint64_t seed, GeneratorOptions options = {}) : random_(seed), options_(options) {}

    Record make(std::string_view type);
    std::uint64_t below(std::uint64_t limit) { return limit == 0 ? 0 : random_() % limit; }

private:
    Record fill(const RecordTable &table);
    void fill_member(const MemberTable &row, Member &member);
    void fill_array(const MemberTable &row, std::uint32_t limit, Member &member);
    void fill_text(Member &member);
    void fill_address(Record &address);
    std::uint64_t number(unsigned width);
    std::uint8_t state() { return options_.states ? static_cast<std::uint8_t>(below(256)) : std::uint8_t{0}; }
    bool strangely() { return options_.strange && below(16) == 0; }

    std::mt19937_64 random_;
    GeneratorOptions options_;
    std::size_t budget_ = 0;
};

}  // namespace reference
