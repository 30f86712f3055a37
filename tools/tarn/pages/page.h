// HTML pages. Each is a single file that contains everything it needs, so it works from disk and without a network.
#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>
#include <string_view>

namespace tarn::tool {

struct Page {
    std::string title;
    std::string_view body, script;  // not escaped
    std::span<const std::uint8_t> script_sha256;
    const nlohmann::ordered_json &data;
};

// The script reads the data as JSON from the element "data".
std::string page_text(const Page &page);

}  // namespace tarn::tool
