#include "reference/codec.h"

#include <gtest/gtest.h>

#include "reference/lengths.h"
#include "reference/text.h"

namespace reference {
namespace {

Record exmem_info() {
    Record value("lumo_tarn_exmem_info");
    value["cl_addr"].number = 0x0102030405060708;
    value["exmem_addr"].number = 0x1112131415161718;
    value["ppe_addr"].number = 0xF1F2F3F4F5F6F7F8;
    value["size"].number = 0xA1A2A3A4;
    value["cl_addr"].state = 2;
    value["exmem_addr"].state = 3;
    value["ppe_addr"].state = 0xFF;
    value["size"].state = 7;
    return value;
}

TEST(Frame, FlatRecordUntracked) {
    const Bytes expected = {0,    0,                                         // variant, flag
                            0,    0,    0,    32,                            // jump
                            0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08,  // cl_addr
                            0x11, 0x12, 0x13, 0x14, 0x15, 0x16, 0x17, 0x18,  // exmem_addr
                            0xF1, 0xF2, 0xF3, 0xF4, 0xF5, 0xF6, 0xF7, 0xF8,  // ppe_addr
                            0xA1, 0xA2, 0xA3, 0xA4};                         // size
    EXPECT_EQ(encode(exmem_info(), false), expected);
}

TEST(Frame, FlatRecordTracked) {
    const Bytes expected = {0,    8,    0,    0,    0,    36,                      // jump at 2
                            0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 2,     // cl_addr at 6
                            0x11, 0x12, 0x13, 0x14, 0x15, 0x16, 0x17, 0x18, 3,     // exmem_addr at 15
                            0xF1, 0xF2, 0xF3, 0xF4, 0xF5, 0xF6, 0xF7, 0xF8, 0xFF,  // ppe_addr at 24
                            0xA1, 0xA2, 0xA3, 0xA4, 7};                            // size at 33
    EXPECT_EQ(encode(exmem_info(), true), expected);
}

TEST(Frame, StringsTracked) {
    Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = "tcp";
    value["proto_name"].state = 2;
    value["sub_proto_name"].state = 9;  // not sent, since the string is empty
    value["protocol_id"].number = 0x0102;
    value["protocol_id"].state = 4;
    value["tarn_id"].number = 0xFFEE;
    value["tarn_id"].state = 5;
    const Bytes expected = {0, 8, 0, 0, 0, 18, 0, 3, 't', 'c', 'p', 2, 0, 0, 1, 2, 4, 0xFF, 0xEE, 5};
    EXPECT_EQ(encode(value, true), expected);
    EXPECT_EQ(length(value, true), 24u);
    EXPECT_EQ(length(value, false), 17u);
    EXPECT_EQ(encode(value, false).size(), 17u);
}

TEST(Frame, ListOfTwoTracked) {
    Record value("lumo_tarn_dp_tc_list");
    value.append("tc_list", 6);
    value.append("tc_list", 7);
    value["tc_list"].state = 2;
    const Bytes element = encode(value["tc_list"].items[0], true);
    const Bytes frame = encode(value, true);
    const std::size_t f = element.size();
    ASSERT_EQ(frame.size(), 13 + 2 * f);
    const std::size_t jump = 11 + 2 * f;
    const Bytes head = {0, 8, 0, 0, static_cast<std::uint8_t>(jump >> 8), static_cast<std::uint8_t>(jump), 0, 0, 0, 2};
    EXPECT_EQ(Bytes(frame.begin(), frame.begin() + 10), head);
    EXPECT_EQ(Bytes(frame.begin() + 10, frame.begin() + 10 + static_cast<std::ptrdiff_t>(f)), element);
    EXPECT_EQ(Bytes(frame.end() - 3, frame.end()), (Bytes{2, 6, 7}));
    EXPECT_EQ(length(value, true), frame.size());
    // 6 + (38 + 1) + 2 x (33 + 1) + (1 + 1) x 2 + (2 + 1) + (1 + 1) + 6 x (2 + 1) + 2 x (8 + 1) + (62 + 1) + (4 + 1)
    EXPECT_EQ(f, 226u);
}

TEST(Frame, AddressIsARecordFrame) {
    Record value("lumo_tarn_dp_mp_prefix_complex_data");
    set_address(value.nested("lookup_prefix"), {10, 32, 3, {0x20010db8, 0, 0, 1}});
    value["lookup_prefix"].state = 2;
    value.nested("lookup_prefix")["af"].state = 1;
    value.nested("lookup_prefix")["word[3]"].state = 5;
    const Bytes untracked = {0,    0,    0,    0, 0, 31, 0, 0, 0, 0, 0, 24, 10, 32, 0, 3, 0x20,
                             0x01, 0x0d, 0xb8, 0, 0, 0,  0, 0, 0, 0, 0, 0,  0,  0,  1, 0};
    EXPECT_EQ(encode(value, false), untracked);
    const Bytes tracked = {0,    8,    0, 0, 0, 39, 0, 8, 0, 0, 0, 31, 10, 1, 32, 0, 0, 3, 0, 0x20, 0x01,
                           0x0d, 0xb8, 0, 0, 0, 0,  0, 0, 0, 0, 0, 0,  0,  0, 0,  0, 1, 5, 2, 0};
    EXPECT_EQ(encode(value, true), tracked);
}

TEST(Frame, EnumerationAndBoolean) {
    Record value("lumo_tarn_dyn_exmem_info");
    value["mem_type"].number = 2;
    value["mem_type"].variant = -3;
    value["mem_type"].state = 9;
    const Bytes expected = {0, 8, 0, 0, 0, 23, 0xFD, 0, 0, 0, 2, 9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(encode(value, true), expected);
    EXPECT_EQ(length(value, true), expected.size() + 1);

    Record flags("lumo_tarn_dp_appl_data");
    flags["show_header"].number = 1;
    EXPECT_EQ(encode(flags, false), (Bytes{0, 0, 0, 0, 0, 7, 0, 1, 0}));
}

TEST(Frame, RecordWithoutBody) {
    Record value = exmem_info();
    value.variant = -2;
    EXPECT_EQ(encode(value, true), (Bytes{0xFE, 8, 0, 0, 0, 4}));
    EXPECT_EQ(length(value, true), 6u);
    value.variant = 3;
    EXPECT_EQ(encode(value, false)[0], 0);
}

TEST(Frame, ReferenceDataPrecedesTheJump) {
    Record value("lumo_tarn_dp_wexa_info");
    value["flags"].number = 0xDEADBEEF;
    value.ra = ReferenceData{0x0807060504030201, 0x77};
    const Bytes expected = {0, 32, 8, 7, 6, 5, 4, 3, 2, 1, 0x77, 0, 0, 0, 8, 0xDE, 0xAD, 0xBE, 0xEF};
    EXPECT_EQ(encode(value, false), expected);
    EXPECT_EQ(length(value, false), 10u);
}

TEST(Frame, WireSizes) {
    const struct {
        const char *type;
        std::size_t untracked, tracked;
    } sizes[] = {{"lumo_tarn_exmem_info", 34, 38},
                 {"lumo_tarn_fdb_base", 14, 19},
                 {"lumo_tarn_fdb_mem_info", 22, 25},
                 {"lumo_tarn_exmem_info_wrapper", 40, 45},
                 {"lumo_tarn_dp_appl", 53, 62},
                 {"lumo_tarn_debug_setting", 22, 26},
                 {"lumo_tarn_dp_debug_setting", 39, 48},
                 {"lumo_tarn_dp_wexa_info", 10, 11},
                 {"ip_address", 26, 33}};
    for (const auto &size : sizes) {
        const Record value(size.type);
        EXPECT_EQ(encode(value, false).size(), size.untracked) << size.type;
        EXPECT_EQ(encode(value, true).size(), size.tracked) << size.type;
        EXPECT_EQ(length(value, false), size.untracked) << size.type;
        EXPECT_EQ(length(value, true), size.tracked) << size.type;
    }
}

TEST(Length, EmptyArraysAreCountedTooHigh) {
    Record value("lumo_tarn_dp_debug_setting_data");
    for (std::uint32_t n = 0; n < 4; ++n) {
        EXPECT_EQ(length(value, false), 7 + 39 * n);
        EXPECT_EQ(length(value, true), 8 + 49 * n);
        EXPECT_EQ(encode(value, false).size(), 7 + 39 * n);
        EXPECT_EQ(encode(value, true).size(), n == 0 ? 7 : 8 + 49 * n);
        value.append("lumo_data");
    }
}

TEST(Length, FixedSizeElementsHaveTheLengthOfTheFirst) {
    Record value("lumo_tarn_dp_debug_setting_data");
    value.append("lumo_data");
    value.append("lumo_data").variant = -1;
    EXPECT_EQ(length(value, false), 7u + 39 + 39);
    EXPECT_EQ(encode(value, false).size(), 7u + 39 + 6);
    value["lumo_data"].items[0].variant = -1;
    value["lumo_data"].items[1].variant = 0;
    EXPECT_EQ(length(value, false), 7u + 6 + 6);
}

TEST(Message, HeaderAndPayload) {
    Record payload("lumo_tarn_debug_setting");
    payload["warn_enabled"].number = 5;
    const Bytes frame = message_frame("lumo_tarn_debug_setting_msg", payload, true, 0x01020304);
    const Bytes head = {0xBC, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 1,    1,    2,    3,    4,    0,    0,    0,
                        69,   0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0xc6, 0xd0, 0x3c,
                        0x8e, 0xe8, 0x0c, 0xba, 0x20, 0xdd, 0x87, 0x1f, 0x4a, 0x31, 0xff, 0x1b, 0xf6};
    ASSERT_EQ(frame.size(), 43u + 26);
    EXPECT_EQ(Bytes(frame.begin(), frame.begin() + 43), head);
    EXPECT_EQ(Bytes(frame.begin() + 43, frame.end()), encode(payload, true));
    EXPECT_EQ(message_length(payload, true), frame.size());
    const Decoded back = decode_message("lumo_tarn_debug_setting_msg", frame, true);
    ASSERT_TRUE(back.value) << back.reason;
    EXPECT_EQ(*back.value, payload);
}

TEST(Message, ControlFrameIsHeaderAndLuid) {
    const Bytes expected = {0xBC, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0,    0,    0,    0,    7,    0,    0,    0,
                            43,   0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0x12, 0xeb, 0x5a,
                            0xb0, 0x2d, 0x58, 0x80, 0xb7, 0x0e, 0xc5, 0x53, 0xa9, 0x8f, 0xb4, 0xc0, 0x1b};
    EXPECT_EQ(control_frame("lumo_tarn_dp_tt_cfg_rsp", "commit", 7), expected);
}

TEST(Message, DamageIsDetected) {
    const Record payload("lumo_tarn_debug_setting");
    const Bytes good = message_frame("lumo_tarn_debug_setting_msg", payload, false, 1);
    for (std::size_t at : {0u, 3u, 7u, 13u, 20u, 30u, 44u, 47u}) {
        Bytes bad = good;
        bad[at] ^= 0x55;
        EXPECT_FALSE(decode_message("lumo_tarn_debug_setting_msg", bad, false).value) << at;
    }
    EXPECT_FALSE(decode_message("lumo_tarn_debug_setting_msg", good, true).value);
}

class EveryRecord : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Reference, EveryRecord, testing::ValuesIn([] {
                             std::vector<std::string> names;
                             for (const RecordTable &table : records()) names.push_back(table.name);
                             return names;
                         }()),
                         [](const auto &info) { return info.param; });

TEST_P(EveryRecord, DecodesWhatItEncodes) {
    for (const bool strange : {false, true}) {
        GeneratorOptions options;
        options.strange = strange;
        Generator generator(17, options);
        for (int round = 0; round < 20; ++round) {
            const Record value = generator.make(GetParam());
            for (const bool tracked : {false, true}) {
                Bytes bytes = encode(value, tracked);
                const std::size_t size = bytes.size();
                bytes.push_back(0xAA);
                const Decoded back = decode(GetParam(), bytes, tracked);
                ASSERT_TRUE(back.value) << back.offset << ": " << back.reason << "\n" << hex_dump(bytes);
                EXPECT_EQ(back.consumed, size);
                EXPECT_EQ(first_difference(as_received(value, tracked), *back.value), "");
                EXPECT_TRUE(as_received(value, tracked) == *back.value);
                EXPECT_EQ(encode(*back.value, tracked), encode(value, tracked));
            }
        }
    }
}

TEST_P(EveryRecord, TruncationIsReportedAtItsOffset) {
    GeneratorOptions options;
    options.budget = 1024;
    Generator generator(5, options);
    const Record value = generator.make(GetParam());
    for (const bool tracked : {false, true}) {
        const Bytes bytes = encode(value, tracked);
        for (std::size_t cut = 0; cut < bytes.size(); ++cut) {
            const Decoded back = decode(GetParam(), std::span(bytes).first(cut), tracked);
            ASSERT_FALSE(back.value) << cut;
            EXPECT_EQ(back.offset, cut);
            EXPECT_NE(back.reason, "");
        }
    }
}

TEST_P(EveryRecord, WrongTrackingIsDetected) {
    const Record value(GetParam());
    EXPECT_EQ(decode(GetParam(), encode(value, true), false).offset, 1u);
    EXPECT_EQ(decode(GetParam(), encode(value, false), true).offset, 1u);
}

TEST_P(EveryRecord, LengthIsNeverBelowTheFrame) {
    Generator generator(23);
    for (int round = 0; round < 20; ++round) {
        const Record value = generator.make(GetParam());
        EXPECT_EQ(length(value, false), encode(value, false).size());
        EXPECT_GE(length(value, true), encode(value, true).size());
    }
}

}  // namespace
}  // namespace reference
