// encode and decode: conversion between frames, text, XML and JSON, compared with the reference encoding.
#include <gtest/gtest.h>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

class EveryMessage : public testing::TestWithParam<reference::MessageTable> {};

TEST_P(EveryMessage, IsDecodedAsTheReferencePrintsIt) {
    for (const bool tracked : {false, true}) {
        const reference::Record payload = strange_payload(GetParam(), tracked ? 31 : 32);
        const reference::Record received = reference::as_received(payload, tracked);
        const std::string bytes = frame(GetParam(), payload, tracked);
        const Outcome text = tarn({"decode"}, bytes);
        EXPECT_EQ(text.exit, 0) << text.err;
        EXPECT_EQ(text.out, shown(GetParam(), received));
        const Outcome xml = tarn({"decode", "--xml"}, bytes);
        EXPECT_EQ(xml.out, shown_xml(GetParam(), received, tracked) + "\n");
    }
}

TEST_P(EveryMessage, IsEncodedFromXmlAsTheReferenceEncodesIt) {
    const reference::Record payload = plain_payload(GetParam(), 33);
    const Outcome outcome =
        tarn({"encode", "--stamp", "77"}, reference::message_to_xml(GetParam().name, payload, false));
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, frame(GetParam(), payload, false, 77));
}

TEST_P(EveryMessage, GetsPerFieldStateFromFramesWithoutIt) {
    const reference::Record payload = plain_payload(GetParam(), 39);
    const Outcome outcome = tarn({"encode", "--tracked"}, frame(GetParam(), payload, false));
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, frame(GetParam(), payload, true));
}

// Variants, RA data, states and numbers out of range survive; only a NUL inside a string does not.
TEST_P(EveryMessage, SurvivesARoundTripThroughJson) {
    for (const bool tracked : {false, true}) {
        for (const std::uint64_t seed : {34U, 35U, 36U}) {
            reference::GeneratorOptions options;
            options.strange = true;
            options.printable = true;
            options.budget = 3000;
            const auto payload = reference::Generator(seed, options).make(GetParam().payload);
            const std::string bytes = frame(GetParam(), reference::as_received(payload, tracked), tracked);
            const Outcome json = tarn({"decode", "--json"}, bytes);
            ASSERT_EQ(json.exit, 0) << json.err;
            const Outcome back = tarn({"encode", "--lenient"}, json.out);
            EXPECT_EQ(back.exit, 0) << back.err << json.out;
            EXPECT_EQ(back.out, bytes) << json.out;
        }
    }
}

TEST_P(EveryMessage, KeepsItsStateInARoundTripThroughXml) {
    reference::GeneratorOptions options;
    options.printable = true;
    options.min_text = 1;
    options.budget = 3000;
    const auto payload = reference::Generator(37, options).make(GetParam().payload);
    const Outcome xml = tarn({"decode", "--xml"}, frame(GetParam(), reference::as_received(payload, true), true));
    const Outcome back = tarn({"encode"}, xml.out);
    EXPECT_EQ(back.exit, 0) << back.err;
    EXPECT_EQ(back.out.at(7), 1);
    EXPECT_EQ(tarn({"decode", "--xml"}, back.out).out, xml.out);
}

INSTANTIATE_TEST_SUITE_P(Conversion, EveryMessage, testing::ValuesIn(reference::messages()),
                         [](const auto &info) { return info.param.name; });

TEST(Conversion, FramesKeepTheirOrderInEveryFormat) {
    std::string bytes;
    for (const auto &bundle : reference::bundles()) {
        bytes += answer(bundle, plain_payload(reference::message_table(bundle.message), 40), false);
    }
    for (const std::string form : {"--xml", "--json"}) {
        const Outcome decoded = tarn({"decode", form}, bytes);
        EXPECT_EQ(decoded.exit, 0) << decoded.err;
        const Outcome encoded = tarn({"encode"}, decoded.out);
        EXPECT_EQ(encoded.exit, 0) << encoded.err;
        EXPECT_EQ(encoded.out, bytes) << form;
    }
    const Outcome again = tarn({"encode"}, bytes);
    EXPECT_EQ(again.out, bytes) << again.err;
}

TEST(Conversion, BundleOptionAddsStartAndCommit) {
    const auto &bundle = reference::bundle_table("lumo_tarn_dp_intf_rsp");
    const auto &message = reference::message_table(bundle.message);
    const reference::Record payload = plain_payload(message, 41);
    const Outcome outcome =
        tarn({"encode", "--bundle", "dp-intf"}, reference::message_to_xml(message.name, payload, false));
    EXPECT_EQ(outcome.out, answer(bundle, payload, false)) << outcome.err;
}

TEST(Conversion, AMessageThatTheBundleDoesNotAdmitIsRefused) {
    const Outcome outcome = tarn({"encode", "--bundle", "dp-intf", "--verbose"},
                                 R"({"message": "lumo_tarn_debug_setting_msg", "payload": {}})");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("(ERR): Message lumo_tarn_debug_setting_msg is not valid for bundle"), std::string::npos)
        << outcome.err;
    EXPECT_EQ(outcome.out, "");
}

TEST(Conversion, AStartInsideABundleIsRefused) {
    const Outcome outcome = tarn({"encode"}, R"({"bundle": "lumo_tarn_dp_intf_rsp", "control": "start"}
{"bundle": "lumo_tarn_cl_cfg_rsp", "control": "start"})");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("standard input:2"), std::string::npos) << outcome.err;
    EXPECT_NE(outcome.err.find("EEXIST"), std::string::npos) << outcome.err;
}

TEST(Conversion, ABundleWithoutAnEndIsReported) {
    const Outcome outcome = tarn({"encode"}, R"(<bundle_start name="lumo_tarn_dp_intf_rsp"></bundle_start>)");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("ends inside a bundle"), std::string::npos) << outcome.err;
}

std::string prefix_json(const std::string &id) {
    return R"({"message":"lumo_tarn_pal_mp_prefix_msg","payload":{"prefix_data":[{"id":)" + id + "}]}}";
}

TEST(Conversion, MembersOf64BitsAreTextInJson) {
    const Outcome frame = tarn({"encode"}, prefix_json("18446744073709551615"));
    EXPECT_EQ(frame.exit, 0) << frame.err;
    const Outcome json = tarn({"decode", "--json"}, frame.out);
    EXPECT_NE(json.out.find(R"("id":"18446744073709551615")"), std::string::npos) << json.out;
    EXPECT_EQ(tarn({"encode"}, prefix_json("\"18446744073709551615\"")).out, frame.out);
}

TEST(Conversion, NarrowerMembersAreNumbersInJson) {
    const std::string json = R"({"message":"lumo_tarn_debug_setting_msg","payload":{"info_enabled":4294967295}})";
    const Outcome frame = tarn({"encode"}, json);
    EXPECT_NE(tarn({"decode", "--json"}, frame.out).out.find(R"("info_enabled":4294967295)"), std::string::npos);
}

std::string intf_json(const std::string &name) {
    return R"({"message": "lumo_tarn_dp_intf_msg", "payload": {"intf_name": )" + name + "}}";
}

TEST(Conversion, AStringThatIsNotUtf8BecomesHexadecimalBytes) {
    const Outcome frame = tarn({"encode"}, intf_json(R"({"bytes": "ff00"})"));
    EXPECT_EQ(frame.exit, 0) << frame.err;
    const Outcome json = tarn({"decode", "--json"}, frame.out);
    EXPECT_NE(json.out.find(R"("intf_name":{"bytes":"ff00"})"), std::string::npos) << json.out;
}

TEST(Conversion, AStringThatCannotBeStoredIsRefused) {
    const Outcome nul = tarn({"encode"}, intf_json(R"({"bytes": "610062"})"));
    EXPECT_EQ(nul.exit, 2);
    EXPECT_NE(nul.err.find("intf_name: a string cannot contain a NUL before other characters"), std::string::npos)
        << nul.err;
    EXPECT_EQ(tarn({"encode"}, intf_json(R"({"bytes": "6"})")).exit, 2);
    EXPECT_EQ(tarn({"encode"}, intf_json("17")).exit, 2);
}

TEST(Conversion, ABrokenFrameIsReportedWithItsOffset) {
    const auto &message = reference::message_table("lumo_tarn_debug_setting_msg");
    std::string truncated = frame(message, plain_payload(message, 1), false);
    const std::string good = truncated;
    truncated.resize(60);
    truncated[15] = 60;
    const Outcome outcome = tarn({"decode"}, good + truncated + good);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("frame at offset 65: lumo_tarn_debug_setting_msg cannot be read"), std::string::npos)
        << outcome.err;
    EXPECT_NE(outcome.err.find("broken at offset 122, payload.warn_enabled: needs 4 bytes, but 3 are left"),
              std::string::npos)
        << outcome.err;
    EXPECT_EQ(outcome.out, shown(message, plain_payload(message, 1)));

    const Outcome all = tarn({"decode", "--keep-going"}, good + truncated + good);
    EXPECT_EQ(all.exit, 2);
    EXPECT_EQ(all.out, outcome.out + outcome.out);
}

TEST(Conversion, KeepGoingContinuesAfterAnUnknownMessage) {
    const auto &message = reference::message_table("lumo_tarn_debug_setting_msg");
    const std::string good = frame(message, plain_payload(message, 1), false);
    std::string unknown = good;
    unknown[27] ^= 1;
    for (const std::string flag : {"--lenient", "--bundles"}) {
        const Outcome outcome = tarn({"decode", "--keep-going", flag}, good + unknown + good);
        EXPECT_EQ(outcome.exit, 2);
        EXPECT_NE(outcome.err.find("frame at offset 65: unknown luid "), std::string::npos) << outcome.err;
        EXPECT_EQ(outcome.out, shown(message, plain_payload(message, 1)) + shown(message, plain_payload(message, 1)));
    }
}

TEST(Conversion, ACountWithoutElementsIsAnInputError) {
    const auto &message = reference::message_table("lumo_tarn_cl_appl_msg");
    std::string bytes = frame(message, reference::Record(message.payload), false);
    bytes[51] = '\x7f';  // first byte of num_kesh_appls
    const Outcome outcome = tarn({"decode"}, bytes);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("broken at offset 55, payload.kesh_appl[0]"), std::string::npos) << outcome.err;
}

TEST(Conversion, AFrameThatClaimsMoreThanItContainsIsRefusedBeforeItIsRead) {
    const auto &message = reference::message_table("lumo_tarn_cl_appl_msg");
    std::string bytes = frame(message, reference::Record(message.payload), false);
    const Directory directory;
    const std::string file = directory.path("frames.bin"), recording = directory.path("recording.xml");
    for (const auto &[first_byte, count] : {std::pair{'\x00', "1"}, {'\x7f', "2130706433"}, {'\xff', "4278190081"}}) {
        bytes[51] = first_byte;  // of num_kesh_appls
        bytes[54] = 1;
        directory.write("frames.bin", bytes);
        for (const std::vector<std::string> &command :
             {std::vector<std::string>{"decode", file},
              {"diff", file, file},
              {"record", "--from", file, "-o", recording},
              {"answer", "--socket", directory.path("s"), "cl-appl-cfg=" + file}}) {
            const Outcome outcome = tarn(command);
            EXPECT_EQ(outcome.exit, 2) << command[0];
            EXPECT_NE(outcome.err.find(std::string("frame at offset 0: lumo_tarn_cl_appl_msg cannot be read: "
                                                   "lumo_tarn_cl_appl_data.kesh_appl claims ") +
                                       count + " elements of at least 6 bytes, but 0 bytes are left"),
                      std::string::npos)
                << command[0] << ": " << outcome.err;
        }
    }
}

TEST(Conversion, XmlWithListsTooLongForItsLengthNeedsAnOption) {
    std::string text = "<lumo_tarn_cl_appl_msg><lumo_tarn_cl_appl_data>";
    for (int i = 0; i < 3200; ++i) text += "<kesh_appl/>";
    text += "</lumo_tarn_cl_appl_data></lumo_tarn_cl_appl_msg>";
    const Outcome refused = tarn({"encode"}, text);
    EXPECT_EQ(refused.exit, 2);
    EXPECT_NE(refused.err.find("the elements inside this one are too many for the length of the document"),
              std::string::npos)
        << refused.err;
    EXPECT_EQ(tarn({"encode", "--long-lists"}, text).exit, 0);
}

TEST(Conversion, BytesThatAreNotAFrameAreReported) {
    const auto expect = [](const std::string &bytes, const std::string &words) {
        const Outcome outcome = tarn({"decode"}, bytes);
        EXPECT_EQ(outcome.exit, 2) << words;
        EXPECT_NE(outcome.err.find(words), std::string::npos) << outcome.err;
    };
    const std::string commit = control(reference::bundle_table("lumo_tarn_cl_cfg_rsp"), "commit");
    std::string unknown = commit;
    unknown[30] ^= 1;
    std::string longer = commit;
    longer[15] = 44;
    std::string shorter = commit;
    shorter[15] = 42;
    expect("", "standard input: empty");
    expect("garbage", "neither frames nor XML nor JSON");
    expect(commit.substr(0, 42), "42 bytes are left, but a frame has at least 43");
    expect(unknown, "unknown luid ca461fb9");
    expect(longer, "truncated: its total length is 44, but 43 bytes are left");
    expect(shorter, "not a frame");
    expect(commit + "x", "frame at offset 43: 1 bytes are left");
}

}  // namespace

}  // namespace tool_test
