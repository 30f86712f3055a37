// Assembles frames from text.
#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "schema/frame.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/source.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/position.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using namespace schema;

struct Token {
    enum class Kind : std::uint8_t { word, text, raw, mark, end };
    Kind kind;
    Position begin;
    std::string written = {};  // of a word or a mark; of others, the beginning, for error messages
    std::string bytes = {};    // of a text or of raw bytes

    bool is(char mark) const { return kind == Kind::mark && written.front() == mark; }
    bool is(std::string_view word) const { return kind == Kind::word && written == word; }
};

bool is_word_character(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("_.:/%+-*").find(c) != std::string_view::npos;
}

int hexadecimal(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// Reads tokens one after the other. Two are in memory.
class Tokens {
public:
    explicit Tokens(ByteStream &stream) : stream_(stream) { advance(); }

    const Token &next() const { return next_; }
    Token take() {
        Token token = std::move(next_);
        advance();
        return token;
    }

    [[noreturn]] void fail(const Token &token, const std::string &reason) const { fail(token.begin, reason); }
    [[noreturn]] void fail_expected(const std::string &what) const {
        fail(next_, "expected " + what + ", not " + shown(next_));
    }

private:
    static std::string shown(const Token &token) {
        return token.kind == Token::Kind::end ? "the end" : in_quotes(token.written);
    }
    [[noreturn]] void fail(Position at, const std::string &reason) const {
        throw Failure(Exit::input,
                      stream_.name() + ":" + std::to_string(at.line) + ":" + std::to_string(at.column) + ": " + reason);
    }
    [[noreturn]] void fail(std::size_t at, const std::string &reason) const {
        fail(position_.after(text_.substr(0, at)), reason);
    }

    // True if there is a character at this offset. Offsets begin at the token.
    bool has(std::size_t at) {
        if (at >= text_.size()) text_ = stream_.look(at + 1);
        return at < text_.size();
    }
    void pass(std::size_t size);
    void advance();
    std::string text_to_end();
    std::string raw_to_end();

    ByteStream &stream_;
    std::string_view text_;  // what is known from the token on
    Position position_;      // of the token
    std::size_t at_ = 0;
    Token next_{Token::Kind::end, {}};
};

void Tokens::pass(std::size_t size) {
    position_ = position_.after(text_.substr(0, size));
    stream_.take(size);
    text_.remove_prefix(size);
    at_ = 0;
}

void Tokens::advance() {
    bool in_comment = false;
    for (pass(at_); has(0);) {
        in_comment = in_comment || text_[0] == '#';
        const std::size_t size = in_comment ? text_.find('\n') : text_.find_first_not_of(" \t\r\n,");
        if (size == 0 && !in_comment) break;
        in_comment = in_comment && size == std::string_view::npos;
        pass(std::min(size, text_.size()));
    }
    Token token{Token::Kind::end, position_};
    if (has(0)) {
        const char c = text_[at_++];
        if (c == '"') {
            token.kind = Token::Kind::text;
            token.bytes = text_to_end();
        } else if (c == '<') {
            token.kind = Token::Kind::raw;
            token.bytes = raw_to_end();
        } else if (is_word_character(c)) {
            token.kind = Token::Kind::word;
            while (has(at_) && is_word_character(text_[at_])) ++at_;
        } else if (std::string_view("{}[]()").find(c) != std::string_view::npos) {
            token.kind = Token::Kind::mark;
        } else {
            fail(token, "unexpected " + in_quotes(text_.substr(0, 1)));
        }
    }
    token.written = text_.substr(0, at_);
    next_ = std::move(token);
}

// The rest of a text in quotation marks.
std::string Tokens::text_to_end() {
    std::string bytes;
    for (; has(at_) && text_[at_] != '\n'; ++at_) {
        char c = text_[at_];
        if (c == '"') {
            ++at_;
            return bytes;
        }
        if (c == '\\') {
            c = has(++at_) ? text_[at_] : '\0';
            if (c == 'x') {
                const int high = has(at_ + 2) ? hexadecimal(text_[at_ + 1]) : -1;
                const int low = high < 0 ? -1 : hexadecimal(text_[at_ + 2]);
                if (low < 0) fail(at_ - 1, "two hexadecimal digits must follow \\x");
                c = static_cast<char>(high * 16 + low);
                at_ += 2;
            } else if (c != '"' && c != '\\') {
                fail(at_ - 1, "unknown escape; known are \\x41, \\\" and \\\\");
            }
        }
        bytes += c;
    }
    fail(0, "the text has no end in its line");
}

// The rest of raw bytes in angle brackets.
std::string Tokens::raw_to_end() {
    std::string bytes;
    int high = -1;
    for (; has(at_); ++at_) {
        const char c = text_[at_];
        if (c == '>' && high < 0) {
            ++at_;
            return bytes;
        }
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r') continue;
        const int digit = hexadecimal(c);
        if (digit < 0) {
            fail(at_, c == '>' ? "a byte has two hexadecimal digits" : "expected a hexadecimal digit or >");
        }
        if (high >= 0) bytes += static_cast<char>(high * 16 + digit);
        high = high < 0 ? digit : -1;
    }
    fail(0, "the raw bytes have no end");
}

// In parentheses: what is usually computed.
struct Attribute {
    Token name;
    Token value;                          // unless it takes a list
    std::vector<std::uint8_t> list = {};  // of state bytes

    bool takes_list() const { return name.is("states") || name.is("parts"); }
};
using Attributes = std::vector<Attribute>;
const std::vector<std::string_view> head_attributes = {"variant", "flag", "ra_value", "ra_byte"};

class Assembler {
public:
    explicit Assembler(ByteStream &text) : tokens_(text) {}

    // The next frame or the next raw bytes; nothing at the end.
    std::optional<std::string> next() {
        if (tokens_.next().kind == Token::Kind::end) return std::nullopt;
        if (tokens_.next().kind == Token::Kind::raw) return tokens_.take().bytes;
        if (!tokens_.next().is("frame")) tokens_.fail_expected("\"frame\" or raw bytes");
        assemble_frame();
        return std::exchange(out_, {});
    }

private:
    struct Name {
        std::string luid;
        const reflect::MessageOperations *message = nullptr;  // with a payload
        bool is_request = false;
    };
    struct Head {
        bool tracked = false;
        std::size_t jump_at = 0;
    };

    void assemble_frame();
    Name take_name();
    void assemble_body(const Name &name, bool tracked);
    void assemble_request_member();
    Head assemble_record(const Record &record, bool tracked);
    std::size_t index_of(const Record &record, const Token &name) const;
    void assemble_member(const Record &record, std::size_t index, bool tracked);
    std::size_t assemble_list(const Member &member, bool tracked);
    void assemble_scalar(const Member &member);
    std::size_t assemble_text();
    Head assemble_address(bool tracked, std::vector<std::size_t> &parts);
    void fill(const Member &member, bool tracked);

    Attributes take_attributes(const std::vector<std::string_view> &known, std::size_t states = 0);
    std::vector<std::uint8_t> take_list(std::size_t most);
    Head put_head(const Attributes &front, bool tracked);
    void put_part(const Part &part, const Attributes &attributes);
    void put_variant(const Attributes &front);
    void put_jump(const Head &head, const Attributes &back);
    void put_count(std::size_t at, std::size_t width, std::uint64_t computed, const Attribute *given,
                   const Token &token);
    void put_states(const Attributes &back, bool expected, std::size_t elements);

    std::uint64_t number_of(const Token &token, std::uint64_t greatest) const;
    static const Attribute *find(const Attributes &attributes, std::string_view name) {
        const auto at = std::find_if(attributes.begin(), attributes.end(),
                                     [&](const Attribute &a) { return a.name.written == name; });
        return at == attributes.end() ? nullptr : &*at;
    }
    static std::uint64_t greatest_of(std::size_t width) {
        return width >= 8 ? UINT64_MAX : (std::uint64_t{1} << (8 * width)) - 1;
    }
    void put(std::uint64_t number, std::size_t width) {
        for (std::size_t i = width; i-- != 0;) out_ += static_cast<char>(number >> (8 * i));
    }
    void put_at(std::size_t at, std::uint64_t number, std::size_t width) {
        for (std::size_t i = width; i-- != 0; number >>= 8) out_[at + i] = static_cast<char>(number);
    }
    Token expect(char mark) {
        if (!tokens_.next().is(mark)) tokens_.fail_expected(in_quotes(std::string(1, mark)));
        return tokens_.take();
    }

    Tokens tokens_;
    std::string out_;  // of the frame
};

// Decimal, or hexadecimal after 0x.
std::uint64_t Assembler::number_of(const Token &token, std::uint64_t greatest) const {
    std::string_view digits = token.written;
    int base = 10;
    if (digits.starts_with("0x")) {
        digits.remove_prefix(2);
        base = 16;
    }
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    const bool is_number = token.kind == Token::Kind::word && end == digits.data() + digits.size() && !digits.empty();
    if (!is_number) tokens_.fail(token, "expected a number, not " + in_quotes(token.written));
    if (error != std::errc() || number > greatest) {
        tokens_.fail(token, in_quotes(token.written) + " is greater than " + std::to_string(greatest));
    }
    return number;
}

// "[2*3 0]": four states.
std::vector<std::uint8_t> Assembler::take_list(std::size_t most) {
    std::vector<std::uint8_t> list;
    expect('[');
    while (!tokens_.next().is(']')) {
        Token token = tokens_.take();
        Token times = token;
        const std::size_t star = token.written.find('*');
        std::uint64_t count = 1;
        if (token.kind == Token::Kind::word && star != std::string::npos) {
            times.written.erase(0, star + 1);
            times.begin.column += star + 1;
            token.written.resize(star);
            count = number_of(times, UINT32_MAX);
        }
        if (count > most - list.size())
            tokens_.fail(times, "the number of state bytes here is at most " + std::to_string(most));
        list.insert(list.end(), count, static_cast<std::uint8_t>(number_of(token, UINT8_MAX)));
    }
    expect(']');
    return list;
}

Attributes Assembler::take_attributes(const std::vector<std::string_view> &known, std::size_t states) {
    Attributes attributes;
    if (!tokens_.next().is('(')) return attributes;
    for (tokens_.take(); !tokens_.next().is(')');) {
        Attribute attribute{tokens_.take(), {Token::Kind::end, {}}};
        const std::string_view name = attribute.name.written;
        if (attribute.name.kind != Token::Kind::word || std::find(known.begin(), known.end(), name) == known.end()) {
            std::string all;
            for (const std::string_view k : known) all += (all.empty() ? "" : ", ") + std::string(k);
            tokens_.fail(attribute.name, in_quotes(name) + " cannot be given here; possible: " + all);
        }
        if (find(attributes, name) != nullptr) tokens_.fail(attribute.name, in_quotes(name) + " is given twice");
        if (attribute.takes_list()) {
            attribute.list = take_list(states);
        } else if (tokens_.next().kind == Token::Kind::mark) {
            tokens_.fail_expected("a number");
        } else {
            attribute.value = tokens_.take();
        }
        attributes.push_back(std::move(attribute));
    }
    tokens_.take();
    return attributes;
}

// ---- frames

Assembler::Name Assembler::take_name() {
    const Token token = tokens_.take();
    const std::string_view written = token.written;
    const auto text_of = [](const std::uint8_t *luid) { return std::string(chars_of({luid, schema::luid_size})); };
    if (token.kind == Token::Kind::raw) {
        if (token.bytes.size() != schema::luid_size) tokens_.fail(token, "a luid has 16 bytes");
        return {token.bytes};
    }
    for (const Control control : controls) {
        if (!tokens_.next().is(word(control))) continue;
        const auto *bundle = find_bundle_named(written);
        if (bundle == nullptr) tokens_.fail(token, unknown_name("bundle", written, bundle_names()).what());
        tokens_.take();
        return {text_of(operations_of(*bundle, control).luid)};
    }
    if (token.is("ui_req_msg")) return {text_of(message_ui_req_msg_luid), nullptr, true};
    const auto *message = find_message_named(written);
    if (message == nullptr) tokens_.fail(token, unknown_name("message", written, message_names()).what());
    return {text_of(message->luid), message};
}

void Assembler::assemble_frame() {
    tokens_.take();
    const Name name = take_name();
    const Attributes front = take_attributes({"marker", "fill", "sttr", "stamp", "zero"});
    bool tracked = false;
    std::size_t length_at = 0;
    for (const Part &part : schema::message_frame) {
        if (part.content == Content::identity) break;
        if (part.name == "total_length") length_at = out_.size();
        put_part(part, front);
        if (part.name == "sttr") tracked = out_.back() != 0;
    }
    out_ += name.luid;
    if (tokens_.next().is('{')) assemble_body(name, tracked);
    const Attributes back = take_attributes({"total_length"});
    const Attribute *given = find(back, "total_length");
    put_at(length_at, given != nullptr ? number_of(given->value, UINT32_MAX) : out_.size(), 4);
}

// Of the header, or opaque.
void Assembler::put_part(const Part &part, const Attributes &attributes) {
    const Attribute *given = find(attributes, part.name);
    if (given == nullptr) {
        out_.append(part.size, static_cast<char>(part.value));
    } else if (given->value.kind == Token::Kind::raw) {
        if (given->value.bytes.size() != part.size) {
            tokens_.fail(given->value, std::string(part.name) + " has " + std::to_string(part.size) + " bytes");
        }
        out_ += given->value.bytes;
    } else {
        if (part.size > 8) tokens_.fail(given->value, "expected raw bytes");
        put(number_of(given->value, greatest_of(part.size)), part.size);
    }
}

void Assembler::assemble_body(const Name &name, bool tracked) {
    expect('{');
    while (!tokens_.next().is('}')) {
        if (tokens_.next().kind == Token::Kind::raw) {
            out_ += tokens_.take().bytes;
        } else if (name.is_request) {
            assemble_request_member();
        } else if (name.message != nullptr && tokens_.next().is("payload")) {
            tokens_.take();
            const Head head = assemble_record(name.message->message->payload, tracked);
            put_jump(head, take_attributes({"jump"}));
        } else {
            tokens_.fail_expected(name.message != nullptr ? "\"payload\", raw bytes or \"}\"" : "raw bytes or \"}\"");
        }
    }
    expect('}');
}

void Assembler::assemble_request_member() {
    const Token name = tokens_.take();
    if (name.is("options")) {
        put(number_of(tokens_.take(), UINT8_MAX), 1);
    } else if (name.is("number")) {
        put(number_of(tokens_.take(), UINT32_MAX), 4);
    } else if (name.is("bundle") || name.is("sentence")) {
        const std::size_t at = out_.size();
        put(0, 1);
        const Token begin = tokens_.next();
        const std::size_t length = assemble_text();
        const Attributes back = take_attributes({"length"});
        put_count(at, 1, length, find(back, "length"), begin);
    } else {
        tokens_.fail(name, "expected \"options\", \"number\", \"bundle\", \"sentence\", raw bytes or \"}\", not " +
                               in_quotes(name.written));
    }
}

// ---- records

// All parts that precede the members. Unless it says otherwise, a record has state bytes if what contains it has.
Assembler::Head Assembler::put_head(const Attributes &front, bool tracked) {
    const bool has_ra = find(front, "ra_value") != nullptr || find(front, "ra_byte") != nullptr;
    unsigned flag = (tracked ? schema::wire_flag::tracked : 0U) | (has_ra ? schema::wire_flag::ra_data : 0U);
    Head head;
    const auto put_parts = [&](const auto &self, std::span<const Part> parts) -> void {
        for (const Part &part : parts) {
            if (part.flag != 0 && (flag & part.flag) == 0) continue;
            if (part.content == Content::parts) {
                self(self, part.parts);
            } else if (part.content == Content::signed_number) {
                put_variant(front);
            } else if (part.content == Content::number) {
                head.jump_at = out_.size();
                out_.append(part.size, '\0');
            } else if (part.content == Content::flags) {
                const Attribute *given = find(front, part.name);
                if (given != nullptr) flag = static_cast<unsigned>(number_of(given->value, UINT8_MAX));
                put(flag, part.size);
            } else if (part.size != schema::varies) {
                put_part(part, front);
            }
        }
    };
    put_parts(put_parts, schema::record_frame);
    if (has_ra && (flag & schema::wire_flag::ra_data) == 0) {
        tokens_.fail(front.front().name, "with this flag, there is no RA data");
    }
    head.tracked = (flag & schema::wire_flag::tracked) != 0;
    return head;
}

void Assembler::put_variant(const Attributes &front) {
    const Attribute *given = find(front, schema::variant_part.name);
    if (given == nullptr) return put(0, 1);
    Token token = given->value;
    const bool negative = token.written.starts_with('-');
    if (negative) token.written.erase(0, 1);
    if (negative) ++token.begin.column;
    const std::uint64_t number = number_of(token, negative ? 128 : 127);
    put(negative ? 0 - number : number, 1);
}

void Assembler::put_jump(const Head &head, const Attributes &back) {
    const Attribute *given = find(back, "jump");
    put_at(head.jump_at, given != nullptr ? number_of(given->value, UINT32_MAX) : out_.size() - head.jump_at, 4);
}

// The caller writes the jump, which may be given after the record.
Assembler::Head Assembler::assemble_record(const Record &record, bool tracked) {
    expect('{');
    const Head head = put_head(take_attributes(head_attributes), tracked);
    for (std::size_t next = 0; !tokens_.next().is('}');) {
        if (tokens_.next().kind == Token::Kind::raw) {
            out_ += tokens_.take().bytes;
            continue;
        }
        if (tokens_.next().kind != Token::Kind::word) tokens_.fail_expected("a member, raw bytes or \"}\"");
        const Token name = tokens_.take();
        if (name.is("...")) {
            for (; next < record.members.size(); ++next) fill(record.members[next], head.tracked);
        } else {
            const std::size_t index = index_of(record, name);
            assemble_member(record, index, head.tracked);
            next = index + 1;
        }
    }
    expect('}');
    return head;
}

std::size_t Assembler::index_of(const Record &record, const Token &name) const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        if (m.role == Role::value) names.emplace_back(m.name);
        if (m.name != name.written) continue;
        if (m.role == Role::value) return i;
        tokens_.fail(name, std::string(m.name) + " comes with " + std::string(record.members[i + 1].name) +
                               "; to give it, write (" + (m.role == Role::count ? "count" : "length") + " N) after it");
    }
    tokens_.fail(
        name, std::string(record.name) + " has no member " + in_quotes(name.written) + suggestion(name.written, names));
}

void Assembler::assemble_member(const Record &record, std::size_t index, bool tracked) {
    const Member &m = record.members[index];
    const Category kind = category(m.kind);
    const bool is_list = kind == Category::array, is_string = kind == Category::string;
    const std::size_t width = is_list || is_string ? facts(record.members[index - 1].kind).wire : 0;
    const std::size_t count_at = out_.size();
    out_.append(width, '\0');
    const Token begin = tokens_.next();
    std::uint64_t count = 0;
    std::optional<Head> head;
    std::vector<std::size_t> parts;
    if (begin.kind == Token::Kind::raw) {
        out_ += tokens_.take().bytes;
        if (is_string) count = begin.bytes.size();
    } else if (is_list) {
        count = assemble_list(m, tracked);
    } else if (is_string) {
        count = assemble_text();
    } else if (kind == Category::record) {
        head = assemble_record(*m.record, tracked);
    } else if (kind == Category::address) {
        head = assemble_address(tracked, parts);
    } else {
        assemble_scalar(m);
    }
    const bool has_bytes = out_.size() > count_at + width;
    const std::size_t elements = is_list ? count : 0;
    std::vector<std::string_view> known{"state"};
    if (head) known.emplace_back("jump");
    if (!parts.empty()) known.emplace_back("parts");
    if (is_list) known.insert(known.end(), {"count", "states"});
    if (is_string) known.emplace_back("length");
    const Attributes back = take_attributes(known, std::max(elements, parts.size()));
    if (head) put_jump(*head, back);
    if (const Attribute *given = find(back, "parts")) {
        for (std::size_t i = 0; i < given->list.size(); ++i) out_[parts[i]] = static_cast<char>(given->list[i]);
    }
    if (width != 0) put_count(count_at, width, count, find(back, is_list ? "count" : "length"), begin);
    put_states(back, tracked && has_bytes, elements);
}

void Assembler::put_count(std::size_t at, std::size_t width, std::uint64_t computed, const Attribute *given,
                          const Token &token) {
    const std::uint64_t most = greatest_of(width);
    if (given == nullptr && computed > most) {
        tokens_.fail(token,
                     "there are " + std::to_string(computed) + ", but their number is at most " + std::to_string(most));
    }
    put_at(at, given != nullptr ? number_of(given->value, most) : computed, width);
}

// Returns the number of bytes.
std::size_t Assembler::assemble_text() {
    if (tokens_.next().kind != Token::Kind::text) tokens_.fail_expected("a text in quotation marks or raw bytes");
    const std::size_t begin = out_.size();
    out_ += tokens_.take().bytes;
    return out_.size() - begin;
}

// The state byte of a member. Those of its elements follow the one of a list.
void Assembler::put_states(const Attributes &back, bool expected, std::size_t elements) {
    const Attribute *state = find(back, "state"), *states = find(back, "states");
    if (state != nullptr && state->value.is("none")) return;
    if (state == nullptr && states == nullptr && !expected) return;
    put(state != nullptr ? number_of(state->value, UINT8_MAX) : 0, 1);
    if (states == nullptr) {
        out_.append(elements, '\0');
    } else {
        for (const std::uint8_t byte : states->list) put(byte, 1);
    }
}

// Returns the number of elements.
std::size_t Assembler::assemble_list(const Member &m, bool tracked) {
    expect('[');
    std::size_t elements = 0;
    while (!tokens_.next().is(']')) {
        if (tokens_.next().kind == Token::Kind::raw) {
            out_ += tokens_.take().bytes;
            continue;
        }
        const Head head = assemble_record(*m.record, tracked);
        put_jump(head, take_attributes({"jump"}));
        ++elements;
    }
    expect(']');
    return elements;
}

// Integers, booleans and enumerations.
void Assembler::assemble_scalar(const Member &m) {
    const Category kind = category(m.kind);
    if (kind != Category::integer) put_variant(take_attributes({schema::variant_part.name}));
    const Token value = tokens_.take();
    if (kind == Category::boolean && (value.is("true") || value.is("false"))) {
        return put(value.is("true") ? 1 : 0, schema::boolean_frame[1].size);
    }
    if (kind == Category::boolean) return put(number_of(value, UINT8_MAX), schema::boolean_frame[1].size);
    if (kind == Category::integer) return put(number_of(value, greatest(m.kind)), facts(m.kind).wire);
    const auto &enumerators = m.enumeration->enumerators;
    const auto at = std::find(enumerators.begin(), enumerators.end(), value.written);
    auto number = static_cast<std::uint64_t>(at - enumerators.begin());
    if (at == enumerators.end()) {
        const bool is_number = value.kind == Token::Kind::word && value.written.front() <= '9';
        if (!is_number) {
            tokens_.fail(
                value, std::string(m.enumeration->name) + " has no enumerator " + in_quotes(value.written) +
                           suggestion(value.written, std::vector<std::string>(enumerators.begin(), enumerators.end())));
        }
        number = number_of(value, UINT32_MAX);
    }
    put(number, schema::enumeration_frame[1].size);
}

Assembler::Head Assembler::assemble_address(bool tracked, std::vector<std::size_t> &parts) {
    const Head head = put_head(take_attributes(head_attributes), tracked);
    const Token value = tokens_.take();
    const std::string text = value.kind == Token::Kind::text ? value.bytes : std::string(value.written);
    ip_address address{};
    // The runtime reads it from XML, so markup must not reach it.
    const bool has_markup =
        text != "unset" && text.find_first_not_of("0123456789abcdefABCDEF.:%/,") != std::string::npos;
    if (has_markup || !set_address(&address, text)) {
        tokens_.fail(value, in_quotes(text) + " is not an address with a prefix length");
    }
    const std::uint32_t numbers[] = {address.af,      address.prefix_len, address.scope,  address.word[0],
                                     address.word[1], address.word[2],    address.word[3]};
    for (std::size_t i = 0; i < std::size(numbers); ++i) {
        put(numbers[i], facts(schema::address_members[i].kind).wire);
        if (!head.tracked) continue;
        parts.push_back(out_.size());
        put(0, 1);
    }
    return head;
}

// Zero, or empty.
void Assembler::fill(const Member &m, bool tracked) {
    const Record *record = m.kind == schema::Kind::record    ? m.record
                           : m.kind == schema::Kind::address ? &schema::address_record
                                                             : nullptr;
    if (record != nullptr) {
        const Head head = put_head({}, tracked);
        for (const Member &inner : record->members) fill(inner, tracked);
        put_jump(head, {});
    } else {
        out_.append(facts(m.kind).wire, '\0');
    }
    if (tracked && m.role == Role::value && !owns_block(m)) put(0, 1);
}

}  // namespace

void assemble(ByteStream &text, const std::function<void(std::string_view)> &write) {
    Assembler assembler(text);
    while (const std::optional<std::string> bytes = assembler.next()) write(*bytes);
}

}  // namespace tarn::tool
