// State of arrays: one byte for the whole, and a vector with one byte per element.
#include <cerrno>

#include "arrays.h"

using namespace families;

namespace {

void *with_elements(mirk_handle *h, const ArraySubject &s, std::uint32_t n) {
    void *object = s.r.create(h, id), *value = s.e.create(h, id);
    std::uint32_t err = 0;
    s.m.element_set(h, id, object, n - 1, value, &err);
    EXPECT_EQ(err, 0u);
    s.e.destroy(h, id, value);
    mirk_set_instance_modified(object, 1, 0, 0);
    return object;
}

std::uint8_t *vector_of(const ArraySubject &s, void *object) {
    return read<std::uint8_t *>(area(s.r, object) + member_layout(s.r, s.m).area);
}

TEST(ElementStates, SettingMarksTheElementAndTheWhole) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = with_elements(h, s, 4);
        std::uint32_t err = 0;
        EXPECT_EQ(s.m.state_flag_get(h, id, object, &err), 2);
        for (std::uint32_t i = 0; i < 4; ++i) {
            EXPECT_EQ(s.m.element_state_flag_get(h, id, object, i, &err), i == 3 ? 2 : 0);
        }
        s.m.element_state_flag_set(h, id, object, 1, 77, &err);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 1, &err), 77);
        EXPECT_EQ(vector_of(s, object)[1], 77);
        EXPECT_NE(mirk_get_instance_modified(object, 1, 0), 0u);
        std::uint8_t *states = nullptr;
        s.m.element_state_flag_get_arr(h, id, object, &states, &err);
        EXPECT_EQ(states, vector_of(s, object));
        EXPECT_EQ(err, 0u);
        s.r.destroy(h, id, object);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

TEST(ElementStates, AnIndexPastTheEndFailsWithoutATrace) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = with_elements(h, s, 2);
        Trace trace;
        for (std::uint32_t index : {2u, 0xFFFFFFFFu}) {
            std::uint32_t err = 0;
            EXPECT_EQ(s.m.element_state_flag_get(h, id, object, index, &err), 0);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
            EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOENT));
            err = 0;
            s.m.element_state_flag_set(h, id, object, index, 1, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
        }
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_EQ(mirk_get_instance_modified(object, 1, 0), 0u);
        s.r.destroy(h, id, object);
    });
}

TEST(ElementStates, FailWithoutTrackingAndForUntrackedObjects) {
    Handle off(Tracking::off), none(Tracking::none);
    each_array([&](const ArraySubject &s) {
        for (mirk_handle *h : {static_cast<mirk_handle *>(off), static_cast<mirk_handle *>(none)}) {
            void *object = s.r.create(h, id);
            std::uint8_t *states = bytes(object);
            const std::uint8_t source = 1;
            Trace trace;
            const auto refused = [&](auto &&operation) {
                std::uint32_t err = 0;
                operation(&err);
                EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
                EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
            };
            refused([&](std::uint32_t *e) { EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 0, e), 0); });
            refused([&](std::uint32_t *e) { s.m.element_state_flag_set(h, id, object, 0, 1, e); });
            refused([&](std::uint32_t *e) { s.m.element_state_flag_get_arr(h, id, object, &states, e); });
            refused([&](std::uint32_t *e) { s.m.element_state_flag_set_arr(h, id, object, &source, 0, e); });
            EXPECT_EQ(states, object);
            const std::string non = "type 3 (ERR): The object is non state tracked";
            const std::string not_ = "type 3 (ERR): The object is not state tracked";
            EXPECT_EQ(trace.lines(), h->sttr_desc == nullptr ? (Lines{non, not_, non, not_}) : Lines{});
            s.r.destroy(h, id, object);
        }
    });
}

// Bytes of the area that hold the address of a vector, of this record or of a nested one.
void mark_vectors(const RecordOperations &r, std::uint32_t base, std::vector<bool> &marks) {
    for (const MemberOperations &m : r.members) {
        if (m.member->kind == Kind::record) mark_vectors(nested_record(m), base + member_layout(r, m).area, marks);
        for (std::uint32_t i = 0; m.member->kind == Kind::array && i < 8; ++i)
            marks[base + member_layout(r, m).area + i] = true;
    }
}

TEST(ElementStates, SettingAllWritesTheStartOfTheAreaAndSkipsVectors) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        for (std::uint32_t n : {1u, 3u, 8u, 17u, 120u}) {
            void *object = with_elements(h, s, n);
            const std::vector<std::uint8_t> before(area(s.r, object), area(s.r, object) + table(s.r).state);
            std::vector<bool> vectors(table(s.r).state);
            mark_vectors(s.r, 0, vectors);
            std::vector<std::uint8_t> source(n);
            for (std::uint32_t i = 0; i < n; ++i) source[i] = static_cast<std::uint8_t>(0x80 + i);
            std::uint32_t err = 0;
            Events events(h);
            s.m.element_state_flag_set_arr(h, id, object, source.data(), n, &err);
            EXPECT_EQ(err, 0u);
            for (std::uint32_t i = 0; i < table(s.r).state; ++i) {
                EXPECT_EQ(area(s.r, object)[i], i < n && !vectors[i] ? source[i] : before[i]) << i;
            }
            EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_WRITE_NOTIFY), 0u);
            EXPECT_NE(mirk_get_instance_modified(object, 1, 0), 0u);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        }
    });
}

TEST(ElementStates, SettingAllRequiresTheExactCount) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = with_elements(h, s, 3);
        const std::vector<std::uint8_t> before(area(s.r, object), area(s.r, object) + table(s.r).state);
        const std::uint8_t source[4] = {9, 9, 9, 9};
        Trace trace;
        for (std::uint32_t length : {0u, 2u, 4u}) {
            std::uint32_t err = 0;
            s.m.element_state_flag_set_arr(h, id, object, source, length, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
            EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOENT));
        }
        EXPECT_EQ(std::memcmp(area(s.r, object), before.data(), before.size()), 0);
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_EQ(mirk_get_instance_modified(object, 1, 0), 0u);
        s.r.destroy(h, id, object);
    });
}

TEST(ElementStates, AFilledVectorWordIsAStateAndNotAnAddress) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = with_elements(h, s, 2), *value = s.e.create(h, id);
        std::uint8_t *lost = vector_of(s, object);
        std::uint32_t err = 0;
        s.r.set_all_state_tracking_flag(h, id, object, 0x33);
        EXPECT_EQ(s.m.state_flag_get(h, id, object, &err), 0x33);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 1, &err), 0x33);
        s.m.element_state_flag_set(h, id, object, 1, 9, &err);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 1, &err), 0x33);
        std::uint8_t *states = lost;
        s.m.element_state_flag_get_arr(h, id, object, &states, &err);
        EXPECT_EQ(states, nullptr);
        s.m.element_set(h, id, object, 0, value, &err);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 0, &err), 0x33);
        // Growth allocates a new vector.
        s.m.element_set(h, id, object, 2, value, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 2, &err), 2);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 0, &err), 0);
        s.r.set_all_state_tracking_flag(h, id, object, 0x33);
        s.e.destroy(h, id, value);
        s.r.destroy(h, id, object);
        h->obj_free(h->mem_ctx, id, lost);
        // The second fill overwrites the address of that vector.
        EXPECT_EQ(h.live_blocks(), 1u);
        mirk_platform_block block;
        mirk_platform_list_blocks(h, &block, 1);
        h->obj_free(h->mem_ctx, id, block.address);
    });
}

TEST(ElementStates, AFillWithZeroMeansNoVector) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = with_elements(h, s, 2);
        std::uint8_t *lost = vector_of(s, object);
        std::uint32_t err = 0;
        s.r.set_all_state_tracking_flag(h, id, object, 0);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 1, &err), 0);
        s.m.element_state_flag_set(h, id, object, 1, 9, &err);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 1, &err), 0);
        EXPECT_EQ(err, 0u);
        s.r.destroy(h, id, object);
        h->obj_free(h->mem_ctx, id, lost);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

}  // namespace
