/// @file
/// interface.hpp - what the types of lumo_ui_tarn.hpp have in common. Include lumo_ui_tarn.hpp instead of this header.
///
/// A context holds the arguments that most C functions share: handle, ctx_id and error slot. It also decides how errors
/// are reported: thrown as std::system_error, or kept in the slot as in C. Errors are those of the C functions and
/// those named in this header and in lumo_ui_tarn.hpp. If a std::string or frame cannot be allocated, std::bad_alloc is
/// thrown in both modes.
///
/// lumo_ui_tarn/families.h describes the C functions and their errors, and explains the terms: ctx_id, state byte,
/// notification, RA data, guard byte and others.
///
/// A record has three types:
/// - dp_tc owns a record and destroys it. A const dp_tc is read-only.
/// - dp_tc_ref borrows a record from an owner, an array, a message or C code. It behaves like a pointer: copying it
///   copies no record, and a const dp_tc_ref can write.
/// - dp_tc_view borrows a record to read it. Owners and references convert to views.
///
/// Records that are copied or moved into another record or an array, and the payload of a message, must be on the
/// handle of their destination, which takes over their arrays and strings.
///
/// Messages have the same three types. get() returns the C object, a pointer for functions that this header does not
/// wrap; const owners and views return it as const. An owner that was moved from or released has no C object: get() is
/// nullptr, its members read as zero, and functions that write it, copy it or convert it report ENOENT or EINVAL.
///
/// Records and messages are printed with operator<<, std::format() or to_string(), in one line. Records are ordered and
/// compared by compare(), and hashed by std::hash, so they are keys of standard containers; arrays are random access
/// ranges of C++20.
///
/// Everything is inline. Reading or writing a scalar calls one C function, such as lumo_tarn_dp_tc_proto_get_value().
/// Reading a string, writing an address, and copying or moving a nested record that owns arrays or strings take several
/// calls. Compile all units of a program with exceptions, or all without: the functions are not the same.
#ifndef LUMO_UI_TARN_INTERFACE_HPP
#define LUMO_UI_TARN_INTERFACE_HPP

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/address.hpp>
#include <lumo_ui_tarn/admission.hpp>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iterator>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>
#if defined(__has_include) && __cplusplus >= 202002L
#if __has_include(<compare>)
#include <compare>
#endif
#if __has_include(<format>)
#include <format>
#endif
#if __has_include(<ranges>)
#include <ranges>
#endif
#if __has_include(<span>)
#include <span>
#endif
#endif

/// The C++ interface of the library.
namespace lumo_ui_tarn {

/// How a context reports errors.
enum class errors {
    thrown,  ///< the call that fails throws std::system_error
    /// The first error stays in the slot until take_error(). While it is there, calls are no-ops that return zero,
    /// empty or null results; only frame_size(), compare(), hash() and is_tracked() work. If from_frame() or from_xml()
    /// fails, the object that it returns may be partly filled: check ok(), not the object.
    kept
};

#if defined(__cpp_exceptions)
/// Default error mode of a context: kept in programs without exceptions.
inline constexpr errors usual_errors = errors::thrown;
#else
/// Default error mode of a context: kept in programs without exceptions.
inline constexpr errors usual_errors = errors::kept;
#endif

/// Handle, ctx_id and error slot. Use it from one thread at a time, like the handle. It must outlive the objects that
/// are created with it.
class context {
public:
    /// Uses the handle's default_id as ctx_id.
    explicit context(mirk_handle *handle, errors mode = usual_errors) : context(handle, handle->default_id, mode) {}
    /// Uses this ctx_id.
    context(mirk_handle *handle, std::uint32_t ctx_id, errors mode = usual_errors)
        : handle_(handle), ctx_id_(ctx_id), mode_(mode) {}
    /// Objects keep a pointer to their context.
    context(const context &) = delete;
    /// Objects keep a pointer to their context.
    context &operator=(const context &) = delete;

    /// The first argument of C operations.
    mirk_handle *handle() const noexcept { return handle_; }
    /// The second argument of C operations.
    std::uint32_t ctx_id() const noexcept { return ctx_id_; }
    /// The last argument of C operations. An error that is stored through it is kept in both modes: check ok() after
    /// the operation. call() reports errors in the mode of the context.
    std::uint32_t *slot() noexcept { return &slot_; }

    /// Returns the kept error, an errno number.
    [[nodiscard]] std::error_code error() const noexcept { return {static_cast<int>(slot_), std::generic_category()}; }
    /// Returns the kept error and clears it.
    std::error_code take_error() noexcept {
        return {static_cast<int>(std::exchange(slot_, 0)), std::generic_category()};
    }
    /// True if no error is kept.
    [[nodiscard]] bool ok() const noexcept { return slot_ == 0; }

    /// True if the handle tracks state: records that are created on it have state bytes.
    [[nodiscard]] bool tracks() const noexcept {
        return handle_->sttr_desc != nullptr && handle_->sttr_desc->sttr_mode == 0xEEEE;
    }

    /// Calls a C function of the form (h, ctx_id, ..., err). While an error is kept it makes no call and returns 0.
    template <class Operation, class... Arguments>
    auto call(Operation operation, Arguments... arguments) {
        using Result = decltype(operation(handle_, ctx_id_, arguments..., &slot_));
        if (slot_ != 0) return Result();
        if constexpr (std::is_void_v<Result>) {
            operation(handle_, ctx_id_, arguments..., &slot_);
            if (slot_ != 0) raise(nullptr);
        } else {
            const Result result = operation(handle_, ctx_id_, arguments..., &slot_);
            if (slot_ != 0) raise(nullptr);
            return result;
        }
    }

    /// Reports an error, an errno number, as if a C function had set it. If an error is kept, reports that one instead.
    void fail(std::uint32_t number, const char *explanation = nullptr) {
        if (slot_ == 0) slot_ = number;
        raise(explanation);
    }

private:
#if defined(__GNUC__)
    [[gnu::cold, gnu::noinline]]
#endif
    void
    raise([[maybe_unused]] const char *explanation) {
#if defined(__cpp_exceptions)
        if (mode_ != errors::thrown) return;
        const std::error_code code = take_error();
        if (explanation != nullptr && explanation[0] != '\0') throw std::system_error(code, explanation);
        throw std::system_error(code);
#endif
    }

    mirk_handle *handle_;
    std::uint32_t ctx_id_;
    std::uint32_t slot_ = 0;
    [[maybe_unused]] errors mode_;
};

/// The bytes of a frame, or of several frames in sequence, and the guard byte after them, which C functions may read or
/// write.
class frame {
public:
    /// Creates an empty frame.
    frame() = default;
    /// Copies the bytes.
    frame(const frame &) = default;
    /// The other frame is empty afterwards.
    frame(frame &&) noexcept = default;
    /// Copies or moves the bytes. A frame that was moved from is empty.
    frame &operator=(frame other) noexcept {
        bytes_.swap(other.bytes_);
        return *this;
    }
    /// Copies the bytes.
    frame(const void *bytes, std::size_t size) : bytes_(size + 1) {
        if (size != 0) std::memcpy(bytes_.data(), bytes, size);
    }
#if defined(__cpp_lib_span)
    /// Copies the bytes.
    explicit frame(std::span<const std::uint8_t> bytes) : frame(bytes.data(), bytes.size()) {}
    /// The bytes without the guard byte.
    operator std::span<const std::uint8_t>() const noexcept { return {data(), size()}; }
#endif
    /// The first byte.
    const std::uint8_t *data() const noexcept {
        static constexpr std::uint8_t guard = 0;
        return bytes_.empty() ? &guard : bytes_.data();
    }
    /// The first byte, writable.
    std::uint8_t *data() {
        if (bytes_.empty()) bytes_.resize(1);
        return bytes_.data();
    }
    /// Number of bytes without the guard byte.
    std::size_t size() const noexcept { return bytes_.empty() ? 0 : bytes_.size() - 1; }
    /// True if there are no bytes.
    [[nodiscard]] bool empty() const noexcept { return size() == 0; }
    /// The first byte.
    const std::uint8_t *begin() const noexcept { return data(); }
    /// The end of the bytes: the guard byte.
    const std::uint8_t *end() const noexcept { return data() + size(); }
    /// Truncates the frame or appends zeros.
    void resize(std::size_t size) {
        if (!bytes_.empty()) bytes_.back() = 0;  // the guard byte, which C functions can have written
        bytes_.resize(size + 1);
    }
    /// Appends the bytes of a frame, which can be this one.
    void append(const frame &other) {
        const std::size_t before = size(), added = other.size();
        resize(before + added);
        if (added != 0) std::memcpy(data() + before, other.data(), added);
    }
    /// True if the bytes are equal.
    friend bool operator==(const frame &a, const frame &b) noexcept {
        return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size()) == 0;
    }
    /// True if the bytes differ.
    friend bool operator!=(const frame &a, const frame &b) noexcept { return !(a == b); }

private:
    std::vector<std::uint8_t> bytes_;  // with the guard byte; may have none if the frame is empty
};

/// Describes a member of a record to the visitor of for_each_member: its name, and pointers to the functions that
/// access it. Functions that do not exist are nullptr.
template <class Get, class Set, class GetState, class SetState>
struct member {
    std::string_view name;  ///< its C name
    Get get;                ///< reads it
    Set set;                ///< writes it
    GetState get_state;     ///< reads its state byte
    SetState set_state;     ///< writes its state byte
};
/// Deduces the types of the functions.
template <class Get, class Set, class GetState, class SetState>
member(const char *, Get, Set, GetState, SetState) -> member<Get, Set, GetState, SetState>;

template <class R>
class record;
template <class R>
class record_ref;
template <class R>
class record_view;
template <class M>
class message;
template <class M>
class message_ref;
template <class M>
class message_view;
template <class A>
class array_ref;
template <class A>
class array_view;

/// Base classes of owners, references and views.
namespace detail {

/// @cond helpers
inline constexpr std::size_t max_buffer_size = std::size_t{1} << 30;

/// The size of a buffer for a frame with RA data, which frame_size() does not count: 9 bytes for each object, whose
/// frame has at least 6 bytes. In a smaller buffer, state bytes at the end can be dropped without an error.
inline std::size_t with_ra_data(std::size_t frame_size) {
    return frame_size < max_buffer_size / 3 ? 3 * frame_size : frame_size;
}

/// Retries with a larger buffer while a C function reports one of the three errors that mean too little room. The
/// buffer has a guard byte after the size that is passed.
template <class Buffer, class Write>
Buffer grown(context &c, std::size_t guess, typename Buffer::value_type filler, Write write) {
    if (!c.ok()) return {};
    for (std::size_t size = std::min(guess, max_buffer_size);; size = std::min(4 * size, max_buffer_size)) {
        Buffer buffer(size + 1, filler);
        std::uint32_t err = 0;
        const std::uint32_t written = write(buffer.data(), size, &err);
        if ((err == EMSGSIZE || err == ENOSPC || err == ENOMEM) && size < max_buffer_size) continue;
        if (err != 0) {
            c.fail(err);
            return {};
        }
        buffer.resize(written);
        return buffer;
    }
}

template <class Write>
frame grown_frame(context &c, std::size_t guess, Write write) {
    const auto bytes = grown<std::vector<std::uint8_t>>(c, guess, 0, write);
    return {bytes.data(), bytes.size()};
}

/// Printed text has gaps before the closing braces of nested records: the C functions count these bytes but write NUL
/// or nothing there. Text of records with many elements has four to six times as many bytes as their frame.
template <class Write>
std::string grown_text(context &c, std::size_t frame_size, Write write) {
    std::string text = grown<std::string>(c, 8 * frame_size + 4096, ' ', write);
    for (std::size_t at = text.find('\0'); at != text.npos; at = text.find('\0', at + 1)) text[at] = ' ';
    return text;
}

#if defined(__GNUC__)
/// Numbers in frames have the encoding of the runtime. excess_of_record() knows that of the reference runtime, which is
/// the one that has this function; with another runtime the reference is null.
extern "C" [[gnu::weak]] std::uint64_t mirk_platform_handle_limit_growth(mirk_handle *h, std::uint64_t bytes);
inline bool knows_encoding() { return &mirk_platform_handle_limit_growth != nullptr; }
#else
inline bool knows_encoding() { return false; }
#endif

/// Reports what a frame claims but cannot contain. False: an error is kept.
template <class Test>
bool admitted(context &c, Test excess_of, const frame_part *parts, const void *bytes, std::size_t size) {
    if (!c.ok() || !knows_encoding()) return c.ok();
    if (const frame_excess excess = excess_of(parts, bytes, size, c.tracks())) c.fail(EBADMSG, excess.text().c_str());
    return c.ok();
}

/// Reads an element of a document into a record: the one at path, or the first one, at any depth, with the record's
/// name.
template <class R>
void read_xml(context &c, void *document, const char *path, typename R::native *object, std::uint32_t ignored = 0) {
    if (!c.ok()) return;
    const std::string anywhere = std::string("//") + R::name;
    char explanation[256] = "";
    std::uint32_t err = 0;
    R::from_xml(c.handle(), c.ctx_id(), path != nullptr ? path : anywhere.c_str(), document, object, &err, explanation,
                sizeof explanation);
    if (err != 0 && err != ignored) c.fail(err, explanation);
}

/// Selects the overload of a getter for objects that can be written, if it has one.
template <class C, class Result>
constexpr auto writable(Result (C::*get)(), int) {
    return get;
}
template <class C, class Result>
constexpr auto writable(Result (C::*get)() const, long) {
    return get;
}

/// Moves the arrays and strings of a record into another one, which is destroyed at the end of the scope.
template <class N>
class emptied {
public:
    emptied(context &c, typename N::native *object) {
        if constexpr (N::owns_blocks) {
            former_.emplace(c);
            c.call(N::set, former_->get(), object);
        }
    }

private:
    std::optional<record<N>> former_;
};
/// @endcond

/// A context and a C object.
template <class Native>
class bound {
public:
    /// The context that was passed to the constructor.
    lumo_ui_tarn::context &context() const noexcept { return *context_; }
    /// True if there is a C object: the owner was not moved from or released, and the object could be created. It does
    /// not tell whether an error is kept: see context::ok().
    explicit operator bool() const noexcept { return native_ != nullptr; }

    /// @cond helpers
protected:
    bound(lumo_ui_tarn::context &c, Native *native) : context_(&c), native_(native) {}
    ~bound() = default;
    bound(const bound &) = default;
    bound &operator=(const bound &) = default;

    template <class Operation, class... Arguments>
    auto call_(Operation operation, Arguments... arguments) const {
        return context_->call(operation, native_, arguments...);
    }

    /// Not all C functions check for NULL.
    bool exists_() const {
        if (native_ == nullptr) context_->fail(EINVAL, "there is no object");
        return native_ != nullptr;
    }
    /// Size is the type of the size in the C function, which would take that of an empty buffer for a huge one.
    template <class Size, class Marshal>
    std::size_t write_frame_(Marshal marshal, std::uint8_t *buffer, std::size_t size_with_guard) const {
        if (!exists_()) return 0;
        if (size_with_guard == 0) {
            context_->fail(EMSGSIZE, "the buffer has no guard byte");
            return 0;
        }
        const std::size_t size = size_with_guard - 1 < max_buffer_size ? size_with_guard - 1 : max_buffer_size;
        return context_->call(marshal, static_cast<void *>(buffer), native_, static_cast<Size>(size));
    }

    lumo_ui_tarn::context *context_;
    Native *native_;
    /// @endcond
};

/// The functions of all records that do not write, and helpers for the accessors. The names of helpers end in an
/// underscore, because all other names may be names of members.
template <class R, class Self>
class operations : public bound<typename R::native> {
    using base = bound<typename R::native>;

public:
    /// The type whose static members are the record's C functions.
    using record_type = R;

    /// The record's C name.
    static constexpr std::string_view record_name() noexcept { return R::name; }

    /// Converts to a view of the record.
    operator record_view<R>() const noexcept { return {this->context(), this->native_}; }

    /// An upper bound on the frame's size in bytes, without the guard byte. RA data is not counted: with it, the frame
    /// can be larger.
    [[nodiscard]] std::size_t frame_size() const {
        return this->native_ != nullptr ? R::len(this->context().handle(), this->context().ctx_id(), this->native_) : 0;
    }
    /// Writes the frame and returns its size in bytes. The last byte of the buffer is the guard byte. EMSGSIZE or
    /// ENOMEM if the buffer is too small.
    std::size_t write_frame(std::uint8_t *buffer, std::size_t size_with_guard) const {
        return this->template write_frame_<std::int32_t>(R::marshal, buffer, size_with_guard);
    }
#if defined(__cpp_lib_span)
    /// Writes the frame and returns its size in bytes. The last byte of the buffer is the guard byte.
    std::size_t write_frame(std::span<std::uint8_t> with_guard) const {
        return write_frame(with_guard.data(), with_guard.size());
    }
#endif
    /// Returns the frame. If a record with RA data has state bytes, those at the end of the frame can be missing,
    /// without an error. Then call write_frame() with 9 more bytes for each object with RA data.
    [[nodiscard]] frame to_frame() const {
        if (!this->exists_()) return {};
        lumo_ui_tarn::context &c = this->context();
        return grown_frame(c, frame_size(), [&](std::uint8_t *buffer, std::size_t size, std::uint32_t *err) {
            return R::marshal(c.handle(), c.ctx_id(), buffer, this->native_, static_cast<std::int32_t>(size), err);
        });
    }
    /// Returns an XML element with this name.
    [[nodiscard]] std::string to_xml(const char *name = R::name) const {
        lumo_ui_tarn::context &c = this->context();
        return grown_text(c, frame_size(), [&](char *buffer, std::size_t size, std::uint32_t *err) {
            return R::to_xml(c.handle(), c.ctx_id(), name, buffer, this->native_, static_cast<std::int32_t>(size), 0,
                             err);
        });
    }
    /// Returns human-readable text that starts with this name. It cannot be read back.
    [[nodiscard]] std::string text(const char *name = R::name) const {
        lumo_ui_tarn::context &c = this->context();
        return grown_text(c, frame_size(), [&](char *buffer, std::size_t size, std::uint32_t *err) {
            return R::print(c.handle(), c.ctx_id(), buffer, 0, name, this->native_, static_cast<std::int32_t>(size),
                            err);
        });
    }

    /// Compares the members in the order of the schema. Only the sign of the result is meaningful. State bytes are
    /// ignored.
    [[nodiscard]] std::int32_t compare(record_view<R> other) const noexcept {
        return R::compare(this->native_, other.get());
    }
    /// Returns a hash of the members. Equal records have equal hashes.
    [[nodiscard]] std::uint32_t hash(std::uint32_t seed = 0) const noexcept { return R::hash(this->native_, seed); }
    /// Returns a deep copy, on the same handle.
    [[nodiscard]] record<R> copy() const;

    /// True if the record has state bytes.
    [[nodiscard]] bool is_tracked() const noexcept {
        return this->context().tracks() && this->native_ != nullptr &&
               (reinterpret_cast<const mirk_object *>(this->native_)->obj_flag & MIRK_OBJ_STATE_TRACKED) != 0;
    }

    /// @cond helpers
protected:
    operations(lumo_ui_tarn::context &c, typename R::native *native) : base(c, native) {}
    ~operations() = default;
    operations(const operations &) = default;
    operations &operator=(const operations &) = default;

    using base::call_;

    /// Setters return the object, with the constness that it has.
    template <class Object>
    static auto &self_(Object &object) {
        return static_cast<std::conditional_t<std::is_const_v<Object>, const Self, Self> &>(object);
    }

    template <class Object, class Set, class Value>
    static auto &write_(Object &object, Set set, Value value) {
        object.call_(set, value);
        return self_(object);
    }
    void fill_states_(std::uint8_t value) const {
        if (!this->context().ok()) return;
        R::set_all_state_tracking_flag(this->context().handle(), this->context().ctx_id(), this->native_, value);
    }
    template <class GetState>
    std::optional<std::uint8_t> state_(GetState get_state) const {
        if (!is_tracked()) return std::nullopt;
        return call_(get_state);
    }

    template <class Enumeration, class Get>
    Enumeration enumerated_(Get get_value) const {
        return static_cast<Enumeration>(call_(get_value));
    }
    template <class N, class Get>
    record_ref<N> nested_(Get get) const {
        return {this->context(), call_(get)};
    }
    template <class A>
    array_ref<A> array_() const {
        return {this->context(), this->native_};
    }

    template <class Length, class Get>
    std::string string_(Length length, Get get) const {
        std::string text(call_(length), '\0');
        call_(get, text.data(), static_cast<std::uint32_t>(text.size()) + 1);
        text.resize(std::strlen(text.c_str()));
        return text;
    }
    template <class Object, class Set>
    static auto &write_string_(Object &object, Set set, std::string_view text) {
        if (text.size() > std::numeric_limits<std::uint16_t>::max()) {
            object.context().fail(EOVERFLOW, "text is longer than 65535 bytes");
        } else if (text.find('\0') != std::string_view::npos) {  // the C function would store what precedes it
            object.context().fail(EINVAL, "text contains a NUL character");
        } else {
            object.call_(set, text.data(), static_cast<std::uint32_t>(text.size()));
        }
        return self_(object);
    }

    template <class Get>
    lumo_ui_tarn::address read_address_(Get get) const {
        lumo_ui_tarn::address value;
        if (const ip_address *present = call_(get); present != nullptr) {
            value.af = present->af;
            value.prefix_len = present->prefix_len;
            value.scope = present->scope;
            for (std::size_t i = 0; i < 4; ++i) value.word[i] = present->word[i];
        }
        return value;
    }
    /// The C setter takes an object: a copy of the present one with the new values, whose state bytes mark it as
    /// written.
    template <class Object, class Get, class Set>
    static auto &write_address_(Object &object, Get get, Set set, const lumo_ui_tarn::address &value) {
        struct {
            ip_address object;
            std::uint8_t states[8];
        } source{};
        if (const ip_address *present = object.call_(get); present != nullptr) source.object = *present;
        source.object.obj_flag &= static_cast<std::uint8_t>(~(MIRK_OBJ_STTR_OFFSET | MIRK_OBJ_RA_DATA));
        source.object.af = value.af;
        source.object.prefix_len = value.prefix_len;
        source.object.scope = value.scope;
        for (std::size_t i = 0; i < 4; ++i) source.object.word[i] = value.word[i];
        std::memset(source.states, 2, sizeof source.states);
        object.call_(set, &source.object);
        return self_(object);
    }

    /// The C setters move, and leak the arrays and strings of the destination. So these are moved out first, and freed.
    template <class Object, class N, class Get, class Set>
    static auto &adopt_(Object &object, Get get, Set set, record<N> &&value) {
        if (!value) {
            object.context().fail(EINVAL, "there is no record");
        } else {
            const emptied<N> former(object.context(), object.call_(get));
            object.call_(set, value.get());
        }
        return self_(object);
    }
    template <class Object, class N, class Get, class Set>
    static auto &assign_(Object &object, [[maybe_unused]] Get get, Set set, record_view<N> value) {
        if constexpr (N::owns_blocks) {
            return adopt_(object, get, set, value.copy());
        } else {
            if (!value) {  // the C function would not refuse to assign NULL to NULL
                object.context().fail(EINVAL, "there is no record");
            } else {
                object.call_(set, const_cast<typename N::native *>(value.get()));  // only reads
            }
            return self_(object);
        }
    }
    /// @endcond
};

}  // namespace detail

/// Borrows a record to read it.
template <class R>
class record_view : public R::template members<record_view<R>> {
    using base = typename R::template members<record_view<R>>;

public:
    /// Borrows a record of C code.
    record_view(context &c, const typename R::native *native) : base(c, const_cast<typename R::native *>(native)) {}

    /// The C object, or nullptr.
    const typename R::native *get() const noexcept { return this->native_; }
    /// Calls visit with a lumo_ui_tarn::member for each member, in the order of the schema.
    template <class Visit>
    static void for_each_member(Visit &&visit) {
        R::template visit_readable_<record_view>(visit);
    }
};

/// Borrows a record. Copies borrow the same record.
template <class R>
class record_ref : public R::template ref_writers<record_ref<R>> {
    using base = typename R::template ref_writers<record_ref<R>>;

public:
    /// Borrows a record of C code.
    record_ref(context &c, typename R::native *native) : base(c, native) {}

    /// The C object, or nullptr.
    typename R::native *get() const noexcept { return this->native_; }
    /// Sets all state bytes of the record and of the elements of its own arrays, without notifications. Elements of
    /// arrays in nested records keep the states of their members. Has no effect on a record without state bytes.
    ///
    /// The blocks with the states of elements are leaked, also those of arrays in nested records. array_ref::state()
    /// then returns value for each element, and array_ref::set_state() has no effect, until the array grows. That
    /// clears the states of its elements.
    void set_all_states(std::uint8_t value) const { this->fill_states_(value); }
    /// Calls visit with a lumo_ui_tarn::member for each member, in the order of the schema.
    template <class Visit>
    static void for_each_member(Visit &&visit) {
        R::template visit_writable_<record_ref>(visit);
    }
};

/// Owns a record and destroys it.
template <class R>
class record : public R::template owner_writers<record<R>> {
    using base = typename R::template owner_writers<record<R>>;

public:
    /// Borrows the record.
    using reference_type = record_ref<R>;
    /// Borrows the record to read it.
    using view_type = record_view<R>;

    /// Creates a record with all members zero. ENOMEM if allocation fails.
    explicit record(context &c) : base(c, c.ok() ? R::create(c.handle(), c.ctx_id()) : nullptr) {
        if (this->native_ == nullptr) c.fail(ENOMEM);
    }
    /// Use copy().
    record(const record &) = delete;
    /// The other owner has no C object afterwards.
    record(record &&other) noexcept : base(other.context(), other.release()) {}
    /// Destroys the present record and takes the other owner's, which has no C object afterwards.
    record &operator=(record &&other) noexcept {
        record taken(std::move(other));
        std::swap(this->context_, taken.context_);
        std::swap(this->native_, taken.native_);
        return *this;
    }
    /// Destroys the record.
    ~record() {
        if (this->native_ != nullptr) R::destroy(this->context_->handle(), this->context_->ctx_id(), this->native_);
    }

    /// Takes ownership of a record from C code.
    [[nodiscard]] static record take(context &c, typename R::native *native) { return record(c, native); }
    /// The C object, or nullptr.
    typename R::native *get() noexcept { return this->native_; }
    /// The C object, or nullptr.
    const typename R::native *get() const noexcept { return this->native_; }
    /// Converts to a reference to the record.
    operator record_ref<R>() noexcept { return {this->context(), this->native_}; }
    /// See record_ref::set_all_states.
    void set_all_states(std::uint8_t value) { this->fill_states_(value); }
    /// Calls visit with a lumo_ui_tarn::member for each member, in the order of the schema. The functions need an owner
    /// that is not const; for a const one use view_type.
    template <class Visit>
    static void for_each_member(Visit &&visit) {
        R::template visit_writable_<record>(visit);
    }
    /// Transfers ownership of the C object to the caller, who destroys it.
    [[nodiscard]] typename R::native *release() noexcept { return std::exchange(this->native_, nullptr); }

    /// Creates a record from a frame of size bytes. One guard byte, which size does not count, follows them. EBADMSG if
    /// the frame claims more elements or characters than it can contain (admission.hpp); the C function would
    /// allocate memory for them. Only frames of the reference runtime are tested: what another one encodes is its own.
    [[nodiscard]] static record from_frame_with_guard(context &c, const void *bytes, std::size_t size) {
        record fresh(c);
        const std::uint32_t readable = detail::readable_size(size);
        if constexpr (R::owns_blocks) {
            if (!detail::admitted(c, excess_of_record, R::parts, bytes, readable)) return fresh;
        }
        // The C function only reads.
        c.call(R::unmarshal, const_cast<void *>(bytes), fresh.get(), readable, std::uint32_t{0});
        return fresh;
    }
    /// Creates a record from a frame. Of several frames in sequence, only the first one is read.
    [[nodiscard]] static record from_frame(context &c, const frame &whole) {
        return from_frame_with_guard(c, whole.data(), whole.size());
    }
    /// Creates a record from a copy of a frame: no guard byte is needed.
    [[nodiscard]] static record from_frame(context &c, const void *bytes, std::size_t size) {
        return from_frame(c, frame(bytes, size));
    }
#if defined(__cpp_lib_span)
    /// Creates a record from a copy of a frame: no guard byte is needed.
    [[nodiscard]] static record from_frame(context &c, std::span<const std::uint8_t> bytes) {
        return from_frame(c, frame(bytes));
    }
#endif
    /// Creates a record from an element of an XML document that the runtime has parsed: the one at path, or the first
    /// one, at any depth, with the record's name. ENOENT if there is none, EINVAL for an invalid number. The reference
    /// runtime parses a document with mirk_platform_document_load_memory().
    [[nodiscard]] static record from_xml(context &c, void *document, const char *path = nullptr) {
        record fresh(c);
        detail::read_xml<R>(c, document, path, fresh.get());
        return fresh;
    }

private:
    record(context &c, typename R::native *native) : base(c, native) {}
};

namespace detail {

/// @cond helpers
/// Exists if both are owners, references or views of the same type of record.
template <class A, class B, class R>
using if_same_record =
    std::enable_if_t<std::is_base_of_v<operations<R, A>, A> && std::is_base_of_v<operations<R, B>, B>>;
/// @endcond

}  // namespace detail

/// True if all members are equal. State bytes are ignored.
template <class A, class B, class R = typename A::record_type, class = detail::if_same_record<A, B, R>>
bool operator==(const A &a, const B &b) noexcept {
    return a.compare(b) == 0;
}
#if defined(__cpp_lib_three_way_comparison)
/// Ordered by compare(). Equal records can differ in their state bytes.
template <class A, class B, class R = typename A::record_type, class = detail::if_same_record<A, B, R>>
std::weak_ordering operator<=>(const A &a, const B &b) noexcept {
    return a.compare(b) <=> 0;
}
#else
/// True if a member differs.
template <class A, class B, class R = typename A::record_type, class = detail::if_same_record<A, B, R>>
bool operator!=(const A &a, const B &b) noexcept {
    return a.compare(b) != 0;
}
/// Ordered by compare().
template <class A, class B, class R = typename A::record_type, class = detail::if_same_record<A, B, R>>
bool operator<(const A &a, const B &b) noexcept {
    return a.compare(b) < 0;
}
/// Ordered by compare().
template <class A, class B, class R = typename A::record_type, class = detail::if_same_record<A, B, R>>
bool operator>(const A &a, const B &b) noexcept {
    return a.compare(b) > 0;
}
/// Ordered by compare().
template <class A, class B, class R = typename A::record_type, class = detail::if_same_record<A, B, R>>
bool operator<=(const A &a, const B &b) noexcept {
    return a.compare(b) <= 0;
}
/// Ordered by compare().
template <class A, class B, class R = typename A::record_type, class = detail::if_same_record<A, B, R>>
bool operator>=(const A &a, const B &b) noexcept {
    return a.compare(b) >= 0;
}
#endif

namespace detail {

/// @cond helpers
/// Through a frame, like T_copy_cr, but in a buffer of the record's size.
template <class R, class Self>
record<R> operations<R, Self>::copy() const {
    lumo_ui_tarn::context &c = this->context();
    typename R::native *result = nullptr;
    const std::size_t size = with_ra_data(frame_size());
    std::vector<std::uint8_t> buffer(size + 1);
    c.call(R::clone, this->native_, &result, static_cast<void *>(buffer.data()), static_cast<std::uint32_t>(size));
    return record<R>::take(c, result);
}
/// @endcond

}  // namespace detail

namespace detail {

/// A container over an array that is a member of a record. Its elements are references or views.
template <class A, class Element>
class array {
public:
    /// A reference to an element, or a view of it.
    using value_type = Element;
    /// The type of sizes and indexes.
    using size_type = std::size_t;

    /// A random access iterator of C++20. For the algorithms of C++17 it is an input iterator, because its reference is
    /// a value.
    class iterator {
    public:
        /// @cond members of any iterator
        using value_type = Element;
        using reference = value_type;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::input_iterator_tag;
#if __cplusplus >= 202002L
        using iterator_concept = std::random_access_iterator_tag;
#endif
        struct pointer {
            value_type value;
            const value_type *operator->() const { return &value; }
        };

        iterator() = default;
        iterator(context *c, typename A::native *owner, std::size_t at) noexcept
            : context_(c), owner_(owner), at_(at) {}
        reference operator*() const { return array(*context_, owner_)[at_]; }
        pointer operator->() const { return {**this}; }
        reference operator[](difference_type n) const { return *(*this + n); }
        iterator &operator+=(difference_type n) noexcept {
            at_ += static_cast<std::size_t>(n);
            return *this;
        }
        iterator &operator-=(difference_type n) noexcept { return *this += -n; }
        iterator &operator++() noexcept { return *this += 1; }
        iterator &operator--() noexcept { return *this -= 1; }
        iterator operator++(int) noexcept {
            const iterator before = *this;
            ++*this;
            return before;
        }
        iterator operator--(int) noexcept {
            const iterator before = *this;
            --*this;
            return before;
        }
        friend iterator operator+(iterator i, difference_type n) noexcept { return i += n; }
        friend iterator operator+(difference_type n, iterator i) noexcept { return i += n; }
        friend iterator operator-(iterator i, difference_type n) noexcept { return i -= n; }
        friend difference_type operator-(const iterator &a, const iterator &b) noexcept {
            return static_cast<difference_type>(a.at_) - static_cast<difference_type>(b.at_);
        }
        friend bool operator==(const iterator &a, const iterator &b) noexcept { return a.at_ == b.at_; }
        friend bool operator!=(const iterator &a, const iterator &b) noexcept { return a.at_ != b.at_; }
        friend bool operator<(const iterator &a, const iterator &b) noexcept { return a.at_ < b.at_; }
        friend bool operator>(const iterator &a, const iterator &b) noexcept { return a.at_ > b.at_; }
        friend bool operator<=(const iterator &a, const iterator &b) noexcept { return a.at_ <= b.at_; }
        friend bool operator>=(const iterator &a, const iterator &b) noexcept { return a.at_ >= b.at_; }
        /// @endcond

    private:
        context *context_ = nullptr;
        typename A::native *owner_ = nullptr;
        std::size_t at_ = 0;
    };
    /// Constness is shallow: elements of a const array_ref can be written.
    using const_iterator = iterator;

    /// Number of elements.
    std::size_t size() const { return context_->call(A::size, owner_); }
    /// True if there are no elements.
    [[nodiscard]] bool empty() const { return size() == 0; }
    /// The largest number of elements that the count can hold.
    static constexpr std::size_t max_size() noexcept { return std::numeric_limits<typename A::count>::max(); }

    /// An element. ENOENT if index is not less than size().
    value_type operator[](std::size_t index) const {
        return {*context_, context_->call(A::get, owner_, narrowed(index))};
    }
    /// The first element.
    value_type front() const { return (*this)[0]; }
    /// The last element.
    value_type back() const { return (*this)[size() - 1]; }
    /// Iterator to the first element.
    iterator begin() const { return {context_, owner_, 0}; }
    /// Iterator past the last element.
    iterator end() const { return {context_, owner_, size()}; }

    /// The state byte of an element, or std::nullopt if the record has no state bytes. ENOENT if index is not less than
    /// size().
    std::optional<std::uint8_t> state(std::size_t index) const {
        const auto *object = reinterpret_cast<const mirk_object *>(owner_);
        if (!context_->tracks() || object == nullptr || (object->obj_flag & MIRK_OBJ_STATE_TRACKED) == 0) {
            return std::nullopt;
        }
        return context_->call(A::state_flag_get, owner_, narrowed(index));
    }
    /// @cond helpers
protected:
    friend class iterator;
    array(context &c, typename A::native *owner) : context_(&c), owner_(owner) {}

    /// The largest number is not the index of an element, because sizes have 32 bits.
    static std::uint32_t narrowed(std::size_t index) {
        constexpr std::uint32_t largest = std::numeric_limits<std::uint32_t>::max();
        return index < largest ? static_cast<std::uint32_t>(index) : largest;
    }

    context *context_;
    typename A::native *owner_;
    /// @endcond
};

}  // namespace detail

/// Borrows an array that is a member of a record, to read it.
template <class A>
class array_view : public detail::array<A, record_view<typename A::element>> {
public:
    /// Borrows the array from the record owner.
    array_view(context &c, const typename A::native *owner)
        : detail::array<A, record_view<typename A::element>>(c, const_cast<typename A::native *>(owner)) {}
};

/// Borrows an array that is a member of a record. It is valid as long as that record. Growing moves all elements and
/// invalidates references to them: grow once, then fill.
template <class A>
class array_ref : public detail::array<A, record_ref<typename A::element>> {
    using base = detail::array<A, record_ref<typename A::element>>;
    using element = typename A::element;
    using base::context_;
    using base::owner_;

public:
    using base::max_size;
    using base::size;

    /// Borrows the array from the record owner.
    array_ref(context &c, typename A::native *owner) : base(c, owner) {}
    /// Converts to a read-only array.
    operator array_view<A>() const noexcept { return {*context_, owner_}; }

    /// Grows the array to this many elements; all members of new ones are zero. EINVAL for fewer than size(), because
    /// arrays do not shrink. EOVERFLOW for more than max_size().
    const array_ref &grow(std::size_t elements) const {
        const std::size_t before = size();
        if (elements < before) context_->fail(EINVAL);
        if (elements > max_size()) context_->fail(EOVERFLOW);
        if (elements <= before || !context_->ok()) return *this;
        std::optional<record<element>> blank;
        if (context_->tracks()) blank.emplace(*context_);  // C refuses a null value on a tracking handle
        put(elements - 1, blank ? blank->get() : nullptr);
        return *this;
    }
    /// Moves the contents of a record into an element and frees the element's former arrays and strings. The source
    /// keeps its C object, without arrays and strings. Grows the array if necessary; EOVERFLOW if index is not less
    /// than max_size(). EINVAL if value has no C object.
    const array_ref &set(std::size_t index, record<element> &&value) const {
        const std::size_t before = size();
        if (!value) context_->fail(EINVAL, "there is no record");
        if (index >= max_size()) context_->fail(EOVERFLOW);
        if (!context_->ok()) return *this;
        if (index < before) {
            const detail::emptied<element> former(*context_, (*this)[index].get());
            put(index, value.get());
        } else {
            put(index, value.get());
        }
        return *this;
    }
    /// Copies a record into an element. Grows the array if necessary.
    const array_ref &set(std::size_t index, record_view<element> value) const { return set(index, value.copy()); }
    /// Appends an element and moves the contents of a record into it, like set().
    const array_ref &push_back(record<element> &&value) const { return set(size(), std::move(value)); }
    /// Appends a copy of a record.
    const array_ref &push_back(record_view<element> value) const { return set(size(), value.copy()); }

    /// Writes the state byte of an element. ENOENT if index is not less than size(), EINVAL if the record has no state
    /// bytes. May have no effect after record_ref::set_all_states().
    const array_ref &set_state(std::size_t index, std::uint8_t value) const {
        context_->call(A::state_flag_set, owner_, base::narrowed(index), value);
        return *this;
    }

private:
    void put(std::size_t index, typename element::native *value) const {
        context_->call(A::set, owner_, base::narrowed(index), value);
    }
};

namespace detail {

/// The functions of all messages that do not write.
template <class M>
class message_operations : public bound<typename M::native> {
    using base = bound<typename M::native>;

public:
    /// The type whose static members are the message's C functions.
    using message_type = M;
    /// The type whose static members are the C functions of its payload.
    using payload_type = typename M::payload;

    /// The message's C name.
    static constexpr std::string_view message_name() noexcept { return M::name; }
    /// Its identity (LUID), 16 bytes.
    static const std::uint8_t *luid() noexcept { return M::luid(); }

    /// Converts to a view of the message.
    operator message_view<M>() const noexcept { return {this->context(), this->native_}; }

    /// An upper bound on the frame's size in bytes, without the guard byte. RA data is not counted: with it, the frame
    /// can be larger.
    [[nodiscard]] std::size_t frame_size() const {
        return this->native_ != nullptr ? M::len(this->context().handle(), this->context().ctx_id(), this->native_) : 0;
    }
    /// Writes the frame and returns its size in bytes. The last byte of the buffer is the guard byte. EMSGSIZE or
    /// ENOMEM if the buffer is too small.
    std::size_t write_frame(std::uint8_t *buffer, std::size_t size_with_guard) const {
        return this->template write_frame_<std::uint32_t>(M::marshal, buffer, size_with_guard);
    }
#if defined(__cpp_lib_span)
    /// Writes the frame and returns its size in bytes. The last byte of the buffer is the guard byte.
    std::size_t write_frame(std::span<std::uint8_t> with_guard) const {
        return write_frame(with_guard.data(), with_guard.size());
    }
#endif
    /// Returns the frame. If a record with RA data has state bytes, those at the end of the frame can be missing,
    /// without an error. Then call write_frame() with 9 more bytes for each object with RA data.
    [[nodiscard]] frame to_frame() const {
        if (!this->exists_()) return {};
        lumo_ui_tarn::context &c = this->context();
        return grown_frame(c, frame_size(), [&](std::uint8_t *buffer, std::size_t size, std::uint32_t *err) {
            return M::marshal(c.handle(), c.ctx_id(), buffer, this->native_, static_cast<std::uint32_t>(size), err);
        });
    }
    /// Returns an XML element with the message's name.
    [[nodiscard]] std::string to_xml() const { return rendered(M::to_xml); }
    /// Returns human-readable text. It cannot be read back.
    [[nodiscard]] std::string text() const { return rendered(M::print); }

    /// @cond helpers
protected:
    message_operations(lumo_ui_tarn::context &c, typename M::native *native) : base(c, native) {}
    ~message_operations() = default;
    message_operations(const message_operations &) = default;
    message_operations &operator=(const message_operations &) = default;

    record_ref<payload_type> payload_() const { return {this->context(), this->call_(M::payload_get)}; }
    record<payload_type> detach_payload_() const {
        return record<payload_type>::take(this->context(), this->call_(M::payload_get_detach));
    }
    void set_payload_(record<payload_type> &&value) const {
        if (!this->exists_()) return;
        if (!value) {  // the C function would remove the payload
            this->context().fail(EINVAL, "there is no record");
            return;
        }
        const bool is_its_own = value.get() == payload_().get();
        if (!is_its_own) this->call_(M::payload_free_and_set, value.get());
        if (this->context().ok()) (void)value.release();  // else it stays with its owner
    }
    /// @endcond

private:
    template <class Operation>
    std::string rendered(Operation operation) const {
        if (!this->exists_()) return {};
        lumo_ui_tarn::context &c = this->context();
        return grown_text(c, frame_size(), [&](char *buffer, std::size_t size, std::uint32_t *err) {
            return operation(c.handle(), c.ctx_id(), buffer, this->native_, static_cast<std::uint32_t>(size), err);
        });
    }
};

}  // namespace detail

/// Borrows a message to read it.
template <class M>
class message_view : public detail::message_operations<M> {
public:
    /// Borrows a message of C code.
    message_view(context &c, const typename M::native *native)
        : detail::message_operations<M>(c, const_cast<typename M::native *>(native)) {}

    /// The C object, or nullptr.
    const typename M::native *get() const noexcept { return this->native_; }
    /// The payload. The message owns it.
    record_view<typename M::payload> payload() const { return this->payload_(); }
};

/// Borrows a message. Copies borrow the same message.
template <class M>
class message_ref : public detail::message_operations<M> {
public:
    /// Borrows a message of C code.
    message_ref(context &c, typename M::native *native) : detail::message_operations<M>(c, native) {}

    /// The C object, or nullptr.
    typename M::native *get() const noexcept { return this->native_; }
    /// The payload. The message owns it.
    record_ref<typename M::payload> payload() const { return this->payload_(); }
    /// Removes the payload from the message and returns it.
    record<typename M::payload> detach_payload() const { return this->detach_payload_(); }
    /// Destroys the payload and stores another one, which must be on the same handle. EINVAL if value has no C object.
    /// After an error, value still owns its record.
    void set_payload(record<typename M::payload> &&value) const { this->set_payload_(std::move(value)); }
};

/// Owns a message and destroys it with its payload.
template <class M>
class message : public detail::message_operations<M> {
    using base = detail::message_operations<M>;

public:
    /// Borrows the message.
    using reference_type = message_ref<M>;
    /// Borrows the message to read it.
    using view_type = message_view<M>;

    /// Creates a message with a payload whose members are zero. ENOMEM if allocation fails.
    explicit message(context &c) : base(c, c.ok() ? M::create(c.handle(), c.ctx_id()) : nullptr) {
        if (this->native_ == nullptr) c.fail(ENOMEM);
    }
    /// Messages cannot be copied; their payloads can.
    message(const message &) = delete;
    /// The other owner has no C object afterwards.
    message(message &&other) noexcept : base(other.context(), other.release()) {}
    /// Destroys the present message and takes the other owner's, which has no C object afterwards.
    message &operator=(message &&other) noexcept {
        message taken(std::move(other));
        std::swap(this->context_, taken.context_);
        std::swap(this->native_, taken.native_);
        return *this;
    }
    /// Destroys the message and its payload.
    ~message() {
        if (this->native_ != nullptr) M::destroy(this->context_->handle(), this->context_->ctx_id(), this->native_);
    }

    /// Takes ownership of a message from C code.
    [[nodiscard]] static message take(context &c, typename M::native *native) { return message(c, native); }
    /// The C object, or nullptr.
    typename M::native *get() noexcept { return this->native_; }
    /// The C object, or nullptr.
    const typename M::native *get() const noexcept { return this->native_; }
    /// Converts to a reference to the message.
    operator message_ref<M>() noexcept { return {this->context(), this->native_}; }
    /// The payload. The message owns it.
    record_ref<typename M::payload> payload() { return this->payload_(); }
    /// Removes the payload from the message and returns it.
    record<typename M::payload> detach_payload() { return this->detach_payload_(); }
    /// Destroys the payload and stores another one, which must be on the same handle. EINVAL if value has no C object.
    /// After an error, value still owns its record.
    void set_payload(record<typename M::payload> &&value) { this->set_payload_(std::move(value)); }
    /// The payload, read-only. The message owns it.
    record_view<typename M::payload> payload() const { return this->payload_(); }
    /// Transfers ownership of the C object to the caller, who destroys it.
    [[nodiscard]] typename M::native *release() noexcept { return std::exchange(this->native_, nullptr); }

    /// Creates a message from a frame of size bytes. One guard byte, which size does not count, follows them. The
    /// identity in the frame is not checked: compare its bytes 27 to 42 with luid() before. Of several frames in
    /// sequence, only the first one is read. EBADMSG if the frame claims more elements or characters than it can
    /// contain.
    [[nodiscard]] static message from_frame_with_guard(context &c, const void *bytes, std::size_t size) {
        typename M::native *native = nullptr;
        const std::uint32_t readable = detail::readable_size(size);
        if constexpr (M::payload::owns_blocks) {
            if (!detail::admitted(c, excess_of_message, M::payload::parts, bytes, readable)) return {c, native};
        }
        std::uint32_t err = *c.slot();
        M::unmarshal_only(c.handle(), c.ctx_id(), &native, const_cast<void *>(bytes), readable, &err);
        message read(c, native);
        if (err != 0) c.fail(err);
        return read;
    }
    /// Creates a message from a frame, whose identity is not checked. See from_frame_with_guard().
    [[nodiscard]] static message from_frame(context &c, const frame &whole) {
        return from_frame_with_guard(c, whole.data(), whole.size());
    }
    /// Creates a message from a copy of a frame: no guard byte is needed. The identity is not checked. See
    /// from_frame_with_guard().
    [[nodiscard]] static message from_frame(context &c, const void *bytes, std::size_t size) {
        return from_frame(c, frame(bytes, size));
    }
#if defined(__cpp_lib_span)
    /// Creates a message from a copy of a frame: no guard byte is needed. The identity is not checked. See
    /// from_frame_with_guard().
    [[nodiscard]] static message from_frame(context &c, std::span<const std::uint8_t> bytes) {
        return from_frame(c, frame(bytes));
    }
#endif
    /// Creates a message and reads its payload from the first element of a parsed XML document that has the payload's
    /// name. If there is none, all members of the payload are zero and no error is reported. See
    /// record::from_xml.
    [[nodiscard]] static message from_xml(context &c, void *document) {
        message fresh(c);
        // Not by the message's C function, which leaks the message after an error.
        detail::read_xml<typename M::payload>(c, document, nullptr, fresh.payload().get(), ENOENT);
        return fresh;
    }

private:
    message(context &c, typename M::native *native) : base(c, native) {}
};

namespace detail {

/// @cond helpers
inline void print(std::string &line, bool value) { line += value ? "true" : "false"; }
inline void print(std::string &line, const address &value) { line += to_string(value); }
/// In quotes, and so that it stays one line of visible characters.
inline void print(std::string &line, const std::string &text) {
    constexpr std::string_view digits = "0123456789abcdef";
    line += '"';
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte >= 0x7F) {
            ((line += "\\x") += digits[byte >> 4]) += digits[byte & 15];
            continue;
        }
        if (character == '"' || character == '\\') line += '\\';
        line += character;
    }
    line += '"';
}
template <class R>
void print(std::string &line, const record_view<R> &object);
template <class A>
void print(std::string &line, const array_view<A> &list) {
    const char *separator = "";
    line += '[';
    for (const auto element : list) {
        line += std::exchange(separator, ", ");
        print(line, element);
    }
    line += ']';
}
template <class Value, class = std::enable_if_t<std::is_integral_v<Value> || std::is_enum_v<Value>>>
void print(std::string &line, Value value) {
    if constexpr (std::is_enum_v<Value>) {
        const std::string_view name = name_of(value);
        line += name.empty() ? std::to_string(static_cast<std::underlying_type_t<Value>>(value)) : std::string(name);
    } else {
        line += std::to_string(value);
    }
}
/// The name that a type has in C++: its C name without lumo_tarn_.
inline std::string_view name_in_cpp(std::string_view name) {
    constexpr std::string_view prefix = "lumo_tarn_";
    return name.substr(0, prefix.size()) == prefix ? name.substr(prefix.size()) : name;
}
template <class R>
void print(std::string &line, const record_view<R> &object) {
    const char *separator = "";
    (line += name_in_cpp(R::name)) += '{';
    if (object) {
        record_view<R>::for_each_member([&](const auto &member) {
            // Counts and lengths, which alone have no state, are those of the arrays and strings that follow.
            if constexpr (!std::is_null_pointer_v<decltype(member.get_state)>) {
                ((line += std::exchange(separator, ", ")) += member.name) += '=';
                print(line, (object.*member.get)());
            }
        });
    }
    line += '}';
}
template <class M>
void print(std::string &line, const message_view<M> &object) {
    (line += name_in_cpp(M::name)) += '{';
    if (object) print(line, object.payload());
    line += '}';
}

/// The view of an owner, reference or view.
template <class A, class R = typename A::record_type, class = std::enable_if_t<std::is_base_of_v<operations<R, A>, A>>>
record_view<R> view_of(const A &object) {
    return object;
}
template <class A, class M = typename A::message_type,
          class = std::enable_if_t<std::is_base_of_v<message_operations<M>, A>>, class = void>
message_view<M> view_of(const A &object) {
    return object;
}
/// @endcond

}  // namespace detail

/// Returns a record or message in one line, such as dp_tc{id=5, src_prefix=10.0.0.0/8, ...}, for logs and tests. Counts
/// and lengths are left out. text() returns the text of the C function, which has a line for each member.
template <class A, class = decltype(detail::view_of(std::declval<const A &>()))>
[[nodiscard]] std::string to_string(const A &object) {
    std::string line;
    detail::print(line, detail::view_of(object));
    return line;
}
/// Writes a record or message in one line. See to_string().
template <class A, class = decltype(detail::view_of(std::declval<const A &>()))>
std::ostream &operator<<(std::ostream &out, const A &object) {
    return out << to_string(object);
}

/// Writes the frames of a bundle: its start, its messages, and its commit or abort. If the bundle is still open, the
/// destructor aborts it on the handle but appends no frame. A receiver of frames() would then see a bundle without an
/// end, so send them only after commit() or abort().
template <class B>
class bundle_writer {
public:
    /// Opens the bundle and writes the start's frame. EEXIST if a bundle is open on the handle.
    explicit bundle_writer(lumo_ui_tarn::context &c) : context_(&c) {
        control(B::start_message_marshal);
        open_ = c.ok();
    }
    /// A bundle has one writer.
    bundle_writer(const bundle_writer &) = delete;
    /// A bundle has one writer.
    bundle_writer &operator=(const bundle_writer &) = delete;
    /// Aborts the bundle on the handle if it is open.
    ~bundle_writer() {
        if (!open_) return;
        std::uint8_t unused[64];
        std::uint32_t err = 0;
        B::abort_message_marshal(context_->handle(), context_->ctx_id(), unused, nullptr, sizeof unused - 1, &err);
    }

    /// Appends the frame of a message. ENOENT after commit() or abort(), or if the bundle could not be opened. An error
    /// that the context of the message keeps is reported here, too, so that the bundle is not committed without it.
    bundle_writer &add(message_view<typename B::message> one) {
        if (!open_) context_->fail(ENOENT, "the bundle is not open");
        if (!context_->ok()) return *this;
        const frame written = one.to_frame();
        if (!one.context().ok()) context_->fail(static_cast<std::uint32_t>(one.context().error().value()));
        frames_.append(written);
        return *this;
    }
    /// Closes the bundle and appends the commit's frame. ENOENT if it is not open. Has no effect while an error is
    /// kept.
    bundle_writer &commit() { return end(B::commit_message_marshal); }
    /// Closes the bundle and appends the abort's frame. ENOENT if it is not open. Has no effect while an error is kept.
    bundle_writer &abort() { return end(B::abort_message_marshal); }
    /// True until commit() or abort(), unless the bundle could not be opened.
    [[nodiscard]] bool is_open() const noexcept { return open_; }
    /// The frames written so far, in sequence.
    const frame &frames() const noexcept { return frames_; }
    /// The context that was passed to the constructor.
    lumo_ui_tarn::context &context() const noexcept { return *context_; }

private:
    template <class Operation>
    void control(Operation operation) {
        std::uint8_t bytes[64];
        const std::uint32_t size = context_->call(operation, static_cast<void *>(bytes), static_cast<void *>(nullptr),
                                                  static_cast<std::uint32_t>(sizeof bytes) - 1);
        frames_.append(frame(bytes, size));
    }
    template <class Operation>
    bundle_writer &end(Operation operation) {
        // An incomplete bundle must not be committed, nor that of another writer on the same handle.
        if (!open_) context_->fail(ENOENT, "the bundle is not open");
        if (!context_->ok()) return *this;
        open_ = false;
        control(operation);
        return *this;
    }

    lumo_ui_tarn::context *context_;
    frame frames_;
    bool open_ = false;
};

/// What a bundle_reader accepts, in bytes. The sender may be faulty or hostile.
struct bundle_limits {
    std::size_t frame = std::size_t{16} << 20;    ///< of one frame
    std::size_t bundle = std::size_t{256} << 20;  ///< of all frames of one bundle
};

/// Reads bundles from bytes, such as those of a capture or of a connection. All messages of a bundle arrive together,
/// when its commit has been read; those of an aborted or damaged bundle are destroyed. Link the runtime, which reads
/// the headers of frames.
///
///     bundle_reader<dp_tt_cfg_rsp> reader(c);
///     while (...) {
///         reader.feed(bytes, size);
///         while (const auto bundle = reader.next()) {
///             for (const dp_tt_msg &message : *bundle) ...
///         }
///     }
///     reader.finish();
template <class B>
class bundle_reader {
public:
    /// The messages of one bundle.
    using bundle = std::vector<message<typename B::message>>;

    /// The messages are created in this context.
    explicit bundle_reader(context &c, const bundle_limits &limits = {}) : context_(&c), limits_(limits) {}
    /// Messages have one owner.
    bundle_reader(const bundle_reader &) = delete;
    /// Messages have one owner.
    bundle_reader &operator=(const bundle_reader &) = delete;

    /// Appends a copy of the bytes to those that have not been read. Frames may be cut anywhere.
    void feed(const void *bytes, std::size_t size) {
        bytes_.erase(bytes_.begin(), bytes_.end() - static_cast<std::ptrdiff_t>(left() + 1));
        read_ = 0;
        const auto *first = static_cast<const std::uint8_t *>(bytes);
        bytes_.insert(bytes_.end() - 1, first, first + size);
    }
    /// Appends a copy of frames.
    void feed(const frame &frames) { feed(frames.data(), frames.size()); }
#if defined(__cpp_lib_span)
    /// Appends a copy of the bytes.
    void feed(std::span<const std::uint8_t> bytes) { feed(bytes.data(), bytes.size()); }
#endif

    /// Reads up to the end of a bundle and returns its messages, or std::nullopt if the bytes end before. An error is
    /// about one frame or one bundle: the next call continues after it. Only bytes that are not a frame and a frame
    /// that exceeds the limit cannot be skipped.
    /// - ECANCELED: the sender aborted the bundle.
    /// - EBADMSG: the bytes are not a frame, a frame claims more elements or characters than it can contain, or a
    ///   message, a commit or an abort is outside a bundle.
    /// - EEXIST: a bundle starts inside a bundle. The earlier one is lost.
    /// - ENOENT: a frame belongs to another bundle.
    /// - EMSGSIZE: a frame or a bundle exceeds the limits, or a message is truncated.
    ///
    /// Other errors are those of message::from_frame(). After an error about a frame in the place of a message, the
    /// frames up to the next start, commit or abort of this bundle are skipped without further errors.
    [[nodiscard]] std::optional<bundle> next() {
        while (const std::size_t size = size_of_frame()) {
            const std::uint8_t *at = bytes_.data() + read_;
            read_ += size;
            if (is(at, B::start_luid())) {
                const bool was_open = std::exchange(state_, inside) == inside;
                messages_.clear();
                size_ = size;
                if (was_open) context_->fail(EEXIST, "a bundle starts inside a bundle");
            } else if (is(at, B::commit_luid())) {
                const place before = std::exchange(state_, outside);
                if (before == inside) return std::exchange(messages_, {});
                if (before == outside) context_->fail(EBADMSG, "a commit is outside a bundle");
            } else if (is(at, B::abort_luid())) {
                const place before = std::exchange(state_, outside);
                messages_.clear();
                if (before == inside) context_->fail(ECANCELED, "the sender aborted the bundle");
                if (before == outside) context_->fail(EBADMSG, "an abort is outside a bundle");
            } else {
                read_message(at, size);
            }
        }
        return std::nullopt;
    }
    /// Call this when no more bytes will come. EBADMSG if they end inside a bundle or a frame.
    void finish() {
        if (state_ != inside && left() == 0) return;
        context_->fail(EBADMSG, left() != 0 ? "the last frame is incomplete" : "the last bundle has no end");
    }

private:
    enum place : std::uint8_t { outside, inside, lost };  // lost: in a bundle that has been reported

    std::size_t left() const noexcept { return bytes_.size() - 1 - read_; }
    static bool is(const std::uint8_t *frame, const std::uint8_t *luid) {
        return std::equal(luid, luid + 16, frame + 27);
    }
    // 0: the frame is incomplete, or there is an error.
    std::size_t size_of_frame() {
        if (!context_->ok() || left() < detail::message_head_size) return 0;
        mirk_message_header header{};
        std::uint32_t err = 0;
        _mirk_message_header_unmarshal(context_->handle(), context_->ctx_id(), bytes_.data() + read_, &header,
                                       detail::message_head_size, &err);
        const std::size_t size = header.total_length;
        if (err != 0 || size < detail::message_head_size) {
            context_->fail(EBADMSG, "the bytes are not a frame");
        } else if (size > limits_.frame) {
            context_->fail(EMSGSIZE, "a frame exceeds the limit");
        } else if (size <= left()) {
            return size;
        }
        return 0;
    }
    void read_message(const std::uint8_t *at, std::size_t size) {
        // If the frame cannot be read, its bundle is lost.
        const place before = std::exchange(state_, lost);
        bundle messages = std::exchange(messages_, {});
        if (before == lost) return;
        if (!is(at, B::message::luid())) {
            context_->fail(ENOENT, "a frame does not belong to the bundle");
        } else if (before == outside) {
            context_->fail(EBADMSG, "a message is outside a bundle");
        } else if (size_ += size; size_ > limits_.bundle) {
            context_->fail(EMSGSIZE, "the bundle exceeds the limit");
        } else {
            messages.push_back(message<typename B::message>::from_frame_with_guard(*context_, at, size));
            if (!context_->ok()) return;
            messages_ = std::move(messages);
            state_ = inside;
        }
    }

    context *context_;
    bundle_limits limits_;
    std::vector<std::uint8_t> bytes_{0};  // the last one is a guard byte
    std::size_t read_ = 0, size_ = 0;
    place state_ = outside;
    bundle messages_;
};

}  // namespace lumo_ui_tarn

/// @cond hashes and formatters
template <class R>
struct std::hash<lumo_ui_tarn::record<R>> {
    std::size_t operator()(const lumo_ui_tarn::record<R> &object) const noexcept { return object.hash(); }
};
template <class R>
struct std::hash<lumo_ui_tarn::record_ref<R>> {
    std::size_t operator()(const lumo_ui_tarn::record_ref<R> &object) const noexcept { return object.hash(); }
};
template <class R>
struct std::hash<lumo_ui_tarn::record_view<R>> {
    std::size_t operator()(const lumo_ui_tarn::record_view<R> &object) const noexcept { return object.hash(); }
};
#if defined(__cpp_lib_format)
namespace lumo_ui_tarn::detail {
struct line_formatter : std::formatter<std::string> {
    template <class A, class Context>
    auto format(const A &object, Context &c) const {
        return std::formatter<std::string>::format(to_string(object), c);
    }
};
}  // namespace lumo_ui_tarn::detail
template <class R>
struct std::formatter<lumo_ui_tarn::record<R>> : lumo_ui_tarn::detail::line_formatter {};
template <class R>
struct std::formatter<lumo_ui_tarn::record_ref<R>> : lumo_ui_tarn::detail::line_formatter {};
template <class R>
struct std::formatter<lumo_ui_tarn::record_view<R>> : lumo_ui_tarn::detail::line_formatter {};
template <class M>
struct std::formatter<lumo_ui_tarn::message<M>> : lumo_ui_tarn::detail::line_formatter {};
template <class M>
struct std::formatter<lumo_ui_tarn::message_ref<M>> : lumo_ui_tarn::detail::line_formatter {};
template <class M>
struct std::formatter<lumo_ui_tarn::message_view<M>> : lumo_ui_tarn::detail::line_formatter {};
#endif
#if defined(__cpp_lib_ranges)
// Arrays are borrowed from a record, so copies are cheap, and iterators stay valid without them.
template <class A>
inline constexpr bool std::ranges::enable_view<lumo_ui_tarn::array_ref<A>> = true;
template <class A>
inline constexpr bool std::ranges::enable_view<lumo_ui_tarn::array_view<A>> = true;
template <class A>
inline constexpr bool std::ranges::enable_borrowed_range<lumo_ui_tarn::array_ref<A>> = true;
template <class A>
inline constexpr bool std::ranges::enable_borrowed_range<lumo_ui_tarn::array_view<A>> = true;
#endif
/// @endcond

#endif
