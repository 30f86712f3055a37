// lumo_ui_tarn.hpp: for each type a structure that names its C functions, and for each record its accessors.
#include <algorithm>
#include <set>
#include <stdexcept>

#include "api.h"
#include "names.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

constexpr std::size_t line_width = 120;

const std::string space = "lumo_ui_tarn::";

// Keywords of C++.
constexpr std::string_view keywords =
    " alignas alignof and and_eq asm auto bitand bitor bool break case catch char char16_t char32_t char8_t class "
    "co_await co_return co_yield compl concept const const_cast consteval constexpr constinit continue decltype "
    "default delete do double dynamic_cast else enum explicit export extern false float for friend goto if inline int "
    "long mutable namespace new noexcept not not_eq nullptr operator or or_eq private protected public register "
    "reinterpret_cast requires return short signed sizeof static static_assert static_cast struct switch template "
    "this thread_local throw true try typedef typeid typename union unsigned using virtual void volatile wchar_t "
    "while xor xor_eq ";
// Names that every record has.
constexpr std::string_view names_of_records =
    " compare context copy for_each_member frame frame_size from_frame from_frame_with_guard from_xml get hash "
    "is_tracked record_name record_type reference_type release set_all_states take text to_frame to_xml write_frame ";
// Names in a structure of C functions that are not operations.
constexpr std::string_view names_of_structures =
    " luid members message name native owner_writers owns_blocks parts payload ref_writers value visit_readable_ "
    "visit_writable_ ";

bool contains(std::string_view words, const std::string &name) {
    return words.find(" " + name + " ") != std::string_view::npos;
}

std::string identifier(std::string_view of_member) {
    const std::string name(of_member);
    return name + (contains(keywords, name) || contains(names_of_records, name) ? "_member" : "");
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

// The accessors of one record. Throws if two members need a function of the same name.
class Members {
public:
    explicit Members(const Record &record) : record_(record) {
        for (std::size_t i = 0; i < record.members.size(); ++i) add(i);
    }

    const std::string &arrays() const { return arrays_; }
    const std::string &readers() const { return readers_; }
    const std::string &state_readers() const { return state_readers_; }
    const std::string &owner_writers() const { return owner_writers_; }
    const std::string &ref_writers() const { return ref_writers_; }
    const std::string &readable() const { return readable_; }
    const std::string &writable() const { return writable_; }

private:
    std::string c(const Member &m) const { return std::string(record_.name) + "_" + std::string(m.name); }

    static std::string function(const std::string &head, const std::string &body) {
        const std::string open = "        " + head + " {", statement = "return this->" + body + ";";
        return open.size() + statement.size() + 3 <= line_width
                   ? open + " " + statement + " }\n"
                   : open + "\n" + broken(std::string(12, ' ') + statement, 16) + "        }\n";
    }
    void claim(const std::string &name) {
        if (names_.insert(name).second) return;
        throw std::runtime_error(std::string(record_.name) + " has two functions named " + name);
    }
    void reader(const Member &m, const std::string &result, const std::string &name, const std::string &body) {
        claim(name + "()");
        readers_ += "        /// " + sentence(m.meaning) + "\n" + function(result + " " + name + "() const", body);
    }
    // Setters of owners are not const, setters of references are.
    void writer(const std::string &name, const std::string &parameter, const std::string &helper,
                const std::string &arguments) {
        claim(name + "(" + parameter.substr(0, 5));
        const std::string call = name + "(" + parameter + ")", body = helper + "(*this, " + arguments + ")";
        owner_writers_ += function("Self &" + call, body);
        ref_writers_ += function("const Self &" + call + " const", body);
    }
    // A nested record or an array can be written if the record can be written.
    void borrowed(const Member &m, const std::string &view, const std::string &ref, const std::string &name,
                  const std::string &body) {
        reader(m, view, name, body);
        owner_writers_ += "        using members<Self>::" + name + ";\n" + function(ref + " " + name + "()", body);
        ref_writers_ += function(ref + " " + name + "() const", body);
    }
    void state(const std::string &name, const std::string &functions) {
        claim(name + "_state()");
        state_readers_ +=
            function("std::optional<std::uint8_t> " + name + "_state() const", "state_(" + functions + "_get)");
        writer("set_" + name + "_state", "std::uint8_t value", "write_", functions + "_set, value");
    }

    // A call of for_each_member's visitor, for views and for objects that can be written.
    void list(const Member &m, const std::string &name, bool set, bool state) {
        const std::string get = "&M::" + name;
        const auto line = [&](const std::string &getter, bool writes) {
            return broken("visit(lumo_ui_tarn::member{\"" + std::string(m.name) + "\", " + getter + ", " +
                              (writes && set ? "&M::set_" + name : "nullptr") + ", " +
                              (state ? "&M::" + name + "_state" : "nullptr") + ", " +
                              (writes && state ? "&M::set_" + name + "_state" : "nullptr") + "});",
                          12, 8);
        };
        readable_ += line(get, false);
        writable_ += line(m.record != nullptr ? "detail::writable(" + get + ", 0)" : get, true);
    }

    void add(std::size_t index) {
        const Member &m = record_.members[index];
        const std::string name = identifier(m.name), get = c(m) + "_get", set = c(m) + "_set";
        if (m.role != Role::value) {  // counts and lengths follow from what they count
            reader(m, "std::" + value_type(m), name, "call_(" + get + "_value)");
            list(m, name, false, false);
            return;
        }
        const auto setter = [&](const std::string &parameter, const std::string &helper, const std::string &arguments) {
            writer("set_" + name, parameter, helper, arguments);
        };
        switch (category(m.kind)) {
            case Category::integer: {
                const std::string type = "std::" + value_type(m);
                reader(m, type, name, "call_(" + get + "_value)");
                setter(type + " value", "write_", set + "_value, value");
                break;
            }
            case Category::boolean:
                reader(m, "bool", name, "call_(" + get + "_value) != 0");
                setter("bool value", "write_", set + "_value, static_cast<std::uint8_t>(value)");
                break;
            case Category::enumeration: {
                const std::string type = space + type_name(*m.enumeration);
                reader(m, type, name, "template enumerated_<" + type + ">(" + get + "_value)");
                setter(type + " value", "write_", set + "_value, static_cast<std::uint32_t>(value)");
                break;
            }
            case Category::address:
                reader(m, space + "address", name, "read_address_(" + get + ")");
                setter("const " + space + "address &value", "write_address_", get + ", " + set + ", value");
                break;
            case Category::record: {
                const std::string type = space + short_name(m.record->name);
                borrowed(m, type + "_view", type + "_ref", name, "template nested_<" + type + "_type>(" + get + ")");
                setter(type + "_view value", "assign_", get + ", " + set + ", value");
                writer("adopt_" + name, type + " &&value", "adopt_", get + ", " + set + ", std::move(value)");
                break;
            }
            case Category::string:
                reader(m, "std::string", name, "string_(" + c(record_.members[index - 1]) + "_get_value, " + get + ")");
                setter("std::string_view text", "write_string_", set + ", text");
                break;
            case Category::array:
                add_array(m, record_.members[index - 1], name);
                state(name, c(m) + "_state_flag_whole");
                list(m, name, false, true);
                return;
        }
        state(name, c(m) + "_state_flag");
        list(m, name, true, true);
    }

    void add_array(const Member &m, const Member &count, const std::string &name) {
        const std::string tag = name + "_array";
        arrays_ += "    struct " + tag + " {\n        LUMO_UI_TARN_ARRAY(" + std::string(record_.name) + ", " +
                   std::string(count.name) + ", " + std::string(m.name) + ");\n        using element = " + space +
                   short_name(m.record->name) + "_type;\n        using count = std::" + value_type(count) +
                   ";\n    };\n";
        borrowed(m, space + "array_view<" + tag + ">", space + "array_ref<" + tag + ">", name,
                 "template array_<" + tag + ">()");
    }

    const Record &record_;
    std::string arrays_, readers_, state_readers_, owner_writers_, ref_writers_, readable_, writable_;
    std::set<std::string> names_;
};

bool owns_blocks(const Record &record) {
    return std::any_of(record.members.begin(), record.members.end(), [](const Member &m) {
        return owns_block(m) || (m.kind == Kind::record && owns_blocks(*m.record));
    });
}

// In a macro, parameters stand for the names of types: {r}_create is RECORD##_create.
std::string pasted(std::string name) {
    const auto replace = [&name](std::string_view placeholder, std::string_view parameter) {
        const std::size_t at = name.find(placeholder);
        if (at == std::string::npos) return;
        const bool first = at == 0, last = at + placeholder.size() == name.size();
        name.replace(at, placeholder.size(), (first ? "" : "##") + std::string(parameter) + (last ? "" : "##"));
    };
    replace("{e}", "ENUMERATION");
    replace("{m}", "MESSAGE");
    replace("{b}", "BUNDLE");
    replace("{r}", name.find("MESSAGE") == std::string::npos ? "RECORD" : "PAYLOAD");
    return name;
}

// A line of a macro for each explicit operation of the table. The constant has the name of the function without prefix;
// the payload's name differs between messages, so there it is "payload".
std::string constants(Applies applies, std::string_view prefix, const std::string &control = "") {
    std::string lines;
    std::set<std::string> functions;
    for (const Operation &o : operations()) {
        const bool is_explicit = o.prototype == o.row->prototype;
        const bool is_sticky = o.name.ends_with("_cr") && functions.contains(o.name.substr(0, o.name.size() - 3));
        if (!includes(o.row->applies, applies) || !is_explicit || is_sticky) continue;
        functions.insert(o.name);
        std::string function = o.name, name = o.name.substr(o.name.find(prefix) + prefix.size());
        if (name.starts_with("{r}")) name.replace(0, 3, "payload");
        for (std::string *text : {&function, &name}) {
            if (const std::size_t at = text->find("{k}"); at != std::string::npos) text->replace(at, 3, control);
        }
        const bool is_taken =
            contains(keywords, name) || contains(names_of_structures, name) || name.ends_with("_array");
        lines += "static constexpr auto " + name + (is_taken ? "_operation" : "") + " = " + pasted(function) + ";\n";
    }
    return lines;
}

// Each use of a macro ends with the last semicolon.
std::string macro(const std::string &head, std::string lines) {
    lines.resize(lines.size() - 2);
    std::string text = "#define LUMO_UI_TARN_" + head + " \\\n    ";
    for (const char character : lines) text += character == '\n' ? " \\\n    " : std::string(1, character);
    return text + "\n";
}

std::string name_in_c(const std::string &parameter) {
    return "static constexpr const char *name = #" + parameter + ";\n";
}

constexpr std::string_view macro_names[] = {"ENUMERATION", "RECORD", "ARRAY", "MESSAGE", "BUNDLE"};

std::string macros() {
    std::string bundle = name_in_c("BUNDLE") + constants(Applies::bundle, "{b}_bundle_");
    for (const std::string control : {"start", "abort", "commit"}) {
        bundle += "static const std::uint8_t *" + control + "_luid() noexcept { return message_##BUNDLE##_bundle_" +
                  control + "_luid; }\n" + constants(Applies::control, "{b}_bundle_", control);
    }
    std::string array = "using native = RECORD;\nstatic constexpr auto size = RECORD##_##COUNT##_get_value;\n";
    for (const char *function : {"get", "set", "state_flag_get", "state_flag_set"}) {
        array += "static constexpr auto " + std::string(function) + " = RECORD##_##MEMBER##_" + function + ";\n";
    }
    return "/// @cond names of the C functions, which the C headers document\n" +
           macro("ENUMERATION(ENUMERATION)",
                 "using native = ENUMERATION;\n" + name_in_c("ENUMERATION") + constants(Applies::enumeration, "{e}_")) +
           macro("RECORD(RECORD)", "using native = RECORD;\n" + name_in_c("RECORD") +
                                       "static constexpr const frame_part *parts = frame_parts::RECORD;\n" +
                                       constants(Applies::record, "{r}_")) +
           macro("ARRAY(RECORD, COUNT, MEMBER)", array) +
           macro("MESSAGE(MESSAGE, PAYLOAD)",
                 "using native = MESSAGE;\n" + name_in_c("MESSAGE") +
                     "static const std::uint8_t *luid() noexcept { return message_##MESSAGE##_luid; }\n" +
                     constants(Applies::message, "{m}_message_")) +
           macro("BUNDLE(BUNDLE)", bundle) + "/// @endcond\n\n";
}

// The types of one record or message that programs use.
std::string owner_and_borrowers(const std::string &what, const std::string &name) {
    return "using " + name + " = " + what + "<" + name + "_type>;  ///< owns one\nusing " + name + "_ref = " + what +
           "_ref<" + name + "_type>;  ///< borrows one\nusing " + name + "_view = " + what + "_view<" + name +
           "_type>;  ///< borrows one to read it\n\n";
}

std::string record_types(const Record &record) {
    const std::string c(record.name), name = short_name(record.name);
    const Members members(record);
    const auto mixin = [](const std::string &derived, const std::string &base, const std::string &constructor,
                          const std::string &body) {
        return "    template <class Self>\n    class " + derived + " : public " + base +
               " {\n    public:\n        using " + base + "::" + constructor + ";\n" + body + "    };\n";
    };
    const auto visit = [](const std::string &function, const std::string &body) {
        return "    template <class M, class Visit>\n    static void " + function + "(Visit &&visit) {\n" + body +
               "    }\n";
    };
    return "/// " + sentence(record.meaning) + " C type: " + c + ".\nstruct " + name +
           "_type {\n    /// @cond names\n" + "    LUMO_UI_TARN_RECORD(" + c +
           ");\n    static constexpr bool owns_blocks = " + (owns_blocks(record) ? "true" : "false") + ";\n" +
           members.arrays() + "    /// @endcond\n\n" + "    /// Reads the members.\n" +
           mixin("members", "detail::operations<" + name + "_type, Self>", "operations",
                 "\n" + members.readers() + "\n        /// @cond states\n" + members.state_readers() +
                     "        /// @endcond\n") +
           "    /// @cond setters, and how for_each_member finds the members\n" +
           mixin("owner_writers", "members<Self>", "members", members.owner_writers()) +
           mixin("ref_writers", "members<Self>", "members", members.ref_writers()) +
           visit("visit_readable_", members.readable()) + visit("visit_writable_", members.writable()) +
           "    /// @endcond\n};\n" + owner_and_borrowers("record", name);
}

std::string enumeration_type(const Enumeration &enumeration) {
    const std::string c(enumeration.name), name = type_name(enumeration);
    std::string text = "/// " + sentence(enumeration.meaning) + "\nenum class " + name + " : std::uint32_t {\n";
    std::string cases;
    const std::vector<std::string> names = enumerator_names(enumeration);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string enumerator = identifier(names[i]), in_c(enumeration.enumerators[i]);
        text += "    " + enumerator + " = " + std::to_string(i) + ",  ///< " + in_c + "\n";
        cases += "        case " + name + "::" + enumerator + ":\n            return \"" + in_c + "\";\n";
    }
    return text +
           "};\n/// Returns the enumerator's C name, or \"\" for any other value: frames can contain any number.\n" +
           "constexpr std::string_view name_of(" + name + " value) noexcept {\n    switch (value) {\n" + cases +
           "    }\n    return {};\n}\n/// The C functions of " + c + ", as static members.\nstruct " + name +
           "_type {\n" + "    using value = " + space + name +
           ";  ///< the type of its values\n    LUMO_UI_TARN_ENUMERATION(" + c + ");\n};\n\n";
}

std::string message_types(const Message &message) {
    const std::string c(message.name), name = short_name(message.name), payload(message.payload.name);
    return "/// " + c + " carries one " + payload + ".\nstruct " + name + "_type {\n    using payload = " + space +
           short_name(payload) + "_type;  ///< the type of its payload\n    LUMO_UI_TARN_MESSAGE(" + c + ", " +
           payload + ");\n};\n" + owner_and_borrowers("message", name);
}

std::string bundle_type(const Bundle &bundle) {
    const std::string c(bundle.name), message(bundle.message.name);
    return "/// " + c + ": bundle of " + message + " messages. See bundle_writer and bundle_reader.\nstruct " +
           short_name(bundle.name) + " {\n    using message = " + space + short_name(message) +
           "_type;  ///< the type of its messages\n    LUMO_UI_TARN_BUNDLE(" + c + ");\n};\n\n";
}

std::string visit_all(const std::string &what, const std::string &role, const std::vector<std::string> &names) {
    std::string text = "/// Calls visit with a kind<T> for each " + what + ", in the order of the schema.\n/// T " +
                       role + ", for example " + names.front() + ".\ntemplate <class Visit>\nvoid for_each_" + what +
                       "(Visit &&visit) {\n";
    for (const std::string &name : names) text += "    visit(kind<" + name + ">{});\n";
    return text + "}\n";
}

constexpr std::string_view introduction = R"(/// @file
/// lumo_ui_tarn.hpp - the C++17 interface: records, enumerations, messages and bundles as types.
///
/// - Records: three types for each type in C. For lumo_tarn_dp_tc they are dp_tc, which owns a record, dp_tc_ref, which
///   borrows one, and dp_tc_view, which borrows one to read it.
/// - Enumerations: enum classes, for example ha_state. name_of() returns the C name of an enumerator.
/// - Messages: three types like records, for example dp_tt_msg. payload() is the record that the message carries.
/// - Bundles: bundle_writer writes the frames of a bundle, for example bundle_writer<dp_tt_cfg_rsp>, and bundle_reader
///   reads them. lumo_ui_tarn/exchange.hpp requests and serves bundles.
///
/// lumo_ui_tarn/interface.hpp describes what these types have in common, and how errors are reported.
///
/// Each member of a record, for example proto of lumo_tarn_dp_tc, has the functions below. Const owners and views have
/// no setters.
/// - proto() returns the value. A nested record is returned as a reference or view, an array as a container of them.
/// - set_proto(value) writes the value and returns the object, so that calls chain. EINVAL for text with a NUL
///   character, EOVERFLOW for text of more than 65535 bytes.
/// - set_appl(record) replaces the contents of the nested record appl by a deep copy of record.
/// - adopt_appl(record) moves the contents of a record into the nested record appl. The source keeps its C object,
///   without arrays and strings.
/// - proto_state() returns the state byte, or std::nullopt if the record has no state bytes.
/// - set_proto_state(value) writes the state byte. EINVAL if the record has no state bytes.
///
/// Counts and lengths have only the first function, because they follow from the array or string. Arrays have no
/// setter, because the container writes elements. If the name of a member were a keyword or a function of all records,
/// _member would be appended. Words such as ppe, fdb, wexa, kesh, smc and mdr in the descriptions of members are names
/// from the systems that send the data. The library does not interpret the members that they describe.
///
/// dp_tc_type has the C functions of the whole record as static members: c.call(dp_tc_type::adjust_variant, tc.get()).
/// If the name is a keyword, _operation is appended: sizeof_operation. lumo_ui_tarn/families.h describes the functions
/// and explains the terms: handle, ctx_id, state byte, RA data and others.
///
/// Everything is inline: link the C library.
// Generated from the schema; edit the tables there and run tools/regenerate.
#ifndef LUMO_UI_TARN_HPP
#define LUMO_UI_TARN_HPP

#include <lumo_ui_tarn.h>

#include <lumo_ui_tarn/frame_parts.hpp>
#include <lumo_ui_tarn/interface.hpp>

)";

}  // namespace

std::string interface_page() {
    std::string text = std::string(introduction) + macros() + "namespace lumo_ui_tarn {\n\n";
    for (const Enumeration *e : enumerations) text += enumeration_type(*e);
    for (const Record *r : records) text += record_types(*r);
    for (const Message *m : messages) text += message_types(*m);
    for (const Bundle *b : bundles) text += bundle_type(*b);
    const auto names = [](const auto &all) {
        std::vector<std::string> list;
        for (const auto *one : all) list.push_back(short_name(one->name));
        return list;
    };
    text +=
        "/// Passes a type as an argument.\ntemplate <class T>\nstruct kind {\n    using type = T;  ///< the "
        "type\n};\n";
    text += visit_all("record", "owns one", names(records));
    std::vector<std::string> enumeration_types;
    for (const Enumeration *e : enumerations) enumeration_types.push_back(type_name(*e) + "_type");
    text += visit_all("enumeration", "names its C functions", enumeration_types);
    text += visit_all("message", "owns one", names(messages));
    text += visit_all("bundle", "is an argument of bundle_writer", names(bundles));
    text += "\n}  // namespace lumo_ui_tarn\n\n";
    for (const std::string_view name : macro_names) text += "#undef LUMO_UI_TARN_" + std::string(name) + "\n";
    return text + "\n#endif\n";
}

}  // namespace tarn::generate
