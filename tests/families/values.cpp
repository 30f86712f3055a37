#include "values.h"

#include <sys/socket.h>

namespace families {

namespace {

// Sets the highest index first, so that an array grows once.
std::uint32_t fill_array(mirk_handle *h, const MemberOperations &m, void *object, std::uint32_t seed, Extent extent) {
    const RecordOperations &element = nested_record(m);
    std::uint32_t first_error = 0;
    for (std::uint32_t i = extent.elements; extent.depth > 0 && i-- > 0;) {
        void *value = element.create(h, id);
        std::uint32_t error = value == nullptr ? ENOMEM
                                               : fill(h, element, value, seed + 17 * (i + 1),
                                                      {extent.elements, extent.depth - 1, extent.states});
        if (first_error == 0) first_error = error;
        error = 0;
        if (value != nullptr) m.element_set(h, id, object, i, value, &error);
        if (first_error == 0) first_error = error;
        element.destroy(h, id, value);
    }
    return first_error;
}

std::uint32_t fill_member(mirk_handle *h, const RecordOperations &r, const MemberOperations &m, void *object,
                          std::uint32_t seed, Extent extent) {
    std::uint32_t err = 0;
    if (m.member->kind == Kind::record) {
        return fill(h, nested_record(m), at(r, object, m), seed, extent);
    } else if (m.member->kind == Kind::array) {
        return fill_array(h, m, object, seed, extent);
    } else if (m.member->kind == Kind::string) {
        const std::string text = name(m) + std::to_string(seed);
        m.text_set(h, id, object, text.data(), static_cast<std::uint32_t>(text.size()), &err);
    } else if (m.member->kind == Kind::address) {
        auto *address = static_cast<ip_address *>(at(r, object, m));
        address->af = AF_INET6;
        address->prefix_len = static_cast<std::uint8_t>(seed % 129);
        for (std::uint32_t i = 0; i < 4; ++i) address->word[i] = seed * 0x01010101U + i;
    } else if (m.set_value != nullptr) {
        const bool small = is_value_kind(m);
        m.set_value(h, id, object, small ? 1 : 0x0123456789ABCDEFU * (seed | 1), &err);
    }
    return err;
}

void read_array(mirk_handle *h, const MemberOperations &m, void *object, std::uint64_t count, const std::string &label,
                std::vector<std::string> &lines) {
    const RecordOperations &element = nested_record(m);
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint32_t err = 0;
        void *item = m.element_get(h, id, object, i, &err);
        const std::string item_label = label + "[" + std::to_string(i) + "]";
        if (item == nullptr) {
            lines.push_back(item_label + " error " + std::to_string(err));
            continue;
        }
        for (const std::string &line : content(h, element, item)) lines.push_back(item_label + "." + line);
        if (h->sttr_desc != nullptr && h->sttr_desc->sttr_mode == 0xEEEE) {
            lines.push_back(item_label + " state " + std::to_string(m.element_state_flag_get(h, id, object, i, &err)));
        }
    }
}

}  // namespace

std::uint32_t fill(mirk_handle *h, const RecordOperations &r, void *object, std::uint32_t seed, Extent extent) {
    std::uint32_t first_error = 0;
    for (const MemberOperations &m : r.members) {
        seed = seed * 31 + 7;
        const std::uint32_t error = fill_member(h, r, m, object, seed, extent);
        if (first_error == 0) first_error = error;
        std::uint32_t err = 0;
        if (extent.states && m.state_flag_set != nullptr) {
            m.state_flag_set(h, id, object, static_cast<std::uint8_t>(seed | 1), &err);
        }
        if (first_error == 0) first_error = err;
    }
    return first_error;
}

void *filled(mirk_handle *h, const RecordOperations &r, std::uint32_t seed, Extent extent) {
    void *object = r.create(h, id);
    EXPECT_EQ(fill(h, r, object, seed, extent), 0u);
    return object;
}

std::vector<std::string> content(mirk_handle *h, const RecordOperations &r, void *object) {
    std::vector<std::string> lines;
    std::uint64_t last_number = 0;  // a count directly precedes its array
    for (const MemberOperations &m : r.members) {
        std::uint32_t err = 0;
        const std::string label = name(m);
        if (m.get_value != nullptr) {
            last_number = m.get_value(h, id, object, &err);
            lines.push_back(label + " " + std::to_string(last_number));
        } else if (m.member->kind == Kind::record) {
            for (const std::string &line : content(h, nested_record(m), at(r, object, m))) {
                lines.push_back(label + "." + line);
            }
        } else if (m.member->kind == Kind::string) {
            std::vector<char> text(last_number + 1);
            m.text_get(h, id, object, text.data(), static_cast<std::uint32_t>(text.size()), &err);
            lines.push_back(label + " " + std::string(text.data(), last_number));
        } else if (m.member->kind == Kind::address) {
            const auto *address = static_cast<ip_address *>(at(r, object, m));
            std::string line = label + " " + std::to_string(address->af) + " " + std::to_string(address->prefix_len);
            for (std::uint32_t word : address->word) line += " " + std::to_string(word);
            lines.push_back(line);
        } else {
            read_array(h, m, object, last_number, label, lines);
        }
        if (m.state_flag_get != nullptr && h->sttr_desc != nullptr && h->sttr_desc->sttr_mode == 0xEEEE) {
            lines.push_back(label + " state " + std::to_string(m.state_flag_get(h, id, object, &err)));
        }
        if (err != 0) lines.push_back(label + " error " + std::to_string(err));
    }
    return lines;
}

}  // namespace families
