// Members that look as if they were related, orders that could be mistaken for others, and lists that may be empty. The
// library only carries values: it relates no member to another.
#include "value_reference.h"

namespace {

using namespace forms;
using reference::Class;

// Every form contains the value, and it is read back from each.
void expect_carried(const reference::Record &value) {
    SCOPED_TRACE(value.table->name);
    const Handle h;
    const Instance instance(h, value);
    const RecordOperations &record = instance.record();
    EXPECT_TRUE(bridge::same(value, instance.value()));

    const bridge::Marshalled frame = bridge::marshal(h, record, instance.get());
    EXPECT_EQ(frame.error, 0u);
    EXPECT_TRUE(bridge::same(reference::encode(value, false), frame.bytes));
    reference::Bytes bytes = frame.bytes;
    bytes.push_back(0);
    const Instance received(h, record);
    std::uint32_t err = 0;
    record.unmarshal(h, id, bytes.data(), received.get(), static_cast<std::uint32_t>(frame.bytes.size()), 0, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(record.compare(instance.get(), received.get()), 0);

    EXPECT_EQ(print(h, instance, value.table->name, 0).text(), reference::print_cr(value, blank));
    const std::string xml = to_xml(h, instance, value.table->name).text();
    EXPECT_EQ(xml, reference::toxml_cr(value, false));
    const Instance read(h, record);
    EXPECT_EQ(read_document(h, read, xml), 0u);
    EXPECT_EQ(record.compare(instance.get(), read.get()), 0);
    EXPECT_EQ(record.hash(read.get(), 3), reference_hash(value, 3));
}

// Makes a member greater than in a new record.
void raise(reference::Record &value, std::size_t i) {
    reference::Member &member = value.members[i];
    switch (value.table->members[i].cls) {
        case Class::string:
            member.text = "a";
            return;
        case Class::array:
            value.append(value.table->members[i].name);
            return;
        case Class::nested:
        case Class::address:
            raise(member.items[0], 0);
            return;
        case Class::count:
        case Class::length:
            raise(value, i + 1);
            return;
        default:
            member.number = 1;
    }
}

// A difference in an earlier member takes precedence over one in a later member.
void expect_order(std::string_view record, const std::vector<std::string> &members) {
    const Handle h;
    for (std::size_t first = 0; first < members.size(); ++first) {
        for (std::size_t second = first + 1; second < members.size(); ++second) {
            reference::Record a{record};
            reference::Record b{record};
            raise(a, a.table->index_of(members[first]));
            raise(b, b.table->index_of(members[second]));
            const Instance one(h, a);
            const Instance other(h, b);
            EXPECT_GT(one.record().compare(one.get(), other.get()), 0) << members[first] << " " << members[second];
            EXPECT_LT(one.record().compare(other.get(), one.get()), 0) << members[first] << " " << members[second];
        }
    }
}

TEST(Schema, MembersAreComparedInTableOrder) {
    for (const RecordOperations &record : tarn::reflect::records()) {
        SCOPED_TRACE(std::string(record.record->name));
        std::vector<std::string> members;
        for (const reference::MemberTable &row : reference::record_table(record.record->name).members) {
            // A count and its elements are compared as one here.
            if (row.cls != Class::count && row.cls != Class::length) members.push_back(row.name);
        }
        expect_order(record.record->name, members);
    }
}

TEST(Schema, MembersHaveTheTablesOrderInEveryForm) {
    expect_order("lumo_tarn_exmem_info", {"cl_addr", "exmem_addr", "ppe_addr", "size"});
    expect_order("lumo_tarn_dp_tc", {"proto", "id"});
    expect_order("lumo_tarn_dp_ll_spec", {"display_all", "heap_compare_func", "heap_elements_ptr", "show_ll_comm"});
    expect_order("lumo_tarn_debug_setting", {"info_enabled", "trace_enabled", "warn_enabled", "error_enabled"});
    expect_order("lumo_tarn_dp_intf_data", {"intf_name_is_valid", "intf_name", "in_lumo_wexa_is_valid", "in_lumo_wexa",
                                            "out_lumo_wexa_is_valid", "out_lumo_wexa"});
    expect_order("lumo_tarn_dp_mp_tc_prefix", {"lumo_num", "tc_list", "show_pfx_comm"});
    expect_order("lumo_tarn_dp_mp_prefix", {"complex_num", "prefix", "flags", "tc_list_ptr"});
    expect_order("lumo_tarn_pal_mp_prefix", {"id", "flags", "prefix", "tc_list_size"});
}

TEST(Schema, ARecordOfOneNestedMemberHasNoScalarsForGetAll) {
    const Handle h;
    const reference::Record value = random_value("lumo_tarn_exmem_info_wrapper", 1, {.states = false});
    const Instance wrapper(h, value);
    auto *object = static_cast<lumo_tarn_exmem_info_wrapper *>(wrapper.get());
    std::uint32_t err = 0;
    lumo_tarn_exmem_info_wrapper_get_all(h, id, object, &err);
    lumo_tarn_exmem_info_wrapper_set_all(h, id, object, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_TRUE(bridge::same(value, wrapper.value()));
}

TEST(Schema, NumbersThatNameAnAmountAllocateNothing) {
    for (const std::uint64_t amount : {std::uint64_t{1}, std::uint64_t{1000}, std::uint64_t{0xFFFFFFFF}}) {
        reference::Record memory("lumo_tarn_static_exmem_info");
        memory["num_hash_elements"].number = amount;
        expect_carried(memory);
        reference::Record entry("lumo_tarn_dp_ll_spec");
        entry["heap_size"].number = amount;
        entry["heap_max_elements"].number = amount - 1;
        entry["num_entries"].number = amount;
        entry["num_prefixes"].number = amount;
        entry["heap_compare_func"].number = amount;  // a number in every form, and never called
        expect_carried(entry);
        reference::Record table("lumo_tarn_dp_tt_table");
        for (const char *member : {"num_prefixes", "thruput_entries", "delay_entries"}) table[member].number = amount;
        expect_carried(table);
        reference::Record prefix("lumo_tarn_pal_mp_prefix");
        prefix["tc_list_size"].number = amount;
        expect_carried(prefix);
        for (const char *name : {"lumo_tarn_pal_mp_prefix_data", "lumo_tarn_dp_mp_tc_prefix_data"}) {
            reference::Record data(name);
            data["total_prefixes"].number = amount;
            data.append("prefix_data");
            expect_carried(data);
        }
        reference::Record info("lumo_tarn_lumo_info");
        info["dp_hash_salt"].number = amount;
        expect_carried(info);
    }
}

TEST(Schema, RangesAndTimesAreNotChecked) {
    reference::Record tc("lumo_tarn_dp_tc");
    tc["src_port_min"].number = 500;
    tc["src_port_max"].number = 3;
    tc["src_port_opr"].number = 65535;
    expect_carried(tc);
    reference::Record signature("lumo_tarn_dp_appl_sig");
    signature["dport_min"].number = 65535;
    signature["dport_max"].number = 1;
    signature["appl_name"].text = "x";
    expect_carried(signature);
    reference::Record table("lumo_tarn_dp_tt_table");
    table["start_time"].number = 100;
    table["end_time"].number = 50;
    table["duration"].number = 7;
    expect_carried(table);
    reference::Record prefixes("lumo_tarn_dp_mp_prefix_complex_data");
    prefixes.append("complex_data")["complex_num"].number = 4;
    prefixes.append("complex_data")["complex_num"].number = 4;
    expect_carried(prefixes);
}

TEST(Schema, FlagsOfSelectionAndValidityHideNoMember) {
    reference::Record table = random_value("lumo_tarn_dp_tt_table", 3, {.states = false, .printable = true});
    for (const char *flag : {"show_header", "show_agg_list", "show_filter_list", "show_ll_header", "show_ll_list",
                             "display_all", "display_tc", "display_ll"})
        table[flag].number = 0;
    expect_carried(table);
    reference::Record intf("lumo_tarn_dp_intf_data");
    intf["intf_name_is_valid"].number = 0;
    intf["intf_name"].text = "eth0";
    expect_carried(intf);
    reference::Record wexa("lumo_tarn_dp_lumo_wexa_info");
    wexa["in_wexa_is_valid"].number = 0;
    wexa.nested("in_wexa")["flags"].number = 77;
    expect_carried(wexa);
}

// An empty list hides nothing: its count and the members next to it remain.
TEST(Schema, EmptyListsShowTheirCounts) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        SCOPED_TRACE(std::string(record.record->name));
        const reference::RecordTable &table = reference::record_table(record.record->name);
        const Instance instance(h, record);
        const std::string text = print(h, instance, "x", 0).text();
        const std::string xml = to_xml(h, instance, "x").text();
        for (const reference::MemberTable &row : table.members) {
            if (row.cls == Class::count || row.cls == Class::length) {
                EXPECT_NE(text.find("  " + row.name + "@" + row.type + ":0\n"), text.npos) << row.name;
                EXPECT_NE(xml.find("<" + row.name + ">0</" + row.name + ">"), xml.npos) << row.name;
            } else if (row.cls == Class::array) {
                EXPECT_EQ(text.find("  " + row.name + "["), text.npos) << row.name;
                EXPECT_EQ(xml.find("<" + row.name + ">"), xml.npos) << row.name;
            }
        }
        expect_carried(reference::Record(table));
    }
    reference::Record config("lumo_tarn_dp_appl_cfg");
    config.nested("hash_exmem_info")["size"].number = 9;
    expect_carried(config);
    reference::Record complex("lumo_tarn_dp_mp_prefix_complex_data");
    reference::set_address(complex.nested("lookup_prefix"), {.af = 2, .prefix_len = 8, .word = {0x0A000000, 0, 0, 0}});
    expect_carried(complex);
}

TEST(Schema, AnEmptyListOfTheLearnListEntryIsRenderedThreeTimes) {
    const Handle h;
    const std::string text = print(h, Instance(h, "lumo_tarn_dp_ll_spec"), "x", 0).text();
    for (const char *list : {"  filter_tc_list@lumo_tarn_dp_tc_list: {\n    num_tcs@u_int32:0\n",
                             "  acl_tc_list@lumo_tarn_dp_tc_list: {\n    num_tcs@u_int32:0\n",
                             "  appl_list@lumo_tarn_dp_appl_list: {\n    num_appls@u_int32:0\n"})
        EXPECT_NE(text.find(list), text.npos) << list;
}

TEST(Schema, DebugRecordsHaveTheirSizes) {
    for (const Tracking mode : {Tracking::none, Tracking::on}) {
        const Handle h(mode);
        const bool tracked = h.tracks();
        const Instance flat(h, "lumo_tarn_debug_setting");
        EXPECT_EQ(bridge::marshal(h, flat.record(), flat.get()).bytes.size(), tracked ? 26u : 22u);
        const Instance element(h, "lumo_tarn_dp_debug_setting");
        EXPECT_EQ(bridge::marshal(h, element.record(), element.get()).bytes.size(), tracked ? 48u : 39u);
        for (std::uint32_t n = 0; n < 4; ++n) {
            reference::Record value("lumo_tarn_dp_debug_setting_data");
            for (std::uint32_t i = 0; i < n; ++i) value.append("lumo_data");
            const Instance data(h, value);
            EXPECT_EQ(data.record().len(h, id, data.get()), tracked ? 8 + 49 * n : 7 + 39 * n);
            EXPECT_EQ(data.value().number(0), n);
        }
    }
}

TEST(Schema, AOneByteCountWrapsAt256) {
    for (const Tracking mode : {Tracking::none, Tracking::on}) {
        Handle h(mode);
        for (const RecordOperations &record : tarn::reflect::records()) {
            const reference::RecordTable &table = reference::record_table(record.record->name);
            for (std::size_t i = 1; i < table.members.size(); ++i) {
                if (table.members[i].cls != Class::array || table.members[i - 1].width != 1) continue;
                SCOPED_TRACE(table.name + "." + table.members[i].name);
                const Instance instance(h, record);
                const Instance value(h, table.members[i].type);
                std::uint32_t err = 0;
                record.members[i].element_set(h, id, instance.get(), 254, value.get(), &err);
                EXPECT_EQ(err, 0u);
                EXPECT_EQ(record.members[i - 1].get_value(h, id, instance.get(), &err), 255u);
                const std::uint64_t before = mirk_platform_live_bytes(h);
                record.members[i].element_set(h, id, instance.get(), 255, value.get(), &err);
                EXPECT_EQ(err, 0u);
                EXPECT_EQ(record.members[i - 1].get_value(h, id, instance.get(), &err), 0u);
                EXPECT_GT(mirk_platform_live_bytes(h), before);
            }
        }
    }
}

TEST(Schema, NoTypeHoldsReferences) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const Instance instance(h, record);
        std::uint32_t err = 0;
        void *oids[1] = {&err};
        EXPECT_EQ(record.get_oid_count(h, id, instance.get(), &err), 0u);
        record.get_object_references(h, id, instance.get(), oids, 1, &err);
        EXPECT_EQ(oids[0], &err);
        EXPECT_EQ(err, 0u);
    }
}

TEST(Schema, TheTwoCountsOfProcessorsAreIndependent) {
    const Handle h;
    reference::Record value("lumo_tarn_global_info");
    value.nested("lumo_info_list").append("lumo_info");
    const Instance info(h, value);
    std::uint32_t err = 0;
    const std::uint8_t number = 200;
    lumo_tarn_global_info_num_lumos_set(h, id, static_cast<lumo_tarn_global_info *>(info.get()), &number, &err);
    EXPECT_EQ(err, 0u);
    value["num_lumos"].number = 200;
    EXPECT_TRUE(bridge::same(value, info.value()));
    expect_carried(value);

    const Instance read(h, "lumo_tarn_global_info");
    EXPECT_EQ(
        read_members(h, read, "<num_lumos>9</num_lumos><lumo_info_list><num_lumos>5</num_lumos></lumo_info_list>"), 0u);
    EXPECT_EQ(read.value()["num_lumos"].number, 9u);
    EXPECT_EQ(read.value().nested("lumo_info_list").number(0), 0u);
}

TEST(Schema, SetAllWritesTheTotalAndNotTheCount) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_mp_tc_prefix_data");
    value.append("prefix_data");
    const Instance data(h, value);
    std::uint32_t err = 0;
    lumo_tarn_dp_mp_tc_prefix_data_set_all(h, id, static_cast<lumo_tarn_dp_mp_tc_prefix_data *>(data.get()), 1, 50,
                                           &err);
    EXPECT_EQ(err, 0u);
    value["show_header"].number = 1;
    value["total_prefixes"].number = 50;
    EXPECT_TRUE(bridge::same(value, data.value()));
}

TEST(Schema, AStringsLengthIsTruncatedTo16Bits) {
    const Handle h;
    const std::string text(65536 + 5, 'n');
    for (const RecordOperations &record : tarn::reflect::records()) {
        for (const auto &member : record.members) {
            if (member.text_set == nullptr) continue;
            const Instance instance(h, record);
            std::uint32_t err = 0;
            member.text_set(h, id, instance.get(), text.data(), static_cast<std::uint32_t>(text.size()), &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(instance.value()[std::string(member.member->name)].text, "nnnnn") << record.record->name;
            EXPECT_EQ(member.text_set_cr(h, instance.get(), text.data(), 65536), 0u);
            EXPECT_EQ(instance.value()[std::string(member.member->name)].text, "") << record.record->name;
        }
    }
}

TEST(Schema, ARecordKeepsAnEnumerationOutOfRange) {
    const Handle h;
    for (const char *member : {"ha_state", "direction"}) {
        reference::Record value("lumo_tarn_lumo_info");
        value[member].number = 1234567;
        const Instance info(h, value);
        EXPECT_TRUE(bridge::same(reference::encode(value, false), bridge::marshal(h, info.record(), info.get()).bytes));
        EXPECT_NE(print(h, info, "x", 0).text().find("_e:Enum value out of range  "), std::string::npos);
        EXPECT_NE(to_xml(h, info, "x").text().find("_e value out of range/>"), std::string::npos);
    }
}

}  // namespace
