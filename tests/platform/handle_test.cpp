#include "support.hpp"

using kit::Tracking;
using test::Handle;

TEST(Handle, OpensWithTheDefaults) {
    Handle h;
    EXPECT_EQ(h->private_types, 0u);
    EXPECT_EQ(h->default_id, 1u);
    EXPECT_EQ(h->message_stamp, 0u);
    EXPECT_STREQ(h->domain_name, "default");
    EXPECT_EQ(h->oid_mapping, 1u);
    EXPECT_EQ(h->cr_mode, 0u);
    EXPECT_EQ(h->last_error, 0u);
    EXPECT_EQ(h->sttr_desc, nullptr);
    EXPECT_EQ(h->bundle_handler, nullptr);
    EXPECT_EQ(h->send_bundle_open, 0u);
    EXPECT_EQ(h->recv_bundle_open, 0u);
    EXPECT_EQ(h->bundle_table, nullptr);
    EXPECT_EQ(h->send_bundle_list.next, &h->send_bundle_list);
    EXPECT_EQ(h->recv_bundle_list.prev, &h->recv_bundle_list);
    EXPECT_EQ(mirklib_suppress_messages_enabled(h), 0u);
}

TEST(Handle, NullOptionsMeanTheDefaults) {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->default_id, 1u);
    EXPECT_EQ(mirk_platform_handle_close(h), 0u);
    EXPECT_EQ(mirk_platform_handle_close(nullptr), 0u);
}

TEST(Handle, AProgramWithFewerOptionsHasTheDefaultsOfTheOthers) {
    mirk_platform_handle_options options;
    std::memset(&options, 0x5c, sizeof options);
    mirk_platform_handle_options_init_sized(&options, offsetof(mirk_platform_handle_options, total_ceiling));
    EXPECT_EQ(options.request_ceiling, uint64_t{256} << 20);
    EXPECT_EQ(options.total_ceiling, 0x5c5c5c5c5c5c5c5cu)
        << "the initializer wrote past the members that the program has";
    options.private_types = 1;
    mirk_handle *h = mirk_platform_handle_open(&options);
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->private_types, 1u);
    EXPECT_STREQ(h->domain_name, "default");
    EXPECT_EQ(h->default_id, 1u);
    EXPECT_EQ(mirk_platform_handle_close(h), 0u);
}

TEST(Handle, UnknownOptionsAreClearedAndIgnored) {
    struct {
        mirk_platform_handle_options known;
        uint64_t later[4];
    } options;
    std::memset(&options, 0x5c, sizeof options);
    mirk_platform_handle_options_init_sized(&options.known, sizeof options);
    EXPECT_EQ(options.known.size, sizeof options);
    for (const uint64_t word : options.later) EXPECT_EQ(word, 0u);
    options.known.default_id = 5;
    mirk_handle *h = mirk_platform_handle_open(&options.known);
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->default_id, 5u);
    EXPECT_EQ(mirk_platform_handle_close(h), 0u);
}

TEST(Handle, TracksAsRequested) {
    EXPECT_EQ(Handle(Tracking::off)->sttr_desc->sttr_mode, 0xddddu);
    Handle h(Tracking::on);
    EXPECT_EQ(h->sttr_desc->sttr_mode, 0xeeeeu);
    mirk_platform_handle_set_tracking(h, MIRK_PLATFORM_TRACKING_NONE);
    EXPECT_EQ(h->sttr_desc, nullptr);
    mirk_platform_testing_set_sttr_mode(h, 0);
    EXPECT_EQ(h->sttr_desc->sttr_mode, 0u);
}

TEST(Handle, SettersChangeTheMembers) {
    Handle h;
    mirk_platform_handle_set_default_id(h, 9);
    mirk_platform_handle_set_message_stamp(h, 77);
    std::string name = "edge";
    EXPECT_EQ(mirk_platform_handle_set_domain_name(h, name.c_str()), 0u);
    name = "gone";
    mirk_platform_handle_set_oid_mapping(h, 0);
    mirk_platform_handle_set_suppress_messages(h, 1);
    EXPECT_EQ(h->default_id, 9u);
    EXPECT_EQ(h->message_stamp, 77u);
    EXPECT_STREQ(h->domain_name, "edge");
    EXPECT_EQ(h->oid_mapping, 0u);
    EXPECT_EQ(mirklib_suppress_messages_enabled(h), 1u);
}

TEST(Handle, WorkspaceIsOneBufferWithAGuardByte) {
    Handle h;
    void *first = nullptr, *second = nullptr;
    uint32_t size = 0;
    mirklib_get_handle_ws(h, &first, &size);
    mirklib_get_handle_ws(h, &second, &size);
    EXPECT_EQ(first, second);
    EXPECT_EQ(size, 65536u);
    static_cast<char *>(first)[size] = 1;
}

TEST(Errors, StayInTheHandleUntilCleared) {
    Handle h;
    mirk_store_err(h, ENOMEM);
    EXPECT_EQ(h->last_error, uint32_t{ENOMEM});
    mirk_clear_last_error(h);
    EXPECT_EQ(h->last_error, 0u);
}

TEST(Errors, StrictPolicyWritesHandleAndSlot) {
    Handle h;
    uint32_t err = 0;
    mirk_store_epoch_err(h, EIDRM, &err);
    EXPECT_EQ(err, uint32_t{EIDRM});
    EXPECT_EQ(h->last_error, uint32_t{EIDRM});
    mirk_store_epoch_err(h, EBADE, &err);
    EXPECT_EQ(err, uint32_t{EBADE});
}

TEST(Errors, LenientPolicyKeepsTheSlotClearForEidrmOnly) {
    Handle h({.lenient = true});
    uint32_t err = 0;
    mirk_store_epoch_err(h, EIDRM, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(h->last_error, uint32_t{EIDRM});
    mirk_store_epoch_err(h, EBADE, &err);
    EXPECT_EQ(err, uint32_t{EBADE});
    EXPECT_EQ(h->last_error, uint32_t{EBADE});
}

TEST(Errors, LenientPolicyKeepsLastErrorClearWhenItIsTheSlot) {
    Handle h;
    mirk_platform_handle_set_epoch_policy(h, MIRK_PLATFORM_LENIENT_EIDRM);
    mirk_store_epoch_err(h, EIDRM, &h->last_error);
    EXPECT_EQ(h->last_error, 0u);
    mirk_platform_handle_set_epoch_policy(h, MIRK_PLATFORM_STRICT);
    mirk_store_epoch_err(h, EIDRM, &h->last_error);
    EXPECT_EQ(h->last_error, uint32_t{EIDRM});
}

TEST(Domain, IdentifiesTypesByLuid) {
    Handle h;
    mirk_type_info type = test::make_type(1), copy = type, other = test::make_type(50);
    uint32_t err = 0;
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, &type, &err), 0);
    EXPECT_EQ(mirk_platform_domain_set_variant(h, type.luid, -3), 0u);
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, &copy, &err), -3);
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, &other, &err), 0);
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, nullptr, &err), 0);
    mirk_platform_domain_clear(h);
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, &type, &err), 0);
    EXPECT_EQ(err, 0u);
}

TEST(Domain, ForbidsMessagesByLuid) {
    Handle h;
    mirk_type_info type = test::make_type(1);
    uint32_t err = 0;
    EXPECT_NE(mirk_domain_lookup_message_ok(h, &h->domain, &type, &err), 0u);
    mirk_platform_domain_set_message(h, type.luid, 0);
    EXPECT_EQ(mirk_domain_lookup_message_ok(h, &h->domain, &type, &err), 0u);
    mirk_platform_domain_set_message(h, type.luid, 1);
    EXPECT_NE(mirk_domain_lookup_message_ok(h, &h->domain, &type, &err), 0u);
    EXPECT_EQ(err, 0u);
}

TEST(Domain, ReturnsItsResultEvenIfAnErrorIsSet) {
    Handle h;
    mirk_type_info type = test::make_type(1);
    mirk_platform_domain_set_variant(h, type.luid, 4);
    uint32_t err = 5;
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, &type, &err), 4);
    EXPECT_NE(mirk_domain_lookup_message_ok(h, &h->domain, &type, &err), 0u);
    EXPECT_EQ(err, 5u);
}

TEST(Domain, LookUpsFailOnRequest) {
    Handle h;
    mirk_type_info type = test::make_type(1);
    uint32_t err = 0;
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, 1, 1, 5);
    mirk_domain_lookup_variant(h, &h->domain, &type, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, &type, &err), 0);
    EXPECT_EQ(err, 5u);
    err = 0;
    mirk_domain_lookup_variant(h, &h->domain, &type, &err);
    EXPECT_EQ(err, 0u);
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_MESSAGE_LOOKUP, 0, 1, 13);
    EXPECT_EQ(mirk_domain_lookup_message_ok(h, &h->domain, &type, &err), 0u);
    EXPECT_EQ(err, 13u);
    EXPECT_EQ(mirk_platform_testing_calls(h, MIRK_PLATFORM_TESTING_VARIANT_LOOKUP), 3u);
}
