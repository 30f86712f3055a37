// The values of a row in the layout of `tarn export`.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tools/tarn/formats/database_layout.h"

namespace tarn::tool {

// As TEXT, bytes that are not UTF-8 are an error for many programs, and a zero byte ends the text for others.
bool is_sql_text(std::string_view text);

struct RowIds {
    std::int64_t message;
    std::int64_t before_first;  // row_id before that of the first row of the message
};

// Passes all values of the row to null(), integer(), text() or bytes() of `call`, in the order of the columns.
template <class Call>
void put_row(Call &call, const std::vector<SqlColumn> &columns, const Handle &handle, const Row &row,
             const RowIds &ids) {
    const auto id = [&](const Row &r) { return ids.before_first + static_cast<std::int64_t>(r.number) + 1; };
    call.integer(id(row)).integer(ids.message);
    if (row.parent != nullptr) {
        call.integer(id(*row.parent)).text(row.list->path).integer(row.position);
    } else {
        call.null().null().null();
    }
    Value value;
    for (const SqlColumn &column : columns) {
        // The columns of a member are adjacent.
        if (column.part == Part::value) value = column.column->read(row.instance);
        const schema::Member &member = *column.column->member;
        const auto *const number = std::get_if<std::uint64_t>(&value);
        const auto *const text = std::get_if<std::string_view>(&value);
        std::string shown;
        if (value.index() == 0 ||
            (column.part == Part::enumerator && *number >= member.enumeration->enumerators.size())) {
            call.null();
        } else if (column.part == Part::bytes) {
            call.bytes(sortable(*std::get<ip_address *>(value)));
        } else if (text != nullptr) {
            is_sql_text(*text) ? call.text(*text) : call.bytes(*text);
        } else if (number != nullptr && column.type != "TEXT" && *number <= INT64_MAX) {
            call.integer(static_cast<std::int64_t>(*number));
        } else {
            append_shown(shown, handle, member, value);
            call.text(shown);
        }
    }
}

}  // namespace tarn::tool
