#include <arpa/inet.h>

#include "support.hpp"

using test::Handle;

namespace {

ip_address make(uint8_t af, uint8_t prefix_len, uint16_t scope, uint32_t a, uint32_t b = 0, uint32_t c = 0,
                uint32_t d = 0) {
    ip_address address{};
    address.af = af;
    address.prefix_len = prefix_len;
    address.scope = scope;
    address.word[0] = a;
    address.word[1] = b;
    address.word[2] = c;
    address.word[3] = d;
    return address;
}

// An address that is not embedded, followed by its state area.
struct Placed {
    ip_address address{};
    uint8_t states[8]{};

    explicit Placed(mirk_handle *h) {
        uint32_t err = 0;
        ip_address_initialize(h, 7, &address, &_ip_address_type_info_internal, 1, 0, 0, nullptr, &err);
        EXPECT_EQ(err, 0u);
    }
};

std::string text_of(ip_address address) {
    char buffer[160];
    uint32_t err = 0;
    Handle h;
    ip_address_to_xml(h, 7, "a", buffer, &address, sizeof buffer, 0, &err);
    EXPECT_EQ(err, 0u);
    const std::string text = buffer;
    return text.substr(3, text.size() - 7);
}

uint32_t read(const std::string &text, ip_address *address) {
    Handle h;
    kit::Document document("<a>" + text + "</a>");
    uint32_t err = 0;
    ip_address_from_xml(h, 7, "//a", document, address, &err, nullptr, 0);
    return err;
}

}  // namespace

TEST(Address, HasReadableForms) {
    EXPECT_EQ(text_of({}), "unset");
    EXPECT_EQ(text_of(make(AF_INET, 24, 0, 0x0a010203)), "10.1.2.3/24");
    EXPECT_EQ(text_of(make(AF_INET, 0, 0, 0)), "0.0.0.0/0");
    EXPECT_EQ(text_of(make(AF_INET6, 32, 0, 0x20010db8)), "2001:db8::/32");
    EXPECT_EQ(text_of(make(AF_INET6, 64, 9, 0xfe800000, 0, 0, 1)), "fe80::1%9/64");
    EXPECT_EQ(text_of(make(AF_INET, 24, 0, 1, 0, 0, 5)), "2,0,1,0,0,5/24");
    EXPECT_EQ(text_of(make(77, 255, 65535, 0xffffffff, 1, 2, 3)), "77,65535,4294967295,1,2,3/255");
    EXPECT_EQ(text_of(make(0, 0, 1, 0)), "0,1,0,0,0,0/0");
}

TEST(Address, EveryValueSurvivesARoundThroughXml) {
    const uint8_t families[] = {0, 1, AF_INET, 3, AF_INET6, 255};
    const uint32_t words[] = {0, 1, 0x7f000001, 0xffffffff};
    for (const uint8_t af : families) {
        for (const uint32_t word : words) {
            for (int mask = 0; mask < 64; ++mask) {
                const auto pick = [&](int bit) { return (mask >> bit & 1) != 0 ? word : 0u; };
                const ip_address address = make(af, (mask & 1) != 0 ? 255 : 0, (mask & 2) != 0 ? 65535 : 0, pick(2),
                                                pick(3), pick(4), pick(5));
                ip_address back = make(9, 9, 9, 9, 9, 9, 9);
                ASSERT_EQ(read(text_of(address), &back), 0u) << text_of(address);
                ASSERT_EQ(ip_address_compare(&address, &back), 0) << text_of(address);
                char text[MIRK_PLATFORM_ADDRESS_TEXT_SIZE];
                ASSERT_EQ(mirk_platform_address_text(&address, text, sizeof text), 0u) << text_of(address);
                ASSERT_EQ(text, text_of(address));
            }
        }
    }
}

TEST(Address, TextIsWrittenWholeOrNotAtAll) {
    const ip_address address = make(AF_INET, 24, 0, 0x0a010203);
    const std::string expected = "10.1.2.3/24";
    for (size_t size = 0; size <= expected.size() + 2; ++size) {
        std::string text(32, '#');
        const bool fits = size > expected.size();
        EXPECT_EQ(mirk_platform_address_text(&address, text.data(), size), mirk_platform_error(fits ? 0 : EMSGSIZE));
        EXPECT_EQ(text.substr(0, expected.size() + 2), fits ? expected + '\0' + '#' : std::string(13, '#')) << size;
    }
    char text[MIRK_PLATFORM_ADDRESS_TEXT_SIZE];
    EXPECT_EQ(mirk_platform_address_text(nullptr, text, sizeof text), mirk_platform_error{EINVAL});
    EXPECT_EQ(mirk_platform_address_text(&address, nullptr, sizeof text), mirk_platform_error{EINVAL});
    const ip_address longest = make(255, 255, 65535, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff);
    EXPECT_EQ(mirk_platform_address_text(&longest, text, sizeof text), 0u);
    const ip_address longest_v6 = make(AF_INET6, 255, 65535, 0x11111111, 0x11111111, 0x11111111, 0x11111111);
    EXPECT_EQ(mirk_platform_address_text(&longest_v6, text, sizeof text), 0u);
}

TEST(Address, IsParsedFromAPartOfAText) {
    ip_address address = make(9, 9, 9, 9, 9, 9, 9);
    const char text[] = "fe80::1%9/640";
    EXPECT_EQ(mirk_platform_address_parse(text, sizeof text - 2, &address), 0u);
    EXPECT_EQ(text_of(address), "fe80::1%9/64");
    EXPECT_EQ(mirk_platform_address_parse(nullptr, 0, &address), mirk_platform_error{EINVAL});
    EXPECT_EQ(mirk_platform_address_parse(text, 0, nullptr), mirk_platform_error{EINVAL});
}

TEST(Address, RefusesTextThatIsNotAnAddress) {
    ip_address address = make(AF_INET, 8, 0, 0x0a000000);
    for (const char *bad : {"", "10.0.0.1", "10.0.0.1/", "10.0.0.1/256", "10.0.0/8", "10.0.0.1/8/8", "::1%/64",
                            "::1%65536/64", "unset/0", "Unset", "1,2,3/4", "256,0,0,0,0,0/0", "1,0,0,0,0,0,0/0",
                            "1,0,0,0,0,/0", "2001:db8:::/32", "x/1", "10.0.0.1 /8"}) {
        EXPECT_EQ(read(bad, &address), uint32_t{EINVAL}) << bad;
        EXPECT_EQ(mirk_platform_address_parse(bad, std::strlen(bad), &address), mirk_platform_error{EINVAL}) << bad;
    }
    EXPECT_EQ(address.word[0], 0x0a000000u);
    EXPECT_EQ(read("  unset\n", &address), 0u);
    EXPECT_EQ(address.af, 0);
}

TEST(Address, PrintsALine) {
    Handle h;
    ip_address address = make(AF_INET, 24, 0, 0x0a010203);
    char buffer[64];
    uint32_t err = 0;
    EXPECT_EQ(ip_address_print(h, 7, buffer, 2, "prefix", &address, 64, &err), 32u);
    EXPECT_STREQ(buffer, "  prefix@ip_address:10.1.2.3/24\n");
}

TEST(Address, OrdersMemberByMemberUnsigned) {
    const ip_address base = make(2, 2, 2, 2, 2, 2, 2);
    const auto order = [&](const ip_address &other) { return ip_address_compare(&base, &other); };
    EXPECT_EQ(order(base), 0);
    EXPECT_EQ(order(make(255, 0, 0, 0)), -1);
    EXPECT_EQ(order(make(2, 1, 9, 9)), 1);
    EXPECT_EQ(order(make(2, 2, 3, 0)), -1);
    EXPECT_EQ(order(make(2, 2, 2, 0xffffffff)), -1);
    EXPECT_EQ(order(make(2, 2, 2, 2, 2, 2, 1)), 1);
    EXPECT_EQ(ip_address_compare(nullptr, &base), -1);
    EXPECT_EQ(ip_address_compare(&base, nullptr), 1);
    ip_address marked = base;
    marked.obj_flag = 16;
    EXPECT_EQ(order(marked), 0);
    EXPECT_EQ(ip_address_hash(&marked, 3), ip_address_hash(&base, 3));
    const ip_address other = make(2, 2, 2, 2, 2, 2, 3);
    EXPECT_NE(ip_address_hash(&other, 3), ip_address_hash(&base, 3));
    EXPECT_EQ(ip_address_hash(nullptr, 3), 3u);
}

TEST(AddressWire, IsARecordFrameOf26Bytes) {
    Handle h;
    Placed source(h), target(h);
    source.address.af = AF_INET6;
    source.address.prefix_len = 32;
    source.address.scope = 0x0102;
    source.address.word[0] = 0x20010db8;
    source.address.word[3] = 0x05060708;
    uint8_t buffer[40];
    uint32_t err = 0;
    EXPECT_EQ(ip_address_len(h, 7, &source.address), 26u);
    EXPECT_EQ(ip_address_len(h, 7, nullptr), 26u);
    ASSERT_EQ(ip_address_marshal(h, 7, buffer, &source.address, 26, &err), 26u);
    const uint8_t expected[26] = {0,    0, 0, 0, 0, 24, 10, 32, 1, 2, 0x20, 0x01, 0x0d,
                                  0xb8, 0, 0, 0, 0, 0,  0,  0,  0, 5, 6,    7,    8};
    EXPECT_EQ(std::memcmp(buffer, expected, sizeof expected), 0);
    ASSERT_EQ(ip_address_unmarshal(h, 7, buffer, &target.address, 26, 0, &err), 26u);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(ip_address_compare(&source.address, &target.address), 0);
}

TEST(AddressWire, CarriesSevenStateBytesOnATrackingHandle) {
    Handle h(kit::Tracking::on);
    Placed source(h), target(h);
    for (uint8_t i = 0; i < 7; ++i) source.states[i] = static_cast<uint8_t>(10 + i);
    uint8_t buffer[40];
    uint32_t err = 0;
    EXPECT_EQ(ip_address_len(h, 7, &source.address), 33u);
    ASSERT_EQ(ip_address_marshal(h, 7, buffer, &source.address, 40, &err), 33u);
    EXPECT_EQ(buffer[1], 8);
    EXPECT_EQ(buffer[5], 31);
    EXPECT_EQ(buffer[7], 10);
    EXPECT_EQ(buffer[32], 16);
    ASSERT_EQ(ip_address_unmarshal(h, 7, buffer, &target.address, 33, 0, &err), 33u);
    EXPECT_EQ(std::memcmp(source.states, target.states, 7), 0);
    Handle plain;
    Placed untracked(plain);
    ASSERT_EQ(ip_address_unmarshal(plain, 7, buffer, &untracked.address, 33, 0, &err), 33u);
    EXPECT_EQ(untracked.address.obj_flag & 8, 0);
    EXPECT_EQ(err, 0u);
}

TEST(AddressWire, CarriesRaData) {
    Handle h;
    Placed source(h), target(h);
    mirk_platform_set_ra_data(h, &source.address, reinterpret_cast<void *>(0x1122334455667788), 9);
    uint8_t buffer[40];
    uint32_t err = 0;
    ASSERT_EQ(ip_address_marshal(h, 7, buffer, &source.address, 40, &err), 35u);
    EXPECT_EQ(buffer[1], 32);
    EXPECT_EQ(buffer[2], 0x11);
    EXPECT_EQ(buffer[10], 9);
    ASSERT_EQ(ip_address_unmarshal(h, 7, buffer, &target.address, 35, 0, &err), 35u);
    void *value = nullptr;
    uint8_t byte = 0;
    EXPECT_EQ(mirk_platform_ra_data(h, &target.address, &value, &byte), 0u);
    EXPECT_EQ(value, reinterpret_cast<void *>(0x1122334455667788));
    EXPECT_EQ(byte, 9);
    EXPECT_EQ(target.address.obj_flag & 32, 32);
}

TEST(AddressWire, NegativeVariantHasNoBody) {
    Handle h;
    Placed source(h), target(h);
    source.address.variant = -1;
    target.address.word[0] = 5;
    uint8_t buffer[40];
    uint32_t err = 0;
    EXPECT_EQ(ip_address_len(h, 7, &source.address), 6u);
    ASSERT_EQ(ip_address_marshal(h, 7, buffer, &source.address, 40, &err), 6u);
    ASSERT_EQ(ip_address_unmarshal(h, 7, buffer, &target.address, 6, 0, &err), 6u);
    EXPECT_EQ(target.address.variant, -1);
    EXPECT_EQ(target.address.word[0], 5u);
}

TEST(AddressWire, SkipsMembersThatANewerSenderAdded) {
    Handle h;
    test::Trace trace;
    Placed target(h);
    uint8_t frame[31] = {3, 0, 0, 0, 0, 29, 2, 8};
    uint32_t err = 0;
    EXPECT_EQ(ip_address_unmarshal(h, 7, frame, &target.address, 31, 0, &err), 31u);
    EXPECT_EQ(target.address.variant, 0);
    EXPECT_EQ(target.address.prefix_len, 8);
    EXPECT_TRUE(trace.has(6, "offset_jump read_len 26 offset_jump_base 2 _mirk_variant_jump 29"));
}

TEST(AddressWire, NeverAccessesMemoryBeyondRemaining) {
    for (const bool track : {false, true}) {
        Handle h(track ? kit::Tracking::on : kit::Tracking::none);
        Placed source(h);
        mirk_platform_set_ra_data(h, &source.address, nullptr, 1);
        for (size_t room = 0; room <= 42; ++room) {
            test::Guarded<48> buffer;
            uint32_t err = 0;
            ip_address_marshal(h, 7, buffer.at(), &source.address, static_cast<int32_t>(room), &err);
            EXPECT_TRUE(buffer.intact_after(room)) << room;
            EXPECT_EQ(err == 0, room >= (track ? 41u : 35u)) << room;
        }
    }
}

TEST(AddressWire, AnyBytesAreSafe) {
    for (const bool track : {false, true}) {
        Handle h(track ? kit::Tracking::on : kit::Tracking::none);
        test::Trace trace;
        uint32_t seed = 1;
        for (int round = 0; round < 2000; ++round) {
            Placed target(h);
            const size_t size = seed % 45;
            std::unique_ptr<uint8_t[]> frame(new uint8_t[size == 0 ? 1 : size]);
            for (size_t i = 0; i < size; ++i)
                frame[i] = static_cast<uint8_t>((seed = seed * 1664525 + 1013904223) >> 24);
            seed = seed * 1664525 + 1013904223;
            uint32_t err = 0;
            ip_address_unmarshal(h, 7, frame.get(), &target.address, static_cast<int32_t>(size), 0, &err);
            EXPECT_EQ(target.states[7], 0);
            mirk_hd_mapping_destroy(h, 7, &target.address, &(err = 0));
        }
    }
}

TEST(AddressWire, DowngradeReportsEidrm) {
    Handle h;
    Placed source(h);
    mirk_platform_domain_set_variant(h, _ip_address_type_info_internal.luid, -1);
    uint8_t buffer[40] = {};
    uint32_t err = 0;
    ip_address_marshal(h, 7, buffer, &source.address, 40, &err);
    EXPECT_EQ(err, uint32_t{EIDRM});
    mirk_platform_handle_set_epoch_policy(h, MIRK_PLATFORM_LENIENT_EIDRM);
    err = 0;
    EXPECT_EQ(ip_address_marshal(h, 7, buffer, &source.address, 40, &err), 6u);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(buffer[0], 0xff);
}

TEST(Address, SetAssignsTheWholeRecord) {
    Handle h(kit::Tracking::on);
    kit::Events log(h);
    Placed source(h), target(h);
    source.address.word[1] = 7;
    source.address.slop = 99;
    source.states[2] = 5;
    log.all.clear();
    uint32_t err = 0;
    ip_address_set(h, 7, &target.address, &source.address, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(target.address.word[1], 7u);
    EXPECT_EQ(target.address.slop, 99u);
    EXPECT_EQ(target.states[2], 5);
    EXPECT_EQ(target.address.obj_flag, 8 | 16);
    const auto writes = log.of(MIRK_PLATFORM_TESTING_WRITE_NOTIFY);
    ASSERT_EQ(writes.size(), 1u);
    EXPECT_EQ(writes[0].size, 40u);
    EXPECT_EQ(ip_address_type_type_backpropagate(h, 7, &target.address, nullptr), 1u);
    EXPECT_EQ(ip_address_type_type_backpropagate(h, 7, &target.address, nullptr), 0u);
}

TEST(Address, SetKeepsTheOffsetOfItsOwnStateArea) {
    Handle h(kit::Tracking::on);
    struct {
        ip_address address;
        uint8_t following[8], elsewhere[7];
    } source{{}, {}, {3}};
    Placed target(h);
    source.address.obj_flag = 8;
    mirklib_update_sttr_offset(h, 7, &source.address, 48);
    uint32_t err = 0;
    ip_address_set(h, 7, &target.address, &source.address, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(target.address.obj_flag & 64, 0);
    EXPECT_EQ(target.states[0], 3);
}

TEST(Address, SetNeedsTrackedObjectsOnATrackingHandle) {
    Handle h(kit::Tracking::on);
    test::Trace trace;
    Placed source(h);
    ip_address target{};
    uint32_t err = 0;
    source.address.af = 2;
    ip_address_set(h, 7, &target, &source.address, &err);
    EXPECT_EQ(err, uint32_t{EINVAL});
    EXPECT_EQ(target.af, 2);
    EXPECT_EQ(target.obj_flag & 8, 0);
    EXPECT_TRUE(trace.has(3, "(ERR): The object is not state tracked"));
    err = 0;
    ip_address_set(h, 7, &target, nullptr, &err);
    EXPECT_EQ(err, uint32_t{EINVAL});
    EXPECT_EQ(h->last_error, uint32_t{EINVAL});
}

TEST(Address, CountsCreationAndDestruction) {
    Handle h(kit::Tracking::on);
    auto *address = static_cast<ip_address *>(h.alloc(47));
    std::memset(static_cast<void *>(address), 0, 47);
    mirk_variant_entry &entry = _ip_address_type_info_internal.variant_info->entries[0];
    const mirk_variant_entry before = entry;
    uint32_t err = 0;
    ip_address_initialize(h, 7, address, &_ip_address_type_info_internal, 1, 0, 0, nullptr, &err);
    mirklib_update_sttr_offset(h, 7, address, 40);
    EXPECT_EQ(entry.num_live, before.num_live + 1);
    ip_address_destroy_internal(h, 7, address, 1);
    EXPECT_EQ(entry.num_created, before.num_created + 1);
    EXPECT_EQ(entry.num_destroyed, before.num_destroyed + 1);
    EXPECT_EQ(entry.num_live, before.num_live);
    EXPECT_EQ(mirk_platform_testing_offset_entries(h), 0u);
}

TEST(Address, InitializeFailsForANestedObjectWithoutABase) {
    Handle h(kit::Tracking::on);
    test::Trace trace;
    ip_address address{};
    uint32_t err = 0;
    ip_address_initialize(h, 7, &address, &_ip_address_type_info_internal, 1, 0, 4, nullptr, &err);
    EXPECT_EQ(err, uint32_t{EINVAL});
    EXPECT_EQ(address.obj_flag, 4 | 8);
    EXPECT_TRUE(trace.has(3, "sttr_base can not be NULL in NESTED case"));
}

TEST(Address, ReferencesDeferItsDestruction) {
    Handle h;
    test::Trace trace;
    Placed placed(h);
    void *oid = nullptr;
    uint32_t err = 0;
    ASSERT_EQ(mirk_platform_oid_mapping_make(h, &placed.address, 1, nullptr, &oid), 0u);
    ip_address_destroy_internal(h, 7, &placed.address, 0);
    EXPECT_TRUE(trace.has(6, "Object has references and will be cleaned up"));
    mirklib_lookup_and_update_oid_ref_count(h, 7, oid, 0, &err);
    ip_address_destroy_internal(h, 7, &placed.address, 0);
    EXPECT_TRUE(trace.has(7, "Successfully removed OID mapping"));
}

using AddressDeathTest = testing::Test;

TEST(AddressDeathTest, CorruptStateEndsTheProcess) {
    Handle h;
    ip_address address{};
    EXPECT_DEATH(ip_address_destroy_internal(h, 7, &address, 0), "tinfo is null or corrupted");
    mirk_platform_testing_set_sttr_mode(h, 1);
    EXPECT_DEATH(ip_address_len(h, 7, &address), "Corrupted MIRK Handle");
    mirk_platform_handle_set_tracking(h, MIRK_PLATFORM_TRACKING_ON);
    uint8_t frame[26] = {0, 0, 0, 0, 0, 24};
    uint32_t err = 0;
    EXPECT_DEATH(ip_address_unmarshal(h, 7, frame, &address, 26, 0, &err), "state tracking mis-match");
}
