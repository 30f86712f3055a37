// Tables with one error each, and the sentence that reports it.
#include "schema/lint.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "schema/catalogue.h"

namespace {

using namespace tarn;
using schema::Kind;
using schema::Member;
using schema::Role;

constexpr schema::Luid some_luid("00000000000000000000000000000001");
constexpr std::string_view one_name[] = {"ONE"};
constexpr schema::Enumeration some_enumeration{"state", some_luid, "a state", one_name};
constexpr Member plain_members[] = {schema::u8("a", "a value")};
constexpr schema::Record some_record{"some", some_luid, "a record", plain_members,
                                     schema::keyed_by("a").called("thing")};

schema::Finding lint_of(const std::vector<Member> &members, std::string_view name = "r") {
    return lint(schema::Record{name, some_luid, "a record", members});
}

#define EXPECT_FINDING(finding, named, said)      \
    do {                                          \
        const schema::Finding found_ = (finding); \
        EXPECT_TRUE(static_cast<bool>(found_));   \
        EXPECT_EQ(found_.member, named);          \
        EXPECT_EQ(found_.sentence, said);         \
    } while (false)

TEST(Lint, FindsNothingInTheTablesOfTheCatalogue) {
    for (const schema::Record *record : schema::records) {
        const schema::Finding finding = lint(*record);
        EXPECT_FALSE(finding) << finding.record << '.' << finding.member << ": " << finding.sentence;
    }
    for (const schema::Enumeration *enumeration : schema::enumerations) {
        const schema::Finding finding = lint(*enumeration);
        EXPECT_FALSE(finding) << finding.record << ": " << finding.sentence;
    }
}

TEST(Lint, FindsNothingInARecordWithEveryKindOfMember) {
    const schema::Finding finding =
        lint_of({schema::u8("a", "x"), schema::u16("b", "x"), schema::u32("c", "x"), schema::u64("d", "x"),
                 schema::boolean("e", "x"), schema::address("f", "x"), schema::enumerated("g", some_enumeration, "x"),
                 schema::one("h", some_record, "x"), schema::count8("n", "x"), schema::many("i", some_record, "x"),
                 schema::count32("m", "x"), schema::many("j", some_record, "x"), schema::length("k_len", "x"),
                 schema::string("k", "x")});
    EXPECT_FALSE(finding) << finding.member << ": " << finding.sentence;
}

TEST(Lint, NamesOfRecords) {
    const std::string_view sentence = "a record's name is lower-case letters, digits and underscores";
    for (const char *name : {"", "Record", "9lives", "_hidden", "two words", "dash-ed"}) {
        EXPECT_FINDING(lint_of({schema::u8("a", "x")}, name), "", sentence);
    }
    const std::string longest(63, 'a'), too_long(64, 'a');
    EXPECT_FALSE(lint_of({schema::u8("a", "x")}, longest));
    EXPECT_FINDING(lint_of({schema::u8("a", "x")}, too_long), "", "a record's name has at most 63 characters");
}

TEST(Lint, MeaningsOfRecordsAndEnumerations) {
    const schema::Finding record = lint(schema::Record{"r", some_luid, "", plain_members});
    EXPECT_EQ(record.sentence, "a record has a meaning");
    EXPECT_EQ(record.record, "r");
    const schema::Finding enumeration = lint(schema::Enumeration{"e", some_luid, "", one_name});
    EXPECT_EQ(enumeration.sentence, "an enumeration has a meaning");
    EXPECT_EQ(enumeration.record, "e");
}

TEST(Lint, NumberOfMembers) {
    EXPECT_FINDING(lint_of({}), "", "a record has at least one member");
    std::vector<std::string> names;
    for (int i = 0; i < 65; ++i) names.push_back("m" + std::to_string(i));
    std::vector<Member> members;
    for (int i = 0; i < 64; ++i) members.push_back({names[static_cast<std::size_t>(i)], "x", Kind::u8});
    EXPECT_FALSE(lint_of(members));
    members.push_back({names[64], "x", Kind::u8});
    EXPECT_FINDING(lint_of(members), "", "a record has at most 64 members");
}

TEST(Lint, NamesAndMeaningsOfMembers) {
    EXPECT_FINDING(lint_of({schema::u8("Size", "x")}), "Size",
                   "a member's name is lower-case letters, digits and underscores");
    EXPECT_FINDING(lint_of({schema::u8("", "x")}), "", "a member's name is lower-case letters, digits and underscores");
    EXPECT_FINDING(lint_of({schema::u8("a", "x"), schema::u8("b", "")}), "b", "a member has a meaning");
    EXPECT_FINDING(lint_of({schema::u8("a", "x"), schema::u8("b", "x"), schema::u16("a", "x")}), "a",
                   "two members of one record have the same name");
}

TEST(Lint, MeaningsSayMoreThanNames) {
    const std::string_view sentence = "a meaning says more than the name of its member";
    EXPECT_FINDING(lint_of({schema::u32("duration", "duration")}), "duration", sentence);
    EXPECT_FINDING(lint_of({schema::u32("queue_size", "the size of a queue")}), "queue_size", sentence);
    EXPECT_FINDING(lint_of({schema::u32("queue_size", "size: queue")}), "queue_size", sentence);
    EXPECT_FALSE(lint_of({schema::u32("queue_size", "size of the queue, in bytes")}));
    EXPECT_FALSE(lint_of({schema::u32("duration", "durations")}));
}

TEST(Lint, WhatAMemberRefersTo) {
    const std::string_view record_rule = "a nested record or an array, and nothing else, names a record";
    EXPECT_FINDING(lint_of({Member{"a", "x", Kind::record}}), "a", record_rule);
    EXPECT_FINDING(lint_of({schema::count8("n", "x"), Member{"a", "x", Kind::array}}), "a", record_rule);
    EXPECT_FINDING(lint_of({Member{"a", "x", Kind::u32, Role::value, &some_record}}), "a", record_rule);
    const std::string_view enumeration_rule = "an enumerated member, and no other, names an enumeration";
    EXPECT_FINDING(lint_of({Member{"a", "x", Kind::enumeration}}), "a", enumeration_rule);
    EXPECT_FINDING(lint_of({Member{"a", "x", Kind::boolean, Role::value, nullptr, &some_enumeration}}), "a",
                   enumeration_rule);
}

TEST(Lint, CountsAndArrays) {
    const std::string_view order = "a count directly precedes its array";
    EXPECT_FINDING(lint_of({schema::count8("n", "x")}), "n", order);
    EXPECT_FINDING(lint_of({schema::count8("n", "x"), schema::u8("a", "x"), schema::many("b", some_record, "x")}), "n",
                   order);
    EXPECT_FINDING(lint_of({schema::many("a", some_record, "x")}), "a", "an array directly follows its count");
    EXPECT_FINDING(lint_of({schema::u8("n", "x"), schema::many("a", some_record, "x")}), "a",
                   "an array directly follows its count");
    for (const Kind kind : {Kind::u16, Kind::u64, Kind::boolean}) {
        EXPECT_FINDING(lint_of({Member{"n", "x", kind, Role::count}, schema::many("a", some_record, "x")}), "n",
                       "a count has one or four bytes");
    }
}

TEST(Lint, LengthsAndStrings) {
    const std::string_view order = "a length directly precedes its string";
    EXPECT_FINDING(lint_of({schema::length("a_len", "x")}), "a_len", order);
    EXPECT_FINDING(lint_of({schema::length("a_len", "x"), schema::u8("b", "x")}), "a_len", order);
    EXPECT_FINDING(lint_of({schema::string("a", "x")}), "a", "a string directly follows its length");
    EXPECT_FINDING(lint_of({schema::u16("a_len", "x"), schema::string("a", "x")}), "a",
                   "a string directly follows its length");
    EXPECT_FINDING(lint_of({Member{"a_len", "x", Kind::u32, Role::length}, schema::string("a", "x")}), "a_len",
                   "a length has two bytes");
    EXPECT_FINDING(lint_of({schema::length("a_length", "x"), schema::string("a", "x")}), "a_length",
                   "a length has the name of its string and _len");
}

TEST(Lint, KeysAndNamesOfElements) {
    static constexpr schema::Record unstated{"some", some_luid, "a record", plain_members};
    EXPECT_FINDING(lint_of({schema::count8("n", "x"), schema::many("a", unstated, "x")}), "a",
                   "the record of an array's elements states its key, or no_key");
    static constexpr schema::Record keyless{"some", some_luid, "a record", plain_members,
                                            schema::no_key.called("thing")};
    EXPECT_FALSE(lint_of({schema::count8("n", "x"), schema::many("a", keyless, "x")}));
    static constexpr schema::Record nameless{"some", some_luid, "a record", plain_members, schema::no_key};
    EXPECT_FINDING(lint_of({schema::count8("n", "x"), schema::many("a", nameless, "x")}), "a",
                   "the record of an array's elements states what an element is called");
}

TEST(Lint, MembersOfAKey) {
    const auto lint_of_key = [](const std::vector<Member> &members, schema::Key key) {
        return lint(schema::Record{"r", some_luid, "a record", members, key});
    };
    EXPECT_FALSE(lint_of_key({schema::u8("a", "x"), schema::address("b", "x")}, schema::keyed_by("a", "b")));
    EXPECT_FINDING(lint_of_key({schema::u8("a", "x")}, schema::keyed_by("a", "b")), "b",
                   "a key names members of its record");
    const std::string_view sentence = "a key consists of single values";
    EXPECT_FINDING(lint_of_key({schema::one("a", some_record, "x")}, schema::keyed_by("a")), "a", sentence);
    EXPECT_FINDING(lint_of_key({schema::length("a_len", "x"), schema::string("a", "x")}, schema::keyed_by("a_len")),
                   "a_len", sentence);
    EXPECT_FALSE(lint_of_key({schema::length("a_len", "x"), schema::string("a", "x")}, schema::keyed_by("a")));
}

TEST(Lint, Enumerations) {
    EXPECT_EQ(lint(schema::Enumeration{"State", some_luid, "x", one_name}).sentence,
              "an enumeration's name is lower-case letters, digits and underscores");
    EXPECT_EQ(lint(schema::Enumeration{"state", some_luid, "x", {}}).sentence,
              "an enumeration has at least one enumerator");
    static constexpr std::string_view twice[] = {"ONE", "TWO", "ONE"};
    const schema::Finding finding = lint(schema::Enumeration{"state", some_luid, "x", twice});
    EXPECT_EQ(finding.sentence, "two enumerators have the same name");
    EXPECT_EQ(finding.member, "ONE");
}

TEST(Lint, NamesAndIdentitiesAreUnique) {
    const schema::Record a{"a", "00000000000000000000000000000001", "x", plain_members};
    const schema::Record b{"b", "00000000000000000000000000000002", "x", plain_members};
    const schema::Record named_a{"a", "00000000000000000000000000000003", "x", plain_members};
    const schema::Record known_as_b{"c", "00000000000000000000000000000002", "x", plain_members};
    EXPECT_FALSE(schema::lint_identities(std::array{&a, &b}));
    EXPECT_EQ(schema::lint_identities(std::array{&a, &b, &named_a}).sentence, "two types have the same name");
    const schema::Finding finding = schema::lint_identities(std::array{&a, &b, &known_as_b});
    EXPECT_EQ(finding.sentence, "two types have the same identity");
    EXPECT_EQ(finding.record, "c");
}

TEST(Lint, ListStopsAtTheFirstFinding) {
    static constexpr Member wrong_members[] = {schema::u8("Wrong", "x")};
    const schema::Record wrong{"wrong", some_luid, "x", wrong_members};
    EXPECT_FALSE(schema::lint_each(std::array{&some_record}));
    EXPECT_EQ(schema::lint_each(std::array{&some_record, &wrong}).record, "wrong");
}

}  // namespace
