// Writes frames as text that people edit.
#include <algorithm>

#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/frame_reader.h"
#include "tools/tarn/formats/source.h"
#include "tools/tarn/support/hex.h"
#include "tools/tarn/support/instance.h"

namespace tarn::tool {

namespace {

constexpr std::size_t source_piece = 1 << 16, raw_in_line = 16;

// What is written in parentheses: "state 2".
struct Parentheses {
    std::string text;

    void add(std::string_view name, const std::string &value) {
        text += (text.empty() ? " (" : ", ") + std::string(name) + " " + value;
    }
    std::string closed() const { return text.empty() ? "" : text + ")"; }
};

std::string raw_text(FrameBytes bytes) {
    std::string text = hex_text(bytes, " ");
    if (!text.empty()) text.pop_back();
    return "<" + text + ">";
}

// "2*3 0"
std::string list_text(const std::vector<std::uint64_t> &numbers) {
    std::string text;
    for (auto at = numbers.begin(); at != numbers.end();) {
        const auto end = std::find_if(at, numbers.end(), [&](std::uint64_t number) { return number != *at; });
        text += (text.empty() ? "" : " ") + std::to_string(*at);
        if (end - at > 1) text += "*" + std::to_string(end - at);
        at = end;
    }
    return "[" + text + "]";
}

bool is_zero(const std::vector<std::uint64_t> &numbers) {
    return std::all_of(numbers.begin(), numbers.end(), [](std::uint64_t number) { return number == 0; });
}

std::string name_of(const Field &luid) {
    if (luid.words.empty()) return raw_text(luid.bytes);
    const std::optional<Identity> identity = identify(luid.bytes.data());
    if (!identity || !identity->is_control()) return std::string(luid.words);
    return std::string(identity->bundle->bundle->name) + " " + std::string(word(identity->control));
}

class SourceWriter : public DissectionVisitor {
public:
    explicit SourceWriter(const std::function<void(std::string_view)> &write) : write_(write), handle_(false) {}

    // All of the bytes, whatever length the header claims.
    void add(FrameBytes bytes, std::size_t offset);

    void open(const Group &group) override;
    void close() override;
    void field(const Field &field) override;
    bool ignores_jumps() const override { return true; }

private:
    // What is open: the frame, records, lists; or a value that consists of several fields.
    struct Level {
        Group::Kind kind = Group::Kind::header;
        std::string_view name = {};
        std::size_t index = no_index;
        std::size_t begin = 0;
        bool tracked = false;   // state bytes follow the members
        bool is_begun = false;  // its line is written
        Parentheses front = {}, back = {};
        std::size_t end = 0;       // of a record or an address, according to its jump
        std::uint64_t number = 0;  // the jump; the count of a list
        std::size_t elements = 0;
        std::string value = {};
        std::vector<std::uint64_t> numbers = {}, states = {};  // of an address
    };

    void add_to_header(const Field &field);
    void begin_frame(const Field &luid);
    void add_to_head(const Field &field, Level &level);
    void add_state(const Field &field, Level &level);
    void add_text(const Field &field);
    void begin_line(std::size_t depth);
    void end_line(std::string_view comment = {});
    void write_value(std::string_view name, const std::string &value, Parentheses back = {});
    void append_raw(FrameBytes bytes, std::size_t depth);
    void write_raw(FrameBytes bytes, const std::string &name);
    void finish_value();
    void finish_frame(const std::optional<Break> &broken);
    void close_lines();
    bool expects_state() const { return levels_.back().kind == Group::Kind::record && levels_.back().tracked; }
    FrameBytes bytes_from(std::size_t begin) const { return bytes_.subspan(begin - base_, at_ - begin); }

    const std::function<void(std::string_view)> &write_;
    Handle handle_;  // for addresses
    std::string out_;

    FrameBytes bytes_;
    std::size_t base_ = 0, at_ = 0;
    bool in_header_ = false, has_name_ = false;
    std::uint64_t total_length_ = 0;
    std::vector<Level> levels_;  // the first one is the frame
    std::uint64_t count_ = 0;    // of the list or the text that comes next
    std::string_view text_ = {};

    // The end of the current line, until it is known whether state bytes follow.
    struct Value {
        Parentheses back = {};
        bool expects_state = false;
        std::size_t elements = 0;
        std::optional<std::uint64_t> state = {};
        std::vector<std::uint64_t> states = {};
    };
    std::optional<Value> value_;
};

void SourceWriter::add(FrameBytes bytes, std::size_t offset) {
    bytes_ = bytes;
    base_ = at_ = offset;
    levels_.assign(1, {});
    text_ = {};
    has_name_ = false;
    const Walked walked = walk_frame(bytes, offset, *this);
    finish_frame(walked.broken);
    write_(out_);
    out_.clear();
}

void SourceWriter::begin_line(std::size_t depth) {
    finish_value();
    Level &frame = levels_.front();
    if (depth != 0 && !frame.is_begun) {
        out_ += " {\n";
        frame.is_begun = true;
    }
    if (out_.size() >= source_piece) {
        write_(out_);
        out_.clear();
    }
    out_.append(2 * depth, ' ');
}

void SourceWriter::end_line(std::string_view comment) {
    if (!comment.empty()) (out_ += "  # ") += comment;
    out_ += '\n';
}

void SourceWriter::write_value(std::string_view name, const std::string &value, Parentheses back) {
    begin_line(levels_.size());
    ((out_ += name) += ' ') += value;
    value_ = Value{std::move(back), expects_state()};
}

void SourceWriter::append_raw(FrameBytes bytes, std::size_t depth) {
    if (bytes.size() <= raw_in_line) {
        out_ += raw_text(bytes);
        return;
    }
    out_ += '<';
    for (std::size_t at = 0; at < bytes.size(); at += raw_in_line) {
        out_ += '\n';
        out_.append(2 * depth + 2, ' ');
        out_ += hex_text(bytes.subspan(at, std::min(bytes.size() - at, raw_in_line)), " ");
        out_.pop_back();
    }
    out_ += '>';
}

void SourceWriter::write_raw(FrameBytes bytes, const std::string &name) {
    if (bytes.empty()) return;
    begin_line(levels_.size());
    if (!name.empty()) (out_ += name) += ' ';
    append_raw(bytes, levels_.size());
    value_ = Value{{}, !name.empty() && expects_state()};
}

void SourceWriter::finish_value() {
    if (!value_) return;
    Parentheses &back = value_->back;
    if (!value_->state && value_->expects_state) back.add("state", "none");
    if (value_->state.value_or(0) != 0) back.add("state", std::to_string(*value_->state));
    if (value_->state && (value_->states.size() != value_->elements || !is_zero(value_->states))) {
        back.add("states", list_text(value_->states));
    }
    out_ += back.closed();
    value_.reset();
    end_line();
}

void SourceWriter::open(const Group &group) {
    using Kind = Group::Kind;
    if (group.kind == Kind::header) {
        in_header_ = true;
        return;
    }
    Level level{group.kind, group.name, group.index, group.offset, levels_.back().tracked};
    if (group.kind == Kind::array) {
        begin_line(levels_.size());
        (out_ += group.name) += " [";
        end_line(std::to_string(count_) + (count_ == 1 ? " element" : " elements"));
        level.is_begun = true;
        level.number = count_;
    }
    levels_.push_back(std::move(level));
}

void SourceWriter::close() {
    using Kind = Group::Kind;
    if (in_header_) {
        in_header_ = false;
        return;
    }
    if (levels_.back().is_begun) return close_lines();
    Level level = std::move(levels_.back());
    levels_.pop_back();
    const std::string name = std::string(level.name) + level.front.closed();
    if (level.kind != Kind::address) return write_value(name, level.value);
    const bool is_text = level.numbers.size() == std::size(schema::address_members) && level.value.empty();
    if (!is_text) return write_raw(bytes_from(level.begin), std::string(level.name));
    if (at_ != level.end) level.back.add("jump", std::to_string(level.number));
    // Commas are blanks.
    std::string text = address_text(handle_, level.numbers);
    if (text.find(',') != std::string::npos) text = '"' + text + '"';
    if (!is_zero(level.states)) level.back.add("parts", list_text(level.states));
    write_value(name, text, level.back);
}

// The end of a record or a list: a line of its own.
void SourceWriter::close_lines() {
    const Level level = std::move(levels_.back());
    levels_.pop_back();
    begin_line(levels_.size());
    Value value{level.back, expects_state() && level.index == no_index, level.elements};
    if (level.kind == Group::Kind::array) {
        out_ += ']';
        if (level.elements != level.number) value.back.add("count", std::to_string(level.number));
        value.expects_state = level.tracked && at_ != level.begin;
    } else {
        out_ += '}';
        if (at_ != level.end) value.back.add("jump", std::to_string(level.number));
    }
    value_ = std::move(value);
}

void SourceWriter::field(const Field &field) {
    using Kind = Field::Kind;
    at_ = field.offset + field.bytes.size();
    if (in_header_) return add_to_header(field);
    Level &level = levels_.back();
    const bool in_address = level.kind == Group::Kind::address;
    switch (field.kind) {
        case Kind::luid:
            return begin_frame(field);
        case Kind::variant:
        case Kind::flags:
        case Kind::opaque:
        case Kind::jump:
            return add_to_head(field, level);
        case Kind::boolean:
            level.value = field.number > 1 ? std::to_string(field.number) : field.number != 0 ? "true" : "false";
            return;
        case Kind::enumeration: {
            const auto &enumerators = field.member->enumeration->enumerators;
            const bool is_known = field.number < enumerators.size();
            level.value = is_known ? std::string(enumerators[field.number]) : std::to_string(field.number);
            return;
        }
        case Kind::state:
            return add_state(field, level);
        case Kind::count:
        case Kind::length:
        case Kind::text:
            return add_text(field);
        case Kind::skipped:
            if (in_address) {
                level.value = "raw";
            } else {
                write_raw(field.bytes, "");
                value_.reset();
                end_line("of a newer version");
            }
            return;
        case Kind::constant:
        case Kind::number:
            break;
    }
    if (in_address) return level.numbers.push_back(field.number);
    write_value(field.name, is_pointer(field) ? hex_number(field.number) : std::to_string(field.number));
}

// Only what is unusual is written.
void SourceWriter::add_to_header(const Field &field) {
    Parentheses &front = levels_.front().front;
    const schema::Part &part = *std::find_if(std::begin(schema::message_frame), std::end(schema::message_frame),
                                             [&](const schema::Part &p) { return p.name == field.name; });
    if (field.kind == Field::Kind::constant) {
        const auto is_usual = [&](std::uint8_t byte) { return byte == part.value; };
        if (!std::all_of(field.bytes.begin(), field.bytes.end(), is_usual)) front.add(part.name, raw_text(field.bytes));
    } else if (part.name == "total_length") {
        total_length_ = field.number;
    } else if (field.number != 0) {
        front.add(part.name, std::to_string(field.number));
    }
    if (part.name == "sttr") levels_.front().tracked = field.number != 0;
}

void SourceWriter::begin_frame(const Field &luid) {
    const std::string offset = "# offset " + std::to_string(base_) + "\n";
    out_ += offset + "frame " + name_of(luid) + levels_.front().front.closed();
    has_name_ = true;
}

void SourceWriter::add_to_head(const Field &field, Level &level) {
    using Kind = Field::Kind;
    if (field.kind == Kind::variant) {
        if (field.number != 0) level.front.add(field.name, std::to_string(static_cast<std::int8_t>(field.number)));
    } else if (field.kind == Kind::flags) {
        const unsigned usual = (level.tracked ? schema::wire_flag::tracked : 0) |
                               (static_cast<unsigned>(field.number) & schema::wire_flag::ra_data);
        if (field.number != usual) level.front.add(field.name, std::to_string(field.number));
        level.tracked = (field.number & schema::wire_flag::tracked) != 0;
    } else if (field.kind == Kind::opaque) {
        level.front.add(field.name, hex_number(field.number));
    } else {
        level.number = field.number;
        level.end = field.offset + field.number;
        if (level.kind == Group::Kind::address) return;
        begin_line(levels_.size() - 1);
        const bool is_element = level.index != no_index;
        if (!is_element) out_ += level.name;
        (out_ += is_element ? "{" : " {") += level.front.closed();
        end_line(is_element ? "[" + std::to_string(level.index) + "]" : "");
        level.is_begun = true;
        if (is_element) ++levels_[levels_.size() - 2].elements;
    }
}

void SourceWriter::add_state(const Field &field, Level &level) {
    if (level.kind == Group::Kind::address) {
        level.states.push_back(field.number);
    } else if (field.index != no_index) {
        value_->states.push_back(field.number);
    } else {
        value_->state = field.number;
    }
}

// The number before a string or a list, or the string itself.
void SourceWriter::add_text(const Field &field) {
    using Kind = Field::Kind;
    if (field.kind == Kind::text) {
        std::string text;
        append_quoted(field.bytes, text);
        write_value(field.name, text);
        text_ = {};
        return;
    }
    count_ = field.number;
    if (field.member == nullptr) {
        text_ = field.words;
        return;
    }
    const std::string_view name = (field.member + 1)->name;
    if (field.number == 0) {
        write_value(name, field.kind == Kind::count ? "[]" : "\"\"");
        value_->expects_state = false;
    } else if (field.kind == Kind::length) {
        text_ = name;
    }
}

// After an error, bytes have no names. They are written where the error is.
void SourceWriter::finish_frame(const std::optional<Break> &broken) {
    const std::size_t begin = at_;
    at_ = base_ + bytes_.size();
    if (!has_name_) {
        out_ += "# offset " + std::to_string(base_) + ", no frame\n";
        append_raw(bytes_, 0);
        return end_line();
    }
    // A value that is not complete.
    std::optional<Level> partial;
    if (levels_.size() > 1 && !levels_.back().is_begun) {
        partial = std::move(levels_.back());
        levels_.pop_back();
    }
    if (broken) {
        begin_line(levels_.size());
        out_ += "# broken at " + sentence_of(*broken) + "\n";
    }
    if (!text_.empty()) {
        write_value(text_, "\"\"");
        value_->back.add("length", std::to_string(count_));
        value_->expects_state = false;
    }
    const bool is_member = partial && partial->index == no_index && levels_.size() > 1;
    write_raw(bytes_from(partial ? partial->begin : begin), is_member ? std::string(partial->name) : "");
    while (levels_.size() > 1) close_lines();
    finish_value();
    Parentheses back;
    if (total_length_ != bytes_.size()) back.add("total_length", std::to_string(total_length_));
    if (levels_.front().is_begun || !back.text.empty()) out_ += levels_.front().is_begun ? "}" : " {}";
    out_ += back.closed();
    end_line();
}

}  // namespace

// What is no frame ends where the next one begins. Until then its bytes stay in the stream, and the reader gets copies.
void write_source(ByteStream &bytes, const std::function<void(std::string_view)> &write) {
    SourceWriter writer(write);
    std::size_t copied = 0;  // of the bytes in the stream
    ByteStream copies(bytes.name(), [&](char *to, std::size_t most) {
        const std::string_view seen = bytes.look(copied + 1);
        const std::size_t size = seen.size() > copied ? seen.copy(to, most, copied) : 0;
        copied += size;
        return size;
    });
    FrameReader reader(copies, true);
    for (std::optional<Stretch> stretch = reader.next(); stretch;) {
        const std::uint64_t begin = stretch->offset;
        stretch = reader.next();
        const std::size_t size = (stretch ? stretch->offset : copies.offset()) - begin;
        writer.add(bytes_of(bytes.look(size).substr(0, size)), begin);
        bytes.take(size);
        copied -= size;
    }
}

}  // namespace tarn::tool
