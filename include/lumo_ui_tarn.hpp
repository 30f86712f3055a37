/// @file
/// lumo_ui_tarn.hpp - the whole library in C++17: records, enumerations, messages and bundles as types.
/// lumo_ui_tarn/interface.hpp describes what they have in common, lumo_ui_tarn/families.h what each operation does.
///
/// A member proto has proto() and set_proto(), which chains; on a handle that tracks, proto_state() and
/// set_proto_state() for its state byte; a nested record also adopt_..(), which moves. A const owner is read-only.
/// dp_tc_type names the C functions of a dp_tc: c.call(dp_tc_type::adjust_variant, tc.get()). Needs the C library
/// alone.
// Generated from the schema; edit the tables there and run tools/regenerate.
#ifndef LUMO_UI_TARN_HPP
#define LUMO_UI_TARN_HPP

#include <lumo_ui_tarn.h>

#include <lumo_ui_tarn/interface.hpp>

namespace lumo_ui_tarn {

/// High-availability state of a processor.
enum class ha_state : std::uint32_t {
    invalid_state = 0,  ///< LUMO_TARN_HA_INVALID_STATE
    reset_state = 1,  ///< LUMO_TARN_HA_RESET_STATE
    init_state = 2,  ///< LUMO_TARN_HA_INIT_STATE
    active_solo_state = 3,  ///< LUMO_TARN_HA_ACTIVE_SOLO_STATE
    active_redundant_state = 4,  ///< LUMO_TARN_HA_ACTIVE_REDUNDANT_STATE
    standby_state = 5,  ///< LUMO_TARN_HA_STANDBY_STATE
    hot_standby_state = 6,  ///< LUMO_TARN_HA_HOT_STANDBY_STATE
    fault_recovery_state = 7,  ///< LUMO_TARN_HA_FAULT_RECOVERY_STATE
    quiesce_state = 8,  ///< LUMO_TARN_HA_QUIESCE_STATE
};
/// Its name in C; empty for a value that has none, as frames may bring one.
constexpr std::string_view name_of(ha_state value) {
    switch (value) {
        case ha_state::invalid_state:
            return "LUMO_TARN_HA_INVALID_STATE";
        case ha_state::reset_state:
            return "LUMO_TARN_HA_RESET_STATE";
        case ha_state::init_state:
            return "LUMO_TARN_HA_INIT_STATE";
        case ha_state::active_solo_state:
            return "LUMO_TARN_HA_ACTIVE_SOLO_STATE";
        case ha_state::active_redundant_state:
            return "LUMO_TARN_HA_ACTIVE_REDUNDANT_STATE";
        case ha_state::standby_state:
            return "LUMO_TARN_HA_STANDBY_STATE";
        case ha_state::hot_standby_state:
            return "LUMO_TARN_HA_HOT_STANDBY_STATE";
        case ha_state::fault_recovery_state:
            return "LUMO_TARN_HA_FAULT_RECOVERY_STATE";
        case ha_state::quiesce_state:
            return "LUMO_TARN_HA_QUIESCE_STATE";
    }
    return {};
}
/// Names the C functions of lumo_tarn_ha_state_e.
struct ha_state_type {
    using native = lumo_tarn_ha_state_e;  ///< the enumeration in C
    using value = lumo_ui_tarn::ha_state;  ///< its values
    static constexpr const char *name = "lumo_tarn_ha_state_e";  ///< its name in C
    static constexpr auto create = lumo_tarn_ha_state_e_create;  ///< Allocates an object with value 0.
    /// Initializes an object in memory of the caller.
    static constexpr auto initialize = lumo_tarn_ha_state_e_initialize;
    /// Returns the size of an object in bytes, equal on every handle.
    static constexpr auto sizeof_operation = lumo_tarn_ha_state_e_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_ha_state_e_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED in the object: it lies in memory of another object.
    static constexpr auto set_instance_embedded = lumo_tarn_ha_state_e_set_instance_embedded;
    /// Changes the object to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_ha_state_e_adjust_variant;
    static constexpr auto destroy = lumo_tarn_ha_state_e_destroy;  ///< Destroys the object and frees its memory.
    /// Same as lumo_tarn_ha_state_e_destroy(), but has no effect with free_it 0, because an embedded object owns
    /// nothing.
    static constexpr auto destroy_internal = lumo_tarn_ha_state_e_destroy_internal;
    /// Returns the number of object identifiers in the object: 0.
    static constexpr auto get_oid_count = lumo_tarn_ha_state_e_get_oid_count;
    /// Writes nothing, because the object holds no object identifier.
    static constexpr auto get_object_references = lumo_tarn_ha_state_e_get_object_references;
    /// Returns the object itself, so that code can treat enumerations as it treats members.
    static constexpr auto get = lumo_tarn_ha_state_e_get;
    static constexpr auto get_value = lumo_tarn_ha_state_e_get_value;  ///< Returns the value.
    static constexpr auto set = lumo_tarn_ha_state_e_set;  ///< Copies the source with its header.
    static constexpr auto set_value = lumo_tarn_ha_state_e_set_value;  ///< Stores a value and notifies.
    /// Returns 1 if the value is an enumerator in the handle's domain.
    static constexpr auto is_valid_cr = lumo_tarn_ha_state_e_is_valid_cr;
    /// Returns the value unchanged: this schema has no second numbering.
    static constexpr auto map_to_user_value = lumo_tarn_ha_state_e_map_to_user_value;
    /// Returns the value unchanged: this schema has no second numbering.
    static constexpr auto map_to_internal_value = lumo_tarn_ha_state_e_map_to_internal_value;
    static constexpr auto compare = lumo_tarn_ha_state_e_compare;  ///< Returns the difference of the two values.
    static constexpr auto hash = lumo_tarn_ha_state_e_hash;  ///< Mixes the value into the seed.
    /// Returns 1 if the object has a change mark, and clears it.
    static constexpr auto backpropagate = lumo_tarn_ha_state_e_backpropagate;
    /// Returns the number of bytes on the wire: 5, also for NULL.
    static constexpr auto len = lumo_tarn_ha_state_e_len;
    /// Writes variant and value into the remaining bytes at buffer.
    static constexpr auto marshal = lumo_tarn_ha_state_e_marshal;
    /// Reads variant and value from length bytes at buffer.
    static constexpr auto unmarshal = lumo_tarn_ha_state_e_unmarshal;
    /// Writes a line with the name and the enumerator, indented by indent blanks.
    static constexpr auto print = lumo_tarn_ha_state_e_print;
    /// Writes an XML element of this name that contains an empty element named like the enumerator.
    static constexpr auto to_xml = lumo_tarn_ha_state_e_to_xml;
    /// Reads the value from the enumerator's element below a path of the runtime's document.
    static constexpr auto from_xml = lumo_tarn_ha_state_e_from_xml;
};

/// Direction of traffic that a processor serves.
enum class lumo_direction : std::uint32_t {
    ingress = 0,  ///< LUMO_TARN_DIR_INGRESS
    egress = 1,  ///< LUMO_TARN_DIR_EGRESS
    both = 2,  ///< LUMO_TARN_DIR_BOTH
};
/// Its name in C; empty for a value that has none, as frames may bring one.
constexpr std::string_view name_of(lumo_direction value) {
    switch (value) {
        case lumo_direction::ingress:
            return "LUMO_TARN_DIR_INGRESS";
        case lumo_direction::egress:
            return "LUMO_TARN_DIR_EGRESS";
        case lumo_direction::both:
            return "LUMO_TARN_DIR_BOTH";
    }
    return {};
}
/// Names the C functions of lumo_tarn_lumo_direction_e.
struct lumo_direction_type {
    using native = lumo_tarn_lumo_direction_e;  ///< the enumeration in C
    using value = lumo_ui_tarn::lumo_direction;  ///< its values
    static constexpr const char *name = "lumo_tarn_lumo_direction_e";  ///< its name in C
    static constexpr auto create = lumo_tarn_lumo_direction_e_create;  ///< Allocates an object with value 0.
    /// Initializes an object in memory of the caller.
    static constexpr auto initialize = lumo_tarn_lumo_direction_e_initialize;
    /// Returns the size of an object in bytes, equal on every handle.
    static constexpr auto sizeof_operation = lumo_tarn_lumo_direction_e_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_lumo_direction_e_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED in the object: it lies in memory of another object.
    static constexpr auto set_instance_embedded = lumo_tarn_lumo_direction_e_set_instance_embedded;
    /// Changes the object to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_lumo_direction_e_adjust_variant;
    static constexpr auto destroy = lumo_tarn_lumo_direction_e_destroy;  ///< Destroys the object and frees its memory.
    /// Same as lumo_tarn_lumo_direction_e_destroy(), but has no effect with free_it 0, because an embedded object owns
    /// nothing.
    static constexpr auto destroy_internal = lumo_tarn_lumo_direction_e_destroy_internal;
    /// Returns the number of object identifiers in the object: 0.
    static constexpr auto get_oid_count = lumo_tarn_lumo_direction_e_get_oid_count;
    /// Writes nothing, because the object holds no object identifier.
    static constexpr auto get_object_references = lumo_tarn_lumo_direction_e_get_object_references;
    /// Returns the object itself, so that code can treat enumerations as it treats members.
    static constexpr auto get = lumo_tarn_lumo_direction_e_get;
    static constexpr auto get_value = lumo_tarn_lumo_direction_e_get_value;  ///< Returns the value.
    static constexpr auto set = lumo_tarn_lumo_direction_e_set;  ///< Copies the source with its header.
    static constexpr auto set_value = lumo_tarn_lumo_direction_e_set_value;  ///< Stores a value and notifies.
    /// Returns 1 if the value is an enumerator in the handle's domain.
    static constexpr auto is_valid_cr = lumo_tarn_lumo_direction_e_is_valid_cr;
    /// Returns the value unchanged: this schema has no second numbering.
    static constexpr auto map_to_user_value = lumo_tarn_lumo_direction_e_map_to_user_value;
    /// Returns the value unchanged: this schema has no second numbering.
    static constexpr auto map_to_internal_value = lumo_tarn_lumo_direction_e_map_to_internal_value;
    static constexpr auto compare = lumo_tarn_lumo_direction_e_compare;  ///< Returns the difference of the two values.
    static constexpr auto hash = lumo_tarn_lumo_direction_e_hash;  ///< Mixes the value into the seed.
    /// Returns 1 if the object has a change mark, and clears it.
    static constexpr auto backpropagate = lumo_tarn_lumo_direction_e_backpropagate;
    /// Returns the number of bytes on the wire: 5, also for NULL.
    static constexpr auto len = lumo_tarn_lumo_direction_e_len;
    /// Writes variant and value into the remaining bytes at buffer.
    static constexpr auto marshal = lumo_tarn_lumo_direction_e_marshal;
    /// Reads variant and value from length bytes at buffer.
    static constexpr auto unmarshal = lumo_tarn_lumo_direction_e_unmarshal;
    /// Writes a line with the name and the enumerator, indented by indent blanks.
    static constexpr auto print = lumo_tarn_lumo_direction_e_print;
    /// Writes an XML element of this name that contains an empty element named like the enumerator.
    static constexpr auto to_xml = lumo_tarn_lumo_direction_e_to_xml;
    /// Reads the value from the enumerator's element below a path of the runtime's document.
    static constexpr auto from_xml = lumo_tarn_lumo_direction_e_from_xml;
};

/// What a block of memory is used for.
enum class mem_desc : std::uint32_t {
    mp_mem = 0,  ///< LUMO_TARN_MP_MEM
    tt_mem = 1,  ///< LUMO_TARN_TT_MEM
    flow_mem = 2,  ///< LUMO_TARN_FLOW_MEM
};
/// Its name in C; empty for a value that has none, as frames may bring one.
constexpr std::string_view name_of(mem_desc value) {
    switch (value) {
        case mem_desc::mp_mem:
            return "LUMO_TARN_MP_MEM";
        case mem_desc::tt_mem:
            return "LUMO_TARN_TT_MEM";
        case mem_desc::flow_mem:
            return "LUMO_TARN_FLOW_MEM";
    }
    return {};
}
/// Names the C functions of lumo_tarn_mem_desc_e.
struct mem_desc_type {
    using native = lumo_tarn_mem_desc_e;  ///< the enumeration in C
    using value = lumo_ui_tarn::mem_desc;  ///< its values
    static constexpr const char *name = "lumo_tarn_mem_desc_e";  ///< its name in C
    static constexpr auto create = lumo_tarn_mem_desc_e_create;  ///< Allocates an object with value 0.
    /// Initializes an object in memory of the caller.
    static constexpr auto initialize = lumo_tarn_mem_desc_e_initialize;
    /// Returns the size of an object in bytes, equal on every handle.
    static constexpr auto sizeof_operation = lumo_tarn_mem_desc_e_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_mem_desc_e_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED in the object: it lies in memory of another object.
    static constexpr auto set_instance_embedded = lumo_tarn_mem_desc_e_set_instance_embedded;
    /// Changes the object to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_mem_desc_e_adjust_variant;
    static constexpr auto destroy = lumo_tarn_mem_desc_e_destroy;  ///< Destroys the object and frees its memory.
    /// Same as lumo_tarn_mem_desc_e_destroy(), but has no effect with free_it 0, because an embedded object owns
    /// nothing.
    static constexpr auto destroy_internal = lumo_tarn_mem_desc_e_destroy_internal;
    /// Returns the number of object identifiers in the object: 0.
    static constexpr auto get_oid_count = lumo_tarn_mem_desc_e_get_oid_count;
    /// Writes nothing, because the object holds no object identifier.
    static constexpr auto get_object_references = lumo_tarn_mem_desc_e_get_object_references;
    /// Returns the object itself, so that code can treat enumerations as it treats members.
    static constexpr auto get = lumo_tarn_mem_desc_e_get;
    static constexpr auto get_value = lumo_tarn_mem_desc_e_get_value;  ///< Returns the value.
    static constexpr auto set = lumo_tarn_mem_desc_e_set;  ///< Copies the source with its header.
    static constexpr auto set_value = lumo_tarn_mem_desc_e_set_value;  ///< Stores a value and notifies.
    /// Returns 1 if the value is an enumerator in the handle's domain.
    static constexpr auto is_valid_cr = lumo_tarn_mem_desc_e_is_valid_cr;
    /// Returns the value unchanged: this schema has no second numbering.
    static constexpr auto map_to_user_value = lumo_tarn_mem_desc_e_map_to_user_value;
    /// Returns the value unchanged: this schema has no second numbering.
    static constexpr auto map_to_internal_value = lumo_tarn_mem_desc_e_map_to_internal_value;
    static constexpr auto compare = lumo_tarn_mem_desc_e_compare;  ///< Returns the difference of the two values.
    static constexpr auto hash = lumo_tarn_mem_desc_e_hash;  ///< Mixes the value into the seed.
    /// Returns 1 if the object has a change mark, and clears it.
    static constexpr auto backpropagate = lumo_tarn_mem_desc_e_backpropagate;
    /// Returns the number of bytes on the wire: 5, also for NULL.
    static constexpr auto len = lumo_tarn_mem_desc_e_len;
    /// Writes variant and value into the remaining bytes at buffer.
    static constexpr auto marshal = lumo_tarn_mem_desc_e_marshal;
    /// Reads variant and value from length bytes at buffer.
    static constexpr auto unmarshal = lumo_tarn_mem_desc_e_unmarshal;
    /// Writes a line with the name and the enumerator, indented by indent blanks.
    static constexpr auto print = lumo_tarn_mem_desc_e_print;
    /// Writes an XML element of this name that contains an empty element named like the enumerator.
    static constexpr auto to_xml = lumo_tarn_mem_desc_e_to_xml;
    /// Reads the value from the enumerator's element below a path of the runtime's document.
    static constexpr auto from_xml = lumo_tarn_mem_desc_e_from_xml;
};

/// lumo_tarn_exmem_info: one block of external memory, under its three addresses, with its size.
struct exmem_info_type {
    using native = lumo_tarn_exmem_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_exmem_info";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_exmem_info_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_exmem_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_exmem_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_exmem_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_exmem_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_exmem_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_exmem_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_exmem_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_exmem_info_destroy;
    /// Same as lumo_tarn_exmem_info_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_exmem_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_exmem_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_exmem_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_exmem_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_exmem_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_exmem_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_exmem_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_exmem_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_exmem_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_exmem_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_exmem_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_exmem_info_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_exmem_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_exmem_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_exmem_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_exmem_info_marshal;
    /// Same as lumo_tarn_exmem_info_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_exmem_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_exmem_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_exmem_info_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_exmem_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_exmem_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_exmem_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_exmem_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_exmem_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_exmem_info_compare;
    static constexpr auto hash = lumo_tarn_exmem_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_exmem_info_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<exmem_info_type, Self> {
    public:
        using detail::operations<exmem_info_type, Self>::operations;

        /// Block's address on the client side.
        std::uint64_t cl_addr() const { return this->call_(lumo_tarn_exmem_info_cl_addr_get_value); }
        /// The state byte of cl_addr; none if the record has no states.
        std::optional<std::uint8_t> cl_addr_state() const {
            return this->state_(lumo_tarn_exmem_info_cl_addr_state_flag_get);
        }

        /// Block's address in external memory.
        std::uint64_t exmem_addr() const { return this->call_(lumo_tarn_exmem_info_exmem_addr_get_value); }
        /// The state byte of exmem_addr; none if the record has no states.
        std::optional<std::uint8_t> exmem_addr_state() const {
            return this->state_(lumo_tarn_exmem_info_exmem_addr_state_flag_get);
        }

        /// Block's address as the ppe side uses it.
        std::uint64_t ppe_addr() const { return this->call_(lumo_tarn_exmem_info_ppe_addr_get_value); }
        /// The state byte of ppe_addr; none if the record has no states.
        std::optional<std::uint8_t> ppe_addr_state() const {
            return this->state_(lumo_tarn_exmem_info_ppe_addr_state_flag_get);
        }

        /// Size of the block.
        std::uint32_t size() const { return this->call_(lumo_tarn_exmem_info_size_get_value); }
        /// The state byte of size; none if the record has no states.
        std::optional<std::uint8_t> size_state() const {
            return this->state_(lumo_tarn_exmem_info_size_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"cl_addr", &members::cl_addr, nullptr, &members::cl_addr_state, nullptr});
            visit(lumo_ui_tarn::member{"exmem_addr", &members::exmem_addr, nullptr, &members::exmem_addr_state,
                nullptr});
            visit(lumo_ui_tarn::member{"ppe_addr", &members::ppe_addr, nullptr, &members::ppe_addr_state, nullptr});
            visit(lumo_ui_tarn::member{"size", &members::size, nullptr, &members::size_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes cl_addr.
        Self &set_cl_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_cl_addr_set_value, value);
        }
        /// Writes the state byte of cl_addr.
        Self &set_cl_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_cl_addr_state_flag_set, value);
        }

        /// Writes exmem_addr.
        Self &set_exmem_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_exmem_addr_set_value, value);
        }
        /// Writes the state byte of exmem_addr.
        Self &set_exmem_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_exmem_addr_state_flag_set, value);
        }

        /// Writes ppe_addr.
        Self &set_ppe_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_ppe_addr_set_value, value);
        }
        /// Writes the state byte of ppe_addr.
        Self &set_ppe_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_ppe_addr_state_flag_set, value);
        }

        /// Writes size.
        Self &set_size(std::uint32_t value) { return this->write_(*this, lumo_tarn_exmem_info_size_set_value, value); }
        /// Writes the state byte of size.
        Self &set_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_size_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_cl_addr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_cl_addr_set_value, value);
        }
        const Self &set_cl_addr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_cl_addr_state_flag_set, value);
        }
        const Self &set_exmem_addr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_exmem_addr_set_value, value);
        }
        const Self &set_exmem_addr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_exmem_addr_state_flag_set, value);
        }
        const Self &set_ppe_addr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_ppe_addr_set_value, value);
        }
        const Self &set_ppe_addr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_ppe_addr_state_flag_set, value);
        }
        const Self &set_size(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_size_set_value, value);
        }
        const Self &set_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_size_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"cl_addr", &M::cl_addr, &M::set_cl_addr, &M::cl_addr_state, &M::set_cl_addr_state});
        visit(lumo_ui_tarn::member{"exmem_addr", &M::exmem_addr, &M::set_exmem_addr, &M::exmem_addr_state,
            &M::set_exmem_addr_state});
        visit(lumo_ui_tarn::member{"ppe_addr", &M::ppe_addr, &M::set_ppe_addr, &M::ppe_addr_state,
            &M::set_ppe_addr_state});
        visit(lumo_ui_tarn::member{"size", &M::size, &M::set_size, &M::size_state, &M::set_size_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_exmem_info.
using exmem_info = record<exmem_info_type>;
/// Borrows a lumo_tarn_exmem_info.
using exmem_info_ref = record_ref<exmem_info_type>;
/// Borrows a lumo_tarn_exmem_info to read it.
using exmem_info_view = record_view<exmem_info_type>;

/// lumo_tarn_fdb_base: versions and lengths of the header and the footer of the fdb.
struct fdb_base_type {
    using native = lumo_tarn_fdb_base;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_fdb_base";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_fdb_base_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_fdb_base_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_fdb_base_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_fdb_base_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_fdb_base_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_fdb_base_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_fdb_base_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_fdb_base_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_fdb_base_destroy;
    /// Same as lumo_tarn_fdb_base_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_fdb_base_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_fdb_base_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_fdb_base_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_fdb_base_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_fdb_base_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_fdb_base_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_fdb_base_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_fdb_base_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_fdb_base_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_fdb_base_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_fdb_base_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_fdb_base_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_fdb_base_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_fdb_base_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_fdb_base_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_fdb_base_marshal;
    /// Same as lumo_tarn_fdb_base_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_fdb_base_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_fdb_base_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_fdb_base_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_fdb_base_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_fdb_base_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_fdb_base_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_fdb_base_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_fdb_base_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_fdb_base_compare;
    static constexpr auto hash = lumo_tarn_fdb_base_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_fdb_base_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<fdb_base_type, Self> {
    public:
        using detail::operations<fdb_base_type, Self>::operations;

        /// Version of the header.
        std::uint8_t hdr_ver() const { return this->call_(lumo_tarn_fdb_base_hdr_ver_get_value); }
        /// The state byte of hdr_ver; none if the record has no states.
        std::optional<std::uint8_t> hdr_ver_state() const {
            return this->state_(lumo_tarn_fdb_base_hdr_ver_state_flag_get);
        }

        /// Length of the header.
        std::uint8_t hdr_len() const { return this->call_(lumo_tarn_fdb_base_hdr_len_get_value); }
        /// The state byte of hdr_len; none if the record has no states.
        std::optional<std::uint8_t> hdr_len_state() const {
            return this->state_(lumo_tarn_fdb_base_hdr_len_state_flag_get);
        }

        /// Header flags.
        std::uint16_t hdr_flags() const { return this->call_(lumo_tarn_fdb_base_hdr_flags_get_value); }
        /// The state byte of hdr_flags; none if the record has no states.
        std::optional<std::uint8_t> hdr_flags_state() const {
            return this->state_(lumo_tarn_fdb_base_hdr_flags_state_flag_get);
        }

        /// Version of the footer.
        std::uint16_t ftr_ver() const { return this->call_(lumo_tarn_fdb_base_ftr_ver_get_value); }
        /// The state byte of ftr_ver; none if the record has no states.
        std::optional<std::uint8_t> ftr_ver_state() const {
            return this->state_(lumo_tarn_fdb_base_ftr_ver_state_flag_get);
        }

        /// Length of the footer.
        std::uint16_t ftr_len() const { return this->call_(lumo_tarn_fdb_base_ftr_len_get_value); }
        /// The state byte of ftr_len; none if the record has no states.
        std::optional<std::uint8_t> ftr_len_state() const {
            return this->state_(lumo_tarn_fdb_base_ftr_len_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"hdr_ver", &members::hdr_ver, nullptr, &members::hdr_ver_state, nullptr});
            visit(lumo_ui_tarn::member{"hdr_len", &members::hdr_len, nullptr, &members::hdr_len_state, nullptr});
            visit(lumo_ui_tarn::member{"hdr_flags", &members::hdr_flags, nullptr, &members::hdr_flags_state, nullptr});
            visit(lumo_ui_tarn::member{"ftr_ver", &members::ftr_ver, nullptr, &members::ftr_ver_state, nullptr});
            visit(lumo_ui_tarn::member{"ftr_len", &members::ftr_len, nullptr, &members::ftr_len_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes hdr_ver.
        Self &set_hdr_ver(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_ver_set_value, value);
        }
        /// Writes the state byte of hdr_ver.
        Self &set_hdr_ver_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_ver_state_flag_set, value);
        }

        /// Writes hdr_len.
        Self &set_hdr_len(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_len_set_value, value);
        }
        /// Writes the state byte of hdr_len.
        Self &set_hdr_len_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_len_state_flag_set, value);
        }

        /// Writes hdr_flags.
        Self &set_hdr_flags(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_flags_set_value, value);
        }
        /// Writes the state byte of hdr_flags.
        Self &set_hdr_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_flags_state_flag_set, value);
        }

        /// Writes ftr_ver.
        Self &set_ftr_ver(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_ver_set_value, value);
        }
        /// Writes the state byte of ftr_ver.
        Self &set_ftr_ver_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_ver_state_flag_set, value);
        }

        /// Writes ftr_len.
        Self &set_ftr_len(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_len_set_value, value);
        }
        /// Writes the state byte of ftr_len.
        Self &set_ftr_len_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_len_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_hdr_ver(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_ver_set_value, value);
        }
        const Self &set_hdr_ver_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_ver_state_flag_set, value);
        }
        const Self &set_hdr_len(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_len_set_value, value);
        }
        const Self &set_hdr_len_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_len_state_flag_set, value);
        }
        const Self &set_hdr_flags(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_flags_set_value, value);
        }
        const Self &set_hdr_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_flags_state_flag_set, value);
        }
        const Self &set_ftr_ver(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_ver_set_value, value);
        }
        const Self &set_ftr_ver_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_ver_state_flag_set, value);
        }
        const Self &set_ftr_len(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_len_set_value, value);
        }
        const Self &set_ftr_len_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_len_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"hdr_ver", &M::hdr_ver, &M::set_hdr_ver, &M::hdr_ver_state, &M::set_hdr_ver_state});
        visit(lumo_ui_tarn::member{"hdr_len", &M::hdr_len, &M::set_hdr_len, &M::hdr_len_state, &M::set_hdr_len_state});
        visit(lumo_ui_tarn::member{"hdr_flags", &M::hdr_flags, &M::set_hdr_flags, &M::hdr_flags_state,
            &M::set_hdr_flags_state});
        visit(lumo_ui_tarn::member{"ftr_ver", &M::ftr_ver, &M::set_ftr_ver, &M::ftr_ver_state, &M::set_ftr_ver_state});
        visit(lumo_ui_tarn::member{"ftr_len", &M::ftr_len, &M::set_ftr_len, &M::ftr_len_state, &M::set_ftr_len_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_fdb_base.
using fdb_base = record<fdb_base_type>;
/// Borrows a lumo_tarn_fdb_base.
using fdb_base_ref = record_ref<fdb_base_type>;
/// Borrows a lumo_tarn_fdb_base to read it.
using fdb_base_view = record_view<fdb_base_type>;

/// lumo_tarn_fdb_mem_info: one piece of fdb memory.
struct fdb_mem_info_type {
    using native = lumo_tarn_fdb_mem_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_fdb_mem_info";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_fdb_mem_info_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_fdb_mem_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_fdb_mem_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_fdb_mem_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_fdb_mem_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_fdb_mem_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_fdb_mem_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_fdb_mem_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_fdb_mem_info_destroy;
    /// Same as lumo_tarn_fdb_mem_info_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_fdb_mem_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_fdb_mem_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_fdb_mem_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_fdb_mem_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_fdb_mem_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_fdb_mem_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_fdb_mem_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_fdb_mem_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_fdb_mem_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_fdb_mem_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_fdb_mem_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_fdb_mem_info_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_fdb_mem_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_fdb_mem_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_fdb_mem_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_fdb_mem_info_marshal;
    /// Same as lumo_tarn_fdb_mem_info_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_fdb_mem_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_fdb_mem_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_fdb_mem_info_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_fdb_mem_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_fdb_mem_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_fdb_mem_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_fdb_mem_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_fdb_mem_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_fdb_mem_info_compare;
    static constexpr auto hash = lumo_tarn_fdb_mem_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_fdb_mem_info_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<fdb_mem_info_type, Self> {
    public:
        using detail::operations<fdb_mem_info_type, Self>::operations;

        /// Type of the memory.
        std::uint32_t type() const { return this->call_(lumo_tarn_fdb_mem_info_type_get_value); }
        /// The state byte of type; none if the record has no states.
        std::optional<std::uint8_t> type_state() const {
            return this->state_(lumo_tarn_fdb_mem_info_type_state_flag_get);
        }

        /// Size of the memory.
        std::uint32_t size() const { return this->call_(lumo_tarn_fdb_mem_info_size_get_value); }
        /// The state byte of size; none if the record has no states.
        std::optional<std::uint8_t> size_state() const {
            return this->state_(lumo_tarn_fdb_mem_info_size_state_flag_get);
        }

        /// Address of the memory.
        std::uint64_t mem_addr() const { return this->call_(lumo_tarn_fdb_mem_info_mem_addr_get_value); }
        /// The state byte of mem_addr; none if the record has no states.
        std::optional<std::uint8_t> mem_addr_state() const {
            return this->state_(lumo_tarn_fdb_mem_info_mem_addr_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"type", &members::type, nullptr, &members::type_state, nullptr});
            visit(lumo_ui_tarn::member{"size", &members::size, nullptr, &members::size_state, nullptr});
            visit(lumo_ui_tarn::member{"mem_addr", &members::mem_addr, nullptr, &members::mem_addr_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes type.
        Self &set_type(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_type_set_value, value);
        }
        /// Writes the state byte of type.
        Self &set_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_type_state_flag_set, value);
        }

        /// Writes size.
        Self &set_size(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_size_set_value, value);
        }
        /// Writes the state byte of size.
        Self &set_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_size_state_flag_set, value);
        }

        /// Writes mem_addr.
        Self &set_mem_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_mem_addr_set_value, value);
        }
        /// Writes the state byte of mem_addr.
        Self &set_mem_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_mem_addr_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_type(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_fdb_mem_info_type_set_value, value);
        }
        const Self &set_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_mem_info_type_state_flag_set, value);
        }
        const Self &set_size(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_fdb_mem_info_size_set_value, value);
        }
        const Self &set_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_mem_info_size_state_flag_set, value);
        }
        const Self &set_mem_addr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_fdb_mem_info_mem_addr_set_value, value);
        }
        const Self &set_mem_addr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_fdb_mem_info_mem_addr_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"type", &M::type, &M::set_type, &M::type_state, &M::set_type_state});
        visit(lumo_ui_tarn::member{"size", &M::size, &M::set_size, &M::size_state, &M::set_size_state});
        visit(lumo_ui_tarn::member{"mem_addr", &M::mem_addr, &M::set_mem_addr, &M::mem_addr_state,
            &M::set_mem_addr_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_fdb_mem_info.
using fdb_mem_info = record<fdb_mem_info_type>;
/// Borrows a lumo_tarn_fdb_mem_info.
using fdb_mem_info_ref = record_ref<fdb_mem_info_type>;
/// Borrows a lumo_tarn_fdb_mem_info to read it.
using fdb_mem_info_view = record_view<fdb_mem_info_type>;

/// lumo_tarn_exmem_info_wrapper: one block of a list of blocks that grows.
struct exmem_info_wrapper_type {
    using native = lumo_tarn_exmem_info_wrapper;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_exmem_info_wrapper";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_exmem_info_wrapper_create;
    /// Same as lumo_tarn_exmem_info_wrapper_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_exmem_info_wrapper_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_exmem_info_wrapper_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_exmem_info_wrapper_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_exmem_info_wrapper_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_exmem_info_wrapper_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_exmem_info_wrapper_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_exmem_info_wrapper_destroy;
    /// Same as lumo_tarn_exmem_info_wrapper_destroy(), but with free_it 0 the memory of the instance itself is not
    /// freed.
    static constexpr auto destroy_internal = lumo_tarn_exmem_info_wrapper_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_exmem_info_wrapper_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_exmem_info_wrapper_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_exmem_info_wrapper_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_exmem_info_wrapper_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_exmem_info_wrapper_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_exmem_info_wrapper_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_exmem_info_wrapper_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_exmem_info_wrapper_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_exmem_info_wrapper_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_exmem_info_wrapper_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_exmem_info_wrapper_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_exmem_info_wrapper_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_exmem_info_wrapper_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_exmem_info_wrapper_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_exmem_info_wrapper_marshal;
    /// Same as lumo_tarn_exmem_info_wrapper_marshal(), but the outermost frame keeps the instance's own variant
    /// whatever the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_exmem_info_wrapper_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_exmem_info_wrapper_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_exmem_info_wrapper_len(),
    /// and one guard byte after them.
    static constexpr auto clone = lumo_tarn_exmem_info_wrapper_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_exmem_info_wrapper_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_exmem_info_wrapper_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_exmem_info_wrapper_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_exmem_info_wrapper_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_exmem_info_wrapper_compare;
    static constexpr auto hash = lumo_tarn_exmem_info_wrapper_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_exmem_info_wrapper_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<exmem_info_wrapper_type, Self> {
    public:
        using detail::operations<exmem_info_wrapper_type, Self>::operations;

        /// Wrapped block description.
        lumo_ui_tarn::exmem_info_view exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_exmem_info_wrapper_exmem_get);
        }
        /// The state byte of exmem; none if the record has no states.
        std::optional<std::uint8_t> exmem_state() const {
            return this->state_(lumo_tarn_exmem_info_wrapper_exmem_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"exmem", &members::exmem, nullptr, &members::exmem_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        using members<Self>::exmem;
        /// Wrapped block description.
        lumo_ui_tarn::exmem_info_ref exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_exmem_info_wrapper_exmem_get);
        }
        /// Writes exmem.
        Self &set_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_exmem_info_wrapper_exmem_get, lumo_tarn_exmem_info_wrapper_exmem_set,
                value);
        }
        /// Moves a record into exmem.
        Self &adopt_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_exmem_info_wrapper_exmem_get, lumo_tarn_exmem_info_wrapper_exmem_set,
                std::move(value));
        }
        /// Writes the state byte of exmem.
        Self &set_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_wrapper_exmem_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::exmem_info_ref exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_exmem_info_wrapper_exmem_get);
        }
        const Self &set_exmem(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_exmem_info_wrapper_exmem_get, lumo_tarn_exmem_info_wrapper_exmem_set,
                value);
        }
        const Self &adopt_exmem(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_exmem_info_wrapper_exmem_get, lumo_tarn_exmem_info_wrapper_exmem_set,
                std::move(value));
        }
        const Self &set_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_exmem_info_wrapper_exmem_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem", detail::writable(&M::exmem, 0), &M::set_exmem, &M::exmem_state,
            &M::set_exmem_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_exmem_info_wrapper.
using exmem_info_wrapper = record<exmem_info_wrapper_type>;
/// Borrows a lumo_tarn_exmem_info_wrapper.
using exmem_info_wrapper_ref = record_ref<exmem_info_wrapper_type>;
/// Borrows a lumo_tarn_exmem_info_wrapper to read it.
using exmem_info_wrapper_view = record_view<exmem_info_wrapper_type>;

/// lumo_tarn_dp_appl: one application entry in the data plane.
struct dp_appl_type {
    using native = lumo_tarn_dp_appl;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_appl";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_appl_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_appl_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_appl_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_appl_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_appl_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_appl_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_appl_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_appl_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_appl_destroy;
    /// Same as lumo_tarn_dp_appl_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_appl_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_appl_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_appl_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_appl_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_appl_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_appl_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_appl_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_appl_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_appl_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_appl_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_appl_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_appl_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_appl_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_appl_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_appl_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_appl_marshal;
    /// Same as lumo_tarn_dp_appl_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_appl_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_appl_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_appl_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_appl_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_appl_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_appl_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_appl_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_appl_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_appl_compare;
    static constexpr auto hash = lumo_tarn_dp_appl_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_appl_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_type, Self> {
    public:
        using detail::operations<dp_appl_type, Self>::operations;

        /// Where the entry lies in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_exmem_info_get);
        }
        /// The state byte of exmem_info; none if the record has no states.
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_appl_exmem_info_state_flag_get);
        }

        /// Type of the application entry.
        std::uint8_t type() const { return this->call_(lumo_tarn_dp_appl_type_get_value); }
        /// The state byte of type; none if the record has no states.
        std::optional<std::uint8_t> type_state() const { return this->state_(lumo_tarn_dp_appl_type_state_flag_get); }

        /// Identifier of the application entry.
        std::uint16_t id() const { return this->call_(lumo_tarn_dp_appl_id_get_value); }
        /// The state byte of id; none if the record has no states.
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_dp_appl_id_state_flag_get); }

        /// Tarn feature's identifier of the kesh application.
        std::uint16_t tarn_kesh_id() const { return this->call_(lumo_tarn_dp_appl_tarn_kesh_id_get_value); }
        /// The state byte of tarn_kesh_id; none if the record has no states.
        std::optional<std::uint8_t> tarn_kesh_id_state() const {
            return this->state_(lumo_tarn_dp_appl_tarn_kesh_id_state_flag_get);
        }

        /// Link to the next entry in the data plane.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_appl_next_ptr_get_value); }
        /// The state byte of next_ptr; none if the record has no states.
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_appl_next_ptr_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"exmem_info", &members::exmem_info, nullptr, &members::exmem_info_state,
                nullptr});
            visit(lumo_ui_tarn::member{"type", &members::type, nullptr, &members::type_state, nullptr});
            visit(lumo_ui_tarn::member{"id", &members::id, nullptr, &members::id_state, nullptr});
            visit(lumo_ui_tarn::member{"tarn_kesh_id", &members::tarn_kesh_id, nullptr, &members::tarn_kesh_id_state,
                nullptr});
            visit(lumo_ui_tarn::member{"next_ptr", &members::next_ptr, nullptr, &members::next_ptr_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        using members<Self>::exmem_info;
        /// Where the entry lies in memory.
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_exmem_info_get);
        }
        /// Writes exmem_info.
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_appl_exmem_info_get, lumo_tarn_dp_appl_exmem_info_set, value);
        }
        /// Moves a record into exmem_info.
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_appl_exmem_info_get, lumo_tarn_dp_appl_exmem_info_set,
                std::move(value));
        }
        /// Writes the state byte of exmem_info.
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_exmem_info_state_flag_set, value);
        }

        /// Writes type.
        Self &set_type(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_appl_type_set_value, value); }
        /// Writes the state byte of type.
        Self &set_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_type_state_flag_set, value);
        }

        /// Writes id.
        Self &set_id(std::uint16_t value) { return this->write_(*this, lumo_tarn_dp_appl_id_set_value, value); }
        /// Writes the state byte of id.
        Self &set_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_id_state_flag_set, value);
        }

        /// Writes tarn_kesh_id.
        Self &set_tarn_kesh_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_tarn_kesh_id_set_value, value);
        }
        /// Writes the state byte of tarn_kesh_id.
        Self &set_tarn_kesh_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_tarn_kesh_id_state_flag_set, value);
        }

        /// Writes next_ptr.
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_next_ptr_set_value, value);
        }
        /// Writes the state byte of next_ptr.
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_next_ptr_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::exmem_info_ref exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_exmem_info_get);
        }
        const Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_appl_exmem_info_get, lumo_tarn_dp_appl_exmem_info_set, value);
        }
        const Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_appl_exmem_info_get, lumo_tarn_dp_appl_exmem_info_set,
                std::move(value));
        }
        const Self &set_exmem_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_exmem_info_state_flag_set, value);
        }
        const Self &set_type(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_type_set_value, value);
        }
        const Self &set_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_type_state_flag_set, value);
        }
        const Self &set_id(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_id_set_value, value);
        }
        const Self &set_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_id_state_flag_set, value);
        }
        const Self &set_tarn_kesh_id(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_tarn_kesh_id_set_value, value);
        }
        const Self &set_tarn_kesh_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_tarn_kesh_id_state_flag_set, value);
        }
        const Self &set_next_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_next_ptr_set_value, value);
        }
        const Self &set_next_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_next_ptr_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem_info", detail::writable(&M::exmem_info, 0), &M::set_exmem_info,
            &M::exmem_info_state, &M::set_exmem_info_state});
        visit(lumo_ui_tarn::member{"type", &M::type, &M::set_type, &M::type_state, &M::set_type_state});
        visit(lumo_ui_tarn::member{"id", &M::id, &M::set_id, &M::id_state, &M::set_id_state});
        visit(lumo_ui_tarn::member{"tarn_kesh_id", &M::tarn_kesh_id, &M::set_tarn_kesh_id, &M::tarn_kesh_id_state,
            &M::set_tarn_kesh_id_state});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, &M::set_next_ptr, &M::next_ptr_state,
            &M::set_next_ptr_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_appl.
using dp_appl = record<dp_appl_type>;
/// Borrows a lumo_tarn_dp_appl.
using dp_appl_ref = record_ref<dp_appl_type>;
/// Borrows a lumo_tarn_dp_appl to read it.
using dp_appl_view = record_view<dp_appl_type>;

/// lumo_tarn_dp_tc: one traffic class.
struct dp_tc_type {
    using native = lumo_tarn_dp_tc;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_tc";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_tc_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_tc_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_tc_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_tc_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_tc_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_tc_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_tc_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_tc_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_tc_destroy;
    /// Same as lumo_tarn_dp_tc_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_tc_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_tc_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_tc_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_tc_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_tc_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_tc_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_tc_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_tc_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_tc_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_tc_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_tc_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_tc_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_tc_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_tc_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_tc_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_tc_marshal;
    /// Same as lumo_tarn_dp_tc_marshal(), but the outermost frame keeps the instance's own variant whatever the domain
    /// has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_tc_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_tc_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_tc_len(), and one guard
    /// byte after them.
    static constexpr auto clone = lumo_tarn_dp_tc_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_tc_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_tc_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_tc_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_tc_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_tc_compare;
    static constexpr auto hash = lumo_tarn_dp_tc_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_tc_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tc_type, Self> {
    public:
        using detail::operations<dp_tc_type, Self>::operations;

        /// Where the traffic class lies in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_tc_exmem_info_get);
        }
        /// The state byte of exmem_info; none if the record has no states.
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_tc_exmem_info_state_flag_get);
        }

        /// Source prefix of the class.
        lumo_ui_tarn::address src_prefix() const { return this->read_address_(lumo_tarn_dp_tc_src_prefix_get); }
        /// The state byte of src_prefix; none if the record has no states.
        std::optional<std::uint8_t> src_prefix_state() const {
            return this->state_(lumo_tarn_dp_tc_src_prefix_state_flag_get);
        }

        /// Destination prefix of the class.
        lumo_ui_tarn::address dst_prefix() const { return this->read_address_(lumo_tarn_dp_tc_dst_prefix_get); }
        /// The state byte of dst_prefix; none if the record has no states.
        std::optional<std::uint8_t> dst_prefix_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_prefix_state_flag_get);
        }

        /// Protocol number to match.
        std::uint8_t proto() const { return this->call_(lumo_tarn_dp_tc_proto_get_value); }
        /// The state byte of proto; none if the record has no states.
        std::optional<std::uint8_t> proto_state() const { return this->state_(lumo_tarn_dp_tc_proto_state_flag_get); }

        /// Type-of-service value to match.
        std::uint8_t tos() const { return this->call_(lumo_tarn_dp_tc_tos_get_value); }
        /// The state byte of tos; none if the record has no states.
        std::optional<std::uint8_t> tos_state() const { return this->state_(lumo_tarn_dp_tc_tos_state_flag_get); }

        /// Flags of the class, sixteen bits.
        std::uint16_t flags() const { return this->call_(lumo_tarn_dp_tc_flags_get_value); }
        /// The state byte of flags; none if the record has no states.
        std::optional<std::uint8_t> flags_state() const { return this->state_(lumo_tarn_dp_tc_flags_state_flag_get); }

        /// Second, separate set of flags, eight bits.
        std::uint8_t bit_flags() const { return this->call_(lumo_tarn_dp_tc_bit_flags_get_value); }
        /// The state byte of bit_flags; none if the record has no states.
        std::optional<std::uint8_t> bit_flags_state() const {
            return this->state_(lumo_tarn_dp_tc_bit_flags_state_flag_get);
        }

        /// Low end of the source port range.
        std::uint16_t src_port_min() const { return this->call_(lumo_tarn_dp_tc_src_port_min_get_value); }
        /// The state byte of src_port_min; none if the record has no states.
        std::optional<std::uint8_t> src_port_min_state() const {
            return this->state_(lumo_tarn_dp_tc_src_port_min_state_flag_get);
        }

        /// High end of the source port range.
        std::uint16_t src_port_max() const { return this->call_(lumo_tarn_dp_tc_src_port_max_get_value); }
        /// The state byte of src_port_max; none if the record has no states.
        std::optional<std::uint8_t> src_port_max_state() const {
            return this->state_(lumo_tarn_dp_tc_src_port_max_state_flag_get);
        }

        /// Low end of the destination port range.
        std::uint16_t dst_port_min() const { return this->call_(lumo_tarn_dp_tc_dst_port_min_get_value); }
        /// The state byte of dst_port_min; none if the record has no states.
        std::optional<std::uint8_t> dst_port_min_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_port_min_state_flag_get);
        }

        /// High end of the destination port range.
        std::uint16_t dst_port_max() const { return this->call_(lumo_tarn_dp_tc_dst_port_max_get_value); }
        /// The state byte of dst_port_max; none if the record has no states.
        std::optional<std::uint8_t> dst_port_max_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_port_max_state_flag_get);
        }

        /// Operator applied to the source port range.
        std::uint16_t src_port_opr() const { return this->call_(lumo_tarn_dp_tc_src_port_opr_get_value); }
        /// The state byte of src_port_opr; none if the record has no states.
        std::optional<std::uint8_t> src_port_opr_state() const {
            return this->state_(lumo_tarn_dp_tc_src_port_opr_state_flag_get);
        }

        /// Operator applied to the destination port range.
        std::uint16_t dst_port_opr() const { return this->call_(lumo_tarn_dp_tc_dst_port_opr_get_value); }
        /// The state byte of dst_port_opr; none if the record has no states.
        std::optional<std::uint8_t> dst_port_opr_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_port_opr_state_flag_get);
        }

        /// Link to the next class in the data plane.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_tc_next_ptr_get_value); }
        /// The state byte of next_ptr; none if the record has no states.
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_tc_next_ptr_state_flag_get);
        }

        /// Where the application data lies in the data plane.
        std::uint64_t appl_data_ptr() const { return this->call_(lumo_tarn_dp_tc_appl_data_ptr_get_value); }
        /// The state byte of appl_data_ptr; none if the record has no states.
        std::optional<std::uint8_t> appl_data_ptr_state() const {
            return this->state_(lumo_tarn_dp_tc_appl_data_ptr_state_flag_get);
        }

        /// Class's application entry.
        lumo_ui_tarn::dp_appl_view appl() const {
            return this->template nested_<lumo_ui_tarn::dp_appl_type>(lumo_tarn_dp_tc_appl_get);
        }
        /// The state byte of appl; none if the record has no states.
        std::optional<std::uint8_t> appl_state() const { return this->state_(lumo_tarn_dp_tc_appl_state_flag_get); }

        /// Identifier of the class.
        std::uint32_t id() const { return this->call_(lumo_tarn_dp_tc_id_get_value); }
        /// The state byte of id; none if the record has no states.
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_dp_tc_id_state_flag_get); }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"exmem_info", &members::exmem_info, nullptr, &members::exmem_info_state,
                nullptr});
            visit(lumo_ui_tarn::member{"src_prefix", &members::src_prefix, nullptr, &members::src_prefix_state,
                nullptr});
            visit(lumo_ui_tarn::member{"dst_prefix", &members::dst_prefix, nullptr, &members::dst_prefix_state,
                nullptr});
            visit(lumo_ui_tarn::member{"proto", &members::proto, nullptr, &members::proto_state, nullptr});
            visit(lumo_ui_tarn::member{"tos", &members::tos, nullptr, &members::tos_state, nullptr});
            visit(lumo_ui_tarn::member{"flags", &members::flags, nullptr, &members::flags_state, nullptr});
            visit(lumo_ui_tarn::member{"bit_flags", &members::bit_flags, nullptr, &members::bit_flags_state, nullptr});
            visit(lumo_ui_tarn::member{"src_port_min", &members::src_port_min, nullptr, &members::src_port_min_state,
                nullptr});
            visit(lumo_ui_tarn::member{"src_port_max", &members::src_port_max, nullptr, &members::src_port_max_state,
                nullptr});
            visit(lumo_ui_tarn::member{"dst_port_min", &members::dst_port_min, nullptr, &members::dst_port_min_state,
                nullptr});
            visit(lumo_ui_tarn::member{"dst_port_max", &members::dst_port_max, nullptr, &members::dst_port_max_state,
                nullptr});
            visit(lumo_ui_tarn::member{"src_port_opr", &members::src_port_opr, nullptr, &members::src_port_opr_state,
                nullptr});
            visit(lumo_ui_tarn::member{"dst_port_opr", &members::dst_port_opr, nullptr, &members::dst_port_opr_state,
                nullptr});
            visit(lumo_ui_tarn::member{"next_ptr", &members::next_ptr, nullptr, &members::next_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"appl_data_ptr", &members::appl_data_ptr, nullptr, &members::appl_data_ptr_state,
                nullptr});
            visit(lumo_ui_tarn::member{"appl", &members::appl, nullptr, &members::appl_state, nullptr});
            visit(lumo_ui_tarn::member{"id", &members::id, nullptr, &members::id_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        using members<Self>::exmem_info;
        /// Where the traffic class lies in memory.
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_tc_exmem_info_get);
        }
        /// Writes exmem_info.
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_tc_exmem_info_get, lumo_tarn_dp_tc_exmem_info_set, value);
        }
        /// Moves a record into exmem_info.
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tc_exmem_info_get, lumo_tarn_dp_tc_exmem_info_set,
                std::move(value));
        }
        /// Writes the state byte of exmem_info.
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_exmem_info_state_flag_set, value);
        }

        /// Writes src_prefix.
        Self &set_src_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_tc_src_prefix_get, lumo_tarn_dp_tc_src_prefix_set, value);
        }
        /// Writes the state byte of src_prefix.
        Self &set_src_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_prefix_state_flag_set, value);
        }

        /// Writes dst_prefix.
        Self &set_dst_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_tc_dst_prefix_get, lumo_tarn_dp_tc_dst_prefix_set, value);
        }
        /// Writes the state byte of dst_prefix.
        Self &set_dst_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_prefix_state_flag_set, value);
        }

        /// Writes proto.
        Self &set_proto(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_tc_proto_set_value, value); }
        /// Writes the state byte of proto.
        Self &set_proto_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_proto_state_flag_set, value);
        }

        /// Writes tos.
        Self &set_tos(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_tc_tos_set_value, value); }
        /// Writes the state byte of tos.
        Self &set_tos_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_tos_state_flag_set, value);
        }

        /// Writes flags.
        Self &set_flags(std::uint16_t value) { return this->write_(*this, lumo_tarn_dp_tc_flags_set_value, value); }
        /// Writes the state byte of flags.
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_flags_state_flag_set, value);
        }

        /// Writes bit_flags.
        Self &set_bit_flags(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_bit_flags_set_value, value);
        }
        /// Writes the state byte of bit_flags.
        Self &set_bit_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_bit_flags_state_flag_set, value);
        }

        /// Writes src_port_min.
        Self &set_src_port_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_min_set_value, value);
        }
        /// Writes the state byte of src_port_min.
        Self &set_src_port_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_min_state_flag_set, value);
        }

        /// Writes src_port_max.
        Self &set_src_port_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_max_set_value, value);
        }
        /// Writes the state byte of src_port_max.
        Self &set_src_port_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_max_state_flag_set, value);
        }

        /// Writes dst_port_min.
        Self &set_dst_port_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_min_set_value, value);
        }
        /// Writes the state byte of dst_port_min.
        Self &set_dst_port_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_min_state_flag_set, value);
        }

        /// Writes dst_port_max.
        Self &set_dst_port_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_max_set_value, value);
        }
        /// Writes the state byte of dst_port_max.
        Self &set_dst_port_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_max_state_flag_set, value);
        }

        /// Writes src_port_opr.
        Self &set_src_port_opr(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_opr_set_value, value);
        }
        /// Writes the state byte of src_port_opr.
        Self &set_src_port_opr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_opr_state_flag_set, value);
        }

        /// Writes dst_port_opr.
        Self &set_dst_port_opr(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_opr_set_value, value);
        }
        /// Writes the state byte of dst_port_opr.
        Self &set_dst_port_opr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_opr_state_flag_set, value);
        }

        /// Writes next_ptr.
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_next_ptr_set_value, value);
        }
        /// Writes the state byte of next_ptr.
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_next_ptr_state_flag_set, value);
        }

        /// Writes appl_data_ptr.
        Self &set_appl_data_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_appl_data_ptr_set_value, value);
        }
        /// Writes the state byte of appl_data_ptr.
        Self &set_appl_data_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_appl_data_ptr_state_flag_set, value);
        }

        using members<Self>::appl;
        /// Class's application entry.
        lumo_ui_tarn::dp_appl_ref appl() {
            return this->template nested_<lumo_ui_tarn::dp_appl_type>(lumo_tarn_dp_tc_appl_get);
        }
        /// Writes appl.
        Self &set_appl(lumo_ui_tarn::dp_appl_view value) {
            return this->assign_(*this, lumo_tarn_dp_tc_appl_get, lumo_tarn_dp_tc_appl_set, value);
        }
        /// Moves a record into appl.
        Self &adopt_appl(lumo_ui_tarn::dp_appl &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tc_appl_get, lumo_tarn_dp_tc_appl_set, std::move(value));
        }
        /// Writes the state byte of appl.
        Self &set_appl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_appl_state_flag_set, value);
        }

        /// Writes id.
        Self &set_id(std::uint32_t value) { return this->write_(*this, lumo_tarn_dp_tc_id_set_value, value); }
        /// Writes the state byte of id.
        Self &set_id_state(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_tc_id_state_flag_set, value); }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::exmem_info_ref exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_tc_exmem_info_get);
        }
        const Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_tc_exmem_info_get, lumo_tarn_dp_tc_exmem_info_set, value);
        }
        const Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_tc_exmem_info_get, lumo_tarn_dp_tc_exmem_info_set,
                std::move(value));
        }
        const Self &set_exmem_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_exmem_info_state_flag_set, value);
        }
        const Self &set_src_prefix(const lumo_ui_tarn::address &value) const {
            return this->write_address_(*this, lumo_tarn_dp_tc_src_prefix_get, lumo_tarn_dp_tc_src_prefix_set, value);
        }
        const Self &set_src_prefix_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_src_prefix_state_flag_set, value);
        }
        const Self &set_dst_prefix(const lumo_ui_tarn::address &value) const {
            return this->write_address_(*this, lumo_tarn_dp_tc_dst_prefix_get, lumo_tarn_dp_tc_dst_prefix_set, value);
        }
        const Self &set_dst_prefix_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_dst_prefix_state_flag_set, value);
        }
        const Self &set_proto(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_proto_set_value, value);
        }
        const Self &set_proto_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_proto_state_flag_set, value);
        }
        const Self &set_tos(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_tos_set_value, value);
        }
        const Self &set_tos_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_tos_state_flag_set, value);
        }
        const Self &set_flags(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_flags_set_value, value);
        }
        const Self &set_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_flags_state_flag_set, value);
        }
        const Self &set_bit_flags(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_bit_flags_set_value, value);
        }
        const Self &set_bit_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_bit_flags_state_flag_set, value);
        }
        const Self &set_src_port_min(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_min_set_value, value);
        }
        const Self &set_src_port_min_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_min_state_flag_set, value);
        }
        const Self &set_src_port_max(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_max_set_value, value);
        }
        const Self &set_src_port_max_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_max_state_flag_set, value);
        }
        const Self &set_dst_port_min(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_min_set_value, value);
        }
        const Self &set_dst_port_min_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_min_state_flag_set, value);
        }
        const Self &set_dst_port_max(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_max_set_value, value);
        }
        const Self &set_dst_port_max_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_max_state_flag_set, value);
        }
        const Self &set_src_port_opr(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_opr_set_value, value);
        }
        const Self &set_src_port_opr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_opr_state_flag_set, value);
        }
        const Self &set_dst_port_opr(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_opr_set_value, value);
        }
        const Self &set_dst_port_opr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_opr_state_flag_set, value);
        }
        const Self &set_next_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_next_ptr_set_value, value);
        }
        const Self &set_next_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_next_ptr_state_flag_set, value);
        }
        const Self &set_appl_data_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_appl_data_ptr_set_value, value);
        }
        const Self &set_appl_data_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_appl_data_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::dp_appl_ref appl() const {
            return this->template nested_<lumo_ui_tarn::dp_appl_type>(lumo_tarn_dp_tc_appl_get);
        }
        const Self &set_appl(lumo_ui_tarn::dp_appl_view value) const {
            return this->assign_(*this, lumo_tarn_dp_tc_appl_get, lumo_tarn_dp_tc_appl_set, value);
        }
        const Self &adopt_appl(lumo_ui_tarn::dp_appl &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_tc_appl_get, lumo_tarn_dp_tc_appl_set, std::move(value));
        }
        const Self &set_appl_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_appl_state_flag_set, value);
        }
        const Self &set_id(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_id_set_value, value);
        }
        const Self &set_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_id_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem_info", detail::writable(&M::exmem_info, 0), &M::set_exmem_info,
            &M::exmem_info_state, &M::set_exmem_info_state});
        visit(lumo_ui_tarn::member{"src_prefix", &M::src_prefix, &M::set_src_prefix, &M::src_prefix_state,
            &M::set_src_prefix_state});
        visit(lumo_ui_tarn::member{"dst_prefix", &M::dst_prefix, &M::set_dst_prefix, &M::dst_prefix_state,
            &M::set_dst_prefix_state});
        visit(lumo_ui_tarn::member{"proto", &M::proto, &M::set_proto, &M::proto_state, &M::set_proto_state});
        visit(lumo_ui_tarn::member{"tos", &M::tos, &M::set_tos, &M::tos_state, &M::set_tos_state});
        visit(lumo_ui_tarn::member{"flags", &M::flags, &M::set_flags, &M::flags_state, &M::set_flags_state});
        visit(lumo_ui_tarn::member{"bit_flags", &M::bit_flags, &M::set_bit_flags, &M::bit_flags_state,
            &M::set_bit_flags_state});
        visit(lumo_ui_tarn::member{"src_port_min", &M::src_port_min, &M::set_src_port_min, &M::src_port_min_state,
            &M::set_src_port_min_state});
        visit(lumo_ui_tarn::member{"src_port_max", &M::src_port_max, &M::set_src_port_max, &M::src_port_max_state,
            &M::set_src_port_max_state});
        visit(lumo_ui_tarn::member{"dst_port_min", &M::dst_port_min, &M::set_dst_port_min, &M::dst_port_min_state,
            &M::set_dst_port_min_state});
        visit(lumo_ui_tarn::member{"dst_port_max", &M::dst_port_max, &M::set_dst_port_max, &M::dst_port_max_state,
            &M::set_dst_port_max_state});
        visit(lumo_ui_tarn::member{"src_port_opr", &M::src_port_opr, &M::set_src_port_opr, &M::src_port_opr_state,
            &M::set_src_port_opr_state});
        visit(lumo_ui_tarn::member{"dst_port_opr", &M::dst_port_opr, &M::set_dst_port_opr, &M::dst_port_opr_state,
            &M::set_dst_port_opr_state});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, &M::set_next_ptr, &M::next_ptr_state,
            &M::set_next_ptr_state});
        visit(lumo_ui_tarn::member{"appl_data_ptr", &M::appl_data_ptr, &M::set_appl_data_ptr, &M::appl_data_ptr_state,
            &M::set_appl_data_ptr_state});
        visit(lumo_ui_tarn::member{"appl", detail::writable(&M::appl, 0), &M::set_appl, &M::appl_state,
            &M::set_appl_state});
        visit(lumo_ui_tarn::member{"id", &M::id, &M::set_id, &M::id_state, &M::set_id_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_tc.
using dp_tc = record<dp_tc_type>;
/// Borrows a lumo_tarn_dp_tc.
using dp_tc_ref = record_ref<dp_tc_type>;
/// Borrows a lumo_tarn_dp_tc to read it.
using dp_tc_view = record_view<dp_tc_type>;

/// lumo_tarn_dp_tc_list: counted list of traffic classes.
struct dp_tc_list_type {
    using native = lumo_tarn_dp_tc_list;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_tc_list";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_tc_list_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_tc_list_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_tc_list_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_tc_list_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_tc_list_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_tc_list_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_tc_list_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_tc_list_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_tc_list_destroy;
    /// Same as lumo_tarn_dp_tc_list_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_tc_list_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_tc_list_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_tc_list_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_tc_list_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_tc_list_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_tc_list_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_tc_list_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_tc_list_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_tc_list_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_tc_list_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_tc_list_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_tc_list_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_tc_list_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_tc_list_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_tc_list_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_tc_list_marshal;
    /// Same as lumo_tarn_dp_tc_list_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_tc_list_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_tc_list_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_tc_list_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_tc_list_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_tc_list_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_tc_list_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_tc_list_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_tc_list_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_tc_list_compare;
    static constexpr auto hash = lumo_tarn_dp_tc_list_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_tc_list_type_type_backpropagate;

    /// How tc_list is read and written, for array_ref.
    struct tc_list_array {
        using native = lumo_tarn_dp_tc_list;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_tc_type;  ///< what it is an array of
        using count = std::uint32_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_tc_list_num_tcs_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_tc_list_tc_list_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_tc_list_tc_list_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_dp_tc_list_tc_list_state_flag_get;  ///< an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_tc_list_tc_list_state_flag_set;  ///< writes an element's state byte
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tc_list_type, Self> {
    public:
        using detail::operations<dp_tc_list_type, Self>::operations;

        /// Elements in tc_list.
        std::uint32_t num_tcs() const { return this->call_(lumo_tarn_dp_tc_list_num_tcs_get_value); }

        /// Traffic classes.
        lumo_ui_tarn::array_view<tc_list_array> tc_list() const { return this->template array_<tc_list_array>(); }
        /// The state byte of tc_list; none if the record has no states.
        std::optional<std::uint8_t> tc_list_state() const {
            return this->state_(lumo_tarn_dp_tc_list_tc_list_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"num_tcs", &members::num_tcs, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"tc_list", &members::tc_list, nullptr, &members::tc_list_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;


        using members<Self>::tc_list;
        /// Traffic classes.
        lumo_ui_tarn::array_ref<tc_list_array> tc_list() { return this->template array_<tc_list_array>(); }
        /// Writes the state byte of tc_list.
        Self &set_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_list_tc_list_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::array_ref<tc_list_array> tc_list() const { return this->template array_<tc_list_array>(); }
        const Self &set_tc_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tc_list_tc_list_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_tcs", &M::num_tcs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"tc_list", detail::writable(&M::tc_list, 0), nullptr, &M::tc_list_state,
            &M::set_tc_list_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_tc_list.
using dp_tc_list = record<dp_tc_list_type>;
/// Borrows a lumo_tarn_dp_tc_list.
using dp_tc_list_ref = record_ref<dp_tc_list_type>;
/// Borrows a lumo_tarn_dp_tc_list to read it.
using dp_tc_list_view = record_view<dp_tc_list_type>;

/// lumo_tarn_dp_appl_list: counted list of application entries.
struct dp_appl_list_type {
    using native = lumo_tarn_dp_appl_list;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_appl_list";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_appl_list_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_appl_list_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_appl_list_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_appl_list_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_appl_list_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_appl_list_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_appl_list_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_appl_list_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_appl_list_destroy;
    /// Same as lumo_tarn_dp_appl_list_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_appl_list_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_appl_list_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_appl_list_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_appl_list_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_appl_list_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_appl_list_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_appl_list_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_appl_list_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_appl_list_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_appl_list_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_appl_list_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_appl_list_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_appl_list_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_appl_list_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_appl_list_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_appl_list_marshal;
    /// Same as lumo_tarn_dp_appl_list_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_appl_list_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_appl_list_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_appl_list_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_appl_list_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_appl_list_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_appl_list_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_appl_list_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_appl_list_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_appl_list_compare;
    static constexpr auto hash = lumo_tarn_dp_appl_list_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_appl_list_type_type_backpropagate;

    /// How appl_list is read and written, for array_ref.
    struct appl_list_array {
        using native = lumo_tarn_dp_appl_list;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_appl_type;  ///< what it is an array of
        using count = std::uint32_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_appl_list_num_appls_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_appl_list_appl_list_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_appl_list_appl_list_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_dp_appl_list_appl_list_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_appl_list_appl_list_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_list_type, Self> {
    public:
        using detail::operations<dp_appl_list_type, Self>::operations;

        /// Elements in appl_list.
        std::uint32_t num_appls() const { return this->call_(lumo_tarn_dp_appl_list_num_appls_get_value); }

        /// Application entries.
        lumo_ui_tarn::array_view<appl_list_array> appl_list() const { return this->template array_<appl_list_array>(); }
        /// The state byte of appl_list; none if the record has no states.
        std::optional<std::uint8_t> appl_list_state() const {
            return this->state_(lumo_tarn_dp_appl_list_appl_list_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"num_appls", &members::num_appls, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"appl_list", &members::appl_list, nullptr, &members::appl_list_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;


        using members<Self>::appl_list;
        /// Application entries.
        lumo_ui_tarn::array_ref<appl_list_array> appl_list() { return this->template array_<appl_list_array>(); }
        /// Writes the state byte of appl_list.
        Self &set_appl_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_list_appl_list_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::array_ref<appl_list_array> appl_list() const { return this->template array_<appl_list_array>(); }
        const Self &set_appl_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_list_appl_list_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_appls", &M::num_appls, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"appl_list", detail::writable(&M::appl_list, 0), nullptr, &M::appl_list_state,
            &M::set_appl_list_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_appl_list.
using dp_appl_list = record<dp_appl_list_type>;
/// Borrows a lumo_tarn_dp_appl_list.
using dp_appl_list_ref = record_ref<dp_appl_list_type>;
/// Borrows a lumo_tarn_dp_appl_list to read it.
using dp_appl_list_view = record_view<dp_appl_list_type>;

/// lumo_tarn_dp_ll_spec: one learn list entry.
struct dp_ll_spec_type {
    using native = lumo_tarn_dp_ll_spec;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_ll_spec";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_ll_spec_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_ll_spec_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_ll_spec_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_ll_spec_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_ll_spec_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_ll_spec_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_ll_spec_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_ll_spec_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_ll_spec_destroy;
    /// Same as lumo_tarn_dp_ll_spec_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_ll_spec_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_ll_spec_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_ll_spec_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_ll_spec_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_ll_spec_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_ll_spec_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_ll_spec_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_ll_spec_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_ll_spec_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_ll_spec_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_ll_spec_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_ll_spec_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_ll_spec_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_ll_spec_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_ll_spec_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_ll_spec_marshal;
    /// Same as lumo_tarn_dp_ll_spec_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_ll_spec_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_ll_spec_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_ll_spec_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_ll_spec_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_ll_spec_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_ll_spec_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_ll_spec_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_ll_spec_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_ll_spec_compare;
    static constexpr auto hash = lumo_tarn_dp_ll_spec_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_ll_spec_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_ll_spec_type, Self> {
    public:
        using detail::operations<dp_ll_spec_type, Self>::operations;

        /// Show: everything.
        bool display_all() const { return this->call_(lumo_tarn_dp_ll_spec_display_all_get_value) != 0; }
        /// The state byte of display_all; none if the record has no states.
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_display_all_state_flag_get);
        }

        /// Show: the traffic classes.
        bool display_tc() const { return this->call_(lumo_tarn_dp_ll_spec_display_tc_get_value) != 0; }
        /// The state byte of display_tc; none if the record has no states.
        std::optional<std::uint8_t> display_tc_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_display_tc_state_flag_get);
        }

        /// Show: the applications.
        bool display_appl() const { return this->call_(lumo_tarn_dp_ll_spec_display_appl_get_value) != 0; }
        /// The state byte of display_appl; none if the record has no states.
        std::optional<std::uint8_t> display_appl_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_display_appl_state_flag_get);
        }

        /// Where the entry lies in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_ll_spec_exmem_info_get);
        }
        /// The state byte of exmem_info; none if the record has no states.
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_exmem_info_state_flag_get);
        }

        /// Identifier of the entry.
        std::uint32_t id() const { return this->call_(lumo_tarn_dp_ll_spec_id_get_value); }
        /// The state byte of id; none if the record has no states.
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_dp_ll_spec_id_state_flag_get); }

        /// Minimum mask length.
        std::uint8_t min_mask() const { return this->call_(lumo_tarn_dp_ll_spec_min_mask_get_value); }
        /// The state byte of min_mask; none if the record has no states.
        std::optional<std::uint8_t> min_mask_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_min_mask_state_flag_get);
        }

        /// Aggregation type.
        std::uint8_t agg_type() const { return this->call_(lumo_tarn_dp_ll_spec_agg_type_get_value); }
        /// The state byte of agg_type; none if the record has no states.
        std::optional<std::uint8_t> agg_type_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_agg_type_state_flag_get);
        }

        /// Learn type.
        std::uint8_t learn_type() const { return this->call_(lumo_tarn_dp_ll_spec_learn_type_get_value); }
        /// The state byte of learn_type; none if the record has no states.
        std::optional<std::uint8_t> learn_type_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_learn_type_state_flag_get);
        }

        /// Learn list type.
        std::uint8_t ll_type() const { return this->call_(lumo_tarn_dp_ll_spec_ll_type_get_value); }
        /// The state byte of ll_type; none if the record has no states.
        std::optional<std::uint8_t> ll_type_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_ll_type_state_flag_get);
        }

        /// Number of prefixes.
        std::uint32_t num_prefixes() const { return this->call_(lumo_tarn_dp_ll_spec_num_prefixes_get_value); }
        /// The state byte of num_prefixes; none if the record has no states.
        std::optional<std::uint8_t> num_prefixes_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_num_prefixes_state_flag_get);
        }

        /// Where the filter list lies in the data plane.
        std::uint64_t filter_tc_list_ptr() const {
            return this->call_(lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get_value);
        }
        /// The state byte of filter_tc_list_ptr; none if the record has no states.
        std::optional<std::uint8_t> filter_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_get);
        }

        /// Filter traffic classes.
        lumo_ui_tarn::dp_tc_list_view filter_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_filter_tc_list_get);
        }
        /// The state byte of filter_tc_list; none if the record has no states.
        std::optional<std::uint8_t> filter_tc_list_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_get);
        }

        /// Where the access-list classes lie in the data plane.
        std::uint64_t acl_tc_list_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get_value); }
        /// The state byte of acl_tc_list_ptr; none if the record has no states.
        std::optional<std::uint8_t> acl_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_get);
        }

        /// Access-list traffic classes.
        lumo_ui_tarn::dp_tc_list_view acl_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_acl_tc_list_get);
        }
        /// The state byte of acl_tc_list; none if the record has no states.
        std::optional<std::uint8_t> acl_tc_list_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_get);
        }

        /// Where the application list lies in the data plane.
        std::uint64_t appl_list_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_appl_list_ptr_get_value); }
        /// The state byte of appl_list_ptr; none if the record has no states.
        std::optional<std::uint8_t> appl_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_get);
        }

        /// Applications.
        lumo_ui_tarn::dp_appl_list_view appl_list() const {
            return this->template nested_<lumo_ui_tarn::dp_appl_list_type>(lumo_tarn_dp_ll_spec_appl_list_get);
        }
        /// The state byte of appl_list; none if the record has no states.
        std::optional<std::uint8_t> appl_list_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_appl_list_state_flag_get);
        }

        /// Link to the next entry.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_next_ptr_get_value); }
        /// The state byte of next_ptr; none if the record has no states.
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_next_ptr_state_flag_get);
        }

        /// Head of the entries that num_entries counts.
        std::uint64_t head_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_head_ptr_get_value); }
        /// The state byte of head_ptr; none if the record has no states.
        std::optional<std::uint8_t> head_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_head_ptr_state_flag_get);
        }

        /// Number of entries behind head_ptr.
        std::uint32_t num_entries() const { return this->call_(lumo_tarn_dp_ll_spec_num_entries_get_value); }
        /// The state byte of num_entries; none if the record has no states.
        std::optional<std::uint8_t> num_entries_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_num_entries_state_flag_get);
        }

        /// Capacity of the entry's heap.
        std::uint32_t heap_max_elements() const {
            return this->call_(lumo_tarn_dp_ll_spec_heap_max_elements_get_value);
        }
        /// The state byte of heap_max_elements; none if the record has no states.
        std::optional<std::uint8_t> heap_max_elements_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_get);
        }

        /// Current size of the heap.
        std::uint32_t heap_size() const { return this->call_(lumo_tarn_dp_ll_spec_heap_size_get_value); }
        /// The state byte of heap_size; none if the record has no states.
        std::optional<std::uint8_t> heap_size_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_size_state_flag_get);
        }

        /// Value of the heap's comparison routine as a 64-bit number.
        std::uint64_t heap_compare_func() const {
            return this->call_(lumo_tarn_dp_ll_spec_heap_compare_func_get_value);
        }
        /// The state byte of heap_compare_func; none if the record has no states.
        std::optional<std::uint8_t> heap_compare_func_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_get);
        }

        /// Where the heap's elements lie.
        std::uint64_t heap_elements_ptr() const {
            return this->call_(lumo_tarn_dp_ll_spec_heap_elements_ptr_get_value);
        }
        /// The state byte of heap_elements_ptr; none if the record has no states.
        std::optional<std::uint8_t> heap_elements_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_get);
        }

        /// Selection flag of the show command.
        bool show_ll_comm() const { return this->call_(lumo_tarn_dp_ll_spec_show_ll_comm_get_value) != 0; }
        /// The state byte of show_ll_comm; none if the record has no states.
        std::optional<std::uint8_t> show_ll_comm_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"display_all", &members::display_all, nullptr, &members::display_all_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_tc", &members::display_tc, nullptr, &members::display_tc_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_appl", &members::display_appl, nullptr, &members::display_appl_state,
                nullptr});
            visit(lumo_ui_tarn::member{"exmem_info", &members::exmem_info, nullptr, &members::exmem_info_state,
                nullptr});
            visit(lumo_ui_tarn::member{"id", &members::id, nullptr, &members::id_state, nullptr});
            visit(lumo_ui_tarn::member{"min_mask", &members::min_mask, nullptr, &members::min_mask_state, nullptr});
            visit(lumo_ui_tarn::member{"agg_type", &members::agg_type, nullptr, &members::agg_type_state, nullptr});
            visit(lumo_ui_tarn::member{"learn_type", &members::learn_type, nullptr, &members::learn_type_state,
                nullptr});
            visit(lumo_ui_tarn::member{"ll_type", &members::ll_type, nullptr, &members::ll_type_state, nullptr});
            visit(lumo_ui_tarn::member{"num_prefixes", &members::num_prefixes, nullptr, &members::num_prefixes_state,
                nullptr});
            visit(lumo_ui_tarn::member{"filter_tc_list_ptr", &members::filter_tc_list_ptr, nullptr,
                &members::filter_tc_list_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"filter_tc_list", &members::filter_tc_list, nullptr,
                &members::filter_tc_list_state, nullptr});
            visit(lumo_ui_tarn::member{"acl_tc_list_ptr", &members::acl_tc_list_ptr, nullptr,
                &members::acl_tc_list_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"acl_tc_list", &members::acl_tc_list, nullptr, &members::acl_tc_list_state,
                nullptr});
            visit(lumo_ui_tarn::member{"appl_list_ptr", &members::appl_list_ptr, nullptr, &members::appl_list_ptr_state,
                nullptr});
            visit(lumo_ui_tarn::member{"appl_list", &members::appl_list, nullptr, &members::appl_list_state, nullptr});
            visit(lumo_ui_tarn::member{"next_ptr", &members::next_ptr, nullptr, &members::next_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"head_ptr", &members::head_ptr, nullptr, &members::head_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"num_entries", &members::num_entries, nullptr, &members::num_entries_state,
                nullptr});
            visit(lumo_ui_tarn::member{"heap_max_elements", &members::heap_max_elements, nullptr,
                &members::heap_max_elements_state, nullptr});
            visit(lumo_ui_tarn::member{"heap_size", &members::heap_size, nullptr, &members::heap_size_state, nullptr});
            visit(lumo_ui_tarn::member{"heap_compare_func", &members::heap_compare_func, nullptr,
                &members::heap_compare_func_state, nullptr});
            visit(lumo_ui_tarn::member{"heap_elements_ptr", &members::heap_elements_ptr, nullptr,
                &members::heap_elements_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"show_ll_comm", &members::show_ll_comm, nullptr, &members::show_ll_comm_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes display_all.
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_all.
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_all_state_flag_set, value);
        }

        /// Writes display_tc.
        Self &set_display_tc(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_tc_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_tc.
        Self &set_display_tc_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_tc_state_flag_set, value);
        }

        /// Writes display_appl.
        Self &set_display_appl(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_appl_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_appl.
        Self &set_display_appl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_appl_state_flag_set, value);
        }

        using members<Self>::exmem_info;
        /// Where the entry lies in memory.
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_ll_spec_exmem_info_get);
        }
        /// Writes exmem_info.
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_exmem_info_get, lumo_tarn_dp_ll_spec_exmem_info_set,
                value);
        }
        /// Moves a record into exmem_info.
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_exmem_info_get, lumo_tarn_dp_ll_spec_exmem_info_set,
                std::move(value));
        }
        /// Writes the state byte of exmem_info.
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_exmem_info_state_flag_set, value);
        }

        /// Writes id.
        Self &set_id(std::uint32_t value) { return this->write_(*this, lumo_tarn_dp_ll_spec_id_set_value, value); }
        /// Writes the state byte of id.
        Self &set_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_id_state_flag_set, value);
        }

        /// Writes min_mask.
        Self &set_min_mask(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_min_mask_set_value, value);
        }
        /// Writes the state byte of min_mask.
        Self &set_min_mask_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_min_mask_state_flag_set, value);
        }

        /// Writes agg_type.
        Self &set_agg_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_agg_type_set_value, value);
        }
        /// Writes the state byte of agg_type.
        Self &set_agg_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_agg_type_state_flag_set, value);
        }

        /// Writes learn_type.
        Self &set_learn_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_learn_type_set_value, value);
        }
        /// Writes the state byte of learn_type.
        Self &set_learn_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_learn_type_state_flag_set, value);
        }

        /// Writes ll_type.
        Self &set_ll_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_ll_type_set_value, value);
        }
        /// Writes the state byte of ll_type.
        Self &set_ll_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_ll_type_state_flag_set, value);
        }

        /// Writes num_prefixes.
        Self &set_num_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_prefixes_set_value, value);
        }
        /// Writes the state byte of num_prefixes.
        Self &set_num_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_prefixes_state_flag_set, value);
        }

        /// Writes filter_tc_list_ptr.
        Self &set_filter_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set_value, value);
        }
        /// Writes the state byte of filter_tc_list_ptr.
        Self &set_filter_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_set, value);
        }

        using members<Self>::filter_tc_list;
        /// Filter traffic classes.
        lumo_ui_tarn::dp_tc_list_ref filter_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_filter_tc_list_get);
        }
        /// Writes filter_tc_list.
        Self &set_filter_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_get,
                lumo_tarn_dp_ll_spec_filter_tc_list_set, value);
        }
        /// Moves a record into filter_tc_list.
        Self &adopt_filter_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_get, lumo_tarn_dp_ll_spec_filter_tc_list_set,
                std::move(value));
        }
        /// Writes the state byte of filter_tc_list.
        Self &set_filter_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_set, value);
        }

        /// Writes acl_tc_list_ptr.
        Self &set_acl_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set_value, value);
        }
        /// Writes the state byte of acl_tc_list_ptr.
        Self &set_acl_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_set, value);
        }

        using members<Self>::acl_tc_list;
        /// Access-list traffic classes.
        lumo_ui_tarn::dp_tc_list_ref acl_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_acl_tc_list_get);
        }
        /// Writes acl_tc_list.
        Self &set_acl_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_get, lumo_tarn_dp_ll_spec_acl_tc_list_set,
                value);
        }
        /// Moves a record into acl_tc_list.
        Self &adopt_acl_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_get, lumo_tarn_dp_ll_spec_acl_tc_list_set,
                std::move(value));
        }
        /// Writes the state byte of acl_tc_list.
        Self &set_acl_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_set, value);
        }

        /// Writes appl_list_ptr.
        Self &set_appl_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_ptr_set_value, value);
        }
        /// Writes the state byte of appl_list_ptr.
        Self &set_appl_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_set, value);
        }

        using members<Self>::appl_list;
        /// Applications.
        lumo_ui_tarn::dp_appl_list_ref appl_list() {
            return this->template nested_<lumo_ui_tarn::dp_appl_list_type>(lumo_tarn_dp_ll_spec_appl_list_get);
        }
        /// Writes appl_list.
        Self &set_appl_list(lumo_ui_tarn::dp_appl_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_appl_list_get, lumo_tarn_dp_ll_spec_appl_list_set, value);
        }
        /// Moves a record into appl_list.
        Self &adopt_appl_list(lumo_ui_tarn::dp_appl_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_appl_list_get, lumo_tarn_dp_ll_spec_appl_list_set,
                std::move(value));
        }
        /// Writes the state byte of appl_list.
        Self &set_appl_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_state_flag_set, value);
        }

        /// Writes next_ptr.
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_next_ptr_set_value, value);
        }
        /// Writes the state byte of next_ptr.
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_next_ptr_state_flag_set, value);
        }

        /// Writes head_ptr.
        Self &set_head_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_head_ptr_set_value, value);
        }
        /// Writes the state byte of head_ptr.
        Self &set_head_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_head_ptr_state_flag_set, value);
        }

        /// Writes num_entries.
        Self &set_num_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_entries_set_value, value);
        }
        /// Writes the state byte of num_entries.
        Self &set_num_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_entries_state_flag_set, value);
        }

        /// Writes heap_max_elements.
        Self &set_heap_max_elements(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_max_elements_set_value, value);
        }
        /// Writes the state byte of heap_max_elements.
        Self &set_heap_max_elements_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_set, value);
        }

        /// Writes heap_size.
        Self &set_heap_size(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_size_set_value, value);
        }
        /// Writes the state byte of heap_size.
        Self &set_heap_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_size_state_flag_set, value);
        }

        /// Writes heap_compare_func.
        Self &set_heap_compare_func(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_compare_func_set_value, value);
        }
        /// Writes the state byte of heap_compare_func.
        Self &set_heap_compare_func_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_set, value);
        }

        /// Writes heap_elements_ptr.
        Self &set_heap_elements_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_elements_ptr_set_value, value);
        }
        /// Writes the state byte of heap_elements_ptr.
        Self &set_heap_elements_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_set, value);
        }

        /// Writes show_ll_comm.
        Self &set_show_ll_comm(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_show_ll_comm_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_ll_comm.
        Self &set_show_ll_comm_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_display_all(bool value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_all_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_all_state_flag_set, value);
        }
        const Self &set_display_tc(bool value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_tc_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_tc_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_tc_state_flag_set, value);
        }
        const Self &set_display_appl(bool value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_appl_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_appl_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_appl_state_flag_set, value);
        }
        lumo_ui_tarn::exmem_info_ref exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_ll_spec_exmem_info_get);
        }
        const Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_exmem_info_get, lumo_tarn_dp_ll_spec_exmem_info_set,
                value);
        }
        const Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_exmem_info_get, lumo_tarn_dp_ll_spec_exmem_info_set,
                std::move(value));
        }
        const Self &set_exmem_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_exmem_info_state_flag_set, value);
        }
        const Self &set_id(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_id_set_value, value);
        }
        const Self &set_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_id_state_flag_set, value);
        }
        const Self &set_min_mask(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_min_mask_set_value, value);
        }
        const Self &set_min_mask_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_min_mask_state_flag_set, value);
        }
        const Self &set_agg_type(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_agg_type_set_value, value);
        }
        const Self &set_agg_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_agg_type_state_flag_set, value);
        }
        const Self &set_learn_type(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_learn_type_set_value, value);
        }
        const Self &set_learn_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_learn_type_state_flag_set, value);
        }
        const Self &set_ll_type(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_ll_type_set_value, value);
        }
        const Self &set_ll_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_ll_type_state_flag_set, value);
        }
        const Self &set_num_prefixes(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_prefixes_set_value, value);
        }
        const Self &set_num_prefixes_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_prefixes_state_flag_set, value);
        }
        const Self &set_filter_tc_list_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set_value, value);
        }
        const Self &set_filter_tc_list_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::dp_tc_list_ref filter_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_filter_tc_list_get);
        }
        const Self &set_filter_tc_list(lumo_ui_tarn::dp_tc_list_view value) const {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_get,
                lumo_tarn_dp_ll_spec_filter_tc_list_set, value);
        }
        const Self &adopt_filter_tc_list(lumo_ui_tarn::dp_tc_list &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_get, lumo_tarn_dp_ll_spec_filter_tc_list_set,
                std::move(value));
        }
        const Self &set_filter_tc_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_set, value);
        }
        const Self &set_acl_tc_list_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set_value, value);
        }
        const Self &set_acl_tc_list_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::dp_tc_list_ref acl_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_acl_tc_list_get);
        }
        const Self &set_acl_tc_list(lumo_ui_tarn::dp_tc_list_view value) const {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_get, lumo_tarn_dp_ll_spec_acl_tc_list_set,
                value);
        }
        const Self &adopt_acl_tc_list(lumo_ui_tarn::dp_tc_list &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_get, lumo_tarn_dp_ll_spec_acl_tc_list_set,
                std::move(value));
        }
        const Self &set_acl_tc_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_set, value);
        }
        const Self &set_appl_list_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_ptr_set_value, value);
        }
        const Self &set_appl_list_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::dp_appl_list_ref appl_list() const {
            return this->template nested_<lumo_ui_tarn::dp_appl_list_type>(lumo_tarn_dp_ll_spec_appl_list_get);
        }
        const Self &set_appl_list(lumo_ui_tarn::dp_appl_list_view value) const {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_appl_list_get, lumo_tarn_dp_ll_spec_appl_list_set, value);
        }
        const Self &adopt_appl_list(lumo_ui_tarn::dp_appl_list &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_appl_list_get, lumo_tarn_dp_ll_spec_appl_list_set,
                std::move(value));
        }
        const Self &set_appl_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_state_flag_set, value);
        }
        const Self &set_next_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_next_ptr_set_value, value);
        }
        const Self &set_next_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_next_ptr_state_flag_set, value);
        }
        const Self &set_head_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_head_ptr_set_value, value);
        }
        const Self &set_head_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_head_ptr_state_flag_set, value);
        }
        const Self &set_num_entries(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_entries_set_value, value);
        }
        const Self &set_num_entries_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_entries_state_flag_set, value);
        }
        const Self &set_heap_max_elements(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_max_elements_set_value, value);
        }
        const Self &set_heap_max_elements_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_set, value);
        }
        const Self &set_heap_size(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_size_set_value, value);
        }
        const Self &set_heap_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_size_state_flag_set, value);
        }
        const Self &set_heap_compare_func(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_compare_func_set_value, value);
        }
        const Self &set_heap_compare_func_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_set, value);
        }
        const Self &set_heap_elements_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_elements_ptr_set_value, value);
        }
        const Self &set_heap_elements_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_set, value);
        }
        const Self &set_show_ll_comm(bool value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_show_ll_comm_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_show_ll_comm_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, &M::set_display_all, &M::display_all_state,
            &M::set_display_all_state});
        visit(lumo_ui_tarn::member{"display_tc", &M::display_tc, &M::set_display_tc, &M::display_tc_state,
            &M::set_display_tc_state});
        visit(lumo_ui_tarn::member{"display_appl", &M::display_appl, &M::set_display_appl, &M::display_appl_state,
            &M::set_display_appl_state});
        visit(lumo_ui_tarn::member{"exmem_info", detail::writable(&M::exmem_info, 0), &M::set_exmem_info,
            &M::exmem_info_state, &M::set_exmem_info_state});
        visit(lumo_ui_tarn::member{"id", &M::id, &M::set_id, &M::id_state, &M::set_id_state});
        visit(lumo_ui_tarn::member{"min_mask", &M::min_mask, &M::set_min_mask, &M::min_mask_state,
            &M::set_min_mask_state});
        visit(lumo_ui_tarn::member{"agg_type", &M::agg_type, &M::set_agg_type, &M::agg_type_state,
            &M::set_agg_type_state});
        visit(lumo_ui_tarn::member{"learn_type", &M::learn_type, &M::set_learn_type, &M::learn_type_state,
            &M::set_learn_type_state});
        visit(lumo_ui_tarn::member{"ll_type", &M::ll_type, &M::set_ll_type, &M::ll_type_state, &M::set_ll_type_state});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, &M::set_num_prefixes, &M::num_prefixes_state,
            &M::set_num_prefixes_state});
        visit(lumo_ui_tarn::member{"filter_tc_list_ptr", &M::filter_tc_list_ptr, &M::set_filter_tc_list_ptr,
            &M::filter_tc_list_ptr_state, &M::set_filter_tc_list_ptr_state});
        visit(lumo_ui_tarn::member{"filter_tc_list", detail::writable(&M::filter_tc_list, 0), &M::set_filter_tc_list,
            &M::filter_tc_list_state, &M::set_filter_tc_list_state});
        visit(lumo_ui_tarn::member{"acl_tc_list_ptr", &M::acl_tc_list_ptr, &M::set_acl_tc_list_ptr,
            &M::acl_tc_list_ptr_state, &M::set_acl_tc_list_ptr_state});
        visit(lumo_ui_tarn::member{"acl_tc_list", detail::writable(&M::acl_tc_list, 0), &M::set_acl_tc_list,
            &M::acl_tc_list_state, &M::set_acl_tc_list_state});
        visit(lumo_ui_tarn::member{"appl_list_ptr", &M::appl_list_ptr, &M::set_appl_list_ptr, &M::appl_list_ptr_state,
            &M::set_appl_list_ptr_state});
        visit(lumo_ui_tarn::member{"appl_list", detail::writable(&M::appl_list, 0), &M::set_appl_list,
            &M::appl_list_state, &M::set_appl_list_state});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, &M::set_next_ptr, &M::next_ptr_state,
            &M::set_next_ptr_state});
        visit(lumo_ui_tarn::member{"head_ptr", &M::head_ptr, &M::set_head_ptr, &M::head_ptr_state,
            &M::set_head_ptr_state});
        visit(lumo_ui_tarn::member{"num_entries", &M::num_entries, &M::set_num_entries, &M::num_entries_state,
            &M::set_num_entries_state});
        visit(lumo_ui_tarn::member{"heap_max_elements", &M::heap_max_elements, &M::set_heap_max_elements,
            &M::heap_max_elements_state, &M::set_heap_max_elements_state});
        visit(lumo_ui_tarn::member{"heap_size", &M::heap_size, &M::set_heap_size, &M::heap_size_state,
            &M::set_heap_size_state});
        visit(lumo_ui_tarn::member{"heap_compare_func", &M::heap_compare_func, &M::set_heap_compare_func,
            &M::heap_compare_func_state, &M::set_heap_compare_func_state});
        visit(lumo_ui_tarn::member{"heap_elements_ptr", &M::heap_elements_ptr, &M::set_heap_elements_ptr,
            &M::heap_elements_ptr_state, &M::set_heap_elements_ptr_state});
        visit(lumo_ui_tarn::member{"show_ll_comm", &M::show_ll_comm, &M::set_show_ll_comm, &M::show_ll_comm_state,
            &M::set_show_ll_comm_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_ll_spec.
using dp_ll_spec = record<dp_ll_spec_type>;
/// Borrows a lumo_tarn_dp_ll_spec.
using dp_ll_spec_ref = record_ref<dp_ll_spec_type>;
/// Borrows a lumo_tarn_dp_ll_spec to read it.
using dp_ll_spec_view = record_view<dp_ll_spec_type>;

/// lumo_tarn_dp_learn_list: entries of one traffic table.
struct dp_learn_list_type {
    using native = lumo_tarn_dp_learn_list;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_learn_list";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_learn_list_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_learn_list_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_learn_list_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_learn_list_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_learn_list_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_learn_list_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_learn_list_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_learn_list_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_learn_list_destroy;
    /// Same as lumo_tarn_dp_learn_list_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_learn_list_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_learn_list_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_learn_list_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_learn_list_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_learn_list_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_learn_list_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_learn_list_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_learn_list_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_learn_list_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_learn_list_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_learn_list_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_learn_list_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_learn_list_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_learn_list_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_learn_list_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_learn_list_marshal;
    /// Same as lumo_tarn_dp_learn_list_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_learn_list_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_learn_list_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_learn_list_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_learn_list_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_learn_list_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_learn_list_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_learn_list_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_learn_list_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_learn_list_compare;
    static constexpr auto hash = lumo_tarn_dp_learn_list_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_learn_list_type_type_backpropagate;

    /// How ll_spec_list is read and written, for array_ref.
    struct ll_spec_list_array {
        using native = lumo_tarn_dp_learn_list;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_ll_spec_type;  ///< what it is an array of
        using count = std::uint32_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_learn_list_num_ll_specs_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_learn_list_ll_spec_list_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_learn_list_ll_spec_list_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_dp_learn_list_ll_spec_list_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_learn_list_ll_spec_list_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_learn_list_type, Self> {
    public:
        using detail::operations<dp_learn_list_type, Self>::operations;

        /// Elements in ll_spec_list.
        std::uint32_t num_ll_specs() const { return this->call_(lumo_tarn_dp_learn_list_num_ll_specs_get_value); }

        /// Learn list entries.
        lumo_ui_tarn::array_view<ll_spec_list_array> ll_spec_list() const {
            return this->template array_<ll_spec_list_array>();
        }
        /// The state byte of ll_spec_list; none if the record has no states.
        std::optional<std::uint8_t> ll_spec_list_state() const {
            return this->state_(lumo_tarn_dp_learn_list_ll_spec_list_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"num_ll_specs", &members::num_ll_specs, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"ll_spec_list", &members::ll_spec_list, nullptr, &members::ll_spec_list_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;


        using members<Self>::ll_spec_list;
        /// Learn list entries.
        lumo_ui_tarn::array_ref<ll_spec_list_array> ll_spec_list() {
            return this->template array_<ll_spec_list_array>();
        }
        /// Writes the state byte of ll_spec_list.
        Self &set_ll_spec_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_learn_list_ll_spec_list_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::array_ref<ll_spec_list_array> ll_spec_list() const {
            return this->template array_<ll_spec_list_array>();
        }
        const Self &set_ll_spec_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_learn_list_ll_spec_list_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_ll_specs", &M::num_ll_specs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"ll_spec_list", detail::writable(&M::ll_spec_list, 0), nullptr,
            &M::ll_spec_list_state, &M::set_ll_spec_list_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_learn_list.
using dp_learn_list = record<dp_learn_list_type>;
/// Borrows a lumo_tarn_dp_learn_list.
using dp_learn_list_ref = record_ref<dp_learn_list_type>;
/// Borrows a lumo_tarn_dp_learn_list to read it.
using dp_learn_list_view = record_view<dp_learn_list_type>;

/// lumo_tarn_dp_debug_setting: debug switches of one processor's data plane.
struct dp_debug_setting_type {
    using native = lumo_tarn_dp_debug_setting;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_debug_setting";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_debug_setting_create;
    /// Same as lumo_tarn_dp_debug_setting_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_debug_setting_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_debug_setting_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_debug_setting_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_debug_setting_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_debug_setting_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_debug_setting_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_debug_setting_destroy;
    /// Same as lumo_tarn_dp_debug_setting_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_debug_setting_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_debug_setting_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_debug_setting_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_debug_setting_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_debug_setting_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_debug_setting_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_debug_setting_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_debug_setting_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_debug_setting_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_debug_setting_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_debug_setting_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_debug_setting_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_dp_debug_setting_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_debug_setting_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_debug_setting_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_debug_setting_marshal;
    /// Same as lumo_tarn_dp_debug_setting_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_debug_setting_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_debug_setting_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_debug_setting_len(),
    /// and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_debug_setting_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_debug_setting_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_debug_setting_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_debug_setting_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_debug_setting_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_debug_setting_compare;
    static constexpr auto hash = lumo_tarn_dp_debug_setting_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_debug_setting_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_debug_setting_type, Self> {
    public:
        using detail::operations<dp_debug_setting_type, Self>::operations;

        /// Number of the lumo processor that this entry describes.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_debug_setting_lumo_num_get_value); }
        /// The state byte of lumo_num; none if the record has no states.
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_lumo_num_state_flag_get);
        }

        /// Debug switch of the data plane's mp (prefix) cache.
        std::uint32_t mp_cache_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_mp_cache_enabled_get_value);
        }
        /// The state byte of mp_cache_enabled; none if the record has no states.
        std::optional<std::uint8_t> mp_cache_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_mp_cache_enabled_state_flag_get);
        }

        /// Debug switch of the data plane's tt (traffic table) cache.
        std::uint32_t tt_cache_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_tt_cache_enabled_get_value);
        }
        /// The state byte of tt_cache_enabled; none if the record has no states.
        std::optional<std::uint8_t> tt_cache_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_tt_cache_enabled_state_flag_get);
        }

        /// Debug switch of the data plane's flow cache.
        std::uint32_t flow_cache_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_flow_cache_enabled_get_value);
        }
        /// The state byte of flow_cache_enabled; none if the record has no states.
        std::optional<std::uint8_t> flow_cache_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_flow_cache_enabled_state_flag_get);
        }

        /// Debug switch of the data plane's ager.
        std::uint32_t ager_enabled() const { return this->call_(lumo_tarn_dp_debug_setting_ager_enabled_get_value); }
        /// The state byte of ager_enabled; none if the record has no states.
        std::optional<std::uint8_t> ager_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_ager_enabled_state_flag_get);
        }

        /// Debug switch of the exporter as a whole.
        std::uint32_t exporter_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_exporter_enabled_get_value);
        }
        /// The state byte of exporter_enabled; none if the record has no states.
        std::optional<std::uint8_t> exporter_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_exporter_enabled_state_flag_get);
        }

        /// Debug switch of the proxy.
        std::uint32_t proxy_enabled() const { return this->call_(lumo_tarn_dp_debug_setting_proxy_enabled_get_value); }
        /// The state byte of proxy_enabled; none if the record has no states.
        std::optional<std::uint8_t> proxy_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_proxy_enabled_state_flag_get);
        }

        /// Debug switch of the exporter for tt data.
        std::uint32_t exporter_tt_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_exporter_tt_enabled_get_value);
        }
        /// The state byte of exporter_tt_enabled; none if the record has no states.
        std::optional<std::uint8_t> exporter_tt_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_exporter_tt_enabled_state_flag_get);
        }

        /// Debug switch of the exporter for mp data.
        std::uint32_t exporter_mp_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_exporter_mp_enabled_get_value);
        }
        /// The state byte of exporter_mp_enabled; none if the record has no states.
        std::optional<std::uint8_t> exporter_mp_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_exporter_mp_enabled_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"lumo_num", &members::lumo_num, nullptr, &members::lumo_num_state, nullptr});
            visit(lumo_ui_tarn::member{"mp_cache_enabled", &members::mp_cache_enabled, nullptr,
                &members::mp_cache_enabled_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_cache_enabled", &members::tt_cache_enabled, nullptr,
                &members::tt_cache_enabled_state, nullptr});
            visit(lumo_ui_tarn::member{"flow_cache_enabled", &members::flow_cache_enabled, nullptr,
                &members::flow_cache_enabled_state, nullptr});
            visit(lumo_ui_tarn::member{"ager_enabled", &members::ager_enabled, nullptr, &members::ager_enabled_state,
                nullptr});
            visit(lumo_ui_tarn::member{"exporter_enabled", &members::exporter_enabled, nullptr,
                &members::exporter_enabled_state, nullptr});
            visit(lumo_ui_tarn::member{"proxy_enabled", &members::proxy_enabled, nullptr, &members::proxy_enabled_state,
                nullptr});
            visit(lumo_ui_tarn::member{"exporter_tt_enabled", &members::exporter_tt_enabled, nullptr,
                &members::exporter_tt_enabled_state, nullptr});
            visit(lumo_ui_tarn::member{"exporter_mp_enabled", &members::exporter_mp_enabled, nullptr,
                &members::exporter_mp_enabled_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes lumo_num.
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_lumo_num_set_value, value);
        }
        /// Writes the state byte of lumo_num.
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_lumo_num_state_flag_set, value);
        }

        /// Writes mp_cache_enabled.
        Self &set_mp_cache_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_mp_cache_enabled_set_value, value);
        }
        /// Writes the state byte of mp_cache_enabled.
        Self &set_mp_cache_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_mp_cache_enabled_state_flag_set, value);
        }

        /// Writes tt_cache_enabled.
        Self &set_tt_cache_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_tt_cache_enabled_set_value, value);
        }
        /// Writes the state byte of tt_cache_enabled.
        Self &set_tt_cache_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_tt_cache_enabled_state_flag_set, value);
        }

        /// Writes flow_cache_enabled.
        Self &set_flow_cache_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_flow_cache_enabled_set_value, value);
        }
        /// Writes the state byte of flow_cache_enabled.
        Self &set_flow_cache_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_flow_cache_enabled_state_flag_set, value);
        }

        /// Writes ager_enabled.
        Self &set_ager_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_ager_enabled_set_value, value);
        }
        /// Writes the state byte of ager_enabled.
        Self &set_ager_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_ager_enabled_state_flag_set, value);
        }

        /// Writes exporter_enabled.
        Self &set_exporter_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_enabled_set_value, value);
        }
        /// Writes the state byte of exporter_enabled.
        Self &set_exporter_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_enabled_state_flag_set, value);
        }

        /// Writes proxy_enabled.
        Self &set_proxy_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_proxy_enabled_set_value, value);
        }
        /// Writes the state byte of proxy_enabled.
        Self &set_proxy_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_proxy_enabled_state_flag_set, value);
        }

        /// Writes exporter_tt_enabled.
        Self &set_exporter_tt_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_tt_enabled_set_value, value);
        }
        /// Writes the state byte of exporter_tt_enabled.
        Self &set_exporter_tt_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_tt_enabled_state_flag_set, value);
        }

        /// Writes exporter_mp_enabled.
        Self &set_exporter_mp_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_mp_enabled_set_value, value);
        }
        /// Writes the state byte of exporter_mp_enabled.
        Self &set_exporter_mp_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_mp_enabled_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_lumo_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_lumo_num_set_value, value);
        }
        const Self &set_lumo_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_lumo_num_state_flag_set, value);
        }
        const Self &set_mp_cache_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_mp_cache_enabled_set_value, value);
        }
        const Self &set_mp_cache_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_mp_cache_enabled_state_flag_set, value);
        }
        const Self &set_tt_cache_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_tt_cache_enabled_set_value, value);
        }
        const Self &set_tt_cache_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_tt_cache_enabled_state_flag_set, value);
        }
        const Self &set_flow_cache_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_flow_cache_enabled_set_value, value);
        }
        const Self &set_flow_cache_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_flow_cache_enabled_state_flag_set, value);
        }
        const Self &set_ager_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_ager_enabled_set_value, value);
        }
        const Self &set_ager_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_ager_enabled_state_flag_set, value);
        }
        const Self &set_exporter_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_enabled_set_value, value);
        }
        const Self &set_exporter_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_enabled_state_flag_set, value);
        }
        const Self &set_proxy_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_proxy_enabled_set_value, value);
        }
        const Self &set_proxy_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_proxy_enabled_state_flag_set, value);
        }
        const Self &set_exporter_tt_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_tt_enabled_set_value, value);
        }
        const Self &set_exporter_tt_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_tt_enabled_state_flag_set, value);
        }
        const Self &set_exporter_mp_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_mp_enabled_set_value, value);
        }
        const Self &set_exporter_mp_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_mp_enabled_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, &M::set_lumo_num, &M::lumo_num_state,
            &M::set_lumo_num_state});
        visit(lumo_ui_tarn::member{"mp_cache_enabled", &M::mp_cache_enabled, &M::set_mp_cache_enabled,
            &M::mp_cache_enabled_state, &M::set_mp_cache_enabled_state});
        visit(lumo_ui_tarn::member{"tt_cache_enabled", &M::tt_cache_enabled, &M::set_tt_cache_enabled,
            &M::tt_cache_enabled_state, &M::set_tt_cache_enabled_state});
        visit(lumo_ui_tarn::member{"flow_cache_enabled", &M::flow_cache_enabled, &M::set_flow_cache_enabled,
            &M::flow_cache_enabled_state, &M::set_flow_cache_enabled_state});
        visit(lumo_ui_tarn::member{"ager_enabled", &M::ager_enabled, &M::set_ager_enabled, &M::ager_enabled_state,
            &M::set_ager_enabled_state});
        visit(lumo_ui_tarn::member{"exporter_enabled", &M::exporter_enabled, &M::set_exporter_enabled,
            &M::exporter_enabled_state, &M::set_exporter_enabled_state});
        visit(lumo_ui_tarn::member{"proxy_enabled", &M::proxy_enabled, &M::set_proxy_enabled, &M::proxy_enabled_state,
            &M::set_proxy_enabled_state});
        visit(lumo_ui_tarn::member{"exporter_tt_enabled", &M::exporter_tt_enabled, &M::set_exporter_tt_enabled,
            &M::exporter_tt_enabled_state, &M::set_exporter_tt_enabled_state});
        visit(lumo_ui_tarn::member{"exporter_mp_enabled", &M::exporter_mp_enabled, &M::set_exporter_mp_enabled,
            &M::exporter_mp_enabled_state, &M::set_exporter_mp_enabled_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_debug_setting.
using dp_debug_setting = record<dp_debug_setting_type>;
/// Borrows a lumo_tarn_dp_debug_setting.
using dp_debug_setting_ref = record_ref<dp_debug_setting_type>;
/// Borrows a lumo_tarn_dp_debug_setting to read it.
using dp_debug_setting_view = record_view<dp_debug_setting_type>;

/// lumo_tarn_debug_setting: four debug levels of one component.
struct debug_setting_type {
    using native = lumo_tarn_debug_setting;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_debug_setting";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_debug_setting_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_debug_setting_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_debug_setting_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_debug_setting_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_debug_setting_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_debug_setting_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_debug_setting_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_debug_setting_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_debug_setting_destroy;
    /// Same as lumo_tarn_debug_setting_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_debug_setting_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_debug_setting_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_debug_setting_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_debug_setting_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_debug_setting_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_debug_setting_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_debug_setting_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_debug_setting_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_debug_setting_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_debug_setting_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_debug_setting_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_debug_setting_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_debug_setting_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_debug_setting_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_debug_setting_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_debug_setting_marshal;
    /// Same as lumo_tarn_debug_setting_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_debug_setting_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_debug_setting_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_debug_setting_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_debug_setting_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_debug_setting_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_debug_setting_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_debug_setting_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_debug_setting_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_debug_setting_compare;
    static constexpr auto hash = lumo_tarn_debug_setting_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_debug_setting_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<debug_setting_type, Self> {
    public:
        using detail::operations<debug_setting_type, Self>::operations;

        /// Switch of information-level debug output.
        std::uint32_t info_enabled() const { return this->call_(lumo_tarn_debug_setting_info_enabled_get_value); }
        /// The state byte of info_enabled; none if the record has no states.
        std::optional<std::uint8_t> info_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_info_enabled_state_flag_get);
        }

        /// Switch of trace-level debug output.
        std::uint32_t trace_enabled() const { return this->call_(lumo_tarn_debug_setting_trace_enabled_get_value); }
        /// The state byte of trace_enabled; none if the record has no states.
        std::optional<std::uint8_t> trace_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_trace_enabled_state_flag_get);
        }

        /// Switch of warning-level debug output.
        std::uint32_t warn_enabled() const { return this->call_(lumo_tarn_debug_setting_warn_enabled_get_value); }
        /// The state byte of warn_enabled; none if the record has no states.
        std::optional<std::uint8_t> warn_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_warn_enabled_state_flag_get);
        }

        /// Switch of error-level debug output.
        std::uint32_t error_enabled() const { return this->call_(lumo_tarn_debug_setting_error_enabled_get_value); }
        /// The state byte of error_enabled; none if the record has no states.
        std::optional<std::uint8_t> error_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_error_enabled_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"info_enabled", &members::info_enabled, nullptr, &members::info_enabled_state,
                nullptr});
            visit(lumo_ui_tarn::member{"trace_enabled", &members::trace_enabled, nullptr, &members::trace_enabled_state,
                nullptr});
            visit(lumo_ui_tarn::member{"warn_enabled", &members::warn_enabled, nullptr, &members::warn_enabled_state,
                nullptr});
            visit(lumo_ui_tarn::member{"error_enabled", &members::error_enabled, nullptr, &members::error_enabled_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes info_enabled.
        Self &set_info_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_info_enabled_set_value, value);
        }
        /// Writes the state byte of info_enabled.
        Self &set_info_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_info_enabled_state_flag_set, value);
        }

        /// Writes trace_enabled.
        Self &set_trace_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_trace_enabled_set_value, value);
        }
        /// Writes the state byte of trace_enabled.
        Self &set_trace_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_trace_enabled_state_flag_set, value);
        }

        /// Writes warn_enabled.
        Self &set_warn_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_warn_enabled_set_value, value);
        }
        /// Writes the state byte of warn_enabled.
        Self &set_warn_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_warn_enabled_state_flag_set, value);
        }

        /// Writes error_enabled.
        Self &set_error_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_error_enabled_set_value, value);
        }
        /// Writes the state byte of error_enabled.
        Self &set_error_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_error_enabled_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_info_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_info_enabled_set_value, value);
        }
        const Self &set_info_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_info_enabled_state_flag_set, value);
        }
        const Self &set_trace_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_trace_enabled_set_value, value);
        }
        const Self &set_trace_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_trace_enabled_state_flag_set, value);
        }
        const Self &set_warn_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_warn_enabled_set_value, value);
        }
        const Self &set_warn_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_warn_enabled_state_flag_set, value);
        }
        const Self &set_error_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_error_enabled_set_value, value);
        }
        const Self &set_error_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_debug_setting_error_enabled_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"info_enabled", &M::info_enabled, &M::set_info_enabled, &M::info_enabled_state,
            &M::set_info_enabled_state});
        visit(lumo_ui_tarn::member{"trace_enabled", &M::trace_enabled, &M::set_trace_enabled, &M::trace_enabled_state,
            &M::set_trace_enabled_state});
        visit(lumo_ui_tarn::member{"warn_enabled", &M::warn_enabled, &M::set_warn_enabled, &M::warn_enabled_state,
            &M::set_warn_enabled_state});
        visit(lumo_ui_tarn::member{"error_enabled", &M::error_enabled, &M::set_error_enabled, &M::error_enabled_state,
            &M::set_error_enabled_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_debug_setting.
using debug_setting = record<debug_setting_type>;
/// Borrows a lumo_tarn_debug_setting.
using debug_setting_ref = record_ref<debug_setting_type>;
/// Borrows a lumo_tarn_debug_setting to read it.
using debug_setting_view = record_view<debug_setting_type>;

/// lumo_tarn_dp_debug_setting_data: switches of all processors.
struct dp_debug_setting_data_type {
    using native = lumo_tarn_dp_debug_setting_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_debug_setting_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_debug_setting_data_create;
    /// Same as lumo_tarn_dp_debug_setting_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_debug_setting_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_debug_setting_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_debug_setting_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_debug_setting_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_debug_setting_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_debug_setting_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_debug_setting_data_destroy;
    /// Same as lumo_tarn_dp_debug_setting_data_destroy(), but with free_it 0 the memory of the instance itself is not
    /// freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_debug_setting_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_debug_setting_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_debug_setting_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_debug_setting_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_debug_setting_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_debug_setting_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_debug_setting_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_debug_setting_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_debug_setting_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_debug_setting_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_debug_setting_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_debug_setting_data_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_dp_debug_setting_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_debug_setting_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_debug_setting_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_debug_setting_data_marshal;
    /// Same as lumo_tarn_dp_debug_setting_data_marshal(), but the outermost frame keeps the instance's own variant
    /// whatever the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_debug_setting_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_debug_setting_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least
    /// lumo_tarn_dp_debug_setting_data_len(), and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_debug_setting_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_debug_setting_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_debug_setting_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_debug_setting_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_debug_setting_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_debug_setting_data_compare;
    static constexpr auto hash = lumo_tarn_dp_debug_setting_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_debug_setting_data_type_type_backpropagate;

    /// How lumo_data is read and written, for array_ref.
    struct lumo_data_array {
        using native = lumo_tarn_dp_debug_setting_data;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_debug_setting_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_debug_setting_data_num_lumos_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_debug_setting_data_lumo_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_debug_setting_data_lumo_data_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_dp_debug_setting_data_lumo_data_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_debug_setting_data_lumo_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_debug_setting_data_type, Self> {
    public:
        using detail::operations<dp_debug_setting_data_type, Self>::operations;

        /// Number of entries in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_debug_setting_data_num_lumos_get_value); }

        /// One entry for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        /// The state byte of lumo_data; none if the record has no states.
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_data_lumo_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"num_lumos", &members::num_lumos, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"lumo_data", &members::lumo_data, nullptr, &members::lumo_data_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;


        using members<Self>::lumo_data;
        /// One entry for each processor.
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        /// Writes the state byte of lumo_data.
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_data_lumo_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        const Self &set_lumo_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_debug_setting_data_lumo_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", detail::writable(&M::lumo_data, 0), nullptr, &M::lumo_data_state,
            &M::set_lumo_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_debug_setting_data.
using dp_debug_setting_data = record<dp_debug_setting_data_type>;
/// Borrows a lumo_tarn_dp_debug_setting_data.
using dp_debug_setting_data_ref = record_ref<dp_debug_setting_data_type>;
/// Borrows a lumo_tarn_dp_debug_setting_data to read it.
using dp_debug_setting_data_view = record_view<dp_debug_setting_data_type>;

/// lumo_tarn_cl_kesh_appl: one application.
struct cl_kesh_appl_type {
    using native = lumo_tarn_cl_kesh_appl;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_cl_kesh_appl";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_cl_kesh_appl_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_cl_kesh_appl_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_cl_kesh_appl_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_cl_kesh_appl_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_cl_kesh_appl_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_cl_kesh_appl_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_cl_kesh_appl_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_cl_kesh_appl_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_cl_kesh_appl_destroy;
    /// Same as lumo_tarn_cl_kesh_appl_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_cl_kesh_appl_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_cl_kesh_appl_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_cl_kesh_appl_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_cl_kesh_appl_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_cl_kesh_appl_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_cl_kesh_appl_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_cl_kesh_appl_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_cl_kesh_appl_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_cl_kesh_appl_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_cl_kesh_appl_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_cl_kesh_appl_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_cl_kesh_appl_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_cl_kesh_appl_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_cl_kesh_appl_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_cl_kesh_appl_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_cl_kesh_appl_marshal;
    /// Same as lumo_tarn_cl_kesh_appl_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_cl_kesh_appl_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_cl_kesh_appl_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_cl_kesh_appl_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_cl_kesh_appl_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_cl_kesh_appl_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_cl_kesh_appl_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_cl_kesh_appl_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_cl_kesh_appl_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_cl_kesh_appl_compare;
    static constexpr auto hash = lumo_tarn_cl_kesh_appl_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_cl_kesh_appl_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<cl_kesh_appl_type, Self> {
    public:
        using detail::operations<cl_kesh_appl_type, Self>::operations;

        /// Length of proto_name in bytes.
        std::uint16_t proto_name_len() const { return this->call_(lumo_tarn_cl_kesh_appl_proto_name_len_get_value); }

        /// Name of the protocol.
        std::string proto_name() const {
            return this->string_(lumo_tarn_cl_kesh_appl_proto_name_len_get_value,
                lumo_tarn_cl_kesh_appl_proto_name_get);
        }
        /// The state byte of proto_name; none if the record has no states.
        std::optional<std::uint8_t> proto_name_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_proto_name_state_flag_get);
        }

        /// Length of sub_proto_name in bytes.
        std::uint16_t sub_proto_name_len() const {
            return this->call_(lumo_tarn_cl_kesh_appl_sub_proto_name_len_get_value);
        }

        /// Name of the sub-protocol.
        std::string sub_proto_name() const {
            return this->string_(lumo_tarn_cl_kesh_appl_sub_proto_name_len_get_value,
                lumo_tarn_cl_kesh_appl_sub_proto_name_get);
        }
        /// The state byte of sub_proto_name; none if the record has no states.
        std::optional<std::uint8_t> sub_proto_name_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_sub_proto_name_state_flag_get);
        }

        /// Identifier of the protocol.
        std::uint16_t protocol_id() const { return this->call_(lumo_tarn_cl_kesh_appl_protocol_id_get_value); }
        /// The state byte of protocol_id; none if the record has no states.
        std::optional<std::uint8_t> protocol_id_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_protocol_id_state_flag_get);
        }

        /// Identifier of the application within the tarn feature.
        std::uint16_t tarn_id() const { return this->call_(lumo_tarn_cl_kesh_appl_tarn_id_get_value); }
        /// The state byte of tarn_id; none if the record has no states.
        std::optional<std::uint8_t> tarn_id_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_tarn_id_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"proto_name_len", &members::proto_name_len, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"proto_name", &members::proto_name, nullptr, &members::proto_name_state,
                nullptr});
            visit(lumo_ui_tarn::member{"sub_proto_name_len", &members::sub_proto_name_len, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"sub_proto_name", &members::sub_proto_name, nullptr,
                &members::sub_proto_name_state, nullptr});
            visit(lumo_ui_tarn::member{"protocol_id", &members::protocol_id, nullptr, &members::protocol_id_state,
                nullptr});
            visit(lumo_ui_tarn::member{"tarn_id", &members::tarn_id, nullptr, &members::tarn_id_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;


        /// Writes proto_name.
        Self &set_proto_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_cl_kesh_appl_proto_name_set, text);
        }
        /// Writes the state byte of proto_name.
        Self &set_proto_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_proto_name_state_flag_set, value);
        }


        /// Writes sub_proto_name.
        Self &set_sub_proto_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_cl_kesh_appl_sub_proto_name_set, text);
        }
        /// Writes the state byte of sub_proto_name.
        Self &set_sub_proto_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_sub_proto_name_state_flag_set, value);
        }

        /// Writes protocol_id.
        Self &set_protocol_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_protocol_id_set_value, value);
        }
        /// Writes the state byte of protocol_id.
        Self &set_protocol_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_protocol_id_state_flag_set, value);
        }

        /// Writes tarn_id.
        Self &set_tarn_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_tarn_id_set_value, value);
        }
        /// Writes the state byte of tarn_id.
        Self &set_tarn_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_tarn_id_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_proto_name(std::string_view text) const {
            return this->write_string_(*this, lumo_tarn_cl_kesh_appl_proto_name_set, text);
        }
        const Self &set_proto_name_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_proto_name_state_flag_set, value);
        }
        const Self &set_sub_proto_name(std::string_view text) const {
            return this->write_string_(*this, lumo_tarn_cl_kesh_appl_sub_proto_name_set, text);
        }
        const Self &set_sub_proto_name_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_sub_proto_name_state_flag_set, value);
        }
        const Self &set_protocol_id(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_protocol_id_set_value, value);
        }
        const Self &set_protocol_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_protocol_id_state_flag_set, value);
        }
        const Self &set_tarn_id(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_tarn_id_set_value, value);
        }
        const Self &set_tarn_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_tarn_id_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"proto_name_len", &M::proto_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"proto_name", &M::proto_name, &M::set_proto_name, &M::proto_name_state,
            &M::set_proto_name_state});
        visit(lumo_ui_tarn::member{"sub_proto_name_len", &M::sub_proto_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"sub_proto_name", &M::sub_proto_name, &M::set_sub_proto_name,
            &M::sub_proto_name_state, &M::set_sub_proto_name_state});
        visit(lumo_ui_tarn::member{"protocol_id", &M::protocol_id, &M::set_protocol_id, &M::protocol_id_state,
            &M::set_protocol_id_state});
        visit(lumo_ui_tarn::member{"tarn_id", &M::tarn_id, &M::set_tarn_id, &M::tarn_id_state, &M::set_tarn_id_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_cl_kesh_appl.
using cl_kesh_appl = record<cl_kesh_appl_type>;
/// Borrows a lumo_tarn_cl_kesh_appl.
using cl_kesh_appl_ref = record_ref<cl_kesh_appl_type>;
/// Borrows a lumo_tarn_cl_kesh_appl to read it.
using cl_kesh_appl_view = record_view<cl_kesh_appl_type>;

/// lumo_tarn_cl_appl_data: applications of the client.
struct cl_appl_data_type {
    using native = lumo_tarn_cl_appl_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_cl_appl_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_cl_appl_data_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_cl_appl_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_cl_appl_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_cl_appl_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_cl_appl_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_cl_appl_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_cl_appl_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_cl_appl_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_cl_appl_data_destroy;
    /// Same as lumo_tarn_cl_appl_data_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_cl_appl_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_cl_appl_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_cl_appl_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_cl_appl_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_cl_appl_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_cl_appl_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_cl_appl_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_cl_appl_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_cl_appl_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_cl_appl_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_cl_appl_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_cl_appl_data_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_cl_appl_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_cl_appl_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_cl_appl_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_cl_appl_data_marshal;
    /// Same as lumo_tarn_cl_appl_data_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_cl_appl_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_cl_appl_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_cl_appl_data_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_cl_appl_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_cl_appl_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_cl_appl_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_cl_appl_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_cl_appl_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_cl_appl_data_compare;
    static constexpr auto hash = lumo_tarn_cl_appl_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_cl_appl_data_type_type_backpropagate;

    /// How kesh_appl is read and written, for array_ref.
    struct kesh_appl_array {
        using native = lumo_tarn_cl_appl_data;  ///< the record that has the array
        using element = lumo_ui_tarn::cl_kesh_appl_type;  ///< what it is an array of
        using count = std::uint32_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_cl_appl_data_num_kesh_appls_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_cl_appl_data_kesh_appl_get;  ///< an element
        static constexpr auto set = lumo_tarn_cl_appl_data_kesh_appl_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_cl_appl_data_kesh_appl_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_cl_appl_data_kesh_appl_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<cl_appl_data_type, Self> {
    public:
        using detail::operations<cl_appl_data_type, Self>::operations;

        /// Show: print the header.
        bool show_header() const { return this->call_(lumo_tarn_cl_appl_data_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_cl_appl_data_show_header_state_flag_get);
        }

        /// Elements in kesh_appl.
        std::uint32_t num_kesh_appls() const { return this->call_(lumo_tarn_cl_appl_data_num_kesh_appls_get_value); }

        /// Applications.
        lumo_ui_tarn::array_view<kesh_appl_array> kesh_appl() const { return this->template array_<kesh_appl_array>(); }
        /// The state byte of kesh_appl; none if the record has no states.
        std::optional<std::uint8_t> kesh_appl_state() const {
            return this->state_(lumo_tarn_cl_appl_data_kesh_appl_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"num_kesh_appls", &members::num_kesh_appls, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"kesh_appl", &members::kesh_appl, nullptr, &members::kesh_appl_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_cl_appl_data_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_appl_data_show_header_state_flag_set, value);
        }


        using members<Self>::kesh_appl;
        /// Applications.
        lumo_ui_tarn::array_ref<kesh_appl_array> kesh_appl() { return this->template array_<kesh_appl_array>(); }
        /// Writes the state byte of kesh_appl.
        Self &set_kesh_appl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_appl_data_kesh_appl_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_cl_appl_data_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_appl_data_show_header_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<kesh_appl_array> kesh_appl() const { return this->template array_<kesh_appl_array>(); }
        const Self &set_kesh_appl_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_appl_data_kesh_appl_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"num_kesh_appls", &M::num_kesh_appls, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"kesh_appl", detail::writable(&M::kesh_appl, 0), nullptr, &M::kesh_appl_state,
            &M::set_kesh_appl_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_cl_appl_data.
using cl_appl_data = record<cl_appl_data_type>;
/// Borrows a lumo_tarn_cl_appl_data.
using cl_appl_data_ref = record_ref<cl_appl_data_type>;
/// Borrows a lumo_tarn_cl_appl_data to read it.
using cl_appl_data_view = record_view<cl_appl_data_type>;

/// lumo_tarn_static_exmem_info: block that a processor holds for the whole of its life, by kind of memory.
struct static_exmem_info_type {
    using native = lumo_tarn_static_exmem_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_static_exmem_info";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_static_exmem_info_create;
    /// Same as lumo_tarn_static_exmem_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_static_exmem_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_static_exmem_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_static_exmem_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_static_exmem_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_static_exmem_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_static_exmem_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_static_exmem_info_destroy;
    /// Same as lumo_tarn_static_exmem_info_destroy(), but with free_it 0 the memory of the instance itself is not
    /// freed.
    static constexpr auto destroy_internal = lumo_tarn_static_exmem_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_static_exmem_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_static_exmem_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_static_exmem_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_static_exmem_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_static_exmem_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_static_exmem_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_static_exmem_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_static_exmem_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_static_exmem_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_static_exmem_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_static_exmem_info_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_static_exmem_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_static_exmem_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_static_exmem_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_static_exmem_info_marshal;
    /// Same as lumo_tarn_static_exmem_info_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_static_exmem_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_static_exmem_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_static_exmem_info_len(),
    /// and one guard byte after them.
    static constexpr auto clone = lumo_tarn_static_exmem_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_static_exmem_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_static_exmem_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_static_exmem_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_static_exmem_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_static_exmem_info_compare;
    static constexpr auto hash = lumo_tarn_static_exmem_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_static_exmem_info_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<static_exmem_info_type, Self> {
    public:
        using detail::operations<static_exmem_info_type, Self>::operations;

        /// What the block is used for.
        lumo_ui_tarn::mem_desc mem_type() const {
            return this->template enumerated_<lumo_ui_tarn::mem_desc>(lumo_tarn_static_exmem_info_mem_type_get_value);
        }
        /// The state byte of mem_type; none if the record has no states.
        std::optional<std::uint8_t> mem_type_state() const {
            return this->state_(lumo_tarn_static_exmem_info_mem_type_state_flag_get);
        }

        /// Number of hash elements in the block.
        std::uint32_t num_hash_elements() const {
            return this->call_(lumo_tarn_static_exmem_info_num_hash_elements_get_value);
        }
        /// The state byte of num_hash_elements; none if the record has no states.
        std::optional<std::uint8_t> num_hash_elements_state() const {
            return this->state_(lumo_tarn_static_exmem_info_num_hash_elements_state_flag_get);
        }

        /// Block itself.
        lumo_ui_tarn::exmem_info_view exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_static_exmem_info_exmem_get);
        }
        /// The state byte of exmem; none if the record has no states.
        std::optional<std::uint8_t> exmem_state() const {
            return this->state_(lumo_tarn_static_exmem_info_exmem_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"mem_type", &members::mem_type, nullptr, &members::mem_type_state, nullptr});
            visit(lumo_ui_tarn::member{"num_hash_elements", &members::num_hash_elements, nullptr,
                &members::num_hash_elements_state, nullptr});
            visit(lumo_ui_tarn::member{"exmem", &members::exmem, nullptr, &members::exmem_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes mem_type.
        Self &set_mem_type(lumo_ui_tarn::mem_desc value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_mem_type_set_value,
                static_cast<std::uint32_t>(value));
        }
        /// Writes the state byte of mem_type.
        Self &set_mem_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_mem_type_state_flag_set, value);
        }

        /// Writes num_hash_elements.
        Self &set_num_hash_elements(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_num_hash_elements_set_value, value);
        }
        /// Writes the state byte of num_hash_elements.
        Self &set_num_hash_elements_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_num_hash_elements_state_flag_set, value);
        }

        using members<Self>::exmem;
        /// Block itself.
        lumo_ui_tarn::exmem_info_ref exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_static_exmem_info_exmem_get);
        }
        /// Writes exmem.
        Self &set_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_static_exmem_info_exmem_get, lumo_tarn_static_exmem_info_exmem_set,
                value);
        }
        /// Moves a record into exmem.
        Self &adopt_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_static_exmem_info_exmem_get, lumo_tarn_static_exmem_info_exmem_set,
                std::move(value));
        }
        /// Writes the state byte of exmem.
        Self &set_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_exmem_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_mem_type(lumo_ui_tarn::mem_desc value) const {
            return this->write_(*this, lumo_tarn_static_exmem_info_mem_type_set_value,
                static_cast<std::uint32_t>(value));
        }
        const Self &set_mem_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_static_exmem_info_mem_type_state_flag_set, value);
        }
        const Self &set_num_hash_elements(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_static_exmem_info_num_hash_elements_set_value, value);
        }
        const Self &set_num_hash_elements_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_static_exmem_info_num_hash_elements_state_flag_set, value);
        }
        lumo_ui_tarn::exmem_info_ref exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_static_exmem_info_exmem_get);
        }
        const Self &set_exmem(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_static_exmem_info_exmem_get, lumo_tarn_static_exmem_info_exmem_set,
                value);
        }
        const Self &adopt_exmem(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_static_exmem_info_exmem_get, lumo_tarn_static_exmem_info_exmem_set,
                std::move(value));
        }
        const Self &set_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_static_exmem_info_exmem_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"mem_type", &M::mem_type, &M::set_mem_type, &M::mem_type_state,
            &M::set_mem_type_state});
        visit(lumo_ui_tarn::member{"num_hash_elements", &M::num_hash_elements, &M::set_num_hash_elements,
            &M::num_hash_elements_state, &M::set_num_hash_elements_state});
        visit(lumo_ui_tarn::member{"exmem", detail::writable(&M::exmem, 0), &M::set_exmem, &M::exmem_state,
            &M::set_exmem_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_static_exmem_info.
using static_exmem_info = record<static_exmem_info_type>;
/// Borrows a lumo_tarn_static_exmem_info.
using static_exmem_info_ref = record_ref<static_exmem_info_type>;
/// Borrows a lumo_tarn_static_exmem_info to read it.
using static_exmem_info_view = record_view<static_exmem_info_type>;

/// lumo_tarn_dyn_exmem_info: blocks that a processor adds while it runs, by kind of memory.
struct dyn_exmem_info_type {
    using native = lumo_tarn_dyn_exmem_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dyn_exmem_info";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dyn_exmem_info_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dyn_exmem_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dyn_exmem_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dyn_exmem_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dyn_exmem_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dyn_exmem_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dyn_exmem_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dyn_exmem_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dyn_exmem_info_destroy;
    /// Same as lumo_tarn_dyn_exmem_info_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dyn_exmem_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dyn_exmem_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dyn_exmem_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dyn_exmem_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dyn_exmem_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dyn_exmem_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dyn_exmem_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dyn_exmem_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dyn_exmem_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dyn_exmem_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dyn_exmem_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dyn_exmem_info_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dyn_exmem_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dyn_exmem_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dyn_exmem_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dyn_exmem_info_marshal;
    /// Same as lumo_tarn_dyn_exmem_info_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dyn_exmem_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dyn_exmem_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dyn_exmem_info_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dyn_exmem_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dyn_exmem_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dyn_exmem_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dyn_exmem_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dyn_exmem_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dyn_exmem_info_compare;
    static constexpr auto hash = lumo_tarn_dyn_exmem_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dyn_exmem_info_type_type_backpropagate;

    /// How exmem is read and written, for array_ref.
    struct exmem_array {
        using native = lumo_tarn_dyn_exmem_info;  ///< the record that has the array
        using element = lumo_ui_tarn::exmem_info_wrapper_type;  ///< what it is an array of
        using count = std::uint32_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dyn_exmem_info_num_exmems_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dyn_exmem_info_exmem_get;  ///< an element
        static constexpr auto set = lumo_tarn_dyn_exmem_info_exmem_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_dyn_exmem_info_exmem_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dyn_exmem_info_exmem_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dyn_exmem_info_type, Self> {
    public:
        using detail::operations<dyn_exmem_info_type, Self>::operations;

        /// What the blocks are used for.
        lumo_ui_tarn::mem_desc mem_type() const {
            return this->template enumerated_<lumo_ui_tarn::mem_desc>(lumo_tarn_dyn_exmem_info_mem_type_get_value);
        }
        /// The state byte of mem_type; none if the record has no states.
        std::optional<std::uint8_t> mem_type_state() const {
            return this->state_(lumo_tarn_dyn_exmem_info_mem_type_state_flag_get);
        }

        /// The list header of the dynamic blocks.
        std::uint64_t list_header_ptr() const {
            return this->call_(lumo_tarn_dyn_exmem_info_list_header_ptr_get_value);
        }
        /// The state byte of list_header_ptr; none if the record has no states.
        std::optional<std::uint8_t> list_header_ptr_state() const {
            return this->state_(lumo_tarn_dyn_exmem_info_list_header_ptr_state_flag_get);
        }

        /// Elements in exmem.
        std::uint32_t num_exmems() const { return this->call_(lumo_tarn_dyn_exmem_info_num_exmems_get_value); }

        /// Dynamic blocks.
        lumo_ui_tarn::array_view<exmem_array> exmem() const { return this->template array_<exmem_array>(); }
        /// The state byte of exmem; none if the record has no states.
        std::optional<std::uint8_t> exmem_state() const {
            return this->state_(lumo_tarn_dyn_exmem_info_exmem_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"mem_type", &members::mem_type, nullptr, &members::mem_type_state, nullptr});
            visit(lumo_ui_tarn::member{"list_header_ptr", &members::list_header_ptr, nullptr,
                &members::list_header_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"num_exmems", &members::num_exmems, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"exmem", &members::exmem, nullptr, &members::exmem_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes mem_type.
        Self &set_mem_type(lumo_ui_tarn::mem_desc value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_mem_type_set_value, static_cast<std::uint32_t>(value));
        }
        /// Writes the state byte of mem_type.
        Self &set_mem_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_mem_type_state_flag_set, value);
        }

        /// Writes list_header_ptr.
        Self &set_list_header_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_list_header_ptr_set_value, value);
        }
        /// Writes the state byte of list_header_ptr.
        Self &set_list_header_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_list_header_ptr_state_flag_set, value);
        }


        using members<Self>::exmem;
        /// Dynamic blocks.
        lumo_ui_tarn::array_ref<exmem_array> exmem() { return this->template array_<exmem_array>(); }
        /// Writes the state byte of exmem.
        Self &set_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_exmem_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_mem_type(lumo_ui_tarn::mem_desc value) const {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_mem_type_set_value, static_cast<std::uint32_t>(value));
        }
        const Self &set_mem_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_mem_type_state_flag_set, value);
        }
        const Self &set_list_header_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_list_header_ptr_set_value, value);
        }
        const Self &set_list_header_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_list_header_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<exmem_array> exmem() const { return this->template array_<exmem_array>(); }
        const Self &set_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_exmem_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"mem_type", &M::mem_type, &M::set_mem_type, &M::mem_type_state,
            &M::set_mem_type_state});
        visit(lumo_ui_tarn::member{"list_header_ptr", &M::list_header_ptr, &M::set_list_header_ptr,
            &M::list_header_ptr_state, &M::set_list_header_ptr_state});
        visit(lumo_ui_tarn::member{"num_exmems", &M::num_exmems, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"exmem", detail::writable(&M::exmem, 0), nullptr, &M::exmem_state,
            &M::set_exmem_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dyn_exmem_info.
using dyn_exmem_info = record<dyn_exmem_info_type>;
/// Borrows a lumo_tarn_dyn_exmem_info.
using dyn_exmem_info_ref = record_ref<dyn_exmem_info_type>;
/// Borrows a lumo_tarn_dyn_exmem_info to read it.
using dyn_exmem_info_view = record_view<dyn_exmem_info_type>;

/// lumo_tarn_lumo_info: one processor.
struct lumo_info_type {
    using native = lumo_tarn_lumo_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_lumo_info";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_lumo_info_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_lumo_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_lumo_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_lumo_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_lumo_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_lumo_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_lumo_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_lumo_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_lumo_info_destroy;
    /// Same as lumo_tarn_lumo_info_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_lumo_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_lumo_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_lumo_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_lumo_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_lumo_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_lumo_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_lumo_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_lumo_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_lumo_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_lumo_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_lumo_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_lumo_info_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_lumo_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_lumo_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_lumo_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_lumo_info_marshal;
    /// Same as lumo_tarn_lumo_info_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_lumo_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_lumo_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_lumo_info_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_lumo_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_lumo_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_lumo_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_lumo_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_lumo_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_lumo_info_compare;
    static constexpr auto hash = lumo_tarn_lumo_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_lumo_info_type_type_backpropagate;

    /// How static_exmem is read and written, for array_ref.
    struct static_exmem_array {
        using native = lumo_tarn_lumo_info;  ///< the record that has the array
        using element = lumo_ui_tarn::static_exmem_info_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_lumo_info_num_static_exmems_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_lumo_info_static_exmem_get;  ///< an element
        static constexpr auto set = lumo_tarn_lumo_info_static_exmem_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_lumo_info_static_exmem_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_lumo_info_static_exmem_state_flag_set;
    };
    /// How dyn_exmem is read and written, for array_ref.
    struct dyn_exmem_array {
        using native = lumo_tarn_lumo_info;  ///< the record that has the array
        using element = lumo_ui_tarn::dyn_exmem_info_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_lumo_info_num_dyn_exmems_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_lumo_info_dyn_exmem_get;  ///< an element
        static constexpr auto set = lumo_tarn_lumo_info_dyn_exmem_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_lumo_info_dyn_exmem_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_lumo_info_dyn_exmem_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<lumo_info_type, Self> {
    public:
        using detail::operations<lumo_info_type, Self>::operations;

        /// Show: everything.
        bool display_all() const { return this->call_(lumo_tarn_lumo_info_display_all_get_value) != 0; }
        /// The state byte of display_all; none if the record has no states.
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_lumo_info_display_all_state_flag_get);
        }

        /// Show: the fdb part.
        bool display_fdb() const { return this->call_(lumo_tarn_lumo_info_display_fdb_get_value) != 0; }
        /// The state byte of display_fdb; none if the record has no states.
        std::optional<std::uint8_t> display_fdb_state() const {
            return this->state_(lumo_tarn_lumo_info_display_fdb_state_flag_get);
        }

        /// Show: the high-availability part.
        bool display_ha() const { return this->call_(lumo_tarn_lumo_info_display_ha_get_value) != 0; }
        /// The state byte of display_ha; none if the record has no states.
        std::optional<std::uint8_t> display_ha_state() const {
            return this->state_(lumo_tarn_lumo_info_display_ha_state_flag_get);
        }

        /// Show: the wexa part.
        bool display_wexa() const { return this->call_(lumo_tarn_lumo_info_display_wexa_get_value) != 0; }
        /// The state byte of display_wexa; none if the record has no states.
        std::optional<std::uint8_t> display_wexa_state() const {
            return this->state_(lumo_tarn_lumo_info_display_wexa_state_flag_get);
        }

        /// Show: the handles.
        bool display_handles() const { return this->call_(lumo_tarn_lumo_info_display_handles_get_value) != 0; }
        /// The state byte of display_handles; none if the record has no states.
        std::optional<std::uint8_t> display_handles_state() const {
            return this->state_(lumo_tarn_lumo_info_display_handles_state_flag_get);
        }

        /// Show: the memory blocks.
        bool display_exmem() const { return this->call_(lumo_tarn_lumo_info_display_exmem_get_value) != 0; }
        /// The state byte of display_exmem; none if the record has no states.
        std::optional<std::uint8_t> display_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_display_exmem_state_flag_get);
        }

        /// Show: the initialisation state.
        bool display_init() const { return this->call_(lumo_tarn_lumo_info_display_init_get_value) != 0; }
        /// The state byte of display_init; none if the record has no states.
        std::optional<std::uint8_t> display_init_state() const {
            return this->state_(lumo_tarn_lumo_info_display_init_state_flag_get);
        }

        /// Number of this lumo processor.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_lumo_info_lumo_num_get_value); }
        /// The state byte of lumo_num; none if the record has no states.
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_lumo_info_lumo_num_state_flag_get);
        }

        /// Number of the complex that the processor belongs to.
        std::uint8_t complex_num() const { return this->call_(lumo_tarn_lumo_info_complex_num_get_value); }
        /// The state byte of complex_num; none if the record has no states.
        std::optional<std::uint8_t> complex_num_state() const {
            return this->state_(lumo_tarn_lumo_info_complex_num_state_flag_get);
        }

        /// Direction of traffic that the processor serves.
        lumo_ui_tarn::lumo_direction direction() const {
            return this->template enumerated_<lumo_ui_tarn::lumo_direction>(lumo_tarn_lumo_info_direction_get_value);
        }
        /// The state byte of direction; none if the record has no states.
        std::optional<std::uint8_t> direction_state() const {
            return this->state_(lumo_tarn_lumo_info_direction_state_flag_get);
        }

        /// Epoch value of the processor.
        std::uint32_t epoch() const { return this->call_(lumo_tarn_lumo_info_epoch_get_value); }
        /// The state byte of epoch; none if the record has no states.
        std::optional<std::uint8_t> epoch_state() const {
            return this->state_(lumo_tarn_lumo_info_epoch_state_flag_get);
        }

        /// Flag word: fdb initialised.
        std::uint32_t fdb_initialized() const { return this->call_(lumo_tarn_lumo_info_fdb_initialized_get_value); }
        /// The state byte of fdb_initialized; none if the record has no states.
        std::optional<std::uint8_t> fdb_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_fdb_initialized_state_flag_get);
        }

        /// Header and footer description of the fdb.
        lumo_ui_tarn::fdb_base_view fdb_base() const {
            return this->template nested_<lumo_ui_tarn::fdb_base_type>(lumo_tarn_lumo_info_fdb_base_get);
        }
        /// The state byte of fdb_base; none if the record has no states.
        std::optional<std::uint8_t> fdb_base_state() const {
            return this->state_(lumo_tarn_lumo_info_fdb_base_state_flag_get);
        }

        /// Overhead of a chunk.
        std::uint16_t chunk_overhead() const { return this->call_(lumo_tarn_lumo_info_chunk_overhead_get_value); }
        /// The state byte of chunk_overhead; none if the record has no states.
        std::optional<std::uint8_t> chunk_overhead_state() const {
            return this->state_(lumo_tarn_lumo_info_chunk_overhead_state_flag_get);
        }

        /// Memory size of a flow information entry.
        std::uint16_t flow_info_mem_size() const {
            return this->call_(lumo_tarn_lumo_info_flow_info_mem_size_get_value);
        }
        /// The state byte of flow_info_mem_size; none if the record has no states.
        std::optional<std::uint8_t> flow_info_mem_size_state() const {
            return this->state_(lumo_tarn_lumo_info_flow_info_mem_size_state_flag_get);
        }

        /// Size of an mp cache entry.
        std::uint16_t mp_cache_entry_size() const {
            return this->call_(lumo_tarn_lumo_info_mp_cache_entry_size_get_value);
        }
        /// The state byte of mp_cache_entry_size; none if the record has no states.
        std::optional<std::uint8_t> mp_cache_entry_size_state() const {
            return this->state_(lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_get);
        }

        /// Size of a tt cache entry.
        std::uint16_t tt_cache_entry_size() const {
            return this->call_(lumo_tarn_lumo_info_tt_cache_entry_size_get_value);
        }
        /// The state byte of tt_cache_entry_size; none if the record has no states.
        std::optional<std::uint8_t> tt_cache_entry_size_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_get);
        }

        /// Memory of the feature's traffic table.
        lumo_ui_tarn::fdb_mem_info_view tarn_tt_tbl() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_tt_tbl_get);
        }
        /// The state byte of tarn_tt_tbl; none if the record has no states.
        std::optional<std::uint8_t> tarn_tt_tbl_state() const {
            return this->state_(lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_get);
        }

        /// Memory of the feature's debug flags.
        lumo_ui_tarn::fdb_mem_info_view tarn_debug_flags() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_debug_flags_get);
        }
        /// The state byte of tarn_debug_flags; none if the record has no states.
        std::optional<std::uint8_t> tarn_debug_flags_state() const {
            return this->state_(lumo_tarn_lumo_info_tarn_debug_flags_state_flag_get);
        }

        /// High-availability state of the processor.
        lumo_ui_tarn::ha_state ha_state() const {
            return this->template enumerated_<lumo_ui_tarn::ha_state>(lumo_tarn_lumo_info_ha_state_get_value);
        }
        /// The state byte of ha_state; none if the record has no states.
        std::optional<std::uint8_t> ha_state_state() const {
            return this->state_(lumo_tarn_lumo_info_ha_state_state_flag_get);
        }

        /// Flag word: high availability is running.
        std::uint32_t ha_running() const { return this->call_(lumo_tarn_lumo_info_ha_running_get_value); }
        /// The state byte of ha_running; none if the record has no states.
        std::optional<std::uint8_t> ha_running_state() const {
            return this->state_(lumo_tarn_lumo_info_ha_running_state_flag_get);
        }

        /// Flag word: high availability is enabled.
        std::uint32_t ha_enabled() const { return this->call_(lumo_tarn_lumo_info_ha_enabled_get_value); }
        /// The state byte of ha_enabled; none if the record has no states.
        std::optional<std::uint8_t> ha_enabled_state() const {
            return this->state_(lumo_tarn_lumo_info_ha_enabled_state_flag_get);
        }

        /// Handle: the connection to the driver.
        std::uint64_t drv_conn_h() const { return this->call_(lumo_tarn_lumo_info_drv_conn_h_get_value); }
        /// The state byte of drv_conn_h; none if the record has no states.
        std::optional<std::uint8_t> drv_conn_h_state() const {
            return this->state_(lumo_tarn_lumo_info_drv_conn_h_state_flag_get);
        }

        /// Handle: external memory.
        std::uint64_t exmem_h() const { return this->call_(lumo_tarn_lumo_info_exmem_h_get_value); }
        /// The state byte of exmem_h; none if the record has no states.
        std::optional<std::uint8_t> exmem_h_state() const {
            return this->state_(lumo_tarn_lumo_info_exmem_h_state_flag_get);
        }

        /// Number of features in a wexa entry.
        std::uint16_t wexa_num_feat() const { return this->call_(lumo_tarn_lumo_info_wexa_num_feat_get_value); }
        /// The state byte of wexa_num_feat; none if the record has no states.
        std::optional<std::uint8_t> wexa_num_feat_state() const {
            return this->state_(lumo_tarn_lumo_info_wexa_num_feat_state_flag_get);
        }

        /// Size of a feature in a wexa entry.
        std::uint16_t wexa_feat_size() const { return this->call_(lumo_tarn_lumo_info_wexa_feat_size_get_value); }
        /// The state byte of wexa_feat_size; none if the record has no states.
        std::optional<std::uint8_t> wexa_feat_size_state() const {
            return this->state_(lumo_tarn_lumo_info_wexa_feat_size_state_flag_get);
        }

        /// Handle: ingress wexa.
        std::uint64_t in_wexa_h() const { return this->call_(lumo_tarn_lumo_info_in_wexa_h_get_value); }
        /// The state byte of in_wexa_h; none if the record has no states.
        std::optional<std::uint8_t> in_wexa_h_state() const {
            return this->state_(lumo_tarn_lumo_info_in_wexa_h_state_flag_get);
        }

        /// Handle: ingress wexa feature.
        std::uint64_t in_wexa_feat_h() const { return this->call_(lumo_tarn_lumo_info_in_wexa_feat_h_get_value); }
        /// The state byte of in_wexa_feat_h; none if the record has no states.
        std::optional<std::uint8_t> in_wexa_feat_h_state() const {
            return this->state_(lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_get);
        }

        /// Handle: egress wexa.
        std::uint64_t out_wexa_h() const { return this->call_(lumo_tarn_lumo_info_out_wexa_h_get_value); }
        /// The state byte of out_wexa_h; none if the record has no states.
        std::optional<std::uint8_t> out_wexa_h_state() const {
            return this->state_(lumo_tarn_lumo_info_out_wexa_h_state_flag_get);
        }

        /// Handle: egress wexa feature.
        std::uint64_t out_wexa_feat_h() const { return this->call_(lumo_tarn_lumo_info_out_wexa_feat_h_get_value); }
        /// The state byte of out_wexa_feat_h; none if the record has no states.
        std::optional<std::uint8_t> out_wexa_feat_h_state() const {
            return this->state_(lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_get);
        }

        /// Salt of the data plane's hash, carried as a datum.
        std::uint32_t dp_hash_salt() const { return this->call_(lumo_tarn_lumo_info_dp_hash_salt_get_value); }
        /// The state byte of dp_hash_salt; none if the record has no states.
        std::optional<std::uint8_t> dp_hash_salt_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_hash_salt_state_flag_get);
        }

        /// Flag word: flow information initialised on the client side.
        std::uint32_t flow_info_initialized() const {
            return this->call_(lumo_tarn_lumo_info_flow_info_initialized_get_value);
        }
        /// The state byte of flow_info_initialized; none if the record has no states.
        std::optional<std::uint8_t> flow_info_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_flow_info_initialized_state_flag_get);
        }

        /// Flag word: flow information initialised in the data plane.
        std::uint32_t dp_flow_info_initialized() const {
            return this->call_(lumo_tarn_lumo_info_dp_flow_info_initialized_get_value);
        }
        /// The state byte of dp_flow_info_initialized; none if the record has no states.
        std::optional<std::uint8_t> dp_flow_info_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_get);
        }

        /// Flag word: mp initialised on the client side.
        std::uint32_t mp_initialized() const { return this->call_(lumo_tarn_lumo_info_mp_initialized_get_value); }
        /// The state byte of mp_initialized; none if the record has no states.
        std::optional<std::uint8_t> mp_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_mp_initialized_state_flag_get);
        }

        /// Flag word: mp initialised in the data plane.
        std::uint32_t dp_mp_initialized() const { return this->call_(lumo_tarn_lumo_info_dp_mp_initialized_get_value); }
        /// The state byte of dp_mp_initialized; none if the record has no states.
        std::optional<std::uint8_t> dp_mp_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_mp_initialized_state_flag_get);
        }

        /// Flag word: tt initialised on the client side.
        std::uint32_t tt_initialized() const { return this->call_(lumo_tarn_lumo_info_tt_initialized_get_value); }
        /// The state byte of tt_initialized; none if the record has no states.
        std::optional<std::uint8_t> tt_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_initialized_state_flag_get);
        }

        /// Flag word: tt initialised in the data plane.
        std::uint32_t dp_tt_initialized() const { return this->call_(lumo_tarn_lumo_info_dp_tt_initialized_get_value); }
        /// The state byte of dp_tt_initialized; none if the record has no states.
        std::optional<std::uint8_t> dp_tt_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_tt_initialized_state_flag_get);
        }

        /// Flag word: application signatures initialised on the client side.
        std::uint32_t appl_sig_initialized() const {
            return this->call_(lumo_tarn_lumo_info_appl_sig_initialized_get_value);
        }
        /// The state byte of appl_sig_initialized; none if the record has no states.
        std::optional<std::uint8_t> appl_sig_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_sig_initialized_state_flag_get);
        }

        /// Flag word: application signatures initialised in the data plane.
        std::uint32_t dp_appl_sig_initialized() const {
            return this->call_(lumo_tarn_lumo_info_dp_appl_sig_initialized_get_value);
        }
        /// The state byte of dp_appl_sig_initialized; none if the record has no states.
        std::optional<std::uint8_t> dp_appl_sig_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_get);
        }

        /// External memory of the traffic table's filter class list.
        std::uint64_t tt_tc_filter_list_exmem_ptr() const {
            return this->call_(lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get_value);
        }
        /// The state byte of tt_tc_filter_list_exmem_ptr; none if the record has no states.
        std::optional<std::uint8_t> tt_tc_filter_list_exmem_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_get);
        }

        /// External memory of the traffic table's aggregation class list.
        std::uint64_t tt_tc_agg_list_exmem_ptr() const {
            return this->call_(lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get_value);
        }
        /// The state byte of tt_tc_agg_list_exmem_ptr; none if the record has no states.
        std::optional<std::uint8_t> tt_tc_agg_list_exmem_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_get);
        }

        /// External memory of the traffic table's learn list.
        std::uint64_t tt_tc_learn_list_exmem_ptr() const {
            return this->call_(lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get_value);
        }
        /// The state byte of tt_tc_learn_list_exmem_ptr; none if the record has no states.
        std::optional<std::uint8_t> tt_tc_learn_list_exmem_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_get);
        }

        /// Handle: chunk pool of class list heads.
        std::uint64_t tc_list_head_chunk_h() const {
            return this->call_(lumo_tarn_lumo_info_tc_list_head_chunk_h_get_value);
        }
        /// The state byte of tc_list_head_chunk_h; none if the record has no states.
        std::optional<std::uint8_t> tc_list_head_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_get);
        }

        /// Handle: chunk pool of traffic classes.
        std::uint64_t tc_chunk_h() const { return this->call_(lumo_tarn_lumo_info_tc_chunk_h_get_value); }
        /// The state byte of tc_chunk_h; none if the record has no states.
        std::optional<std::uint8_t> tc_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_tc_chunk_h_state_flag_get);
        }

        /// Handle: chunk pool of learn lists.
        std::uint64_t ll_chunk_h() const { return this->call_(lumo_tarn_lumo_info_ll_chunk_h_get_value); }
        /// The state byte of ll_chunk_h; none if the record has no states.
        std::optional<std::uint8_t> ll_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_ll_chunk_h_state_flag_get);
        }

        /// Handle: chunk pool of applications.
        std::uint64_t appl_chunk_h() const { return this->call_(lumo_tarn_lumo_info_appl_chunk_h_get_value); }
        /// The state byte of appl_chunk_h; none if the record has no states.
        std::optional<std::uint8_t> appl_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_chunk_h_state_flag_get);
        }

        /// The client side's application signature hash.
        std::uint64_t cl_appl_sig_hash_ptr() const {
            return this->call_(lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get_value);
        }
        /// The state byte of cl_appl_sig_hash_ptr; none if the record has no states.
        std::optional<std::uint8_t> cl_appl_sig_hash_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_get);
        }

        /// Handle: the data plane's application signature hash.
        std::uint64_t dp_appl_sig_hash_h() const {
            return this->call_(lumo_tarn_lumo_info_dp_appl_sig_hash_h_get_value);
        }
        /// The state byte of dp_appl_sig_hash_h; none if the record has no states.
        std::optional<std::uint8_t> dp_appl_sig_hash_h_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_get);
        }

        /// Handle: chunk pool of application signatures.
        std::uint64_t appl_sig_chunk_h() const { return this->call_(lumo_tarn_lumo_info_appl_sig_chunk_h_get_value); }
        /// The state byte of appl_sig_chunk_h; none if the record has no states.
        std::optional<std::uint8_t> appl_sig_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_get);
        }

        /// Block of the application signature hash.
        lumo_ui_tarn::exmem_info_view appl_sig_hash_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_appl_sig_hash_exmem_get);
        }
        /// The state byte of appl_sig_hash_exmem; none if the record has no states.
        std::optional<std::uint8_t> appl_sig_hash_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_get);
        }

        /// Block of the mp export.
        lumo_ui_tarn::exmem_info_view mp_export_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_mp_export_exmem_get);
        }
        /// The state byte of mp_export_exmem; none if the record has no states.
        std::optional<std::uint8_t> mp_export_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_mp_export_exmem_state_flag_get);
        }

        /// Block of the tt export.
        lumo_ui_tarn::exmem_info_view tt_export_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_tt_export_exmem_get);
        }
        /// The state byte of tt_export_exmem; none if the record has no states.
        std::optional<std::uint8_t> tt_export_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_export_exmem_state_flag_get);
        }

        /// Elements in static_exmem.
        std::uint8_t num_static_exmems() const { return this->call_(lumo_tarn_lumo_info_num_static_exmems_get_value); }

        /// Processor's static memory blocks.
        lumo_ui_tarn::array_view<static_exmem_array> static_exmem() const {
            return this->template array_<static_exmem_array>();
        }
        /// The state byte of static_exmem; none if the record has no states.
        std::optional<std::uint8_t> static_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_static_exmem_state_flag_whole_get);
        }

        /// Elements in dyn_exmem.
        std::uint8_t num_dyn_exmems() const { return this->call_(lumo_tarn_lumo_info_num_dyn_exmems_get_value); }

        /// Processor's dynamic memory blocks.
        lumo_ui_tarn::array_view<dyn_exmem_array> dyn_exmem() const { return this->template array_<dyn_exmem_array>(); }
        /// The state byte of dyn_exmem; none if the record has no states.
        std::optional<std::uint8_t> dyn_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"display_all", &members::display_all, nullptr, &members::display_all_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_fdb", &members::display_fdb, nullptr, &members::display_fdb_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_ha", &members::display_ha, nullptr, &members::display_ha_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_wexa", &members::display_wexa, nullptr, &members::display_wexa_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_handles", &members::display_handles, nullptr,
                &members::display_handles_state, nullptr});
            visit(lumo_ui_tarn::member{"display_exmem", &members::display_exmem, nullptr, &members::display_exmem_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_init", &members::display_init, nullptr, &members::display_init_state,
                nullptr});
            visit(lumo_ui_tarn::member{"lumo_num", &members::lumo_num, nullptr, &members::lumo_num_state, nullptr});
            visit(lumo_ui_tarn::member{"complex_num", &members::complex_num, nullptr, &members::complex_num_state,
                nullptr});
            visit(lumo_ui_tarn::member{"direction", &members::direction, nullptr, &members::direction_state, nullptr});
            visit(lumo_ui_tarn::member{"epoch", &members::epoch, nullptr, &members::epoch_state, nullptr});
            visit(lumo_ui_tarn::member{"fdb_initialized", &members::fdb_initialized, nullptr,
                &members::fdb_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"fdb_base", &members::fdb_base, nullptr, &members::fdb_base_state, nullptr});
            visit(lumo_ui_tarn::member{"chunk_overhead", &members::chunk_overhead, nullptr,
                &members::chunk_overhead_state, nullptr});
            visit(lumo_ui_tarn::member{"flow_info_mem_size", &members::flow_info_mem_size, nullptr,
                &members::flow_info_mem_size_state, nullptr});
            visit(lumo_ui_tarn::member{"mp_cache_entry_size", &members::mp_cache_entry_size, nullptr,
                &members::mp_cache_entry_size_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_cache_entry_size", &members::tt_cache_entry_size, nullptr,
                &members::tt_cache_entry_size_state, nullptr});
            visit(lumo_ui_tarn::member{"tarn_tt_tbl", &members::tarn_tt_tbl, nullptr, &members::tarn_tt_tbl_state,
                nullptr});
            visit(lumo_ui_tarn::member{"tarn_debug_flags", &members::tarn_debug_flags, nullptr,
                &members::tarn_debug_flags_state, nullptr});
            visit(lumo_ui_tarn::member{"ha_state", &members::ha_state, nullptr, &members::ha_state_state, nullptr});
            visit(lumo_ui_tarn::member{"ha_running", &members::ha_running, nullptr, &members::ha_running_state,
                nullptr});
            visit(lumo_ui_tarn::member{"ha_enabled", &members::ha_enabled, nullptr, &members::ha_enabled_state,
                nullptr});
            visit(lumo_ui_tarn::member{"drv_conn_h", &members::drv_conn_h, nullptr, &members::drv_conn_h_state,
                nullptr});
            visit(lumo_ui_tarn::member{"exmem_h", &members::exmem_h, nullptr, &members::exmem_h_state, nullptr});
            visit(lumo_ui_tarn::member{"wexa_num_feat", &members::wexa_num_feat, nullptr, &members::wexa_num_feat_state,
                nullptr});
            visit(lumo_ui_tarn::member{"wexa_feat_size", &members::wexa_feat_size, nullptr,
                &members::wexa_feat_size_state, nullptr});
            visit(lumo_ui_tarn::member{"in_wexa_h", &members::in_wexa_h, nullptr, &members::in_wexa_h_state, nullptr});
            visit(lumo_ui_tarn::member{"in_wexa_feat_h", &members::in_wexa_feat_h, nullptr,
                &members::in_wexa_feat_h_state, nullptr});
            visit(lumo_ui_tarn::member{"out_wexa_h", &members::out_wexa_h, nullptr, &members::out_wexa_h_state,
                nullptr});
            visit(lumo_ui_tarn::member{"out_wexa_feat_h", &members::out_wexa_feat_h, nullptr,
                &members::out_wexa_feat_h_state, nullptr});
            visit(lumo_ui_tarn::member{"dp_hash_salt", &members::dp_hash_salt, nullptr, &members::dp_hash_salt_state,
                nullptr});
            visit(lumo_ui_tarn::member{"flow_info_initialized", &members::flow_info_initialized, nullptr,
                &members::flow_info_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"dp_flow_info_initialized", &members::dp_flow_info_initialized, nullptr,
                &members::dp_flow_info_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"mp_initialized", &members::mp_initialized, nullptr,
                &members::mp_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"dp_mp_initialized", &members::dp_mp_initialized, nullptr,
                &members::dp_mp_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_initialized", &members::tt_initialized, nullptr,
                &members::tt_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"dp_tt_initialized", &members::dp_tt_initialized, nullptr,
                &members::dp_tt_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"appl_sig_initialized", &members::appl_sig_initialized, nullptr,
                &members::appl_sig_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"dp_appl_sig_initialized", &members::dp_appl_sig_initialized, nullptr,
                &members::dp_appl_sig_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_tc_filter_list_exmem_ptr", &members::tt_tc_filter_list_exmem_ptr, nullptr,
                &members::tt_tc_filter_list_exmem_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_tc_agg_list_exmem_ptr", &members::tt_tc_agg_list_exmem_ptr, nullptr,
                &members::tt_tc_agg_list_exmem_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_tc_learn_list_exmem_ptr", &members::tt_tc_learn_list_exmem_ptr, nullptr,
                &members::tt_tc_learn_list_exmem_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"tc_list_head_chunk_h", &members::tc_list_head_chunk_h, nullptr,
                &members::tc_list_head_chunk_h_state, nullptr});
            visit(lumo_ui_tarn::member{"tc_chunk_h", &members::tc_chunk_h, nullptr, &members::tc_chunk_h_state,
                nullptr});
            visit(lumo_ui_tarn::member{"ll_chunk_h", &members::ll_chunk_h, nullptr, &members::ll_chunk_h_state,
                nullptr});
            visit(lumo_ui_tarn::member{"appl_chunk_h", &members::appl_chunk_h, nullptr, &members::appl_chunk_h_state,
                nullptr});
            visit(lumo_ui_tarn::member{"cl_appl_sig_hash_ptr", &members::cl_appl_sig_hash_ptr, nullptr,
                &members::cl_appl_sig_hash_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"dp_appl_sig_hash_h", &members::dp_appl_sig_hash_h, nullptr,
                &members::dp_appl_sig_hash_h_state, nullptr});
            visit(lumo_ui_tarn::member{"appl_sig_chunk_h", &members::appl_sig_chunk_h, nullptr,
                &members::appl_sig_chunk_h_state, nullptr});
            visit(lumo_ui_tarn::member{"appl_sig_hash_exmem", &members::appl_sig_hash_exmem, nullptr,
                &members::appl_sig_hash_exmem_state, nullptr});
            visit(lumo_ui_tarn::member{"mp_export_exmem", &members::mp_export_exmem, nullptr,
                &members::mp_export_exmem_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_export_exmem", &members::tt_export_exmem, nullptr,
                &members::tt_export_exmem_state, nullptr});
            visit(lumo_ui_tarn::member{"num_static_exmems", &members::num_static_exmems, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"static_exmem", &members::static_exmem, nullptr, &members::static_exmem_state,
                nullptr});
            visit(lumo_ui_tarn::member{"num_dyn_exmems", &members::num_dyn_exmems, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"dyn_exmem", &members::dyn_exmem, nullptr, &members::dyn_exmem_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes display_all.
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_all.
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_all_state_flag_set, value);
        }

        /// Writes display_fdb.
        Self &set_display_fdb(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_fdb_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_fdb.
        Self &set_display_fdb_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_fdb_state_flag_set, value);
        }

        /// Writes display_ha.
        Self &set_display_ha(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_ha_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_ha.
        Self &set_display_ha_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_ha_state_flag_set, value);
        }

        /// Writes display_wexa.
        Self &set_display_wexa(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_wexa_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_wexa.
        Self &set_display_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_wexa_state_flag_set, value);
        }

        /// Writes display_handles.
        Self &set_display_handles(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_handles_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_handles.
        Self &set_display_handles_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_handles_state_flag_set, value);
        }

        /// Writes display_exmem.
        Self &set_display_exmem(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_exmem_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_exmem.
        Self &set_display_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_exmem_state_flag_set, value);
        }

        /// Writes display_init.
        Self &set_display_init(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_init_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_init.
        Self &set_display_init_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_init_state_flag_set, value);
        }

        /// Writes lumo_num.
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_lumo_num_set_value, value);
        }
        /// Writes the state byte of lumo_num.
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_lumo_num_state_flag_set, value);
        }

        /// Writes complex_num.
        Self &set_complex_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_complex_num_set_value, value);
        }
        /// Writes the state byte of complex_num.
        Self &set_complex_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_complex_num_state_flag_set, value);
        }

        /// Writes direction.
        Self &set_direction(lumo_ui_tarn::lumo_direction value) {
            return this->write_(*this, lumo_tarn_lumo_info_direction_set_value, static_cast<std::uint32_t>(value));
        }
        /// Writes the state byte of direction.
        Self &set_direction_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_direction_state_flag_set, value);
        }

        /// Writes epoch.
        Self &set_epoch(std::uint32_t value) { return this->write_(*this, lumo_tarn_lumo_info_epoch_set_value, value); }
        /// Writes the state byte of epoch.
        Self &set_epoch_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_epoch_state_flag_set, value);
        }

        /// Writes fdb_initialized.
        Self &set_fdb_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_initialized_set_value, value);
        }
        /// Writes the state byte of fdb_initialized.
        Self &set_fdb_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_initialized_state_flag_set, value);
        }

        using members<Self>::fdb_base;
        /// Header and footer description of the fdb.
        lumo_ui_tarn::fdb_base_ref fdb_base() {
            return this->template nested_<lumo_ui_tarn::fdb_base_type>(lumo_tarn_lumo_info_fdb_base_get);
        }
        /// Writes fdb_base.
        Self &set_fdb_base(lumo_ui_tarn::fdb_base_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_fdb_base_get, lumo_tarn_lumo_info_fdb_base_set, value);
        }
        /// Moves a record into fdb_base.
        Self &adopt_fdb_base(lumo_ui_tarn::fdb_base &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_fdb_base_get, lumo_tarn_lumo_info_fdb_base_set,
                std::move(value));
        }
        /// Writes the state byte of fdb_base.
        Self &set_fdb_base_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_base_state_flag_set, value);
        }

        /// Writes chunk_overhead.
        Self &set_chunk_overhead(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_chunk_overhead_set_value, value);
        }
        /// Writes the state byte of chunk_overhead.
        Self &set_chunk_overhead_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_chunk_overhead_state_flag_set, value);
        }

        /// Writes flow_info_mem_size.
        Self &set_flow_info_mem_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_mem_size_set_value, value);
        }
        /// Writes the state byte of flow_info_mem_size.
        Self &set_flow_info_mem_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_mem_size_state_flag_set, value);
        }

        /// Writes mp_cache_entry_size.
        Self &set_mp_cache_entry_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_cache_entry_size_set_value, value);
        }
        /// Writes the state byte of mp_cache_entry_size.
        Self &set_mp_cache_entry_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_set, value);
        }

        /// Writes tt_cache_entry_size.
        Self &set_tt_cache_entry_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_cache_entry_size_set_value, value);
        }
        /// Writes the state byte of tt_cache_entry_size.
        Self &set_tt_cache_entry_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_set, value);
        }

        using members<Self>::tarn_tt_tbl;
        /// Memory of the feature's traffic table.
        lumo_ui_tarn::fdb_mem_info_ref tarn_tt_tbl() {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_tt_tbl_get);
        }
        /// Writes tarn_tt_tbl.
        Self &set_tarn_tt_tbl(lumo_ui_tarn::fdb_mem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_get, lumo_tarn_lumo_info_tarn_tt_tbl_set,
                value);
        }
        /// Moves a record into tarn_tt_tbl.
        Self &adopt_tarn_tt_tbl(lumo_ui_tarn::fdb_mem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_get, lumo_tarn_lumo_info_tarn_tt_tbl_set,
                std::move(value));
        }
        /// Writes the state byte of tarn_tt_tbl.
        Self &set_tarn_tt_tbl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_set, value);
        }

        using members<Self>::tarn_debug_flags;
        /// Memory of the feature's debug flags.
        lumo_ui_tarn::fdb_mem_info_ref tarn_debug_flags() {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_debug_flags_get);
        }
        /// Writes tarn_debug_flags.
        Self &set_tarn_debug_flags(lumo_ui_tarn::fdb_mem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_tarn_debug_flags_get,
                lumo_tarn_lumo_info_tarn_debug_flags_set, value);
        }
        /// Moves a record into tarn_debug_flags.
        Self &adopt_tarn_debug_flags(lumo_ui_tarn::fdb_mem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_tarn_debug_flags_get,
                lumo_tarn_lumo_info_tarn_debug_flags_set, std::move(value));
        }
        /// Writes the state byte of tarn_debug_flags.
        Self &set_tarn_debug_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tarn_debug_flags_state_flag_set, value);
        }

        /// Writes ha_state.
        Self &set_ha_state(lumo_ui_tarn::ha_state value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_state_set_value, static_cast<std::uint32_t>(value));
        }
        /// Writes the state byte of ha_state.
        Self &set_ha_state_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_state_state_flag_set, value);
        }

        /// Writes ha_running.
        Self &set_ha_running(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_running_set_value, value);
        }
        /// Writes the state byte of ha_running.
        Self &set_ha_running_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_running_state_flag_set, value);
        }

        /// Writes ha_enabled.
        Self &set_ha_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_enabled_set_value, value);
        }
        /// Writes the state byte of ha_enabled.
        Self &set_ha_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_enabled_state_flag_set, value);
        }

        /// Writes drv_conn_h.
        Self &set_drv_conn_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_drv_conn_h_set_value, value);
        }
        /// Writes the state byte of drv_conn_h.
        Self &set_drv_conn_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_drv_conn_h_state_flag_set, value);
        }

        /// Writes exmem_h.
        Self &set_exmem_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_exmem_h_set_value, value);
        }
        /// Writes the state byte of exmem_h.
        Self &set_exmem_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_exmem_h_state_flag_set, value);
        }

        /// Writes wexa_num_feat.
        Self &set_wexa_num_feat(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_num_feat_set_value, value);
        }
        /// Writes the state byte of wexa_num_feat.
        Self &set_wexa_num_feat_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_num_feat_state_flag_set, value);
        }

        /// Writes wexa_feat_size.
        Self &set_wexa_feat_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_feat_size_set_value, value);
        }
        /// Writes the state byte of wexa_feat_size.
        Self &set_wexa_feat_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_feat_size_state_flag_set, value);
        }

        /// Writes in_wexa_h.
        Self &set_in_wexa_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_h_set_value, value);
        }
        /// Writes the state byte of in_wexa_h.
        Self &set_in_wexa_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_h_state_flag_set, value);
        }

        /// Writes in_wexa_feat_h.
        Self &set_in_wexa_feat_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_feat_h_set_value, value);
        }
        /// Writes the state byte of in_wexa_feat_h.
        Self &set_in_wexa_feat_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_set, value);
        }

        /// Writes out_wexa_h.
        Self &set_out_wexa_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_h_set_value, value);
        }
        /// Writes the state byte of out_wexa_h.
        Self &set_out_wexa_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_h_state_flag_set, value);
        }

        /// Writes out_wexa_feat_h.
        Self &set_out_wexa_feat_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_feat_h_set_value, value);
        }
        /// Writes the state byte of out_wexa_feat_h.
        Self &set_out_wexa_feat_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_set, value);
        }

        /// Writes dp_hash_salt.
        Self &set_dp_hash_salt(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_hash_salt_set_value, value);
        }
        /// Writes the state byte of dp_hash_salt.
        Self &set_dp_hash_salt_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_hash_salt_state_flag_set, value);
        }

        /// Writes flow_info_initialized.
        Self &set_flow_info_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_initialized_set_value, value);
        }
        /// Writes the state byte of flow_info_initialized.
        Self &set_flow_info_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_initialized_state_flag_set, value);
        }

        /// Writes dp_flow_info_initialized.
        Self &set_dp_flow_info_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_flow_info_initialized_set_value, value);
        }
        /// Writes the state byte of dp_flow_info_initialized.
        Self &set_dp_flow_info_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_set, value);
        }

        /// Writes mp_initialized.
        Self &set_mp_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_initialized_set_value, value);
        }
        /// Writes the state byte of mp_initialized.
        Self &set_mp_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_initialized_state_flag_set, value);
        }

        /// Writes dp_mp_initialized.
        Self &set_dp_mp_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_mp_initialized_set_value, value);
        }
        /// Writes the state byte of dp_mp_initialized.
        Self &set_dp_mp_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_mp_initialized_state_flag_set, value);
        }

        /// Writes tt_initialized.
        Self &set_tt_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_initialized_set_value, value);
        }
        /// Writes the state byte of tt_initialized.
        Self &set_tt_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_initialized_state_flag_set, value);
        }

        /// Writes dp_tt_initialized.
        Self &set_dp_tt_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_tt_initialized_set_value, value);
        }
        /// Writes the state byte of dp_tt_initialized.
        Self &set_dp_tt_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_tt_initialized_state_flag_set, value);
        }

        /// Writes appl_sig_initialized.
        Self &set_appl_sig_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_initialized_set_value, value);
        }
        /// Writes the state byte of appl_sig_initialized.
        Self &set_appl_sig_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_initialized_state_flag_set, value);
        }

        /// Writes dp_appl_sig_initialized.
        Self &set_dp_appl_sig_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_initialized_set_value, value);
        }
        /// Writes the state byte of dp_appl_sig_initialized.
        Self &set_dp_appl_sig_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_set, value);
        }

        /// Writes tt_tc_filter_list_exmem_ptr.
        Self &set_tt_tc_filter_list_exmem_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set_value, value);
        }
        /// Writes the state byte of tt_tc_filter_list_exmem_ptr.
        Self &set_tt_tc_filter_list_exmem_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_set, value);
        }

        /// Writes tt_tc_agg_list_exmem_ptr.
        Self &set_tt_tc_agg_list_exmem_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set_value, value);
        }
        /// Writes the state byte of tt_tc_agg_list_exmem_ptr.
        Self &set_tt_tc_agg_list_exmem_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_set, value);
        }

        /// Writes tt_tc_learn_list_exmem_ptr.
        Self &set_tt_tc_learn_list_exmem_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set_value, value);
        }
        /// Writes the state byte of tt_tc_learn_list_exmem_ptr.
        Self &set_tt_tc_learn_list_exmem_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_set, value);
        }

        /// Writes tc_list_head_chunk_h.
        Self &set_tc_list_head_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_list_head_chunk_h_set_value, value);
        }
        /// Writes the state byte of tc_list_head_chunk_h.
        Self &set_tc_list_head_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_set, value);
        }

        /// Writes tc_chunk_h.
        Self &set_tc_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_chunk_h_set_value, value);
        }
        /// Writes the state byte of tc_chunk_h.
        Self &set_tc_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_chunk_h_state_flag_set, value);
        }

        /// Writes ll_chunk_h.
        Self &set_ll_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ll_chunk_h_set_value, value);
        }
        /// Writes the state byte of ll_chunk_h.
        Self &set_ll_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ll_chunk_h_state_flag_set, value);
        }

        /// Writes appl_chunk_h.
        Self &set_appl_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_chunk_h_set_value, value);
        }
        /// Writes the state byte of appl_chunk_h.
        Self &set_appl_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_chunk_h_state_flag_set, value);
        }

        /// Writes cl_appl_sig_hash_ptr.
        Self &set_cl_appl_sig_hash_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set_value, value);
        }
        /// Writes the state byte of cl_appl_sig_hash_ptr.
        Self &set_cl_appl_sig_hash_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_set, value);
        }

        /// Writes dp_appl_sig_hash_h.
        Self &set_dp_appl_sig_hash_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_hash_h_set_value, value);
        }
        /// Writes the state byte of dp_appl_sig_hash_h.
        Self &set_dp_appl_sig_hash_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_set, value);
        }

        /// Writes appl_sig_chunk_h.
        Self &set_appl_sig_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_chunk_h_set_value, value);
        }
        /// Writes the state byte of appl_sig_chunk_h.
        Self &set_appl_sig_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_set, value);
        }

        using members<Self>::appl_sig_hash_exmem;
        /// Block of the application signature hash.
        lumo_ui_tarn::exmem_info_ref appl_sig_hash_exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_appl_sig_hash_exmem_get);
        }
        /// Writes appl_sig_hash_exmem.
        Self &set_appl_sig_hash_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_get,
                lumo_tarn_lumo_info_appl_sig_hash_exmem_set, value);
        }
        /// Moves a record into appl_sig_hash_exmem.
        Self &adopt_appl_sig_hash_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_get,
                lumo_tarn_lumo_info_appl_sig_hash_exmem_set, std::move(value));
        }
        /// Writes the state byte of appl_sig_hash_exmem.
        Self &set_appl_sig_hash_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_set, value);
        }

        using members<Self>::mp_export_exmem;
        /// Block of the mp export.
        lumo_ui_tarn::exmem_info_ref mp_export_exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_mp_export_exmem_get);
        }
        /// Writes mp_export_exmem.
        Self &set_mp_export_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_mp_export_exmem_get,
                lumo_tarn_lumo_info_mp_export_exmem_set, value);
        }
        /// Moves a record into mp_export_exmem.
        Self &adopt_mp_export_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_mp_export_exmem_get, lumo_tarn_lumo_info_mp_export_exmem_set,
                std::move(value));
        }
        /// Writes the state byte of mp_export_exmem.
        Self &set_mp_export_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_export_exmem_state_flag_set, value);
        }

        using members<Self>::tt_export_exmem;
        /// Block of the tt export.
        lumo_ui_tarn::exmem_info_ref tt_export_exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_tt_export_exmem_get);
        }
        /// Writes tt_export_exmem.
        Self &set_tt_export_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_tt_export_exmem_get,
                lumo_tarn_lumo_info_tt_export_exmem_set, value);
        }
        /// Moves a record into tt_export_exmem.
        Self &adopt_tt_export_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_tt_export_exmem_get, lumo_tarn_lumo_info_tt_export_exmem_set,
                std::move(value));
        }
        /// Writes the state byte of tt_export_exmem.
        Self &set_tt_export_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_export_exmem_state_flag_set, value);
        }


        using members<Self>::static_exmem;
        /// Processor's static memory blocks.
        lumo_ui_tarn::array_ref<static_exmem_array> static_exmem() {
            return this->template array_<static_exmem_array>();
        }
        /// Writes the state byte of static_exmem.
        Self &set_static_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_static_exmem_state_flag_whole_set, value);
        }


        using members<Self>::dyn_exmem;
        /// Processor's dynamic memory blocks.
        lumo_ui_tarn::array_ref<dyn_exmem_array> dyn_exmem() { return this->template array_<dyn_exmem_array>(); }
        /// Writes the state byte of dyn_exmem.
        Self &set_dyn_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_display_all(bool value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_all_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_all_state_flag_set, value);
        }
        const Self &set_display_fdb(bool value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_fdb_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_fdb_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_fdb_state_flag_set, value);
        }
        const Self &set_display_ha(bool value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_ha_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_ha_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_ha_state_flag_set, value);
        }
        const Self &set_display_wexa(bool value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_wexa_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_wexa_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_wexa_state_flag_set, value);
        }
        const Self &set_display_handles(bool value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_handles_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_handles_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_handles_state_flag_set, value);
        }
        const Self &set_display_exmem(bool value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_exmem_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_exmem_state_flag_set, value);
        }
        const Self &set_display_init(bool value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_init_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_init_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_display_init_state_flag_set, value);
        }
        const Self &set_lumo_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_lumo_num_set_value, value);
        }
        const Self &set_lumo_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_lumo_num_state_flag_set, value);
        }
        const Self &set_complex_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_complex_num_set_value, value);
        }
        const Self &set_complex_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_complex_num_state_flag_set, value);
        }
        const Self &set_direction(lumo_ui_tarn::lumo_direction value) const {
            return this->write_(*this, lumo_tarn_lumo_info_direction_set_value, static_cast<std::uint32_t>(value));
        }
        const Self &set_direction_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_direction_state_flag_set, value);
        }
        const Self &set_epoch(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_epoch_set_value, value);
        }
        const Self &set_epoch_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_epoch_state_flag_set, value);
        }
        const Self &set_fdb_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_initialized_set_value, value);
        }
        const Self &set_fdb_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_initialized_state_flag_set, value);
        }
        lumo_ui_tarn::fdb_base_ref fdb_base() const {
            return this->template nested_<lumo_ui_tarn::fdb_base_type>(lumo_tarn_lumo_info_fdb_base_get);
        }
        const Self &set_fdb_base(lumo_ui_tarn::fdb_base_view value) const {
            return this->assign_(*this, lumo_tarn_lumo_info_fdb_base_get, lumo_tarn_lumo_info_fdb_base_set, value);
        }
        const Self &adopt_fdb_base(lumo_ui_tarn::fdb_base &&value) const {
            return this->adopt_(*this, lumo_tarn_lumo_info_fdb_base_get, lumo_tarn_lumo_info_fdb_base_set,
                std::move(value));
        }
        const Self &set_fdb_base_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_base_state_flag_set, value);
        }
        const Self &set_chunk_overhead(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_chunk_overhead_set_value, value);
        }
        const Self &set_chunk_overhead_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_chunk_overhead_state_flag_set, value);
        }
        const Self &set_flow_info_mem_size(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_mem_size_set_value, value);
        }
        const Self &set_flow_info_mem_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_mem_size_state_flag_set, value);
        }
        const Self &set_mp_cache_entry_size(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_mp_cache_entry_size_set_value, value);
        }
        const Self &set_mp_cache_entry_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_set, value);
        }
        const Self &set_tt_cache_entry_size(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_cache_entry_size_set_value, value);
        }
        const Self &set_tt_cache_entry_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_set, value);
        }
        lumo_ui_tarn::fdb_mem_info_ref tarn_tt_tbl() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_tt_tbl_get);
        }
        const Self &set_tarn_tt_tbl(lumo_ui_tarn::fdb_mem_info_view value) const {
            return this->assign_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_get, lumo_tarn_lumo_info_tarn_tt_tbl_set,
                value);
        }
        const Self &adopt_tarn_tt_tbl(lumo_ui_tarn::fdb_mem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_get, lumo_tarn_lumo_info_tarn_tt_tbl_set,
                std::move(value));
        }
        const Self &set_tarn_tt_tbl_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_set, value);
        }
        lumo_ui_tarn::fdb_mem_info_ref tarn_debug_flags() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_debug_flags_get);
        }
        const Self &set_tarn_debug_flags(lumo_ui_tarn::fdb_mem_info_view value) const {
            return this->assign_(*this, lumo_tarn_lumo_info_tarn_debug_flags_get,
                lumo_tarn_lumo_info_tarn_debug_flags_set, value);
        }
        const Self &adopt_tarn_debug_flags(lumo_ui_tarn::fdb_mem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_lumo_info_tarn_debug_flags_get,
                lumo_tarn_lumo_info_tarn_debug_flags_set, std::move(value));
        }
        const Self &set_tarn_debug_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tarn_debug_flags_state_flag_set, value);
        }
        const Self &set_ha_state(lumo_ui_tarn::ha_state value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ha_state_set_value, static_cast<std::uint32_t>(value));
        }
        const Self &set_ha_state_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ha_state_state_flag_set, value);
        }
        const Self &set_ha_running(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ha_running_set_value, value);
        }
        const Self &set_ha_running_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ha_running_state_flag_set, value);
        }
        const Self &set_ha_enabled(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ha_enabled_set_value, value);
        }
        const Self &set_ha_enabled_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ha_enabled_state_flag_set, value);
        }
        const Self &set_drv_conn_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_drv_conn_h_set_value, value);
        }
        const Self &set_drv_conn_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_drv_conn_h_state_flag_set, value);
        }
        const Self &set_exmem_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_exmem_h_set_value, value);
        }
        const Self &set_exmem_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_exmem_h_state_flag_set, value);
        }
        const Self &set_wexa_num_feat(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_num_feat_set_value, value);
        }
        const Self &set_wexa_num_feat_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_num_feat_state_flag_set, value);
        }
        const Self &set_wexa_feat_size(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_feat_size_set_value, value);
        }
        const Self &set_wexa_feat_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_feat_size_state_flag_set, value);
        }
        const Self &set_in_wexa_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_h_set_value, value);
        }
        const Self &set_in_wexa_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_h_state_flag_set, value);
        }
        const Self &set_in_wexa_feat_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_feat_h_set_value, value);
        }
        const Self &set_in_wexa_feat_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_set, value);
        }
        const Self &set_out_wexa_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_h_set_value, value);
        }
        const Self &set_out_wexa_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_h_state_flag_set, value);
        }
        const Self &set_out_wexa_feat_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_feat_h_set_value, value);
        }
        const Self &set_out_wexa_feat_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_set, value);
        }
        const Self &set_dp_hash_salt(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_hash_salt_set_value, value);
        }
        const Self &set_dp_hash_salt_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_hash_salt_state_flag_set, value);
        }
        const Self &set_flow_info_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_initialized_set_value, value);
        }
        const Self &set_flow_info_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_initialized_state_flag_set, value);
        }
        const Self &set_dp_flow_info_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_flow_info_initialized_set_value, value);
        }
        const Self &set_dp_flow_info_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_set, value);
        }
        const Self &set_mp_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_mp_initialized_set_value, value);
        }
        const Self &set_mp_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_mp_initialized_state_flag_set, value);
        }
        const Self &set_dp_mp_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_mp_initialized_set_value, value);
        }
        const Self &set_dp_mp_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_mp_initialized_state_flag_set, value);
        }
        const Self &set_tt_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_initialized_set_value, value);
        }
        const Self &set_tt_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_initialized_state_flag_set, value);
        }
        const Self &set_dp_tt_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_tt_initialized_set_value, value);
        }
        const Self &set_dp_tt_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_tt_initialized_state_flag_set, value);
        }
        const Self &set_appl_sig_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_initialized_set_value, value);
        }
        const Self &set_appl_sig_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_initialized_state_flag_set, value);
        }
        const Self &set_dp_appl_sig_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_initialized_set_value, value);
        }
        const Self &set_dp_appl_sig_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_set, value);
        }
        const Self &set_tt_tc_filter_list_exmem_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set_value, value);
        }
        const Self &set_tt_tc_filter_list_exmem_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_set, value);
        }
        const Self &set_tt_tc_agg_list_exmem_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set_value, value);
        }
        const Self &set_tt_tc_agg_list_exmem_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_set, value);
        }
        const Self &set_tt_tc_learn_list_exmem_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set_value, value);
        }
        const Self &set_tt_tc_learn_list_exmem_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_set, value);
        }
        const Self &set_tc_list_head_chunk_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tc_list_head_chunk_h_set_value, value);
        }
        const Self &set_tc_list_head_chunk_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_set, value);
        }
        const Self &set_tc_chunk_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tc_chunk_h_set_value, value);
        }
        const Self &set_tc_chunk_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tc_chunk_h_state_flag_set, value);
        }
        const Self &set_ll_chunk_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ll_chunk_h_set_value, value);
        }
        const Self &set_ll_chunk_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_ll_chunk_h_state_flag_set, value);
        }
        const Self &set_appl_chunk_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_appl_chunk_h_set_value, value);
        }
        const Self &set_appl_chunk_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_appl_chunk_h_state_flag_set, value);
        }
        const Self &set_cl_appl_sig_hash_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set_value, value);
        }
        const Self &set_cl_appl_sig_hash_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_set, value);
        }
        const Self &set_dp_appl_sig_hash_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_hash_h_set_value, value);
        }
        const Self &set_dp_appl_sig_hash_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_set, value);
        }
        const Self &set_appl_sig_chunk_h(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_chunk_h_set_value, value);
        }
        const Self &set_appl_sig_chunk_h_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_set, value);
        }
        lumo_ui_tarn::exmem_info_ref appl_sig_hash_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_appl_sig_hash_exmem_get);
        }
        const Self &set_appl_sig_hash_exmem(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_get,
                lumo_tarn_lumo_info_appl_sig_hash_exmem_set, value);
        }
        const Self &adopt_appl_sig_hash_exmem(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_get,
                lumo_tarn_lumo_info_appl_sig_hash_exmem_set, std::move(value));
        }
        const Self &set_appl_sig_hash_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_set, value);
        }
        lumo_ui_tarn::exmem_info_ref mp_export_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_mp_export_exmem_get);
        }
        const Self &set_mp_export_exmem(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_lumo_info_mp_export_exmem_get,
                lumo_tarn_lumo_info_mp_export_exmem_set, value);
        }
        const Self &adopt_mp_export_exmem(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_lumo_info_mp_export_exmem_get, lumo_tarn_lumo_info_mp_export_exmem_set,
                std::move(value));
        }
        const Self &set_mp_export_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_mp_export_exmem_state_flag_set, value);
        }
        lumo_ui_tarn::exmem_info_ref tt_export_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_tt_export_exmem_get);
        }
        const Self &set_tt_export_exmem(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_lumo_info_tt_export_exmem_get,
                lumo_tarn_lumo_info_tt_export_exmem_set, value);
        }
        const Self &adopt_tt_export_exmem(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_lumo_info_tt_export_exmem_get, lumo_tarn_lumo_info_tt_export_exmem_set,
                std::move(value));
        }
        const Self &set_tt_export_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_tt_export_exmem_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<static_exmem_array> static_exmem() const {
            return this->template array_<static_exmem_array>();
        }
        const Self &set_static_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_static_exmem_state_flag_whole_set, value);
        }
        lumo_ui_tarn::array_ref<dyn_exmem_array> dyn_exmem() const { return this->template array_<dyn_exmem_array>(); }
        const Self &set_dyn_exmem_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, &M::set_display_all, &M::display_all_state,
            &M::set_display_all_state});
        visit(lumo_ui_tarn::member{"display_fdb", &M::display_fdb, &M::set_display_fdb, &M::display_fdb_state,
            &M::set_display_fdb_state});
        visit(lumo_ui_tarn::member{"display_ha", &M::display_ha, &M::set_display_ha, &M::display_ha_state,
            &M::set_display_ha_state});
        visit(lumo_ui_tarn::member{"display_wexa", &M::display_wexa, &M::set_display_wexa, &M::display_wexa_state,
            &M::set_display_wexa_state});
        visit(lumo_ui_tarn::member{"display_handles", &M::display_handles, &M::set_display_handles,
            &M::display_handles_state, &M::set_display_handles_state});
        visit(lumo_ui_tarn::member{"display_exmem", &M::display_exmem, &M::set_display_exmem, &M::display_exmem_state,
            &M::set_display_exmem_state});
        visit(lumo_ui_tarn::member{"display_init", &M::display_init, &M::set_display_init, &M::display_init_state,
            &M::set_display_init_state});
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, &M::set_lumo_num, &M::lumo_num_state,
            &M::set_lumo_num_state});
        visit(lumo_ui_tarn::member{"complex_num", &M::complex_num, &M::set_complex_num, &M::complex_num_state,
            &M::set_complex_num_state});
        visit(lumo_ui_tarn::member{"direction", &M::direction, &M::set_direction, &M::direction_state,
            &M::set_direction_state});
        visit(lumo_ui_tarn::member{"epoch", &M::epoch, &M::set_epoch, &M::epoch_state, &M::set_epoch_state});
        visit(lumo_ui_tarn::member{"fdb_initialized", &M::fdb_initialized, &M::set_fdb_initialized,
            &M::fdb_initialized_state, &M::set_fdb_initialized_state});
        visit(lumo_ui_tarn::member{"fdb_base", detail::writable(&M::fdb_base, 0), &M::set_fdb_base, &M::fdb_base_state,
            &M::set_fdb_base_state});
        visit(lumo_ui_tarn::member{"chunk_overhead", &M::chunk_overhead, &M::set_chunk_overhead,
            &M::chunk_overhead_state, &M::set_chunk_overhead_state});
        visit(lumo_ui_tarn::member{"flow_info_mem_size", &M::flow_info_mem_size, &M::set_flow_info_mem_size,
            &M::flow_info_mem_size_state, &M::set_flow_info_mem_size_state});
        visit(lumo_ui_tarn::member{"mp_cache_entry_size", &M::mp_cache_entry_size, &M::set_mp_cache_entry_size,
            &M::mp_cache_entry_size_state, &M::set_mp_cache_entry_size_state});
        visit(lumo_ui_tarn::member{"tt_cache_entry_size", &M::tt_cache_entry_size, &M::set_tt_cache_entry_size,
            &M::tt_cache_entry_size_state, &M::set_tt_cache_entry_size_state});
        visit(lumo_ui_tarn::member{"tarn_tt_tbl", detail::writable(&M::tarn_tt_tbl, 0), &M::set_tarn_tt_tbl,
            &M::tarn_tt_tbl_state, &M::set_tarn_tt_tbl_state});
        visit(lumo_ui_tarn::member{"tarn_debug_flags", detail::writable(&M::tarn_debug_flags, 0),
            &M::set_tarn_debug_flags, &M::tarn_debug_flags_state, &M::set_tarn_debug_flags_state});
        visit(lumo_ui_tarn::member{"ha_state", &M::ha_state, &M::set_ha_state, &M::ha_state_state,
            &M::set_ha_state_state});
        visit(lumo_ui_tarn::member{"ha_running", &M::ha_running, &M::set_ha_running, &M::ha_running_state,
            &M::set_ha_running_state});
        visit(lumo_ui_tarn::member{"ha_enabled", &M::ha_enabled, &M::set_ha_enabled, &M::ha_enabled_state,
            &M::set_ha_enabled_state});
        visit(lumo_ui_tarn::member{"drv_conn_h", &M::drv_conn_h, &M::set_drv_conn_h, &M::drv_conn_h_state,
            &M::set_drv_conn_h_state});
        visit(lumo_ui_tarn::member{"exmem_h", &M::exmem_h, &M::set_exmem_h, &M::exmem_h_state, &M::set_exmem_h_state});
        visit(lumo_ui_tarn::member{"wexa_num_feat", &M::wexa_num_feat, &M::set_wexa_num_feat, &M::wexa_num_feat_state,
            &M::set_wexa_num_feat_state});
        visit(lumo_ui_tarn::member{"wexa_feat_size", &M::wexa_feat_size, &M::set_wexa_feat_size,
            &M::wexa_feat_size_state, &M::set_wexa_feat_size_state});
        visit(lumo_ui_tarn::member{"in_wexa_h", &M::in_wexa_h, &M::set_in_wexa_h, &M::in_wexa_h_state,
            &M::set_in_wexa_h_state});
        visit(lumo_ui_tarn::member{"in_wexa_feat_h", &M::in_wexa_feat_h, &M::set_in_wexa_feat_h,
            &M::in_wexa_feat_h_state, &M::set_in_wexa_feat_h_state});
        visit(lumo_ui_tarn::member{"out_wexa_h", &M::out_wexa_h, &M::set_out_wexa_h, &M::out_wexa_h_state,
            &M::set_out_wexa_h_state});
        visit(lumo_ui_tarn::member{"out_wexa_feat_h", &M::out_wexa_feat_h, &M::set_out_wexa_feat_h,
            &M::out_wexa_feat_h_state, &M::set_out_wexa_feat_h_state});
        visit(lumo_ui_tarn::member{"dp_hash_salt", &M::dp_hash_salt, &M::set_dp_hash_salt, &M::dp_hash_salt_state,
            &M::set_dp_hash_salt_state});
        visit(lumo_ui_tarn::member{"flow_info_initialized", &M::flow_info_initialized, &M::set_flow_info_initialized,
            &M::flow_info_initialized_state, &M::set_flow_info_initialized_state});
        visit(lumo_ui_tarn::member{"dp_flow_info_initialized", &M::dp_flow_info_initialized,
            &M::set_dp_flow_info_initialized, &M::dp_flow_info_initialized_state,
            &M::set_dp_flow_info_initialized_state});
        visit(lumo_ui_tarn::member{"mp_initialized", &M::mp_initialized, &M::set_mp_initialized,
            &M::mp_initialized_state, &M::set_mp_initialized_state});
        visit(lumo_ui_tarn::member{"dp_mp_initialized", &M::dp_mp_initialized, &M::set_dp_mp_initialized,
            &M::dp_mp_initialized_state, &M::set_dp_mp_initialized_state});
        visit(lumo_ui_tarn::member{"tt_initialized", &M::tt_initialized, &M::set_tt_initialized,
            &M::tt_initialized_state, &M::set_tt_initialized_state});
        visit(lumo_ui_tarn::member{"dp_tt_initialized", &M::dp_tt_initialized, &M::set_dp_tt_initialized,
            &M::dp_tt_initialized_state, &M::set_dp_tt_initialized_state});
        visit(lumo_ui_tarn::member{"appl_sig_initialized", &M::appl_sig_initialized, &M::set_appl_sig_initialized,
            &M::appl_sig_initialized_state, &M::set_appl_sig_initialized_state});
        visit(lumo_ui_tarn::member{"dp_appl_sig_initialized", &M::dp_appl_sig_initialized,
            &M::set_dp_appl_sig_initialized, &M::dp_appl_sig_initialized_state, &M::set_dp_appl_sig_initialized_state});
        visit(lumo_ui_tarn::member{"tt_tc_filter_list_exmem_ptr", &M::tt_tc_filter_list_exmem_ptr,
            &M::set_tt_tc_filter_list_exmem_ptr, &M::tt_tc_filter_list_exmem_ptr_state,
            &M::set_tt_tc_filter_list_exmem_ptr_state});
        visit(lumo_ui_tarn::member{"tt_tc_agg_list_exmem_ptr", &M::tt_tc_agg_list_exmem_ptr,
            &M::set_tt_tc_agg_list_exmem_ptr, &M::tt_tc_agg_list_exmem_ptr_state,
            &M::set_tt_tc_agg_list_exmem_ptr_state});
        visit(lumo_ui_tarn::member{"tt_tc_learn_list_exmem_ptr", &M::tt_tc_learn_list_exmem_ptr,
            &M::set_tt_tc_learn_list_exmem_ptr, &M::tt_tc_learn_list_exmem_ptr_state,
            &M::set_tt_tc_learn_list_exmem_ptr_state});
        visit(lumo_ui_tarn::member{"tc_list_head_chunk_h", &M::tc_list_head_chunk_h, &M::set_tc_list_head_chunk_h,
            &M::tc_list_head_chunk_h_state, &M::set_tc_list_head_chunk_h_state});
        visit(lumo_ui_tarn::member{"tc_chunk_h", &M::tc_chunk_h, &M::set_tc_chunk_h, &M::tc_chunk_h_state,
            &M::set_tc_chunk_h_state});
        visit(lumo_ui_tarn::member{"ll_chunk_h", &M::ll_chunk_h, &M::set_ll_chunk_h, &M::ll_chunk_h_state,
            &M::set_ll_chunk_h_state});
        visit(lumo_ui_tarn::member{"appl_chunk_h", &M::appl_chunk_h, &M::set_appl_chunk_h, &M::appl_chunk_h_state,
            &M::set_appl_chunk_h_state});
        visit(lumo_ui_tarn::member{"cl_appl_sig_hash_ptr", &M::cl_appl_sig_hash_ptr, &M::set_cl_appl_sig_hash_ptr,
            &M::cl_appl_sig_hash_ptr_state, &M::set_cl_appl_sig_hash_ptr_state});
        visit(lumo_ui_tarn::member{"dp_appl_sig_hash_h", &M::dp_appl_sig_hash_h, &M::set_dp_appl_sig_hash_h,
            &M::dp_appl_sig_hash_h_state, &M::set_dp_appl_sig_hash_h_state});
        visit(lumo_ui_tarn::member{"appl_sig_chunk_h", &M::appl_sig_chunk_h, &M::set_appl_sig_chunk_h,
            &M::appl_sig_chunk_h_state, &M::set_appl_sig_chunk_h_state});
        visit(lumo_ui_tarn::member{"appl_sig_hash_exmem", detail::writable(&M::appl_sig_hash_exmem, 0),
            &M::set_appl_sig_hash_exmem, &M::appl_sig_hash_exmem_state, &M::set_appl_sig_hash_exmem_state});
        visit(lumo_ui_tarn::member{"mp_export_exmem", detail::writable(&M::mp_export_exmem, 0), &M::set_mp_export_exmem,
            &M::mp_export_exmem_state, &M::set_mp_export_exmem_state});
        visit(lumo_ui_tarn::member{"tt_export_exmem", detail::writable(&M::tt_export_exmem, 0), &M::set_tt_export_exmem,
            &M::tt_export_exmem_state, &M::set_tt_export_exmem_state});
        visit(lumo_ui_tarn::member{"num_static_exmems", &M::num_static_exmems, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"static_exmem", detail::writable(&M::static_exmem, 0), nullptr,
            &M::static_exmem_state, &M::set_static_exmem_state});
        visit(lumo_ui_tarn::member{"num_dyn_exmems", &M::num_dyn_exmems, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"dyn_exmem", detail::writable(&M::dyn_exmem, 0), nullptr, &M::dyn_exmem_state,
            &M::set_dyn_exmem_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_lumo_info.
using lumo_info = record<lumo_info_type>;
/// Borrows a lumo_tarn_lumo_info.
using lumo_info_ref = record_ref<lumo_info_type>;
/// Borrows a lumo_tarn_lumo_info to read it.
using lumo_info_view = record_view<lumo_info_type>;

/// lumo_tarn_lumo_info_list: processors of the system.
struct lumo_info_list_type {
    using native = lumo_tarn_lumo_info_list;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_lumo_info_list";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_lumo_info_list_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_lumo_info_list_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_lumo_info_list_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_lumo_info_list_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_lumo_info_list_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_lumo_info_list_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_lumo_info_list_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_lumo_info_list_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_lumo_info_list_destroy;
    /// Same as lumo_tarn_lumo_info_list_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_lumo_info_list_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_lumo_info_list_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_lumo_info_list_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_lumo_info_list_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_lumo_info_list_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_lumo_info_list_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_lumo_info_list_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_lumo_info_list_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_lumo_info_list_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_lumo_info_list_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_lumo_info_list_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_lumo_info_list_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_lumo_info_list_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_lumo_info_list_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_lumo_info_list_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_lumo_info_list_marshal;
    /// Same as lumo_tarn_lumo_info_list_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_lumo_info_list_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_lumo_info_list_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_lumo_info_list_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_lumo_info_list_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_lumo_info_list_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_lumo_info_list_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_lumo_info_list_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_lumo_info_list_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_lumo_info_list_compare;
    static constexpr auto hash = lumo_tarn_lumo_info_list_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_lumo_info_list_type_type_backpropagate;

    /// How lumo_info is read and written, for array_ref.
    struct lumo_info_array {
        using native = lumo_tarn_lumo_info_list;  ///< the record that has the array
        using element = lumo_ui_tarn::lumo_info_type;  ///< what it is an array of
        using count = std::uint32_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_lumo_info_list_num_lumos_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_lumo_info_list_lumo_info_get;  ///< an element
        static constexpr auto set = lumo_tarn_lumo_info_list_lumo_info_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_lumo_info_list_lumo_info_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_lumo_info_list_lumo_info_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<lumo_info_list_type, Self> {
    public:
        using detail::operations<lumo_info_list_type, Self>::operations;

        /// Elements in lumo_info.
        std::uint32_t num_lumos() const { return this->call_(lumo_tarn_lumo_info_list_num_lumos_get_value); }

        /// One element for each processor.
        lumo_ui_tarn::array_view<lumo_info_array> lumo_info() const { return this->template array_<lumo_info_array>(); }
        /// The state byte of lumo_info; none if the record has no states.
        std::optional<std::uint8_t> lumo_info_state() const {
            return this->state_(lumo_tarn_lumo_info_list_lumo_info_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"num_lumos", &members::num_lumos, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"lumo_info", &members::lumo_info, nullptr, &members::lumo_info_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;


        using members<Self>::lumo_info;
        /// One element for each processor.
        lumo_ui_tarn::array_ref<lumo_info_array> lumo_info() { return this->template array_<lumo_info_array>(); }
        /// Writes the state byte of lumo_info.
        Self &set_lumo_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_list_lumo_info_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::array_ref<lumo_info_array> lumo_info() const { return this->template array_<lumo_info_array>(); }
        const Self &set_lumo_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_lumo_info_list_lumo_info_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_info", detail::writable(&M::lumo_info, 0), nullptr, &M::lumo_info_state,
            &M::set_lumo_info_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_lumo_info_list.
using lumo_info_list = record<lumo_info_list_type>;
/// Borrows a lumo_tarn_lumo_info_list.
using lumo_info_list_ref = record_ref<lumo_info_list_type>;
/// Borrows a lumo_tarn_lumo_info_list to read it.
using lumo_info_list_view = record_view<lumo_info_list_type>;

/// lumo_tarn_global_info: what holds for the whole client process.
struct global_info_type {
    using native = lumo_tarn_global_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_global_info";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_global_info_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_global_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_global_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_global_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_global_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_global_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_global_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_global_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_global_info_destroy;
    /// Same as lumo_tarn_global_info_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_global_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_global_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_global_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_global_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_global_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_global_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_global_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_global_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_global_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_global_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_global_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_global_info_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_global_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_global_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_global_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_global_info_marshal;
    /// Same as lumo_tarn_global_info_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_global_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_global_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_global_info_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_global_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_global_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_global_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_global_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_global_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_global_info_compare;
    static constexpr auto hash = lumo_tarn_global_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_global_info_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<global_info_type, Self> {
    public:
        using detail::operations<global_info_type, Self>::operations;

        /// Show: everything.
        bool display_all() const { return this->call_(lumo_tarn_global_info_display_all_get_value) != 0; }
        /// The state byte of display_all; none if the record has no states.
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_global_info_display_all_state_flag_get);
        }

        /// Show: the platform configuration.
        bool display_plat_cfg() const { return this->call_(lumo_tarn_global_info_display_plat_cfg_get_value) != 0; }
        /// The state byte of display_plat_cfg; none if the record has no states.
        std::optional<std::uint8_t> display_plat_cfg_state() const {
            return this->state_(lumo_tarn_global_info_display_plat_cfg_state_flag_get);
        }

        /// Show: the process context.
        bool display_proc_ctx() const { return this->call_(lumo_tarn_global_info_display_proc_ctx_get_value) != 0; }
        /// The state byte of display_proc_ctx; none if the record has no states.
        std::optional<std::uint8_t> display_proc_ctx_state() const {
            return this->state_(lumo_tarn_global_info_display_proc_ctx_state_flag_get);
        }

        /// Flag word: the platform configuration has been set.
        std::uint32_t platform_cfg_set() const { return this->call_(lumo_tarn_global_info_platform_cfg_set_get_value); }
        /// The state byte of platform_cfg_set; none if the record has no states.
        std::optional<std::uint8_t> platform_cfg_set_state() const {
            return this->state_(lumo_tarn_global_info_platform_cfg_set_state_flag_get);
        }

        /// Maximum number of tt cache entries.
        std::uint32_t max_tt_cache_entries() const {
            return this->call_(lumo_tarn_global_info_max_tt_cache_entries_get_value);
        }
        /// The state byte of max_tt_cache_entries; none if the record has no states.
        std::optional<std::uint8_t> max_tt_cache_entries_state() const {
            return this->state_(lumo_tarn_global_info_max_tt_cache_entries_state_flag_get);
        }

        /// Maximum number of mp cache entries.
        std::uint32_t max_mp_cache_entries() const {
            return this->call_(lumo_tarn_global_info_max_mp_cache_entries_get_value);
        }
        /// The state byte of max_mp_cache_entries; none if the record has no states.
        std::optional<std::uint8_t> max_mp_cache_entries_state() const {
            return this->state_(lumo_tarn_global_info_max_mp_cache_entries_state_flag_get);
        }

        /// Event context of the lumo side.
        std::uint64_t lumo_evctx_p() const { return this->call_(lumo_tarn_global_info_lumo_evctx_p_get_value); }
        /// The state byte of lumo_evctx_p; none if the record has no states.
        std::optional<std::uint8_t> lumo_evctx_p_state() const {
            return this->state_(lumo_tarn_global_info_lumo_evctx_p_state_flag_get);
        }

        /// Event context of the smc side.
        std::uint64_t smc_evctx_p() const { return this->call_(lumo_tarn_global_info_smc_evctx_p_get_value); }
        /// The state byte of smc_evctx_p; none if the record has no states.
        std::optional<std::uint8_t> smc_evctx_p_state() const {
            return this->state_(lumo_tarn_global_info_smc_evctx_p_state_flag_get);
        }

        /// The listening channel.
        std::uint64_t listen_chan() const { return this->call_(lumo_tarn_global_info_listen_chan_get_value); }
        /// The state byte of listen_chan; none if the record has no states.
        std::optional<std::uint8_t> listen_chan_state() const {
            return this->state_(lumo_tarn_global_info_listen_chan_state_flag_get);
        }

        /// Flag word: high availability initialised.
        std::uint32_t ha_init() const { return this->call_(lumo_tarn_global_info_ha_init_get_value); }
        /// The state byte of ha_init; none if the record has no states.
        std::optional<std::uint8_t> ha_init_state() const {
            return this->state_(lumo_tarn_global_info_ha_init_state_flag_get);
        }

        /// Flag word named mdr.
        std::uint32_t mdr() const { return this->call_(lumo_tarn_global_info_mdr_get_value); }
        /// The state byte of mdr; none if the record has no states.
        std::optional<std::uint8_t> mdr_state() const { return this->state_(lumo_tarn_global_info_mdr_state_flag_get); }

        /// Number of processors.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_global_info_num_lumos_get_value); }
        /// The state byte of num_lumos; none if the record has no states.
        std::optional<std::uint8_t> num_lumos_state() const {
            return this->state_(lumo_tarn_global_info_num_lumos_state_flag_get);
        }

        /// Number of complexes.
        std::uint8_t num_complexes() const { return this->call_(lumo_tarn_global_info_num_complexes_get_value); }
        /// The state byte of num_complexes; none if the record has no states.
        std::optional<std::uint8_t> num_complexes_state() const {
            return this->state_(lumo_tarn_global_info_num_complexes_state_flag_get);
        }

        /// Per-processor records.
        lumo_ui_tarn::lumo_info_list_view lumo_info_list() const {
            return this->template nested_<lumo_ui_tarn::lumo_info_list_type>(lumo_tarn_global_info_lumo_info_list_get);
        }
        /// The state byte of lumo_info_list; none if the record has no states.
        std::optional<std::uint8_t> lumo_info_list_state() const {
            return this->state_(lumo_tarn_global_info_lumo_info_list_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"display_all", &members::display_all, nullptr, &members::display_all_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_plat_cfg", &members::display_plat_cfg, nullptr,
                &members::display_plat_cfg_state, nullptr});
            visit(lumo_ui_tarn::member{"display_proc_ctx", &members::display_proc_ctx, nullptr,
                &members::display_proc_ctx_state, nullptr});
            visit(lumo_ui_tarn::member{"platform_cfg_set", &members::platform_cfg_set, nullptr,
                &members::platform_cfg_set_state, nullptr});
            visit(lumo_ui_tarn::member{"max_tt_cache_entries", &members::max_tt_cache_entries, nullptr,
                &members::max_tt_cache_entries_state, nullptr});
            visit(lumo_ui_tarn::member{"max_mp_cache_entries", &members::max_mp_cache_entries, nullptr,
                &members::max_mp_cache_entries_state, nullptr});
            visit(lumo_ui_tarn::member{"lumo_evctx_p", &members::lumo_evctx_p, nullptr, &members::lumo_evctx_p_state,
                nullptr});
            visit(lumo_ui_tarn::member{"smc_evctx_p", &members::smc_evctx_p, nullptr, &members::smc_evctx_p_state,
                nullptr});
            visit(lumo_ui_tarn::member{"listen_chan", &members::listen_chan, nullptr, &members::listen_chan_state,
                nullptr});
            visit(lumo_ui_tarn::member{"ha_init", &members::ha_init, nullptr, &members::ha_init_state, nullptr});
            visit(lumo_ui_tarn::member{"mdr", &members::mdr, nullptr, &members::mdr_state, nullptr});
            visit(lumo_ui_tarn::member{"num_lumos", &members::num_lumos, nullptr, &members::num_lumos_state, nullptr});
            visit(lumo_ui_tarn::member{"num_complexes", &members::num_complexes, nullptr, &members::num_complexes_state,
                nullptr});
            visit(lumo_ui_tarn::member{"lumo_info_list", &members::lumo_info_list, nullptr,
                &members::lumo_info_list_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes display_all.
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_global_info_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_all.
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_display_all_state_flag_set, value);
        }

        /// Writes display_plat_cfg.
        Self &set_display_plat_cfg(bool value) {
            return this->write_(*this, lumo_tarn_global_info_display_plat_cfg_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_plat_cfg.
        Self &set_display_plat_cfg_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_display_plat_cfg_state_flag_set, value);
        }

        /// Writes display_proc_ctx.
        Self &set_display_proc_ctx(bool value) {
            return this->write_(*this, lumo_tarn_global_info_display_proc_ctx_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_proc_ctx.
        Self &set_display_proc_ctx_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_display_proc_ctx_state_flag_set, value);
        }

        /// Writes platform_cfg_set.
        Self &set_platform_cfg_set(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_platform_cfg_set_set_value, value);
        }
        /// Writes the state byte of platform_cfg_set.
        Self &set_platform_cfg_set_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_platform_cfg_set_state_flag_set, value);
        }

        /// Writes max_tt_cache_entries.
        Self &set_max_tt_cache_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_tt_cache_entries_set_value, value);
        }
        /// Writes the state byte of max_tt_cache_entries.
        Self &set_max_tt_cache_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_tt_cache_entries_state_flag_set, value);
        }

        /// Writes max_mp_cache_entries.
        Self &set_max_mp_cache_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_mp_cache_entries_set_value, value);
        }
        /// Writes the state byte of max_mp_cache_entries.
        Self &set_max_mp_cache_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_mp_cache_entries_state_flag_set, value);
        }

        /// Writes lumo_evctx_p.
        Self &set_lumo_evctx_p(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_global_info_lumo_evctx_p_set_value, value);
        }
        /// Writes the state byte of lumo_evctx_p.
        Self &set_lumo_evctx_p_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_lumo_evctx_p_state_flag_set, value);
        }

        /// Writes smc_evctx_p.
        Self &set_smc_evctx_p(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_global_info_smc_evctx_p_set_value, value);
        }
        /// Writes the state byte of smc_evctx_p.
        Self &set_smc_evctx_p_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_smc_evctx_p_state_flag_set, value);
        }

        /// Writes listen_chan.
        Self &set_listen_chan(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_global_info_listen_chan_set_value, value);
        }
        /// Writes the state byte of listen_chan.
        Self &set_listen_chan_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_listen_chan_state_flag_set, value);
        }

        /// Writes ha_init.
        Self &set_ha_init(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_ha_init_set_value, value);
        }
        /// Writes the state byte of ha_init.
        Self &set_ha_init_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_ha_init_state_flag_set, value);
        }

        /// Writes mdr.
        Self &set_mdr(std::uint32_t value) { return this->write_(*this, lumo_tarn_global_info_mdr_set_value, value); }
        /// Writes the state byte of mdr.
        Self &set_mdr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_mdr_state_flag_set, value);
        }

        /// Writes num_lumos.
        Self &set_num_lumos(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_lumos_set_value, value);
        }
        /// Writes the state byte of num_lumos.
        Self &set_num_lumos_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_lumos_state_flag_set, value);
        }

        /// Writes num_complexes.
        Self &set_num_complexes(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_complexes_set_value, value);
        }
        /// Writes the state byte of num_complexes.
        Self &set_num_complexes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_complexes_state_flag_set, value);
        }

        using members<Self>::lumo_info_list;
        /// Per-processor records.
        lumo_ui_tarn::lumo_info_list_ref lumo_info_list() {
            return this->template nested_<lumo_ui_tarn::lumo_info_list_type>(lumo_tarn_global_info_lumo_info_list_get);
        }
        /// Writes lumo_info_list.
        Self &set_lumo_info_list(lumo_ui_tarn::lumo_info_list_view value) {
            return this->assign_(*this, lumo_tarn_global_info_lumo_info_list_get,
                lumo_tarn_global_info_lumo_info_list_set, value);
        }
        /// Moves a record into lumo_info_list.
        Self &adopt_lumo_info_list(lumo_ui_tarn::lumo_info_list &&value) {
            return this->adopt_(*this, lumo_tarn_global_info_lumo_info_list_get,
                lumo_tarn_global_info_lumo_info_list_set, std::move(value));
        }
        /// Writes the state byte of lumo_info_list.
        Self &set_lumo_info_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_lumo_info_list_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_display_all(bool value) const {
            return this->write_(*this, lumo_tarn_global_info_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_all_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_display_all_state_flag_set, value);
        }
        const Self &set_display_plat_cfg(bool value) const {
            return this->write_(*this, lumo_tarn_global_info_display_plat_cfg_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_display_plat_cfg_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_display_plat_cfg_state_flag_set, value);
        }
        const Self &set_display_proc_ctx(bool value) const {
            return this->write_(*this, lumo_tarn_global_info_display_proc_ctx_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_display_proc_ctx_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_display_proc_ctx_state_flag_set, value);
        }
        const Self &set_platform_cfg_set(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_global_info_platform_cfg_set_set_value, value);
        }
        const Self &set_platform_cfg_set_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_platform_cfg_set_state_flag_set, value);
        }
        const Self &set_max_tt_cache_entries(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_global_info_max_tt_cache_entries_set_value, value);
        }
        const Self &set_max_tt_cache_entries_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_max_tt_cache_entries_state_flag_set, value);
        }
        const Self &set_max_mp_cache_entries(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_global_info_max_mp_cache_entries_set_value, value);
        }
        const Self &set_max_mp_cache_entries_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_max_mp_cache_entries_state_flag_set, value);
        }
        const Self &set_lumo_evctx_p(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_global_info_lumo_evctx_p_set_value, value);
        }
        const Self &set_lumo_evctx_p_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_lumo_evctx_p_state_flag_set, value);
        }
        const Self &set_smc_evctx_p(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_global_info_smc_evctx_p_set_value, value);
        }
        const Self &set_smc_evctx_p_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_smc_evctx_p_state_flag_set, value);
        }
        const Self &set_listen_chan(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_global_info_listen_chan_set_value, value);
        }
        const Self &set_listen_chan_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_listen_chan_state_flag_set, value);
        }
        const Self &set_ha_init(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_global_info_ha_init_set_value, value);
        }
        const Self &set_ha_init_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_ha_init_state_flag_set, value);
        }
        const Self &set_mdr(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_global_info_mdr_set_value, value);
        }
        const Self &set_mdr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_mdr_state_flag_set, value);
        }
        const Self &set_num_lumos(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_num_lumos_set_value, value);
        }
        const Self &set_num_lumos_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_num_lumos_state_flag_set, value);
        }
        const Self &set_num_complexes(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_num_complexes_set_value, value);
        }
        const Self &set_num_complexes_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_num_complexes_state_flag_set, value);
        }
        lumo_ui_tarn::lumo_info_list_ref lumo_info_list() const {
            return this->template nested_<lumo_ui_tarn::lumo_info_list_type>(lumo_tarn_global_info_lumo_info_list_get);
        }
        const Self &set_lumo_info_list(lumo_ui_tarn::lumo_info_list_view value) const {
            return this->assign_(*this, lumo_tarn_global_info_lumo_info_list_get,
                lumo_tarn_global_info_lumo_info_list_set, value);
        }
        const Self &adopt_lumo_info_list(lumo_ui_tarn::lumo_info_list &&value) const {
            return this->adopt_(*this, lumo_tarn_global_info_lumo_info_list_get,
                lumo_tarn_global_info_lumo_info_list_set, std::move(value));
        }
        const Self &set_lumo_info_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_global_info_lumo_info_list_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, &M::set_display_all, &M::display_all_state,
            &M::set_display_all_state});
        visit(lumo_ui_tarn::member{"display_plat_cfg", &M::display_plat_cfg, &M::set_display_plat_cfg,
            &M::display_plat_cfg_state, &M::set_display_plat_cfg_state});
        visit(lumo_ui_tarn::member{"display_proc_ctx", &M::display_proc_ctx, &M::set_display_proc_ctx,
            &M::display_proc_ctx_state, &M::set_display_proc_ctx_state});
        visit(lumo_ui_tarn::member{"platform_cfg_set", &M::platform_cfg_set, &M::set_platform_cfg_set,
            &M::platform_cfg_set_state, &M::set_platform_cfg_set_state});
        visit(lumo_ui_tarn::member{"max_tt_cache_entries", &M::max_tt_cache_entries, &M::set_max_tt_cache_entries,
            &M::max_tt_cache_entries_state, &M::set_max_tt_cache_entries_state});
        visit(lumo_ui_tarn::member{"max_mp_cache_entries", &M::max_mp_cache_entries, &M::set_max_mp_cache_entries,
            &M::max_mp_cache_entries_state, &M::set_max_mp_cache_entries_state});
        visit(lumo_ui_tarn::member{"lumo_evctx_p", &M::lumo_evctx_p, &M::set_lumo_evctx_p, &M::lumo_evctx_p_state,
            &M::set_lumo_evctx_p_state});
        visit(lumo_ui_tarn::member{"smc_evctx_p", &M::smc_evctx_p, &M::set_smc_evctx_p, &M::smc_evctx_p_state,
            &M::set_smc_evctx_p_state});
        visit(lumo_ui_tarn::member{"listen_chan", &M::listen_chan, &M::set_listen_chan, &M::listen_chan_state,
            &M::set_listen_chan_state});
        visit(lumo_ui_tarn::member{"ha_init", &M::ha_init, &M::set_ha_init, &M::ha_init_state, &M::set_ha_init_state});
        visit(lumo_ui_tarn::member{"mdr", &M::mdr, &M::set_mdr, &M::mdr_state, &M::set_mdr_state});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, &M::set_num_lumos, &M::num_lumos_state,
            &M::set_num_lumos_state});
        visit(lumo_ui_tarn::member{"num_complexes", &M::num_complexes, &M::set_num_complexes, &M::num_complexes_state,
            &M::set_num_complexes_state});
        visit(lumo_ui_tarn::member{"lumo_info_list", detail::writable(&M::lumo_info_list, 0), &M::set_lumo_info_list,
            &M::lumo_info_list_state, &M::set_lumo_info_list_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_global_info.
using global_info = record<global_info_type>;
/// Borrows a lumo_tarn_global_info.
using global_info_ref = record_ref<global_info_type>;
/// Borrows a lumo_tarn_global_info to read it.
using global_info_view = record_view<global_info_type>;

/// lumo_tarn_cl_cfg_data: state of the client side as a whole.
struct cl_cfg_data_type {
    using native = lumo_tarn_cl_cfg_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_cl_cfg_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_cl_cfg_data_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_cl_cfg_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_cl_cfg_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_cl_cfg_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_cl_cfg_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_cl_cfg_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_cl_cfg_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_cl_cfg_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_cl_cfg_data_destroy;
    /// Same as lumo_tarn_cl_cfg_data_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_cl_cfg_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_cl_cfg_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_cl_cfg_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_cl_cfg_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_cl_cfg_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_cl_cfg_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_cl_cfg_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_cl_cfg_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_cl_cfg_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_cl_cfg_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_cl_cfg_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_cl_cfg_data_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_cl_cfg_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_cl_cfg_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_cl_cfg_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_cl_cfg_data_marshal;
    /// Same as lumo_tarn_cl_cfg_data_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_cl_cfg_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_cl_cfg_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_cl_cfg_data_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_cl_cfg_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_cl_cfg_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_cl_cfg_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_cl_cfg_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_cl_cfg_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_cl_cfg_data_compare;
    static constexpr auto hash = lumo_tarn_cl_cfg_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_cl_cfg_data_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<cl_cfg_data_type, Self> {
    public:
        using detail::operations<cl_cfg_data_type, Self>::operations;

        /// Show: everything.
        bool display_all() const { return this->call_(lumo_tarn_cl_cfg_data_display_all_get_value) != 0; }
        /// The state byte of display_all; none if the record has no states.
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_display_all_state_flag_get);
        }

        /// Show: the smc part.
        bool display_smc() const { return this->call_(lumo_tarn_cl_cfg_data_display_smc_get_value) != 0; }
        /// The state byte of display_smc; none if the record has no states.
        std::optional<std::uint8_t> display_smc_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_display_smc_state_flag_get);
        }

        /// Global record.
        lumo_ui_tarn::global_info_view global_info() const {
            return this->template nested_<lumo_ui_tarn::global_info_type>(lumo_tarn_cl_cfg_data_global_info_get);
        }
        /// The state byte of global_info; none if the record has no states.
        std::optional<std::uint8_t> global_info_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_global_info_state_flag_get);
        }

        /// Flag word: the smc queue is initialised.
        std::uint32_t tarn_smc_queue_initialized() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_get_value);
        }
        /// The state byte of tarn_smc_queue_initialized; none if the record has no states.
        std::optional<std::uint8_t> tarn_smc_queue_initialized_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_get);
        }

        /// Size of the smc queue.
        std::uint64_t tarn_smc_queue_size() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_get_value);
        }
        /// The state byte of tarn_smc_queue_size; none if the record has no states.
        std::optional<std::uint8_t> tarn_smc_queue_size_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_get);
        }

        /// Blocked flags of the smc queue.
        std::uint32_t tarn_smc_blocked_flags() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_get_value);
        }
        /// The state byte of tarn_smc_blocked_flags; none if the record has no states.
        std::optional<std::uint8_t> tarn_smc_blocked_flags_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_get);
        }

        /// Number of warnings on the queue's size.
        std::uint64_t tarn_smc_queue_size_warn_count() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_get_value);
        }
        /// The state byte of tarn_smc_queue_size_warn_count; none if the record has no states.
        std::optional<std::uint8_t> tarn_smc_queue_size_warn_count_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"display_all", &members::display_all, nullptr, &members::display_all_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_smc", &members::display_smc, nullptr, &members::display_smc_state,
                nullptr});
            visit(lumo_ui_tarn::member{"global_info", &members::global_info, nullptr, &members::global_info_state,
                nullptr});
            visit(lumo_ui_tarn::member{"tarn_smc_queue_initialized", &members::tarn_smc_queue_initialized, nullptr,
                &members::tarn_smc_queue_initialized_state, nullptr});
            visit(lumo_ui_tarn::member{"tarn_smc_queue_size", &members::tarn_smc_queue_size, nullptr,
                &members::tarn_smc_queue_size_state, nullptr});
            visit(lumo_ui_tarn::member{"tarn_smc_blocked_flags", &members::tarn_smc_blocked_flags, nullptr,
                &members::tarn_smc_blocked_flags_state, nullptr});
            visit(lumo_ui_tarn::member{"tarn_smc_queue_size_warn_count", &members::tarn_smc_queue_size_warn_count,
                nullptr, &members::tarn_smc_queue_size_warn_count_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes display_all.
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_all.
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_all_state_flag_set, value);
        }

        /// Writes display_smc.
        Self &set_display_smc(bool value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_smc_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_smc.
        Self &set_display_smc_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_smc_state_flag_set, value);
        }

        using members<Self>::global_info;
        /// Global record.
        lumo_ui_tarn::global_info_ref global_info() {
            return this->template nested_<lumo_ui_tarn::global_info_type>(lumo_tarn_cl_cfg_data_global_info_get);
        }
        /// Writes global_info.
        Self &set_global_info(lumo_ui_tarn::global_info_view value) {
            return this->assign_(*this, lumo_tarn_cl_cfg_data_global_info_get, lumo_tarn_cl_cfg_data_global_info_set,
                value);
        }
        /// Moves a record into global_info.
        Self &adopt_global_info(lumo_ui_tarn::global_info &&value) {
            return this->adopt_(*this, lumo_tarn_cl_cfg_data_global_info_get, lumo_tarn_cl_cfg_data_global_info_set,
                std::move(value));
        }
        /// Writes the state byte of global_info.
        Self &set_global_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_global_info_state_flag_set, value);
        }

        /// Writes tarn_smc_queue_initialized.
        Self &set_tarn_smc_queue_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_set_value, value);
        }
        /// Writes the state byte of tarn_smc_queue_initialized.
        Self &set_tarn_smc_queue_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_set, value);
        }

        /// Writes tarn_smc_queue_size.
        Self &set_tarn_smc_queue_size(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_set_value, value);
        }
        /// Writes the state byte of tarn_smc_queue_size.
        Self &set_tarn_smc_queue_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_set, value);
        }

        /// Writes tarn_smc_blocked_flags.
        Self &set_tarn_smc_blocked_flags(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_set_value, value);
        }
        /// Writes the state byte of tarn_smc_blocked_flags.
        Self &set_tarn_smc_blocked_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_set, value);
        }

        /// Writes tarn_smc_queue_size_warn_count.
        Self &set_tarn_smc_queue_size_warn_count(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_set_value, value);
        }
        /// Writes the state byte of tarn_smc_queue_size_warn_count.
        Self &set_tarn_smc_queue_size_warn_count_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_display_all(bool value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_all_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_all_state_flag_set, value);
        }
        const Self &set_display_smc(bool value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_smc_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_smc_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_smc_state_flag_set, value);
        }
        lumo_ui_tarn::global_info_ref global_info() const {
            return this->template nested_<lumo_ui_tarn::global_info_type>(lumo_tarn_cl_cfg_data_global_info_get);
        }
        const Self &set_global_info(lumo_ui_tarn::global_info_view value) const {
            return this->assign_(*this, lumo_tarn_cl_cfg_data_global_info_get, lumo_tarn_cl_cfg_data_global_info_set,
                value);
        }
        const Self &adopt_global_info(lumo_ui_tarn::global_info &&value) const {
            return this->adopt_(*this, lumo_tarn_cl_cfg_data_global_info_get, lumo_tarn_cl_cfg_data_global_info_set,
                std::move(value));
        }
        const Self &set_global_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_global_info_state_flag_set, value);
        }
        const Self &set_tarn_smc_queue_initialized(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_set_value, value);
        }
        const Self &set_tarn_smc_queue_initialized_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_set, value);
        }
        const Self &set_tarn_smc_queue_size(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_set_value, value);
        }
        const Self &set_tarn_smc_queue_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_set, value);
        }
        const Self &set_tarn_smc_blocked_flags(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_set_value, value);
        }
        const Self &set_tarn_smc_blocked_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_set, value);
        }
        const Self &set_tarn_smc_queue_size_warn_count(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_set_value, value);
        }
        const Self &set_tarn_smc_queue_size_warn_count_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, &M::set_display_all, &M::display_all_state,
            &M::set_display_all_state});
        visit(lumo_ui_tarn::member{"display_smc", &M::display_smc, &M::set_display_smc, &M::display_smc_state,
            &M::set_display_smc_state});
        visit(lumo_ui_tarn::member{"global_info", detail::writable(&M::global_info, 0), &M::set_global_info,
            &M::global_info_state, &M::set_global_info_state});
        visit(lumo_ui_tarn::member{"tarn_smc_queue_initialized", &M::tarn_smc_queue_initialized,
            &M::set_tarn_smc_queue_initialized, &M::tarn_smc_queue_initialized_state,
            &M::set_tarn_smc_queue_initialized_state});
        visit(lumo_ui_tarn::member{"tarn_smc_queue_size", &M::tarn_smc_queue_size, &M::set_tarn_smc_queue_size,
            &M::tarn_smc_queue_size_state, &M::set_tarn_smc_queue_size_state});
        visit(lumo_ui_tarn::member{"tarn_smc_blocked_flags", &M::tarn_smc_blocked_flags, &M::set_tarn_smc_blocked_flags,
            &M::tarn_smc_blocked_flags_state, &M::set_tarn_smc_blocked_flags_state});
        visit(lumo_ui_tarn::member{"tarn_smc_queue_size_warn_count", &M::tarn_smc_queue_size_warn_count,
            &M::set_tarn_smc_queue_size_warn_count, &M::tarn_smc_queue_size_warn_count_state,
            &M::set_tarn_smc_queue_size_warn_count_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_cl_cfg_data.
using cl_cfg_data = record<cl_cfg_data_type>;
/// Borrows a lumo_tarn_cl_cfg_data.
using cl_cfg_data_ref = record_ref<cl_cfg_data_type>;
/// Borrows a lumo_tarn_cl_cfg_data to read it.
using cl_cfg_data_view = record_view<cl_cfg_data_type>;

/// lumo_tarn_dp_wexa_info: flags of a wexa entry.
struct dp_wexa_info_type {
    using native = lumo_tarn_dp_wexa_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_wexa_info";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_wexa_info_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_wexa_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_wexa_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_wexa_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_wexa_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_wexa_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_wexa_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_wexa_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_wexa_info_destroy;
    /// Same as lumo_tarn_dp_wexa_info_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_wexa_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_wexa_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_wexa_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_wexa_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_wexa_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_wexa_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_wexa_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_wexa_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_wexa_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_wexa_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_wexa_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_wexa_info_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_wexa_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_wexa_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_wexa_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_wexa_info_marshal;
    /// Same as lumo_tarn_dp_wexa_info_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_wexa_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_wexa_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_wexa_info_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_wexa_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_wexa_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_wexa_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_wexa_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_wexa_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_wexa_info_compare;
    static constexpr auto hash = lumo_tarn_dp_wexa_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_wexa_info_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_wexa_info_type, Self> {
    public:
        using detail::operations<dp_wexa_info_type, Self>::operations;

        /// Flags of the wexa entry.
        std::uint32_t flags() const { return this->call_(lumo_tarn_dp_wexa_info_flags_get_value); }
        /// The state byte of flags; none if the record has no states.
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_dp_wexa_info_flags_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"flags", &members::flags, nullptr, &members::flags_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes flags.
        Self &set_flags(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_wexa_info_flags_set_value, value);
        }
        /// Writes the state byte of flags.
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_wexa_info_flags_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_flags(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_wexa_info_flags_set_value, value);
        }
        const Self &set_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_wexa_info_flags_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"flags", &M::flags, &M::set_flags, &M::flags_state, &M::set_flags_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_wexa_info.
using dp_wexa_info = record<dp_wexa_info_type>;
/// Borrows a lumo_tarn_dp_wexa_info.
using dp_wexa_info_ref = record_ref<dp_wexa_info_type>;
/// Borrows a lumo_tarn_dp_wexa_info to read it.
using dp_wexa_info_view = record_view<dp_wexa_info_type>;

/// lumo_tarn_dp_lumo_wexa_info: two wexa entries of one processor.
struct dp_lumo_wexa_info_type {
    using native = lumo_tarn_dp_lumo_wexa_info;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_lumo_wexa_info";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_lumo_wexa_info_create;
    /// Same as lumo_tarn_dp_lumo_wexa_info_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_lumo_wexa_info_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_lumo_wexa_info_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_lumo_wexa_info_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_lumo_wexa_info_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_lumo_wexa_info_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_lumo_wexa_info_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_lumo_wexa_info_destroy;
    /// Same as lumo_tarn_dp_lumo_wexa_info_destroy(), but with free_it 0 the memory of the instance itself is not
    /// freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_lumo_wexa_info_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_lumo_wexa_info_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_lumo_wexa_info_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_lumo_wexa_info_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_lumo_wexa_info_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_lumo_wexa_info_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_lumo_wexa_info_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_lumo_wexa_info_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_lumo_wexa_info_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_lumo_wexa_info_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_lumo_wexa_info_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_lumo_wexa_info_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_dp_lumo_wexa_info_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_lumo_wexa_info_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_lumo_wexa_info_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_lumo_wexa_info_marshal;
    /// Same as lumo_tarn_dp_lumo_wexa_info_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_lumo_wexa_info_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_lumo_wexa_info_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_lumo_wexa_info_len(),
    /// and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_lumo_wexa_info_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_lumo_wexa_info_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_lumo_wexa_info_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_lumo_wexa_info_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_lumo_wexa_info_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_lumo_wexa_info_compare;
    static constexpr auto hash = lumo_tarn_dp_lumo_wexa_info_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_lumo_wexa_info_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_lumo_wexa_info_type, Self> {
    public:
        using detail::operations<dp_lumo_wexa_info_type, Self>::operations;

        /// Number of the lumo processor.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_lumo_wexa_info_lumo_num_get_value); }
        /// The state byte of lumo_num; none if the record has no states.
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_lumo_num_state_flag_get);
        }

        /// Says whether in_wexa holds a value.
        bool in_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_get_value) != 0;
        }
        /// The state byte of in_wexa_is_valid; none if the record has no states.
        std::optional<std::uint8_t> in_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_state_flag_get);
        }

        /// Ingress entry.
        lumo_ui_tarn::dp_wexa_info_view in_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_in_wexa_get);
        }
        /// The state byte of in_wexa; none if the record has no states.
        std::optional<std::uint8_t> in_wexa_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_in_wexa_state_flag_get);
        }

        /// Says whether out_wexa holds a value.
        bool out_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_get_value) != 0;
        }
        /// The state byte of out_wexa_is_valid; none if the record has no states.
        std::optional<std::uint8_t> out_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_state_flag_get);
        }

        /// Egress entry.
        lumo_ui_tarn::dp_wexa_info_view out_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_out_wexa_get);
        }
        /// The state byte of out_wexa; none if the record has no states.
        std::optional<std::uint8_t> out_wexa_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_out_wexa_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"lumo_num", &members::lumo_num, nullptr, &members::lumo_num_state, nullptr});
            visit(lumo_ui_tarn::member{"in_wexa_is_valid", &members::in_wexa_is_valid, nullptr,
                &members::in_wexa_is_valid_state, nullptr});
            visit(lumo_ui_tarn::member{"in_wexa", &members::in_wexa, nullptr, &members::in_wexa_state, nullptr});
            visit(lumo_ui_tarn::member{"out_wexa_is_valid", &members::out_wexa_is_valid, nullptr,
                &members::out_wexa_is_valid_state, nullptr});
            visit(lumo_ui_tarn::member{"out_wexa", &members::out_wexa, nullptr, &members::out_wexa_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes lumo_num.
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_lumo_num_set_value, value);
        }
        /// Writes the state byte of lumo_num.
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_lumo_num_state_flag_set, value);
        }

        /// Writes in_wexa_is_valid.
        Self &set_in_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of in_wexa_is_valid.
        Self &set_in_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_state_flag_set, value);
        }

        using members<Self>::in_wexa;
        /// Ingress entry.
        lumo_ui_tarn::dp_wexa_info_ref in_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_in_wexa_get);
        }
        /// Writes in_wexa.
        Self &set_in_wexa(lumo_ui_tarn::dp_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_in_wexa_set, value);
        }
        /// Moves a record into in_wexa.
        Self &adopt_in_wexa(lumo_ui_tarn::dp_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_get, lumo_tarn_dp_lumo_wexa_info_in_wexa_set,
                std::move(value));
        }
        /// Writes the state byte of in_wexa.
        Self &set_in_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_state_flag_set, value);
        }

        /// Writes out_wexa_is_valid.
        Self &set_out_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of out_wexa_is_valid.
        Self &set_out_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_state_flag_set, value);
        }

        using members<Self>::out_wexa;
        /// Egress entry.
        lumo_ui_tarn::dp_wexa_info_ref out_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_out_wexa_get);
        }
        /// Writes out_wexa.
        Self &set_out_wexa(lumo_ui_tarn::dp_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_out_wexa_set, value);
        }
        /// Moves a record into out_wexa.
        Self &adopt_out_wexa(lumo_ui_tarn::dp_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_out_wexa_set, std::move(value));
        }
        /// Writes the state byte of out_wexa.
        Self &set_out_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_lumo_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_lumo_num_set_value, value);
        }
        const Self &set_lumo_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_lumo_num_state_flag_set, value);
        }
        const Self &set_in_wexa_is_valid(bool value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_in_wexa_is_valid_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_state_flag_set, value);
        }
        lumo_ui_tarn::dp_wexa_info_ref in_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_in_wexa_get);
        }
        const Self &set_in_wexa(lumo_ui_tarn::dp_wexa_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_in_wexa_set, value);
        }
        const Self &adopt_in_wexa(lumo_ui_tarn::dp_wexa_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_get, lumo_tarn_dp_lumo_wexa_info_in_wexa_set,
                std::move(value));
        }
        const Self &set_in_wexa_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_state_flag_set, value);
        }
        const Self &set_out_wexa_is_valid(bool value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_out_wexa_is_valid_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_state_flag_set, value);
        }
        lumo_ui_tarn::dp_wexa_info_ref out_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_out_wexa_get);
        }
        const Self &set_out_wexa(lumo_ui_tarn::dp_wexa_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_out_wexa_set, value);
        }
        const Self &adopt_out_wexa(lumo_ui_tarn::dp_wexa_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_out_wexa_set, std::move(value));
        }
        const Self &set_out_wexa_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, &M::set_lumo_num, &M::lumo_num_state,
            &M::set_lumo_num_state});
        visit(lumo_ui_tarn::member{"in_wexa_is_valid", &M::in_wexa_is_valid, &M::set_in_wexa_is_valid,
            &M::in_wexa_is_valid_state, &M::set_in_wexa_is_valid_state});
        visit(lumo_ui_tarn::member{"in_wexa", detail::writable(&M::in_wexa, 0), &M::set_in_wexa, &M::in_wexa_state,
            &M::set_in_wexa_state});
        visit(lumo_ui_tarn::member{"out_wexa_is_valid", &M::out_wexa_is_valid, &M::set_out_wexa_is_valid,
            &M::out_wexa_is_valid_state, &M::set_out_wexa_is_valid_state});
        visit(lumo_ui_tarn::member{"out_wexa", detail::writable(&M::out_wexa, 0), &M::set_out_wexa, &M::out_wexa_state,
            &M::set_out_wexa_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_lumo_wexa_info.
using dp_lumo_wexa_info = record<dp_lumo_wexa_info_type>;
/// Borrows a lumo_tarn_dp_lumo_wexa_info.
using dp_lumo_wexa_info_ref = record_ref<dp_lumo_wexa_info_type>;
/// Borrows a lumo_tarn_dp_lumo_wexa_info to read it.
using dp_lumo_wexa_info_view = record_view<dp_lumo_wexa_info_type>;

/// lumo_tarn_dp_intf_data: state of the feature on one interface.
struct dp_intf_data_type {
    using native = lumo_tarn_dp_intf_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_intf_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_intf_data_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_intf_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_intf_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_intf_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_intf_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_intf_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_intf_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_intf_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_intf_data_destroy;
    /// Same as lumo_tarn_dp_intf_data_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_intf_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_intf_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_intf_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_intf_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_intf_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_intf_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_intf_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_intf_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_intf_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_intf_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_intf_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_intf_data_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_intf_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_intf_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_intf_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_intf_data_marshal;
    /// Same as lumo_tarn_dp_intf_data_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_intf_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_intf_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_intf_data_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_intf_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_intf_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_intf_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_intf_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_intf_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_intf_data_compare;
    static constexpr auto hash = lumo_tarn_dp_intf_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_intf_data_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_intf_data_type, Self> {
    public:
        using detail::operations<dp_intf_data_type, Self>::operations;

        /// Says whether intf_name holds a value.
        bool intf_name_is_valid() const {
            return this->call_(lumo_tarn_dp_intf_data_intf_name_is_valid_get_value) != 0;
        }
        /// The state byte of intf_name_is_valid; none if the record has no states.
        std::optional<std::uint8_t> intf_name_is_valid_state() const {
            return this->state_(lumo_tarn_dp_intf_data_intf_name_is_valid_state_flag_get);
        }

        /// Length of intf_name in bytes.
        std::uint16_t intf_name_len() const { return this->call_(lumo_tarn_dp_intf_data_intf_name_len_get_value); }

        /// Name of the interface.
        std::string intf_name() const {
            return this->string_(lumo_tarn_dp_intf_data_intf_name_len_get_value, lumo_tarn_dp_intf_data_intf_name_get);
        }
        /// The state byte of intf_name; none if the record has no states.
        std::optional<std::uint8_t> intf_name_state() const {
            return this->state_(lumo_tarn_dp_intf_data_intf_name_state_flag_get);
        }

        /// Says whether in_lumo_wexa holds a value.
        bool in_lumo_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_get_value) != 0;
        }
        /// The state byte of in_lumo_wexa_is_valid; none if the record has no states.
        std::optional<std::uint8_t> in_lumo_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_state_flag_get);
        }

        /// Ingress side.
        lumo_ui_tarn::dp_lumo_wexa_info_view in_lumo_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_in_lumo_wexa_get);
        }
        /// The state byte of in_lumo_wexa; none if the record has no states.
        std::optional<std::uint8_t> in_lumo_wexa_state() const {
            return this->state_(lumo_tarn_dp_intf_data_in_lumo_wexa_state_flag_get);
        }

        /// Says whether out_lumo_wexa holds a value.
        bool out_lumo_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_get_value) != 0;
        }
        /// The state byte of out_lumo_wexa_is_valid; none if the record has no states.
        std::optional<std::uint8_t> out_lumo_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_state_flag_get);
        }

        /// Egress side.
        lumo_ui_tarn::dp_lumo_wexa_info_view out_lumo_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_out_lumo_wexa_get);
        }
        /// The state byte of out_lumo_wexa; none if the record has no states.
        std::optional<std::uint8_t> out_lumo_wexa_state() const {
            return this->state_(lumo_tarn_dp_intf_data_out_lumo_wexa_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"intf_name_is_valid", &members::intf_name_is_valid, nullptr,
                &members::intf_name_is_valid_state, nullptr});
            visit(lumo_ui_tarn::member{"intf_name_len", &members::intf_name_len, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"intf_name", &members::intf_name, nullptr, &members::intf_name_state, nullptr});
            visit(lumo_ui_tarn::member{"in_lumo_wexa_is_valid", &members::in_lumo_wexa_is_valid, nullptr,
                &members::in_lumo_wexa_is_valid_state, nullptr});
            visit(lumo_ui_tarn::member{"in_lumo_wexa", &members::in_lumo_wexa, nullptr, &members::in_lumo_wexa_state,
                nullptr});
            visit(lumo_ui_tarn::member{"out_lumo_wexa_is_valid", &members::out_lumo_wexa_is_valid, nullptr,
                &members::out_lumo_wexa_is_valid_state, nullptr});
            visit(lumo_ui_tarn::member{"out_lumo_wexa", &members::out_lumo_wexa, nullptr, &members::out_lumo_wexa_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes intf_name_is_valid.
        Self &set_intf_name_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of intf_name_is_valid.
        Self &set_intf_name_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_is_valid_state_flag_set, value);
        }


        /// Writes intf_name.
        Self &set_intf_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_dp_intf_data_intf_name_set, text);
        }
        /// Writes the state byte of intf_name.
        Self &set_intf_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_state_flag_set, value);
        }

        /// Writes in_lumo_wexa_is_valid.
        Self &set_in_lumo_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of in_lumo_wexa_is_valid.
        Self &set_in_lumo_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_state_flag_set, value);
        }

        using members<Self>::in_lumo_wexa;
        /// Ingress side.
        lumo_ui_tarn::dp_lumo_wexa_info_ref in_lumo_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_in_lumo_wexa_get);
        }
        /// Writes in_lumo_wexa.
        Self &set_in_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_get,
                lumo_tarn_dp_intf_data_in_lumo_wexa_set, value);
        }
        /// Moves a record into in_lumo_wexa.
        Self &adopt_in_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_get, lumo_tarn_dp_intf_data_in_lumo_wexa_set,
                std::move(value));
        }
        /// Writes the state byte of in_lumo_wexa.
        Self &set_in_lumo_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_state_flag_set, value);
        }

        /// Writes out_lumo_wexa_is_valid.
        Self &set_out_lumo_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of out_lumo_wexa_is_valid.
        Self &set_out_lumo_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_state_flag_set, value);
        }

        using members<Self>::out_lumo_wexa;
        /// Egress side.
        lumo_ui_tarn::dp_lumo_wexa_info_ref out_lumo_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_out_lumo_wexa_get);
        }
        /// Writes out_lumo_wexa.
        Self &set_out_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_get,
                lumo_tarn_dp_intf_data_out_lumo_wexa_set, value);
        }
        /// Moves a record into out_lumo_wexa.
        Self &adopt_out_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_get,
                lumo_tarn_dp_intf_data_out_lumo_wexa_set, std::move(value));
        }
        /// Writes the state byte of out_lumo_wexa.
        Self &set_out_lumo_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_intf_name_is_valid(bool value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_intf_name_is_valid_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_is_valid_state_flag_set, value);
        }
        const Self &set_intf_name(std::string_view text) const {
            return this->write_string_(*this, lumo_tarn_dp_intf_data_intf_name_set, text);
        }
        const Self &set_intf_name_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_state_flag_set, value);
        }
        const Self &set_in_lumo_wexa_is_valid(bool value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_in_lumo_wexa_is_valid_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_state_flag_set, value);
        }
        lumo_ui_tarn::dp_lumo_wexa_info_ref in_lumo_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_in_lumo_wexa_get);
        }
        const Self &set_in_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_get,
                lumo_tarn_dp_intf_data_in_lumo_wexa_set, value);
        }
        const Self &adopt_in_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_get, lumo_tarn_dp_intf_data_in_lumo_wexa_set,
                std::move(value));
        }
        const Self &set_in_lumo_wexa_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_state_flag_set, value);
        }
        const Self &set_out_lumo_wexa_is_valid(bool value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_out_lumo_wexa_is_valid_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_state_flag_set, value);
        }
        lumo_ui_tarn::dp_lumo_wexa_info_ref out_lumo_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_out_lumo_wexa_get);
        }
        const Self &set_out_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_get,
                lumo_tarn_dp_intf_data_out_lumo_wexa_set, value);
        }
        const Self &adopt_out_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_get,
                lumo_tarn_dp_intf_data_out_lumo_wexa_set, std::move(value));
        }
        const Self &set_out_lumo_wexa_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"intf_name_is_valid", &M::intf_name_is_valid, &M::set_intf_name_is_valid,
            &M::intf_name_is_valid_state, &M::set_intf_name_is_valid_state});
        visit(lumo_ui_tarn::member{"intf_name_len", &M::intf_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"intf_name", &M::intf_name, &M::set_intf_name, &M::intf_name_state,
            &M::set_intf_name_state});
        visit(lumo_ui_tarn::member{"in_lumo_wexa_is_valid", &M::in_lumo_wexa_is_valid, &M::set_in_lumo_wexa_is_valid,
            &M::in_lumo_wexa_is_valid_state, &M::set_in_lumo_wexa_is_valid_state});
        visit(lumo_ui_tarn::member{"in_lumo_wexa", detail::writable(&M::in_lumo_wexa, 0), &M::set_in_lumo_wexa,
            &M::in_lumo_wexa_state, &M::set_in_lumo_wexa_state});
        visit(lumo_ui_tarn::member{"out_lumo_wexa_is_valid", &M::out_lumo_wexa_is_valid, &M::set_out_lumo_wexa_is_valid,
            &M::out_lumo_wexa_is_valid_state, &M::set_out_lumo_wexa_is_valid_state});
        visit(lumo_ui_tarn::member{"out_lumo_wexa", detail::writable(&M::out_lumo_wexa, 0), &M::set_out_lumo_wexa,
            &M::out_lumo_wexa_state, &M::set_out_lumo_wexa_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_intf_data.
using dp_intf_data = record<dp_intf_data_type>;
/// Borrows a lumo_tarn_dp_intf_data.
using dp_intf_data_ref = record_ref<dp_intf_data_type>;
/// Borrows a lumo_tarn_dp_intf_data to read it.
using dp_intf_data_view = record_view<dp_intf_data_type>;

/// lumo_tarn_dp_appl_sig: one signature.
struct dp_appl_sig_type {
    using native = lumo_tarn_dp_appl_sig;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_appl_sig";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_appl_sig_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_appl_sig_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_appl_sig_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_appl_sig_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_appl_sig_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_appl_sig_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_appl_sig_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_appl_sig_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_appl_sig_destroy;
    /// Same as lumo_tarn_dp_appl_sig_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_appl_sig_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_appl_sig_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_appl_sig_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_appl_sig_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_appl_sig_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_appl_sig_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_appl_sig_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_appl_sig_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_appl_sig_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_appl_sig_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_appl_sig_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_appl_sig_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_appl_sig_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_appl_sig_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_appl_sig_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_appl_sig_marshal;
    /// Same as lumo_tarn_dp_appl_sig_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_appl_sig_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_appl_sig_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_appl_sig_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_appl_sig_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_appl_sig_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_appl_sig_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_appl_sig_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_appl_sig_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_appl_sig_compare;
    static constexpr auto hash = lumo_tarn_dp_appl_sig_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_appl_sig_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_sig_type, Self> {
    public:
        using detail::operations<dp_appl_sig_type, Self>::operations;

        /// Where the signature lies in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_sig_exmem_info_get);
        }
        /// The state byte of exmem_info; none if the record has no states.
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_exmem_info_state_flag_get);
        }

        /// Bucket of the data plane's hash in which the signature lies.
        std::uint32_t dp_hash_bucket() const { return this->call_(lumo_tarn_dp_appl_sig_dp_hash_bucket_get_value); }
        /// The state byte of dp_hash_bucket; none if the record has no states.
        std::optional<std::uint8_t> dp_hash_bucket_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_get);
        }

        /// Identifier of the signature in the adaptation layer.
        std::uint32_t pal_id() const { return this->call_(lumo_tarn_dp_appl_sig_pal_id_get_value); }
        /// The state byte of pal_id; none if the record has no states.
        std::optional<std::uint8_t> pal_id_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_pal_id_state_flag_get);
        }

        /// Length of appl_name in bytes.
        std::uint16_t appl_name_len() const { return this->call_(lumo_tarn_dp_appl_sig_appl_name_len_get_value); }

        /// Name of the application.
        std::string appl_name() const {
            return this->string_(lumo_tarn_dp_appl_sig_appl_name_len_get_value, lumo_tarn_dp_appl_sig_appl_name_get);
        }
        /// The state byte of appl_name; none if the record has no states.
        std::optional<std::uint8_t> appl_name_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_appl_name_state_flag_get);
        }

        /// Identifier of the application.
        std::uint16_t appl_id() const { return this->call_(lumo_tarn_dp_appl_sig_appl_id_get_value); }
        /// The state byte of appl_id; none if the record has no states.
        std::optional<std::uint8_t> appl_id_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_appl_id_state_flag_get);
        }

        /// Protocol number to match.
        std::uint8_t protocol() const { return this->call_(lumo_tarn_dp_appl_sig_protocol_get_value); }
        /// The state byte of protocol; none if the record has no states.
        std::optional<std::uint8_t> protocol_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_protocol_state_flag_get);
        }

        /// Type-of-service value to match.
        std::uint8_t tos() const { return this->call_(lumo_tarn_dp_appl_sig_tos_get_value); }
        /// The state byte of tos; none if the record has no states.
        std::optional<std::uint8_t> tos_state() const { return this->state_(lumo_tarn_dp_appl_sig_tos_state_flag_get); }

        /// Flags of the signature.
        std::uint32_t flags() const { return this->call_(lumo_tarn_dp_appl_sig_flags_get_value); }
        /// The state byte of flags; none if the record has no states.
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_flags_state_flag_get);
        }

        /// Low end of the destination port range.
        std::uint16_t dport_min() const { return this->call_(lumo_tarn_dp_appl_sig_dport_min_get_value); }
        /// The state byte of dport_min; none if the record has no states.
        std::optional<std::uint8_t> dport_min_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_dport_min_state_flag_get);
        }

        /// High end of the destination port range.
        std::uint16_t dport_max() const { return this->call_(lumo_tarn_dp_appl_sig_dport_max_get_value); }
        /// The state byte of dport_max; none if the record has no states.
        std::optional<std::uint8_t> dport_max_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_dport_max_state_flag_get);
        }

        /// Low end of the source port range.
        std::uint16_t sport_min() const { return this->call_(lumo_tarn_dp_appl_sig_sport_min_get_value); }
        /// The state byte of sport_min; none if the record has no states.
        std::optional<std::uint8_t> sport_min_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_sport_min_state_flag_get);
        }

        /// High end of the source port range.
        std::uint16_t sport_max() const { return this->call_(lumo_tarn_dp_appl_sig_sport_max_get_value); }
        /// The state byte of sport_max; none if the record has no states.
        std::optional<std::uint8_t> sport_max_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_sport_max_state_flag_get);
        }

        /// Link to the next signature in the bucket.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_appl_sig_next_ptr_get_value); }
        /// The state byte of next_ptr; none if the record has no states.
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_next_ptr_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"exmem_info", &members::exmem_info, nullptr, &members::exmem_info_state,
                nullptr});
            visit(lumo_ui_tarn::member{"dp_hash_bucket", &members::dp_hash_bucket, nullptr,
                &members::dp_hash_bucket_state, nullptr});
            visit(lumo_ui_tarn::member{"pal_id", &members::pal_id, nullptr, &members::pal_id_state, nullptr});
            visit(lumo_ui_tarn::member{"appl_name_len", &members::appl_name_len, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"appl_name", &members::appl_name, nullptr, &members::appl_name_state, nullptr});
            visit(lumo_ui_tarn::member{"appl_id", &members::appl_id, nullptr, &members::appl_id_state, nullptr});
            visit(lumo_ui_tarn::member{"protocol", &members::protocol, nullptr, &members::protocol_state, nullptr});
            visit(lumo_ui_tarn::member{"tos", &members::tos, nullptr, &members::tos_state, nullptr});
            visit(lumo_ui_tarn::member{"flags", &members::flags, nullptr, &members::flags_state, nullptr});
            visit(lumo_ui_tarn::member{"dport_min", &members::dport_min, nullptr, &members::dport_min_state, nullptr});
            visit(lumo_ui_tarn::member{"dport_max", &members::dport_max, nullptr, &members::dport_max_state, nullptr});
            visit(lumo_ui_tarn::member{"sport_min", &members::sport_min, nullptr, &members::sport_min_state, nullptr});
            visit(lumo_ui_tarn::member{"sport_max", &members::sport_max, nullptr, &members::sport_max_state, nullptr});
            visit(lumo_ui_tarn::member{"next_ptr", &members::next_ptr, nullptr, &members::next_ptr_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        using members<Self>::exmem_info;
        /// Where the signature lies in memory.
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_sig_exmem_info_get);
        }
        /// Writes exmem_info.
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_appl_sig_exmem_info_get, lumo_tarn_dp_appl_sig_exmem_info_set,
                value);
        }
        /// Moves a record into exmem_info.
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_appl_sig_exmem_info_get, lumo_tarn_dp_appl_sig_exmem_info_set,
                std::move(value));
        }
        /// Writes the state byte of exmem_info.
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_exmem_info_state_flag_set, value);
        }

        /// Writes dp_hash_bucket.
        Self &set_dp_hash_bucket(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dp_hash_bucket_set_value, value);
        }
        /// Writes the state byte of dp_hash_bucket.
        Self &set_dp_hash_bucket_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_set, value);
        }

        /// Writes pal_id.
        Self &set_pal_id(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_pal_id_set_value, value);
        }
        /// Writes the state byte of pal_id.
        Self &set_pal_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_pal_id_state_flag_set, value);
        }


        /// Writes appl_name.
        Self &set_appl_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_dp_appl_sig_appl_name_set, text);
        }
        /// Writes the state byte of appl_name.
        Self &set_appl_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_name_state_flag_set, value);
        }

        /// Writes appl_id.
        Self &set_appl_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_id_set_value, value);
        }
        /// Writes the state byte of appl_id.
        Self &set_appl_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_id_state_flag_set, value);
        }

        /// Writes protocol.
        Self &set_protocol(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_protocol_set_value, value);
        }
        /// Writes the state byte of protocol.
        Self &set_protocol_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_protocol_state_flag_set, value);
        }

        /// Writes tos.
        Self &set_tos(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_appl_sig_tos_set_value, value); }
        /// Writes the state byte of tos.
        Self &set_tos_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_tos_state_flag_set, value);
        }

        /// Writes flags.
        Self &set_flags(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_flags_set_value, value);
        }
        /// Writes the state byte of flags.
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_flags_state_flag_set, value);
        }

        /// Writes dport_min.
        Self &set_dport_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_min_set_value, value);
        }
        /// Writes the state byte of dport_min.
        Self &set_dport_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_min_state_flag_set, value);
        }

        /// Writes dport_max.
        Self &set_dport_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_max_set_value, value);
        }
        /// Writes the state byte of dport_max.
        Self &set_dport_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_max_state_flag_set, value);
        }

        /// Writes sport_min.
        Self &set_sport_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_min_set_value, value);
        }
        /// Writes the state byte of sport_min.
        Self &set_sport_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_min_state_flag_set, value);
        }

        /// Writes sport_max.
        Self &set_sport_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_max_set_value, value);
        }
        /// Writes the state byte of sport_max.
        Self &set_sport_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_max_state_flag_set, value);
        }

        /// Writes next_ptr.
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_next_ptr_set_value, value);
        }
        /// Writes the state byte of next_ptr.
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_next_ptr_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        lumo_ui_tarn::exmem_info_ref exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_sig_exmem_info_get);
        }
        const Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_appl_sig_exmem_info_get, lumo_tarn_dp_appl_sig_exmem_info_set,
                value);
        }
        const Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_appl_sig_exmem_info_get, lumo_tarn_dp_appl_sig_exmem_info_set,
                std::move(value));
        }
        const Self &set_exmem_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_exmem_info_state_flag_set, value);
        }
        const Self &set_dp_hash_bucket(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dp_hash_bucket_set_value, value);
        }
        const Self &set_dp_hash_bucket_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_set, value);
        }
        const Self &set_pal_id(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_pal_id_set_value, value);
        }
        const Self &set_pal_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_pal_id_state_flag_set, value);
        }
        const Self &set_appl_name(std::string_view text) const {
            return this->write_string_(*this, lumo_tarn_dp_appl_sig_appl_name_set, text);
        }
        const Self &set_appl_name_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_name_state_flag_set, value);
        }
        const Self &set_appl_id(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_id_set_value, value);
        }
        const Self &set_appl_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_id_state_flag_set, value);
        }
        const Self &set_protocol(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_protocol_set_value, value);
        }
        const Self &set_protocol_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_protocol_state_flag_set, value);
        }
        const Self &set_tos(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_tos_set_value, value);
        }
        const Self &set_tos_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_tos_state_flag_set, value);
        }
        const Self &set_flags(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_flags_set_value, value);
        }
        const Self &set_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_flags_state_flag_set, value);
        }
        const Self &set_dport_min(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_min_set_value, value);
        }
        const Self &set_dport_min_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_min_state_flag_set, value);
        }
        const Self &set_dport_max(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_max_set_value, value);
        }
        const Self &set_dport_max_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_max_state_flag_set, value);
        }
        const Self &set_sport_min(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_min_set_value, value);
        }
        const Self &set_sport_min_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_min_state_flag_set, value);
        }
        const Self &set_sport_max(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_max_set_value, value);
        }
        const Self &set_sport_max_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_max_state_flag_set, value);
        }
        const Self &set_next_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_next_ptr_set_value, value);
        }
        const Self &set_next_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_sig_next_ptr_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem_info", detail::writable(&M::exmem_info, 0), &M::set_exmem_info,
            &M::exmem_info_state, &M::set_exmem_info_state});
        visit(lumo_ui_tarn::member{"dp_hash_bucket", &M::dp_hash_bucket, &M::set_dp_hash_bucket,
            &M::dp_hash_bucket_state, &M::set_dp_hash_bucket_state});
        visit(lumo_ui_tarn::member{"pal_id", &M::pal_id, &M::set_pal_id, &M::pal_id_state, &M::set_pal_id_state});
        visit(lumo_ui_tarn::member{"appl_name_len", &M::appl_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"appl_name", &M::appl_name, &M::set_appl_name, &M::appl_name_state,
            &M::set_appl_name_state});
        visit(lumo_ui_tarn::member{"appl_id", &M::appl_id, &M::set_appl_id, &M::appl_id_state, &M::set_appl_id_state});
        visit(lumo_ui_tarn::member{"protocol", &M::protocol, &M::set_protocol, &M::protocol_state,
            &M::set_protocol_state});
        visit(lumo_ui_tarn::member{"tos", &M::tos, &M::set_tos, &M::tos_state, &M::set_tos_state});
        visit(lumo_ui_tarn::member{"flags", &M::flags, &M::set_flags, &M::flags_state, &M::set_flags_state});
        visit(lumo_ui_tarn::member{"dport_min", &M::dport_min, &M::set_dport_min, &M::dport_min_state,
            &M::set_dport_min_state});
        visit(lumo_ui_tarn::member{"dport_max", &M::dport_max, &M::set_dport_max, &M::dport_max_state,
            &M::set_dport_max_state});
        visit(lumo_ui_tarn::member{"sport_min", &M::sport_min, &M::set_sport_min, &M::sport_min_state,
            &M::set_sport_min_state});
        visit(lumo_ui_tarn::member{"sport_max", &M::sport_max, &M::set_sport_max, &M::sport_max_state,
            &M::set_sport_max_state});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, &M::set_next_ptr, &M::next_ptr_state,
            &M::set_next_ptr_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_appl_sig.
using dp_appl_sig = record<dp_appl_sig_type>;
/// Borrows a lumo_tarn_dp_appl_sig.
using dp_appl_sig_ref = record_ref<dp_appl_sig_type>;
/// Borrows a lumo_tarn_dp_appl_sig to read it.
using dp_appl_sig_view = record_view<dp_appl_sig_type>;

/// lumo_tarn_dp_appl_cfg: signatures of one processor.
struct dp_appl_cfg_type {
    using native = lumo_tarn_dp_appl_cfg;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_appl_cfg";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_appl_cfg_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_appl_cfg_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_appl_cfg_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_appl_cfg_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_appl_cfg_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_appl_cfg_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_appl_cfg_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_appl_cfg_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_appl_cfg_destroy;
    /// Same as lumo_tarn_dp_appl_cfg_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_appl_cfg_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_appl_cfg_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_appl_cfg_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_appl_cfg_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_appl_cfg_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_appl_cfg_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_appl_cfg_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_appl_cfg_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_appl_cfg_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_appl_cfg_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_appl_cfg_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_appl_cfg_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_appl_cfg_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_appl_cfg_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_appl_cfg_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_appl_cfg_marshal;
    /// Same as lumo_tarn_dp_appl_cfg_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_appl_cfg_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_appl_cfg_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_appl_cfg_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_appl_cfg_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_appl_cfg_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_appl_cfg_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_appl_cfg_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_appl_cfg_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_appl_cfg_compare;
    static constexpr auto hash = lumo_tarn_dp_appl_cfg_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_appl_cfg_type_type_backpropagate;

    /// How sig_list is read and written, for array_ref.
    struct sig_list_array {
        using native = lumo_tarn_dp_appl_cfg;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_appl_sig_type;  ///< what it is an array of
        using count = std::uint32_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_appl_cfg_num_sigs_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_appl_cfg_sig_list_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_appl_cfg_sig_list_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_dp_appl_cfg_sig_list_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_appl_cfg_sig_list_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_cfg_type, Self> {
    public:
        using detail::operations<dp_appl_cfg_type, Self>::operations;

        /// Show: print the header.
        bool show_header() const { return this->call_(lumo_tarn_dp_appl_cfg_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_show_header_state_flag_get);
        }

        /// Number of the lumo processor.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_appl_cfg_lumo_num_get_value); }
        /// The state byte of lumo_num; none if the record has no states.
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_lumo_num_state_flag_get);
        }

        /// Block of the processor's signature hash.
        lumo_ui_tarn::exmem_info_view hash_exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_cfg_hash_exmem_info_get);
        }
        /// The state byte of hash_exmem_info; none if the record has no states.
        std::optional<std::uint8_t> hash_exmem_info_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_hash_exmem_info_state_flag_get);
        }

        /// Elements in sig_list.
        std::uint32_t num_sigs() const { return this->call_(lumo_tarn_dp_appl_cfg_num_sigs_get_value); }

        /// Signatures.
        lumo_ui_tarn::array_view<sig_list_array> sig_list() const { return this->template array_<sig_list_array>(); }
        /// The state byte of sig_list; none if the record has no states.
        std::optional<std::uint8_t> sig_list_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_sig_list_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"lumo_num", &members::lumo_num, nullptr, &members::lumo_num_state, nullptr});
            visit(lumo_ui_tarn::member{"hash_exmem_info", &members::hash_exmem_info, nullptr,
                &members::hash_exmem_info_state, nullptr});
            visit(lumo_ui_tarn::member{"num_sigs", &members::num_sigs, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"sig_list", &members::sig_list, nullptr, &members::sig_list_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_show_header_state_flag_set, value);
        }

        /// Writes lumo_num.
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_lumo_num_set_value, value);
        }
        /// Writes the state byte of lumo_num.
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_lumo_num_state_flag_set, value);
        }

        using members<Self>::hash_exmem_info;
        /// Block of the processor's signature hash.
        lumo_ui_tarn::exmem_info_ref hash_exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_cfg_hash_exmem_info_get);
        }
        /// Writes hash_exmem_info.
        Self &set_hash_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_get,
                lumo_tarn_dp_appl_cfg_hash_exmem_info_set, value);
        }
        /// Moves a record into hash_exmem_info.
        Self &adopt_hash_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_get,
                lumo_tarn_dp_appl_cfg_hash_exmem_info_set, std::move(value));
        }
        /// Writes the state byte of hash_exmem_info.
        Self &set_hash_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_state_flag_set, value);
        }


        using members<Self>::sig_list;
        /// Signatures.
        lumo_ui_tarn::array_ref<sig_list_array> sig_list() { return this->template array_<sig_list_array>(); }
        /// Writes the state byte of sig_list.
        Self &set_sig_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_sig_list_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_show_header_state_flag_set, value);
        }
        const Self &set_lumo_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_lumo_num_set_value, value);
        }
        const Self &set_lumo_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_lumo_num_state_flag_set, value);
        }
        lumo_ui_tarn::exmem_info_ref hash_exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_cfg_hash_exmem_info_get);
        }
        const Self &set_hash_exmem_info(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_get,
                lumo_tarn_dp_appl_cfg_hash_exmem_info_set, value);
        }
        const Self &adopt_hash_exmem_info(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_get,
                lumo_tarn_dp_appl_cfg_hash_exmem_info_set, std::move(value));
        }
        const Self &set_hash_exmem_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<sig_list_array> sig_list() const { return this->template array_<sig_list_array>(); }
        const Self &set_sig_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_sig_list_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, &M::set_lumo_num, &M::lumo_num_state,
            &M::set_lumo_num_state});
        visit(lumo_ui_tarn::member{"hash_exmem_info", detail::writable(&M::hash_exmem_info, 0), &M::set_hash_exmem_info,
            &M::hash_exmem_info_state, &M::set_hash_exmem_info_state});
        visit(lumo_ui_tarn::member{"num_sigs", &M::num_sigs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"sig_list", detail::writable(&M::sig_list, 0), nullptr, &M::sig_list_state,
            &M::set_sig_list_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_appl_cfg.
using dp_appl_cfg = record<dp_appl_cfg_type>;
/// Borrows a lumo_tarn_dp_appl_cfg.
using dp_appl_cfg_ref = record_ref<dp_appl_cfg_type>;
/// Borrows a lumo_tarn_dp_appl_cfg to read it.
using dp_appl_cfg_view = record_view<dp_appl_cfg_type>;

/// lumo_tarn_dp_appl_data: signature tables, one for each processor.
struct dp_appl_data_type {
    using native = lumo_tarn_dp_appl_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_appl_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_appl_data_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_appl_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_appl_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_appl_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_appl_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_appl_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_appl_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_appl_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_appl_data_destroy;
    /// Same as lumo_tarn_dp_appl_data_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_appl_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_appl_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_appl_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_appl_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_appl_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_appl_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_appl_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_appl_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_appl_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_appl_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_appl_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_appl_data_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_appl_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_appl_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_appl_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_appl_data_marshal;
    /// Same as lumo_tarn_dp_appl_data_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_appl_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_appl_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_appl_data_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_appl_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_appl_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_appl_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_appl_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_appl_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_appl_data_compare;
    static constexpr auto hash = lumo_tarn_dp_appl_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_appl_data_type_type_backpropagate;

    /// How lumo_data is read and written, for array_ref.
    struct lumo_data_array {
        using native = lumo_tarn_dp_appl_data;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_appl_cfg_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_appl_data_num_lumos_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_appl_data_lumo_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_appl_data_lumo_data_set;  ///< writes an element
        static constexpr auto state_get = lumo_tarn_dp_appl_data_lumo_data_state_flag_get;  ///< an element's state byte
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_appl_data_lumo_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_data_type, Self> {
    public:
        using detail::operations<dp_appl_data_type, Self>::operations;

        /// Show: print the header.
        bool show_header() const { return this->call_(lumo_tarn_dp_appl_data_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_appl_data_show_header_state_flag_get);
        }

        /// Elements in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_appl_data_num_lumos_get_value); }

        /// One element for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        /// The state byte of lumo_data; none if the record has no states.
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_appl_data_lumo_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"num_lumos", &members::num_lumos, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"lumo_data", &members::lumo_data, nullptr, &members::lumo_data_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_appl_data_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_data_show_header_state_flag_set, value);
        }


        using members<Self>::lumo_data;
        /// One element for each processor.
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        /// Writes the state byte of lumo_data.
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_data_lumo_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_dp_appl_data_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_data_show_header_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        const Self &set_lumo_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_appl_data_lumo_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", detail::writable(&M::lumo_data, 0), nullptr, &M::lumo_data_state,
            &M::set_lumo_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_appl_data.
using dp_appl_data = record<dp_appl_data_type>;
/// Borrows a lumo_tarn_dp_appl_data.
using dp_appl_data_ref = record_ref<dp_appl_data_type>;
/// Borrows a lumo_tarn_dp_appl_data to read it.
using dp_appl_data_view = record_view<dp_appl_data_type>;

/// lumo_tarn_dp_tt_table: one traffic table of one processor.
struct dp_tt_table_type {
    using native = lumo_tarn_dp_tt_table;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_tt_table";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_tt_table_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_tt_table_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_tt_table_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_tt_table_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_tt_table_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_tt_table_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_tt_table_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_tt_table_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_tt_table_destroy;
    /// Same as lumo_tarn_dp_tt_table_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_tt_table_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_tt_table_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_tt_table_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_tt_table_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_tt_table_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_tt_table_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_tt_table_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_tt_table_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_tt_table_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_tt_table_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_tt_table_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_tt_table_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_tt_table_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_tt_table_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_tt_table_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_tt_table_marshal;
    /// Same as lumo_tarn_dp_tt_table_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_tt_table_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_tt_table_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_tt_table_len(), and one
    /// guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_tt_table_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_tt_table_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_tt_table_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_tt_table_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_tt_table_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_tt_table_compare;
    static constexpr auto hash = lumo_tarn_dp_tt_table_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_tt_table_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tt_table_type, Self> {
    public:
        using detail::operations<dp_tt_table_type, Self>::operations;

        /// Show: the table's header.
        bool show_header() const { return this->call_(lumo_tarn_dp_tt_table_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_header_state_flag_get);
        }

        /// Show: the aggregation class list.
        bool show_agg_list() const { return this->call_(lumo_tarn_dp_tt_table_show_agg_list_get_value) != 0; }
        /// The state byte of show_agg_list; none if the record has no states.
        std::optional<std::uint8_t> show_agg_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_agg_list_state_flag_get);
        }

        /// Show: the filter class list.
        bool show_filter_list() const { return this->call_(lumo_tarn_dp_tt_table_show_filter_list_get_value) != 0; }
        /// The state byte of show_filter_list; none if the record has no states.
        std::optional<std::uint8_t> show_filter_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_filter_list_state_flag_get);
        }

        /// Show: the header of the learn list.
        bool show_ll_header() const { return this->call_(lumo_tarn_dp_tt_table_show_ll_header_get_value) != 0; }
        /// The state byte of show_ll_header; none if the record has no states.
        std::optional<std::uint8_t> show_ll_header_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_ll_header_state_flag_get);
        }

        /// Show: the learn list itself.
        bool show_ll_list() const { return this->call_(lumo_tarn_dp_tt_table_show_ll_list_get_value) != 0; }
        /// The state byte of show_ll_list; none if the record has no states.
        std::optional<std::uint8_t> show_ll_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_ll_list_state_flag_get);
        }

        /// Show: all of it.
        bool display_all() const { return this->call_(lumo_tarn_dp_tt_table_display_all_get_value) != 0; }
        /// The state byte of display_all; none if the record has no states.
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_dp_tt_table_display_all_state_flag_get);
        }

        /// Show: the traffic classes.
        bool display_tc() const { return this->call_(lumo_tarn_dp_tt_table_display_tc_get_value) != 0; }
        /// The state byte of display_tc; none if the record has no states.
        std::optional<std::uint8_t> display_tc_state() const {
            return this->state_(lumo_tarn_dp_tt_table_display_tc_state_flag_get);
        }

        /// Show: the learn lists.
        bool display_ll() const { return this->call_(lumo_tarn_dp_tt_table_display_ll_get_value) != 0; }
        /// The state byte of display_ll; none if the record has no states.
        std::optional<std::uint8_t> display_ll_state() const {
            return this->state_(lumo_tarn_dp_tt_table_display_ll_state_flag_get);
        }

        /// Fdb memory of the table.
        lumo_ui_tarn::fdb_mem_info_view fdb_info() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_dp_tt_table_fdb_info_get);
        }
        /// The state byte of fdb_info; none if the record has no states.
        std::optional<std::uint8_t> fdb_info_state() const {
            return this->state_(lumo_tarn_dp_tt_table_fdb_info_state_flag_get);
        }

        /// Number of the lumo processor that holds the table.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_tt_table_lumo_num_get_value); }
        /// The state byte of lumo_num; none if the record has no states.
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_tt_table_lumo_num_state_flag_get);
        }

        /// State of the table.
        std::uint8_t state() const { return this->call_(lumo_tarn_dp_tt_table_state_get_value); }
        /// The state byte of state; none if the record has no states.
        std::optional<std::uint8_t> state_state() const {
            return this->state_(lumo_tarn_dp_tt_table_state_state_flag_get);
        }

        /// Type of learning.
        std::uint8_t learn_type() const { return this->call_(lumo_tarn_dp_tt_table_learn_type_get_value); }
        /// The state byte of learn_type; none if the record has no states.
        std::optional<std::uint8_t> learn_type_state() const {
            return this->state_(lumo_tarn_dp_tt_table_learn_type_state_flag_get);
        }

        /// Type of aggregation.
        std::uint8_t agg_type() const { return this->call_(lumo_tarn_dp_tt_table_agg_type_get_value); }
        /// The state byte of agg_type; none if the record has no states.
        std::optional<std::uint8_t> agg_type_state() const {
            return this->state_(lumo_tarn_dp_tt_table_agg_type_state_flag_get);
        }

        /// Minimum mask.
        std::uint8_t min_mask() const { return this->call_(lumo_tarn_dp_tt_table_min_mask_get_value); }
        /// The state byte of min_mask; none if the record has no states.
        std::optional<std::uint8_t> min_mask_state() const {
            return this->state_(lumo_tarn_dp_tt_table_min_mask_state_flag_get);
        }

        /// Flags of the table.
        std::uint8_t tt_bit_flags() const { return this->call_(lumo_tarn_dp_tt_table_tt_bit_flags_get_value); }
        /// The state byte of tt_bit_flags; none if the record has no states.
        std::optional<std::uint8_t> tt_bit_flags_state() const {
            return this->state_(lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_get);
        }

        /// Type of aging.
        std::uint16_t aging_type() const { return this->call_(lumo_tarn_dp_tt_table_aging_type_get_value); }
        /// The state byte of aging_type; none if the record has no states.
        std::optional<std::uint8_t> aging_type_state() const {
            return this->state_(lumo_tarn_dp_tt_table_aging_type_state_flag_get);
        }

        /// Number of prefixes in the table.
        std::uint32_t num_prefixes() const { return this->call_(lumo_tarn_dp_tt_table_num_prefixes_get_value); }
        /// The state byte of num_prefixes; none if the record has no states.
        std::optional<std::uint8_t> num_prefixes_state() const {
            return this->state_(lumo_tarn_dp_tt_table_num_prefixes_state_flag_get);
        }

        /// Duration.
        std::uint32_t duration() const { return this->call_(lumo_tarn_dp_tt_table_duration_get_value); }
        /// The state byte of duration; none if the record has no states.
        std::optional<std::uint8_t> duration_state() const {
            return this->state_(lumo_tarn_dp_tt_table_duration_state_flag_get);
        }

        /// Start time.
        std::uint32_t start_time() const { return this->call_(lumo_tarn_dp_tt_table_start_time_get_value); }
        /// The state byte of start_time; none if the record has no states.
        std::optional<std::uint8_t> start_time_state() const {
            return this->state_(lumo_tarn_dp_tt_table_start_time_state_flag_get);
        }

        /// End time.
        std::uint32_t end_time() const { return this->call_(lumo_tarn_dp_tt_table_end_time_get_value); }
        /// The state byte of end_time; none if the record has no states.
        std::optional<std::uint8_t> end_time_state() const {
            return this->state_(lumo_tarn_dp_tt_table_end_time_state_flag_get);
        }

        /// Where the aggregation class list lies in the data plane.
        std::uint64_t agg_tc_list_ptr() const { return this->call_(lumo_tarn_dp_tt_table_agg_tc_list_ptr_get_value); }
        /// The state byte of agg_tc_list_ptr; none if the record has no states.
        std::optional<std::uint8_t> agg_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_get);
        }

        /// Aggregation classes.
        lumo_ui_tarn::dp_tc_list_view agg_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_agg_tc_list_get);
        }
        /// The state byte of agg_tc_list; none if the record has no states.
        std::optional<std::uint8_t> agg_tc_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_agg_tc_list_state_flag_get);
        }

        /// Where the filter class list lies in the data plane.
        std::uint64_t filter_tc_list_ptr() const {
            return this->call_(lumo_tarn_dp_tt_table_filter_tc_list_ptr_get_value);
        }
        /// The state byte of filter_tc_list_ptr; none if the record has no states.
        std::optional<std::uint8_t> filter_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_get);
        }

        /// Filter classes.
        lumo_ui_tarn::dp_tc_list_view filter_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_filter_tc_list_get);
        }
        /// The state byte of filter_tc_list; none if the record has no states.
        std::optional<std::uint8_t> filter_tc_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_filter_tc_list_state_flag_get);
        }

        /// Where the learn list lies in the data plane.
        std::uint64_t learn_list_ptr() const { return this->call_(lumo_tarn_dp_tt_table_learn_list_ptr_get_value); }
        /// The state byte of learn_list_ptr; none if the record has no states.
        std::optional<std::uint8_t> learn_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_get);
        }

        /// Learn list.
        lumo_ui_tarn::dp_learn_list_view learn_list() const {
            return this->template nested_<lumo_ui_tarn::dp_learn_list_type>(lumo_tarn_dp_tt_table_learn_list_get);
        }
        /// The state byte of learn_list; none if the record has no states.
        std::optional<std::uint8_t> learn_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_learn_list_state_flag_get);
        }

        /// Mask of the table's key.
        std::uint32_t key_mask() const { return this->call_(lumo_tarn_dp_tt_table_key_mask_get_value); }
        /// The state byte of key_mask; none if the record has no states.
        std::optional<std::uint8_t> key_mask_state() const {
            return this->state_(lumo_tarn_dp_tt_table_key_mask_state_flag_get);
        }

        /// Head of the throughput entries in the data plane.
        std::uint64_t thruput_head_ptr() const { return this->call_(lumo_tarn_dp_tt_table_thruput_head_ptr_get_value); }
        /// The state byte of thruput_head_ptr; none if the record has no states.
        std::optional<std::uint8_t> thruput_head_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_get);
        }

        /// Number of throughput entries.
        std::uint32_t thruput_entries() const { return this->call_(lumo_tarn_dp_tt_table_thruput_entries_get_value); }
        /// The state byte of thruput_entries; none if the record has no states.
        std::optional<std::uint8_t> thruput_entries_state() const {
            return this->state_(lumo_tarn_dp_tt_table_thruput_entries_state_flag_get);
        }

        /// Head of the delay entries in the data plane.
        std::uint64_t delay_head_ptr() const { return this->call_(lumo_tarn_dp_tt_table_delay_head_ptr_get_value); }
        /// The state byte of delay_head_ptr; none if the record has no states.
        std::optional<std::uint8_t> delay_head_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_get);
        }

        /// Number of delay entries.
        std::uint32_t delay_entries() const { return this->call_(lumo_tarn_dp_tt_table_delay_entries_get_value); }
        /// The state byte of delay_entries; none if the record has no states.
        std::optional<std::uint8_t> delay_entries_state() const {
            return this->state_(lumo_tarn_dp_tt_table_delay_entries_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"show_agg_list", &members::show_agg_list, nullptr, &members::show_agg_list_state,
                nullptr});
            visit(lumo_ui_tarn::member{"show_filter_list", &members::show_filter_list, nullptr,
                &members::show_filter_list_state, nullptr});
            visit(lumo_ui_tarn::member{"show_ll_header", &members::show_ll_header, nullptr,
                &members::show_ll_header_state, nullptr});
            visit(lumo_ui_tarn::member{"show_ll_list", &members::show_ll_list, nullptr, &members::show_ll_list_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_all", &members::display_all, nullptr, &members::display_all_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_tc", &members::display_tc, nullptr, &members::display_tc_state,
                nullptr});
            visit(lumo_ui_tarn::member{"display_ll", &members::display_ll, nullptr, &members::display_ll_state,
                nullptr});
            visit(lumo_ui_tarn::member{"fdb_info", &members::fdb_info, nullptr, &members::fdb_info_state, nullptr});
            visit(lumo_ui_tarn::member{"lumo_num", &members::lumo_num, nullptr, &members::lumo_num_state, nullptr});
            visit(lumo_ui_tarn::member{"state", &members::state, nullptr, &members::state_state, nullptr});
            visit(lumo_ui_tarn::member{"learn_type", &members::learn_type, nullptr, &members::learn_type_state,
                nullptr});
            visit(lumo_ui_tarn::member{"agg_type", &members::agg_type, nullptr, &members::agg_type_state, nullptr});
            visit(lumo_ui_tarn::member{"min_mask", &members::min_mask, nullptr, &members::min_mask_state, nullptr});
            visit(lumo_ui_tarn::member{"tt_bit_flags", &members::tt_bit_flags, nullptr, &members::tt_bit_flags_state,
                nullptr});
            visit(lumo_ui_tarn::member{"aging_type", &members::aging_type, nullptr, &members::aging_type_state,
                nullptr});
            visit(lumo_ui_tarn::member{"num_prefixes", &members::num_prefixes, nullptr, &members::num_prefixes_state,
                nullptr});
            visit(lumo_ui_tarn::member{"duration", &members::duration, nullptr, &members::duration_state, nullptr});
            visit(lumo_ui_tarn::member{"start_time", &members::start_time, nullptr, &members::start_time_state,
                nullptr});
            visit(lumo_ui_tarn::member{"end_time", &members::end_time, nullptr, &members::end_time_state, nullptr});
            visit(lumo_ui_tarn::member{"agg_tc_list_ptr", &members::agg_tc_list_ptr, nullptr,
                &members::agg_tc_list_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"agg_tc_list", &members::agg_tc_list, nullptr, &members::agg_tc_list_state,
                nullptr});
            visit(lumo_ui_tarn::member{"filter_tc_list_ptr", &members::filter_tc_list_ptr, nullptr,
                &members::filter_tc_list_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"filter_tc_list", &members::filter_tc_list, nullptr,
                &members::filter_tc_list_state, nullptr});
            visit(lumo_ui_tarn::member{"learn_list_ptr", &members::learn_list_ptr, nullptr,
                &members::learn_list_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"learn_list", &members::learn_list, nullptr, &members::learn_list_state,
                nullptr});
            visit(lumo_ui_tarn::member{"key_mask", &members::key_mask, nullptr, &members::key_mask_state, nullptr});
            visit(lumo_ui_tarn::member{"thruput_head_ptr", &members::thruput_head_ptr, nullptr,
                &members::thruput_head_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"thruput_entries", &members::thruput_entries, nullptr,
                &members::thruput_entries_state, nullptr});
            visit(lumo_ui_tarn::member{"delay_head_ptr", &members::delay_head_ptr, nullptr,
                &members::delay_head_ptr_state, nullptr});
            visit(lumo_ui_tarn::member{"delay_entries", &members::delay_entries, nullptr, &members::delay_entries_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_header_state_flag_set, value);
        }

        /// Writes show_agg_list.
        Self &set_show_agg_list(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_agg_list_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_agg_list.
        Self &set_show_agg_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_agg_list_state_flag_set, value);
        }

        /// Writes show_filter_list.
        Self &set_show_filter_list(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_filter_list_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_filter_list.
        Self &set_show_filter_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_filter_list_state_flag_set, value);
        }

        /// Writes show_ll_header.
        Self &set_show_ll_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_ll_header.
        Self &set_show_ll_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_header_state_flag_set, value);
        }

        /// Writes show_ll_list.
        Self &set_show_ll_list(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_list_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_ll_list.
        Self &set_show_ll_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_list_state_flag_set, value);
        }

        /// Writes display_all.
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_all.
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_all_state_flag_set, value);
        }

        /// Writes display_tc.
        Self &set_display_tc(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_tc_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_tc.
        Self &set_display_tc_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_tc_state_flag_set, value);
        }

        /// Writes display_ll.
        Self &set_display_ll(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_ll_set_value, static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of display_ll.
        Self &set_display_ll_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_ll_state_flag_set, value);
        }

        using members<Self>::fdb_info;
        /// Fdb memory of the table.
        lumo_ui_tarn::fdb_mem_info_ref fdb_info() {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_dp_tt_table_fdb_info_get);
        }
        /// Writes fdb_info.
        Self &set_fdb_info(lumo_ui_tarn::fdb_mem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_fdb_info_get, lumo_tarn_dp_tt_table_fdb_info_set, value);
        }
        /// Moves a record into fdb_info.
        Self &adopt_fdb_info(lumo_ui_tarn::fdb_mem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_fdb_info_get, lumo_tarn_dp_tt_table_fdb_info_set,
                std::move(value));
        }
        /// Writes the state byte of fdb_info.
        Self &set_fdb_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_fdb_info_state_flag_set, value);
        }

        /// Writes lumo_num.
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_lumo_num_set_value, value);
        }
        /// Writes the state byte of lumo_num.
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_lumo_num_state_flag_set, value);
        }

        /// Writes state.
        Self &set_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_state_set_value, value);
        }
        /// Writes the state byte of state.
        Self &set_state_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_state_state_flag_set, value);
        }

        /// Writes learn_type.
        Self &set_learn_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_type_set_value, value);
        }
        /// Writes the state byte of learn_type.
        Self &set_learn_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_type_state_flag_set, value);
        }

        /// Writes agg_type.
        Self &set_agg_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_type_set_value, value);
        }
        /// Writes the state byte of agg_type.
        Self &set_agg_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_type_state_flag_set, value);
        }

        /// Writes min_mask.
        Self &set_min_mask(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_min_mask_set_value, value);
        }
        /// Writes the state byte of min_mask.
        Self &set_min_mask_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_min_mask_state_flag_set, value);
        }

        /// Writes tt_bit_flags.
        Self &set_tt_bit_flags(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_tt_bit_flags_set_value, value);
        }
        /// Writes the state byte of tt_bit_flags.
        Self &set_tt_bit_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_set, value);
        }

        /// Writes aging_type.
        Self &set_aging_type(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_aging_type_set_value, value);
        }
        /// Writes the state byte of aging_type.
        Self &set_aging_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_aging_type_state_flag_set, value);
        }

        /// Writes num_prefixes.
        Self &set_num_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_num_prefixes_set_value, value);
        }
        /// Writes the state byte of num_prefixes.
        Self &set_num_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_num_prefixes_state_flag_set, value);
        }

        /// Writes duration.
        Self &set_duration(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_duration_set_value, value);
        }
        /// Writes the state byte of duration.
        Self &set_duration_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_duration_state_flag_set, value);
        }

        /// Writes start_time.
        Self &set_start_time(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_start_time_set_value, value);
        }
        /// Writes the state byte of start_time.
        Self &set_start_time_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_start_time_state_flag_set, value);
        }

        /// Writes end_time.
        Self &set_end_time(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_end_time_set_value, value);
        }
        /// Writes the state byte of end_time.
        Self &set_end_time_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_end_time_state_flag_set, value);
        }

        /// Writes agg_tc_list_ptr.
        Self &set_agg_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_ptr_set_value, value);
        }
        /// Writes the state byte of agg_tc_list_ptr.
        Self &set_agg_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_set, value);
        }

        using members<Self>::agg_tc_list;
        /// Aggregation classes.
        lumo_ui_tarn::dp_tc_list_ref agg_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_agg_tc_list_get);
        }
        /// Writes agg_tc_list.
        Self &set_agg_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_agg_tc_list_get, lumo_tarn_dp_tt_table_agg_tc_list_set,
                value);
        }
        /// Moves a record into agg_tc_list.
        Self &adopt_agg_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_agg_tc_list_get, lumo_tarn_dp_tt_table_agg_tc_list_set,
                std::move(value));
        }
        /// Writes the state byte of agg_tc_list.
        Self &set_agg_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_state_flag_set, value);
        }

        /// Writes filter_tc_list_ptr.
        Self &set_filter_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_ptr_set_value, value);
        }
        /// Writes the state byte of filter_tc_list_ptr.
        Self &set_filter_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_set, value);
        }

        using members<Self>::filter_tc_list;
        /// Filter classes.
        lumo_ui_tarn::dp_tc_list_ref filter_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_filter_tc_list_get);
        }
        /// Writes filter_tc_list.
        Self &set_filter_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_filter_tc_list_get,
                lumo_tarn_dp_tt_table_filter_tc_list_set, value);
        }
        /// Moves a record into filter_tc_list.
        Self &adopt_filter_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_filter_tc_list_get,
                lumo_tarn_dp_tt_table_filter_tc_list_set, std::move(value));
        }
        /// Writes the state byte of filter_tc_list.
        Self &set_filter_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_state_flag_set, value);
        }

        /// Writes learn_list_ptr.
        Self &set_learn_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_ptr_set_value, value);
        }
        /// Writes the state byte of learn_list_ptr.
        Self &set_learn_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_set, value);
        }

        using members<Self>::learn_list;
        /// Learn list.
        lumo_ui_tarn::dp_learn_list_ref learn_list() {
            return this->template nested_<lumo_ui_tarn::dp_learn_list_type>(lumo_tarn_dp_tt_table_learn_list_get);
        }
        /// Writes learn_list.
        Self &set_learn_list(lumo_ui_tarn::dp_learn_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_learn_list_get, lumo_tarn_dp_tt_table_learn_list_set,
                value);
        }
        /// Moves a record into learn_list.
        Self &adopt_learn_list(lumo_ui_tarn::dp_learn_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_learn_list_get, lumo_tarn_dp_tt_table_learn_list_set,
                std::move(value));
        }
        /// Writes the state byte of learn_list.
        Self &set_learn_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_state_flag_set, value);
        }

        /// Writes key_mask.
        Self &set_key_mask(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_key_mask_set_value, value);
        }
        /// Writes the state byte of key_mask.
        Self &set_key_mask_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_key_mask_state_flag_set, value);
        }

        /// Writes thruput_head_ptr.
        Self &set_thruput_head_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_head_ptr_set_value, value);
        }
        /// Writes the state byte of thruput_head_ptr.
        Self &set_thruput_head_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_set, value);
        }

        /// Writes thruput_entries.
        Self &set_thruput_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_entries_set_value, value);
        }
        /// Writes the state byte of thruput_entries.
        Self &set_thruput_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_entries_state_flag_set, value);
        }

        /// Writes delay_head_ptr.
        Self &set_delay_head_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_head_ptr_set_value, value);
        }
        /// Writes the state byte of delay_head_ptr.
        Self &set_delay_head_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_set, value);
        }

        /// Writes delay_entries.
        Self &set_delay_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_entries_set_value, value);
        }
        /// Writes the state byte of delay_entries.
        Self &set_delay_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_entries_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_header_state_flag_set, value);
        }
        const Self &set_show_agg_list(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_agg_list_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_show_agg_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_agg_list_state_flag_set, value);
        }
        const Self &set_show_filter_list(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_filter_list_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_show_filter_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_filter_list_state_flag_set, value);
        }
        const Self &set_show_ll_header(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_show_ll_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_header_state_flag_set, value);
        }
        const Self &set_show_ll_list(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_list_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_show_ll_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_list_state_flag_set, value);
        }
        const Self &set_display_all(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_all_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_all_state_flag_set, value);
        }
        const Self &set_display_tc(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_tc_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_tc_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_tc_state_flag_set, value);
        }
        const Self &set_display_ll(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_ll_set_value, static_cast<std::uint8_t>(value));
        }
        const Self &set_display_ll_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_ll_state_flag_set, value);
        }
        lumo_ui_tarn::fdb_mem_info_ref fdb_info() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_dp_tt_table_fdb_info_get);
        }
        const Self &set_fdb_info(lumo_ui_tarn::fdb_mem_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_tt_table_fdb_info_get, lumo_tarn_dp_tt_table_fdb_info_set, value);
        }
        const Self &adopt_fdb_info(lumo_ui_tarn::fdb_mem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_fdb_info_get, lumo_tarn_dp_tt_table_fdb_info_set,
                std::move(value));
        }
        const Self &set_fdb_info_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_fdb_info_state_flag_set, value);
        }
        const Self &set_lumo_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_lumo_num_set_value, value);
        }
        const Self &set_lumo_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_lumo_num_state_flag_set, value);
        }
        const Self &set_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_state_set_value, value);
        }
        const Self &set_state_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_state_state_flag_set, value);
        }
        const Self &set_learn_type(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_type_set_value, value);
        }
        const Self &set_learn_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_type_state_flag_set, value);
        }
        const Self &set_agg_type(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_type_set_value, value);
        }
        const Self &set_agg_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_type_state_flag_set, value);
        }
        const Self &set_min_mask(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_min_mask_set_value, value);
        }
        const Self &set_min_mask_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_min_mask_state_flag_set, value);
        }
        const Self &set_tt_bit_flags(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_tt_bit_flags_set_value, value);
        }
        const Self &set_tt_bit_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_set, value);
        }
        const Self &set_aging_type(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_aging_type_set_value, value);
        }
        const Self &set_aging_type_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_aging_type_state_flag_set, value);
        }
        const Self &set_num_prefixes(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_num_prefixes_set_value, value);
        }
        const Self &set_num_prefixes_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_num_prefixes_state_flag_set, value);
        }
        const Self &set_duration(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_duration_set_value, value);
        }
        const Self &set_duration_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_duration_state_flag_set, value);
        }
        const Self &set_start_time(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_start_time_set_value, value);
        }
        const Self &set_start_time_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_start_time_state_flag_set, value);
        }
        const Self &set_end_time(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_end_time_set_value, value);
        }
        const Self &set_end_time_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_end_time_state_flag_set, value);
        }
        const Self &set_agg_tc_list_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_ptr_set_value, value);
        }
        const Self &set_agg_tc_list_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::dp_tc_list_ref agg_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_agg_tc_list_get);
        }
        const Self &set_agg_tc_list(lumo_ui_tarn::dp_tc_list_view value) const {
            return this->assign_(*this, lumo_tarn_dp_tt_table_agg_tc_list_get, lumo_tarn_dp_tt_table_agg_tc_list_set,
                value);
        }
        const Self &adopt_agg_tc_list(lumo_ui_tarn::dp_tc_list &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_agg_tc_list_get, lumo_tarn_dp_tt_table_agg_tc_list_set,
                std::move(value));
        }
        const Self &set_agg_tc_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_state_flag_set, value);
        }
        const Self &set_filter_tc_list_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_ptr_set_value, value);
        }
        const Self &set_filter_tc_list_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::dp_tc_list_ref filter_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_filter_tc_list_get);
        }
        const Self &set_filter_tc_list(lumo_ui_tarn::dp_tc_list_view value) const {
            return this->assign_(*this, lumo_tarn_dp_tt_table_filter_tc_list_get,
                lumo_tarn_dp_tt_table_filter_tc_list_set, value);
        }
        const Self &adopt_filter_tc_list(lumo_ui_tarn::dp_tc_list &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_filter_tc_list_get,
                lumo_tarn_dp_tt_table_filter_tc_list_set, std::move(value));
        }
        const Self &set_filter_tc_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_state_flag_set, value);
        }
        const Self &set_learn_list_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_ptr_set_value, value);
        }
        const Self &set_learn_list_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_set, value);
        }
        lumo_ui_tarn::dp_learn_list_ref learn_list() const {
            return this->template nested_<lumo_ui_tarn::dp_learn_list_type>(lumo_tarn_dp_tt_table_learn_list_get);
        }
        const Self &set_learn_list(lumo_ui_tarn::dp_learn_list_view value) const {
            return this->assign_(*this, lumo_tarn_dp_tt_table_learn_list_get, lumo_tarn_dp_tt_table_learn_list_set,
                value);
        }
        const Self &adopt_learn_list(lumo_ui_tarn::dp_learn_list &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_learn_list_get, lumo_tarn_dp_tt_table_learn_list_set,
                std::move(value));
        }
        const Self &set_learn_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_state_flag_set, value);
        }
        const Self &set_key_mask(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_key_mask_set_value, value);
        }
        const Self &set_key_mask_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_key_mask_state_flag_set, value);
        }
        const Self &set_thruput_head_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_head_ptr_set_value, value);
        }
        const Self &set_thruput_head_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_set, value);
        }
        const Self &set_thruput_entries(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_entries_set_value, value);
        }
        const Self &set_thruput_entries_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_entries_state_flag_set, value);
        }
        const Self &set_delay_head_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_head_ptr_set_value, value);
        }
        const Self &set_delay_head_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_set, value);
        }
        const Self &set_delay_entries(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_entries_set_value, value);
        }
        const Self &set_delay_entries_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_entries_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"show_agg_list", &M::show_agg_list, &M::set_show_agg_list, &M::show_agg_list_state,
            &M::set_show_agg_list_state});
        visit(lumo_ui_tarn::member{"show_filter_list", &M::show_filter_list, &M::set_show_filter_list,
            &M::show_filter_list_state, &M::set_show_filter_list_state});
        visit(lumo_ui_tarn::member{"show_ll_header", &M::show_ll_header, &M::set_show_ll_header,
            &M::show_ll_header_state, &M::set_show_ll_header_state});
        visit(lumo_ui_tarn::member{"show_ll_list", &M::show_ll_list, &M::set_show_ll_list, &M::show_ll_list_state,
            &M::set_show_ll_list_state});
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, &M::set_display_all, &M::display_all_state,
            &M::set_display_all_state});
        visit(lumo_ui_tarn::member{"display_tc", &M::display_tc, &M::set_display_tc, &M::display_tc_state,
            &M::set_display_tc_state});
        visit(lumo_ui_tarn::member{"display_ll", &M::display_ll, &M::set_display_ll, &M::display_ll_state,
            &M::set_display_ll_state});
        visit(lumo_ui_tarn::member{"fdb_info", detail::writable(&M::fdb_info, 0), &M::set_fdb_info, &M::fdb_info_state,
            &M::set_fdb_info_state});
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, &M::set_lumo_num, &M::lumo_num_state,
            &M::set_lumo_num_state});
        visit(lumo_ui_tarn::member{"state", &M::state, &M::set_state, &M::state_state, &M::set_state_state});
        visit(lumo_ui_tarn::member{"learn_type", &M::learn_type, &M::set_learn_type, &M::learn_type_state,
            &M::set_learn_type_state});
        visit(lumo_ui_tarn::member{"agg_type", &M::agg_type, &M::set_agg_type, &M::agg_type_state,
            &M::set_agg_type_state});
        visit(lumo_ui_tarn::member{"min_mask", &M::min_mask, &M::set_min_mask, &M::min_mask_state,
            &M::set_min_mask_state});
        visit(lumo_ui_tarn::member{"tt_bit_flags", &M::tt_bit_flags, &M::set_tt_bit_flags, &M::tt_bit_flags_state,
            &M::set_tt_bit_flags_state});
        visit(lumo_ui_tarn::member{"aging_type", &M::aging_type, &M::set_aging_type, &M::aging_type_state,
            &M::set_aging_type_state});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, &M::set_num_prefixes, &M::num_prefixes_state,
            &M::set_num_prefixes_state});
        visit(lumo_ui_tarn::member{"duration", &M::duration, &M::set_duration, &M::duration_state,
            &M::set_duration_state});
        visit(lumo_ui_tarn::member{"start_time", &M::start_time, &M::set_start_time, &M::start_time_state,
            &M::set_start_time_state});
        visit(lumo_ui_tarn::member{"end_time", &M::end_time, &M::set_end_time, &M::end_time_state,
            &M::set_end_time_state});
        visit(lumo_ui_tarn::member{"agg_tc_list_ptr", &M::agg_tc_list_ptr, &M::set_agg_tc_list_ptr,
            &M::agg_tc_list_ptr_state, &M::set_agg_tc_list_ptr_state});
        visit(lumo_ui_tarn::member{"agg_tc_list", detail::writable(&M::agg_tc_list, 0), &M::set_agg_tc_list,
            &M::agg_tc_list_state, &M::set_agg_tc_list_state});
        visit(lumo_ui_tarn::member{"filter_tc_list_ptr", &M::filter_tc_list_ptr, &M::set_filter_tc_list_ptr,
            &M::filter_tc_list_ptr_state, &M::set_filter_tc_list_ptr_state});
        visit(lumo_ui_tarn::member{"filter_tc_list", detail::writable(&M::filter_tc_list, 0), &M::set_filter_tc_list,
            &M::filter_tc_list_state, &M::set_filter_tc_list_state});
        visit(lumo_ui_tarn::member{"learn_list_ptr", &M::learn_list_ptr, &M::set_learn_list_ptr,
            &M::learn_list_ptr_state, &M::set_learn_list_ptr_state});
        visit(lumo_ui_tarn::member{"learn_list", detail::writable(&M::learn_list, 0), &M::set_learn_list,
            &M::learn_list_state, &M::set_learn_list_state});
        visit(lumo_ui_tarn::member{"key_mask", &M::key_mask, &M::set_key_mask, &M::key_mask_state,
            &M::set_key_mask_state});
        visit(lumo_ui_tarn::member{"thruput_head_ptr", &M::thruput_head_ptr, &M::set_thruput_head_ptr,
            &M::thruput_head_ptr_state, &M::set_thruput_head_ptr_state});
        visit(lumo_ui_tarn::member{"thruput_entries", &M::thruput_entries, &M::set_thruput_entries,
            &M::thruput_entries_state, &M::set_thruput_entries_state});
        visit(lumo_ui_tarn::member{"delay_head_ptr", &M::delay_head_ptr, &M::set_delay_head_ptr,
            &M::delay_head_ptr_state, &M::set_delay_head_ptr_state});
        visit(lumo_ui_tarn::member{"delay_entries", &M::delay_entries, &M::set_delay_entries, &M::delay_entries_state,
            &M::set_delay_entries_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_tt_table.
using dp_tt_table = record<dp_tt_table_type>;
/// Borrows a lumo_tarn_dp_tt_table.
using dp_tt_table_ref = record_ref<dp_tt_table_type>;
/// Borrows a lumo_tarn_dp_tt_table to read it.
using dp_tt_table_view = record_view<dp_tt_table_type>;

/// lumo_tarn_dp_tt_table_data: one traffic table for each processor.
struct dp_tt_table_data_type {
    using native = lumo_tarn_dp_tt_table_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_tt_table_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_tt_table_data_create;
    /// Same as lumo_tarn_dp_tt_table_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_tt_table_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_tt_table_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_tt_table_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_tt_table_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_tt_table_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_tt_table_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_tt_table_data_destroy;
    /// Same as lumo_tarn_dp_tt_table_data_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_tt_table_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_tt_table_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_tt_table_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_tt_table_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_tt_table_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_tt_table_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_tt_table_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_tt_table_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_tt_table_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_tt_table_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_tt_table_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_tt_table_data_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_dp_tt_table_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_tt_table_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_tt_table_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_tt_table_data_marshal;
    /// Same as lumo_tarn_dp_tt_table_data_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_tt_table_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_tt_table_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_tt_table_data_len(),
    /// and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_tt_table_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_tt_table_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_tt_table_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_tt_table_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_tt_table_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_tt_table_data_compare;
    static constexpr auto hash = lumo_tarn_dp_tt_table_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_tt_table_data_type_type_backpropagate;

    /// How lumo_data is read and written, for array_ref.
    struct lumo_data_array {
        using native = lumo_tarn_dp_tt_table_data;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_tt_table_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_tt_table_data_num_lumos_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_tt_table_data_lumo_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_tt_table_data_lumo_data_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_dp_tt_table_data_lumo_data_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_tt_table_data_lumo_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tt_table_data_type, Self> {
    public:
        using detail::operations<dp_tt_table_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_dp_tt_table_data_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_tt_table_data_show_header_state_flag_get);
        }

        /// Elements in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_tt_table_data_num_lumos_get_value); }

        /// Tables, one for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        /// The state byte of lumo_data; none if the record has no states.
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_tt_table_data_lumo_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"num_lumos", &members::num_lumos, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"lumo_data", &members::lumo_data, nullptr, &members::lumo_data_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_show_header_state_flag_set, value);
        }


        using members<Self>::lumo_data;
        /// Tables, one for each processor.
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        /// Writes the state byte of lumo_data.
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_lumo_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_show_header_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        const Self &set_lumo_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_lumo_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", detail::writable(&M::lumo_data, 0), nullptr, &M::lumo_data_state,
            &M::set_lumo_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_tt_table_data.
using dp_tt_table_data = record<dp_tt_table_data_type>;
/// Borrows a lumo_tarn_dp_tt_table_data.
using dp_tt_table_data_ref = record_ref<dp_tt_table_data_type>;
/// Borrows a lumo_tarn_dp_tt_table_data to read it.
using dp_tt_table_data_view = record_view<dp_tt_table_data_type>;

/// lumo_tarn_dp_mp_tc_prefix: traffic classes of one prefix on one processor.
struct dp_mp_tc_prefix_type {
    using native = lumo_tarn_dp_mp_tc_prefix;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_mp_tc_prefix";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_mp_tc_prefix_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_mp_tc_prefix_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_mp_tc_prefix_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_mp_tc_prefix_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_mp_tc_prefix_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_mp_tc_prefix_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_mp_tc_prefix_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_mp_tc_prefix_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_mp_tc_prefix_destroy;
    /// Same as lumo_tarn_dp_mp_tc_prefix_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_mp_tc_prefix_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_mp_tc_prefix_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_mp_tc_prefix_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_mp_tc_prefix_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_mp_tc_prefix_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_mp_tc_prefix_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_mp_tc_prefix_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_tc_prefix_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_mp_tc_prefix_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_mp_tc_prefix_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_mp_tc_prefix_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_mp_tc_prefix_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_mp_tc_prefix_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_tc_prefix_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_mp_tc_prefix_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_tc_prefix_marshal;
    /// Same as lumo_tarn_dp_mp_tc_prefix_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_mp_tc_prefix_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_tc_prefix_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_mp_tc_prefix_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_mp_tc_prefix_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_mp_tc_prefix_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_mp_tc_prefix_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_mp_tc_prefix_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_mp_tc_prefix_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_mp_tc_prefix_compare;
    static constexpr auto hash = lumo_tarn_dp_mp_tc_prefix_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_mp_tc_prefix_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_tc_prefix_type, Self> {
    public:
        using detail::operations<dp_mp_tc_prefix_type, Self>::operations;

        /// Number of the lumo processor that this entry describes.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_lumo_num_get_value); }
        /// The state byte of lumo_num; none if the record has no states.
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_lumo_num_state_flag_get);
        }

        /// The entry's address on the client side.
        std::uint64_t cl_addr() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_cl_addr_get_value); }
        /// The state byte of cl_addr; none if the record has no states.
        std::optional<std::uint8_t> cl_addr_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_cl_addr_state_flag_get);
        }

        /// Where the head of the class list lies in memory.
        lumo_ui_tarn::exmem_info_view tc_list_head() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_head_get);
        }
        /// The state byte of tc_list_head; none if the record has no states.
        std::optional<std::uint8_t> tc_list_head_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_tc_list_head_state_flag_get);
        }

        /// Link of the list head to what follows it in the data plane.
        std::uint64_t tc_list_head_next() const {
            return this->call_(lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_get_value);
        }
        /// The state byte of tc_list_head_next; none if the record has no states.
        std::optional<std::uint8_t> tc_list_head_next_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_state_flag_get);
        }

        /// Traffic classes.
        lumo_ui_tarn::dp_tc_list_view tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_get);
        }
        /// The state byte of tc_list; none if the record has no states.
        std::optional<std::uint8_t> tc_list_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_tc_list_state_flag_get);
        }

        /// Selection flag of the show request.
        bool show_pfx_comm() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_get_value) != 0; }
        /// The state byte of show_pfx_comm; none if the record has no states.
        std::optional<std::uint8_t> show_pfx_comm_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"lumo_num", &members::lumo_num, nullptr, &members::lumo_num_state, nullptr});
            visit(lumo_ui_tarn::member{"cl_addr", &members::cl_addr, nullptr, &members::cl_addr_state, nullptr});
            visit(lumo_ui_tarn::member{"tc_list_head", &members::tc_list_head, nullptr, &members::tc_list_head_state,
                nullptr});
            visit(lumo_ui_tarn::member{"tc_list_head_next", &members::tc_list_head_next, nullptr,
                &members::tc_list_head_next_state, nullptr});
            visit(lumo_ui_tarn::member{"tc_list", &members::tc_list, nullptr, &members::tc_list_state, nullptr});
            visit(lumo_ui_tarn::member{"show_pfx_comm", &members::show_pfx_comm, nullptr, &members::show_pfx_comm_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes lumo_num.
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_num_set_value, value);
        }
        /// Writes the state byte of lumo_num.
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_num_state_flag_set, value);
        }

        /// Writes cl_addr.
        Self &set_cl_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_cl_addr_set_value, value);
        }
        /// Writes the state byte of cl_addr.
        Self &set_cl_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_cl_addr_state_flag_set, value);
        }

        using members<Self>::tc_list_head;
        /// Where the head of the class list lies in memory.
        lumo_ui_tarn::exmem_info_ref tc_list_head() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_head_get);
        }
        /// Writes tc_list_head.
        Self &set_tc_list_head(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_get,
                lumo_tarn_dp_mp_tc_prefix_tc_list_head_set, value);
        }
        /// Moves a record into tc_list_head.
        Self &adopt_tc_list_head(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_get,
                lumo_tarn_dp_mp_tc_prefix_tc_list_head_set, std::move(value));
        }
        /// Writes the state byte of tc_list_head.
        Self &set_tc_list_head_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_state_flag_set, value);
        }

        /// Writes tc_list_head_next.
        Self &set_tc_list_head_next(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_set_value, value);
        }
        /// Writes the state byte of tc_list_head_next.
        Self &set_tc_list_head_next_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_state_flag_set, value);
        }

        using members<Self>::tc_list;
        /// Traffic classes.
        lumo_ui_tarn::dp_tc_list_ref tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_get);
        }
        /// Writes tc_list.
        Self &set_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_get, lumo_tarn_dp_mp_tc_prefix_tc_list_set,
                value);
        }
        /// Moves a record into tc_list.
        Self &adopt_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_get, lumo_tarn_dp_mp_tc_prefix_tc_list_set,
                std::move(value));
        }
        /// Writes the state byte of tc_list.
        Self &set_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_state_flag_set, value);
        }

        /// Writes show_pfx_comm.
        Self &set_show_pfx_comm(bool value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_pfx_comm.
        Self &set_show_pfx_comm_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_lumo_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_num_set_value, value);
        }
        const Self &set_lumo_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_num_state_flag_set, value);
        }
        const Self &set_cl_addr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_cl_addr_set_value, value);
        }
        const Self &set_cl_addr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_cl_addr_state_flag_set, value);
        }
        lumo_ui_tarn::exmem_info_ref tc_list_head() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_head_get);
        }
        const Self &set_tc_list_head(lumo_ui_tarn::exmem_info_view value) const {
            return this->assign_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_get,
                lumo_tarn_dp_mp_tc_prefix_tc_list_head_set, value);
        }
        const Self &adopt_tc_list_head(lumo_ui_tarn::exmem_info &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_get,
                lumo_tarn_dp_mp_tc_prefix_tc_list_head_set, std::move(value));
        }
        const Self &set_tc_list_head_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_state_flag_set, value);
        }
        const Self &set_tc_list_head_next(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_set_value, value);
        }
        const Self &set_tc_list_head_next_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_state_flag_set, value);
        }
        lumo_ui_tarn::dp_tc_list_ref tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_get);
        }
        const Self &set_tc_list(lumo_ui_tarn::dp_tc_list_view value) const {
            return this->assign_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_get, lumo_tarn_dp_mp_tc_prefix_tc_list_set,
                value);
        }
        const Self &adopt_tc_list(lumo_ui_tarn::dp_tc_list &&value) const {
            return this->adopt_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_get, lumo_tarn_dp_mp_tc_prefix_tc_list_set,
                std::move(value));
        }
        const Self &set_tc_list_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_state_flag_set, value);
        }
        const Self &set_show_pfx_comm(bool value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_show_pfx_comm_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, &M::set_lumo_num, &M::lumo_num_state,
            &M::set_lumo_num_state});
        visit(lumo_ui_tarn::member{"cl_addr", &M::cl_addr, &M::set_cl_addr, &M::cl_addr_state, &M::set_cl_addr_state});
        visit(lumo_ui_tarn::member{"tc_list_head", detail::writable(&M::tc_list_head, 0), &M::set_tc_list_head,
            &M::tc_list_head_state, &M::set_tc_list_head_state});
        visit(lumo_ui_tarn::member{"tc_list_head_next", &M::tc_list_head_next, &M::set_tc_list_head_next,
            &M::tc_list_head_next_state, &M::set_tc_list_head_next_state});
        visit(lumo_ui_tarn::member{"tc_list", detail::writable(&M::tc_list, 0), &M::set_tc_list, &M::tc_list_state,
            &M::set_tc_list_state});
        visit(lumo_ui_tarn::member{"show_pfx_comm", &M::show_pfx_comm, &M::set_show_pfx_comm, &M::show_pfx_comm_state,
            &M::set_show_pfx_comm_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_mp_tc_prefix.
using dp_mp_tc_prefix = record<dp_mp_tc_prefix_type>;
/// Borrows a lumo_tarn_dp_mp_tc_prefix.
using dp_mp_tc_prefix_ref = record_ref<dp_mp_tc_prefix_type>;
/// Borrows a lumo_tarn_dp_mp_tc_prefix to read it.
using dp_mp_tc_prefix_view = record_view<dp_mp_tc_prefix_type>;

/// lumo_tarn_dp_mp_tc_prefix_lumo_data: one prefix with its entries.
struct dp_mp_tc_prefix_lumo_data_type {
    using native = lumo_tarn_dp_mp_tc_prefix_lumo_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_mp_tc_prefix_lumo_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_mp_tc_prefix_lumo_data_create;
    /// Same as lumo_tarn_dp_mp_tc_prefix_lumo_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_mp_tc_prefix_lumo_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_mp_tc_prefix_lumo_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_mp_tc_prefix_lumo_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_mp_tc_prefix_lumo_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_mp_tc_prefix_lumo_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_mp_tc_prefix_lumo_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_mp_tc_prefix_lumo_data_destroy;
    /// Same as lumo_tarn_dp_mp_tc_prefix_lumo_data_destroy(), but with free_it 0 the memory of the instance itself is
    /// not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_mp_tc_prefix_lumo_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_mp_tc_prefix_lumo_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_mp_tc_prefix_lumo_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_mp_tc_prefix_lumo_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_mp_tc_prefix_lumo_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_mp_tc_prefix_lumo_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_mp_tc_prefix_lumo_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_tc_prefix_lumo_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_mp_tc_prefix_lumo_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_mp_tc_prefix_lumo_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_mp_tc_prefix_lumo_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_mp_tc_prefix_lumo_data_offset_update() set, at
    /// every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_mp_tc_prefix_lumo_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_tc_prefix_lumo_data_marshal() needs, without the guard
    /// byte.
    static constexpr auto len = lumo_tarn_dp_mp_tc_prefix_lumo_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_tc_prefix_lumo_data_marshal;
    /// Same as lumo_tarn_dp_mp_tc_prefix_lumo_data_marshal(), but the outermost frame keeps the instance's own variant
    /// whatever the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_mp_tc_prefix_lumo_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_tc_prefix_lumo_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least
    /// lumo_tarn_dp_mp_tc_prefix_lumo_data_len(), and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_mp_tc_prefix_lumo_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_mp_tc_prefix_lumo_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_mp_tc_prefix_lumo_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_mp_tc_prefix_lumo_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_mp_tc_prefix_lumo_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_mp_tc_prefix_lumo_data_compare;
    static constexpr auto hash = lumo_tarn_dp_mp_tc_prefix_lumo_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_mp_tc_prefix_lumo_data_type_type_backpropagate;

    /// How lumo_data is read and written, for array_ref.
    struct lumo_data_array {
        using native = lumo_tarn_dp_mp_tc_prefix_lumo_data;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_mp_tc_prefix_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_mp_tc_prefix_lumo_data_num_lumos_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_tc_prefix_lumo_data_type, Self> {
    public:
        using detail::operations<dp_mp_tc_prefix_lumo_data_type, Self>::operations;

        /// Prefix.
        lumo_ui_tarn::address prefix() const {
            return this->read_address_(lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_get);
        }
        /// The state byte of prefix; none if the record has no states.
        std::optional<std::uint8_t> prefix_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_state_flag_get);
        }

        /// Elements in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_lumo_data_num_lumos_get_value); }

        /// Entries, one for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        /// The state byte of lumo_data; none if the record has no states.
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"prefix", &members::prefix, nullptr, &members::prefix_state, nullptr});
            visit(lumo_ui_tarn::member{"num_lumos", &members::num_lumos, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"lumo_data", &members::lumo_data, nullptr, &members::lumo_data_state, nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes prefix.
        Self &set_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_get,
                lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_set, value);
        }
        /// Writes the state byte of prefix.
        Self &set_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_state_flag_set, value);
        }


        using members<Self>::lumo_data;
        /// Entries, one for each processor.
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        /// Writes the state byte of lumo_data.
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_prefix(const lumo_ui_tarn::address &value) const {
            return this->write_address_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_get,
                lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_set, value);
        }
        const Self &set_prefix_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }
        const Self &set_lumo_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"prefix", &M::prefix, &M::set_prefix, &M::prefix_state, &M::set_prefix_state});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", detail::writable(&M::lumo_data, 0), nullptr, &M::lumo_data_state,
            &M::set_lumo_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_mp_tc_prefix_lumo_data.
using dp_mp_tc_prefix_lumo_data = record<dp_mp_tc_prefix_lumo_data_type>;
/// Borrows a lumo_tarn_dp_mp_tc_prefix_lumo_data.
using dp_mp_tc_prefix_lumo_data_ref = record_ref<dp_mp_tc_prefix_lumo_data_type>;
/// Borrows a lumo_tarn_dp_mp_tc_prefix_lumo_data to read it.
using dp_mp_tc_prefix_lumo_data_view = record_view<dp_mp_tc_prefix_lumo_data_type>;

/// lumo_tarn_dp_mp_tc_prefix_data: prefixes with the traffic classes that hang on them.
struct dp_mp_tc_prefix_data_type {
    using native = lumo_tarn_dp_mp_tc_prefix_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_mp_tc_prefix_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_mp_tc_prefix_data_create;
    /// Same as lumo_tarn_dp_mp_tc_prefix_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_mp_tc_prefix_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_mp_tc_prefix_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_mp_tc_prefix_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_mp_tc_prefix_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_mp_tc_prefix_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_mp_tc_prefix_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_mp_tc_prefix_data_destroy;
    /// Same as lumo_tarn_dp_mp_tc_prefix_data_destroy(), but with free_it 0 the memory of the instance itself is not
    /// freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_mp_tc_prefix_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_mp_tc_prefix_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_mp_tc_prefix_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_mp_tc_prefix_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_mp_tc_prefix_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_mp_tc_prefix_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_mp_tc_prefix_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_tc_prefix_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_mp_tc_prefix_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_mp_tc_prefix_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_mp_tc_prefix_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_mp_tc_prefix_data_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_dp_mp_tc_prefix_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_tc_prefix_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_mp_tc_prefix_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_tc_prefix_data_marshal;
    /// Same as lumo_tarn_dp_mp_tc_prefix_data_marshal(), but the outermost frame keeps the instance's own variant
    /// whatever the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_mp_tc_prefix_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_tc_prefix_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least
    /// lumo_tarn_dp_mp_tc_prefix_data_len(), and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_mp_tc_prefix_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_mp_tc_prefix_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_mp_tc_prefix_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_mp_tc_prefix_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_mp_tc_prefix_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_mp_tc_prefix_data_compare;
    static constexpr auto hash = lumo_tarn_dp_mp_tc_prefix_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_mp_tc_prefix_data_type_type_backpropagate;

    /// How prefix_data is read and written, for array_ref.
    struct prefix_data_array {
        using native = lumo_tarn_dp_mp_tc_prefix_data;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_mp_tc_prefix_lumo_data_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_mp_tc_prefix_data_num_prefixes_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_mp_tc_prefix_data_prefix_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_mp_tc_prefix_data_prefix_data_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_dp_mp_tc_prefix_data_prefix_data_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_mp_tc_prefix_data_prefix_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_tc_prefix_data_type, Self> {
    public:
        using detail::operations<dp_mp_tc_prefix_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_data_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_data_show_header_state_flag_get);
        }

        /// Total number of prefixes.
        std::uint32_t total_prefixes() const {
            return this->call_(lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_get_value);
        }
        /// The state byte of total_prefixes; none if the record has no states.
        std::optional<std::uint8_t> total_prefixes_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_state_flag_get);
        }

        /// Elements in prefix_data.
        std::uint8_t num_prefixes() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_data_num_prefixes_get_value); }

        /// Prefixes.
        lumo_ui_tarn::array_view<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }
        /// The state byte of prefix_data; none if the record has no states.
        std::optional<std::uint8_t> prefix_data_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_data_prefix_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"total_prefixes", &members::total_prefixes, nullptr,
                &members::total_prefixes_state, nullptr});
            visit(lumo_ui_tarn::member{"num_prefixes", &members::num_prefixes, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"prefix_data", &members::prefix_data, nullptr, &members::prefix_data_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_show_header_state_flag_set, value);
        }

        /// Writes total_prefixes.
        Self &set_total_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_set_value, value);
        }
        /// Writes the state byte of total_prefixes.
        Self &set_total_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_state_flag_set, value);
        }


        using members<Self>::prefix_data;
        /// Prefixes.
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() { return this->template array_<prefix_data_array>(); }
        /// Writes the state byte of prefix_data.
        Self &set_prefix_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_show_header_state_flag_set, value);
        }
        const Self &set_total_prefixes(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_set_value, value);
        }
        const Self &set_total_prefixes_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }
        const Self &set_prefix_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"total_prefixes", &M::total_prefixes, &M::set_total_prefixes,
            &M::total_prefixes_state, &M::set_total_prefixes_state});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"prefix_data", detail::writable(&M::prefix_data, 0), nullptr, &M::prefix_data_state,
            &M::set_prefix_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_mp_tc_prefix_data.
using dp_mp_tc_prefix_data = record<dp_mp_tc_prefix_data_type>;
/// Borrows a lumo_tarn_dp_mp_tc_prefix_data.
using dp_mp_tc_prefix_data_ref = record_ref<dp_mp_tc_prefix_data_type>;
/// Borrows a lumo_tarn_dp_mp_tc_prefix_data to read it.
using dp_mp_tc_prefix_data_view = record_view<dp_mp_tc_prefix_data_type>;

/// lumo_tarn_dp_mp_prefix: one prefix as one complex holds it.
struct dp_mp_prefix_type {
    using native = lumo_tarn_dp_mp_prefix;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_mp_prefix";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_dp_mp_prefix_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_dp_mp_prefix_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_mp_prefix_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_mp_prefix_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_mp_prefix_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_mp_prefix_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_mp_prefix_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_mp_prefix_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_mp_prefix_destroy;
    /// Same as lumo_tarn_dp_mp_prefix_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_mp_prefix_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_mp_prefix_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_mp_prefix_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_mp_prefix_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_mp_prefix_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_mp_prefix_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_mp_prefix_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_prefix_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_mp_prefix_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_mp_prefix_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_mp_prefix_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_mp_prefix_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_mp_prefix_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_prefix_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_mp_prefix_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_prefix_marshal;
    /// Same as lumo_tarn_dp_mp_prefix_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_mp_prefix_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_prefix_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_mp_prefix_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_mp_prefix_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_mp_prefix_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_mp_prefix_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_mp_prefix_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_mp_prefix_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_mp_prefix_compare;
    static constexpr auto hash = lumo_tarn_dp_mp_prefix_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_mp_prefix_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_prefix_type, Self> {
    public:
        using detail::operations<dp_mp_prefix_type, Self>::operations;

        /// Number of the complex that this entry describes.
        std::uint8_t complex_num() const { return this->call_(lumo_tarn_dp_mp_prefix_complex_num_get_value); }
        /// The state byte of complex_num; none if the record has no states.
        std::optional<std::uint8_t> complex_num_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_complex_num_state_flag_get);
        }

        /// Prefix as the complex holds it.
        lumo_ui_tarn::address prefix() const { return this->read_address_(lumo_tarn_dp_mp_prefix_prefix_get); }
        /// The state byte of prefix; none if the record has no states.
        std::optional<std::uint8_t> prefix_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_prefix_state_flag_get);
        }

        /// Flags of the prefix, sixteen bits.
        std::uint16_t flags() const { return this->call_(lumo_tarn_dp_mp_prefix_flags_get_value); }
        /// The state byte of flags; none if the record has no states.
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_flags_state_flag_get);
        }

        /// Where the prefix's class list lies in the data plane.
        std::uint64_t tc_list_ptr() const { return this->call_(lumo_tarn_dp_mp_prefix_tc_list_ptr_get_value); }
        /// The state byte of tc_list_ptr; none if the record has no states.
        std::optional<std::uint8_t> tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_tc_list_ptr_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"complex_num", &members::complex_num, nullptr, &members::complex_num_state,
                nullptr});
            visit(lumo_ui_tarn::member{"prefix", &members::prefix, nullptr, &members::prefix_state, nullptr});
            visit(lumo_ui_tarn::member{"flags", &members::flags, nullptr, &members::flags_state, nullptr});
            visit(lumo_ui_tarn::member{"tc_list_ptr", &members::tc_list_ptr, nullptr, &members::tc_list_ptr_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes complex_num.
        Self &set_complex_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_num_set_value, value);
        }
        /// Writes the state byte of complex_num.
        Self &set_complex_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_num_state_flag_set, value);
        }

        /// Writes prefix.
        Self &set_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_mp_prefix_prefix_get, lumo_tarn_dp_mp_prefix_prefix_set,
                value);
        }
        /// Writes the state byte of prefix.
        Self &set_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_prefix_state_flag_set, value);
        }

        /// Writes flags.
        Self &set_flags(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_flags_set_value, value);
        }
        /// Writes the state byte of flags.
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_flags_state_flag_set, value);
        }

        /// Writes tc_list_ptr.
        Self &set_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_tc_list_ptr_set_value, value);
        }
        /// Writes the state byte of tc_list_ptr.
        Self &set_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_tc_list_ptr_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_complex_num(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_num_set_value, value);
        }
        const Self &set_complex_num_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_num_state_flag_set, value);
        }
        const Self &set_prefix(const lumo_ui_tarn::address &value) const {
            return this->write_address_(*this, lumo_tarn_dp_mp_prefix_prefix_get, lumo_tarn_dp_mp_prefix_prefix_set,
                value);
        }
        const Self &set_prefix_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_prefix_state_flag_set, value);
        }
        const Self &set_flags(std::uint16_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_flags_set_value, value);
        }
        const Self &set_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_flags_state_flag_set, value);
        }
        const Self &set_tc_list_ptr(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_tc_list_ptr_set_value, value);
        }
        const Self &set_tc_list_ptr_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_tc_list_ptr_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"complex_num", &M::complex_num, &M::set_complex_num, &M::complex_num_state,
            &M::set_complex_num_state});
        visit(lumo_ui_tarn::member{"prefix", &M::prefix, &M::set_prefix, &M::prefix_state, &M::set_prefix_state});
        visit(lumo_ui_tarn::member{"flags", &M::flags, &M::set_flags, &M::flags_state, &M::set_flags_state});
        visit(lumo_ui_tarn::member{"tc_list_ptr", &M::tc_list_ptr, &M::set_tc_list_ptr, &M::tc_list_ptr_state,
            &M::set_tc_list_ptr_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_mp_prefix.
using dp_mp_prefix = record<dp_mp_prefix_type>;
/// Borrows a lumo_tarn_dp_mp_prefix.
using dp_mp_prefix_ref = record_ref<dp_mp_prefix_type>;
/// Borrows a lumo_tarn_dp_mp_prefix to read it.
using dp_mp_prefix_view = record_view<dp_mp_prefix_type>;

/// lumo_tarn_dp_mp_prefix_complex_data: one looked-up prefix with its entries.
struct dp_mp_prefix_complex_data_type {
    using native = lumo_tarn_dp_mp_prefix_complex_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_mp_prefix_complex_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_mp_prefix_complex_data_create;
    /// Same as lumo_tarn_dp_mp_prefix_complex_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_mp_prefix_complex_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_mp_prefix_complex_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_mp_prefix_complex_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_mp_prefix_complex_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_mp_prefix_complex_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_mp_prefix_complex_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_mp_prefix_complex_data_destroy;
    /// Same as lumo_tarn_dp_mp_prefix_complex_data_destroy(), but with free_it 0 the memory of the instance itself is
    /// not freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_mp_prefix_complex_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_mp_prefix_complex_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_mp_prefix_complex_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_mp_prefix_complex_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_mp_prefix_complex_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_mp_prefix_complex_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_mp_prefix_complex_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_prefix_complex_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_mp_prefix_complex_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_mp_prefix_complex_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_mp_prefix_complex_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_mp_prefix_complex_data_offset_update() set, at
    /// every depth.
    static constexpr auto offset_remove = lumo_tarn_dp_mp_prefix_complex_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_prefix_complex_data_marshal() needs, without the guard
    /// byte.
    static constexpr auto len = lumo_tarn_dp_mp_prefix_complex_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_prefix_complex_data_marshal;
    /// Same as lumo_tarn_dp_mp_prefix_complex_data_marshal(), but the outermost frame keeps the instance's own variant
    /// whatever the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_mp_prefix_complex_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_prefix_complex_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least
    /// lumo_tarn_dp_mp_prefix_complex_data_len(), and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_mp_prefix_complex_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_mp_prefix_complex_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_mp_prefix_complex_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_mp_prefix_complex_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_mp_prefix_complex_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_mp_prefix_complex_data_compare;
    static constexpr auto hash = lumo_tarn_dp_mp_prefix_complex_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_mp_prefix_complex_data_type_type_backpropagate;

    /// How complex_data is read and written, for array_ref.
    struct complex_data_array {
        using native = lumo_tarn_dp_mp_prefix_complex_data;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_mp_prefix_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_mp_prefix_complex_data_num_complexes_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_mp_prefix_complex_data_complex_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_mp_prefix_complex_data_complex_data_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_dp_mp_prefix_complex_data_complex_data_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_mp_prefix_complex_data_complex_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_prefix_complex_data_type, Self> {
    public:
        using detail::operations<dp_mp_prefix_complex_data_type, Self>::operations;

        /// Prefix that was looked up.
        lumo_ui_tarn::address lookup_prefix() const {
            return this->read_address_(lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_get);
        }
        /// The state byte of lookup_prefix; none if the record has no states.
        std::optional<std::uint8_t> lookup_prefix_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_state_flag_get);
        }

        /// Elements in complex_data.
        std::uint8_t num_complexes() const {
            return this->call_(lumo_tarn_dp_mp_prefix_complex_data_num_complexes_get_value);
        }

        /// Entries, one for each complex.
        lumo_ui_tarn::array_view<complex_data_array> complex_data() const {
            return this->template array_<complex_data_array>();
        }
        /// The state byte of complex_data; none if the record has no states.
        std::optional<std::uint8_t> complex_data_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_complex_data_complex_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"lookup_prefix", &members::lookup_prefix, nullptr, &members::lookup_prefix_state,
                nullptr});
            visit(lumo_ui_tarn::member{"num_complexes", &members::num_complexes, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"complex_data", &members::complex_data, nullptr, &members::complex_data_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes lookup_prefix.
        Self &set_lookup_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_get,
                lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_set, value);
        }
        /// Writes the state byte of lookup_prefix.
        Self &set_lookup_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_state_flag_set, value);
        }


        using members<Self>::complex_data;
        /// Entries, one for each complex.
        lumo_ui_tarn::array_ref<complex_data_array> complex_data() {
            return this->template array_<complex_data_array>();
        }
        /// Writes the state byte of complex_data.
        Self &set_complex_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_data_complex_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_lookup_prefix(const lumo_ui_tarn::address &value) const {
            return this->write_address_(*this, lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_get,
                lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_set, value);
        }
        const Self &set_lookup_prefix_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<complex_data_array> complex_data() const {
            return this->template array_<complex_data_array>();
        }
        const Self &set_complex_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_data_complex_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lookup_prefix", &M::lookup_prefix, &M::set_lookup_prefix, &M::lookup_prefix_state,
            &M::set_lookup_prefix_state});
        visit(lumo_ui_tarn::member{"num_complexes", &M::num_complexes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"complex_data", detail::writable(&M::complex_data, 0), nullptr,
            &M::complex_data_state, &M::set_complex_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_mp_prefix_complex_data.
using dp_mp_prefix_complex_data = record<dp_mp_prefix_complex_data_type>;
/// Borrows a lumo_tarn_dp_mp_prefix_complex_data.
using dp_mp_prefix_complex_data_ref = record_ref<dp_mp_prefix_complex_data_type>;
/// Borrows a lumo_tarn_dp_mp_prefix_complex_data to read it.
using dp_mp_prefix_complex_data_view = record_view<dp_mp_prefix_complex_data_type>;

/// lumo_tarn_dp_mp_prefix_data: looked-up prefixes.
struct dp_mp_prefix_data_type {
    using native = lumo_tarn_dp_mp_prefix_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_dp_mp_prefix_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_dp_mp_prefix_data_create;
    /// Same as lumo_tarn_dp_mp_prefix_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_dp_mp_prefix_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_dp_mp_prefix_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_dp_mp_prefix_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_dp_mp_prefix_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_dp_mp_prefix_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_dp_mp_prefix_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_dp_mp_prefix_data_destroy;
    /// Same as lumo_tarn_dp_mp_prefix_data_destroy(), but with free_it 0 the memory of the instance itself is not
    /// freed.
    static constexpr auto destroy_internal = lumo_tarn_dp_mp_prefix_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_dp_mp_prefix_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_dp_mp_prefix_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_dp_mp_prefix_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_dp_mp_prefix_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_dp_mp_prefix_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_dp_mp_prefix_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_prefix_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_dp_mp_prefix_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_dp_mp_prefix_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_dp_mp_prefix_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_dp_mp_prefix_data_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_dp_mp_prefix_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_prefix_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_mp_prefix_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_prefix_data_marshal;
    /// Same as lumo_tarn_dp_mp_prefix_data_marshal(), but the outermost frame keeps the instance's own variant whatever
    /// the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_dp_mp_prefix_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_prefix_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_dp_mp_prefix_data_len(),
    /// and one guard byte after them.
    static constexpr auto clone = lumo_tarn_dp_mp_prefix_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_dp_mp_prefix_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_dp_mp_prefix_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_dp_mp_prefix_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_dp_mp_prefix_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_dp_mp_prefix_data_compare;
    static constexpr auto hash = lumo_tarn_dp_mp_prefix_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_dp_mp_prefix_data_type_type_backpropagate;

    /// How prefix_data is read and written, for array_ref.
    struct prefix_data_array {
        using native = lumo_tarn_dp_mp_prefix_data;  ///< the record that has the array
        using element = lumo_ui_tarn::dp_mp_prefix_complex_data_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_dp_mp_prefix_data_num_prefixes_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_dp_mp_prefix_data_prefix_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_dp_mp_prefix_data_prefix_data_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_dp_mp_prefix_data_prefix_data_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_dp_mp_prefix_data_prefix_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_prefix_data_type, Self> {
    public:
        using detail::operations<dp_mp_prefix_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_dp_mp_prefix_data_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_data_show_header_state_flag_get);
        }

        /// Elements in prefix_data.
        std::uint8_t num_prefixes() const { return this->call_(lumo_tarn_dp_mp_prefix_data_num_prefixes_get_value); }

        /// Looked-up prefixes.
        lumo_ui_tarn::array_view<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }
        /// The state byte of prefix_data; none if the record has no states.
        std::optional<std::uint8_t> prefix_data_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_data_prefix_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"num_prefixes", &members::num_prefixes, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"prefix_data", &members::prefix_data, nullptr, &members::prefix_data_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_show_header_state_flag_set, value);
        }


        using members<Self>::prefix_data;
        /// Looked-up prefixes.
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() { return this->template array_<prefix_data_array>(); }
        /// Writes the state byte of prefix_data.
        Self &set_prefix_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_show_header_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }
        const Self &set_prefix_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"prefix_data", detail::writable(&M::prefix_data, 0), nullptr, &M::prefix_data_state,
            &M::set_prefix_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_dp_mp_prefix_data.
using dp_mp_prefix_data = record<dp_mp_prefix_data_type>;
/// Borrows a lumo_tarn_dp_mp_prefix_data.
using dp_mp_prefix_data_ref = record_ref<dp_mp_prefix_data_type>;
/// Borrows a lumo_tarn_dp_mp_prefix_data to read it.
using dp_mp_prefix_data_view = record_view<dp_mp_prefix_data_type>;

/// lumo_tarn_pal_mp_prefix: one prefix of the adaptation layer.
struct pal_mp_prefix_type {
    using native = lumo_tarn_pal_mp_prefix;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_pal_mp_prefix";  ///< its name in C
    static constexpr bool owns_blocks = false;  ///< has arrays or strings
    static constexpr auto create = lumo_tarn_pal_mp_prefix_create;  ///< Allocates an instance with all members zero.
    /// Same as lumo_tarn_pal_mp_prefix_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_pal_mp_prefix_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_pal_mp_prefix_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_pal_mp_prefix_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_pal_mp_prefix_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_pal_mp_prefix_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_pal_mp_prefix_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_pal_mp_prefix_destroy;
    /// Same as lumo_tarn_pal_mp_prefix_destroy(), but with free_it 0 the memory of the instance itself is not freed.
    static constexpr auto destroy_internal = lumo_tarn_pal_mp_prefix_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_pal_mp_prefix_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_pal_mp_prefix_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_pal_mp_prefix_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_pal_mp_prefix_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_pal_mp_prefix_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_pal_mp_prefix_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_pal_mp_prefix_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_pal_mp_prefix_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_pal_mp_prefix_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_pal_mp_prefix_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_pal_mp_prefix_offset_update() set, at every depth.
    static constexpr auto offset_remove = lumo_tarn_pal_mp_prefix_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_pal_mp_prefix_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_pal_mp_prefix_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_pal_mp_prefix_marshal;
    /// Same as lumo_tarn_pal_mp_prefix_marshal(), but the outermost frame keeps the instance's own variant whatever the
    /// domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_pal_mp_prefix_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_pal_mp_prefix_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_pal_mp_prefix_len(), and
    /// one guard byte after them.
    static constexpr auto clone = lumo_tarn_pal_mp_prefix_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_pal_mp_prefix_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_pal_mp_prefix_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_pal_mp_prefix_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_pal_mp_prefix_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_pal_mp_prefix_compare;
    static constexpr auto hash = lumo_tarn_pal_mp_prefix_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_pal_mp_prefix_type_type_backpropagate;

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<pal_mp_prefix_type, Self> {
    public:
        using detail::operations<pal_mp_prefix_type, Self>::operations;

        /// Identifier of the prefix.
        std::uint64_t id() const { return this->call_(lumo_tarn_pal_mp_prefix_id_get_value); }
        /// The state byte of id; none if the record has no states.
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_pal_mp_prefix_id_state_flag_get); }

        /// Flags of the prefix, eight bits: half the width of flags in lumo_tarn_dp_mp_prefix.
        std::uint8_t flags() const { return this->call_(lumo_tarn_pal_mp_prefix_flags_get_value); }
        /// The state byte of flags; none if the record has no states.
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_flags_state_flag_get);
        }

        /// Prefix.
        lumo_ui_tarn::address prefix() const { return this->read_address_(lumo_tarn_pal_mp_prefix_prefix_get); }
        /// The state byte of prefix; none if the record has no states.
        std::optional<std::uint8_t> prefix_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_prefix_state_flag_get);
        }

        /// Size of the prefix's class list.
        std::uint32_t tc_list_size() const { return this->call_(lumo_tarn_pal_mp_prefix_tc_list_size_get_value); }
        /// The state byte of tc_list_size; none if the record has no states.
        std::optional<std::uint8_t> tc_list_size_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_tc_list_size_state_flag_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"id", &members::id, nullptr, &members::id_state, nullptr});
            visit(lumo_ui_tarn::member{"flags", &members::flags, nullptr, &members::flags_state, nullptr});
            visit(lumo_ui_tarn::member{"prefix", &members::prefix, nullptr, &members::prefix_state, nullptr});
            visit(lumo_ui_tarn::member{"tc_list_size", &members::tc_list_size, nullptr, &members::tc_list_size_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes id.
        Self &set_id(std::uint64_t value) { return this->write_(*this, lumo_tarn_pal_mp_prefix_id_set_value, value); }
        /// Writes the state byte of id.
        Self &set_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_id_state_flag_set, value);
        }

        /// Writes flags.
        Self &set_flags(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_flags_set_value, value);
        }
        /// Writes the state byte of flags.
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_flags_state_flag_set, value);
        }

        /// Writes prefix.
        Self &set_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_pal_mp_prefix_prefix_get, lumo_tarn_pal_mp_prefix_prefix_set,
                value);
        }
        /// Writes the state byte of prefix.
        Self &set_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_prefix_state_flag_set, value);
        }

        /// Writes tc_list_size.
        Self &set_tc_list_size(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_tc_list_size_set_value, value);
        }
        /// Writes the state byte of tc_list_size.
        Self &set_tc_list_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_tc_list_size_state_flag_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_id(std::uint64_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_id_set_value, value);
        }
        const Self &set_id_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_id_state_flag_set, value);
        }
        const Self &set_flags(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_flags_set_value, value);
        }
        const Self &set_flags_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_flags_state_flag_set, value);
        }
        const Self &set_prefix(const lumo_ui_tarn::address &value) const {
            return this->write_address_(*this, lumo_tarn_pal_mp_prefix_prefix_get, lumo_tarn_pal_mp_prefix_prefix_set,
                value);
        }
        const Self &set_prefix_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_prefix_state_flag_set, value);
        }
        const Self &set_tc_list_size(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_tc_list_size_set_value, value);
        }
        const Self &set_tc_list_size_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_tc_list_size_state_flag_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"id", &M::id, &M::set_id, &M::id_state, &M::set_id_state});
        visit(lumo_ui_tarn::member{"flags", &M::flags, &M::set_flags, &M::flags_state, &M::set_flags_state});
        visit(lumo_ui_tarn::member{"prefix", &M::prefix, &M::set_prefix, &M::prefix_state, &M::set_prefix_state});
        visit(lumo_ui_tarn::member{"tc_list_size", &M::tc_list_size, &M::set_tc_list_size, &M::tc_list_size_state,
            &M::set_tc_list_size_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_pal_mp_prefix.
using pal_mp_prefix = record<pal_mp_prefix_type>;
/// Borrows a lumo_tarn_pal_mp_prefix.
using pal_mp_prefix_ref = record_ref<pal_mp_prefix_type>;
/// Borrows a lumo_tarn_pal_mp_prefix to read it.
using pal_mp_prefix_view = record_view<pal_mp_prefix_type>;

/// lumo_tarn_pal_mp_prefix_data: prefixes of the adaptation layer.
struct pal_mp_prefix_data_type {
    using native = lumo_tarn_pal_mp_prefix_data;  ///< the record in C
    static constexpr const char *name = "lumo_tarn_pal_mp_prefix_data";  ///< its name in C
    static constexpr bool owns_blocks = true;  ///< has arrays or strings
    /// Allocates an instance with all members zero.
    static constexpr auto create = lumo_tarn_pal_mp_prefix_data_create;
    /// Same as lumo_tarn_pal_mp_prefix_data_create(), but does not register the trace module of types.
    static constexpr auto create_internal = lumo_tarn_pal_mp_prefix_data_create_internal;
    /// Initializes an instance in zeroed memory of the caller: header, usage counters, embedded members.
    static constexpr auto initialize = lumo_tarn_pal_mp_prefix_data_initialize;
    /// Returns the size of an instance in bytes, with everything nested in it and, on a tracking handle, its state
    /// area.
    static constexpr auto sizeof_operation = lumo_tarn_pal_mp_prefix_data_sizeof;
    /// Returns the variant, limited to the highest one that this library knows.
    static constexpr auto variant_data_index_cap = lumo_tarn_pal_mp_prefix_data_variant_data_index_cap;
    /// Sets MIRK_OBJ_EMBEDDED, "lies in memory of another object", in the instance and in the records, addresses and
    /// booleans nested in it.
    static constexpr auto set_instance_embedded = lumo_tarn_pal_mp_prefix_data_set_instance_embedded;
    /// Changes the instance to the variant that the handle's domain has for its type.
    static constexpr auto adjust_variant = lumo_tarn_pal_mp_prefix_data_adjust_variant;
    /// Destroys the instance: its arrays and strings, everything nested in it, and its memory.
    static constexpr auto destroy = lumo_tarn_pal_mp_prefix_data_destroy;
    /// Same as lumo_tarn_pal_mp_prefix_data_destroy(), but with free_it 0 the memory of the instance itself is not
    /// freed.
    static constexpr auto destroy_internal = lumo_tarn_pal_mp_prefix_data_destroy_internal;
    /// Returns the instance itself, so that code can treat records as it treats members.
    static constexpr auto get = lumo_tarn_pal_mp_prefix_data_get;
    /// Writes all scalar members, counts and lengths through the pointers, in table order.
    static constexpr auto get_all = lumo_tarn_pal_mp_prefix_data_get_all;
    /// Stores all scalar members in table order, without counts and lengths.
    static constexpr auto set_all = lumo_tarn_pal_mp_prefix_data_set_all;
    /// MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
    /// source loses.
    static constexpr auto set = lumo_tarn_pal_mp_prefix_data_set;
    /// For runtimes that move instances byte by byte: makes the copy at the new address the only owner of arrays and
    /// strings, and clears them at the old address.
    static constexpr auto post_copyout_cleanup = lumo_tarn_pal_mp_prefix_data_post_copyout_cleanup;
    /// Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
    static constexpr auto set_all_state_tracking_flag = lumo_tarn_pal_mp_prefix_data_set_all_state_tracking_flag;
    /// Returns 1 if the handle's domain has a member with this index, counted from 0 in table order.
    static constexpr auto is_valid_cr = lumo_tarn_pal_mp_prefix_data_is_valid_cr;
    /// Returns the number of object identifiers that the instance itself holds: 0 in this schema.
    static constexpr auto get_oid_count = lumo_tarn_pal_mp_prefix_data_get_oid_count;
    /// Writes up to size object identifiers that the instance itself holds: none in this schema.
    static constexpr auto get_object_references = lumo_tarn_pal_mp_prefix_data_get_object_references;
    /// Gives the runtime the location of the state of each nested record and address in the state area at this address.
    static constexpr auto offset_update = lumo_tarn_pal_mp_prefix_data_offset_update;
    /// Removes from the runtime the state locations that lumo_tarn_pal_mp_prefix_data_offset_update() set, at every
    /// depth.
    static constexpr auto offset_remove = lumo_tarn_pal_mp_prefix_data_offset_remove;
    /// Returns the buffer size in bytes that lumo_tarn_pal_mp_prefix_data_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_pal_mp_prefix_data_len;
    /// Writes the instance as a frame into buffer, which has remaining bytes and one guard byte after them.
    static constexpr auto marshal = lumo_tarn_pal_mp_prefix_data_marshal;
    /// Same as lumo_tarn_pal_mp_prefix_data_marshal(), but the outermost frame keeps the instance's own variant
    /// whatever the domain has.
    static constexpr auto marshal_for_clone = lumo_tarn_pal_mp_prefix_data_marshal_for_clone;
    /// Reads a frame of length bytes from buffer, which has one guard byte after them, into an instance.
    static constexpr auto unmarshal = lumo_tarn_pal_mp_prefix_data_unmarshal;
    /// Makes a deep copy through a frame in buffer, which has size bytes, at least lumo_tarn_pal_mp_prefix_data_len(),
    /// and one guard byte after them.
    static constexpr auto clone = lumo_tarn_pal_mp_prefix_data_clone;
    /// Makes a deep copy in an existing instance, through the handle's workspace.
    static constexpr auto copy_cr = lumo_tarn_pal_mp_prefix_data_copy_cr;
    /// Writes the instance as readable text, indented by indent blanks, under this name.
    static constexpr auto print = lumo_tarn_pal_mp_prefix_data_print;
    /// Writes the instance as an XML element of this name with one element for each member.
    static constexpr auto to_xml = lumo_tarn_pal_mp_prefix_data_to_xml;
    /// Reads the element at a path of the runtime's document into the instance.
    static constexpr auto from_xml = lumo_tarn_pal_mp_prefix_data_from_xml;
    /// Orders two instances by their members in table order; only the sign of the result has a meaning.
    static constexpr auto compare = lumo_tarn_pal_mp_prefix_data_compare;
    static constexpr auto hash = lumo_tarn_pal_mp_prefix_data_hash;  ///< Mixes all members into the seed.
    /// Returns 1 if the record or one of its members has a change mark.
    static constexpr auto type_type_backpropagate = lumo_tarn_pal_mp_prefix_data_type_type_backpropagate;

    /// How prefix_data is read and written, for array_ref.
    struct prefix_data_array {
        using native = lumo_tarn_pal_mp_prefix_data;  ///< the record that has the array
        using element = lumo_ui_tarn::pal_mp_prefix_type;  ///< what it is an array of
        using count = std::uint8_t;  ///< what its elements are counted in
        static constexpr auto size = lumo_tarn_pal_mp_prefix_data_num_prefixes_get_value;  ///< how many there are
        static constexpr auto get = lumo_tarn_pal_mp_prefix_data_prefix_data_get;  ///< an element
        static constexpr auto set = lumo_tarn_pal_mp_prefix_data_prefix_data_set;  ///< writes an element
        /// an element's state byte
        static constexpr auto state_get = lumo_tarn_pal_mp_prefix_data_prefix_data_state_flag_get;
        /// writes an element's state byte
        static constexpr auto state_set = lumo_tarn_pal_mp_prefix_data_prefix_data_state_flag_set;
    };

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<pal_mp_prefix_data_type, Self> {
    public:
        using detail::operations<pal_mp_prefix_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_pal_mp_prefix_data_show_header_get_value) != 0; }
        /// The state byte of show_header; none if the record has no states.
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_data_show_header_state_flag_get);
        }

        /// Total number of prefixes.
        std::uint32_t total_prefixes() const {
            return this->call_(lumo_tarn_pal_mp_prefix_data_total_prefixes_get_value);
        }
        /// The state byte of total_prefixes; none if the record has no states.
        std::optional<std::uint8_t> total_prefixes_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_data_total_prefixes_state_flag_get);
        }

        /// Elements in prefix_data.
        std::uint8_t num_prefixes() const { return this->call_(lumo_tarn_pal_mp_prefix_data_num_prefixes_get_value); }

        /// Prefixes.
        lumo_ui_tarn::array_view<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }
        /// The state byte of prefix_data; none if the record has no states.
        std::optional<std::uint8_t> prefix_data_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_data_prefix_data_state_flag_whole_get);
        }

        /// Calls visit with a lumo_ui_tarn::member for each, in order.
        template <class Visit>
        static void for_each_member(Visit &&visit) {
            visit(lumo_ui_tarn::member{"show_header", &members::show_header, nullptr, &members::show_header_state,
                nullptr});
            visit(lumo_ui_tarn::member{"total_prefixes", &members::total_prefixes, nullptr,
                &members::total_prefixes_state, nullptr});
            visit(lumo_ui_tarn::member{"num_prefixes", &members::num_prefixes, nullptr, nullptr, nullptr});
            visit(lumo_ui_tarn::member{"prefix_data", &members::prefix_data, nullptr, &members::prefix_data_state,
                nullptr});
        }
    };
    /// Writes the members of an owner.
    template <class Self>
    class writers : public members<Self> {
    public:
        using members<Self>::members;

        /// Writes show_header.
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        /// Writes the state byte of show_header.
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_show_header_state_flag_set, value);
        }

        /// Writes total_prefixes.
        Self &set_total_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_total_prefixes_set_value, value);
        }
        /// Writes the state byte of total_prefixes.
        Self &set_total_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_total_prefixes_state_flag_set, value);
        }


        using members<Self>::prefix_data;
        /// Prefixes.
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() { return this->template array_<prefix_data_array>(); }
        /// Writes the state byte of prefix_data.
        Self &set_prefix_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
    /// @cond the same functions for what is borrowed, as const
    /// Writes the members of what is borrowed.
    template <class Self>
    class ref_writers : public members<Self> {
    public:
        using members<Self>::members;
        const Self &set_show_header(bool value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        const Self &set_show_header_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_show_header_state_flag_set, value);
        }
        const Self &set_total_prefixes(std::uint32_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_total_prefixes_set_value, value);
        }
        const Self &set_total_prefixes_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_total_prefixes_state_flag_set, value);
        }
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }
        const Self &set_prefix_data_state(std::uint8_t value) const {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, &M::set_show_header, &M::show_header_state,
            &M::set_show_header_state});
        visit(lumo_ui_tarn::member{"total_prefixes", &M::total_prefixes, &M::set_total_prefixes,
            &M::total_prefixes_state, &M::set_total_prefixes_state});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"prefix_data", detail::writable(&M::prefix_data, 0), nullptr, &M::prefix_data_state,
            &M::set_prefix_data_state});
    }
    /// @endcond
};
/// Owns a lumo_tarn_pal_mp_prefix_data.
using pal_mp_prefix_data = record<pal_mp_prefix_data_type>;
/// Borrows a lumo_tarn_pal_mp_prefix_data.
using pal_mp_prefix_data_ref = record_ref<pal_mp_prefix_data_type>;
/// Borrows a lumo_tarn_pal_mp_prefix_data to read it.
using pal_mp_prefix_data_view = record_view<pal_mp_prefix_data_type>;

/// lumo_tarn_debug_setting_msg carries one lumo_tarn_debug_setting.
struct debug_setting_msg_type {
    using native = lumo_tarn_debug_setting_msg;  ///< the message in C
    using payload = lumo_ui_tarn::debug_setting_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_debug_setting_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_debug_setting_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_debug_setting_msg_message_create_shallow;
    /// Allocates a message with a new payload.
    static constexpr auto create = lumo_tarn_debug_setting_msg_message_create;
    /// Destroys the message and its payload.
    static constexpr auto destroy = lumo_tarn_debug_setting_msg_message_destroy;
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach = lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set =
        lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_debug_setting_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_debug_setting_msg_message_marshal() needs, without the guard
    /// byte.
    static constexpr auto len = lumo_tarn_debug_setting_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_debug_setting_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_debug_setting_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_debug_setting_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_debug_setting_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_debug_setting_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_debug_setting_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_debug_setting_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_debug_setting_msg_message_handler;
};
/// Owns a lumo_tarn_debug_setting_msg.
using debug_setting_msg = message<debug_setting_msg_type>;
/// Borrows a lumo_tarn_debug_setting_msg.
using debug_setting_msg_ref = message_ref<debug_setting_msg_type>;
/// Borrows a lumo_tarn_debug_setting_msg to read it.
using debug_setting_msg_view = message_view<debug_setting_msg_type>;

/// lumo_tarn_dp_debug_setting_msg carries one lumo_tarn_dp_debug_setting_data.
struct dp_debug_setting_msg_type {
    using native = lumo_tarn_dp_debug_setting_msg;  ///< the message in C
    using payload = lumo_ui_tarn::dp_debug_setting_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_dp_debug_setting_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_dp_debug_setting_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_dp_debug_setting_msg_message_create_shallow;
    /// Allocates a message with a new payload.
    static constexpr auto create = lumo_tarn_dp_debug_setting_msg_message_create;
    /// Destroys the message and its payload.
    static constexpr auto destroy = lumo_tarn_dp_debug_setting_msg_message_destroy;
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach =
        lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set =
        lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_dp_debug_setting_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_dp_debug_setting_msg_message_marshal() needs, without the guard
    /// byte.
    static constexpr auto len = lumo_tarn_dp_debug_setting_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_dp_debug_setting_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_dp_debug_setting_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_dp_debug_setting_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_dp_debug_setting_msg_message_unmarshal_only;
    /// Writes the message as readable text.
    static constexpr auto print = lumo_tarn_dp_debug_setting_msg_message_print;
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_dp_debug_setting_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_dp_debug_setting_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_debug_setting_msg_message_handler;
};
/// Owns a lumo_tarn_dp_debug_setting_msg.
using dp_debug_setting_msg = message<dp_debug_setting_msg_type>;
/// Borrows a lumo_tarn_dp_debug_setting_msg.
using dp_debug_setting_msg_ref = message_ref<dp_debug_setting_msg_type>;
/// Borrows a lumo_tarn_dp_debug_setting_msg to read it.
using dp_debug_setting_msg_view = message_view<dp_debug_setting_msg_type>;

/// lumo_tarn_cl_appl_msg carries one lumo_tarn_cl_appl_data.
struct cl_appl_msg_type {
    using native = lumo_tarn_cl_appl_msg;  ///< the message in C
    using payload = lumo_ui_tarn::cl_appl_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_cl_appl_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_cl_appl_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_cl_appl_msg_message_create_shallow;
    static constexpr auto create = lumo_tarn_cl_appl_msg_message_create;  ///< Allocates a message with a new payload.
    static constexpr auto destroy = lumo_tarn_cl_appl_msg_message_destroy;  ///< Destroys the message and its payload.
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_cl_appl_msg_message_lumo_tarn_cl_appl_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach = lumo_tarn_cl_appl_msg_message_lumo_tarn_cl_appl_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_cl_appl_msg_message_lumo_tarn_cl_appl_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set = lumo_tarn_cl_appl_msg_message_lumo_tarn_cl_appl_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_cl_appl_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_cl_appl_msg_message_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_cl_appl_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_cl_appl_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_cl_appl_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_cl_appl_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_cl_appl_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_cl_appl_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_cl_appl_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_cl_appl_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_cl_appl_msg_message_handler;
};
/// Owns a lumo_tarn_cl_appl_msg.
using cl_appl_msg = message<cl_appl_msg_type>;
/// Borrows a lumo_tarn_cl_appl_msg.
using cl_appl_msg_ref = message_ref<cl_appl_msg_type>;
/// Borrows a lumo_tarn_cl_appl_msg to read it.
using cl_appl_msg_view = message_view<cl_appl_msg_type>;

/// lumo_tarn_cl_cfg_msg carries one lumo_tarn_cl_cfg_data.
struct cl_cfg_msg_type {
    using native = lumo_tarn_cl_cfg_msg;  ///< the message in C
    using payload = lumo_ui_tarn::cl_cfg_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_cl_cfg_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_cl_cfg_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_cl_cfg_msg_message_create_shallow;
    static constexpr auto create = lumo_tarn_cl_cfg_msg_message_create;  ///< Allocates a message with a new payload.
    static constexpr auto destroy = lumo_tarn_cl_cfg_msg_message_destroy;  ///< Destroys the message and its payload.
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach = lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set = lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_cl_cfg_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_cl_cfg_msg_message_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_cl_cfg_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_cl_cfg_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_cl_cfg_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_cl_cfg_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_cl_cfg_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_cl_cfg_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_cl_cfg_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_cl_cfg_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_cl_cfg_msg_message_handler;
};
/// Owns a lumo_tarn_cl_cfg_msg.
using cl_cfg_msg = message<cl_cfg_msg_type>;
/// Borrows a lumo_tarn_cl_cfg_msg.
using cl_cfg_msg_ref = message_ref<cl_cfg_msg_type>;
/// Borrows a lumo_tarn_cl_cfg_msg to read it.
using cl_cfg_msg_view = message_view<cl_cfg_msg_type>;

/// lumo_tarn_dp_intf_msg carries one lumo_tarn_dp_intf_data.
struct dp_intf_msg_type {
    using native = lumo_tarn_dp_intf_msg;  ///< the message in C
    using payload = lumo_ui_tarn::dp_intf_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_dp_intf_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_dp_intf_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_dp_intf_msg_message_create_shallow;
    static constexpr auto create = lumo_tarn_dp_intf_msg_message_create;  ///< Allocates a message with a new payload.
    static constexpr auto destroy = lumo_tarn_dp_intf_msg_message_destroy;  ///< Destroys the message and its payload.
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach = lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set = lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_dp_intf_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_dp_intf_msg_message_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_intf_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_dp_intf_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_dp_intf_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_dp_intf_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_dp_intf_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_dp_intf_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_dp_intf_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_dp_intf_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_intf_msg_message_handler;
};
/// Owns a lumo_tarn_dp_intf_msg.
using dp_intf_msg = message<dp_intf_msg_type>;
/// Borrows a lumo_tarn_dp_intf_msg.
using dp_intf_msg_ref = message_ref<dp_intf_msg_type>;
/// Borrows a lumo_tarn_dp_intf_msg to read it.
using dp_intf_msg_view = message_view<dp_intf_msg_type>;

/// lumo_tarn_dp_appl_msg carries one lumo_tarn_dp_appl_data.
struct dp_appl_msg_type {
    using native = lumo_tarn_dp_appl_msg;  ///< the message in C
    using payload = lumo_ui_tarn::dp_appl_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_dp_appl_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_dp_appl_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_dp_appl_msg_message_create_shallow;
    static constexpr auto create = lumo_tarn_dp_appl_msg_message_create;  ///< Allocates a message with a new payload.
    static constexpr auto destroy = lumo_tarn_dp_appl_msg_message_destroy;  ///< Destroys the message and its payload.
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_dp_appl_msg_message_lumo_tarn_dp_appl_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach = lumo_tarn_dp_appl_msg_message_lumo_tarn_dp_appl_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_dp_appl_msg_message_lumo_tarn_dp_appl_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set = lumo_tarn_dp_appl_msg_message_lumo_tarn_dp_appl_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_dp_appl_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_dp_appl_msg_message_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_appl_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_dp_appl_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_dp_appl_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_dp_appl_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_dp_appl_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_dp_appl_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_dp_appl_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_dp_appl_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_appl_msg_message_handler;
};
/// Owns a lumo_tarn_dp_appl_msg.
using dp_appl_msg = message<dp_appl_msg_type>;
/// Borrows a lumo_tarn_dp_appl_msg.
using dp_appl_msg_ref = message_ref<dp_appl_msg_type>;
/// Borrows a lumo_tarn_dp_appl_msg to read it.
using dp_appl_msg_view = message_view<dp_appl_msg_type>;

/// lumo_tarn_dp_tt_msg carries one lumo_tarn_dp_tt_table_data.
struct dp_tt_msg_type {
    using native = lumo_tarn_dp_tt_msg;  ///< the message in C
    using payload = lumo_ui_tarn::dp_tt_table_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_dp_tt_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_dp_tt_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_dp_tt_msg_message_create_shallow;
    static constexpr auto create = lumo_tarn_dp_tt_msg_message_create;  ///< Allocates a message with a new payload.
    static constexpr auto destroy = lumo_tarn_dp_tt_msg_message_destroy;  ///< Destroys the message and its payload.
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_dp_tt_msg_message_lumo_tarn_dp_tt_table_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach = lumo_tarn_dp_tt_msg_message_lumo_tarn_dp_tt_table_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_dp_tt_msg_message_lumo_tarn_dp_tt_table_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set = lumo_tarn_dp_tt_msg_message_lumo_tarn_dp_tt_table_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_dp_tt_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_dp_tt_msg_message_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_tt_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_dp_tt_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_dp_tt_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_dp_tt_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_dp_tt_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_dp_tt_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_dp_tt_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_dp_tt_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_tt_msg_message_handler;
};
/// Owns a lumo_tarn_dp_tt_msg.
using dp_tt_msg = message<dp_tt_msg_type>;
/// Borrows a lumo_tarn_dp_tt_msg.
using dp_tt_msg_ref = message_ref<dp_tt_msg_type>;
/// Borrows a lumo_tarn_dp_tt_msg to read it.
using dp_tt_msg_view = message_view<dp_tt_msg_type>;

/// lumo_tarn_dp_mp_tc_msg carries one lumo_tarn_dp_mp_tc_prefix_data.
struct dp_mp_tc_msg_type {
    using native = lumo_tarn_dp_mp_tc_msg;  ///< the message in C
    using payload = lumo_ui_tarn::dp_mp_tc_prefix_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_dp_mp_tc_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_dp_mp_tc_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_dp_mp_tc_msg_message_create_shallow;
    static constexpr auto create = lumo_tarn_dp_mp_tc_msg_message_create;  ///< Allocates a message with a new payload.
    static constexpr auto destroy = lumo_tarn_dp_mp_tc_msg_message_destroy;  ///< Destroys the message and its payload.
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_dp_mp_tc_msg_message_lumo_tarn_dp_mp_tc_prefix_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach = lumo_tarn_dp_mp_tc_msg_message_lumo_tarn_dp_mp_tc_prefix_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_dp_mp_tc_msg_message_lumo_tarn_dp_mp_tc_prefix_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set =
        lumo_tarn_dp_mp_tc_msg_message_lumo_tarn_dp_mp_tc_prefix_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_tc_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_tc_msg_message_marshal() needs, without the guard byte.
    static constexpr auto len = lumo_tarn_dp_mp_tc_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_tc_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_dp_mp_tc_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_tc_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_dp_mp_tc_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_dp_mp_tc_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_dp_mp_tc_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_dp_mp_tc_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_mp_tc_msg_message_handler;
};
/// Owns a lumo_tarn_dp_mp_tc_msg.
using dp_mp_tc_msg = message<dp_mp_tc_msg_type>;
/// Borrows a lumo_tarn_dp_mp_tc_msg.
using dp_mp_tc_msg_ref = message_ref<dp_mp_tc_msg_type>;
/// Borrows a lumo_tarn_dp_mp_tc_msg to read it.
using dp_mp_tc_msg_view = message_view<dp_mp_tc_msg_type>;

/// lumo_tarn_dp_mp_prefix_msg carries one lumo_tarn_dp_mp_prefix_data.
struct dp_mp_prefix_msg_type {
    using native = lumo_tarn_dp_mp_prefix_msg;  ///< the message in C
    using payload = lumo_ui_tarn::dp_mp_prefix_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_dp_mp_prefix_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_dp_mp_prefix_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_dp_mp_prefix_msg_message_create_shallow;
    /// Allocates a message with a new payload.
    static constexpr auto create = lumo_tarn_dp_mp_prefix_msg_message_create;
    /// Destroys the message and its payload.
    static constexpr auto destroy = lumo_tarn_dp_mp_prefix_msg_message_destroy;
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_dp_mp_prefix_msg_message_lumo_tarn_dp_mp_prefix_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach =
        lumo_tarn_dp_mp_prefix_msg_message_lumo_tarn_dp_mp_prefix_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_dp_mp_prefix_msg_message_lumo_tarn_dp_mp_prefix_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set =
        lumo_tarn_dp_mp_prefix_msg_message_lumo_tarn_dp_mp_prefix_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_dp_mp_prefix_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_dp_mp_prefix_msg_message_marshal() needs, without the guard
    /// byte.
    static constexpr auto len = lumo_tarn_dp_mp_prefix_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_dp_mp_prefix_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_dp_mp_prefix_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_dp_mp_prefix_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_dp_mp_prefix_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_dp_mp_prefix_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_dp_mp_prefix_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_dp_mp_prefix_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_mp_prefix_msg_message_handler;
};
/// Owns a lumo_tarn_dp_mp_prefix_msg.
using dp_mp_prefix_msg = message<dp_mp_prefix_msg_type>;
/// Borrows a lumo_tarn_dp_mp_prefix_msg.
using dp_mp_prefix_msg_ref = message_ref<dp_mp_prefix_msg_type>;
/// Borrows a lumo_tarn_dp_mp_prefix_msg to read it.
using dp_mp_prefix_msg_view = message_view<dp_mp_prefix_msg_type>;

/// lumo_tarn_pal_mp_prefix_msg carries one lumo_tarn_pal_mp_prefix_data.
struct pal_mp_prefix_msg_type {
    using native = lumo_tarn_pal_mp_prefix_msg;  ///< the message in C
    using payload = lumo_ui_tarn::pal_mp_prefix_data_type;  ///< what it carries
    static constexpr const char *name = "lumo_tarn_pal_mp_prefix_msg";  ///< its name in C
    /// Its identity, 16 bytes.
    static const std::uint8_t *luid() { return message_lumo_tarn_pal_mp_prefix_msg_luid; }
    /// Allocates a message without a payload.
    static constexpr auto create_shallow = lumo_tarn_pal_mp_prefix_msg_message_create_shallow;
    /// Allocates a message with a new payload.
    static constexpr auto create = lumo_tarn_pal_mp_prefix_msg_message_create;
    /// Destroys the message and its payload.
    static constexpr auto destroy = lumo_tarn_pal_mp_prefix_msg_message_destroy;
    /// Returns the payload; the message keeps it.
    static constexpr auto payload_get = lumo_tarn_pal_mp_prefix_msg_message_lumo_tarn_pal_mp_prefix_data_get;
    /// Returns the payload and removes it from the message; the caller owns it.
    static constexpr auto payload_get_detach =
        lumo_tarn_pal_mp_prefix_msg_message_lumo_tarn_pal_mp_prefix_data_get_detach;
    /// Stores a payload, which the message then owns.
    static constexpr auto payload_set = lumo_tarn_pal_mp_prefix_msg_message_lumo_tarn_pal_mp_prefix_data_set;
    /// Destroys the payload and stores another one.
    static constexpr auto payload_free_and_set =
        lumo_tarn_pal_mp_prefix_msg_message_lumo_tarn_pal_mp_prefix_data_free_and_set;
    /// Returns nonzero if the handle's domain has this message.
    static constexpr auto is_valid_cr = lumo_tarn_pal_mp_prefix_msg_message_is_valid_cr;
    /// Returns the buffer size in bytes that lumo_tarn_pal_mp_prefix_msg_message_marshal() needs, without the guard
    /// byte.
    static constexpr auto len = lumo_tarn_pal_mp_prefix_msg_message_len;
    /// Writes the message as a frame of header, identity and payload into buffer, which has size bytes and one guard
    /// byte after them.
    static constexpr auto marshal = lumo_tarn_pal_mp_prefix_msg_message_marshal;
    /// Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
    /// lumo_ui_tarn_lumo_tarn_pal_mp_prefix_msg_message_handler() if handler is NULL.
    static constexpr auto unmarshal = lumo_tarn_pal_mp_prefix_msg_message_unmarshal;
    /// Reads a frame and returns the message through out, also after a bad frame; the caller destroys it.
    static constexpr auto unmarshal_only = lumo_tarn_pal_mp_prefix_msg_message_unmarshal_only;
    static constexpr auto print = lumo_tarn_pal_mp_prefix_msg_message_print;  ///< Writes the message as readable text.
    /// Writes the message as an XML element that contains the payload's element.
    static constexpr auto to_xml = lumo_tarn_pal_mp_prefix_msg_message_to_xml;
    /// Creates a message from the first element with the payload's name in the runtime's document; without one, with a
    /// new payload.
    static constexpr auto from_xml = lumo_tarn_pal_mp_prefix_msg_message_from_xml;
    /// Receives each message that no other handler takes.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_pal_mp_prefix_msg_message_handler;
};
/// Owns a lumo_tarn_pal_mp_prefix_msg.
using pal_mp_prefix_msg = message<pal_mp_prefix_msg_type>;
/// Borrows a lumo_tarn_pal_mp_prefix_msg.
using pal_mp_prefix_msg_ref = message_ref<pal_mp_prefix_msg_type>;
/// Borrows a lumo_tarn_pal_mp_prefix_msg to read it.
using pal_mp_prefix_msg_view = message_view<pal_mp_prefix_msg_type>;

/// lumo_tarn_pal_debug_rsp admits lumo_tarn_debug_setting_msg.
struct pal_debug_rsp {
    using message = lumo_ui_tarn::debug_setting_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_pal_debug_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_pal_debug_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_pal_debug_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_pal_debug_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_pal_debug_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_pal_debug_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_pal_debug_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_pal_debug_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_pal_debug_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_pal_debug_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_pal_debug_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_pal_debug_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_pal_debug_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_pal_debug_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_pal_debug_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_pal_debug_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_pal_debug_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_pal_debug_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_pal_debug_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_pal_debug_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_pal_debug_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_pal_debug_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_pal_debug_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_pal_debug_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_pal_debug_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_pal_debug_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only = lumo_tarn_pal_debug_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_pal_debug_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_pal_debug_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_pal_debug_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_pal_debug_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_pal_debug_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_cl_debug_rsp admits lumo_tarn_debug_setting_msg.
struct cl_debug_rsp {
    using message = lumo_ui_tarn::debug_setting_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_cl_debug_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_cl_debug_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_cl_debug_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_cl_debug_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_cl_debug_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_cl_debug_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_cl_debug_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_cl_debug_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_cl_debug_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_cl_debug_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_cl_debug_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_cl_debug_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_cl_debug_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_cl_debug_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_cl_debug_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_cl_debug_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_cl_debug_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_cl_debug_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_cl_debug_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_cl_debug_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_cl_debug_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_cl_debug_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_cl_debug_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_cl_debug_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_cl_debug_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_cl_debug_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only = lumo_tarn_cl_debug_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_cl_debug_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_cl_debug_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_cl_debug_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_cl_debug_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_cl_debug_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_dp_debug_rsp admits lumo_tarn_dp_debug_setting_msg.
struct dp_debug_rsp {
    using message = lumo_ui_tarn::dp_debug_setting_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_dp_debug_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_dp_debug_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_dp_debug_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_dp_debug_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_dp_debug_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_dp_debug_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_dp_debug_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_dp_debug_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_dp_debug_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_dp_debug_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_dp_debug_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_dp_debug_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_dp_debug_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_dp_debug_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_dp_debug_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_dp_debug_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_dp_debug_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_dp_debug_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_dp_debug_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_dp_debug_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_dp_debug_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_dp_debug_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_dp_debug_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_dp_debug_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_dp_debug_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_dp_debug_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only = lumo_tarn_dp_debug_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_dp_debug_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_dp_debug_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_dp_debug_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_dp_debug_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_dp_debug_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_cl_appl_cfg_rsp admits lumo_tarn_cl_appl_msg.
struct cl_appl_cfg_rsp {
    using message = lumo_ui_tarn::cl_appl_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_cl_appl_cfg_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only =
        lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_cl_cfg_rsp admits lumo_tarn_cl_cfg_msg.
struct cl_cfg_rsp {
    using message = lumo_ui_tarn::cl_cfg_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_cl_cfg_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_cl_cfg_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_cl_cfg_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_cl_cfg_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_cl_cfg_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_cl_cfg_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_cl_cfg_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_cl_cfg_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_cl_cfg_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_cl_cfg_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_cl_cfg_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_cl_cfg_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_cl_cfg_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_cl_cfg_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_cl_cfg_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_cl_cfg_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_cl_cfg_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_cl_cfg_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_cl_cfg_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_cl_cfg_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_cl_cfg_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_cl_cfg_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_cl_cfg_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_cl_cfg_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_cl_cfg_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_cl_cfg_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only = lumo_tarn_cl_cfg_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_cl_cfg_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_cl_cfg_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_cl_cfg_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_cl_cfg_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_cl_cfg_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_dp_intf_rsp admits lumo_tarn_dp_intf_msg.
struct dp_intf_rsp {
    using message = lumo_ui_tarn::dp_intf_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_dp_intf_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_dp_intf_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_dp_intf_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_dp_intf_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_dp_intf_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_dp_intf_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_dp_intf_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_dp_intf_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_dp_intf_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_dp_intf_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_dp_intf_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_dp_intf_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_dp_intf_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_dp_intf_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_dp_intf_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_dp_intf_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_dp_intf_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_dp_intf_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_dp_intf_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_dp_intf_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_dp_intf_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_dp_intf_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_dp_intf_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_dp_intf_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_dp_intf_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_dp_intf_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only = lumo_tarn_dp_intf_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_dp_intf_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_dp_intf_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_dp_intf_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_dp_intf_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_dp_intf_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_dp_appl_cfg_rsp admits lumo_tarn_dp_appl_msg.
struct dp_appl_cfg_rsp {
    using message = lumo_ui_tarn::dp_appl_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_dp_appl_cfg_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only =
        lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_dp_appl_cfg_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_dp_tt_cfg_rsp admits lumo_tarn_dp_tt_msg.
struct dp_tt_cfg_rsp {
    using message = lumo_ui_tarn::dp_tt_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_dp_tt_cfg_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_handler() if handler is NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler = lumo_ui_tarn_lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_dp_mp_tc_cfg_rsp admits lumo_tarn_dp_mp_tc_msg.
struct dp_mp_tc_cfg_rsp {
    using message = lumo_ui_tarn::dp_mp_tc_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_dp_mp_tc_cfg_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_handler() if handler is NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler = lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_handler() if handler is NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler = lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_handler() if handler is
    /// NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only =
        lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler =
        lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_dp_mp_prefix_cfg_rsp admits lumo_tarn_dp_mp_prefix_msg.
struct dp_mp_prefix_cfg_rsp {
    using message = lumo_ui_tarn::dp_mp_prefix_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_dp_mp_prefix_cfg_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_handler() if handler is
    /// NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only =
        lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler =
        lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_handler() if handler is
    /// NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only =
        lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler =
        lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_handler() if handler is
    /// NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only =
        lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler =
        lumo_ui_tarn_lumo_tarn_dp_mp_prefix_cfg_rsp_bundle_commit_message_handler;
};

/// lumo_tarn_pal_mp_prefix_cfg_rsp admits lumo_tarn_pal_mp_prefix_msg.
struct pal_mp_prefix_cfg_rsp {
    using message = lumo_ui_tarn::pal_mp_prefix_msg_type;  ///< what it admits
    static constexpr const char *name = "lumo_tarn_pal_mp_prefix_cfg_rsp";  ///< its name in C
    /// Receives each committed bundle that has no registered handler; its messages are on the handle's receive list.
    static constexpr auto handler = lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_handler;
    /// Registers the process-wide handler of this bundle and returns the previous one.
    static constexpr auto handler_register = lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_handler_register;
    /// Removes the registered handler of this bundle and returns it.
    static constexpr auto handler_unregister = lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_handler_unregister;
    /// Allocates a token for the start of the bundle.
    static constexpr auto start_message_create = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_create;
    /// Frees the token.
    static constexpr auto start_message_destroy = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto start_message_len = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_len;
    /// Writes the frame of the bundle's start and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto start_message_marshal = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_handler() if handler is
    /// NULL.
    static constexpr auto start_message_unmarshal = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto start_message_unmarshal_only =
        lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto start_message_print = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto start_message_to_xml = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto start_message_from_xml = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto start_message_valid_cr = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_valid_cr;
    /// Implements the start on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto start_message_handler =
        lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_start_message_handler;
    /// Allocates a token for the abort of the bundle.
    static constexpr auto abort_message_create = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_create;
    /// Frees the token.
    static constexpr auto abort_message_destroy = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto abort_message_len = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_len;
    /// Writes the frame of the bundle's abort and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto abort_message_marshal = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_handler() if handler is
    /// NULL.
    static constexpr auto abort_message_unmarshal = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto abort_message_unmarshal_only =
        lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto abort_message_print = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto abort_message_to_xml = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto abort_message_from_xml = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto abort_message_valid_cr = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_valid_cr;
    /// Implements the abort on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto abort_message_handler =
        lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_abort_message_handler;
    /// Allocates a token for the commit of the bundle.
    static constexpr auto commit_message_create = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_create;
    /// Frees the token.
    static constexpr auto commit_message_destroy = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_destroy;
    /// Returns the size of the frame in bytes: 43, header and identity.
    static constexpr auto commit_message_len = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_len;
    /// Writes the frame of the bundle's commit and updates the handle's send bundle: a start opens one, an abort or a
    /// commit closes it even if the frame did not fit.
    static constexpr auto commit_message_marshal = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_marshal;
    /// Calls the handler, or lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_handler() if handler is
    /// NULL.
    static constexpr auto commit_message_unmarshal = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_unmarshal;
    /// Has no effect and returns 0: there is no object to return.
    static constexpr auto commit_message_unmarshal_only =
        lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_unmarshal_only;
    /// Writes a line with the bundle's name.
    static constexpr auto commit_message_print = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_print;
    /// Writes an empty XML element with the bundle's name as an attribute.
    static constexpr auto commit_message_to_xml = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_to_xml;
    /// Allocates a token; the document is not read.
    static constexpr auto commit_message_from_xml = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_from_xml;
    /// Returns 1: every domain has control messages.
    static constexpr auto commit_message_valid_cr = lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_valid_cr;
    /// Implements the commit on the receiving side: a start opens the handle's receive bundle, an abort destroys the
    /// messages received, a commit delivers them to the bundle's handler and then destroys the rest.
    static constexpr auto commit_message_handler =
        lumo_ui_tarn_lumo_tarn_pal_mp_prefix_cfg_rsp_bundle_commit_message_handler;
};

/// Stands for a type in a call.
template <class T>
struct kind {
    using type = T;  ///< the type
};
/// Calls visit with a kind<T> for each record, in the order of the schema.
template <class Visit>
void for_each_record(Visit &&visit) {
    visit(kind<exmem_info>{});
    visit(kind<fdb_base>{});
    visit(kind<fdb_mem_info>{});
    visit(kind<exmem_info_wrapper>{});
    visit(kind<dp_appl>{});
    visit(kind<dp_tc>{});
    visit(kind<dp_tc_list>{});
    visit(kind<dp_appl_list>{});
    visit(kind<dp_ll_spec>{});
    visit(kind<dp_learn_list>{});
    visit(kind<dp_debug_setting>{});
    visit(kind<debug_setting>{});
    visit(kind<dp_debug_setting_data>{});
    visit(kind<cl_kesh_appl>{});
    visit(kind<cl_appl_data>{});
    visit(kind<static_exmem_info>{});
    visit(kind<dyn_exmem_info>{});
    visit(kind<lumo_info>{});
    visit(kind<lumo_info_list>{});
    visit(kind<global_info>{});
    visit(kind<cl_cfg_data>{});
    visit(kind<dp_wexa_info>{});
    visit(kind<dp_lumo_wexa_info>{});
    visit(kind<dp_intf_data>{});
    visit(kind<dp_appl_sig>{});
    visit(kind<dp_appl_cfg>{});
    visit(kind<dp_appl_data>{});
    visit(kind<dp_tt_table>{});
    visit(kind<dp_tt_table_data>{});
    visit(kind<dp_mp_tc_prefix>{});
    visit(kind<dp_mp_tc_prefix_lumo_data>{});
    visit(kind<dp_mp_tc_prefix_data>{});
    visit(kind<dp_mp_prefix>{});
    visit(kind<dp_mp_prefix_complex_data>{});
    visit(kind<dp_mp_prefix_data>{});
    visit(kind<pal_mp_prefix>{});
    visit(kind<pal_mp_prefix_data>{});
}
/// Calls visit with a kind<T> for each enumeration, in the order of the schema.
template <class Visit>
void for_each_enumeration(Visit &&visit) {
    visit(kind<ha_state_type>{});
    visit(kind<lumo_direction_type>{});
    visit(kind<mem_desc_type>{});
}
/// Calls visit with a kind<T> for each message, in the order of the schema.
template <class Visit>
void for_each_message(Visit &&visit) {
    visit(kind<debug_setting_msg>{});
    visit(kind<dp_debug_setting_msg>{});
    visit(kind<cl_appl_msg>{});
    visit(kind<cl_cfg_msg>{});
    visit(kind<dp_intf_msg>{});
    visit(kind<dp_appl_msg>{});
    visit(kind<dp_tt_msg>{});
    visit(kind<dp_mp_tc_msg>{});
    visit(kind<dp_mp_prefix_msg>{});
    visit(kind<pal_mp_prefix_msg>{});
}
/// Calls visit with a kind<T> for each bundle, in the order of the schema.
template <class Visit>
void for_each_bundle(Visit &&visit) {
    visit(kind<pal_debug_rsp>{});
    visit(kind<cl_debug_rsp>{});
    visit(kind<dp_debug_rsp>{});
    visit(kind<cl_appl_cfg_rsp>{});
    visit(kind<cl_cfg_rsp>{});
    visit(kind<dp_intf_rsp>{});
    visit(kind<dp_appl_cfg_rsp>{});
    visit(kind<dp_tt_cfg_rsp>{});
    visit(kind<dp_mp_tc_cfg_rsp>{});
    visit(kind<dp_mp_prefix_cfg_rsp>{});
    visit(kind<pal_mp_prefix_cfg_rsp>{});
}

}  // namespace lumo_ui_tarn

#endif
