// Pages for a browser: one file each, with all they need inside, so that they work from a disk and without a network.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

namespace tarn::tool {

struct Page {
    std::string title;
    std::string_view body, script;  // as they are
    const nlohmann::ordered_json &data;
};

// The script finds the data as JSON in the element "data".
std::string page_text(const Page &page);

}  // namespace tarn::tool
