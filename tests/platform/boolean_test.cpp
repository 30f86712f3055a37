#include "support.hpp"

using test::Handle;

TEST(Boolean, InitializeNotifiesAndCounts) {
    Handle h(kit::Tracking::on);
    kit::Events log(h);
    mirk_boolean object{};
    uint32_t err = 0;
    mirk_variant_entry &entry = _mirk_boolean_type_info_internal.variant_info->entries[0];
    const uint64_t created = entry.num_created, live = entry.num_live;
    mirk_boolean_initialize(h, 7, &object, &_mirk_boolean_type_info_internal, 1, 0, 4, nullptr, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(object.tinfo, &_mirk_boolean_type_info_internal);
    EXPECT_EQ(object.obj_flag, 4);
    EXPECT_EQ(entry.num_created, created + 1);
    EXPECT_EQ(entry.num_live, live + 1);
    const auto writes = log.of(MIRK_PLATFORM_TESTING_WRITE_NOTIFY);
    ASSERT_EQ(writes.size(), 4u);
    EXPECT_EQ(writes[0].address, &object.home_variant);
    EXPECT_EQ(writes[1].address, &object.variant);
    EXPECT_EQ(writes[2].address, &object.tinfo);
    EXPECT_EQ(writes[2].size, 8u);
    EXPECT_EQ(writes[3].address, &object.obj_flag);
    const auto counts = log.of(MIRK_PLATFORM_TESTING_COUNT_NOTIFY);
    ASSERT_EQ(counts.size(), 2u);
    EXPECT_EQ(counts[0].address, &entry.num_created);
    EXPECT_EQ(counts[1].address, &entry.num_live);
}

TEST(Boolean, InitializeNeitherNotifiesNorCountsOnRequest) {
    Handle h;
    kit::Events log(h);
    mirk_boolean object{};
    uint32_t err = 0;
    mirk_boolean_initialize(h, 7, &object, &_mirk_boolean_type_info_internal, 0, 1, 4, nullptr, &err);
    EXPECT_TRUE(log.of(MIRK_PLATFORM_TESTING_WRITE_NOTIFY).empty());
    EXPECT_TRUE(log.of(MIRK_PLATFORM_TESTING_COUNT_NOTIFY).empty());
    EXPECT_EQ(object.tinfo, &_mirk_boolean_type_info_internal);
}

TEST(Boolean, UsesThePrivateTypeOfAHandleWithPrivateTypes) {
    Handle h({.private_types = 3});
    mirk_boolean object{}, other{};
    uint32_t err = 0;
    const uint64_t shared = _mirk_boolean_type_info_internal.variant_info->entries[0].num_created;
    mirk_boolean_initialize(h, 7, &object, &_mirk_boolean_type_info_internal, 1, 0, 4, nullptr, &err);
    mirk_boolean_initialize(h, 7, &other, &_mirk_boolean_type_info_internal, 1, 0, 4, nullptr, &err);
    EXPECT_NE(object.tinfo, &_mirk_boolean_type_info_internal);
    EXPECT_EQ(object.tinfo, other.tinfo);
    EXPECT_EQ(object.tinfo->plain_counters, 3u);
    EXPECT_EQ(object.tinfo->variant_info->entries[0].num_created, 2u);
    EXPECT_EQ(_mirk_boolean_type_info_internal.variant_info->entries[0].num_created, shared);
}

TEST(Boolean, CapsAPositiveVariantAndKeepsANegativeOne) {
    Handle h;
    mirk_boolean object{};
    uint32_t err = 0;
    mirk_platform_domain_set_variant(h, _mirk_boolean_type_info_internal.luid, 5);
    mirk_boolean_initialize(h, 7, &object, &_mirk_boolean_type_info_internal, 1, 1, 0, nullptr, &err);
    EXPECT_EQ(object.variant, 0);
    mirk_platform_domain_set_variant(h, _mirk_boolean_type_info_internal.luid, -128);
    mirk_boolean_initialize(h, 7, &object, &_mirk_boolean_type_info_internal, 1, 0, 0, nullptr, &err);
    EXPECT_EQ(object.variant, -128);
    EXPECT_EQ(object.home_variant, -128);
}

TEST(Boolean, SetNotifiesTheValueOnlyAndMarksTheField) {
    Handle h;
    kit::Events log(h);
    mirk_boolean field{}, source{};
    source.value = 2;
    source.variant = -4;
    uint32_t err = 0;
    mirk_boolean_set(h, 7, &field, &source, &err);
    EXPECT_EQ(field.value, 2);
    EXPECT_EQ(field.variant, 0);
    EXPECT_EQ(field.obj_flag, 16);
    const auto writes = log.of(MIRK_PLATFORM_TESTING_WRITE_NOTIFY);
    ASSERT_EQ(writes.size(), 1u);
    EXPECT_EQ(writes[0].address, &field.value);
    EXPECT_EQ(writes[0].size, 1u);
    EXPECT_EQ(mirk_boolean_backpropagate(h, 7, &field, nullptr), 1u);
    EXPECT_EQ(mirk_boolean_backpropagate(h, 7, &field, nullptr), 0u);
    EXPECT_EQ(mirk_boolean_backpropagate(h, 7, nullptr, nullptr), 0u);
    mirk_boolean_set_value(h, 7, &field, 0, &err);
    EXPECT_EQ(mirk_boolean_get_value(h, 7, mirk_boolean_get(h, 7, &field, &err), &err), 0);
    EXPECT_EQ(field.obj_flag, 16);
    mirk_boolean_set(h, 7, &field, nullptr, &err);
    EXPECT_EQ(err, uint32_t{EINVAL});
}

TEST(Boolean, IsVariantAndValueOnTheWire) {
    Handle h;
    mirk_boolean field{}, read{};
    field.variant = -2;
    field.value = 9;
    read.obj_flag = 4;
    uint32_t err = 0;
    uint8_t buffer[2];
    EXPECT_EQ(mirk_boolean_len(h, 7, nullptr), 2u);
    EXPECT_EQ(mirk_boolean_marshal(h, 7, buffer, &field, 2, &err), 2u);
    EXPECT_EQ(buffer[0], 0xfe);
    EXPECT_EQ(buffer[1], 9);
    EXPECT_EQ(mirk_boolean_unmarshal(h, 7, buffer, &read, 2, 0, &err), 2u);
    EXPECT_EQ(read.variant, -2);
    EXPECT_EQ(read.value, 9);
    EXPECT_EQ(read.obj_flag, 4);
    EXPECT_EQ(read.tinfo, nullptr);
    buffer[0] = 3;
    EXPECT_EQ(mirk_boolean_unmarshal(h, 7, buffer, &read, 2, 0, &err), 2u);
    EXPECT_EQ(read.variant, 0);
    EXPECT_EQ(mirk_boolean_unmarshal(h, 7, buffer, &read, 1, 0, &err), 0u);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
}

TEST(Boolean, WritesTrueAndFalse) {
    Handle h;
    mirk_boolean field{};
    char buffer[64];
    uint32_t err = 0;
    EXPECT_EQ(mirk_boolean_print(h, 7, buffer, 1, "on", &field, 64, &err), 23u);
    EXPECT_STREQ(buffer, " on@mirk_boolean:false\n");
    field.value = 7;
    EXPECT_EQ(mirk_boolean_to_xml(h, 7, "on", buffer, &field, 64, 1, &err), 23u);
    EXPECT_STREQ(buffer, "<on state=\"1\">true</on>");
}

TEST(Boolean, ReadsFourWords) {
    Handle h;
    const auto read = [&](const std::string &text, mirk_boolean *field) {
        kit::Document document("<on>" + text + "</on>");
        uint32_t err = 0;
        mirk_boolean_from_xml(h, 7, "//on", document, field, &err, nullptr, 0);
        return err;
    };
    mirk_boolean field{};
    EXPECT_EQ(read(" true ", &field), 0u);
    EXPECT_EQ(field.value, 1);
    EXPECT_EQ(read("0", &field), 0u);
    EXPECT_EQ(field.value, 0);
    EXPECT_EQ(read("1", &field), 0u);
    EXPECT_EQ(field.value, 1);
    EXPECT_EQ(read("false", &field), 0u);
    EXPECT_EQ(field.value, 0);
    EXPECT_EQ(field.obj_flag, 0);
    for (const char *bad : {"", "yes", "TRUE", "2", "true false"})
        EXPECT_EQ(read(bad, &field), uint32_t{EINVAL}) << bad;
}

TEST(Boolean, ComparesAndHashesByTruth) {
    mirk_boolean one{}, two{}, no{};
    one.value = 1;
    two.value = 2;
    EXPECT_EQ(mirk_boolean_compare(&one, &two), 0);
    EXPECT_EQ(mirk_boolean_hash(&one, 5), mirk_boolean_hash(&two, 5));
    EXPECT_EQ(mirk_boolean_compare(&no, &one), -1);
    EXPECT_EQ(mirk_boolean_compare(&one, &no), 1);
    EXPECT_EQ(mirk_boolean_compare(nullptr, &no), -1);
    EXPECT_EQ(mirk_boolean_compare(&no, nullptr), 1);
    EXPECT_EQ(mirk_boolean_compare(nullptr, nullptr), 0);
    EXPECT_NE(mirk_boolean_hash(&one, 5), mirk_boolean_hash(&no, 5));
}

TEST(Boolean, SetsTheEmbeddedFlag) {
    Handle h;
    kit::Events log(h);
    test::Trace trace;
    mirk_boolean field{};
    mirk_boolean_set_instance_embedded(h, 7, &field);
    EXPECT_EQ(field.obj_flag, 2);
    EXPECT_EQ(log.of(MIRK_PLATFORM_TESTING_WRITE_NOTIFY).size(), 1u);
    mirk_boolean_set_instance_embedded(h, 7, nullptr);
    EXPECT_TRUE(trace.has(3, "Invalid object pointer"));
}
