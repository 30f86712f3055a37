#include "sweep.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "golden_exports.h"
#include "reference/codec.h"
#include "reference/text.h"
#include "rich.h"

namespace trust {

namespace {

constexpr mirk_platform_testing_allocator allocators[] = {
    MIRK_PLATFORM_TESTING_OBJ_ALLOC, MIRK_PLATFORM_TESTING_SYS_ALLOC, MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC,
    MIRK_PLATFORM_TESTING_VARIANT_BLOCK};

// All scenes share these values.
const reference::Record &value_of(const RecordOperations &record) {
    static std::map<const RecordOperations *, reference::Record> all;
    auto [at, fresh] = all.try_emplace(&record);
    if (fresh) at->second = rich(record.record->name);
    return at->second;
}

struct DocumentEnd {
    void operator()(void *document) const { mirk_platform_document_free(document); }
};

void *document_of(const std::string &name, const std::function<std::string()> &text) {
    static std::map<std::string, std::unique_ptr<void, DocumentEnd>> all;
    auto &document = all[name];
    if (document == nullptr) {
        const std::string content = text();
        document.reset(mirk_platform_document_load_memory(content.data(), content.size(), nullptr));
    }
    return document.get();
}

void *filled(mirk_handle *h, const RecordOperations &record) {
    void *instance = record.create(h, id);
    bridge::fill(h, record, instance, value_of(record));
    return instance;
}

}  // namespace

std::ostream &operator<<(std::ostream &out, const Failure &failure) {
    constexpr const char *names[] = {"obj_alloc", "sys_alloc", "mirklib_malloc", "variant block"};
    return out << names[failure.allocator] << ' ' << failure.nth << (failure.onwards ? " onwards" : "");
}

Scene::Scene(const Subject &s, const kit::Options &options)
    : subject(s), tracks(options.tracking == kit::Tracking::on) {
    mirk_platform_handle_options o;
    mirk_platform_handle_options_init(&o);
    o.tracking = options.tracking == kit::Tracking::none  ? MIRK_PLATFORM_TRACKING_NONE
                 : options.tracking == kit::Tracking::off ? MIRK_PLATFORM_TRACKING_OFF
                                                          : MIRK_PLATFORM_TRACKING_ON;
    h = mirk_platform_handle_open(&o);
    mirk_platform_testing_set_fresh_fill(h, 0xA5);
    if (subject.record != nullptr) {
        const RecordOperations &r = *subject.record;
        object = filled(h, r);
        other = r.create(h, id);
        if (subject.member != nullptr && subject.member->element_set != nullptr) {
            element = filled(h, tarn::reflect::operations_of(*subject.member->member->record));
        }
        if (subject.member == nullptr) {
            frame = reference::encode(value_of(r), tracks);
            document = document_of(std::string(r.record->name), [&] {
                return reference::to_xml(rich(r.record->name, true), r.record->name, false);
            });
        }
    } else if (subject.enumeration != nullptr) {
        object = subject.enumeration->create(h, id);
        other = subject.enumeration->create(h, id);
        const std::string name(subject.enumeration->enumeration->name);
        document = document_of(name, [&] { return "<" + name + "/>"; });
        frame = {0, 0, 0, 0, 0};
    } else if (subject.message != nullptr && subject.message->message != nullptr) {
        const MessageOperations &m = *subject.message;
        const RecordOperations &payload = tarn::reflect::operations_of(m.message->payload);
        object = m.create(h, id);
        bridge::fill(h, payload, m.payload_get(h, id, object, &err), value_of(payload));
        frame = reference::message_frame(m.name, value_of(payload), tracks, 5);
        document = document_of(
            m.name, [&] { return reference::message_to_xml(m.name, rich(payload.record->name, true), false); });
    } else if (subject.message != nullptr) {
        object = subject.message->create(h, id);
        frame.assign(43, 0);
    }
    frame.push_back(0);
    // Private types are created on first use, which should be the call itself.
    h->private_types = options.private_types ? 1 : 0;
}

// Shared by all scenes, which are used one after the other.
char *Scene::text() {
    static char buffer[room];
    return buffer;
}

Scene::~Scene() { mirk_platform_handle_close(h); }

void Scene::fail(const Failure &failure) {
    mirk_platform_testing_fail_allocation(h, failure.allocator, failure.nth, failure.onwards ? 1 : 0);
}

void Scene::end_failures() {
    for (const auto allocator : allocators) mirk_platform_testing_fail_allocation(h, allocator, 0, 0);
}

void Scene::begin_call() {
    err = 0;
    mirk_clear_last_error(h);
    for (const auto allocator : allocators) {
        before_[allocator] = mirk_platform_testing_allocations(h, allocator);
    }
}

void Scene::end_call() {
    last_error = h->last_error;
    for (const auto allocator : allocators) {
        requests_[allocator] = mirk_platform_testing_allocations(h, allocator) - before_[allocator];
    }
    end_failures();
    mirk_clear_last_error(h);
}

std::uint64_t Scene::requests(mirk_platform_testing_allocator allocator) const { return requests_[allocator]; }

bool Scene::is_live(const void *block) const {
    std::vector<mirk_platform_block> blocks(mirk_platform_live_blocks(h));
    mirk_platform_list_blocks(h, blocks.data(), blocks.size());
    return std::any_of(blocks.begin(), blocks.end(), [&](const auto &b) { return b.address == block; });
}

void Scene::clean_up() {
    if (subject.record != nullptr) {
        for (void *instance : {object, other, made}) {
            if (instance == nullptr) continue;
            // In any state, it can be read and destroyed.
            const RecordOperations &r = *subject.record;
            std::uint32_t error = 0;
            r.print(h, id, text(), 0, "o", instance, size(), &error);
            error = 0;
            r.marshal(h, id, text(), instance, size(), &error);
            r.hash(instance, 1);
            EXPECT_EQ(r.compare(instance, instance), 0);
            mirk_clear_last_error(h);
            r.destroy(h, id, instance);
        }
        if (element != nullptr) {
            tarn::reflect::operations_of(*subject.member->member->record).destroy(h, id, element);
        }
    } else if (subject.enumeration != nullptr) {
        for (void *instance : {object, other, made}) subject.enumeration->destroy(h, id, instance);
    } else if (subject.message != nullptr) {
        for (void *message : {object, made}) {
            if (message != nullptr) subject.message->destroy(h, id, message);
        }
    }
    if (h->send_bundle_open != 0) bundle_send_message_list_destroy(h, id, &err);
    object = other = made = element = nullptr;
    EXPECT_LE(mirk_platform_live_blocks(h), may_lose) << "blocks are left";
    // A block that remains keeps its entries in the runtime.
    if (may_lose == 0) {
        EXPECT_EQ(mirk_platform_testing_offset_entries(h), 0U);
    }
}

bool judges(const Driver &driver, const Failure &failure) {
    return driver.judge != nullptr && (failure.allocator == MIRK_PLATFORM_TESTING_OBJ_ALLOC ||
                                       std::string_view(driver.suffix).ends_with("_initialize"));
}

const std::vector<Operation> &operations() {
    static const std::vector<Operation> all = [] {
        std::map<std::string, std::pair<Subject, const Driver *>> known;
        const auto know = [&](const std::string &name, const Subject &subject, const Driver &driver) {
            known[name] = {subject, &driver};
        };
        for (const Driver &d : drivers()) {
            const std::string of = d.of, suffix = d.suffix;
            for (const RecordOperations &r : tarn::reflect::records()) {
                const std::string name(r.record->name);
                if (of == "record") know(name + "_" + suffix, {.record = &r}, d);
                for (const MemberOperations &m : r.members) {
                    const char *member_class = m.text_get != nullptr      ? "string"
                                               : m.element_get != nullptr ? "array"
                                                                          : "single";
                    if (of != member_class) continue;
                    know(name + "_" + std::string(m.member->name) + "_" + suffix, {.record = &r, .member = &m}, d);
                }
            }
            for (const EnumerationOperations &e : tarn::reflect::enumerations()) {
                if (of == "enumeration") know(std::string(e.enumeration->name) + "_" + suffix, {.enumeration = &e}, d);
            }
            for (const MessageOperations &m : tarn::reflect::messages()) {
                const std::string name(m.name), front = name + "_message_";
                if (of == "message") know(front + suffix, {.message = &m}, d);
                if (of == "payload") {
                    know(front + std::string(m.message->payload.name) + "_" + suffix, {.message = &m}, d);
                }
                if (of == "message handler") know("lumo_ui_tarn_" + front + suffix, {.message = &m}, d);
            }
            for (const BundleOperations &b : tarn::reflect::bundles()) {
                const std::string name = std::string(b.bundle->name) + "_bundle_";
                for (const MessageOperations *m : {&b.start, &b.abort, &b.commit}) {
                    const std::string front = std::string(m->name) + "_message_";
                    if (of == "control") know(front + suffix, {.message = m, .bundle = &b}, d);
                    if (of == "control handler") {
                        know("lumo_ui_tarn_" + front + suffix, {.message = m, .bundle = &b}, d);
                    }
                }
                if (of == "bundle") know("lumo_ui_tarn_" + name + suffix, {.bundle = &b}, d);
            }
            if (of == "module") know(suffix, {}, d);
        }
        std::vector<Operation> found;
        for (const std::string_view line : golden_exports) {
            if (line[0] == 'D') continue;
            const std::string name(line.substr(2));
            const auto at = known.find(name);
            found.push_back(at == known.end() ? Operation{name, {}, nullptr}
                                              : Operation{name, at->second.first, at->second.second});
        }
        return found;
    }();
    return all;
}

}  // namespace trust
