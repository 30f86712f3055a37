// Devices and sites, and the subjects of the bus that belong to them:
//
//   tarn.ask.SITE.DEVICE                    requests to a device, which subscribes to it
//   tarn.answer.SITE.DEVICE.RUN.REQUEST     its answer to one request; only this device may publish there
//
// RUN identifies the asking process, which subscribes to tarn.answer.*.*.RUN.*; REQUEST is a random number.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarn::fleet {

inline constexpr char default_site[] = "default";

struct DeviceName {
    std::string site, device;

    std::string text() const { return site + "/" + device; }
    auto operator<=>(const DeviceName &) const = default;
};

// Names are 1 to 64 letters, digits and characters of ".-_:", such as core-1.example or 10.0.0.1.
inline constexpr char name_form[] = "1 to 64 letters, digits, dots, colons, hyphens and underscores";
bool is_name(std::string_view text);

// A name as a token of a subject: tokens cannot contain dots, so they become "%".
std::string token_of(std::string_view name);

std::string ask_subject(const DeviceName &device);
// All that begins with it belongs to the device.
std::string answer_prefix(const DeviceName &device);

// Subjects of one asking process.
class AnswerSubjects {
public:
    explicit AnswerSubjects(std::string run) : run_(std::move(run)) {}

    std::string all() const { return "tarn.answer.*.*." + run_ + ".*"; }
    std::string of(const DeviceName &device, std::uint64_t request) const;
    // Replies to the discovery, which no device owns.
    std::string discovery() const { return "tarn.answer.%.%." + run_ + ".0"; }

    struct Parts {
        DeviceName device;
        std::uint64_t request;
    };
    // Nothing if this is none of the subjects that of() returns.
    std::optional<Parts> parse(std::string_view subject) const;

private:
    std::string run_;
};

}  // namespace tarn::fleet
