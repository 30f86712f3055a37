// A document, read as any root.
#include <string>

#include "fuzz.h"

namespace {

using namespace fuzz;

constexpr unsigned occupied = 4, prepared = 5;

void read_record(const Choice &choice, const RecordOperations &record, Input &past, void *document) {
    Handle handle(options(choice));
    void *instance = record.create(handle, id);
    if (choice.bit(prepared)) prepare(handle, record, instance, past);
    const std::string path = "/" + std::string(record.record->name);
    char words[64];
    std::uint32_t err = 0;
    record.from_xml(handle, id, path.c_str(), document, instance, &err, words, sizeof words);
    if (choice.bit(occupied)) {
        // Elements of the first read are moved and cleared by the second.
        handle.allow_lost_blocks();
        err = 0;
        record.from_xml(handle, id, path.c_str(), document, instance, &err, words, sizeof words);
    }
    mirk_clear_last_error(handle);
    use(handle, record, instance);
    const bridge::Marshalled written = write(handle, record, instance);
    if (err == 0 && written.error == 0) {
        void *again = record.create(handle, id);
        std::uint32_t error = 0;
        record.unmarshal(handle, id, guarded(written.bytes), again, static_cast<std::uint32_t>(written.bytes.size()), 0,
                         &error);
        require(error != 0 || record.compare(instance, again) == 0, "what was read from a document travels in a frame");
        record.destroy(handle, id, again);
    }
    record.destroy(handle, id, instance);
}

void read_enumeration(const Choice &choice, const EnumerationOperations &enumeration, void *document) {
    const Handle handle(options(choice));
    void *instance = enumeration.create(handle, id);
    const std::string path = "/" + std::string(enumeration.enumeration->name);
    char words[64];
    std::uint32_t err = 0;
    enumeration.from_xml(handle, id, path.c_str(), document, instance, &err, words, sizeof words);
    const std::uint32_t value = enumeration.get_value(handle, id, instance, &handle->last_error);
    require(value < enumeration.enumeration->enumerators.size(), "a document names enumerators that there are");
    use(handle, enumeration, instance);
    enumeration.destroy(handle, id, instance);
}

void read_message(const Choice &choice, const MessageOperations &message, void *document) {
    Handle handle(options(choice));
    char words[64];
    std::uint32_t err = 0;
    void *object = message.from_xml(handle, id, document, &err, words, sizeof words);
    if (object == nullptr) {
        // A failed read does not release the message.
        handle.allow_lost_blocks();
        return;
    }
    use(handle, message, object);
    message.destroy(handle, id, object);
}

// True if a text contains "<!DOCTYPE" where it can only be markup.
bool declares_a_type(std::span<const std::uint8_t> bytes) {
    const std::string_view text(reinterpret_cast<const char *>(bytes.data()), bytes.size());
    const auto holds = [&](const char *words) { return text.find(words) != std::string_view::npos; };
    return holds("<!DOCTYPE") && !holds("<!--") && !holds("<![CDATA[") && !holds("<?");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Input input(data, size);
    const Root root = fuzz::root(input.u8());
    const Choice choice(input.u8());
    // The bytes of prepare() precede the document.
    constexpr std::size_t bytes_of_a_past = 4;
    Input past = choice.bit(prepared) ? Input(input.take(bytes_of_a_past)) : Input({});
    const auto text = input.rest();
    mirk_platform_report report;
    void *document = mirk_platform_document_load_memory(text.data(), text.size(), &report);
    require((document == nullptr) == (report.number != 0), "a document that is refused says why");
    if (document == nullptr) return 0;
    require(!declares_a_type(text), "a document type is refused");
    if (root.record != nullptr) read_record(choice, *root.record, past, document);
    if (root.enumeration != nullptr) read_enumeration(choice, *root.enumeration, document);
    if (root.message != nullptr) read_message(choice, *root.message, document);
    mirk_platform_document_free(document);
    return 0;
}
