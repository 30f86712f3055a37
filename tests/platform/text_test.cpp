#include <algorithm>

#include "support.hpp"

using test::Guarded;
using test::Handle;

TEST(PrintSpace, WritesExactlyTheBlanks) {
    Handle h;
    Guarded<8> buffer;
    uint32_t err = 0;
    EXPECT_EQ(mirk_print_space(h, 7, buffer.at(), 3, 3, &err), 3u);
    EXPECT_EQ(std::memcmp(buffer.at(), "   ", 3), 0);
    EXPECT_TRUE(buffer.intact_after(3));
    EXPECT_EQ(mirk_print_space(h, 7, nullptr, 0, -5, &err), 0u);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(mirk_print_space(h, 7, buffer.at(), 4, 3, &err), 0u);
    EXPECT_EQ(err, uint32_t{ENOSPC});
    EXPECT_TRUE(buffer.intact_after(3));
}

TEST(Snprintf, FormatsAsPrintfDoes) {
    Handle h;
    for (int room = 1; room < 24; ++room) {
        const auto check = [&](const char *format, auto... values) {
            char expected[32] = "", own[32] = "";
            const int length = std::snprintf(expected, static_cast<size_t>(room), format, values...);
            uint32_t err = 0;
            const uint32_t written = mirk_snprintf(h, 7, own, room, &err, format, values...);
            EXPECT_STREQ(own, expected) << format;
            EXPECT_EQ(err, length < room ? 0u : uint32_t{ENOSPC}) << format;
            EXPECT_EQ(written, static_cast<uint32_t>(std::min(length, room - 1))) << format;
        };
        check("%s@%s: {\n", "name", "kind");
        check("%s%s", "", "text");
        check("}\n", 0);
        check("%s[%d]", "name", 12);
        check("%d of %s", 12, "name");
        check("100%% %s", "name");
    }
}

TEST(Snprintf, CutsTextWithEnospc) {
    Handle h;
    Guarded<16> buffer;
    uint32_t err = 0;
    EXPECT_EQ(mirk_snprintf(h, 7, buffer.at(), 6, &err, "%s", "hello"), 5u);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(mirk_snprintf(h, 7, buffer.at(), 5, &err, "%s", "hello"), 4u);
    EXPECT_EQ(err, uint32_t{ENOSPC});
    EXPECT_STREQ(buffer.at(), "hell");
    EXPECT_TRUE(buffer.intact_after(6));
    EXPECT_EQ(mirk_snprintf(h, 7, buffer.at(), 16, &err, "x"), 0u);
    for (const int32_t remaining : {0, -1}) {
        Guarded<4> empty;
        err = 0;
        EXPECT_EQ(mirk_snprintf(h, 7, empty.at(), remaining, &err, "x"), 0u);
        EXPECT_EQ(err, uint32_t{ENOSPC});
        EXPECT_TRUE(empty.intact_after(0));
    }
}

TEST(Tags, ShowANonzeroState) {
    Handle h;
    char buffer[64];
    uint32_t err = 0;
    EXPECT_EQ(start_tag(h, 7, buffer, "tc", 64, 0, &err), 4u);
    EXPECT_STREQ(buffer, "<tc>");
    EXPECT_EQ(start_tag(h, 7, buffer, "tc", 64, 255, &err), 16u);
    EXPECT_STREQ(buffer, "<tc state=\"255\">");
    EXPECT_EQ(start_tag(h, 7, buffer, "bundle_start name=\"x\"", 64, 0, &err), 23u);
    EXPECT_STREQ(buffer, "<bundle_start name=\"x\">");
    EXPECT_EQ(end_tag(h, 7, buffer, "tc", 64, &err), 5u);
    EXPECT_STREQ(buffer, "</tc>");
}

TEST(Tags, AreWrittenCompletelyOrNotAtAll) {
    Handle h;
    Guarded<16> buffer;
    uint32_t err = 0;
    EXPECT_EQ(start_tag(h, 7, buffer.at(), "tc", 4, 0, &err), 0u);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
    err = 0;
    EXPECT_EQ(end_tag(h, 7, buffer.at(), "tc", 5, &err), 0u);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
    err = 0;
    EXPECT_EQ(xml_enum_print(h, 7, buffer.at(), "<X/>", 4, 4, &err), 0u);
    EXPECT_EQ(err, uint32_t{EMSGSIZE});
    EXPECT_TRUE(buffer.intact_after(0));
    err = 0;
    EXPECT_EQ(xml_enum_print(h, 7, buffer.at(), "<X/>tail", 5, 4, &err), 4u);
    EXPECT_STREQ(buffer.at(), "<X/>");
    EXPECT_TRUE(buffer.intact_after(5));
}

TEST(Strings, ArePrintedOnOneLine) {
    Handle h;
    char buffer[64];
    uint32_t err = 0;
    const std::string text("a\\b\n\x00\xff~", 7);
    EXPECT_EQ(var_string_print(h, 7, buffer, 1, "s", text.data(), 64, 7, &err), 32u);
    EXPECT_STREQ(buffer, " s@var_string:a\\\\b\\x0a\\x00\\xff~\n");
    EXPECT_EQ(var_string_print(h, 7, buffer, 0, "s", nullptr, 64, 0, &err), 14u);
    EXPECT_STREQ(buffer, "s@var_string:\n");
    var_string_print(h, 7, buffer, 0, "s", nullptr, 64, 3, &err);
    EXPECT_EQ(err, uint32_t{EINVAL});
}

TEST(Strings, EachByteIsPrintedTheSameAtEveryPosition) {
    Handle h;
    for (unsigned byte = 0; byte < 256; ++byte) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped,
                      byte == '\\'                 ? "\\\\"
                      : byte < 0x20 || byte > 0x7e ? "\\x%02x"
                                                   : "%c",
                      byte);
        for (size_t position = 0; position < 20; ++position) {
            std::string text(20, 'a');
            text[position] = static_cast<char>(byte);
            char buffer[128];
            uint32_t err = 0;
            var_string_print(h, 7, buffer, 0, "s", text.data(), 128, 20, &err);
            const std::string expected = std::string(position, 'a') + escaped + std::string(19 - position, 'a');
            EXPECT_EQ(buffer, "s@var_string:" + expected + "\n");
        }
    }
}

TEST(Strings, EscapeReservedCharactersOfXml) {
    Handle h;
    char buffer[128];
    uint32_t err = 0;
    const std::string text = "a&b<c>d\"e'f\rg\n";
    var_string_to_xml(h, 7, "s", buffer, text.data(), 128, static_cast<uint32_t>(text.size()), 3, &err);
    EXPECT_STREQ(buffer, "<s state=\"3\">a&amp;b&lt;c&gt;d&quot;e'f&#13;g\n</s>");
    EXPECT_EQ(err, 0u);
}

TEST(Strings, ReplaceEachByteThatXmlDoesNotAllow) {
    Handle h;
    const auto rendered = [&](const std::string &text) {
        char buffer[128];
        uint32_t err = 0;
        const uint32_t length =
            var_string_to_xml(h, 7, "s", buffer, text.data(), 128, static_cast<uint32_t>(text.size()), 0, &err);
        EXPECT_EQ(err, 0u);
        return std::string(buffer + 3, length - 7);
    };
    EXPECT_EQ(rendered("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"), "\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80");
    EXPECT_EQ(rendered(std::string("\x00\x01\x1f", 3)), "???");
    EXPECT_EQ(rendered("\x80\xc3"), "??");
    EXPECT_EQ(rendered("\xc0\xaf"), "??");
    EXPECT_EQ(rendered("\xe0\x80\x80"), "???");
    EXPECT_EQ(rendered("\xed\xa0\x80"), "???");
    EXPECT_EQ(rendered("\xef\xbf\xbe"), "???");
    EXPECT_EQ(rendered("\xf5\x80\x80\x80"), "????");
    EXPECT_EQ(rendered("\xf4\x90\x80\x80"), "????");
    EXPECT_EQ(rendered("\xe2\x82x"), "??x");
}

TEST(Strings, KeepTheirLengthThroughXml) {
    Handle h;
    std::string text;
    for (int c = 0; c < 256; ++c) text += static_cast<char>(c);
    std::vector<char> buffer(4096);
    uint32_t err = 0;
    var_string_to_xml(h, 7, "s", buffer.data(), text.data(), 4096, 256, 0, &err);
    kit::Document document(buffer.data());
    uint32_t length = 0;
    EXPECT_EQ(xml_get_element_value(document, "//s", nullptr, 0, &length), uint32_t{ENOSPC});
    EXPECT_EQ(length, 256u);
    char value[257];
    var_string_from_xml(h, 7, "//s", document, value, 257, &err, nullptr, 0);
    EXPECT_EQ(err, 0u);
    for (int c = 0; c < 128; ++c) {
        const bool kept = c >= 0x20 || c == '\t' || c == '\n' || c == '\r';
        EXPECT_EQ(value[c], kept ? static_cast<char>(c) : '?') << c;
    }
    var_string_from_xml(h, 7, "//s", document, value, 256, &err, nullptr, 0);
    EXPECT_EQ(err, uint32_t{ENOSPC});
}

TEST(Strings, CharactersAreBytes) {
    Handle h;
    EXPECT_EQ(char_len(h, 7, nullptr), 1u);
    EXPECT_EQ(char_sizeof(h), 1u);
}
