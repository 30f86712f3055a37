// decode --bundles: the receiving side, with the handler chain, aborted and nested bundles; and record.
#include <gtest/gtest.h>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

const reference::BundleTable &bundle() { return reference::bundle_table("lumo_tarn_cl_debug_rsp"); }
const reference::MessageTable &message() { return reference::message_table("lumo_tarn_debug_setting_msg"); }
std::string message_frame() { return frame(message(), plain_payload(message(), 3), false); }
std::string message_text() { return shown(message(), plain_payload(message(), 3)); }

Outcome deliver(const std::string &bytes, std::vector<std::string> more = {}) {
    std::vector<std::string> all{"decode", "--bundles", "--keep-going", "--verbose"};
    all.insert(all.end(), more.begin(), more.end());
    return tarn(all, bytes);
}

void expect_words(const Outcome &outcome, const std::string &words) {
    EXPECT_NE(outcome.err.find(words), std::string::npos) << outcome.err;
}

struct Link {
    std::string via, line;
    bool handled;
};

class HandlerChain : public testing::TestWithParam<Link> {};

TEST_P(HandlerChain, TracesTheLinkThatHandledTheBundle) {
    const Outcome outcome = deliver(answer(bundle(), plain_payload(message(), 3), false), {"--via", GetParam().via});
    EXPECT_EQ(outcome.exit, GetParam().handled ? 0 : 1) << outcome.err;
    expect_words(outcome, GetParam().line + " for lumo_tarn_cl_debug_rsp_bundle_commit\n");
    EXPECT_EQ(outcome.out, GetParam().handled ? message_text() : "");
    expect_words(outcome, GetParam().handled ? "\n1 bundles were handled" : "\n0 bundles were handled");
}

// The trace line for the module's handler is the same as for that of the look-up table.
INSTANTIATE_TEST_SUITE_P(Receiving, HandlerChain,
                         testing::Values(Link{"lut", "(debug): Invoking LUT-registered handler", true},
                                         Link{"handle", "(debug): Invoking MIRK handle-registered handler", true},
                                         Link{"module", "(debug): Invoking LUT-registered handler", true},
                                         Link{"bundle", "(debug): Invoking registered bundle handler", true},
                                         Link{"linked", "(debug): Invoking linked-in handler", false}),
                         [](const auto &info) { return info.param.via; });

TEST(Receiving, AnAbortedBundleDeliversNothing) {
    const Outcome outcome = deliver(control(bundle(), "start") + message_frame() + control(bundle(), "abort"));
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_EQ(outcome.out, "");
    expect_words(outcome, "(debug): Bundle aborting for lumo_tarn_cl_debug_rsp_bundle_abort");
    expect_words(outcome, "frame at offset 108: aborts lumo_tarn_cl_debug_rsp");
}

TEST(Receiving, ASecondStartIsRefusedAndTheBundleContinues) {
    const std::string start = control(bundle(), "start");
    const Outcome outcome = deliver(start + start + message_frame() + control(bundle(), "commit"));
    EXPECT_EQ(outcome.exit, 2);
    expect_words(
        outcome,
        "(ERR): Start message lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_start_message received while aready in "
        "bundle context");
    expect_words(outcome, "frame at offset 43: lumo_tarn_cl_debug_rsp_bundle_start: File exists (EEXIST)");
    EXPECT_EQ(outcome.out, message_text());
}

TEST(Receiving, ACommitOutsideABundleIsRefused) {
    const Outcome outcome = deliver(control(bundle(), "commit"));
    EXPECT_EQ(outcome.exit, 2);
    expect_words(outcome, "(ERR): Abort message received outside of bundle context");
    expect_words(outcome, "Bad message (EBADMSG)");
}

TEST(Receiving, AMessageThatTheBundleDoesNotAdmitIsReported) {
    const auto &foreign = reference::message_table("lumo_tarn_dp_intf_msg");
    const Outcome outcome = deliver(control(bundle(), "start") + frame(foreign, plain_payload(foreign, 1), false) +
                                    message_frame() + control(bundle(), "commit"));
    EXPECT_EQ(outcome.exit, 2);
    expect_words(outcome, "frame at offset 43: lumo_tarn_cl_debug_rsp does not admit lumo_tarn_dp_intf_msg");
    EXPECT_EQ(outcome.out, message_text());
}

TEST(Receiving, ABundleThatNeverEndsIsReported) {
    const Outcome outcome = deliver(control(bundle(), "start") + message_frame());
    EXPECT_EQ(outcome.exit, 2);
    expect_words(outcome, "ends inside lumo_tarn_cl_debug_rsp");
    EXPECT_EQ(outcome.out, "");
}

TEST(Receiving, AMessageOutsideABundleIsDeliveredAtOnce) {
    const Outcome outcome = deliver(message_frame());
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, message_text());
}

TEST(Receiving, OptionsOfReceptionRequireFramesAndBundles) {
    const Outcome xml = tarn({"decode", "--bundles"}, debug_xml);
    EXPECT_EQ(xml.exit, 2);
    EXPECT_EQ(xml.out, "");
    expect_words(xml, "standard input: --bundles requires frames");
    EXPECT_EQ(tarn({"decode", "--via", "lut"}, message_frame()).exit, 2);
}

TEST(Receiving, KeepGoingEndsWithTheHighestExitCode) {
    const Outcome outcome =
        deliver(control(bundle(), "commit") + control(bundle(), "start") + control(bundle(), "abort"));
    expect_words(outcome, "frame at offset 86: aborts lumo_tarn_cl_debug_rsp");
    EXPECT_EQ(outcome.exit, 2);
}

class Recording : public testing::Test {
protected:
    Directory directory_;
    std::string xml() const { return reference::message_to_xml(message().name, plain_payload(message(), 3), false); }
};

TEST_F(Recording, IsASequenceOfFragmentsThatDecodeReads) {
    const std::string whole = answer(bundle(), plain_payload(message(), 3), false);
    const std::string from = directory_.write("frames.bin", whole + message_frame());
    const Outcome outcome = tarn({"record", "--from", from, "-o", directory_.path("recording.xml")});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "recorded 2 of 2 messages\n");
    EXPECT_EQ(directory_.read("recording.xml"), xml() + xml());
    const Outcome decoded = tarn({"decode", directory_.path("recording.xml")});
    EXPECT_EQ(decoded.exit, 0) << decoded.err;
    EXPECT_EQ(decoded.out, message_text() + message_text());
}

TEST_F(Recording, ReportsMessagesTooLargeForTheRecorder) {
    const Outcome large = tarn({"generate", "dp-tt-cfg", "--elements", "4", "--form", "frames", "--bundle"});
    const std::string from = directory_.write("frames.bin", large.out + message_frame());
    const Outcome outcome = tarn({"record", "--from", from, "-o", directory_.path("recording.xml")});
    EXPECT_EQ(outcome.exit, 1);
    expect_words(outcome, "frame at offset 43: lumo_tarn_dp_tt_msg of ");
    expect_words(outcome, "is too large for the recorder");
    EXPECT_EQ(outcome.out, "recorded 1 of 2 messages\n");
    EXPECT_EQ(directory_.read("recording.xml"), xml());

    const Outcome full =
        tarn({"record", "--from", from, "-o", directory_.path("recording.xml"), "--full", directory_.path("full.bin")});
    EXPECT_EQ(full.exit, 0);
    EXPECT_EQ(directory_.read("full.bin"), large.out + message_frame());
}

TEST_F(Recording, GoesToStandardOutputWithoutItsSummary) {
    const std::string from = directory_.write("frames.bin", message_frame() + message_frame());
    const Outcome fragments = tarn({"record", "--from", from, "-o", "-"});
    EXPECT_EQ(fragments.exit, 0);
    EXPECT_EQ(fragments.out, xml() + xml());
    EXPECT_EQ(fragments.err, "recorded 2 of 2 messages\n");
    const Outcome frames = tarn({"record", "--from", from, "-o", directory_.path("recording.xml"), "--full", "-"});
    EXPECT_EQ(frames.out, message_frame() + message_frame());
    EXPECT_EQ(tarn({"record", "--from", from, "-o", "-", "--full", "-"}).exit, 2);
}

TEST_F(Recording, RequiresExactlyTheOptionsOfItsSource) {
    const std::string from = directory_.write("frames.bin", message_frame());
    const std::vector<std::string> all{"record", "--from", from, "-o", "-"};
    const std::vector<std::vector<std::string>> wrong = {
        {"cl-debug"},           {"--rounds", "2"},         {"--interval", "2"},        {"--timeout", "2"},
        {"--socket", "socket"}, {"--frame-limit", "4KiB"}, {"--answer-limit", "4KiB"}, {"--connect", ":1"},
    };
    for (const std::vector<std::string> &more : wrong) {
        std::vector<std::string> arguments = all;
        arguments.insert(arguments.end(), more.begin(), more.end());
        const Outcome outcome = tarn(arguments);
        EXPECT_EQ(outcome.exit, 2) << more.front();
        expect_words(outcome, "--from");
    }
    EXPECT_EQ(tarn({"record", "cl-debug", "-o", "-"}).exit, 2);
    const Outcome outcome = tarn({"record", "--socket", "socket", "-o", "-"});
    EXPECT_EQ(outcome.exit, 2);
    expect_words(outcome, "at least one bundle");
}

TEST_F(Recording, OfAnAbortedOrUnfinishedBundleIsReported) {
    const std::string start = control(bundle(), "start");
    const auto record = [&](const std::string &frames) {
        return tarn({"record", "--from", directory_.write("frames.bin", frames), "-o", "-"});
    };
    const Outcome aborted = record(start + message_frame() + control(bundle(), "abort") + message_frame());
    EXPECT_EQ(aborted.exit, 1);
    EXPECT_EQ(aborted.out, xml() + xml());
    expect_words(aborted, "frame at offset 108: aborts lumo_tarn_cl_debug_rsp\n");
    const Outcome unfinished = record(start + message_frame());
    EXPECT_EQ(unfinished.exit, 2);
    EXPECT_EQ(unfinished.out, xml());
    expect_words(unfinished, "ends inside a bundle\n");
}

TEST_F(Recording, RequestsBundlesOverASocket) {
    const Server server({"cl-debug=" + directory_.write("debug.xml", xml())});
    ASSERT_TRUE(server.is_ready());
    const Outcome outcome = tarn({"record", "cl-debug", "--socket", server.socket(), "-o",
                                  directory_.path("recording.xml"), "--rounds", "3", "--interval", "0.01"});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "recorded 3 of 3 messages\n");
    EXPECT_EQ(directory_.read("recording.xml"), xml() + xml() + xml());
}

// The library writes an unknown enumerator as a malformed element; other fragments stay readable.
TEST_F(Recording, AMalformedFragmentDoesNotAffectTheOthers) {
    const std::string bad =
        "<lumo_tarn_cl_cfg_msg><lumo_tarn_cl_cfg_data><lumo_tarn_ha_state_e value out of "
        "range/></lumo_tarn_cl_cfg_data>"
        "</lumo_tarn_cl_cfg_msg>";
    const Outcome outcome = tarn({"decode", "--keep-going"}, xml() + bad + xml());
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, message_text() + message_text());
    expect_words(outcome, "standard input:1:" + std::to_string(xml().size() + bad.find("out") + 1) + ": ");
}

}  // namespace

}  // namespace tool_test
