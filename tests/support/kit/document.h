// A document of the reference runtime, as the from_xml operations take it.
#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "mirk_platform.h"

namespace kit {

class Document {
public:
    // The text is expected to be well formed.
    explicit Document(std::string_view text) {
        mirk_platform_report report;
        document_ = mirk_platform_document_load_memory(text.data(), text.size(), &report);
        EXPECT_NE(document_, nullptr) << report.sentence << " in " << text;
    }
    // Null if the text is refused. The report may be null.
    Document(std::string_view text, mirk_platform_report *report)
        : document_(mirk_platform_document_load_memory(text.data(), text.size(), report)) {}
    ~Document() { mirk_platform_document_free(document_); }
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;

    operator void *() const { return document_; }

private:
    void *document_;
};

}  // namespace kit
