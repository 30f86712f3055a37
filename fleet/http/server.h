// Serves the metrics and the page of a collector.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "fleet/http/browser_data.h"

namespace tarn::fleet {

// Requests are read-only; those for the store wait for each other, those for the metrics do not.
class HttpServer {
public:
    // "127.0.0.1:9464"; with port 0, the system chooses one. Throws a Failure with the address. `metrics` returns the
    // text of the metrics and is called by several threads.
    HttpServer(const std::string &address, const std::string &store, const std::function<std::string()> &metrics);
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;
    ~HttpServer();

    const std::string &url() const { return url_; }

private:
    struct Parts;

    std::string url_;
    std::unique_ptr<Parts> parts_;
};

}  // namespace tarn::fleet
