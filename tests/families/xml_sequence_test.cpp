// The order in which reading from XML calls the runtime.
#include <gtest/gtest.h>

#include "lumo_ui_tarn.h"
#include "recording.h"

namespace {

using recording::Detail;
using recording::Element;
using recording::Handle;
using recording::Tracking;
using Lines = std::vector<std::string>;

constexpr std::uint32_t id = 7;

class ReadingSequence : public testing::Test {
protected:
    void watch(const void *object, std::size_t size) {
        recording::clear_names();
        recording::name_region("object", object, size);
        recording::name_region("message", message, sizeof message);
        recording::name_region("slot", &err, sizeof err);
        recording::clear_log();
    }

    std::uint32_t err = 0;
    char message[40] = {};
};

TEST_F(ReadingSequence, MembersAreLookedUpInTableOrder) {
    Handle h;
    lumo_tarn_dp_lumo_wexa_info *wexa = lumo_tarn_dp_lumo_wexa_info_create(h, id);
    Element document{"r", "", {}};
    document.add("out_wexa").add("flags", "3");
    document.add("lumo_num", "9");
    watch(wexa, 112);
    lumo_tarn_dp_lumo_wexa_info_from_xml(h, id, "//r", &document, wexa, &err, message, 40);
    // Nothing is notified or marked, and no state is read.
    EXPECT_EQ(recording::lines(Detail::full),
              (Lines{"mirk_clear_last_error", "xml_get_element_nodecount //r",
                     "u_int8_from_xml //r/lumo_num object+11 message 40 ctx=7 err=slot",
                     "mirk_boolean_from_xml //r/in_wexa_is_valid object+16 message 40 ctx=7 err=slot",
                     "mirk_clear_last_error", "xml_get_element_nodecount //r/in_wexa", "mirk_store_err 2",
                     "mirk_boolean_from_xml //r/out_wexa_is_valid object+56 message 40 ctx=7 err=slot",
                     "mirk_clear_last_error", "xml_get_element_nodecount //r/out_wexa",
                     "u_int32_from_xml //r/out_wexa/flags object+84 message 40 ctx=7 err=slot"}));
    EXPECT_EQ(err, 0u);
    lumo_tarn_dp_lumo_wexa_info_destroy(h, id, wexa);
}

TEST_F(ReadingSequence, NoCallIsMadeIfTheErrorIsSet) {
    Handle h;
    lumo_tarn_cl_kesh_appl *appl = lumo_tarn_cl_kesh_appl_create(h, id);
    Element document{"r", "", {}};
    char buffer[64];
    watch(appl, 60);
    err = 5;
    EXPECT_EQ(lumo_tarn_cl_kesh_appl_to_xml(h, id, "r", buffer, appl, 64, 0, &err), 0u);
    lumo_tarn_cl_kesh_appl_from_xml(h, id, "//r", &document, appl, &err, message, 40);
    EXPECT_EQ(recording::lines(), Lines{});
    EXPECT_EQ(err, 5u);
    lumo_tarn_cl_kesh_appl_destroy(h, id, appl);
}

TEST_F(ReadingSequence, AStringIsMeasuredReadIntoABufferAndSet) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        Handle h({.tracking = tracking});
        lumo_tarn_cl_kesh_appl *appl = lumo_tarn_cl_kesh_appl_create(h, id);
        lumo_tarn_cl_kesh_appl_proto_name_set(h, id, appl, "old", 3, &err);
        Element document{"r", "", {}};
        document.add("proto_name", "tcp4");
        document.add("sub_proto_name");
        document.add("tarn_id", "5");
        watch(appl, 60);
        lumo_tarn_cl_kesh_appl_from_xml(h, id, "//r", &document, appl, &err, message, 40);
        Lines expected{"mirk_clear_last_error",
                       "xml_get_element_nodecount //r",
                       "xml_get_element_value //r/proto_name null 0 local",
                       "mirk_store_err 28",
                       "obj_alloc 5",
                       "var_string_from_xml //r/proto_name block1 5 message 40",
                       "mirk_clear_last_error",
                       "mirklib_adjust_variant object lumo_tarn_cl_kesh_appl 0",
                       "mirk_get_instance_variant object 1 0",
                       "obj_free earlier",
                       "write_notify object+16 8",
                       "obj_alloc 4",
                       "write_notify object+12 2",
                       "write_notify object+56 1",
                       "mirk_set_instance_modified object 1 0 1",
                       "obj_free block1",
                       "xml_get_element_value //r/sub_proto_name null 0 local",
                       "u_int16_from_xml //r/protocol_id object+40 message 40",
                       "u_int16_from_xml //r/tarn_id object+42 message 40"};
        if (tracking == Tracking::none) std::erase(expected, "write_notify object+56 1");
        EXPECT_EQ(recording::lines(), expected);
        EXPECT_EQ(err, 0u);
        lumo_tarn_cl_kesh_appl_destroy(h, id, appl);
    }
}

TEST_F(ReadingSequence, TheNextMemberClearsTheErrorOfAnAbsentString) {
    Handle h;
    lumo_tarn_cl_kesh_appl *appl = lumo_tarn_cl_kesh_appl_create(h, id);
    const Element document{"r", "", {}};
    watch(appl, 60);
    lumo_tarn_cl_kesh_appl_from_xml(h, id, "//r", const_cast<Element *>(&document), appl, &err, message, 40);
    EXPECT_EQ(recording::lines(), (Lines{"mirk_clear_last_error", "xml_get_element_nodecount //r",
                                         "xml_get_element_value //r/proto_name null 0 local", "mirk_store_err 2",
                                         "xml_get_element_value //r/sub_proto_name null 0 local", "mirk_store_err 2",
                                         "u_int16_from_xml //r/protocol_id object+40 message 40",
                                         "u_int16_from_xml //r/tarn_id object+42 message 40"}));
    EXPECT_EQ(err, 0u);
    lumo_tarn_cl_kesh_appl_destroy(h, id, appl);
}

TEST_F(ReadingSequence, AFailedStringReadReleasesItsBuffer) {
    Handle h;
    lumo_tarn_cl_kesh_appl *appl = lumo_tarn_cl_kesh_appl_create(h, id);
    Element document{"r", "", {}};
    document.add("proto_name", "tcp4");
    document.add("tarn_id", "5");
    for (const std::uint32_t number : {2u, 71u}) {
        err = 0;
        h.knobs().errors["var_string_from_xml"] = number;
        watch(appl, 60);
        lumo_tarn_cl_kesh_appl_from_xml(h, id, "//r", &document, appl, &err, message, 40);
        Lines expected{"mirk_clear_last_error",
                       "xml_get_element_nodecount //r",
                       "xml_get_element_value //r/proto_name null 0 local",
                       "mirk_store_err 28",
                       "obj_alloc 5",
                       "var_string_from_xml //r/proto_name block1 5 message 40",
                       "obj_free block1"};
        // Only absence is ignored; other errors stop the read.
        if (number == 2) {
            expected.insert(expected.end(),
                            {"xml_get_element_value //r/sub_proto_name null 0 local", "mirk_store_err 2",
                             "u_int16_from_xml //r/protocol_id object+40 message 40",
                             "u_int16_from_xml //r/tarn_id object+42 message 40"});
        }
        EXPECT_EQ(recording::lines(), expected);
        EXPECT_EQ(err, number == 2 ? 0u : number);
    }
    h.knobs().errors.clear();
    lumo_tarn_cl_kesh_appl_destroy(h, id, appl);
}

TEST_F(ReadingSequence, AFailedStringAllocationStopsTheRead) {
    Handle h;
    lumo_tarn_cl_kesh_appl *appl = lumo_tarn_cl_kesh_appl_create(h, id);
    Element document{"r", "", {}};
    document.add("proto_name", "tcp4");
    watch(appl, 60);
    h.fail_obj_alloc(1);
    lumo_tarn_cl_kesh_appl_from_xml(h, id, "//r", &document, appl, &err, message, 40);
    EXPECT_EQ(recording::lines(), (Lines{"mirk_clear_last_error", "xml_get_element_nodecount //r",
                                         "xml_get_element_value //r/proto_name null 0 local", "mirk_store_err 28",
                                         "obj_alloc 5", "mirk_store_err 12"}));
    EXPECT_EQ(err, 12u);
    lumo_tarn_cl_kesh_appl_destroy(h, id, appl);
}

// Each element is read into an object of its own and moved from there, position by position.
TEST_F(ReadingSequence, AnArrayIsReadByPositionsUntilOneIsMissing) {
    Handle h;
    lumo_tarn_dp_debug_setting_data *data = lumo_tarn_dp_debug_setting_data_create(h, id);
    Element document{"r", "", {}};
    document.add("num_lumos", "40");
    document.add("lumo_data");
    document.add("lumo_data");
    watch(data, 32);
    lumo_tarn_dp_debug_setting_data_from_xml(h, id, "//r", &document, data, &err, message, 40);
    const Lines lines = recording::lines_of({"xml_get_element_nodecount", "obj_alloc", "obj_free", "mirk_store_err"});
    EXPECT_EQ(lines,
              (Lines{"xml_get_element_nodecount //r", "obj_alloc 56", "xml_get_element_nodecount //r/lumo_data[1]",
                     "obj_alloc 56", "obj_free block1", "obj_alloc 56", "xml_get_element_nodecount //r/lumo_data[2]",
                     "obj_alloc 112", "obj_free block2", "obj_free block3", "obj_alloc 56",
                     "xml_get_element_nodecount //r/lumo_data[3]", "mirk_store_err 2", "obj_free block5"}));
    EXPECT_EQ(err, 0u);
    // The count in the document is ignored.
    for (const std::string &line : recording::lines()) EXPECT_EQ(line.find("num_lumos"), line.npos) << line;
    lumo_tarn_dp_debug_setting_data_destroy(h, id, data);
}

TEST_F(ReadingSequence, AFailedElementAllocationEndsOnlyItsArray) {
    Handle h;
    lumo_tarn_lumo_info *info = lumo_tarn_lumo_info_create(h, id);
    const Element document{"r", "", {}};
    watch(info, 800);
    h.fail_obj_alloc(1);
    lumo_tarn_lumo_info_from_xml(h, id, "//r", const_cast<Element *>(&document), info, &err, message, 40);
    const Lines lines = recording::lines_of({"xml_get_element_nodecount", "obj_alloc", "obj_free", "mirk_store_err"});
    ASSERT_GE(lines.size(), 4u);
    // The second array allocates its element, which is not read because of the error.
    EXPECT_EQ(Lines(lines.end() - 4, lines.end()),
              (Lines{"obj_alloc 112", "mirk_store_err 12", "obj_alloc 64", "obj_free block1"}));
    EXPECT_EQ(err, 12u);
    lumo_tarn_lumo_info_destroy(h, id, info);
}

}  // namespace
