// A PostgreSQL server of the test, in a temporary folder, on a socket in that folder.
#pragma once

#include <string>

#include "process.h"

namespace fleet_test {

class PostgresqlServer {
public:
    // The constructor returns when the server accepts connections.
    PostgresqlServer();
    PostgresqlServer(const PostgresqlServer &) = delete;
    PostgresqlServer &operator=(const PostgresqlServer &) = delete;
    ~PostgresqlServer();

    // "postgresql://..." of a new schema, which is as good as a database and much faster to create.
    std::string create_schema(const std::string &name) const;
    // Runs a statement and returns what it prints: a line for each row, with | between the columns.
    std::string query(const std::string &url, const std::string &sql) const;
    // All processes of the server, at once; and start() starts it again.
    void kill();
    void start();

private:
    std::string folder() const { return directory_.path("server"); }
    // As another user if this one is the superuser, whom the server refuses.
    tool_test::Outcome run_there(const std::string &program, std::vector<std::string> arguments) const;

    tool_test::Directory directory_;
};

}  // namespace fleet_test
