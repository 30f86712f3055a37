// A connection to the engine that holds a store, and the statements that both engines understand. Only the sources of
// this folder include it.
#pragma once

#include <soci/soci.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

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

    // SQL for both engines: BYTES and ID stand for their types of bytes and of numbers of rows.
    std::string with_types(std::string_view sql) const;
    void run(const std::string &sql);
    // Statements that a semicolon at the end of a line separates.
    void run_all(std::string_view sql);
    bool has_table(const std::string &name);

    std::string bytes_of(std::string stored) const;  // what a column with bytes returns as text

    // The frames of an answer that is there.
    std::string frames(std::int64_t answer);

private:
    [[noreturn]] void fail(const soci::soci_error &error);

    Engine engine_;
    std::string shown_;
    std::unique_ptr<soci::session> session_;
};

}  // namespace tarn::fleet
