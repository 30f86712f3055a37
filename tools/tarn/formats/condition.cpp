#include "tools/tarn/formats/condition.h"

#include <sys/socket.h>

#include <algorithm>
#include <charconv>
#include <compare>
#include <optional>
#include <string>
#include <vector>

#include "tools/tarn/formats/xml_check.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using schema::Category;
using schema::Member;

constexpr std::string_view spaces = " \t";
constexpr std::string_view name_characters = "abcdefghijklmnopqrstuvwxyz0123456789_.";
// The longer ones first, of those that begin alike.
constexpr std::string_view operators[] = {"!=", "<=", ">=", "=", "<", ">", "~", "in"};

class Parser {
public:
    Parser(std::string_view text, const Instances &instances) : text_(text), instances_(instances) {}

    Condition run() {
        skip_blanks();
        const std::string_view name = take(std::min(text_.find_first_not_of(name_characters, at_), text_.size()) - at_);
        if (name.empty()) fail("expected a column");
        const RowColumn column = instances_.column(name, place(at_ - name.size()));
        skip_blanks();
        const std::string_view op = take_operator();
        skip_blanks();
        value_ = text_.substr(at_, text_.find_last_not_of(spaces) + 1 - at_);
        if (op == "~") return contains(column);
        if (op == "in") return within(column);
        return compares(column, op);
    }

private:
    std::string place(std::size_t at) const {
        return "condition " + in_quotes(text_) + ": character " + std::to_string(at + 1);
    }
    [[noreturn]] void fail(const std::string &reason) const { throw Failure(Exit::input, place(at_) + ": " + reason); }

    [[noreturn]] void fail_value(const std::string &reason) const { fail(in_quotes(value_) + " " + reason); }

    void skip_blanks() { at_ = std::min(text_.find_first_not_of(spaces, at_), text_.size()); }

    std::string_view take(std::size_t size) {
        at_ += size;
        return text_.substr(at_ - size, size);
    }

    std::string_view take_operator() {
        for (const std::string_view op : operators) {
            const bool is_word = op == "in";
            const std::string_view rest = text_.substr(at_);
            if (!rest.starts_with(op)) continue;
            if (is_word && (rest.size() == op.size() || spaces.find(rest[op.size()]) == std::string_view::npos))
                continue;
            return take(op.size());
        }
        fail("expected one of = != < <= > >= ~ in");
    }

    Condition compares(const RowColumn &column, std::string_view op) const {
        const Sortable wanted = wanted_of(*column.member);
        const bool is_truth = column.member->kind == schema::Kind::boolean;
        const auto compared = [column, wanted, is_truth](const Instance &instance, const auto &holds) {
            Sortable value = sortable(instance.value(column));
            if (auto *const number = std::get_if<std::uint64_t>(&value); is_truth && number != nullptr) {
                *number = *number != 0 ? 1 : 0;
            }
            return value.index() != 0 && holds(value <=> wanted);
        };
        const auto condition = [&](auto holds) -> Condition {
            return [compared, holds](const Instance &instance) { return compared(instance, holds); };
        };
        if (op == "=") return condition([](std::weak_ordering order) { return order == 0; });
        if (op == "!=") return condition([](std::weak_ordering order) { return order != 0; });
        if (op == "<") return condition([](std::weak_ordering order) { return order < 0; });
        if (op == "<=") return condition([](std::weak_ordering order) { return order <= 0; });
        if (op == ">") return condition([](std::weak_ordering order) { return order > 0; });
        return condition([](std::weak_ordering order) { return order >= 0; });
    }

    std::optional<std::uint64_t> number() const {
        const bool is_hex = value_.starts_with("0x");
        const char *const begin = value_.data() + (is_hex ? 2 : 0), *const end = value_.data() + value_.size();
        std::uint64_t number = 0;
        const auto [stop, error] = std::from_chars(begin, end, number, is_hex ? 16 : 10);
        if (error != std::errc() || stop != end) return std::nullopt;
        return number;
    }

    Sortable wanted_of(const Member &member) const {
        const std::optional<std::uint64_t> plain = number();
        switch (category(member.kind)) {
            case Category::integer:
                if (!plain) fail_value("is not a number from 0 to 18446744073709551615");
                return *plain;
            case Category::boolean:
                if (value_ == "true" || plain == 1) return std::uint64_t{1};
                if (value_ == "false" || plain == 0) return std::uint64_t{0};
                fail_value("is not true or false");
            case Category::enumeration: {
                const auto all = member.enumeration->enumerators;
                const auto found = std::find(all.begin(), all.end(), value_);
                if (found != all.end()) return static_cast<std::uint64_t>(found - all.begin());
                if (!plain) {
                    fail_value("is no enumerator" +
                               suggestion(value_, std::vector<std::string>(all.begin(), all.end())));
                }
                return *plain;
            }
            case Category::address:
                return sortable(address());
            case Category::string:
            case Category::record:
            case Category::array:
                break;
        }
        return std::string(value_);
    }

    // Without a prefix length, the whole address counts.
    ip_address address() const {
        std::string text(value_);
        if (text.find_first_of("/,") == std::string::npos && text != "unset") {
            text += text.find(':') == std::string::npos ? "/32" : "/128";
        }
        ip_address address{};
        if (const std::string problem = address_problem(text); !problem.empty()) fail(problem);
        if (!set_address(&address, text)) fail_value("is not an address");
        return address;
    }

    Condition within(const RowColumn &column) const {
        if (column.member->kind != schema::Kind::address) fail(column.name + " is not an address");
        const ip_address prefix = address();
        if (prefix.prefix_len > (prefix.af == AF_INET ? 32 : 128)) fail("the prefix is longer than the address");
        return [column, prefix](const Instance &instance) {
            const Value value = instance.value(column);
            auto *const *const held = std::get_if<ip_address *>(&value);
            if (held == nullptr || (*held)->af != prefix.af || (*held)->prefix_len < prefix.prefix_len) return false;
            for (unsigned bit = 0; bit < prefix.prefix_len; bit += 32) {
                const unsigned size = std::min(prefix.prefix_len - bit, 32U);
                if ((((*held)->word[bit / 32] ^ prefix.word[bit / 32]) >> (32 - size)) != 0) return false;
            }
            return true;
        };
    }

    Condition contains(const RowColumn &column) const {
        return [column, part = std::string(value_)](const Instance &instance) {
            std::string text;
            append_shown(text, instance.handle(), *column.member, instance.value(column));
            return text.find(part) != std::string::npos;
        };
    }

    std::string_view text_, value_;
    const Instances &instances_;
    std::size_t at_ = 0;
};

}  // namespace

Condition condition(std::string_view text, const Instances &instances) { return Parser(text, instances).run(); }

}  // namespace tarn::tool
