#include "fleet/bus/names.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace tarn::fleet {

namespace {

constexpr char answers[] = "tarn.answer.";

bool is_of_name(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' ||
           c == '_' || c == ':';
}

std::string with(std::string_view text, char from, char to) {
    std::string out(text);
    std::replace(out.begin(), out.end(), from, to);
    return out;
}

// Removes the first token from the subject.
std::string_view next_token(std::string_view &subject) {
    const std::size_t dot = std::min(subject.find('.'), subject.size());
    const std::string_view token = subject.substr(0, dot);
    subject.remove_prefix(std::min(dot + 1, subject.size()));
    return token;
}

std::string hexadecimal(std::uint64_t number) {
    char digits[16];
    return {digits, std::to_chars(digits, std::end(digits), number, 16).ptr};
}

}  // namespace

bool is_name(std::string_view text) {
    return !text.empty() && text.size() <= 64 && std::all_of(text.begin(), text.end(), is_of_name);
}

std::string token_of(std::string_view name) { return with(name, '.', '%'); }

std::string ask_subject(const DeviceName &device) {
    return "tarn.ask." + token_of(device.site) + "." + token_of(device.device);
}

std::string answer_prefix(const DeviceName &device) {
    return answers + token_of(device.site) + "." + token_of(device.device) + ".";
}

std::string AnswerSubjects::of(const DeviceName &device, std::uint64_t request) const {
    return answer_prefix(device) + run_ + "." + hexadecimal(request);
}

std::optional<AnswerSubjects::Parts> AnswerSubjects::parse(std::string_view subject) const {
    if (!subject.starts_with(answers)) return std::nullopt;
    std::string_view rest = subject.substr(std::size(answers) - 1);
    Parts parts{};
    parts.device.site = with(next_token(rest), '%', '.');
    parts.device.device = with(next_token(rest), '%', '.');
    if (!is_name(parts.device.site) || !is_name(parts.device.device) || next_token(rest) != run_) return std::nullopt;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), parts.request, 16);
    if (error != std::errc() || end != rest.data() + rest.size()) return std::nullopt;
    return parts;
}

}  // namespace tarn::fleet
