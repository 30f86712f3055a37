// On a handle without an observer, the archive's shortcuts omit calls that have no visible effect. These tests make the
// same random calls on two handles, one of which has an observer, and compare everything visible after each call.
#include <array>
#include <cstring>
#include <random>
#include <unordered_map>

#include "bridge/bridge.h"
#include "mirk_platform.h"
#include "mirk_platform_testing.h"

namespace {

using bridge::id;
using bridge::RecordOperations;
using kit::Handle;
using reference::Bytes;
using tarn::reflect::MemberOperations;
using tarn::schema::Kind;

enum class Observer { hook, notifications, domain, failure, references };

std::string name_of(Observer observer) {
    static constexpr const char *names[] = {"Hook", "Notifications", "Domain", "Failure", "References"};
    return names[static_cast<std::size_t>(observer)];
}

// Each of these has no effect except that the shortcuts no longer apply.
void observe(mirk_handle *h, Observer observer) {
    static const ip_address elsewhere{};
    static void *const oid = nullptr;
    switch (observer) {
        case Observer::hook:
            mirk_platform_testing_set_hook(
                h, [](void *, mirk_handle *, const mirk_platform_testing_event *) {}, nullptr);
            return;
        case Observer::notifications:
            h->write_notify = [](void *, void *, std::size_t, std::uint32_t) { return 0; };
            return;
        case Observer::domain:
            mirk_platform_domain_set_variant(h, tarn::reflect::messages()[0].luid, 0);
            return;
        case Observer::failure:
            mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_VALIDATE_ADD, 0, 1, EIO);
            return;
        case Observer::references:
            mirk_platform_address_set_oids(h, &elsewhere, &oid, 1);
            return;
    }
}

std::vector<mirk_type_info *> all_types() {
    std::vector<mirk_type_info *> types;
    for (const auto &record : tarn::reflect::records()) types.push_back(record.type);
    for (const auto &enumeration : tarn::reflect::enumerations()) types.push_back(enumeration.type);
    types.push_back(&_mirk_boolean_type_info_internal);
    types.push_back(&_ip_address_type_info_internal);
    return types;
}

struct Object {
    const RecordOperations *record = nullptr;
    void *instance = nullptr;
};

// One of the two handles and its objects.
class Side {
public:
    explicit Side(const kit::Options &options) : handle(options), types_(all_types()) { handle.allow_lost_blocks(); }
    ~Side() {
        for (Object &object : objects) destroy(object);
    }
    Side(const Side &) = delete;
    Side &operator=(const Side &) = delete;

    void destroy(Object &object) const {
        if (object.instance != nullptr) object.record->destroy(handle, id, object.instance);
        object = {};
    }

    // The type records that this handle's objects point to: its private copies, once they exist.
    std::vector<const mirk_type_info *> types() const {
        std::vector<const mirk_type_info *> found;
        for (mirk_type_info *type : types_) {
            const mirk_type_info_copy *copy =
                handle->private_types != 0 ? handle->type_store_get(handle->type_store, id, type->luid_text) : nullptr;
            found.push_back(copy != nullptr ? &copy->info : type);
        }
        return found;
    }

    Handle handle;
    std::array<Object, 6> objects{};
    std::uint32_t err = 0;

private:
    std::vector<mirk_type_info *> types_;
};

using Counters = std::vector<std::array<std::uint64_t, 3>>;
Counters counters(const Side &side) {
    Counters all;
    for (const mirk_type_info *type : side.types()) {
        const mirk_variant_entry &entry = type->variant_info->entries[0];
        all.push_back({entry.num_created, entry.num_destroyed, entry.num_live});
    }
    return all;
}

// The visible state of a handle. Addresses of blocks and types are replaced by numbers.
using Picture = std::vector<std::uint64_t>;
Picture picture(const Side &side) {
    mirk_handle *h = side.handle;
    Picture all{side.err, h->last_error, mirk_platform_live_bytes(h), side.handle.allocs()};
    for (unsigned i = 0; i < MIRK_PLATFORM_TESTING_OPERATIONS; ++i) {
        all.push_back(mirk_platform_testing_calls(h, static_cast<mirk_platform_testing_operation>(i)));
    }
    std::vector<mirk_platform_block> blocks(mirk_platform_live_blocks(h));
    mirk_platform_list_blocks(h, blocks.data(), blocks.size());
    const auto types = side.types();
    std::unordered_map<std::uint64_t, std::uint64_t> number_of;
    const auto enter = [&](const void *address) {
        number_of.emplace(reinterpret_cast<std::uintptr_t>(address), number_of.size());
    };
    for (const mirk_type_info *type : types) enter(type);
    for (const mirk_platform_block &block : blocks) enter(block.address);
    for (const mirk_platform_block &block : blocks) {
        all.insert(all.end(), {block.serial, block.size, block.ctx_id});
        // Addresses in the state areas of arrays may be unaligned.
        const auto *bytes = static_cast<const std::uint8_t *>(block.address);
        const std::size_t step =
            (h->sttr_desc != nullptr && h->sttr_desc->sttr_mode == 0xEEEE) ? 1 : sizeof(std::uint64_t);
        for (std::size_t i = 0; i < block.size;) {
            std::uint64_t word = 0;
            std::memcpy(&word, bytes + i, std::min(block.size - i, sizeof word));
            const auto known = number_of.find(word);
            const bool is_known = known != number_of.end();
            all.push_back(is_known ? known->second : step == 1 ? bytes[i] : word);
            i += is_known ? sizeof word : step;
        }
    }
    return all;
}

// Makes the same calls on two handles.
class Twins {
public:
    Twins(std::uint64_t seed, const kit::Options &options, Observer observer)
        : random_(seed),
          generator_(seed, {.max_elements = 4, .states = tracks(options), .strange = seed % 4 == 0}),
          tracked_(tracks(options)),
          plain_(options),
          watched_(options) {
        observe(watched_.handle, observer);
    }

    void run(unsigned steps) {
        for (unsigned i = 0; i < steps && !testing::Test::HasFailure(); ++i) step();
    }

private:
    static bool tracks(const kit::Options &options) { return options.tracking == kit::Tracking::on; }

    std::size_t below(std::size_t n) { return random_() % n; }
    bool one_in(std::size_t n) { return below(n) == 0; }

    // Calls work on each side, and compares the results, the changes of counters and the states of the handles.
    template <class Work>
    void both(const char *what, Work &&work) {
        std::string results[2];
        Picture pictures[2];
        Counters changes[2];
        std::size_t i = 0;
        for (Side *side : {&plain_, &watched_}) {
            const Counters before = counters(*side);
            results[i] = work(*side);
            changes[i] = counters(*side);
            for (std::size_t type = 0; type < before.size(); ++type) {
                for (std::size_t k = 0; k < 3; ++k) changes[i][type][k] -= before[type][k];
            }
            pictures[i++] = picture(*side);
        }
        EXPECT_EQ(results[0], results[1]) << what;
        EXPECT_EQ(changes[0], changes[1]) << what;
        EXPECT_EQ(pictures[0], pictures[1]) << what;
    }

    void step() {
        if (!one_in(8)) plain_.err = watched_.err = 0;
        static constexpr void (Twins::*steps[])() = {
            &Twins::create, &Twins::fill,   &Twins::fill,  &Twins::write,   &Twins::write,  &Twins::read,
            &Twins::read,   &Twins::read,   &Twins::clone, &Twins::copy,    &Twins::assign, &Twins::set_value,
            &Twins::append, &Twins::append, &Twins::text,  &Twins::destroy, &Twins::upset,  &Twins::document};
        (this->*steps[below(std::size(steps))])();
    }

    // Prefers records with members of all kinds.
    const RecordOperations &any_record() {
        static constexpr const char *rich[] = {"lumo_tarn_dp_tt_table_data", "lumo_tarn_cl_cfg_data",
                                               "lumo_tarn_cl_appl_data", "lumo_tarn_dp_tc", "lumo_tarn_debug_setting"};
        const auto records = tarn::reflect::records();
        return one_in(2) ? records[below(records.size())] : bridge::operations(rich[below(std::size(rich))]);
    }
    std::size_t any_slot() { return below(plain_.objects.size()); }
    std::size_t used_slot() {
        const std::size_t slot = any_slot();
        if (plain_.objects[slot].instance == nullptr) make(slot, any_record());
        return slot;
    }
    const RecordOperations &record_in(std::size_t slot) const { return *plain_.objects[slot].record; }

    void make(std::size_t slot, const RecordOperations &record) {
        both("create", [&](Side &side) {
            side.destroy(side.objects[slot]);
            side.objects[slot] = {&record, record.create(side.handle, id)};
            return std::to_string(side.objects[slot].instance != nullptr);
        });
    }
    void create() { make(any_slot(), any_record()); }
    void destroy() {
        const std::size_t slot = any_slot();
        both("destroy", [&](Side &side) {
            side.destroy(side.objects[slot]);
            return std::string();
        });
    }
    void fill() {
        const std::size_t slot = any_slot();
        const RecordOperations &record = any_record();
        make(slot, record);
        const reference::Record value = generator_.make(record.record->name);
        both("fill", [&](Side &side) {
            bridge::fill(side.handle, record, side.objects[slot].instance, value);
            return std::string();
        });
    }

    // Into a buffer that may be too short.
    void write() {
        const std::size_t slot = used_slot();
        const RecordOperations &record = record_in(slot);
        const std::uint32_t size = record.len(plain_.handle, id, plain_.objects[slot].instance);
        const auto room = static_cast<std::int32_t>(one_in(3) ? below(size + 1) : size + below(4));
        both("marshal", [&](Side &side) {
            std::string buffer(size + 16, '?');
            const std::uint32_t written =
                record.marshal(side.handle, id, buffer.data(), side.objects[slot].instance, room, &side.err);
            return std::to_string(written) + ": " + testing::PrintToString(Bytes(buffer.begin(), buffer.end()));
        });
    }

    Bytes any_frame(const RecordOperations &record) {
        Bytes frame = reference::encode(generator_.make(record.record->name), one_in(8) != tracked_);
        if (one_in(3)) {
            for (std::size_t edits = 1 + below(3); edits > 0; --edits) {
                frame[below(frame.size())] = static_cast<std::uint8_t>(one_in(2) ? below(256) : below(3));
            }
        }
        if (one_in(4)) frame.resize(below(frame.size() + 1));
        if (one_in(6)) {
            // As from a newer peer: more bytes after the last member, and a jump that includes them.
            frame.resize(frame.size() + 3);
            if (frame.size() > 6) frame[5] = static_cast<std::uint8_t>(frame[5] + 3);
        }
        return frame;
    }
    void read() {
        const std::size_t slot = used_slot();
        const RecordOperations &record = record_in(slot);
        Bytes frame = any_frame(record);
        const auto size = static_cast<std::uint32_t>(frame.size());
        frame.push_back(0);
        const std::uint32_t reuse = one_in(2) ? 1 : 0;
        both("unmarshal", [&](Side &side) {
            return std::to_string(
                record.unmarshal(side.handle, id, frame.data(), side.objects[slot].instance, size, reuse, &side.err));
        });
    }

    void clone() {
        const std::size_t from = used_slot(), to = any_slot();
        if (from == to) return;
        const RecordOperations &record = record_in(from);
        const auto size = static_cast<std::uint32_t>(one_in(4) ? below(200) : 1 << 15);
        both("clone", [&](Side &side) {
            side.destroy(side.objects[to]);
            std::string buffer(1 << 15, '?');
            void *made = nullptr;
            record.clone(side.handle, id, side.objects[from].instance, &made, buffer.data(), size, &side.err);
            side.objects[to] = {&record, made};
            return buffer;
        });
    }
    void copy() {
        const std::size_t from = used_slot(), to = any_slot();
        if (from == to) return;
        make(to, record_in(from));
        both("copy", [&](Side &side) {
            // A destination that could not be filled has been destroyed.
            record_in(from).copy_cr(side.handle, side.objects[from].instance, side.objects[to].instance);
            if (side.handle->last_error != 0) side.objects[to] = {};
            mirk_clear_last_error(side.handle);
            return std::string();
        });
    }
    void assign() {
        const std::size_t from = used_slot(), to = any_slot();
        if (from == to) return;
        make(to, record_in(from));
        both("set", [&](Side &side) {
            record_in(from).set(side.handle, id, side.objects[to].instance, side.objects[from].instance, &side.err);
            return std::string();
        });
    }

    void set_value() {
        const std::size_t slot = used_slot();
        const auto members = record_in(slot).members;
        const MemberOperations &m = members[below(members.size())];
        const std::uint64_t value = below(5);
        both("set_value", [&](Side &side) {
            void *object = side.objects[slot].instance;
            if (m.set_value != nullptr) m.set_value(side.handle, id, object, value, &side.err);
            if (m.get_value == nullptr) return std::string();
            return std::to_string(m.get_value(side.handle, id, object, &side.err));
        });
    }
    const MemberOperations *any_member(const RecordOperations &record, Kind kind) {
        std::vector<const MemberOperations *> fitting;
        for (const MemberOperations &m : record.members) {
            if (m.member->kind == kind) fitting.push_back(&m);
        }
        return fitting.empty() ? nullptr : fitting[below(fitting.size())];
    }
    void append() {
        const std::size_t slot = used_slot();
        const MemberOperations *m = any_member(record_in(slot), Kind::array);
        if (m == nullptr) return;
        const RecordOperations &of_element = tarn::reflect::operations_of(*m->member->record);
        const reference::Record value = generator_.make(of_element.record->name);
        const auto index = static_cast<std::uint32_t>(one_in(20) ? 250 + below(20) : below(7));
        const auto copy_mode = static_cast<std::uint32_t>(below(2));
        const std::size_t times = one_in(3) ? 8 : 1;
        both("element_set", [&](Side &side) {
            for (std::uint32_t i = 0; i < times; ++i) {
                void *element = of_element.create(side.handle, id);
                if (element == nullptr) break;
                bridge::fill(side.handle, of_element, element, value);
                m->element_set_cr(side.handle, side.objects[slot].instance, index + i, element, copy_mode);
                mirk_clear_last_error(side.handle);
                of_element.destroy(side.handle, id, element);
            }
            return std::string();
        });
    }
    void text() {
        const std::size_t slot = used_slot();
        const MemberOperations *m = any_member(record_in(slot), Kind::string);
        if (m == nullptr) return;
        const std::string text(below(40), 'x');
        both("text_set", [&](Side &side) {
            const auto length = static_cast<std::uint32_t>(text.size());
            m->text_set(side.handle, id, side.objects[slot].instance, text.c_str(), length, &side.err);
            return std::string();
        });
    }

    // Changes the header of an object somewhere in a tree to something unusual.
    void upset() {
        const std::size_t slot = used_slot(), depth = below(4), kind = below(5);
        std::array<std::size_t, 4> members{}, indices{};
        for (std::size_t &member : members) member = below(64);
        for (std::size_t &index : indices) index = below(4);
        both("upset", [&](Side &side) {
            Object at = side.objects[slot];
            for (std::size_t level = 0; level < depth; ++level) {
                if (at.record == nullptr) break;
                const MemberOperations &m = at.record->members[members[level] % at.record->members.size()];
                std::uint32_t err = 0;
                void *inner = nullptr;
                if (m.member->kind == Kind::array) {
                    inner =
                        m.element_get(side.handle, id, at.instance, static_cast<std::uint32_t>(indices[level]), &err);
                } else if (tarn::schema::is_embedded(*m.member) && m.get != nullptr) {
                    inner = m.get(side.handle, id, at.instance, &err);
                }
                if (inner == nullptr) break;
                at = {m.member->record != nullptr ? &tarn::reflect::operations_of(*m.member->record) : nullptr, inner};
            }
            auto *header = static_cast<mirk_object *>(at.instance);
            if (header == nullptr) return std::string();
            if (kind == 0) header->variant = -1;
            if (kind == 1) header->variant = 1;
            if (kind == 2) mirk_platform_set_ra_data(side.handle, header, nullptr, 7);
            if (kind == 3) header->obj_flag |= 1;  // an unknown identifier
            if (kind == 4) header->obj_flag |= 16;
            return std::string();
        });
    }

    void document() {
        const std::size_t from = used_slot(), to = any_slot();
        if (from == to) return;
        const RecordOperations &record = record_in(from);
        make(to, record);
        both("XML", [&](Side &side) {
            std::string text(1 << 17, ' ');
            char message[64];
            const std::uint32_t size = record.to_xml(side.handle, id, "o", text.data(), side.objects[from].instance,
                                                     static_cast<std::int32_t>(text.size()), 0, &side.err);
            text.resize(size);
            void *document = mirk_platform_document_load_memory(text.data(), text.size(), nullptr);
            if (document == nullptr) return text;
            record.from_xml(side.handle, id, "/o", document, side.objects[to].instance, &side.err, message,
                            sizeof message);
            mirk_platform_document_free(document);
            const std::int32_t order = record.compare(side.objects[from].instance, side.objects[to].instance);
            return text + std::to_string(order < 0 ? -1 : order > 0) +
                   std::to_string(record.hash(side.objects[to].instance, 1));
        });
    }

    std::mt19937_64 random_;
    reference::Generator generator_;
    const bool tracked_;
    Side plain_, watched_;
};

struct Case {
    Observer observer;
    std::uint32_t private_types;
};

class Observed : public testing::TestWithParam<Case> {};

TEST_P(Observed, BehavesLikeAnUnobservedHandle) {
    mirk_platform_trace_set_levels(1);
    for (std::uint64_t seed = 0; seed < 20 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        constexpr kit::Tracking modes[] = {kit::Tracking::none, kit::Tracking::on, kit::Tracking::off};
        const kit::Options options{.tracking = modes[seed % std::size(modes)],
                                   .private_types = GetParam().private_types,
                                   .lenient = seed % 5 == 0,
                                   .request_ceiling = 1 << 16,
                                   .total_ceiling = 1 << 20};
        Twins(seed, options, GetParam().observer).run(150);
    }
}

// The document's elements are appended one by one. Growth is reported once per process, and with the first element that
// follows another one.
TEST(Unobserved, ReadsALongArrayFromADocumentLikeAnObservedHandle) {
    mirk_platform_trace_set_levels(1);
    const RecordOperations &record = bridge::operations("lumo_tarn_dp_tc_list");
    reference::Generator generator(7, {.min_elements = 300, .max_elements = 300, .budget = 1 << 20, .states = false});
    const reference::Record value = generator.make(record.record->name);
    const Handle writer;
    const bridge::Instance source(writer, value);
    std::string text(1 << 20, ' ');
    std::uint32_t err = 0;
    text.resize(
        record.to_xml(writer, id, "o", text.data(), source.get(), static_cast<std::int32_t>(text.size()), 0, &err));
    ASSERT_EQ(err, 0u);
    const auto read = [&](bool observed, std::uint64_t ceiling) {
        Side side({.total_ceiling = ceiling});
        if (observed) observe(side.handle, Observer::hook);
        side.objects[0] = {&record, record.create(side.handle, id)};
        void *document = mirk_platform_document_load_memory(text.data(), text.size(), nullptr);
        char message[64];
        record.from_xml(side.handle, id, "/o", document, side.objects[0].instance, &side.err, message, sizeof message);
        mirk_platform_document_free(document);
        return picture(side);
    };
    // With the second ceiling, there is no room for the old block and the new one from some element on.
    const std::uint64_t ceilings[] = {1 << 20, 64 << 10};
    for (const std::uint64_t ceiling : ceilings) EXPECT_EQ(read(false, ceiling), read(true, ceiling));
}

TEST(Unobserved, AHookSeesCallsAsLongAsItIsSet) {
    const Handle h;
    const RecordOperations &record = bridge::operations("lumo_tarn_dp_tc");
    const auto events = [&](bool hooked) {
        std::size_t seen = 0;
        const auto hook = [](void *user, mirk_handle *, const mirk_platform_testing_event *) {
            ++*static_cast<std::size_t *>(user);
        };
        if (hooked) mirk_platform_testing_set_hook(h, hook, &seen);
        record.destroy(h, id, record.create(h, id));
        mirk_platform_testing_set_hook(h, nullptr, nullptr);
        return seen;
    };
    EXPECT_EQ(events(false), 0u);
    const std::size_t first = events(true);
    EXPECT_GT(first, 20u);
    EXPECT_EQ(events(false), 0u);
    EXPECT_EQ(events(true), first);
}

TEST(Unobserved, AnInjectedFailureInsideATreeIsReported) {
    const Handle h;
    const bridge::Instance instance(h, "lumo_tarn_dp_tc");
    h.fail(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, EIO, 2, 1);
    EXPECT_EQ(bridge::marshal(h, instance.record(), instance.get()).error, static_cast<std::uint32_t>(EIO));
    EXPECT_EQ(bridge::marshal(h, instance.record(), instance.get()).error, 0u);
}

std::vector<Case> cases() {
    std::vector<Case> all;
    for (const Observer observer :
         {Observer::hook, Observer::notifications, Observer::domain, Observer::failure, Observer::references}) {
        for (const std::uint32_t private_types : {0U, 1U}) all.push_back({observer, private_types});
    }
    return all;
}
INSTANTIATE_TEST_SUITE_P(, Observed, testing::ValuesIn(cases()), [](const auto &info) {
    return name_of(info.param.observer) + (info.param.private_types != 0 ? "PrivateTypes" : "SharedTypes");
});

}  // namespace
