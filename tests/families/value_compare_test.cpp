// The order of records.
#include <memory>

#include "value_reference.h"

namespace {

using namespace forms;

int sign(std::int32_t order) { return order < 0 ? -1 : order > 0 ? 1 : 0; }

// Values with many equal members, so that each member decides in some pair.
std::vector<reference::Record> related_values(std::string_view record, std::uint64_t seed, std::size_t n) {
    reference::Generator random(seed * 31);
    std::vector<reference::Record> values{random_value(record, seed, {.max_elements = 2, .states = false})};
    while (values.size() < n) {
        values.push_back(values[random.below(values.size())]);
        change(values.back(), random);
    }
    return values;
}

TEST(Compare, IsATotalOrderThatAgreesWithTheReference) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        for (std::uint64_t seed = 1; seed <= 3; ++seed) {
            const std::vector<reference::Record> values = related_values(record.record->name, seed, 12);
            std::vector<std::unique_ptr<Instance>> instances;
            for (const reference::Record &value : values) instances.push_back(std::make_unique<Instance>(h, value));
            std::vector<std::vector<int>> order(values.size(), std::vector<int>(values.size()));
            for (std::size_t i = 0; i < values.size(); ++i) {
                for (std::size_t k = 0; k < values.size(); ++k) {
                    order[i][k] = sign(record.compare(instances[i]->get(), instances[k]->get()));
                    ASSERT_EQ(order[i][k], reference_order(values[i], values[k]))
                        << reference::first_difference(values[i], values[k]);
                    ASSERT_EQ(order[i][k] == 0, values[i] == values[k]);
                }
            }
            for (std::size_t i = 0; i < values.size(); ++i) {
                for (std::size_t k = 0; k < values.size(); ++k) {
                    ASSERT_EQ(order[i][k], -order[k][i]);
                    for (std::size_t m = 0; m < values.size(); ++m) {
                        if (order[i][k] <= 0 && order[k][m] <= 0) {
                            ASSERT_LE(order[i][m], 0);
                        }
                    }
                }
            }
        }
    }
}

TEST(Compare, UnrelatedValuesAgreeWithTheReference) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        for (std::uint64_t seed = 1; seed <= 4; ++seed) {
            const reference::GeneratorOptions options{.max_elements = 2, .states = false, .strange = true};
            const reference::Record a = random_value(record.record->name, seed, options);
            const reference::Record b = random_value(record.record->name, seed + 100, options);
            EXPECT_EQ(sign(record.compare(Instance(h, a).get(), Instance(h, b).get())), reference_order(a, b));
        }
    }
}

TEST(Compare, NullIsLessThanEveryInstance) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const Instance instance(h, record);
        EXPECT_EQ(record.compare(nullptr, nullptr), 0) << record.record->name;
        EXPECT_EQ(record.compare(nullptr, instance.get()), -1) << record.record->name;
        EXPECT_EQ(record.compare(instance.get(), nullptr), 1) << record.record->name;
        EXPECT_EQ(record.compare(instance.get(), instance.get()), 0) << record.record->name;
    }
}

// What does not belong to the value: variants, flags and states, at any depth.
void change_all_but_the_values(reference::Record &value) {
    value.variant = -3;
    value.ra = reference::ReferenceData{5, 6};
    for (std::size_t i = 0; i < value.members.size(); ++i) {
        reference::Member &member = value.members[i];
        if (value.table->members[i].tracked()) member.state ^= 0x55;
        for (std::uint8_t &state : member.element_state) state ^= 0x55;
        member.variant = -1;
        for (reference::Record &item : member.items) change_all_but_the_values(item);
    }
}

TEST(Compare, OrderAndHashIgnoreHeaderAndState) {
    const Handle tracking(Tracking::on);
    const Handle plain;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const reference::Record value = random_value(record.record->name, 2, {.min_elements = 1, .max_elements = 2});
        reference::Record other = value;
        change_all_but_the_values(other);
        const Instance a(tracking, value);
        const Instance b(tracking, other);
        EXPECT_EQ(record.compare(a.get(), b.get()), 0) << record.record->name;
        EXPECT_EQ(record.hash(a.get(), 1), record.hash(b.get(), 1)) << record.record->name;
        b.header()->obj_flag ^= 16;  // the modified mark
        b.header()->home_variant = -9;
        EXPECT_EQ(record.compare(a.get(), b.get()), 0) << record.record->name;

        reference::Record stateless = value;
        const Instance c(plain, stateless);
        EXPECT_EQ(record.compare(a.get(), c.get()), 0) << record.record->name;
        EXPECT_EQ(record.hash(a.get(), 1), record.hash(c.get(), 1)) << record.record->name;
    }
}

TEST(Compare, AnElementDecides) {
    const Handle h;
    reference::Record a("lumo_tarn_dp_tc_list");
    for (int i = 0; i < 4; ++i) a.append("tc_list");
    reference::Record b = a;
    a["tc_list"].items[2]["id"].number = 1;
    b["tc_list"].items[3]["id"].number = 2;  // comes after the difference
    const RecordOperations &list = operations("lumo_tarn_dp_tc_list");
    EXPECT_EQ(list.compare(Instance(h, a).get(), Instance(h, b).get()), 1);
    EXPECT_EQ(list.compare(Instance(h, b).get(), Instance(h, a).get()), -1);
    // The count is compared first, whatever the elements are.
    b["tc_list"].items.pop_back();
    EXPECT_EQ(list.compare(Instance(h, b).get(), Instance(h, a).get()), -1);
}

TEST(Compare, NumbersAreUnsigned) {
    const Handle h;
    const RecordOperations &exmem = operations("lumo_tarn_exmem_info");
    reference::Record a("lumo_tarn_exmem_info");
    reference::Record b = a;
    a["cl_addr"].number = ~std::uint64_t{0};
    b["cl_addr"].number = 1;
    EXPECT_EQ(exmem.compare(Instance(h, a).get(), Instance(h, b).get()), 1);
    b["cl_addr"].number = a["cl_addr"].number;
    b["size"].number = 0xFFFFFFFF;
    EXPECT_EQ(exmem.compare(Instance(h, a).get(), Instance(h, b).get()), -1);
}

TEST(Compare, AnEnumerationReturnsTheDifferenceThroughAllLevels) {
    const Handle h;
    reference::Record a("lumo_tarn_lumo_info_list");
    reference::Record b = a;
    a.append("lumo_info")["ha_state"].number = 2;
    b.append("lumo_info")["ha_state"].number = 8;
    const RecordOperations &list = operations("lumo_tarn_lumo_info_list");
    EXPECT_EQ(list.compare(Instance(h, a).get(), Instance(h, b).get()), -6);
    EXPECT_EQ(list.compare(Instance(h, b).get(), Instance(h, a).get()), 6);
}

TEST(Compare, StringsAreComparedByLengthThenByBytes) {
    const Handle h;
    const RecordOperations &appl = operations("lumo_tarn_cl_kesh_appl");
    reference::Record a("lumo_tarn_cl_kesh_appl");
    reference::Record b = a;
    a["proto_name"].text = "zz";
    b["proto_name"].text = "aaa";
    EXPECT_EQ(appl.compare(Instance(h, a).get(), Instance(h, b).get()), -1);
    a["proto_name"].text = "abc";
    b["proto_name"].text = "ab\xE9";
    const std::int32_t order = appl.compare(Instance(h, a).get(), Instance(h, b).get());
    // The exact result of memcmp, as this C library returns it for bytes that the compiler does not know.
    int (*volatile memory_order)(const void *, const void *, std::size_t) = std::memcmp;
    EXPECT_EQ(order, memory_order(a["proto_name"].text.data(), b["proto_name"].text.data(), 3));
    EXPECT_LT(order, 0);
}

TEST(Compare, ACountWithoutABlockMeansNoElements) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_tc_list");
    value.append("tc_list");
    const Instance whole(h, value);
    reference::Bytes frame = bridge::marshal(h, whole.record(), whole.get()).bytes;
    const auto size = static_cast<std::uint32_t>(frame.size());
    frame.push_back(0);
    const Instance hollow(h, "lumo_tarn_dp_tc_list");
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 0);
    std::uint32_t err = 0;
    hollow.record().unmarshal(h, id, frame.data(), hollow.get(), size, 0, &err);
    EXPECT_EQ(err, 12u);
    EXPECT_EQ(whole.record().compare(whole.get(), hollow.get()), 0);
    const std::uint32_t one = 1;
    EXPECT_EQ(whole.record().hash(hollow.get(), 5), u_int32_hash(&one, u_int32_hash(&one, 5)));
}

}  // namespace
