#include <memory>

#include "support.hpp"

using test::Handle;

namespace {

struct Variants {
    mirk_variant_entry entries[129]{};
    mirk_variant_info info{1, &entries[128]};
    Variants() {
        for (auto &entry : entries) entry.used_length = 48, entry.alloc_slop = 8, entry.num_created = 11;
    }
};

mirk_type_info *registered = nullptr;
int initialized = 0;

void initialize_copy(mirk_handle *h, uint32_t ctx_id, uint32_t *) {
    ++initialized;
    auto *copy = static_cast<mirk_type_info_copy *>(h->sys_alloc(h->sys_ctx, 0xffffffffu, sizeof(mirk_type_info_copy)));
    *copy = {*registered, 0, 0};
    h->type_store_put(h->type_store, ctx_id, copy->info.luid_text, copy);
    mirk_update_variant_info(h, ctx_id, copy, registered, 1);
}

void initialize_nothing(mirk_handle *, uint32_t, uint32_t *) { ++initialized; }

}  // namespace

TEST(TypeStore, CallsInitOnceAndFindsTheCopyByItsLuid) {
    Handle h({.private_types = 1});
    Variants variants;
    mirk_type_info type = test::make_type(1, &variants.info), twin = type;
    registered = &type;
    initialized = 0;
    mirk_type_info *copy = mirk_type_info_ptr_get(h, 7, &type, initialize_copy);
    EXPECT_NE(copy, &type);
    EXPECT_EQ(mirk_type_info_ptr_get(h, 7, &twin, initialize_copy), copy);
    EXPECT_EQ(initialized, 1);
    EXPECT_STREQ(copy->luid_text, type.luid_text);
}

TEST(TypeStore, FallsBackToTheModulesRecord) {
    Handle h({.private_types = 1});
    mirk_type_info type = test::make_type(1);
    initialized = 0;
    EXPECT_EQ(mirk_type_info_ptr_get(h, 7, &type, initialize_nothing), &type);
    EXPECT_EQ(initialized, 1);
    EXPECT_EQ(mirk_type_info_ptr_get(h, 7, nullptr, initialize_nothing), nullptr);
}

TEST(VariantInfo, ANewCopyHas129EntriesOfItsOwn) {
    Handle h({.private_types = 1});
    Variants variants;
    mirk_type_info type = test::make_type(1, &variants.info);
    mirk_type_info_copy copy{type, 0, 0};
    mirk_update_variant_info(h, 7, &copy, &type, 1);
    ASSERT_NE(copy.info.variant_info, &variants.info);
    EXPECT_EQ(copy.info.variant_info->n_variants, 1);
    for (int variant = -128; variant <= 0; ++variant) {
        const mirk_variant_entry &entry = copy.info.variant_info->entries[variant];
        ASSERT_EQ(entry.used_length, 48u);
        ASSERT_EQ(entry.alloc_slop, 8u);
        ASSERT_EQ(entry.num_created, 0u);
    }
}

TEST(VariantInfo, AKnownCopyGetsTheSizesOnly) {
    Handle h({.private_types = 1});
    Variants variants;
    mirk_type_info type = test::make_type(1, &variants.info);
    mirk_type_info_copy copy{type, 0, 0};
    mirk_update_variant_info(h, 7, &copy, &type, 1);
    mirk_variant_info *block = copy.info.variant_info;
    block->entries[0].num_live = 3;
    variants.entries[128].used_length = 56;
    mirk_update_variant_info(h, 7, &copy, &type, 0);
    EXPECT_EQ(copy.info.variant_info, block);
    EXPECT_EQ(block->entries[0].used_length, 56u);
    EXPECT_EQ(block->entries[0].num_live, 3u);
}

TEST(VariantInfo, TheBlockIsSharedIfAllocationFails) {
    Handle h({.private_types = 1});
    Variants variants;
    mirk_type_info type = test::make_type(1, &variants.info);
    mirk_type_info_copy copy{type, 0, 0};
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_VARIANT_BLOCK, 1, 0);
    mirk_update_variant_info(h, 7, &copy, &type, 1);
    EXPECT_EQ(copy.info.variant_info, &variants.info);
    EXPECT_EQ(variants.entries[128].num_created, 11u);
}

TEST(Siblings, StoreTheHandlerRegisteredLast) {
    const mirk_bundle_handler one = [](mirk_handle *, uint32_t, void *, uint32_t *) {};
    const mirk_bundle_handler two = [](mirk_handle *, uint32_t, void *, uint32_t *) { std::abort(); };
    EXPECT_EQ(veld_view_bundle_handler_register(one), nullptr);
    EXPECT_EQ(veld_comm_bundle_handler_register(two), nullptr);
    EXPECT_EQ(veld_view_bundle_handler_register(two), one);
    EXPECT_EQ(veld_view_bundle_handler_unregister(), two);
    EXPECT_EQ(veld_view_bundle_handler_unregister(), nullptr);
    EXPECT_EQ(veld_comm_bundle_handler_unregister(), two);
}

TEST(Siblings, DefineTheIdentityOfRequests) {
    EXPECT_EQ(message_ui_req_msg_luid[0], 0xb7);
    EXPECT_EQ(message_ui_req_msg_luid[15], 0xa5);
    EXPECT_STREQ(message_ui_req_msg_name, "message ui_req_msg");
}
