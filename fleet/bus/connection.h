// A connection to a bus, which is a server of NATS or several.
#pragma once

#include <nats/nats.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tools/tarn/formats/frames.h"

namespace tarn::fleet {

struct BusOptions {
    std::string url;          // or several, separated by commas
    std::string ca;           // certificates of authorities that sign the servers'; empty: those of the system
    std::string certificate;  // of this process, and its key
    std::string key;
    std::string credentials;  // file with a token and a seed, as the bus's tools write it

    // The addresses without passwords.
    std::string shown() const;
};

// Headers of requests and answers.
namespace headers {
inline constexpr char schema[] = "Tarn-Schema";    // digest of the schema
inline constexpr char device[] = "Tarn-Device";    // SITE/DEVICE
inline constexpr char request[] = "Tarn-Request";  // as in the subject of the answer
inline constexpr char part[] = "Tarn-Part";        // "2/5"
inline constexpr char status[] = "Tarn-Status";    // "answered" or "refused"
}  // namespace headers

// Of the schema of this build.
const std::string &own_digest();

template <class T, void (*destroy)(T *)>
struct BusRelease {
    void operator()(T *object) const { destroy(object); }
};
using BusConnection = std::unique_ptr<natsConnection, BusRelease<natsConnection, natsConnection_Destroy>>;
using BusSubscription = std::unique_ptr<natsSubscription, BusRelease<natsSubscription, natsSubscription_Destroy>>;
using BusSettings = std::unique_ptr<natsOptions, BusRelease<natsOptions, natsOptions_Destroy>>;

// Throws a Failure that names the servers and the reason.
void check_bus(natsStatus status, const std::string &what);

// A connection reconnects by itself, without end and to any of the servers.
BusSettings bus_settings(const BusOptions &options, const std::string &client);
BusConnection connect_bus(const BusOptions &options, natsOptions *settings);
// A server that refuses a client twice, such as one whose account is gone, is not tried again, and the connection stays
// closed. Throws a Failure with the reason then.
void require_open(const BusOptions &options, natsConnection *connection);

class BusMessage {
public:
    explicit BusMessage(natsMsg *message) : message_(message) {}
    BusMessage(const std::string &subject, const char *reply, tool::FrameBytes payload);

    void set(const char *header, const std::string &value);
    // Empty if there is none.
    std::string_view header(const char *name) const;
    std::string_view subject() const { return natsMsg_GetSubject(message_.get()); }
    // Empty if no reply is expected.
    std::string_view reply() const;
    tool::FrameBytes payload() const;
    bool has_no_responders() const { return natsMsg_IsNoResponders(message_.get()); }
    natsMsg *get() const { return message_.get(); }

private:
    std::unique_ptr<natsMsg, BusRelease<natsMsg, natsMsg_Destroy>> message_;
};

}  // namespace tarn::fleet
