#include "fleet/bus/discovery.h"

#include <nlohmann/json.hpp>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

using nlohmann::ordered_json;

namespace {

constexpr char type_prefix[] = "io.nats.micro.v1.";

std::string joined(const std::vector<std::string> &words) {
    std::string text;
    for (const std::string &word : words) text += (text.empty() ? "" : ",") + word;
    return text;
}

std::vector<std::string> split(const std::string &text) {
    std::vector<std::string> words;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        words.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return words;
}

ordered_json endpoint_of(const Device &device) {
    return {{"name", "ask"}, {"subject", ask_subject(device.name)}, {"queue_group", ""}};
}

// What the schema of a reply requires, in words.
void require(bool condition, const char *what) {
    if (!condition) throw tool::Failure(tool::Exit::input, std::string("a reply to the discovery ") + what);
}

// A text member, which must be short and printable.
std::string text_at(const ordered_json &json, const char *name) {
    require(json.contains(name) && json[name].is_string(), "lacks a member");
    std::string text = json[name].get<std::string>();
    require(text.size() <= 1024 && tool::printable(text, 1024) == text, "contains unprintable or long text");
    return text;
}

}  // namespace

std::vector<std::string> service_subjects(const Device &device) {
    return {"$SRV.*", std::string("$SRV.*.") + service_name, std::string("$SRV.*.") + service_name + "." + device.id};
}

std::string service_reply(const Device &device, std::string_view subject, const DeviceStatistics &statistics) {
    constexpr std::string_view prefix = "$SRV.";
    const std::string_view rest = subject.substr(std::min(prefix.size(), subject.size()));
    const std::string_view verb = rest.substr(0, rest.find('.'));
    ordered_json reply{{"name", service_name},
                       {"id", device.id},
                       {"version", device.version},
                       {"metadata",
                        {{"device", device.name.device},
                         {"site", device.name.site},
                         {"schema", device.schema},
                         {"started", device.started},
                         {"bundles", joined(device.bundles)}}}};
    if (verb == "PING") {
        reply["type"] = type_prefix + std::string("ping_response");
    } else if (verb == "INFO") {
        reply["type"] = type_prefix + std::string("info_response");
        reply["description"] = "answers requests for records of traffic-aware routing";
        reply["endpoints"] = ordered_json::array({endpoint_of(device)});
    } else if (verb == "STATS") {
        reply["type"] = type_prefix + std::string("stats_response");
        reply["started"] = device.started;
        ordered_json endpoint = endpoint_of(device);
        endpoint["num_requests"] = statistics.requests;
        endpoint["num_errors"] = statistics.errors;
        endpoint["last_error"] = statistics.last_error;
        endpoint["processing_time"] = statistics.processing_ns;
        endpoint["average_processing_time"] =
            statistics.requests == 0 ? 0 : statistics.processing_ns / statistics.requests;
        reply["endpoints"] = ordered_json::array({endpoint});
    } else {
        return {};
    }
    return reply.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

std::optional<Device> device_of(std::string_view reply) {
    const ordered_json json = ordered_json::parse(reply, nullptr, false);
    require(json.is_object(), "is not a JSON object");
    if (text_at(json, "name") != service_name) return std::nullopt;
    require(json.contains("metadata") && json["metadata"].is_object(), "lacks a member");
    const ordered_json &metadata = json["metadata"];
    Device device{.name = {text_at(metadata, "site"), text_at(metadata, "device")},
                  .id = text_at(json, "id"),
                  .version = text_at(json, "version"),
                  .schema = text_at(metadata, "schema"),
                  .started = text_at(metadata, "started"),
                  .bundles = split(text_at(metadata, "bundles"))};
    require(is_name(device.name.site) && is_name(device.name.device), "names no device");
    return device;
}

}  // namespace tarn::fleet
