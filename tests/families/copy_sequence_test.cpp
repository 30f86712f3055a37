// The calls of deep copies.
#include <gtest/gtest.h>

#include <cerrno>

#include "recording.h"
#include "tools/reflect/operations.h"

namespace {

TEST(CopySequence, StickyCopiesMakeNoCallIfTheErrorIsSet) {
    recording::Handle h;
    for (const tarn::reflect::RecordOperations &r : tarn::reflect::records()) {
        void *source = r.create(h, 1), *target = r.create(h, 1);
        h->last_error = EPROTO;
        recording::clear_log();
        EXPECT_EQ(r.clone_cr(h, source), nullptr);
        r.copy_cr(h, source, target);
        EXPECT_EQ(recording::lines(), std::vector<std::string>{}) << r.record->name;
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EPROTO));
        mirk_clear_last_error(h);
        r.destroy(h, 1, source);
        r.destroy(h, 1, target);
    }
}

}  // namespace
