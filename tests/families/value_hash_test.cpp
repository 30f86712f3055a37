// Hashes of records, which all peers have to compute alike.
#include <set>

#include "value_reference.h"

namespace {

using namespace forms;

TEST(Hash, EveryRecordChainsItsMembers) {
    for (const Tracking mode : {Tracking::none, Tracking::on}) {
        const Handle h(mode);
        for (const RecordOperations &record : tarn::reflect::records()) {
            for (std::uint64_t seed = 1; seed <= 6; ++seed) {
                const reference::Record value = random_value(
                    record.record->name, seed, {.max_elements = 3, .states = h.tracks(), .strange = seed > 3});
                const Instance instance(h, value);
                for (const std::uint32_t start : {0u, 1u, 0xFFFFFFFFu}) {
                    ASSERT_EQ(record.hash(instance.get(), start), reference_hash(value, start)) << record.record->name;
                }
            }
        }
    }
}

TEST(Hash, NullReturnsTheSeed) {
    for (const RecordOperations &record : tarn::reflect::records()) {
        EXPECT_EQ(record.hash(nullptr, 0xABCD1234), 0xABCD1234u) << record.record->name;
    }
}

TEST(Hash, EqualValuesHaveEqualHashesAndOthersRarely) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        reference::Generator random(7);
        reference::Record value = random_value(record.record->name, 3, {.max_elements = 2, .states = false});
        std::set<std::uint32_t> hashes;
        for (int i = 0; i < 8; ++i) {
            const Instance a(h, value);
            const Instance b(h, value);
            EXPECT_EQ(record.hash(a.get(), 9), record.hash(b.get(), 9));
            hashes.insert(record.hash(a.get(), 9));
            reference::Record next = value;
            while (next == value) change(next, random);
            value = next;
        }
        EXPECT_GT(hashes.size(), 1u) << record.record->name;
    }
}

// A count is hashed once as a member and once before what it counts, even if that is empty.
TEST(Hash, ACountIsHashedTwice) {
    const Handle h;
    const std::uint32_t zero = 0;
    const Instance list(h, "lumo_tarn_dp_tc_list");
    EXPECT_EQ(list.record().hash(list.get(), 77), u_int32_hash(&zero, u_int32_hash(&zero, 77)));
    EXPECT_NE(list.record().hash(list.get(), 77), u_int32_hash(&zero, 77));

    const std::uint8_t narrow = 0;
    const Instance data(h, "lumo_tarn_dp_debug_setting_data");
    EXPECT_EQ(data.record().hash(data.get(), 77), u_int8_hash(&narrow, u_int8_hash(&narrow, 77)));
}

TEST(Hash, ALengthIsHashedTwiceThenTheCharacters) {
    const Handle h;
    reference::Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = "tcp";
    const std::uint16_t three = 3;
    const std::uint16_t zero = 0;
    std::uint32_t seed = SuperFastHash("tcp", 3, u_int16_hash(&three, u_int16_hash(&three, 4)));
    // The string is empty, and still hashed.
    seed = SuperFastHash("", 0, u_int16_hash(&zero, u_int16_hash(&zero, seed)));
    seed = u_int16_hash(&zero, u_int16_hash(&zero, seed));
    EXPECT_EQ(operations(value).hash(Instance(h, value).get(), 4), seed);
}

}  // namespace
