#include "fleet/http/server.h"

#include <arpa/inet.h>
#include <httplib.h>
#include <poll.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstring>
#include <map>
#include <semaphore>
#include <thread>
#include <utility>

#include "fleet/http/metrics.h"
#include "fleet_body.h"
#include "fleet_script.h"
#include "fleet_style.h"
#include "page_style.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using httplib::Request;
using httplib::Response;
using tool::Exit;
using tool::Failure;

constexpr std::size_t threads = 16;
constexpr std::chrono::seconds to_ask(5), to_read(60);     // what a client may take for a request and for its answer
constexpr std::size_t most_asked = std::size_t{64} << 10;  // bytes of a request

// The page may load what this server has, and nothing else. The pages of answers have a policy of their own, with the
// digest of their script.
constexpr char page_policy[] =
    "default-src 'none'; script-src 'self'; style-src 'self'; connect-src 'self'; img-src data:; base-uri 'none'; "
    "form-action 'none'; frame-ancestors 'none'";
constexpr char view_policy[] = "base-uri 'none'; form-action 'none'; frame-ancestors 'none'";

constexpr char plain_text[] = "text/plain; charset=utf-8", html[] = "text/html; charset=utf-8",
               css[] = "text/css; charset=utf-8", script[] = "text/javascript; charset=utf-8",
               json[] = "application/json";

// A connection for one request, which it limits as a whole. The library limits the wait for each byte, and no number of
// bytes, so that some clients that send a byte now and then would keep all others out.
class Connection : public httplib::Stream {
public:
    Connection(socket_t socket, const std::atomic<bool> &ends) : socket_(socket), ends_(ends) {}
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection() override {
        ::shutdown(socket_, SHUT_RDWR);
        ::close(socket_);
    }

    bool is_readable() const override { return begin_ < end_ || waits_for(POLLIN, began_ + to_ask); }
    bool is_writable() const override { return waits_for(POLLOUT, answered_ + to_read); }

    ssize_t read(char *to, std::size_t size) override {
        if (begin_ == end_) {
            if (asked_ >= most_asked || !is_readable()) return -1;
            const ssize_t got = ::recv(socket_, buffer_.data(), buffer_.size(), 0);
            if (got <= 0) return got;
            begin_ = 0;
            end_ = static_cast<std::size_t>(got);
            asked_ += end_;
        }
        const std::size_t count = std::min(size, end_ - begin_);
        std::copy_n(buffer_.data() + begin_, count, to);
        begin_ += count;
        return static_cast<ssize_t>(count);
    }

    ssize_t write(const char *text, std::size_t size) override {
        if (answered_ == Clock::time_point()) answered_ = Clock::now();
        return is_writable() ? ::send(socket_, text, size, MSG_NOSIGNAL | MSG_DONTWAIT) : -1;
    }

    void get_remote_ip_and_port(std::string &, int &) const override {}
    void get_local_ip_and_port(std::string &, int &) const override {}
    socket_t socket() const override { return socket_; }

private:
    using Clock = std::chrono::steady_clock;

    bool waits_for(short event, Clock::time_point until) const {
        constexpr std::chrono::milliseconds slice(100);  // after which the end of the server is noticed
        for (auto now = Clock::now(); now < until && !ends_; now = Clock::now()) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - now);
            pollfd entry{socket_, event, 0};
            if (::poll(&entry, 1, static_cast<int>(std::min(left, slice).count())) > 0) return true;
        }
        return false;
    }

    const socket_t socket_;
    const std::atomic<bool> &ends_;
    const Clock::time_point began_ = Clock::now();
    Clock::time_point answered_;
    std::array<char, 4096> buffer_;
    std::size_t begin_ = 0, end_ = 0, asked_ = 0;
};

class LimitedServer : public httplib::Server {
public:
    void end() {
        ends_ = true;
        stop();
    }

private:
    bool process_and_close_socket(socket_t socket) override {
        Connection connection(socket, ends_);
        bool is_closed = false;
        return process_request(connection, true, is_closed, [](Request &request) {
            // Of the ways to compress an answer, the others take seconds for large ones.
            const bool has_gzip = request.get_header_value("Accept-Encoding").find("gzip") != std::string::npos;
            request.headers.erase("Accept-Encoding");
            if (has_gzip) request.set_header("Accept-Encoding", "gzip");
        });
    }

    std::atomic<bool> ends_ = false;
};

// With as many clients as threads, the next one is accepted when one of them is done.
class BoundedPool : public httplib::ThreadPool {
public:
    BoundedPool() : httplib::ThreadPool(threads) {}

    void enqueue(std::function<void()> work) override {
        free_.acquire();
        httplib::ThreadPool::enqueue([this, work = std::move(work)] {
            work();
            free_.release();
        });
    }

private:
    std::counting_semaphore<threads> free_{threads};
};

std::string text_of(const Request &request, const char *name) {
    if (!request.has_param(name)) throw Failure(Exit::input, std::string("the parameter ") + name + " is missing");
    return request.get_param_value(name);
}

std::int64_t number_of(const Request &request, const char *name) {
    const std::string text = text_of(request, name);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0) {
        throw Failure(Exit::input,
                      std::string("the parameter ") + name + ": " + tool::in_quotes(text) + " is not a number");
    }
    return number;
}

struct Resource {
    const char *type;
    std::function<std::string(const Request &)> content;
    const char *policy = page_policy;
};

std::map<std::string, Resource> resources_of(BrowserData &data, const std::function<std::string()> &metrics) {
    const auto fixed = [](const char *type, std::string text) {
        return Resource{type, [text = std::move(text)](const Request &) { return text; }};
    };
    const auto installed = [](const char *type, const char *path) {
        return Resource{type, [path](const Request &) { return tool::read_file(path); }};
    };
    return {
        {"/", fixed(html, fleet_body)},
        {"/fleet.css", fixed(css, std::string(page_style) + fleet_style)},
        {"/fleet.js", fixed(script, fleet_script)},
        {"/dygraph.css", installed(css, TARN_DYGRAPHS "/dygraph.min.css")},
        {"/dygraph.js", installed(script, TARN_DYGRAPHS "/dygraph.min.js")},
        {"/metrics", {metrics_type, [metrics](const Request &) { return metrics(); }}},
        {"/data/devices", {json, [&](const Request &) { return data.devices(time_now()); }}},
        {"/data/members", fixed(json, BrowserData::members())},
        {"/data/history",
         {json,
          [&](const Request &r) {
              return data.history(text_of(r, "device"), number_of(r, "since"), number_of(r, "until"));
          }}},
        {"/data/changes", {json, [&](const Request &r) { return data.changes(number_of(r, "a"), number_of(r, "b")); }}},
        {"/data/values",
         {json,
          [&](const Request &r) {
              return data.values({text_of(r, "device"), text_of(r, "bundle"), text_of(r, "member"),
                                  number_of(r, "since"), number_of(r, "until"), r.get_param_value("filter")});
          }}},
        {"/view",
         {html,
          [&](const Request &r) {
              return data.view(number_of(r, "a"), r.has_param("b") ? std::optional(number_of(r, "b")) : std::nullopt);
          },
          view_policy}},
    };
}

void fail(Response &response, int status, const std::string &text) {
    response.status = status;
    response.set_content(text + "\n", plain_text);
}

// True for an address, "localhost", and the host that the server was given. A name that others can let point here would
// let their pages read this server in a browser that can reach it.
bool is_own(std::string host, const std::string &given) {
    host.resize(std::min(host.size(), host.find(':', host.starts_with('[') ? host.find(']') : 0)));
    if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
    in6_addr address;
    return ::inet_pton(AF_INET, host.c_str(), &address) == 1 || ::inet_pton(AF_INET6, host.c_str(), &address) == 1 ||
           ::strcasecmp(host.c_str(), "localhost") == 0 || ::strcasecmp(host.c_str(), given.c_str()) == 0;
}

void respond(const std::map<std::string, Resource> &resources, const Request &request, Response &response) {
    if (request.method != "GET" && request.method != "HEAD") {
        response.set_header("Allow", "GET, HEAD");
        return fail(response, 405, "only GET and HEAD are allowed");
    }
    // Many ranges of one text could be far longer than the text.
    if (request.has_header("Range")) return fail(response, 416, "ranges are not supported");
    const auto found = resources.find(request.path);
    if (found == resources.end()) return fail(response, 404, "there is no such page");
    try {
        response.set_content(found->second.content(request), found->second.type);
        response.set_header("Content-Security-Policy", found->second.policy);
        response.status = 200;
    } catch (const Failure &failure) {
        fail(response, failure.exit() == Exit::input ? 400 : 503, failure.what());
    } catch (const std::exception &) {
        fail(response, 500, "the request failed");
    }
}

// "127.0.0.1:9464", "[::1]:9464"
std::pair<std::string, int> host_and_port(const std::string &address) {
    const std::size_t colon = address.rfind(':');
    const bool is_whole = colon != std::string::npos && colon != 0;
    std::string host = is_whole ? address.substr(0, colon) : std::string();
    if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
    std::uint16_t port = 0;
    const char *const end = address.data() + address.size();
    if (!is_whole || std::from_chars(address.data() + colon + 1, end, port).ptr != end || address.ends_with(':')) {
        throw Failure(Exit::input, tool::in_quotes(address) + " is not of the form HOST:PORT");
    }
    return {host, port};
}

}  // namespace

struct HttpServer::Parts {
    explicit Parts(const std::string &store) : data(store) {}

    BrowserData data;
    LimitedServer server;
    std::thread thread;
};

HttpServer::HttpServer(const std::string &address, const std::string &store,
                       const std::function<std::string()> &metrics)
    : parts_(std::make_unique<Parts>(store)) {
    const auto [host, port] = host_and_port(address);
    LimitedServer &server = parts_->server;
    server.new_task_queue = [] { return new BoundedPool; };
    server.set_payload_max_length(0);
    // Two processes cannot share the port.
    server.set_socket_options([](socket_t socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    server.set_default_headers({{"X-Content-Type-Options", "nosniff"},
                                {"Cross-Origin-Resource-Policy", "same-origin"},
                                {"Referrer-Policy", "no-referrer"},
                                {"Cache-Control", "no-store"}});
    server.set_pre_routing_handler(
        [resources = resources_of(parts_->data, metrics), given = host](const Request &request, Response &response) {
            const std::string wanted = request.get_header_value("Host");
            if (is_own(wanted, given)) {
                respond(resources, request, response);
            } else {
                fail(response, 421,
                     "the host " + tool::in_quotes(wanted) + " is neither an address nor the host that --http names");
            }
            return httplib::Server::HandlerResponse::Handled;
        });
    errno = 0;
    const int bound = port == 0 ? server.bind_to_any_port(host) : server.bind_to_port(host, port) ? port : -1;
    if (bound < 0) {
        throw Failure(Exit::environment, tool::printable(address) + ": cannot listen" +
                                             (errno != 0 ? std::string(": ") + std::strerror(errno) : ""));
    }
    url_ =
        "http://" + (host.find(':') != std::string::npos ? "[" + host + "]" : host) + ":" + std::to_string(bound) + "/";
    parts_->thread = std::thread([&server] { server.listen_after_bind(); });
    while (!server.is_running()) std::this_thread::yield();
}

HttpServer::~HttpServer() {
    parts_->server.end();
    parts_->thread.join();
}

}  // namespace tarn::fleet
