// The library ignores unknown XML; the tool reports it with its line unless it is lenient.
#include <gtest/gtest.h>

#include "process.h"

namespace tool_test {

namespace {

struct Mistake {
    std::string name;
    std::string xml;
    std::string message;
    bool lenient_passes = true;
};

std::string debug(const std::string &members) {
    return "<lumo_tarn_debug_setting_msg>\n<lumo_tarn_debug_setting>\n" + members +
           "\n</lumo_tarn_debug_setting>\n</lumo_tarn_debug_setting_msg>\n";
}

std::string prefixes(const std::string &members) {
    return "<lumo_tarn_pal_mp_prefix_msg>\n<lumo_tarn_pal_mp_prefix_data>\n" + members +
           "\n</lumo_tarn_pal_mp_prefix_data>\n</lumo_tarn_pal_mp_prefix_msg>\n";
}

std::string processor(const std::string &members) {
    return "<lumo_tarn_cl_cfg_msg><lumo_tarn_cl_cfg_data><global_info><lumo_info_list><lumo_info>\n" + members +
           "\n</lumo_info></lumo_info_list></global_info></lumo_tarn_cl_cfg_data></lumo_tarn_cl_cfg_msg>\n";
}

std::string application(const std::string &members) {
    return "<lumo_tarn_cl_appl_msg><lumo_tarn_cl_appl_data><kesh_appl>\n" + members +
           "\n</kesh_appl></lumo_tarn_cl_appl_data></lumo_tarn_cl_appl_msg>\n";
}

class XmlMistake : public testing::TestWithParam<Mistake> {};

TEST_P(XmlMistake, IsReportedWithItsPlace) {
    const Outcome strict = tarn({"encode"}, GetParam().xml);
    EXPECT_EQ(strict.exit, 2);
    EXPECT_NE(strict.err.find("standard input:" + GetParam().message), std::string::npos) << strict.err;
    EXPECT_EQ(strict.out, "");
    const Outcome lenient = tarn({"encode", "--lenient"}, GetParam().xml);
    EXPECT_EQ(lenient.exit, GetParam().lenient_passes ? 0 : 2) << lenient.err;
}

const std::string path = "/lumo_tarn_debug_setting_msg/lumo_tarn_debug_setting";
const std::string prefix_path = "/lumo_tarn_pal_mp_prefix_msg/lumo_tarn_pal_mp_prefix_data";

INSTANTIATE_TEST_SUITE_P(
    Checking, XmlMistake,
    testing::Values(
        Mistake{
            "misspelled_member", debug("<info_enabeld>1</info_enabeld>"),
            "3:1: " + path + ": lumo_tarn_debug_setting has no member \"info_enabeld\"; did you mean info_enabled?"},
        Mistake{"value_too_wide", debug("<info_enabled>4294967296</info_enabled>"),
                "3:1: " + path + "/info_enabled: \"4294967296\" is not a number from 0 to 4294967295", false},
        Mistake{"negative_value", debug("<info_enabled>-1</info_enabled>"),
                "3:1: " + path + "/info_enabled: \"-1\" is not a number", false},
        Mistake{"empty_value", debug("<info_enabled/>"), "3:1: " + path + "/info_enabled: \"\" is not a number", false},
        Mistake{"twice", debug("<info_enabled>1</info_enabled>\n<info_enabled>2</info_enabled>"),
                "4:1: " + path + "/info_enabled: duplicate element"},
        Mistake{"element_in_a_value", debug("<info_enabled><b>1</b></info_enabled>"),
                "3:15: " + path + "/info_enabled: unexpected element \"b\" in a value"},
        Mistake{"text_between", debug("loose words"), "2:1: " + path + ": text \"loose words\" between the members"},
        Mistake{"attribute", debug("<info_enabled color=\"red\">1</info_enabled>"),
                "3:1: " + path + "/info_enabled: unknown attribute \"color\""},
        Mistake{"state_too_wide", debug("<info_enabled state=\"256\">1</info_enabled>"),
                "3:1: " + path + "/info_enabled: state \"256\" is not a number from 0 to 255"},
        Mistake{"missing_payload", "<lumo_tarn_debug_setting_msg>\n</lumo_tarn_debug_setting_msg>",
                "1:1: /lumo_tarn_debug_setting_msg: the payload \"lumo_tarn_debug_setting\" is missing"},
        Mistake{"unknown_enumerator", processor("<direction><LUMO_TARN_DIR_BOHT/></direction>"),
                "2:12: /lumo_tarn_cl_cfg_msg/lumo_tarn_cl_cfg_data/global_info/lumo_info_list/lumo_info[1]/direction: "
                "unknown enumerator \"LUMO_TARN_DIR_BOHT\"; did you mean LUMO_TARN_DIR_BOTH?"},
        Mistake{"enumerator_as_text", processor("<direction>LUMO_TARN_DIR_BOTH</direction>"),
                "2:1: /lumo_tarn_cl_cfg_msg/lumo_tarn_cl_cfg_data/global_info/lumo_info_list/lumo_info[1]/direction: "
                "an enumerator is an empty element"},
        Mistake{"boolean", processor("<display_all>yes</display_all>"),
                "2:1: /lumo_tarn_cl_cfg_msg/lumo_tarn_cl_cfg_data/global_info/lumo_info_list/lumo_info[1]/display_all: "
                "\"yes\" is neither true nor false",
                false},
        Mistake{"address", prefixes("<prefix_data>\n<prefix>10.0.0.256/8</prefix></prefix_data>"),
                "4:1: " + prefix_path + "/prefix_data[1]/prefix: \"10.0.0.256/8\" is not an address", false},
        Mistake{"wrong_count", prefixes("<num_prefixes>2</num_prefixes><prefix_data/>"),
                "3:1: " + prefix_path + "/num_prefixes: is 2, but prefix_data has 1"},
        Mistake{
            "skipped_member", application("<proto_name>sip</proto_name>\n<protocol_id>7</protocol_id>"),
            "3:1: /lumo_tarn_cl_appl_msg/lumo_tarn_cl_appl_data/kesh_appl[1]/protocol_id: would not be read, because "
            "sub_proto_name, the preceding string, is absent"}),
    [](const auto &info) { return info.param.name; });

TEST(Checking, AListLongerThanItsCountAllowsIsReported) {
    std::string many;
    for (int i = 0; i < 256; ++i) many += "<prefix_data/>";
    const Outcome outcome = tarn({"encode"}, prefixes(many));
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("256 prefix_data exceed the range of num_prefixes"), std::string::npos) << outcome.err;
}

TEST(Checking, AllMistakesOfADocumentAreListed) {
    const Outcome outcome = tarn({"encode"}, debug("<a/>\n<b/>\n<info_enabled>x</info_enabled>"));
    for (const std::string line : {":3:1: ", ":4:1: ", ":5:1: "}) {
        EXPECT_NE(outcome.err.find("standard input" + line), std::string::npos) << outcome.err;
    }
}

TEST(Checking, MalformedXmlIsReportedWithLineAndColumn) {
    const auto expect = [](const std::string &xml, const std::string &words) {
        const Outcome outcome = tarn({"encode"}, xml);
        EXPECT_EQ(outcome.exit, 2);
        EXPECT_NE(outcome.err.find(words), std::string::npos) << outcome.err;
    };
    expect(debug("<info_enabled>1</info_enable>"), "standard input:3:30: Opening and ending tag mismatch");
    expect("<lumo_tarn_debug_setting_msg>\n<lumo_tarn_debug_setting>", "standard input:1:1: ");
    expect("\n  " + debug("&amp"), "standard input:4:5: EntityRef");
    expect(debug("<a b=\"1\" b=\"2\"/>"), "standard input:3:15: Attribute b redefined");
    expect(debug("\xff"), "standard input:3:1: Input is not proper UTF-8");
    // Each letter is one byte in the file and two for the parser.
    expect("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n" + debug("\xe4\xe4 <a></b>"),
           "standard input:4:11: Opening and ending tag mismatch");
    std::string deep;
    for (int i = 0; i < 300; ++i) deep += "<a>";
    // The message and its payload contain the elements, and the parser stops after the name of the 255th.
    expect(debug(deep), "standard input:3:766: Excessive depth");
    expect("\n<!DOCTYPE a [<!ENTITY b \"c\">]>\n" + debug(""),
           "standard input:2:1: a document type declaration is not allowed");
    expect("\n\n<lumo_tarn_debug_setting_mgs></lumo_tarn_debug_setting_mgs>",
           "standard input:3:1: \"lumo_tarn_debug_setting_mgs\" is not a message; did you mean "
           "lumo_tarn_debug_setting_msg?");
    expect(debug("") + "stray", "standard input:6:1: expected an element");
}

TEST(Checking, LinesAreCountedAcrossDocuments) {
    const Outcome outcome = tarn({"encode"}, debug("") + debug("<wrong/>"));
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("standard input:8:1: "), std::string::npos) << outcome.err;
}

struct JsonMistake {
    std::string name, json, message;
};

class JsonMistakes : public testing::TestWithParam<JsonMistake> {};

TEST_P(JsonMistakes, AreReportedWithTheirPath) {
    const Outcome outcome = tarn({"encode"}, GetParam().json);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find(GetParam().message), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.out, "");
}

std::string debug_json(const std::string &payload) {
    return R"({"message": "lumo_tarn_debug_setting_msg", "payload": )" + payload + "}";
}

std::string prefix_json(const std::string &element) {
    return R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"prefix_data": [{}, )" + element + "]}}";
}

INSTANTIATE_TEST_SUITE_P(
    Checking, JsonMistakes,
    testing::Values(
        JsonMistake{"misspelled", debug_json(R"({"info_enable": 1})"),
                    "payload: lumo_tarn_debug_setting has no member \"info_enable\"; did you mean info_enabled?"},
        JsonMistake{"too_wide", debug_json(R"({"info_enabled": 4294967296})"),
                    "payload/info_enabled: 4294967296 is not a number from 0 to 4294967295"},
        JsonMistake{"negative", debug_json(R"({"info_enabled": -1})"), "payload/info_enabled: -1 is not a number"},
        JsonMistake{"text", debug_json(R"({"info_enabled": "1"})"), "payload/info_enabled: \"1\" is not a number"},
        JsonMistake{"no_object", debug_json("[]"), "payload: expected an object for lumo_tarn_debug_setting"},
        JsonMistake{"address", prefix_json(R"({"prefix": "10.0.0.0"})"),
                    "payload/prefix_data[1]/prefix: \"10.0.0.0\" is not an address"},
        JsonMistake{"no_array", R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"prefix_data": {}}})",
                    "payload/prefix_data: expected an array"},
        JsonMistake{
            "count",
            R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"num_prefixes": 3, "prefix_data": [{}]}})",
            "payload/num_prefixes: is 3, but there are 1"},
        JsonMistake{"variant", prefix_json(R"({"@variant": 1})"), "@variant: 1 is not a number from -128 to -1"},
        JsonMistake{"no_payload", R"({"message": "lumo_tarn_debug_setting_msg"})", "the payload is missing"},
        JsonMistake{"no_message", R"({"message": "lumo_tarn_msg", "payload": {}})",
                    "\"lumo_tarn_msg\" is not a message"},
        JsonMistake{"no_bundle", R"({"bundle": "x", "control": "start"})", "\"x\" is not a bundle"},
        JsonMistake{"no_control", R"({"bundle": "lumo_tarn_cl_cfg_rsp", "control": "stop"})",
                    "\"stop\" is not start, abort or commit"},
        JsonMistake{"key_beside_payload",
                    R"({"message": "lumo_tarn_debug_setting_msg", "payload": {}, "traked": true})",
                    "standard input:1:59: unknown key \"traked\"; did you mean tracked?"},
        JsonMistake{"key_beside_control", R"({"bundle": "lumo_tarn_cl_cfg_rsp", "control": "start", "payload": {}})",
                    "standard input:1:56: unknown key \"payload\""},
        JsonMistake{"key_beside_messages", R"({"bundle": "lumo_tarn_cl_cfg_rsp", "messages": [], "total": 0})",
                    "standard input:1:52: unknown key \"total\""},
        JsonMistake{"wide_as_other_text", prefix_json(R"({"id": "0x10"})"),
                    "payload/prefix_data[1]/id: \"0x10\" is not a number from 0 to 18446744073709551615"},
        JsonMistake{"wide_too_wide", prefix_json(R"({"id": "18446744073709551616"})"),
                    "payload/prefix_data[1]/id: \"18446744073709551616\" is not a number"},
        JsonMistake{"wide_as_empty_text", prefix_json(R"({"id": ""})"), "payload/prefix_data[1]/id: \"\" is not"},
        JsonMistake{"neither", R"({"a": 1})", "neither a message, a control message nor a list of them"},
        JsonMistake{"syntax", "{\n\"message\": \n}", "standard input:3:1: syntax error"},
        JsonMistake{"number_beyond_all", "{\n\"message\": 1e400\n}",
                    "standard input:2:12: number overflow parsing '1e400'"}),
    [](const auto &info) { return info.param.name; });

}  // namespace

}  // namespace tool_test
