// XML renderings of records.
#include "value_support.h"

namespace {

using namespace forms;

TEST(XmlWriting, EveryRecordIsWrittenAsTheReference) {
    for (const Tracking mode : kit::every_tracking) {
        const Handle h(mode);
        for (const RecordOperations &record : tarn::reflect::records()) {
            for (std::uint64_t seed = 1; seed <= 4; ++seed) {
                const reference::Record value = random_value(
                    record.record->name, seed, {.max_elements = 2, .states = h.tracks(), .strange = seed > 2});
                const Instance instance(h, value);

                const Written own = write(ample, [&](char *buffer, std::int32_t room, std::uint32_t *) {
                    return record.toxml_cr(h, instance.get(), buffer, room);
                });
                ASSERT_EQ(own.text(), reference::toxml_cr(value, h.tracks()));
                EXPECT_EQ(h->last_error, 0u);
                EXPECT_EQ(own.buffer[own.result], '\0');
                EXPECT_TRUE(own.untouched_from(own.result + 1));

                const Written named = to_xml(h, instance, "some_name", 200);
                ASSERT_EQ(named.text(), reference::to_xml(value, "some_name", h.tracks(), 200));
                EXPECT_EQ(named.err, 0u);
                EXPECT_TRUE(bridge::same(value, instance.value()));
            }
        }
    }
}

TEST(XmlWriting, ARecordWithoutABodyIsAnEmptyElement) {
    const Handle h;
    reference::Record value("lumo_tarn_exmem_info_wrapper");
    value.nested("exmem").variant = -2;
    EXPECT_EQ(to_xml(h, Instance(h, value), "x").text(), "<x><exmem></exmem></x>");
    value.variant = -1;
    EXPECT_EQ(to_xml(h, Instance(h, value), "x", 9).text(), "<x state=\"9\"></x>");
}

TEST(XmlWriting, CountsAndLengthsHaveNoState) {
    const Handle h(Tracking::on);
    const Instance list(h, "lumo_tarn_cl_appl_data");
    list.record().set_all_state_tracking_flag(h, id, list.get(), 7);
    std::uint32_t err = 0;
    EXPECT_EQ(to_xml(h, list, "x").text(),
              "<x><show_header state=\"7\">false</show_header><num_kesh_appls>0</num_kesh_appls></x>");

    const Instance appl(h, "lumo_tarn_cl_kesh_appl");
    auto *object = static_cast<lumo_tarn_cl_kesh_appl *>(appl.get());
    lumo_tarn_cl_kesh_appl_proto_name_set(h, id, object, "tcp", 3, &err);
    lumo_tarn_cl_kesh_appl_proto_name_state_flag_set(h, id, object, 5, &err);
    lumo_tarn_cl_kesh_appl_tarn_id_state_flag_set(h, id, object, 255, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(to_xml(h, appl, "x").text(),
              "<x><proto_name_len>3</proto_name_len><proto_name state=\"5\">tcp</proto_name>"
              "<sub_proto_name_len>0</sub_proto_name_len><sub_proto_name></sub_proto_name>"
              "<protocol_id>0</protocol_id><tarn_id state=\"255\">0</tarn_id></x>");
}

TEST(XmlWriting, ElementsShowTheirOwnStateAndNestedRecordsThatOfTheMember) {
    const Handle h(Tracking::on);
    reference::Record value("lumo_tarn_dyn_exmem_info");
    value["exmem"].state = 3;  // of the whole array, which has no element in the text
    value.append("exmem", 4)["exmem"].state = 5;
    value.append("exmem", 0);
    const std::string text = to_xml(h, Instance(h, value), "x").text();
    EXPECT_NE(text.find("<exmem state=\"4\"><exmem state=\"5\"><cl_addr>0</cl_addr>"), std::string::npos) << text;
    EXPECT_NE(text.find("</exmem></exmem><exmem><exmem><cl_addr>0</cl_addr>"), std::string::npos) << text;
    EXPECT_EQ(text.find("state=\"3\""), std::string::npos) << text;
}

TEST(XmlWriting, AnEnumerationNeverHasAState) {
    const Handle h(Tracking::on);
    const Instance mem(h, "lumo_tarn_static_exmem_info");
    mem.record().set_all_state_tracking_flag(h, id, mem.get(), 9);
    const std::string text = to_xml(h, mem, "x").text();
    EXPECT_NE(text.find("<LUMO_TARN_MP_MEM/>"), std::string::npos);
    for (const auto &row : reference::record_table("lumo_tarn_static_exmem_info").members) {
        const bool enumeration = row.cls == reference::Class::enumeration;
        EXPECT_NE(text.find("<" + row.name + (enumeration ? ">" : " state=\"9\">")), std::string::npos) << row.name;
    }
}

TEST(XmlWriting, NothingIsWrittenIfTheErrorIsSet) {
    const Handle h;
    const Instance exmem(h, "lumo_tarn_exmem_info");
    h->last_error = 5;
    const Written written = write(300, [&](char *buffer, std::int32_t room, std::uint32_t *err) {
        *err = 2;
        return exmem.record().to_xml(h, id, "x", buffer, exmem.get(), room, 1, err);
    });
    EXPECT_EQ(written.result, 0u);
    EXPECT_EQ(written.err, 2u);
    EXPECT_TRUE(written.untouched_from(0));
    EXPECT_EQ(h->last_error, 5u);

    EXPECT_EQ(to_xml(h, exmem, "x").err, 0u);
    EXPECT_EQ(h->last_error, 0u);
}

TEST(XmlWriting, AStickyFormWritesNothingAfterAnError) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const Instance instance(h, record);
        h->last_error = 12;
        const Written written = write(500, [&](char *buffer, std::int32_t room, std::uint32_t *) {
            return record.toxml_cr(h, instance.get(), buffer, room);
        });
        EXPECT_EQ(written.result, 0xFFFFFFFFu) << record.record->name;
        EXPECT_TRUE(written.untouched_from(0)) << record.record->name;
        EXPECT_EQ(h->last_error, 12u);
        h->last_error = 0;
    }
}

TEST(XmlWriting, AnObjectWithoutStateStopsTheWalkOnATrackingHandle) {
    const Handle h(Tracking::on);
    const Instance exmem(h, "lumo_tarn_exmem_info");
    exmem.header()->obj_flag &= static_cast<std::uint8_t>(~8u);
    const Trace trace;
    const Written written = to_xml(h, exmem, "x");
    EXPECT_EQ(written.err, 22u);
    EXPECT_EQ(h->last_error, 22u);
    EXPECT_EQ(written.text(), "<x>");
    EXPECT_EQ(trace.lines(), Lines{"type 3 (ERR): The object is non state tracked"});
    exmem.header()->obj_flag |= 8u;
    h->last_error = 0;
}

TEST(XmlWritingDeathTest, ACorruptModeAborts) {
    const Handle h(Tracking::on);
    const Instance exmem(h, "lumo_tarn_exmem_info");
    EXPECT_DEATH(
        {
            mirk_platform_testing_set_sttr_mode(h, 0x1234);
            to_xml(h, exmem, "x");
        },
        "\\(FATAL\\): Corrupted MIRK Handle");
}

TEST(XmlWriting, ABufferThatIsTooSmallFailsAndIsNotOverrun) {
    for (const Tracking mode : {Tracking::none, Tracking::on}) {
        const Handle h(mode);
        for (const reference::Record &value : rich_values()) {
            const Instance instance(h, value);
            const std::string whole = reference::to_xml(value, "root", h.tracks(), 3);
            std::string area(whole.size() + 64, blank);
            for (std::size_t room = 0; room <= whole.size() + 1; ++room) {
                std::fill(area.begin(), area.end(), blank);
                std::uint32_t err = 0;
                const std::uint32_t result = instance.record().to_xml(h, id, "root", area.data(), instance.get(),
                                                                      static_cast<std::int32_t>(room), 3, &err);
                ASSERT_EQ(area.find_first_not_of(blank, room), std::string::npos) << room;
                ASSERT_LE(result, room);
                // A NUL follows the last tag, so room for the text alone is not enough.
                ASSERT_EQ(err != 0, room <= whole.size()) << room;
                ASSERT_EQ(area.substr(0, result), whole.substr(0, result)) << room;
            }
            for (const std::int32_t room : {-1, -2147483647}) {
                std::uint32_t err = 0;
                EXPECT_EQ(instance.record().to_xml(h, id, "x", area.data(), instance.get(), room, 0, &err), 0u);
                EXPECT_NE(err, 0u);
            }
            std::fill(area.begin(), area.end(), blank);
            EXPECT_EQ(instance.record().toxml_cr(h, instance.get(), area.data(), 100), 0xFFFFFFFFu);
            EXPECT_NE(h->last_error, 0u);
            EXPECT_EQ(area.substr(0, 40), reference::toxml_cr(value, h.tracks()).substr(0, 40));
            h->last_error = 0;
        }
    }
}

}  // namespace
