#include "fleet/store/store.h"

#include <soci/soci.h>

#include "fleet/store/database.h"
#include "fleet/store/layout.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;

// Calls `each` for each row, after the variables of `statement` have got its values.
void for_each_row_of(soci::statement &statement, const std::function<void()> &each) {
    statement.execute();
    while (statement.fetch()) each();
}

// A condition that an empty parameter of text switches off.
constexpr std::string_view of_selection =
    " (:device = '' OR d.device = :device) AND (:bundle = '' OR x.bundle = :bundle) ";

constexpr Time always = 0, never = INT64_MAX;

// The answers from the last one of each selected device and bundle back to the first that had begun by the time which
// the parameter contains. Each step is a look-up by answer_id.
std::string answers_back_to(const std::string &parameter) {
    const auto member = [](const std::string &name) {
        return "(SELECT a." + name + " FROM answers a WHERE a.answer_id = b.previous)";
    };
    return "(WITH RECURSIVE back AS (SELECT a.answer_id, a.first_seen, a.previous FROM device_bundles x "
           "JOIN devices d ON d.device_id = x.device_id JOIN answers a ON a.answer_id = x.answer_id WHERE" +
           std::string(of_selection) + "UNION ALL SELECT b.previous, " + member("first_seen") + ", " +
           member("previous") + " FROM back b WHERE b.first_seen > " + parameter +
           " AND b.previous IS NOT NULL) SELECT a.* FROM back JOIN answers a ON a.answer_id = back.answer_id) x";
}

}  // namespace

Store::Store(const std::string &where) : database_(std::make_unique<Database>(where, Access::read)) {
    require_layout(*database_);
}

Store::~Store() = default;

const std::string &Store::shown() const { return database_->shown(); }

std::string Store::device_named(const std::string &name) {
    std::vector<std::string> found;
    database_->guarded([&] {
        std::string device;
        soci::statement statement =
            (database_->session().prepare << "SELECT device FROM devices WHERE device = :name OR (device = site || '/' "
                                             "|| :name) ORDER BY device",
             soci::use(name, "name"), soci::into(device));
        for_each_row_of(statement, [&] { found.push_back(device); });
    });
    if (found.size() == 1) return found[0];
    const std::string shown_name = shown() + ": device " + tool::in_quotes(name);
    if (found.empty()) throw Failure(Exit::input, shown_name + " is not in the store");
    throw Failure(Exit::input, shown_name + " is at several sites: " + found[0] + ", " + found[1]);
}

std::vector<Latest> Store::latest(const Selection &selection) {
    return database_->guarded([&] {
        std::vector<Latest> all;
        Latest row;
        StoredAnswer a;
        Gap g;
        soci::statement statement =
            (database_->session().prepare
                 << "SELECT d.device, d.site, x.bundle, coalesce(a.answer_id, 0), coalesce(a.number, 0), "
                    "coalesce(a.digest, ''), "
                    "coalesce(a.size, 0), coalesce(a.asked, 0), coalesce(a.first_seen, 0), coalesce(a.last_asked, 0), "
                    "coalesce(a.last_seen, 0), coalesce(a.times, 0), coalesce(g.number, 0), coalesce(g.began, 0), "
                    "coalesce(g.last_asked, 0), coalesce(g.reason, ''), coalesce(g.requests, 0) "
                    "FROM device_bundles x JOIN devices d ON d.device_id = x.device_id "
                    "LEFT JOIN answers a ON a.answer_id = x.answer_id "
                    "LEFT JOIN gaps g ON g.device_id = x.device_id AND g.bundle = x.bundle AND g.ended IS NULL "
                    "WHERE"
                 << of_selection << "ORDER BY d.device, x.bundle",
             soci::use(selection.device, "device"), soci::use(selection.bundle, "bundle"), soci::into(row.device),
             soci::into(row.site), soci::into(row.bundle), soci::into(a.id), soci::into(a.number), soci::into(a.digest),
             soci::into(a.size), soci::into(a.asked), soci::into(a.first_seen), soci::into(a.last_asked),
             soci::into(a.last_seen), soci::into(a.times), soci::into(g.number), soci::into(g.began),
             soci::into(g.last_asked), soci::into(g.reason), soci::into(g.requests));
        for_each_row_of(statement, [&] {
            a.device = g.device = row.device;
            a.bundle = g.bundle = row.bundle;
            row.answer = a.number != 0 ? std::optional(a) : std::nullopt;
            row.gap = g.requests != 0 ? std::optional(g) : std::nullopt;
            all.push_back(row);
        });
        return all;
    });
}

namespace {

// Visits the answers that the condition on `x`, a table or a selection of answers, leaves.
void for_each_answer_in(Database &database, const std::string &from, const Selection &selection, Time since, Time until,
                        const std::function<void(const StoredAnswer &)> &visit) {
    database.guarded([&] {
        StoredAnswer a;
        soci::statement statement =
            (database.session().prepare << "SELECT x.answer_id, d.device, x.bundle, x.number, x.digest, x.size, "
                                           "x.asked, x.first_seen, x.last_asked, "
                                           "x.last_seen, x.times FROM "
                                        << from << " JOIN devices d ON d.device_id = x.device_id "
                                        << "WHERE x.last_seen >= :since AND x.first_seen <= :until AND" << of_selection
                                        << "ORDER BY d.device, x.bundle, x.number",
             soci::use(since, "since"), soci::use(until, "until"), soci::use(selection.device, "device"),
             soci::use(selection.bundle, "bundle"), soci::into(a.id), soci::into(a.device), soci::into(a.bundle),
             soci::into(a.number), soci::into(a.digest), soci::into(a.size), soci::into(a.asked),
             soci::into(a.first_seen), soci::into(a.last_asked), soci::into(a.last_seen), soci::into(a.times));
        for_each_row_of(statement, [&] { visit(a); });
    });
}

}  // namespace

void Store::for_each_answer(const Selection &selection, const std::function<void(const StoredAnswer &)> &visit) {
    for_each_answer_in(*database_, selection.device.empty() ? "answers x" : answers_back_to(":since"), selection,
                       selection.since.value_or(always), selection.until.value_or(never), visit);
}

std::vector<StoredAnswer> Store::answers_at(const std::string &device, const std::string &bundle, Time time) {
    std::vector<StoredAnswer> answers;
    for_each_answer_in(*database_, answers_back_to(":until"), {device, bundle}, always, time,
                       [&](const StoredAnswer &a) { answers.push_back(a); });
    return answers;
}

void Store::for_each_gap(const Selection &selection, const std::function<void(const Gap &)> &visit) {
    database_->guarded([&] {
        Gap g;
        Time ended = 0;
        const Time since = selection.since.value_or(always), until = selection.until.value_or(never);
        soci::statement statement =
            (database_->session().prepare
                 << "SELECT d.device, x.bundle, x.number, x.began, x.last_asked, coalesce(x.ended, 0), x.reason, "
                    "x.requests FROM gaps x JOIN devices d ON d.device_id = x.device_id "
                    "WHERE (x.ended IS NULL OR x.ended >= :since) AND x.began <= :until AND"
                 << of_selection << "ORDER BY d.device, x.bundle, x.number",
             soci::use(since, "since"), soci::use(until, "until"), soci::use(selection.device, "device"),
             soci::use(selection.bundle, "bundle"), soci::into(g.device), soci::into(g.bundle), soci::into(g.number),
             soci::into(g.began), soci::into(g.last_asked), soci::into(ended), soci::into(g.reason),
             soci::into(g.requests));
        for_each_row_of(statement, [&] {
            g.ended = ended != 0 ? std::optional(ended) : std::nullopt;
            visit(g);
        });
    });
}

StoredAnswer Store::answer(std::int64_t id) {
    std::optional<StoredAnswer> found;
    for_each_answer_in(*database_, "(SELECT * FROM answers WHERE answer_id = " + std::to_string(id) + ") x", {}, always,
                       never, [&](const StoredAnswer &a) { found = a; });
    if (!found) throw Failure(Exit::input, shown() + ": there is no answer " + std::to_string(id));
    return *found;
}

std::string Store::frames(std::int64_t answer) {
    return database_->guarded([&] { return database_->frames(answer); });
}

}  // namespace tarn::fleet
