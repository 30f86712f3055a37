#include "tools/tarn/formats/json_texts.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

constexpr std::string_view json_blanks = " \t\r\n";

std::string line_text(const std::string &origin, std::size_t line) { return origin + ":" + std::to_string(line); }

}  // namespace

// Receives what the parser finds. The parser itself does not limit the depth, and keeps the last of equal keys.
class JsonTexts::Builder {
public:
    Builder(const JsonTexts &texts, nlohmann::json &root) : texts_(texts), next_(&root) {}

    bool null() { return put(nullptr); }
    bool boolean(bool value) { return put(value); }
    bool number_integer(std::int64_t value) { return put(value); }
    bool number_unsigned(std::uint64_t value) { return put(value); }
    bool number_float(double value, const std::string &) { return put(value); }
    bool string(std::string &value) { return put(std::move(value)); }
    bool binary(nlohmann::json::binary_t &) { return false; }  // JSON has none

    bool start_object(std::size_t) { return open(nlohmann::json::object()); }
    bool end_object() { return close(); }
    bool start_array(std::size_t) { return open(nlohmann::json::array()); }
    bool end_array() { return close(); }

    bool key(std::string &name) {
        const auto at = open_.back().value->emplace(name, nullptr).first;
        next_ = &*at;
        const auto [first, is_new] = open_.back().lines.try_emplace(next_, texts_.place_.line);
        if (!is_new) {
            fail("the key " + in_quotes(name) + " is also in line " + std::to_string(first->second));
        }
        return true;
    }

    bool parse_error(std::size_t, const std::string &, const nlohmann::json::exception &error) {
        // The parser reports a number out of range with another prefix than a syntax error.
        const std::string_view words = error.what(), brackets = "] ";
        std::size_t begin = words.find("syntax error");
        if (begin == words.npos) begin = words.find(brackets) + brackets.size();
        fail(printable(words.substr(begin)));
    }

private:
    struct Open {
        nlohmann::json *value;
        std::unordered_map<const nlohmann::json *, std::size_t> lines;  // of an object's keys
    };

    // In the line of the last character that was read.
    [[noreturn]] void fail(const std::string &reason) const {
        const std::size_t line = texts_.place_.line - (texts_.place_.at[-1] == '\n' ? 1 : 0);
        throw Failure(Exit::input, line_text(texts_.origin_, line) + ": " + reason);
    }

    bool put(nlohmann::json value) {
        if (!open_.empty() && open_.back().value->is_array()) {
            open_.back().value->push_back(nullptr);
            next_ = &open_.back().value->back();
        }
        *next_ = std::move(value);
        return true;
    }
    bool open(nlohmann::json empty) {
        if (open_.size() == deepest_json) fail("nested more than " + std::to_string(deepest_json) + " deep");
        put(std::move(empty));
        open_.push_back({next_, {}});
        return true;
    }
    bool close() {
        open_.pop_back();
        return true;
    }

    const JsonTexts &texts_;
    nlohmann::json *next_;    // where the next value goes, except in an array
    std::vector<Open> open_;  // from the outermost to the innermost
};

JsonTexts::JsonTexts(std::string_view content, const std::string &origin)
    : place_{content.data()}, end_{content.data() + content.size()}, origin_(origin) {}

bool JsonTexts::next() {
    Reading reading{&place_};
    const Reading end{&end_};
    while (!(reading == end) && json_blanks.find(*reading) != json_blanks.npos) ++reading;
    if (reading == end) return false;
    line_ = place_.line;
    value_ = nullptr;
    Builder builder(*this, value_);
    nlohmann::json::sax_parse(reading, end, &builder, nlohmann::json::input_format_t::json, false);
    return true;
}

std::string JsonTexts::location() const { return line_text(origin_, line_); }

}  // namespace tarn::tool
