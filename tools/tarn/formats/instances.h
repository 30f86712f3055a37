// The instances of one record, wherever they occur, as rows: what `tarn rows` shows.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tools/tarn/formats/input.h"
#include "tools/tarn/formats/tables.h"

namespace tarn::tool {

// A column of these rows: first where the instance was found, then the keys of the records around it, then its members.
struct RowColumn {
    enum class Origin : std::uint8_t { file, message, connection, bundle, path, key, member };

    std::string name;
    const schema::Member *member;  // its kind, notation and meaning
    Origin origin;
    const Column *value = nullptr;  // of a key or a member
    const Table *table = nullptr;   // of the record that has the key
};

// One of these rows, while it is visited.
class Instance {
public:
    Instance(const Entry &entry, const Handle &handle, const Row &row, const Occurrence &occurrence, void *object)
        : entry_(entry), handle_(handle), row_(row), occurrence_(occurrence), object_(object) {}

    const Handle &handle() const { return handle_; }
    Value value(const RowColumn &column) const;  // text is valid until the next call

private:
    std::string_view path() const;
    const Row *around(const Table *table) const;

    const Entry &entry_;
    const Handle &handle_;
    const Row &row_;
    const Occurrence &occurrence_;
    void *object_;
    mutable std::string path_;
};

class Instances {
public:
    explicit Instances(const schema::Record &record);

    const std::vector<RowColumn> &columns() const { return columns_; }
    // The column of that name. Throws a Failure if there is none; `where` is what names it.
    const RowColumn &column(std::string_view name, const std::string &where) const;
    // Visits the instances in the message, in its order.
    void visit(const Entry &entry, const std::function<void(const Instance &)> &visit) const;

private:
    std::vector<RowColumn> columns_;
    std::map<const Table *, std::vector<Occurrence>> occurrences_;
    std::set<const List *> entered_;
};

// A value that outlives its message; the order of numbers, of addresses and of text. No value comes first.
using Sortable = std::variant<std::monostate, std::uint64_t, std::string>;
Sortable sortable(const Value &value);

}  // namespace tarn::tool
