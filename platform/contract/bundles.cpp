// The messages of the bundle that a handle sends and of the bundle that it receives. Nodes of both lists come from
// malloc, not from obj_alloc.
#include "platform/contract/handle.hpp"

using mirk::own;

// A message that waits on the receive list for the commit of its bundle.
struct mirk_platform_received {
    mirk_list_head link;
    void *message;
    const uint8_t *luid;
    const char *name;
    mirk_platform_message_destroy destroy;
};

namespace {

// A message admitted to the send bundle.
struct Sent {
    mirk_list_head link;
    const uint8_t *luid;
    const char *name;
    uint64_t count;
};

static_assert(offsetof(mirk_platform_received, link) == 0 && offsetof(Sent, link) == 0);

bool same_luid(const uint8_t *a, const uint8_t *b) { return std::memcmp(a, b, 16) == 0; }

void append(mirk_list_head &head, mirk_list_head &link) {
    link.next = &head;
    link.prev = head.prev;
    head.prev->next = &link;
    head.prev = &link;
}

void unlink(mirk_list_head &link) {
    link.prev->next = link.next;
    link.next->prev = link.prev;
}

void make_empty(mirk_list_head &head) { head.next = head.prev = &head; }

template <typename Node>
Node *node_of(mirk_list_head *link) {
    return reinterpret_cast<Node *>(link);
}

Sent *find_sent(mirk_handle *h, const uint8_t *luid) {
    if (mirk::list_empty(h->send_bundle_list)) return nullptr;
    for (mirk_list_head *link = h->send_bundle_list.next; link != &h->send_bundle_list; link = link->next) {
        if (same_luid(node_of<Sent>(link)->luid, luid)) return node_of<Sent>(link);
    }
    return nullptr;
}

const mirk_allowed_row *find_row(const mirk_allowed_row *row, const uint8_t *luid) {
    for (; row != nullptr && row->luid != nullptr; ++row) {
        if (same_luid(row->luid, luid)) return row;
    }
    return nullptr;
}

}  // namespace

namespace mirk {

bool list_empty(const mirk_list_head &head) { return head.next == nullptr || head.next == &head; }

void file_received(Handle &handle, const DispatchEntry &entry, void *message, uint32_t ctx_id, uint32_t *err) {
    auto *node = static_cast<mirk_platform_received *>(std::malloc(sizeof(mirk_platform_received)));
    if (node == nullptr) {
        entry.message.destroy(&handle, ctx_id, message);
        *err = ENOMEM;
        return;
    }
    *node = {{}, message, entry.message.luid, entry.message.name, entry.message.destroy};
    if (list_empty(handle.recv_bundle_list)) make_empty(handle.recv_bundle_list);
    append(handle.recv_bundle_list, node->link);
}

}  // namespace mirk

extern "C" {

void bundle_message_validate_add(mirk_handle *h, uint32_t, const uint8_t *luid, const char *name, uint32_t *err) {
    if (*err != 0) return;
    *err = own(h)->failure(MIRK_PLATFORM_TESTING_VALIDATE_ADD);
    if (*err != 0) return;
    if (luid == nullptr || find_row(h->bundle_table, luid) == nullptr) {
        *err = ENOENT;
        return;
    }
    if (find_sent(h, luid) != nullptr) return;
    auto *node = static_cast<Sent *>(std::malloc(sizeof(Sent)));
    if (node == nullptr) {
        *err = ENOMEM;
        return;
    }
    *node = {{}, luid, name, 0};
    if (mirk::list_empty(h->send_bundle_list)) make_empty(h->send_bundle_list);
    append(h->send_bundle_list, node->link);
}

void bundle_message_increment_count(mirk_handle *h, const uint8_t *luid, uint32_t *err) {
    if (*err != 0) return;
    Sent *sent = luid != nullptr ? find_sent(h, luid) : nullptr;
    if (sent == nullptr) {
        *err = ENOENT;
    } else {
        ++sent->count;
    }
}

void bundle_send_message_list_destroy(mirk_handle *h, uint32_t, uint32_t *) {
    if (!mirk::list_empty(h->send_bundle_list)) {
        for (mirk_list_head *link = h->send_bundle_list.next; link != &h->send_bundle_list;) {
            std::free(node_of<Sent>(std::exchange(link, link->next)));
        }
    }
    make_empty(h->send_bundle_list);
    h->send_bundle_open = 0;
    h->bundle_table = nullptr;
}

void bundle_receive_message_list_destroy(mirk_handle *h, uint32_t ctx_id, uint32_t *) {
    while (!mirk::list_empty(h->recv_bundle_list)) {
        auto *item = node_of<mirk_platform_received>(h->recv_bundle_list.next);
        const auto destroy = item->destroy;
        destroy(h, ctx_id, mirk_platform_received_detach(h, item));
    }
    make_empty(h->recv_bundle_list);
    h->recv_bundle_open = 0;
}

uint32_t mirklib_is_accumulating_bundle(mirk_handle *h) { return h->recv_bundle_open != 0 ? 1 : 0; }

uint32_t mirk_platform_received_count(mirk_handle *h) {
    uint32_t count = 0;
    for (auto *item = mirk_platform_received_first(h); item != nullptr; item = mirk_platform_received_next(h, item)) {
        ++count;
    }
    return count;
}

mirk_platform_received *mirk_platform_received_first(mirk_handle *h) {
    return mirk::list_empty(h->recv_bundle_list) ? nullptr : node_of<mirk_platform_received>(h->recv_bundle_list.next);
}

mirk_platform_received *mirk_platform_received_next(mirk_handle *h, mirk_platform_received *item) {
    return item->link.next == &h->recv_bundle_list ? nullptr : node_of<mirk_platform_received>(item->link.next);
}

void *mirk_platform_received_message(const mirk_platform_received *item) { return item->message; }

const uint8_t *mirk_platform_received_luid(const mirk_platform_received *item) { return item->luid; }

const char *mirk_platform_received_name(const mirk_platform_received *item) { return item->name; }

void *mirk_platform_received_detach(mirk_handle *, mirk_platform_received *item) {
    void *message = item->message;
    unlink(item->link);
    std::free(item);
    return message;
}

size_t mirk_platform_list_sent(mirk_handle *h, mirk_platform_sent *sent, size_t capacity) {
    size_t count = 0;
    if (mirk::list_empty(h->send_bundle_list)) return count;
    for (mirk_list_head *link = h->send_bundle_list.next; link != &h->send_bundle_list; link = link->next) {
        const Sent *node = node_of<Sent>(link);
        if (count < capacity) sent[count] = {node->luid, node->name, node->count};
        ++count;
    }
    return count;
}

}  // extern "C"
