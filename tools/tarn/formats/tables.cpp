#include "tools/tarn/formats/tables.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

#include "schema/catalogue.h"
#include "schema/layout.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using namespace schema;

constexpr std::string_view name_prefix = "lumo_tarn_";
constexpr std::array<std::string_view, 3> sides = {"dp_", "cl_", "pal_"};

template <class T>
T stored(const void *at) {
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

std::uint64_t integer_at(Kind kind, const void *at) {
    switch (schema::facts(kind).storage) {
        case 1:
            return stored<std::uint8_t>(at);
        case 2:
            return stored<std::uint16_t>(at);
        case 4:
            return stored<std::uint32_t>(at);
        default:
            return stored<std::uint64_t>(at);
    }
}

// The record at the end of the offsets; null if one around it has no body.
char *follow(void *instance, std::span<const std::uint32_t> offsets) {
    auto *at = static_cast<char *>(instance);
    for (const std::uint32_t offset : offsets) {
        if (variant_of(at) < 0) return nullptr;
        at += offset;
    }
    return at;
}

class Flattening {
public:
    Flattening(Table &table, const std::function<const Table *(const Record &)> &known) : table_(table), known_(known) {
        add(*table.record, "", {});
        for (const std::string_view name : table.record->key.members()) {
            const auto is_key = [&](const Column &c) { return c.name == name; };
            const auto found = std::find_if(table.columns.begin(), table.columns.end(), is_key);
            table.key.push_back(static_cast<std::size_t>(found - table.columns.begin()));
        }
    }

private:
    void add(const Record &record, const std::string &path, const Offsets &records) {
        const schema::Layout layout = schema::lay_out(record);
        const auto &operations = reflect::operations_of(record);
        for (std::size_t i = 0; i < record.members.size(); ++i) {
            const Member &m = record.members[i];
            const std::string name = path + std::string(m.name);
            const auto to = [&](std::size_t index) {
                Offsets offsets = records;
                offsets.push_back(layout.members[index].offset);
                return offsets;
            };
            if (m.kind == Kind::record) {
                add(*m.record, name + ".", to(i));
            } else if (m.kind == Kind::array) {
                const Member &count = record.members[i - 1];
                table_.lists.push_back({name,
                                        known_(*m.record),
                                        &operations.members[i],
                                        records,
                                        {path + std::string(count.name), &count, to(i - 1), 0}});
            } else if (m.role != Role::length) {
                const auto offset = std::ptrdiff_t{layout.members[i].offset};
                const bool is_string = m.kind == Kind::string;
                const std::ptrdiff_t length = is_string ? layout.members[i - 1].offset - offset : 0;
                table_.columns.push_back({name, &m, to(i), length});
            }
        }
    }

    Table &table_;
    const std::function<const Table *(const Record &)> &known_;
};

std::vector<Table> make_tables() {
    std::vector<Table> all;
    all.reserve(schema::records.size());
    const std::function<const Table *(const Record &)> known = [&](const Record &record) {
        const auto is_it = [&](const Table &t) { return t.record == &record; };
        return &*std::find_if(all.begin(), all.end(), is_it);
    };
    for (const Record *record : schema::records) all.push_back({record, {}, {}, {}, {}});
    for (Table &table : all) {
        table.name = table.record->name.substr(name_prefix.size());
        const Flattening flattening(table, known);
    }
    return all;
}

std::string_view without_side(std::string_view name) {
    for (const std::string_view side : sides) {
        if (name.starts_with(side)) return name.substr(side.size());
    }
    return name;
}

class Visit {
public:
    Visit(const Handle &handle, const std::function<bool(const List &)> &enters,
          const std::function<void(const Row &)> &visit)
        : handle_(handle), enters_(enters), visit_(visit) {}

    void run(Row row) {
        row.number = visited_++;
        visit_(row);
        for (const List &list : row.table->lists) {
            if (enters_(list)) elements(row, list);
        }
    }

private:
    void elements(const Row &row, const List &list) {
        char *const record = follow(row.instance, list.records);
        const Value count = list.count.read(row.instance);
        const auto *const size = std::get_if<std::uint64_t>(&count);
        for (std::uint32_t i = 0; size != nullptr && i < *size; ++i) {
            std::uint32_t err = 0;
            void *const element = list.array->element_get(handle_.get(), context_id, record, i, &err);
            if (element == nullptr) break;
            run({list.element, element, &row, &list, i});
        }
    }

    const Handle &handle_;
    const std::function<bool(const List &)> &enters_;
    const std::function<void(const Row &)> &visit_;
    std::size_t visited_ = 0;
};

// Adds the keys of the records around each occurrence in the rows of `table` and of its lists. `around` are the tables
// of the elements that contain such a row.
void add_keys(const Table &table, std::vector<const Table *> around, bool is_element, const Record &record,
              std::vector<KeyColumn> &keys) {
    const auto add = [&](const Table &t) {
        for (const std::size_t i : t.key) {
            const Column *const column = &t.columns[i];
            const auto is_it = [&](const KeyColumn &k) { return k.column == column; };
            if (std::none_of(keys.begin(), keys.end(), is_it)) keys.push_back({&t, column});
        }
    };
    const std::vector<Occurrence> here = occurrences(table, record);
    if (!here.empty()) {
        for (const Table *t : around) add(*t);
        if (is_element && !here.front().path.empty()) add(table);
    }
    if (is_element) around.push_back(&table);
    for (const List &list : table.lists) add_keys(*list.element, around, true, record, keys);
}

void find_occurrences(const Record &in, const Record &record, const std::string &path, const Offsets &offsets,
                      std::vector<Occurrence> &all) {
    if (&in == &record) all.push_back({path, offsets});
    const schema::Layout layout = schema::lay_out(in);
    for (std::size_t i = 0; i < in.members.size(); ++i) {
        const Member &m = in.members[i];
        if (m.kind != Kind::record) continue;
        Offsets to = offsets;
        to.push_back(layout.members[i].offset);
        find_occurrences(*m.record, record, path + (path.empty() ? "" : ".") + std::string(m.name), to, all);
    }
}

}  // namespace

Value Column::read(void *instance) const {
    // A member is inside a record with a body; an address may be without one itself.
    char *const at = follow(instance, offsets);
    if (at == nullptr) return {};
    switch (category(member->kind)) {
        case Category::integer:
            return integer_at(member->kind, at);
        case Category::boolean:
            return std::uint64_t{reinterpret_cast<const mirk_boolean *>(at)->value};
        case Category::enumeration:
            return std::uint64_t{enumeration_value(at)};
        case Category::address:
            if (variant_of(at) < 0) return {};
            return reinterpret_cast<ip_address *>(at);
        case Category::string:
            return stored<const char *>(at) != nullptr
                       ? std::string_view(stored<const char *>(at), stored<std::uint16_t>(at + length))
                       : std::string_view();
        case Category::record:
        case Category::array:
            break;
    }
    return {};
}

std::span<const Table> tables() {
    static const std::vector<Table> all = make_tables();
    return all;
}

const Table &table_of(const Record &record) {
    return *std::find_if(tables().begin(), tables().end(), [&](const Table &t) { return t.record == &record; });
}

const Table &table_named(std::string_view name) {
    std::string plain(name);
    std::replace(plain.begin(), plain.end(), '-', '_');
    const std::string_view wanted =
        std::string_view(plain).substr(plain.starts_with(name_prefix) ? name_prefix.size() : 0);
    std::vector<const Table *> found;
    for (const Table &t : tables()) {
        if (t.name == wanted) return t;
        if (without_side(t.name) == wanted) found.push_back(&t);
    }
    if (found.size() == 1) return *found.front();
    if (!found.empty()) {
        std::string all;
        for (const Table *t : found) all += (all.empty() ? "" : " or ") + t->name;
        throw Failure(Exit::input, in_quotes(name) + " can be " + all);
    }
    if (const Record *record = record_named(name)) return table_of(*record);
    std::vector<std::string> known;
    for (const Table &t : tables()) known.insert(known.end(), {std::string(without_side(t.name)), t.name});
    throw Failure(Exit::input, "unknown record " + in_quotes(name) + suggestion(name, known));
}

void for_each_row(const Message &message, const std::function<bool(const List &)> &enters,
                  const std::function<void(const Row &)> &visit) {
    Visit(message.handle(), enters, visit).run({&table_of(*message.record().record), message.payload()});
}

void *Occurrence::find(void *instance) const { return follow(instance, offsets); }

std::vector<Occurrence> occurrences(const Table &in, const Record &record) {
    std::vector<Occurrence> all;
    find_occurrences(*in.record, record, "", {}, all);
    return all;
}

bool reaches(const Table &from, const Record &record) {
    return !occurrences(from, record).empty() || std::any_of(from.lists.begin(), from.lists.end(), [&](const List &l) {
        return reaches(*l.element, record);
    });
}

std::vector<KeyColumn> keys_around(const Record &record) {
    std::vector<KeyColumn> keys;
    for (const schema::Message *m : schema::messages) add_keys(table_of(m->payload), {}, false, record, keys);
    return keys;
}

void append_shown(std::string &out, const Handle &handle, const Member &member, const Value &value) {
    if (const auto *const text = std::get_if<std::string_view>(&value)) {
        out += *text;
    } else if (auto *const *const address = std::get_if<ip_address *>(&value)) {
        out += address_text(handle, *address);
    } else if (const auto *const number = std::get_if<std::uint64_t>(&value)) {
        if (member.kind == Kind::boolean && *number < 2) {
            out += *number != 0 ? "true" : "false";
        } else if (member.kind == Kind::enumeration && *number < member.enumeration->enumerators.size()) {
            out += member.enumeration->enumerators[*number];
        } else if (member.notation == schema::Notation::hexadecimal) {
            char digits[19] = "0x";
            for (unsigned i = 0; i < 16; ++i) digits[2 + i] = "0123456789abcdef"[*number >> (60 - 4 * i) & 15];
            out.append(digits, 18);
        } else {
            char digits[20];
            out.append(digits, std::to_chars(digits, std::end(digits), *number).ptr);
        }
    }
}

std::string sortable(const ip_address &address) {
    std::string bytes{static_cast<char>(address.af)};
    for (const std::uint32_t word : address.word) {
        for (const unsigned shift : {24U, 16U, 8U, 0U}) bytes += static_cast<char>(word >> shift & 255);
    }
    bytes += static_cast<char>(address.prefix_len);
    bytes += static_cast<char>(address.scope >> 8);
    bytes += static_cast<char>(address.scope & 255);
    return bytes;
}

}  // namespace tarn::tool
