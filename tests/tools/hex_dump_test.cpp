// Frames as hexadecimal text, which the commands that take frames read.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

template <typename... Values>
std::string print(const char *format, Values... values) {
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

unsigned byte_at(std::string_view bytes, std::size_t i) { return static_cast<unsigned char>(bytes[i]); }

std::string digits(std::string_view bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) text += print("%02x", byte_at(bytes, i));
    return text;
}

std::string characters(std::string_view bytes) {
    std::string text(bytes);
    for (char &c : text) c = c < ' ' || c > '~' ? '.' : c;
    return text;
}

std::string in_one_line(std::string_view bytes) { return digits(bytes) + "\n"; }

using Line = std::function<std::string(std::size_t offset, std::string_view bytes)>;

std::string in_lines(std::string_view bytes, std::size_t size, const Line &line) {
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += size) text += line(at, bytes.substr(at, size)) + "\n";
    return text;
}

// "00000010: 4142 4344  ABCD", as xxd prints it.
std::string in_pairs(std::string_view bytes) {
    return in_lines(bytes, 16, [](std::size_t offset, std::string_view line) {
        std::string text;
        for (std::size_t i = 0; i < line.size(); ++i) text += print(i % 2 == 0 ? " %02x" : "%02x", byte_at(line, i));
        text.resize(40, ' ');
        return print("%08zx:", offset) + text + "  " + characters(line);
    });
}

// "00000010  41 42  43 44  |ABCD|", with "*" for repeated lines and the size at the end, as "hexdump -C" prints it.
std::string in_halves(std::string_view bytes) {
    std::string text;
    bool starred = false;
    for (std::size_t at = 0; at < bytes.size(); at += 16) {
        const std::string_view line = bytes.substr(at, 16);
        if (at >= 16 && line == bytes.substr(at - 16, 16)) {
            text += starred ? "" : "*\n";
            starred = true;
            continue;
        }
        starred = false;
        std::string row = print("%08zx ", at);
        for (std::size_t i = 0; i < line.size(); ++i) row += print(i % 8 == 0 ? " %02x " : "%02x ", byte_at(line, i));
        row.resize(60, ' ');
        text += row + "|" + characters(line) + "|\n";
    }
    return text + print("%08zx\n", bytes.size());
}

// "000010 41 42  >AB<" and the size at the end, as "od -A x -t x1z -v" prints it.
std::string in_bytes(std::string_view bytes) {
    return in_lines(bytes, 16,
                    [](std::size_t offset, std::string_view line) {
                        std::string text = print("%06zx", offset);
                        for (std::size_t i = 0; i < line.size(); ++i) text += print(" %02x", byte_at(line, i));
                        text.resize(54, ' ');
                        return text + "  >" + characters(line) + "<";
                    }) +
           print("%06zx\n", bytes.size());
}

// "0010  41 42   AB", as "tshark -x" prints it, each packet from offset 0.
std::string in_packets(std::string_view bytes) {
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 100) {
        text += in_lines(bytes.substr(at, 100), 16, [](std::size_t offset, std::string_view line) {
            std::string row;
            for (std::size_t i = 0; i < line.size(); ++i) row += print("%02x ", byte_at(line, i));
            row.resize(48, ' ');
            return print("%04zx  ", offset) + row + "  " + characters(line);
        });
        text += "\n";
    }
    return text;
}

// "0x7ffe10 <frame+8>:\t0x41\t0x42", as gdb prints it.
std::string in_memory(std::string_view bytes) {
    return in_lines(bytes, 8, [](std::size_t offset, std::string_view line) {
        std::string text = print(offset == 0 ? "0x%zx <frame>:" : "0x%zx <frame+%zu>:", 0x7ffe10 + offset, offset);
        for (std::size_t i = 0; i < line.size(); ++i) text += print("\t0x%02x", byte_at(line, i));
        return text;
    });
}

std::string in_array(std::string_view bytes) {
    return "unsigned char frame[] = {\n" +
           in_lines(bytes, 12,
                    [](std::size_t, std::string_view line) {
                        std::string text = " ";
                        for (std::size_t i = 0; i < line.size(); ++i) text += print(" 0x%02x,", byte_at(line, i));
                        return text;
                    }) +
           "};\nunsigned int frame_len = " + std::to_string(bytes.size()) + ";\n";
}

struct Dump {
    const char *name;
    std::string (*print)(std::string_view);
};

class EveryDump : public testing::TestWithParam<Dump> {};

TEST_P(EveryDump, IsReadAsTheBytesThatItShows) {
    for (const reference::MessageTable &message : reference::messages()) {
        const std::string bytes = frame(message, strange_payload(message, 41), false);
        const std::string dump = GetParam().print(bytes);
        const Outcome read = tarn({"encode"}, dump);
        EXPECT_EQ(read.exit, 0) << read.err << dump;
        EXPECT_EQ(read.out, tarn({"encode"}, bytes).out) << dump;
    }
}

TEST_P(EveryDump, IsReadByAllCommandsThatTakeFrames) {
    const std::string bytes = frame(reference::messages()[0], plain_payload(reference::messages()[0], 42), false);
    const Directory directory;
    const std::string path = directory.write("dump", GetParam().print(bytes)), same = directory.write("bytes", bytes);
    EXPECT_EQ(tarn({"decode", path}).out, tarn({"decode", same}).out);
    EXPECT_EQ(tarn({"dissect", path}).out, tarn({"dissect", same}).out);
    EXPECT_EQ(tarn({"diff", path, same}).exit, 0);
    EXPECT_EQ(tarn({"view", path}).exit, 0);
}

TEST_P(EveryDump, NamesTheLineWhereItStops) {
    const std::string bytes = frame(reference::messages()[0], plain_payload(reference::messages()[0], 43), false);
    std::string dump = GetParam().print(bytes);
    const auto lines = occurrences(dump, "\n");
    dump += "and so on\n";
    const Outcome outcome = tarn({"decode"}, dump);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, tarn({"decode"}, bytes).out);
    EXPECT_NE(outcome.err.find("standard input: line " + std::to_string(lines + 1) + ": "), std::string::npos)
        << outcome.err;
}

INSTANTIATE_TEST_SUITE_P(HexDump, EveryDump,
                         testing::Values(Dump{"Pairs", in_pairs}, Dump{"Halves", in_halves},
                                         Dump{"Packets", in_packets}, Dump{"Bytes", in_bytes},
                                         Dump{"Memory", in_memory}, Dump{"Array", in_array},
                                         Dump{"Digits", in_one_line}),
                         [](const auto &info) { return info.param.name; });

TEST(HexDump, OfRepeatedLinesHasAllOfThem) {
    const std::string zeros(200, '\0');
    std::string bytes = frame(reference::messages()[0], plain_payload(reference::messages()[0], 44), false);
    bytes += zeros;
    const Outcome dissected = tarn({"dissect"}, in_halves(bytes));
    EXPECT_EQ(dissected.exit, 2);
    EXPECT_EQ(dissected.err, tarn({"dissect"}, bytes).err);
}

TEST(HexDump, OfRepeatedLinesHasThemBeforeTheNext) {
    const std::string bytes = frame(reference::messages()[0], plain_payload(reference::messages()[0], 44), false);
    const std::string dump = in_halves(bytes + std::string(200, '\0') + bytes);
    ASSERT_NE(dump.find("\n*\n"), std::string::npos);
    const Outcome decoded = tarn({"decode", "-k"}, dump);
    EXPECT_EQ(decoded.out, tarn({"decode"}, bytes + bytes).out);
    EXPECT_NE(decoded.err.find("200 bytes are skipped"), std::string::npos) << decoded.err;
}

TEST(HexDump, FramesBeforeTheLineWhereItStopsAreRead) {
    const std::string bytes = frame(reference::messages()[0], plain_payload(reference::messages()[0], 45), false);
    std::string many;
    while (many.size() < 1 << 18) many += bytes;
    for (const std::string option : {"--json", "-k"}) {
        const Outcome outcome = tarn({"decode", option}, in_pairs(many) + "and so on\n" + in_pairs(bytes));
        EXPECT_EQ(outcome.exit, 2);
        EXPECT_EQ(outcome.out, tarn({"decode", option}, many).out);
        EXPECT_EQ(occurrences(outcome.err, "\n"), 1U) << outcome.err;
    }
}

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
TEST(HexDump, MemoryHoldsOneFrameWhateverTheLengthOfTheInput) {
    const Directory directory;
    const std::string one = directory.path("one.bin");
    ASSERT_EQ(tarn({"generate", "dp-tt-cfg", "--size", "256KiB", "--form", "frames", "-o", one}).exit, 0);
    // 26 MB of frames, as lines and as a single line, with 80 MB of memory, of which the program takes most.
    for (const std::string dump : {"cat", "tr -d ' \n'"}) {
        const std::string script = "od -A n -v -t x1 \"$1\" | " + dump + R"( >"$1.hex"
            for i in $(seq 100); do cat "$1.hex"; done | (ulimit -v 80000 && "$0" decode --xml 2>&1) |
                grep -c '<lumo_tarn_dp_tt_msg>\|tarn:')";
        EXPECT_EQ(run("/bin/sh", {"-c", script, tool(), one}).out, "100\n") << dump;
    }
}
#endif

TEST(HexDump, CanBeForced) {
    EXPECT_EQ(tarn({"decode", "--from", "hex"}, "{0xBC}").exit, 2);
    EXPECT_NE(tarn({"decode", "--from", "hex"}, "{0xBC}").err.find("1 bytes are left"), std::string::npos);
    const Outcome not_hex = tarn({"decode", "--from", "hex"}, "<xml/>");
    EXPECT_EQ(not_hex.exit, 2);
    EXPECT_NE(not_hex.err.find("standard input: line 1: expected two hexadecimal digits"), std::string::npos)
        << not_hex.err;
}

TEST(HexDump, ReportsAnOffsetThatDoesNotFollow) {
    const Outcome outcome = tarn({"decode"}, "00000000: bc01 0203\n00000008: 0405 0607\n");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("line 2: the offset is 8, but 4 bytes precede it"), std::string::npos) << outcome.err;
}

}  // namespace

}  // namespace tool_test
