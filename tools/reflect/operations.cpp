#include "tools/reflect/operations.h"

#include "lumo_ui_tarn.h"

// The tables themselves.
#include "operations.inc"

namespace tarn::reflect {

namespace {

template <class Operations>
const Operations *find(std::span<const Operations> all, auto &&matches) {
    for (const Operations &o : all) {
        if (matches(o)) return &o;
    }
    return nullptr;
}

}  // namespace

std::span<const RecordOperations> records() { return all_records(); }
std::span<const EnumerationOperations> enumerations() { return all_enumerations(); }
std::span<const MessageOperations> messages() { return all_messages(); }
std::span<const BundleOperations> bundles() { return all_bundles(); }

const RecordOperations &operations_of(const schema::Record &record) {
    return *find(records(), [&](const auto &o) { return o.record == &record; });
}
const EnumerationOperations &operations_of(const schema::Enumeration &enumeration) {
    return *find(enumerations(), [&](const auto &o) { return o.enumeration == &enumeration; });
}
const MessageOperations &operations_of(const schema::Message &message) {
    return *find(messages(), [&](const auto &o) { return o.message == &message; });
}

const RecordOperations *find_record(std::string_view name) {
    return find(records(), [&](const auto &o) { return o.record->name == name; });
}
const MessageOperations *find_message(std::string_view name) {
    return find(messages(), [&](const auto &o) { return name == o.name; });
}
const BundleOperations *find_bundle(std::string_view name) {
    return find(bundles(), [&](const auto &o) { return o.bundle->name == name; });
}

}  // namespace tarn::reflect
