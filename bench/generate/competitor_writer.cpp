// The schema in the languages of other serializers, and code that makes their messages of plain values and reads each
// value of a message. For the benchmarks.
#include <cctype>

#include "bench/generate/members.h"
#include "bench/generate/writers.h"
#include "tools/generate/fill_in.h"

namespace tarn::bench {

using namespace schema;

namespace {

constexpr const char *notice = "Generated from the schema; not to be edited.\n";

std::string name_of_type(const Member &m) {
    if (m.kind == Kind::address) return "ip_address";
    return std::string(m.enumeration != nullptr ? m.enumeration->name : m.record->name);
}

// snake_case as camelCase; the first letter as asked.
std::string camel(std::string_view name, bool capital) {
    std::string text;
    for (const char c : name) {
        if (c == '_') {
            capital = true;
            continue;
        }
        const auto u = static_cast<unsigned char>(c);
        text += static_cast<char>(capital ? std::toupper(u) : c);
        capital = false;
    }
    return text;
}
std::string camel_of_constant(std::string_view name) {
    std::string lower;
    for (const char c : name) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return camel(lower, false);
}

// ---- Protocol Buffers: numbers in their width, as far as there is one

std::string proto_type(const Member &m) {
    switch (category(m.kind)) {
        case Category::integer:
            return facts(m.kind).storage > 4 ? "fixed64" : "fixed32";
        case Category::boolean:
            return "bool";
        case Category::string:
            return "string";
        case Category::array:
            return "repeated " + name_of_type(m);
        case Category::address:
        case Category::enumeration:
        case Category::record:
            break;
    }
    return name_of_type(m);
}

std::string proto_schema() {
    std::string text = std::string("// ") + notice +
                       "syntax = \"proto3\";\npackage tarn_protobuf;\noption cc_enable_arenas = true;\n\n"
                       "message ip_address {\n  fixed32 af = 1;\n  fixed32 prefix_len = 2;\n  fixed32 scope = 3;\n"
                       "  fixed32 word0 = 4;\n  fixed32 word1 = 5;\n  fixed32 word2 = 6;\n  fixed32 word3 = 7;\n}\n";
    for (const Enumeration *e : enumerations) {
        text += "enum " + std::string(e->name) + " {\n";
        for (std::size_t i = 0; i < e->enumerators.size(); ++i) {
            text += "  " + std::string(e->enumerators[i]) + " = " + std::to_string(i) + ";\n";
        }
        text += "}\n";
    }
    for (const Record *r : records) {
        text += "message " + std::string(r->name) + " {\n";
        std::size_t tag = 0;
        for (const std::size_t i : plain_members(*r)) {
            const Member &m = r->members[i];
            text += "  " + proto_type(m) + " " + std::string(m.name) + " = " + std::to_string(++tag) + ";\n";
        }
        text += "}\n";
    }
    return text;
}

std::string proto_code() {
    std::string text = std::string("// ") + notice + R"(
static void fill(tarn_protobuf::ip_address *to, const plain::ip_address &from) {
    to->set_af(from.af);
    to->set_prefix_len(from.prefix_len);
    to->set_scope(from.scope);
    to->set_word0(from.word[0]);
    to->set_word1(from.word[1]);
    to->set_word2(from.word[2]);
    to->set_word3(from.word[3]);
}
static std::uint64_t sum(const tarn_protobuf::ip_address &from) {
    return std::uint64_t{from.af()} + from.prefix_len() + from.scope() + from.word0() + from.word1() + from.word2() +
           from.word3();
}
)";
    for (const Record *r : records) {
        const std::string name(r->name);
        text += "static void fill(tarn_protobuf::" + name + " *to, const plain::" + name + " &from) {\n";
        std::string total =
            "static std::uint64_t sum(const tarn_protobuf::" + name + " &from) {\n    std::uint64_t total = 0;\n";
        for (const std::size_t i : plain_members(*r)) {
            const Member &m = r->members[i];
            std::string code = "    to->set_$f(from.$f);\n", part = "    total += from.$f();\n";
            if (m.kind == Kind::array) {
                code =
                    "    to->mutable_$f()->Reserve(static_cast<int>(from.$f.size()));\n"
                    "    for (const auto &element : from.$f) fill(to->add_$f(), element);\n";
                part = "    for (const auto &element : from.$f()) total += sum(element);\n";
            } else if (m.kind == Kind::record || m.kind == Kind::address) {
                code = "    fill(to->mutable_$f(), from.$f);\n";
                part = "    total += sum(from.$f());\n";
            } else if (m.kind == Kind::enumeration) {
                code = "    to->set_$f(static_cast<tarn_protobuf::$t>(from.$f));\n";
                part = "    total += static_cast<std::uint32_t>(from.$f());\n";
            } else if (m.kind == Kind::string) {
                part = "    total += from.$f().size();\n";
            }
            const std::string type = m.kind == Kind::enumeration ? name_of_type(m) : "";
            text += fill_in(code, {{"$f", std::string(m.name)}, {"$t", type}});
            total += fill_in(part, {{"$f", std::string(m.name)}});
        }
        text += "}\n" + total + "    return total;\n}\ntemplate <>\nstruct Protobuf<plain::" + name +
                "> {\n    using Message = tarn_protobuf::" + name + ";\n};\n";
    }
    return text;
}

// ---- FlatBuffers

std::string flat_integer(std::uint32_t bytes) {
    if (bytes == 1) return "ubyte";
    if (bytes == 2) return "ushort";
    return bytes == 4 ? "uint" : "ulong";
}

std::string flat_type(const Member &m) {
    switch (category(m.kind)) {
        case Category::integer:
            return flat_integer(facts(m.kind).storage);
        case Category::boolean:
            return "bool";
        case Category::string:
            return "string";
        case Category::array:
            return "[" + name_of_type(m) + "]";
        case Category::address:
        case Category::enumeration:
        case Category::record:
            break;
    }
    return name_of_type(m);
}

std::string flat_schema() {
    std::string text = std::string("// ") + notice +
                       "namespace tarn_flatbuffers;\n\ntable ip_address {\n  af:ubyte;\n  prefix_len:ubyte;\n"
                       "  scope:ushort;\n  word0:uint;\n  word1:uint;\n  word2:uint;\n  word3:uint;\n}\n";
    for (const Enumeration *e : enumerations) {
        text += "enum " + std::string(e->name) + " : uint {\n";
        for (const std::string_view name : e->enumerators) text += "  " + std::string(name) + ",\n";
        text += "}\n";
    }
    for (const Record *r : records) {
        text += "table " + std::string(r->name) + " {\n";
        for (const std::size_t i : plain_members(*r)) {
            text += "  " + std::string(r->members[i].name) + ":" + flat_type(r->members[i]) + ";\n";
        }
        text += "}\n";
    }
    return text;
}

std::string flat_code() {
    std::string text = std::string("// ") + notice + R"(
static flatbuffers::Offset<tarn_flatbuffers::ip_address> build(flatbuffers::FlatBufferBuilder &to,
                                                               const plain::ip_address &from) {
    return tarn_flatbuffers::Createip_address(to, from.af, from.prefix_len, from.scope, from.word[0], from.word[1],
                                              from.word[2], from.word[3]);
}
static void fill(tarn_flatbuffers::ip_addressT *to, const plain::ip_address &from) {
    to->af = from.af;
    to->prefix_len = from.prefix_len;
    to->scope = from.scope;
    to->word0 = from.word[0];
    to->word1 = from.word[1];
    to->word2 = from.word[2];
    to->word3 = from.word[3];
}
static std::uint64_t sum(const tarn_flatbuffers::ip_address &from) {
    return std::uint64_t{from.af()} + from.prefix_len() + from.scope() + from.word0() + from.word1() + from.word2() +
           from.word3();
}
)";
    for (const Record *r : records) {
        const std::string name(r->name);
        std::string children, members,
            object = "static void fill(tarn_flatbuffers::" + name + "T *to, const plain::" + name + " &from) {\n",
            total = "static std::uint64_t sum(const tarn_flatbuffers::" + name +
                    " &from) {\n    std::uint64_t total = 0;\n";
        for (const std::size_t i : plain_members(*r)) {
            const Member &m = r->members[i];
            std::string child, member = "    table.add_$f(from.$f);\n", assign = "    to->$f = from.$f;\n",
                               part = "    total += from.$f();\n";
            if (m.kind == Kind::array) {
                child =
                    "    std::vector<flatbuffers::Offset<tarn_flatbuffers::$t>> all_$f;\n"
                    "    all_$f.reserve(from.$f.size());\n"
                    "    for (const auto &element : from.$f) all_$f.push_back(build(to, element));\n"
                    "    const auto at_$f = to.CreateVector(all_$f);\n";
                member = "    table.add_$f(at_$f);\n";
                assign =
                    "    to->$f.reserve(from.$f.size());\n    for (const auto &element : from.$f) {\n"
                    "        to->$f.push_back(std::make_unique<tarn_flatbuffers::$tT>());\n"
                    "        fill(to->$f.back().get(), element);\n    }\n";
                part = "    for (const auto *element : *from.$f()) total += sum(*element);\n";
            } else if (m.kind == Kind::record || m.kind == Kind::address) {
                child = "    const auto at_$f = build(to, from.$f);\n";
                member = "    table.add_$f(at_$f);\n";
                assign = "    to->$f = std::make_unique<tarn_flatbuffers::$tT>();\n    fill(to->$f.get(), from.$f);\n";
                part = "    total += sum(*from.$f());\n";
            } else if (m.kind == Kind::string) {
                child = "    const auto at_$f = to.CreateString(from.$f);\n";
                member = "    table.add_$f(at_$f);\n";
                part = "    total += from.$f()->size();\n";
            } else if (m.kind == Kind::enumeration) {
                member = "    table.add_$f(static_cast<tarn_flatbuffers::$t>(from.$f));\n";
                assign = "    to->$f = static_cast<tarn_flatbuffers::$t>(from.$f);\n";
                part = "    total += static_cast<std::uint32_t>(from.$f());\n";
            }
            const bool typed = !is_integer(m.kind) && m.kind != Kind::boolean && m.kind != Kind::string;
            const std::string type = typed ? name_of_type(m) : "", field(m.name);
            children += fill_in(child, {{"$f", field}, {"$t", type}});
            members += fill_in(member, {{"$f", field}, {"$t", type}});
            object += fill_in(assign, {{"$f", field}, {"$t", type}});
            total += fill_in(part, {{"$f", field}});
        }
        text += "static flatbuffers::Offset<tarn_flatbuffers::" + name +
                "> build(flatbuffers::FlatBufferBuilder &to, const plain::" + name + " &from) {\n" + children +
                "    tarn_flatbuffers::" + name + "Builder table(to);\n" + members + "    return table.Finish();\n}\n" +
                object + "}\n" + total + "    return total;\n}\ntemplate <>\nstruct Flat<plain::" + name +
                "> {\n    using Table = tarn_flatbuffers::" + name + ";\n    using Object = tarn_flatbuffers::" + name +
                "T;\n};\n";
    }
    return text;
}

// ---- Cap'n Proto, whose names have no underscores

std::string capnp_type(const Member &m) {
    switch (category(m.kind)) {
        case Category::integer:
            return "UInt" + std::to_string(8 * facts(m.kind).storage);
        case Category::boolean:
            return "Bool";
        case Category::string:
            return "Text";
        case Category::array:
            return "List(" + camel(name_of_type(m), true) + ")";
        case Category::address:
        case Category::enumeration:
        case Category::record:
            break;
    }
    return camel(name_of_type(m), true);
}

std::string capnp_schema() {
    std::string text =
        std::string("# ") + notice +
        "@0xb1c5f2a47d9e6038;\nusing Cxx = import \"/capnp/c++.capnp\";\n"
        "$Cxx.namespace(\"tarn_capnp\");\n\nstruct IpAddress {\n  af @0 :UInt8;\n  prefixLen @1 :UInt8;\n"
        "  scope @2 :UInt16;\n  word0 @3 :UInt32;\n  word1 @4 :UInt32;\n  word2 @5 :UInt32;\n"
        "  word3 @6 :UInt32;\n}\n";
    for (const Enumeration *e : enumerations) {
        text += "enum " + camel(e->name, true) + " {\n";
        for (std::size_t i = 0; i < e->enumerators.size(); ++i) {
            text += "  " + camel_of_constant(e->enumerators[i]) + " @" + std::to_string(i) + ";\n";
        }
        text += "}\n";
    }
    for (const Record *r : records) {
        text += "struct " + camel(r->name, true) + " {\n";
        std::size_t ordinal = 0;
        for (const std::size_t i : plain_members(*r)) {
            const Member &m = r->members[i];
            text += "  " + camel(m.name, false) + " @" + std::to_string(ordinal++) + " :" + capnp_type(m) + ";\n";
        }
        text += "}\n";
    }
    return text;
}

std::string capnp_code() {
    std::string text = std::string("// ") + notice + R"(
static void fill(tarn_capnp::IpAddress::Builder to, const plain::ip_address &from) {
    to.setAf(from.af);
    to.setPrefixLen(from.prefix_len);
    to.setScope(from.scope);
    to.setWord0(from.word[0]);
    to.setWord1(from.word[1]);
    to.setWord2(from.word[2]);
    to.setWord3(from.word[3]);
}
static std::uint64_t sum(tarn_capnp::IpAddress::Reader from) {
    return std::uint64_t{from.getAf()} + from.getPrefixLen() + from.getScope() + from.getWord0() + from.getWord1() +
           from.getWord2() + from.getWord3();
}
)";
    for (const Record *r : records) {
        const std::string name(r->name), type = camel(name, true);
        text += "static void fill(tarn_capnp::" + type + "::Builder to, const plain::" + name + " &from) {\n";
        std::string total =
            "static std::uint64_t sum(tarn_capnp::" + type + "::Reader from) {\n    std::uint64_t total = 0;\n";
        for (const std::size_t i : plain_members(*r)) {
            const Member &m = r->members[i];
            std::string code = "    to.set$c(from.$f);\n", part = "    total += from.get$c();\n";
            if (m.kind == Kind::array) {
                code = R"(    {
        auto list = to.init$c(static_cast<unsigned>(from.$f.size()));
        for (unsigned i = 0; i < list.size(); ++i) fill(list[i], from.$f[i]);
    }
)";
                part = "    for (auto element : from.get$c()) total += sum(element);\n";
            } else if (m.kind == Kind::record || m.kind == Kind::address) {
                code = "    fill(to.init$c(), from.$f);\n";
                part = "    total += sum(from.get$c());\n";
            } else if (m.kind == Kind::string) {
                code = "    to.set$c(capnp::Text::Reader(from.$f.c_str(), from.$f.size()));\n";
                part = "    total += from.get$c().size();\n";
            } else if (m.kind == Kind::enumeration) {
                code = "    to.set$c(static_cast<tarn_capnp::$t>(from.$f));\n";
                part = "    total += static_cast<std::uint32_t>(from.get$c());\n";
            }
            const std::string nested = m.kind == Kind::enumeration ? camel(name_of_type(m), true) : "";
            text += fill_in(code, {{"$c", camel(m.name, true)}, {"$f", std::string(m.name)}, {"$t", nested}});
            total += fill_in(part, {{"$c", camel(m.name, true)}});
        }
        text += "}\n" + total + "    return total;\n}\ntemplate <>\nstruct Capnp<plain::" + name +
                "> {\n    using Struct = tarn_capnp::" + type + ";\n};\n";
    }
    return text;
}

}  // namespace

Files write_competitors() {
    return {{"tarn_protobuf.proto", proto_schema()}, {"protobuf.inc", proto_code()},
            {"tarn_flatbuffers.fbs", flat_schema()}, {"flatbuffers.inc", flat_code()},
            {"tarn_capnp.capnp", capnp_schema()},    {"capnp.inc", capnp_code()}};
}

}  // namespace tarn::bench
