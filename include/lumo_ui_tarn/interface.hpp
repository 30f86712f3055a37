/// @file
/// interface.hpp - what the types of lumo_ui_tarn.hpp have in common. Include that header, not this one.
///
/// A context stands for the first two arguments and the last of every operation: handle, ctx_id and error slot. It says
/// once how errors are told: thrown as std::system_error, or kept until somebody looks, as in C.
///
/// For each record there are three types. dp_tc owns an instance; a const one is read-only. dp_tc_ref borrows one, from
/// an owner, an array, a message or C code. A reference is two pointers and behaves like one: copying it copies no
/// record, and const protects the reference, not the record. dp_tc_view borrows one and only reads; a const owner hands
/// out views, and a reference converts to one. get() is the instance for everything that C offers and this header does
/// not; owners and views give it as const where they are read-only.
///
/// Everything here is inline, and an accessor is the C call of the same name and a look at the error slot.
#ifndef LUMO_UI_TARN_INTERFACE_HPP
#define LUMO_UI_TARN_INTERFACE_HPP

#include <lumo_ui_tarn/base.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>
#if defined(__has_include) && __cplusplus >= 202002L
#if __has_include(<span>)
#include <span>
#endif
#endif

/// The interface for C++.
namespace lumo_ui_tarn {

/// How errors are told.
enum class errors {
    thrown,  ///< as std::system_error, by the call that failed
    kept     ///< until error() or take_error() looks; meanwhile no operation does anything
};

#if defined(__cpp_exceptions)
/// What a context does that is told nothing else.
inline constexpr errors usual_errors = errors::thrown;
#else
/// What a context does that is told nothing else.
inline constexpr errors usual_errors = errors::kept;
#endif

/// Used by one thread at a time, like the handle, and outlives all that was made with it.
class context {
public:
    /// With the handle's default_id.
    explicit context(mirk_handle *handle, errors mode = usual_errors) : context(handle, handle->default_id, mode) {}
    /// With another context.
    context(mirk_handle *handle, std::uint32_t ctx_id, errors mode = usual_errors)
        : handle_(handle), ctx_id_(ctx_id), mode_(mode) {}
    /// One error slot is in one place.
    context(const context &) = delete;
    /// One error slot is in one place.
    context &operator=(const context &) = delete;

    /// The first argument of C operations.
    mirk_handle *handle() const { return handle_; }
    /// The second argument of C operations.
    std::uint32_t ctx_id() const { return ctx_id_; }
    /// The last argument of C operations.
    std::uint32_t *slot() { return &slot_; }

    /// The error that is kept, as an errno number.
    std::error_code error() const { return {static_cast<int>(slot_), std::generic_category()}; }
    /// The error that was kept; operations work again.
    std::error_code take_error() { return {static_cast<int>(std::exchange(slot_, 0)), std::generic_category()}; }
    /// No error is kept.
    bool ok() const { return slot_ == 0; }

    /// Records that are made on the handle have states.
    bool tracks() const { return handle_->sttr_desc != nullptr && handle_->sttr_desc->sttr_mode == 0xEEEE; }

    /// Calls any operation of the form (h, ctx_id, ..., err).
    template <class Operation, class... Arguments>
    auto call(Operation operation, Arguments... arguments) {
        using Result = decltype(operation(handle_, ctx_id_, arguments..., &slot_));
        if constexpr (std::is_void_v<Result>) {
            operation(handle_, ctx_id_, arguments..., &slot_);
            if (slot_ != 0) raise(nullptr);
        } else {
            const Result result = operation(handle_, ctx_id_, arguments..., &slot_);
            if (slot_ != 0) raise(nullptr);
            return result;
        }
    }

    /// An error that no operation has left: the first one stays.
    void fail(std::uint32_t number, const char *words = nullptr) {
        if (slot_ == 0) slot_ = number;
        raise(words);
    }

private:
#if defined(__GNUC__)
    [[gnu::cold, gnu::noinline]]
#endif
    void
    raise([[maybe_unused]] const char *words) {
#if defined(__cpp_exceptions)
        if (mode_ != errors::thrown) return;
        const std::error_code code = take_error();
        throw words != nullptr && words[0] != '\0' ? std::system_error(code, words) : std::system_error(code);
#endif
    }

    mirk_handle *handle_;
    std::uint32_t ctx_id_;
    std::uint32_t slot_ = 0;
    [[maybe_unused]] errors mode_;
};

/// Bytes of one or more frames, with the spare byte behind them that readers and writers of frames may touch.
class frame {
public:
    /// No bytes.
    frame() : bytes_(1) {}
    /// A copy of the bytes.
    frame(const void *bytes, std::size_t size) : bytes_(size + 1) {
        if (size != 0) std::memcpy(bytes_.data(), bytes, size);
    }
#if defined(__cpp_lib_span)
    /// A copy of the bytes.
    explicit frame(std::span<const std::uint8_t> bytes) : frame(bytes.data(), bytes.size()) {}
    /// The bytes without the spare one.
    operator std::span<const std::uint8_t>() const { return {data(), size()}; }
#endif
    /// The first byte.
    const std::uint8_t *data() const { return bytes_.data(); }
    /// The first byte, to write.
    std::uint8_t *data() { return bytes_.data(); }
    /// Bytes without the spare one.
    std::size_t size() const { return bytes_.size() - 1; }
    /// There are none.
    bool empty() const { return size() == 0; }
    /// The first byte.
    const std::uint8_t *begin() const { return data(); }
    /// Behind the last byte: the spare one.
    const std::uint8_t *end() const { return data() + size(); }
    /// Cuts off bytes, or adds zeros.
    void resize(std::size_t size) { bytes_.resize(size + 1); }
    /// Adds another behind it.
    void append(const frame &other) {
        const std::size_t before = size();
        resize(before + other.size());
        if (!other.empty()) std::memcpy(data() + before, other.data(), other.size());
    }
    /// The same bytes.
    friend bool operator==(const frame &a, const frame &b) {
        return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size()) == 0;
    }
    /// Other bytes.
    friend bool operator!=(const frame &a, const frame &b) { return !(a == b); }

private:
    std::vector<std::uint8_t> bytes_;
};

/// The value of an address or prefix. Words are host-order numbers, word[0] the most significant; af is the system's
/// address family, 0 for an address that is not set.
struct address {
    std::uint8_t af = 0;                  ///< address family
    std::uint8_t prefix_len = 0;          ///< bits of the prefix
    std::uint16_t scope = 0;              ///< scope of the address
    std::array<std::uint32_t, 4> word{};  ///< the address itself

    /// The same in all four.
    friend bool operator==(const address &a, const address &b) {
        return a.af == b.af && a.prefix_len == b.prefix_len && a.scope == b.scope && a.word == b.word;
    }
    /// Another in one of the four.
    friend bool operator!=(const address &a, const address &b) { return !(a == b); }
};

/// A member as for_each_member shows it: its name and pointers to the functions that read and write it. What a member
/// does not have is null.
template <class Get, class Set, class GetState, class SetState>
struct member {
    std::string_view name;  ///< as in C
    Get get;                ///< reads it
    Set set;                ///< writes it
    GetState get_state;     ///< reads its state byte
    SetState set_state;     ///< writes its state byte
};
/// A member knows its functions' types by what it is made of.
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

/// What owners, references and views have in common.
namespace detail {

/// @cond helpers
inline constexpr std::size_t most_bytes = std::size_t{1} << 30;

/// Writers tell a lack of room by one of three numbers; their buffer grows until they are content. One more byte stands
/// behind what they are told of.
template <class Buffer, class Write>
Buffer grown(context &c, std::size_t guess, typename Buffer::value_type filler, Write write) {
    if (!c.ok()) return {};
    for (std::size_t size = guess;; size *= 4) {
        Buffer buffer(size + 1, filler);
        std::uint32_t err = 0;
        const std::uint32_t written = write(buffer.data(), size, &err);
        if ((err == EMSGSIZE || err == ENOSPC || err == ENOMEM) && size < most_bytes) continue;
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

/// Text has gaps in front of the braces of nested records, which are counted and not written.
template <class Write>
std::string grown_text(context &c, std::size_t guess, Write write) {
    std::string text = grown<std::string>(c, guess, ' ', write);
    for (char &character : text) {
        if (character == '\0') character = ' ';
    }
    return text;
}

/// For for_each_member: the function that may write where a getter has one for owners that are not const.
template <class C, class Result>
constexpr auto writable(Result (C::*get)(), int) {
    return get;
}
template <class C, class Result>
constexpr auto writable(Result (C::*get)() const, long) {
    return get;
}

/// Empties a record that owns blocks into one that ends with the scope.
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

/// What owners, references and views are: a context and an object in C.
template <class Native>
class bound {
public:
    /// What it was made with.
    lumo_ui_tarn::context &context() const { return *context_; }
    /// There is an object.
    explicit operator bool() const { return native_ != nullptr; }

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

    lumo_ui_tarn::context *context_;
    Native *native_;
    /// @endcond
};

/// What a record can do without being written, whatever its members are, and how the members printed from the schema do
/// what they do. Names of helpers end in an underscore, since those of members are the schema's.
template <class R, class Self>
class operations : public bound<typename R::native> {
    using base = bound<typename R::native>;

public:
    /// What names the record's C functions.
    using record_type = R;

    /// The record's name in C.
    static constexpr std::string_view record_name() { return R::name; }

    /// A view of it.
    operator record_view<R>() const { return {this->context(), this->native_}; }

    /// An upper bound, unless objects carry RA data.
    std::size_t frame_size() const { return R::len(this->context().handle(), this->context().ctx_id(), this->native_); }
    /// Returns the bytes written. The last byte of the buffer is the spare one.
    std::size_t write_frame(std::uint8_t *buffer, std::size_t size_with_spare) const {
        return this->context().call(R::marshal, static_cast<void *>(buffer), this->native_,
                                    static_cast<std::int32_t>(size_with_spare) - 1);
    }
#if defined(__cpp_lib_span)
    /// Returns the bytes written. The last byte of the buffer is the spare one.
    std::size_t write_frame(std::span<std::uint8_t> with_spare) const {
        return write_frame(with_spare.data(), with_spare.size());
    }
#endif
    /// Its frame, in a buffer that is large enough.
    frame to_frame() const {
        lumo_ui_tarn::context &c = this->context();
        return grown_frame(c, frame_size(), [&](std::uint8_t *buffer, std::size_t size, std::uint32_t *err) {
            return R::marshal(c.handle(), c.ctx_id(), buffer, this->native_, static_cast<std::int32_t>(size), err);
        });
    }
    /// An XML element of this name.
    std::string to_xml(const char *name = R::name) const {
        lumo_ui_tarn::context &c = this->context();
        return grown_text(c, 3 * frame_size() + 4096, [&](char *buffer, std::size_t size, std::uint32_t *err) {
            return R::to_xml(c.handle(), c.ctx_id(), name, buffer, this->native_, static_cast<std::int32_t>(size), 0,
                             err);
        });
    }
    /// Printed for people, under this name.
    std::string text(const char *name = R::name) const {
        lumo_ui_tarn::context &c = this->context();
        return grown_text(c, 3 * frame_size() + 4096, [&](char *buffer, std::size_t size, std::uint32_t *err) {
            return R::print(c.handle(), c.ctx_id(), buffer, 0, name, this->native_, static_cast<std::int32_t>(size), err);
        });
    }

    /// Only the sign means something. Header and state play no part.
    std::int32_t compare(record_view<R> other) const { return R::compare(this->native_, other.get()); }
    /// Equal records have equal hashes.
    std::uint32_t hash(std::uint32_t seed = 0) const { return R::hash(this->native_, seed); }
    /// A deep copy.
    record<R> copy() const;

    /// It has states.
    bool is_tracked() const {
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

    /// Writers chain: they return the owner, or the reference as const as it came.
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
            object.context().fail(EOVERFLOW);
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
    /// The setter takes a whole object: the one that stands there with other values, and states that say written.
    template <class Object, class Get, class Set>
    static auto &write_address_(Object &object, Get get, Set set, const lumo_ui_tarn::address &value) {
        const ip_address *present = object.call_(get);
        if (present == nullptr) return self_(object);
        struct {
            ip_address object;
            std::uint8_t states[8];
        } source;
        source.object = *present;
        source.object.obj_flag &= static_cast<std::uint8_t>(~(MIRK_OBJ_STTR_OFFSET | MIRK_OBJ_RA_DATA));
        source.object.af = value.af;
        source.object.prefix_len = value.prefix_len;
        source.object.scope = value.scope;
        for (std::size_t i = 0; i < 4; ++i) source.object.word[i] = value.word[i];
        std::memset(source.states, 2, sizeof source.states);
        object.call_(set, &source.object);
        return self_(object);
    }

    /// The setters of C move, and abandon what the destination owned. Here nothing is lost: a copy is moved in, and what
    /// was there is moved out.
    template <class Object, class N, class Get, class Set>
    static auto &adopt_(Object &object, Get get, Set set, record<N> &&value) {
        {
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
            object.call_(set, const_cast<typename N::native *>(value.get()));  // which copies
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
    /// Of what C code has. The operations of C that read take a plain pointer, too.
    record_view(context &c, const typename R::native *native) : base(c, const_cast<typename R::native *>(native)) {}

    /// The object, for C functions; null if there is none.
    const typename R::native *get() const { return this->native_; }
};

/// Borrows a record: two pointers, which are copied and not what they point to.
template <class R>
class record_ref : public R::template ref_writers<record_ref<R>> {
    using base = typename R::template ref_writers<record_ref<R>>;

public:
    /// Of what C code has.
    record_ref(context &c, typename R::native *native) : base(c, native) {}

    /// The object, for C functions; null if there is none.
    typename R::native *get() const { return this->native_; }
    /// Fills all state bytes at once; observers are not notified.
    void set_all_states(std::uint8_t value) const { this->fill_states_(value); }
    /// Calls visit with a lumo_ui_tarn::member for each, in order.
    template <class Visit>
    static void for_each_member(Visit &&visit) {
        R::template visit_writable_<record_ref>(visit);
    }
};

/// Owns a record, and ends it.
template <class R>
class record : public R::template writers<record<R>> {
    using base = typename R::template writers<record<R>>;

public:
    /// Borrows what this owns.
    using reference_type = record_ref<R>;
    /// Borrows what this owns, to read it.
    using view_type = record_view<R>;

    /// All members zero. ENOMEM without memory.
    explicit record(context &c) : base(c, c.ok() ? R::create(c.handle(), c.ctx_id()) : nullptr) {
        if (this->native_ == nullptr) c.fail(ENOMEM);
    }
    /// Copies are made by copy().
    record(const record &) = delete;
    /// The other one is empty afterwards.
    record(record &&other) noexcept : base(other.context(), other.release()) {}
    /// The other one gets what this one had.
    record &operator=(record &&other) noexcept {
        std::swap(this->context_, other.context_);
        std::swap(this->native_, other.native_);
        return *this;
    }
    /// Ends the record.
    ~record() {
        if (this->native_ != nullptr) R::destroy(this->context_->handle(), this->context_->ctx_id(), this->native_);
    }

    /// Takes over what C code made, or hands it back to C code.
    static record take(context &c, typename R::native *native) { return record(c, native); }
    /// The object, for C functions; null if there is none.
    typename R::native *get() { return this->native_; }
    /// The object, to be read.
    const typename R::native *get() const { return this->native_; }
    /// A reference to it.
    operator record_ref<R>() { return {this->context(), this->native_}; }
    /// Fills all state bytes at once; observers are not notified.
    void set_all_states(std::uint8_t value) { this->fill_states_(value); }
    /// Calls visit with a lumo_ui_tarn::member for each, in order; a const owner is visited as its view_type.
    template <class Visit>
    static void for_each_member(Visit &&visit) {
        R::template visit_writable_<record>(visit);
    }
    /// Gives it away; this one is empty afterwards.
    [[nodiscard]] typename R::native *release() noexcept { return std::exchange(this->native_, nullptr); }

    /// Reads the frame where it lies: its owner has one readable byte behind the size, as a frame object does.
    static record from_frame_with_spare(context &c, const void *bytes, std::size_t size) {
        record fresh(c);
        // The operation takes a plain void * and only reads.
        c.call(R::unmarshal, const_cast<void *>(bytes), fresh.get(), static_cast<std::uint32_t>(size),
               std::uint32_t{0});
        return fresh;
    }
    /// Reads a frame.
    static record from_frame(context &c, const frame &whole) {
        return from_frame_with_spare(c, whole.data(), whole.size());
    }
    /// Copies the bytes first.
    static record from_frame(context &c, const void *bytes, std::size_t size) {
        return from_frame(c, frame(bytes, size));
    }
#if defined(__cpp_lib_span)
    /// Copies the bytes first.
    static record from_frame(context &c, std::span<const std::uint8_t> bytes) { return from_frame(c, frame(bytes)); }
#endif
    /// The document is the runtime's. Without a path the record's element is looked for at any depth.
    static record from_xml(context &c, void *document, const char *path = nullptr) {
        record fresh(c);
        std::string anywhere = "//";
        anywhere += R::name;
        char words[256] = "";
        if (c.ok()) {
            R::from_xml(c.handle(), c.ctx_id(), path != nullptr ? path : anywhere.c_str(), document, fresh.get(),
                        c.slot(), words, sizeof words);
            if (!c.ok()) c.fail(*c.slot(), words);
        }
        return fresh;
    }

private:
    record(context &c, typename R::native *native) : base(c, native) {}
};

/// The same in all members.
template <class A, class B, class R = typename A::record_type,
          class = std::enable_if_t<std::is_base_of_v<detail::operations<R, A>, A> &&
                                   std::is_base_of_v<detail::operations<R, B>, B>>>
bool operator==(const A &a, const B &b) {
    return a.compare(b) == 0;
}
/// Another in some member.
template <class A, class B, class R = typename A::record_type,
          class = std::enable_if_t<std::is_base_of_v<detail::operations<R, A>, A> &&
                                   std::is_base_of_v<detail::operations<R, B>, B>>>
bool operator!=(const A &a, const B &b) {
    return a.compare(b) != 0;
}
/// Ordered by compare().
template <class A, class B, class R = typename A::record_type,
          class = std::enable_if_t<std::is_base_of_v<detail::operations<R, A>, A> &&
                                   std::is_base_of_v<detail::operations<R, B>, B>>>
bool operator<(const A &a, const B &b) {
    return a.compare(b) < 0;
}

namespace detail {

/// @cond helpers
/// By way of a frame, like every deep copy, but of any size.
template <class R, class Self>
record<R> operations<R, Self>::copy() const {
    lumo_ui_tarn::context &c = this->context();
    typename R::native *result = nullptr;
    const std::size_t size = frame_size();
    std::vector<std::uint8_t> buffer(size + 1);
    c.call(R::clone, this->native_, &result, static_cast<void *>(buffer.data()), static_cast<std::uint32_t>(size));
    return record<R>::take(c, result);
}
/// @endcond

}  // namespace detail

namespace detail {

/// An array of a record, as a container of what borrows an element.
template <class A, class Element>
class array {
public:
    /// What an element is to whoever looks.
    using value_type = Element;
    /// What counts elements.
    using size_type = std::size_t;

    /// Over the elements, with random access.
    class iterator {
    public:
        /// @cond what every iterator has
        using value_type = Element;
        using reference = value_type;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::input_iterator_tag;  // its references are values, hence no better one
#if __cplusplus >= 202002L
        using iterator_concept = std::random_access_iterator_tag;
#endif
        struct pointer {
            value_type value;
            const value_type *operator->() const { return &value; }
        };

        iterator() = default;
        iterator(context *c, typename A::native *owner, std::size_t at) : context_(c), owner_(owner), at_(at) {}
        reference operator*() const { return array(*context_, owner_)[at_]; }
        pointer operator->() const { return {**this}; }
        reference operator[](difference_type n) const { return *(*this + n); }
        iterator &operator+=(difference_type n) {
            at_ += static_cast<std::size_t>(n);
            return *this;
        }
        iterator &operator-=(difference_type n) { return *this += -n; }
        iterator &operator++() { return *this += 1; }
        iterator &operator--() { return *this -= 1; }
        iterator operator++(int) {
            const iterator before = *this;
            ++*this;
            return before;
        }
        iterator operator--(int) {
            const iterator before = *this;
            --*this;
            return before;
        }
        friend iterator operator+(iterator i, difference_type n) { return i += n; }
        friend iterator operator+(difference_type n, iterator i) { return i += n; }
        friend iterator operator-(iterator i, difference_type n) { return i -= n; }
        friend difference_type operator-(const iterator &a, const iterator &b) {
            return static_cast<difference_type>(a.at_) - static_cast<difference_type>(b.at_);
        }
        friend bool operator==(const iterator &a, const iterator &b) { return a.at_ == b.at_; }
        friend bool operator!=(const iterator &a, const iterator &b) { return a.at_ != b.at_; }
        friend bool operator<(const iterator &a, const iterator &b) { return a.at_ < b.at_; }
        friend bool operator>(const iterator &a, const iterator &b) { return a.at_ > b.at_; }
        friend bool operator<=(const iterator &a, const iterator &b) { return a.at_ <= b.at_; }
        friend bool operator>=(const iterator &a, const iterator &b) { return a.at_ >= b.at_; }
        /// @endcond

    private:
        context *context_ = nullptr;
        typename A::native *owner_ = nullptr;
        std::size_t at_ = 0;
    };
    /// Being constant protects the container and not what is in it.
    using const_iterator = iterator;

    /// How many elements there are.
    std::size_t size() const { return context_->call(A::size, owner_); }
    /// There are none.
    bool empty() const { return size() == 0; }
    /// What the count can tell.
    static constexpr std::size_t max_size() { return std::numeric_limits<typename A::count>::max(); }

    /// ENOENT behind the end.
    value_type operator[](std::size_t index) const {
        return {*context_, context_->call(A::get, owner_, static_cast<std::uint32_t>(index))};
    }
    /// The first element.
    value_type front() const { return (*this)[0]; }
    /// The last element.
    value_type back() const { return (*this)[size() - 1]; }
    /// At the first element.
    iterator begin() const { return {context_, owner_, 0}; }
    /// Behind the last element.
    iterator end() const { return {context_, owner_, size()}; }

    /// The state of one element; none if the owner has no states.
    std::optional<std::uint8_t> state(std::size_t index) const {
        const auto *object = reinterpret_cast<const mirk_object *>(owner_);
        if (!context_->tracks() || object == nullptr || (object->obj_flag & MIRK_OBJ_STATE_TRACKED) == 0) {
            return std::nullopt;
        }
        return context_->call(A::state_get, owner_, static_cast<std::uint32_t>(index));
    }
    /// @cond helpers
protected:
    friend class iterator;
    array(context &c, typename A::native *owner) : context_(&c), owner_(owner) {}

    context *context_;
    typename A::native *owner_;
    /// @endcond
};

}  // namespace detail

/// An array that is only read.
template <class A>
class array_view : public detail::array<A, record_view<typename A::element>> {
public:
    /// Of the record that has the array.
    array_view(context &c, const typename A::native *owner)
        : detail::array<A, record_view<typename A::element>>(c, const_cast<typename A::native *>(owner)) {}
};

/// An array of a record, as a container of references. It stays good while its owner lives; references to elements stay
/// good until the array grows, and each growth moves all elements: grow once, then fill.
template <class A>
class array_ref : public detail::array<A, record_ref<typename A::element>> {
    using base = detail::array<A, record_ref<typename A::element>>;
    using element = typename A::element;
    using base::context_;
    using base::owner_;

public:
    using base::max_size;
    using base::size;

    /// Of the record that has the array.
    array_ref(context &c, typename A::native *owner) : base(c, owner) {}
    /// A view of it.
    operator array_view<A>() const { return {*context_, owner_}; }

    /// To this many elements, new ones with all members zero. EINVAL for fewer than there are: arrays do not shrink.
    const array_ref &grow(std::size_t elements) const {
        const std::size_t before = size();
        if (elements < before) context_->fail(EINVAL);
        if (elements > max_size()) context_->fail(EOVERFLOW);
        if (elements <= before || !context_->ok()) return *this;
        std::optional<record<element>> blank;
        if (context_->tracks()) blank.emplace(*context_);  // the null value is for handles that do not track
        put(elements - 1, blank ? blank->get() : nullptr);
        return *this;
    }
    /// Grows as far as it has to. What stood there is released.
    const array_ref &set(std::size_t index, record<element> &&value) const {
        const std::size_t before = size();
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
    /// Writes a copy of the value.
    const array_ref &set(std::size_t index, record_view<element> value) const { return set(index, value.copy()); }
    /// Moves the value behind the last element.
    const array_ref &push_back(record<element> &&value) const { return set(size(), std::move(value)); }
    /// Puts a copy of the value behind the last element.
    const array_ref &push_back(record_view<element> value) const { return set(size(), value.copy()); }

    /// Writes the state of one element.
    const array_ref &set_state(std::size_t index, std::uint8_t value) const {
        context_->call(A::state_set, owner_, static_cast<std::uint32_t>(index), value);
        return *this;
    }

private:
    void put(std::size_t index, typename element::native *value) const {
        context_->call(A::set, owner_, static_cast<std::uint32_t>(index), value);
    }
};

namespace detail {

/// What a message can do without being written.
template <class M>
class message_operations : public bound<typename M::native> {
    using base = bound<typename M::native>;

public:
    /// What names the message's C functions.
    using message_type = M;
    /// What names its payload's C functions.
    using payload_type = typename M::payload;

    /// The message's name in C.
    static constexpr std::string_view message_name() { return M::name; }
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return M::luid(); }

    /// A view of it.
    operator message_view<M>() const { return {this->context(), this->native_}; }

    /// Bytes of its frame.
    std::size_t frame_size() const {
        return this->native_ != nullptr ? M::len(this->context().handle(), this->context().ctx_id(), this->native_) : 0;
    }
    /// Returns the bytes written. The last byte of the buffer is the spare one.
    std::size_t write_frame(std::uint8_t *buffer, std::size_t size_with_spare) const {
        return this->context().call(M::marshal, static_cast<void *>(buffer), this->native_,
                                    static_cast<std::uint32_t>(size_with_spare) - 1);
    }
#if defined(__cpp_lib_span)
    /// Returns the bytes written. The last byte of the buffer is the spare one.
    std::size_t write_frame(std::span<std::uint8_t> with_spare) const {
        return write_frame(with_spare.data(), with_spare.size());
    }
#endif
    /// Its frame, in a buffer that is large enough.
    frame to_frame() const {
        lumo_ui_tarn::context &c = this->context();
        return grown_frame(c, frame_size(), [&](std::uint8_t *buffer, std::size_t size, std::uint32_t *err) {
            return M::marshal(c.handle(), c.ctx_id(), buffer, this->native_, static_cast<std::uint32_t>(size), err);
        });
    }
    /// An XML element of its name.
    std::string to_xml() const { return rendered(M::to_xml); }
    /// Printed for people.
    std::string text() const { return rendered(M::print); }

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
        typename payload_type::native *const next = value.release();
        if (next != payload_().get()) this->call_(M::payload_free_and_set, next);
    }
    /// @endcond

private:
    template <class Operation>
    std::string rendered(Operation operation) const {
        lumo_ui_tarn::context &c = this->context();
        return grown_text(c, 3 * frame_size() + 4096, [&](char *buffer, std::size_t size, std::uint32_t *err) {
            return operation(c.handle(), c.ctx_id(), buffer, this->native_, static_cast<std::uint32_t>(size), err);
        });
    }
};

}  // namespace detail

/// Borrows a message to read it, as record_view borrows a record.
template <class M>
class message_view : public detail::message_operations<M> {
public:
    /// Of what C code has. The operations of C that read take a plain pointer, too.
    message_view(context &c, const typename M::native *native)
        : detail::message_operations<M>(c, const_cast<typename M::native *>(native)) {}

    /// The object, for C functions; null if there is none.
    const typename M::native *get() const { return this->native_; }
    /// Borrowed: it goes with the message.
    record_view<typename M::payload> payload() const { return this->payload_(); }
};

/// Borrows a message, as record_ref borrows a record.
template <class M>
class message_ref : public detail::message_operations<M> {
public:
    /// Of what C code has.
    message_ref(context &c, typename M::native *native) : detail::message_operations<M>(c, native) {}

    /// The object, for C functions; null if there is none.
    typename M::native *get() const { return this->native_; }
    /// Borrowed: it goes with the message.
    record_ref<typename M::payload> payload() const { return this->payload_(); }
    /// The message has no payload afterwards, until it gets another one.
    record<typename M::payload> detach_payload() const { return this->detach_payload_(); }
    /// What it had is destroyed.
    void set_payload(record<typename M::payload> &&value) const { this->set_payload_(std::move(value)); }
};

/// Owns a message, and ends it with its payload.
template <class M>
class message : public detail::message_operations<M> {
    using base = detail::message_operations<M>;

public:
    /// Borrows what this owns.
    using reference_type = message_ref<M>;
    /// Borrows what this owns, to read it.
    using view_type = message_view<M>;

    /// With a fresh payload. ENOMEM without memory.
    explicit message(context &c) : base(c, c.ok() ? M::create(c.handle(), c.ctx_id()) : nullptr) {
        if (this->native_ == nullptr) c.fail(ENOMEM);
    }
    /// Messages are not copied.
    message(const message &) = delete;
    /// The other one is empty afterwards.
    message(message &&other) noexcept : base(other.context(), other.release()) {}
    /// The other one gets what this one had.
    message &operator=(message &&other) noexcept {
        std::swap(this->context_, other.context_);
        std::swap(this->native_, other.native_);
        return *this;
    }
    /// Ends the message.
    ~message() {
        if (this->native_ != nullptr) M::destroy(this->context_->handle(), this->context_->ctx_id(), this->native_);
    }

    /// Takes over what C code made.
    static message take(context &c, typename M::native *native) { return message(c, native); }
    /// The object, for C functions; null if there is none.
    typename M::native *get() { return this->native_; }
    /// The object, to be read.
    const typename M::native *get() const { return this->native_; }
    /// A reference to it.
    operator message_ref<M>() { return {this->context(), this->native_}; }
    /// Borrowed: it goes with the message.
    record_ref<typename M::payload> payload() { return this->payload_(); }
    /// The message has no payload afterwards, until it gets another one.
    record<typename M::payload> detach_payload() { return this->detach_payload_(); }
    /// What it had is destroyed.
    void set_payload(record<typename M::payload> &&value) { this->set_payload_(std::move(value)); }
    /// Borrowed, to be read: it goes with the message.
    record_view<typename M::payload> payload() const { return this->payload_(); }
    /// Gives it away; this one is empty afterwards.
    [[nodiscard]] typename M::native *release() noexcept { return std::exchange(this->native_, nullptr); }

    /// A message that was read in part is destroyed again.
    static message from_frame_with_spare(context &c, const void *bytes, std::size_t size) {
        typename M::native *native = nullptr;
        std::uint32_t err = *c.slot();
        M::unmarshal_only(c.handle(), c.ctx_id(), &native, const_cast<void *>(bytes), static_cast<std::uint32_t>(size),
                          &err);
        message read(c, native);
        if (err != 0) c.fail(err);
        return read;
    }
    /// Reads a frame.
    static message from_frame(context &c, const frame &whole) {
        return from_frame_with_spare(c, whole.data(), whole.size());
    }
    /// Copies the bytes first.
    static message from_frame(context &c, const void *bytes, std::size_t size) {
        return from_frame(c, frame(bytes, size));
    }
#if defined(__cpp_lib_span)
    /// Copies the bytes first.
    static message from_frame(context &c, std::span<const std::uint8_t> bytes) { return from_frame(c, frame(bytes)); }
#endif
    /// The document is the runtime's.
    static message from_xml(context &c, void *document) {
        char words[256] = "";
        typename M::native *native = nullptr;
        if (c.ok()) {
            native = M::from_xml(c.handle(), c.ctx_id(), document, c.slot(), words, sizeof words);
            if (!c.ok()) c.fail(*c.slot(), words);
        }
        return message(c, native);
    }

private:
    message(context &c, typename M::native *native) : base(c, native) {}
};

/// Frames of one answer: the start of a bundle, its messages, and its commit. Ends with an abort if nobody commits.
template <class B>
class bundle_writer {
public:
    /// Writes the start.
    explicit bundle_writer(context &c) : context_(&c) {
        control(B::start_message_marshal);
        open_ = c.ok();
    }
    /// A bundle is open once.
    bundle_writer(const bundle_writer &) = delete;
    /// A bundle is open once.
    bundle_writer &operator=(const bundle_writer &) = delete;
    /// Ends the bundle in the runtime if nobody did.
    ~bundle_writer() {
        if (!open_) return;
        std::uint8_t frame_of_nobody[64];
        std::uint32_t err = 0;
        B::abort_message_marshal(context_->handle(), context_->ctx_id(), frame_of_nobody, nullptr,
                                 sizeof frame_of_nobody - 1, &err);
    }

    /// The frame of a message that the bundle admits.
    bundle_writer &add(message_view<typename B::message> one) {
        frames_.append(one.to_frame());
        return *this;
    }
    /// The frame of the commit.
    bundle_writer &commit() { return end(B::commit_message_marshal); }
    /// The frame of the abort.
    bundle_writer &abort() { return end(B::abort_message_marshal); }
    /// What was written up to now.
    const frame &frames() const { return frames_; }

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
        if (!context_->ok()) return *this;  // what is missing in the answer must not be committed
        open_ = false;
        control(operation);
        return *this;
    }

    context *context_;
    frame frames_;
    bool open_ = false;
};

}  // namespace lumo_ui_tarn

/// @cond what every hash has
template <class R>
struct std::hash<lumo_ui_tarn::record<R>> {
    std::size_t operator()(const lumo_ui_tarn::record<R> &object) const { return object.hash(); }
};
template <class R>
struct std::hash<lumo_ui_tarn::record_ref<R>> {
    std::size_t operator()(const lumo_ui_tarn::record_ref<R> &object) const { return object.hash(); }
};
template <class R>
struct std::hash<lumo_ui_tarn::record_view<R>> {
    std::size_t operator()(const lumo_ui_tarn::record_view<R> &object) const { return object.hash(); }
};
/// @endcond

#endif
