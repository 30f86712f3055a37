// The order in which text and XML renderings call the runtime.
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

class RenderingSequence : public testing::Test {
protected:
    // From here on calls are recorded; the object's block, its elements and the buffer have names.
    void watch(void *object, std::size_t size, void *block = nullptr, std::size_t block_size = 0) {
        recording::clear_names();
        recording::name_region("object", object, size);
        if (block != nullptr) recording::name_region("element", block, block_size);
        recording::name_region("buffer", buffer, sizeof buffer);
        recording::name_region("slot", &err, sizeof err);
        recording::clear_log();
    }

    lumo_tarn_cl_appl_data *applications(mirk_handle *h, bool named) {
        lumo_tarn_cl_appl_data *data = lumo_tarn_cl_appl_data_create(h, id);
        lumo_tarn_cl_kesh_appl *appl = lumo_tarn_cl_kesh_appl_create(h, id);
        if (named) lumo_tarn_cl_kesh_appl_proto_name_set(h, id, appl, "tcp", 3, &err);
        lumo_tarn_cl_appl_data_kesh_appl_set(h, id, data, 0, appl, &err);
        lumo_tarn_cl_kesh_appl_destroy(h, id, appl);
        EXPECT_EQ(err, 0u);
        return data;
    }

    std::uint32_t err = 0;
    char buffer[2000] = {};
};

TEST_F(RenderingSequence, PrintVisitsNestedRecordsAndIndentsOverTheOpeningLine) {
    Handle h;
    lumo_tarn_exmem_info_wrapper *wrapper = lumo_tarn_exmem_info_wrapper_create(h, id);
    watch(wrapper, 88);
    EXPECT_EQ(lumo_tarn_exmem_info_wrapper_print(h, id, buffer, 2, "w", wrapper, 500, &err), 165u);
    EXPECT_EQ(
        recording::lines(),
        (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0", "mirk_print_space buffer 2 500",
               "mirk_snprintf buffer+2 498 w@lumo_tarn_exmem_info_wrapper: {\\n", "mirk_clear_last_error",
               "mirk_get_instance_variant object+16 1 0", "mirk_print_space buffer+36 4 464",
               "mirk_snprintf buffer+40 460 exmem@lumo_tarn_exmem_info: {\\n",
               "u_int64_print buffer+70 6 cl_addr object+32 430", "u_int64_print buffer+91 6 exmem_addr object+40 409",
               "u_int64_print buffer+115 6 ppe_addr object+48 385", "u_int32_print buffer+137 6 size object+56 363",
               "mirk_print_space buffer+36 4 345", "mirk_snprintf buffer+159 341 }\\n", "mirk_print_space buffer 2 339",
               "mirk_snprintf buffer+163 337 }\\n"}));
    for (const recording::Call &call : recording::log()) {
        if (!call.slot.empty()) {
            EXPECT_EQ(call.slot, "slot") << call.function;
        }
        EXPECT_EQ(call.ctx_id.value_or(id), id) << call.function;
    }
    lumo_tarn_exmem_info_wrapper_destroy(h, id, wrapper);
}

TEST_F(RenderingSequence, PrintShowsCountsElementsAndStrings) {
    Handle h;
    lumo_tarn_cl_appl_data *data = applications(h, true);
    watch(data, 56, lumo_tarn_cl_appl_data_kesh_appl_get(h, id, data, 0, &err), 56);
    lumo_tarn_cl_appl_data_print(h, id, buffer, 0, "a", data, 2000, &err);
    EXPECT_EQ(recording::lines(), (Lines{"mirk_clear_last_error",
                                         "mirk_get_instance_variant object 1 0",
                                         "mirk_print_space buffer 0 2000",
                                         "mirk_snprintf buffer 2000 a@lumo_tarn_cl_appl_data: {\\n",
                                         "mirk_boolean_print buffer+28 2 show_header object+16 1972",
                                         "u_int32_print buffer+48 2 num_kesh_appls object+32 1952",
                                         "mirk_clear_last_error",
                                         "mirk_get_instance_variant element 1 0",
                                         "mirk_print_space buffer+72 2 1928",
                                         "mirk_snprintf buffer+74 1926 kesh_appl[0]@lumo_tarn_cl_kesh_appl: {\\n",
                                         "u_int16_print buffer+113 4 proto_name_len element+12 1887",
                                         "var_string_print buffer+139 4 proto_name earlier 1861 3",
                                         "u_int16_print buffer+163 4 sub_proto_name_len element+24 1837",
                                         "var_string_print buffer+193 4 sub_proto_name null 1807 0",
                                         "u_int16_print buffer+218 4 protocol_id element+40 1782",
                                         "u_int16_print buffer+241 4 tarn_id element+42 1759",
                                         "mirk_print_space buffer+72 2 1740",
                                         "mirk_snprintf buffer+262 1738 }\\n",
                                         "mirk_print_space buffer 0 1736",
                                         "mirk_snprintf buffer+264 1736 }\\n"}));
    lumo_tarn_cl_appl_data_destroy(h, id, data);
}

// The slot is not checked between members: each is called and does nothing. Elements and nested records return at once.
TEST_F(RenderingSequence, PrintContinuesAfterAnError) {
    Handle h;
    lumo_tarn_dp_appl_cfg *config = lumo_tarn_dp_appl_cfg_create(h, id);
    watch(config, 128);
    h.knobs().errors["u_int8_print"] = 90;
    const std::uint32_t written = lumo_tarn_dp_appl_cfg_print(h, id, buffer, 0, "c", config, 2000, &err);
    EXPECT_EQ(err, 90u);
    const Lines lines = recording::lines();
    ASSERT_EQ(lines.size(), 9u);
    const std::string end = "buffer+" + std::to_string(written);
    const std::string left = std::to_string(2000 - written);
    EXPECT_EQ(lines[5], "u_int8_print " + end + " 2 lumo_num object+32 " + left);
    EXPECT_EQ(lines[6], "u_int32_print " + end + " 2 num_sigs object+96 " + left);
    EXPECT_EQ(lines[7], "mirk_print_space buffer 0 " + left);
    EXPECT_EQ(lines[8], "mirk_snprintf " + end + " " + left + " }\\n");
    h.knobs().errors.clear();
    lumo_tarn_dp_appl_cfg_destroy(h, id, config);
}

TEST_F(RenderingSequence, AStickyPrintUsesTheDefaultIdAndTheLastError) {
    Handle h;
    h->default_id = 31;
    lumo_tarn_dp_wexa_info *wexa = lumo_tarn_dp_wexa_info_create(h, id);
    watch(wexa, 24);
    lumo_tarn_dp_wexa_info_print_cr(h, wexa, buffer, 300);
    lumo_tarn_dp_wexa_info_toxml_cr(h, wexa, buffer, 300);
    EXPECT_EQ(
        recording::lines(Detail::full),
        (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0",
               "mirk_print_space buffer 0 300 ctx=31 err=last_error",
               "mirk_snprintf buffer 300 lumo_tarn_dp_wexa_info@lumo_tarn_dp_wexa_info: {\\n ctx=31 err=last_error",
               "u_int32_print buffer+49 2 flags object+12 251 ctx=31 err=last_error",
               "mirk_print_space buffer 0 236 ctx=31 err=last_error",
               "mirk_snprintf buffer+64 236 }\\n ctx=31 err=last_error", "mirk_clear_last_error",
               "mirk_get_instance_variant object 1 0",
               "start_tag buffer lumo_tarn_dp_wexa_info 300 0 ctx=31 err=last_error",
               "u_int32_to_xml flags buffer+31 object+12 269 0 ctx=31 err=last_error",
               "end_tag buffer+56 lumo_tarn_dp_wexa_info 244 ctx=31 err=last_error"}));
    lumo_tarn_dp_wexa_info_destroy(h, id, wexa);
}

TEST_F(RenderingSequence, XmlReadsStatesOnATrackingHandleOnly) {
    for (const Tracking tracking : {Tracking::none, Tracking::off, Tracking::on}) {
        Handle h({.tracking = tracking});
        lumo_tarn_dyn_exmem_info *dyn = lumo_tarn_dyn_exmem_info_create(h, id);
        lumo_tarn_exmem_info_wrapper *wrapper = lumo_tarn_exmem_info_wrapper_create(h, id);
        lumo_tarn_dyn_exmem_info_exmem_set(h, id, dyn, 0, wrapper, &err);
        watch(dyn, 80, lumo_tarn_dyn_exmem_info_exmem_get(h, id, dyn, 0, &err), 93);
        lumo_tarn_dyn_exmem_info_to_xml(h, id, "d", buffer, dyn, 2000, 9, &err);
        EXPECT_EQ(err, 0u);
        Lines expected{"mirk_clear_last_error",
                       "mirk_get_instance_variant object 1 0",
                       "start_tag buffer d 2000 9",
                       "mirk_clear_last_error",
                       "start_tag buffer+10 mem_type 1990 0",
                       "xml_enum_print buffer+27 <LUMO_TARN_MP_MEM/> 1973 19",
                       "end_tag buffer+46 mem_type 1954",
                       "u_int64_to_xml list_header_ptr buffer+58 object+32 1942 0",
                       "u_int32_to_xml num_exmems buffer+103 object+40 1897 0",
                       "mirk_clear_last_error",
                       "mirk_get_instance_variant element 1 0",
                       "start_tag buffer+138 exmem 1862 2",
                       "mirklib_get_sttr_offset element",
                       "mirk_clear_last_error",
                       "mirk_get_instance_variant element+16 1 0",
                       "start_tag buffer+152 exmem 1848 0",
                       "mirklib_get_sttr_offset element+16",
                       "u_int64_to_xml cl_addr buffer+166 element+32 1834 0",
                       "mirklib_get_sttr_offset element+16",
                       "u_int64_to_xml exmem_addr buffer+195 element+40 1805 0",
                       "mirklib_get_sttr_offset element+16",
                       "u_int64_to_xml ppe_addr buffer+230 element+48 1770 0",
                       "mirklib_get_sttr_offset element+16",
                       "u_int32_to_xml size buffer+261 element+56 1739 0",
                       "end_tag buffer+284 exmem 1716",
                       "end_tag buffer+293 exmem 1707",
                       "end_tag buffer+302 d 1698"};
        if (tracking != Tracking::on) {
            std::erase_if(expected, [](const std::string &line) { return line.starts_with("mirklib_get_sttr"); });
            expected[11] = "start_tag buffer+138 exmem 1862 0";
        }
        EXPECT_EQ(recording::lines(), expected);
        lumo_tarn_exmem_info_wrapper_destroy(h, id, wrapper);
        lumo_tarn_dyn_exmem_info_destroy(h, id, dyn);
    }
}

// Unlike text, XML checks the slot before each member; end tags are written in any case.
TEST_F(RenderingSequence, XmlStopsItsMembersAtAnError) {
    Handle h;
    lumo_tarn_cl_appl_data *data = applications(h, false);
    watch(data, 56, lumo_tarn_cl_appl_data_kesh_appl_get(h, id, data, 0, &err), 56);
    h.knobs().errors["var_string_to_xml"] = 75;
    EXPECT_EQ(lumo_tarn_cl_appl_data_to_xml(h, id, "a", buffer, data, 2000, 9, &err), 150u);
    EXPECT_EQ(err, 75u);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0", "start_tag buffer a 2000 9",
                     "mirk_boolean_to_xml show_header buffer+10 object+16 1990 0",
                     "u_int32_to_xml num_kesh_appls buffer+46 object+32 1954 0", "mirk_clear_last_error",
                     "mirk_get_instance_variant element 1 0", "start_tag buffer+89 kesh_appl 1911 0",
                     "u_int16_to_xml proto_name_len buffer+107 element+12 1893 0",
                     "var_string_to_xml proto_name buffer+150 null 1850 0 0", "end_tag buffer+150 kesh_appl 1850",
                     "end_tag buffer+150 a 1850"}));
    h.knobs().errors.clear();
    lumo_tarn_cl_appl_data_destroy(h, id, data);
}

TEST_F(RenderingSequence, ARecordWithoutABodyHasNoMembers) {
    Handle h;
    lumo_tarn_dp_wexa_info *wexa = lumo_tarn_dp_wexa_info_create(h, id);
    reinterpret_cast<mirk_object *>(wexa)->variant = -1;
    watch(wexa, 24);
    lumo_tarn_dp_wexa_info_print(h, id, buffer, 1, "w", wexa, 90, &err);
    lumo_tarn_dp_wexa_info_to_xml(h, id, "w", buffer, wexa, 90, 3, &err);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0", "mirk_print_space buffer 1 90",
                     "mirk_snprintf buffer+1 89 w@lumo_tarn_dp_wexa_info: {\\n", "mirk_clear_last_error",
                     "mirk_get_instance_variant object 1 0", "start_tag buffer w 90 3", "end_tag buffer+10 w 80"}));
    reinterpret_cast<mirk_object *>(wexa)->variant = 0;
    lumo_tarn_dp_wexa_info_destroy(h, id, wexa);
}

}  // namespace
