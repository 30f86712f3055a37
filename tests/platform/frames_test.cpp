#include "support.hpp"

using test::Guarded;
using test::Handle;

namespace {

mirk_message_header make_header() {
    mirk_message_header header{0xbc, {255, 255, 255, 255, 255, 255}, 1, 0x01020304, 0x0a0b0c0d};
    return header;
}

}  // namespace

TEST(MessageHeader, HasAFixedLayout) {
    Handle h;
    Guarded<32> frame;
    mirk_message_header header = make_header(), read{};
    uint32_t err = 0;
    _mirk_message_header_marshal(h, 7, frame.at(), &header, 27, &err);
    const uint8_t expected[27] = {0xbc, 255, 255, 255, 255, 255, 255, 1, 1, 2, 3, 4, 10, 11, 12, 13};
    EXPECT_EQ(std::memcmp(frame.at(), expected, 27), 0);
    EXPECT_TRUE(frame.intact_after(27));
    EXPECT_EQ(_mirk_message_header_unmarshal(h, 7, frame.at(), &read, 27, &err), 27u);
    EXPECT_EQ(std::memcmp(&read, &header, sizeof header), 0);
    EXPECT_EQ(err, 0u);
}

TEST(MessageHeader, RefusesBytesThatAreNotAHeader) {
    Handle h;
    uint8_t frame[27] = {0xbc};
    mirk_message_header read{};
    uint32_t err = 0;
    EXPECT_EQ(_mirk_message_header_unmarshal(h, 7, frame, &read, 26, &err), 0u);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
    EXPECT_EQ(_mirk_message_header_unmarshal(h, 7, frame, &read, 27, &err), 0u) << "an earlier error remains";
    err = 0;
    frame[0] = 0xbd;
    EXPECT_EQ(_mirk_message_header_unmarshal(h, 7, frame, &read, 27, &err), 0u);
    EXPECT_EQ(err, uint32_t{EBADMSG});
    EXPECT_EQ(read.marker, 0);
}

TEST(MessageHeader, MarshalFailsOnRequest) {
    Handle h;
    Guarded<32> frame;
    mirk_message_header header = make_header();
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_HEADER_MARSHAL, 0, 1, 5);
    uint32_t err = 0;
    _mirk_message_header_marshal(h, 7, frame.at(), &header, 27, &err);
    EXPECT_EQ(err, 5u);
    EXPECT_TRUE(frame.intact_after(0));
    err = 0;
    _mirk_message_header_marshal(h, 7, frame.at(), &header, 26, &err);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
}

TEST(FramePieces, AreOneOneAndFourBytes) {
    Handle h;
    uint8_t buffer[16];
    int8_t variant = -5, read_variant = 0;
    uint8_t flag = 0x28, read_flag = 0;
    uint32_t jump = 0x01020304, read_jump = 0, err = 0;
    EXPECT_EQ(_mirk_instance_variant_marshal(h, 7, buffer, &variant, 1, &err), 1u);
    EXPECT_EQ(_mirk_instance_obj_flag_marshal(h, 7, buffer + 1, &flag, 1, &err), 1u);
    EXPECT_EQ(_mirk_variant_jump_marshal(h, 7, buffer + 2, &jump, 4, &err), 4u);
    const uint8_t expected[6] = {0xfb, 0x28, 1, 2, 3, 4};
    EXPECT_EQ(std::memcmp(buffer, expected, 6), 0);
    EXPECT_EQ(_mirk_instance_variant_unmarshal(h, 7, buffer, &read_variant, 1, &err), 1u);
    EXPECT_EQ(_mirk_instance_obj_flag_unmarshal(h, 7, buffer + 1, &read_flag, 1, &err), 1u);
    EXPECT_EQ(_mirk_variant_jump_unmarshal(h, 7, buffer + 2, &read_jump, 4, &err), 4u);
    EXPECT_EQ(read_variant, -5);
    EXPECT_EQ(read_flag, 0x28);
    EXPECT_EQ(read_jump, jump);
    EXPECT_EQ(_mirk_variant_jump_unmarshal(h, 7, buffer, &read_jump, 3, &err), 0u);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
    EXPECT_EQ(_mirk_instance_variant_unmarshal(h, 7, buffer, &read_variant, 1, &err), 0u);
}

TEST(FramePieces, RaDataIsNineBytes) {
    Handle h;
    uint8_t buffer[9], byte = 7, read_byte = 0;
    void *value = reinterpret_cast<void *>(0x0102030405060708), *read_value = nullptr;
    uint32_t err = 0;
    EXPECT_EQ(_mirk_instance_ra_data_marshal(h, 7, buffer, &value, &byte, 9, &err), 9u);
    EXPECT_EQ(buffer[0], 1);
    EXPECT_EQ(buffer[8], 7);
    EXPECT_EQ(_mirk_instance_ra_data_unmarshal(h, 7, buffer, &read_value, &read_byte, 9, &err), 9u);
    EXPECT_EQ(read_value, value);
    EXPECT_EQ(read_byte, 7);
    EXPECT_EQ(_mirk_instance_ra_data_unmarshal(h, 7, buffer, &read_value, &read_byte, 8, &err), 0u);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
}
