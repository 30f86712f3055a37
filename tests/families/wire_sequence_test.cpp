// The calls of the runtime for frames, in their order, which a runtime may rely on.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "recording.h"
#include "tools/reflect/operations.h"

namespace {

using Lines = std::vector<std::string>;
using recording::Tracking;
using tarn::reflect::RecordOperations;

constexpr std::uint32_t id = 7;

// A frame with its guard byte, and an instance, both as named regions.
class Wire {
public:
    Wire(std::string_view record, Tracking tracking)
        : handle({.tracking = tracking}), record_(*tarn::reflect::find_record(record)) {
        instance = record_.create(handle, id);
        reset();
    }
    ~Wire() { record_.destroy(handle, id, instance); }
    Wire(const Wire &) = delete;
    Wire &operator=(const Wire &) = delete;

    void reset() {
        recording::clear_names();
        recording::name_region("buffer", buffer.data(), buffer.size());
        recording::name_region("object", instance, handle.block_size(instance));
        recording::clear_log();
    }
    std::uint32_t write(std::int32_t size = 4000) {
        err = 0;
        return record_.marshal(handle, id, buffer.data(), instance, size, &err);
    }
    std::uint32_t read(std::uint32_t length, std::uint32_t reuse) {
        err = 0;
        return record_.unmarshal(handle, id, buffer.data(), instance, length, reuse, &err);
    }
    // The frame of an array with that many elements, in the buffer; the instance has none.
    std::uint32_t frame_of(std::uint32_t elements) {
        void *source = record_.create(handle, id);
        const auto &array = record_.members[1];
        const RecordOperations &of = tarn::reflect::operations_of(*array.member->record);
        void *element = of.create(handle, id);
        err = 0;
        array.element_set(handle, id, source, elements - 1, element, &err);
        const std::uint32_t size = record_.marshal(handle, id, buffer.data(), source, 4000, &err);
        of.destroy(handle, id, element);
        record_.destroy(handle, id, source);
        EXPECT_EQ(err, 0U);
        reset();
        return size;
    }
    void text(std::size_t member, const char *value) {
        err = 0;
        record_.members[member].text_set(handle, id, instance, value, static_cast<std::uint32_t>(strlen(value)), &err);
    }
    const RecordOperations &record() const { return record_; }

    recording::Handle handle;
    std::vector<std::uint8_t> buffer = std::vector<std::uint8_t>(4096);
    void *instance = nullptr;
    std::uint32_t err = 0;

private:
    const RecordOperations &record_;
};

// The calls for memory and offsets.
Lines memory_lines() {
    return recording::lines_of({"write_notify", "obj_alloc", "obj_free", "mirklib_update_sttr_offset",
                                "mirk_hd_mapping_destroy", "mirk_store_err"});
}
// The names of all calls.
Lines functions() {
    Lines names;
    for (const recording::Call &call : recording::log()) {
        if (!call.inner) names.push_back(call.function);
    }
    return names;
}

TEST(WireSequence, AFrameIsWrittenForwardAndItsJumpLast) {
    Wire w("lumo_tarn_fdb_mem_info", Tracking::on);
    EXPECT_EQ(w.write(), 25U);
    EXPECT_EQ(
        recording::lines(recording::Detail::full),
        (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0",
               "mirk_domain_lookup_variant lumo_tarn_fdb_mem_info err=local",
               "_mirk_instance_variant_marshal buffer 0 4000 ctx=7 err=local", "mirk_get_instance_obj_flag object 1 0",
               "_mirk_instance_obj_flag_marshal buffer+1 8 3999 ctx=7 err=local",
               "_mirk_variant_jump_marshal buffer+2 0 3998 ctx=7 err=local",
               "u_int32_marshal buffer+6 object+12 3994 ctx=7 err=local",
               "u_int32_marshal buffer+11 object+16 3989 ctx=7 err=local",
               "u_int64_marshal buffer+16 object+24 3984 ctx=7 err=local",
               "_mirk_variant_jump_marshal buffer+2 23 4 ctx=7 err=local"}));
}

TEST(WireSequence, AFlatReadReadsEachMemberOnceWithoutANotification) {
    Wire w("lumo_tarn_fdb_mem_info", Tracking::on);
    const std::uint32_t size = w.write();
    w.reset();
    EXPECT_EQ(w.read(size, 1), size);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "_mirk_instance_variant_unmarshal buffer local 25",
                     "_mirk_instance_obj_flag_unmarshal buffer+1 local 24",
                     "_mirk_variant_jump_unmarshal buffer+2 local 23", "u_int32_unmarshal buffer+6 object+12 19 1",
                     "u_int32_unmarshal buffer+11 object+16 14 1", "u_int64_unmarshal buffer+16 object+24 9 1"}));
}

TEST(WireSequence, AWalkContinuesAfterAMemberHasFailed) {
    Wire w("lumo_tarn_fdb_mem_info", Tracking::off);
    w.handle.knobs().errors["u_int32_marshal"] = 71;
    EXPECT_EQ(w.write(), 6U);
    EXPECT_EQ(w.err, 71U);
    EXPECT_EQ(recording::lines_of({"u_int32_marshal", "u_int64_marshal", "_mirk_variant_jump_marshal"}),
              (Lines{"_mirk_variant_jump_marshal buffer+2 0 3998", "u_int32_marshal buffer+6 object+12 3994",
                     "u_int32_marshal buffer+6 object+16 3994", "u_int64_marshal buffer+6 object+24 3994",
                     "_mirk_variant_jump_marshal buffer+2 4 4"}));
}

TEST(WireSequence, ABlockIsNotifiedBeforeItIsAllocatedAndAVectorIsNot) {
    Wire w("lumo_tarn_dp_debug_setting_data", Tracking::on);
    const std::uint32_t two = w.frame_of(2);
    w.read(two, 0);
    EXPECT_EQ(w.err, 0U);
    EXPECT_EQ(memory_lines(),
              (Lines{"write_notify object+16 8", "obj_alloc 130", "obj_alloc 2",
                     "mirklib_update_sttr_offset block1 112", "write_notify block1+9 1", "write_notify block1+8 1",
                     "write_notify block1 8", "write_notify block1+10 1", "write_notify block1+10 1",
                     "mirklib_update_sttr_offset block1+56 65", "write_notify block1+65 1", "write_notify block1+64 1",
                     "write_notify block1+56 8", "write_notify block1+66 1", "write_notify block1+66 1"}));
}

TEST(WireSequence, ElementsGetTheirOffsetsWhateverTheFrameContains) {
    Wire w("lumo_tarn_dp_debug_setting_data", Tracking::on);
    w.handle.set_tracking(Tracking::off);
    const std::uint32_t two = w.frame_of(2);
    w.handle.set_tracking(Tracking::on);
    w.read(two, 0);
    EXPECT_EQ(w.err, 0U);
    EXPECT_EQ(
        recording::lines_of({"obj_alloc", "mirklib_update_sttr_offset"}),
        (Lines{"obj_alloc 130", "mirklib_update_sttr_offset block1 112", "mirklib_update_sttr_offset block1+56 65"}));
}

TEST(WireSequence, AnUnchangedCountReplacesTheVectorOnly) {
    Wire w("lumo_tarn_dp_debug_setting_data", Tracking::on);
    const std::uint32_t two = w.frame_of(2);
    w.read(two, 0);
    w.reset();
    w.read(two, 1);
    EXPECT_EQ(
        recording::lines_of({"obj_alloc", "obj_free", "mirk_hd_mapping_destroy", "mirklib_update_sttr_offset"}),
        (Lines{"obj_alloc 2", "mirklib_update_sttr_offset earlier 112", "mirklib_update_sttr_offset earlier+56 65"}));
}

TEST(WireSequence, AChangedCountReleasesMappingsThenBlockThenVector) {
    Wire w("lumo_tarn_dp_debug_setting_data", Tracking::on);
    w.read(w.frame_of(2), 0);
    const std::uint32_t one = w.frame_of(1);
    w.read(one, 1);
    EXPECT_EQ(memory_lines(),
              (Lines{"mirk_hd_mapping_destroy earlier", "mirk_hd_mapping_destroy earlier+56", "obj_free earlier",
                     "write_notify object+16 8", "obj_free earlier", "write_notify object+16 8", "obj_alloc 65",
                     "obj_alloc 1", "mirklib_update_sttr_offset block1 56", "write_notify block1+9 1",
                     "write_notify block1+8 1", "write_notify block1 8", "write_notify block1+10 1",
                     "write_notify block1+10 1"}));
}

TEST(WireSequence, ElementsWithoutStatesHaveNoMappingsToRemove) {
    for (const Tracking tracking : {Tracking::none, Tracking::off}) {
        Wire w("lumo_tarn_dp_debug_setting_data", tracking);
        const std::uint32_t two = w.frame_of(2);
        w.read(two, 0);
        EXPECT_EQ(recording::lines_of({"obj_alloc"}), (Lines{"obj_alloc 112"}));
        const std::uint32_t one = w.frame_of(1);
        w.read(one, 1);
        EXPECT_EQ(w.err, 0U);
        EXPECT_EQ(recording::lines_of({"obj_alloc", "obj_free", "mirk_hd_mapping_destroy"}),
                  (Lines{"obj_free earlier", "obj_alloc 56"}));
    }
}

TEST(WireSequence, MappingsStayIfOidMappingIsOff) {
    Wire w("lumo_tarn_dp_debug_setting_data", Tracking::on);
    w.read(w.frame_of(2), 0);
    const std::uint32_t one = w.frame_of(1);
    w.handle->oid_mapping = 0;
    w.read(one, 1);
    EXPECT_EQ(recording::count_of("mirk_hd_mapping_destroy"), 0U);
    w.handle->oid_mapping = 1;
}

TEST(WireSequence, AFailedVectorAllocationReleasesTheBlock) {
    Wire w("lumo_tarn_dp_debug_setting_data", Tracking::on);
    const std::uint32_t two = w.frame_of(2);
    w.handle.fail_obj_alloc(2);
    EXPECT_EQ(w.read(two, 0), 0U);
    EXPECT_EQ(w.err, 12U);
    EXPECT_EQ(memory_lines(), (Lines{"write_notify object+16 8", "obj_alloc 130", "obj_alloc 2", "obj_free block1",
                                     "write_notify object+16 8", "mirk_store_err 12"}));
}

TEST(WireSequence, AStringIsReleasedNotifiedAndAllocated) {
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        Wire w("lumo_tarn_cl_kesh_appl", tracking);
        w.text(1, "abc");
        const std::uint32_t size = w.write();
        w.reset();
        w.read(size, 1);
        EXPECT_EQ(memory_lines(), Lines{});
        w.text(1, "abcd");
        w.reset();
        w.read(size, 1);
        EXPECT_EQ(memory_lines(),
                  (Lines{"obj_free earlier", "write_notify object+16 8", "write_notify object+16 8", "obj_alloc 3"}));
        w.reset();
        w.read(size, 0);
        EXPECT_EQ(memory_lines(), (Lines{"write_notify object+16 8", "obj_alloc 3"}));
    }
}

// Unlike the states of single values, which are skipped there.
TEST(WireSequence, ASkippedStateOfAStringDoesNotSkipTheLastByte) {
    Wire w("lumo_tarn_cl_kesh_appl", Tracking::off);
    w.text(1, "abc");
    w.handle.set_tracking(Tracking::on);
    w.write();
    w.handle.set_tracking(Tracking::off);
    w.reset();
    w.read(12, 1);
    EXPECT_EQ(recording::lines_of({"u_int16_unmarshal"})[1], "u_int16_unmarshal buffer+11 object+24 1 1");
    w.reset();
    w.read(13, 1);
    EXPECT_EQ(recording::lines_of({"u_int16_unmarshal"})[1], "u_int16_unmarshal buffer+12 object+24 1 1");
}

TEST(WireSequence, RaDataFollowTheFlag) {
    Wire w("lumo_tarn_fdb_mem_info", Tracking::off);
    static_cast<mirk_object *>(w.instance)->obj_flag |= 32;
    const std::uint32_t size = w.write();
    EXPECT_EQ(functions(),
              (Lines{"mirk_clear_last_error", "mirk_get_instance_variant", "mirk_domain_lookup_variant",
                     "_mirk_instance_variant_marshal", "mirk_get_instance_obj_flag", "_mirk_instance_obj_flag_marshal",
                     "mirklib_get_ra_data", "_mirk_instance_ra_data_marshal", "_mirk_variant_jump_marshal",
                     "u_int32_marshal", "u_int32_marshal", "u_int64_marshal", "_mirk_variant_jump_marshal"}));
    // len does not count them.
    EXPECT_EQ(size, w.record().len(w.handle, id, w.instance) + recording::ra_wire_size);
    w.reset();
    EXPECT_EQ(w.read(size, 0), size);
    EXPECT_EQ(functions(),
              (Lines{"mirk_clear_last_error", "_mirk_instance_variant_unmarshal", "_mirk_instance_obj_flag_unmarshal",
                     "_mirk_instance_ra_data_unmarshal", "mirklib_update_ra_all", "_mirk_variant_jump_unmarshal",
                     "u_int32_unmarshal", "u_int32_unmarshal", "u_int64_unmarshal"}));
}

TEST(WireSequence, UnreadableRaDataAreEmpty) {
    Wire w("lumo_tarn_fdb_mem_info", Tracking::off);
    static_cast<mirk_object *>(w.instance)->obj_flag |= 32;
    const std::uint32_t size = w.write();
    w.handle.knobs().errors["_mirk_instance_ra_data_unmarshal"] = 5;
    w.reset();
    w.read(size, 0);
    EXPECT_EQ(recording::lines_of({"mirklib_update_ra_all"}), (Lines{"mirklib_update_ra_all object 0 0"}));
    w.handle.knobs().errors.clear();
}

TEST(WireSequence, ADowngradeIsStoredBeforeTheVariantIsWritten) {
    Wire w("lumo_tarn_fdb_mem_info", Tracking::off);
    w.handle.knobs().variants["lumo_tarn_fdb_mem_info"] = {-1, 0};
    w.handle.knobs().slot_gets_eidrm = false;
    EXPECT_EQ(w.write(), 6U);
    EXPECT_EQ(w.err, 0U);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0",
                     "mirk_domain_lookup_variant lumo_tarn_fdb_mem_info", "mirk_store_epoch_err 43 local",
                     "_mirk_instance_variant_marshal buffer -1 4000", "mirk_get_instance_obj_flag object 1 0",
                     "_mirk_instance_obj_flag_marshal buffer+1 0 3999", "_mirk_variant_jump_marshal buffer+2 0 3998",
                     "_mirk_variant_jump_marshal buffer+2 4 4"}));
}

// len makes one call for arrays whose elements all have one size, whatever their number.
TEST(WireSequence, TheLengthOfFixedSizeElementsIsComputedOnce) {
    const auto look_ups = [](std::string_view record, std::uint32_t elements) {
        Wire w(record, Tracking::off);
        w.read(w.frame_of(elements), 0);
        w.reset();
        w.record().len(w.handle, id, w.instance);
        return recording::lines().size();
    };
    EXPECT_EQ(look_ups("lumo_tarn_dp_debug_setting_data", 3), look_ups("lumo_tarn_dp_debug_setting_data", 1));
    EXPECT_EQ(look_ups("lumo_tarn_dp_appl_list", 3), look_ups("lumo_tarn_dp_appl_list", 1));
    EXPECT_GT(look_ups("lumo_tarn_dp_tc_list", 3), look_ups("lumo_tarn_dp_tc_list", 1));
}

}  // namespace
