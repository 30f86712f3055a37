#include "reference/text.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;

namespace reference {
namespace {

Record wrapper() {
    Record value("lumo_tarn_exmem_info_wrapper");
    Record &info = value.nested("exmem");
    info["cl_addr"].number = 18446744073709551615u;
    info["exmem_addr"].number = 2;
    info["size"].number = 4096;
    info["size"].state = 2;
    value["exmem"].state = 255;
    return value;
}

TEST(Print, NestedRecordLeavesAGap) {
    EXPECT_EQ(print_cr(wrapper(), '#'),
              "lumo_tarn_exmem_info_wrapper@lumo_tarn_exmem_info_wrapper: {\n"
              "  exmem@lumo_tarn_exmem_info: {\n"
              "    cl_addr@u_int64:18446744073709551615\n"
              "    exmem_addr@u_int64:2\n"
              "    ppe_addr@u_int64:0\n"
              "    size@u_int32:4096\n"
              "\0#}\n"
              "}\n"s);
}

TEST(Print, ListsNameTheirElements) {
    Record value("lumo_tarn_dp_debug_setting_data");
    EXPECT_EQ(print_cr(value),
              "lumo_tarn_dp_debug_setting_data@lumo_tarn_dp_debug_setting_data: {\n  num_lumos@u_int8:0\n}\n");
    for (int i = 0; i < 11; ++i) value.append("lumo_data").variant = -1;
    const std::string text = print(value, "x");
    EXPECT_NE(text.find("  num_lumos@u_int8:11\n  lumo_data[0]@lumo_tarn_dp_debug_setting: {\n  lumo_data[1]@"),
              std::string::npos);
    EXPECT_NE(text.find("  lumo_data[10]@lumo_tarn_dp_debug_setting: {\n}\n"), std::string::npos);
}

TEST(Print, ValueOutOfRangeHasNoLineEnd) {
    Record value("lumo_tarn_static_exmem_info");
    value["mem_type"].number = 1;
    EXPECT_NE(print_cr(value).find("  mem_type@lumo_tarn_mem_desc_e:LUMO_TARN_TT_MEM\n"), std::string::npos);
    value["mem_type"].number = 3;
    EXPECT_NE(print_cr(value).find(":Enum value out of range  num_hash_elements@u_int32:0\n"), std::string::npos);
}

TEST(Print, StringsAndBooleans) {
    Record value("lumo_tarn_dp_intf_data");
    value["intf_name"].text = "a\\b\n\0\xFF~"s;
    value["intf_name_is_valid"].number = 7;
    const std::string text = print_cr(value);
    EXPECT_NE(text.find("  intf_name_is_valid@mirk_boolean:true\n  intf_name_len@u_int16:7\n"
                        "  intf_name@var_string:a\\\\b\\x0a\\x00\\xff~\n  in_lumo_wexa_is_valid@mirk_boolean:false\n"),
              std::string::npos)
        << text;
}

TEST(Print, MessagesAndControlMessages) {
    const Record value("lumo_tarn_debug_setting");
    EXPECT_EQ(print_message("lumo_tarn_debug_setting_msg", value),
              "message@lumo_tarn_debug_setting_msg: {\n"
              "  lumo_tarn_debug_setting@lumo_tarn_debug_setting: {\n"
              "    info_enabled@u_int32:0\n    trace_enabled@u_int32:0\n"
              "    warn_enabled@u_int32:0\n    error_enabled@u_int32:0\n"
              "\0\0}\n}\n"s);
    EXPECT_EQ(print_control("lumo_tarn_pal_debug_rsp", "commit"), "bundle commit@lumo_tarn_pal_debug_rsp: <<<<<<<<\n");
}

TEST(AddressText, Forms) {
    EXPECT_EQ(address_text({}), "unset");
    EXPECT_EQ(address_text({2, 24, 0, {0xC0000200, 0, 0, 0}}), "192.0.2.0/24");
    EXPECT_EQ(address_text({2, 24, 0, {0xC0000200, 0, 0, 1}}), "2,0,3221225984,0,0,1/24");
    EXPECT_EQ(address_text({2, 0, 0, {}}), "0.0.0.0/0");
    EXPECT_EQ(address_text({10, 32, 0, {0x20010db8, 0, 0, 0}}), "2001:db8::/32");
    EXPECT_EQ(address_text({10, 64, 4, {0xfe800000, 0, 0, 1}}), "fe80::1%4/64");
    EXPECT_EQ(address_text({0, 1, 0, {}}), "0,0,0,0,0,0/1");
}

TEST(Xml, StatesAreAttributes) {
    EXPECT_EQ(toxml_cr(wrapper(), false),
              "<lumo_tarn_exmem_info_wrapper><exmem><cl_addr>18446744073709551615</cl_addr><exmem_addr>2</exmem_addr>"
              "<ppe_addr>0</ppe_addr><size>4096</size></exmem></lumo_tarn_exmem_info_wrapper>");
    EXPECT_EQ(toxml_cr(wrapper(), true),
              "<lumo_tarn_exmem_info_wrapper><exmem state=\"255\"><cl_addr>18446744073709551615</cl_addr>"
              "<exmem_addr>2</exmem_addr><ppe_addr>0</ppe_addr><size state=\"2\">4096</size></exmem>"
              "</lumo_tarn_exmem_info_wrapper>");
}

TEST(Xml, ElementsHaveTheNameOfTheArray) {
    Record value("lumo_tarn_dp_debug_setting_data");
    value["lumo_data"].state = 9;  // the whole array has no element for its state
    value.append("lumo_data", 2).variant = -1;
    value.append("lumo_data", 0).variant = -1;
    EXPECT_EQ(to_xml(value, "r", true),
              "<r><num_lumos>2</num_lumos><lumo_data state=\"2\"></lumo_data><lumo_data></lumo_data></r>");
}

TEST(Xml, EnumerationsHaveNoState) {
    Record value("lumo_tarn_dyn_exmem_info");
    value["mem_type"].number = 2;
    value["mem_type"].state = 2;
    EXPECT_EQ(to_xml(value, "d", true),
              "<d><mem_type><LUMO_TARN_FLOW_MEM/></mem_type><list_header_ptr>0</list_header_ptr>"
              "<num_exmems>0</num_exmems></d>");
    value["mem_type"].number = 0xFFFFFFFF;
    EXPECT_NE(to_xml(value, "d", false).find("<mem_type><lumo_tarn_mem_desc_e value out of range/></mem_type>"),
              std::string::npos);
}

TEST(Xml, StringsAreEscaped) {
    EXPECT_EQ(string_xml("a&<>\"'\r\n\t"), "a&amp;&lt;&gt;&quot;'&#13;\n\t");
    EXPECT_EQ(string_xml("\0\x01\x7f"s), "??\x7f");
    EXPECT_EQ(string_xml("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(string_xml("\xC3"), "?");
    EXPECT_EQ(string_xml("\xE2\x82x"), "??x");
    EXPECT_EQ(string_xml("\xC0\x80\xED\xA0\x80\xEF\xBF\xBF\xF5\x80\x80\x80"), "????????????");
}

TEST(Xml, Messages) {
    Record value("lumo_tarn_pal_mp_prefix_data");
    value.variant = -1;
    EXPECT_EQ(message_to_xml("lumo_tarn_pal_mp_prefix_msg", value, false),
              "<lumo_tarn_pal_mp_prefix_msg><lumo_tarn_pal_mp_prefix_data></lumo_tarn_pal_mp_prefix_data>"
              "</lumo_tarn_pal_mp_prefix_msg>");
    EXPECT_EQ(control_to_xml("lumo_tarn_pal_debug_rsp", "start"),
              "<bundle_start name=\"lumo_tarn_pal_debug_rsp\"></bundle_start>");
}

TEST(HexDump, SixteenToALine) {
    std::vector<std::uint8_t> bytes;
    for (int i = 0; i < 17; ++i) bytes.push_back(static_cast<std::uint8_t>('@' + i));
    EXPECT_EQ(hex_dump(bytes),
              "000000  40 41 42 43 44 45 46 47 48 49 4a 4b 4c 4d 4e 4f  @ABCDEFGHIJKLMNO\n"
              "000010  50                                               P\n");
}

}  // namespace
}  // namespace reference
