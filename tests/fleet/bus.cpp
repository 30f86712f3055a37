#include "bus.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace fleet_test {

bool happens(const std::function<bool()> &condition, std::chrono::seconds within) {
    const auto end = std::chrono::steady_clock::now() + within;
    while (std::chrono::steady_clock::now() < end) {
        if (condition()) return true;
        ::usleep(100'000);
    }
    return false;
}

int free_port() {
    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(descriptor, reinterpret_cast<const sockaddr *>(&address), size) != 0 ||
        getsockname(descriptor, reinterpret_cast<sockaddr *>(&address), &size) != 0) {
        throw std::runtime_error("no free port");
    }
    close(descriptor);
    return ntohs(address.sin_port);
}

BusServer::BusServer(const std::string &settings)
    : port_(free_port()), url_("nats://127.0.0.1:" + std::to_string(port_)) {
    configure(settings);
    start();
}

void BusServer::configure(const std::string &settings) {
    directory_.write("bus.conf", "listen: 127.0.0.1:" + std::to_string(port_) + "\n" + settings);
}

void BusServer::start() {
    process_ = std::make_unique<tool_test::Process>(std::vector<std::string>{"-c", directory_.path("bus.conf")},
                                                    TARN_NATS_SERVER);
    if (!process_->wait_for_error("Server is ready")) throw std::runtime_error(process_->err());
}

void BusServer::restart() {
    process_->signal(SIGKILL);
    process_->finish();
    start();
}

std::string BusServer::url_of(const std::string &user, const std::string &password) const {
    return "nats://" + user + ":" + password + "@127.0.0.1:" + std::to_string(port_);
}

namespace {

std::vector<std::string> arguments_of(const std::string &url, const std::string &device,
                                      const std::vector<std::string> &more) {
    std::vector<std::string> all{"answer", "--bus", url, "--device", device};
    all.insert(all.end(), more.begin(), more.end());
    if (more.empty() || more.back().find('=') == std::string::npos) {
        all.push_back("cl-debug=" + std::string(TARN_EXAMPLES) + "/cl_debug.xml");
    }
    return all;
}

}  // namespace

DeviceProcess::DeviceProcess(const BusServer &bus, const std::string &device, std::vector<std::string> more)
    : process_(arguments_of(bus.url(), device, more)), ready_(process_.wait_for("answering on")) {}

RawClient::RawClient(const std::string &url) {
    if (natsConnection_ConnectTo(&connection_, url.c_str()) != NATS_OK) throw std::runtime_error("cannot connect");
}

RawClient::~RawClient() { natsConnection_Destroy(connection_); }

std::string RawClient::request(const std::string &subject, const std::string &payload) const {
    natsMsg *reply = nullptr;
    if (natsConnection_RequestString(&reply, connection_, subject.c_str(), payload.c_str(), 2000) != NATS_OK) return {};
    std::string text(natsMsg_GetData(reply), static_cast<std::size_t>(natsMsg_GetDataLength(reply)));
    natsMsg_Destroy(reply);
    return text;
}

}  // namespace fleet_test
