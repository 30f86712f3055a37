#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>

#include "support.hpp"

using kit::Document;

namespace {

uint32_t count(void *document, const std::string &path) {
    uint32_t found = 99;
    EXPECT_EQ(xml_get_element_nodecount(document, path.c_str(), &found), 0u) << path;
    return found;
}

std::string value(void *document, const std::string &path) {
    char text[64];
    const uint32_t error = xml_get_element_value(document, path.c_str(), text, sizeof text, nullptr);
    return error == 0 ? text : strerrorname_np(static_cast<int>(error));
}

}  // namespace

TEST(Document, FindsMembersAndElements) {
    Document d("<m><r><n>2</n><a><x>1</x></a><b/><a><x>2</x><x>3</x></a></r></m>");
    EXPECT_EQ(count(d, "//r"), 1u);
    EXPECT_EQ(count(d, "//m"), 1u);
    EXPECT_EQ(count(d, "//r/a"), 2u);
    EXPECT_EQ(count(d, "//r/a/x"), 3u);
    EXPECT_EQ(value(d, "//r/n"), "2");
    EXPECT_EQ(value(d, "//r/a[1]/x"), "1");
    EXPECT_EQ(value(d, "//r/a[2]/x"), "2");
    EXPECT_EQ(value(d, "//r/a[2]/x[2]"), "3");
    EXPECT_EQ(value(d, "//r/a[3]/x"), "ENOENT");
    EXPECT_EQ(value(d, "//r/a[1]/x"), "1");
    EXPECT_EQ(value(d, "//r/b"), "");
    EXPECT_EQ(count(d, "//absent"), 0u);
    EXPECT_EQ(value(d, "//absent/x"), "ENOENT");
}

TEST(Document, SimplePathsAgreeWithXPath) {
    // The parentheses make the runtime evaluate the same path with XPath.
    Document d("<r><x>0</x><r><x>1</x><r><x>2</x><x>3</x></r><x>4</x></r><x>5</x><r/><x>6</x></r>");
    ASSERT_NE(static_cast<void *>(d), nullptr);
    for (const char *rest :
         {"/x", "/x[1]", "/x[2]", "/x[3]", "/x[4]", "/r", "/r/x", "/r[1]/x", "/r[2]", "/r/r/x[2]", "/r/x[2]"}) {
        const std::string simple = std::string("//r") + rest;
        const std::string engine = std::string("(//r") + rest + ")";
        EXPECT_EQ(count(d, simple), count(d, engine)) << simple;
        EXPECT_EQ(value(d, simple), value(d, engine)) << simple;
    }
}

TEST(Document, PathsInAnyOrderAgreeWithXPath) {
    std::mt19937 random(7);
    const auto name = [&] { return std::string(1, static_cast<char>('a' + random() % 3)); };
    std::string text;
    int number = 0;
    const std::function<void(int)> element = [&](int depth) {
        const std::string own = name();
        text += "<" + own + ">" + std::to_string(++number);
        for (unsigned n = depth > 0 ? random() % 4 : 0; n > 0; --n) element(depth - 1);
        text += "</" + own + ">";
    };
    text += "<r>";
    for (int i = 0; i < 6; ++i) element(4);
    Document d(text + "</r>");
    ASSERT_NE(static_cast<void *>(d), nullptr);
    std::string path;
    for (int i = 0; i < 3000; ++i) {
        // Most paths share their first steps with the previous one.
        if (path.empty() || random() % 8 == 0) path = "//" + (random() % 2 == 0 ? "r" : name());
        if (random() % 3 == 0 && path.rfind('/') > 1) path.resize(path.rfind('/'));
        path += "/" + name();
        if (random() % 2 == 0) path += "[" + std::to_string(1 + random() % 3) + "]";
        EXPECT_EQ(count(d, path), count(d, "(" + path + ")")) << path;
        EXPECT_EQ(value(d, path), value(d, "(" + path + ")")) << path;
        if (path.size() > 24) path.clear();
    }
}

TEST(Document, NamesMatchOnlyElementsWithoutANamespace) {
    Document d("<r xmlns:p='urn:p'><p:x>1</p:x><x>2</x></r>");
    EXPECT_EQ(value(d, "//r/x"), "2");
    EXPECT_EQ(count(d, "//r/x"), 1u);
}

TEST(Document, EvaluatesOtherPathsWithXPath) {
    Document d("<r><x k='v'>1</x><x>2</x></r>");
    EXPECT_EQ(value(d, "/r/x[last()]"), "2");
    EXPECT_EQ(value(d, "//x/@k"), "v");
    EXPECT_EQ(count(d, "//r/*"), 2u);
}

TEST(Document, AnInvalidPathIsEinval) {
    Document d("<r><x>1</x></r>");
    uint32_t found = 0;
    for (const char *path : {"", "//", "//r/", "//r/x[", "//r//", "1 + 1", "//r/x[0", "]"}) {
        EXPECT_EQ(xml_get_element_nodecount(d, path, &found), uint32_t{EINVAL}) << path;
        EXPECT_EQ(value(d, path), "EINVAL") << path;
    }
    EXPECT_EQ(xml_get_element_nodecount(d, nullptr, &found), uint32_t{EINVAL});
    EXPECT_EQ(xml_get_element_nodecount(nullptr, "//r", &found), uint32_t{EINVAL});
    EXPECT_EQ(xml_get_element_value(nullptr, "//r", nullptr, 0, nullptr), uint32_t{EINVAL});
    EXPECT_EQ(count(d, "//r/x[0]"), 0u);
}

TEST(Document, ReturnsTheLengthOfAValue) {
    Document d("<r><x>hello</x><y/></r>");
    uint32_t length = 99;
    EXPECT_EQ(xml_get_element_value(d, "//r/x", nullptr, 0, &length), uint32_t{ENOSPC});
    EXPECT_EQ(length, 5u);
    EXPECT_EQ(xml_get_element_value(d, "//r/y", nullptr, 0, &length), 0u);
    EXPECT_EQ(length, 0u);
    test::Guarded<8> buffer;
    EXPECT_EQ(xml_get_element_value(d, "//r/x", buffer.at(), 5, &length), uint32_t{ENOSPC});
    EXPECT_EQ(length, 5u);
    EXPECT_TRUE(buffer.intact_after(0));
    EXPECT_EQ(xml_get_element_value(d, "//r/x", buffer.at(), 6, &length), 0u);
    EXPECT_STREQ(buffer.at(), "hello");
    EXPECT_TRUE(buffer.intact_after(6));
}

TEST(Document, JoinsSeparateTextNodes) {
    Document d("<r><x>a<![CDATA[<b>]]>c&amp;<!-- no -->d</x></r>");
    EXPECT_EQ(value(d, "//r/x"), "a<b>c&d");
}

TEST(Document, RefusesADoctypeAndReportsItsLine) {
    for (const char *text : {"<?xml version='1.0'?>\n<!DOCTYPE r [<!ENTITY e 'x'>]>\n<r>&e;</r>",
                             "\n<!DOCTYPE r SYSTEM 'file:///etc/passwd'>\n<r/>"}) {
        mirk_platform_report report;
        const Document d(text, &report);
        EXPECT_EQ(static_cast<void *>(d), nullptr);
        EXPECT_EQ(report.number, uint32_t{EINVAL});
        EXPECT_EQ(report.line, 2u);
        EXPECT_STREQ(report.sentence, "a document type declaration is not allowed");
    }
}

TEST(Document, ReportsTheLineThatIsNotWellFormed) {
    mirk_platform_report report;
    const Document d("<r>\n<a>\n</b></r>", &report);
    EXPECT_EQ(static_cast<void *>(d), nullptr);
    EXPECT_EQ(report.line, 3u);
    EXPECT_EQ(report.offset, std::strlen("<r>\n<a>\n</b>"));
    EXPECT_STRNE(report.sentence, "");
    EXPECT_EQ(std::strchr(report.sentence, '\n'), nullptr);
    EXPECT_EQ(static_cast<void *>(Document("", nullptr)), nullptr);
    EXPECT_EQ(static_cast<void *>(Document("<r>&unknown;</r>", nullptr)), nullptr);
    EXPECT_EQ(mirk_platform_document_load_memory("<r>", 3, nullptr), nullptr);
}

TEST(Document, RefusesDataAfterANul) {
    for (const std::string &text : {std::string("<i/>\0", 5), std::string("<i/>\n\0<i/>", 10),
                                    std::string("<i/>\n\n\0<!DOCTYPE i>\n", 21), std::string("<i/>\0\n", 6)}) {
        mirk_platform_report report;
        EXPECT_EQ(mirk_platform_document_load_memory(text.data(), text.size(), &report), nullptr);
        EXPECT_EQ(report.number, uint32_t{EINVAL});
        EXPECT_STREQ(report.sentence, "there is more data after the end of the document");
        EXPECT_EQ(report.line, 1 + std::count(text.data(), text.data() + text.find('\0'), '\n'));
        EXPECT_EQ(report.offset, text.find('\0'));
    }
}

TEST(Document, ReadsEachEncodingToItsEnd) {
    const auto in_two_bytes = [](std::string_view text, bool big) {
        std::string wide = big ? "\xFE\xFF" : "\xFF\xFE";
        for (const char c : text) {
            if (big) wide += '\0';
            wide += c;
            if (!big) wide += '\0';
        }
        return wide;
    };
    const std::string plain = "<?xml version='1.0'?>\n<i> <!-- --> text </i>\n<!-- end -->\n\n";
    const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?><i>\xE4\xF6</i> \n";
    for (const std::string &text : {plain, "\xEF\xBB\xBF" + plain, latin, in_two_bytes(plain, true),
                                    in_two_bytes(plain, false), std::string("<i>\xC3\xA4</i>"), plain.substr(22)}) {
        mirk_platform_report report;
        void *document = mirk_platform_document_load_memory(text.data(), text.size(), &report);
        EXPECT_NE(document, nullptr) << report.sentence << ": " << text;
        mirk_platform_document_free(document);
    }
    std::string large = "<i>";
    for (int i = 0; i < 100000; ++i) large += "<j>\xC3\xA4 text</j>\n";
    large += "</i>\n";
    mirk_platform_report report;
    void *document = mirk_platform_document_load_memory(large.data(), large.size(), &report);
    EXPECT_NE(document, nullptr) << report.sentence;
    mirk_platform_document_free(document);
}

// Includes errors that the parser finds before it has created a document.
TEST(Document, WritesNothingToStandardError) {
    std::string wide;
    for (const char c : std::string("<r>text</r>")) wide += {c, 0, 0, 0};
    testing::internal::CaptureStderr();
    for (const std::string &text :
         {wide, std::string("<r>\xC0\xBC</r>"), std::string("<?xml version='1.0' encoding='?'?><r/>")}) {
        mirk_platform_report report;
        EXPECT_EQ(mirk_platform_document_load_memory(text.data(), text.size(), &report), nullptr);
        EXPECT_NE(report.number, 0u);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Document, LimitsDepth) {
    std::string text;
    for (int i = 0; i < 5000; ++i) text += "<a>";
    for (int i = 0; i < 5000; ++i) text += "</a>";
    mirk_platform_report report;
    const Document d(text, &report);
    EXPECT_EQ(static_cast<void *>(d), nullptr);
    EXPECT_EQ(report.number, uint32_t{EINVAL});
}

// The parser takes time with the square of their number.
TEST(Document, LimitsAttributesAndNamespaces) {
    const auto element = [](int attributes, const std::string &prefix, const std::string &value) {
        std::string text = "<r>\n<i";
        for (int i = 0; i < attributes; ++i) text += " " + prefix + std::to_string(i) + "=\"" + value + "\"";
        return text + "/></r>";
    };
    const auto expect_refused = [](const std::string &text) {
        mirk_platform_report report;
        const Document refused(text, &report);
        EXPECT_EQ(static_cast<void *>(refused), nullptr) << text.substr(0, 40);
        EXPECT_EQ(report.number, uint32_t{EINVAL});
        EXPECT_STREQ(report.sentence, "an element has more than 256 attributes or namespaces");
        EXPECT_EQ(report.line, 2u);
    };
    for (const char *const prefix : {"a", "xmlns:a"}) {
        EXPECT_NE(static_cast<void *>(Document(element(256, prefix, "b"), nullptr)), nullptr);
        for (const int attributes : {257, 2000, 400000}) expect_refused(element(attributes, prefix, "b"));
    }
    // Also of elements around it, and in an encoding that hides the syntax from a search for it.
    std::string nested = "<r>\n";
    for (int i = 0; i < 200; ++i)
        nested += "<i xmlns:a" + std::to_string(i) + "=\"a\" xmlns:b" + std::to_string(i) + "=\"b\">";
    for (int i = 0; i < 200; ++i) nested += "</i>";
    expect_refused(nested + "</r>");
    std::string hidden = "<?xml version='1.0' encoding='UTF-7'?>+ADw-r+AD4-\n+ADw-i";
    for (int i = 0; i < 100000; ++i) hidden += " a" + std::to_string(i) + "+AD0-'b'";
    expect_refused(hidden + "/+AD4APA-/r+AD4-");
    // Any number of elements may have some.
    std::string many = "<r>";
    for (int i = 0; i < 20000; ++i) many += "<i a='b' xmlns:c='d'/>";
    EXPECT_NE(static_cast<void *>(Document(many + "</r>", nullptr)), nullptr);
}

// A list of n elements counts n * n, and may have so much for each byte.
TEST(Document, LimitsListsThatAreTooLongForItsLength) {
    const auto list = [](size_t elements) {
        std::string text = "<r>\n<l>";
        for (size_t i = 0; i < elements; ++i) text += "<i/>";
        return text + "</l></r>";
    };
    const auto is_loaded = [](const std::string &text) {
        mirk_platform_report report;
        const Document d(text, &report);
        if (static_cast<void *>(d) != nullptr) return true;
        EXPECT_EQ(report.number, uint32_t{EINVAL});
        EXPECT_EQ(report.line, 2u);
        EXPECT_EQ(report.offset, 0u);
        EXPECT_STREQ(report.sentence, "the elements inside this one are too many for the length of the document");
        return false;
    };
    EXPECT_TRUE(is_loaded(list(20000)));
    mirk_platform_document_limit_lists(256);
    // 16 bytes are around the elements, and the list is one more element.
    size_t most = 1000;
    while ((most + 1) * (most + 1) + 1 <= 256 * (16 + 4 * (most + 1))) ++most;
    EXPECT_TRUE(is_loaded(list(most)));
    EXPECT_FALSE(is_loaded(list(most + 1)));
    EXPECT_TRUE(is_loaded(list(most + 1) + std::string(1000, ' '))) << "a longer document";
    // All lists count together.
    const std::string one = list(900), inner = one.substr(4, one.size() - 8);
    std::string many = "<r>\n<l>";
    for (int i = 0; i < 200; ++i) many += "<l>" + inner + "</l>";
    EXPECT_TRUE(is_loaded(many + "</l></r>"));
    mirk_platform_document_limit_lists(0);
}

TEST(Document, LimitsNames) {
    const auto elements = [](int count) {
        std::string text = "<r>";
        for (int i = 0; i < count; ++i) text += "<e" + std::to_string(i) + "/>";
        return text + "</r>";
    };
    EXPECT_NE(static_cast<void *>(Document(elements(9900), nullptr)), nullptr);
    std::string instructions;
    for (int i = 0; i < 20000; ++i) instructions += "<?e" + std::to_string(i) + "?>";
    for (const std::string &text : {elements(10100), elements(500000), instructions + "<r/>"}) {
        mirk_platform_report report;
        const Document refused(text, &report);
        EXPECT_EQ(static_cast<void *>(refused), nullptr);
        EXPECT_STREQ(report.sentence, "the document has more than 10000 names");
    }
}

TEST(Document, LoadsAFile) {
    char path[] = "/tmp/mirk_document_XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(write(fd, "<r><x>7</x></r>", 15), 15);
    close(fd);
    mirk_platform_report report;
    void *document = mirk_platform_document_load_file(path, &report);
    EXPECT_EQ(value(document, "//r/x"), "7");
    mirk_platform_document_free(document);
    unlink(path);
    EXPECT_EQ(mirk_platform_document_load_file(path, &report), nullptr);
    EXPECT_EQ(report.number, uint32_t{ENOENT});
}

TEST(Document, FindsEachElementOfALongArray) {
    constexpr int elements = 20000;
    std::string text = "<r>";
    for (int i = 1; i <= elements; ++i) text += "<a><x>" + std::to_string(i) + "</x></a>";
    Document d(text + "</r>");
    for (int i = 1; i <= elements; ++i) {
        const std::string element = "//r/a[" + std::to_string(i) + "]";
        ASSERT_EQ(count(d, element), 1u);
        ASSERT_EQ(value(d, element + "/x"), std::to_string(i));
    }
}
