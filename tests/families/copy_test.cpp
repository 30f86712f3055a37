// Deep copy through a frame.
#include <gtest/gtest.h>

#include "wire_support.h"

namespace {

using namespace wire;

GuardedMemory &memory() {
    static GuardedMemory guarded(most_bytes);
    return guarded;
}

// A copy made with a buffer of exactly this size, with its guard byte.
struct Cloned {
    Instance instance;
    std::uint32_t error;
};
Cloned clone(mirk_handle *h, const Instance &source, std::size_t size) {
    void *result = &result;  // cleared before anything else
    std::uint32_t err = 0;
    source.record().clone(h, id, source.get(), &result, memory().room(size), static_cast<std::uint32_t>(size), &err);
    return {Instance(h, source.record(), result), err};
}

class Copies : public testing::TestWithParam<Tracking> {
protected:
    Handle handle{GetParam()};
    Record received(const Record &value) const { return reference::as_received(value, handle.tracks()); }
};

TEST_P(Copies, EveryKindOfCopyEqualsItsSource) {
    const GeneratorOptions kinds[] = {{}, {.max_elements = 0, .max_text = 0}, {.strange = true}};
    std::uint64_t seed = 500;
    for (const RecordTable &table : reference::records()) {
        for (const GeneratorOptions &kind : kinds) {
            const Record value = Generator(++seed, kind).make(table.name);
            SCOPED_TRACE(table.name + " of seed " + std::to_string(seed));
            const Instance source(handle, value);
            const Cloned copy = clone(handle, source, reference::encode(value, handle.tracks()).size());
            EXPECT_EQ(copy.error, 0U);
            ASSERT_NE(copy.instance.get(), nullptr);
            EXPECT_TRUE(bridge::same(received(value), copy.instance.value()));

            const Instance sticky(handle, source.record(), source.record().clone_cr(handle, source.get()));
            ASSERT_NE(sticky.get(), nullptr);
            EXPECT_TRUE(bridge::same(received(value), sticky.value()));

            const Instance target(handle, table.name);
            source.record().copy_cr(handle, source.get(), target.get());
            EXPECT_EQ(handle->last_error, 0U);
            EXPECT_TRUE(bridge::same(received(value), target.value()));
            EXPECT_TRUE(handle.tracks() ? bridge::same(value, source.value())
                                        : bridge::same(received(value), source.value()));
        }
    }
}

TEST_P(Copies, NullArgumentsGiveEnoent) {
    for (const RecordTable &table : reference::records()) {
        const Instance source(handle, table.name);
        std::uint8_t buffer[8];
        std::uint32_t err = 0;
        void *result = buffer;
        source.record().clone(handle, id, source.get(), nullptr, buffer, sizeof buffer, &err);
        EXPECT_EQ(err, 2U);
        EXPECT_EQ(handle->last_error, 2U);
        err = handle->last_error = 0;
        source.record().clone(handle, id, source.get(), &result, nullptr, 0, &err);
        EXPECT_EQ(err, 2U);
        EXPECT_EQ(handle->last_error, 2U);
        EXPECT_EQ(result, nullptr);
        result = buffer;
        err = handle->last_error = 0;
        source.record().clone(handle, id, nullptr, &result, buffer, sizeof buffer, &err);
        EXPECT_EQ(err, 2U);
        EXPECT_EQ(handle->last_error, 2U);
        EXPECT_EQ(result, nullptr);
        mirk_clear_last_error(handle);
        EXPECT_EQ(source.record().clone_cr(handle, nullptr), nullptr);
        EXPECT_EQ(handle->last_error, 2U);
        mirk_clear_last_error(handle);
    }
}

TEST_P(Copies, NothingIsCopiedIfTheErrorIsSet) {
    const Instance source(handle, rich_value(reference::record_table("lumo_tarn_dp_tc_list")));
    const Instance target(handle, "lumo_tarn_dp_tc_list");
    const std::size_t blocks = handle.live_blocks();
    std::uint8_t buffer[8];
    std::uint32_t err = 5;
    void *result = buffer;
    source.record().clone(handle, id, source.get(), &result, buffer, sizeof buffer, &err);
    EXPECT_EQ(err, 5U);
    EXPECT_EQ(result, nullptr);
    source.record().clone(handle, id, nullptr, &result, buffer, sizeof buffer, &err);
    EXPECT_EQ(err, 5U);
    handle->last_error = 6;
    EXPECT_EQ(source.record().clone_cr(handle, source.get()), nullptr);
    source.record().copy_cr(handle, source.get(), target.get());
    EXPECT_EQ(handle->last_error, 6U);
    EXPECT_EQ(handle.live_blocks(), blocks);
    EXPECT_TRUE(bridge::same(Record("lumo_tarn_dp_tc_list"), target.value()));
}

TEST_P(Copies, AWorkspaceThatIsTooSmallFails) {
    const Instance source(handle, rich_value(reference::record_table("lumo_tarn_dp_tc_list")));
    const std::size_t blocks = handle.live_blocks();
    // Only states may be missing at the end without an error, and the last element ends before them.
    const std::size_t in_the_elements = reference::encode(source.value(), handle.tracks()).size() - 12;
    const std::uint64_t created = source.header()->tinfo->variant_info->entries[0].num_created;
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{9}, in_the_elements}) {
        const Cloned copy = clone(handle, source, size);
        EXPECT_TRUE(copy.error == 12 || copy.error == 90) << copy.error;
        EXPECT_EQ(copy.instance.get(), nullptr);
        EXPECT_EQ(handle.live_blocks(), blocks);
    }
    EXPECT_EQ(source.header()->tinfo->variant_info->entries[0].num_created, created);
}

TEST_P(Copies, AStickyCopyLargerThanTheWorkspaceFails) {
    const Record value =
        Generator(3, {.min_elements = 400, .max_elements = 400, .budget = 1U << 20}).make("lumo_tarn_dp_tc_list");
    ASSERT_GT(reference::encode(value, false).size(), 65536U);
    const Instance source(handle, value);
    const std::size_t blocks = handle.live_blocks();
    EXPECT_EQ(source.record().clone_cr(handle, source.get()), nullptr);
    EXPECT_TRUE(handle->last_error == 12 || handle->last_error == 90);
    EXPECT_EQ(handle.live_blocks(), blocks);
    mirk_clear_last_error(handle);

    // The caller's destination is not changed before the source is known to fit.
    const Instance target(handle, "lumo_tarn_dp_tc_list");
    source.record().copy_cr(handle, source.get(), target.get());
    EXPECT_NE(handle->last_error, 0U);
    mirk_clear_last_error(handle);
    EXPECT_TRUE(bridge::same(Record("lumo_tarn_dp_tc_list"), target.value()));
}

TEST_P(Copies, AFailedCopyDestroysTheCallersDestination) {
    const Instance source(handle, rich_value(reference::record_table("lumo_tarn_dp_tc_list")));
    const std::size_t blocks = handle.live_blocks();
    Instance target(handle, "lumo_tarn_dp_tc_list");
    mirk_platform_testing_fail_allocation(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 0);
    source.record().copy_cr(handle, source.get(), target.release());
    EXPECT_EQ(handle->last_error, 12U);
    EXPECT_EQ(handle.live_blocks(), blocks);
}

// An element is destroyed if the copy into it fails, stays in its array, and is destroyed again with it.
TEST_P(Copies, AFailedCopyIntoAnElementDestroysItAndKeepsItsMemory) {
    const Instance list(handle, "lumo_tarn_lumo_info_list");
    const auto &elements = list.record().members.back();
    const Instance value(handle, rich_value(reference::record_table("lumo_tarn_lumo_info")));
    std::uint32_t err = 0;
    const Instance first(handle, "lumo_tarn_lumo_info");
    elements.element_set(handle, id, list.get(), 1, first.get(), &err);
    ASSERT_EQ(err, 0U);
    auto *element = static_cast<mirk_object *>(elements.element_get(handle, id, list.get(), 1, &err));
    const std::uint8_t flags = element->obj_flag;
    const mirk_variant_entry &counts = value.header()->tinfo->variant_info->entries[0];
    const std::uint64_t destroyed = counts.num_destroyed;
    mirk_platform_testing_fail_allocation(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 0);
    elements.element_set_cr(handle, list.get(), 1, value.get(), 0);
    EXPECT_EQ(handle->last_error, 12U);
    EXPECT_EQ(counts.num_destroyed, destroyed + 1);
    EXPECT_EQ(element->obj_flag & offset_flag, flags & offset_flag);
    EXPECT_EQ((flags & offset_flag) != 0, handle.tracks());
    mirk_clear_last_error(handle);
}

TEST_P(Copies, ACopyIntoNullCreatesAnInstanceThatIsLost) {
    const Instance source(handle, "lumo_tarn_exmem_info");
    const std::size_t blocks = handle.live_blocks();
    source.record().copy_cr(handle, source.get(), nullptr);
    EXPECT_EQ(handle->last_error, 0U);
    EXPECT_EQ(handle.live_blocks(), blocks + 1);
    handle.expect_lost_blocks(1);
}

TEST_P(Copies, BlocksOfAnOccupiedDestinationAreLost) {
    const Record value = rich_value(reference::record_table("lumo_tarn_cl_kesh_appl"));
    const Instance source(handle, value);
    const Instance target(handle, value);
    source.record().copy_cr(handle, source.get(), target.get());
    EXPECT_TRUE(bridge::same(received(value), target.value()));
    handle.expect_lost_blocks(2);  // two strings
}

TEST_P(Copies, MembersMissingInTheFrameKeepTheirValues) {
    const Instance source(handle, "lumo_tarn_cl_kesh_appl");
    source.header()->variant = -1;
    Record value("lumo_tarn_cl_kesh_appl");
    value["tarn_id"].number = 77;
    const Instance target(handle, value);
    source.record().copy_cr(handle, source.get(), target.get());
    EXPECT_EQ(target.header()->variant, -1);
    EXPECT_EQ(target.value()["tarn_id"].number, 77U);
}

TEST_P(Copies, StickyCopiesAllocateWithTheDefaultId) {
    const Instance source(handle, rich_value(reference::record_table("lumo_tarn_cl_kesh_appl")));
    handle->default_id = 31;
    std::size_t before = handle.live_blocks();
    const Instance copy(handle, source.record(), source.record().clone_cr(handle, source.get()));
    std::vector<mirk_platform_block> blocks(handle.live_blocks());
    mirk_platform_list_blocks(handle, blocks.data(), blocks.size());
    ASSERT_EQ(blocks.size(), before + 3);
    for (; before < blocks.size(); ++before) EXPECT_EQ(blocks[before].ctx_id, 31U);
}

TEST_P(Copies, AnElementNewerThanTheDomainFailsTheCopy) {
    const Instance source(handle, rich_value(reference::record_table("lumo_tarn_dp_tc_list")));
    const std::size_t blocks = handle.live_blocks();
    mirk_platform_domain_set_variant(handle, bridge::operations("lumo_tarn_dp_tc").type->luid, -1);
    const Cloned copy = clone(handle, source, 4096);
    EXPECT_EQ(copy.error, 43U);
    EXPECT_EQ(copy.instance.get(), nullptr);
    EXPECT_EQ(handle.live_blocks(), blocks);
}

INSTANTIATE_TEST_SUITE_P(EveryMode, Copies, testing::ValuesIn(kit::every_tracking),
                         [](const testing::TestParamInfo<Tracking> &info) {
                             return std::string(info.param == Tracking::none  ? "NoDescriptor"
                                                : info.param == Tracking::off ? "TrackingOff"
                                                                              : "TrackingOn");
                         });

}  // namespace
