// What devices answered, and when they did not, in a SQLite file or in a PostgreSQL database.
//
// An answer is stored with the span of time in which the device gave it: as long as the frames stay the same, apart
// from the stamps in their headers, the span grows. A device that did not answer has a gap.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fleet/store/times.h"
#include "fleet/store/unavailable.h"

namespace tarn::fleet {

class Database;
class StoredRows;

// A span in which a device gave the same answer.
struct StoredAnswer {
    std::int64_t id;
    std::string device, bundle;
    std::int64_t number;         // of the answers of this device and bundle, from 1
    std::string digest;          // SHA-256 of the frames
    std::int64_t size;           // of the frames, in bytes
    Time asked, first_seen;      // of the first request
    Time last_asked, last_seen;  // of the last request
    std::int64_t times;          // number of requests
};

// A span in which a device did not answer.
struct Gap {
    std::string device, bundle;
    std::int64_t number;  // of the answer before it; 0 if there is none
    Time began, last_asked;
    std::optional<Time> ended;  // when it answered again
    std::string reason;         // of the last request
    std::int64_t requests;
};

// A bundle of a device: what is known last.
struct Latest {
    std::string device, site, bundle;
    std::optional<StoredAnswer> answer;
    std::optional<Gap> gap;  // if the last request was not answered
};

// Empty members select all.
struct Selection {
    std::string device = {}, bundle = {};
    std::optional<Time> since = {}, until = {};  // spans that have begun until then and had not ended by then
};

// For reading.
class Store {
public:
    explicit Store(const std::string &where);
    ~Store();

    const std::string &shown() const;

    // The device with that name, SITE/DEVICE; without a site, of any site. Throws a Failure that names the device if
    // there is none, or more than one.
    std::string device_named(const std::string &name);

    std::vector<Latest> latest(const Selection &selection);
    // In the order of device, bundle and number.
    void for_each_answer(const Selection &selection, const std::function<void(const StoredAnswer &)> &visit);
    void for_each_gap(const Selection &selection, const std::function<void(const Gap &)> &visit);

    // The last answers that had been given by that time, one for each device and bundle, in the order of both. An empty
    // device or bundle selects all.
    std::vector<StoredAnswer> answers_at(const std::string &device, const std::string &bundle, Time time);

    // Throws a Failure with Exit::input if there is no such answer.
    StoredAnswer answer(std::int64_t id);
    std::string frames(std::int64_t answer);

private:
    std::unique_ptr<Database> database_;
};

// The result of a request: frames, or the reason why there are none.
struct Outcome {
    std::string_view device, bundle;
    Time asked, ended;
    std::string_view frames, reason;
};

// How many outcomes were stored.
struct Stored {
    std::size_t answers = 0, silences = 0;
    bool operator==(const Stored &) const = default;
};

// Writes what a collector received. Collectors that write to the same store share its devices: each device is leased to
// one of them, and those of a collector that does not renew its lease pass to the others.
class Keeper {
public:
    // A collector that has not renewed its lease for that time has lost its devices. Between two answers that are
    // further apart than `patience`, a gap is recorded, since nobody asked.
    // With `rows`, a new store also gets the records of answers as rows; one that exists must have them.
    Keeper(const std::string &where, Time lease, Time patience, bool rows = false);
    ~Keeper();

    const std::string &shown() const;
    const std::string &name() const { return name_; }  // of the collector in the store

    // Connects anew, which is required after each Unavailable. The collector has no devices until renew() succeeds.
    void connect();

    // Adds the devices that the store does not have: names, SITE/DEVICE, and sites. Text that is not printable is
    // escaped.
    void add_devices(std::span<const std::pair<std::string, std::string>> devices);

    // Renews the lease, takes over devices of collectors that are gone, and claims or releases devices so that all
    // collectors have about the same number. Returns true if the devices of this collector have changed.
    bool renew();
    std::vector<std::string> devices() const;
    bool owns(std::string_view device) const { return owned_.find(device) != owned_.end(); }

    // Stores outcomes in one transaction, without those of devices that this collector does not own. When it returns,
    // they are kept, whatever happens to this process, the server or the machine. If it throws, the store contains all
    // of them or none. Outcomes that may be in the store already are left out: those of an attempt whose end was not
    // known, and those of a device that another collector has asked later.
    Stored put(std::span<const Outcome> outcomes);

    // Deletes what ended before that time, but not the last answer of a device that answers. Returns the number of
    // spans and gaps.
    std::size_t forget(Time before);

private:
    // The last span of a device and bundle, as the next outcome continues it.
    struct State {
        std::int64_t id = 0, number = 0;  // of the answer
        std::string same;                 // what the next answer must have in common to be the same; empty in a gap
        Time last_seen = 0;
        std::optional<Time> gap_began;
        Time known_until = 0;  // the last request that is in the store, when the state was read from there
    };
    struct Change;
    struct Statements;

    struct Owned {
        std::int64_t id;
        std::map<std::string, State, std::less<>> states;  // by bundle
    };

    void load_devices();
    State load_state(std::int64_t device, const std::string &bundle);
    State &state_of(Owned &owned, std::string_view bundle);
    void require_lease();
    void require_ids(std::size_t count);
    void add_answer(const Outcome &outcome, Change &change);
    void add_silence(const Outcome &outcome, Change &change);
    Gap &gap_of(Change &change, Time began, Time asked);
    void write_span(Change &change);
    void write_gap(Change &change);
    void write(Change &change);
    void lose();

    const std::string where_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<Statements> statements_;
    std::unique_ptr<StoredRows> rows_;  // null if the store has none
    const std::string name_;
    const Time lease_, patience_;
    const bool wants_rows_;
    bool is_registered_ = false;
    std::int64_t last_id_ = 0, end_of_ids_ = 0;                    // of those that this collector may use
    std::map<std::string, Owned, std::less<>> owned_;              // by device
    std::map<std::string, std::string, std::less<>> known_sites_;  // of all devices that this collector has added
};

}  // namespace tarn::fleet
