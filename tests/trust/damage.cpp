#include "damage.h"

#include "reference/text.h"

namespace trust {

namespace {

std::uint8_t *output(std::size_t size) {
    static kit::GuardedMemory memory(std::size_t{1} << 20);
    return memory.room(size);
}

}  // namespace

const std::vector<Root> &roots() {
    static const std::vector<Root> all = [] {
        std::vector<Root> list;
        for (const auto &r : tarn::reflect::records()) {
            list.push_back({.name = std::string(r.record->name), .record = &r});
        }
        for (const auto &e : tarn::reflect::enumerations()) {
            list.push_back({.name = std::string(e.enumeration->name), .enumeration = &e});
        }
        for (const auto &m : tarn::reflect::messages()) list.push_back({.name = m.name, .message = &m});
        return list;
    }();
    return all;
}

reference::Record rich(std::string_view type, bool printable) { return reference::small_value(type, 11, printable); }

Bytes frame_of(const Root &root, bool tracked) {
    if (root.enumeration != nullptr) return {0, 0, 0, 0, 1};
    const reference::Record value = rich(root.payload()->record->name);
    return root.message != nullptr ? reference::message_frame(root.name, value, tracked, 5)
                                   : reference::encode(value, tracked);
}

std::string document_of(const Root &root) {
    if (root.enumeration != nullptr) {
        const auto &table = reference::enumeration_table(root.name);
        return "<" + root.name + "><" + table.enumerators.back() + "/></" + root.name + ">";
    }
    const reference::Record value = rich(root.payload()->record->name, true);
    return root.message != nullptr ? reference::message_to_xml(root.name, value, false)
                                   : reference::to_xml(value, root.name, false);
}

std::unique_ptr<kit::Handle> small_handle(Tracking tracking, bool private_types) {
    auto handle = std::make_unique<kit::Handle>(kit::Options{
        .tracking = tracking, .private_types = private_types, .request_ceiling = 16384, .total_ceiling = 131072});
    mirk_platform_testing_set_fresh_fill(*handle, 0xDB);
    return handle;
}

Specimen::Specimen(mirk_handle *h, const Root &root) : h_(h), root_(root) {
    if (root.record != nullptr) instance_ = root.record->create(h, id);
    if (root.enumeration != nullptr) instance_ = root.enumeration->create(h, id);
}

std::uint32_t Specimen::read(const Bytes &frame, std::uint32_t reuse) {
    std::uint32_t err = 0;
    const auto size = static_cast<std::uint32_t>(frame.size());
    std::uint8_t *bytes = guarded(frame);
    if (root_.record != nullptr) root_.record->unmarshal(h_, id, bytes, instance_, size, reuse, &err);
    if (root_.enumeration != nullptr) root_.enumeration->unmarshal(h_, id, bytes, instance_, size, reuse, &err);
    if (root_.message != nullptr) {
        end();
        root_.message->unmarshal_only(h_, id, &instance_, bytes, size, &err);
    }
    mirk_clear_last_error(h_);
    return err;
}

std::uint32_t Specimen::read_document(void *document) {
    std::uint32_t err = 0;
    char words[64];
    const std::string path = "/" + root_.name;
    if (root_.record != nullptr) {
        root_.record->from_xml(h_, id, path.c_str(), document, instance_, &err, words, sizeof words);
    }
    if (root_.enumeration != nullptr) {
        root_.enumeration->from_xml(h_, id, path.c_str(), document, instance_, &err, words, sizeof words);
    }
    if (root_.message != nullptr) {
        end();
        instance_ = root_.message->from_xml(h_, id, document, &err, words, sizeof words);
    }
    mirk_clear_last_error(h_);
    return err;
}

void use(mirk_handle *h, const Root &root, void *instance, std::int32_t size) {
    if (instance == nullptr) return;
    std::uint8_t *buffer = output(static_cast<std::size_t>(size));
    char *text = reinterpret_cast<char *>(buffer);
    const auto room = static_cast<std::uint32_t>(size);
    std::uint32_t errors[3] = {};
    if (const auto *r = root.record; r != nullptr) {
        r->print(h, id, text, 0, "instance", instance, size, &errors[0]);
        r->to_xml(h, id, "instance", text, instance, size, 0, &errors[1]);
        r->marshal(h, id, buffer, instance, size, &errors[2]);
        r->len(h, id, instance);
        ASSERT_EQ(r->compare(instance, instance), 0);
        r->hash(instance, 0);
    }
    if (const auto *e = root.enumeration; e != nullptr) {
        e->print(h, id, text, 0, "instance", instance, size, &errors[0]);
        e->to_xml(h, id, "instance", text, instance, size, 0, &errors[1]);
        e->marshal(h, id, buffer, instance, size, &errors[2]);
        ASSERT_EQ(e->compare(instance, instance), 0);
        e->hash(instance, 0);
    }
    if (const auto *m = root.message; m != nullptr) {
        m->print(h, id, text, instance, room, &errors[0]);
        m->to_xml(h, id, text, instance, room, &errors[1]);
        m->marshal(h, id, buffer, instance, room, &errors[2]);
        m->len(h, id, instance);
        std::uint32_t err = 0;
        void *payload = m->payload_get(h, id, instance, &err);
        ASSERT_EQ(root.payload()->compare(payload, payload), 0);
        root.payload()->hash(payload, 0);
    }
    mirk_clear_last_error(h);
}

void Specimen::end() {
    if (instance_ == nullptr) return;
    if (root_.record != nullptr) root_.record->destroy(h_, id, instance_);
    if (root_.enumeration != nullptr) root_.enumeration->destroy(h_, id, instance_);
    if (root_.message != nullptr) root_.message->destroy(h_, id, instance_);
    instance_ = nullptr;
}

}  // namespace trust
