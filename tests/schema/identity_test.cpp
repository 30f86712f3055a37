// Names, identities and orders of the schema, compared with the reference's own tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "reference/tables.h"
#include "schema/catalogue.h"

namespace {

using namespace tarn;

std::string text_of(const schema::Luid &luid) { return luid.text.data(); }

void expect_same(const schema::Luid &luid, const reference::Luid &expected) {
    EXPECT_EQ(luid.bytes, expected);
    EXPECT_EQ(text_of(luid), reference::luid_text(expected));
}

TEST(Identity, OfEveryRecord) {
    ASSERT_EQ(schema::records.size(), reference::records().size());
    for (std::size_t i = 0; i < schema::records.size(); ++i) {
        EXPECT_EQ(schema::records[i]->name, reference::records()[i].name);
        expect_same(schema::records[i]->luid, reference::records()[i].luid);
    }
}

TEST(Identity, OfEveryEnumeration) {
    ASSERT_EQ(schema::enumerations.size(), reference::enumerations().size());
    for (std::size_t i = 0; i < schema::enumerations.size(); ++i) {
        const reference::EnumerationTable &expected = reference::enumerations()[i];
        EXPECT_EQ(schema::enumerations[i]->name, expected.name);
        expect_same(schema::enumerations[i]->luid, expected.luid);
        const auto &names = schema::enumerations[i]->enumerators;
        EXPECT_TRUE(std::equal(names.begin(), names.end(), expected.enumerators.begin(), expected.enumerators.end()));
    }
}

TEST(Identity, OfEveryMessage) {
    ASSERT_EQ(schema::messages.size(), reference::messages().size());
    for (std::size_t i = 0; i < schema::messages.size(); ++i) {
        const reference::MessageTable &expected = reference::messages()[i];
        EXPECT_EQ(schema::messages[i]->name, expected.name);
        EXPECT_EQ(schema::messages[i]->payload.name, expected.payload);
        expect_same(schema::messages[i]->luid, expected.luid);
    }
}

TEST(Identity, OfEveryControlMessage) {
    ASSERT_EQ(schema::bundles.size(), reference::bundles().size());
    for (std::size_t i = 0; i < schema::bundles.size(); ++i) {
        const reference::BundleTable &expected = reference::bundles()[i];
        EXPECT_EQ(schema::bundles[i]->name, expected.name);
        EXPECT_EQ(schema::bundles[i]->message.name, expected.message);
        expect_same(schema::bundles[i]->start, expected.start);
        expect_same(schema::bundles[i]->abort, expected.abort);
        expect_same(schema::bundles[i]->commit, expected.commit);
    }
}

TEST(Identity, AllAreUnique) {
    std::set<std::string> types, names, catalogue;
    for (const auto *record : schema::records) types.insert(text_of(record->luid)), names.emplace(record->name);
    for (const auto *e : schema::enumerations) types.insert(text_of(e->luid)), names.emplace(e->name);
    for (const auto *message : schema::messages) {
        types.insert(text_of(message->luid)), names.emplace(message->name);
        catalogue.insert(text_of(message->luid));
    }
    const std::size_t all_types = schema::records.size() + schema::enumerations.size() + schema::messages.size();
    const std::size_t controls = 3 * schema::bundles.size();
    EXPECT_EQ(types.size(), all_types);
    EXPECT_EQ(names.size(), all_types);
    for (const auto *bundle : schema::bundles) {
        for (const auto *luid : {&bundle->start, &bundle->abort, &bundle->commit}) catalogue.insert(text_of(*luid));
    }
    EXPECT_EQ(catalogue.size(), schema::messages.size() + controls);
    types.merge(catalogue);
    EXPECT_EQ(types.size(), all_types + controls);
}

TEST(Identity, TwoBundlesShareAMessageAndNoOther) {
    std::multiset<std::string_view> admitted;
    for (const auto *bundle : schema::bundles) admitted.insert(bundle->message.name);
    EXPECT_EQ(admitted.count("lumo_tarn_debug_setting_msg"), 2u);
    for (const auto *message : schema::messages) {
        EXPECT_GE(admitted.count(message->name), 1u) << message->name;
    }
}

TEST(Identity, EveryMemberIsOfTheTypeThatTheReferenceSays) {
    for (std::size_t i = 0; i < schema::records.size(); ++i) {
        const schema::Record &record = *schema::records[i];
        const reference::RecordTable &expected = reference::records()[i];
        ASSERT_EQ(record.members.size(), expected.members.size()) << record.name;
        for (std::size_t k = 0; k < record.members.size(); ++k) {
            const schema::Member &m = record.members[k];
            SCOPED_TRACE(std::string(record.name) + "." + std::string(m.name));
            EXPECT_EQ(m.name, expected.members[k].name);
            const std::string &type = expected.members[k].type;
            if (m.record != nullptr) {
                EXPECT_EQ(m.record->name, type);
            } else if (m.enumeration != nullptr) {
                EXPECT_EQ(m.enumeration->name, type);
            } else if (is_integer(m.kind)) {
                EXPECT_EQ(type, "u_int" + std::to_string(8 * schema::storage_size(m)));
            }
        }
    }
}

}  // namespace
