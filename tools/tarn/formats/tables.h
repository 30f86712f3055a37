// Records as tables: one flattening, which `tarn rows`, `tarn export` and its documentation share.
//
// A payload, and each element of a list, is a row. Its columns are the members of the record, and those of the records
// that it nests with the path as name: "appl.id". A list is no column; its elements are rows of their own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

// Nothing, a number, text or an address. Text and addresses belong to the instance.
using Value = std::variant<std::monostate, std::uint64_t, std::string_view, ip_address *>;

// The offset of a member at any depth of nested records: of each record that contains it, then of the member.
using Offsets = std::vector<std::uint32_t>;

struct Column {
    std::string name;
    const schema::Member *member;
    Offsets offsets;
    std::ptrdiff_t length = 0;  // from the member to the length of its string

    // Nothing if the record of the member, or one around it, has no body.
    Value read(void *instance) const;
};

struct Table;

struct List {
    std::string path;  // "agg_tc_list.tc_list"
    const Table *element;
    const reflect::MemberOperations *array;
    Offsets records;  // of the nested records that contain it
    Column count;
};

struct Table {
    const schema::Record *record;
    std::string name;              // of the record without the prefix "lumo_tarn_"
    std::vector<Column> columns;   // counts of lists are included, lengths of strings are not
    std::vector<List> lists;       // also those of nested records
    std::vector<std::size_t> key;  // columns that identify an element of a list
};

// One for each record, in the order of the catalogue.
std::span<const Table> tables();
const Table &table_of(const schema::Record &record);

// By the name of its record, which may be given without "lumo_tarn_", and also without the side to which it belongs:
// "tc" for lumo_tarn_dp_tc; or by a bundle or a message, whose payload it is. Throws a Failure if there is no such
// record, or more than one.
const Table &table_named(std::string_view name);

// A payload or an element of a list.
struct Row {
    const Table *table;
    void *instance;
    const Row *parent = nullptr;  // of the list; null for a payload
    const List *list = nullptr;
    std::uint32_t position = 0;  // in the list
    std::size_t number = 0;      // of the visit, in its message
};

// Visits the payload and the elements of its lists, a row before the rows of its lists. Lists for which `enters` is
// false are left out.
void for_each_row(const Message &message, const std::function<bool(const List &)> &enters,
                  const std::function<void(const Row &)> &visit);

// A record inside the rows of a table: the record of the row itself, or one that it nests.
struct Occurrence {
    std::string path;  // "appl"; empty for the record of the row
    Offsets offsets;

    // Null if one of the records around it has no body.
    void *find(void *instance) const;
};
std::vector<Occurrence> occurrences(const Table &in, const schema::Record &record);

// True if the table or a list in it contains the record.
bool reaches(const Table &from, const schema::Record &record);

// A key of one of the records around a record, over all places where it occurs; outermost first.
struct KeyColumn {
    const Table *table;
    const Column *column;

    std::string name() const { return table->name + "." + column->name; }
};
std::vector<KeyColumn> keys_around(const schema::Record &record);

// How a value is shown: numbers in decimal or, if the member is a pointer, as "0x" and 16 digits; true or false;
// the enumerator if it has a name; the address; text as it is; nothing for no value.
void append_shown(std::string &out, const Handle &handle, const schema::Member &member, const Value &value);

// 20 bytes whose order is that of addresses: the address family (2 for IPv4, 10 for IPv6), 16 bytes of address, of
// which IPv4 uses the first four, the prefix length, two bytes of scope.
std::string sortable(const ip_address &address);

}  // namespace tarn::tool
