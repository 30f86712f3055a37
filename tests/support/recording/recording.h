// The recording runtime: a second implementation of the contract, for tests only. It chooses differently wherever the
// contract leaves a choice (byte order, widths on the wire, text and XML forms, hash, identifiers), and records every
// call, so that a test can compare a whole sequence of calls with the expected one.
#ifndef TESTS_SUPPORT_RECORDING_RECORDING_H
#define TESTS_SUPPORT_RECORDING_RECORDING_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <deque>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kit/tracking.h"
#include "mirk/mirk.h"

namespace recording {

// ---- the log: one for the process, in the order of the calls ----

// One call of a contract function or of a handle's callback. The relevant arguments are recorded as text at the time of
// the call: an address by its region (see name_region), a number in decimal, a type by its name. They do not include
// handle, ctx_id and error slot, except that the last argument of mirk_store_epoch_err is its slot.
struct Call {
    std::string function;
    std::vector<std::string> arguments;
    std::optional<std::uint32_t> ctx_id;  // absent where the function takes none
    std::string slot;                     // the error slot as address text, empty where the function takes none
    std::string result;                   // of obj_alloc and sys_alloc only: the block's name, or "null"
    bool inner = false;                   // made by this runtime itself, while it serves another call

    // Of skald_wrapper only.
    std::uint16_t module = 0;
    std::uint32_t level = 0;
    std::string format;
    std::string text;  // the formatted line
};

enum class Detail {
    brief,  // "u_int32_set_value object+12 5"
    full    // "u_int32_set_value object+12 5 ctx=7 err=last_error"
};

// Lines read "<function> <arguments>", such as "write_notify object+8 1", "obj_alloc 40" or
// "skald_wrapper type 3 (ERR): The object is not state tracked". A trace module reads as its registered name without
// the part that all four share ("type", "message", "queue", "stub"), an unknown one as its number.
std::string line(const Call &call, Detail detail = Detail::brief);

// All calls, inner ones included. The functions below omit inner calls, such as the write_notify that u_int32_set_value
// makes before it stores, unless show_inner is on.
std::vector<Call> log();
void clear_log();
void show_inner(bool on = true);
std::vector<std::string> lines(Detail detail = Detail::brief);
// Only the calls of the named functions, or all but those.
std::vector<std::string> lines_of(std::initializer_list<std::string_view> functions, Detail detail = Detail::brief);
std::vector<std::string> lines_without(std::initializer_list<std::string_view> functions,
                                       Detail detail = Detail::brief);
std::size_t count_of(std::string_view function);
// The formatted lines of all trace calls, without module and level.
std::vector<std::string> traces();

// While paused, nothing is recorded, and handles may be used on several threads, one thread per handle.
void pause(bool on = true);

// Traces at level 0 are followed by abort(), so they always go to standard error, where a death test can match them.
// This sends all others there too.
void echo_traces(bool on = true);

// ---- names of addresses ----

// An address reads as "<region>+<offset>", or "<region>" at its start. Regions named by the test come first, later ones
// before earlier ones; then live blocks of obj_alloc ("block1", "block2", ... counted from the last clear_names); then
// "last_error", "workspace"; then "local" for other stack addresses, a type record by its type's name (followed by
// "(copy)" for a private copy) and a counter as "<type>.num_live" ("<type>[-3].num_live" for another variant);
// "null"; "handle+N" for another member of a handle; and "elsewhere" for any other address.
void name_region(std::string name, const void *address, std::size_t size);
void remove_region(std::string_view name);
// Removes all named regions and starts counting blocks at 1 again; blocks that are live then read as "earlier".
void clear_names();
std::string address_text(const void *address);

// ---- a handle ----

using kit::Tracking;

struct Options {
    Tracking tracking = Tracking::none;
    std::uint32_t private_types = 0;
    std::uint32_t oid_mapping = 1;
};

struct VariantAnswer {
    std::int8_t variant = 0;
    std::uint32_t error = 0;
};
struct MessageAnswer {
    std::uint32_t allowed = 1;
    std::uint32_t error = 0;
};
struct RaData {
    void *value = nullptr;
    std::uint8_t byte = 0;
};

// How the runtime behaves on one handle. Can be changed at any time.
struct Knobs {
    // Memory. Counting starts at 1 with the next request after the knob is set (see the setters of Handle).
    std::size_t block_ceiling = std::size_t{64} << 20;  // larger requests return null
    bool null_for_size_0 = false;

    // Domain, by the type's name ("" for a null type).
    std::map<std::string, VariantAnswer, std::less<>> variants;
    VariantAnswer default_variant;
    std::map<std::string, MessageAnswer, std::less<>> messages;
    MessageAnswer default_message;
    bool slot_gets_eidrm = true;  // whether mirk_store_epoch_err writes the slot too
    bool slot_gets_ebade = true;
    bool adjust_variant = true;  // whether mirklib_adjust_variant stores anything
    bool no_type_info = false;   // mirk_type_info_ptr_get returns null

    // Object references.
    std::uint32_t oid_destroy_result = 1;
    std::uint32_t oid_destroy_error = 0;
    std::uint32_t hd_destroy_error = 0;
    std::map<void *, std::uint32_t> oid_count_errors;  // by oid, for lowering its count
    std::vector<void *> address_oids;                  // what each address holds
    std::optional<std::uint32_t> address_oid_count;    // instead of their number
    std::uint32_t address_oid_count_error = 0;
    std::uint32_t address_references_error = 0;

    // RA data of objects without an entry of their own, and the result in every case.
    RaData ra_data;
    std::uint32_t ra_result = 0;

    // Messages and bundles.
    bool suppress_messages = false;
    std::optional<std::uint32_t> accumulating;  // else: recv_bundle_open as it stands
    mirk_dispatch_info *dispatch_info = nullptr;
    void *dispatch_lut = nullptr;

    // By the name of a function of values, wire, text, XML, message headers or send bundles that has an error slot,
    // such as "u_int32_marshal" or "_mirk_message_header_marshal": it sets this error, does nothing else and returns 0
    // or null. An error that is already set is kept.
    std::map<std::string, std::uint32_t, std::less<>> errors;
};

struct State;  // the handle, followed by the runtime's private members

class Handle {
public:
    explicit Handle(Options options = {});
    ~Handle();  // releases blocks that are still live
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    mirk_handle *get() const;
    operator mirk_handle *() const { return get(); }
    mirk_handle *operator->() const { return get(); }
    Knobs &knobs() const;

    void set_tracking(Tracking tracking);

    // The nth request from now on fails with null, or all from the nth on; 0 stops this.
    void fail_obj_alloc(std::uint64_t nth);
    void fail_obj_alloc_from(std::uint64_t nth);
    void fail_sys_alloc(std::uint64_t nth);
    void fail_sys_alloc_from(std::uint64_t nth);
    std::uint64_t obj_allocs() const;  // requests so far, failed ones included

    std::size_t live_blocks() const;
    std::size_t live_bytes() const;
    std::size_t block_size(const void *block) const;  // 0 if it is not a live block

    // Entries that the library made.
    std::optional<std::uint32_t> state_offset(const void *object) const;
    void set_state_offset(void *object, std::uint32_t offset);  // sets flag bit 64 too
    std::optional<RaData> ra_data(const void *object) const;
    std::size_t mappings() const;  // entries of both kinds
    std::size_t private_copies() const;
    mirk_type_info_copy *private_copy(std::string_view type_name) const;

    void set_workspace(std::uint32_t size);  // default 48 KiB, not counting its guard byte
    // Contents of the open send bundle: name and count of each message, in order of admission.
    std::vector<std::pair<std::string, std::uint32_t>> send_bundle() const;
    // Adds a token to recv_bundle_list, whose destruction is recorded as "destroy_received <name>".
    void file_received(std::string name);

private:
    std::unique_ptr<State> state_;
};

// ---- marks of objects, the recorder, handlers of sibling modules ----

void set_modified(void *object, bool modified);
bool modified(const void *object);
// A bare integer has no room for a mark: its backpropagate returns 1 once for an address marked here.
void mark_integer(const void *field);
void set_recorder(std::uint32_t state, FILE *stream);
void fail_malloc(bool on = true);  // mirklib_malloc returns null
std::size_t live_mallocs();        // blocks of mirklib_malloc that have not been freed
// The handler registered for a sibling module ("comm", "defs", ...), or null.
mirk_bundle_handler sibling_handler(std::string_view module);

// ---- documents ----

// An element and its content; its address is the document argument of the from_xml operations. Paths are "//a",
// "//a/b" and "//a/b[2]/c": the first step finds elements at any depth, including the document itself, and a position
// counts among equally named children of one parent. Any other path fails with EINVAL.
struct Element {
    std::string name;
    std::string value;
    std::deque<Element> children;

    // Returns the new child, which stays where it is.
    Element &add(std::string child_name, std::string child_value = "");
};

// Look-ups of exactly this path fail with this error; 0 stops this.
void fail_xml(std::string path, std::uint32_t error);

// ---- sizes that this runtime chooses, different from those of the reference runtime ----

inline constexpr std::uint32_t boolean_wire_size = 3;
inline constexpr std::uint32_t address_wire_size = 23;          // in a frame without state bytes
inline constexpr std::uint32_t tracked_address_wire_size = 30;  // on a tracking handle
inline constexpr std::uint32_t ra_wire_size = 12;
inline constexpr std::uint32_t text_overflow_error = 75;

}  // namespace recording

#endif
