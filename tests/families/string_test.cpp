// The four strings: bodies without a terminator, 16-bit lengths.
#include <cerrno>

#include "values.h"

using namespace families;

namespace {

struct Subject {
    const RecordOperations &r;
    const MemberOperations &m;
    const MemberOperations &length;
};

void each_string(const std::function<void(const Subject &)> &visit) {
    std::size_t found = 0;
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.text_set == nullptr) return;
        ++found;
        visit({r, m, r.members[index_of(r, m) - 1]});
    });
    EXPECT_EQ(found, reference::members_of(reference::Class::string));
}

char *body(const Subject &s, void *object) { return read<char *>(at(s.r, object, s.m)); }
std::uint64_t length(mirk_handle *h, const Subject &s, void *object) {
    std::uint32_t err = 0;
    return s.length.get_value(h, id, object, &err);
}

TEST(Strings, ANewOneIsEmpty) {
    Handle h;
    each_string([&](const Subject &s) {
        void *object = s.r.create(h, id);
        char text[4] = "xyz";
        std::uint32_t err = 0;
        EXPECT_EQ(body(s, object), nullptr);
        s.m.text_get(h, id, object, text, sizeof text, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_STREQ(text, "");
        s.m.text_get(h, id, nullptr, text, 1, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(s.length.set, nullptr);
        EXPECT_EQ(s.length.set_value, nullptr);
        s.r.destroy(h, id, object);
    });
}

TEST(Strings, TheBodyHasExactlyItsLength) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_string([&](const Subject &s) {
            void *object = s.r.create(h, id);
            std::uint32_t err = 0;
            Events events(h);
            s.m.text_set(h, id, object, "abcdef", 6, &err);
            EXPECT_EQ(err, 0u);
            ASSERT_EQ(events.count(MIRK_PLATFORM_TESTING_ALLOC), 1u);
            EXPECT_EQ(events.of(MIRK_PLATFORM_TESTING_ALLOC)[0].size, 6u);
            EXPECT_EQ(std::memcmp(body(s, object), "abcdef", 6), 0);
            EXPECT_EQ(length(h, s, object), 6u);
            EXPECT_NE(mirk_get_instance_modified(object, 1, 0), 0u);
            if (mode == Tracking::on) {
                EXPECT_EQ(s.m.state_flag_get(h, id, object, &err), 2);
            }
            s.m.text_set(h, id, object, "xy", 2, &err);
            EXPECT_EQ(h.live_blocks(), 2u) << "the body before is gone";
            EXPECT_EQ(length(h, s, object), 2u);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Strings, TheDestinationNeedsRoomForTheTerminator) {
    Handle h;
    each_string([&](const Subject &s) {
        void *object = s.r.create(h, id);
        std::uint32_t err = 0;
        s.m.text_set(h, id, object, "abcdef", 6, &err);
        char text[16] = {};
        s.m.text_get(h, id, object, text, 7, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_STREQ(text, "abcdef");
        for (std::uint32_t size = 1; size <= 6; ++size) {
            std::memset(text, '#', sizeof text);
            err = 0;
            s.m.text_get(h, id, object, text, size, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOSPC));
            EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOSPC));
            EXPECT_EQ(std::string(text, size + 1), std::string("abcdef").substr(0, size - 1) + '\0' + '#');
        }
        err = 0;
        s.m.text_get(h, id, object, text, 0, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        s.r.destroy(h, id, object);
    });
}

TEST(Strings, ASizeOfZeroFailsBeforeTheVariantIsChecked) {
    Handle h;
    each_string([&](const Subject &s) {
        void *object = s.r.create(h, id);
        header(object)->variant = -1;
        char text[1];
        std::uint32_t err = 0;
        s.m.text_get(h, id, object, text, 0, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        err = 0;
        s.m.text_get(h, id, object, text, 1, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EIDRM));
        header(object)->variant = 0;
        s.r.destroy(h, id, object);
    });
}

TEST(Strings, ANullObjectIsRefused) {
    Handle h;
    each_string([&](const Subject &s) {
        std::uint32_t err = 0;
        s.m.text_set(h, id, nullptr, "a", 1, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        h->last_error = 0;
    });
}

TEST(Strings, ANullTextGivesABodyOfZeros) {
    Handle h;
    mirk_platform_testing_set_fresh_fill(h, 0xA5);
    each_string([&](const Subject &s) {
        void *object = s.r.create(h, id);
        std::uint32_t err = 0;
        for (std::uint32_t length = 1; length <= 5; ++length) {
            s.m.text_set(h, id, object, nullptr, length, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(std::memcmp(read<void *>(at(s.r, object, s.m)), "\0\0\0\0\0", length), 0) << length;
        }
        s.r.destroy(h, id, object);
    });
}

TEST(Strings, AShortTextIsPaddedWithZeros) {
    Handle h;
    each_string([&](const Subject &s) {
        void *object = s.r.create(h, id);
        std::uint32_t err = 0;
        s.m.text_set(h, id, object, "ab", 5, &err);
        EXPECT_EQ(std::string(body(s, object), 5), std::string("ab\0\0\0", 5));
        EXPECT_EQ(length(h, s, object), 5u);
        s.r.destroy(h, id, object);
    });
}

TEST(Strings, TheLengthIsTruncatedTo16Bits) {
    Handle h;
    const std::string text(70000, 'q');
    each_string([&](const Subject &s) {
        for (std::uint32_t requested : {65534u, 65535u, 65536u, 65540u, 0xFFFF0003u}) {
            void *object = s.r.create(h, id);
            std::uint32_t err = 0;
            Events events(h);
            s.m.text_set(h, id, object, text.c_str(), requested, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(length(h, s, object), requested & 0xFFFF);
            EXPECT_EQ(events.of(MIRK_PLATFORM_TESTING_ALLOC).at(0).size, requested & 0xFFFF);
            std::vector<char> read_back(65536 + 1);
            s.m.text_get(h, id, object, read_back.data(), 65536, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(std::string(read_back.data()), text.substr(0, requested & 0xFFFF));
            s.r.destroy(h, id, object);
        }
    });
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST(Strings, AnEmptyTextAllocatesABlockOfZeroBytes) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_string([&](const Subject &s) {
            void *object = s.r.create(h, id);
            std::uint32_t err = 0;
            s.m.text_set(h, id, object, "abc", 3, &err);
            s.m.text_set(h, id, object, "", 0, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(length(h, s, object), 0u);
            EXPECT_EQ(h.live_blocks(), 2u);
            h.fail_alloc(1);  // null is not a failure if no bytes are needed
            s.m.text_set(h, id, object, "abc", 0, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(body(s, object), nullptr);
            if (mode == Tracking::on) {
                EXPECT_EQ(s.m.state_flag_get(h, id, object, &err), 2);
            }
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Strings, AFailedAllocationLosesTheOldBodyAndKeepsTheLength) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_string([&](const Subject &s) {
            void *object = s.r.create(h, id);
            std::uint32_t err = 0;
            s.m.text_set(h, id, object, "abc", 3, &err);
            mirk_set_instance_modified(object, 1, 0, 0);
            h.fail_alloc(1);
            s.m.text_set(h, id, object, "wxyz", 4, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
            EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOMEM));
            EXPECT_EQ(body(s, object), nullptr);
            EXPECT_EQ(length(h, s, object), 3u);
            EXPECT_EQ(mirk_get_instance_modified(object, 1, 0), 0u);
            // A length without a body counts no characters, and all operations still work.
            char text[8] = "#######";
            err = 0;
            s.m.text_get(h, id, object, text, sizeof text, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_STREQ(text, "");
            s.m.text_set(h, id, object, "wxyz", 4, &err);
            EXPECT_EQ(length(h, s, object), 4u);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Strings, TheStickySetReturnsTheLastError) {
    Handle h;
    mirk_platform_handle_set_default_id(h, 90);
    each_string([&](const Subject &s) {
        void *object = s.r.create_cr(h);
        Events events(h);
        EXPECT_EQ(s.m.text_set_cr(h, object, "abc", 3), 0u);
        EXPECT_EQ(events.of(MIRK_PLATFORM_TESTING_ALLOC).at(0).ctx_id, 90u);
        h.fail_alloc(1);
        EXPECT_EQ(s.m.text_set_cr(h, object, "abc", 3), static_cast<std::uint32_t>(ENOMEM));
        EXPECT_EQ(s.m.text_set_cr(h, object, "abc", 3), static_cast<std::uint32_t>(ENOMEM));
        EXPECT_EQ(body(s, object), nullptr);
        s.r.destroy_cr(h, object);
        h->last_error = 0;
    });
}

}  // namespace
