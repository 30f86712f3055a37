// Frames, message headers, bundles, text, XML, the recorder and the sibling modules.
#include <algorithm>
#include <cstdarg>
#include <cstdlib>
#include <utility>

#include "internal.h"

namespace recording {

namespace {

std::map<std::string, std::uint32_t, std::less<>> xml_errors;
std::uint32_t recorder_state = 0;
FILE *recorder_stream = nullptr;
std::map<std::string, mirk_bundle_handler, std::less<>> siblings;

std::string tag(const std::string &name, std::uint8_t state) {
    return "<" + name + " s='" + std::to_string(state) + "'>";
}

// Escapes all but plain characters as a percent sign and two digits.
std::string escaped(const char *chars, std::uint32_t length) {
    std::string text;
    for (std::uint32_t i = 0; i < length; ++i) {
        const auto c = static_cast<unsigned char>(chars[i]);
        char code[4];
        std::snprintf(code, sizeof code, "%%%02X", c);
        text += c > ' ' && c < 0x7F && !std::strchr("%<>&\"'", c) ? std::string(1, chars[i]) : code;
    }
    return text;
}

// ---- paths ----

void collect(const Element &from, std::string_view name, bool deep, std::vector<const Element *> &found) {
    for (const Element &child : from.children) {
        if (child.name == name) found.push_back(&child);
        if (deep) collect(child, name, deep, found);
    }
}

// The elements at the path, in document order, or an error number if the path is invalid.
std::uint32_t find(const void *document, std::string_view path, std::vector<const Element *> &found) {
    if (const auto chosen = xml_errors.find(path); chosen != xml_errors.end()) return chosen->second;
    if (!document || !path.starts_with("//") || path.ends_with('/')) return EINVAL;
    path.remove_prefix(2);
    const auto &root = *static_cast<const Element *>(document);
    for (bool first = true; first || !path.empty(); first = false) {
        std::string_view step = path.substr(0, path.find('/'));
        path.remove_prefix(std::min(path.size(), step.size() + 1));
        std::size_t position = 0;
        if (const std::size_t bracket = step.find('['); bracket != step.npos) {
            position = std::strtoul(std::string(step.substr(bracket + 1)).c_str(), nullptr, 10);
            if (position == 0 || !step.ends_with(']')) return EINVAL;
            step = step.substr(0, bracket);
        }
        if (step.empty()) return EINVAL;
        std::vector<const Element *> next;
        if (first) {
            if (root.name == step) next.push_back(&root);
            collect(root, step, true, next);
        } else {
            for (const Element *parent : found) {
                std::vector<const Element *> children;
                collect(*parent, step, false, children);
                if (position != 0)
                    children = position <= children.size() ? std::vector{children[position - 1]}
                                                           : std::vector<const Element *>{};
                next.insert(next.end(), children.begin(), children.end());
            }
        }
        found = std::move(next);
    }
    return 0;
}

// ---- bundles ----

void release(State &state, mirk_list_head &head) {
    for (mirk_list_head *link = head.next; link && link != &head;) {
        mirk_list_head *next = link->next;
        state.nodes.remove_if([&](const Node &node) { return &node.link == link; });
        link = next;
    }
    head = {&head, &head};
}

Node *entered(mirk_list_head &head, const std::uint8_t *luid) {
    for (mirk_list_head *link = head.next; link && link != &head; link = link->next) {
        auto *node = reinterpret_cast<Node *>(link);
        if (node->luid && std::memcmp(node->luid, luid, 16) == 0) return node;
    }
    return nullptr;
}

}  // namespace

std::uint32_t put_text(char *buffer, std::int32_t remaining, const std::string &text, std::uint32_t *err) {
    if (remaining < 0 || text.size() > static_cast<std::size_t>(remaining)) {
        *err = text_overflow_error;
        return 0;
    }
    if (!text.empty()) std::memcpy(buffer, text.data(), text.size());
    return static_cast<std::uint32_t>(text.size());
}
std::uint32_t print_line(char *buffer, std::uint32_t indent, const char *name, const std::string &value,
                         std::int32_t remaining, std::uint32_t *err) {
    return put_text(buffer, remaining, std::string(indent, ' ') + name + " = " + value + ";\n", err);
}
std::uint32_t print_element(const char *name, char *buffer, const std::string &value, std::int32_t remaining,
                            std::uint8_t state, std::uint32_t *err) {
    return put_text(buffer, remaining, tag(name, state) + value + "</" + name + ">\n", err);
}

const std::string *element_value(const void *document, const char *path, std::uint32_t *err) {
    std::vector<const Element *> found;
    if (const std::uint32_t error = find(document, path, found)) {
        *err = error;
        return nullptr;
    }
    if (found.empty()) {
        *err = ENOENT;
        return nullptr;
    }
    return &found.front()->value;
}

std::uint32_t mix(const void *data, std::size_t length, std::uint32_t seed) {
    std::uint32_t hash = seed ^ 0x9E3779B9u;
    for (std::size_t i = 0; i < length; ++i) hash = (hash ^ static_cast<const std::uint8_t *>(data)[i]) * 16777619u;
    return hash ^ (hash >> 15);
}

Element &Element::add(std::string child_name, std::string child_value) {
    return children.emplace_back(Element{std::move(child_name), std::move(child_value), {}});
}
void fail_xml(std::string path, std::uint32_t error) {
    if (error) {
        xml_errors[std::move(path)] = error;
    } else {
        xml_errors.erase(path);
    }
}
void set_recorder(std::uint32_t state, FILE *stream) {
    recorder_state = state;
    recorder_stream = stream;
}
mirk_bundle_handler sibling_handler(std::string_view module) {
    const auto found = siblings.find(module);
    return found == siblings.end() ? nullptr : found->second;
}

}  // namespace recording

using namespace recording;

// ---- frames ----

template <class T>
static std::uint32_t write_item(const char *function, mirk_handle *h, std::uint32_t ctx_id, void *buffer, const T *item,
                                std::int32_t remaining, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, at(buffer), *item, remaining);
    if (entry.refused(h, err) || !fits(sizeof(T), remaining, err)) return 0;
    put_number(static_cast<std::uint8_t *>(buffer), static_cast<std::make_unsigned_t<T>>(*item));
    return sizeof(T);
}
template <class T>
static std::uint32_t read_item(const char *function, mirk_handle *h, std::uint32_t ctx_id, void *buffer, T *item,
                               std::int32_t remaining, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, at(buffer), at(item), remaining);
    if (entry.refused(h, err) || !fits(sizeof(T), remaining, err)) return 0;
    *item = static_cast<T>(take_number<std::make_unsigned_t<T>>(static_cast<std::uint8_t *>(buffer)));
    return sizeof(T);
}

std::uint32_t _mirk_instance_variant_marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::int8_t *variant,
                                             std::int32_t remaining, std::uint32_t *err) {
    return write_item(__func__, h, ctx_id, buffer, variant, remaining, err);
}
std::uint32_t _mirk_instance_variant_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::int8_t *variant,
                                               std::int32_t remaining, std::uint32_t *err) {
    return read_item(__func__, h, ctx_id, buffer, variant, remaining, err);
}
std::uint32_t _mirk_instance_obj_flag_marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::uint8_t *flag,
                                              std::int32_t remaining, std::uint32_t *err) {
    return write_item(__func__, h, ctx_id, buffer, flag, remaining, err);
}
std::uint32_t _mirk_instance_obj_flag_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::uint8_t *flag,
                                                std::int32_t remaining, std::uint32_t *err) {
    return read_item(__func__, h, ctx_id, buffer, flag, remaining, err);
}
std::uint32_t _mirk_variant_jump_marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::uint32_t *jump,
                                         std::int32_t remaining, std::uint32_t *err) {
    return write_item(__func__, h, ctx_id, buffer, jump, remaining, err);
}
std::uint32_t _mirk_variant_jump_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::uint32_t *jump,
                                           std::int32_t remaining, std::uint32_t *err) {
    return read_item(__func__, h, ctx_id, buffer, jump, remaining, err);
}

std::uint32_t mirklib_get_ra_data(mirk_handle *h, std::uint32_t ctx_id, void *instance, void **ra_value,
                                  std::uint8_t *ra_byte) {
    Entry entry(__func__, ctx_id, nullptr, at(instance));
    const State &state = state_of(h);
    const auto found = state.ra.find(instance);
    const RaData &data = found == state.ra.end() ? state.knobs.ra_data : found->second;
    *ra_value = data.value;
    *ra_byte = data.byte;
    return state.knobs.ra_result;
}
// The byte, three fill bytes, the value.
std::uint32_t _mirk_instance_ra_data_marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, void **ra_value,
                                             std::uint8_t *ra_byte, std::int32_t remaining, std::uint32_t *err) {
    const auto value = reinterpret_cast<std::uintptr_t>(*ra_value);
    Entry entry(__func__, ctx_id, err, at(buffer), value, *ra_byte, remaining);
    if (entry.refused(h, err) || !fits(ra_wire_size, remaining, err)) return 0;
    auto *to = static_cast<std::uint8_t *>(buffer);
    put_number<std::uint32_t>(to, 0x5A5A5A00u | *ra_byte);
    put_number<std::uint64_t>(to + 4, value);
    return ra_wire_size;
}
std::uint32_t _mirk_instance_ra_data_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, void **ra_value,
                                               std::uint8_t *ra_byte, std::int32_t remaining, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), at(ra_value), at(ra_byte), remaining);
    if (entry.refused(h, err) || !fits(ra_wire_size, remaining, err)) return 0;
    const auto *from = static_cast<std::uint8_t *>(buffer);
    *ra_byte = from[0];
    *ra_value = reinterpret_cast<void *>(static_cast<std::uintptr_t>(take_number<std::uint64_t>(from + 4)));
    return ra_wire_size;
}
void mirklib_update_ra_all(mirk_handle *h, std::uint32_t ctx_id, void *instance, void *ra_value, std::uint8_t ra_byte) {
    Entry entry(__func__, ctx_id, nullptr, at(instance), reinterpret_cast<std::uintptr_t>(ra_value), ra_byte);
    state_of(h).ra[instance] = {ra_value, ra_byte};
}

std::uint32_t char_len(mirk_handle *, std::uint32_t ctx_id, void *chars) {
    Entry entry(__func__, ctx_id, nullptr, at(chars));
    return 1;
}
std::uint32_t char_sizeof(mirk_handle *) {
    Entry entry(__func__, std::nullopt, nullptr);
    return 1;
}

// ---- message headers: lengths first, the complement of the marker in the last byte ----

static constexpr std::uint32_t header_size = 27;
static constexpr std::uint8_t frame_marker = 0xBC;

void _mirk_message_header_marshal(mirk_handle *h, std::uint32_t ctx_id, void *frame, mirk_message_header *header,
                                  std::uint32_t size, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(frame), header->marker, header->sttr, header->stamp, header->total_length,
                size);
    if (entry.refused(h, err) || !fits(header_size, static_cast<std::int32_t>(size), err)) return;
    auto *to = static_cast<std::uint8_t *>(frame);
    put_number<std::uint32_t>(to, header->total_length);
    put_number<std::uint32_t>(to + 4, header->stamp);
    to[8] = header->sttr;
    std::memcpy(to + 9, header->fill, sizeof header->fill);
    std::memset(to + 15, 0x11, 11);
    to[26] = static_cast<std::uint8_t>(~header->marker);
}
std::uint32_t _mirk_message_header_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *frame,
                                             mirk_message_header *header, std::uint32_t size, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(frame), at(header), size);
    if (entry.refused(h, err) || !fits(header_size, static_cast<std::int32_t>(size), err)) return 0;
    const auto *from = static_cast<std::uint8_t *>(frame);
    const auto marker = static_cast<std::uint8_t>(~from[26]);
    if (marker != frame_marker) {
        *err = EBADMSG;
        return 0;
    }
    header->marker = marker;
    std::memcpy(header->fill, from + 9, sizeof header->fill);
    header->sttr = from[8];
    header->stamp = take_number<std::uint32_t>(from + 4);
    header->total_length = take_number<std::uint32_t>(from);
    return header_size;
}

// ---- bundles and dispatch ----

std::uint32_t mirklib_suppress_messages_enabled(mirk_handle *h) {
    Entry entry(__func__, std::nullopt, nullptr);
    return state_of(h).knobs.suppress_messages ? 0x100 : 0;
}

void bundle_message_validate_add(mirk_handle *h, std::uint32_t ctx_id, const std::uint8_t *luid, const char *name,
                                 std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, name);
    if (entry.refused(h, err)) return;
    const mirk_allowed_row *row = h->bundle_table;
    while (row && row->luid && std::memcmp(row->luid, luid, 16) != 0) ++row;
    if (!row || !row->luid) {
        *err = ENOENT;
        return;
    }
    mirk_list_head &head = h->send_bundle_list;
    if (!head.next) head = {&head, &head};
    if (entered(head, luid)) return;
    Node &node = state_of(h).nodes.emplace_back(Node{{head.next, &head}, row->name, row->luid, 0});
    head.next->prev = &node.link;
    head.next = &node.link;
}
void bundle_message_increment_count(mirk_handle *h, const std::uint8_t *luid, std::uint32_t *err) {
    Node *node = entered(h->send_bundle_list, luid);
    Entry entry(__func__, std::nullopt, err, node ? node->name.c_str() : "unknown");
    if (entry.refused(h, err)) return;
    if (node) {
        ++node->count;
    } else {
        *err = ENOENT;
    }
}
void bundle_send_message_list_destroy(mirk_handle *h, std::uint32_t ctx_id, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, err ? *err : 0);
    release(state_of(h), h->send_bundle_list);
    h->send_bundle_open = 0;
    h->bundle_table = nullptr;
}
void bundle_receive_message_list_destroy(mirk_handle *h, std::uint32_t ctx_id, std::uint32_t *err) {
    { Entry entry(__func__, ctx_id, err, err ? *err : 0); }
    const mirk_list_head &head = h->recv_bundle_list;
    for (const mirk_list_head *link = head.next; link && link != &head; link = link->next) {
        Entry entry("destroy_received", ctx_id, nullptr, reinterpret_cast<const Node *>(link)->name.c_str());
    }
    release(state_of(h), h->recv_bundle_list);
    h->recv_bundle_open = 0;
}
std::uint32_t mirklib_is_accumulating_bundle(mirk_handle *h) {
    Entry entry(__func__, std::nullopt, nullptr);
    return state_of(h).knobs.accumulating.value_or(h->recv_bundle_open);
}
mirk_dispatch_info *mirklib_in_dispatch_message_info(mirk_handle *h, void **lut) {
    Entry entry(__func__, std::nullopt, nullptr, at(lut));
    const Knobs &knobs = state_of(h).knobs;
    if (lut) *lut = knobs.dispatch_lut;
    return knobs.dispatch_info;
}

std::uint32_t mirklib_msg_recorder_get_state(void) {
    Entry entry(__func__, std::nullopt, nullptr);
    return recorder_state;
}
FILE *mirklib_msg_recorder_get_handle(void) {
    Entry entry(__func__, std::nullopt, nullptr);
    return recorder_stream;
}

// ---- text and XML ----

std::uint32_t mirk_print_space(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,
                               std::int32_t remaining, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), indent, remaining);
    return entry.refused(h, err) ? 0 : put_text(buffer, remaining, std::string(indent, ' '), err);
}

std::uint32_t mirk_snprintf(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::int32_t remaining,
                            std::uint32_t *err, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    char *formatted = nullptr;
    const int length = vasprintf(&formatted, format, arguments);
    va_end(arguments);
    const std::string text = length < 0 ? "" : formatted;
    if (length >= 0) std::free(formatted);
    // A line end would split a line of the log.
    std::string shown = text;
    for (std::size_t end = 0; (end = shown.find('\n', end)) != shown.npos;) shown.replace(end, 1, "\\n");
    Entry entry(__func__, ctx_id, err, at(buffer), remaining, shown.c_str());
    if (entry.refused(h, err)) return 0;
    const std::uint32_t written = put_text(buffer, remaining, text, err);
    if (*err == 0 && written < static_cast<std::uint32_t>(remaining)) buffer[written] = '\0';
    return written;
}

std::uint32_t start_tag(mirk_handle *h, std::uint32_t ctx_id, char *buffer, const char *name, std::int32_t remaining,
                        std::uint8_t state, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), name, remaining, state);
    return entry.refused(h, err) ? 0 : put_text(buffer, remaining, tag(name, state) + "\n", err);
}
std::uint32_t end_tag(mirk_handle *h, std::uint32_t ctx_id, char *buffer, const char *name, std::int32_t remaining,
                      std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), name, remaining);
    return entry.refused(h, err) ? 0 : put_text(buffer, remaining, "</" + std::string(name) + ">\n", err);
}
std::uint32_t xml_enum_print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, const char *text,
                             std::int32_t remaining, std::uint32_t text_length, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), text, remaining, text_length);
    return entry.refused(h, err) ? 0 : put_text(buffer, remaining, std::string(text, text_length), err);
}

std::uint32_t xml_get_element_nodecount(void *document, const char *path, std::uint32_t *node_count) {
    Entry entry(__func__, std::nullopt, nullptr, path);
    std::vector<const Element *> found;
    const std::uint32_t error = find(document, path, found);
    if (error == 0) *node_count = static_cast<std::uint32_t>(found.size());
    return error;
}
std::uint32_t xml_get_element_value(void *document, const char *path, char *value, std::uint32_t value_size,
                                    std::uint32_t *length) {
    Entry entry(__func__, std::nullopt, nullptr, path, at(value), value_size, at(length));
    std::uint32_t error = 0;
    const std::string *text = element_value(document, path, &error);
    if (!text) return error;
    if (length) *length = static_cast<std::uint32_t>(text->size());
    if (!value) return text->empty() ? 0 : ENOSPC;
    if (text->size() >= value_size) return ENOSPC;
    std::memcpy(value, text->c_str(), text->size() + 1);
    return 0;
}

std::uint32_t var_string_print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,
                               const char *name, const char *chars, std::int32_t remaining, std::uint32_t length,
                               std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), indent, name, at(chars), remaining, length);
    if (entry.refused(h, err) || (length && !present(chars, err))) return 0;
    return print_line(buffer, indent, name, "'" + escaped(chars, length) + "'", remaining, err);
}
std::uint32_t var_string_to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer, const char *chars,
                                std::int32_t remaining, std::uint32_t length, std::uint8_t state, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, name, at(buffer), at(chars), remaining, length, state);
    if (entry.refused(h, err) || (length && !present(chars, err))) return 0;
    return print_element(name, buffer, escaped(chars, length), remaining, state, err);
}
void var_string_from_xml(mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, char *buffer,
                         std::uint32_t size, std::uint32_t *err, char *message, std::uint32_t message_size) {
    Entry entry(__func__, ctx_id, err, path, at(buffer), size, at(message), message_size);
    if (entry.refused(h, err)) return;
    const std::string *text = element_value(document, path, err);
    if (!text) return;
    if (text->size() >= size) {
        *err = ENOSPC;
        return;
    }
    std::memcpy(buffer, text->c_str(), text->size() + 1);
}

std::uint32_t SuperFastHash(const void *data, std::uint32_t length, std::uint32_t seed) {
    Entry entry(__func__, std::nullopt, nullptr, at(data), length, seed);
    return mix(data, data ? length : 0, seed);
}

// ---- sibling modules ----

static mirk_bundle_handler exchange_sibling(const char *function, const char *module, mirk_bundle_handler handler) {
    Entry entry(function, std::nullopt, nullptr, handler ? "handler" : "null");
    std::lock_guard lock(guard);
    return std::exchange(siblings[module], handler);
}

#define OBSERVED_VELD(M)                                                                  \
    mirk_bundle_handler veld_##M##_bundle_handler_register(mirk_bundle_handler handler) { \
        return exchange_sibling(__func__, #M, handler);                                   \
    }                                                                                     \
    mirk_bundle_handler veld_##M##_bundle_handler_unregister(void) { return exchange_sibling(__func__, #M, nullptr); }

OBSERVED_VELD(comm)
OBSERVED_VELD(defs)
OBSERVED_VELD(shared)
OBSERVED_VELD(stats)
OBSERVED_VELD(intf)
OBSERVED_VELD(cond)
OBSERVED_VELD(view)

const std::uint8_t message_ui_req_msg_luid[16] = {0x0B, 0x5E, 0x7E, 0xD0, 0x11, 0x22, 0x33, 0x44,
                                                  0x55, 0x66, 0x77, 0x88, 0x99, 0xAA, 0xBB, 0xCC};
const char message_ui_req_msg_name[64] = "message ui_req_msg";
