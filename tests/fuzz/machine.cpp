#include "machine.h"

#include <algorithm>
#include <vector>

namespace fuzz {

using tarn::reflect::MemberOperations;
using tarn::schema::Kind;

namespace {

constexpr mirk_platform_testing_allocator allocators[] = {
    MIRK_PLATFORM_TESTING_OBJ_ALLOC, MIRK_PLATFORM_TESTING_SYS_ALLOC, MIRK_PLATFORM_TESTING_VARIANT_BLOCK,
    MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC};

}  // namespace

Machine::~Machine() {
    for (const auto allocator : allocators) mirk_platform_testing_fail_allocation(handle_, allocator, 0, 0);
    if (handle_->send_bundle_open != 0) {
        std::uint32_t err = 0;
        bundle_send_message_list_destroy(handle_, id, &err);
    }
    for (const Object &o : slots_) {
        if (o.instance == nullptr) continue;
        use(handle_, *o.record, o.instance);
        o.record->destroy(handle_, id, o.instance);
    }
    if (message_.second != nullptr) message_.first->destroy(handle_, id, message_.second);
}

void Machine::run() {
    while (!input_.empty()) step();
}

Machine::Object Machine::object() {
    Object at = slot();
    for (unsigned depth = input_.u8() % 3; depth > 0 && at.instance != nullptr; --depth) {
        const MemberOperations &m = member(*at.record);
        if (m.member->record == nullptr) break;
        std::uint32_t err = 0;
        void *inner = m.member->kind == Kind::array ? m.element_get(handle_, id, at.instance, index(), &err)
                                                    : m.get(handle_, id, at.instance, &err);
        if (inner == nullptr) break;
        at = {&tarn::reflect::operations_of(*m.member->record), inner};
    }
    return at;
}

Machine::Object Machine::object_of(const RecordOperations &record) {
    for (unsigned tries = 0; tries < 4; ++tries) {
        const Object found = object();
        if (found.record == &record) return found;
    }
    return {};
}

const MemberOperations &Machine::member(const RecordOperations &record) {
    return record.members[input_.u8() % record.members.size()];
}

std::uint32_t Machine::index() {
    const std::uint8_t byte = input_.u8();
    return byte < 0xF0 ? byte % 8U : byte;
}

bool Machine::is_live(const void *block) {
    std::vector<mirk_platform_block> blocks(mirk_platform_live_blocks(handle_));
    mirk_platform_list_blocks(handle_, blocks.data(), blocks.size());
    return std::any_of(blocks.begin(), blocks.end(), [&](const auto &b) { return b.address == block; });
}

void Machine::step() {
    static constexpr void (Machine::*calls[])() = {
        &Machine::create, &Machine::destroy,  &Machine::set_value, &Machine::set_text,  &Machine::set_element,
        &Machine::states, &Machine::whole,    &Machine::assign,    &Machine::copy,      &Machine::frame,
        &Machine::text,   &Machine::document, &Machine::message,   &Machine::bundle,    &Machine::domain,
        &Machine::memory, &Machine::look,     &Machine::received,  &Machine::references};
    const std::uint8_t byte = input_.u8();
    // An error stays set until the input or the end of a few calls clears it, so that most calls have an effect.
    if ((byte & 0x80) == 0) err_ = 0;
    if ((byte & 0x40) == 0) mirk_clear_last_error(handle_);
    (this->*calls[(byte & 0x3F) % std::size(calls)])();
}

void Machine::create() {
    Object &s = slot();
    const RecordOperations &record = tarn::reflect::records()[input_.u8() % tarn::reflect::records().size()];
    if (s.instance != nullptr) s.record->destroy(handle_, id, s.instance);
    // A destruction that stopped halfway does not release its block.
    if (s.instance != nullptr && is_live(s.instance)) handle_.allow_lost_blocks();
    s = {&record, record.create(handle_, id)};
}

void Machine::destroy() {
    Object &s = slot();
    if (s.instance == nullptr) return;
    s.record->destroy(handle_, id, s.instance);
    if (is_live(s.instance)) handle_.allow_lost_blocks();
    s.instance = nullptr;
}

void Machine::set_value() {
    const Object o = object();
    if (o.instance == nullptr) return;
    const MemberOperations &m = member(*o.record);
    if (m.set_value != nullptr) m.set_value(handle_, id, o.instance, input_.u64(), &err_);
    if (m.get_value != nullptr) m.get_value(handle_, id, o.instance, &err_);
    if (m.get != nullptr && m.set != nullptr && m.member->kind != Kind::record) {
        m.set(handle_, id, o.instance, m.get(handle_, id, o.instance, &err_), &err_);
    }
    if (m.member->kind != Kind::record || m.set == nullptr) return;
    // The blocks of a nested record are lost when it is overwritten.
    const Object from = object_of(tarn::reflect::operations_of(*m.member->record));
    if (from.instance == nullptr) return;
    handle_.allow_lost_blocks();
    m.set(handle_, id, o.instance, from.instance, &err_);
}

void Machine::set_text() {
    const Object o = object();
    if (o.instance == nullptr) return;
    for (const MemberOperations &m : o.record->members) {
        if (m.text_set == nullptr || input_.u8() % 2 != 0) continue;
        const auto bytes = input_.take(input_.u8() % 64U);
        const std::string value(bytes.begin(), bytes.end());
        const auto length = static_cast<std::uint32_t>(value.size());
        if (input_.u8() % 2 == 0) {
            m.text_set(handle_, id, o.instance, value.c_str(), length, &err_);
        } else {
            m.text_set_cr(handle_, o.instance, value.c_str(), length);
        }
        char destination[70];
        m.text_get(handle_, id, o.instance, destination, static_cast<std::uint32_t>(input_.u8() % sizeof destination),
                   &err_);
    }
}

void Machine::set_element() {
    const Object o = object();
    if (o.instance == nullptr) return;
    const MemberOperations &m = member(*o.record);
    if (m.element_set == nullptr) return;
    const Object value = object_of(tarn::reflect::operations_of(*m.member->record));
    const std::uint32_t at = index();
    const std::uint8_t how = input_.u8() % 4;
    // The element that was there is not destroyed, and a one-byte count may wrap.
    handle_.allow_lost_blocks();
    if (how < 2) m.element_set(handle_, id, o.instance, at, value.instance, &err_);
    if (how >= 2) m.element_set_cr(handle_, o.instance, at, value.instance, how & 1U);
}

void Machine::states() {
    const Object o = object();
    if (o.instance == nullptr) return;
    const MemberOperations &m = member(*o.record);
    const std::uint8_t value = input_.u8();
    if (m.state_flag_set != nullptr) m.state_flag_set(handle_, id, o.instance, value, &err_);
    if (m.state_flag_get != nullptr) m.state_flag_get(handle_, id, o.instance, &err_);
    if (m.element_state_flag_set == nullptr) return;
    m.element_state_flag_set(handle_, id, o.instance, index(), value, &err_);
    m.element_state_flag_get(handle_, id, o.instance, index(), &err_);
    std::uint8_t *vector = nullptr;
    m.element_state_flag_get_arr(handle_, id, o.instance, &vector, &err_);
    const std::vector<std::uint8_t> source(256, value);
    m.element_state_flag_set_arr(handle_, id, o.instance, source.data(), index(), &err_);
}

void Machine::whole() {
    const Object o = object();
    if (o.instance == nullptr) return;
    switch (input_.u8() % 5) {
        case 0:
            // The vectors of element states are lost.
            handle_.allow_lost_blocks();
            o.record->set_all_state_tracking_flag(handle_, id, o.instance, input_.u8());
            return;
        case 1:
            o.record->adjust_variant(handle_, id, o.instance, &err_);
            return;
        case 2: {
            std::vector<std::uint64_t> values(o.record->members.size(), input_.u64());
            o.record->set_all(handle_, id, o.instance, values.data(), &err_);
            return;
        }
        case 3:
            o.record->is_valid_cr(handle_, o.instance, input_.u8());
            o.record->get_oid_count(handle_, id, o.instance, &err_);
            return;
        default:
            mirk_platform_set_ra_data(handle_, o.instance, nullptr, input_.u8());
            return;
    }
}

void Machine::assign() {
    const Object to = object();
    if (to.instance == nullptr) return;
    const Object from = object_of(*to.record);
    if (from.instance == nullptr) return;
    handle_.allow_lost_blocks();
    to.record->set(handle_, id, to.instance, from.instance, &err_);
}

void Machine::copy() {
    const Object from = object();
    if (from.instance == nullptr) return;
    Object &to = slot();
    if (input_.u8() % 2 == 0) {
        void *made = from.record->clone_cr(handle_, from.instance);
        if (made == nullptr) return;
        use(handle_, *from.record, made, 512);
        from.record->destroy(handle_, id, made);
    } else if (to.record == from.record && to.instance != nullptr && to.instance != from.instance) {
        // The old blocks of the destination are not released, but a destination whose copy failed is destroyed.
        handle_.allow_lost_blocks();
        from.record->copy_cr(handle_, from.instance, to.instance);
        if (!is_live(to.instance)) to.instance = nullptr;
    }
}

void Machine::frame() {
    const Object o = object();
    if (o.instance == nullptr) return;
    Bytes bytes = write(handle_, *o.record, o.instance).bytes;
    for (unsigned edits = input_.u8() % 4; edits > 0 && !bytes.empty(); --edits) {
        bytes[input_.u16() % bytes.size()] = input_.u8();
    }
    const std::uint32_t reuse = input_.u8() % 2;
    handle_.allow_lost_blocks();
    o.record->unmarshal(handle_, id, guarded(bytes), o.instance, static_cast<std::uint32_t>(bytes.size()), reuse,
                        &err_);
}

// Any bytes as a frame, read into an object as it is.
void Machine::received() {
    const Object o = object();
    if (o.instance == nullptr) return;
    const auto bytes = input_.take(input_.u8());
    handle_.allow_lost_blocks();
    o.record->unmarshal(handle_, id, guarded(bytes), o.instance, static_cast<std::uint32_t>(bytes.size()), 0, &err_);
}

// An address of one object refers to another, or to none.
void Machine::references() {
    const Object from = object();
    if (from.instance == nullptr) return;
    const MemberOperations &m = member(*from.record);
    if (m.member->kind != Kind::address) return;
    std::uint32_t err = 0;
    const auto *address = static_cast<const ip_address *>(m.get(handle_, id, from.instance, &err));
    if (address == nullptr) return;
    Object &to = slot();
    const std::uint32_t count = input_.u8() % 3;
    void *oid = nullptr;
    // A condemned object whose references never end is left.
    handle_.allow_lost_blocks();
    if (to.instance != nullptr && count != 0) {
        mirk_platform_oid_mapping_make(handle_, to.instance, count, to.record->destroy, &oid);
    }
    mirk_platform_address_set_oids(handle_, address, &oid, oid != nullptr ? 1 : 0);
}

void Machine::text() {
    const Object o = object();
    if (o.instance != nullptr) use(handle_, *o.record, o.instance, input_.u16() % 4096U + 1U);
}

void Machine::document() {
    const Object from = object();
    if (from.instance == nullptr) return;
    const Object to = object_of(*from.record);
    if (to.instance == nullptr) return;
    std::string text(16384, ' ');
    std::uint32_t error = 0;
    const std::uint32_t size = from.record->to_xml(handle_, id, "o", text.data(), from.instance,
                                                   static_cast<std::int32_t>(text.size()), 0, &error);
    text.resize(std::min<std::size_t>(size, text.size()));
    void *document = mirk_platform_document_load_memory(text.data(), text.size(), nullptr);
    char words[32];
    handle_.allow_lost_blocks();
    if (document != nullptr) {
        to.record->from_xml(handle_, id, "/o", document, to.instance, &err_, words, sizeof words);
    }
    mirk_platform_document_free(document);
}

void Machine::message() {
    auto &[operations, object] = message_;
    if (object == nullptr) {
        operations = &tarn::reflect::messages()[input_.u8() % tarn::reflect::messages().size()];
        object = operations->create(handle_, id);
        return;
    }
    const RecordOperations &payload = tarn::reflect::operations_of(operations->message->payload);
    switch (input_.u8() % 4) {
        case 0: {
            Object &s = slot();
            std::uint32_t err = 0;
            if (s.record != &payload || s.instance == nullptr) return;
            operations->payload_free_and_set(handle_, id, object, s.instance, &err);
            s.instance = nullptr;
            return;
        }
        case 1: {
            Object &s = slot();
            std::uint32_t err = 0;
            if (s.instance != nullptr) return;
            s = {&payload, operations->payload_get_detach(handle_, id, object, &err)};
            return;
        }
        case 2:
            use(handle_, *operations, object, 2048);
            return;
        default:
            operations->destroy(handle_, id, object);
            object = nullptr;
    }
}

void Machine::bundle() {
    std::uint8_t buffer[64];
    const auto &bundle = tarn::reflect::bundles()[input_.u8() % tarn::reflect::bundles().size()];
    const std::uint8_t how = input_.u8();
    const MessageOperations &control = how % 3 == 0 ? bundle.start : how % 3 == 1 ? bundle.abort : bundle.commit;
    void *token = control.create(handle_, id);
    control.marshal(handle_, id, buffer, token, input_.u8() % 63U, &err_);
    char text[128];
    control.print(handle_, id, text, token, sizeof text, &err_);
    control.to_xml(handle_, id, text, token, sizeof text, &err_);
    if (token != nullptr) control.destroy(handle_, id, token);
}

void Machine::domain() {
    const RecordOperations &record = tarn::reflect::records()[input_.u8() % tarn::reflect::records().size()];
    mirk_platform_domain_set_variant(handle_, record.type->luid, static_cast<std::int8_t>(input_.u8()));
}

void Machine::memory() {
    const std::uint8_t byte = input_.u8();
    if (!failures_) return;
    // The results of failed allocations are documented per operation, and tested by the sweep.
    handle_.allow_lost_blocks();
    mirk_platform_testing_fail_allocation(handle_, allocators[byte % 4], byte / 4 % 16, byte >> 7);
}

void Machine::look() {
    const Object o = object();
    if (o.instance == nullptr) return;
    const Object other = object_of(*o.record);
    if (other.instance != nullptr) {
        const std::int32_t one = o.record->compare(o.instance, other.instance);
        const std::int32_t two = o.record->compare(other.instance, o.instance);
        require((one == 0) == (two == 0), "equality has no order");
        require(one != 0 || o.record->hash(o.instance, 1) == o.record->hash(other.instance, 1),
                "what is equal hashes alike");
    }
    std::uint32_t word = 0;
    o.record->type_type_backpropagate(handle_, id, o.instance, &word);
}

}  // namespace fuzz
