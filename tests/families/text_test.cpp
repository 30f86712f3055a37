// Text renderings of records.
#include "value_support.h"

namespace {

using namespace forms;
using namespace std::string_view_literals;

TEST(Text, EveryRecordPrintsAsTheReference) {
    for (const Tracking mode : kit::every_tracking) {
        const Handle h(mode);
        for (const RecordOperations &record : tarn::reflect::records()) {
            for (std::uint64_t seed = 1; seed <= 4; ++seed) {
                const auto value = random_value(record.record->name, seed,
                                                {.max_elements = 2, .states = h.tracks(), .strange = seed > 2});
                const Instance instance(h, value);

                const Written own = write(ample, [&](char *buffer, std::int32_t room, std::uint32_t *) {
                    return record.print_cr(h, instance.get(), buffer, room);
                });
                ASSERT_EQ(own.text(), reference::print_cr(value, blank));
                EXPECT_EQ(h->last_error, 0u);
                EXPECT_EQ(own.buffer[own.result], '\0');
                EXPECT_TRUE(own.untouched_from(own.result + 1));

                const Written deep = print(h, instance, "some_name", 5);
                ASSERT_EQ(deep.text(), reference::print(value, "some_name", 5, blank));
                EXPECT_EQ(deep.err, 0u);
                EXPECT_TRUE(bridge::same(value, instance.value()));
            }
        }
    }
}

TEST(Text, AnEmptyArrayPrintsOnlyItsCount) {
    const Handle h;
    const Instance list(h, operations("lumo_tarn_dp_tc_list"));
    EXPECT_EQ(print(h, list, "tcs", 0).text(), "tcs@lumo_tarn_dp_tc_list: {\n  num_tcs@u_int32:0\n}\n");
}

TEST(Text, ElementsAreNumberedFrom0) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_debug_setting_data");
    for (int i = 0; i < 11; ++i) value.append("lumo_data");
    const std::string text = print(h, Instance(h, value), "x", 0).text();
    EXPECT_NE(text.find("  lumo_data[0]@lumo_tarn_dp_debug_setting: {\n"), std::string::npos);
    EXPECT_NE(text.find("  lumo_data[10]@lumo_tarn_dp_debug_setting: {\n"), std::string::npos);
    EXPECT_EQ(text.find("lumo_data[11]"), std::string::npos);
}

TEST(Text, ARecordWithoutABodyLeavesItsBraceOpen) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_lumo_wexa_info");
    value.nested("in_wexa").variant = -1;
    value["in_wexa_is_valid"].number = 1;
    value.nested("out_wexa")["flags"].number = 5;
    const Written written = print(h, Instance(h, value), "w", 0);
    // The line "flags" ends with a NUL, and the byte after it is unchanged.
    const std::string_view expected =
        "w@lumo_tarn_dp_lumo_wexa_info: {\n"
        "  lumo_num@u_int8:0\n"
        "  in_wexa_is_valid@mirk_boolean:true\n"
        "  in_wexa@lumo_tarn_dp_wexa_info: {\n"
        "  out_wexa_is_valid@mirk_boolean:false\n"
        "  out_wexa@lumo_tarn_dp_wexa_info: {\n"
        "    flags@u_int32:5\n"
        "\0#}\n"
        "}\n"sv;
    EXPECT_EQ(written.text(), expected);

    value.variant = -128;
    EXPECT_EQ(print(h, Instance(h, value), "w", 2).text(), "  w@lumo_tarn_dp_lumo_wexa_info: {\n");
}

TEST(Text, EveryByteIsWrittenWithoutIndentation) {
    const Handle h;
    const reference::Record value = random_value("lumo_tarn_exmem_info", 3);
    const Written written = print(h, Instance(h, value), "exmem", 0);
    EXPECT_EQ(written.text().find(blank), std::string::npos);
    EXPECT_EQ(std::strlen(written.buffer.c_str()), written.result);
}

// The blanks of the closing line are written over those of the opening line, and the bytes before the brace are only
// counted.
TEST(Text, BytesBeforeANestedBraceAreNotWritten) {
    const Handle h;
    const Instance exmem(h, operations("lumo_tarn_exmem_info"));
    const Written written = print(h, exmem, "exmem", 6);
    const std::string text = written.text();
    ASSERT_GE(text.size(), 8u);
    EXPECT_EQ(text.substr(text.size() - 8), std::string("\0#####}\n", 8));
    EXPECT_EQ(text.substr(0, 7), "      e");
}

TEST(Text, NothingIsWrittenIfTheErrorIsSet) {
    const Handle h;
    const Instance exmem(h, operations("lumo_tarn_exmem_info"));
    h->last_error = 5;
    const Written written = write(200, [&](char *buffer, std::int32_t room, std::uint32_t *err) {
        *err = 22;
        return exmem.record().print(h, id, buffer, 4, "exmem", exmem.get(), room, err);
    });
    EXPECT_EQ(written.result, 0u);
    EXPECT_EQ(written.err, 22u);
    EXPECT_TRUE(written.untouched_from(0));
    EXPECT_EQ(h->last_error, 5u);
}

TEST(Text, PrintClearsTheHandlesLastError) {
    const Handle h;
    const Instance exmem(h, operations("lumo_tarn_exmem_info"));
    h->last_error = 5;
    EXPECT_EQ(print(h, exmem, "exmem", 0).err, 0u);
    EXPECT_EQ(h->last_error, 0u);
}

TEST(Text, AStickyPrintAfterAnErrorWritesNothing) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const Instance instance(h, record);
        h->last_error = 12;
        const Written written = write(500, [&](char *buffer, std::int32_t room, std::uint32_t *) {
            return record.print_cr(h, instance.get(), buffer, room);
        });
        EXPECT_EQ(written.result, 0xFFFFFFFFu) << record.record->name;
        EXPECT_TRUE(written.untouched_from(0)) << record.record->name;
        EXPECT_EQ(h->last_error, 12u);
        h->last_error = 0;
    }
}

TEST(Text, ACorruptTrackingModeIsIgnored) {
    const Handle h(Tracking::on);
    const Instance exmem(h, operations("lumo_tarn_exmem_info"));
    mirk_platform_testing_set_sttr_mode(h, 0x1234);
    EXPECT_EQ(print(h, exmem, "exmem", 0).err, 0u);
    mirk_platform_testing_set_sttr_mode(h, 0xEEEE);
}

TEST(Text, ABufferThatIsTooSmallFailsAndIsNotOverrun) {
    const Handle h;
    for (const reference::Record &value : rich_values()) {
        const Instance instance(h, value);
        const std::string whole = reference::print_cr(value, blank);
        std::string area(whole.size() + 64, blank);
        for (std::size_t room = 0; room <= whole.size() + 1; ++room) {
            std::fill(area.begin(), area.end(), blank);
            std::uint32_t err = 0;
            const std::uint32_t result = instance.record().print(h, id, area.data(), 0, value.table->name.c_str(),
                                                                 instance.get(), static_cast<std::int32_t>(room), &err);
            ASSERT_EQ(area.find_first_not_of(blank, room), std::string::npos) << room;
            ASSERT_LE(result, room);
            // The last line ends with a NUL, so room for the text alone is not enough.
            ASSERT_EQ(err != 0, room <= whole.size()) << room;
            ASSERT_EQ(area.substr(0, result), whole.substr(0, result)) << room;
        }
        for (const std::int32_t room : {-1, -2147483647}) {
            std::uint32_t err = 0;
            EXPECT_EQ(instance.record().print(h, id, area.data(), 0, "x", instance.get(), room, &err), 0u);
            EXPECT_NE(err, 0u);
        }
        std::fill(area.begin(), area.end(), blank);
        const auto short_by_one = static_cast<std::int32_t>(whole.size());
        EXPECT_EQ(instance.record().print_cr(h, instance.get(), area.data(), short_by_one), 0xFFFFFFFFu);
        EXPECT_NE(h->last_error, 0u);
        EXPECT_EQ(area.substr(0, whole.size() / 2), whole.substr(0, whole.size() / 2));
        h->last_error = 0;
    }
}

TEST(Text, ACountWithoutABlockPrintsNoElements) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_tc_list");
    value.append("tc_list");
    value.append("tc_list");
    reference::Bytes frame = reference::encode(value, false);
    frame.push_back(0);
    const Instance list(h, operations("lumo_tarn_dp_tc_list"));
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 0);
    std::uint32_t err = 0;
    list.record().unmarshal(h, id, frame.data(), list.get(), static_cast<std::uint32_t>(frame.size() - 1), 0, &err);
    EXPECT_EQ(err, 12u);
    EXPECT_EQ(print(h, list, "tcs", 0).text(), "tcs@lumo_tarn_dp_tc_list: {\n  num_tcs@u_int32:2\n}\n");
}

TEST(Text, ALengthWithoutABodyPrintsNoCharacters) {
    const Handle h;
    const Instance appl(h, operations("lumo_tarn_cl_kesh_appl"));
    auto *object = static_cast<lumo_tarn_cl_kesh_appl *>(appl.get());
    std::uint32_t err = 0;
    lumo_tarn_cl_kesh_appl_proto_name_set(h, id, object, "tcp", 3, &err);
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 0);
    lumo_tarn_cl_kesh_appl_proto_name_set(h, id, object, "sctp", 4, &err);
    EXPECT_EQ(err, 12u);
    const Written written = print(h, appl, "a", 0);
    EXPECT_EQ(written.err, 0u);
    EXPECT_NE(written.text().find("  proto_name_len@u_int16:3\n  proto_name@var_string:\n"), std::string::npos);
}

}  // namespace
