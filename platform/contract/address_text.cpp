#include "platform/contract/address_text.hpp"

#include <arpa/inet.h>

#include <array>
#include <cstring>

#include "platform/contract/coding.hpp"
#include "platform/contract/text.hpp"

namespace mirk {
namespace {

struct Value {
    uint8_t af = 0, prefix_len = 0;
    uint16_t scope = 0;
    std::array<uint32_t, 4> word{};
};

void assign(ip_address *address, const Value &value) {
    address->af = value.af;
    address->prefix_len = value.prefix_len;
    address->scope = value.scope;
    for (size_t i = 0; i < value.word.size(); ++i) address->word[i] = value.word[i];
}

// "af,scope,w0,w1,w2,w3"
bool parse_members(std::string_view text, Value *value) {
    std::array<std::string_view, 6> part;
    for (size_t i = 0; i < part.size(); ++i) {
        const size_t comma = text.find(',');
        const bool last = i + 1 == part.size();
        if (last != (comma == std::string_view::npos)) return false;
        part[i] = text.substr(0, comma);
        if (!last) text.remove_prefix(comma + 1);
    }
    bool good = parse_decimal(part[0], &value->af) && parse_decimal(part[1], &value->scope);
    for (size_t i = 0; i < value->word.size(); ++i) good = good && parse_decimal(part[i + 2], &value->word[i]);
    return good;
}

// An address in the format of inet_pton, optionally followed by a percent sign and a scope.
bool parse_numeric(std::string_view text, Value *value) {
    const size_t percent = text.find('%');
    if (percent != std::string_view::npos) {
        if (!parse_decimal(text.substr(percent + 1), &value->scope)) return false;
        text = text.substr(0, percent);
    }
    char address[INET6_ADDRSTRLEN];
    if (text.size() >= sizeof address || text.find('\0') != std::string_view::npos) return false;
    address[text.copy(address, text.size())] = 0;
    uint8_t bytes[16] = {};
    if (inet_pton(AF_INET, address, bytes) == 1) {
        value->af = AF_INET;
    } else if (inet_pton(AF_INET6, address, bytes) == 1) {
        value->af = AF_INET6;
    } else {
        return false;
    }
    for (size_t i = 0; i < value->word.size(); ++i) value->word[i] = get_big_endian<uint32_t>(bytes + 4 * i);
    return true;
}

bool zero_from(const ip_address &address, size_t first) {
    for (size_t i = first; i < 4; ++i) {
        if (address.word[i] != 0) return false;
    }
    return true;
}

}  // namespace

AddressText::AddressText(const ip_address &address) {
    const auto put = [&](std::string_view text) { length_ += text.copy(text_ + length_, sizeof text_ - length_); };
    const auto number = [&](uint32_t value) { put(Decimal(value).view()); };
    if (address.af == 0 && address.prefix_len == 0 && address.scope == 0 && zero_from(address, 0)) {
        put("unset");
        return;
    }
    const bool v4 = address.af == AF_INET && zero_from(address, 1);
    if (v4) {
        for (int shift = 24; shift >= 0; shift -= 8) {
            number(address.word[0] >> shift & 0xffu);
            if (shift != 0) put(".");
        }
    } else if (address.af == AF_INET6) {
        uint8_t bytes[16];
        for (size_t i = 0; i < 4; ++i) put_big_endian<uint32_t>(bytes + 4 * i, address.word[i]);
        inet_ntop(AF_INET6, bytes, text_, sizeof text_);
        length_ = std::strlen(text_);
    } else {
        number(address.af);
        put(",");
        number(address.scope);
        for (const uint32_t word : address.word) {
            put(",");
            number(word);
        }
    }
    if ((v4 || address.af == AF_INET6) && address.scope != 0) {
        put("%");
        number(address.scope);
    }
    put("/");
    number(address.prefix_len);
}

bool parse_address(std::string_view text, ip_address *address) {
    Value value;
    if (text != "unset") {
        const size_t slash = text.find('/');
        if (slash == std::string_view::npos || !parse_decimal(text.substr(slash + 1), &value.prefix_len)) return false;
        const std::string_view front = text.substr(0, slash);
        const bool members = front.find(',') != std::string_view::npos;
        if (!(members ? parse_members(front, &value) : parse_numeric(front, &value))) return false;
    }
    assign(address, value);
    return true;
}

}  // namespace mirk
