// Identities, names, type records and allowed-message tables as the library exports them.
#include <algorithm>
#include <set>

#include "messaging.h"

namespace {

using namespace messaging;
using tarn::reflect::bundles;
using tarn::reflect::messages;

struct Entry {
    std::string name;
    reference::Luid luid;
    const MessageOperations *operations;
};

std::vector<Entry> catalogue() {
    std::vector<Entry> entries;
    for (std::size_t i = 0; i < messages().size(); ++i) {
        entries.push_back({reference::messages()[i].name, reference::messages()[i].luid, &messages()[i]});
    }
    for (const Control &c : controls()) {
        const reference::BundleTable &table = reference::bundle_table(c.bundle_name());
        entries.push_back({table.name + "_bundle_" + std::string(c.kind), table.luid(c.kind), c.operations});
    }
    return entries;
}

TEST(Catalogue, HasEveryIdentityInBothForms) {
    ASSERT_EQ(catalogue().size(), reference::messages().size() + 3 * reference::bundles().size());
    for (const Entry &e : catalogue()) {
        SCOPED_TRACE(e.name);
        EXPECT_TRUE(std::equal(e.luid.begin(), e.luid.end(), e.operations->luid));
        EXPECT_STREQ(e.operations->luid_text, reference::luid_text(e.luid).c_str());
    }
}

TEST(Catalogue, NamesArePaddedTo64Bytes) {
    std::size_t longest = 0;
    std::string longest_name;
    for (const Entry &e : catalogue()) {
        const std::string name = "message " + e.name;
        std::string expected = name;
        ASSERT_LT(name.size(), 64u);
        expected.resize(64, '\0');
        EXPECT_EQ(std::string(e.operations->catalogue_name, 64), expected);
        if (name.size() > longest) longest = name.size(), longest_name = e.operations->catalogue_name;
    }
    EXPECT_EQ(longest_name, "message lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit");
}

TEST(Catalogue, EveryMessageHasATypeRecord) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        EXPECT_EQ(m.type->magic, 0xBEEFF00Du);
        EXPECT_EQ(std::memcmp(m.type->luid, m.luid, 16), 0);
        EXPECT_STREQ(m.type->luid_text, m.luid_text);
        EXPECT_STREQ(m.type->name, m.name);
        EXPECT_STREQ(m.type->module, "lumo_ui_tarn");
        EXPECT_STREQ(m.type->kind, "message");
        EXPECT_EQ(m.type->reserved_index, -1);
        EXPECT_EQ(m.type->plain_counters, 0u);
        ASSERT_NE(m.type->variant_info, nullptr);
        EXPECT_EQ(m.type->variant_info->n_variants, 1);
        EXPECT_EQ(counters(m).used_length, 40u);
        EXPECT_EQ(counters(m).alloc_slop, 0u);
    }
}

TEST(Catalogue, ABundleAdmitsItsMessageAndTheRequest) {
    std::set<const mirk_allowed_row *> tables;
    for (const BundleOperations &b : bundles()) {
        SCOPED_TRACE(std::string(b.bundle->name));
        const MessageOperations &admitted = tarn::reflect::operations_of(b.bundle->message);
        EXPECT_EQ(reference::bundle_table(b.bundle->name).message, admitted.name);
        Handle h;
        Buffer buffer(frame_head);
        std::uint32_t err = 0;
        ASSERT_EQ(b.start.marshal(h, id, buffer.data(), nullptr, buffer.size(), &err), frame_head);
        const mirk_allowed_row *rows = h->bundle_table;
        EXPECT_EQ(rows[0].luid, admitted.luid);
        EXPECT_EQ(rows[0].name, admitted.catalogue_name);
        EXPECT_EQ(rows[1].luid, message_ui_req_msg_luid);
        EXPECT_EQ(rows[1].name, message_ui_req_msg_name);
        EXPECT_EQ(rows[2].luid, nullptr);
        EXPECT_EQ(rows[2].name, nullptr);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(rows[i].zero, 0u);
        tables.insert(rows);
    }
    // Also if two bundles admit the same message.
    EXPECT_EQ(tables.size(), bundles().size());
}

TEST(Catalogue, ControlFramesHave43BytesAndContainThatLength) {
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        Handle h;
        h->send_bundle_open = c.kind == "start" ? 0 : 1;
        mirk_platform_handle_set_message_stamp(h, 0x01020304);
        Buffer buffer(100);
        std::uint32_t err = 0;
        ASSERT_EQ(c->marshal(h, id, buffer.data(), nullptr, buffer.size(), &err), 43u);
        EXPECT_EQ(buffer.first(43), reference::control_frame(c.bundle_name(), c.kind, 0x01020304));
        EXPECT_TRUE(buffer.untouched(43));
        mirk_platform_frame frame{};
        ASSERT_EQ(mirk_platform_frame_look(buffer.data(), 43, &frame), 0u);
        EXPECT_EQ(frame.header.total_length, 43u);
        EXPECT_EQ(frame.header.stamp, 0x01020304u);
        EXPECT_EQ(frame.header.sttr, 0);
    }
}

TEST(Catalogue, FramesOfTwoHandlesDifferOnlyInTheStamp) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        const reference::Record value = sample(m);
        mirk_platform_frame frames[2];
        Bytes bytes[2];
        for (std::uint32_t i = 0; i < 2; ++i) {
            Handle h;
            mirk_platform_handle_set_message_stamp(h, 100 + i);
            void *message = make(h, m, value);
            Buffer buffer(m.len(h, id, message));
            std::uint32_t err = 0;
            const std::uint32_t written = m.marshal(h, id, buffer.data(), message, buffer.size(), &err);
            EXPECT_EQ(err, 0u);
            bytes[i] = buffer.first(written);
            ASSERT_EQ(mirk_platform_frame_look(buffer.data(), written, &frames[i]), 0u);
            m.destroy(h, id, message);
        }
        EXPECT_EQ(frames[0].header.stamp, 100u);
        EXPECT_EQ(frames[1].header.stamp, 101u);
        frames[1].header.stamp = 100;
        EXPECT_EQ(std::memcmp(&frames[0].header, &frames[1].header, sizeof frames[0].header), 0);
        EXPECT_TRUE(
            std::equal(bytes[0].begin() + header_size, bytes[0].end(), bytes[1].begin() + header_size, bytes[1].end()));
    }
}

}  // namespace
