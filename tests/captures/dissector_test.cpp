// The dissector decodes captures like the tool decodes the same frames.
#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <sstream>

#include "capture.h"
#include "process.h"
#include "samples.h"

namespace captures {

namespace {

using nlohmann::json;
using tool_test::Directory;
using tool_test::Outcome;

constexpr std::uint16_t port = 28276, other_port = 4711;

Outcome tshark(const Capture &capture, std::vector<std::string> more) {
    const Directory directory;
    std::vector<std::string> all{"-n", "-X", "lua_script:" TARN_DISSECTOR, "-r",
                                 directory.write("capture.pcap", capture.file())};
    all.insert(all.end(), more.begin(), more.end());
    return tool_test::run(TARN_TSHARK, all);
}

std::vector<std::string> lines(const std::string &text) {
    std::istringstream in(text);
    std::vector<std::string> all;
    for (std::string line; std::getline(in, line);) all.push_back(line);
    return all;
}

// A field as tshark prints it: its filter name, its value as a filter sees it, and the fields below it.
struct Field {
    std::string name, show, label, bytes;
    std::vector<Field> below;

    const Field *find(std::string_view wanted) const {
        const auto found = std::find_if(below.begin(), below.end(), [&](const Field &f) { return f.name == wanted; });
        return found == below.end() ? nullptr : &*found;
    }
};

Field field_of(xmlNode *node) {
    const auto attribute = [node](const char *name) {
        const std::unique_ptr<xmlChar, void (*)(void *)> value(
            xmlGetProp(node, reinterpret_cast<const xmlChar *>(name)), xmlFree);
        return value ? std::string(reinterpret_cast<const char *>(value.get())) : std::string();
    };
    Field field{attribute("name"), attribute("show"), attribute("showname"), attribute("value"), {}};
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) field.below.push_back(field_of(child));
    }
    return field;
}

// The frames in a capture, in order.
std::vector<Field> frames_in(const Capture &capture) {
    const Outcome outcome = tshark(capture, {"-T", "pdml"});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out.find("Lua Error"), std::string::npos);
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc *)> document(
        xmlReadMemory(outcome.out.data(), static_cast<int>(outcome.out.size()), "pdml", nullptr, XML_PARSE_HUGE),
        xmlFreeDoc);
    std::vector<Field> frames;
    if (!document) return frames;
    for (const Field &packet : field_of(xmlDocGetRootElement(document.get())).below) {
        for (const Field &proto : packet.below) {
            if (proto.name == "tarn") frames.push_back(proto);
        }
    }
    return frames;
}

// ---- from fields to the JSON form of the tool

json state_of(const Field &field) { return std::stoul(field.show); }

std::vector<unsigned> bytes_of(const std::string &digits) {
    std::vector<unsigned> bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes.push_back(static_cast<unsigned>(std::stoul(digits.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

json string_json(const std::string &digits) {
    std::string text;
    for (const unsigned byte : bytes_of(digits)) text += static_cast<char>(byte);
    try {
        (void)json(text).dump();
        return text;
    } catch (const json::type_error &) {
        return {{"bytes", digits}};
    }
}

// Booleans and enumerations have a value even if their variant is negative.
json with_variant(const Field &field, const json &value) {
    const int variant = std::stoi(field.find("tarn.variant")->show);
    return variant < 0 ? json{{"@variant", variant}, {"@value", value}} : value;
}

json enumeration_json(const Field &field, const std::string &type) {
    const auto &names = reference::enumeration_table(type).enumerators;
    const unsigned long number = std::stoul(field.show);
    if (number >= names.size()) return number;
    EXPECT_NE(field.label.find(": " + names[number] + " ("), std::string::npos) << field.label;
    return names[number];
}

// The names of the words of an address have brackets, which a filter cannot contain.
std::string filter_of(const reference::RecordTable &table, const reference::MemberTable &member) {
    std::string name = "tarn." + table.name + "." + member.name;
    std::erase_if(name, [](char c) { return c == '[' || c == ']'; });
    return name;
}

json record_json(const Field &field, const reference::RecordTable &table);

json address_json(const Field &field) {
    json parts = record_json(field, reference::address_table());
    json whole = json::object();
    if (parts.contains("@variant")) return parts;
    if (parts.contains("@ra")) whole["@ra"] = parts["@ra"];
    if (parts.contains("@state")) {
        json &members = whole["@members"];
        for (const auto &m : reference::address_table().members) members.push_back(parts["@state"].value(m.name, 0));
    }
    if (whole.empty()) return field.show;
    whole["@address"] = field.show;
    return whole;
}

json member_json(const Field &field, const reference::MemberTable &member) {
    switch (member.cls) {
        case reference::Class::boolean: {
            const unsigned value = bytes_of(field.bytes).at(0);
            return with_variant(field, value > 1 ? json(value) : json(value != 0));
        }
        case reference::Class::enumeration:
            return with_variant(field, enumeration_json(field, member.type));
        case reference::Class::address:
            return address_json(field);
        case reference::Class::nested:
            return record_json(field, member.element());
        case reference::Class::string:
            return string_json(field.bytes);
        case reference::Class::array: {
            json all = json::array();
            for (const Field &element : field.below) all.push_back(record_json(element, member.element()));
            return all;
        }
        default:
            // JSON has members of 64 bits as text.
            return bytes_of(field.bytes).size() == 8 ? json(field.show) : json(std::stoull(field.show));
    }
}

void add_state(const Field &field, const reference::RecordTable &table, json &state) {
    for (const auto &member : table.members) {
        const std::string prefix = filter_of(table, member);
        const Field *own = field.find(prefix + ".state");
        if (own == nullptr) continue;
        if (const Field *each = field.find(prefix + ".states")) {
            const std::vector<unsigned> bytes = bytes_of(each->bytes);
            const bool any = std::any_of(bytes.begin(), bytes.end(), [](unsigned byte) { return byte != 0; });
            if (any || own->show != "0") state[member.name] = {{"whole", state_of(*own)}, {"elements", bytes}};
        } else if (own->show != "0") {
            state[member.name] = state_of(*own);
        }
    }
}

json record_json(const Field &field, const reference::RecordTable &table) {
    json all = json::object(), state;
    if (const Field *value = field.find("tarn.ra_value")) {
        all["@ra"] = {{"value", std::to_string(std::stoull(value->show, nullptr, 16))},
                      {"byte", std::stoul(field.find("tarn.ra_byte")->show, nullptr, 16)}};
    }
    if (const int variant = std::stoi(field.find("tarn.variant")->show); variant < 0) {
        all["@variant"] = variant;
        return all;
    }
    for (const auto &member : table.members) {
        if (!member.tracked()) continue;
        const Field *found = field.find(filter_of(table, member));
        if (found != nullptr) {
            all[member.name] = member_json(*found, member);
        } else {
            // An empty string or array has no bytes after its length or count.
            all[member.name] = member.cls == reference::Class::string ? json("") : json::array();
        }
    }
    add_state(field, table, state);
    if (!state.empty()) all["@state"] = state;
    return all;
}

json frame_json(const Field &frame) {
    if (const Field *bundle = frame.find("tarn.bundle")) {
        return {{"bundle", bundle->show}, {"control", frame.find("tarn.control")->show}};
    }
    const Field *message = frame.find("tarn.message"), *payload = frame.find("tarn.payload");
    json all{
        {"message", message->show},
        {"payload", record_json(*payload, reference::record_table(reference::message_table(message->show).payload))}};
    if (frame.find("tarn.sttr")->show != "0") all["tracked"] = true;
    return all;
}

void expect_equal(const std::string &bytes, const Capture &capture) {
    const Outcome decoded = tool_test::tarn({"decode", "--json"}, bytes);
    ASSERT_EQ(decoded.exit, 0) << decoded.err;
    const std::vector<std::string> expected = lines(decoded.out);
    const std::vector<Field> frames = frames_in(capture);
    ASSERT_EQ(frames.size(), expected.size());
    for (std::size_t i = 0; i < frames.size(); ++i) {
        EXPECT_EQ(frame_json(frames[i]), json::parse(expected[i])) << json::parse(expected[i]).at("message");
    }
}

TEST(Dissector, DecodesEveryMessageLikeTheTool) {
    std::string bytes;
    for (const reference::MessageTable &message : reference::messages()) {
        for (const bool tracked : {false, true}) {
            for (const std::uint64_t seed : {31U, 32U, 33U}) {
                bytes += tool_test::frame(message, tool_test::strange_payload(message, seed), tracked, 7);
            }
        }
    }
    Capture capture;
    capture.add(61000, port, bytes);
    expect_equal(bytes, capture);
}

TEST(Dissector, JoinsFramesFromSeveralSegments) {
    const reference::BundleTable &bundle = reference::bundles().front();
    const std::string bytes =
        tool_test::answer(bundle, tool_test::plain_payload(reference::message_table(bundle.message), 3), true);
    Capture capture;
    std::string all;
    for (const std::uint16_t segment : std::initializer_list<std::uint16_t>{1, 15, 16, 44}) {
        capture.add(static_cast<std::uint16_t>(61000 + segment), port, bytes, segment);
        all += bytes;
    }
    expect_equal(all, capture);
}

TEST(Dissector, FindsFramesOnAnyPort) {
    const reference::BundleTable &bundle = reference::bundles().back();
    const std::string bytes =
        tool_test::answer(bundle, tool_test::plain_payload(reference::message_table(bundle.message), 4), false);
    Capture capture;
    capture.add(61000, other_port, bytes, 100);
    capture.add(61001, other_port, "GET / HTTP/1.0\r\n\r\n");
    capture.add(61002, other_port, "\xbc and no more of a frame, although it is long enough");
    expect_equal(bytes, capture);
}

TEST(Dissector, EveryMemberIsAFilter) {
    const Outcome outcome = tool_test::run(TARN_TSHARK, {"-G", "fields", "-X", "lua_script:" TARN_DISSECTOR});
    ASSERT_EQ(outcome.exit, 0) << outcome.err;
    // Label and filter name of each field.
    std::set<std::string> known;
    for (const std::string &line : lines(outcome.out)) {
        if (line.starts_with("F\t")) known.insert(line.substr(2, line.find('\t', line.find('\t', 2) + 1) - 2));
    }
    for (const reference::RecordTable &record : reference::records()) {
        for (const reference::MemberTable &member : record.members) {
            const std::string field = member.name + "\ttarn." + record.name + "." + member.name;
            EXPECT_TRUE(known.contains(field)) << field;
        }
    }
}

TEST(Dissector, FiltersByValue) {
    const reference::MessageTable &message = reference::message_table("lumo_tarn_debug_setting_msg");
    Capture capture;
    for (const std::uint16_t level : std::initializer_list<std::uint16_t>{1, 7, 3}) {
        reference::Record payload(message.payload);
        payload["trace_enabled"].number = level;
        capture.add(static_cast<std::uint16_t>(61000 + level), port, tool_test::frame(message, payload, false));
    }
    const auto count = [&](const std::string &filter) {
        return lines(tshark(capture, {"-Y", filter, "-T", "fields", "-e", "tcp.srcport"}).out);
    };
    EXPECT_EQ(count("tarn.lumo_tarn_debug_setting.trace_enabled == 7"), std::vector<std::string>{"61007"});
    EXPECT_EQ(count("tarn.lumo_tarn_debug_setting.trace_enabled < 7"), (std::vector<std::string>{"61001", "61003"}));
    EXPECT_EQ(count("tarn.message == \"lumo_tarn_debug_setting_msg\"").size(), 3U);
}

std::vector<std::string> column_of(const Capture &capture) {
    return lines(tshark(capture, {"-Y", "tarn", "-T", "fields", "-e", "_ws.col.Info"}).out);
}

TEST(Dissector, ShowsTheFirstKeysOfElementsInTheColumn) {
    const auto prefix = [](const std::string &text, const std::string &complexes) {
        return R"({"lookup_prefix": ")" + text + R"(", "complex_data": [)" + complexes + "]}";
    };
    const std::string payload = R"({"message": "lumo_tarn_dp_mp_prefix_msg", "payload": {"prefix_data": [)" +
                                prefix("10.0.0.0/8", R"({"complex_num": 4}, {"complex_num": 7})") + ", " +
                                prefix("2001:db8::/32", R"({"complex_num": 4})") + ", " + prefix("10.0.0.0/8", "") +
                                ", " + prefix("unset", "") + ", " + prefix("10.1.0.0/16", "") + "]}}";
    const std::string switches = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {"warn_enabled": 1}})";
    Capture capture;
    capture.add(61000, port, tool_test::tarn({"encode"}, payload + "\n" + switches).out);
    const std::string shown =
        "lumo_tarn_dp_mp_prefix_msg (prefix 10.0.0.0/8, 2001:db8::/32, unset, \u2026; complex 4, 7)";
    EXPECT_EQ(column_of(capture), std::vector<std::string>{shown + ", lumo_tarn_debug_setting_msg"});
    const std::vector<Field> frames = frames_in(capture);
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames[0].label, "Tarn frame: " + shown);
}

// The packet that ends the reassembled message also contains the frame that follows it.
TEST(Dissector, SeparatesFramesThatOnePacketEnds) {
    const reference::MessageTable &message = reference::message_table("lumo_tarn_debug_setting_msg");
    const std::string start = tool_test::control(reference::bundles()[1], "start"),
                      commit = tool_test::control(reference::bundles()[1], "commit"),
                      frame = tool_test::frame(message, reference::Record(message.payload), false);
    Capture capture;
    capture.add(61000, port, start + frame + commit, start.size() + frame.size() - 1);
    const std::string bundle = reference::bundles()[1].name;
    EXPECT_EQ(column_of(capture),
              (std::vector<std::string>{bundle + " start", message.name + ", " + bundle + " commit"}));
}

// What a client and a server send each other about a bundle that is not served.
struct Exchange {
    std::string request, refusal;
};
const std::string wanted = "lumo_tarn_dp_intf_rsp", sentence = wanted + " is not served here";

Exchange refused_request() {
    const Directory directory;
    const tool_test::Socket listener = tool_test::Socket::listen_on(directory.path("asked"));
    const tool_test::Process client({"show", "dp-intf", "--tracked", "--socket", directory.path("asked")});
    const std::string request = listener.accept().receive(45 + wanted.size());
    const tool_test::Server server(
        {"cl-debug=" + directory.write("debug.json", R"({"message": "lumo_tarn_debug_setting_msg", "payload": {}})")});
    EXPECT_TRUE(server.is_ready());
    const tool_test::Socket socket = tool_test::Socket::connect_to(server.socket());
    socket.send(request);
    return {request, socket.receive(49 + sentence.size())};
}

TEST(Dissector, ReadsRequestsAndRefusals) {
    const Exchange exchange = refused_request();
    Capture capture;
    capture.add(40000, port, exchange.request + exchange.refusal);

    const std::vector<Field> frames = frames_in(capture);
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames[0].label, "Tarn frame: request: " + wanted);
    EXPECT_EQ(frames[0].find("tarn.bundle")->show, wanted);
    // Wireshark 4.4 shows booleans as words, earlier versions as numbers.
    const auto shows = [&](const char *option) {
        const std::string text = frames[0].find("tarn.options")->find(option)->show;
        return text == "1" || text == "True" ? "set" : text == "0" || text == "False" ? "clear" : text;
    };
    EXPECT_EQ(shows("tarn.options.tracked"), "set");
    EXPECT_EQ(shows("tarn.options.refused"), "clear");
    EXPECT_EQ(frames[1].label, "Tarn frame: refusal: " + sentence);
    EXPECT_EQ(frames[1].find("tarn.sentence")->show, sentence);
    EXPECT_EQ(frames[1].find("tarn.number")->show, std::to_string(ENOENT));
}

TEST(Dissector, EscapesControlCharactersOfRequestsAndRefusals) {
    struct Case {
        const char *bytes, *shown;
    };
    // Printed on a terminal, each of these would change more than its own place.
    const Case cases[] = {
        {"\x1b]0;title\a", "\\x1b]0;title\\x07"},  // an escape sequence
        {"\n\r\t\x7f", "\\x0a\\x0d\\x09\\x7f"},
        {"\xc2\x9b\xc2\x80", "\\u009b\\u0080"},  // the same as escape sequences of two characters
        {"\xe2\x80\xae\xe2\x81\xa6\xd8\x9c\xe2\x80\xa8", "\\u202e\\u2066\\u061c\\u2028"},  // directions, and lines
        {"\xc3\xa4\xe2\x82\xac", "\xc3\xa4\xe2\x82\xac"},                                  // letters
    };
    const Exchange exchange = refused_request();
    Capture capture;
    std::string expected;
    for (const Case &one : cases) {
        const auto with = [&](std::string frame, const std::string &text) {
            std::string foreign = one.bytes;
            foreign.resize(text.size(), '.');
            return frame.replace(frame.size() - text.size(), text.size(), foreign);
        };
        const auto shown = [&](const std::string &text) {
            return one.shown + std::string(text.size() - std::string(one.bytes).size(), '.');
        };
        capture.add(static_cast<std::uint16_t>(61000 + (&one - cases)), port,
                    with(exchange.request, wanted) + with(exchange.refusal, sentence));
        expected += "request: " + shown(wanted) + ", refusal: " + shown(sentence) + "\n";
    }
    std::string column = tshark(capture, {"-T", "fields", "-e", "_ws.col.Info"}).out;
    // Wireshark 4.4 doubles backslashes in fields.
    for (std::size_t at = 0; (at = column.find("\\\\", at)) != std::string::npos; ++at) column.erase(at, 1);
    EXPECT_EQ(column, expected);
    const std::vector<Field> frames = frames_in(capture);
    ASSERT_EQ(frames.size(), 2 * std::size(cases));
    std::string labels;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        labels += frames[i].label.substr(std::string("Tarn frame: ").size()) + (i % 2 == 0 ? ", " : "\n");
    }
    EXPECT_EQ(labels, expected);

    for (const char *const option : {"-V", "-P"}) {
        const std::string printed = tshark(capture, {option}).out;
        EXPECT_EQ(std::count(printed.begin(), printed.end(), '\x1b'), 0) << option;
        EXPECT_EQ(printed.find("\xc2\x9b"), std::string::npos) << option;
        EXPECT_EQ(printed.find("\xe2\x80\xae"), std::string::npos) << option;
    }
}

// The error of the tool for a broken frame.
std::optional<std::string> break_of(const std::string &bytes) {
    const Outcome dissected = tool_test::tarn({"dissect", "--json"}, bytes);
    if (dissected.exit == 0) return std::nullopt;
    const json broken = json::parse(dissected.out).at("broken");
    const std::string path = broken.at("path"), reason = broken.at("reason");
    return path.empty() ? reason : path + ": " + reason;
}

std::string with_length(std::string frame, std::size_t length) {
    for (std::size_t i = 0; i < 4; ++i) frame[12 + i] = static_cast<char>(length >> (24 - 8 * i));
    return frame;
}

TEST(Dissector, MarksBrokenFramesWithTheReason) {
    const reference::MessageTable &message = reference::message_table("lumo_tarn_dp_tt_msg");
    reference::GeneratorOptions options;
    options.min_elements = options.max_elements = 1;
    Capture capture;
    std::vector<std::string> expected;
    // Adds the frame to the capture if it is broken.
    const auto add = [&](const std::string &bytes) {
        const std::optional<std::string> reason = break_of(bytes);
        if (!reason) return false;
        capture.add(static_cast<std::uint16_t>(61000 + expected.size()), port, bytes, 65000);
        expected.push_back("_ws.malformed\t" + *reason);
        return true;
    };
    for (const bool tracked : {false, true}) {
        const std::string good =
            tool_test::frame(message, reference::Generator(6, options).make(message.payload), tracked);
        const auto at = [&](std::size_t offset, char byte) {
            std::string bytes = good;
            bytes[offset] = byte;
            return bytes;
        };
        EXPECT_TRUE(add(at(30, 'x')));     // the luid
        EXPECT_TRUE(add(at(45, '\x7f')));  // the jump of the payload leads out of the frame
        EXPECT_TRUE(add(std::string(good).replace(45, 4, std::string("\0\0\0\4", 4))));  // and back into its members
        EXPECT_TRUE(add(with_length(good + "more", good.size() + 4)));
        for (const std::size_t size : {43UL, 44UL, 46UL, 60UL, good.size() / 2, good.size() - 1}) {
            EXPECT_TRUE(add(with_length(good.substr(0, size), size))) << size;
        }
        for (std::size_t offset = 49; offset < good.size(); offset += good.size() / 20) add(at(offset, '\xee'));
    }
    ASSERT_GE(expected.size(), 25U);
    const Outcome outcome =
        tshark(capture, {"-Y", "tarn.broken", "-T", "fields", "-e", "_ws.malformed", "-e", "_ws.expert.message"});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(lines(outcome.out), expected);
}

TEST(Dissector, MarksBytesThatAreNotAFrame) {
    const std::string good = tool_test::control(reference::bundles().front(), "start");
    Capture capture;
    capture.add(61001, port, "hello");
    capture.add(61002, port, good + "hello");
    capture.add(61003, port, with_length(good, 42));
    capture.add(61004, port, with_length(good, 16777217));
    const Outcome outcome = tshark(capture, {"-Y", "tarn.no_frame", "-T", "fields", "-e", "_ws.expert.message"});
    EXPECT_EQ(lines(outcome.out),
              (std::vector<std::string>{"the marker is missing", "the marker is missing", "invalid total length 42",
                                        "invalid total length 16777217"}))
        << outcome.err;
}

}  // namespace

}  // namespace captures
