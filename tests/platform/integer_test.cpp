#include <limits>
#include <random>

#include "support.hpp"

using test::Handle;

namespace {

// The functions of each kind, so that every test runs for all four.
#define KIND(K, T)                                               \
    struct K {                                                   \
        using type = T;                                          \
        static constexpr auto get = K##_get;                     \
        static constexpr auto get_value = K##_get_value;         \
        static constexpr auto set = K##_set;                     \
        static constexpr auto set_value = K##_set_value;         \
        static constexpr auto len = K##_len;                     \
        static constexpr auto marshal = K##_marshal;             \
        static constexpr auto unmarshal = K##_unmarshal;         \
        static constexpr auto print = K##_print;                 \
        static constexpr auto to_xml = K##_to_xml;               \
        static constexpr auto from_xml = K##_from_xml;           \
        static constexpr auto hash = K##_hash;                   \
        static constexpr auto backpropagate = K##_backpropagate; \
        static constexpr const char *name = #K;                  \
    }
KIND(u_int8, uint8_t);
KIND(u_int16, uint16_t);
KIND(u_int32, uint32_t);
KIND(u_int64, uint64_t);

template <typename Kind>
class Integer : public testing::Test {
protected:
    using T = typename Kind::type;
    static constexpr T sample = static_cast<T>(0xf1e2d3c4b5a69788u >> (64 - 8 * sizeof(T)));
    Handle h;
    uint32_t err = 0;
};
using Kinds = testing::Types<u_int8, u_int16, u_int32, u_int64>;
TYPED_TEST_SUITE(Integer, Kinds);

}  // namespace

TYPED_TEST(Integer, SetNotifiesAndGetReturnsTheField) {
    using T = typename TypeParam::type;
    T field = 0;
    const T source = this->sample;
    kit::Events log(this->h);
    TypeParam::set(this->h, 7, &field, &source, &this->err);
    EXPECT_EQ(field, source);
    TypeParam::set_value(this->h, 7, &field, 5, &this->err);
    EXPECT_EQ(TypeParam::get_value(this->h, 7, &field, &this->err), 5u);
    EXPECT_EQ(TypeParam::get(this->h, 7, &field, &this->err), &field);
    const auto notifications = log.of(MIRK_PLATFORM_TESTING_WRITE_NOTIFY);
    ASSERT_EQ(notifications.size(), 2u);
    EXPECT_EQ(notifications[0].address, &field);
    EXPECT_EQ(notifications[0].size, sizeof(T));
    EXPECT_EQ(notifications[0].ctx_id, 7u);
}

TYPED_TEST(Integer, IsBigEndianOnTheWireAtAnyAlignment) {
    using T = typename TypeParam::type;
    T field = this->sample, read = 0;
    test::Guarded<16> buffer;
    for (size_t shift = 0; shift < 4; ++shift) {
        char *at = buffer.at() + shift;
        EXPECT_EQ(TypeParam::marshal(this->h, 7, at, &field, sizeof(T), &this->err), sizeof(T));
        EXPECT_EQ(static_cast<uint8_t>(at[0]), 0xf1);
        EXPECT_EQ(TypeParam::unmarshal(this->h, 7, at, &read, sizeof(T), 0, &this->err), sizeof(T));
        EXPECT_EQ(read, field);
    }
    EXPECT_EQ(TypeParam::len(this->h, 7, nullptr), sizeof(T));
    EXPECT_EQ(this->err, 0u);
}

TYPED_TEST(Integer, TooLittleSpaceIsEmsgsizeAndWritesNothing) {
    using T = typename TypeParam::type;
    T field = this->sample, read = 3;
    test::Guarded<16> buffer;
    for (const int32_t remaining : {static_cast<int32_t>(sizeof(T)) - 1, 0, -1, INT32_MIN}) {
        this->err = 0;
        EXPECT_EQ(TypeParam::marshal(this->h, 7, buffer.at(), &field, remaining, &this->err), 0u);
        EXPECT_EQ(this->err, uint32_t{EMSGSIZE});
        this->err = 0;
        EXPECT_EQ(TypeParam::unmarshal(this->h, 7, buffer.at(), &read, remaining, 0, &this->err), 0u);
        EXPECT_EQ(this->err, uint32_t{EMSGSIZE});
    }
    EXPECT_TRUE(buffer.intact_after(0));
    EXPECT_EQ(read, 3u);
}

TYPED_TEST(Integer, DoesNothingIfAnErrorIsSet) {
    using T = typename TypeParam::type;
    T field = 3;
    const T source = 9;
    test::Guarded<64> buffer;
    kit::Document document("<a>4</a>");
    this->err = 5;
    EXPECT_EQ(TypeParam::get(this->h, 7, &field, &this->err), nullptr);
    EXPECT_EQ(TypeParam::get_value(this->h, 7, &field, &this->err), 0u);
    TypeParam::set(this->h, 7, &field, &source, &this->err);
    TypeParam::set_value(this->h, 7, &field, 9, &this->err);
    TypeParam::from_xml(this->h, 7, "//a", document, &field, &this->err, nullptr, 0);
    EXPECT_EQ(TypeParam::marshal(this->h, 7, buffer.at(), &field, 64, &this->err), 0u);
    EXPECT_EQ(TypeParam::unmarshal(this->h, 7, buffer.at(), &field, 64, 0, &this->err), 0u);
    EXPECT_EQ(TypeParam::print(this->h, 7, buffer.at(), 0, "n", &field, 64, &this->err), 0u);
    EXPECT_EQ(TypeParam::to_xml(this->h, 7, "n", buffer.at(), &field, 64, 0, &this->err), 0u);
    EXPECT_EQ(field, 3u);
    EXPECT_EQ(this->err, 5u);
    EXPECT_TRUE(buffer.intact_after(0));
}

TYPED_TEST(Integer, NullIsEinvalWhereAValueIsReadOrWritten) {
    using T = typename TypeParam::type;
    T field = 3;
    char buffer[64];
    const auto expect_invalid = [&] {
        EXPECT_EQ(this->err, uint32_t{EINVAL});
        this->err = 0;
    };
    EXPECT_EQ(TypeParam::get(this->h, 7, nullptr, &this->err), nullptr);
    EXPECT_EQ(TypeParam::get_value(this->h, 7, nullptr, &this->err), 0u);
    EXPECT_EQ(this->err, 0u);
    TypeParam::set(this->h, 7, &field, nullptr, &this->err);
    expect_invalid();
    TypeParam::set_value(this->h, 7, nullptr, 1, &this->err);
    expect_invalid();
    TypeParam::marshal(this->h, 7, buffer, nullptr, 64, &this->err);
    expect_invalid();
    TypeParam::unmarshal(this->h, 7, buffer, nullptr, 64, 0, &this->err);
    expect_invalid();
    TypeParam::print(this->h, 7, buffer, 0, "n", nullptr, 64, &this->err);
    expect_invalid();
    TypeParam::to_xml(this->h, 7, "n", buffer, nullptr, 64, 0, &this->err);
    expect_invalid();
    TypeParam::from_xml(this->h, 7, "//a", nullptr, nullptr, &this->err, nullptr, 0);
    expect_invalid();
}

TYPED_TEST(Integer, PrintsNumbersOfEveryLength) {
    using T = typename TypeParam::type;
    const auto expect_printed = [&](T field) {
        char buffer[64];
        TypeParam::print(this->h, 7, buffer, 0, "n", &field, sizeof buffer, &this->err);
        EXPECT_EQ(buffer, std::string("n@") + TypeParam::name + ":" + std::to_string(field) + "\n");
    };
    uint64_t power = 1;
    for (int digits = 1; digits <= std::numeric_limits<T>::digits10; ++digits) {
        power *= 10;
        for (const uint64_t value : {power - 1, power, power + power / 10, power / 10 * 7}) {
            expect_printed(static_cast<T>(value));
        }
    }
    expect_printed(0);
    expect_printed(std::numeric_limits<T>::max());
    std::mt19937_64 random(1);
    for (int i = 0; i < 2000; ++i) expect_printed(static_cast<T>(random() >> random() % 64));
}

TYPED_TEST(Integer, PrintsALine) {
    using T = typename TypeParam::type;
    T field = 123;
    const std::string line = std::string("  size@") + TypeParam::name + ":123\n";
    test::Guarded<64> buffer;
    const auto room = static_cast<int32_t>(line.size() + 1);
    EXPECT_EQ(TypeParam::print(this->h, 7, buffer.at(), 2, "size", &field, room - 1, &this->err), 0u);
    EXPECT_EQ(this->err, uint32_t{EMSGSIZE});
    EXPECT_TRUE(buffer.intact_after(0));
    this->err = 0;
    EXPECT_EQ(TypeParam::print(this->h, 7, buffer.at(), 2, "size", &field, room, &this->err), line.size());
    EXPECT_STREQ(buffer.at(), line.c_str());
    EXPECT_TRUE(buffer.intact_after(line.size() + 1));
}

TYPED_TEST(Integer, WritesAnElement) {
    using T = typename TypeParam::type;
    T field = static_cast<T>(~T{0});
    const std::string text = "<size state=\"2\">" + std::to_string(field) + "</size>";
    test::Guarded<64> buffer;
    EXPECT_EQ(
        TypeParam::to_xml(this->h, 7, "size", buffer.at(), &field, static_cast<int32_t>(text.size()), 2, &this->err),
        0u);
    EXPECT_EQ(this->err, uint32_t{EMSGSIZE});
    this->err = 0;
    EXPECT_EQ(TypeParam::to_xml(this->h, 7, "size", buffer.at(), &field, 64, 2, &this->err), text.size());
    EXPECT_STREQ(buffer.at(), text.c_str());
    EXPECT_EQ(TypeParam::to_xml(this->h, 7, "a", buffer.at(), &field, 64, 0, &this->err),
              7 + std::to_string(field).size());
}

TYPED_TEST(Integer, ReadsDecimalDigitsWithinItsWidth) {
    using T = typename TypeParam::type;
    const std::string most = std::to_string(static_cast<T>(~T{0}));
    kit::Events log(this->h);
    const auto read = [&](const std::string &text, T *field) {
        kit::Document document("<r><a>" + text + "</a></r>");
        uint32_t err = 0;
        TypeParam::from_xml(this->h, 7, "//r/a", document, field, &err, nullptr, 0);
        return err;
    };
    T field = 3;
    EXPECT_EQ(read(" \n" + most + "\t", &field), 0u);
    EXPECT_EQ(field, static_cast<T>(~T{0}));
    EXPECT_EQ(read("007", &field), 0u);
    EXPECT_EQ(field, 7u);
    for (const char *bad : {"", "-1", "+1", "1 2", "0x1", "1.0", "true", "99999999999999999999"}) {
        EXPECT_EQ(read(bad, &field), uint32_t{EINVAL}) << bad;
    }
    EXPECT_EQ(read(most + "0", &field), uint32_t{EINVAL});
    EXPECT_EQ(field, 7u);
    EXPECT_TRUE(log.all.empty());
    kit::Document document("<r/>");
    TypeParam::from_xml(this->h, 7, "//r/a", document, &field, &this->err, nullptr, 0);
    EXPECT_EQ(this->err, uint32_t{ENOENT});
}

TYPED_TEST(Integer, HashesItsBigEndianBytes) {
    using T = typename TypeParam::type;
    T field = this->sample;
    uint8_t bytes[sizeof(T)];
    TypeParam::marshal(this->h, 7, bytes, &field, sizeof(T), &this->err);
    EXPECT_EQ(TypeParam::hash(&field, 99), SuperFastHash(bytes, sizeof(T), 99));
    EXPECT_EQ(TypeParam::hash(nullptr, 99), 99u);
}

TYPED_TEST(Integer, ReportsEachChangeOnce) {
    using T = typename TypeParam::type;
    T field = 0;
    EXPECT_EQ(TypeParam::backpropagate(this->h, 7, &field, nullptr), 0u);
    mirk_platform_testing_mark_integer(this->h, &field, 1);
    EXPECT_EQ(TypeParam::backpropagate(this->h, 7, &field, nullptr), 1u);
    EXPECT_EQ(TypeParam::backpropagate(this->h, 7, &field, nullptr), 0u);
    EXPECT_EQ(TypeParam::backpropagate(this->h, 7, nullptr, nullptr), 0u);
}

TEST(Hash, DependsOnDataLengthAndSeed) {
    const char data[] = "abcdefghijklmnop";
    EXPECT_EQ(SuperFastHash(data, 16, 1), SuperFastHash(std::string(data).c_str(), 16, 1));
    EXPECT_NE(SuperFastHash(data, 16, 1), SuperFastHash(data, 16, 2));
    EXPECT_NE(SuperFastHash(data, 15, 1), SuperFastHash(data, 16, 1));
    const char zeros[9] = {};
    EXPECT_NE(SuperFastHash(zeros, 8, 1), SuperFastHash(zeros, 9, 1));
    EXPECT_EQ(SuperFastHash(nullptr, 0, 1), SuperFastHash(data, 0, 1));
}

TEST(Hash, IsTheSameInEveryProcess) {
    // Recorded values: changing the hash would invalidate tables that other processes keep.
    EXPECT_EQ(SuperFastHash("tarn", 4, 7), 1425584453u);
    int different = 0;
    for (uint8_t i = 0; i < 255; ++i) {
        const auto next = static_cast<uint8_t>(i + 1);
        different += SuperFastHash(&i, 1, 0) != SuperFastHash(&next, 1, 0) ? 1 : 0;
    }
    EXPECT_EQ(different, 255);
}
