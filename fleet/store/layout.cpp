#include "fleet/store/layout.h"

#include <string>
#include <utility>

#include "fleet/store/stored_rows.h"
#include "schema/digest.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;

// Times are milliseconds since 1970 in UTC.
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

std::string meta_value(Database &database, const std::string &name) {
    std::string value;
    database.session() << "SELECT value FROM store_meta WHERE name = :name", soci::use(name, "name"), soci::into(value);
    return value;
}

void require_version(Database &database) {
    const std::string version = meta_value(database, "layout_version");
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

bool create_layout(Database &database, bool with_rows) {
    database.guarded([&] { require_free_or_known(database); });
    database.prepare_for_writing();
    database.transact([&] {
        // Of several processes, the first creates the tables. The number is any that no other program uses.
        if (database.engine() == Engine::postgresql) database.run("SELECT pg_advisory_xact_lock(7561726)");
        if (require_free_or_known(database)) return;
        database.run_all(database.with_types(tables));
        if (with_rows) create_rows(database);
        for (const auto &[name, value] :
             {std::pair("layout_version", std::to_string(store_version)),
              std::pair("program", std::string("tarn " TARN_VERSION)), std::pair("schema", schema::schema_digest()),
              std::pair("rows", std::string(with_rows ? "yes" : "no"))}) {
            const std::string key = name;
            database.session() << "INSERT INTO store_meta VALUES (:name, :value)", soci::use(key, "name"),
                soci::use(value, "value");
        }
    });
    const bool has_rows = database.guarded([&] { return meta_value(database, "rows") == "yes"; });
    if (with_rows && !has_rows) {
        throw Failure(Exit::input, database.shown() + ": a store without rows; --rows is for a new store");
    }
    return has_rows;
}

void require_layout(Database &database) {
    database.guarded([&] {
        if (!database.has_table("store_meta")) throw Failure(Exit::input, database.shown() + ": not a store");
        require_version(database);
    });
}

}  // namespace tarn::fleet
