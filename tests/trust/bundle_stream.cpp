#include "bundle_stream.h"

#include <algorithm>
#include <utility>

namespace trust {

namespace {

constexpr std::size_t messages = 10;
constexpr std::int32_t room = 512;

void look_at(mirk_handle *h, const std::uint8_t *luid, void *message) {
    const auto root = std::find_if(roots().begin(), roots().end(), [&](const Root &r) {
        return r.message != nullptr && std::equal(luid, luid + 16, r.message->luid);
    });
    use(h, *root, message, room);
}

extern "C" void take_bundle(mirk_handle *h, std::uint32_t, void *context, std::uint32_t *) {
    auto *item = mirk_platform_received_first(h);
    for (; item != nullptr; item = mirk_platform_received_next(h, item)) {
        look_at(h, mirk_platform_received_luid(item), mirk_platform_received_message(item));
        ++static_cast<Received *>(context)->in_bundles;
    }
}

template <std::size_t I>
void take_message(mirk_handle *h, std::uint32_t ctx_id, void *context, void *message, std::uint32_t *) {
    const MessageOperations &m = tarn::reflect::messages()[I];
    look_at(h, m.luid, message);
    ++static_cast<Received *>(context)->alone;
    m.destroy(h, ctx_id, message);
}

template <std::size_t... I>
void enlist(mirk_handle *h, std::index_sequence<I...>) {
    ASSERT_EQ(tarn::reflect::messages().size(), messages);
    const mirk_message_handler handlers[] = {take_message<I>...};
    for (std::size_t i = 0; i < sizeof...(I); ++i) {
        const MessageOperations &m = tarn::reflect::messages()[i];
        const mirk_platform_message entry{m.luid, m.name, m.unmarshal, m.unmarshal_only, m.destroy, handlers[i]};
        ASSERT_EQ(mirk_platform_dispatch_register(h, &entry), 0U);
    }
    for (const auto &b : tarn::reflect::bundles()) {
        for (const MessageOperations *m : {&b.start, &b.abort, &b.commit}) {
            const mirk_platform_message entry{m->luid, m->name, m->unmarshal, nullptr, nullptr, nullptr};
            ASSERT_EQ(mirk_platform_dispatch_register(h, &entry), 0U);
        }
    }
    mirk_platform_handle_set_bundle_handler(h, take_bundle);
}

}  // namespace

void enlist(mirk_handle *h) { enlist(h, std::make_index_sequence<messages>{}); }

Bytes bundle_stream(const reference::BundleTable &table, bool tracked) {
    const reference::Record value = rich(reference::message_table(table.message).payload);
    Bytes all = reference::control_frame(table.name, "start", 5);
    for (int i = 0; i < 2; ++i) {
        const Bytes message = reference::message_frame(table.message, value, tracked, 5);
        all.insert(all.end(), message.begin(), message.end());
    }
    const Bytes commit = reference::control_frame(table.name, "commit", 5);
    all.insert(all.end(), commit.begin(), commit.end());
    return all;
}

}  // namespace trust
