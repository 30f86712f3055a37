// The reference runtime has tables and lists besides the blocks that it returns. Each allocation for them fails in
// turn, once and from then on, in whichever function: the process continues, the result is an error or correct, and
// everything can be destroyed.
#include <cerrno>
#include <new>
#include <optional>

#include "bundle_stream.h"
#include "damage.h"
#include "imports.h"

namespace {

using namespace trust;

struct Refused {
    std::uint64_t nth = 0;  // 0: none
    bool onwards = false;
};

Refused refused;
std::uint64_t requests;

bool refuses() {
    ++requests;
    return refused.nth != 0 && (requests == refused.nth || (refused.onwards && requests > refused.nth));
}
void *some_malloc(std::size_t size) { return refuses() ? nullptr : std::malloc(size); }
void *some_calloc(std::size_t count, std::size_t size) { return refuses() ? nullptr : std::calloc(count, size); }
void *some_new(std::size_t size) {
    if (refuses()) throw std::bad_alloc();
    return ::operator new(size);
}
void *some_aligned_new(std::size_t size, std::align_val_t alignment) {
    if (refuses()) throw std::bad_alloc();
    return ::operator new(size, alignment);
}

// During its lifetime, allocations of the reference runtime are counted and can fail.
class ShortOfMemory {
public:
    ShortOfMemory() { EXPECT_TRUE(malloc_.found() && calloc_.found() && new_.found() && aligned_new_.found()); }

private:
    const Import malloc_{"libmirklib", "malloc", reinterpret_cast<void *>(&some_malloc)};
    const Import calloc_{"libmirklib", "calloc", reinterpret_cast<void *>(&some_calloc)};
    const Import new_{"libmirklib", "_Znwm", reinterpret_cast<void *>(&some_new)};
    const Import aligned_new_{"libmirklib", "_ZnwmSt11align_val_t", reinterpret_cast<void *>(&some_aligned_new)};
};

// Repeats the work, with a different allocation failing each time. Returns the number of allocations.
template <class Work>
std::uint64_t refuse_each(Work &&work) {
    refused = {};
    requests = 0;
    work();
    const std::uint64_t all = requests;
    for (std::uint64_t nth = 1; nth <= all; ++nth) {
        for (const bool onwards : {false, true}) {
            SCOPED_TRACE("request " + std::to_string(nth) + (onwards ? " onwards" : ""));
            refused = {nth, onwards};
            requests = 0;
            work();
            if (testing::Test::HasFailure()) return all;
        }
    }
    return all;
}

// If no allocation failed, there must be no error.
void expect_enomem(std::uint32_t error) { EXPECT_TRUE(error == 0 || (error == ENOMEM && refused.nth != 0)) << error; }

class RuntimeMemory : public testing::Test {
protected:
    void SetUp() override { mirk_platform_trace_set_levels(1); }
};

TEST_F(RuntimeMemory, AFailedReadOfAnyRootIsHarmless) {
    std::uint64_t all = 0;
    for (const Root &root : roots()) {
        for (const Tracking tracking : {Tracking::off, Tracking::on}) {
            SCOPED_TRACE(root.name + ", " + kit::name_of(tracking));
            const Bytes frame = frame_of(root, tracking == Tracking::on);
            all += refuse_each([&] {
                kit::Handle h(tracking);
                if (root.message != nullptr) h.allow_lost_blocks();
                std::optional<Specimen> specimen(std::in_place, h, root);
                {
                    const ShortOfMemory is_short;
                    expect_enomem(specimen->read(frame));
                    specimen->use(256);
                }
                specimen->use(2048);
            });
        }
    }
    EXPECT_GT(all, roots().size());
}

TEST_F(RuntimeMemory, AFailedReceiverOfABundleIsHarmless) {
    for (const reference::BundleTable &table : reference::bundles()) {
        SCOPED_TRACE(table.name);
        Bytes stream = bundle_stream(table, true);
        const std::uint64_t allocations = refuse_each([&] {
            kit::Handle h(Tracking::on);
            h.allow_lost_blocks();
            enlist(h);
            Received received;
            const ShortOfMemory is_short;
            expect_enomem(mirk_platform_dispatch(h, id, guarded(stream), static_cast<std::uint32_t>(stream.size()),
                                                 &received, nullptr));
        });
        EXPECT_GT(allocations, 0U);
    }
}

TEST_F(RuntimeMemory, AFailedSenderOfABundleIsHarmless) {
    for (const auto &bundle : tarn::reflect::bundles()) {
        SCOPED_TRACE(bundle.bundle->name);
        const MessageOperations &m = tarn::reflect::operations_of(bundle.bundle->message);
        const std::uint64_t allocations = refuse_each([&] {
            const kit::Handle h;
            std::uint32_t err = 0;
            void *message = m.create(h, id);
            Bytes frame(4096);
            {
                const ShortOfMemory is_short;
                bundle.start.marshal(h, id, frame.data(), nullptr, 4095, &err);
                m.marshal(h, id, frame.data(), message, 4095, &err);
                bundle.commit.marshal(h, id, frame.data(), nullptr, 4095, &err);
                expect_enomem(err);
            }
            m.destroy(h, id, message);
            err = 0;
            if (h->send_bundle_open != 0) bundle_send_message_list_destroy(h, id, &err);
        });
        EXPECT_GT(allocations, 0U);
    }
}

TEST_F(RuntimeMemory, AFailedReaderOfADocumentIsHarmless) {
    for (const Root &root : roots()) {
        SCOPED_TRACE(root.name);
        const std::string text = document_of(root);
        const std::uint64_t allocations = refuse_each([&] {
            kit::Handle h(Tracking::on);
            h.allow_lost_blocks();
            Specimen specimen(h, root);
            mirk_platform_report report;
            const ShortOfMemory is_short;
            void *document = mirk_platform_document_load_memory(text.data(), text.size(), &report);
            if (document == nullptr) {
                EXPECT_EQ(report.number, static_cast<std::uint32_t>(ENOMEM)) << report.sentence;
                return;
            }
            expect_enomem(specimen.read_document(document));
            mirk_platform_document_free(document);
        });
        EXPECT_GT(allocations, 0U);
    }
}

TEST_F(RuntimeMemory, AFailedOpenOfAHandleIsHarmless) {
    const std::uint64_t allocations = refuse_each([&] {
        const ShortOfMemory is_short;
        mirk_handle *h = mirk_platform_handle_open(nullptr);
        EXPECT_EQ(h == nullptr, refused.nth != 0);
        if (h != nullptr) mirk_platform_handle_close(h);
    });
    EXPECT_GT(allocations, 0U);
}

// An allocation fails before there is an object, so the state offset of an existing object can always be recorded.
TEST_F(RuntimeMemory, StateOffsetsAreReservedWithEachBlock) {
    kit::Handle h(Tracking::on);
    for (const std::size_t size : {1U, 200U, 256U, 5000U, 100000U}) {
        auto *block = static_cast<char *>(h->obj_alloc(h->mem_ctx, id, size));
        ASSERT_NE(block, nullptr);
        {
            const ShortOfMemory is_short;
            refused = {1, true};
            requests = 0;
            for (std::size_t at = 0; at + sizeof(mirk_object) <= size; at += sizeof(mirk_object)) {
                mirklib_update_sttr_offset(h, id, block + at, 8);
            }
            EXPECT_EQ(requests, 0U);
            refused = {};
        }
        h->obj_free(h->mem_ctx, id, block);
    }
    EXPECT_EQ(mirk_platform_testing_offset_entries(h), 0U);
}

// Many objects come and go: the memory reserved for their states is released with them, and counts until then.
TEST_F(RuntimeMemory, StateOffsetsCountAgainstTheCeiling) {
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        const kit::Handle h({.tracking = tracking, .total_ceiling = 1 << 20});
        const auto fill = [&] {
            std::vector<void *> blocks;
            while (void *block = h->obj_alloc(h->mem_ctx, id, 4096)) blocks.push_back(block);
            for (void *block : blocks) h->obj_free(h->mem_ctx, id, block);
            return blocks.size();
        };
        // Offsets take 136 bytes for each 256 bytes of addresses, of which a block touches 16 or 17.
        const std::size_t least = tracking == Tracking::off ? 256 : (1 << 20) / (4096 + 17 * 136);
        const std::size_t most = tracking == Tracking::off ? 256 : (1 << 20) / (4096 + 16 * 136);
        for (int again = 0; again < 4; ++again) {
            const std::size_t blocks = fill();
            EXPECT_GE(blocks, least);
            EXPECT_LE(blocks, most);
        }
    }
}

}  // namespace
