// What a device reports of itself, by the convention for services of the bus: replies to requests on $SRV.PING,
// $SRV.INFO and $SRV.STATS, in JSON.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fleet/bus/names.h"

namespace tarn::fleet {

inline constexpr char service_name[] = "tarn";

struct Device {
    DeviceName name;
    std::string id;       // of the process
    std::string version;  // of the program
    std::string schema;   // digest
    std::string started;  // such as 2026-11-23T06:30:00Z
    std::vector<std::string> bundles;
};

struct DeviceStatistics {
    std::uint64_t requests = 0, errors = 0;
    std::uint64_t processing_ns = 0;
    std::string last_error;
};

// The requests for PING, INFO and STATS of all services, of those with this name, and of one.
std::vector<std::string> service_subjects(const Device &device);

// The reply to a request on such a subject; empty for one of another kind.
std::string service_reply(const Device &device, std::string_view subject, const DeviceStatistics &statistics);

// The device that a reply to a PING describes. Nothing for other services. Throws a Failure if the reply is malformed.
std::optional<Device> device_of(std::string_view reply);

}  // namespace tarn::fleet
