// Reads JSON values one after the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/tarn/support/byte_stream.h"
#include "tools/tarn/support/position.h"

namespace tarn::tool {

// Messages need about twenty levels.
inline constexpr std::size_t deepest_json = 256;

class JsonTexts;

// A value inside the one that JsonTexts has read last; valid until it reads the next.
class JsonValue {
public:
    enum class Type : std::uint8_t { null, boolean, number, string, array, object };

    bool is_null() const { return type() == Type::null; }
    bool is_boolean() const { return type() == Type::boolean; }
    bool is_number() const { return type() == Type::number; }
    bool is_string() const { return type() == Type::string; }
    bool is_array() const { return type() == Type::array; }
    bool is_object() const { return type() == Type::object; }

    std::size_t size() const;       // elements of an array, keys of an object
    std::string_view text() const;  // of a string, or of another scalar as it is written
    std::string shown() const;      // for messages: printable, and short

    // The values in an array or an object.
    template <class Visit>
    void for_each_element(const Visit &visit) const;
    template <class Visit>
    void for_each_member(const Visit &visit) const;  // with key and value
    // False if the object does not have the key.
    bool find(std::string_view key, JsonValue &value) const;
    bool contains(std::string_view key) const;

    Position position() const;  // in the file

private:
    friend class JsonTexts;

    // The nodes of a value in the order of the text: an array or an object, what is in it, and what follows it. The
    // values in an object follow their keys.
    struct Node {
        std::uint32_t at;    // offset of the first character, or of the last one of a string
        std::uint32_t span;  // of the nodes from this one to the end of its content
        std::uint32_t size;  // elements, keys or bytes
        std::uint32_t text;  // in the characters
        Type type;
    };

    JsonValue(const JsonTexts &texts, std::size_t index) : texts_(&texts), index_(index) {}
    const Node &node() const;
    Type type() const { return node().type; }
    JsonValue next() const { return {*texts_, index_ + node().span}; }
    JsonValue first() const { return {*texts_, index_ + 1}; }

    const JsonTexts *texts_;
    std::size_t index_;
};

// JSON texts one after the other. Lists are taken apart: their elements are read as if they were texts. One value is in
// memory. Time and memory are proportional to the length of the text.
class JsonTexts {
public:
    // The stream must outlive it.
    explicit JsonTexts(ByteStream &stream);

    // Reads the next value; false at the end. Throws a Failure with its line for a syntax error, for a key that an
    // object has twice, and for arrays and objects inside more than `deepest_json` others. Nothing follows such an
    // error.
    bool next();
    JsonValue value() const { return {*this, 0}; }

private:
    friend class JsonValue;
    class Characters;
    class Builder;
    enum class Expected : std::uint8_t { value, value_or_end, comma_or_end };

    bool find_value();  // false at the end
    void parse();
    void pass(std::size_t size);

    // Of offsets in the value.
    [[noreturn]] void fail(std::size_t at, const std::string &reason) const;
    Position position_at(std::size_t at) const;

    ByteStream &stream_;
    std::vector<JsonValue::Node> nodes_;
    std::string characters_;  // of strings and other scalars
    std::size_t size_ = 0;    // of the value, which begins the rest of the stream
    Position begin_;          // of the value
    std::size_t depth_ = 0;   // of lists
    Expected expected_ = Expected::value;
    bool has_ended_ = false;
};

inline const JsonValue::Node &JsonValue::node() const { return texts_->nodes_[index_]; }
inline std::size_t JsonValue::size() const { return node().size; }
inline std::string_view JsonValue::text() const { return {texts_->characters_.data() + node().text, node().size}; }

template <class Visit>
void JsonValue::for_each_element(const Visit &visit) const {
    JsonValue element = first();
    for (std::size_t i = size(); i != 0; --i, element = element.next()) visit(element);
}

template <class Visit>
void JsonValue::for_each_member(const Visit &visit) const {
    JsonValue key = first();
    for (std::size_t i = size(); i != 0; --i) {
        const JsonValue value = key.next();
        visit(key, value);
        key = value.next();
    }
}

}  // namespace tarn::tool
