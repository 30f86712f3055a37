// The order in which the operations of an enumeration call the runtime.
#include <gtest/gtest.h>

#include <bit>
#include <cstring>

#include "lumo_ui_tarn.h"
#include "recording.h"

namespace {

using recording::Detail;
using recording::Element;
using recording::Handle;
using Lines = std::vector<std::string>;

constexpr std::uint32_t id = 7;

class EnumerationSequence : public testing::Test {
protected:
    EnumerationSequence() : object(lumo_tarn_mem_desc_e_create(h, id)) { start(); }
    ~EnumerationSequence() override {
        if (object != nullptr) lumo_tarn_mem_desc_e_destroy(h, id, object);
        EXPECT_EQ(h.live_blocks(), 0u);
    }

    void start() {
        recording::clear_names();
        recording::name_region("object", object, 16);
        recording::name_region("buffer", buffer, sizeof buffer);
        recording::name_region("slot", &err, sizeof err);
        recording::clear_log();
    }

    Handle h;
    std::uint32_t err = 0;
    char buffer[200] = {};
    lumo_tarn_mem_desc_e *object;
};

TEST_F(EnumerationSequence, CreationAllocatesNotifiesAndCounts) {
    recording::clear_names();
    lumo_tarn_mem_desc_e *other = lumo_tarn_mem_desc_e_create(h, id);
    EXPECT_EQ(recording::lines(),
              (Lines{"obj_alloc 16", "mirk_clear_last_error", "mirk_domain_lookup_variant lumo_tarn_mem_desc_e",
                     "write_notify block1+9 1", "write_notify block1+8 1", "write_notify block1 8",
                     "write_notify block1+10 1", "count_notify lumo_tarn_mem_desc_e.num_created 1",
                     "count_notify lumo_tarn_mem_desc_e.num_live 1"}));
    recording::clear_log();
    lumo_tarn_mem_desc_e_destroy(h, id, other);
    EXPECT_EQ(recording::lines(Detail::full), (Lines{"count_notify lumo_tarn_mem_desc_e.num_destroyed 1 ctx=7",
                                                     "count_notify lumo_tarn_mem_desc_e.num_live -1 ctx=7",
                                                     "write_notify block1 8 ctx=7", "obj_free block1 ctx=7"}));
}

TEST_F(EnumerationSequence, InitializeWithoutNotifyOnlyNotifiesCounters) {
    lumo_tarn_mem_desc_e_initialize(h, id, object, &_lumo_tarn_mem_desc_e_type_info_internal, 0, 0, 2, nullptr, &err);
    EXPECT_EQ(
        recording::lines_of({"write_notify", "count_notify"}),
        (Lines{"count_notify lumo_tarn_mem_desc_e.num_created 1", "count_notify lumo_tarn_mem_desc_e.num_live 1"}));
}

TEST_F(EnumerationSequence, SettersAdjustCheckNotifyAndMark) {
    lumo_tarn_mem_desc_e_set_value(h, id, object, 2, &err);
    EXPECT_EQ(recording::lines(Detail::full),
              (Lines{"mirk_clear_last_error", "mirklib_adjust_variant object lumo_tarn_mem_desc_e 0 ctx=7 err=slot",
                     "mirk_get_instance_variant object 0 1", "write_notify object+12 4 ctx=7",
                     "mirk_set_instance_modified object 0 1 1"}));

    lumo_tarn_mem_desc_e *source = lumo_tarn_mem_desc_e_create(h, id);
    recording::clear_log();
    lumo_tarn_mem_desc_e_set(h, id, object, source, &err);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "mirklib_adjust_variant object lumo_tarn_mem_desc_e 0",
                     "mirk_get_instance_variant object 0 1", "write_notify object 16",
                     "mirk_set_instance_modified object 0 1 1"}));
    lumo_tarn_mem_desc_e_destroy(h, id, source);

    recording::clear_log();
    lumo_tarn_mem_desc_e_set_value(h, id, object, 3, &err);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "mirklib_adjust_variant object lumo_tarn_mem_desc_e 0",
                     "mirk_get_instance_variant object 0 1", "mirk_store_epoch_err 43 slot"}));

    recording::clear_log();
    err = 1;
    lumo_tarn_mem_desc_e_set_value(h, id, object, 1, &err);
    lumo_tarn_mem_desc_e_set(h, id, object, source, &err);
    EXPECT_EQ(recording::lines(), Lines{});
}

TEST_F(EnumerationSequence, MarshalWritesVariantAndValue) {
    lumo_tarn_mem_desc_e_marshal(h, id, buffer, object, 100, &err);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 0 1",
                     "mirk_domain_lookup_variant lumo_tarn_mem_desc_e", "_mirk_instance_variant_marshal buffer 0 100",
                     "u_int32_marshal buffer+1 local 99"}));
    // A domain with an older variant: reported, and the older one written if the slot stays clear.
    h.knobs().slot_gets_eidrm = false;
    h.knobs().default_variant = {-3, 0};
    recording::clear_log();
    EXPECT_EQ(lumo_tarn_mem_desc_e_marshal(h, id, buffer, object, 100, &err), 5u);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 0 1",
                     "mirk_domain_lookup_variant lumo_tarn_mem_desc_e", "mirk_store_epoch_err 43 slot",
                     "_mirk_instance_variant_marshal buffer -3 100", "u_int32_marshal buffer+1 local 99"}));
}

// The value is notified after its first store.
TEST_F(EnumerationSequence, UnmarshalNotifiesTheValueLast) {
    lumo_tarn_mem_desc_e_marshal(h, id, buffer, object, 100, &err);
    recording::clear_log();
    lumo_tarn_mem_desc_e_unmarshal(h, id, buffer, object, 100, 1, &err);
    EXPECT_EQ(recording::lines(), (Lines{"mirk_clear_last_error", "_mirk_instance_variant_unmarshal buffer local 100",
                                         "u_int32_unmarshal buffer+1 object+12 99 1", "write_notify object+12 4"}));
}

TEST_F(EnumerationSequence, UnmarshalBindsThePrivateType) {
    Handle own({.private_types = 1});
    lumo_tarn_mem_desc_e *mine = lumo_tarn_mem_desc_e_create(own, id);
    lumo_tarn_mem_desc_e_marshal(own, id, buffer, mine, 100, &err);
    recording::name_region("mine", mine, 16);
    recording::clear_log();
    lumo_tarn_mem_desc_e_unmarshal(own, id, buffer, mine, 100, 0, &err);
    EXPECT_EQ(recording::lines(), (Lines{"mirk_clear_last_error", "_mirk_instance_variant_unmarshal buffer local 100",
                                         "mirk_type_info_ptr_get lumo_tarn_mem_desc_e",
                                         "u_int32_unmarshal buffer+1 mine+12 99 0", "write_notify mine+12 4"}));
    lumo_tarn_mem_desc_e_destroy(own, id, mine);
}

TEST_F(EnumerationSequence, PrintWritesThreePieces) {
    lumo_tarn_mem_desc_e_print(h, id, buffer, 2, "m", object, 100, &err);
    EXPECT_EQ(recording::lines(Detail::full),
              (Lines{"mirk_clear_last_error", "mirk_print_space buffer 2 100 ctx=7 err=slot",
                     "mirk_snprintf buffer+2 98 m@lumo_tarn_mem_desc_e: ctx=7 err=slot",
                     "mirk_snprintf buffer+25 75 LUMO_TARN_MP_MEM\\n ctx=7 err=slot"}));
    recording::clear_log();
    h->default_id = 9;
    lumo_tarn_mem_desc_e_print_cr(h, object, buffer, 100);
    EXPECT_EQ(recording::lines(Detail::full),
              (Lines{"mirk_clear_last_error", "mirk_print_space buffer 0 100 ctx=9 err=last_error",
                     "mirk_snprintf buffer 100 lumo_tarn_mem_desc_e@lumo_tarn_mem_desc_e: ctx=9 err=last_error",
                     "mirk_snprintf buffer+42 58 LUMO_TARN_MP_MEM\\n ctx=9 err=last_error"}));
}

TEST_F(EnumerationSequence, NoCallIsMadeIfTheErrorIsSet) {
    err = 5;
    EXPECT_EQ(lumo_tarn_mem_desc_e_print(h, id, buffer, 2, "x", object, 200, &err), 0u);
    EXPECT_EQ(lumo_tarn_mem_desc_e_to_xml(h, id, "x", buffer, object, 200, 0, &err), 0u);
    lumo_tarn_mem_desc_e_from_xml(h, id, "x", buffer, object, &err, nullptr, 0);
    lumo_tarn_mem_desc_e_initialize(h, id, object, &_lumo_tarn_mem_desc_e_type_info_internal, 1, 0, 0, nullptr, &err);
    EXPECT_EQ(err, 5u);
    EXPECT_EQ(recording::lines(), Lines{});
}

TEST_F(EnumerationSequence, XmlPassesNoState) {
    lumo_tarn_mem_desc_e_to_xml(h, id, "m", buffer, object, 100, 5, &err);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "start_tag buffer m 100 0",
                     "xml_enum_print buffer+10 <LUMO_TARN_MP_MEM/> 90 19", "end_tag buffer+29 m 71"}));
    const std::uint32_t beyond = 3;
    std::memcpy(reinterpret_cast<char *>(object) + 12, &beyond, sizeof beyond);
    recording::clear_log();
    lumo_tarn_mem_desc_e_to_xml(h, id, "m", buffer, object, 100, 5, &err);
    EXPECT_EQ(recording::lines_of({"xml_enum_print"}),
              Lines{"xml_enum_print buffer+10 <lumo_tarn_mem_desc_e value out of range/> 90 42"});
}

TEST_F(EnumerationSequence, XmlIsSearchedForEachEnumeratorInOrder) {
    Element document{"r", "", {}};
    document.add("m").add("LUMO_TARN_TT_MEM");
    lumo_tarn_mem_desc_e_from_xml(h, id, "//r/m", &document, object, &err, buffer, sizeof buffer);
    // No notification and no mark.
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "xml_get_element_value //r/m/LUMO_TARN_MP_MEM local 128 null",
                     "mirk_store_err 2", "xml_get_element_value //r/m/LUMO_TARN_TT_MEM local 128 null"}));
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(lumo_tarn_mem_desc_e_get_value(h, id, object, &err), 1u);

    recording::fail_xml("//r/m/LUMO_TARN_MP_MEM", 5);
    recording::clear_log();
    lumo_tarn_mem_desc_e_from_xml(h, id, "//r/m", &document, object, &err, buffer, sizeof buffer);
    recording::fail_xml("//r/m/LUMO_TARN_MP_MEM", 0);
    EXPECT_EQ(recording::lines(),
              (Lines{"mirk_clear_last_error", "xml_get_element_value //r/m/LUMO_TARN_MP_MEM local 128 null",
                     "mirk_store_err 5"}));
    EXPECT_EQ(err, 5u);
    EXPECT_STREQ(buffer, "Failed xpath: //r/m");
}

TEST_F(EnumerationSequence, ValueOperationsMakeOnlyTheirOwnCalls) {
    lumo_tarn_mem_desc_e_hash(object, 5);
    lumo_tarn_mem_desc_e_is_valid_cr(h, 5);
    recording::set_modified(object, true);
    lumo_tarn_mem_desc_e_backpropagate(h, id, object, nullptr);
    lumo_tarn_mem_desc_e_backpropagate(h, id, object, nullptr);
    lumo_tarn_mem_desc_e_compare(object, object);
    lumo_tarn_mem_desc_e_len(h, id, object);
    lumo_tarn_mem_desc_e_get(h, id, object, &err);
    lumo_tarn_mem_desc_e_adjust_variant(h, id, object, &err);
    lumo_tarn_mem_desc_e_set_instance_embedded(h, id, object);
    // Its bytes are hashed least significant first, which requires a copy on big-endian hosts.
    const bool in_place = std::endian::native == std::endian::little;
    EXPECT_EQ(recording::lines(),
              (Lines{in_place ? "SuperFastHash object+12 4 5" : "SuperFastHash local 4 5",
                     "mirk_domain_lookup_variant lumo_tarn_mem_desc_e", "mirk_get_instance_modified object 0 1",
                     "mirk_set_instance_modified object 0 1 0", "mirk_get_instance_modified object 0 1",
                     "mirklib_adjust_variant object lumo_tarn_mem_desc_e 0", "write_notify object+10 1"}));
}

TEST_F(EnumerationSequence, NullIsTracedWithoutAskingForAMark) {
    mirk_lumo_ui_tarn_type_trace_init();  // no enumeration registers it
    recording::clear_log();
    EXPECT_EQ(lumo_tarn_mem_desc_e_backpropagate(h, id, nullptr, nullptr), 0u);
    EXPECT_EQ(recording::lines(),
              (Lines{"skald_wrapper type 6 (info): backpropagate: Null pointer to lumo_tarn_mem_desc_e enum"}));
}

}  // namespace
