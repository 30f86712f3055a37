#include "support.hpp"

namespace {

struct Sunk {
    std::vector<std::string> lines;
    uint32_t level = 99;
    uint16_t module_id = 0;
};

void sink(void *user, uint16_t module_id, uint32_t level, const char *line) {
    auto &sunk = *static_cast<Sunk *>(user);
    sunk.lines.emplace_back(line);
    sunk.level = level;
    sunk.module_id = module_id;
    skald_wrapper(module_id, level, 0, "from inside");
}

struct Sink {
    Sink() { mirk_platform_trace_set_sink(sink, &sunk); }
    ~Sink() {
        mirk_platform_trace_set_sink(nullptr, nullptr);
        mirk_platform_trace_set_levels(1u << 0 | 1u << 3);
    }
    Sunk sunk;
};

}  // namespace

TEST(Trace, OneNameHasOneIdentifier) {
    uint16_t one = 0, two = 0, again = 0;
    uint64_t state = 0;
    skald_module_init_fn("module_one", &one, &state);
    skald_module_init_fn("module_two", &two, &state);
    skald_module_init_fn("module_one", &again, nullptr);
    EXPECT_GE(one, 1);
    EXPECT_NE(one, two);
    EXPECT_EQ(one, again);
    EXPECT_STREQ(mirk_platform_trace_module_name(one), "module_one");
    EXPECT_STREQ(mirk_platform_trace_module_name(0), "?");
    EXPECT_STREQ(mirk_platform_trace_module_name(65535), "?");
}

TEST(Trace, ASinkReceivesTheSelectedLevels) {
    Sink here;
    skald_wrapper(5, 3, 0, "(ERR): %s %u", "text", 7u);
    skald_wrapper(5, 6, 0, "(info): unseen");
    ASSERT_EQ(here.sunk.lines.size(), 1u);
    EXPECT_EQ(here.sunk.lines[0], "(ERR): text 7");
    EXPECT_EQ(here.sunk.level, 3u);
    EXPECT_EQ(here.sunk.module_id, 5);
    mirk_platform_trace_set_levels(1u << 6);
    skald_wrapper(5, 3, 0, "(ERR): unseen");
    skald_wrapper(5, 6, 0, "(info): seen");
    EXPECT_EQ(here.sunk.lines.size(), 2u);
    EXPECT_EQ(mirk_platform_trace_levels(), 1u << 6);
}

TEST(Trace, LongLinesAreNotCut) {
    Sink here;
    const std::string text(5000, 'x');
    skald_wrapper(5, 0, 0, "%s", text.c_str());
    ASSERT_EQ(here.sunk.lines.size(), 1u);
    EXPECT_EQ(here.sunk.lines[0], text);
}

TEST(Trace, ParsesListsOfLevels) {
    uint32_t mask = 5;
    EXPECT_EQ(mirk_platform_trace_parse_levels("0, 3,31", &mask), 0u);
    EXPECT_EQ(mask, 1u | 8u | 0x80000000u);
    EXPECT_EQ(mirk_platform_trace_parse_levels("all", &mask), 0u);
    EXPECT_EQ(mask, 0xffffffffu);
    EXPECT_EQ(mirk_platform_trace_parse_levels("none", &mask), 0u);
    EXPECT_EQ(mask, 0u);
    for (const char *bad : {"", "3,", "32", "x", "3 6"})
        EXPECT_EQ(mirk_platform_trace_parse_levels(bad, &mask), uint32_t{EINVAL}) << bad;
    EXPECT_EQ(mirk_platform_trace_parse_levels(nullptr, &mask), uint32_t{EINVAL});
}

TEST(Trace, DefaultsToErrorsOnStandardError) {
    testing::internal::CaptureStderr();
    skald_wrapper(0, 3, 0, "(ERR): to stderr");
    skald_wrapper(0, 7, 0, "(debug): unseen");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "?: (ERR): to stderr\n");
}

TEST(Trace, CaptureKeepsEveryLevelAndPassesOnFatalLinesOnly) {
    Sink here;
    test::Trace trace;
    skald_wrapper(5, 7, 0, "(debug): kept");
    skald_wrapper(5, 3, 0, "(ERR): kept");
    skald_wrapper(5, 0, 0, "(FATAL): kept");
    EXPECT_EQ(trace.lines(), 4u) << "three, and the one that the sink traced";
    EXPECT_TRUE(trace.has(7, "kept"));
    ASSERT_EQ(here.sunk.lines.size(), 1u);
    EXPECT_EQ(here.sunk.lines[0], "(FATAL): kept");
}

TEST(Recorder, HasASwitchAndAStream) {
    EXPECT_EQ(mirklib_msg_recorder_get_state(), 0u);
    mirk_platform_recorder_set(1, stderr);
    EXPECT_NE(mirklib_msg_recorder_get_state(), 0u);
    EXPECT_EQ(mirklib_msg_recorder_get_handle(), stderr);
    mirk_platform_recorder_set(1, nullptr);
    EXPECT_NE(mirklib_msg_recorder_get_state(), 0u);
    EXPECT_EQ(mirklib_msg_recorder_get_handle(), nullptr);
    mirk_platform_recorder_set(0, nullptr);
    EXPECT_EQ(mirklib_msg_recorder_get_state(), 0u);
}
