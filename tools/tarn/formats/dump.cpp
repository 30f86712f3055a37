#include "tools/tarn/formats/dump.h"

#include <charconv>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "schema/frame.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/support/hex.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

constexpr std::size_t dump_piece = 1 << 16;

void append_decimal(std::uint64_t number, std::string &out, std::size_t width = 0) {
    char text[24];
    const auto size = static_cast<std::size_t>(std::to_chars(text, text + sizeof text, number).ptr - text);
    if (size < width) out.append(width - size, ' ');
    out.append(text, size);
}

// Output that is passed on in pieces.
class Buffer {
public:
    explicit Buffer(Write write) : write_(std::move(write)) {}

    std::string text;

    void flush_if_full() {
        if (text.size() >= dump_piece) flush();
    }
    void flush() {
        write_(text);
        text.clear();
    }

private:
    Write write_;
};

// The text of an address, from the fields of its group.
class AddressReader {
public:
    void open(const Group &group) {
        is_open_ = group.kind == Group::Kind::address;
        numbers_.clear();
    }
    void field(const Field &field) {
        if (is_open_ && field.kind == Field::Kind::number) numbers_.push_back(field.number);
    }
    // Nothing if another group ends, or if the address has no members.
    std::optional<std::string> close() {
        const bool is_whole = std::exchange(is_open_, false) && numbers_.size() == std::size(schema::address_members);
        return is_whole ? std::optional(address_text(handle_, numbers_)) : std::nullopt;
    }

private:
    Handle handle_{false};
    bool is_open_ = false;
    std::vector<std::uint64_t> numbers_;
};

// ---- for people

constexpr std::size_t bytes_in_line = 8, name_width = 26;

class TextDump : public Dump {
public:
    explicit TextDump(Write write) : out_(std::move(write)) {}

    void begin(const std::string &file, std::size_t offset) override {
        out_.text += "frame at offset " + std::to_string(offset) + (file.empty() ? "" : " of " + file) + "\n";
        depth_ = 0;
        joins_ = false;
    }
    void end(const Walked &) override {
        finish_line();
        out_.flush();
    }

    void open(const Group &group) override;
    void close() override;
    void field(const Field &field) override;

private:
    void join(const Field &field);
    void add_state(const Field &field);
    void begin_line(std::string_view name, std::size_t index, std::string_view type, std::size_t offset);
    void add_bytes(FrameBytes bytes) {
        bytes_ = {bytes_.empty() ? bytes.data() : bytes_.data(), bytes_.size() + bytes.size()};
    }
    void finish_line();
    void append_line(std::size_t at, std::size_t most, std::string_view words);

    Buffer out_;
    AddressReader address_;
    std::size_t depth_ = 0;
    Group::Kind group_ = Group::Kind::header;  // the innermost
    bool joins_ = false;                       // the next field belongs to the current line

    // The current line.
    bool is_open_ = false, has_states_of_elements_ = false;
    std::string_view name_;
    std::size_t offset_ = 0;
    FrameBytes bytes_;
    std::string words_;
    std::string states_;       // of the members of an address
    bool has_states_ = false;  // other than 0
};

void TextDump::open(const Group &group) {
    using Kind = Group::Kind;
    group_ = group.kind;
    joins_ = group.kind != Kind::header && group.kind != Kind::array;
    if (joins_) begin_line(group.name, group.index, group.type, group.offset);
    ++depth_;
    address_.open(group);
    states_.clear();
    has_states_ = false;
}

void TextDump::close() {
    --depth_;
    joins_ = false;
    if (const auto text = address_.close()) words_ += " " + *text + (has_states_ ? " states" + states_ : "");
    group_ = Group::Kind::record;
}

void TextDump::field(const Field &field) {
    if (joins_) return join(field);
    if (field.kind == Field::Kind::state) return add_state(field);
    begin_line(field.name, field.index, field.type, field.offset);
    add_bytes(field.bytes);
    words_ += ' ';
    if (is_pointer(field)) {
        words_ += hex_number(field.number);
    } else {
        append_value(field, words_);
    }
    if (words_.back() == ' ') words_.pop_back();
}

// What is as usual needs no words.
void TextDump::join(const Field &field) {
    using Kind = Field::Kind;
    add_bytes(field.bytes);
    const bool is_record = group_ == Group::Kind::record;
    if (field.kind == Kind::state) {
        states_ += " " + std::to_string(field.number);
        has_states_ = has_states_ || field.number != 0;
    } else if (field.kind == Kind::number) {
        address_.field(field);
    } else if (field.kind == Kind::jump) {
        joins_ = !is_record;
        if (is_record) append_decimal(field.offset + field.number, words_ += " ends at ");
    } else if (field.kind == Kind::boolean || field.kind == Kind::enumeration) {
        append_value(field, words_ += ' ');
    } else if (field.kind == Kind::variant && field.number != 0) {
        words_ += " variant " + std::to_string(static_cast<std::int8_t>(field.number));
    } else if (field.number != 0) {
        ((words_ += ' ') += field.name) += ' ';
        append_value(field, words_);
    }
}

// Of the member in the current line, or of elements, which share lines.
void TextDump::add_state(const Field &field) {
    const bool of_element = field.index != no_index;
    const bool continues = is_open_ && field.name == name_ && of_element == has_states_of_elements_ &&
                           (!of_element || bytes_.size() < bytes_in_line);
    if (!continues) {
        begin_line(field.name, field.index, "state", field.offset);
        has_states_of_elements_ = of_element;
    }
    add_bytes(field.bytes);
    append_decimal(field.number, words_ += continues && !of_element ? " state " : " ");
}

void TextDump::begin_line(std::string_view name, std::size_t index, std::string_view type, std::size_t offset) {
    finish_line();
    is_open_ = true;
    has_states_of_elements_ = false;
    name_ = name;
    offset_ = offset;
    words_.append(2 * depth_, ' ');
    const std::size_t begin = words_.size();
    words_ += name;
    if (index != no_index) {
        append_decimal(index, words_ += '[');
        words_ += ']';
    }
    const std::size_t size = words_.size() - begin;
    words_.append(size < name_width ? name_width - size : 1, ' ');
    words_ += colored(type, Color::blue);
}

void TextDump::append_line(std::size_t at, std::size_t most, std::string_view words) {
    const FrameBytes bytes = bytes_.subspan(at, std::min(bytes_.size() - at, most));
    std::string front;
    append_decimal(offset_ + at, front, 8);
    std::string hex = hex_text(bytes, " ");
    hex.pop_back();
    if (!words.empty()) hex.resize(3 * bytes_in_line + 1, ' ');
    ((((out_.text += colored(front, Color::gray)) += "  ") += hex) += words) += '\n';
}

// After the first line there are no words, so there is place for more bytes.
void TextDump::finish_line() {
    if (!is_open_) return;
    // A frame may end where a record should begin.
    if (!bytes_.empty()) append_line(0, bytes_in_line, words_);
    for (std::size_t at = bytes_in_line; at < bytes_.size(); at += 2 * bytes_in_line) {
        append_line(at, 2 * bytes_in_line, "");
    }
    is_open_ = false;
    bytes_ = {};
    words_.clear();
    out_.flush_if_full();
}

// ---- for programs

class JsonDump : public Dump {
public:
    explicit JsonDump(Write write) : out_(std::move(write)) {}

    void begin(const std::string &file, std::size_t offset) override {
        out_.text += '{';
        if (!file.empty()) out_.text += R"("file":)" + json_text(file) + ",";
        append_decimal(offset, out_.text += R"("offset":)");
        out_.text += R"(,"parts":[)";
        depth_ = 0;
    }
    void end(const Walked &walked) override {
        for (; depth_ != 0; --depth_) out_.text += "]}";
        append_decimal(walked.size, out_.text += R"(],"size":)");
        if (walked.broken) {
            const nlohmann::ordered_json broken{
                {"offset", walked.broken->offset}, {"path", walked.broken->path}, {"reason", walked.broken->reason}};
            out_.text += R"(,"broken":)" + json_text(broken);
        }
        out_.text += "}\n";
        out_.flush();
    }

    void open(const Group &group) override {
        begin_part(group.name, group.index);
        add("kind", group.type);
        out_.text += R"(,"parts":[)";
        ++depth_;
        address_.open(group);
    }
    void close() override {
        out_.text += ']';
        if (const auto text = address_.close()) add("text", *text);
        out_.text += '}';
        --depth_;
    }
    void field(const Field &field) override {
        begin_part(field.name, field.index);
        append_decimal(field.offset, out_.text += R"(,"offset":)");
        append_decimal(field.bytes.size(), out_.text += R"(,"size":)");
        add("kind", field.type);
        out_.text += R"(,"value":")";
        value_.clear();
        append_value(field, value_);
        // Text consists of printable ASCII, in which only these need an escape.
        for (const char c : value_) {
            if (c == '"' || c == '\\') out_.text += '\\';
            out_.text += c;
        }
        out_.text += '"';
        if (is_pointer(field)) add("text", hex_number(field.number));
        out_.text += '}';
        address_.field(field);
        out_.flush_if_full();
    }

private:
    void begin_part(std::string_view name, std::size_t index) {
        if (out_.text.empty() || out_.text.back() != '[') out_.text += ',';
        (((out_.text += R"({"name":")") += name) += '"');
        if (index != no_index) append_decimal(index, out_.text += R"(,"index":)");
    }
    // Without characters that need an escape.
    void add(std::string_view key, std::string_view text) {
        ((((out_.text += ",\"") += key) += "\":\"") += text) += '"';
    }

    Buffer out_;
    AddressReader address_;
    std::string value_;
    std::size_t depth_ = 0;
};

}  // namespace

std::unique_ptr<Dump> text_dump(Write write) { return std::make_unique<TextDump>(std::move(write)); }
std::unique_ptr<Dump> json_dump(Write write) { return std::make_unique<JsonDump>(std::move(write)); }

}  // namespace tarn::tool
