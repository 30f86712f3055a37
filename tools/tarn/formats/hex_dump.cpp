#include "tools/tarn/formats/hex_dump.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

constexpr std::string_view line_blanks = " \t\r";

bool is_digit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

std::size_t digits_at(std::string_view text) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), is_digit) - text.begin());
}

std::string_view without_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(line_blanks);
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

void skip_blanks(std::string_view &text) { text = without_blanks(text); }

std::uint64_t number_of(std::string_view digits) {
    std::uint64_t value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return value;
}

// What stands before the bytes of a line.
struct Front {
    std::optional<std::uint64_t> offset;
    bool is_address = false;  // in the memory of a process, so that the first one is not 0
    std::string_view rest;
};

// "00000010: " (xxd), "00000010  " (hexdump, tshark), "000010 " (od), "0x7ffe10 <buffer+16>:" (gdb), or nothing.
Front front_of(std::string_view line) {
    const bool prefixed = line.starts_with("0x");
    const std::string_view text = line.substr(prefixed ? 2 : 0);
    const std::size_t digits = digits_at(text);
    std::string_view rest = text.substr(digits);
    if (digits == 0 || digits > 16) return {std::nullopt, false, line};
    const std::uint64_t offset = number_of(text.substr(0, digits));
    if (prefixed) {
        if (const std::string_view symbol = without_blanks(rest); symbol.starts_with('<')) {
            rest = symbol.substr(std::min(symbol.find('>'), symbol.size() - 1) + 1);
        }
        if (rest.starts_with(':')) return {offset, true, rest.substr(1)};
    } else if (digits >= 4) {
        if (rest.starts_with(':')) return {offset, false, rest.substr(1)};
        if (rest.starts_with("  ") || without_blanks(rest).empty()) return {offset, false, rest};
        // Bytes in groups have groups of one size.
        const bool is_before_byte = rest.front() == ' ' && digits_at(rest.substr(1)) == 2;
        if ((digits == 6 || digits == 7) && is_before_byte) return {offset, false, rest};
    }
    return {std::nullopt, false, line};
}

// A longer line is read in parts.
constexpr std::size_t longest_line = std::size_t{64} << 10;

class DumpReader {
public:
    explicit DumpReader(ByteStream text) : text_(std::move(text)) {}

    std::size_t read(char *to, std::size_t most) {
        while (rest_.empty()) {
            if (repetitions_ != 0) {
                --repetitions_;
                rest_ = repeated_;
            } else if (is_new_) {
                is_new_ = false;
                rest_ = bytes_;
            } else if (!read_line()) {
                if (size_ == 0 && !has_failed_) fail("no bytes");
                return 0;
            }
        }
        const std::size_t got = rest_.copy(to, most);
        rest_.remove_prefix(got);
        return got;
    }

private:
    // Nothing follows.
    [[noreturn]] void fail(const std::string &reason) {
        has_failed_ = true;
        throw Failure(Exit::input, text_.name() + ": line " + std::to_string(line_) + ": " + reason);
    }

    // The next line or part of one; false at the end.
    bool read_line() {
        const std::string_view text = text_.look(longest_line).substr(0, longest_line);
        if (text.empty() || has_failed_) return false;
        const bool is_part = std::exchange(line_continues_, false);
        if (!is_part) ++line_;
        std::size_t size = text.find('\n');
        std::size_t taken = size + 1;
        if (size == std::string_view::npos) {
            line_continues_ = text.size() == longest_line;
            // Not inside a number. Without separators, there are two digits for each byte.
            const std::size_t separator = line_continues_ ? text.find_last_of(" \t,") : std::string_view::npos;
            size = taken = separator == std::string_view::npos ? text.size() : separator + 1;
        }
        const std::string_view line = without_blanks(text.substr(0, size));
        text_.take(taken);
        if (!is_part) {
            read_line(line);
        } else if (in_array_) {
            read_array(line);
        } else {
            read_bytes(line, true);
        }
        return true;
    }

    void read_line(std::string_view line) {
        if (line.empty()) return;
        if (in_array_) return read_array(line);
        // What tshark prints before the bytes of each of several sources.
        if (line.find(" bytes):") != std::string_view::npos) return;
        if (line.front() == '*' && without_blanks(line.substr(1)).empty()) {
            is_repeated_ = true;
            return;
        }
        const Front front = front_of(line);
        // Digits alone are an offset only at the end of a dump; elsewhere they are bytes.
        if (front.offset && (has_offsets_ || !without_blanks(front.rest).empty())) {
            has_offsets_ = true;
            go_to(front);
            // hexdump separates the halves of a line by two line_blanks; its characters follow a bar in a fixed column.
            constexpr std::size_t bar = 52;
            const bool is_hexdump = front.rest.starts_with("  ") && front.rest.size() > bar && front.rest[bar] == '|';
            return is_hexdump ? read_bytes(front.rest.substr(0, bar), true) : read_bytes(front.rest, false);
        }
        if (line.find('{') != std::string_view::npos) return read_array(line.substr(line.find('{') + 1));
        // The size of the array, which "xxd -i" prints behind it.
        if (array_has_ended_ && (line.front() == ';' || line.starts_with("unsigned int "))) return;
        read_bytes(line, true);
    }

    // A dump that begins anew, as each packet of a capture does, continues the bytes.
    void go_to(const Front &front) {
        if (front.is_address && !base_) base_ = *front.offset;
        const std::uint64_t offset = *front.offset - base_.value_or(0);
        const std::uint64_t here = size_ - begin_;
        if (is_repeated_ && offset > here && !bytes_.empty() && (offset - here) % bytes_.size() == 0) {
            constexpr std::uint64_t most = std::uint64_t{1} << 30;
            if (offset > most) fail("the repeated bytes would be more than 1 GiB");
            repeated_ = bytes_;
            repetitions_ = (offset - here) / bytes_.size();
            size_ += offset - here;
        } else if (offset == 0 && !front.is_address) {
            begin_ = size_;
        } else if (offset != here) {
            fail("the offset is " + std::to_string(offset) + ", but " + std::to_string(here) + " bytes precede it");
        }
        is_repeated_ = false;
    }

    // Groups of digits, all of them or up to the column of characters, which follows at least two line_blanks.
    void read_bytes(std::string_view line, bool all) {
        begin_bytes();
        for (skip_blanks(line); !line.empty();) {
            if (line.starts_with("0x")) line.remove_prefix(2);
            const std::size_t digits = digits_at(line);
            if (digits == 0 || digits % 2 != 0) fail("expected two hexadecimal digits for each byte");
            for (std::size_t i = 0; i < digits; i += 2) put(line.substr(i, 2));
            line.remove_prefix(digits);
            const std::string_view rest = without_blanks(line);
            if (line.starts_with("  ") && !all) break;
            if (line.size() == rest.size() && !rest.empty() && rest.front() != ',')
                fail("expected a hexadecimal digit");
            line = rest;
            if (line.starts_with(',')) line.remove_prefix(1);
            skip_blanks(line);
        }
    }

    // "unsigned char frame[] = {", "0x50, 0x01, ...", "};"
    void read_array(std::string_view line) {
        in_array_ = true;
        begin_bytes();
        for (skip_blanks(line); !line.empty(); skip_blanks(line)) {
            if (line.starts_with("//")) return;
            if (line.front() == '}') {
                in_array_ = false;
                array_has_ended_ = true;
                return;
            }
            if (line.front() == ',') {
                line.remove_prefix(1);
                continue;
            }
            if (!line.starts_with("0x") && !line.starts_with("0X")) fail("expected a number such as 0x50");
            line.remove_prefix(2);
            const std::size_t digits = digits_at(line);
            if (digits == 0 || digits > 2) fail("expected a byte of one or two hexadecimal digits");
            put(line.substr(0, digits));
            line.remove_prefix(digits);
        }
    }

    void begin_bytes() {
        bytes_.clear();
        is_new_ = true;
    }
    void put(std::string_view digits) {
        bytes_ += static_cast<char>(number_of(digits));
        ++size_;
    }

    ByteStream text_;
    std::size_t line_ = 0;
    bool line_continues_ = false;
    std::string bytes_;              // of the last line that has some, which "*" repeats
    bool is_new_ = false;            // not yet returned
    std::string repeated_;           // before them
    std::uint64_t repetitions_ = 0;  // not yet returned
    std::string_view rest_;          // of the one that is being returned
    std::uint64_t size_ = 0;         // of all bytes
    std::uint64_t begin_ = 0;        // of the current dump in them
    std::optional<std::uint64_t> base_;
    bool has_offsets_ = false, is_repeated_ = false, in_array_ = false, array_has_ended_ = false, has_failed_ = false;
};

}  // namespace

bool looks_like_hex(std::string_view text) {
    // Enough for a line of any dump. A frame is longer than that only as a run of digits, of which an even number is
    // tried.
    constexpr std::size_t enough = 4096;
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    const std::string_view line = text.substr(0, std::min(text.find('\n'), enough));
    if (line.find("[] = {") != std::string_view::npos) return true;
    if (line.empty() || !is_digit(line.front())) return false;
    try {
        const std::size_t size = line.size() == enough ? enough - enough % 2 : line.size();
        return !bytes_of_hex(stream_of(std::string(line.substr(0, size)), {})).take_rest().empty();
    } catch (const Failure &) {
        return false;
    }
}

ByteStream bytes_of_hex(ByteStream text) {
    std::string name = text.name();
    const auto reader = std::make_shared<DumpReader>(std::move(text));
    return {std::move(name), [reader](char *to, std::size_t most) { return reader->read(to, most); }};
}

}  // namespace tarn::tool
