#include "tools/tarn/support/random_payload.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;
using schema::Category;
using schema::Member;
using schema::Record;
using schema::Role;

bool has(const Member &m, std::string_view part) { return m.name.find(part) != std::string_view::npos; }

bool ends(const Member &m, std::string_view part) {
    return m.name.size() >= part.size() && m.name.substr(m.name.size() - part.size()) == part;
}

bool has_fixed_length(const Member &m) {
    return m.name == "lumo_data" || m.name == "complex_data" || m.name == "lumo_info";
}

std::string hex(std::uint64_t number) {
    std::string digits;
    for (; number != 0; number /= 16) digits.insert(digits.begin(), "0123456789abcdef"[number % 16]);
    return digits;
}

bool has_address(const Record &record) {
    return std::any_of(record.members.begin(), record.members.end(),
                       [](const Member &m) { return category(m.kind) == Category::address; });
}

}  // namespace

bool RandomPayload::can_grow(const Record &record) {
    return std::any_of(record.members.begin(), record.members.end(), [](const Member &m) {
        return (category(m.kind) == Category::array && !has_fixed_length(m)) ||
               (m.record != nullptr && can_grow(*m.record));
    });
}

// A network: the bits behind its prefix length are zero. Each statement draws at most one number, because compilers
// evaluate operands in different orders.
std::string RandomPayload::address() {
    constexpr unsigned v4_lengths[] = {8, 16, 24, 24, 30, 32}, v6_lengths[] = {32, 48, 56, 64, 64, 128};
    const unsigned length = (v4_ ? v4_lengths : v6_lengths)[below(6)];
    if (v4_) {
        const std::uint64_t host = below(1U << 24);
        const std::uint64_t bits = (std::uint64_t{10} << 24 | host) & ~std::uint64_t{0} << (32 - length);
        std::string text;
        for (unsigned shift = 32; shift != 0; shift -= 8) {
            text += (text.empty() ? "" : ".") + std::to_string(bits >> (shift - 8) & 255);
        }
        return text + "/" + std::to_string(length);
    }
    // Groups without a leading zero are in canonical form, so they read back as written.
    const std::uint64_t groups[] = {1 + below(0xffff), (1 + below(0xff)) << 8, 1 + below(0xff), 1 + below(0xffff)};
    std::string text = "2001:db8:";
    if (length >= 48) text += hex(groups[0]) + ":";
    if (length >= 56) text += hex(length == 56 ? groups[1] : groups[1] | groups[2]) + ":";
    return text + ":" + (length == 128 ? hex(groups[3]) : "") + "/" + std::to_string(length);
}

std::string RandomPayload::name(const Member &m) {
    constexpr const char *protocols[] = {"http", "dns", "rtp", "ssh", "smtp", "quic", "sip", "ntp"};
    if (has(m, "intf")) {
        std::string text = "TenGigE0/";
        text += std::to_string(below(8)) + "/";
        text += std::to_string(below(4)) + "/";
        return text + std::to_string(below(32));
    }
    const std::string word = protocols[below(8)];
    return has(m, "sub") ? word + "-video" : has(m, "appl") ? word + "-" + std::to_string(index_) : word;
}

std::uint64_t RandomPayload::number(const Record &record, const Member &m) {
    const std::uint64_t limit = greatest(m.kind);
    if (m.name == "lumo_num" || m.name == "complex_num") return index_;
    if (m.name == "num_lumos" || m.name == "num_complexes") return 2;
    if (ends(m, "_ptr") || ends(m, "_addr") || ends(m, "_h") || ends(m, "_p") || ends(m, "_next") || has(m, "chan")) {
        return (0x7f0000000000 + below(1U << 28) * 16) & limit;
    }
    if (m.name == "proto" || m.name == "protocol") return below(2) == 0 ? 6 : 17;
    if (m.name == "tos") return below(64) * 4;
    if (ends(m, "port_min")) return port_min_ = 1024 + below(30000);
    if (ends(m, "port_max")) return port_min_ + below(1000);
    if (ends(m, "_opr")) return below(5);
    if (ends(m, "enabled") || ends(m, "initialized") || ends(m, "running") || ends(m, "_set") || ends(m, "init"))
        return below(2);
    if (m.name == "size" || ends(m, "_size")) return std::min<std::uint64_t>(limit, std::uint64_t{64} << below(10));
    if (m.name == "duration") return duration_ = 60 * (1 + below(1440));
    if (m.name == "start_time") return start_ = 1700000000 + below(100000);
    if (m.name == "end_time") return start_ + duration_;
    if (m.name == "id" || ends(m, "_id")) return (1000 + std::uint64_t{index_}) & limit;
    if (ends(m, "type") || m.name == "state") return below(4);
    if (m.name == "min_mask") return 8 + below(25);
    if (m.name == "key_mask") return limit << below(25) & limit;
    if (has(m, "flags")) return below(256);
    if (m.name == "total_prefixes" && record.members.size() > 1) return std::uint64_t{elements_} + below(100);
    return below(std::min<std::uint64_t>(limit, 999) + 1);
}

std::uint32_t RandomPayload::length_of_list(const Member &m, std::uint64_t most) {
    if (has_fixed_length(m)) return 2;
    // A list inside such a list is shorter; otherwise the size would grow with the square of `elements`.
    const std::uint32_t wanted = depth_ == 0 ? elements_ : elements_ / 4 + 1;
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(wanted, most));
}

ordered_json RandomPayload::value(const Record &record, const Member &m, std::uint64_t most) {
    switch (category(m.kind)) {
        case Category::boolean:
            return ends(m, "_is_valid") || below(4) != 0;
        case Category::address:
            if (m.name == "prefix" && !looked_up_.empty()) return looked_up_;
            return m.name == "lookup_prefix" ? looked_up_ = address() : address();
        case Category::enumeration:
            return m.enumeration->enumerators[below(m.enumeration->enumerators.size())];
        case Category::record:
            return make(*m.record);
        case Category::string:
            return name(m);
        case Category::array: {
            ordered_json list = ordered_json::array();
            const std::uint32_t count = length_of_list(m, most);
            const bool grows = count == 2 && m.name != "exmem" ? false : count > 1;
            const std::uint32_t outer = index_;
            depth_ += grows ? 1 : 0;
            for (std::uint32_t i = 0; i < count; ++i) {
                index_ = i;
                list.push_back(make(*m.record));
            }
            depth_ -= grows ? 1 : 0;
            index_ = outer;
            return list;
        }
        case Category::integer:
            break;
    }
    return number(record, m);
}

ordered_json RandomPayload::make(const Record &record) {
    ordered_json json = ordered_json::object();
    std::uint64_t most = 0;
    const bool chooses_family = has_address(record) && !has_family_;
    if (chooses_family) v4_ = below(3) != 0;
    has_family_ |= chooses_family;
    for (const Member &m : record.members) {
        if (m.role == Role::value) {
            json[std::string(m.name)] = value(record, m, most);
        } else {
            most = greatest(m.kind);
        }
    }
    if (chooses_family) {
        has_family_ = false;
        looked_up_.clear();
    }
    return json;
}

}  // namespace tarn::tool
