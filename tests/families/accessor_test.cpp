// Access to single members of every record: values, state bytes, and refusals.
#include <cerrno>

#include "values.h"

using namespace families;

namespace {

std::uint64_t mask(const MemberOperations &m) { return ~std::uint64_t{0} >> (64 - 8 * value_width(m)); }
std::uint64_t sample(const MemberOperations &m) { return is_value_kind(m) ? 1 : 0xFEDCBA9876543210U & mask(m); }
std::uint64_t stored(const RecordOperations &r, void *object, const MemberOperations &m) {
    const std::uint8_t *field = bytes(at(r, object, m));
    const unsigned start = m.member->kind == Kind::boolean ? 11 : m.member->kind == Kind::enumeration ? 12 : 0;
    return number_at(field + start, value_width(m));
}
bool has_state_byte(const MemberOperations &m) { return m.member->role == Role::value; }
std::uint8_t *state(const RecordOperations &r, void *object, const MemberOperations &m) {
    return area(r, object) + member_layout(r, m).slot;
}
bool modified(void *object) { return mirk_get_instance_modified(object, 1, 0) != 0; }
void unmark(void *object) { mirk_set_instance_modified(object, 1, 0, 0); }

TEST(Accessors, GetReturnsTheAddressOfTheMember) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.get == nullptr) return;
            void *object = r.create(h, id);
            std::uint32_t err = 0;
            EXPECT_EQ(m.get(h, id, object, &err), at(r, object, m));
            EXPECT_EQ(err, 0u);
            r.destroy(h, id, object);
        });
    }
}

TEST(Accessors, ASetValueIsReadBackAndChangesNoOtherMember) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.set_value == nullptr) return;
            void *object = r.create(h, id);
            std::vector<std::uint8_t> before(bytes(object), bytes(object) + table(r).base);
            std::uint32_t err = 0;
            m.set_value(h, id, object, sample(m), &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(m.get_value(h, id, object, &err), sample(m));
            EXPECT_EQ(stored(r, object, m), sample(m));
            EXPECT_TRUE(modified(object));
            // Nothing but the member has changed, except for the modified mark.
            unmark(object);
            const std::uint32_t start = offset(r, m), end = start + member_layout(r, m).size;
            EXPECT_EQ(std::memcmp(object, before.data(), start), 0);
            EXPECT_EQ(std::memcmp(bytes(object) + end, before.data() + end, before.size() - end), 0);
            r.destroy(h, id, object);
        });
    }
}

TEST(Accessors, SetCopiesTheSource) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.set == nullptr) return;
            void *source = filled(h, r, 11), *object = r.create(h, id);
            std::uint32_t err = 0;
            m.set(h, id, object, at(r, source, m), &err);
            EXPECT_EQ(err, 0u);
            if (is_scalar(m)) {
                EXPECT_NE(stored(r, source, m), 0u);
                EXPECT_EQ(stored(r, object, m), stored(r, source, m));
            } else if (m.member->kind == Kind::address) {
                EXPECT_EQ(ip_address_compare(static_cast<ip_address *>(at(r, object, m)),
                                             static_cast<ip_address *>(at(r, source, m))),
                          0);
            } else {
                void *same = filled(h, r, 11);
                EXPECT_EQ(content(h, nested_record(m), at(r, object, m)), content(h, nested_record(m), at(r, same, m)));
                r.destroy(h, id, same);
            }
            EXPECT_TRUE(modified(object));
            r.destroy(h, id, source);
            r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Accessors, ASetterWritesState2ToItsOwnByteOnly) {
    Handle h(Tracking::on);
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.set_value == nullptr) return;
        void *object = r.create(h, id);
        std::uint32_t err = 0;
        m.set_value(h, id, object, sample(m), &err);
        EXPECT_EQ(err, 0u);
        for (std::uint32_t slot = 0; slot < table(r).state; ++slot) {
            EXPECT_EQ(area(r, object)[slot], slot == member_layout(r, m).slot ? 2 : 0) << slot;
        }
        r.destroy(h, id, object);
    });
}

TEST(Accessors, EachStateByteIsStoredInItsSlot) {
    Handle h(Tracking::on);
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (!has_state_byte(m)) {
            EXPECT_EQ(m.state_flag_get, nullptr);
            return;
        }
        void *object = r.create(h, id);
        std::uint32_t err = 0;
        m.state_flag_set(h, id, object, 0xC7, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(m.state_flag_get(h, id, object, &err), 0xC7);
        header(object)->obj_flag |= mapped;  // only concerns references
        EXPECT_EQ(m.state_flag_get(h, id, object, &err), 0xC7);
        header(object)->obj_flag &= static_cast<std::uint8_t>(~mapped);
        for (std::uint32_t slot = 0; slot < table(r).state; ++slot) {
            EXPECT_EQ(area(r, object)[slot], slot == member_layout(r, m).slot ? 0xC7 : 0) << slot;
        }
        EXPECT_TRUE(modified(object));
        r.destroy(h, id, object);
    });
}

TEST(Accessors, StateFailsWithoutATraceIfTrackingIsOff) {
    Handle h(Tracking::off);
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.state_flag_get == nullptr) return;
        void *object = r.create(h, id);
        Trace trace;
        std::uint32_t err = 0;
        EXPECT_EQ(m.state_flag_get(h, id, object, &err), 0);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        err = 0;
        m.state_flag_set(h, id, object, 1, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_FALSE(modified(object));
        r.destroy(h, id, object);
    });
}

TEST(Accessors, StateDependsOnTheObjectsFlagIfThereIsNoDescriptor) {
    Handle h(Tracking::on), none(Tracking::none);
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.state_flag_get == nullptr) return;
        void *object = r.create(h, id);
        std::uint32_t err = 0;
        *state(r, object, m) = 9;
        mirk_platform_handle_set_tracking(h, MIRK_PLATFORM_TRACKING_NONE);
        EXPECT_EQ(m.state_flag_get(h, id, object, &err), 9);
        m.state_flag_set(h, id, object, 8, &err);
        EXPECT_EQ(*state(r, object, m), 8);
        if (m.set_value != nullptr) m.set_value(h, id, object, sample(m), &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(*state(r, object, m), 8) << "a setter marks nothing here";
        mirk_platform_handle_set_tracking(h, MIRK_PLATFORM_TRACKING_ON);
        r.destroy(h, id, object);

        object = r.create(none, id);
        Trace trace;
        EXPECT_EQ(m.state_flag_get(none, id, object, &err), 0);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        err = 0;
        m.state_flag_set(none, id, object, 1, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): The object is non state tracked",
                                        "type 3 (ERR): The object is not state tracked"}));
        r.destroy(none, id, object);
    });
}

TEST(Accessors, AnUntrackedObjectOnATrackingHandleStoresTheValueAndFails) {
    Handle h(Tracking::off);
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.set == nullptr && m.text_set == nullptr) return;
        void *source = filled(h, r, 11), *object = r.create(h, id);
        mirk_platform_testing_set_sttr_mode(h, 0xEEEE);
        std::uint32_t err = 0;
        Trace trace;
        if (m.set_value != nullptr) {
            m.set_value(h, id, object, sample(m), &err);
            EXPECT_EQ(stored(r, object, m), sample(m));
        } else if (m.text_set != nullptr) {
            m.text_set(h, id, object, "abc", 3, &err);
            EXPECT_EQ(std::memcmp(read<char *>(at(r, object, m)), "abc", 3), 0);
        } else if (m.member->kind == Kind::address) {
            m.set(h, id, object, at(r, source, m), &err);
        }
        if (m.member->kind != Kind::record) {
            EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
            EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
            EXPECT_FALSE(trace.lines().empty());
            EXPECT_EQ(trace.lines().back(), "type 3 (ERR): The object is not state tracked");
            EXPECT_FALSE(modified(object));
        }
        if (m.set_value != nullptr) {
            err = 0;
            m.set(h, id, object, at(r, source, m), &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
            EXPECT_EQ(stored(r, object, m), stored(r, source, m));
        }
        mirk_platform_testing_set_sttr_mode(h, 0xDDDD);
        r.destroy(h, id, source);
        r.destroy(h, id, object);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

TEST(Accessors, ANegativeVariantFailsForEveryMember) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id), *source = r.create(h, id);
        const std::vector<std::uint8_t> before(bytes(object), bytes(object) + table(r).tracked);
        h.set_variant(*r.type, -1);
        header(object)->variant = -1;
        for (const MemberOperations &m : r.members) {
            SCOPED_TRACE(name(m));
            const auto refused = [&](auto &&operation) {
                std::uint32_t err = 0;
                operation(&err);
                EXPECT_EQ(err, static_cast<std::uint32_t>(EIDRM));
                EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EIDRM));
            };
            if (m.get != nullptr) refused([&](std::uint32_t *e) { EXPECT_EQ(m.get(h, id, object, e), nullptr); });
            if (m.get_value != nullptr)
                refused([&](std::uint32_t *e) { EXPECT_EQ(m.get_value(h, id, object, e), 0u); });
            if (m.set != nullptr) refused([&](std::uint32_t *e) { m.set(h, id, object, at(r, source, m), e); });
            if (m.set_value != nullptr) refused([&](std::uint32_t *e) { m.set_value(h, id, object, 1, e); });
            if (m.state_flag_set != nullptr) refused([&](std::uint32_t *e) { m.state_flag_set(h, id, object, 1, e); });
            if (m.text_set != nullptr) refused([&](std::uint32_t *e) { m.text_set(h, id, object, "a", 1, e); });
            char text[4];
            if (m.text_get != nullptr) refused([&](std::uint32_t *e) { m.text_get(h, id, object, text, 4, e); });
            if (m.element_get == nullptr) continue;
            refused([&](std::uint32_t *e) { EXPECT_EQ(m.element_get(h, id, object, 0, e), nullptr); });
            refused([&](std::uint32_t *e) { m.element_set(h, id, object, 0, source, e); });
            refused([&](std::uint32_t *e) { m.element_state_flag_set(h, id, object, 0, 1, e); });
            refused([&](std::uint32_t *e) { m.element_state_flag_set_arr(h, id, object, nullptr, 0, e); });
        }
        // Reading state does not check the variant.
        for (const MemberOperations &m : r.members) {
            std::uint32_t err = 0;
            if (m.state_flag_get != nullptr) m.state_flag_get(h, id, object, &err);
            EXPECT_EQ(err, 0u);
        }
        header(object)->variant = 0;
        EXPECT_EQ(std::memcmp(object, before.data(), before.size()), 0);
        h.set_variant(*r.type, 0);
        r.destroy(h, id, object);
        r.destroy(h, id, source);
    });
}

TEST(Accessors, AWriteFirstAdjustsTheObjectToTheDomainsVariant) {
    Handle h;
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.set_value == nullptr) return;
        void *object = r.create(h, id);
        header(object)->variant = -5;  // for example from a frame
        std::uint32_t err = 0;
        m.set_value(h, id, object, sample(m), &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(header(object)->variant, 0);
        EXPECT_EQ(stored(r, object, m), sample(m));
        r.destroy(h, id, object);
    });
}

TEST(Accessors, AMissingBodySetsNoErrorUnderTheLenientPolicy) {
    Handle h;
    mirk_platform_handle_set_epoch_policy(h, MIRK_PLATFORM_LENIENT_EIDRM);
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.set_value == nullptr) return;
        void *object = r.create(h, id);
        h.set_variant(*r.type, -1);
        std::uint32_t err = 0;
        m.set_value(h, id, object, sample(m), &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(m.get(h, id, object, &err), nullptr);
        EXPECT_EQ(stored(r, object, m), 0u);
        h.set_variant(*r.type, 0);
        r.destroy(h, id, object);
    });
}

TEST(Accessors, ANullObjectHasNoMembersAndNoState) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_member([&](const RecordOperations &, const MemberOperations &m) {
            std::uint32_t err = 0;
            if (m.get != nullptr) {
                EXPECT_EQ(m.get(h, id, nullptr, &err), nullptr);
            }
            if (m.get_value != nullptr) {
                EXPECT_EQ(m.get_value(h, id, nullptr, &err), 0u);
            }
            if (m.member->kind != Kind::enumeration) {
                EXPECT_EQ(err, 0u);
            }
            err = 0;
            Trace trace;
            if (m.set_value != nullptr) {
                m.set_value(h, id, nullptr, 1, &err);
                EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
                EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOENT));
                EXPECT_EQ(trace.lines(), Lines{});
            }
            if (m.state_flag_get == nullptr) return;
            err = 0;
            EXPECT_EQ(m.state_flag_get(h, id, nullptr, &err), 0);
            EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
            err = 0;
            m.state_flag_set(h, id, nullptr, 1, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
            EXPECT_EQ(trace.lines(), mode == Tracking::off ? Lines{}
                                                           : (Lines{"type 3 (ERR): The object is non state tracked",
                                                                    "type 3 (ERR): The object is not state tracked"}));
            // Setting a member of null is refused without harm.
            err = 0;
            if (m.set != nullptr) m.set(h, id, nullptr, nullptr, &err);
            if (m.text_set != nullptr) m.text_set(h, id, nullptr, "a", 1, &err);
            if (m.element_set != nullptr) m.element_set(h, id, nullptr, 0, nullptr, &err);
        });
        EXPECT_EQ(h.live_blocks(), 0u);
    }
}

TEST(Accessors, ARefusedEnumerationValueStillCountsAsWritten) {
    Handle h(Tracking::on);
    int tried = 0;
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.member->kind != Kind::enumeration) return;
        void *object = r.create(h, id);
        std::uint32_t err = 0;
        m.set_value(h, id, object, 4711, &err);  // not an enumerator
        EXPECT_EQ(err, static_cast<std::uint32_t>(EIDRM));
        EXPECT_EQ(*state(r, object, m), 2);
        EXPECT_TRUE(modified(object));
        EXPECT_EQ(stored(r, object, m), 0u);
        r.destroy(h, id, object);
        ++tried;
    });
    EXPECT_EQ(tried, 4);
}

}  // namespace
