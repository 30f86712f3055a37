#include "fleet/http/server.h"

#include <httplib.h>

#include <cerrno>
#include <charconv>
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

constexpr std::size_t threads = 8;
constexpr time_t seconds_to_wait = 5;  // for the next bytes of a client

// The page may load what this server has, and nothing else. The pages of answers have a policy of their own, with the
// digest of their script.
constexpr char page_policy[] =
    "default-src 'none'; script-src 'self'; style-src 'self'; connect-src 'self'; img-src data:; base-uri 'none'; "
    "form-action 'none'; frame-ancestors 'none'";
constexpr char view_policy[] = "base-uri 'none'; form-action 'none'; frame-ancestors 'none'";

constexpr char plain_text[] = "text/plain; charset=utf-8", html[] = "text/html; charset=utf-8",
               css[] = "text/css; charset=utf-8", script[] = "text/javascript; charset=utf-8",
               json[] = "application/json";

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
    httplib::Server server;
    std::thread thread;
};

HttpServer::HttpServer(const std::string &address, const std::string &store, std::function<std::string()> metrics)
    : parts_(std::make_unique<Parts>(store)) {
    const auto [host, port] = host_and_port(address);
    httplib::Server &server = parts_->server;
    server.new_task_queue = [] { return new BoundedPool; };
    server.set_keep_alive_max_count(1);
    server.set_read_timeout(seconds_to_wait);
    server.set_write_timeout(seconds_to_wait);
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
        [resources = resources_of(parts_->data, metrics)](const Request &request, Response &response) {
            respond(resources, request, response);
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
    if (parts_ == nullptr || !parts_->thread.joinable()) return;
    parts_->server.stop();
    parts_->thread.join();
}

}  // namespace tarn::fleet
