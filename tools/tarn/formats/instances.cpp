#include "tools/tarn/formats/instances.h"

#include <algorithm>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

constexpr schema::Member places[] = {
    schema::string("file", "file in which the message is"),
    schema::u64("message", "number of the message in its file"),
    schema::string("connection", "connection in a network capture"),
    schema::string("bundle", "bundle in which the message is"),
    schema::string("path", "path of the record in the message"),
};

}  // namespace

Value Instance::value(const RowColumn &column) const {
    switch (column.origin) {
        case RowColumn::Origin::file:
            return entry_.file;
        case RowColumn::Origin::message:
            return std::uint64_t{entry_.number};
        case RowColumn::Origin::connection:
            if (entry_.connection.empty()) return {};
            return entry_.connection;
        case RowColumn::Origin::bundle:
            if (entry_.bundle == nullptr) return {};
            return entry_.bundle->bundle->name;
        case RowColumn::Origin::path:
            return path();
        case RowColumn::Origin::key: {
            const Row *const row = around(column.table);
            return row != nullptr ? column.value->read(row->instance) : Value();
        }
        case RowColumn::Origin::member:
            break;
    }
    return column.value->read(object_);
}

// "lumo_data[0].agg_tc_list.tc_list[3]"
std::string_view Instance::path() const {
    std::vector<const Row *> rows;
    for (const Row *row = &row_; row->list != nullptr; row = row->parent) rows.push_back(row);
    path_.clear();
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        if (!path_.empty()) path_ += '.';
        path_ += (*row)->list->path + "[" + std::to_string((*row)->position) + "]";
    }
    if (!path_.empty() && !occurrence_.path.empty()) path_ += '.';
    return path_ += occurrence_.path;
}

const Row *Instance::around(const Table *table) const {
    const Row *row = occurrence_.path.empty() ? row_.parent : &row_;
    while (row != nullptr && (row->table != table || row->list == nullptr)) row = row->parent;
    return row;
}

Instances::Instances(const schema::Record &record) {
    for (std::size_t i = 0; i < std::size(places); ++i) {
        columns_.push_back({std::string(places[i].name), &places[i], static_cast<RowColumn::Origin>(i)});
    }
    for (const KeyColumn &k : keys_around(record)) {
        columns_.push_back({k.name(), k.column->member, RowColumn::Origin::key, k.column, k.table});
    }
    for (const Column &c : table_of(record).columns) {
        columns_.push_back({c.name, c.member, RowColumn::Origin::member, &c});
    }
    for (const Table &table : tables()) {
        occurrences_[&table] = occurrences(table, record);
        for (const List &list : table.lists) {
            if (reaches(*list.element, record)) entered_.insert(&list);
        }
    }
}

const RowColumn &Instances::column(std::string_view name, const std::string &where) const {
    for (const RowColumn &f : columns_) {
        if (f.name == name) return f;
    }
    std::vector<std::string> names;
    for (const RowColumn &f : columns_) names.push_back(f.name);
    std::string help = suggestion(name, names);
    if (help.empty()) {
        help = "; there are ";
        for (const std::string &n : names) help += (&n == &names.front() ? "" : ", ") + n;
    }
    throw Failure(Exit::input, where + ": unknown column " + in_quotes(name) + help);
}

void Instances::visit(const Entry &entry, const std::function<void(const Instance &)> &visit) const {
    const Message &message = *entry.item.message;
    for_each_row(
        message, [&](const List &list) { return entered_.contains(&list); },
        [&](const Row &row) {
            for (const Occurrence &occurrence : occurrences_.at(row.table)) {
                void *const object = occurrence.find(row.instance);
                if (object != nullptr) visit(Instance(entry, message.handle(), row, occurrence, object));
            }
        });
}

Sortable sortable(const Value &value) {
    if (const auto *const number = std::get_if<std::uint64_t>(&value)) return *number;
    if (const auto *const text = std::get_if<std::string_view>(&value)) return std::string(*text);
    if (auto *const *const address = std::get_if<ip_address *>(&value)) return sortable(**address);
    return {};
}

}  // namespace tarn::tool
