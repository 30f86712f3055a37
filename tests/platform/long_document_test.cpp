// Elements with so many children that their names and positions are looked up in a table, against XPath.
#include <random>

#include "support.hpp"

using kit::Document;

namespace {

std::string many_children(unsigned seed, const std::string &nested = "") {
    std::mt19937 random(seed);
    std::string text = "<r>";
    for (int i = 0; i < 900; ++i) {
        const std::string name(1, static_cast<char>('a' + random() % 3));
        text += "<" + name + "><v>" + std::to_string(random()) + "</v></" + name + ">";
        if (i == 450) text += nested;
    }
    return text + "<single>1</single></r>";
}

void expect_agreement(void *document, unsigned greatest_position) {
    std::mt19937 random(3);
    for (int i = 0; i < 300; ++i) {
        std::string path = "//r/" + std::string(1, static_cast<char>('a' + random() % 4));
        if (random() % 4 != 0) path += "[" + std::to_string(1 + random() % greatest_position) + "]";
        if (random() % 2 != 0) path += "/v";
        if (random() % 8 == 0) path = "//r/single";
        uint32_t simple_count = 0, count = 0;
        char simple_value[64] = "", value[64] = "";
        const std::string evaluated = "(" + path + ")";
        ASSERT_EQ(xml_get_element_nodecount(document, path.c_str(), &simple_count), 0u);
        ASSERT_EQ(xml_get_element_nodecount(document, evaluated.c_str(), &count), 0u);
        EXPECT_EQ(simple_count, count) << path;
        const uint32_t error = xml_get_element_value(document, evaluated.c_str(), value, sizeof value, nullptr);
        EXPECT_EQ(xml_get_element_value(document, path.c_str(), simple_value, sizeof simple_value, nullptr), error);
        EXPECT_STREQ(simple_value, value) << path;
    }
}

}  // namespace

TEST(LongDocument, PositionsAgreeWithXPath) {
    const Document d(many_children(1));
    expect_agreement(d, 400);
}

TEST(LongDocument, ElementsOfSeveralParentsAgreeWithXPath) {
    const Document d("<all>" + many_children(1) + "<r><a><v>7</v></a></r>" + many_children(2) + "</all>");
    expect_agreement(d, 400);
}

TEST(LongDocument, ElementsOfNestedParentsComeInTheOrderOfTheDocument) {
    const Document d(many_children(1, many_children(2)));
    expect_agreement(d, 400);
}
