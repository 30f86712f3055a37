// Which defects of a document a reader ignores, and which it reports.
#include "value_support.h"

namespace {

using namespace forms;

TEST(XmlRules, AMissingRecordFailsWithEnoent) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const reference::Record value =
            random_value(record.record->name, 1, {.max_elements = 1, .states = false, .printable = true});
        const Instance instance(h, value);
        const Document document("<other/>");
        std::uint32_t err = 0;
        record.from_xml(h, id, "//missing", document, instance.get(), &err, nullptr, 0);
        EXPECT_EQ(err, 2u) << record.record->name;
        EXPECT_EQ(h->last_error, 2u);
        EXPECT_TRUE(bridge::same(value, instance.value()));
    }
}

TEST(XmlRules, AnInvalidPathIsAMissingRecord) {
    const Handle h;
    const Instance exmem(h, "lumo_tarn_exmem_info");
    const Document document("<x><size>1</size></x>");
    for (void *of : {static_cast<void *>(document), static_cast<void *>(nullptr)}) {
        std::uint32_t err = 0;
        exmem.record().from_xml(h, id, of == nullptr ? "//x" : "//[", of, exmem.get(), &err, nullptr, 0);
        EXPECT_EQ(err, 2u);
    }
    EXPECT_EQ(exmem.value()["size"].number, 0u);
}

TEST(XmlRules, ASetErrorIsKept) {
    const Handle h;
    const Instance exmem(h, "lumo_tarn_exmem_info");
    const Document document("<x><size>1</size></x>");
    h->last_error = 5;
    for (const std::uint32_t number : {2u, 22u}) {
        std::uint32_t err = number;
        exmem.record().from_xml(h, id, "//x", document, exmem.get(), &err, nullptr, 0);
        EXPECT_EQ(err, number);
    }
    EXPECT_EQ(h->last_error, 5u);
    EXPECT_EQ(exmem.value()["size"].number, 0u);
}

TEST(XmlRules, AnEmptyElementIsNotAnError) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const Instance instance(h, record);
        EXPECT_EQ(read_members(h, instance, ""), 0u) << record.record->name;
        EXPECT_TRUE(bridge::same(reference::Record(record.record->name), instance.value()));
    }
}

// The ignored error of the missing record remains in the handle, which is not the slot here.
TEST(XmlRules, AMissingNestedRecordIsIgnored) {
    const Handle h;
    reference::Record value = random_value("lumo_tarn_dp_lumo_wexa_info", 1, {.states = false});
    const Instance instance(h, value);
    EXPECT_EQ(read_members(h, instance, "<out_wexa><flags>77</flags></out_wexa><lumo_num>8</lumo_num>"), 0u);
    value["lumo_num"].number = 8;
    value.nested("out_wexa")["flags"].number = 77;
    EXPECT_TRUE(bridge::same(value, instance.value()));

    const Instance wrapper(h, "lumo_tarn_exmem_info_wrapper");
    EXPECT_EQ(read_members(h, wrapper, "<other/>"), 0u);
    EXPECT_EQ(h->last_error, 2u);
}

TEST(XmlRules, AnInvalidValueStopsTheRead) {
    const Handle h;
    const Instance exmem(h, "lumo_tarn_exmem_info");
    EXPECT_EQ(read_members(h, exmem, "<cl_addr>1</cl_addr><exmem_addr>x</exmem_addr><ppe_addr>2</ppe_addr>"), 22u);
    EXPECT_EQ(exmem.value()["cl_addr"].number, 1u);
    EXPECT_EQ(exmem.value()["ppe_addr"].number, 0u);

    // Also in a nested record, and for a number that is too large.
    const Instance wexa(h, "lumo_tarn_dp_lumo_wexa_info");
    EXPECT_EQ(read_members(h, wexa,
                           "<lumo_num>1</lumo_num><in_wexa><flags>4294967296</flags></in_wexa>"
                           "<out_wexa_is_valid>true</out_wexa_is_valid>"),
              22u);
    EXPECT_EQ(wexa.value()["lumo_num"].number, 1u);
    EXPECT_EQ(wexa.value()["out_wexa_is_valid"].number, 0u);

    // And in an element, which is not stored.
    const Instance data(h, "lumo_tarn_dp_debug_setting_data");
    EXPECT_EQ(read_members(h, data,
                           "<lumo_data><lumo_num>1</lumo_num></lumo_data><lumo_data><lumo_num>-1</lumo_num></lumo_data>"
                           "<lumo_data><lumo_num>3</lumo_num></lumo_data>"),
              22u);
    EXPECT_EQ(data.value().number(0), 1u);
}

TEST(XmlRules, AnArrayWithoutElementsDoesNotChange) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_debug_setting_data");
    value.append("lumo_data")["lumo_num"].number = 4;
    const Instance data(h, value);
    EXPECT_EQ(read_members(h, data, "<num_lumos>0</num_lumos>"), 0u);
    EXPECT_TRUE(bridge::same(value, data.value()));
}

TEST(XmlRules, ElementsAreOverwrittenFromTheFirstAndTheRestStays) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_debug_setting_data");
    for (std::uint64_t i = 0; i < 3; ++i) value.append("lumo_data")["ager_enabled"].number = 10 + i;
    const Instance data(h, value);
    EXPECT_EQ(read_members(h, data, "<lumo_data><lumo_num>1</lumo_num></lumo_data><lumo_data/>"), 0u);
    value["lumo_data"].items[0] = reference::Record("lumo_tarn_dp_debug_setting");
    value["lumo_data"].items[0]["lumo_num"].number = 1;
    value["lumo_data"].items[1] = reference::Record("lumo_tarn_dp_debug_setting");
    EXPECT_TRUE(bridge::same(value, data.value()));
}

TEST(XmlRules, TheCountInTheDocumentIsIgnored) {
    const Handle h;
    const Instance list(h, "lumo_tarn_dp_tc_list");
    EXPECT_EQ(read_members(h, list, "<num_tcs>5</num_tcs><tc_list/><tc_list><id>6</id></tc_list>"), 0u);
    EXPECT_EQ(list.value().number(0), 2u);
    EXPECT_EQ(list.value()["tc_list"].items.at(1)["id"].number, 6u);

    const Instance appl(h, "lumo_tarn_cl_kesh_appl");
    EXPECT_EQ(read_members(h, appl,
                           "<proto_name_len>77</proto_name_len><proto_name>ab</proto_name>"
                           "<sub_proto_name_len>x</sub_proto_name_len><sub_proto_name>c</sub_proto_name>"),
              0u);
    EXPECT_EQ(appl.value().number(0), 2u);
    EXPECT_EQ(appl.value().number(2), 1u);
}

TEST(XmlRules, AnEmptyStringKeepsTheOldOne) {
    const Handle h;
    reference::Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = "tcp";
    value["sub_proto_name"].text = "sub";
    const Instance appl(h, value);
    EXPECT_EQ(read_members(h, appl,
                           "<proto_name/><sub_proto_name></sub_proto_name><protocol_id>6</protocol_id>"
                           "<tarn_id>7</tarn_id>"),
              0u);
    value["protocol_id"].number = 6;
    value["tarn_id"].number = 7;
    EXPECT_TRUE(bridge::same(value, appl.value()));
}

TEST(XmlRules, AnAbsentStringSkipsTheNextScalar) {
    const Handle h;
    const std::string numbers = "<protocol_id>6</protocol_id><tarn_id>7</tarn_id>";
    {
        const Instance appl(h, "lumo_tarn_cl_kesh_appl");
        EXPECT_EQ(read_members(h, appl, "<proto_name>a</proto_name>" + numbers), 0u);
        EXPECT_EQ(appl.value()["proto_name"].text, "a");
        EXPECT_EQ(appl.value()["protocol_id"].number, 0u);
        EXPECT_EQ(appl.value()["tarn_id"].number, 7u);
    }
    {
        // A string after an absent one is read normally.
        const Instance appl(h, "lumo_tarn_cl_kesh_appl");
        EXPECT_EQ(read_members(h, appl, "<sub_proto_name>b</sub_proto_name>" + numbers), 0u);
        EXPECT_EQ(appl.value()["sub_proto_name"].text, "b");
        EXPECT_EQ(appl.value()["protocol_id"].number, 6u);
        EXPECT_EQ(appl.value()["tarn_id"].number, 7u);
    }
    {
        const Instance intf(h, "lumo_tarn_dp_intf_data");
        EXPECT_EQ(read_members(h, intf,
                               "<intf_name_is_valid>true</intf_name_is_valid>"
                               "<in_lumo_wexa_is_valid>true</in_lumo_wexa_is_valid>"
                               "<out_lumo_wexa_is_valid>true</out_lumo_wexa_is_valid>"),
                  0u);
        EXPECT_EQ(intf.value()["intf_name_is_valid"].number, 1u);
        EXPECT_EQ(intf.value()["in_lumo_wexa_is_valid"].number, 0u);
        EXPECT_EQ(intf.value()["out_lumo_wexa_is_valid"].number, 1u);
    }
    {
        const Instance signature(h, "lumo_tarn_dp_appl_sig");
        EXPECT_EQ(read_members(h, signature, "<appl_id>1</appl_id><protocol>2</protocol>"), 0u);
        EXPECT_EQ(signature.value()["appl_id"].number, 0u);
        EXPECT_EQ(signature.value()["protocol"].number, 2u);
    }
}

// A string ignores only its absence, and leaves every other error to the next member.
TEST(XmlRules, AFailedStringLookUpStopsTheReadAtTheNextScalar) {
    const Handle h;
    const Instance appl(h, "lumo_tarn_cl_kesh_appl");
    // The path of a member is truncated after its slash, and the rest is not a valid path.
    const std::string root(252, 'a');
    const Document document("<" + root + "><proto_name>tcp</proto_name><tarn_id>1</tarn_id></" + root + ">");
    std::uint32_t err = 0;
    appl.record().from_xml(h, id, ("//" + root).c_str(), document, appl.get(), &err, nullptr, 0);
    EXPECT_EQ(err, 22u);
    EXPECT_EQ(h->last_error, 22u);
    EXPECT_TRUE(bridge::same(reference::Record("lumo_tarn_cl_kesh_appl"), appl.value()));
}

TEST(XmlRules, APathOfMoreThan255CharactersIsTruncatedAndFindsNothing) {
    const Handle h;
    reference::Record value = random_value("lumo_tarn_exmem_info", 1, {.states = false});
    const Instance exmem(h, value);
    // After the root and two slashes there is room for seven characters: two names fit and two are truncated, one of
    // which becomes the name of another element.
    const std::string root(245, 'a');
    const Document document("<" + root + "><cl_addr>1</cl_addr><exmem_addr>2</exmem_addr><exmem_a>5</exmem_a>" +
                            "<ppe_addr>3</ppe_addr><size>4</size></" + root + ">");
    std::uint32_t err = 0;
    exmem.record().from_xml(h, id, ("//" + root).c_str(), document, exmem.get(), &err, nullptr, 0);
    EXPECT_EQ(err, 0u);
    value["cl_addr"].number = 1;
    value["exmem_addr"].number = 5;
    value["size"].number = 4;
    EXPECT_TRUE(bridge::same(value, exmem.value()));
}

TEST(XmlRules, BothArraysOfAProcessorAreRead) {
    const Handle h;
    const std::string fixed = "<static_exmem><num_hash_elements>1</num_hash_elements></static_exmem>";
    const std::string dynamic = "<dyn_exmem><list_header_ptr>2</list_header_ptr><exmem/><exmem/></dyn_exmem>";
    {
        const Instance info(h, "lumo_tarn_lumo_info");
        // In any order, with other elements in between.
        EXPECT_EQ(
            read_members(h, info, dynamic + fixed + "<num_dyn_exmems>9</num_dyn_exmems>" + dynamic + fixed + fixed),
            0u);
        const reference::Record value = info.value();
        EXPECT_EQ(value["static_exmem"].items.size(), 3u);
        ASSERT_EQ(value["dyn_exmem"].items.size(), 2u);
        EXPECT_EQ(value["dyn_exmem"].items[1]["exmem"].items.size(), 2u);
        EXPECT_EQ(value["dyn_exmem"].items[1]["list_header_ptr"].number, 2u);
    }
    {
        // The first array's element cannot be allocated: the second array is tried, and stops at once.
        const Instance info(h, "lumo_tarn_lumo_info");
        const std::uint64_t made = mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC);
        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 0);
        EXPECT_EQ(read_members(h, info, fixed + dynamic), 12u);
        EXPECT_EQ(mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC) - made, 2u);
        EXPECT_EQ(info.value()["dyn_exmem"].items.size(), 0u);
    }
    {
        const Instance info(h, "lumo_tarn_lumo_info");
        EXPECT_EQ(
            read_members(h, info, "<static_exmem><num_hash_elements>x</num_hash_elements></static_exmem>" + dynamic),
            22u);
        EXPECT_EQ(info.value()["dyn_exmem"].items.size(), 0u);
    }
}

TEST(XmlRules, AFailedStringAllocationGivesEnomem) {
    const Handle h;
    for (const std::uint64_t nth : {1u, 2u}) {
        const Instance appl(h, "lumo_tarn_cl_kesh_appl");
        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, nth, 0);
        EXPECT_EQ(read_members(h, appl, "<proto_name>tcp</proto_name><tarn_id>1</tarn_id>"), 12u);
        EXPECT_EQ(h->last_error, 12u);
        EXPECT_EQ(appl.value()["tarn_id"].number, 0u);
    }
}

TEST(XmlRules, AnInstanceWithoutABodyStoresNumbersButNoStrings) {
    const Handle h;
    const Instance appl(h, "lumo_tarn_cl_kesh_appl");
    mirk_platform_domain_set_variant(h, tarn::schema::lumo_tarn_cl_kesh_appl.luid.bytes.data(), -1);
    appl.header()->variant = -1;
    // The setter of the string fails.
    EXPECT_EQ(read_members(h, appl, "<proto_name>tcp</proto_name><tarn_id>1</tarn_id>"), 43u);
    EXPECT_EQ(read_members(h, appl, "<proto_name/><sub_proto_name/><tarn_id>1</tarn_id>"), 0u);
    appl.header()->variant = 0;
    EXPECT_EQ(appl.value()["proto_name"].text, "");
    EXPECT_EQ(appl.value()["tarn_id"].number, 1u);
}

TEST(XmlRules, TheLengthOfALongStringIsTruncatedTo16Bits) {
    const Handle h;
    const Instance appl(h, "lumo_tarn_cl_kesh_appl");
    EXPECT_EQ(read_members(h, appl, "<proto_name>" + std::string(65536 + 3, 'q') + "</proto_name>"), 0u);
    EXPECT_EQ(appl.value()["proto_name"].text, "qqq");
}

}  // namespace
