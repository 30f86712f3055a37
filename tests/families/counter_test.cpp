// Usage counters: which operations count, where, and in which variant.
#include <map>
#include <thread>

#include "lumo_ui_tarn.h"
#include "values.h"

using namespace families;

namespace {

// How often each type is initialized when one object of the record is.
void tally(const RecordOperations &r, std::map<const mirk_type_info *, std::uint64_t> &counts) {
    ++counts[r.type];
    for (const MemberOperations &m : r.members) {
        switch (m.member->kind) {
            case Kind::record:
                tally(nested_record(m), counts);
                break;
            case Kind::address:
                ++counts[&_ip_address_type_info_internal];
                break;
            case Kind::boolean:
                ++counts[&_mirk_boolean_type_info_internal];
                break;
            case Kind::enumeration:
                ++counts[tarn::reflect::operations_of(*m.member->enumeration).type];
                break;
            default:
                break;
        }
    }
}

bool is_destroyed_with_its_owner(const mirk_type_info *type) {
    if (type == &_mirk_boolean_type_info_internal) return false;
    return std::strcmp(type->kind, "enum") != 0;
}

std::vector<const mirk_type_info *> all_types() {
    std::vector<const mirk_type_info *> types{&_ip_address_type_info_internal, &_mirk_boolean_type_info_internal};
    for (const auto &r : tarn::reflect::records()) types.push_back(r.type);
    for (const auto &e : tarn::reflect::enumerations()) types.push_back(e.type);
    return types;
}

TEST(Counters, EmbeddedObjectsCountInTheirOwnTypes) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            std::map<const mirk_type_info *, std::uint64_t> counts;
            tally(r, counts);
            std::map<const mirk_type_info *, mirk_variant_entry> before;
            for (const mirk_type_info *type : all_types()) before[type] = entry(*type);
            void *object = r.create(h, id);
            for (const mirk_type_info *type : all_types()) {
                EXPECT_EQ(entry(*type).num_created, before[type].num_created + counts[type]) << type->name;
                EXPECT_EQ(entry(*type).num_live, before[type].num_live + counts[type]) << type->name;
                EXPECT_EQ(entry(*type).num_destroyed, before[type].num_destroyed) << type->name;
            }
            r.destroy(h, id, object);
            for (const mirk_type_info *type : all_types()) {
                const bool gone = is_destroyed_with_its_owner(type);
                EXPECT_EQ(entry(*type).num_destroyed, before[type].num_destroyed + (gone ? counts[type] : 0))
                    << type->name;
                EXPECT_EQ(entry(*type).num_live, before[type].num_live + (gone ? 0 : counts[type])) << type->name;
            }
        });
    }
}

// Notifications that replace the runtime's own, and the calls that they get.
class Observer {
public:
    explicit Observer(Handle &h) : h_(h), write_(h->write_notify), count_(h->count_notify) {
        active = this;
        h->write_notify = [](void *, void *address, std::size_t size, std::uint32_t) {
            active->notifications.emplace_back(address, size);
            return 0;
        };
        h->count_notify = [](void *, std::uint64_t *address, std::int64_t delta, std::uint32_t) {
            active->notifications.emplace_back(address, static_cast<std::uint64_t>(delta));
            return 0;
        };
    }
    ~Observer() {
        h_->write_notify = write_;
        h_->count_notify = count_;
        active = nullptr;
    }
    Observer(const Observer &) = delete;
    Observer &operator=(const Observer &) = delete;

    std::vector<std::pair<void *, std::uint64_t>> notifications;

private:
    static inline Observer *active = nullptr;
    Handle &h_;
    int (*write_)(void *, void *, std::size_t, std::uint32_t);
    int (*count_)(void *, std::uint64_t *, std::int64_t, std::uint32_t);
};

TEST(Counters, ReplacedNotificationsGetWhatTheRuntimeGets) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            const auto live = [&] {
                std::vector<std::uint8_t> frame(4096);
                std::uint32_t err = 0;
                void *object = r.create(h, id);
                const std::uint32_t size = r.marshal(h, id, frame.data(), object, 4095, &err);
                r.unmarshal(h, id, frame.data(), object, size, 1, &err);
                r.destroy(h, id, object);
                EXPECT_EQ(err, 0u);
            };
            std::vector<std::pair<void *, std::uint64_t>> by_the_runtime;
            {
                Events events(h);
                live();
                for (const auto &event : events.all) {
                    if (event.kind == MIRK_PLATFORM_TESTING_WRITE_NOTIFY) {
                        by_the_runtime.emplace_back(event.address, event.size);
                    } else if (event.kind == MIRK_PLATFORM_TESTING_COUNT_NOTIFY) {
                        by_the_runtime.emplace_back(event.address, static_cast<std::uint64_t>(event.value));
                    }
                }
            }
            Observer observer(h);
            live();
            // The object may get another address each time, but the notifications refer to the same offsets.
            ASSERT_EQ(observer.notifications.size(), by_the_runtime.size()) << name(r);
            for (std::size_t i = 0; i < observer.notifications.size(); ++i) {
                EXPECT_EQ(observer.notifications[i].second, by_the_runtime[i].second) << name(r) << ' ' << i;
            }
            EXPECT_GE(observer.notifications.size(), 9u)
                << name(r);  // four members of the header, four counts, and the type when it is released
        });
    }
}

TEST(Counters, ElementsCountLikeAnyInstance) {
    Handle h;
    const RecordOperations &list = record("lumo_tarn_dp_appl_list"), &element = record("lumo_tarn_dp_appl");
    const mirk_variant_entry before = entry(*element.type);
    void *object = list.create(h, id);
    std::uint32_t err = 0;
    member(list, "appl_list").element_set(h, id, object, 4, nullptr, &err);
    EXPECT_EQ(entry(*element.type).num_live, before.num_live + 5);
    list.destroy(h, id, object);
    EXPECT_EQ(entry(*element.type).num_live, before.num_live);
    EXPECT_EQ(entry(*element.type).num_destroyed, before.num_destroyed + 5);
}

TEST(Counters, ANegativeVariantHasItsOwnCounters) {
    for (std::uint32_t private_types : {0u, 1u}) {
        Handle h({.tracking = Tracking::none, .private_types = private_types});
        each_record([&](const RecordOperations &r) {
            for (int variant = -128; variant <= 0; ++variant) {
                h.set_variant(*r.type, static_cast<std::int8_t>(variant));
                const mirk_variant_entry before = private_types != 0 ? mirk_variant_entry{} : entry(*r.type, variant);
                void *object = r.create(h, id);
                ASSERT_NE(object, nullptr);
                EXPECT_EQ(header(object)->variant, variant);
                EXPECT_EQ(header(object)->home_variant, variant);
                const mirk_type_info &type = *header(object)->tinfo;
                const mirk_variant_entry created = entry(type, variant), base = entry(type, 0);
                if (private_types == 0) {
                    EXPECT_EQ(created.num_created, before.num_created + 1);
                    EXPECT_EQ(created.num_live, before.num_live + 1);
                } else {
                    EXPECT_GE(created.num_live, 1u);
                }
                r.destroy(h, id, object);
                EXPECT_EQ(entry(type, variant).num_live, created.num_live - 1);
                EXPECT_EQ(entry(type, variant).num_destroyed, created.num_destroyed + 1);
                if (variant != 0) {
                    EXPECT_EQ(std::memcmp(&base, &entry(type, 0), sizeof base), 0);
                }
            }
            h.set_variant(*r.type, 0);
        });
        EXPECT_EQ(h.live_blocks(), 0u);
    }
}

TEST(Counters, AVariantAboveTheHighestIsCapped) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        h.set_variant(*r.type, 127);
        const std::uint64_t created = entry(*r.type).num_created;
        void *object = r.create(h, id);
        EXPECT_EQ(header(object)->variant, 0);
        EXPECT_EQ(header(object)->home_variant, 0);
        EXPECT_EQ(entry(*r.type).num_created, created + 1);
        r.destroy(h, id, object);
        h.set_variant(*r.type, 0);
    });
}

TEST(Counters, AnObjectAdjustedAboveTheHighestVariantIsCountedInTheHighest) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        h.set_variant(*r.type, 5);
        std::uint32_t err = 0;
        r.adjust_variant(h, id, object, &err);
        ASSERT_EQ(header(object)->variant, 5);
        const std::uint64_t destroyed = entry(*r.type).num_destroyed;
        Trace trace;
        r.destroy(h, id, object);
        EXPECT_EQ(entry(*r.type).num_destroyed, destroyed + 1);
        EXPECT_EQ(trace.lines(), (Lines{"type 6 (info): variant 5 requested only 1 variants present"}));
        h.set_variant(*r.type, 0);
    });
}

TEST(Counters, ADamagedNumberOfVariantsIsTraced) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    r.type->variant_info->n_variants = -1;
    Trace trace;
    void *object = r.create(h, id);
    const Lines noted{"type 6 (info): variant 0 requested only 4294967295 variants present"};
    EXPECT_EQ(trace.lines(), noted);
    trace.clear();
    r.destroy(h, id, object);
    EXPECT_EQ(trace.lines(), noted);
    r.type->variant_info->n_variants = 1;
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST(Counters, APrivateCopyCountsAndTheModulesRecordDoesNot) {
    Handle h({.tracking = Tracking::on, .private_types = 1});
    each_record([&](const RecordOperations &r) {
        const mirk_variant_entry before = entry(*r.type);
        void *object = r.create(h, id);
        const mirk_type_info *own = header(object)->tinfo;
        ASSERT_NE(own, r.type);
        EXPECT_NE(own->plain_counters, 0u);
        EXPECT_EQ(entry(*own).num_live, 1u);
        r.destroy(h, id, object);
        EXPECT_EQ(entry(*own).num_live, 0u);
        EXPECT_EQ(entry(*own).num_created, entry(*own).num_destroyed);
        EXPECT_EQ(std::memcmp(&before, &entry(*r.type), sizeof before), 0);
    });
}

TEST(Counters, EachChangeIsNotifiedBeforeItHappens) {
    Handle h;
    struct Seen {
        std::vector<std::int64_t> deltas;
        bool early = true;
    } seen;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    static mirk_variant_entry reference;
    reference = entry(*r.type);
    mirk_platform_testing_set_hook(
        h,
        [](void *user, mirk_handle *, const mirk_platform_testing_event *event) {
            if (event->kind != MIRK_PLATFORM_TESTING_COUNT_NOTIFY) return;
            auto *s = static_cast<Seen *>(user);
            const auto *entries = &entry(_lumo_tarn_debug_setting_type_info_internal);
            const auto at = static_cast<std::size_t>(static_cast<std::uint8_t *>(event->address) -
                                                     reinterpret_cast<const std::uint8_t *>(entries));
            if (read<std::uint64_t>(event->address) !=
                read<std::uint64_t>(reinterpret_cast<std::uint8_t *>(&reference) + at))
                s->early = false;
            write<std::uint64_t>(reinterpret_cast<std::uint8_t *>(&reference) + at,
                                 read<std::uint64_t>(event->address) + static_cast<std::uint64_t>(event->value));
            s->deltas.push_back(event->value);
        },
        &seen);
    r.destroy(h, id, r.create(h, id));
    mirk_platform_testing_set_hook(h, nullptr, nullptr);
    EXPECT_TRUE(seen.early);
    EXPECT_EQ(seen.deltas, (std::vector<std::int64_t>{1, 1, 1, -1}));
    EXPECT_EQ(std::memcmp(&reference, &entry(*r.type), sizeof reference), 0);
}

// The module's own records are shared by all handles on all threads.
TEST(Counters, SharedCountersAreExactOnSeveralThreads) {
    constexpr std::uint64_t rounds = 20000;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    const mirk_variant_entry before = entry(*r.type);
    Handle first, second;
    const auto work = [&](const Handle &h) {
        for (std::uint64_t i = 0; i < rounds; ++i) r.destroy(h, id, r.create(h, id));
    };
    std::thread other([&] { work(second); });
    work(first);
    other.join();
    EXPECT_EQ(entry(*r.type).num_created, before.num_created + 2 * rounds);
    EXPECT_EQ(entry(*r.type).num_destroyed, before.num_destroyed + 2 * rounds);
    EXPECT_EQ(entry(*r.type).num_live, before.num_live);
}

}  // namespace
