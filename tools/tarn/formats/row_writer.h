// Writes rows as an aligned table, CSV (RFC 4180), tab-separated values, or a JSON object on each line.
//
// CSV and tab-separated values begin with the names of the columns, and write control characters and bytes that are not
// UTF-8 as \x1b. In JSON, numbers of 64 bits are text, and what has no value is null.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/instances.h"

namespace tarn::tool {

enum class RowStyle : std::uint8_t { table, csv, tsv, jsonl };

// The line of a row. A line of a table is one of tab-separated values, which RowWriter aligns.
std::string line_of(RowStyle style, const std::vector<RowColumn> &columns, const Instance &instance);

class RowWriter {
public:
    using Write = std::function<void(std::string_view)>;

    RowWriter(RowStyle style, const std::vector<RowColumn> &columns, Write write);

    void add(std::string_view line);
    // Writes what is waiting.
    void finish();

private:
    void align();
    void write_aligned(std::string_view line);
    void flush(std::size_t above);

    RowStyle style_;
    Write write_;
    std::vector<bool> is_number_;
    std::vector<std::size_t> widths_;   // of a table
    std::vector<std::string> waiting_;  // until the widths are known
    std::string out_;
};

}  // namespace tarn::tool
