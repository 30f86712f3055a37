// Network captures as input: connections put together, what is missing in them, and files that are broken.
#include <gtest/gtest.h>

#include <utility>

#include "capture.h"
#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

using captures::Capture;

constexpr std::uint16_t server = 28276, client = 40000;
const std::string answer_of_client = "127.0.0.1:28276 to 127.0.0.1:40000";

const reference::BundleTable &bundle() { return reference::bundle_table("lumo_tarn_cl_debug_rsp"); }
const reference::MessageTable &message() { return reference::message_table(bundle().message); }

std::string message_text(std::uint64_t seed) { return shown(message(), plain_payload(message(), seed)); }
std::string one(std::uint64_t seed) { return frame(message(), plain_payload(message(), seed), false); }

// 65 bytes each.
std::string messages(std::uint64_t count) {
    std::string all;
    for (std::uint64_t i = 0; i < count; ++i) all += one(i);
    return all;
}
std::string texts(std::uint64_t begin, std::uint64_t end) {
    std::string all;
    for (std::uint64_t i = begin; i < end; ++i) all += message_text(i);
    return all;
}

Outcome decode(const Capture &capture, std::vector<std::string> more = {}) {
    const Directory directory;
    more.insert(more.begin(), {"decode", directory.write("capture.pcap", capture.file())});
    return tarn(more);
}

TEST(NetworkCapture, MessagesComeWithTheirConnection) {
    Capture capture;
    capture.add(client, server, request("lumo_tarn_cl_debug_rsp"));
    capture.add(server, client, messages(3), 50);
    capture.add(server, 40001, one(7));
    capture.add(5000, 6000, messages(1));
    const Outcome text = decode(capture);
    EXPECT_EQ(text.exit, 0) << text.err;
    EXPECT_EQ(text.out, "# " + answer_of_client + "\n" + texts(0, 3) + "# 127.0.0.1:28276 to 127.0.0.1:40001\n" +
                            message_text(7));
    const Outcome xml = decode(capture, {"--xml"});
    EXPECT_EQ(tarn({"decode"}, xml.out).out, texts(0, 3) + message_text(7));
    const Outcome other = decode(capture, {"--port", "6000"});
    EXPECT_EQ(other.out, "# 127.0.0.1:5000 to 127.0.0.1:6000\n" + texts(0, 1));
    const Outcome none = decode(capture, {"--port", "6001"});
    EXPECT_EQ(none.exit, 2);
    EXPECT_NE(none.err.find("capture.pcap: no TCP connection with port 6001 has data\n"), std::string::npos)
        << none.err;
}

TEST(NetworkCapture, RowsAndDatabasesHaveTheConnection) {
    const Directory directory;
    Capture capture;
    capture.add(server, client, messages(2), 50);
    const std::string file = directory.write("capture.pcap", capture.file()), database = directory.path("database");
    const std::string record = message().payload;
    EXPECT_EQ(tarn({"rows", record, file, "--format", "tsv", "--columns", "message,connection"}).out,
              "message\tconnection\n1\t" + answer_of_client + "\n2\t" + answer_of_client + "\n");
    EXPECT_EQ(tarn({"export", file, "--sqlite", database}).exit, 0);
    EXPECT_NE(directory.read("database").find(answer_of_client), std::string::npos);
}

TEST(NetworkCapture, SegmentsAreReorderedAndThoseSentAgainAreReadOnce) {
    const std::string bytes = messages(4);
    for (const std::uint32_t first : {1U, 0xffffff80U}) {  // the sequence number wraps around
        for (const bool has_begin : {true, false}) {
            Capture capture;
            const auto segment = [&](std::size_t at, std::size_t size) {
                capture.add_segment(server, client, first + static_cast<std::uint32_t>(at), bytes.substr(at, size));
            };
            if (has_begin) capture.add_segment(server, client, first - 1, "", Capture::begins);
            segment(100, 50);
            segment(0, 60);
            segment(0, 60);
            segment(150, 40);
            segment(60, 40);
            segment(30, 100);  // overlaps what is there
            segment(200, 60);
            segment(180, 30);
            const Outcome outcome = decode(capture);
            EXPECT_EQ(outcome.exit, 0) << outcome.err;
            EXPECT_EQ(outcome.out, "# " + answer_of_client + "\n" + texts(0, 4)) << first << has_begin;
        }
    }
}

TEST(NetworkCapture, AConnectionAfterAnotherOfTheSamePortsIsAnother) {
    Capture capture;
    for (const std::uint32_t first : {1000U, 900U}) {
        capture.add_segment(server, client, first, "", Capture::begins);
        capture.add_segment(server, client, first + 1, messages(2));
        capture.add_segment(server, client, first + 131, "", Capture::ends);
    }
    const Outcome outcome = decode(capture, {"--json"});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(occurrences(outcome.out, "\n"), 4U);
}

TEST(NetworkCapture, MissingSegmentsAreNamedAndTheFramesAroundThemAreRead) {
    const std::string bytes = messages(6);
    Capture capture;
    capture.add_segment(server, client, 0, "", Capture::begins);
    capture.add_segment(server, client, 1, bytes.substr(0, 140));
    capture.add_segment(server, client, 201, bytes.substr(200));
    const Outcome outcome = decode(capture, {"-k"});
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, "# " + answer_of_client + "\n" + texts(0, 2) + texts(4, 6));
    for (const std::string &words : {"(" + answer_of_client + "): 60 bytes after byte 140 are missing\n",
                                     "(" + answer_of_client + "): frame at offset 130: 10 bytes are left",
                                     "(" + answer_of_client + ", from byte 200): frame at offset 0: not a frame"}) {
        EXPECT_NE(outcome.err.find(words), std::string::npos) << words << "\n" << outcome.err;
    }
}

TEST(NetworkCapture, PacketsOfEachLinkTypeAreRead) {
    using namespace std::string_literals;
    const std::string ethernet = "\1\2\3\4\5\6\1\2\3\4\5\7"s;
    for (const auto &[link, front] : {std::pair{1U, ethernet + "\x08\x00"s},
                                      {1U, ethernet + "\x81\x00\x00\x05\x08\x00"s},
                                      {101U, ""s},
                                      {0U, "\0\0\0\2"s},
                                      {113U, std::string(14, '\0') + "\x08\x00"s},
                                      {276U, "\x08\x00"s + std::string(18, '\0')}}) {
        Capture capture(link, front);
        capture.add(server, client, messages(2));
        const Outcome outcome = decode(capture);
        EXPECT_EQ(outcome.exit, 0) << link << outcome.err;
        EXPECT_EQ(outcome.out, "# " + answer_of_client + "\n" + texts(0, 2)) << link;
    }
    Capture radio(127);
    radio.add(server, client, messages(1));
    const Outcome outcome = decode(radio);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("link type IEEE802_11_RADIO are not supported"), std::string::npos) << outcome.err;
}

void put(std::string &file, std::uint32_t value) {
    for (unsigned i = 0; i < 4; ++i) file += static_cast<char>(value >> (8 * (3 - i)) & 0xff);
}

// The same packets as pcapng: a section, an interface, and a block for each packet.
std::string next_generation(const std::string &pcap) {
    std::string file;
    const auto block = [&](std::uint32_t type, std::string body) {
        body.resize((body.size() + 3) / 4 * 4);
        put(file, type);
        put(file, static_cast<std::uint32_t>(body.size() + 12));
        file += body;
        put(file, static_cast<std::uint32_t>(body.size() + 12));
    };
    std::string section, interface;
    put(section, 0x1a2b3c4d);
    put(section, 0x00010000);
    section += std::string(8, '\xff');
    block(0x0a0d0d0a, section);
    interface += pcap.substr(22, 2) + std::string(6, '\0');
    block(1, interface);
    for (std::size_t at = 24; at < pcap.size();) {
        const std::size_t size =
            static_cast<unsigned char>(pcap[at + 10]) * 256U + static_cast<unsigned char>(pcap[at + 11]);
        block(6, std::string(12, '\0') + pcap.substr(at + 8, 8) + pcap.substr(at + 16, size));
        at += 16 + size;
    }
    return file;
}

TEST(NetworkCapture, BothFormatsAreReadAlsoFromAPipe) {
    Capture capture;
    capture.add(server, client, messages(9), 100);
    for (const std::string &bytes : {capture.file(), next_generation(capture.file())}) {
        const Outcome outcome = tarn({"decode"}, bytes);
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        EXPECT_EQ(outcome.out, "# " + answer_of_client + "\n" + texts(0, 9));
    }
}

TEST(NetworkCapture, ABrokenFileIsReportedWithItsPacket) {
    Capture capture;
    capture.add(server, client, messages(2), 65);
    const std::string file = capture.file();
    const Outcome cut = tarn({"decode"}, file.substr(0, file.size() - 10));
    EXPECT_EQ(cut.exit, 2);
    EXPECT_NE(cut.err.find("standard input: packet 2: truncated dump file"), std::string::npos) << cut.err;
    EXPECT_EQ(cut.out, "# " + answer_of_client + "\n" + texts(0, 1));
    const Outcome head = tarn({"decode"}, file.substr(0, 20));
    EXPECT_EQ(head.exit, 2);
    EXPECT_NE(head.err.find("standard input: truncated dump file"), std::string::npos) << head.err;
}

TEST(NetworkCapture, IsReadByTheOtherCommands) {
    Capture capture;
    capture.add(client, server, request("lumo_tarn_cl_debug_rsp"));
    capture.add(server, client, messages(3), 50);
    const Directory directory;
    const std::string network = directory.write("capture.pcap", capture.file()),
                      frames = directory.write("frames.bin", messages(3));
    EXPECT_EQ(tarn({"diff", network, frames}).exit, 0);
    EXPECT_EQ(tarn({"encode", network}).out, messages(3));
    EXPECT_EQ(tarn({"rows", "debug-setting", network}).exit, 0);
}

TEST(NetworkCapture, BundlesAreReceivedOfEachConnection) {
    Capture capture;
    const std::string whole = answer(bundle(), plain_payload(message(), 3), false);
    capture.add(server, client, whole, 70);
    capture.add(server, 40001, whole, 90);
    const Outcome outcome = decode(capture, {"--bundles", "-v"});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, message_text(3) + message_text(3));
    EXPECT_EQ(occurrences(outcome.err, "1 bundles were handled"), 2U) << outcome.err;
}

std::string debug_answer(std::uint64_t info) {
    reference::Record payload(message().payload);
    payload["info_enabled"].number = info;
    return answer(bundle(), payload, false);
}

// The clients come in another order, and one has another port.
TEST(NetworkCapture, DiffComparesTheConnectionsOfTwoCaptures) {
    Capture a, b, c;
    a.add(client, server, request("lumo_tarn_cl_debug_rsp"));
    a.add(server, client, debug_answer(1) + debug_answer(2), 50);
    a.add(server, 40001, debug_answer(3));
    b.add(server, 40001, debug_answer(3));
    b.add(41000, server, request("lumo_tarn_cl_debug_rsp"));
    b.add(server, 41000, debug_answer(1) + debug_answer(5), 60);
    c.add(server, 40001, debug_answer(4));
    const Directory directory;
    const std::string first = directory.write("a.pcap", a.file()),
                      second = directory.write("b.pcapng", next_generation(b.file())),
                      third = directory.write("c.pcap", c.file());
    const Outcome same = tarn({"diff", first, first});
    EXPECT_EQ(same.exit, 0);
    EXPECT_EQ(same.out, "");
    const Outcome outcome = tarn({"diff", first, second});
    EXPECT_EQ(outcome.exit, 1) << outcome.err;
    EXPECT_EQ(outcome.out,
              "# " + answer_of_client + ", 127.0.0.1:28276 to 127.0.0.1:41000\nmessage 2: info_enabled 2 -> 5\n");
    const Outcome json = tarn({"diff", first, second, "--json"});
    EXPECT_NE(json.out.find("\"message\":2,\"connections\":[\"" + answer_of_client +
                            "\",\"127.0.0.1:28276 to 127.0.0.1:41000\"]"),
              std::string::npos)
        << json.out;
    const Outcome missing = tarn({"diff", first, third});
    EXPECT_EQ(missing.out, "# " + answer_of_client +
                               "\nmessage 1 (lumo_tarn_debug_setting_msg) removed\n"
                               "message 2 (lumo_tarn_debug_setting_msg) removed\n"
                               "# 127.0.0.1:28276 to 127.0.0.1:40001\ninfo_enabled 3 -> 4\n");
    EXPECT_EQ(tarn({"diff", first, second, "--summary"}).out, "message: 1 changed (info_enabled 1)\n");
    EXPECT_EQ(tarn({"diff", first, second, "--port", "1"}).exit, 2);
}

// The first connection ends inside a bundle, to which the message in the second one does not belong.
TEST(NetworkCapture, DiffComparesACaptureWithAFile) {
    Capture capture;
    capture.add(server, client, control(bundle(), "start") + one(1));
    capture.add(server, 40001, one(2));
    const Directory directory;
    const std::string network = directory.write("a.pcap", capture.file()),
                      frames = directory.write(
                          "a.bin", control(bundle(), "start") + one(1) + control(bundle(), "commit") + one(2));
    for (const auto &[a, b] : {std::pair{network, frames}, {frames, network}}) {
        const Outcome outcome = tarn({"diff", a, b});
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        EXPECT_EQ(outcome.out, "");
    }
}

TEST(NetworkCapture, DiffNamesWhatIsMissing) {
    Capture capture;
    capture.add_segment(server, client, 0, "", Capture::begins);
    capture.add_segment(server, client, 1, messages(1));
    capture.add_segment(server, client, 100, messages(1));
    const Directory directory;
    const std::string network = directory.write("a.pcap", capture.file());
    const Outcome outcome = tarn({"diff", network, network});
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("a.pcap (" + answer_of_client + "): 34 bytes after byte 65 are missing\n"),
              std::string::npos)
        << outcome.err;
    EXPECT_EQ(outcome.out, "");
}

}  // namespace

}  // namespace tool_test
