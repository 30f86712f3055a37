// Text from outside reaches a terminal only as text: in errors, logs and every form of output.
#include <gtest/gtest.h>

#include <algorithm>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// Escape sequences of one byte and of two, a line of its own, a reversal, and bytes that are not UTF-8.
const std::string hostile = "\x1b[31mred\n\ntarn: forged\r\t\u009b31m\x7f\u202ereversed\u2066\xff\xc3";

// The part of it that is UTF-8, as a JSON string can contain it.
const std::string hostile_json = R"(\u001b[31mred\n\ntarn: forged\r\t)"
                                 "\u009b31m\x7f\u202ereversed\u2066";
// The part that XML can contain.
const std::string hostile_xml = "red\n\ntarn: forged&#13;\t\u009b31m\x7f\u202ereversed\u2066";

constexpr const char *unsafe_characters[] = {"\u0080", "\u0085", "\u009b", "\u061c", "\u200e", "\u200f",
                                             "\u2028", "\u202a", "\u202e", "\u2066", "\u2069"};

void expect_printable(const std::string &text, const std::string &what) {
    EXPECT_EQ(std::find_if(text.begin(), text.end(),
                           [](char c) { return (c != '\n' && c >= 0 && c < ' ') || c == 0x7f || c == '\xff'; }),
              text.end())
        << what << ": " << text;
    for (const char *character : unsafe_characters) EXPECT_EQ(text.find(character), std::string::npos) << what;
    for (std::size_t at = 0; (at = text.find('\xc3', at)) != std::string::npos; ++at) {
        EXPECT_EQ(text.at(at + 1) & 0xc0, 0x80) << what;
    }
    EXPECT_EQ(("\n" + text).find("\ntarn: forged"), std::string::npos) << what << ": " << text;
}

Outcome printable_run(const std::vector<std::string> &words, std::string_view input = {}) {
    Outcome outcome = tarn(words, input);
    expect_printable(outcome.out, words.front());
    expect_printable(outcome.err, words.front());
    EXPECT_LT(outcome.exit, 4) << words.front();
    return outcome;
}

// A frame whose string is the given text.
std::string frame_with(const std::string &text) {
    const auto &message = reference::message_table("lumo_tarn_dp_intf_msg");
    reference::Record payload = plain_payload(message, 1);
    for (reference::Member &member : payload.members) {
        if (!member.text.empty()) member.text = text;
    }
    return frame(message, payload, false);
}

TEST(Printable, ArgumentsOfEveryCommand) {
    const std::vector<std::vector<std::string>> all = {
        {hostile},
        {"answer", "--socket", "/nonexistent/" + hostile, "cl-debug=" + hostile},
        {"answer", "--socket", "/nonexistent/socket", hostile},
        {"answer", "--socket", "/nonexistent/socket", hostile + "=/dev/null"},
        {"show", hostile, "--socket", "/nonexistent"},
        {"show", "cl-debug", "--socket", hostile},
        {"show", "cl-debug", "--connect", hostile},
        {"show", "cl-debug", "--socket", "/nonexistent", "--timeout", hostile},
        {"decode", hostile},
        {"encode", hostile},
        {"encode", "-", "--bundle", hostile},
        {"dissect", hostile},
        {"assemble", hostile},
        {"diff", hostile, hostile},
        {"view", hostile},
        {"schema", hostile},
        {"schema", "dp-tt-cfg." + hostile},
        {"manifest", hostile},
        {"generate", hostile},
        {"generate", "dp-intf", "-o", "/nonexistent/" + hostile},
        {"record", hostile, "--socket", "/nonexistent", "-o", "/dev/null"},
        {"record", "cl-debug", "--socket", hostile, "-o", "/dev/null"},
        {"record", "--from", hostile, "-o", "/dev/null"},
        {"complete", "show", hostile},
    };
    for (const std::vector<std::string> &words : all) printable_run(words, debug_xml);
}

TEST(Printable, NamesOfFiles) {
    const Directory directory;
    const std::string bad = directory.write("bad\x1b[31m\ntarn: forged\u202e", "{]");
    const std::string good = directory.write("good\x1b[31m\ntarn: forged\u202e", frame_with("x"));
    for (const std::string command : {"decode", "encode", "dissect", "assemble", "view", "manifest"}) {
        const Outcome outcome = printable_run({command, bad});
        EXPECT_NE(outcome.err.find("\\x1b[31m\\x0atarn: forged\\u202e"), std::string::npos) << outcome.err;
    }
    EXPECT_NE(printable_run({"view", good}).out.find("\\x1b[31m\\x0atarn: forged\\u202e"), std::string::npos);
}

TEST(Printable, ErrorsInJson) {
    const auto debug = [](const std::string &members) {
        return R"({"message": "lumo_tarn_debug_setting_msg", "payload": {)" + members + "}}";
    };
    const std::string text = "\"" + hostile_json + "\"";
    for (const std::string &json : {
             debug(text + ": 1"),
             debug("\"info_enabled\": " + text),
             debug("\"info_enabled\": [" + text + "]"),
             debug("\"info_enabled\": 1, " + text),
             debug("\"@variant\": " + text),
             debug("\"info_enabled\": 1 " + hostile),
             R"({"message": )" + text + "}",
             R"({"bundle": )" + text + R"(, "control": "start"})",
             R"({"bundle": "lumo_tarn_dp_intf_rsp", "control": )" + text + "}",
             "{" + hostile + "}",
             "{\"" + hostile + "\": 1}",
         }) {
        const Outcome outcome = printable_run({"encode"}, json);
        EXPECT_EQ(outcome.exit, 2) << json;
        EXPECT_EQ(occurrences(outcome.err, "\n"), 1U) << outcome.err;
    }
}

TEST(Printable, ErrorsInXml) {
    const auto debug = [](const std::string &members) {
        return "<lumo_tarn_debug_setting_msg><lumo_tarn_debug_setting>" + members +
               "</lumo_tarn_debug_setting></lumo_tarn_debug_setting_msg>";
    };
    for (const std::string &xml : {
             debug("<info_enabled>" + hostile_xml + "</info_enabled>"),
             debug("<info_enabled state=\"" + hostile_xml + "\">1</info_enabled>"),
             debug("<info_enabled>1</info_enabled>" + hostile_xml),
             debug("<info_enabled>1</info_enabled>" + hostile),
             debug("<" + hostile + "/>"),
             std::string("<\x1b[31m\u009b\u202e>"),
             std::string("<\x1b[31m\u009b\u202e></\x1b[31m\u009b\u202e>"),
             "<bundle_start name=\"" + hostile_xml + "\"></bundle_start>",
         }) {
        const Outcome outcome = printable_run({"encode"}, xml);
        EXPECT_EQ(outcome.exit, 2) << xml;
        EXPECT_EQ(occurrences(outcome.err, "\n"), 1U) << outcome.err;
    }
}

TEST(Printable, OutputOfEveryForm) {
    const std::string bytes = frame_with(hostile);
    const Directory directory;
    const std::string a = directory.write("a.bin", bytes), b = directory.write("b.bin", frame_with("other"));
    for (const std::vector<std::string> &words : std::vector<std::vector<std::string>>{
             {"decode", a},
             {"decode", "--xml", a},
             {"decode", "--json", a},
             {"dissect", a},
             {"dissect", "--json", a},
             {"dissect", "--source", a},
             {"diff", a, b},
             {"diff", a, b, "--json"},
             {"view", a},
             {"view", a, b},
             {"record", "--from", a, "-o", "-"},
         }) {
        EXPECT_NE(printable_run(words).out, "") << words.front();
    }
}

TEST(Printable, OutputKeepsItsValue) {
    const std::string text = "red\n\r\t\u009b31m\x7f\u202ereversed\u2066 & plain \u00e9\u20ac\U0001f600";
    const std::string bytes = frame_with(text);
    for (const std::string form : {"--xml", "--json"}) {
        const Outcome decoded = printable_run({"decode", form}, bytes);
        EXPECT_EQ(occurrences(decoded.out, "\n"), 1U) << decoded.out;
        EXPECT_NE(decoded.out.find("plain \u00e9\u20ac\U0001f600"), std::string::npos) << decoded.out;
        EXPECT_EQ(tarn({"encode"}, decoded.out).out, bytes) << decoded.out;
    }
}

TEST(Printable, WhatAManifestSays) {
    const Directory directory;
    std::string library;
    const Outcome manifest = tarn({"manifest", TARN_LIBRARY});
    ASSERT_EQ(manifest.exit, 0);
    {
        const Outcome content = run("/bin/cat", {TARN_LIBRARY});
        library = content.out;
    }
    const std::string first = manifest.out.substr(manifest.out.find('\n') + 1, hostile.size());
    const std::size_t at = library.find(first);
    ASSERT_NE(at, std::string::npos);
    library.replace(at, hostile.size(), "\x1b[31mred\u009b" + hostile.substr(10));
    const std::string file = directory.write("library.so", library);
    for (const std::vector<std::string> &words :
         {std::vector<std::string>{"manifest", file}, {"manifest", file, "--json"}}) {
        const Outcome outcome = tarn(words);
        EXPECT_EQ(outcome.exit, 0);
        EXPECT_EQ(outcome.out.find_first_of("\x1b\x7f\r\t"), std::string::npos);
        EXPECT_EQ(outcome.out.find("\u009b"), std::string::npos);
        EXPECT_EQ(outcome.out.find("\u202e"), std::string::npos);
    }
}

TEST(Printable, RequestsAndRefusals) {
    const Directory directory;
    {
        Server server({"cl-debug=" + directory.write("debug.xml", debug_xml), "--verbose"});
        ASSERT_TRUE(server.is_ready());
        const std::string reply = [&] {
            const Socket peer = Socket::connect_to(server.socket());
            peer.send(request(hostile));
            return peer.receive(60);
        }();
        expect_printable(reply.substr(49), "refusal");
        expect_printable(server.process().stop().err, "answer");
    }
    std::string refusal = request("lumo_tarn_cl_debug_rsp").substr(0, 43) + std::string("\x80\0\0\0\2", 5);
    refusal += static_cast<char>(hostile.size());
    refusal += hostile;
    refusal[15] = static_cast<char>(refusal.size());
    const Socket listener = Socket::listen_on(directory.path("socket"));
    Process client({"show", "cl-debug", "--socket", directory.path("socket")});
    {
        const Socket peer = listener.accept();
        peer.receive(request("lumo_tarn_cl_debug_rsp").size());
        peer.send(refusal);
    }
    const Outcome outcome = client.finish();
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_NE(outcome.err.find("refused: \\x1b[31mred\\x0a"), std::string::npos) << outcome.err;
    expect_printable(outcome.err, "show");
}

// A line of megabytes in a name, a value or a token becomes a line of ordinary length in an error.
TEST(Printable, LongTextIsCut) {
    const std::string text(2 << 20, 'a'), line(20 << 20, 'a');
    const std::string debug = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {)";
    const std::string xml = "<lumo_tarn_debug_setting_msg><lumo_tarn_debug_setting>";
    const std::string xml_end = "</lumo_tarn_debug_setting></lumo_tarn_debug_setting_msg>";
    for (const std::string &input : {
             debug + "\"" + line + "\": 1}}",
             debug + "\"info_enabled\": \"" + text + "\"}}",
             debug + "\"info_enabled\": " + text,
             debug + "\"info_enabled\": \"" + text,
             "{\"message\": \"" + text + "\"}",
             "<" + line + "/>",
             "<" + text,
             "<" + text + "></" + text + ">",
             xml + "<info_enabled>" + text + "</info_enabled>" + xml_end,
             xml + text + xml_end,
             xml + "<info_enabled>" + line + "</info_enabled>" + xml_end,
             line,
         }) {
        const Outcome outcome = tarn({"encode"}, input);
        EXPECT_EQ(outcome.exit, 2) << input.substr(0, 100);
        EXPECT_LT(outcome.err.size(), 1000U) << input.substr(0, 100);
        EXPECT_EQ(outcome.out, "");
    }
}

}  // namespace

}  // namespace tool_test
