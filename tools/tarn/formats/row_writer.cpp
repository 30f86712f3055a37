#include "tools/tarn/formats/row_writer.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "tools/tarn/formats/json.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using schema::Category;
using schema::Kind;
using schema::Member;

// The widths of a table are those of its first lines, so that it needs no more memory than they do.
constexpr std::size_t lines_that_decide = 1000;
constexpr std::size_t flush_size = 65536;

bool is_plain(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != ',' && c != '\\'; });
}

bool is_number(const Member &member) {
    return category(member.kind) == Category::integer && member.notation == schema::Notation::decimal;
}

void append_json(std::string &out, const RowColumn &column, const Value &value, const std::string &shown) {
    const Kind kind = column.member->kind;
    // A truth value or an enumerator without a name is a number.
    const bool has_word = shown.empty() || shown.front() < '0' || shown.front() > '9';
    const bool is_bare = kind == Kind::boolean || (kind == Kind::enumeration && !has_word) ||
                         column.origin == RowColumn::Origin::message ||
                         (is_number(*column.member) && greatest(kind) <= UINT32_MAX);
    if (value.index() == 0) {
        out += "null";
    } else if (is_bare) {
        out += shown;
    } else if (is_plain(shown)) {
        out += '"' + shown + '"';
    } else {
        out += json_text(json_of_string(shown));
    }
}

void append_cell(std::string &out, RowStyle style, const std::string &shown) {
    if (is_plain(shown)) {
        out += shown;
        return;
    }
    const std::string text = printable(shown, SIZE_MAX);
    if (style != RowStyle::csv || text.find_first_of(",\"") == std::string::npos) {
        out += text;
        return;
    }
    out += '"';
    for (const char c : text) out.append(c == '"' ? 2 : 1, c);
    out += '"';
}

// In characters, of which UTF-8 has several bytes.
std::size_t width_of(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xc0) != 0x80; }));
}

void for_each_cell(std::string_view line, const std::function<void(std::size_t, std::string_view)> &visit) {
    for (std::size_t i = 0;; ++i) {
        const std::size_t tab = line.find('\t');
        visit(i, line.substr(0, tab));
        if (tab == std::string_view::npos) return;
        line.remove_prefix(tab + 1);
    }
}

}  // namespace

std::string line_of(RowStyle style, const std::vector<RowColumn> &columns, const Instance &instance) {
    const char separator = style == RowStyle::csv || style == RowStyle::jsonl ? ',' : '\t';
    std::string line, shown;
    for (const RowColumn &column : columns) {
        if (&column != &columns.front()) line += separator;
        const Value value = instance.value(column);
        shown.clear();
        append_shown(shown, instance.handle(), *column.member, value);
        if (style == RowStyle::jsonl) {
            line += '"' + column.name + "\":";
            append_json(line, column, value, shown);
        } else {
            append_cell(line, style, shown);
        }
    }
    return style == RowStyle::jsonl ? "{" + line + "}" : line;
}

RowWriter::RowWriter(RowStyle style, const std::vector<RowColumn> &columns, Write write)
    : style_(style), write_(std::move(write)), widths_(columns.size()) {
    std::string header;
    for (const RowColumn &column : columns) {
        is_number_.push_back(is_number(*column.member));
        header += (header.empty() ? "" : style == RowStyle::csv ? "," : "\t") + column.name;
    }
    if (style != RowStyle::jsonl) add(header);
}

void RowWriter::add(std::string_view line) {
    if (style_ == RowStyle::table) {
        if (!waiting_.empty() || widths_.front() == 0) {
            waiting_.emplace_back(line);
            if (waiting_.size() == lines_that_decide) align();
        } else {
            write_aligned(line);
        }
    } else {
        out_ += line;
        out_ += style_ == RowStyle::csv ? "\r\n" : "\n";
    }
    flush(flush_size);
}

void RowWriter::align() {
    for (const std::string &line : waiting_) {
        for_each_cell(line,
                      [&](std::size_t i, std::string_view cell) { widths_[i] = std::max(widths_[i], width_of(cell)); });
    }
    for (const std::string &line : waiting_) write_aligned(line);
    waiting_.clear();
}

void RowWriter::write_aligned(std::string_view line) {
    std::string aligned;
    for_each_cell(line, [&](std::size_t i, std::string_view cell) {
        const std::size_t width = width_of(cell);
        const std::string blanks(widths_[i] > width ? widths_[i] - width : 0, ' ');
        if (i != 0) aligned += "  ";
        aligned += is_number_[i] ? blanks + std::string(cell) : std::string(cell) + blanks;
    });
    out_.append(aligned, 0, aligned.find_last_not_of(' ') + 1);
    out_ += '\n';
}

void RowWriter::flush(std::size_t above) {
    if (out_.size() <= above) return;
    write_(out_);
    out_.clear();
}

void RowWriter::finish() {
    align();
    flush(0);
}

}  // namespace tarn::tool
