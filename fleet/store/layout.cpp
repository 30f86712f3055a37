#include "fleet/store/layout.h"

#include <string>
#include <utility>

#include "schema/digest.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;

// Times are milliseconds since 1970 in UTC. BYTES and ID stand for the engine's types of bytes and of numbers of rows.
// Frames are apart from what changes with each request. New rows of both are next to each other, and no index has keys
// that are not, such as digests or devices: each entry would write a page, which is more than a small answer. So the
// answers of a device are a list from the last to the first.
constexpr std::string_view tables = R"(
CREATE TABLE store_meta (name TEXT PRIMARY KEY, value TEXT NOT NULL);
CREATE TABLE collectors (collector TEXT PRIMARY KEY, expires BIGINT NOT NULL);
CREATE TABLE devices (
  device_id BIGINT PRIMARY KEY,
  device TEXT NOT NULL UNIQUE,
  site TEXT NOT NULL,
  added BIGINT NOT NULL,
  owner TEXT
);
CREATE INDEX devices_by_owner ON devices (owner);
CREATE TABLE device_bundles (
  device_id BIGINT NOT NULL,
  bundle TEXT NOT NULL,
  answer_id BIGINT,
  PRIMARY KEY (device_id, bundle)
);
CREATE TABLE answer_ids (last BIGINT NOT NULL);
INSERT INTO answer_ids VALUES (0);
CREATE TABLE contents (answer_id ID PRIMARY KEY, frames BYTES NOT NULL);
CREATE TABLE answers (
  answer_id ID PRIMARY KEY,
  device_id BIGINT NOT NULL,
  bundle TEXT NOT NULL,
  number BIGINT NOT NULL,
  previous BIGINT,
  digest TEXT NOT NULL,
  size BIGINT NOT NULL,
  asked BIGINT NOT NULL,
  first_seen BIGINT NOT NULL,
  last_asked BIGINT NOT NULL,
  last_seen BIGINT NOT NULL,
  times BIGINT NOT NULL
);
CREATE TABLE gaps (
  device_id BIGINT NOT NULL,
  bundle TEXT NOT NULL,
  number BIGINT NOT NULL,
  began BIGINT NOT NULL,
  last_asked BIGINT NOT NULL,
  ended BIGINT,
  reason TEXT NOT NULL,
  requests BIGINT NOT NULL,
  PRIMARY KEY (device_id, bundle, number)
);
CREATE VIEW latest_answers AS
  SELECT d.device, d.site, a.* FROM device_bundles p
  JOIN devices d ON d.device_id = p.device_id
  JOIN answers a ON a.answer_id = p.answer_id;
)";

std::string with_types(const Database &database) {
    std::string sql(tables);
    for (const auto &[word, type] :
         {std::pair<std::string_view, std::string_view>(" ID ", database.either(" INTEGER ", " BIGINT ")),
          {"BYTES", database.either("BLOB", "BYTEA")}}) {
        for (std::size_t at = 0; (at = sql.find(word, at)) != std::string::npos;) sql.replace(at, word.size(), type);
    }
    return sql;
}

std::string version_in(Database &database) {
    std::string version;
    database.session() << "SELECT value FROM store_meta WHERE name = 'layout_version'", soci::into(version);
    return version;
}

void require_version(Database &database) {
    const std::string version = version_in(database);
    if (version == std::to_string(store_version)) return;
    throw Failure(Exit::input, database.shown() + ": a store of version " + tool::in_quotes(version) +
                                   "; this program reads and writes version " + std::to_string(store_version));
}

bool is_empty(Database &database) {
    int found = 0;
    database.session() << database.either("SELECT count(*) FROM sqlite_master",
                                          "SELECT count(*) FROM pg_tables WHERE schemaname = current_schema()"),
        soci::into(found);
    return found == 0;
}

// True if the database is a store; it may also be empty.
bool require_free_or_known(Database &database) {
    if (database.has_table("store_meta")) {
        require_version(database);
        return true;
    }
    if (is_empty(database)) return false;
    throw Failure(Exit::input, database.shown() + ": not a store: a database with other tables");
}

}  // namespace

void create_layout(Database &database) {
    database.guarded([&] { require_free_or_known(database); });
    database.prepare_for_writing();
    database.transact([&] {
        // Of several processes, the first creates the tables. The number is any that no other program uses.
        if (database.engine() == Engine::postgresql) database.run("SELECT pg_advisory_xact_lock(7561726)");
        if (require_free_or_known(database)) return;
        database.run_all(with_types(database));
        for (const auto &[name, value] :
             {std::pair("layout_version", std::to_string(store_version)),
              std::pair("program", std::string("tarn " TARN_VERSION)), std::pair("schema", schema::schema_digest())}) {
            const std::string key = name;
            database.session() << "INSERT INTO store_meta VALUES (:name, :value)", soci::use(key, "name"),
                soci::use(value, "value");
        }
    });
}

void require_layout(Database &database) {
    database.guarded([&] {
        if (!database.has_table("store_meta")) throw Failure(Exit::input, database.shown() + ": not a store");
        require_version(database);
    });
}

}  // namespace tarn::fleet
