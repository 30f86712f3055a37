#include "postgresql.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace fleet_test {

namespace {

using tool_test::Outcome;

constexpr uid_t nobody = 65534;

// The programs of the server are not in PATH.
std::string programs() {
    std::vector<std::string> found;
    for (const auto &version : std::filesystem::directory_iterator("/usr/lib/postgresql")) {
        if (std::filesystem::exists(version.path() / "bin/initdb")) found.push_back(version.path() / "bin");
    }
    if (found.empty()) throw std::runtime_error("PostgreSQL is not installed");
    return *std::max_element(found.begin(), found.end());
}

void require(const Outcome &outcome, const std::string &what) {
    if (outcome.exit != 0) throw std::runtime_error(what + ": " + outcome.out + outcome.err);
}

}  // namespace

PostgresqlServer::PostgresqlServer() {
    std::filesystem::create_directory(folder());
    if (::geteuid() == 0) {
        // The folder around is closed to others.
        std::filesystem::permissions(std::filesystem::path(folder()).parent_path(), std::filesystem::perms(0711));
        if (::chown(folder().c_str(), nobody, nobody) != 0) throw std::runtime_error("chown failed");
    }
    require(run_there("initdb", {"-D", folder() + "/data", "-U", "tarn", "-A", "trust", "-E", "UTF8", "--no-sync",
                                 "--no-instructions"}),
            "initdb");
    start();
}

PostgresqlServer::~PostgresqlServer() { run_there("pg_ctl", {"-D", folder() + "/data", "-m", "immediate", "stop"}); }

void PostgresqlServer::start() {
    // What the server prints must not keep a pipe of the test open.
    require(run_there("pg_ctl", {"-D", folder() + "/data", "-w", "-l", folder() + "/log", "-o",
                                 "-c listen_addresses= -c unix_socket_directories=" + folder(), "start"}),
            "pg_ctl start");
}

void PostgresqlServer::kill() {
    std::ifstream in(folder() + "/data/postmaster.pid");
    pid_t pid = 0;
    in >> pid;
    if (pid > 0) ::kill(pid, SIGKILL);
    while (pid > 0 && ::kill(pid, 0) == 0) ::usleep(10000);
}

std::string PostgresqlServer::create_schema(const std::string &name) const {
    const std::string url = "postgresql://tarn@/postgres?host=" + folder();
    query(url, "CREATE SCHEMA " + name);
    return url + "&options=-csearch_path%3D" + name;
}

std::string PostgresqlServer::query(const std::string &url, const std::string &sql) const {
    const Outcome outcome = run_there("psql", {"-d", url, "-AtXc", sql});
    require(outcome, sql);
    return outcome.out;
}

Outcome PostgresqlServer::run_there(const std::string &program, std::vector<std::string> arguments) const {
    const std::string path = programs() + "/" + program;
    if (::geteuid() != 0) return tool_test::run(path, arguments);
    arguments.insert(arguments.begin(), {"--reuid", "nobody", "--regid", "nogroup", "--clear-groups", "--", path});
    return tool_test::run("/usr/bin/setpriv", arguments);
}

}  // namespace fleet_test
