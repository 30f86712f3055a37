// A connection to the engine that holds a store, and the statements that both engines understand. Only the sources of
// this folder include it.
#pragma once

#include <soci/soci.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::fleet {

enum class Engine : std::uint8_t { sqlite, postgresql };
enum class Access : std::uint8_t { read, write };

class Database {
public:
    // A path, or postgresql://... For writing, a SQLite file that does not exist is created.
    Database(const std::string &where, Access access);

    Engine engine() const { return engine_; }
    const std::string &shown() const { return shown_; }  // for messages: without a password
    soci::session &session() { return *session_; }

    // The word of the engine where they differ.
    std::string_view either(std::string_view sqlite, std::string_view postgresql) const {
        return engine_ == Engine::sqlite ? sqlite : postgresql;
    }

    // Once the database is known to be a store: this changes the file.
    void prepare_for_writing();

    // Calls `work`. What the engine reports becomes a Failure with the name of the store: Unavailable if another
    // attempt may succeed.
    template <class Work>
    auto guarded(const Work &work) {
        try {
            return work();
        } catch (const soci::soci_error &error) {
            fail(error);
        }
    }
    // The same in a transaction, which is rolled back if `work` throws.
    void transact(const std::function<void()> &work);

    void run(const std::string &sql);
    // Statements that a semicolon at the end of a line separates.
    void run_all(std::string_view sql);
    bool has_table(const std::string &name);

    // How bytes are bound: SQLite takes them as they are, PostgreSQL as hexadecimal text. `cast` is around the
    // parameter.
    std::string bound(std::string_view bytes) const;
    std::string cast(const std::string &parameter) const;
    std::string bytes_of(std::string stored) const;  // what a column with bytes returns as text

    // The frames of an answer that is there.
    std::string frames(std::int64_t answer);

private:
    [[noreturn]] void fail(const soci::soci_error &error);

    Engine engine_;
    std::string shown_;
    std::unique_ptr<soci::session> session_;
};

// Rows for one statement "INSERT ... VALUES ROWS ...": many with each execution, since each is a message to the server
// and back.
class Insertion {
public:
    // The kinds of the columns: t for text, b for bytes, i for an integer.
    Insertion(Database &database, std::string head, std::string_view kinds, std::string tail)
        : database_(database), head_(std::move(head)), kinds_(kinds), tail_(std::move(tail)) {}

    Insertion &text(std::string_view value);
    Insertion &bytes(std::string_view value);
    Insertion &integer(std::int64_t value);
    Insertion &null();

    std::size_t rows() const { return waiting_.size() / kinds_.size(); }
    // Executes the statement for the rows that have been added.
    void flush();
    void clear() { waiting_.clear(); }

private:
    struct Cell {
        std::string text = {};
        long long number = 0;
        soci::indicator indicator = soci::i_ok;
    };
    // A statement for a number of rows, with the variables that it is bound to.
    struct Prepared {
        std::deque<Cell> cells;
        std::unique_ptr<soci::statement> statement;
    };
    Prepared &prepared(std::size_t size_class);

    static constexpr std::size_t sizes[] = {64, 8, 1};

    Database &database_;
    const std::string head_, kinds_, tail_;
    Prepared prepared_[std::size(sizes)];
    std::vector<Cell> waiting_;
};

}  // namespace tarn::fleet
