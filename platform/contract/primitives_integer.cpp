// u_int8 to u_int64. On the wire: the number in its own width, big-endian.
#include "platform/contract/coding.hpp"
#include "platform/contract/document.hpp"
#include "platform/contract/handle.hpp"
#include "platform/contract/text.hpp"

namespace {

template <typename T>
T read(const T *field, uint32_t *err) {
    return *err != 0 || field == nullptr ? T{0} : *field;
}

template <typename T>
[[gnu::noinline]] void store_any(mirk_handle *h, uint32_t ctx_id, T *field, T value, uint32_t *err) {
    if (*err != 0) return;
    if (field == nullptr) {
        *err = EINVAL;
        return;
    }
    mirk::notify_write(h, ctx_id, field, sizeof(T));
    *field = value;
}

template <typename T>
void store(mirk_handle *h, uint32_t ctx_id, T *field, T value, uint32_t *err) {
    if (*err == 0 && field != nullptr && !mirk::is_observed(h)) [[likely]] {
        *field = value;
    } else {
        store_any(h, ctx_id, field, value, err);
    }
}

template <typename T>
void store_from(mirk_handle *h, uint32_t ctx_id, T *field, const T *source, uint32_t *err) {
    if (*err != 0) return;
    if (source == nullptr) {
        *err = EINVAL;
    } else {
        store(h, ctx_id, field, *source, err);
    }
}

template <typename T>
[[gnu::always_inline]] inline uint32_t print(char *buffer, uint32_t indent, const char *name, std::string_view kind,
                                             const T *field, int32_t remaining, uint32_t *err) {
    if (!mirk::can_move(buffer, field, 0, 0, err)) return 0;
    return mirk::print_line(buffer, indent, name, kind, mirk::Decimal(*field).view(), remaining, err);
}

template <typename T>
uint32_t to_xml(const char *name, char *buffer, const T *field, int32_t remaining, uint8_t state, uint32_t *err) {
    if (!mirk::can_move(buffer, field, 0, 0, err)) return 0;
    return mirk::print_element(buffer, name, state, mirk::Decimal(*field).view(), remaining, err);
}

template <typename T>
void from_xml(const char *path, void *document, T *field, uint32_t *err) {
    mirk::read_element(path, document, field, err,
                       [field](std::string_view text) { return mirk::parse_decimal(text, field); });
}

template <typename T>
uint32_t hash(const T *field, uint32_t seed) {
    if (field == nullptr) return seed;
    uint8_t bytes[sizeof(T)];
    mirk::put_big_endian<T>(bytes, *field);
    return SuperFastHash(bytes, sizeof bytes, seed);
}

// The change marks of integers are in a table, since integers have no object header.
uint32_t test_and_clear_mark(mirk_handle *h, const void *field) {
    auto &changed = mirk::own(h)->changed_integers;
    return field != nullptr && changed.size() != 0 && changed.erase(mirk::address_of(field)) ? 1 : 0;
}

}  // namespace

#define MIRK_DEFINE_INTEGER(K, T)                                                                                 \
    T *K##_get(mirk_handle *, uint32_t, T *field, uint32_t *err) { return *err != 0 ? nullptr : field; }          \
    T K##_get_value(mirk_handle *, uint32_t, T *field, uint32_t *err) { return read<T>(field, err); }             \
    void K##_set(mirk_handle *h, uint32_t ctx_id, T *field, const T *source, uint32_t *err) {                     \
        store_from<T>(h, ctx_id, field, source, err);                                                             \
    }                                                                                                             \
    void K##_set_value(mirk_handle *h, uint32_t ctx_id, T *field, T value, uint32_t *err) {                       \
        store<T>(h, ctx_id, field, value, err);                                                                   \
    }                                                                                                             \
    uint32_t K##_len(mirk_handle *, uint32_t, T *) { return sizeof(T); }                                          \
    uint32_t K##_marshal(mirk_handle *, uint32_t, void *buffer, T *field, int32_t remaining, uint32_t *err) {     \
        return mirk::marshal_number<T>(buffer, field, remaining, err);                                            \
    }                                                                                                             \
    uint32_t K##_unmarshal(mirk_handle *, uint32_t, void *buffer, T *field, int32_t remaining, uint32_t,          \
                           uint32_t *err) {                                                                       \
        return mirk::unmarshal_number<T>(buffer, field, remaining, err);                                          \
    }                                                                                                             \
    uint32_t K##_print(mirk_handle *, uint32_t, char *buffer, uint32_t indent, const char *name, T *field,        \
                       int32_t remaining, uint32_t *err) {                                                        \
        return print<T>(buffer, indent, name, "@" #K ":", field, remaining, err);                                 \
    }                                                                                                             \
    uint32_t K##_to_xml(mirk_handle *, uint32_t, const char *name, char *buffer, T *field, int32_t remaining,     \
                        uint8_t state, uint32_t *err) {                                                           \
        return to_xml<T>(name, buffer, field, remaining, state, err);                                             \
    }                                                                                                             \
    void K##_from_xml(mirk_handle *, uint32_t, const char *path, void *document, T *field, uint32_t *err, char *, \
                      uint32_t) {                                                                                 \
        from_xml<T>(path, document, field, err);                                                                  \
    }                                                                                                             \
    uint32_t K##_hash(const T *field, uint32_t seed) { return hash<T>(field, seed); }                             \
    uint32_t K##_backpropagate(mirk_handle *h, uint32_t, T *field, void *) { return test_and_clear_mark(h, field); }

extern "C" {

MIRK_DEFINE_INTEGER(u_int8, uint8_t)
MIRK_DEFINE_INTEGER(u_int16, uint16_t)
MIRK_DEFINE_INTEGER(u_int32, uint32_t)
MIRK_DEFINE_INTEGER(u_int64, uint64_t)

}  // extern "C"
