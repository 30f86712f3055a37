// The short tests at the start of primitives: arguments for which they are not conclusive, and what they must count.
#include <sys/mman.h>

#include "support.hpp"

using test::Handle;

namespace {

// A page at an address that the test chooses.
class Page {
public:
    explicit Page(uintptr_t address)
        : memory_(mmap(reinterpret_cast<void *>(address), size, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0)) {}
    ~Page() {
        if (good()) munmap(memory_, size);
    }
    Page(const Page &) = delete;
    Page &operator=(const Page &) = delete;

    bool good() const { return memory_ != MAP_FAILED; }
    template <typename T>
    T *as() const {
        return static_cast<T *>(memory_);
    }

private:
    static constexpr size_t size = 4096;
    void *memory_;
};

}  // namespace

TEST(PrimitiveEntry, MovesBetweenAddressesWithoutACommonBit) {
    const Handle h;
    const Page buffer(0x10000000), value(0x20000000);
    ASSERT_TRUE(buffer.good() && value.good());
    uint32_t err = 0;
    *value.as<uint32_t>() = 0x01020304;
    EXPECT_EQ(u_int32_marshal(h, 7, buffer.as<void>(), value.as<uint32_t>(), 4, &err), 4u);
    EXPECT_EQ(std::memcmp(buffer.as<void>(), "\1\2\3\4", 4), 0);
    *value.as<uint32_t>() = 0;
    EXPECT_EQ(u_int32_unmarshal(h, 7, buffer.as<void>(), value.as<uint32_t>(), 4, 0, &err), 4u);
    EXPECT_EQ(*value.as<uint32_t>(), 0x01020304u);
    EXPECT_EQ(u_int32_marshal(h, 7, buffer.as<void>(), value.as<uint32_t>(), 3, &err), 0u);
    EXPECT_EQ(err, unsigned{EMSGSIZE});
}

TEST(PrimitiveEntry, MovesAnIpAddressBetweenAddressesWithoutACommonBit) {
    const Handle h;
    const Page buffer(0x10000000), value(0x20000000);
    ASSERT_TRUE(buffer.good() && value.good());
    uint32_t err = 0;
    auto *address = value.as<ip_address>();
    address->word[3] = 0x0a000001;
    EXPECT_EQ(ip_address_marshal(h, 7, buffer.as<void>(), address, 26, &err), 26u);
    address->word[3] = 0;
    EXPECT_EQ(ip_address_unmarshal(h, 7, buffer.as<void>(), address, 26, 0, &err), 26u);
    EXPECT_EQ(address->word[3], 0x0a000001u);
    EXPECT_EQ(err, 0u);
}

TEST(PrimitiveEntry, HandleWithASilentDomainCountsEachLookUpOnce) {
    const Handle h;
    mirk_boolean object{};
    ip_address address{};
    uint32_t err = 0;
    const auto looked_up = [&] { return mirk_platform_testing_calls(h, MIRK_PLATFORM_TESTING_VARIANT_LOOKUP); };
    mirk_boolean_initialize(h, 7, &object, &_mirk_boolean_type_info_internal, 1, 0, 0, nullptr, &err);
    EXPECT_EQ(looked_up(), 1u);
    ip_address_initialize(h, 7, &address, &_ip_address_type_info_internal, 1, 0, 0, nullptr, &err);
    EXPECT_EQ(looked_up(), 2u);
    mirklib_adjust_variant(h, 7, &address, address.tinfo, 0, &err);
    EXPECT_EQ(looked_up(), 3u);
    address.variant = -1;
    mirklib_adjust_variant(h, 7, &address, address.tinfo, 0, &err);
    EXPECT_EQ(looked_up(), 4u);
    EXPECT_EQ(address.variant, 0);
    ip_address_destroy_internal(h, 7, &address, 0);
}
