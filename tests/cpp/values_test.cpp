// Records and addresses as values of C++17: printed, ordered, hashed, kept in standard containers.
#include <sys/socket.h>

#include <cstring>
#include <map>
#include <set>
#include <sstream>
#include <unordered_set>

#include "tests/cpp/usage_support.h"

namespace {

using namespace lumo_ui_tarn;
using Values = usage::CppUsage;

template <class T>
std::string printed(const T &value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

TEST_F(Values, RecordsArePrintedInOneLine) {
    context c(handle);
    dp_tc tc(c);
    tc.set_id(5).set_proto(17).set_src_prefix(address::parse("10.0.0.0/8").value()).appl().set_id(9);
    const std::string line = printed(tc);
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(line.substr(0, 6), "dp_tc{");
    EXPECT_EQ(line.back(), '}');
    for (const char *part : {"id=5", "proto=17", "src_prefix=10.0.0.0/8", "dst_prefix=unset", "appl=dp_appl{"}) {
        EXPECT_NE(line.find(part), std::string::npos) << part << " in " << line;
    }
    EXPECT_EQ(printed(dp_tc_ref(tc)), line);
    EXPECT_EQ(printed(dp_tc_view(tc)), line);
    EXPECT_EQ(to_string(tc), line);
    const dp_tc owner = std::move(tc);
    EXPECT_EQ(to_string(tc), "dp_tc{}");
}

TEST_F(Values, EachKindOfMemberIsPrinted) {
    context c(handle);
    debug_setting_msg message(c);
    message.payload().set_warn_enabled(true);
    EXPECT_EQ(printed(message),
              "debug_setting_msg{debug_setting{info_enabled=0, trace_enabled=0, warn_enabled=1, error_enabled=0}}");
    EXPECT_EQ(printed(debug_setting_msg_view(message)), printed(message));

    dp_tc_list list(c);
    EXPECT_EQ(to_string(list), "dp_tc_list{tc_list=[]}") << "without the count";
    list.tc_list().grow(2);
    const std::string element = to_string(list.tc_list()[0]);
    EXPECT_EQ(to_string(list), "dp_tc_list{tc_list=[" + element + ", " + element + "]}");

    lumo_info info(c);
    EXPECT_NE(to_string(info.set_direction(lumo_direction::both)).find("direction=LUMO_TARN_DIR_BOTH"),
              std::string::npos);

    cl_kesh_appl application(c);
    application.set_proto_name("a \"b\" \\ \x1b[2J\xff");
    EXPECT_NE(to_string(application).find(R"(proto_name="a \"b\" \\ \x1b[2J\xff")"), std::string::npos)
        << to_string(application);
}

TEST_F(Values, RecordsAreOrderedByCompare) {
    context c(handle);
    dp_tc low(c), high(c);
    low.set_proto(6);
    high.set_proto(17);
    ASSERT_LT(low.compare(high), 0);
    EXPECT_TRUE(low < high && high > low && low <= high && high >= low && low != high);
    EXPECT_FALSE(high < low || low > high || high <= low || low >= high || low == high);
    const dp_tc same = low.copy();
    EXPECT_TRUE(low == same && low <= same && low >= same && !(low != same) && !(low < same) && !(low > same));
    EXPECT_TRUE(dp_tc_view(low) < high && low < dp_tc_ref(high) && dp_tc_ref(high) > dp_tc_view(low));
}

TEST_F(Values, RecordsAreKeysOfStandardContainers) {
    context c(handle);
    std::set<dp_tc> ordered;
    std::unordered_set<dp_tc> hashed;
    for (const std::uint32_t id : {3u, 1u, 3u, 2u}) {
        dp_tc one(c);
        one.set_id(id);
        hashed.insert(one.copy());
        ordered.insert(std::move(one));
    }
    EXPECT_EQ(hashed.size(), 3u);
    std::string seen;
    for (const dp_tc &one : ordered) seen += std::to_string(one.id());
    EXPECT_EQ(seen, "123");

    dp_tc_list list(c);
    for (const dp_tc &one : ordered) list.tc_list().push_back(one);
    std::unordered_set<dp_tc_view> views(list.tc_list().begin(), list.tc_list().end());
    EXPECT_EQ(views.count(*ordered.begin()), 1u);
}

// The C functions and mirk_platform_address_parse() are the model.
TEST(AddressValues, TextAndOrderAreThoseOfTheLibrary) {
    const auto native = [](const address &value) {
        ip_address object{};
        object.af = value.af;
        object.prefix_len = value.prefix_len;
        object.scope = value.scope;
        std::memcpy(object.word, value.word.data(), sizeof object.word);
        return object;
    };
    std::vector<address> all;
    for (const int af : {0, 1, AF_INET, AF_INET6, 255}) {
        for (int mask = 0; mask < 32; ++mask) {
            for (const std::uint32_t word : {1u, 0x7f000001u, 0xffffffffu}) {
                address value;
                value.af = static_cast<std::uint8_t>(af);
                value.prefix_len = (mask & 1) != 0 ? 255 : 0;
                value.scope = (mask & 2) != 0 ? 65535 : 0;
                value.word = {(mask & 4) != 0 ? word : 0, (mask & 8) != 0 ? word : 0, 0, (mask & 16) != 0 ? word : 0};
                all.push_back(value);
            }
        }
    }
    for (const address &value : all) {
        const ip_address object = native(value);
        char expected[MIRK_PLATFORM_ADDRESS_TEXT_SIZE];
        ASSERT_EQ(mirk_platform_address_text(&object, expected, sizeof expected), 0u);
        EXPECT_EQ(to_string(value), expected);
        EXPECT_EQ(printed(value), expected);
        EXPECT_EQ(address::parse(expected), value) << expected;
        for (const address &other : all) {
            const ip_address other_object = native(other);
            const std::int32_t order = ip_address_compare(&object, &other_object);
            ASSERT_EQ(value < other, order < 0);
            ASSERT_EQ(value == other, order == 0);
            ASSERT_EQ(value >= other, order >= 0);
            if (order == 0) {
                ASSERT_EQ(std::hash<address>()(value), std::hash<address>()(other));
            }
        }
    }
}

TEST(AddressValues, TextThatTheRuntimeRefusesIsRefused) {
    using namespace std::string_view_literals;
    for (const std::string_view text : {""sv,
                                        "unset "sv,
                                        "10.0.0.1"sv,
                                        "10.0.0.1/"sv,
                                        "/8"sv,
                                        "10.0.0.1/256"sv,
                                        "10.0.0.1/-1"sv,
                                        "10.0.0/8"sv,
                                        "10.0.0.1 /8"sv,
                                        "10.0.0.1/8 "sv,
                                        "fe80::1%/64"sv,
                                        "fe80::1%65536/64"sv,
                                        "2,0,1,2,3,4"sv,
                                        "2,0,1,2,3/5"sv,
                                        "2,0,1,2,3,4,5/6"sv,
                                        "2,0,1,2,3,4,/5"sv,
                                        "256,0,1,2,3,4/5"sv,
                                        "10.0.0.1\0/8"sv,
                                        "::1%+2/64"sv,
                                        "%1/8"sv}) {
        ip_address unused{};
        ASSERT_NE(mirk_platform_address_parse(text.data(), text.size(), &unused), 0u) << text;
        EXPECT_EQ(address::parse(text), std::nullopt) << text;
    }
    EXPECT_EQ(address::parse("::ffff:10.0.0.1/96"), address::parse("::ffff:a00:1/96"));
}

TEST(AddressValues, AddressesAreKeysOfStandardContainers) {
    std::map<address, int> ordered;
    std::unordered_set<address> hashed;
    for (std::uint32_t i = 0; i < 1000; ++i) {
        address value;
        value.af = AF_INET;
        value.prefix_len = 32;
        value.word[0] = 0x0a000000 + i % 500;
        ++ordered[value];
        hashed.insert(value);
    }
    EXPECT_EQ(ordered.size(), 500u);
    EXPECT_EQ(hashed.size(), 500u);
    EXPECT_EQ(to_string(ordered.begin()->first), "10.0.0.0/32");
    std::unordered_set<std::size_t> hashes;
    for (const address &value : hashed) hashes.insert(std::hash<address>()(value));
    EXPECT_EQ(hashes.size(), 500u) << "hashes of a thousand neighbors differ";
}

}  // namespace
