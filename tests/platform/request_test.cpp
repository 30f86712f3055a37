#include "support.hpp"

TEST(Request, RoundTripsTheNameOfABundle) {
    uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const uint32_t length = mirk_platform_request_encode(frame, sizeof frame, 9, "some_rsp", 1, nullptr);
    ASSERT_EQ(length, 45u + 8u);
    EXPECT_EQ(frame[43], 1);
    EXPECT_EQ(frame[44], 8);
    EXPECT_EQ(std::memcmp(frame + 27, message_ui_req_msg_luid, 16), 0);
    mirk_platform_frame seen;
    EXPECT_EQ(mirk_platform_frame_look(frame, length, &seen), 0u);
    EXPECT_EQ(seen.header.total_length, length);
    EXPECT_EQ(seen.header.stamp, 9u);
    mirk_platform_request request;
    EXPECT_EQ(mirk_platform_request_decode(frame, length, &request), 0u);
    EXPECT_EQ(request.options, MIRK_PLATFORM_REQUEST_TRACKED);
    EXPECT_STREQ(request.bundle, "some_rsp");
}

TEST(Request, RoundTripsTheReasonOfARefusal) {
    uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const uint32_t length = mirk_platform_refusal_encode(frame, sizeof frame, 0, 52, "not here", nullptr);
    ASSERT_EQ(length, 49u + 8u);
    const uint8_t expected[6] = {0x80, 0, 0, 0, 52, 8};
    EXPECT_EQ(std::memcmp(frame + 43, expected, 6), 0);
    mirk_platform_request request;
    EXPECT_EQ(mirk_platform_request_decode(frame, length, &request), 0u);
    EXPECT_NE(request.options & MIRK_PLATFORM_REQUEST_REFUSED, 0);
    EXPECT_EQ(request.number, uint32_t{EBADE});
    EXPECT_STREQ(request.sentence, "not here");
}

TEST(Request, FailsIfTheFrameDoesNotFit) {
    uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    uint32_t number = 0;
    EXPECT_EQ(mirk_platform_request_encode(frame, 52, 0, "some_rsp", 0, &number), 0u);
    EXPECT_EQ(number, uint32_t{EMSGSIZE});
    const std::string most(255, 'x');
    EXPECT_EQ(mirk_platform_request_encode(frame, sizeof frame, 0, most.c_str(), 0, nullptr), 300u);
    EXPECT_EQ(mirk_platform_request_encode(frame, sizeof frame, 0, (most + "x").c_str(), 0, &number), 0u);
    EXPECT_EQ(number, uint32_t{EINVAL});
    EXPECT_EQ(mirk_platform_refusal_encode(frame, sizeof frame, 0, 2, (most + most).c_str(), nullptr), 304u);
}

TEST(Request, RefusesMalformedFrames) {
    uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    mirk_platform_request request;
    const auto fresh = [&] { return mirk_platform_request_encode(frame, sizeof frame, 0, "some_rsp", 0, nullptr); };
    uint32_t length = fresh();
    for (uint32_t cut = 0; cut < length; ++cut) {
        EXPECT_EQ(mirk_platform_request_decode(frame, cut, &request), uint32_t{EBADMSG}) << cut;
    }
    frame[44] = 9;
    EXPECT_EQ(mirk_platform_request_decode(frame, length, &request), uint32_t{EBADMSG});
    frame[44] = 7;
    EXPECT_EQ(mirk_platform_request_decode(frame, length, &request), uint32_t{EBADMSG});
    length = fresh();
    frame[46] = 0;
    EXPECT_EQ(mirk_platform_request_decode(frame, length, &request), uint32_t{EBADMSG});
    length = fresh();
    frame[30] ^= 1;
    EXPECT_EQ(mirk_platform_request_decode(frame, length, &request), uint32_t{ENOENT});
    length = fresh();
    frame[43] = 0x80;
    EXPECT_EQ(mirk_platform_request_decode(frame, length, &request), uint32_t{EBADMSG});
}
