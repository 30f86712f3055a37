// The contract fixes these layouts, so that a compiled library works with every runtime.
#include <cstddef>

#include "support.hpp"

static_assert(sizeof(mirk_variant_entry) == 40 && offsetof(mirk_variant_entry, num_created) == 16);
static_assert(sizeof(mirk_variant_info) == 16 && offsetof(mirk_variant_info, entries) == 8);
static_assert(sizeof(mirk_type_info) == 272);
static_assert(offsetof(mirk_type_info, luid) == 4 && offsetof(mirk_type_info, luid_text) == 20);
static_assert(offsetof(mirk_type_info, name) == 53 && offsetof(mirk_type_info, module) == 117);
static_assert(offsetof(mirk_type_info, kind) == 181 && offsetof(mirk_type_info, reserved_index) == 248);
static_assert(offsetof(mirk_type_info, variant_info) == 256 && offsetof(mirk_type_info, plain_counters) == 264);
static_assert(sizeof(mirk_type_info_copy) == 288 && offsetof(mirk_type_info_copy, store_word_0) == 272);
static_assert(sizeof(mirk_object) == 16 && alignof(mirk_object) == 8);
static_assert(offsetof(mirk_object, variant) == 8 && offsetof(mirk_object, home_variant) == 9);
static_assert(offsetof(mirk_object, obj_flag) == 10);
static_assert(sizeof(mirk_boolean) == 16 && offsetof(mirk_boolean, value) == 11);
static_assert(sizeof(ip_address) == 40 && alignof(ip_address) == 8);
static_assert(offsetof(ip_address, af) == 11 && offsetof(ip_address, prefix_len) == 12);
static_assert(offsetof(ip_address, scope) == 14 && offsetof(ip_address, word) == 16 &&
              offsetof(ip_address, slop) == 32);
static_assert(sizeof(mirk_message_header) == 16 && alignof(mirk_message_header) == 4);
static_assert(offsetof(mirk_message_header, fill) == 1 && offsetof(mirk_message_header, sttr) == 7);
static_assert(offsetof(mirk_message_header, stamp) == 8 && offsetof(mirk_message_header, total_length) == 12);
static_assert(sizeof(mirk_allowed_row) == 24 && sizeof(mirk_list_head) == 16 && sizeof(mirk_sttr_desc) == 4);
static_assert(sizeof(mirk_dispatch_info) == 40 && offsetof(mirk_dispatch_info, name) == 8);
static_assert(offsetof(mirk_dispatch_info, handler) == 32);
static_assert(sizeof(mirk_module) == 32 && offsetof(mirk_module, next) == 16 && offsetof(mirk_module, prev) == 24);
static_assert(sizeof(mirk_module_root) == 24 && offsetof(mirk_module_root, last) == 16);
static_assert(sizeof(mirk_domain) == 32);
static_assert(offsetof(mirk_handle, sys_alloc) == 0 && offsetof(mirk_handle, private_types) == 56);
static_assert(offsetof(mirk_handle, mem_ctx) == 64 && offsetof(mirk_handle, bundle_handler) == 88);
static_assert(offsetof(mirk_handle, send_bundle_open) == 96 && offsetof(mirk_handle, bundle_table) == 104);
static_assert(offsetof(mirk_handle, recv_bundle_lut) == 112 && offsetof(mirk_handle, send_bundle_list) == 136);
static_assert(offsetof(mirk_handle, recv_bundle_list) == 152 && offsetof(mirk_handle, domain_name) == 168);
static_assert(offsetof(mirk_handle, message_stamp) == 176 && offsetof(mirk_handle, domain) == 184);
static_assert(offsetof(mirk_handle, last_error) == 216 && offsetof(mirk_handle, cr_mode) == 224);
static_assert(offsetof(mirk_handle, sttr_desc) == 232 && offsetof(mirk_handle, oid_mapping) == 240);

TEST(Layout, RuntimeTypesHaveTheirSizes) {
    const mirk_variant_entry &boolean = _mirk_boolean_type_info_internal.variant_info->entries[0];
    EXPECT_EQ(boolean.used_length + boolean.alloc_slop, sizeof(mirk_boolean));
    const mirk_variant_entry &address = _ip_address_type_info_internal.variant_info->entries[0];
    EXPECT_EQ(address.used_length, offsetof(ip_address, slop));
    EXPECT_EQ(address.used_length + address.alloc_slop, sizeof(ip_address));
}

TEST(Layout, RuntimeTypesHaveTheirNames) {
    for (const mirk_type_info *type : {&_mirk_boolean_type_info_internal, &_ip_address_type_info_internal}) {
        EXPECT_EQ(type->magic, 0xbeeff00du);
        EXPECT_EQ(type->reserved_index, -1);
        EXPECT_EQ(type->plain_counters, 0u);
        char text[33];
        for (size_t i = 0; i < 16; ++i) std::snprintf(text + 2 * i, 3, "%02x", unsigned{type->luid[i]});
        EXPECT_STREQ(type->luid_text, text);
        for (int variant = -128; variant <= 0; ++variant) {
            EXPECT_EQ(type->variant_info->entries[variant].used_length, type->variant_info->entries[0].used_length);
        }
    }
    EXPECT_STREQ(_ip_address_type_info_internal.name, "ip_address");
    EXPECT_STREQ(_mirk_boolean_type_info_internal.name, "mirk_boolean");
}
