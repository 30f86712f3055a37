#include "recording.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <regex>
#include <set>

using recording::Detail;
using recording::Element;
using recording::Handle;
using recording::Tracking;

namespace {

using Lines = std::vector<std::string>;

// The text of the contract's own headers in preprocessed source, found by the line markers.
std::string contract_text() {
    std::ifstream file(RECORDING_CONTRACT);
    std::string text, line;
    bool own = false;
    while (std::getline(file, line)) {
        if (line.starts_with("# ")) {
            own = line.find("/mirk/") != line.npos;
        } else if (own) {
            text += line + " ";
        }
    }
    return text;
}

// Functions and objects declared at file scope.
std::set<std::string> declared_names() {
    std::string text = std::regex_replace(contract_text(), std::regex("extern \"C\" *\\{"), "");
    const std::regex block("\\{[^{}]*\\}");
    while (std::regex_search(text, block)) text = std::regex_replace(text, block, "");
    std::set<std::string> names;
    const std::regex function("^[ }]*[A-Za-z_][A-Za-z0-9_ *]*[ *]([A-Za-z_][A-Za-z0-9_]*) *\\(");
    const std::regex object("^[ }]*extern .*[ *]([A-Za-z_][A-Za-z0-9_]*) *(\\[[0-9]+\\])? *$");
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(';', start), text.size());
        const std::string declaration = text.substr(start, end - start);
        start = end + 1;
        std::smatch match;
        if (std::regex_search(declaration, std::regex("^[ }]*typedef "))) continue;
        if (std::regex_search(declaration, match, object) || std::regex_search(declaration, match, function)) {
            names.insert(match[1]);
        }
    }
    return names;
}

class RecordingRuntime : public testing::Test {
protected:
    void SetUp() override {
        recording::clear_names();
        recording::clear_log();
    }
    std::uint32_t err = 0;
};

TEST_F(RecordingRuntime, DefinesEveryNameOfTheContract) {
    const std::set<std::string> names = declared_names();
    // Some of each kind must have been found: plain functions, expanded ones, objects.
    for (const char *name : {"skald_wrapper", "u_int64_backpropagate", "veld_view_bundle_handler_unregister",
                             "mirk_module_tot_root", "message_ui_req_msg_name", "mirklib_in_dispatch_message_info"}) {
        EXPECT_TRUE(names.contains(name)) << name;
    }
    EXPECT_EQ(names.size(), 156u);
    for (const std::string &name : names) {
        void *address = dlsym(RTLD_DEFAULT, name.c_str());
        ASSERT_NE(address, nullptr) << name;
        Dl_info info{};
        ASSERT_NE(dladdr(address, &info), 0) << name;
        // An object may have been copied into the program itself.
        if (std::string(info.dli_fname).find("recording_test") != std::string::npos) continue;
        EXPECT_TRUE(std::string(info.dli_fname).starts_with(RECORDING_DIRECTORY)) << name << " in " << info.dli_fname;
    }
}

TEST_F(RecordingRuntime, NamesAddresses) {
    Handle h;
    std::uint64_t words[4] = {};
    recording::name_region("object", words, sizeof words);
    EXPECT_EQ(recording::address_text(words), "object");
    EXPECT_EQ(recording::address_text(words + 1), "object+8");
    EXPECT_EQ(recording::address_text(nullptr), "null");
    EXPECT_EQ(recording::address_text(&h), "local");
    EXPECT_EQ(recording::address_text(&h->last_error), "last_error");
    EXPECT_EQ(recording::address_text(&_mirk_boolean_type_info_internal), "mirk_boolean");
    const mirk_variant_info &variants = *_ip_address_type_info_internal.variant_info;
    EXPECT_EQ(recording::address_text(&variants.entries[0].num_live), "ip_address.num_live");
    EXPECT_EQ(recording::address_text(&variants.entries[-128].num_created), "ip_address[-128].num_created");
    static int elsewhere;
    EXPECT_EQ(recording::address_text(&elsewhere), "elsewhere");

    void *first = h->obj_alloc(h->mem_ctx, 5, 40);
    auto *second = static_cast<char *>(h->obj_alloc(h->mem_ctx, 5, 0));
    EXPECT_EQ(recording::address_text(first), "block1");
    EXPECT_EQ(recording::address_text(second), "block2");
    recording::name_region("object", first, 40);
    EXPECT_EQ(recording::address_text(first), "object");
    recording::clear_names();
    EXPECT_EQ(recording::address_text(first), "earlier");
}

TEST_F(RecordingRuntime, RecordsCallsInOrder) {
    Handle h;
    alignas(8) std::uint8_t object[40] = {};
    recording::name_region("object", object, sizeof object);
    h->write_notify(h->mem_ctx, object + 8, 1, 3);
    u_int32_set_value(h, 7, reinterpret_cast<std::uint32_t *>(object + 12), 5, &h->last_error);
    void *block = h->obj_alloc(h->mem_ctx, 9, 40);
    h->obj_free(h->mem_ctx, 9, block);
    EXPECT_EQ(recording::lines(),
              (Lines{"write_notify object+8 1", "u_int32_set_value object+12 5", "obj_alloc 40", "obj_free block1"}));
    EXPECT_EQ(recording::lines(Detail::full)[1], "u_int32_set_value object+12 5 ctx=7 err=last_error");
    EXPECT_EQ(recording::log().back().ctx_id, 9u);
    recording::show_inner();
    EXPECT_EQ(recording::lines_of({"write_notify"}), (Lines{"write_notify object+8 1", "write_notify object+12 4"}));
    recording::show_inner(false);
    EXPECT_EQ(recording::count_of("obj_free"), 1u);
    recording::pause();
    recording::clear_log();
    mirk_store_err(h, 5);
    recording::pause(false);
    EXPECT_TRUE(recording::log().empty());
    EXPECT_EQ(h->last_error, 5u);
}

TEST_F(RecordingRuntime, RecordsTraceLines) {
    std::uint16_t id = 0, same = 0, other = 0;
    std::uint64_t state = 0;
    skald_module_init_fn("mirk_lumo_ui_tarn_type", &id, &state);
    skald_module_init_fn("mirk_lumo_ui_tarn_message", &other, &state);
    skald_module_init_fn("mirk_lumo_ui_tarn_type", &same, &state);
    EXPECT_EQ(id, same);
    EXPECT_NE(id, other);
    recording::clear_log();
    skald_wrapper(id, 3, 0, "(ERR): %s is not state tracked", "object");
    skald_wrapper(0, 7, 1, "(debug): %d", -4);
    EXPECT_EQ(recording::lines(), (Lines{"skald_wrapper type 3 (ERR): object is not state tracked",
                                         "skald_wrapper 0 7 zero=1 (debug): -4"}));
    const recording::Call call = recording::log().front();
    EXPECT_EQ(call.module, id);
    EXPECT_EQ(call.level, 3u);
    EXPECT_EQ(call.format, "(ERR): %s is not state tracked");
    EXPECT_EQ(recording::traces().back(), "(debug): -4");
}

TEST_F(RecordingRuntime, FailsChosenAllocations) {
    Handle h;
    auto answers = [&] {
        std::string text;
        for (int i = 0; i < 4; ++i) text += h->obj_alloc(h->mem_ctx, 1, 8) ? '+' : '-';
        return text;
    };
    h.fail_obj_alloc(2);
    EXPECT_EQ(answers(), "+-++");
    h.fail_obj_alloc_from(3);
    EXPECT_EQ(answers(), "++--");
    h.fail_obj_alloc(0);
    EXPECT_EQ(answers(), "++++");
    EXPECT_EQ(h.live_blocks(), 9u);
    EXPECT_EQ(h.live_bytes(), 72u);
    EXPECT_EQ(h.obj_allocs(), 12u);
    EXPECT_EQ(recording::log()[1].result, "null");
    EXPECT_EQ(h->obj_alloc(h->mem_ctx, 1, std::size_t{1} << 40), nullptr);
    h.fail_sys_alloc(1);
    EXPECT_EQ(h->sys_alloc(h->sys_ctx, 0xFFFFFFFF, 8), nullptr);
    EXPECT_NE(h->sys_alloc(h->sys_ctx, 0xFFFFFFFF, 8), nullptr);
    static char sentinel;
    h->obj_free(h->mem_ctx, 1, &sentinel);
    EXPECT_EQ(h.live_blocks(), 9u);
}

TEST_F(RecordingRuntime, AbortsOnAMixUpOfContexts) {
    Handle h;
    EXPECT_DEATH(h->sys_alloc(h->mem_ctx, 0xFFFFFFFF, 8), "did not get sys_ctx");
}

TEST_F(RecordingRuntime, NumbersHaveTheLowestByteFirst) {
    Handle h;
    std::uint64_t value = 0x1122334455667788, back = 0;
    std::array<std::uint8_t, 8> bytes{};
    EXPECT_EQ(u_int64_marshal(h, 1, bytes.data(), &value, 8, &err), 8u);
    EXPECT_EQ(bytes, (std::array<std::uint8_t, 8>{0x88, 0x77, 0x66, 0x55, 0x44, 0x33, 0x22, 0x11}));
    EXPECT_EQ(u_int64_unmarshal(h, 1, bytes.data(), &back, 8, 0, &err), 8u);
    EXPECT_EQ(back, value);
    std::uint16_t narrow = 0;
    EXPECT_EQ(u_int16_unmarshal(h, 1, bytes.data(), &narrow, 8, 0, &err), 2u);
    EXPECT_EQ(narrow, 0x7788);
    EXPECT_EQ(err, 0u);

    EXPECT_EQ(u_int32_len(h, 1, nullptr), 4u);
    bytes.fill(0);
    std::uint32_t word = 0xFFFFFFFF;
    EXPECT_EQ(u_int32_marshal(h, 1, bytes.data(), &word, 3, &err), 0u);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EMSGSIZE));
    EXPECT_EQ(u_int32_marshal(h, 1, bytes.data(), &word, 8, &err), 0u);
    EXPECT_EQ(bytes, (std::array<std::uint8_t, 8>{}));
    err = 0;
    h.knobs().errors["u_int32_marshal"] = 5;
    EXPECT_EQ(u_int32_marshal(h, 1, bytes.data(), &word, 8, &err), 0u);
    EXPECT_EQ(err, 5u);
}

TEST_F(RecordingRuntime, IntegersReadAndStore) {
    Handle h;
    std::uint8_t field = 3;
    const std::uint8_t source = 9;
    EXPECT_EQ(u_int8_get(h, 1, &field, &err), &field);
    EXPECT_EQ(u_int8_get(h, 1, nullptr, &err), nullptr);
    EXPECT_EQ(u_int8_get_value(h, 1, nullptr, &err), 0u);
    EXPECT_EQ(err, 0u);
    u_int8_set(h, 1, &field, &source, &err);
    EXPECT_EQ(u_int8_get_value(h, 1, &field, &err), 9u);
    u_int8_set_value(h, 1, nullptr, 1, &err);
    EXPECT_NE(err, 0u);
    EXPECT_EQ(u_int8_get(h, 1, &field, &err), nullptr);
    u_int8_set_value(h, 1, &field, 1, &err);
    EXPECT_EQ(field, 9u);
    EXPECT_EQ(u_int8_backpropagate(h, 1, &field, nullptr), 0u);
    recording::mark_integer(&field);
    EXPECT_EQ(u_int8_backpropagate(h, 1, &field, nullptr), 1u);
    EXPECT_EQ(u_int8_backpropagate(h, 1, &field, nullptr), 0u);
    std::uint8_t other = 9;
    EXPECT_EQ(u_int8_hash(&field, 4), u_int8_hash(&other, 4));
    EXPECT_NE(u_int8_hash(&field, 4), u_int8_hash(&field, 5));
    other = 8;
    EXPECT_NE(u_int8_hash(&field, 4), u_int8_hash(&other, 4));
}

TEST_F(RecordingRuntime, BooleansAreThreeBytes) {
    Handle h;
    mirk_boolean field{}, back{};
    const std::uint64_t live = _mirk_boolean_type_info_internal.variant_info->entries[0].num_live;
    mirk_boolean_initialize(h, 1, &field, &_mirk_boolean_type_info_internal, 1, 0, 4, nullptr, &err);
    EXPECT_EQ(field.obj_flag, 4u);
    EXPECT_EQ(_mirk_boolean_type_info_internal.variant_info->entries[0].num_live, live + 1);
    mirk_boolean_set_value(h, 1, &field, 6, &err);
    std::uint8_t bytes[3];
    EXPECT_EQ(mirk_boolean_len(h, 1, nullptr), 3u);
    EXPECT_EQ(mirk_boolean_marshal(h, 1, bytes, &field, 3, &err), 3u);
    EXPECT_EQ(mirk_boolean_unmarshal(h, 1, bytes, &back, 3, 0, &err), 3u);
    EXPECT_EQ(back.value, 6u);
    EXPECT_EQ(mirk_boolean_compare(&field, &back), 0);
    EXPECT_EQ(mirk_boolean_hash(&field, 1), mirk_boolean_hash(&back, 1));
    back.value = 0;
    EXPECT_GT(mirk_boolean_compare(&field, &back), 0);
    EXPECT_LT(mirk_boolean_compare(&back, &field), 0);
    EXPECT_EQ(mirk_boolean_backpropagate(h, 1, &field, nullptr), 1u);
    EXPECT_EQ(mirk_boolean_backpropagate(h, 1, &field, nullptr), 0u);
    EXPECT_EQ(err, 0u);
    bytes[1] = 0;
    EXPECT_EQ(mirk_boolean_unmarshal(h, 1, bytes, &back, 3, 0, &err), 0u);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EBADMSG));
}

TEST_F(RecordingRuntime, AddressesCarryTheirStates) {
    struct {
        ip_address address;
        std::uint8_t states[7];
    } sender{{}, {1, 2, 3, 4, 5, 6, 7}}, receiver{};
    Handle tracking({.tracking = Tracking::on}), plain;
    for (ip_address *address : {&sender.address, &receiver.address}) {
        ip_address_initialize(tracking, 1, address, &_ip_address_type_info_internal, 1, 1, 4, nullptr, &err);
        tracking.set_state_offset(address, sizeof(ip_address));
    }
    sender.address.af = 10;
    sender.address.scope = 0x1234;
    for (std::uint32_t i = 0; i < 4; ++i) sender.address.word[i] = 0x01020304 + i;
    std::uint8_t bytes[30];
    EXPECT_EQ(ip_address_len(tracking, 1, &sender.address), 30u);
    EXPECT_EQ(ip_address_len(tracking, 1, nullptr), 23u);
    ASSERT_EQ(ip_address_marshal(tracking, 1, bytes, &sender.address, 30, &err), 30u);
    ASSERT_EQ(ip_address_unmarshal(tracking, 1, bytes, &receiver.address, 30, 0, &err), 30u);
    EXPECT_EQ(ip_address_compare(&sender.address, &receiver.address), 0);
    EXPECT_EQ(std::memcmp(sender.states, receiver.states, 7), 0);
    // A handle that does not track skips them.
    ip_address untracked{};
    EXPECT_EQ(ip_address_unmarshal(plain, 1, bytes, &untracked, 30, 0, &err), 30u);
    EXPECT_EQ(ip_address_compare(&sender.address, &untracked), 0);
    EXPECT_EQ(ip_address_marshal(plain, 1, bytes, &untracked, 23, &err), 23u);
    EXPECT_EQ(ip_address_unmarshal(tracking, 1, bytes, &receiver.address, 23, 0, &err), 23u);
    untracked.word[3] = 0;
    EXPECT_GT(ip_address_compare(&sender.address, &untracked), 0);
    EXPECT_NE(ip_address_hash(&sender.address, 1), ip_address_hash(&untracked, 1));
    EXPECT_EQ(err, 0u);
}

TEST_F(RecordingRuntime, AddressesHoldChosenOids) {
    Handle h;
    ip_address address{};
    void *oids[2] = {};
    h.knobs().address_oids = {reinterpret_cast<void *>(0x10), reinterpret_cast<void *>(0x20)};
    EXPECT_EQ(ip_address_get_oid_count(h, 1, &address, &err), 2u);
    ip_address_get_object_references(h, 1, &address, oids, 2, &err);
    EXPECT_EQ(oids[1], reinterpret_cast<void *>(0x20));
    h.knobs().oid_count_errors[oids[1]] = 5;
    mirklib_lookup_and_update_oid_ref_count(h, 1, oids[0], 0, &err);
    EXPECT_EQ(err, 0u);
    mirklib_lookup_and_update_oid_ref_count(h, 1, oids[1], 0, &err);
    EXPECT_EQ(err, 5u);
    err = 0;
    h.knobs().address_oid_count = 70;
    h.knobs().address_references_error = 6;
    EXPECT_EQ(ip_address_get_oid_count(h, 1, &address, &err), 70u);
    ip_address_get_object_references(h, 1, &address, oids, 2, &err);
    EXPECT_EQ(err, 6u);
}

TEST_F(RecordingRuntime, FrameItems) {
    Handle h;
    std::uint8_t bytes[12] = {};
    std::uint32_t jump = 0x01020304;
    EXPECT_EQ(_mirk_variant_jump_marshal(h, 1, bytes, &jump, 4, &err), 4u);
    EXPECT_EQ(bytes[0], 4u);
    jump = 0;
    EXPECT_EQ(_mirk_variant_jump_unmarshal(h, 1, bytes, &jump, 4, &err), 4u);
    EXPECT_EQ(jump, 0x01020304u);
    std::int8_t variant = -3;
    EXPECT_EQ(_mirk_instance_variant_marshal(h, 1, bytes, &variant, 1, &err), 1u);
    variant = 0;
    EXPECT_EQ(_mirk_instance_variant_unmarshal(h, 1, bytes, &variant, 1, &err), 1u);
    EXPECT_EQ(variant, -3);

    mirk_object object{};
    void *value = nullptr;
    std::uint8_t byte = 0;
    EXPECT_EQ(mirklib_get_ra_data(h, 1, &object, &value, &byte), 0u);
    EXPECT_EQ(value, nullptr);
    mirklib_update_ra_all(h, 1, &object, reinterpret_cast<void *>(0xABCDEF), 9);
    h.knobs().ra_result = 5;
    EXPECT_EQ(mirklib_get_ra_data(h, 1, &object, &value, &byte), 5u);
    EXPECT_EQ(_mirk_instance_ra_data_marshal(h, 1, bytes, &value, &byte, 12, &err), 12u);
    value = nullptr;
    byte = 0;
    EXPECT_EQ(_mirk_instance_ra_data_unmarshal(h, 1, bytes, &value, &byte, 12, &err), 12u);
    EXPECT_EQ(value, reinterpret_cast<void *>(0xABCDEF));
    EXPECT_EQ(byte, 9u);
    EXPECT_EQ(err, 0u);
}

TEST_F(RecordingRuntime, MessageHeaders) {
    Handle h;
    mirk_message_header header{0xBC, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, 1, 0x01020304, 43}, back{};
    std::uint8_t frame[28] = {};
    _mirk_message_header_marshal(h, 1, frame, &header, 27, &err);
    EXPECT_EQ(frame[0], 43u);
    EXPECT_EQ(frame[27], 0u);
    EXPECT_EQ(_mirk_message_header_unmarshal(h, 1, frame, &back, 28, &err), 27u);
    EXPECT_EQ(std::memcmp(&header, &back, sizeof header), 0);
    EXPECT_EQ(_mirk_message_header_unmarshal(h, 1, frame, &back, 26, &err), 0u);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EMSGSIZE));
    err = 0;
    frame[26] = 0;
    EXPECT_EQ(_mirk_message_header_unmarshal(h, 1, frame, &back, 28, &err), 0u);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EBADMSG));
}

TEST_F(RecordingRuntime, DomainReturnsChosenVariants) {
    Handle h;
    mirk_type_info *type = &_ip_address_type_info_internal;
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, nullptr, &err), 0);
    EXPECT_EQ(mirk_domain_lookup_message_ok(h, &h->domain, type, &err), 1u);
    h.knobs().variants["ip_address"] = {-2, 0};
    h.knobs().messages["ip_address"] = {0, 6};
    EXPECT_EQ(mirk_domain_lookup_variant(h, &h->domain, type, &err), -2);
    EXPECT_EQ(recording::lines().back(), "mirk_domain_lookup_variant ip_address");
    EXPECT_EQ(mirk_domain_lookup_message_ok(h, &h->domain, type, &err), 0u);
    EXPECT_EQ(err, 6u);
    err = 0;
    mirk_object object{};
    mirklib_adjust_variant(h, 1, &object, type, 0, &err);
    EXPECT_EQ(object.variant, -2);
    mirklib_adjust_variant(h, 1, nullptr, nullptr, 0, &err);

    mirk_store_epoch_err(h, EIDRM, &err);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EIDRM));
    err = 0;
    h.knobs().slot_gets_eidrm = false;
    mirk_store_epoch_err(h, EIDRM, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EIDRM));
    mirk_store_epoch_err(h, EBADE, &err);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EBADE));
}

TEST_F(RecordingRuntime, StateOffsetsAndMarks) {
    Handle h({.tracking = Tracking::on});
    auto *object = static_cast<mirk_object *>(h->obj_alloc(h->mem_ctx, 1, 40));
    *object = {&_ip_address_type_info_internal, 0, 0, 0};
    EXPECT_EQ(mirklib_get_sttr_offset(h, 1, object), 40u);
    mirklib_update_sttr_offset(h, 1, object, 123);
    EXPECT_EQ(mirklib_get_sttr_offset(h, 1, object), 123u);
    EXPECT_EQ(object->obj_flag, 64u);
    h.knobs().hd_destroy_error = 5;
    mirk_hd_mapping_destroy(h, 1, object, &err);
    EXPECT_EQ(err, 5u);
    EXPECT_EQ(h.state_offset(object), 123u);
    mirk_set_instance_modified(object, 1, 0, 1);
    EXPECT_EQ(mirk_get_instance_modified(object, 0, 1), 1u);
    mirk_set_instance_modified(object, 1, 0, 0);
    EXPECT_FALSE(recording::modified(object));
    EXPECT_EQ(mirk_get_instance_variant(nullptr, 1, 0), 0);
    h->obj_free(h->mem_ctx, 1, object);
    EXPECT_EQ(h.mappings(), 0u);
}

TEST_F(RecordingRuntime, PrivateTypes) {
    Handle h({.private_types = 3});
    mirk_type_info *own = &_ip_address_type_info_internal;
    const auto init = [](mirk_handle *handle, std::uint32_t ctx_id, std::uint32_t *) {
        auto *copy = static_cast<mirk_type_info_copy *>(
            handle->sys_alloc(handle->sys_ctx, 0xFFFFFFFF, sizeof(mirk_type_info_copy)));
        *copy = {_ip_address_type_info_internal, 0, 0};
        handle->type_store_put(handle->type_store, ctx_id, copy->info.luid_text, copy);
        mirk_update_variant_info(handle, ctx_id, copy, &_ip_address_type_info_internal, 1);
    };
    EXPECT_EQ(mirk_type_info_ptr_get(h, 1, own, nullptr), own);
    recording::clear_log();
    mirk_type_info *copy = mirk_type_info_ptr_get(h, 1, own, init);
    EXPECT_EQ(recording::lines(), (Lines{"mirk_type_info_ptr_get ip_address", "sys_alloc 4294967295 288",
                                         std::string("type_store_put ") + own->luid_text + " ip_address",
                                         "mirk_update_variant_info ip_address 1"}));
    EXPECT_NE(copy, own);
    EXPECT_EQ(copy, mirk_type_info_ptr_get(h, 1, own, init));
    EXPECT_EQ(recording::address_text(copy), "ip_address(copy)");
    EXPECT_EQ(recording::address_text(&copy->variant_info->entries[-1].num_destroyed),
              "ip_address(copy)[-1].num_destroyed");
    EXPECT_EQ(copy->variant_info->entries[-128].used_length, 32u);
    EXPECT_EQ(h.private_copies(), 1u);
    EXPECT_EQ(&h.private_copy("ip_address")->info, copy);
}

TEST_F(RecordingRuntime, Bundles) {
    Handle h;
    const std::uint8_t one[16] = {1}, two[16] = {2}, three[16] = {3};
    const mirk_allowed_row table[] = {{one, "first", 0}, {two, "second", 0}, {nullptr, nullptr, 0}};
    h->bundle_table = table;
    h->send_bundle_open = 1;
    bundle_message_validate_add(h, 1, one, "any", &err);
    bundle_message_validate_add(h, 1, two, "any", &err);
    bundle_message_validate_add(h, 1, one, "any", &err);
    bundle_message_increment_count(h, two, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(h.send_bundle(), (std::vector<std::pair<std::string, std::uint32_t>>{{"first", 0}, {"second", 1}}));
    bundle_message_validate_add(h, 1, three, "any", &err);
    EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
    bundle_send_message_list_destroy(h, 1, &err);
    EXPECT_EQ(h->send_bundle_open, 0u);
    EXPECT_EQ(h->send_bundle_list.next, &h->send_bundle_list);

    h->recv_bundle_open = 1;
    EXPECT_EQ(mirklib_is_accumulating_bundle(h), 1u);
    h.file_received("a");
    h.file_received("b");
    recording::clear_log();
    bundle_receive_message_list_destroy(h, 1, &err);
    EXPECT_EQ(recording::lines(),
              (Lines{"bundle_receive_message_list_destroy 2", "destroy_received a", "destroy_received b"}));
    EXPECT_EQ(mirklib_is_accumulating_bundle(h), 0u);
    h->recv_bundle_list = {nullptr, nullptr};
    bundle_receive_message_list_destroy(h, 1, &err);
    EXPECT_EQ(h->recv_bundle_list.prev, &h->recv_bundle_list);
}

TEST_F(RecordingRuntime, Documents) {
    Handle h;
    Element document{"doc", "", {}};
    Element &a = document.add("x").add("a");
    a.add("b", "0x1F");
    Element &second = a.add("b");
    second.add("c", "text");
    a.add("n", "65536");
    a.add("empty");
    auto count = [&](const char *path) {
        std::uint32_t number = 99;
        const std::uint32_t error = xml_get_element_nodecount(&document, path, &number);
        return error ? -static_cast<int>(error) : static_cast<int>(number);
    };
    EXPECT_EQ(count("//doc"), 1);
    EXPECT_EQ(count("//a/b"), 2);
    EXPECT_EQ(count("//a/b[2]/c"), 1);
    EXPECT_EQ(count("//a/b[3]/c"), 0);
    EXPECT_EQ(count("//x/b"), 0);
    EXPECT_EQ(count("//b"), 2);
    for (const char *bad : {"a", "/a", "//", "//a/", "//a//b", "//a/b[0]", "//a/b[1"}) EXPECT_EQ(count(bad), -EINVAL);

    std::uint16_t field = 0;
    u_int16_from_xml(h, 1, "//a/b", &document, &field, &err, nullptr, 0);
    EXPECT_EQ(field, 0x1F);
    EXPECT_EQ(err, 0u);
    u_int16_from_xml(h, 1, "//a/n", &document, &field, &err, nullptr, 0);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
    err = 0;
    u_int16_from_xml(h, 1, "//a/absent", &document, &field, &err, nullptr, 0);
    EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
    EXPECT_EQ(field, 0x1F);

    std::uint32_t length = 99;
    char value[5];
    EXPECT_EQ(xml_get_element_value(&document, "//c", nullptr, 0, &length), static_cast<std::uint32_t>(ENOSPC));
    EXPECT_EQ(length, 4u);
    EXPECT_EQ(xml_get_element_value(&document, "//c", value, 4, nullptr), static_cast<std::uint32_t>(ENOSPC));
    EXPECT_EQ(xml_get_element_value(&document, "//c", value, 5, nullptr), 0u);
    EXPECT_STREQ(value, "text");
    EXPECT_EQ(xml_get_element_value(&document, "//empty", nullptr, 0, &length), 0u);
    EXPECT_EQ(xml_get_element_value(&document, "//absent", value, 5, nullptr), static_cast<std::uint32_t>(ENOENT));
    recording::fail_xml("//c", 5);
    EXPECT_EQ(xml_get_element_value(&document, "//c", value, 5, nullptr), 5u);
    recording::fail_xml("//c", 0);
    EXPECT_EQ(count("//c"), 1);
}

TEST_F(RecordingRuntime, TextForms) {
    Handle h;
    std::array<char, 64> buffer{};
    auto text = [&](std::uint32_t length) { return std::string(buffer.data(), length); };
    std::uint32_t number = 255;
    EXPECT_EQ(text(u_int32_print(h, 1, buffer.data(), 2, "size", &number, 64, &err)), "  size = 0xFF;\n");
    EXPECT_EQ(text(u_int32_to_xml(h, 1, "size", buffer.data(), &number, 64, 2, &err)), "<size s='2'>0xFF</size>\n");
    EXPECT_EQ(text(var_string_print(h, 1, buffer.data(), 0, "s", "a b%", 64, 4, &err)), "s = 'a%20b%25';\n");
    EXPECT_EQ(text(start_tag(h, 1, buffer.data(), "n", 64, 0, &err)), "<n s='0'>\n");
    EXPECT_EQ(text(end_tag(h, 1, buffer.data(), "n", 64, &err)), "</n>\n");
    EXPECT_EQ(text(xml_enum_print(h, 1, buffer.data(), "<E/>", 4, 4, &err)), "<E/>");
    EXPECT_EQ(mirk_print_space(h, 1, buffer.data(), 3, 3, &err), 3u);
    EXPECT_EQ(text(mirk_snprintf(h, 1, buffer.data(), 5, &err, "%s-%d", "ab", 12)), "ab-12");
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(mirk_snprintf(h, 1, buffer.data(), 4, &err, "%s-%d", "ab", 12), 0u);
    EXPECT_EQ(err, recording::text_overflow_error);
}

TEST_F(RecordingRuntime, ProcessWideStateCanBeSet) {
    EXPECT_EQ(mirklib_msg_recorder_get_state(), 0u);
    recording::set_recorder(1, stderr);
    EXPECT_EQ(mirklib_msg_recorder_get_handle(), stderr);
    recording::set_recorder(0, nullptr);
    void *block = mirklib_malloc(nullptr, 4, 16);
    EXPECT_EQ(recording::live_mallocs(), 1u);
    mirklib_free(nullptr, 4, block);
    recording::fail_malloc();
    EXPECT_EQ(mirklib_malloc(nullptr, 4, 16), nullptr);
    recording::fail_malloc(false);
    EXPECT_EQ(recording::live_mallocs(), 0u);

    const auto handler = [](mirk_handle *, std::uint32_t, void *, std::uint32_t *) {};
    EXPECT_EQ(veld_intf_bundle_handler_register(handler), nullptr);
    EXPECT_NE(recording::sibling_handler("intf"), nullptr);
    EXPECT_EQ(recording::sibling_handler("view"), nullptr);
    EXPECT_NE(veld_intf_bundle_handler_unregister(), nullptr);
    EXPECT_EQ(recording::sibling_handler("intf"), nullptr);
    EXPECT_EQ(std::string(message_ui_req_msg_name), "message ui_req_msg");
}

}  // namespace
