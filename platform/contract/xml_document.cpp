// Loads XML documents from untrusted input, and reads element values from them.
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

#include "platform/contract/document.hpp"
#include "platform/contract/handle.hpp"
#include "platform/contract/xml_path.hpp"

namespace {

using mirk::PathMemo;

template <auto Release>
struct Releaser {
    template <typename T>
    void operator()(T *p) const {
        Release(p);
    }
};
using Document = std::unique_ptr<xmlDoc, Releaser<xmlFreeDoc>>;
using ParserContext = std::unique_ptr<xmlParserCtxt, Releaser<xmlFreeParserCtxt>>;
using PathContext = std::unique_ptr<xmlXPathContext, Releaser<xmlXPathFreeContext>>;
using PathResult = std::unique_ptr<xmlXPathObject, Releaser<xmlXPathFreeObject>>;
using File = std::unique_ptr<FILE, Releaser<fclose>>;

// In a document. Unknown parts are 0.
struct Place {
    int line = 0;
    long offset = 0;
};

Place place_of(xmlParserCtxt *parser) {
    if (parser->input == nullptr) return {1, 0};
    return {parser->input->line, xmlByteConsumed(parser)};
}

// The text, which the parser reads piece by piece, and why it was refused.
struct Source {
    std::string_view rest;
    xmlParserCtxt *parser;
    const char *refusal = nullptr;
    Place place = {};  // of the refusal or the last error

    void refuse(const char *reason) {
        if (refusal != nullptr) return;
        refusal = reason;
        place = place_of(parser);
    }
};

Source *source_of(xmlParserCtxt *parser) { return static_cast<Source *>(parser->_private); }

// Document type declarations can define entities and refer to files.
extern "C" void refuse_doctype(void *context, const xmlChar *, const xmlChar *, const xmlChar *) {
    auto *parser = static_cast<xmlParserCtxt *>(context);
    source_of(parser)->refuse("a document type declaration is not allowed");
    xmlStopParser(parser);
}

// The parser compares each attribute of an element with all others, and searches namespaces and, beyond some thousands,
// names one by one.
constexpr int most_attributes = 256, most_names = 10000;
constexpr char too_many_attributes[] = "an element has more than 256 attributes or namespaces";

// Each visible namespace has two entries.
const char *reason_to_refuse(const xmlParserCtxt *parser) {
    if (parser->nsNr > 2 * most_attributes) return too_many_attributes;
    return xmlDictSize(parser->dict) > most_names ? "the document has more than 10000 names" : nullptr;
}

extern "C" void start_element(void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *uri,
                              int namespaces, const xmlChar **namespace_names, int attributes, int defaulted,
                              const xmlChar **attribute_names) {
    auto *parser = static_cast<xmlParserCtxt *>(context);
    const char *const reason = attributes > most_attributes ? too_many_attributes : reason_to_refuse(parser);
    if (reason == nullptr) {
        return xmlSAX2StartElementNs(context, name, prefix, uri, namespaces, namespace_names, attributes, defaulted,
                                     attribute_names);
    }
    source_of(parser)->refuse(reason);
    xmlStopParser(parser);
}

// The parser collects the attributes of a tag before it compares them, and reads on meanwhile. Its table of attributes
// has five entries for each, and grows to twice what it needs.
extern "C" int read_piece(void *context, char *buffer, int size) {
    auto *source = static_cast<Source *>(context);
    const bool attributes = source->parser->maxatts > 20 * most_attributes;
    const char *const reason = attributes ? too_many_attributes : reason_to_refuse(source->parser);
    if (reason != nullptr) {
        source->refuse(reason);
        return -1;
    }
    const size_t count = source->rest.copy(buffer, static_cast<size_t>(size));
    source->rest.remove_prefix(count);
    return static_cast<int>(count);
}

extern "C" void note_place(void *context, xmlErrorPtr error) {
    auto *parser = static_cast<xmlParserCtxt *>(context);
    Source *const source = source_of(parser);
    if (source->refusal == nullptr) source->place = {error->line, place_of(parser).offset};
}

extern "C" void ignore_error(void *, xmlErrorPtr) {}

// Encoding errors bypass the parser context and would go to standard error. This discards them for the calling thread.
class ErrorsIgnored {
public:
    ErrorsIgnored() { xmlSetStructuredErrorFunc(nullptr, ignore_error); }
    ~ErrorsIgnored() { xmlSetStructuredErrorFunc(context_, function_); }
    ErrorsIgnored(const ErrorsIgnored &) = delete;
    ErrorsIgnored &operator=(const ErrorsIgnored &) = delete;

private:
    void *const context_ = xmlStructuredErrorContext;
    const xmlStructuredErrorFunc function_ = xmlStructuredError;
};

// The parser initializes itself at its first use, but creating a context does so without a lock: two threads that load
// the first documents of a process at the same time would both do it and leak memory.
void prepare_parser() { [[maybe_unused]] static const bool prepared = (xmlInitParser(), true); }

void fill_in(mirk_platform_report *report, uint32_t number, const Place &place, const char *sentence) {
    if (report == nullptr) return;
    *report = {};
    report->number = number;
    report->line = static_cast<uint32_t>(std::max(place.line, 0));
    report->offset = static_cast<uint32_t>(std::max(place.offset, 0L));
    std::snprintf(report->sentence, sizeof report->sentence, "%s", sentence);
    report->sentence[std::strcspn(report->sentence, "\n")] = 0;
}

std::atomic<uint32_t> list_limit{0};

// The element in which the document exceeds the limit on lists, or null.
const xmlNode *too_long_list(const xmlDoc *document, size_t length) {
    const uint64_t limit = list_limit;
    if (limit == 0) return nullptr;
    uint64_t room = limit * length;
    for (const xmlNode *node = xmlDocGetRootElement(document); node != nullptr;) {
        uint64_t elements = 0;
        for (const xmlNode *child = node->children; child != nullptr; child = child->next) {
            if (child->type == XML_ELEMENT_NODE) ++elements;
        }
        if (elements * elements > room) return node;
        room -= elements * elements;
        // The next one in the order of the document.
        const xmlNode *next = elements != 0 ? node->children : node->next;
        for (;;) {
            while (next != nullptr && next->type != XML_ELEMENT_NODE) next = next->next;
            if (next != nullptr || node == nullptr || node->type != XML_ELEMENT_NODE) break;
            node = node->parent;
            next = node->next;
        }
        node = next;
    }
    return nullptr;
}

void *finish(Document document, size_t length, mirk_platform_report *report) {
    if (const xmlNode *list = too_long_list(document.get(), length); list != nullptr) {
        fill_in(report, EINVAL, {static_cast<int>(xmlGetLineNo(list)), 0},
                "the elements inside this one are too many for the length of the document");
        return nullptr;
    }
    const mirk_platform_error error = mirk::guarded([&]() -> mirk_platform_error {
        document->_private = new PathMemo(document.get());
        return 0;
    });
    if (error != 0) {
        fill_in(report, error, {}, std::strerror(static_cast<int>(error)));
        return nullptr;
    }
    if (report != nullptr) *report = {};
    return document.release();
}

// The result of evaluating a path that PathMemo does not support.
class Evaluated {
public:
    Evaluated(xmlDoc *document, const char *path) : context_(xmlXPathNewContext(document)) {
        if (context_ == nullptr) return;
        context_->error = ignore_error;
        result_.reset(xmlXPathEvalExpression(reinterpret_cast<const xmlChar *>(path), context_.get()));
    }
    bool good() const { return result_ != nullptr && result_->type == XPATH_NODESET; }
    size_t count() const {
        return result_->nodesetval == nullptr ? 0 : static_cast<size_t>(result_->nodesetval->nodeNr);
    }
    xmlNode *first() const { return result_->nodesetval->nodeTab[0]; }

private:
    PathContext context_;
    PathResult result_;
};

// The number of nodes at the path and the first of them. EINVAL for an invalid path.
uint32_t look_up(void *document, const char *path, size_t *count, xmlNode **first) {
    if (document == nullptr || path == nullptr) return EINVAL;
    auto *doc = static_cast<xmlDoc *>(document);
    if (auto *memo = static_cast<PathMemo *>(doc->_private); memo != nullptr) {
        if (const auto *nodes = memo->find(path); nodes != nullptr) {
            *count = nodes->size();
            *first = nodes->empty() ? nullptr : nodes->front();
            return 0;
        }
    }
    const Evaluated found(doc, path);
    if (!found.good()) return EINVAL;
    *count = found.count();
    *first = *count == 0 ? nullptr : found.first();
    return 0;
}

// The text of an element if it is contiguous in the document, otherwise null.
const xmlChar *text_in_place(const xmlNode *node) {
    if (node->type != XML_ELEMENT_NODE) return nullptr;
    const xmlNode *child = node->children;
    if (child == nullptr) return reinterpret_cast<const xmlChar *>("");
    if (child->next != nullptr || child->type != XML_TEXT_NODE) return nullptr;
    return child->content;
}

}  // namespace

namespace mirk {

ElementText::ElementText(void *document, const char *path) noexcept {
    size_t count = 0;
    xmlNode *node = nullptr;
    error_ = guarded([&] { return look_up(document, path, &count, &node); });
    if (error_ == 0 && node == nullptr) error_ = ENOENT;
    if (error_ != 0) return;
    const xmlChar *text = text_in_place(node);
    if (text == nullptr) text = owned_ = xmlNodeGetContent(node);
    if (text == nullptr) {
        error_ = ENOMEM;
    } else {
        view_ = reinterpret_cast<const char *>(text);
    }
}

ElementText::~ElementText() { xmlFree(owned_); }

}  // namespace mirk

extern "C" {

uint32_t xml_get_element_nodecount(void *document, const char *path, uint32_t *count) {
    if (count == nullptr) return EINVAL;
    size_t found = 0;
    xmlNode *first = nullptr;
    const uint32_t error = mirk::guarded([&] { return look_up(document, path, &found, &first); });
    if (error == 0) *count = static_cast<uint32_t>(found);
    return error;
}

uint32_t xml_get_element_value(void *document, const char *path, char *value, uint32_t value_size, uint32_t *length) {
    const mirk::ElementText text(document, path);
    if (text.error() != 0) return text.error();
    const size_t size = text.view().size();
    if (length != nullptr) *length = static_cast<uint32_t>(size);
    if (value == nullptr) return size == 0 ? 0 : ENOSPC;
    if (size + 1 > value_size) return ENOSPC;
    value[text.view().copy(value, size)] = 0;
    return 0;
}

void *mirk_platform_document_load_memory(const void *text, size_t length, mirk_platform_report *report) {
    if (text == nullptr || length == 0 || length > INT32_MAX) {
        fill_in(report, EINVAL, {}, length > INT32_MAX ? "the document is too long" : "the document is empty");
        return nullptr;
    }
    prepare_parser();
    const ParserContext parser(xmlNewParserCtxt());
    if (parser == nullptr) {
        fill_in(report, ENOMEM, {}, std::strerror(ENOMEM));
        return nullptr;
    }
    Source source{{static_cast<const char *>(text), length}, parser.get()};
    parser->_private = &source;
    parser->sax->internalSubset = refuse_doctype;
    parser->sax->startElementNs = start_element;
    parser->sax->serror = note_place;
    const ErrorsIgnored scope;
    // Short texts are kept in their nodes.
    constexpr int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NOCDATA | XML_PARSE_COMPACT;
    Document document(xmlCtxtReadIO(parser.get(), read_piece, nullptr, &source, nullptr, nullptr, options));
    if (source.refusal != nullptr) {
        fill_in(report, EINVAL, source.place, source.refusal);
        return nullptr;
    }
    if (document == nullptr) {
        const xmlError *error = xmlCtxtGetLastError(parser.get());
        const bool known = error != nullptr && error->message != nullptr;
        fill_in(report, known && error->code == XML_ERR_NO_MEMORY ? ENOMEM : EINVAL, known ? source.place : Place{},
                known ? error->message : "the document is not well-formed");
        return nullptr;
    }
    // The parser takes a NUL for the end of the document and would silently ignore the rest.
    if (const long read = xmlByteConsumed(parser.get()); read >= 0 && static_cast<size_t>(read) < length) {
        fill_in(report, EINVAL, place_of(parser.get()), "there is more data after the end of the document");
        return nullptr;
    }
    return finish(std::move(document), length, report);
}

void *mirk_platform_document_load_file(const char *path, mirk_platform_report *report) {
    std::string text;
    const mirk_platform_error error = mirk::guarded([&]() -> mirk_platform_error {
        const File file(std::fopen(path, "rbe"));
        if (file == nullptr) return static_cast<mirk_platform_error>(errno);
        char piece[65536];
        size_t got = 0;
        while ((got = std::fread(piece, 1, sizeof piece, file.get())) != 0) text.append(piece, got);
        return std::ferror(file.get()) != 0 ? static_cast<mirk_platform_error>(errno) : 0;
    });
    if (error != 0) {
        fill_in(report, error, {}, std::strerror(static_cast<int>(error)));
        return nullptr;
    }
    return mirk_platform_document_load_memory(text.data(), text.size(), report);
}

void mirk_platform_document_limit_lists(uint32_t per_byte) { list_limit = per_byte; }

void mirk_platform_document_free(void *document) {
    if (document == nullptr) return;
    delete static_cast<PathMemo *>(static_cast<xmlDoc *>(document)->_private);
    xmlFreeDoc(static_cast<xmlDoc *>(document));
}

}  // extern "C"
