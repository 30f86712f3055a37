// Reading whole values from XML.
#include "value_support.h"

namespace {

using namespace forms;
using reference::Class;

// The value that is read back from XML: it lacks variants, RA data and states; a record without a body is as new;
// characters that no document can contain are replaced. Strings and elements are set by setters, which mark states.
reference::Record as_read(const reference::Record &value, bool tracked) {
    reference::Record result(*value.table);
    if (value.variant < 0) return result;
    for (std::size_t i = 0; i < value.members.size(); ++i) {
        const reference::Member &from = value.members[i];
        reference::Member &to = result.members[i];
        switch (value.table->members[i].cls) {
            case Class::integer:
            case Class::enumeration:
                to.number = from.number;
                break;
            case Class::boolean:
                to.number = from.number != 0 ? 1 : 0;
                break;
            case Class::address:
                reference::set_address(to.items[0], reference::get_address(from.items[0]));
                break;
            case Class::nested:
                to.items[0] = as_read(from.items[0], tracked);
                break;
            case Class::string:
                to.text = from.text;
                if (tracked && !to.text.empty()) to.state = 2;
                break;
            case Class::array:
                for (const reference::Record &item : from.items) to.items.push_back(as_read(item, tracked));
                to.element_state.assign(to.items.size(), tracked ? std::uint8_t{2} : std::uint8_t{0});
                if (tracked && !to.items.empty()) to.state = 2;
                break;
            case Class::count:
            case Class::length:
                break;
        }
    }
    return result;
}

std::string unescaped(std::string text) {
    static const std::pair<std::string, std::string> forms[] = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#13;", "\r"}, {"&amp;", "&"}};
    for (const auto &[escape, character] : forms) {
        for (std::size_t at = 0; (at = text.find(escape, at)) != text.npos; at += character.size())
            text.replace(at, escape.size(), character);
    }
    return text;
}

// Enumeration values with a name, since others are not well-formed; strings as a document can contain them.
void make_presentable(reference::Record &value, bool replace) {
    for (std::size_t i = 0; i < value.members.size(); ++i) {
        const reference::MemberTable &row = value.table->members[i];
        reference::Member &member = value.members[i];
        if (row.cls == Class::enumeration) member.number %= reference::enumeration_table(row.type).enumerators.size();
        if (replace) member.text = unescaped(reference::string_xml(member.text));
        for (reference::Record &item : member.items) make_presentable(item, replace);
    }
}

TEST(XmlReading, WrittenValuesAreReadBack) {
    for (const Tracking mode : kit::every_tracking) {
        const Handle h(mode);
        for (const RecordOperations &record : tarn::reflect::records()) {
            for (std::uint64_t seed = 1; seed <= 4; ++seed) {
                const reference::GeneratorOptions options{
                    .max_elements = 3, .states = h.tracks(), .strange = seed > 2, .printable = seed % 2 == 0};
                reference::Record value = random_value(record.record->name, seed, options);
                make_presentable(value, false);
                const std::string text = to_xml(h, Instance(h, value), record.record->name).text();
                const Instance copy(h, record);
                ASSERT_EQ(read_document(h, copy, text), 0u) << text;
                make_presentable(value, true);
                ASSERT_TRUE(bridge::same(as_read(value, h.tracks()), copy.value()));
            }
        }
    }
}

TEST(XmlReading, Utf8IsReadBack) {
    const Handle h;
    reference::Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = "\xC3\xA9<&>\"'\xE2\x82\xAC\xF0\x9F\x98\x80 \t\r\n";
    value["sub_proto_name"].text = "\xC3(\xFF\x01";
    const std::string text = to_xml(h, Instance(h, value), "lumo_tarn_cl_kesh_appl").text();
    const Instance copy(h, "lumo_tarn_cl_kesh_appl");
    EXPECT_EQ(read_document(h, copy, text), 0u);
    value["sub_proto_name"].text = "?(??";
    EXPECT_TRUE(bridge::same(value, copy.value()));
}

// A document that lacks random members, and the result of reading it. The error of an absent string stays until the
// next member, which is skipped for it; if that is a string as well, its own error replaces it.
class Partial {
public:
    Partial(std::uint64_t seed, bool tracked) : random_(seed), tracked_(tracked) {}

    std::string text;

    reference::Record element(const reference::Record &value, std::string_view name) {
        const reference::RecordTable &table = *value.table;
        reference::Record read(table);
        bool pending = false;
        text += "<" + std::string(name) + ">";
        for (std::size_t i = 0; i < value.members.size(); ++i) {
            const reference::MemberTable &row = table.members[i];
            if (row.cls == Class::count || row.cls == Class::length) {
                // Not read, so any content will do.
                if (random_.below(2) == 0) text += "<" + row.name + ">no number</" + row.name + ">";
                continue;
            }
            const bool absent = random_.below(3) == 0;
            if (row.cls == Class::string) {
                pending = absent;
                if (absent) continue;
                string(value.members[i], row, read.members[i]);
                continue;
            }
            if (!absent) member(value.members[i], row, pending, read.members[i]);
            pending = false;
        }
        text += "</" + std::string(name) + ">";
        return read;
    }

private:
    void string(const reference::Member &from, const reference::MemberTable &row, reference::Member &to) {
        text += "<" + row.name + ">" + reference::string_xml(from.text) + "</" + row.name + ">";
        to.text = from.text;
        if (tracked_ && !to.text.empty()) to.state = 2;
    }

    void member(const reference::Member &from, const reference::MemberTable &row, bool skipped, reference::Member &to) {
        reference::Member read = to;
        if (row.cls == Class::array) {
            for (const reference::Record &item : from.items) {
                read.items.push_back(element(item, row.name));
                read.element_state.push_back(tracked_ ? std::uint8_t{2} : std::uint8_t{0});
            }
            if (tracked_ && !read.items.empty()) read.state = 2;
        } else if (row.cls == Class::nested) {
            read.items[0] = element(from.items[0], row.name);
        } else {
            text += "<" + row.name + ">";
            if (row.cls == Class::address) {
                text += reference::address_text(reference::get_address(from.items[0]));
                reference::set_address(read.items[0], reference::get_address(from.items[0]));
            } else if (row.cls == Class::enumeration) {
                text += "<" + reference::enumeration_table(row.type).enumerators[from.number] + "/>";
                read.number = from.number;
            } else {
                text += std::to_string(from.number);
                read.number = from.number;
            }
            text += "</" + row.name + ">";
        }
        if (!skipped) to = read;
    }

    reference::Generator random_;
    bool tracked_;
};

TEST(XmlReading, ADocumentMayLackAnyMember) {
    for (const Tracking mode : {Tracking::none, Tracking::on}) {
        const Handle h(mode);
        for (const RecordOperations &record : tarn::reflect::records()) {
            for (std::uint64_t seed = 1; seed <= 12; ++seed) {
                const reference::Record value =
                    random_value(record.record->name, seed, {.max_elements = 2, .states = false, .printable = true});
                Partial partial(seed, h.tracks());
                const reference::Record expected = partial.element(value, record.record->name);
                const Instance read(h, record);
                ASSERT_EQ(read_document(h, read, partial.text), 0u) << partial.text;
                ASSERT_TRUE(bridge::same(expected, read.value())) << partial.text;
            }
        }
    }
}

TEST(XmlReading, NumbersAreStoredWithoutAModifiedMark) {
    const Handle h(Tracking::on);
    const Instance wexa(h, "lumo_tarn_dp_lumo_wexa_info");
    EXPECT_EQ(read_members(h, wexa, "<lumo_num>3</lumo_num><in_wexa_is_valid>true</in_wexa_is_valid>"), 0u);
    EXPECT_EQ(wexa.value().number(0), 3u);
    EXPECT_EQ(mirk_get_instance_modified(wexa.get(), 1, 0), 0u);
    EXPECT_EQ(wexa.record().type_type_backpropagate(h, id, wexa.get(), nullptr), 0u);
}

// Each allocation fails in turn: the read stops with ENOMEM, nothing is lost, and the instance can be destroyed.
TEST(XmlReading, FailedAllocationsStopTheReadAndLoseNothing) {
    for (const Tracking mode : {Tracking::none, Tracking::on}) {
        for (const bool onwards : {false, true}) {
            const Handle h(mode);
            for (const RecordOperations &record : tarn::reflect::records()) {
                // Growth with tracking may lose the vector of element states that it replaces, so one element here.
                const std::uint32_t most = h.tracks() ? 1 : 2;
                const reference::Record value = random_value(record.record->name, 5,
                                                             {.min_elements = most,
                                                              .max_elements = most,
                                                              .min_text = 1,
                                                              .max_text = 9,
                                                              .budget = 3000,
                                                              .states = false,
                                                              .printable = true});
                const std::string text = reference::toxml_cr(value, false);
                bool complete = false;
                for (std::uint64_t nth = 1; !complete; ++nth) {
                    ASSERT_LT(nth, 5000u);
                    const std::size_t before = h.live_blocks();
                    {
                        const Instance instance(h, record);
                        const std::uint64_t made =
                            mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC);
                        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, nth, onwards ? 1 : 0);
                        const std::uint32_t err = read_document(h, instance, text);
                        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 0, 0);
                        complete = mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC) - made < nth;
                        ASSERT_EQ(err, complete ? 0u : 12u) << record.record->name << " " << nth;
                        if (complete) {
                            ASSERT_TRUE(bridge::same(as_read(value, h.tracks()), instance.value()));
                        }
                        ASSERT_EQ(print(h, instance, "x", 0).err, 0u);
                    }
                    ASSERT_EQ(h.live_blocks(), before) << record.record->name << " " << nth;
                }
            }
        }
    }
}

TEST(XmlReading, AFailedGrowthLosesAtMostTheOldStates) {
    for (std::uint64_t nth = 1; nth <= 12; ++nth) {
        Handle h(Tracking::on);
        h.allow_lost_blocks();
        {
            reference::Record value("lumo_tarn_cl_appl_data");
            for (int i = 0; i < 3; ++i) value.append("kesh_appl");
            const std::string text = reference::toxml_cr(value, false);
            const Instance instance(h, "lumo_tarn_cl_appl_data");
            mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, nth, 0);
            read_document(h, instance, text);
            mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 0, 0);
        }
        mirk_platform_block left[4];
        const std::size_t n = mirk_platform_list_blocks(h, left, 4);
        ASSERT_LE(n, 1u) << nth;
        // A vector has one byte per element, and there were at most two.
        if (n == 1) {
            ASSERT_LE(left[0].size, 2u) << nth;
        }
    }
}

}  // namespace
