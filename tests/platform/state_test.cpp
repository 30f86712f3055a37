#include "support.hpp"

using test::Handle;

namespace {

struct Object : mirk_object {
    Object() : mirk_object{} {}
};

}  // namespace

TEST(InstanceState, NullHasNoVariantFlagsOrMark) {
    EXPECT_EQ(mirk_get_instance_variant(nullptr, 1, 0), 0);
    EXPECT_EQ(mirk_get_instance_obj_flag(nullptr, 1, 0), 0);
    EXPECT_EQ(mirk_get_instance_modified(nullptr, 1, 0), 0u);
    mirk_set_instance_modified(nullptr, 1, 0, 1);
}

TEST(InstanceState, TheModifiedMarkIsOneBitForEveryCaller) {
    Object object;
    object.variant = -2;
    mirk_set_instance_modified(&object, 1, 1, 1);
    EXPECT_EQ(object.obj_flag, 16);
    EXPECT_EQ(mirk_get_instance_modified(&object, 0, 1), 1u);
    mirk_set_instance_modified(&object, 1, 0, 0);
    EXPECT_EQ(mirk_get_instance_obj_flag(&object, 1, 0), 0);
    EXPECT_EQ(mirk_get_instance_variant(&object, 1, 0), -2);
}

TEST(AdjustVariant, StoresTheVariantOfTheDomainUncappedAndNotifies) {
    Handle h;
    mirk_type_info type = test::make_type(1);
    Object object;
    object.tinfo = &type;
    mirk_platform_domain_set_variant(h, type.luid, 3);
    kit::Events log(h);
    uint32_t err = 0;
    mirklib_adjust_variant(h, 7, &object, &type, 0, &err);
    mirklib_adjust_variant(h, 7, &object, &type, 0, &err);
    EXPECT_EQ(object.variant, 3);
    const auto notifications = log.of(MIRK_PLATFORM_TESTING_WRITE_NOTIFY);
    ASSERT_EQ(notifications.size(), 1u);
    EXPECT_EQ(notifications[0].address, &object.variant);
    EXPECT_EQ(notifications[0].size, 1u);
}

TEST(AdjustVariant, DoesNothingForNullOrIfAnErrorIsSet) {
    Handle h;
    mirk_type_info type = test::make_type(1);
    Object object;
    mirk_platform_domain_set_variant(h, type.luid, 3);
    uint32_t err = 0;
    mirklib_adjust_variant(h, 7, nullptr, &type, 0, &err);
    mirklib_adjust_variant(h, 7, &object, nullptr, 0, &err);
    err = 5;
    mirklib_adjust_variant(h, 7, &object, &type, 0, &err);
    EXPECT_EQ(object.variant, 0);
    EXPECT_EQ(err, 5u);
}

TEST(StateOffset, TheLatestUpdateIsReturned) {
    Handle h;
    Object object;
    mirklib_update_sttr_offset(h, 7, &object, 100);
    mirklib_update_sttr_offset(h, 7, &object, 200);
    EXPECT_EQ(object.obj_flag, 64);
    EXPECT_EQ(mirklib_get_sttr_offset(h, 7, &object), 200u);
    EXPECT_EQ(mirk_platform_testing_offset_entries(h), 1u);
}

TEST(StateOffset, TheAreaFollowsTheObjectIfNoOffsetIsRecorded) {
    Handle h;
    mirk_variant_entry entry{0, 300, 20, 0, 0, 0};
    mirk_variant_info variants{1, &entry};
    mirk_type_info type = test::make_type(1, &variants);
    Object object;
    EXPECT_EQ(mirklib_get_sttr_offset(h, 7, &object), 0u);
    object.tinfo = &type;
    EXPECT_EQ(mirklib_get_sttr_offset(h, 7, &object), 320u);
}

TEST(RaData, IsEmptyIfNoneIsRecorded) {
    Handle h;
    Object object;
    void *value = &object;
    uint8_t byte = 9;
    EXPECT_EQ(mirklib_get_ra_data(h, 7, &object, &value, &byte), 0u);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(byte, 0);
    EXPECT_EQ(mirk_platform_ra_data(h, &object, nullptr, nullptr), uint32_t{ENOENT});
}

TEST(RaData, IsRecordedPerObject) {
    Handle h;
    Object object;
    void *value = nullptr;
    uint8_t byte = 0;
    EXPECT_EQ(mirk_platform_set_ra_data(h, &object, reinterpret_cast<void *>(0x1234), 5), 0u);
    EXPECT_EQ(object.obj_flag, 32);
    EXPECT_EQ(mirklib_get_ra_data(h, 7, &object, &value, &byte), 0u);
    EXPECT_EQ(value, reinterpret_cast<void *>(0x1234));
    EXPECT_EQ(byte, 5);
    mirklib_update_ra_all(h, 7, &object, reinterpret_cast<void *>(0x99), 6);
    EXPECT_EQ(mirk_platform_ra_data(h, &object, &value, &byte), 0u);
    EXPECT_EQ(byte, 6);
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_RA_DATA, 0, 1, 5);
    EXPECT_EQ(mirklib_get_ra_data(h, 7, &object, &value, &byte), 5u);
}

TEST(HdMapping, DestroyRemovesBothEntriesAndChangesNoFlags) {
    Handle h;
    Object object;
    uint32_t err = 0;
    mirk_hd_mapping_destroy(h, 7, &object, &err);
    EXPECT_EQ(err, 0u);
    mirklib_update_sttr_offset(h, 7, &object, 4);
    mirk_platform_set_ra_data(h, &object, nullptr, 1);
    mirk_hd_mapping_destroy(h, 7, &object, &err);
    EXPECT_EQ(mirk_platform_testing_offset_entries(h), 0u);
    EXPECT_EQ(mirk_platform_testing_ra_entries(h), 0u);
    EXPECT_EQ(object.obj_flag, 32 | 64);
}

TEST(HdMapping, DestroyFailsOnRequest) {
    Handle h;
    Object object;
    mirklib_update_sttr_offset(h, 7, &object, 4);
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_HD_MAPPING_DESTROY, 0, 1, EINVAL);
    uint32_t err = 0;
    mirk_hd_mapping_destroy(h, 7, &object, &err);
    EXPECT_EQ(err, uint32_t{EINVAL});
    EXPECT_EQ(mirk_platform_testing_offset_entries(h), 1u);
}

TEST(ObjFree, ErasesEveryEntryInTheBlockAndNoOther) {
    Handle h;
    for (const size_t size : {size_t{8}, size_t{264}, size_t{4096}, size_t{100000}}) {
        auto *block = static_cast<char *>(h.alloc(size));
        auto *other = static_cast<char *>(h.alloc(16));
        std::memset(block, 0, size);
        std::memset(other, 0, 16);
        const size_t stride = size < 16 ? 8 : 24;
        size_t entries = 0;
        for (size_t at = 0; at + 16 <= size; at += stride, ++entries) {
            mirklib_update_sttr_offset(h, 7, block + at, static_cast<uint32_t>(at));
            mirklib_update_ra_all(h, 7, block + at, nullptr, 1);
        }
        mirklib_update_sttr_offset(h, 7, other, 5);
        EXPECT_EQ(mirk_platform_testing_offset_entries(h), entries + 1);
        for (size_t at = 0; at + 16 <= size; at += stride) {
            ASSERT_EQ(mirklib_get_sttr_offset(h, 7, block + at), at);
        }
        h.free(block);
        EXPECT_EQ(mirk_platform_testing_offset_entries(h), 1u) << size;
        EXPECT_EQ(mirk_platform_testing_ra_entries(h), 0u);
        uint32_t offset = 0;
        EXPECT_EQ(mirk_platform_sttr_offset(h, other, &offset), 0u);
        EXPECT_EQ(offset, 5u);
        h.free(other);
    }
    EXPECT_EQ(mirk_platform_testing_offset_entries(h), 0u);
}
