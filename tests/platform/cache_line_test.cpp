// Counters that threads share, and counters of private types, are at the start of a cache line of their own.
#include "support.hpp"

using test::Handle;

namespace {

constexpr uintptr_t line = 64;

uintptr_t offset_in_line(const mirk_type_info *type) {
    return reinterpret_cast<uintptr_t>(type->variant_info->entries) % line;
}

}  // namespace

TEST(CacheLine, CountersOfSharedTypesStartOne) {
    EXPECT_EQ(offset_in_line(&_mirk_boolean_type_info_internal), 0u);
    EXPECT_EQ(offset_in_line(&_ip_address_type_info_internal), 0u);
}

TEST(CacheLine, CountersOfPrivateTypesStartOne) {
    const Handle h({.private_types = 1});
    ip_address address{};
    uint32_t err = 0;
    ip_address_initialize(h, 7, &address, &_ip_address_type_info_internal, 0, 0, 0, nullptr, &err);
    ASSERT_NE(address.tinfo, &_ip_address_type_info_internal);
    EXPECT_EQ(offset_in_line(address.tinfo), 0u);
    ip_address_destroy_internal(h, 7, &address, 0);
}

TEST(CacheLine, HandlesAndMemoryUntilTheirEndStartOne) {
    const Handle h;
    EXPECT_EQ(reinterpret_cast<uintptr_t>(static_cast<mirk_handle *>(h)) % line, 0u);
    for (const size_t size : {size_t{0}, size_t{1}, size_t{300}}) {
        auto *const block = static_cast<uint8_t *>(h->sys_alloc(h->sys_ctx, 0xffffffffu, size));
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % line, 0u);
        for (size_t i = 0; i < size; ++i) EXPECT_EQ(block[i], 0u);
    }
    EXPECT_EQ(h->sys_alloc(h->sys_ctx, 0xffffffffu, SIZE_MAX), nullptr);
}
