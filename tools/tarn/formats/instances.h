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

#include "tools/tarn/formats/tables.h"
#include "tools/tarn/support/identity.h"

namespace tarn::tool {

// Where a message was found.
struct Origin {
    std::string_view file;
    std::size_t number;                       // of the message in the file, from 1
    const reflect::BundleOperations *bundle;  // null outside bundles
};

// A column of these rows: first where the instance was found, then the keys of the records around it, then its members.
struct RowField {
    enum class From : std::uint8_t { file, message, bundle, path, key, member };

    std::string name;
    const schema::Member *member;  // its kind, notation and meaning
    From from;
    const Column *column = nullptr;
    const Table *table = nullptr;  // of the record that has the key
};

// One of these rows, while it is visited.
class Instance {
public:
    Instance(const Origin &source, const Handle &handle, const Row &row, const Occurrence &occurrence, void *object)
        : source_(source), handle_(handle), row_(row), occurrence_(occurrence), object_(object) {}

    const Handle &handle() const { return handle_; }
    Value value(const RowField &field) const;  // text is valid until the next call

private:
    std::string_view path() const;
    const Row *around(const Table *table) const;

    const Origin &source_;
    const Handle &handle_;
    const Row &row_;
    const Occurrence &occurrence_;
    void *object_;
    mutable std::string path_;
};

class Instances {
public:
    explicit Instances(const schema::Record &record);

    const std::vector<RowField> &fields() const { return fields_; }
    // The field of that name. Throws a Failure if there is none; `where` is what names it.
    const RowField &field(std::string_view name, const std::string &where) const;
    // Visits the instances in the message, in its order.
    void visit(const Origin &source, const Message &message, const std::function<void(const Instance &)> &visit) const;

private:
    std::vector<RowField> fields_;
    std::map<const Table *, std::vector<Occurrence>> occurrences_;
    std::set<const List *> entered_;
};

// A value that outlives its message; the order of numbers, of addresses and of text. No value comes first.
using Sortable = std::variant<std::monostate, std::uint64_t, std::string>;
Sortable sortable(const Value &value);

}  // namespace tarn::tool
