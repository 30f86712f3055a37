// Records as plain C++ structs, and the way from these into the library's objects through its exported setters. The
// measured workloads are made as plain values, so that every library that is compared starts from the same.
#include "bench/generate/members.h"
#include "bench/generate/writers.h"
#include "tools/generate/fill_in.h"

namespace tarn::bench {

using namespace schema;

namespace {

std::string plain_type(const Member &m) {
    switch (category(m.kind)) {
        case Category::boolean:
            return "bool";
        case Category::enumeration:
            return "std::uint32_t";
        case Category::address:
            return "ip_address";
        case Category::record:
            return std::string(m.record->name);
        case Category::string:
            return "std::string";
        case Category::array:
            return "std::vector<" + std::string(m.record->name) + ">";
        case Category::integer:
            break;
    }
    return "std::" + value_type(m);
}

constexpr const char *address_struct = R"(struct ip_address {
    std::uint8_t af = 0;
    std::uint8_t prefix_len = 0;
    std::uint16_t scope = 0;
    std::array<std::uint32_t, 4> word{};
    bool operator==(const ip_address &) const = default;
};
)";

constexpr const char *address_code = R"(
// An embedded address is written where it lies; its layout is part of the contract.
static void store(mirk_handle *, std::uint32_t, ::ip_address *object, const plain::ip_address &from, std::uint32_t *) {
    if (object == nullptr) return;
    object->af = from.af;
    object->prefix_len = from.prefix_len;
    object->scope = from.scope;
    for (std::size_t i = 0; i < from.word.size(); ++i) object->word[i] = from.word[i];
}
static std::uint64_t sum(mirk_handle *, std::uint32_t, const ::ip_address *object, std::uint32_t *) {
    std::uint64_t total = std::uint64_t{object->af} + object->prefix_len + object->scope;
    for (const std::uint32_t word : object->word) total += word;
    return total;
}
static std::uint64_t sum(const plain::ip_address &value) {
    std::uint64_t total = std::uint64_t{value.af} + value.prefix_len + value.scope;
    for (const std::uint32_t word : value.word) total += word;
    return total;
}

)";

std::string plain_struct(const Record &record) {
    std::string text = "struct " + std::string(record.name) + " {\n";
    for (const std::size_t i : plain_members(record)) {
        const Member &m = record.members[i];
        const bool number = is_integer(m.kind) || m.kind == Kind::enumeration;
        text += "    " + plain_type(m) + " " + std::string(m.name) +
                (number                    ? " = 0;\n"
                 : m.kind == Kind::boolean ? " = false;\n"
                                           : ";\n");
    }
    return text + "    bool operator==(const " + std::string(record.name) + " &) const = default;\n};\n";
}

// Hands out each member with its row in the schema.
std::string visit(const Record &record) {
    std::string text =
        "template <class Visit>\nvoid visit(" + std::string(record.name) + " &value, Visit &&member) {\n";
    for (const std::size_t i : plain_members(record)) {
        text += "    member(schema::" + std::string(record.name) + ".members[" + std::to_string(i) + "], value." +
                std::string(record.members[i].name) + ");\n";
    }
    return text + "}\n";
}

std::string store(const Record &record) {
    const std::string name(record.name);
    std::string text = "void store(mirk_handle *h, std::uint32_t id, ::" + name + " *object, const plain::" + name +
                       " &from, std::uint32_t *err) {\n";
    for (const std::size_t i : plain_members(record)) {
        const Member &m = record.members[i];
        const std::string member = name + "_" + std::string(m.name);
        std::string code;
        if (m.kind == Kind::array) {
            // Setting the last element makes room for all of them at once.
            code = R"(    if (!from.$f.empty()) {
        ::$n *scratch = $n_create(h, id);
        $m_set(h, id, object, static_cast<std::uint32_t>(from.$f.size() - 1), scratch, err);
        $n_destroy(h, id, scratch);
    }
    for (std::uint32_t i = 0; i < from.$f.size(); ++i) store(h, id, $m_get(h, id, object, i, err), from.$f[i], err);
)";
        } else if (m.kind == Kind::string) {
            code = "    $m_set(h, id, object, from.$f.data(), static_cast<std::uint32_t>(from.$f.size()), err);\n";
        } else if (m.kind == Kind::record || m.kind == Kind::address) {
            code = "    store(h, id, $m_get(h, id, object, err), from.$f, err);\n";
        } else {
            code = "    $m_set_value(h, id, object, from.$f, err);\n";
        }
        text += fill_in(code, {{"$f", std::string(m.name)},
                               {"$m", member},
                               {"$n", std::string(m.record != nullptr ? m.record->name : "")}});
    }
    return text + "}\n\n";
}

std::string sum_of_object(const Record &record) {
    const std::string name(record.name);
    std::string text = "std::uint64_t sum(mirk_handle *h, std::uint32_t id, ::" + name +
                       " *object, std::uint32_t *err) {\n    std::uint64_t total = 0;\n";
    for (const std::size_t i : plain_members(record)) {
        const Member &m = record.members[i];
        const std::string member = name + "_" + std::string(m.name);
        const std::string counter = i > 0 ? name + "_" + std::string(record.members[i - 1].name) : "";
        std::string code;
        if (m.kind == Kind::array) {
            code = R"(    for (std::uint32_t i = 0, n = $c_get_value(h, id, object, err); i < n; ++i) {
        total += sum(h, id, $m_get(h, id, object, i, err), err);
    }
)";
        } else if (m.kind == Kind::string) {
            code = "    total += $c_get_value(h, id, object, err);\n";
        } else if (m.kind == Kind::record || m.kind == Kind::address) {
            code = "    total += sum(h, id, $m_get(h, id, object, err), err);\n";
        } else {
            code = "    total += $m_get_value(h, id, object, err);\n";
        }
        text += fill_in(code, {{"$m", member}, {"$c", counter}});
    }
    return text + "    return total;\n}\n\n";
}

std::string sum_of_plain(const Record &record) {
    std::string text =
        "std::uint64_t sum(const plain::" + std::string(record.name) + " &value) {\n    std::uint64_t total = 0;\n";
    for (const std::size_t i : plain_members(record)) {
        const Member &m = record.members[i];
        std::string code = "    total += value.$f;\n";
        if (m.kind == Kind::array) code = "    for (const auto &element : value.$f) total += sum(element);\n";
        if (m.kind == Kind::string) code = "    total += value.$f.size();\n";
        if (m.kind == Kind::record || m.kind == Kind::address) code = "    total += sum(value.$f);\n";
        text += fill_in(code, {{"$f", std::string(m.name)}});
    }
    return text + "    return total;\n}\n\n";
}

// The exported operations by the type of the plain value.
constexpr const char *exports_code = R"(template <>
struct Exports<plain::$r> {
    using Object = ::$r;
    static constexpr const char *name = "$r";
    static constexpr auto create = $r_create;
    static constexpr auto destroy = $r_destroy;
    static constexpr auto len = $r_len;
    static constexpr auto marshal = $r_marshal;
    static constexpr auto unmarshal = $r_unmarshal;
    static constexpr auto clone = $r_clone;
    static constexpr auto compare = $r_compare;
    static constexpr auto hash = $r_hash;
    static constexpr auto print = $r_print;
    static constexpr auto to_xml = $r_to_xml;
    static constexpr auto from_xml = $r_from_xml;
};
)";

}  // namespace

Files write_plain() {
    std::string header =
        "// Generated from the schema; not to be edited.\n#pragma once\n\n#include <array>\n#include <cstdint>\n"
        "#include <string>\n#include <vector>\n\n#include \"lumo_ui_tarn.h\"\n#include \"schema/catalogue.h\"\n\n"
        "namespace tarn::bench {\n\nnamespace plain {\n\n";
    std::string declarations, code = "// Generated from the schema; not to be edited.\n";
    code += address_code;
    header += address_struct;
    for (const Record *r : records) {
        const std::string name(r->name);
        header += plain_struct(*r) + visit(*r);
        declarations += "void store(mirk_handle *h, std::uint32_t id, ::" + name + " *object, const plain::" + name +
                        " &from, std::uint32_t *err);\nstd::uint64_t sum(mirk_handle *h, std::uint32_t id, ::" + name +
                        " *object, std::uint32_t *err);\nstd::uint64_t sum(const plain::" + name + " &value);\n";
        declarations += fill_in(exports_code, {{"$r", name}});
        code += store(*r) + sum_of_object(*r) + sum_of_plain(*r);
    }
    header +=
        "\n}  // namespace plain\n\n// Through the exported setters; the sum over every value, through the exported "
        "getters; and the same sum of the\n// plain value.\ntemplate <class Plain>\nstruct Exports;\n" +
        declarations + "\n}  // namespace tarn::bench\n";
    return {{"plain.h", header}, {"plain.inc", code}};
}

}  // namespace tarn::bench
