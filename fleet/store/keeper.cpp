#include <soci/soci.h>
#include <unistd.h>

#include <algorithm>
#include <deque>
#include <random>
#include <unordered_map>
#include <utility>

#include "fleet/store/batch.h"
#include "fleet/store/database.h"
#include "fleet/store/layout.h"
#include "fleet/store/store.h"
#include "fleet/store/stored_rows.h"
#include "fleet/support/sha256.h"
#include "schema/frame.h"
#include "tools/tarn/formats/frames.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;

// Of what two answers must have in common to be the same: all but the stamps in the headers, which a sender may choose
// anew for each answer.
std::string sha256_without_stamps(std::string_view frames) {
    constexpr std::size_t stamp = offset_of(schema::message_frame, "stamp"), size_of_stamp = 4;
    Sha256 hash;
    while (!frames.empty()) {
        const std::size_t claimed = tool::claimed_size(tool::bytes_of(frames));
        const std::string_view frame = frames.substr(0, claimed == 0 ? std::string_view::npos : claimed);
        hash.add(frame.substr(0, stamp));
        if (frame.size() > stamp + size_of_stamp) hash.add(frame.substr(stamp + size_of_stamp));
        frames.remove_prefix(frame.size());
    }
    return hash.finish();
}

// "host:1234:5f3c", for people and unique.
std::string collector_name() {
    char host[256] = "";
    ::gethostname(host, sizeof host - 1);
    std::random_device random;
    return tool::printable(host) + ":" + std::to_string(::getpid()) + ":" + std::to_string(random());
}

// The clock that all collectors of a store share.
std::string clock_of(const Database &database) {
    return std::string(database.either("CAST((julianday('now') - 2440587.5) * 86400000 AS INTEGER)",
                                       "CAST(extract(epoch FROM clock_timestamp()) * 1000 AS BIGINT)"));
}

// The number of rows that were changed.
template <class... Uses>
long long change(Database &database, const std::string &sql, Uses... uses) {
    soci::statement statement(database.session());
    (statement.exchange(uses), ...);
    statement.alloc();
    // PostgreSQL executes it without preparing it first.
    statement.prepare(sql, soci::details::st_one_time_query);
    statement.define_and_bind();
    statement.execute(true);
    return statement.get_affected_rows();
}

long long count(Database &database, const std::string &sql) {
    long long number = 0;
    database.session() << sql, soci::into(number);
    return number;
}

}  // namespace

struct Keeper::Statements {
    explicit Statements(Database &database)
        : contents(Batch::insertion(database, "contents (answer_id, frames)", 2)),
          answers(Batch::insertion(database,
                                   "answers (answer_id, device_id, bundle, number, previous, digest, size, asked, "
                                   "first_seen, last_asked, last_seen, times)",
                                   12)),
          // SQLite takes much longer for the other form.
          spans(Batch::change(
              database,
              std::string(database.either("UPDATE answers SET last_asked = ?2, last_seen = ?3, times = times + ?4 "
                                          "WHERE answer_id = ?1",
                                          "UPDATE answers SET last_asked = r.asked, last_seen = r.seen, "
                                          "times = answers.times + r.times FROM (ROWS) AS r(id, asked, seen, times) "
                                          "WHERE answer_id = r.id")),
              "iiii")),
          pairs(Batch::change(database,
                              "INSERT INTO device_bundles (device_id, bundle, answer_id) ROWS "
                              "ON CONFLICT (device_id, bundle) DO UPDATE SET "
                              "answer_id = coalesce(excluded.answer_id, device_bundles.answer_id)",
                              "iti")),
          // What ends a gap is no request that was not answered.
          gaps(Batch::change(
              database,
              "INSERT INTO gaps (device_id, bundle, number, began, last_asked, ended, reason, requests) "
              "ROWS ON CONFLICT (device_id, bundle, number) DO UPDATE SET "
              "ended = excluded.ended, "
              "last_asked = CASE WHEN excluded.requests = 0 THEN gaps.last_asked ELSE excluded.last_asked END, "
              "reason = CASE WHEN excluded.requests = 0 THEN gaps.reason ELSE excluded.reason END, "
              "requests = gaps.requests + excluded.requests",
              "itiiiiti")) {}

    void flush() {
        for (Batch *batch : all()) batch->flush();
    }
    void clear() {
        for (Batch *batch : all()) batch->clear();
    }

    std::unique_ptr<Batch> contents, answers, spans, pairs, gaps;

private:
    std::vector<Batch *> all() const { return {contents.get(), answers.get(), spans.get(), pairs.get(), gaps.get()}; }
};

// What outcomes do to the last span and the last gap of a device and bundle, so that each row is written once.
struct Keeper::Change {
    std::int64_t device;
    std::string bundle;
    bool is_first;  // of this bundle
    State state;    // after it
    struct Span {
        std::int64_t id = 0;
        bool is_new = false;  // the members before the times of the last request matter
        std::int64_t number = 0, previous = 0, size = 0;
        std::string digest = {};
        Time asked = 0, first_seen = 0;
        Time last_asked = 0, last_seen = 0;
        std::int64_t times = 0;
    };
    std::optional<Span> span = {};
    std::optional<Gap> gap = {};
    bool has_new_answer = false;
};

Keeper::Keeper(const std::string &where, Time lease, Time patience, bool rows)
    : where_(where), name_(collector_name()), lease_(lease), patience_(patience), wants_rows_(rows) {
    connect();
}

void Keeper::connect() {
    lose();
    statements_.reset();
    rows_.reset();
    database_ = std::make_unique<Database>(where_, Access::write);
    const bool has_rows = create_layout(*database_, wants_rows_);
    statements_ = std::make_unique<Statements>(*database_);
    if (has_rows) rows_ = std::make_unique<StoredRows>(*database_);
    if (database_->engine() == Engine::postgresql) {
        // A collector that stalls in a transaction would keep its devices from the others.
        database_->guarded(
            [&] { database_->run("SET idle_in_transaction_session_timeout = " + std::to_string(lease_)); });
    }
}

Keeper::~Keeper() {
    if (!is_registered_) return;
    try {
        statements_.reset();
        database_->transact([&] {
            change(*database_, "DELETE FROM collectors WHERE collector = :me", soci::use(name_, "me"));
            change(*database_, "UPDATE devices SET owner = NULL WHERE owner = :me", soci::use(name_, "me"));
        });
    } catch (const Failure &) {
        // The lease ends by itself.
    }
}

const std::string &Keeper::shown() const { return database_->shown(); }

void Keeper::add_devices(std::span<const std::pair<std::string, std::string>> devices) {
    std::map<std::string, std::string, std::less<>> added;
    for (const auto &[device, site] : devices) {
        const std::string name = tool::printable(device), where = tool::printable(site);
        const auto known = known_sites_.find(name);
        if (known == known_sites_.end() || known->second != where) added[name] = where;
    }
    if (added.empty()) return;
    database_->transact([&] {
        // Numbers are given out by one collector at a time.
        if (database_->engine() == Engine::postgresql) {
            database_->run("LOCK TABLE devices IN SHARE ROW EXCLUSIVE MODE");
        }
        long long last = count(*database_, "SELECT coalesce(max(device_id), 0) FROM devices");
        const Time now = time_now();
        const auto rows = Batch::change(*database_,
                                        "INSERT INTO devices (device_id, device, site, added) ROWS "
                                        "ON CONFLICT (device) DO UPDATE SET site = excluded.site",
                                        "itti");
        for (const auto &[device, site] : added) rows->integer(++last).text(device).text(site).integer(now);
        rows->flush();
    });
    for (auto &[device, site] : added) known_sites_[device] = site;
}

bool Keeper::renew() {
    const std::string clock = clock_of(*database_);
    bool has_changed = !is_registered_;
    database_->transact([&] {
        std::string skip_locked;
        if (database_->engine() == Engine::postgresql) {
            // Of two collectors that renew their leases, one waits.
            database_->run("SELECT pg_advisory_xact_lock(7561727)");
            skip_locked = " FOR UPDATE SKIP LOCKED";
        }
        change(*database_,
               "INSERT INTO collectors (collector, expires) VALUES (:me, " + clock +
                   " + :lease) ON CONFLICT (collector) DO UPDATE SET expires = excluded.expires",
               soci::use(name_, "me"), soci::use(lease_, "lease"));
        // One that is in a transaction is alive.
        const long long gone =
            change(*database_,
                   "DELETE FROM collectors WHERE collector IN (SELECT collector FROM collectors WHERE "
                   "expires < " +
                       clock + skip_locked + ")");
        if (gone != 0) {
            database_->run(
                "UPDATE devices SET owner = NULL WHERE owner IS NOT NULL AND owner NOT IN (SELECT collector FROM "
                "collectors)");
        }
        const long long devices = count(*database_, "SELECT count(*) FROM devices");
        const long long collectors = count(*database_, "SELECT count(*) FROM collectors");
        const long long share = (devices + collectors - 1) / collectors;
        long long own = 0;
        database_->session() << "SELECT count(*) FROM devices WHERE owner = :me", soci::use(name_, "me"),
            soci::into(own);
        if (own != static_cast<long long>(owned_.size())) {
            // Its lease ended meanwhile. Of devices that it gets back, another collector may have stored more.
            owned_.clear();
            has_changed = true;
        }
        const long long difference = own < share ? share - own : own - share;
        if (difference == 0) return;
        const std::string chosen = own < share ? "owner IS NULL" : "owner = :me";
        const long long moved = change(*database_,
                                       std::string("UPDATE devices SET owner = ") + (own < share ? ":me" : "NULL") +
                                           " WHERE device_id IN (SELECT device_id FROM devices WHERE " + chosen +
                                           " ORDER BY device_id LIMIT :number" + skip_locked + ")",
                                       soci::use(name_, "me"), soci::use(difference, "number"));
        if (moved != 0) has_changed = true;
    });
    is_registered_ = true;
    if (has_changed) database_->guarded([&] { load_devices(); });
    return has_changed;
}

void Keeper::load_devices() {
    std::map<std::string, Owned, std::less<>> owned;
    std::string device;
    long long id = 0;
    soci::statement statement =
        (database_->session().prepare << "SELECT device_id, device FROM devices WHERE owner = :me",
         soci::use(name_, "me"), soci::into(id), soci::into(device));
    statement.execute();
    while (statement.fetch()) {
        const auto before = owned_.find(device);
        // What was known of a device that was released meanwhile is gone with it.
        owned[device] = before != owned_.end() ? std::move(before->second) : Owned{id, {}};
    }
    owned_ = std::move(owned);
}

std::vector<std::string> Keeper::devices() const {
    std::vector<std::string> names;
    for (const auto &[device, owned] : owned_) names.push_back(device);
    return names;
}

Keeper::State Keeper::load_state(std::int64_t device, const std::string &bundle) {
    State state;
    std::int64_t gap = 0, began = 0, last_asked = 0, last_asked_in_gap = 0;
    database_->session()
        << "SELECT a.answer_id, a.number, a.last_seen, a.last_asked FROM device_bundles p JOIN answers a "
           "ON a.answer_id = p.answer_id WHERE p.device_id = :device AND p.bundle = :bundle",
        soci::use(device, "device"), soci::use(bundle, "bundle"), soci::into(state.id), soci::into(state.number),
        soci::into(state.last_seen), soci::into(last_asked);
    database_->session() << "SELECT number, CASE WHEN ended IS NULL THEN began ELSE 0 END, last_asked FROM gaps WHERE "
                            "device_id = :device AND bundle = :bundle ORDER BY number DESC LIMIT 1",
        soci::use(device, "device"), soci::use(bundle, "bundle"), soci::into(gap), soci::into(began),
        soci::into(last_asked_in_gap);
    // The clock of another collector may be ahead.
    state.known_until = std::min(std::max(last_asked, last_asked_in_gap), time_now());
    // The answers before a gap may have been forgotten.
    const bool is_last = state.number >= gap;
    state.number = std::max(state.number, gap);
    if (began != 0) {
        state.gap_began = began;
    } else if (is_last && state.id != 0) {
        state.same = sha256_without_stamps(database_->frames(state.id));
    }
    return state;
}

Keeper::State &Keeper::state_of(Owned &owned, std::string_view bundle) {
    const auto found = owned.states.find(bundle);
    if (found != owned.states.end()) return found->second;
    const std::string name(bundle);
    return owned.states[name] = load_state(owned.id, name);
}

void Keeper::lose() {
    owned_.clear();
    is_registered_ = false;
}

void Keeper::require_lease() {
    const long long found = change(
        *database_, "UPDATE collectors SET expires = " + clock_of(*database_) + " + :lease WHERE collector = :me",
        soci::use(lease_, "lease"), soci::use(name_, "me"));
    if (found != 0) return;
    lose();
    throw Unavailable(shown() + ": the lease of this collector ended before it was renewed");
}

// In blocks, so that collectors do not wait for each other.
void Keeper::require_ids(std::size_t count) {
    constexpr std::int64_t block = 100'000;
    if (end_of_ids_ - last_id_ >= static_cast<std::int64_t>(count)) return;
    const std::int64_t size = std::max(block, static_cast<std::int64_t>(count));
    long long end = 0;
    database_->transact([&] {
        change(*database_, "UPDATE answer_ids SET last = last + :size", soci::use(size, "size"));
        database_->session() << "SELECT last FROM answer_ids", soci::into(end);
    });
    end_of_ids_ = end;
    last_id_ = end - size;
}

void Keeper::write_span(Change &change) {
    if (!change.span) return;
    const Change::Span &a = *change.span;
    if (a.is_new) {
        Batch &row = *statements_->answers;
        row.integer(a.id).integer(change.device).text(change.bundle).integer(a.number);
        a.previous != 0 ? row.integer(a.previous) : row.null();
        row.text(a.digest).integer(a.size).integer(a.asked).integer(a.first_seen);
        row.integer(a.last_asked).integer(a.last_seen).integer(a.times);
    } else {
        statements_->spans->integer(a.id).integer(a.last_asked).integer(a.last_seen).integer(a.times);
    }
    change.span.reset();
}

void Keeper::write_gap(Change &change) {
    if (!change.gap) return;
    const Gap &g = *change.gap;
    Batch &row = *statements_->gaps;
    row.integer(change.device).text(change.bundle).integer(g.number).integer(g.began).integer(g.last_asked);
    g.ended ? row.integer(*g.ended) : row.null();
    row.text(g.reason).integer(g.requests);
    change.gap.reset();
}

Gap &Keeper::gap_of(Change &change, Time began, Time asked) {
    if (change.gap && change.gap->ended) write_gap(change);
    if (!change.gap) change.gap = Gap{{}, {}, change.state.number, began, asked, {}, "not requested", 0};
    return *change.gap;
}

void Keeper::add_answer(const Outcome &outcome, Change &change) {
    State &state = change.state;
    std::string same = sha256_without_stamps(outcome.frames);
    const bool was_pause = patience_ != 0 && state.last_seen != 0 && outcome.asked - state.last_seen > patience_;
    if (state.gap_began || was_pause) {
        gap_of(change, state.gap_began.value_or(state.last_seen), outcome.asked).ended = outcome.ended;
        state.same.clear();
        state.gap_began.reset();
    }
    if (state.same != same) {
        write_span(change);
        const std::int64_t previous = std::exchange(state.id, ++last_id_);
        ++state.number;
        state.same = std::move(same);
        change.has_new_answer = true;
        change.span = {.id = state.id,
                       .is_new = true,
                       .number = state.number,
                       .previous = previous,
                       .size = static_cast<std::int64_t>(outcome.frames.size()),
                       .digest = sha256(outcome.frames),
                       .asked = outcome.asked,
                       .first_seen = outcome.ended};
        statements_->contents->integer(state.id).bytes(outcome.frames);
        if (rows_ != nullptr) rows_->add(state.id, outcome.bundle, outcome.frames);
    }
    if (!change.span) change.span = {.id = state.id};
    change.span->last_asked = outcome.asked;
    change.span->last_seen = state.last_seen = outcome.ended;
    ++change.span->times;
}

void Keeper::add_silence(const Outcome &outcome, Change &change) {
    State &state = change.state;
    // The device may have been silent since its last answer.
    if (!state.gap_began) state.gap_began = outcome.asked;
    state.same.clear();
    Gap &gap = gap_of(change, *state.gap_began, outcome.asked);
    gap.last_asked = outcome.asked;
    gap.reason = tool::printable(outcome.reason);
    ++gap.requests;
}

void Keeper::write(Change &change) {
    write_span(change);
    write_gap(change);
    if (!change.has_new_answer && !change.is_first) return;
    Batch &row = statements_->pairs->integer(change.device).text(change.bundle);
    change.has_new_answer ? row.integer(change.state.id) : row.null();
}

Stored Keeper::put(std::span<const Outcome> outcomes) {
    std::deque<Change> changes;
    std::unordered_map<State *, Change *> changed;
    Stored stored;
    statements_->clear();
    if (rows_ != nullptr) rows_->clear();
    require_ids(outcomes.size());
    database_->transact([&] {
        require_lease();
        for (const Outcome &outcome : outcomes) {
            const auto owned = owned_.find(outcome.device);
            if (owned == owned_.end()) continue;
            State &state = state_of(owned->second, outcome.bundle);
            if (outcome.asked <= state.known_until) continue;
            Change *&change = changed[&state];
            if (change == nullptr) {
                const bool is_first = state.number == 0 && !state.gap_began;
                change = &changes.emplace_back(Change{owned->second.id, std::string(outcome.bundle), is_first, state});
            }
            outcome.frames.empty() ? add_silence(outcome, *change) : add_answer(outcome, *change);
            ++(outcome.frames.empty() ? stored.silences : stored.answers);
        }
        for (Change &change : changes) write(change);
        statements_->flush();
        if (rows_ != nullptr) rows_->flush();
    });
    for (const auto &[state, change] : changed) *state = std::move(change->state);
    return stored;
}

std::size_t Keeper::forget(Time before) {
    constexpr std::int64_t step = 1000;
    std::size_t forgotten = 0;
    std::int64_t first = 0, last = 0;
    database_->transact([&] {
        forgotten += static_cast<std::size_t>(
            change(*database_, "DELETE FROM gaps WHERE ended < :before", soci::use(before, "before")));
        database_->session() << "SELECT coalesce(min(answer_id), 0), coalesce(max(answer_id), -1) FROM answers",
            soci::into(first), soci::into(last);
    });
    // In short transactions, since other collectors of a SQLite file wait for them. Blocks of answers are in the order
    // of time. The last answer of a device stays until a gap begins, since the next one may be the same.
    for (bool has_old = true; first <= last && has_old; first += step) {
        const std::string range =
            "answer_id >= " + std::to_string(first) + " AND answer_id < " + std::to_string(first + step);
        database_->transact([&] {
            Time oldest = 0;
            database_->session() << "SELECT coalesce(min(first_seen), 0) FROM answers WHERE " + range,
                soci::into(oldest);
            has_old = oldest < before;
            const long long gone =
                change(*database_,
                       "DELETE FROM answers WHERE last_seen < :before AND " + range +
                           " AND NOT EXISTS (SELECT 1 FROM device_bundles p WHERE "
                           "p.device_id = answers.device_id AND p.bundle = answers.bundle AND "
                           "p.answer_id = answers.answer_id AND NOT EXISTS (SELECT 1 FROM gaps g WHERE "
                           "g.device_id = p.device_id AND g.bundle = p.bundle AND g.ended IS NULL))",
                       soci::use(before, "before"));
            if (gone == 0) return;
            forgotten += static_cast<std::size_t>(gone);
            database_->run("DELETE FROM contents WHERE " + range + " AND NOT EXISTS " +
                           "(SELECT 1 FROM answers a WHERE a.answer_id = contents.answer_id)");
            if (rows_ != nullptr) delete_rows(*database_, first, first + step);
        });
    }
    return forgotten;
}

}  // namespace tarn::fleet
