#include "fleet/bus/connection.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <mutex>
#include <set>

#include "schema/digest.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

using tool::Exit;
using tool::Failure;

namespace {

std::vector<std::string> servers_of(const std::string &url) {
    std::vector<std::string> servers;
    for (std::size_t begin = 0; begin <= url.size();) {
        const std::size_t end = std::min(url.find(',', begin), url.size());
        servers.push_back(url.substr(begin, end - begin));
        begin = end + 1;
    }
    return servers;
}

// The library says only that it cannot load a file.
const char *readable(const std::string &path) {
    if (::access(path.c_str(), R_OK) != 0) {
        const std::string reason = tool::error_text(static_cast<std::uint32_t>(errno));
        throw Failure(Exit::environment, tool::printable(path) + ": " + reason);
    }
    return path.c_str();
}

// Called by a thread of the library. What a server does not permit is printed once, since a process may try it again
// and again.
void on_error(natsConnection *connection, natsSubscription *, natsStatus status, void *) {
    constexpr std::size_t most = 100;
    static std::mutex lock;
    static std::set<std::string> printed;
    const char *text = nullptr;
    if (status != NATS_NOT_PERMITTED || natsConnection_GetLastError(connection, &text) == NATS_OK || text == nullptr)
        return;
    const std::lock_guard<std::mutex> hold(lock);
    if (printed.size() < most && printed.insert(text).second) {
        std::fprintf(stderr, "tarn: the bus does not permit: %s\n", tool::printable(text).c_str());
    }
}

}  // namespace

std::string BusOptions::shown() const {
    std::string text;
    for (std::string server : servers_of(url)) {
        const std::size_t scheme = server.find("://"), user = server.rfind('@');
        const std::size_t begin = scheme == std::string::npos ? 0 : scheme + 3;
        if (user != std::string::npos && user >= begin) server.erase(begin, user + 1 - begin);
        text += (text.empty() ? "" : ",") + server;
    }
    return tool::printable(text);
}

const std::string &own_digest() {
    static const std::string digest = schema::schema_digest();
    return digest;
}

void check_bus(natsStatus status, const std::string &what) {
    if (status == NATS_OK) return;
    // The library names its own source lines first.
    const char *last = nats_GetLastError(nullptr);
    std::string detail = last != nullptr ? last : "";
    if (const std::size_t lines_end = detail.find("): "); lines_end != std::string::npos)
        detail.erase(0, lines_end + 3);
    const std::string reason = natsStatus_GetText(status);
    throw Failure(status == NATS_INVALID_ARG ? Exit::input : Exit::environment,
                  what + ": " + reason + (detail.empty() || detail == reason ? "" : ": " + detail));
}

BusSettings bus_settings(const BusOptions &options, const std::string &client) {
    natsOptions *created = nullptr;
    check_bus(natsOptions_Create(&created), "bus");
    BusSettings settings(created);
    const std::vector<std::string> servers = servers_of(options.url);
    std::vector<const char *> urls;
    for (const std::string &server : servers) urls.push_back(server.c_str());
    const std::string &where = options.shown();
    check_bus(natsOptions_SetServers(created, urls.data(), static_cast<int>(urls.size())), where);
    check_bus(natsOptions_SetName(created, client.c_str()), where);
    check_bus(natsOptions_SetMaxReconnect(created, -1), where);
    check_bus(natsOptions_SetReconnectWait(created, 250), where);
    check_bus(natsOptions_SetReconnectJitter(created, 250, 250), where);
    check_bus(natsOptions_SetErrorHandler(created, on_error, nullptr), where);
    // Nothing is promised by the bus: what is not sent now is asked for again.
    check_bus(natsOptions_SetFailRequestsOnDisconnect(created, true), where);
    if (!options.ca.empty()) {
        check_bus(natsOptions_LoadCATrustedCertificates(created, readable(options.ca)), options.ca);
        check_bus(natsOptions_SetSecure(created, true), where);
    }
    if (!options.certificate.empty()) {
        check_bus(natsOptions_LoadCertificatesChain(created, readable(options.certificate), readable(options.key)),
                  options.certificate);
    }
    if (!options.credentials.empty()) {
        check_bus(natsOptions_SetUserCredentialsFromFiles(created, readable(options.credentials), nullptr),
                  options.credentials);
    }
    return settings;
}

BusConnection connect_bus(const BusOptions &options, natsOptions *settings) {
    natsConnection *connection = nullptr;
    check_bus(natsConnection_Connect(&connection, settings), options.shown() + ": cannot connect");
    BusConnection owner(connection);
    check_bus(natsConnection_HasHeaderSupport(connection), options.shown() + ": the server is too old");
    return owner;
}

void require_open(const BusOptions &options, natsConnection *connection) {
    if (!natsConnection_IsClosed(connection)) return;
    const char *reason = nullptr;
    natsConnection_GetLastError(connection, &reason);
    throw Failure(Exit::environment, options.shown() + ": the server has closed the connection" +
                                         (reason == nullptr || *reason == '\0' ? "" : ": " + tool::printable(reason)));
}

BusMessage::BusMessage(const std::string &subject, const char *reply, tool::FrameBytes payload) {
    natsMsg *created = nullptr;
    check_bus(natsMsg_Create(&created, subject.c_str(), reply, tool::chars_of(payload).data(),
                             static_cast<int>(payload.size())),
              "message");
    message_.reset(created);
}

void BusMessage::set(const char *header, const std::string &value) {
    check_bus(natsMsgHeader_Set(message_.get(), header, value.c_str()), "message");
}

std::string_view BusMessage::header(const char *name) const {
    const char *value = nullptr;
    return natsMsgHeader_Get(message_.get(), name, &value) == NATS_OK && value != nullptr ? value : "";
}

std::string_view BusMessage::reply() const {
    const char *subject = natsMsg_GetReply(message_.get());
    return subject != nullptr ? subject : "";
}

tool::FrameBytes BusMessage::payload() const {
    return {reinterpret_cast<const std::uint8_t *>(natsMsg_GetData(message_.get())),
            static_cast<std::size_t>(natsMsg_GetDataLength(message_.get()))};
}

}  // namespace tarn::fleet
