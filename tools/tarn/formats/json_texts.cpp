#include "tools/tarn/formats/json_texts.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <tuple>

#include "tools/tarn/formats/problems.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

constexpr std::string_view json_blanks = " \t\r\n";
constexpr std::size_t longest_value = std::numeric_limits<std::uint32_t>::max();

std::string too_deep() { return "nested more than " + std::to_string(deepest_json) + " deep"; }

// The sentences of the parser end with a full stop.
std::string syntax_error(rapidjson::ParseErrorCode code) {
    std::string sentence = rapidjson::GetParseError_En(code);
    return "syntax error: " + sentence.substr(0, sentence.find_last_not_of('.') + 1);
}

}  // namespace

// The stream for the parser.
class JsonTexts::Characters {
public:
    using Ch = char;

    explicit Characters(ByteStream &stream) : stream_(&stream) { set(stream.look(1)); }

    char Peek() { return at_ != end_ || more() ? *at_ : '\0'; }
    char Take() {
        const char c = Peek();
        if (at_ != end_) ++at_;
        return c;
    }
    std::size_t Tell() const { return static_cast<std::size_t>(at_ - begin_); }

    // For streams that are written to.
    char *PutBegin() { std::abort(); }
    void Put(char) { std::abort(); }
    std::size_t PutEnd(char *) { std::abort(); }

private:
    void set(std::string_view bytes) {
        const std::size_t passed = Tell();
        begin_ = bytes.data();
        at_ = begin_ + passed;
        end_ = begin_ + bytes.size();
    }
    bool more() {
        set(stream_->look(Tell() + 1));
        return at_ != end_;
    }

    ByteStream *stream_;
    const char *begin_ = nullptr, *at_ = nullptr, *end_ = nullptr;
};

// Receives what the parser finds. The parser itself does not limit the depth, accepts equal keys, and does not check
// the bytes of strings.
class JsonTexts::Builder {
public:
    Builder(JsonTexts &texts, const Characters &characters) : texts_(texts), characters_(characters) {}

    bool Null() { return put(Type::null, "null"); }
    bool Bool(bool value) { return put(Type::boolean, value ? "true" : "false"); }
    bool RawNumber(const char *text, rapidjson::SizeType size, bool) { return put(Type::number, {text, size}); }
    bool String(const char *text, rapidjson::SizeType size, bool) {
        if (!is_utf8({text, size})) texts_.fail(characters_.Tell() - 1, "syntax error: a string is not UTF-8");
        return put(Type::string, {text, size});
    }
    bool Key(const char *text, rapidjson::SizeType size, bool copy) { return String(text, size, copy); }
    bool StartObject() { return open(Type::object); }
    bool StartArray() { return open(Type::array); }
    bool EndArray(rapidjson::SizeType size) { return close(size); }
    bool EndObject(rapidjson::SizeType size) {
        const std::size_t object = open_.back();
        close(size);
        require_unique_keys({texts_, object});
        return true;
    }

    // Not called, since numbers remain text.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }

private:
    using Type = JsonValue::Type;

    // The parser has read the value.
    bool put(Type type, std::string_view text) {
        add(type, characters_.Tell() - (type == Type::string ? 1 : text.size()), text.size());
        texts_.characters_ += text;
        return true;
    }
    bool open(Type type) {
        if (texts_.depth_ + open_.size() == deepest_json) texts_.fail(characters_.Tell() - 1, too_deep());
        open_.push_back(texts_.nodes_.size());
        add(type, characters_.Tell() - 1, 0);
        return true;
    }
    bool close(std::size_t size) {
        JsonValue::Node &node = texts_.nodes_[open_.back()];
        node.size = static_cast<std::uint32_t>(size);
        node.span = static_cast<std::uint32_t>(texts_.nodes_.size() - open_.back());
        open_.pop_back();
        return true;
    }
    void add(Type type, std::size_t at, std::size_t size) {
        if (characters_.Tell() > longest_value) texts_.fail(0, "a value has more than 4 GiB");
        texts_.nodes_.push_back({static_cast<std::uint32_t>(at), 1, static_cast<std::uint32_t>(size),
                                 static_cast<std::uint32_t>(texts_.characters_.size()), type});
    }
    void require_unique_keys(const JsonValue &object) {
        keys_.clear();
        object.for_each_member([&](const JsonValue &key, const JsonValue &) { keys_.push_back(key); });
        const auto text = [](const JsonValue &key) { return std::pair(key.node().size, key.text()); };
        std::sort(keys_.begin(), keys_.end(), [&](const JsonValue &a, const JsonValue &b) {
            return std::tuple(text(a), a.index_) < std::tuple(text(b), b.index_);
        });
        const auto again = std::adjacent_find(
            keys_.begin(), keys_.end(), [&](const JsonValue &a, const JsonValue &b) { return text(a) == text(b); });
        if (again == keys_.end()) return;
        const std::string reason =
            "the key " + in_quotes(again->text()) + " is also in line " + std::to_string(again->position().line);
        throw Invalid(texts_.stream_.name(), {{(again + 1)->position(), {}, reason, {}}});
    }

    JsonTexts &texts_;
    const Characters &characters_;
    std::vector<std::size_t> open_;  // from the outermost to the innermost
    std::vector<JsonValue> keys_;
};

JsonTexts::JsonTexts(ByteStream &stream) : stream_(stream) {
    if (stream.look(3).starts_with("\xEF\xBB\xBF")) stream.take(3);
}

bool JsonTexts::next() {
    if (has_ended_) return false;
    // Unless it returns.
    has_ended_ = true;
    pass(std::exchange(size_, 0));
    if (!find_value()) return false;
    parse();
    expected_ = Expected::comma_or_end;
    has_ended_ = false;
    return true;
}

bool JsonTexts::find_value() {
    for (;; pass(1)) {
        for (std::string_view rest = stream_.look(1); !rest.empty(); rest = stream_.look(1)) {
            const std::size_t blanks = std::min(rest.find_first_not_of(json_blanks), rest.size());
            pass(blanks);
            if (blanks != rest.size()) break;
        }
        const std::string_view rest = stream_.look(1);
        if (rest.empty() && depth_ != 0) fail(0, "syntax error: the list is not terminated");
        if (rest.empty()) return false;
        if (depth_ != 0 && expected_ != Expected::value && rest[0] == ']') {
            --depth_;
            expected_ = Expected::comma_or_end;
        } else if (depth_ != 0 && expected_ == Expected::comma_or_end) {
            if (rest[0] != ',') fail(0, syntax_error(rapidjson::kParseErrorArrayMissCommaOrSquareBracket));
            expected_ = Expected::value;
        } else if (rest[0] == '[') {
            if (depth_ == deepest_json) fail(0, too_deep());
            ++depth_;
            expected_ = Expected::value_or_end;
        } else {
            return true;
        }
    }
}

void JsonTexts::parse() {
    nodes_.clear();
    characters_.clear();
    Characters characters(stream_);
    Builder builder(*this, characters);
    constexpr unsigned flags = rapidjson::kParseStopWhenDoneFlag | rapidjson::kParseNumbersAsStringsFlag;
    const rapidjson::ParseResult result = rapidjson::Reader().Parse<flags>(characters, builder);
    size_ = characters.Tell();
    if (!result.IsError()) return;
    if (result.Code() != rapidjson::kParseErrorNumberTooBig) fail(result.Offset(), syntax_error(result.Code()));
    const std::string_view number = stream_.look(0).substr(result.Offset());
    fail(result.Offset(),
         "number overflow parsing '" + printable(number.substr(0, number.find_first_not_of("+-.0123456789Ee"))) + "'");
}

void JsonTexts::pass(std::size_t size) {
    begin_ = begin_.after(stream_.look(size).substr(0, size));
    stream_.take(size);
}

void JsonTexts::fail(std::size_t at, const std::string &reason) const {
    throw Invalid(stream_.name(), {{position_at(at), {}, reason, {}}});
}

Position JsonTexts::position_at(std::size_t at) const { return begin_.after(stream_.look(0).substr(0, at)); }

Position JsonValue::position() const {
    std::size_t at = node().at;
    // That of a string is its end. A quotation mark begins it if no or two backslashes are before it, and so on.
    const std::string_view text = texts_->stream_.look(0);
    const auto begins = [&] {
        const std::size_t other = text.substr(0, at).find_last_not_of('\\');
        return text[at] == '"' && (at - other) % 2 == 1;
    };
    if (is_string()) {
        do --at;
        while (!begins());
    }
    return texts_->position_at(at);
}

std::string JsonValue::shown() const {
    if (is_array()) return "a list";
    if (is_object()) return "an object";
    return is_string() ? in_quotes(text()) : printable(text());
}

bool JsonValue::find(std::string_view key, JsonValue &value) const {
    bool is_found = false;
    for_each_member([&](const JsonValue &k, const JsonValue &v) {
        if (k.text() != key) return;
        value = v;
        is_found = true;
    });
    return is_found;
}

bool JsonValue::contains(std::string_view key) const {
    JsonValue ignored = *this;
    return find(key, ignored);
}

}  // namespace tarn::tool
