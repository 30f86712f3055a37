#include "reference/value.h"

#include <gtest/gtest.h>

#include "reference/codec.h"

namespace reference {
namespace {

TEST(Value, ADifferenceNamesItsPath) {
    Record a("lumo_tarn_dp_tc_list");
    a.append("tc_list");
    Record b = a;
    EXPECT_TRUE(a == b);
    EXPECT_EQ(first_difference(a, b), "");
    b["tc_list"].items[0].nested("exmem_info")["size"].number = 3;
    EXPECT_FALSE(a == b);
    EXPECT_EQ(first_difference(a, b), "lumo_tarn_dp_tc_list.tc_list[0].exmem_info[0].size: 0 and 3");
}

TEST(Value, UnknownNamesAreRefused) {
    EXPECT_THROW(Record("lumo_tarn_none"), std::out_of_range);
    Record value("lumo_tarn_fdb_base");
    EXPECT_THROW(value["size"], std::out_of_range);
}

TEST(Value, AReceiverHasOnlySentValues) {
    Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].state = 4;
    value["tarn_id"].state = 5;
    EXPECT_EQ(as_received(value, true)["proto_name"].state, 0);
    EXPECT_EQ(as_received(value, true)["tarn_id"].state, 5);
    EXPECT_EQ(as_received(value, false)["tarn_id"].state, 0);
    value["tarn_id"].number = 8;
    value.variant = -1;
    EXPECT_EQ(as_received(value, true)["tarn_id"].number, 0u);
    value.variant = 3;
    EXPECT_EQ(as_received(value, true).variant, 0);
}

TEST(Generator, SameSeedSameValues) {
    Generator a(1), b(1), c(2);
    const Record first = a.make("lumo_tarn_dp_tt_table_data");
    EXPECT_TRUE(first == b.make("lumo_tarn_dp_tt_table_data"));
    EXPECT_FALSE(first == c.make("lumo_tarn_dp_tt_table_data"));
    EXPECT_FALSE(first == a.make("lumo_tarn_dp_tt_table_data"));
}

TEST(Generator, RespectsTheBudget) {
    GeneratorOptions options;
    options.max_elements = 1000;
    options.max_text = 65535;
    options.budget = 5000;
    Generator generator(3, options);
    for (const RecordTable &table : records()) {
        const std::size_t least = encode(Record(table), true).size();
        for (int round = 0; round < 10; ++round)
            // One more byte for each array and string that is not empty.
            EXPECT_LE(encode(generator.make(table.name), true).size(), least + options.budget + 1000) << table.name;
    }
}

TEST(Generator, FillsArraysAndStringsAsRequested) {
    GeneratorOptions options;
    options.min_elements = options.max_elements = 400;
    options.min_text = options.max_text = 65535;
    options.budget = 1 << 20;
    Generator generator(3, options);
    EXPECT_EQ(generator.make("lumo_tarn_dp_debug_setting_data")["lumo_data"].items.size(), 255u);
    EXPECT_EQ(generator.make("lumo_tarn_dp_appl_list")["appl_list"].items.size(), 400u);
    const Record longest = generator.make("lumo_tarn_cl_kesh_appl");
    EXPECT_EQ(longest["proto_name"].text.size(), 65535u);
    EXPECT_EQ(longest.number(0), 65535u);
    EXPECT_TRUE(decode("lumo_tarn_cl_kesh_appl", encode(longest, true), true).value);
}

TEST(Generator, ReachesEveryKindOfValue) {
    GeneratorOptions options;
    options.strange = true;
    Generator generator(11, options);
    bool negative = false, out_of_range = false, reference_data = false, v4 = false, v6 = false;
    for (int round = 0; round < 300; ++round) {
        const Record value = generator.make("lumo_tarn_dyn_exmem_info");
        negative |= value.variant < 0;
        reference_data |= value.ra.has_value();
        out_of_range |= value["mem_type"].number > 2;
        const Address address = get_address(generator.make("lumo_tarn_pal_mp_prefix").nested("prefix"));
        v4 |= address.af == 2;
        v6 |= address.af == 10;
    }
    EXPECT_TRUE(negative && out_of_range && reference_data && v4 && v6);
}

}  // namespace
}  // namespace reference
