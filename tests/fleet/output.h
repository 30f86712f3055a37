// What the commands of the fleet print.
#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

namespace fleet_test {

inline std::vector<nlohmann::json> lines_of(const std::string &text) {
    std::vector<nlohmann::json> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(nlohmann::json::parse(line));
    return lines;
}

inline bool contains(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

}  // namespace fleet_test
