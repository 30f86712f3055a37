// Shared by tests of arrays: each array with its owner, its count and its elements.
#pragma once

#include "values.h"

namespace families {

struct ArraySubject {
    const RecordOperations &r;
    const MemberOperations &m;
    const MemberOperations &count;
    const RecordOperations &e;
};

inline void each_array(const std::function<void(const ArraySubject &)> &visit) {
    std::size_t found = 0;
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.element_set == nullptr) return;
        ++found;
        visit({r, m, r.members[index_of(r, m) - 1], nested_record(m)});
    });
    EXPECT_EQ(found, reference::members_of(reference::Class::array));
}

inline std::uint64_t count(mirk_handle *h, const ArraySubject &s, void *object) {
    std::uint32_t err = 0;
    return s.count.get_value(h, id, object, &err);
}

// Moves a filled value to the index and destroys the remaining shell.
inline void put(mirk_handle *h, const ArraySubject &s, void *object, std::uint32_t index, std::uint32_t seed) {
    void *value = filled(h, s.e, seed, {1, 2, false});
    std::uint32_t err = 0;
    s.m.element_set(h, id, object, index, value, &err);
    EXPECT_EQ(err, 0u);
    s.e.destroy(h, id, value);
}

inline Lines value_of(mirk_handle *h, const ArraySubject &s, std::uint32_t seed) {
    void *value = filled(h, s.e, seed, {1, 2, false});
    const Lines lines = content(h, s.e, value);
    s.e.destroy(h, id, value);
    return lines;
}

}  // namespace families
