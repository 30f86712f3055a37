#include "support.hpp"

using test::Handle;

namespace {

const uint8_t luid_a[16] = {1}, luid_b[16] = {2}, luid_c[16] = {3};
const mirk_allowed_row table[] = {{luid_a, "message a", 0}, {luid_b, "message b", 0}, {nullptr, nullptr, 0}};

}  // namespace

TEST(SendBundle, AdmitsOnlyMessagesThatTheTableLists) {
    Handle h;
    uint32_t err = 0;
    h->bundle_table = table;
    bundle_message_validate_add(h, 7, luid_c, "message c", &err);
    EXPECT_EQ(err, uint32_t{ENOENT});
    err = 0;
    bundle_message_increment_count(h, luid_a, &err);
    EXPECT_EQ(err, uint32_t{ENOENT});
    err = 0;
    const uint8_t twin[16] = {1};
    bundle_message_validate_add(h, 7, luid_a, "message a", &err);
    bundle_message_validate_add(h, 7, luid_b, "message b", &err);
    bundle_message_validate_add(h, 7, twin, "message a", &err);
    bundle_message_increment_count(h, twin, &err);
    bundle_message_increment_count(h, luid_a, &err);
    EXPECT_EQ(err, 0u);
    mirk_platform_sent sent[3];
    ASSERT_EQ(mirk_platform_list_sent(h, sent, 3), 2u);
    EXPECT_STREQ(sent[0].name, "message a");
    EXPECT_EQ(sent[0].count, 2u);
    EXPECT_EQ(sent[1].count, 0u);
    h->send_bundle_open = 1;
    err = 5;
    bundle_send_message_list_destroy(h, 7, &err);
    EXPECT_EQ(h->send_bundle_open, 0u);
    EXPECT_EQ(h->bundle_table, nullptr);
    EXPECT_EQ(h->send_bundle_list.next, &h->send_bundle_list);
    EXPECT_EQ(mirk_platform_list_sent(h, sent, 3), 0u);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
}

TEST(SendBundle, AdmitsNothingWithoutATable) {
    Handle h;
    uint32_t err = 0;
    bundle_message_validate_add(h, 7, luid_a, "message a", &err);
    EXPECT_EQ(err, uint32_t{ENOENT});
}

TEST(ReceiveBundle, DestroyEndsReceivingInEveryState) {
    Handle h;
    uint32_t err = 5;
    bundle_receive_message_list_destroy(h, 7, &err);
    h->recv_bundle_open = 1;
    EXPECT_NE(mirklib_is_accumulating_bundle(h), 0u);
    h->recv_bundle_list = {nullptr, nullptr};
    bundle_receive_message_list_destroy(h, 7, &err);
    EXPECT_EQ(mirklib_is_accumulating_bundle(h), 0u);
    EXPECT_EQ(h->recv_bundle_list.next, &h->recv_bundle_list);
    EXPECT_EQ(mirk_platform_received_first(h), nullptr);
}
