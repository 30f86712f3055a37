// The static description of each type, its private copies, and the list of modules that refers to both.
#include <cerrno>
#include <cstdarg>
#include <set>

#include "lumo_ui_tarn.h"
#include "values.h"

using namespace families;

namespace {

const mirk_module *this_module() {
    for (const mirk_module *m = mirk_module_tot_root.first; m != nullptr; m = m->next) {
        if (std::string(m->name) == "lumo_ui_tarn") return m;
    }
    return nullptr;
}

// In the order of the table: records, enumerations, messages.
struct Described {
    std::string name, kind, luid_text;
    std::uint32_t used_length, alloc_slop;
};
std::vector<Described> described() {
    std::vector<Described> all;
    for (const auto &r : reference::records()) {
        all.push_back({r.name, "type", reference::luid_text(r.luid), r.used, r.slop});
    }
    for (const auto &e : reference::enumerations()) {
        all.push_back({e.name, "enum", reference::luid_text(e.luid), 16, 0});
    }
    for (const auto &m : reference::messages()) {
        all.push_back({m.name, "message", reference::luid_text(m.luid), 40, 0});
    }
    return all;
}

TEST(TypeTable, IsLinkedInTheListOfModules) {
    const mirk_module *found = this_module();
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(mirk_module_tot_root.count, 1u);
    EXPECT_EQ(mirk_module_tot_root.first, found);
    EXPECT_EQ(mirk_module_tot_root.last, &found->next);
    EXPECT_EQ(found->prev, &mirk_module_tot_root.first);
    EXPECT_EQ(found->next, nullptr);
}

TEST(TypeTable, DescribesEachTypeOnce) {
    const mirk_module *found = this_module();
    ASSERT_NE(found, nullptr);
    const std::vector<Described> all = described();
    for (std::size_t i = 0; i < all.size(); ++i) {
        SCOPED_TRACE(all[i].name);
        const mirk_type_info *type = found->types[i];
        ASSERT_NE(type, nullptr);
        EXPECT_EQ(type->magic, 0xbeeff00du);
        EXPECT_EQ(all[i].name, type->name);
        EXPECT_EQ(all[i].kind, type->kind);
        EXPECT_EQ(all[i].luid_text, type->luid_text);
        EXPECT_STREQ(type->module, "lumo_ui_tarn");
        EXPECT_EQ(type->reserved_index, -1);
        EXPECT_EQ(type->plain_counters, 0u);
        ASSERT_NE(type->variant_info, nullptr);
        EXPECT_EQ(type->variant_info->n_variants, 1);
        for (int variant = -128; variant <= 0; ++variant) {
            EXPECT_EQ(entry(*type, variant).variant_word, 0u);
            EXPECT_EQ(entry(*type, variant).used_length, all[i].used_length);
            EXPECT_EQ(entry(*type, variant).alloc_slop, all[i].alloc_slop);
        }
        reference::Luid luid;
        std::memcpy(luid.data(), type->luid, 16);
        EXPECT_EQ(reference::luid_text(luid), type->luid_text);
        // Text fields are padded with NULs.
        for (std::size_t k = all[i].name.size(); k < sizeof type->name; ++k) EXPECT_EQ(type->name[k], '\0');
    }
    EXPECT_EQ(found->types[all.size()], nullptr);
}

TEST(TypeTable, TheIndexCapKeepsNegativeVariants) {
    for (int variant = -128; variant < 128; ++variant) {
        const auto v = static_cast<std::int8_t>(variant);
        each_record([&](const RecordOperations &r) { EXPECT_EQ(r.variant_data_index_cap(v), variant < 0 ? v : 0); });
        for (const auto &e : tarn::reflect::enumerations()) EXPECT_EQ(e.variant_data_index_cap(v), variant < 0 ? v : 0);
    }
}

TEST(PrivateTypes, ASecondInitializationAllocatesNothing) {
    Handle h({.tracking = Tracking::none, .private_types = 3});
    std::uint32_t err = 0;
    Events events(h);
    lumo_ui_tarn_typeinfo_initialize(h, id, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_SYS_ALLOCATED), described().size());
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_TYPE_PUT), described().size());
    for (const auto &e : events.of(MIRK_PLATFORM_TESTING_SYS_ALLOCATED)) {
        EXPECT_EQ(e.value, 0xFFFFFFFF);
        EXPECT_EQ(e.size, sizeof(mirk_type_info_copy));
    }
    for (const auto &e : events.of(MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE)) EXPECT_EQ(e.value, 1);
    events.all.clear();
    lumo_ui_tarn_typeinfo_initialize(h, id, &err);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_SYS_ALLOCATED), 0u);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_TYPE_PUT), 0u);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE), described().size());
    for (const auto &e : events.of(MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE)) EXPECT_EQ(e.value, 0);
}

TEST(PrivateTypes, ACopyEqualsTheRecordExceptForItsOwnFields) {
    Handle h({.tracking = Tracking::none, .private_types = 3});
    std::uint32_t err = 0;
    lumo_ui_tarn_typeinfo_initialize(h, id, &err);
    const mirk_module *found = this_module();
    for (std::size_t i = 0; i < described().size(); ++i) {
        const mirk_type_info *own = found->types[i];
        const mirk_type_info_copy *copy = h->type_store_get(h->type_store, id, own->luid_text);
        ASSERT_NE(copy, nullptr);
        EXPECT_EQ(copy->info.plain_counters, 3u);
        EXPECT_EQ(copy->info.reserved_index, -1);
        EXPECT_EQ(copy->store_word_0, 0u);
        EXPECT_EQ(copy->store_word_1, 0u);
        EXPECT_NE(copy->info.variant_info, own->variant_info);
        EXPECT_EQ(std::memcmp(copy, own, offsetof(mirk_type_info, reserved_index)), 0);
    }
}

TEST(PrivateTypes, TheSlotIsIgnoredAndTheLastErrorIsKept) {
    Handle h({.tracking = Tracking::none, .private_types = 1});
    std::uint32_t err = EIO;
    h->last_error = 9;
    Events events(h);
    lumo_ui_tarn_typeinfo_initialize(h, id, &err);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_TYPE_PUT), described().size());
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_CLEAR_ERROR), 0u);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
    EXPECT_EQ(h->last_error, 9u);
}

TEST(PrivateTypes, AFailedInitializationIsCompletedLater) {
    Handle h({.tracking = Tracking::none, .private_types = 1});
    std::uint32_t err = 0;
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_SYS_ALLOC, 10, 0);
    Events events(h);
    lumo_ui_tarn_typeinfo_initialize(h, id, &err);
    EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_TYPE_PUT), 9u);
    const mirk_module *found = this_module();
    for (std::size_t i = 0; i < described().size(); ++i) {
        EXPECT_EQ(h->type_store_get(h->type_store, id, found->types[i]->luid_text) != nullptr, i < 9);
    }
    events.all.clear();
    err = 0;
    lumo_ui_tarn_typeinfo_initialize(h, id, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_TYPE_PUT), described().size() - 9);
    const auto updates = events.of(MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE);
    ASSERT_EQ(updates.size(), described().size());
    for (std::size_t i = 0; i < described().size(); ++i) EXPECT_EQ(updates[i].value, i < 9 ? 0 : 1);
}

TEST(PrivateTypes, ARecordWithoutVariantsIsCopiedWithoutAnUpdate) {
    Handle h({.tracking = Tracking::none, .private_types = 1});
    std::uint32_t err = 0;
    mirk_variant_info *kept = _lumo_tarn_dp_tc_type_info_internal.variant_info;
    _lumo_tarn_dp_tc_type_info_internal.variant_info = nullptr;
    Events events(h);
    lumo_ui_tarn_typeinfo_initialize(h, id, &err);
    _lumo_tarn_dp_tc_type_info_internal.variant_info = kept;
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_TYPE_PUT), described().size());
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE), 49u);
}

TEST(PrivateTypes, InstancesPointToTheCopies) {
    Handle h({.tracking = Tracking::on, .private_types = 1});
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        EXPECT_EQ(header(object)->tinfo, &h->type_store_get(h->type_store, id, r.type->luid_text)->info);
        for (const MemberOperations &m : r.members) {
            if (m.member->kind != Kind::record && m.member->kind != Kind::enumeration) continue;
            const mirk_type_info *own = m.member->kind == Kind::record
                                            ? nested_record(m).type
                                            : tarn::reflect::operations_of(*m.member->enumeration).type;
            EXPECT_EQ(header(at(r, object, m))->tinfo, &h->type_store_get(h->type_store, id, own->luid_text)->info);
        }
        r.destroy(h, id, object);
    });
}

std::vector<std::string> printed;
int print(const char *format, ...) {
    char line[256];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    printed.emplace_back(line);
    return length;
}

TEST(VariantDump, PrintsTheSizesOfAllTypesInOrder) {
    printed.clear();
    lumo_ui_tarn_type_variant_dump(print);
    std::vector<std::string> expected;
    for (const Described &d : described()) {
        expected.push_back("n_variants 1\n");
        expected.push_back("variant 0 used length " + std::to_string(d.used_length) + " alloc slop " +
                           std::to_string(d.alloc_slop) + "\n");
    }
    EXPECT_EQ(printed, expected);
}

TEST(VariantDump, TracesATypeWithoutVariantsAndContinues) {
    Handle h;
    record("lumo_tarn_dp_tc").destroy(h, id, record("lumo_tarn_dp_tc").create(h, id));
    printed.clear();
    mirk_variant_info *kept = _lumo_tarn_dp_tc_type_info_internal.variant_info;
    _lumo_tarn_dp_tc_type_info_internal.variant_info = nullptr;
    Trace trace;
    lumo_ui_tarn_type_variant_dump(print);
    _lumo_tarn_dp_tc_type_info_internal.variant_info = kept;
    EXPECT_EQ(printed.size(), 2 * (described().size() - 1));
    EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): type variant cached info is NULL during usage dump"}));
}

void some_handler(mirk_handle *, std::uint32_t, void *, std::uint32_t *) {}
void other_handler(mirk_handle *, std::uint32_t, void *, std::uint32_t *) {}

TEST(BundleHandler, RegisteringReturnsThePreviousHandler) {
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_register(some_handler), nullptr);
    EXPECT_EQ(lumo_ui_tarn_bundle_registered_handler, some_handler);
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_register(other_handler), some_handler);
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_unregister(), other_handler);
    EXPECT_EQ(lumo_ui_tarn_bundle_registered_handler, nullptr);
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_unregister(), nullptr);
}

TEST(BundleHandler, DoesNotChangeTheVariablesOfBundles) {
    lumo_ui_tarn_bundle_handler_register(some_handler);
    for (const auto &b : tarn::reflect::bundles()) EXPECT_EQ(*b.registered_handler, nullptr);
    lumo_ui_tarn_bundle_handler_unregister();
}

TEST(TypesDeathTest, AnObjectWithoutATypeAborts) {
    // Without a copy and without an answer from the runtime there are no counters.
    Handle h;
    alignas(8) std::uint8_t object[64] = {};
    std::uint32_t err = 0;
    EXPECT_EXIT(record("lumo_tarn_debug_setting").initialize(h, id, object, nullptr, 1, 0, 0, nullptr, &err),
                testing::KilledBySignal(SIGABRT), "\\(FATAL\\): varinfo is NULL");
}

}  // namespace
