// The dispatcher, with simulated messages: an object is one allocated byte, the last byte of its frame.
#include "support.hpp"

using test::Handle;

namespace {

const uint8_t plain_luid[16] = {0x11}, start_luid[16] = {0x21}, commit_luid[16] = {0x22};

struct Calls {
    int only = 0, full = 0, destroyed = 0, handled = 0, linked_in = 0, committed = 0;
    uint32_t size = 0;
    uint32_t only_error = 0;
    uint32_t handler_error = 0;
    uint32_t record_error = 0;
    uint32_t handler_error_seen = 0, linked_in_error = 0;
    bool linked_in_takes = false;
    std::string values, recorded;
    void *dispatch_ctx = nullptr;
    bool detach_first = false;
} calls;

void destroy(mirk_handle *h, uint32_t ctx_id, void *message) {
    ++calls.destroyed;
    h->obj_free(h->mem_ctx, ctx_id, message);
}

void *make(mirk_handle *h, uint32_t ctx_id, const void *buffer, uint32_t size) {
    auto *message = static_cast<char *>(h->obj_alloc(h->mem_ctx, ctx_id, 1));
    *message = static_cast<const char *>(buffer)[size - 1];
    return message;
}

uint32_t unmarshal_only(mirk_handle *h, uint32_t ctx_id, void **out, void *buffer, uint32_t size, uint32_t *err) {
    ++calls.only;
    calls.size = size;
    *out = make(h, ctx_id, buffer, size);
    *err = calls.only_error;
    return 1000000;  // wrong on purpose: the dispatcher must ignore it
}

uint32_t unmarshal(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void **out, void *buffer, uint32_t size,
                   mirk_message_handler handler, uint32_t *err) {
    ++calls.full;
    h->last_error = 0;
    void *message = make(h, ctx_id, buffer, size);
    if (out != nullptr) *out = message;
    if (mirklib_msg_recorder_get_state() != 0) {
        calls.recorded += *static_cast<char *>(message);
        *err = calls.record_error;
        if (FILE *stream = mirklib_msg_recorder_get_handle(); stream != nullptr) std::fputs("<message/>", stream);
    }
    if (handler != nullptr) {
        handler(h, ctx_id, dispatch_ctx, message, err);
    } else {
        ++calls.linked_in;
        calls.linked_in_error = *err;
        if (calls.linked_in_takes) {
            h->obj_free(h->mem_ctx, ctx_id, message);
        } else {
            *err = ENOSYS;
        }
    }
    return size;
}

void handle_message(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err) {
    ++calls.handled;
    calls.handler_error_seen |= *err;
    calls.dispatch_ctx = dispatch_ctx;
    calls.values += *static_cast<char *>(message);
    EXPECT_STREQ(mirklib_in_dispatch_message_info(h, nullptr)->name, "plain");
    *err = calls.handler_error;
    if (calls.handler_error != ENOSYS) h->obj_free(h->mem_ctx, ctx_id, message);
}

uint32_t start(mirk_handle *h, uint32_t, void *, void **, void *, uint32_t size, mirk_message_handler handler,
               uint32_t *) {
    EXPECT_EQ(handler, nullptr);
    EXPECT_EQ(size, 43u);
    h->recv_bundle_open = 1;
    return 43;
}

uint32_t commit(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void **, void *, uint32_t, mirk_message_handler,
                uint32_t *err) {
    const mirk_bundle_handler handler = mirklib_in_dispatch_message_info(h, nullptr)->handler;
    if (handler != nullptr) handler(h, ctx_id, dispatch_ctx, err);
    bundle_receive_message_list_destroy(h, ctx_id, err);
    return 43;
}

void handle_bundle(mirk_handle *h, uint32_t ctx_id, void *, uint32_t *) {
    ++calls.committed;
    EXPECT_EQ(mirk_platform_received_count(h), 2u);
    for (auto *item = mirk_platform_received_first(h); item != nullptr; item = mirk_platform_received_next(h, item)) {
        calls.values += *static_cast<char *>(mirk_platform_received_message(item));
        EXPECT_EQ(mirk_platform_received_luid(item), plain_luid);
        EXPECT_STREQ(mirk_platform_received_name(item), "plain");
    }
    if (calls.detach_first) {
        h->obj_free(h->mem_ctx, ctx_id, mirk_platform_received_detach(h, mirk_platform_received_first(h)));
    }
}

std::string frame(const uint8_t *luid, const std::string &body) {
    std::string bytes(43, '\0');
    bytes[0] = static_cast<char>(0xbc);
    bytes[15] = static_cast<char>(43 + body.size());
    std::memcpy(&bytes[27], luid, 16);
    return bytes + body;
}

class Dispatch : public testing::Test {
protected:
    Dispatch() {
        calls = {};
        plain = {plain_luid, "plain", unmarshal, unmarshal_only, destroy, handle_message};
        EXPECT_EQ(mirk_platform_dispatch_register(h, &plain), 0u);
        const mirk_platform_message controls[] = {{start_luid, "start", start, nullptr, nullptr, nullptr},
                                                  {commit_luid, "commit", commit, nullptr, nullptr, nullptr}};
        for (const auto &control : controls) EXPECT_EQ(mirk_platform_dispatch_register(h, &control), 0u);
    }
    ~Dispatch() override { mirk_platform_recorder_set(0, nullptr); }

    uint32_t dispatch(std::string bytes) {
        const auto size = static_cast<uint32_t>(bytes.size());
        return mirk_platform_dispatch(h, 7, bytes.data(), size, &calls, &report);
    }

    Handle h;
    mirk_platform_message plain;
    mirk_platform_report report{};
    test::Trace trace;
};

}  // namespace

TEST_F(Dispatch, DeliversEachFrame) {
    EXPECT_EQ(dispatch(frame(plain_luid, "a") + frame(plain_luid, "xxb")), 0u);
    EXPECT_EQ(calls.values, "ab");
    EXPECT_EQ(calls.size, 46u);
    EXPECT_EQ(calls.full, 0);
    EXPECT_EQ(calls.dispatch_ctx, &calls);
    EXPECT_EQ(report.number, 0u);
    EXPECT_EQ(mirklib_in_dispatch_message_info(h, nullptr), nullptr);
    EXPECT_EQ(dispatch(""), 0u);
}

TEST_F(Dispatch, ReportsTheOffsetOfABadFrame) {
    const std::string good = frame(plain_luid, "a");
    std::string bad = frame(plain_luid, "b");
    bad[0] = 0;
    EXPECT_EQ(dispatch(good + bad), uint32_t{EBADMSG});
    EXPECT_EQ(report.number, uint32_t{EBADMSG});
    EXPECT_EQ(report.offset, 44u);
    EXPECT_STRNE(report.sentence, "");
    EXPECT_EQ(calls.values, "a");
    bad = frame(plain_luid, "b");
    bad[15] = 42;
    EXPECT_EQ(dispatch(bad), uint32_t{EBADMSG});
    bad[15] = 45;
    EXPECT_EQ(dispatch(bad), uint32_t{EBADMSG});
    EXPECT_EQ(dispatch(good + good.substr(0, 42)), uint32_t{EBADMSG});
    EXPECT_EQ(report.offset, 44u);
    EXPECT_TRUE(trace.has(3, "frame at offset 44"));
}

TEST_F(Dispatch, AnUnknownLuidIsEnoent) {
    const uint8_t unknown[16] = {0x77};
    EXPECT_EQ(dispatch(frame(plain_luid, "a") + frame(unknown, "")), uint32_t{ENOENT});
    EXPECT_EQ(report.offset, 44u);
}

TEST_F(Dispatch, DestroysTheMessageOfABadFrame) {
    calls.only_error = EMSGSIZE;
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), uint32_t{EMSGSIZE});
    EXPECT_EQ(calls.destroyed, 1);
    EXPECT_EQ(calls.handled, 0);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
}

TEST_F(Dispatch, DestroysMessagesThatNoHandlerTakes) {
    calls.handler_error = ENOSYS;
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), uint32_t{ENOSYS});
    EXPECT_EQ(calls.destroyed, 1);
    calls.handler_error = 5;
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), 5u);
    EXPECT_EQ(calls.destroyed, 1);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
}

TEST_F(Dispatch, CallsTheLinkedInHandlerIfNoneIsRegistered) {
    plain.handler = nullptr;
    ASSERT_EQ(mirk_platform_dispatch_register(h, &plain), 0u);
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), uint32_t{ENOSYS});
    EXPECT_EQ(calls.linked_in, 1);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
    calls.linked_in_takes = true;
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), 0u);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
}

TEST_F(Dispatch, MessagesOfAnOpenBundleGoToTheReceiveList) {
    EXPECT_EQ(mirk_platform_dispatch_set_bundle_handler(h, commit_luid, handle_bundle), 0u);
    const std::string bundle = frame(start_luid, "") + frame(plain_luid, "a") + frame(plain_luid, "b");
    EXPECT_EQ(dispatch(bundle + frame(commit_luid, "")), 0u);
    EXPECT_EQ(calls.committed, 1);
    EXPECT_EQ(calls.values, "ab");
    EXPECT_EQ(calls.handled, 0);
    EXPECT_EQ(calls.destroyed, 2);
    calls.detach_first = true;
    EXPECT_EQ(dispatch(bundle + frame(commit_luid, "")), 0u);
    EXPECT_EQ(calls.destroyed, 3);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
    EXPECT_EQ(dispatch(bundle), 0u) << "messages on the receive list are destroyed when the handle is closed";
}

TEST_F(Dispatch, AnErrorInsideABundleLeavesItOpenUntilItsListIsDestroyed) {
    EXPECT_EQ(mirk_platform_dispatch_set_bundle_handler(h, commit_luid, handle_bundle), 0u);
    EXPECT_EQ(dispatch(frame(start_luid, "") + frame(plain_luid, "a") + "not a frame"), uint32_t{EBADMSG});
    EXPECT_NE(mirklib_is_accumulating_bundle(h), 0u);
    EXPECT_EQ(mirk_platform_received_count(h), 1u);
    uint32_t err = 0;
    bundle_receive_message_list_destroy(h, 7, &err);
    EXPECT_EQ(mirklib_is_accumulating_bundle(h), 0u);
    EXPECT_EQ(
        dispatch(frame(start_luid, "") + frame(plain_luid, "b") + frame(plain_luid, "c") + frame(commit_luid, "")), 0u);
    EXPECT_EQ(calls.values, "bc");
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
}

TEST_F(Dispatch, ReadsAGoodFrameASecondTimeWhileRecording) {
    mirk_platform_recorder_set(1, nullptr);
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), 0u);
    EXPECT_EQ(calls.only, 1);
    EXPECT_EQ(calls.full, 1);
    EXPECT_EQ(calls.handled, 1);
    calls.only_error = EMSGSIZE;
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), uint32_t{EMSGSIZE});
    EXPECT_EQ(calls.full, 1);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
}

TEST_F(Dispatch, MessagesThatCouldNotBeRecordedGoToTheReceiveList) {
    mirk_platform_recorder_set(1, nullptr);
    calls.record_error = EMSGSIZE;
    EXPECT_EQ(dispatch(frame(start_luid, "") + frame(plain_luid, "a")), 0u);
    EXPECT_EQ(mirk_platform_received_count(h), 1u);
    EXPECT_TRUE(trace.has(3, "message plain was not recorded"));
}

TEST_F(Dispatch, CountsMessagesThatCouldNotBeRecorded) {
    uint32_t number = 77;
    mirk_platform_recorder_set(1, nullptr);
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), 0u);
    EXPECT_EQ(mirk_platform_recorder_failures(&number), 0u);
    EXPECT_EQ(number, 0u);
    calls.record_error = EMSGSIZE;
    EXPECT_EQ(dispatch(frame(plain_luid, "b") + frame(plain_luid, "c")), 0u);
    EXPECT_EQ(mirk_platform_recorder_failures(&number), 2u);
    EXPECT_EQ(number, uint32_t{EMSGSIZE});
    mirk_platform_recorder_set(0, nullptr);
    EXPECT_EQ(mirk_platform_recorder_failures(nullptr), 2u) << "remains readable after switching off";
    mirk_platform_recorder_set(1, nullptr);
    EXPECT_EQ(mirk_platform_recorder_failures(&number), 0u);
    EXPECT_EQ(number, 0u);
}

TEST_F(Dispatch, ReportsWriteErrorsOfTheRecordersStream) {
    const std::unique_ptr<FILE, int (*)(FILE *)> full(std::fopen("/dev/full", "w"), std::fclose);
    ASSERT_NE(full, nullptr);
    std::setvbuf(full.get(), nullptr, _IONBF, 0);
    mirk_platform_recorder_set(1, full.get());
    EXPECT_EQ(dispatch(frame(plain_luid, "a") + frame(plain_luid, "b")), 0u);
    EXPECT_EQ(calls.values, "ab") << "messages are delivered all the same";
    uint32_t number = 0;
    EXPECT_EQ(mirk_platform_recorder_failures(&number), 2u);
    EXPECT_EQ(number, uint32_t{ENOSPC});
    EXPECT_TRUE(trace.has(3, "message plain was not recorded: No space left on device"));
}

TEST_F(Dispatch, WriteErrorsOfABufferedStreamAppearWhenItIsFlushed) {
    const std::unique_ptr<FILE, int (*)(FILE *)> full(std::fopen("/dev/full", "w"), std::fclose);
    ASSERT_NE(full, nullptr);
    mirk_platform_recorder_set(1, full.get());
    EXPECT_EQ(dispatch(frame(plain_luid, "a")), 0u);
    EXPECT_EQ(mirk_platform_recorder_failures(nullptr), 0u);
    EXPECT_NE(std::fflush(full.get()), 0);
    EXPECT_EQ(dispatch(frame(plain_luid, "b")), 0u);
    EXPECT_EQ(mirk_platform_recorder_failures(nullptr), 1u);
}

TEST_F(Dispatch, DeliversTheSameWhetherOrNotAMessageCouldBeRecorded) {
    const std::string frames = frame(plain_luid, "a") + frame(plain_luid, "b");
    for (const bool recorded : {false, true}) {
        mirk_platform_recorder_set(recorded, nullptr);
        calls = {};
        calls.record_error = EMSGSIZE;
        h->last_error = ENOSPC;
        EXPECT_EQ(dispatch(frames), 0u);
        EXPECT_EQ(calls.values, "ab");
        EXPECT_EQ(calls.recorded, recorded ? "ab" : "");
        EXPECT_EQ(calls.handler_error_seen, 0u);
        EXPECT_EQ(h->last_error, uint32_t{ENOSPC});
        EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
        calls.handler_error = EIO;
        EXPECT_EQ(dispatch(frames), uint32_t{EIO});
        EXPECT_EQ(calls.values, "aba") << "an error of the handler still ends the dispatch";
    }
}

TEST_F(Dispatch, DeliversTheSameToTheLinkedInHandlerWhetherOrNotAMessageCouldBeRecorded) {
    plain.handler = nullptr;
    ASSERT_EQ(mirk_platform_dispatch_register(h, &plain), 0u);
    const std::string frames = frame(plain_luid, "a") + frame(plain_luid, "b");
    for (const bool recorded : {false, true}) {
        mirk_platform_recorder_set(recorded, nullptr);
        calls = {};
        calls.record_error = EMSGSIZE;
        calls.linked_in_takes = true;
        EXPECT_EQ(dispatch(frames), 0u);
        EXPECT_EQ(calls.linked_in, 2);
        EXPECT_EQ(calls.linked_in_error, 0u);
        EXPECT_EQ(calls.recorded, recorded ? "ab" : "");
        EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
        EXPECT_EQ(mirklib_msg_recorder_get_state(), recorded ? 1u : 0u);
    }
}

TEST_F(Dispatch, RefusesIncompleteEntries) {
    mirk_platform_message broken = plain;
    broken.destroy = nullptr;
    EXPECT_EQ(mirk_platform_dispatch_register(h, &broken), uint32_t{EINVAL});
    broken = plain;
    broken.unmarshal = nullptr;
    EXPECT_EQ(mirk_platform_dispatch_register(h, &broken), uint32_t{EINVAL});
    const uint8_t unknown[16] = {0x77};
    EXPECT_EQ(mirk_platform_dispatch_set_bundle_handler(h, unknown, handle_bundle), uint32_t{ENOENT});
}

TEST_F(Dispatch, MessageInfoClearsTheTableOutsideOfADispatch) {
    void *table = &calls;
    EXPECT_EQ(mirklib_in_dispatch_message_info(h, &table), nullptr);
    EXPECT_EQ(table, nullptr);
}
