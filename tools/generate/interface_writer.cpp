// The C++ interface: for each record a structure that names its C functions, and accessors that call them.
#include <algorithm>
#include <set>
#include <stdexcept>

#include "names.h"
#include "api.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

constexpr std::size_t line_width = 120;

const std::string space = "lumo_ui_tarn::";

// Words that C++ keeps for itself.
constexpr std::string_view keywords =
    " alignas alignof and and_eq asm auto bitand bitor bool break case catch char char16_t char32_t char8_t class "
    "co_await co_return co_yield compl concept const const_cast consteval constexpr constinit continue decltype "
    "default delete do double dynamic_cast else enum explicit export extern false float for friend goto if inline int "
    "long mutable namespace new noexcept not not_eq nullptr operator or or_eq private protected public register "
    "reinterpret_cast requires return short signed sizeof static static_assert static_cast struct switch template "
    "this thread_local throw true try typedef typeid typename union unsigned using virtual void volatile wchar_t "
    "while xor xor_eq ";
// Names that all records have.
constexpr std::string_view of_records =
    " compare context copy for_each_member frame frame_size from_frame from_frame_with_spare from_xml get hash "
    "is_tracked record_name record_type reference_type release set_all_states take text to_frame to_xml write_frame ";
// Names in a structure of C types and functions that are no operations.
constexpr std::string_view of_structures =
    " luid members message name native owns_blocks payload ref_writers type value visit_writable_ writers ";

bool is_among(std::string_view words, const std::string &name) {
    return words.find(" " + name + " ") != std::string_view::npos;
}

std::string identifier(std::string_view of_member) {
    const std::string name(of_member);
    return name + (is_among(keywords, name) || is_among(of_records, name) ? "_member" : "");
}

// Breaks a line after commas and indents the rest.
std::string broken(std::string line, std::size_t indent, std::size_t first_indent = 0) {
    std::string text;
    line.insert(0, first_indent, ' ');
    while (line.size() > line_width) {
        const std::size_t comma = line.rfind(", ", line_width - 1);
        if (comma == std::string::npos) break;
        text += line.substr(0, comma + 1) + "\n";
        line = std::string(indent, ' ') + line.substr(comma + 2);
    }
    return text + line + "\n";
}

// Lines of a structure that names C types and functions.
std::string explained(const std::string &declaration, const std::string &meaning) {
    const std::string line = "    " + declaration + ";  ///< " + meaning + "\n";
    if (line.size() <= line_width) return line;
    std::string text, comment = "    /// " + meaning, statement = "    " + declaration + ";\n";
    while (comment.size() > line_width) {
        const std::size_t blank = comment.rfind(' ', line_width);
        text += comment.substr(0, blank) + "\n";
        comment.replace(0, blank, "    ///");
    }
    if (statement.size() > line_width + 1) statement.replace(statement.find(" = ") + 2, 1, "\n        ");
    return text + comment + "\n" + statement;
}
std::string alias(const std::string &name, const std::string &type, const std::string &meaning) {
    return explained("using " + name + " = " + type, meaning);
}
std::string constant(const std::string &name, const std::string &function, const std::string &meaning) {
    return explained("static constexpr auto " + name + " = " + function, meaning);
}
std::string indented(const std::string &lines) {
    std::string text = "    ";
    for (const char c : lines) text += c == '\n' ? "\n    " : std::string(1, c);
    return text.substr(0, text.size() - 4);
}

// The functions of one record. Two members whose functions would bear one name are refused here and not by the
// compiler of somebody else.
class Members {
public:
    explicit Members(const Record &record) : record_(record) {
        for (std::size_t i = 0; i < record.members.size(); ++i) add(i);
    }

    const std::string &arrays() const { return arrays_; }
    const std::string &readers() const { return readers_; }
    const std::string &owner_writers() const { return owner_writers_; }
    const std::string &ref_writers() const { return ref_writers_; }
    const std::string &listed() const { return listed_; }
    const std::string &listed_writable() const { return listed_writable_; }

private:
    std::string c(const Member &m) const { return std::string(record_.name) + "_" + std::string(m.name); }

    static std::string function(const std::string &meaning, const std::string &head, const std::string &body) {
        const std::string open = "        " + head + " {", statement = "return this->" + body + ";";
        return (meaning.empty() ? "" : "        /// " + meaning + "\n") +
               (open.size() + statement.size() + 3 <= line_width
                    ? open + " " + statement + " }\n"
                    : open + "\n" + broken(std::string(12, ' ') + statement, 16) + "        }\n");
    }
    void claim(const std::string &name) {
        if (names_.insert(name).second) return;
        throw std::runtime_error(std::string(record_.name) + " has two functions that are called " + name);
    }
    void reader(const std::string &meaning, const std::string &result, const std::string &name,
                const std::string &body) {
        claim(name + "()");
        readers_ += function(meaning, result + " " + name + "() const", body);
    }
    // Owners write while they are not const, references always.
    void writer(const std::string &meaning, const std::string &name, const std::string &parameter,
                const std::string &helper, const std::string &arguments) {
        claim(name + "(" + parameter.substr(0, 5));
        const std::string call = name + "(" + parameter + ")", body = helper + "(*this, " + arguments + ")";
        owner_writers_ += function(meaning, "Self &" + call, body);
        ref_writers_ += function("", "const Self &" + call + " const", body);
    }
    // What a record contains can be written where the record can be.
    void borrowed(const std::string &meaning, const std::string &of_view, const std::string &of_ref,
                  const std::string &name, const std::string &body) {
        reader(meaning, of_view, name, body);
        owner_writers_ +=
            "        using members<Self>::" + name + ";\n" + function(meaning, of_ref + " " + name + "()", body);
        ref_writers_ += function("", of_ref + " " + name + "() const", body);
    }

    // A line of for_each_member, for views and for what can be written.
    void list(const Member &m, const std::string &name, bool set, bool state) {
        const auto line = [&](const std::string &get, const std::string &of, bool sets) {
            return broken("visit(lumo_ui_tarn::member{\"" + std::string(m.name) + "\", " + get + ", " +
                              (sets && set ? of + "set_" + name : "nullptr") + ", " +
                              (state ? of + name + "_state" : "nullptr") + ", " +
                              (sets && state ? of + "set_" + name + "_state" : "nullptr") + "});",
                          sets ? 12 : 16, sets ? 8 : 12);
        };
        const std::string get = "&M::" + name;
        listed_ += line("&members::" + name, "&members::", false);
        listed_writable_ += line(m.record != nullptr ? "detail::writable(" + get + ", 0)" : get, "&M::", true);
    }

    void add(std::size_t index) {
        const Member &m = record_.members[index];
        const std::string name = identifier(m.name), get = c(m) + "_get", set = c(m) + "_set";
        const std::string meaning = sentence(m.meaning);
        readers_ += "\n";
        owner_writers_ += "\n";
        const auto setter = [&](const std::string &parameter, const std::string &helper, const std::string &arguments) {
            writer("Writes " + name + ".", "set_" + name, parameter, helper, arguments);
        };
        switch (class_of(m)) {
            case Applies::integer: {
                const std::string type = "std::" + value_type(m);
                reader(meaning, type, name, "call_(" + get + "_value)");
                setter(type + " value", "write_", set + "_value, value");
                break;
            }
            case Applies::boolean:
                reader(meaning, "bool", name, "call_(" + get + "_value) != 0");
                setter("bool value", "write_", set + "_value, static_cast<std::uint8_t>(value)");
                break;
            case Applies::enumerated: {
                const std::string type = space + type_name(*m.enumeration);
                reader(meaning, type, name, "template enumerated_<" + type + ">(" + get + "_value)");
                setter(type + " value", "write_", set + "_value, static_cast<std::uint32_t>(value)");
                break;
            }
            case Applies::address:
                reader(meaning, space + "address", name, "read_address_(" + get + ")");
                setter("const " + space + "address &value", "write_address_", get + ", " + set + ", value");
                break;
            case Applies::nested: {
                const std::string type = space + short_name(m.record->name);
                borrowed(meaning, type + "_view", type + "_ref", name,
                         "template nested_<" + type + "_type>(" + get + ")");
                setter(type + "_view value", "assign_", get + ", " + set + ", value");
                writer("Moves a record into " + name + ".", "adopt_" + name, type + " &&value", "adopt_",
                       get + ", " + set + ", std::move(value)");
                break;
            }
            case Applies::string:
                reader(meaning, "std::string", name,
                       "string_(" + c(record_.members[index - 1]) + "_get_value, " + get + ")");
                setter("std::string_view text", "write_string_", set + ", text");
                break;
            case Applies::array:
                add_array(index, name, meaning);
                break;
            default:  // counts and lengths follow from what they count
                reader(meaning, "std::" + value_type(m), name, "call_(" + get + "_value)");
                list(m, name, false, false);
                return;
        }
        const std::string whole = m.kind == Kind::array ? "_whole" : "";
        reader("The state byte of " + name + "; none if the record has no states.", "std::optional<std::uint8_t>",
               name + "_state", "state_(" + c(m) + "_state_flag" + whole + "_get)");
        writer("Writes the state byte of " + name + ".", "set_" + name + "_state", "std::uint8_t value", "write_",
               c(m) + "_state_flag" + whole + "_set, value");
        list(m, name, m.kind != Kind::array, true);
    }

    void add_array(std::size_t index, const std::string &name, const std::string &meaning) {
        const Member &m = record_.members[index], &count = record_.members[index - 1];
        const std::string tag = name + "_array";
        arrays_ += "    /// How " + name + " is read and written, for array_ref.\n    struct " + tag + " {\n" +
                   indented(alias("native", std::string(record_.name), "the record that has the array") +
                            alias("element", space + short_name(m.record->name) + "_type", "what it is an array of") +
                            alias("count", "std::" + value_type(count), "what its elements are counted in") +
                            constant("size", c(count) + "_get_value", "how many there are") +
                            constant("get", c(m) + "_get", "an element") +
                            constant("set", c(m) + "_set", "writes an element") +
                            constant("state_get", c(m) + "_state_flag_get", "an element's state byte") +
                            constant("state_set", c(m) + "_state_flag_set", "writes an element's state byte")) +
                   "    };\n";
        borrowed(meaning, space + "array_view<" + tag + ">", space + "array_ref<" + tag + ">", name,
                 "template array_<" + tag + ">()");
    }

    const Record &record_;
    std::string arrays_, readers_, owner_writers_, ref_writers_, listed_, listed_writable_;
    std::set<std::string> names_;
};

bool owns_blocks(const Record &record) {
    return std::any_of(record.members.begin(), record.members.end(), [](const Member &m) {
        return owns_block(m) || (m.kind == Kind::record && owns_blocks(*m.record));
    });
}

// A constant for each explicit operation of the table, in its order, under its own name: what follows the prefix in the
// name of the function. A payload's name differs from message to message, so the constant says payload.
std::string constants(const Subject &subject, Applies applies, std::string_view prefix) {
    std::string text;
    std::set<std::string> functions;
    for (const Export &e : exports_of(subject, applies)) {
        const Operation &o = *e.operation;
        const bool follows_from_row = o.prototype != o.row->prototype;
        const bool is_sticky = e.name.ends_with("_cr") && functions.count(e.name.substr(0, e.name.size() - 3)) != 0;
        if (follows_from_row || is_sticky) continue;
        functions.insert(e.name);
        std::string own = o.name.substr(o.name.find(prefix) + prefix.size());
        if (own.starts_with("{r}")) own.replace(0, 3, "payload");
        const std::string name = fill(own, subject);
        const bool is_taken = is_among(keywords, name) || is_among(of_structures, name) || name.ends_with("_array");
        const std::string first_sentence = o.text.substr(0, (o.text + " ").find(". ") + 1);
        text += constant(name + (is_taken ? "_operation" : ""), e.name, fill(first_sentence, subject));
    }
    return text;
}

std::string c_name(const std::string &c) {
    return explained("static constexpr const char *name = \"" + c + "\"", "its name in C");
}

// The types that users take.
std::string owner_and_reference(const std::string &what, const std::string &name, const std::string &c) {
    return "/// Owns a " + c + ".\nusing " + name + " = " + what + "<" + name + "_type>;\n/// Borrows a " + c +
           ".\nusing " + name + "_ref = " + what + "_ref<" + name + "_type>;\n/// Borrows a " + c +
           " to read it.\nusing " + name + "_view = " + what + "_view<" + name + "_type>;\n\n";
}

std::string record_types(const Record &record) {
    const std::string c(record.name), name = short_name(record.name);
    const Members members(record);
    std::string text =
        "/// " + c + ": " + std::string(record.meaning) + ".\nstruct " + name + "_type {\n" +
        alias("native", c, "the record in C") + c_name(c) +
        explained(std::string("static constexpr bool owns_blocks = ") + (owns_blocks(record) ? "true" : "false"),
                  "has arrays or strings");
    text += constants({.record = &record}, Applies::record, "{r}_");
    text += "\n" + members.arrays() + (members.arrays().empty() ? "" : "\n");
    const auto mixin = [&text](const std::string &meaning, const std::string &of, const std::string &base,
                               const std::string &constructor, const std::string &body) {
        text += "    /// " + meaning + "\n    template <class Self>\n    class " + of + " : public " + base + " {\n" +
                "    public:\n        using " + base + "::" + constructor + ";\n" + body + "    };\n";
    };
    const std::string visit = "        template <class Visit>\n        static void for_each_member(Visit &&visit) {\n";
    mixin("Reads the members.", "members", "detail::operations<" + name + "_type, Self>", "operations",
          members.readers() + "\n        /// Calls visit with a lumo_ui_tarn::member for each, in order.\n" + visit +
              members.listed() + "        }\n");
    mixin("Writes the members of an owner.", "writers", "members<Self>", "members", members.owner_writers());
    text += "    /// @cond the same functions for what is borrowed, as const\n";
    mixin("Writes the members of what is borrowed.", "ref_writers", "members<Self>", "members", members.ref_writers());
    text += "    template <class M, class Visit>\n    static void visit_writable_(Visit &&visit) {\n" +
            members.listed_writable() + "    }\n    /// @endcond\n};\n";
    return text + owner_and_reference("record", name, c);
}

std::string enumeration_type(const Enumeration &enumeration) {
    const std::string c(enumeration.name), name = type_name(enumeration);
    std::string text = "/// " + sentence(enumeration.meaning) + "\nenum class " + name + " : std::uint32_t {\n";
    std::string cases;
    const std::vector<std::string> names = enumerator_names(enumeration);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string enumerator = identifier(names[i]);
        text += "    " + enumerator + " = " + std::to_string(i) + ",  ///< " + std::string(enumeration.enumerators[i]) +
                "\n";
        cases += "        case " + name + "::" + enumerator + ":\n            return \"" +
                 std::string(enumeration.enumerators[i]) + "\";\n";
    }
    return text + "};\n/// Its name in C; empty for a value that has none, as frames may bring one.\n" +
           "constexpr std::string_view name_of(" + name + " value) {\n    switch (value) {\n" + cases +
           "    }\n    return {};\n}\n/// Names the C functions of " + c + ".\nstruct " + name + "_type {\n" +
           alias("native", c, "the enumeration in C") + alias("value", space + name, "its values") + c_name(c) +
           constants({.enumeration = &enumeration}, Applies::enumeration, "{e}_") + "};\n\n";
}

std::string message_types(const Message &message) {
    const std::string c(message.name), name = short_name(message.name), payload(message.payload.name);
    return "/// " + c + " carries one " + payload + ".\nstruct " + name + "_type {\n" +
           alias("native", c, "the message in C") +
           alias("payload", space + short_name(payload) + "_type", "what it carries") + c_name(c) +
           "    /// Its identity, 16 bytes.\n    static const std::uint8_t *luid() { return message_" + c +
           "_luid; }\n" + constants({.message = &message}, Applies::message, "{m}_message_") + "};\n" +
           owner_and_reference("message", name, c);
}

std::string bundle_type(const Bundle &bundle) {
    const std::string c(bundle.name), name = short_name(bundle.name), message(bundle.message.name);
    std::string text = "/// " + c + " admits " + message + ".\nstruct " + name + " {\n" +
                       alias("message", space + short_name(message) + "_type", "what it admits") + c_name(c) +
                       constants({.bundle = &bundle}, Applies::bundle, "{b}_bundle_");
    for (const char *control : {"start", "abort", "commit"}) {
        text += constants({.bundle = &bundle, .control = control}, Applies::control, "{b}_bundle_");
    }
    return text + "};\n\n";
}

std::string visit_all(const std::string &function, const std::string &what, const std::vector<std::string> &names) {
    std::string text = "/// Calls visit with a kind<T> for each " + what +
                       ", in the order of the schema.\n"
                       "template <class Visit>\nvoid " +
                       function + "(Visit &&visit) {\n";
    for (const std::string &name : names) text += "    visit(kind<" + name + ">{});\n";
    return text + "}\n";
}

}  // namespace

std::string interface_page() {
    std::string text =
        "/// @file\n"
        "/// lumo_ui_tarn.hpp - the whole library in C++17: records, enumerations, messages and bundles as types.\n"
        "/// lumo_ui_tarn/interface.hpp describes what they have in common, lumo_ui_tarn/families.h what each "
        "operation "
        "does.\n"
        "///\n"
        "/// A member proto has proto() and set_proto(), which chains; on a handle that tracks, proto_state() and\n"
        "/// set_proto_state() for its state byte; a nested record also adopt_..(), which moves. A const owner is "
        "read-only.\n"
        "/// dp_tc_type names the C functions of a dp_tc: c.call(dp_tc_type::adjust_variant, tc.get()). Needs the C "
        "library\n/// alone.\n"
        "// Generated from the schema; edit the tables there and run tools/regenerate.\n"
        "#ifndef LUMO_UI_TARN_HPP\n#define LUMO_UI_TARN_HPP\n\n#include <lumo_ui_tarn.h>\n\n"
        "#include <lumo_ui_tarn/interface.hpp>\n\nnamespace lumo_ui_tarn {\n\n";
    for (const Enumeration *e : enumerations) text += enumeration_type(*e);
    for (const Record *r : records) text += record_types(*r);
    for (const Message *m : messages) text += message_types(*m);
    for (const Bundle *b : bundles) text += bundle_type(*b);
    const auto names = [](const auto &all) {
        std::vector<std::string> list;
        for (const auto *one : all) list.push_back(short_name(one->name));
        return list;
    };
    text += "/// Stands for a type in a call.\ntemplate <class T>\nstruct kind {\n" + alias("type", "T", "the type") +
            "};\n";
    text += visit_all("for_each_record", "record", names(records));
    std::vector<std::string> enumeration_types;
    for (const Enumeration *e : enumerations) enumeration_types.push_back(type_name(*e) + "_type");
    text += visit_all("for_each_enumeration", "enumeration", enumeration_types);
    text += visit_all("for_each_message", "message", names(messages));
    text += visit_all("for_each_bundle", "bundle", names(bundles));
    return text + "\n}  // namespace lumo_ui_tarn\n\n#endif\n";
}

}  // namespace tarn::generate
