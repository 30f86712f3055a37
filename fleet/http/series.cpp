#include "fleet/http/series.h"

#include <algorithm>
#include <cstddef>
#include <variant>

#include "schema/catalogue.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;
using tool::RowColumn;
using tool::Table;

bool is_numeric(const schema::Member &member) {
    const schema::Category category = schema::category(member.kind);
    return category == schema::Category::integer || category == schema::Category::boolean ||
           category == schema::Category::enumeration;
}

std::size_t instances_in_row(const Table &table, const schema::Record &record) {
    std::size_t count = tool::occurrences(table, record).size();
    for (const tool::List &list : table.lists) {
        // Of elements without a key there may be any number.
        const std::size_t same = list.element->key.empty() ? 2 : 1;
        count += same * instances_in_row(*list.element, record);
    }
    return count;
}

// True if two instances of the record in a message can have the same keys.
bool needs_path(const schema::Record &record) {
    return std::any_of(std::begin(schema::messages), std::end(schema::messages), [&](const schema::Message *m) {
        return instances_in_row(tool::table_of(m->payload), record) > 1;
    });
}

// "lumo_data[0].tc_list[3].appl" without the positions of elements that keys identify, since these may move.
std::string without_positions(std::string_view path, const Table *table) {
    std::string text;
    for (std::size_t bracket = 0; (bracket = path.find('[')) != std::string_view::npos;) {
        const std::size_t end = path.find(']', bracket) + 1;
        const std::string_view name =
            path.substr(path.starts_with('.') ? 1 : 0, bracket - (path.starts_with('.') ? 1 : 0));
        const auto list =
            std::find_if(table->lists.begin(), table->lists.end(), [&](const tool::List &l) { return l.path == name; });
        table = list->element;
        text += path.substr(0, table->key.empty() ? end : bracket);
        path.remove_prefix(end);
    }
    return text += path;
}

const tool::Column &column_named(const Table &table, std::string_view name) {
    const auto &columns = table.columns;
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto &c) { return c.name == name; });
    if (found != columns.end() && is_numeric(*found->member)) return *found;
    const std::string shown = tool::in_quotes(table.name + "." + std::string(name));
    if (found != columns.end()) throw Failure(Exit::input, "member " + shown + " is not a number");
    std::vector<std::string> names;
    for (const tool::Column &c : columns) {
        if (is_numeric(*c.member)) names.push_back(c.name);
    }
    if (names.empty()) throw Failure(Exit::input, table.name + " has no numeric members");
    std::string help = tool::suggestion(name, names);
    if (help.empty()) {
        for (const std::string &n : names) help += (help.empty() ? "; there are " : ", ") + n;
    }
    throw Failure(Exit::input, "unknown member " + shown + help);
}

}  // namespace

NumericMember NumericMember::named(std::string_view name) {
    const std::size_t dot = name.find('.');
    const Table &table = tool::table_named(name.substr(0, dot));
    if (dot == std::string_view::npos) {
        throw Failure(Exit::input, tool::in_quotes(name) + ": expected RECORD.MEMBER");
    }
    return {table, column_named(table, name.substr(dot + 1))};
}

NumericMember::NumericMember(const Table &table, const tool::Column &column)
    : table_(&table), column_(&column), instances_(*table.record) {
    const bool has_path = needs_path(*table.record);
    const RowColumn *path = nullptr;
    for (const RowColumn &c : instances_.columns()) {
        if (c.value == &column) value_ = &c;
        if (c.origin == RowColumn::Origin::path) path = &c;
        const bool is_own_key = c.origin == RowColumn::Origin::member &&
                                std::any_of(table.key.begin(), table.key.end(),
                                            [&](std::size_t i) { return &table.columns[i] == c.value; });
        if (c.origin != RowColumn::Origin::key && !is_own_key) continue;
        labels_.push_back(is_own_key ? table.name + "." + c.name : c.name);
        identifying_.push_back(&c);
    }
    if (!has_path) return;
    labels_.emplace_back("path");
    identifying_.push_back(path);
}

bool NumericMember::is_in(const schema::Message &message) const {
    return tool::reaches(tool::table_of(message.payload), *table_->record);
}

void NumericMember::visit(const tool::Entry &message, const Visit &visit) const {
    const Table &payload = tool::table_of(*message.item.message->record().record);
    std::vector<std::string> labels(identifying_.size());
    instances_.visit(message, [&](const tool::Instance &instance) {
        const tool::Value value = instance.value(*value_);
        const auto *const number = std::get_if<std::uint64_t>(&value);
        if (number == nullptr) return;
        for (std::size_t i = 0; i < labels.size(); ++i) {
            std::string text;
            const RowColumn &column = *identifying_[i];
            tool::append_shown(text, instance.handle(), *column.member, instance.value(column));
            if (column.origin == RowColumn::Origin::path) text = without_positions(text, &payload);
            labels[i] = tool::printable(text, SIZE_MAX);
        }
        visit(labels, *number);
    });
}

std::vector<std::pair<std::string, std::string_view>> numeric_members(const schema::Message &message) {
    std::vector<std::pair<std::string, std::string_view>> members;
    for (const Table &table : tool::tables()) {
        if (!tool::reaches(tool::table_of(message.payload), *table.record)) continue;
        for (const tool::Column &column : table.columns) {
            if (is_numeric(*column.member))
                members.emplace_back(table.name + "." + column.name, column.member->meaning);
        }
    }
    return members;
}

}  // namespace tarn::fleet
