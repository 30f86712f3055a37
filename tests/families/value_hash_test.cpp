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

// Worked out member by member with another implementation of the function: peers keep tables of these numbers.
TEST(Hash, KnownValuesHaveTheSameHashOnEveryHost) {
    const Handle h;
    const auto hash_of = [&](const reference::Record &value) {
        return operations(value).hash(Instance(h, value).get(), 5);
    };
    reference::Record memory("lumo_tarn_static_exmem_info");
    memory["mem_type"].number = 2;
    memory["num_hash_elements"].number = 0x31323334;
    memory.nested("exmem")["cl_addr"].number = 0x0102030405060708;
    memory.nested("exmem")["exmem_addr"].number = 0x1112131415161718;
    memory.nested("exmem")["size"].number = 0x21222324;
    EXPECT_EQ(hash_of(memory), 2097704632u);

    reference::Record prefix("lumo_tarn_pal_mp_prefix");
    prefix["id"].number = 0x0102030405060708;
    prefix["flags"].number = 0x99;
    reference::set_address(prefix.nested("prefix"),
                           {.af = 2, .prefix_len = 24, .scope = 0, .word = {0x0A010200, 0, 0, 0}});
    prefix["tc_list_size"].number = 0x05060708;
    EXPECT_EQ(hash_of(prefix), 1997105880u);

    reference::Record applications("lumo_tarn_cl_appl_data");
    applications["show_header"].number = 1;
    reference::Record &application = applications.append("kesh_appl");
    application["proto_name"].text = "tcp";
    application["sub_proto_name"].text = "video-sub";
    application["protocol_id"].number = 6;
    application["tarn_id"].number = 0x0102;
    EXPECT_EQ(hash_of(applications), 3603418630u);
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
