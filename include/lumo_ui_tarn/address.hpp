/// @file
/// address.hpp - the value of an address or prefix, and its text.
///
/// The text is that of the reference runtime, which to_xml() and the tool write, too. Include lumo_ui_tarn.hpp instead
/// of this header, or this header alone for addresses without records.
#ifndef LUMO_UI_TARN_ADDRESS_HPP
#define LUMO_UI_TARN_ADDRESS_HPP

#include <arpa/inet.h>

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <tuple>
#if defined(__has_include) && __cplusplus >= 202002L
#if __has_include(<compare>)
#include <compare>
#endif
#if __has_include(<format>)
#include <format>
#endif
#endif

namespace lumo_ui_tarn {

/// The value of an address or prefix. Ordered by its fields in their order, as the library orders addresses.
struct address {
    /// @cond helpers
    auto fields() const noexcept { return std::tie(af, prefix_len, scope, word); }
    /// @endcond
    std::uint8_t af = 0;                  ///< address family of the operating system; 0 if the address is not set
    std::uint8_t prefix_len = 0;          ///< length of the prefix in bits
    std::uint16_t scope = 0;              ///< scope of the address
    std::array<std::uint32_t, 4> word{};  ///< the address, in host byte order; word[0] is the most significant

    /// Reads text in the form of to_string(), such as "10.0.0.0/8", "fe80::1%2/64" or "unset". An IPv6 address can be
    /// written in any way that inet_pton() reads. std::nullopt for other text, also for an address without a prefix
    /// length. The length can be up to 255, as in the library.
    [[nodiscard]] static std::optional<address> parse(std::string_view text) {
        address value;
        if (text == "unset") return value;
        const std::size_t slash = text.find('/');
        if (slash == std::string_view::npos || !number(text.substr(slash + 1), value.prefix_len)) return std::nullopt;
        text = text.substr(0, slash);
        const bool good = text.find(',') != std::string_view::npos ? value.read_numbers(text) : value.read_usual(text);
        return good ? std::optional<address>(value) : std::nullopt;
    }

    /// True if all fields are equal.
    friend bool operator==(const address &a, const address &b) noexcept { return a.fields() == b.fields(); }
#if defined(__cpp_lib_three_way_comparison)
    /// Ordered by the fields.
    friend std::strong_ordering operator<=>(const address &a, const address &b) noexcept {
        return a.fields() <=> b.fields();
    }
#else
    /// True if a field differs.
    friend bool operator!=(const address &a, const address &b) noexcept { return !(a == b); }
    /// Ordered by the fields.
    friend bool operator<(const address &a, const address &b) noexcept { return a.fields() < b.fields(); }
    /// Ordered by the fields.
    friend bool operator>(const address &a, const address &b) noexcept { return b < a; }
    /// Ordered by the fields.
    friend bool operator<=(const address &a, const address &b) noexcept { return !(b < a); }
    /// Ordered by the fields.
    friend bool operator>=(const address &a, const address &b) noexcept { return !(a < b); }
#endif

    /// Returns the text, for example "10.0.0.0/8" or "unset". An address that is neither IPv4 nor IPv6, or that has
    /// bits beyond its family, becomes its numbers: "af,scope,word,word,word,word/prefix_len".
    friend std::string to_string(const address &value) {
        if (value == address()) return "unset";
        const bool is_v4 = value.af == AF_INET && value.word[1] == 0 && value.word[2] == 0 && value.word[3] == 0;
        std::string text;
        if (is_v4 || value.af == AF_INET6) {
            std::array<std::uint32_t, 4> bytes{};
            for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = htonl(value.word[i]);
            char usual[INET6_ADDRSTRLEN] = "";
            text = inet_ntop(value.af, bytes.data(), usual, sizeof usual);
            if (value.scope != 0) text += "%" + std::to_string(value.scope);
        } else {
            text = std::to_string(value.af) + "," + std::to_string(value.scope);
            for (const std::uint32_t one : value.word) text += "," + std::to_string(one);
        }
        return text + "/" + std::to_string(value.prefix_len);
    }
    /// Writes the text of to_string().
    friend std::ostream &operator<<(std::ostream &out, const address &value) { return out << to_string(value); }

private:
    template <class Number>
    static bool number(std::string_view text, Number &value) {
        const char *end = text.data() + text.size();
        const std::from_chars_result read = std::from_chars(text.data(), end, value);
        return read.ec == std::errc() && read.ptr == end;
    }
    bool read_usual(std::string_view text) {
        const std::size_t percent = text.find('%');
        if (percent != std::string_view::npos && !number(text.substr(percent + 1), scope)) return false;
        const std::string usual(text.substr(0, percent));  // inet_pton() expects a NUL after the text
        if (usual.find('\0') != std::string::npos) return false;
        std::array<std::uint32_t, 4> bytes{};
        if (inet_pton(AF_INET, usual.c_str(), bytes.data()) == 1) {
            af = AF_INET;
        } else if (inet_pton(AF_INET6, usual.c_str(), bytes.data()) == 1) {
            af = AF_INET6;
        }
        for (std::size_t i = 0; i < bytes.size(); ++i) word[i] = ntohl(bytes[i]);
        return af != 0;
    }
    bool read_numbers(std::string_view text) {
        constexpr std::size_t last = 5;
        for (std::size_t i = 0; i <= last; ++i) {
            const std::size_t comma = i < last ? text.find(',') : text.size();
            if (comma == std::string_view::npos) return false;
            const std::string_view one = text.substr(0, comma);
            if (!(i == 0 ? number(one, af) : i == 1 ? number(one, scope) : number(one, word[i - 2]))) return false;
            if (i < last) text.remove_prefix(comma + 1);
        }
        return true;
    }
};

}  // namespace lumo_ui_tarn

/// @cond hashes and formatters
template <>
struct std::hash<lumo_ui_tarn::address> {
    std::size_t operator()(const lumo_ui_tarn::address &value) const noexcept {
        std::uint64_t sum = std::uint64_t{value.af} << 24 | std::uint64_t{value.prefix_len} << 16 | value.scope;
        for (const std::uint32_t word : value.word) sum = (sum ^ sum >> 29 ^ word) * 0x9E3779B97F4A7C15u;
        return std::hash<std::uint64_t>()(sum ^ sum >> 32);
    }
};
#if defined(__cpp_lib_format)
template <>
struct std::formatter<lumo_ui_tarn::address> : std::formatter<std::string> {
    template <class Context>
    auto format(const lumo_ui_tarn::address &value, Context &context) const {
        return std::formatter<std::string>::format(to_string(value), context);
    }
};
#endif
/// @endcond

#endif
