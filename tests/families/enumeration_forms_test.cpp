// Enumerations on the wire, as text and as XML.
#include "enumeration_support.h"

namespace {

using namespace forms;

template <class Test>
void for_each_enumeration(Test &&test) {
    for (const EnumerationOperations &e : tarn::reflect::enumerations()) {
        SCOPED_TRACE(name_of(e));
        test(e);
    }
}

std::vector<std::uint32_t> some_values(const EnumerationOperations &e) {
    std::vector<std::uint32_t> values{bound(e), 0x7FFFFFFF, 0xFFFFFFFF};
    for (std::uint32_t value = 0; value < bound(e); ++value) values.push_back(value);
    return values;
}

TEST(EnumerationWire, TakesFiveBytesWithAnyVariantAndValue) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (const std::uint32_t value : some_values(e)) {
            for (const std::int8_t variant : {std::int8_t{0}, std::int8_t{-1}, std::int8_t{-128}}) {
                EnumerationObject one(h, e, value);
                one.header()->variant = variant;
                std::uint8_t frame[6] = {1, 2, 3, 4, 5, 6};
                std::uint32_t err = 0;
                ASSERT_EQ(e.marshal(h, id, frame, one.get(), 5, &err), 5u);
                EXPECT_EQ(err, 0u);
                EXPECT_EQ(frame[0], static_cast<std::uint8_t>(variant));
                std::uint8_t number[4];
                std::uint32_t copy = value;
                u_int32_marshal(h, id, number, &copy, 4, &err);
                EXPECT_EQ(std::memcmp(frame + 1, number, 4), 0);
                EXPECT_EQ(frame[5], 6);

                const EnumerationObject read(h, e, 1);
                ASSERT_EQ(e.unmarshal(h, id, frame, read.get(), 5, 0, &err), 5u);
                EXPECT_EQ(err, 0u);
                EXPECT_EQ(read.value(), value);
                EXPECT_EQ(read.header()->variant, variant);
                EXPECT_EQ(mirk_get_instance_modified(read.get(), 0, 1), 0u);
                one.header()->variant = 0;
                read.header()->variant = 0;
            }
        }
    });
}

TEST(EnumerationWire, AVariantAbove0IsWrittenAndReadAs0) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        set_domain(h, e, 3);
        const EnumerationObject one(h, e, 1);
        one.header()->variant = 2;
        std::uint8_t frame[5];
        std::uint32_t err = 0;
        EXPECT_EQ(e.marshal(h, id, frame, one.get(), 5, &err), 5u);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(frame[0], 0);
        one.header()->variant = 0;
        frame[0] = 100;
        const EnumerationObject read(h, e);
        EXPECT_EQ(e.unmarshal(h, id, frame, read.get(), 5, 0, &err), 5u);
        EXPECT_EQ(read.header()->variant, 0);
        mirk_platform_domain_clear(h);
    });
}

TEST(EnumerationWire, AnOlderDomainRefusesOrDowngrades) {
    for (const bool lenient : {false, true}) {
        const Handle h(kit::Options{.lenient = lenient});
        for_each_enumeration([&](const EnumerationOperations &e) {
            const EnumerationObject one(h, e, 1);
            set_domain(h, e, -2);
            std::uint8_t frame[5] = {};
            std::uint32_t err = 0;
            EXPECT_EQ(e.marshal(h, id, frame, one.get(), 5, &err), lenient ? 5u : 0u);
            EXPECT_EQ(err, lenient ? 0u : 43u);
            EXPECT_EQ(frame[0], lenient ? 0xFE : 0);
            EXPECT_EQ(one.header()->variant, 0);
            mirk_platform_domain_clear(h);
        });
    }
}

TEST(EnumerationWire, ABufferThatIsTooSmallFails) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject one(h, e, 2);
        for (const std::int32_t room : {0, -1, -2147483647}) {
            std::uint8_t frame[5] = {};
            std::uint32_t err = 0;
            EXPECT_EQ(e.marshal(h, id, frame, one.get(), room, &err), 0u);
            EXPECT_EQ(err, 12u);
            EXPECT_EQ(h->last_error, 12u);
            err = 0;
            EXPECT_EQ(e.unmarshal(h, id, frame, one.get(), static_cast<std::uint32_t>(room), 0, &err), 0u);
            EXPECT_EQ(err, 12u);
            EXPECT_EQ(one.value(), 2u);
            // With an error in the slot nothing happens, and the value does not change.
            err = 5;
            EXPECT_EQ(e.marshal(h, id, frame, one.get(), 5, &err), 0u);
            EXPECT_EQ(e.unmarshal(h, id, frame, one.get(), 5, 0, &err), 0u);
            EXPECT_EQ(err, 5u);
        }
        for (std::int32_t room = 1; room < 5; ++room) {
            std::uint8_t frame[5] = {9, 9, 9, 9, 9};
            std::uint32_t err = 0;
            EXPECT_EQ(e.marshal(h, id, frame, one.get(), room, &err), 1u);
            EXPECT_NE(err, 0u);
            EXPECT_EQ(frame[1], 9);
            err = 0;
            frame[0] = 0;
            EXPECT_EQ(e.unmarshal(h, id, frame, one.get(), static_cast<std::uint32_t>(room), 0, &err), 1u);
            EXPECT_NE(err, 0u);
            EXPECT_EQ(one.value(), 2u);
        }
        h->last_error = 0;
    });
}

Written print(mirk_handle *h, const EnumerationOperations &e, const EnumerationObject &one, std::uint32_t indent,
              const char *name) {
    return write(300, [&](char *buffer, std::int32_t room, std::uint32_t *err) {
        return e.print(h, id, buffer, indent, name, one.get(), room, err);
    });
}
Written to_xml(mirk_handle *h, const EnumerationOperations &e, const EnumerationObject &one, const char *name,
               std::uint8_t state) {
    return write(300, [&](char *buffer, std::int32_t room, std::uint32_t *err) {
        return e.to_xml(h, id, name, buffer, one.get(), room, state, err);
    });
}

std::string shown(const EnumerationOperations &e, std::uint32_t value) {
    return value < bound(e) ? std::string(e.enumeration->enumerators[value]) + "\n" : "Enum value out of range";
}
std::string element_of(const EnumerationOperations &e, std::uint32_t value) {
    return "<" +
           (value < bound(e) ? std::string(e.enumeration->enumerators[value]) : name_of(e) + " value out of range") +
           "/>";
}

TEST(EnumerationText, NamesTheEnumerator) {
    const Handle h;
    EnumerationObject state(h, ha_state(), 3);
    EXPECT_EQ(print(h, ha_state(), state, 2, "ha_state").text(),
              "  ha_state@lumo_tarn_ha_state_e:LUMO_TARN_HA_ACTIVE_SOLO_STATE\n");
    // There is no line end, so the next text follows on the same line.
    state.put(9);
    EXPECT_EQ(print(h, ha_state(), state, 0, "ha_state").text(),
              "ha_state@lumo_tarn_ha_state_e:Enum value out of range");
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (const std::uint32_t value : some_values(e)) {
            const EnumerationObject one(h, e, value);
            one.header()->variant = -1;
            const Written written = print(h, e, one, 5, "x");
            EXPECT_EQ(written.text(), "     x@" + name_of(e) + ":" + shown(e, value));
            EXPECT_EQ(written.err, 0u);
            const Written own = write(300, [&](char *buffer, std::int32_t room, std::uint32_t *) {
                return e.print_cr(h, one.get(), buffer, room);
            });
            EXPECT_EQ(own.text(), name_of(e) + "@" + name_of(e) + ":" + shown(e, value));
            one.header()->variant = 0;
        }
    });
}

TEST(EnumerationXml, ContainsTheEnumeratorsElement) {
    const Handle h(Tracking::on);
    EnumerationObject state(h, ha_state(), 2);
    EXPECT_EQ(to_xml(h, ha_state(), state, "ha_state", 7).text(), "<ha_state><LUMO_TARN_HA_INIT_STATE/></ha_state>");
    state.put(9);
    EXPECT_EQ(to_xml(h, ha_state(), state, "x", 0).text(), "<x><lumo_tarn_ha_state_e value out of range/></x>");
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (const std::uint32_t value : some_values(e)) {
            const EnumerationObject one(h, e, value);
            const Written written = to_xml(h, e, one, "x", 255);
            EXPECT_EQ(written.text(), "<x>" + element_of(e, value) + "</x>");
            EXPECT_EQ(written.err, 0u);
            const Written own = write(300, [&](char *buffer, std::int32_t room, std::uint32_t *) {
                return e.toxml_cr(h, one.get(), buffer, room);
            });
            EXPECT_EQ(own.text(), "<" + name_of(e) + ">" + element_of(e, value) + "</" + name_of(e) + ">");
        }
    });
}

TEST(EnumerationText, ABufferThatIsTooSmallFailsAndIsNotOverrun) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (const std::uint32_t value : {0u, bound(e)}) {
            const EnumerationObject one(h, e, value);
            const std::size_t text = print(h, e, one, 4, "x").result;
            const std::size_t xml = to_xml(h, e, one, "x", 0).result;
            for (std::size_t room = 0; room <= text + 1; ++room) {
                std::string area(text + 50, blank);
                std::uint32_t err = 0;
                const auto size = static_cast<std::int32_t>(room);
                EXPECT_LE(e.print(h, id, area.data(), 4, "x", one.get(), size, &err), room);
                EXPECT_EQ(err != 0, room <= text) << room;
                EXPECT_EQ(area.find_first_not_of(blank, room), area.npos) << room;
            }
            for (std::size_t room = 0; room <= xml + 1; ++room) {
                std::string area(xml + 50, blank);
                std::uint32_t err = 0;
                const auto size = static_cast<std::int32_t>(room);
                EXPECT_LE(e.to_xml(h, id, "x", area.data(), one.get(), size, 0, &err), room);
                EXPECT_EQ(err != 0, room <= xml) << room;
                EXPECT_EQ(area.find_first_not_of(blank, room), area.npos) << room;
            }
            std::string area(100, blank);
            EXPECT_EQ(e.print_cr(h, one.get(), area.data(), 3), 0xFFFFFFFFu);
            h->last_error = 0;
            EXPECT_EQ(e.toxml_cr(h, one.get(), area.data(), 3), 0xFFFFFFFFu);
            // The error stays set, and the sticky forms then write nothing.
            EXPECT_NE(h->last_error, 0u);
            area.assign(100, blank);
            EXPECT_EQ(e.print_cr(h, one.get(), area.data(), 100), 0xFFFFFFFFu);
            EXPECT_EQ(e.toxml_cr(h, one.get(), area.data(), 100), 0xFFFFFFFFu);
            EXPECT_EQ(area, std::string(100, blank));
            h->last_error = 0;
        }
    });
}

struct Read {
    std::uint32_t err = 0;
    std::string message;
};

Read read(mirk_handle *h, const EnumerationOperations &e, const EnumerationObject &one, const std::string &text,
          const std::string &path, std::uint32_t message_size = 300) {
    const Document document(text);
    Read result;
    result.message.assign(300, '\0');
    e.from_xml(h, id, path.c_str(), document, one.get(), &result.err, result.message.data(), message_size);
    result.message.resize(std::strlen(result.message.c_str()));
    return result;
}

TEST(EnumerationXml, ReadsEachEnumeratorBack) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (std::uint32_t value = 0; value < bound(e); ++value) {
            const EnumerationObject one(h, e, (value + 1) % bound(e));
            const Read result = read(h, e, one, "<x>" + element_of(e, value) + "</x>", "//x");
            EXPECT_EQ(result.err, 0u);
            EXPECT_EQ(one.value(), value);
            EXPECT_EQ(mirk_get_instance_modified(one.get(), 0, 1), 0u);
            // The content of the element is ignored, as long as it is short.
            const std::string name(e.enumeration->enumerators[value]);
            const EnumerationObject other(h, e, (value + 1) % bound(e));
            EXPECT_EQ(read(h, e, other, "<x><" + name + ">" + std::string(127, 'q') + "</" + name + "></x>", "//x").err,
                      0u);
            EXPECT_EQ(other.value(), value);
        }
    });
}

TEST(EnumerationXml, TheLowerOfTwoEnumeratorsWins) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject one(h, e);
        EXPECT_EQ(read(h, e, one, "<x>" + element_of(e, 2) + element_of(e, 1) + "</x>", "//x").err, 0u);
        EXPECT_EQ(one.value(), 1u);
    });
}

TEST(EnumerationXml, AnUnknownOrMissingElementKeepsTheValue) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (const char *text : {"<x><NO_SUCH_STATE/></x>", "<x>1</x>", "<x/>", "<y/>"}) {
            const EnumerationObject one(h, e, 2);
            const Read result = read(h, e, one, text, "//x");
            EXPECT_EQ(result.err, 0u);
            EXPECT_EQ(result.message, "");
            EXPECT_EQ(one.value(), 2u);
            // The look-ups' own ENOENT remains in the handle.
            EXPECT_EQ(h->last_error, 2u);
        }
    });
}

TEST(EnumerationXml, OtherErrorsAreWrittenToTheMessageBuffer) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const std::string name(e.enumeration->enumerators[1]);
        const std::string text = "<x><y><" + name + ">" + std::string(128, 'q') + "</" + name + "></y></x>";
        const EnumerationObject one(h, e, 2);
        Read result = read(h, e, one, text, "//x/y");
        EXPECT_EQ(result.err, 28u);
        EXPECT_EQ(h->last_error, 28u);
        EXPECT_EQ(result.message, "Failed xpath: //x/y");
        EXPECT_EQ(one.value(), 2u);

        result = read(h, e, one, text, "//x/y", 10);
        EXPECT_EQ(result.message, "Failed xp");

        const Document document(text);
        std::uint32_t err = 0;
        e.from_xml(h, id, "//x/y", document, one.get(), &err, nullptr, 0);
        EXPECT_EQ(err, 28u);
        // With an error in the slot nothing is looked up.
        e.from_xml(h, id, "//x", document, one.get(), &err, nullptr, 0);
        EXPECT_EQ(err, 28u);
        h->last_error = 0;
    });
}

// A record passes its message buffer on, stops there, and reports the error.
TEST(EnumerationXml, AFailedLookUpStopsTheReadOfTheRecord) {
    const Handle h;
    const Instance info(h, "lumo_tarn_lumo_info");
    const std::string long_text(128, 'q');
    const Document document("<x><complex_num>4</complex_num><direction><LUMO_TARN_DIR_EGRESS>" + long_text +
                            "</LUMO_TARN_DIR_EGRESS></direction><epoch>6</epoch></x>");
    std::uint32_t err = 0;
    char message[64] = "";
    info.record().from_xml(h, id, "//x", document, info.get(), &err, message, sizeof message);
    EXPECT_EQ(err, 28u);
    EXPECT_STREQ(message, "Failed xpath: //x/direction");
    const reference::Record value = info.value();
    EXPECT_EQ(value["complex_num"].number, 4u);
    EXPECT_EQ(value["direction"].number, 0u);
    EXPECT_EQ(value["epoch"].number, 0u);
}

TEST(EnumerationXml, APathOfMoreThan255CharactersFindsNothing) {
    const Handle h;
    const std::string root(240, 'a');
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject one(h, e, 2);
        EXPECT_EQ(read(h, e, one, "<" + root + ">" + element_of(e, 1) + "</" + root + ">", "//" + root).err, 0u);
        EXPECT_EQ(one.value(), 2u);
    });
}

}  // namespace
