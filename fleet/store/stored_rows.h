// The records of answers as rows, in the layout of `tarn export`, so that they can be queried with SQL.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "fleet/store/batch.h"
#include "tools/tarn/formats/database_layout.h"
#include "tools/tarn/support/handle.h"

namespace tarn::fleet {

// Creates the tables, and the views over all and over the last answers.
void create_rows(Database &database);
// Deletes the rows of those answers in the range that are not in the store any more.
void delete_rows(Database &database, std::int64_t first_answer, std::int64_t end);

// Writes rows, in a transaction.
class StoredRows {
public:
    explicit StoredRows(Database &database);

    // All rows of an answer. One that cannot be read has none, and one that could have more rows than there are
    // numbers; collectors do not receive such answers with the limits that they have by default.
    void add(std::int64_t answer, std::string_view bundle, std::string_view frames);
    void flush();
    void clear();

private:
    struct Records {
        std::vector<tool::SqlColumn> columns;
        std::unique_ptr<Batch> rows;
    };
    Records &records_of(const tool::Table &table);

    Database &database_;
    const tool::Handles handles_{tool::Tracking::as_input};
    std::unique_ptr<Batch> messages_;
    std::map<const tool::Table *, Records> records_;
};

}  // namespace tarn::fleet
