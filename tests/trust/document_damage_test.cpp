// Documents of every root: truncated, spliced, deep, with types and entities, with numbers out of range, in wrong
// encodings.
#include <functional>

#include "damage.h"
#include "kit/document.h"

namespace {

using namespace trust;

class DocumentDamage : public testing::TestWithParam<const Root *> {
protected:
    void SetUp() override { mirk_platform_trace_set_levels(1); }

    const Root &root() const { return *GetParam(); }
    const std::string text_ = document_of(*GetParam());

    struct Outcome {
        bool loaded = false;
        std::uint32_t error = 0;
        std::string sentence;
    };
    // Loads from memory that ends with the text, reads into a new instance, uses it and destroys it.
    Outcome read(const std::string &text, Tracking tracking = Tracking::on) {
        static kit::GuardedMemory memory(std::size_t{1} << 22);
        // There is no guard byte, since a parser gets the length.
        std::uint8_t *at = memory.room(text.size()) + 1;
        std::memcpy(at, text.data(), text.size());
        mirk_platform_report report;
        const kit::Document document({reinterpret_cast<const char *>(at), text.size()}, &report);
        Outcome outcome{.loaded = document != nullptr, .sentence = report.sentence};
        EXPECT_EQ(outcome.loaded, report.number == 0);
        EXPECT_EQ(outcome.loaded, outcome.sentence.empty());
        if (!outcome.loaded) return outcome;
        const auto handle = small_handle(tracking);
        {
            Specimen specimen(*handle, root());
            outcome.error = specimen.read_document(document);
            specimen.use(2048);
        }
        // A message that could not be read is not released.
        if (root().message != nullptr && outcome.error != 0) {
            handle->allow_lost_blocks();
        } else {
            EXPECT_EQ(handle->live_blocks(), 0U);
        }
        return outcome;
    }
    Outcome read_in_each_mode(const std::string &text) {
        read(text, Tracking::none);
        read(text, Tracking::off);
        return read(text);
    }

    void expect_refused(const std::string &text) {
        const Outcome outcome = read(text);
        EXPECT_FALSE(outcome.loaded) << text.substr(0, 200);
    }
};

TEST_P(DocumentDamage, CutAtEveryByteIsRefused) {
    ASSERT_TRUE(read_in_each_mode(text_).loaded);
    const std::size_t last = text_.rfind('>');
    for (std::size_t size = 0; size <= last; ++size) expect_refused(text_.substr(0, size));
}

// One document up to a tag, continued from a tag of the same or of another document.
TEST_P(DocumentDamage, SplicedOnesAreReadOrRefused) {
    Share share(1024);
    const auto tags = [](const std::string &text) {
        std::vector<std::size_t> all;
        for (std::size_t at = 0; (at = text.find('<', at)) != std::string::npos; ++at) all.push_back(at);
        return all;
    };
    const Root &other = roots()[static_cast<std::size_t>(&root() - roots().data() + 1) % roots().size()];
    for (const std::string &rest : {text_, document_of(other)}) {
        for (const std::size_t first : tags(text_)) {
            for (const std::size_t second : tags(rest)) {
                if (!share.takes()) continue;
                read(text_.substr(0, first) + rest.substr(second));
                // With the text between two tags moved inside the root element.
                read("<" + root().name + ">" + text_.substr(first) + rest.substr(0, second) + "</" + root().name + ">");
            }
        }
    }
    // Always well-formed: each element of one document twice, alternating with those of the other.
    const auto inner = [](const std::string &text) {
        const std::size_t begin = text.find('>') + 1;
        return text.substr(begin, text.rfind("</") - begin);
    };
    const std::string mine = inner(text_), others = inner(document_of(other));
    for (const std::string &body : {mine + mine, others + mine, mine + others + mine, others}) {
        EXPECT_TRUE(read_in_each_mode("<" + root().name + ">" + body + "</" + root().name + ">").loaded);
    }
}

TEST_P(DocumentDamage, EachReplacedByteIsReadOrRefused) {
    Share share(8192);
    for (std::size_t at = 0; at < text_.size(); ++at) {
        std::string text = text_;
        for (unsigned other = 1; other < 256; ++other) {
            if (!share.takes()) continue;
            text[at] = static_cast<char>(static_cast<unsigned char>(text_[at]) ^ other);
            read(text, kit::every_tracking[other % 3]);
        }
    }
}

std::string nested(const std::string &name, std::size_t depth, const std::string &core) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) text += "<" + name + ">";
    text += core;
    for (std::size_t i = 0; i < depth; ++i) text += "</" + name + ">";
    return text;
}

TEST_P(DocumentDamage, DeepOnesAreReadOrRefused) {
    EXPECT_TRUE(read(nested(root().name, 20, "")).loaded);
    EXPECT_TRUE(read(nested("x", 100, text_)).loaded);
    EXPECT_FALSE(read(nested(root().name, 10000, "")).loaded);
    EXPECT_FALSE(read(nested("x", 10000, text_)).loaded);
    expect_refused(nested(root().name, 10000, "").substr(0, 50000));
}

TEST_P(DocumentDamage, TypesAndEntitiesAreRefused) {
    const std::string name = root().name;
    expect_refused("<!DOCTYPE " + name + ">" + text_);
    expect_refused("<!DOCTYPE " + name + " SYSTEM \"file:///etc/passwd\">" + text_);
    expect_refused("<!DOCTYPE " + name + " PUBLIC \"a\" \"http://localhost/a\">" + text_);
    expect_refused("<!DOCTYPE " + name + " [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><" + name + ">&e;</" + name +
                   ">");
    expect_refused("<!DOCTYPE " + name + " [<!ENTITY % p SYSTEM \"file:///etc/passwd\"> %p;]>" + text_);
    std::string laughs = "<!DOCTYPE " + name + " [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const std::string before = "&a" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY a" + std::to_string(i) + " \"" + before + before + "\">";
    }
    expect_refused(laughs + "]><" + name + ">&a29;</" + name + ">");
    // After other content, and only in the case that XML requires.
    expect_refused("<?xml version=\"1.0\"?><!-- a --><!DOCTYPE " + name + ">" + text_);
    expect_refused("<!doctype " + name + ">" + text_);
    // A document type is not allowed inside the root.
    expect_refused("<" + name + "><!DOCTYPE a></" + name + ">");
    expect_refused("<" + name + ">&undeclared;</" + name + ">");
    expect_refused("<" + name + ">&#0;</" + name + ">");
    expect_refused("<" + name + ">&#x110000;</" + name + ">");
    expect_refused("<" + name + ">&#xFFFF;</" + name + ">");
    EXPECT_TRUE(read("<" + name + ">&#65;&lt;&amp;<![CDATA[<!DOCTYPE a>]]></" + name + ">").loaded);
}

// The text of a document in another encoding, with a fixed number of bytes per character.
std::string widened(const std::string &text, std::size_t width, bool big_endian) {
    std::string wide;
    for (const char c : text) {
        std::string one(width, '\0');
        one[big_endian ? width - 1 : 0] = c;
        wide += one;
    }
    return wide;
}

TEST_P(DocumentDamage, WrongEncodingsAreRefused) {
    const std::string name = root().name;
    const auto declared = [&](const std::string &encoding) {
        return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>";
    };
    // Correct ones, for comparison.
    EXPECT_EQ(read(declared("UTF-8") + text_).error, read(text_).error);
    EXPECT_TRUE(read("\xEF\xBB\xBF" + text_).loaded);
    EXPECT_TRUE(read("\xFF\xFE" + widened(text_, 2, false)).loaded);
    EXPECT_TRUE(read("\xFE\xFF" + widened(text_, 2, true)).loaded);
    EXPECT_TRUE(read(declared("ISO-8859-1") + "<" + name + ">\xE4</" + name + ">").loaded);

    expect_refused(declared("KLINGON") + text_);
    expect_refused(declared("") + text_);
    expect_refused("<" + name + ">\xE4</" + name + ">");
    expect_refused("<" + name + ">\xC0\xBC</" + name + ">");
    expect_refused("<" + name + ">\xED\xA0\x80</" + name + ">");
    expect_refused("<" + name + ">\xF5\x80\x80\x80</" + name + ">");
    expect_refused("<" + name + ">\xE2\x82</" + name + ">");
    expect_refused("\xFF\xFE" + text_);
    expect_refused("\xFE\xFF" + widened(text_, 2, false));
    // For the parser, a NUL ends a document. The bytes after it must not be silently ignored.
    expect_refused(text_ + std::string(1, '\0') + "<!DOCTYPE a>");
    expect_refused(text_ + std::string(1, '\0'));
    expect_refused("<" + name + ">" + std::string(1, '\0') + "</" + name + ">");
    expect_refused("<" + name + ">\x01</" + name + ">");
    for (const std::size_t width : {2U, 4U}) {
        for (const bool big_endian : {false, true}) {
            // With or without a byte order mark: read or refused, and refused if truncated within a character.
            const std::string wide = widened(text_, width, big_endian);
            read(wide);
            expect_refused(wide.substr(0, wide.size() - 1));
        }
    }
}

const char *const numbers[] = {"256",
                               "65536",
                               "4294967296",
                               "18446744073709551615",
                               "18446744073709551616",
                               "99999999999999999999999999999999999999999999999999",
                               "-1",
                               "+1",
                               "1e3",
                               "0x10",
                               "1.5",
                               "NaN",
                               "-0",
                               "1 1",
                               "\xC2\xA0",
                               "\xD9\xA1"};

// Each number in a document in turn: a value that the member cannot hold is refused and not stored.
TEST_P(DocumentDamage, NumbersOutOfRangeAreRefused) {
    const RecordOperations *payload = root().payload();
    if (payload == nullptr) {
        EXPECT_EQ(read("<" + root().name + ">" + std::string(1000, '9') + "</" + root().name + ">").error, 0U);
        return;
    }
    const std::string name(payload->record->name);
    // The member after an absent string is not read, so none is absent.
    std::string strings;
    for (const auto &m : payload->members) {
        const std::string tag(m.member->name);
        if (m.text_set != nullptr) strings += "<" + tag + ">text</" + tag + ">";
    }
    for (const auto &m : payload->members) {
        if (m.member->role != tarn::schema::Role::value || !tarn::schema::is_integer(m.member->kind)) continue;
        const std::uint64_t most = m.member->kind == tarn::schema::Kind::u8    ? 0xFFU
                                   : m.member->kind == tarn::schema::Kind::u16 ? 0xFFFFU
                                   : m.member->kind == tarn::schema::Kind::u32 ? 0xFFFFFFFFU
                                                                               : ~std::uint64_t{0};
        std::vector<std::string> all(std::begin(numbers), std::end(numbers));
        all.push_back(std::string(100000, '9'));
        all.push_back(std::string(100000, '0') + "7");
        for (const std::string &number : all) {
            const std::string tag(m.member->name);
            const std::string element = "<" + tag + ">" + number + "</" + tag + ">";
            const std::string text = "<" + name + ">" + strings + element + "</" + name + ">";
            const kit::Document document(text);
            const auto handle = small_handle(Tracking::on);
            const bridge::Instance instance(*handle, *payload);
            std::uint32_t err = 0;
            char words[64];
            payload->from_xml(*handle, id, ("/" + name).c_str(), document, instance.get(), &err, words, sizeof words);
            const bool digits = number.find_first_not_of("0123456789") == std::string::npos;
            const std::size_t first = number.find_first_not_of('0');
            const std::string shown = digits && first != std::string::npos ? number.substr(first) : number;
            // Compared as text, since the numbers are longer than any type.
            const std::string limit = std::to_string(most);
            const bool fits =
                digits && (shown.size() < limit.size() || (shown.size() == limit.size() && shown <= limit));
            EXPECT_EQ(err, fits ? 0U : 22U) << tag << ' ' << number.substr(0, 60);
            std::uint32_t error = 0;
            EXPECT_EQ(m.get_value(*handle, id, instance.get(), &error), fits ? std::stoull(shown) : 0U) << tag;
        }
    }
}

std::string name_of_root(const testing::TestParamInfo<const Root *> &info) { return info.param->name; }
std::vector<const Root *> each_root() {
    std::vector<const Root *> all;
    for (const Root &root : roots()) all.push_back(&root);
    return all;
}
INSTANTIATE_TEST_SUITE_P(EveryRoot, DocumentDamage, testing::ValuesIn(each_root()), name_of_root);

}  // namespace
