/// @file
/// lumo_ui_tarn.hpp - the C++17 interface: records, enumerations, messages and bundles as types.
///
/// - Records: three types for each type in C. For lumo_tarn_dp_tc they are dp_tc, which owns a record, dp_tc_ref, which
///   borrows one, and dp_tc_view, which borrows one to read it.
/// - Enumerations: enum classes, for example ha_state. name_of() returns the C name of an enumerator.
/// - Messages: three types like records, for example dp_tt_msg. payload() is the record that the message carries.
/// - Bundles: bundle_writer writes the frames of a bundle, for example bundle_writer<dp_tt_cfg_rsp>, and bundle_reader
///   reads them. lumo_ui_tarn/exchange.hpp requests and serves bundles.
///
/// lumo_ui_tarn/interface.hpp describes what these types have in common, and how errors are reported.
///
/// Each member of a record, for example proto of lumo_tarn_dp_tc, has the functions below. Const owners and views have
/// no setters.
/// - proto() returns the value. A nested record is returned as a reference or view, an array as a container of them.
/// - set_proto(value) writes the value and returns the object, so that calls chain. EINVAL for text with a NUL
///   character, EOVERFLOW for text of more than 65535 bytes.
/// - set_appl(record) replaces the contents of the nested record appl by a deep copy of record.
/// - adopt_appl(record) moves the contents of a record into the nested record appl. The source keeps its C object,
///   without arrays and strings.
/// - proto_state() returns the state byte, or std::nullopt if the record has no state bytes.
/// - set_proto_state(value) writes the state byte. EINVAL if the record has no state bytes.
///
/// Counts and lengths have only the first function, because they follow from the array or string. Arrays have no
/// setter, because the container writes elements. If the name of a member were a keyword or a function of all records,
/// _member would be appended. Words such as ppe, fdb, wexa, kesh, smc and mdr in the descriptions of members are names
/// from the systems that send the data. The library does not interpret the members that they describe.
///
/// dp_tc_type has the C functions of the whole record as static members: c.call(dp_tc_type::adjust_variant, tc.get()).
/// If the name is a keyword, _operation is appended: sizeof_operation. lumo_ui_tarn/families.h describes the functions
/// and explains the terms: handle, ctx_id, state byte, RA data and others.
///
/// Everything is inline: link the C library.
// Generated from the schema; edit the tables there and run tools/regenerate.
#ifndef LUMO_UI_TARN_HPP
#define LUMO_UI_TARN_HPP

#include <lumo_ui_tarn.h>

#include <lumo_ui_tarn/frame_parts.hpp>
#include <lumo_ui_tarn/interface.hpp>

/// @cond names of the C functions, which the C headers document
#define LUMO_UI_TARN_ENUMERATION(ENUMERATION) \
    using native = ENUMERATION; \
    static constexpr const char *name = #ENUMERATION; \
    static constexpr auto create = ENUMERATION##_create; \
    static constexpr auto initialize = ENUMERATION##_initialize; \
    static constexpr auto sizeof_operation = ENUMERATION##_sizeof; \
    static constexpr auto variant_data_index_cap = ENUMERATION##_variant_data_index_cap; \
    static constexpr auto set_instance_embedded = ENUMERATION##_set_instance_embedded; \
    static constexpr auto adjust_variant = ENUMERATION##_adjust_variant; \
    static constexpr auto destroy = ENUMERATION##_destroy; \
    static constexpr auto destroy_internal = ENUMERATION##_destroy_internal; \
    static constexpr auto get_oid_count = ENUMERATION##_get_oid_count; \
    static constexpr auto get_object_references = ENUMERATION##_get_object_references; \
    static constexpr auto get = ENUMERATION##_get; \
    static constexpr auto get_value = ENUMERATION##_get_value; \
    static constexpr auto set = ENUMERATION##_set; \
    static constexpr auto set_value = ENUMERATION##_set_value; \
    static constexpr auto is_valid_cr = ENUMERATION##_is_valid_cr; \
    static constexpr auto map_to_user_value = ENUMERATION##_map_to_user_value; \
    static constexpr auto map_to_internal_value = ENUMERATION##_map_to_internal_value; \
    static constexpr auto compare = ENUMERATION##_compare; \
    static constexpr auto hash = ENUMERATION##_hash; \
    static constexpr auto backpropagate = ENUMERATION##_backpropagate; \
    static constexpr auto len = ENUMERATION##_len; \
    static constexpr auto marshal = ENUMERATION##_marshal; \
    static constexpr auto unmarshal = ENUMERATION##_unmarshal; \
    static constexpr auto print = ENUMERATION##_print; \
    static constexpr auto to_xml = ENUMERATION##_to_xml; \
    static constexpr auto from_xml = ENUMERATION##_from_xml
#define LUMO_UI_TARN_RECORD(RECORD) \
    using native = RECORD; \
    static constexpr const char *name = #RECORD; \
    static constexpr const frame_part *parts = frame_parts::RECORD; \
    static constexpr auto create = RECORD##_create; \
    static constexpr auto create_internal = RECORD##_create_internal; \
    static constexpr auto initialize = RECORD##_initialize; \
    static constexpr auto sizeof_operation = RECORD##_sizeof; \
    static constexpr auto variant_data_index_cap = RECORD##_variant_data_index_cap; \
    static constexpr auto set_instance_embedded = RECORD##_set_instance_embedded; \
    static constexpr auto adjust_variant = RECORD##_adjust_variant; \
    static constexpr auto destroy = RECORD##_destroy; \
    static constexpr auto destroy_internal = RECORD##_destroy_internal; \
    static constexpr auto get = RECORD##_get; \
    static constexpr auto get_all = RECORD##_get_all; \
    static constexpr auto set_all = RECORD##_set_all; \
    static constexpr auto set = RECORD##_set; \
    static constexpr auto post_copyout_cleanup = RECORD##_post_copyout_cleanup; \
    static constexpr auto set_all_state_tracking_flag = RECORD##_set_all_state_tracking_flag; \
    static constexpr auto is_valid_cr = RECORD##_is_valid_cr; \
    static constexpr auto get_oid_count = RECORD##_get_oid_count; \
    static constexpr auto get_object_references = RECORD##_get_object_references; \
    static constexpr auto offset_update = RECORD##_offset_update; \
    static constexpr auto offset_remove = RECORD##_offset_remove; \
    static constexpr auto len = RECORD##_len; \
    static constexpr auto marshal = RECORD##_marshal; \
    static constexpr auto marshal_for_clone = RECORD##_marshal_for_clone; \
    static constexpr auto unmarshal = RECORD##_unmarshal; \
    static constexpr auto clone = RECORD##_clone; \
    static constexpr auto copy_cr = RECORD##_copy_cr; \
    static constexpr auto print = RECORD##_print; \
    static constexpr auto to_xml = RECORD##_to_xml; \
    static constexpr auto from_xml = RECORD##_from_xml; \
    static constexpr auto compare = RECORD##_compare; \
    static constexpr auto hash = RECORD##_hash; \
    static constexpr auto type_type_backpropagate = RECORD##_type_type_backpropagate
#define LUMO_UI_TARN_ARRAY(RECORD, COUNT, MEMBER) \
    using native = RECORD; \
    static constexpr auto size = RECORD##_##COUNT##_get_value; \
    static constexpr auto get = RECORD##_##MEMBER##_get; \
    static constexpr auto set = RECORD##_##MEMBER##_set; \
    static constexpr auto state_flag_get = RECORD##_##MEMBER##_state_flag_get; \
    static constexpr auto state_flag_set = RECORD##_##MEMBER##_state_flag_set
#define LUMO_UI_TARN_MESSAGE(MESSAGE, PAYLOAD) \
    using native = MESSAGE; \
    static constexpr const char *name = #MESSAGE; \
    static const std::uint8_t *luid() noexcept { return message_##MESSAGE##_luid; } \
    static constexpr auto create_shallow = MESSAGE##_message_create_shallow; \
    static constexpr auto create = MESSAGE##_message_create; \
    static constexpr auto destroy = MESSAGE##_message_destroy; \
    static constexpr auto payload_get = MESSAGE##_message_##PAYLOAD##_get; \
    static constexpr auto payload_get_detach = MESSAGE##_message_##PAYLOAD##_get_detach; \
    static constexpr auto payload_set = MESSAGE##_message_##PAYLOAD##_set; \
    static constexpr auto payload_free_and_set = MESSAGE##_message_##PAYLOAD##_free_and_set; \
    static constexpr auto is_valid_cr = MESSAGE##_message_is_valid_cr; \
    static constexpr auto len = MESSAGE##_message_len; \
    static constexpr auto marshal = MESSAGE##_message_marshal; \
    static constexpr auto unmarshal = MESSAGE##_message_unmarshal; \
    static constexpr auto unmarshal_only = MESSAGE##_message_unmarshal_only; \
    static constexpr auto print = MESSAGE##_message_print; \
    static constexpr auto to_xml = MESSAGE##_message_to_xml; \
    static constexpr auto from_xml = MESSAGE##_message_from_xml; \
    static constexpr auto handler = lumo_ui_tarn_##MESSAGE##_message_handler
#define LUMO_UI_TARN_BUNDLE(BUNDLE) \
    static constexpr const char *name = #BUNDLE; \
    static constexpr auto handler = lumo_ui_tarn_##BUNDLE##_bundle_handler; \
    static constexpr auto handler_register = lumo_ui_tarn_##BUNDLE##_bundle_handler_register; \
    static constexpr auto handler_unregister = lumo_ui_tarn_##BUNDLE##_bundle_handler_unregister; \
    static const std::uint8_t *start_luid() noexcept { return message_##BUNDLE##_bundle_start_luid; } \
    static constexpr auto start_message_create = BUNDLE##_bundle_start_message_create; \
    static constexpr auto start_message_destroy = BUNDLE##_bundle_start_message_destroy; \
    static constexpr auto start_message_len = BUNDLE##_bundle_start_message_len; \
    static constexpr auto start_message_marshal = BUNDLE##_bundle_start_message_marshal; \
    static constexpr auto start_message_unmarshal = BUNDLE##_bundle_start_message_unmarshal; \
    static constexpr auto start_message_unmarshal_only = BUNDLE##_bundle_start_message_unmarshal_only; \
    static constexpr auto start_message_print = BUNDLE##_bundle_start_message_print; \
    static constexpr auto start_message_to_xml = BUNDLE##_bundle_start_message_to_xml; \
    static constexpr auto start_message_from_xml = BUNDLE##_bundle_start_message_from_xml; \
    static constexpr auto start_message_valid_cr = BUNDLE##_bundle_start_message_valid_cr; \
    static constexpr auto start_message_handler = lumo_ui_tarn_##BUNDLE##_bundle_start_message_handler; \
    static const std::uint8_t *abort_luid() noexcept { return message_##BUNDLE##_bundle_abort_luid; } \
    static constexpr auto abort_message_create = BUNDLE##_bundle_abort_message_create; \
    static constexpr auto abort_message_destroy = BUNDLE##_bundle_abort_message_destroy; \
    static constexpr auto abort_message_len = BUNDLE##_bundle_abort_message_len; \
    static constexpr auto abort_message_marshal = BUNDLE##_bundle_abort_message_marshal; \
    static constexpr auto abort_message_unmarshal = BUNDLE##_bundle_abort_message_unmarshal; \
    static constexpr auto abort_message_unmarshal_only = BUNDLE##_bundle_abort_message_unmarshal_only; \
    static constexpr auto abort_message_print = BUNDLE##_bundle_abort_message_print; \
    static constexpr auto abort_message_to_xml = BUNDLE##_bundle_abort_message_to_xml; \
    static constexpr auto abort_message_from_xml = BUNDLE##_bundle_abort_message_from_xml; \
    static constexpr auto abort_message_valid_cr = BUNDLE##_bundle_abort_message_valid_cr; \
    static constexpr auto abort_message_handler = lumo_ui_tarn_##BUNDLE##_bundle_abort_message_handler; \
    static const std::uint8_t *commit_luid() noexcept { return message_##BUNDLE##_bundle_commit_luid; } \
    static constexpr auto commit_message_create = BUNDLE##_bundle_commit_message_create; \
    static constexpr auto commit_message_destroy = BUNDLE##_bundle_commit_message_destroy; \
    static constexpr auto commit_message_len = BUNDLE##_bundle_commit_message_len; \
    static constexpr auto commit_message_marshal = BUNDLE##_bundle_commit_message_marshal; \
    static constexpr auto commit_message_unmarshal = BUNDLE##_bundle_commit_message_unmarshal; \
    static constexpr auto commit_message_unmarshal_only = BUNDLE##_bundle_commit_message_unmarshal_only; \
    static constexpr auto commit_message_print = BUNDLE##_bundle_commit_message_print; \
    static constexpr auto commit_message_to_xml = BUNDLE##_bundle_commit_message_to_xml; \
    static constexpr auto commit_message_from_xml = BUNDLE##_bundle_commit_message_from_xml; \
    static constexpr auto commit_message_valid_cr = BUNDLE##_bundle_commit_message_valid_cr; \
    static constexpr auto commit_message_handler = lumo_ui_tarn_##BUNDLE##_bundle_commit_message_handler
/// @endcond

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
/// Returns the enumerator's C name, or "" for any other value: frames can contain any number.
constexpr std::string_view name_of(ha_state value) noexcept {
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
/// The C functions of lumo_tarn_ha_state_e, as static members.
struct ha_state_type {
    using value = lumo_ui_tarn::ha_state;  ///< the type of its values
    LUMO_UI_TARN_ENUMERATION(lumo_tarn_ha_state_e);
};

/// Direction of traffic that a processor serves.
enum class lumo_direction : std::uint32_t {
    ingress = 0,  ///< LUMO_TARN_DIR_INGRESS
    egress = 1,  ///< LUMO_TARN_DIR_EGRESS
    both = 2,  ///< LUMO_TARN_DIR_BOTH
};
/// Returns the enumerator's C name, or "" for any other value: frames can contain any number.
constexpr std::string_view name_of(lumo_direction value) noexcept {
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
/// The C functions of lumo_tarn_lumo_direction_e, as static members.
struct lumo_direction_type {
    using value = lumo_ui_tarn::lumo_direction;  ///< the type of its values
    LUMO_UI_TARN_ENUMERATION(lumo_tarn_lumo_direction_e);
};

/// Kind of memory.
enum class mem_desc : std::uint32_t {
    mp_mem = 0,  ///< LUMO_TARN_MP_MEM
    tt_mem = 1,  ///< LUMO_TARN_TT_MEM
    flow_mem = 2,  ///< LUMO_TARN_FLOW_MEM
};
/// Returns the enumerator's C name, or "" for any other value: frames can contain any number.
constexpr std::string_view name_of(mem_desc value) noexcept {
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
/// The C functions of lumo_tarn_mem_desc_e, as static members.
struct mem_desc_type {
    using value = lumo_ui_tarn::mem_desc;  ///< the type of its values
    LUMO_UI_TARN_ENUMERATION(lumo_tarn_mem_desc_e);
};

/// One block of external memory: its three addresses and its size. C type: lumo_tarn_exmem_info.
struct exmem_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_exmem_info);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<exmem_info_type, Self> {
    public:
        using detail::operations<exmem_info_type, Self>::operations;

        /// Address of the block on the client side.
        std::uint64_t cl_addr() const { return this->call_(lumo_tarn_exmem_info_cl_addr_get_value); }
        /// Address of the block in external memory.
        std::uint64_t exmem_addr() const { return this->call_(lumo_tarn_exmem_info_exmem_addr_get_value); }
        /// Address of the block as the ppe side uses it.
        std::uint64_t ppe_addr() const { return this->call_(lumo_tarn_exmem_info_ppe_addr_get_value); }
        /// Size of the block.
        std::uint32_t size() const { return this->call_(lumo_tarn_exmem_info_size_get_value); }

        /// @cond states
        std::optional<std::uint8_t> cl_addr_state() const {
            return this->state_(lumo_tarn_exmem_info_cl_addr_state_flag_get);
        }
        std::optional<std::uint8_t> exmem_addr_state() const {
            return this->state_(lumo_tarn_exmem_info_exmem_addr_state_flag_get);
        }
        std::optional<std::uint8_t> ppe_addr_state() const {
            return this->state_(lumo_tarn_exmem_info_ppe_addr_state_flag_get);
        }
        std::optional<std::uint8_t> size_state() const {
            return this->state_(lumo_tarn_exmem_info_size_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_cl_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_cl_addr_set_value, value);
        }
        Self &set_cl_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_cl_addr_state_flag_set, value);
        }
        Self &set_exmem_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_exmem_addr_set_value, value);
        }
        Self &set_exmem_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_exmem_addr_state_flag_set, value);
        }
        Self &set_ppe_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_ppe_addr_set_value, value);
        }
        Self &set_ppe_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_ppe_addr_state_flag_set, value);
        }
        Self &set_size(std::uint32_t value) { return this->write_(*this, lumo_tarn_exmem_info_size_set_value, value); }
        Self &set_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_size_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"cl_addr", &M::cl_addr, nullptr, &M::cl_addr_state, nullptr});
        visit(lumo_ui_tarn::member{"exmem_addr", &M::exmem_addr, nullptr, &M::exmem_addr_state, nullptr});
        visit(lumo_ui_tarn::member{"ppe_addr", &M::ppe_addr, nullptr, &M::ppe_addr_state, nullptr});
        visit(lumo_ui_tarn::member{"size", &M::size, nullptr, &M::size_state, nullptr});
    }
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
using exmem_info = record<exmem_info_type>;  ///< owns one
using exmem_info_ref = record_ref<exmem_info_type>;  ///< borrows one
using exmem_info_view = record_view<exmem_info_type>;  ///< borrows one to read it

/// Versions and lengths of the header and the footer of the fdb. C type: lumo_tarn_fdb_base.
struct fdb_base_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_fdb_base);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<fdb_base_type, Self> {
    public:
        using detail::operations<fdb_base_type, Self>::operations;

        /// Version of the header.
        std::uint8_t hdr_ver() const { return this->call_(lumo_tarn_fdb_base_hdr_ver_get_value); }
        /// Length of the header.
        std::uint8_t hdr_len() const { return this->call_(lumo_tarn_fdb_base_hdr_len_get_value); }
        /// Header flags.
        std::uint16_t hdr_flags() const { return this->call_(lumo_tarn_fdb_base_hdr_flags_get_value); }
        /// Version of the footer.
        std::uint16_t ftr_ver() const { return this->call_(lumo_tarn_fdb_base_ftr_ver_get_value); }
        /// Length of the footer.
        std::uint16_t ftr_len() const { return this->call_(lumo_tarn_fdb_base_ftr_len_get_value); }

        /// @cond states
        std::optional<std::uint8_t> hdr_ver_state() const {
            return this->state_(lumo_tarn_fdb_base_hdr_ver_state_flag_get);
        }
        std::optional<std::uint8_t> hdr_len_state() const {
            return this->state_(lumo_tarn_fdb_base_hdr_len_state_flag_get);
        }
        std::optional<std::uint8_t> hdr_flags_state() const {
            return this->state_(lumo_tarn_fdb_base_hdr_flags_state_flag_get);
        }
        std::optional<std::uint8_t> ftr_ver_state() const {
            return this->state_(lumo_tarn_fdb_base_ftr_ver_state_flag_get);
        }
        std::optional<std::uint8_t> ftr_len_state() const {
            return this->state_(lumo_tarn_fdb_base_ftr_len_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_hdr_ver(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_ver_set_value, value);
        }
        Self &set_hdr_ver_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_ver_state_flag_set, value);
        }
        Self &set_hdr_len(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_len_set_value, value);
        }
        Self &set_hdr_len_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_len_state_flag_set, value);
        }
        Self &set_hdr_flags(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_flags_set_value, value);
        }
        Self &set_hdr_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_hdr_flags_state_flag_set, value);
        }
        Self &set_ftr_ver(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_ver_set_value, value);
        }
        Self &set_ftr_ver_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_ver_state_flag_set, value);
        }
        Self &set_ftr_len(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_len_set_value, value);
        }
        Self &set_ftr_len_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_base_ftr_len_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"hdr_ver", &M::hdr_ver, nullptr, &M::hdr_ver_state, nullptr});
        visit(lumo_ui_tarn::member{"hdr_len", &M::hdr_len, nullptr, &M::hdr_len_state, nullptr});
        visit(lumo_ui_tarn::member{"hdr_flags", &M::hdr_flags, nullptr, &M::hdr_flags_state, nullptr});
        visit(lumo_ui_tarn::member{"ftr_ver", &M::ftr_ver, nullptr, &M::ftr_ver_state, nullptr});
        visit(lumo_ui_tarn::member{"ftr_len", &M::ftr_len, nullptr, &M::ftr_len_state, nullptr});
    }
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
using fdb_base = record<fdb_base_type>;  ///< owns one
using fdb_base_ref = record_ref<fdb_base_type>;  ///< borrows one
using fdb_base_view = record_view<fdb_base_type>;  ///< borrows one to read it

/// One piece of fdb memory. C type: lumo_tarn_fdb_mem_info.
struct fdb_mem_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_fdb_mem_info);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<fdb_mem_info_type, Self> {
    public:
        using detail::operations<fdb_mem_info_type, Self>::operations;

        /// Type of the memory.
        std::uint32_t type() const { return this->call_(lumo_tarn_fdb_mem_info_type_get_value); }
        /// Size of the memory.
        std::uint32_t size() const { return this->call_(lumo_tarn_fdb_mem_info_size_get_value); }
        /// Address of the memory.
        std::uint64_t mem_addr() const { return this->call_(lumo_tarn_fdb_mem_info_mem_addr_get_value); }

        /// @cond states
        std::optional<std::uint8_t> type_state() const {
            return this->state_(lumo_tarn_fdb_mem_info_type_state_flag_get);
        }
        std::optional<std::uint8_t> size_state() const {
            return this->state_(lumo_tarn_fdb_mem_info_size_state_flag_get);
        }
        std::optional<std::uint8_t> mem_addr_state() const {
            return this->state_(lumo_tarn_fdb_mem_info_mem_addr_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_type(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_type_set_value, value);
        }
        Self &set_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_type_state_flag_set, value);
        }
        Self &set_size(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_size_set_value, value);
        }
        Self &set_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_size_state_flag_set, value);
        }
        Self &set_mem_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_mem_addr_set_value, value);
        }
        Self &set_mem_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_fdb_mem_info_mem_addr_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"type", &M::type, nullptr, &M::type_state, nullptr});
        visit(lumo_ui_tarn::member{"size", &M::size, nullptr, &M::size_state, nullptr});
        visit(lumo_ui_tarn::member{"mem_addr", &M::mem_addr, nullptr, &M::mem_addr_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"type", &M::type, &M::set_type, &M::type_state, &M::set_type_state});
        visit(lumo_ui_tarn::member{"size", &M::size, &M::set_size, &M::size_state, &M::set_size_state});
        visit(lumo_ui_tarn::member{"mem_addr", &M::mem_addr, &M::set_mem_addr, &M::mem_addr_state,
            &M::set_mem_addr_state});
    }
    /// @endcond
};
using fdb_mem_info = record<fdb_mem_info_type>;  ///< owns one
using fdb_mem_info_ref = record_ref<fdb_mem_info_type>;  ///< borrows one
using fdb_mem_info_view = record_view<fdb_mem_info_type>;  ///< borrows one to read it

/// One block of a growing list of blocks. C type: lumo_tarn_exmem_info_wrapper.
struct exmem_info_wrapper_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_exmem_info_wrapper);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<exmem_info_wrapper_type, Self> {
    public:
        using detail::operations<exmem_info_wrapper_type, Self>::operations;

        /// Wrapped block description.
        lumo_ui_tarn::exmem_info_view exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_exmem_info_wrapper_exmem_get);
        }

        /// @cond states
        std::optional<std::uint8_t> exmem_state() const {
            return this->state_(lumo_tarn_exmem_info_wrapper_exmem_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::exmem;
        lumo_ui_tarn::exmem_info_ref exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_exmem_info_wrapper_exmem_get);
        }
        Self &set_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_exmem_info_wrapper_exmem_get, lumo_tarn_exmem_info_wrapper_exmem_set,
                value);
        }
        Self &adopt_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_exmem_info_wrapper_exmem_get, lumo_tarn_exmem_info_wrapper_exmem_set,
                std::move(value));
        }
        Self &set_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_exmem_info_wrapper_exmem_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem", &M::exmem, nullptr, &M::exmem_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem", detail::writable(&M::exmem, 0), &M::set_exmem, &M::exmem_state,
            &M::set_exmem_state});
    }
    /// @endcond
};
using exmem_info_wrapper = record<exmem_info_wrapper_type>;  ///< owns one
using exmem_info_wrapper_ref = record_ref<exmem_info_wrapper_type>;  ///< borrows one
using exmem_info_wrapper_view = record_view<exmem_info_wrapper_type>;  ///< borrows one to read it

/// One application entry in the data plane. C type: lumo_tarn_dp_appl.
struct dp_appl_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_appl);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_type, Self> {
    public:
        using detail::operations<dp_appl_type, Self>::operations;

        /// Location of the entry in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_exmem_info_get);
        }
        /// Type of the application entry.
        std::uint8_t type() const { return this->call_(lumo_tarn_dp_appl_type_get_value); }
        /// Identifier of the application entry.
        std::uint16_t id() const { return this->call_(lumo_tarn_dp_appl_id_get_value); }
        /// Tarn feature's identifier of the kesh application.
        std::uint16_t tarn_kesh_id() const { return this->call_(lumo_tarn_dp_appl_tarn_kesh_id_get_value); }
        /// Link to the next entry in the data plane.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_appl_next_ptr_get_value); }

        /// @cond states
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_appl_exmem_info_state_flag_get);
        }
        std::optional<std::uint8_t> type_state() const { return this->state_(lumo_tarn_dp_appl_type_state_flag_get); }
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_dp_appl_id_state_flag_get); }
        std::optional<std::uint8_t> tarn_kesh_id_state() const {
            return this->state_(lumo_tarn_dp_appl_tarn_kesh_id_state_flag_get);
        }
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_appl_next_ptr_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::exmem_info;
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_exmem_info_get);
        }
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_appl_exmem_info_get, lumo_tarn_dp_appl_exmem_info_set, value);
        }
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_appl_exmem_info_get, lumo_tarn_dp_appl_exmem_info_set,
                std::move(value));
        }
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_exmem_info_state_flag_set, value);
        }
        Self &set_type(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_appl_type_set_value, value); }
        Self &set_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_type_state_flag_set, value);
        }
        Self &set_id(std::uint16_t value) { return this->write_(*this, lumo_tarn_dp_appl_id_set_value, value); }
        Self &set_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_id_state_flag_set, value);
        }
        Self &set_tarn_kesh_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_tarn_kesh_id_set_value, value);
        }
        Self &set_tarn_kesh_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_tarn_kesh_id_state_flag_set, value);
        }
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_next_ptr_set_value, value);
        }
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_next_ptr_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem_info", &M::exmem_info, nullptr, &M::exmem_info_state, nullptr});
        visit(lumo_ui_tarn::member{"type", &M::type, nullptr, &M::type_state, nullptr});
        visit(lumo_ui_tarn::member{"id", &M::id, nullptr, &M::id_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_kesh_id", &M::tarn_kesh_id, nullptr, &M::tarn_kesh_id_state, nullptr});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, nullptr, &M::next_ptr_state, nullptr});
    }
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
using dp_appl = record<dp_appl_type>;  ///< owns one
using dp_appl_ref = record_ref<dp_appl_type>;  ///< borrows one
using dp_appl_view = record_view<dp_appl_type>;  ///< borrows one to read it

/// One traffic class. C type: lumo_tarn_dp_tc.
struct dp_tc_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_tc);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tc_type, Self> {
    public:
        using detail::operations<dp_tc_type, Self>::operations;

        /// Location of the traffic class in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_tc_exmem_info_get);
        }
        /// Source prefix of the class.
        lumo_ui_tarn::address src_prefix() const { return this->read_address_(lumo_tarn_dp_tc_src_prefix_get); }
        /// Destination prefix of the class.
        lumo_ui_tarn::address dst_prefix() const { return this->read_address_(lumo_tarn_dp_tc_dst_prefix_get); }
        /// Protocol number to match.
        std::uint8_t proto() const { return this->call_(lumo_tarn_dp_tc_proto_get_value); }
        /// Type-of-service value to match.
        std::uint8_t tos() const { return this->call_(lumo_tarn_dp_tc_tos_get_value); }
        /// Flags of the class, sixteen bits.
        std::uint16_t flags() const { return this->call_(lumo_tarn_dp_tc_flags_get_value); }
        /// Second, separate set of flags, eight bits.
        std::uint8_t bit_flags() const { return this->call_(lumo_tarn_dp_tc_bit_flags_get_value); }
        /// Low end of the source port range.
        std::uint16_t src_port_min() const { return this->call_(lumo_tarn_dp_tc_src_port_min_get_value); }
        /// High end of the source port range.
        std::uint16_t src_port_max() const { return this->call_(lumo_tarn_dp_tc_src_port_max_get_value); }
        /// Low end of the destination port range.
        std::uint16_t dst_port_min() const { return this->call_(lumo_tarn_dp_tc_dst_port_min_get_value); }
        /// High end of the destination port range.
        std::uint16_t dst_port_max() const { return this->call_(lumo_tarn_dp_tc_dst_port_max_get_value); }
        /// Operator applied to the source port range.
        std::uint16_t src_port_opr() const { return this->call_(lumo_tarn_dp_tc_src_port_opr_get_value); }
        /// Operator applied to the destination port range.
        std::uint16_t dst_port_opr() const { return this->call_(lumo_tarn_dp_tc_dst_port_opr_get_value); }
        /// Link to the next class in the data plane.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_tc_next_ptr_get_value); }
        /// Location of the application data in the data plane.
        std::uint64_t appl_data_ptr() const { return this->call_(lumo_tarn_dp_tc_appl_data_ptr_get_value); }
        /// Application entry of the class.
        lumo_ui_tarn::dp_appl_view appl() const {
            return this->template nested_<lumo_ui_tarn::dp_appl_type>(lumo_tarn_dp_tc_appl_get);
        }
        /// Identifier of the class.
        std::uint32_t id() const { return this->call_(lumo_tarn_dp_tc_id_get_value); }

        /// @cond states
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_tc_exmem_info_state_flag_get);
        }
        std::optional<std::uint8_t> src_prefix_state() const {
            return this->state_(lumo_tarn_dp_tc_src_prefix_state_flag_get);
        }
        std::optional<std::uint8_t> dst_prefix_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_prefix_state_flag_get);
        }
        std::optional<std::uint8_t> proto_state() const { return this->state_(lumo_tarn_dp_tc_proto_state_flag_get); }
        std::optional<std::uint8_t> tos_state() const { return this->state_(lumo_tarn_dp_tc_tos_state_flag_get); }
        std::optional<std::uint8_t> flags_state() const { return this->state_(lumo_tarn_dp_tc_flags_state_flag_get); }
        std::optional<std::uint8_t> bit_flags_state() const {
            return this->state_(lumo_tarn_dp_tc_bit_flags_state_flag_get);
        }
        std::optional<std::uint8_t> src_port_min_state() const {
            return this->state_(lumo_tarn_dp_tc_src_port_min_state_flag_get);
        }
        std::optional<std::uint8_t> src_port_max_state() const {
            return this->state_(lumo_tarn_dp_tc_src_port_max_state_flag_get);
        }
        std::optional<std::uint8_t> dst_port_min_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_port_min_state_flag_get);
        }
        std::optional<std::uint8_t> dst_port_max_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_port_max_state_flag_get);
        }
        std::optional<std::uint8_t> src_port_opr_state() const {
            return this->state_(lumo_tarn_dp_tc_src_port_opr_state_flag_get);
        }
        std::optional<std::uint8_t> dst_port_opr_state() const {
            return this->state_(lumo_tarn_dp_tc_dst_port_opr_state_flag_get);
        }
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_tc_next_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> appl_data_ptr_state() const {
            return this->state_(lumo_tarn_dp_tc_appl_data_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> appl_state() const { return this->state_(lumo_tarn_dp_tc_appl_state_flag_get); }
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_dp_tc_id_state_flag_get); }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::exmem_info;
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_tc_exmem_info_get);
        }
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_tc_exmem_info_get, lumo_tarn_dp_tc_exmem_info_set, value);
        }
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tc_exmem_info_get, lumo_tarn_dp_tc_exmem_info_set,
                std::move(value));
        }
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_exmem_info_state_flag_set, value);
        }
        Self &set_src_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_tc_src_prefix_get, lumo_tarn_dp_tc_src_prefix_set, value);
        }
        Self &set_src_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_prefix_state_flag_set, value);
        }
        Self &set_dst_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_tc_dst_prefix_get, lumo_tarn_dp_tc_dst_prefix_set, value);
        }
        Self &set_dst_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_prefix_state_flag_set, value);
        }
        Self &set_proto(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_tc_proto_set_value, value); }
        Self &set_proto_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_proto_state_flag_set, value);
        }
        Self &set_tos(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_tc_tos_set_value, value); }
        Self &set_tos_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_tos_state_flag_set, value);
        }
        Self &set_flags(std::uint16_t value) { return this->write_(*this, lumo_tarn_dp_tc_flags_set_value, value); }
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_flags_state_flag_set, value);
        }
        Self &set_bit_flags(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_bit_flags_set_value, value);
        }
        Self &set_bit_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_bit_flags_state_flag_set, value);
        }
        Self &set_src_port_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_min_set_value, value);
        }
        Self &set_src_port_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_min_state_flag_set, value);
        }
        Self &set_src_port_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_max_set_value, value);
        }
        Self &set_src_port_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_max_state_flag_set, value);
        }
        Self &set_dst_port_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_min_set_value, value);
        }
        Self &set_dst_port_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_min_state_flag_set, value);
        }
        Self &set_dst_port_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_max_set_value, value);
        }
        Self &set_dst_port_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_max_state_flag_set, value);
        }
        Self &set_src_port_opr(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_opr_set_value, value);
        }
        Self &set_src_port_opr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_src_port_opr_state_flag_set, value);
        }
        Self &set_dst_port_opr(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_opr_set_value, value);
        }
        Self &set_dst_port_opr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_dst_port_opr_state_flag_set, value);
        }
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_next_ptr_set_value, value);
        }
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_next_ptr_state_flag_set, value);
        }
        Self &set_appl_data_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_appl_data_ptr_set_value, value);
        }
        Self &set_appl_data_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_appl_data_ptr_state_flag_set, value);
        }
        using members<Self>::appl;
        lumo_ui_tarn::dp_appl_ref appl() {
            return this->template nested_<lumo_ui_tarn::dp_appl_type>(lumo_tarn_dp_tc_appl_get);
        }
        Self &set_appl(lumo_ui_tarn::dp_appl_view value) {
            return this->assign_(*this, lumo_tarn_dp_tc_appl_get, lumo_tarn_dp_tc_appl_set, value);
        }
        Self &adopt_appl(lumo_ui_tarn::dp_appl &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tc_appl_get, lumo_tarn_dp_tc_appl_set, std::move(value));
        }
        Self &set_appl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_appl_state_flag_set, value);
        }
        Self &set_id(std::uint32_t value) { return this->write_(*this, lumo_tarn_dp_tc_id_set_value, value); }
        Self &set_id_state(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_tc_id_state_flag_set, value); }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem_info", &M::exmem_info, nullptr, &M::exmem_info_state, nullptr});
        visit(lumo_ui_tarn::member{"src_prefix", &M::src_prefix, nullptr, &M::src_prefix_state, nullptr});
        visit(lumo_ui_tarn::member{"dst_prefix", &M::dst_prefix, nullptr, &M::dst_prefix_state, nullptr});
        visit(lumo_ui_tarn::member{"proto", &M::proto, nullptr, &M::proto_state, nullptr});
        visit(lumo_ui_tarn::member{"tos", &M::tos, nullptr, &M::tos_state, nullptr});
        visit(lumo_ui_tarn::member{"flags", &M::flags, nullptr, &M::flags_state, nullptr});
        visit(lumo_ui_tarn::member{"bit_flags", &M::bit_flags, nullptr, &M::bit_flags_state, nullptr});
        visit(lumo_ui_tarn::member{"src_port_min", &M::src_port_min, nullptr, &M::src_port_min_state, nullptr});
        visit(lumo_ui_tarn::member{"src_port_max", &M::src_port_max, nullptr, &M::src_port_max_state, nullptr});
        visit(lumo_ui_tarn::member{"dst_port_min", &M::dst_port_min, nullptr, &M::dst_port_min_state, nullptr});
        visit(lumo_ui_tarn::member{"dst_port_max", &M::dst_port_max, nullptr, &M::dst_port_max_state, nullptr});
        visit(lumo_ui_tarn::member{"src_port_opr", &M::src_port_opr, nullptr, &M::src_port_opr_state, nullptr});
        visit(lumo_ui_tarn::member{"dst_port_opr", &M::dst_port_opr, nullptr, &M::dst_port_opr_state, nullptr});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, nullptr, &M::next_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"appl_data_ptr", &M::appl_data_ptr, nullptr, &M::appl_data_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"appl", &M::appl, nullptr, &M::appl_state, nullptr});
        visit(lumo_ui_tarn::member{"id", &M::id, nullptr, &M::id_state, nullptr});
    }
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
using dp_tc = record<dp_tc_type>;  ///< owns one
using dp_tc_ref = record_ref<dp_tc_type>;  ///< borrows one
using dp_tc_view = record_view<dp_tc_type>;  ///< borrows one to read it

/// Counted list of traffic classes. C type: lumo_tarn_dp_tc_list.
struct dp_tc_list_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_tc_list);
    static constexpr bool owns_blocks = true;
    struct tc_list_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_tc_list, num_tcs, tc_list);
        using element = lumo_ui_tarn::dp_tc_type;
        using count = std::uint32_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tc_list_type, Self> {
    public:
        using detail::operations<dp_tc_list_type, Self>::operations;

        /// Number of elements in tc_list.
        std::uint32_t num_tcs() const { return this->call_(lumo_tarn_dp_tc_list_num_tcs_get_value); }
        /// Traffic classes.
        lumo_ui_tarn::array_view<tc_list_array> tc_list() const { return this->template array_<tc_list_array>(); }

        /// @cond states
        std::optional<std::uint8_t> tc_list_state() const {
            return this->state_(lumo_tarn_dp_tc_list_tc_list_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::tc_list;
        lumo_ui_tarn::array_ref<tc_list_array> tc_list() { return this->template array_<tc_list_array>(); }
        Self &set_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tc_list_tc_list_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_tcs", &M::num_tcs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"tc_list", &M::tc_list, nullptr, &M::tc_list_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_tcs", &M::num_tcs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"tc_list", detail::writable(&M::tc_list, 0), nullptr, &M::tc_list_state,
            &M::set_tc_list_state});
    }
    /// @endcond
};
using dp_tc_list = record<dp_tc_list_type>;  ///< owns one
using dp_tc_list_ref = record_ref<dp_tc_list_type>;  ///< borrows one
using dp_tc_list_view = record_view<dp_tc_list_type>;  ///< borrows one to read it

/// Counted list of application entries. C type: lumo_tarn_dp_appl_list.
struct dp_appl_list_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_appl_list);
    static constexpr bool owns_blocks = true;
    struct appl_list_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_appl_list, num_appls, appl_list);
        using element = lumo_ui_tarn::dp_appl_type;
        using count = std::uint32_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_list_type, Self> {
    public:
        using detail::operations<dp_appl_list_type, Self>::operations;

        /// Number of elements in appl_list.
        std::uint32_t num_appls() const { return this->call_(lumo_tarn_dp_appl_list_num_appls_get_value); }
        /// Application entries.
        lumo_ui_tarn::array_view<appl_list_array> appl_list() const { return this->template array_<appl_list_array>(); }

        /// @cond states
        std::optional<std::uint8_t> appl_list_state() const {
            return this->state_(lumo_tarn_dp_appl_list_appl_list_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::appl_list;
        lumo_ui_tarn::array_ref<appl_list_array> appl_list() { return this->template array_<appl_list_array>(); }
        Self &set_appl_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_list_appl_list_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_appls", &M::num_appls, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"appl_list", &M::appl_list, nullptr, &M::appl_list_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_appls", &M::num_appls, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"appl_list", detail::writable(&M::appl_list, 0), nullptr, &M::appl_list_state,
            &M::set_appl_list_state});
    }
    /// @endcond
};
using dp_appl_list = record<dp_appl_list_type>;  ///< owns one
using dp_appl_list_ref = record_ref<dp_appl_list_type>;  ///< borrows one
using dp_appl_list_view = record_view<dp_appl_list_type>;  ///< borrows one to read it

/// Definition of one learn list. C type: lumo_tarn_dp_ll_spec.
struct dp_ll_spec_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_ll_spec);
    static constexpr bool owns_blocks = true;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_ll_spec_type, Self> {
    public:
        using detail::operations<dp_ll_spec_type, Self>::operations;

        /// Whether to show everything.
        bool display_all() const { return this->call_(lumo_tarn_dp_ll_spec_display_all_get_value) != 0; }
        /// Whether to show the traffic classes.
        bool display_tc() const { return this->call_(lumo_tarn_dp_ll_spec_display_tc_get_value) != 0; }
        /// Whether to show the applications.
        bool display_appl() const { return this->call_(lumo_tarn_dp_ll_spec_display_appl_get_value) != 0; }
        /// Location of the definition in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_ll_spec_exmem_info_get);
        }
        /// Identifier of the definition.
        std::uint32_t id() const { return this->call_(lumo_tarn_dp_ll_spec_id_get_value); }
        /// Minimum mask length.
        std::uint8_t min_mask() const { return this->call_(lumo_tarn_dp_ll_spec_min_mask_get_value); }
        /// How the list aggregates: a code of the data plane.
        std::uint8_t agg_type() const { return this->call_(lumo_tarn_dp_ll_spec_agg_type_get_value); }
        /// How the list learns: a code of the data plane.
        std::uint8_t learn_type() const { return this->call_(lumo_tarn_dp_ll_spec_learn_type_get_value); }
        /// Kind of learn list: a code of the data plane.
        std::uint8_t ll_type() const { return this->call_(lumo_tarn_dp_ll_spec_ll_type_get_value); }
        /// Number of prefixes.
        std::uint32_t num_prefixes() const { return this->call_(lumo_tarn_dp_ll_spec_num_prefixes_get_value); }
        /// Location of the filter list in the data plane.
        std::uint64_t filter_tc_list_ptr() const {
            return this->call_(lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get_value);
        }
        /// Filter traffic classes.
        lumo_ui_tarn::dp_tc_list_view filter_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_filter_tc_list_get);
        }
        /// Location of the access-list classes in the data plane.
        std::uint64_t acl_tc_list_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get_value); }
        /// Access-list traffic classes.
        lumo_ui_tarn::dp_tc_list_view acl_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_acl_tc_list_get);
        }
        /// Location of the application list in the data plane.
        std::uint64_t appl_list_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_appl_list_ptr_get_value); }
        /// Applications.
        lumo_ui_tarn::dp_appl_list_view appl_list() const {
            return this->template nested_<lumo_ui_tarn::dp_appl_list_type>(lumo_tarn_dp_ll_spec_appl_list_get);
        }
        /// Link to the next definition.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_next_ptr_get_value); }
        /// Head of the entries that num_entries counts.
        std::uint64_t head_ptr() const { return this->call_(lumo_tarn_dp_ll_spec_head_ptr_get_value); }
        /// Number of entries that start at head_ptr.
        std::uint32_t num_entries() const { return this->call_(lumo_tarn_dp_ll_spec_num_entries_get_value); }
        /// Capacity of the definition's heap.
        std::uint32_t heap_max_elements() const {
            return this->call_(lumo_tarn_dp_ll_spec_heap_max_elements_get_value);
        }
        /// Current size of the heap.
        std::uint32_t heap_size() const { return this->call_(lumo_tarn_dp_ll_spec_heap_size_get_value); }
        /// Value of the heap's comparison routine as a 64-bit number.
        std::uint64_t heap_compare_func() const {
            return this->call_(lumo_tarn_dp_ll_spec_heap_compare_func_get_value);
        }
        /// Location of the heap's elements.
        std::uint64_t heap_elements_ptr() const {
            return this->call_(lumo_tarn_dp_ll_spec_heap_elements_ptr_get_value);
        }
        /// Selection flag of the show command.
        bool show_ll_comm() const { return this->call_(lumo_tarn_dp_ll_spec_show_ll_comm_get_value) != 0; }

        /// @cond states
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_display_all_state_flag_get);
        }
        std::optional<std::uint8_t> display_tc_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_display_tc_state_flag_get);
        }
        std::optional<std::uint8_t> display_appl_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_display_appl_state_flag_get);
        }
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_exmem_info_state_flag_get);
        }
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_dp_ll_spec_id_state_flag_get); }
        std::optional<std::uint8_t> min_mask_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_min_mask_state_flag_get);
        }
        std::optional<std::uint8_t> agg_type_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_agg_type_state_flag_get);
        }
        std::optional<std::uint8_t> learn_type_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_learn_type_state_flag_get);
        }
        std::optional<std::uint8_t> ll_type_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_ll_type_state_flag_get);
        }
        std::optional<std::uint8_t> num_prefixes_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_num_prefixes_state_flag_get);
        }
        std::optional<std::uint8_t> filter_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> filter_tc_list_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_get);
        }
        std::optional<std::uint8_t> acl_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> acl_tc_list_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_get);
        }
        std::optional<std::uint8_t> appl_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> appl_list_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_appl_list_state_flag_get);
        }
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_next_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> head_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_head_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> num_entries_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_num_entries_state_flag_get);
        }
        std::optional<std::uint8_t> heap_max_elements_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_get);
        }
        std::optional<std::uint8_t> heap_size_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_size_state_flag_get);
        }
        std::optional<std::uint8_t> heap_compare_func_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_get);
        }
        std::optional<std::uint8_t> heap_elements_ptr_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> show_ll_comm_state() const {
            return this->state_(lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_all_state_flag_set, value);
        }
        Self &set_display_tc(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_tc_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_tc_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_tc_state_flag_set, value);
        }
        Self &set_display_appl(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_appl_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_appl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_display_appl_state_flag_set, value);
        }
        using members<Self>::exmem_info;
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_ll_spec_exmem_info_get);
        }
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_exmem_info_get, lumo_tarn_dp_ll_spec_exmem_info_set,
                value);
        }
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_exmem_info_get, lumo_tarn_dp_ll_spec_exmem_info_set,
                std::move(value));
        }
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_exmem_info_state_flag_set, value);
        }
        Self &set_id(std::uint32_t value) { return this->write_(*this, lumo_tarn_dp_ll_spec_id_set_value, value); }
        Self &set_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_id_state_flag_set, value);
        }
        Self &set_min_mask(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_min_mask_set_value, value);
        }
        Self &set_min_mask_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_min_mask_state_flag_set, value);
        }
        Self &set_agg_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_agg_type_set_value, value);
        }
        Self &set_agg_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_agg_type_state_flag_set, value);
        }
        Self &set_learn_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_learn_type_set_value, value);
        }
        Self &set_learn_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_learn_type_state_flag_set, value);
        }
        Self &set_ll_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_ll_type_set_value, value);
        }
        Self &set_ll_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_ll_type_state_flag_set, value);
        }
        Self &set_num_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_prefixes_set_value, value);
        }
        Self &set_num_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_prefixes_state_flag_set, value);
        }
        Self &set_filter_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set_value, value);
        }
        Self &set_filter_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_set, value);
        }
        using members<Self>::filter_tc_list;
        lumo_ui_tarn::dp_tc_list_ref filter_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_filter_tc_list_get);
        }
        Self &set_filter_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_get,
                lumo_tarn_dp_ll_spec_filter_tc_list_set, value);
        }
        Self &adopt_filter_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_get, lumo_tarn_dp_ll_spec_filter_tc_list_set,
                std::move(value));
        }
        Self &set_filter_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_set, value);
        }
        Self &set_acl_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set_value, value);
        }
        Self &set_acl_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_set, value);
        }
        using members<Self>::acl_tc_list;
        lumo_ui_tarn::dp_tc_list_ref acl_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_ll_spec_acl_tc_list_get);
        }
        Self &set_acl_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_get, lumo_tarn_dp_ll_spec_acl_tc_list_set,
                value);
        }
        Self &adopt_acl_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_get, lumo_tarn_dp_ll_spec_acl_tc_list_set,
                std::move(value));
        }
        Self &set_acl_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_set, value);
        }
        Self &set_appl_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_ptr_set_value, value);
        }
        Self &set_appl_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_set, value);
        }
        using members<Self>::appl_list;
        lumo_ui_tarn::dp_appl_list_ref appl_list() {
            return this->template nested_<lumo_ui_tarn::dp_appl_list_type>(lumo_tarn_dp_ll_spec_appl_list_get);
        }
        Self &set_appl_list(lumo_ui_tarn::dp_appl_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_ll_spec_appl_list_get, lumo_tarn_dp_ll_spec_appl_list_set, value);
        }
        Self &adopt_appl_list(lumo_ui_tarn::dp_appl_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_ll_spec_appl_list_get, lumo_tarn_dp_ll_spec_appl_list_set,
                std::move(value));
        }
        Self &set_appl_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_appl_list_state_flag_set, value);
        }
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_next_ptr_set_value, value);
        }
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_next_ptr_state_flag_set, value);
        }
        Self &set_head_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_head_ptr_set_value, value);
        }
        Self &set_head_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_head_ptr_state_flag_set, value);
        }
        Self &set_num_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_entries_set_value, value);
        }
        Self &set_num_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_num_entries_state_flag_set, value);
        }
        Self &set_heap_max_elements(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_max_elements_set_value, value);
        }
        Self &set_heap_max_elements_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_set, value);
        }
        Self &set_heap_size(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_size_set_value, value);
        }
        Self &set_heap_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_size_state_flag_set, value);
        }
        Self &set_heap_compare_func(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_compare_func_set_value, value);
        }
        Self &set_heap_compare_func_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_set, value);
        }
        Self &set_heap_elements_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_elements_ptr_set_value, value);
        }
        Self &set_heap_elements_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_set, value);
        }
        Self &set_show_ll_comm(bool value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_show_ll_comm_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_show_ll_comm_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, nullptr, &M::display_all_state, nullptr});
        visit(lumo_ui_tarn::member{"display_tc", &M::display_tc, nullptr, &M::display_tc_state, nullptr});
        visit(lumo_ui_tarn::member{"display_appl", &M::display_appl, nullptr, &M::display_appl_state, nullptr});
        visit(lumo_ui_tarn::member{"exmem_info", &M::exmem_info, nullptr, &M::exmem_info_state, nullptr});
        visit(lumo_ui_tarn::member{"id", &M::id, nullptr, &M::id_state, nullptr});
        visit(lumo_ui_tarn::member{"min_mask", &M::min_mask, nullptr, &M::min_mask_state, nullptr});
        visit(lumo_ui_tarn::member{"agg_type", &M::agg_type, nullptr, &M::agg_type_state, nullptr});
        visit(lumo_ui_tarn::member{"learn_type", &M::learn_type, nullptr, &M::learn_type_state, nullptr});
        visit(lumo_ui_tarn::member{"ll_type", &M::ll_type, nullptr, &M::ll_type_state, nullptr});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, &M::num_prefixes_state, nullptr});
        visit(lumo_ui_tarn::member{"filter_tc_list_ptr", &M::filter_tc_list_ptr, nullptr, &M::filter_tc_list_ptr_state,
            nullptr});
        visit(lumo_ui_tarn::member{"filter_tc_list", &M::filter_tc_list, nullptr, &M::filter_tc_list_state, nullptr});
        visit(lumo_ui_tarn::member{"acl_tc_list_ptr", &M::acl_tc_list_ptr, nullptr, &M::acl_tc_list_ptr_state,
            nullptr});
        visit(lumo_ui_tarn::member{"acl_tc_list", &M::acl_tc_list, nullptr, &M::acl_tc_list_state, nullptr});
        visit(lumo_ui_tarn::member{"appl_list_ptr", &M::appl_list_ptr, nullptr, &M::appl_list_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"appl_list", &M::appl_list, nullptr, &M::appl_list_state, nullptr});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, nullptr, &M::next_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"head_ptr", &M::head_ptr, nullptr, &M::head_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"num_entries", &M::num_entries, nullptr, &M::num_entries_state, nullptr});
        visit(lumo_ui_tarn::member{"heap_max_elements", &M::heap_max_elements, nullptr, &M::heap_max_elements_state,
            nullptr});
        visit(lumo_ui_tarn::member{"heap_size", &M::heap_size, nullptr, &M::heap_size_state, nullptr});
        visit(lumo_ui_tarn::member{"heap_compare_func", &M::heap_compare_func, nullptr, &M::heap_compare_func_state,
            nullptr});
        visit(lumo_ui_tarn::member{"heap_elements_ptr", &M::heap_elements_ptr, nullptr, &M::heap_elements_ptr_state,
            nullptr});
        visit(lumo_ui_tarn::member{"show_ll_comm", &M::show_ll_comm, nullptr, &M::show_ll_comm_state, nullptr});
    }
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
using dp_ll_spec = record<dp_ll_spec_type>;  ///< owns one
using dp_ll_spec_ref = record_ref<dp_ll_spec_type>;  ///< borrows one
using dp_ll_spec_view = record_view<dp_ll_spec_type>;  ///< borrows one to read it

/// Learn list definitions of one traffic table. C type: lumo_tarn_dp_learn_list.
struct dp_learn_list_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_learn_list);
    static constexpr bool owns_blocks = true;
    struct ll_spec_list_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_learn_list, num_ll_specs, ll_spec_list);
        using element = lumo_ui_tarn::dp_ll_spec_type;
        using count = std::uint32_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_learn_list_type, Self> {
    public:
        using detail::operations<dp_learn_list_type, Self>::operations;

        /// Number of elements in ll_spec_list.
        std::uint32_t num_ll_specs() const { return this->call_(lumo_tarn_dp_learn_list_num_ll_specs_get_value); }
        /// Learn list definitions.
        lumo_ui_tarn::array_view<ll_spec_list_array> ll_spec_list() const {
            return this->template array_<ll_spec_list_array>();
        }

        /// @cond states
        std::optional<std::uint8_t> ll_spec_list_state() const {
            return this->state_(lumo_tarn_dp_learn_list_ll_spec_list_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::ll_spec_list;
        lumo_ui_tarn::array_ref<ll_spec_list_array> ll_spec_list() {
            return this->template array_<ll_spec_list_array>();
        }
        Self &set_ll_spec_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_learn_list_ll_spec_list_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_ll_specs", &M::num_ll_specs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"ll_spec_list", &M::ll_spec_list, nullptr, &M::ll_spec_list_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_ll_specs", &M::num_ll_specs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"ll_spec_list", detail::writable(&M::ll_spec_list, 0), nullptr,
            &M::ll_spec_list_state, &M::set_ll_spec_list_state});
    }
    /// @endcond
};
using dp_learn_list = record<dp_learn_list_type>;  ///< owns one
using dp_learn_list_ref = record_ref<dp_learn_list_type>;  ///< borrows one
using dp_learn_list_view = record_view<dp_learn_list_type>;  ///< borrows one to read it

/// Debug switches of one processor's data plane. C type: lumo_tarn_dp_debug_setting.
struct dp_debug_setting_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_debug_setting);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_debug_setting_type, Self> {
    public:
        using detail::operations<dp_debug_setting_type, Self>::operations;

        /// Number of the lumo processor that this entry describes.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_debug_setting_lumo_num_get_value); }
        /// Debug switch of the data plane's mp (prefix) cache.
        std::uint32_t mp_cache_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_mp_cache_enabled_get_value);
        }
        /// Debug switch of the data plane's tt (traffic table) cache.
        std::uint32_t tt_cache_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_tt_cache_enabled_get_value);
        }
        /// Debug switch of the data plane's flow cache.
        std::uint32_t flow_cache_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_flow_cache_enabled_get_value);
        }
        /// Debug switch of the data plane's ager.
        std::uint32_t ager_enabled() const { return this->call_(lumo_tarn_dp_debug_setting_ager_enabled_get_value); }
        /// Debug switch of the exporter as a whole.
        std::uint32_t exporter_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_exporter_enabled_get_value);
        }
        /// Debug switch of the proxy.
        std::uint32_t proxy_enabled() const { return this->call_(lumo_tarn_dp_debug_setting_proxy_enabled_get_value); }
        /// Debug switch of the exporter for tt data.
        std::uint32_t exporter_tt_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_exporter_tt_enabled_get_value);
        }
        /// Debug switch of the exporter for mp data.
        std::uint32_t exporter_mp_enabled() const {
            return this->call_(lumo_tarn_dp_debug_setting_exporter_mp_enabled_get_value);
        }

        /// @cond states
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_lumo_num_state_flag_get);
        }
        std::optional<std::uint8_t> mp_cache_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_mp_cache_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> tt_cache_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_tt_cache_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> flow_cache_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_flow_cache_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> ager_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_ager_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> exporter_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_exporter_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> proxy_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_proxy_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> exporter_tt_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_exporter_tt_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> exporter_mp_enabled_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_exporter_mp_enabled_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_lumo_num_set_value, value);
        }
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_lumo_num_state_flag_set, value);
        }
        Self &set_mp_cache_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_mp_cache_enabled_set_value, value);
        }
        Self &set_mp_cache_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_mp_cache_enabled_state_flag_set, value);
        }
        Self &set_tt_cache_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_tt_cache_enabled_set_value, value);
        }
        Self &set_tt_cache_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_tt_cache_enabled_state_flag_set, value);
        }
        Self &set_flow_cache_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_flow_cache_enabled_set_value, value);
        }
        Self &set_flow_cache_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_flow_cache_enabled_state_flag_set, value);
        }
        Self &set_ager_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_ager_enabled_set_value, value);
        }
        Self &set_ager_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_ager_enabled_state_flag_set, value);
        }
        Self &set_exporter_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_enabled_set_value, value);
        }
        Self &set_exporter_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_enabled_state_flag_set, value);
        }
        Self &set_proxy_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_proxy_enabled_set_value, value);
        }
        Self &set_proxy_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_proxy_enabled_state_flag_set, value);
        }
        Self &set_exporter_tt_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_tt_enabled_set_value, value);
        }
        Self &set_exporter_tt_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_tt_enabled_state_flag_set, value);
        }
        Self &set_exporter_mp_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_mp_enabled_set_value, value);
        }
        Self &set_exporter_mp_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_exporter_mp_enabled_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, nullptr, &M::lumo_num_state, nullptr});
        visit(lumo_ui_tarn::member{"mp_cache_enabled", &M::mp_cache_enabled, nullptr, &M::mp_cache_enabled_state,
            nullptr});
        visit(lumo_ui_tarn::member{"tt_cache_enabled", &M::tt_cache_enabled, nullptr, &M::tt_cache_enabled_state,
            nullptr});
        visit(lumo_ui_tarn::member{"flow_cache_enabled", &M::flow_cache_enabled, nullptr, &M::flow_cache_enabled_state,
            nullptr});
        visit(lumo_ui_tarn::member{"ager_enabled", &M::ager_enabled, nullptr, &M::ager_enabled_state, nullptr});
        visit(lumo_ui_tarn::member{"exporter_enabled", &M::exporter_enabled, nullptr, &M::exporter_enabled_state,
            nullptr});
        visit(lumo_ui_tarn::member{"proxy_enabled", &M::proxy_enabled, nullptr, &M::proxy_enabled_state, nullptr});
        visit(lumo_ui_tarn::member{"exporter_tt_enabled", &M::exporter_tt_enabled, nullptr,
            &M::exporter_tt_enabled_state, nullptr});
        visit(lumo_ui_tarn::member{"exporter_mp_enabled", &M::exporter_mp_enabled, nullptr,
            &M::exporter_mp_enabled_state, nullptr});
    }
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
using dp_debug_setting = record<dp_debug_setting_type>;  ///< owns one
using dp_debug_setting_ref = record_ref<dp_debug_setting_type>;  ///< borrows one
using dp_debug_setting_view = record_view<dp_debug_setting_type>;  ///< borrows one to read it

/// Four debug levels of one component. C type: lumo_tarn_debug_setting.
struct debug_setting_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_debug_setting);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<debug_setting_type, Self> {
    public:
        using detail::operations<debug_setting_type, Self>::operations;

        /// Switch of information-level debug output.
        std::uint32_t info_enabled() const { return this->call_(lumo_tarn_debug_setting_info_enabled_get_value); }
        /// Switch of trace-level debug output.
        std::uint32_t trace_enabled() const { return this->call_(lumo_tarn_debug_setting_trace_enabled_get_value); }
        /// Switch of warning-level debug output.
        std::uint32_t warn_enabled() const { return this->call_(lumo_tarn_debug_setting_warn_enabled_get_value); }
        /// Switch of error-level debug output.
        std::uint32_t error_enabled() const { return this->call_(lumo_tarn_debug_setting_error_enabled_get_value); }

        /// @cond states
        std::optional<std::uint8_t> info_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_info_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> trace_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_trace_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> warn_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_warn_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> error_enabled_state() const {
            return this->state_(lumo_tarn_debug_setting_error_enabled_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_info_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_info_enabled_set_value, value);
        }
        Self &set_info_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_info_enabled_state_flag_set, value);
        }
        Self &set_trace_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_trace_enabled_set_value, value);
        }
        Self &set_trace_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_trace_enabled_state_flag_set, value);
        }
        Self &set_warn_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_warn_enabled_set_value, value);
        }
        Self &set_warn_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_warn_enabled_state_flag_set, value);
        }
        Self &set_error_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_error_enabled_set_value, value);
        }
        Self &set_error_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_debug_setting_error_enabled_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"info_enabled", &M::info_enabled, nullptr, &M::info_enabled_state, nullptr});
        visit(lumo_ui_tarn::member{"trace_enabled", &M::trace_enabled, nullptr, &M::trace_enabled_state, nullptr});
        visit(lumo_ui_tarn::member{"warn_enabled", &M::warn_enabled, nullptr, &M::warn_enabled_state, nullptr});
        visit(lumo_ui_tarn::member{"error_enabled", &M::error_enabled, nullptr, &M::error_enabled_state, nullptr});
    }
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
using debug_setting = record<debug_setting_type>;  ///< owns one
using debug_setting_ref = record_ref<debug_setting_type>;  ///< borrows one
using debug_setting_view = record_view<debug_setting_type>;  ///< borrows one to read it

/// Debug switches of all processors. C type: lumo_tarn_dp_debug_setting_data.
struct dp_debug_setting_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_debug_setting_data);
    static constexpr bool owns_blocks = true;
    struct lumo_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_debug_setting_data, num_lumos, lumo_data);
        using element = lumo_ui_tarn::dp_debug_setting_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_debug_setting_data_type, Self> {
    public:
        using detail::operations<dp_debug_setting_data_type, Self>::operations;

        /// Number of elements in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_debug_setting_data_num_lumos_get_value); }
        /// One element for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }

        /// @cond states
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_debug_setting_data_lumo_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::lumo_data;
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_debug_setting_data_lumo_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", &M::lumo_data, nullptr, &M::lumo_data_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", detail::writable(&M::lumo_data, 0), nullptr, &M::lumo_data_state,
            &M::set_lumo_data_state});
    }
    /// @endcond
};
using dp_debug_setting_data = record<dp_debug_setting_data_type>;  ///< owns one
using dp_debug_setting_data_ref = record_ref<dp_debug_setting_data_type>;  ///< borrows one
using dp_debug_setting_data_view = record_view<dp_debug_setting_data_type>;  ///< borrows one to read it

/// One application. C type: lumo_tarn_cl_kesh_appl.
struct cl_kesh_appl_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_cl_kesh_appl);
    static constexpr bool owns_blocks = true;
    /// @endcond

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
        /// Length of sub_proto_name in bytes.
        std::uint16_t sub_proto_name_len() const {
            return this->call_(lumo_tarn_cl_kesh_appl_sub_proto_name_len_get_value);
        }
        /// Name of the sub-protocol.
        std::string sub_proto_name() const {
            return this->string_(lumo_tarn_cl_kesh_appl_sub_proto_name_len_get_value,
                lumo_tarn_cl_kesh_appl_sub_proto_name_get);
        }
        /// Identifier of the protocol.
        std::uint16_t protocol_id() const { return this->call_(lumo_tarn_cl_kesh_appl_protocol_id_get_value); }
        /// Identifier of the application within the tarn feature.
        std::uint16_t tarn_id() const { return this->call_(lumo_tarn_cl_kesh_appl_tarn_id_get_value); }

        /// @cond states
        std::optional<std::uint8_t> proto_name_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_proto_name_state_flag_get);
        }
        std::optional<std::uint8_t> sub_proto_name_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_sub_proto_name_state_flag_get);
        }
        std::optional<std::uint8_t> protocol_id_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_protocol_id_state_flag_get);
        }
        std::optional<std::uint8_t> tarn_id_state() const {
            return this->state_(lumo_tarn_cl_kesh_appl_tarn_id_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_proto_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_cl_kesh_appl_proto_name_set, text);
        }
        Self &set_proto_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_proto_name_state_flag_set, value);
        }
        Self &set_sub_proto_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_cl_kesh_appl_sub_proto_name_set, text);
        }
        Self &set_sub_proto_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_sub_proto_name_state_flag_set, value);
        }
        Self &set_protocol_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_protocol_id_set_value, value);
        }
        Self &set_protocol_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_protocol_id_state_flag_set, value);
        }
        Self &set_tarn_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_tarn_id_set_value, value);
        }
        Self &set_tarn_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_kesh_appl_tarn_id_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"proto_name_len", &M::proto_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"proto_name", &M::proto_name, nullptr, &M::proto_name_state, nullptr});
        visit(lumo_ui_tarn::member{"sub_proto_name_len", &M::sub_proto_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"sub_proto_name", &M::sub_proto_name, nullptr, &M::sub_proto_name_state, nullptr});
        visit(lumo_ui_tarn::member{"protocol_id", &M::protocol_id, nullptr, &M::protocol_id_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_id", &M::tarn_id, nullptr, &M::tarn_id_state, nullptr});
    }
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
using cl_kesh_appl = record<cl_kesh_appl_type>;  ///< owns one
using cl_kesh_appl_ref = record_ref<cl_kesh_appl_type>;  ///< borrows one
using cl_kesh_appl_view = record_view<cl_kesh_appl_type>;  ///< borrows one to read it

/// Applications of the client. C type: lumo_tarn_cl_appl_data.
struct cl_appl_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_cl_appl_data);
    static constexpr bool owns_blocks = true;
    struct kesh_appl_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_cl_appl_data, num_kesh_appls, kesh_appl);
        using element = lumo_ui_tarn::cl_kesh_appl_type;
        using count = std::uint32_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<cl_appl_data_type, Self> {
    public:
        using detail::operations<cl_appl_data_type, Self>::operations;

        /// Whether to show the header.
        bool show_header() const { return this->call_(lumo_tarn_cl_appl_data_show_header_get_value) != 0; }
        /// Number of elements in kesh_appl.
        std::uint32_t num_kesh_appls() const { return this->call_(lumo_tarn_cl_appl_data_num_kesh_appls_get_value); }
        /// Applications.
        lumo_ui_tarn::array_view<kesh_appl_array> kesh_appl() const { return this->template array_<kesh_appl_array>(); }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_cl_appl_data_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> kesh_appl_state() const {
            return this->state_(lumo_tarn_cl_appl_data_kesh_appl_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_cl_appl_data_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_appl_data_show_header_state_flag_set, value);
        }
        using members<Self>::kesh_appl;
        lumo_ui_tarn::array_ref<kesh_appl_array> kesh_appl() { return this->template array_<kesh_appl_array>(); }
        Self &set_kesh_appl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_appl_data_kesh_appl_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"num_kesh_appls", &M::num_kesh_appls, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"kesh_appl", &M::kesh_appl, nullptr, &M::kesh_appl_state, nullptr});
    }
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
using cl_appl_data = record<cl_appl_data_type>;  ///< owns one
using cl_appl_data_ref = record_ref<cl_appl_data_type>;  ///< borrows one
using cl_appl_data_view = record_view<cl_appl_data_type>;  ///< borrows one to read it

/// Memory block that a processor holds permanently, with its kind of memory. C type: lumo_tarn_static_exmem_info.
struct static_exmem_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_static_exmem_info);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<static_exmem_info_type, Self> {
    public:
        using detail::operations<static_exmem_info_type, Self>::operations;

        /// Which kind of memory this is.
        lumo_ui_tarn::mem_desc mem_type() const {
            return this->template enumerated_<lumo_ui_tarn::mem_desc>(lumo_tarn_static_exmem_info_mem_type_get_value);
        }
        /// Number of hash elements in the block.
        std::uint32_t num_hash_elements() const {
            return this->call_(lumo_tarn_static_exmem_info_num_hash_elements_get_value);
        }
        /// The block itself.
        lumo_ui_tarn::exmem_info_view exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_static_exmem_info_exmem_get);
        }

        /// @cond states
        std::optional<std::uint8_t> mem_type_state() const {
            return this->state_(lumo_tarn_static_exmem_info_mem_type_state_flag_get);
        }
        std::optional<std::uint8_t> num_hash_elements_state() const {
            return this->state_(lumo_tarn_static_exmem_info_num_hash_elements_state_flag_get);
        }
        std::optional<std::uint8_t> exmem_state() const {
            return this->state_(lumo_tarn_static_exmem_info_exmem_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_mem_type(lumo_ui_tarn::mem_desc value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_mem_type_set_value,
                static_cast<std::uint32_t>(value));
        }
        Self &set_mem_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_mem_type_state_flag_set, value);
        }
        Self &set_num_hash_elements(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_num_hash_elements_set_value, value);
        }
        Self &set_num_hash_elements_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_num_hash_elements_state_flag_set, value);
        }
        using members<Self>::exmem;
        lumo_ui_tarn::exmem_info_ref exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_static_exmem_info_exmem_get);
        }
        Self &set_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_static_exmem_info_exmem_get, lumo_tarn_static_exmem_info_exmem_set,
                value);
        }
        Self &adopt_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_static_exmem_info_exmem_get, lumo_tarn_static_exmem_info_exmem_set,
                std::move(value));
        }
        Self &set_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_static_exmem_info_exmem_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"mem_type", &M::mem_type, nullptr, &M::mem_type_state, nullptr});
        visit(lumo_ui_tarn::member{"num_hash_elements", &M::num_hash_elements, nullptr, &M::num_hash_elements_state,
            nullptr});
        visit(lumo_ui_tarn::member{"exmem", &M::exmem, nullptr, &M::exmem_state, nullptr});
    }
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
using static_exmem_info = record<static_exmem_info_type>;  ///< owns one
using static_exmem_info_ref = record_ref<static_exmem_info_type>;  ///< borrows one
using static_exmem_info_view = record_view<static_exmem_info_type>;  ///< borrows one to read it

/// Memory blocks that a processor adds at run time, with their kind of memory. C type: lumo_tarn_dyn_exmem_info.
struct dyn_exmem_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dyn_exmem_info);
    static constexpr bool owns_blocks = true;
    struct exmem_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dyn_exmem_info, num_exmems, exmem);
        using element = lumo_ui_tarn::exmem_info_wrapper_type;
        using count = std::uint32_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dyn_exmem_info_type, Self> {
    public:
        using detail::operations<dyn_exmem_info_type, Self>::operations;

        /// Which kind of memory this is.
        lumo_ui_tarn::mem_desc mem_type() const {
            return this->template enumerated_<lumo_ui_tarn::mem_desc>(lumo_tarn_dyn_exmem_info_mem_type_get_value);
        }
        /// List header of the dynamic blocks.
        std::uint64_t list_header_ptr() const {
            return this->call_(lumo_tarn_dyn_exmem_info_list_header_ptr_get_value);
        }
        /// Number of elements in exmem.
        std::uint32_t num_exmems() const { return this->call_(lumo_tarn_dyn_exmem_info_num_exmems_get_value); }
        /// Dynamic blocks.
        lumo_ui_tarn::array_view<exmem_array> exmem() const { return this->template array_<exmem_array>(); }

        /// @cond states
        std::optional<std::uint8_t> mem_type_state() const {
            return this->state_(lumo_tarn_dyn_exmem_info_mem_type_state_flag_get);
        }
        std::optional<std::uint8_t> list_header_ptr_state() const {
            return this->state_(lumo_tarn_dyn_exmem_info_list_header_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> exmem_state() const {
            return this->state_(lumo_tarn_dyn_exmem_info_exmem_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_mem_type(lumo_ui_tarn::mem_desc value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_mem_type_set_value, static_cast<std::uint32_t>(value));
        }
        Self &set_mem_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_mem_type_state_flag_set, value);
        }
        Self &set_list_header_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_list_header_ptr_set_value, value);
        }
        Self &set_list_header_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_list_header_ptr_state_flag_set, value);
        }
        using members<Self>::exmem;
        lumo_ui_tarn::array_ref<exmem_array> exmem() { return this->template array_<exmem_array>(); }
        Self &set_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dyn_exmem_info_exmem_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"mem_type", &M::mem_type, nullptr, &M::mem_type_state, nullptr});
        visit(lumo_ui_tarn::member{"list_header_ptr", &M::list_header_ptr, nullptr, &M::list_header_ptr_state,
            nullptr});
        visit(lumo_ui_tarn::member{"num_exmems", &M::num_exmems, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"exmem", &M::exmem, nullptr, &M::exmem_state, nullptr});
    }
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
using dyn_exmem_info = record<dyn_exmem_info_type>;  ///< owns one
using dyn_exmem_info_ref = record_ref<dyn_exmem_info_type>;  ///< borrows one
using dyn_exmem_info_view = record_view<dyn_exmem_info_type>;  ///< borrows one to read it

/// State of one processor. C type: lumo_tarn_lumo_info.
struct lumo_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_lumo_info);
    static constexpr bool owns_blocks = true;
    struct static_exmem_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_lumo_info, num_static_exmems, static_exmem);
        using element = lumo_ui_tarn::static_exmem_info_type;
        using count = std::uint8_t;
    };
    struct dyn_exmem_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_lumo_info, num_dyn_exmems, dyn_exmem);
        using element = lumo_ui_tarn::dyn_exmem_info_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<lumo_info_type, Self> {
    public:
        using detail::operations<lumo_info_type, Self>::operations;

        /// Whether to show everything.
        bool display_all() const { return this->call_(lumo_tarn_lumo_info_display_all_get_value) != 0; }
        /// Whether to show the fdb part.
        bool display_fdb() const { return this->call_(lumo_tarn_lumo_info_display_fdb_get_value) != 0; }
        /// Whether to show the high-availability part.
        bool display_ha() const { return this->call_(lumo_tarn_lumo_info_display_ha_get_value) != 0; }
        /// Whether to show the wexa part.
        bool display_wexa() const { return this->call_(lumo_tarn_lumo_info_display_wexa_get_value) != 0; }
        /// Whether to show the handles.
        bool display_handles() const { return this->call_(lumo_tarn_lumo_info_display_handles_get_value) != 0; }
        /// Whether to show the memory blocks.
        bool display_exmem() const { return this->call_(lumo_tarn_lumo_info_display_exmem_get_value) != 0; }
        /// Whether to show the initialization state.
        bool display_init() const { return this->call_(lumo_tarn_lumo_info_display_init_get_value) != 0; }
        /// Number of this lumo processor.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_lumo_info_lumo_num_get_value); }
        /// Number of the complex that the processor belongs to.
        std::uint8_t complex_num() const { return this->call_(lumo_tarn_lumo_info_complex_num_get_value); }
        /// Direction of traffic that the processor serves.
        lumo_ui_tarn::lumo_direction direction() const {
            return this->template enumerated_<lumo_ui_tarn::lumo_direction>(lumo_tarn_lumo_info_direction_get_value);
        }
        /// Epoch value of the processor.
        std::uint32_t epoch() const { return this->call_(lumo_tarn_lumo_info_epoch_get_value); }
        /// Flag word, set if the fdb is initialized.
        std::uint32_t fdb_initialized() const { return this->call_(lumo_tarn_lumo_info_fdb_initialized_get_value); }
        /// Header and footer description of the fdb.
        lumo_ui_tarn::fdb_base_view fdb_base() const {
            return this->template nested_<lumo_ui_tarn::fdb_base_type>(lumo_tarn_lumo_info_fdb_base_get);
        }
        /// What a chunk takes beyond its content, in the unit of the processor.
        std::uint16_t chunk_overhead() const { return this->call_(lumo_tarn_lumo_info_chunk_overhead_get_value); }
        /// Memory that a flow information entry takes, in the unit of the processor.
        std::uint16_t flow_info_mem_size() const {
            return this->call_(lumo_tarn_lumo_info_flow_info_mem_size_get_value);
        }
        /// Memory that an entry of the mp (prefix) cache takes, in the unit of the processor.
        std::uint16_t mp_cache_entry_size() const {
            return this->call_(lumo_tarn_lumo_info_mp_cache_entry_size_get_value);
        }
        /// Memory that an entry of the tt (traffic table) cache takes, in the unit of the processor.
        std::uint16_t tt_cache_entry_size() const {
            return this->call_(lumo_tarn_lumo_info_tt_cache_entry_size_get_value);
        }
        /// Memory of the feature's traffic table.
        lumo_ui_tarn::fdb_mem_info_view tarn_tt_tbl() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_tt_tbl_get);
        }
        /// Memory of the feature's debug flags.
        lumo_ui_tarn::fdb_mem_info_view tarn_debug_flags() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_debug_flags_get);
        }
        /// High-availability state of the processor.
        lumo_ui_tarn::ha_state ha_state() const {
            return this->template enumerated_<lumo_ui_tarn::ha_state>(lumo_tarn_lumo_info_ha_state_get_value);
        }
        /// Flag word, set if high availability is running.
        std::uint32_t ha_running() const { return this->call_(lumo_tarn_lumo_info_ha_running_get_value); }
        /// Flag word, set if high availability is enabled.
        std::uint32_t ha_enabled() const { return this->call_(lumo_tarn_lumo_info_ha_enabled_get_value); }
        /// Handle of the connection to the driver.
        std::uint64_t drv_conn_h() const { return this->call_(lumo_tarn_lumo_info_drv_conn_h_get_value); }
        /// Handle of the external memory.
        std::uint64_t exmem_h() const { return this->call_(lumo_tarn_lumo_info_exmem_h_get_value); }
        /// Number of features in a wexa entry.
        std::uint16_t wexa_num_feat() const { return this->call_(lumo_tarn_lumo_info_wexa_num_feat_get_value); }
        /// Memory that a feature takes in a wexa entry, in the unit of the processor.
        std::uint16_t wexa_feat_size() const { return this->call_(lumo_tarn_lumo_info_wexa_feat_size_get_value); }
        /// Handle of the ingress wexa.
        std::uint64_t in_wexa_h() const { return this->call_(lumo_tarn_lumo_info_in_wexa_h_get_value); }
        /// Handle of the ingress wexa feature.
        std::uint64_t in_wexa_feat_h() const { return this->call_(lumo_tarn_lumo_info_in_wexa_feat_h_get_value); }
        /// Handle of the egress wexa.
        std::uint64_t out_wexa_h() const { return this->call_(lumo_tarn_lumo_info_out_wexa_h_get_value); }
        /// Handle of the egress wexa feature.
        std::uint64_t out_wexa_feat_h() const { return this->call_(lumo_tarn_lumo_info_out_wexa_feat_h_get_value); }
        /// Salt of the data plane's hash.
        std::uint32_t dp_hash_salt() const { return this->call_(lumo_tarn_lumo_info_dp_hash_salt_get_value); }
        /// Flag word, set if flow information is initialized on the client side.
        std::uint32_t flow_info_initialized() const {
            return this->call_(lumo_tarn_lumo_info_flow_info_initialized_get_value);
        }
        /// Flag word, set if flow information is initialized in the data plane.
        std::uint32_t dp_flow_info_initialized() const {
            return this->call_(lumo_tarn_lumo_info_dp_flow_info_initialized_get_value);
        }
        /// Flag word, set if mp is initialized on the client side.
        std::uint32_t mp_initialized() const { return this->call_(lumo_tarn_lumo_info_mp_initialized_get_value); }
        /// Flag word, set if mp is initialized in the data plane.
        std::uint32_t dp_mp_initialized() const { return this->call_(lumo_tarn_lumo_info_dp_mp_initialized_get_value); }
        /// Flag word, set if tt is initialized on the client side.
        std::uint32_t tt_initialized() const { return this->call_(lumo_tarn_lumo_info_tt_initialized_get_value); }
        /// Flag word, set if tt is initialized in the data plane.
        std::uint32_t dp_tt_initialized() const { return this->call_(lumo_tarn_lumo_info_dp_tt_initialized_get_value); }
        /// Flag word, set if application signatures are initialized on the client side.
        std::uint32_t appl_sig_initialized() const {
            return this->call_(lumo_tarn_lumo_info_appl_sig_initialized_get_value);
        }
        /// Flag word, set if application signatures are initialized in the data plane.
        std::uint32_t dp_appl_sig_initialized() const {
            return this->call_(lumo_tarn_lumo_info_dp_appl_sig_initialized_get_value);
        }
        /// External memory of the traffic table's filter class list.
        std::uint64_t tt_tc_filter_list_exmem_ptr() const {
            return this->call_(lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get_value);
        }
        /// External memory of the traffic table's aggregation class list.
        std::uint64_t tt_tc_agg_list_exmem_ptr() const {
            return this->call_(lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get_value);
        }
        /// External memory of the traffic table's learn list.
        std::uint64_t tt_tc_learn_list_exmem_ptr() const {
            return this->call_(lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get_value);
        }
        /// Handle of the chunk pool of class list heads.
        std::uint64_t tc_list_head_chunk_h() const {
            return this->call_(lumo_tarn_lumo_info_tc_list_head_chunk_h_get_value);
        }
        /// Handle of the chunk pool of traffic classes.
        std::uint64_t tc_chunk_h() const { return this->call_(lumo_tarn_lumo_info_tc_chunk_h_get_value); }
        /// Handle of the chunk pool of learn lists.
        std::uint64_t ll_chunk_h() const { return this->call_(lumo_tarn_lumo_info_ll_chunk_h_get_value); }
        /// Handle of the chunk pool of applications.
        std::uint64_t appl_chunk_h() const { return this->call_(lumo_tarn_lumo_info_appl_chunk_h_get_value); }
        /// Application signature hash of the client side.
        std::uint64_t cl_appl_sig_hash_ptr() const {
            return this->call_(lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get_value);
        }
        /// Handle of the data plane's application signature hash.
        std::uint64_t dp_appl_sig_hash_h() const {
            return this->call_(lumo_tarn_lumo_info_dp_appl_sig_hash_h_get_value);
        }
        /// Handle of the chunk pool of application signatures.
        std::uint64_t appl_sig_chunk_h() const { return this->call_(lumo_tarn_lumo_info_appl_sig_chunk_h_get_value); }
        /// Block of the application signature hash.
        lumo_ui_tarn::exmem_info_view appl_sig_hash_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_appl_sig_hash_exmem_get);
        }
        /// Block of the mp export.
        lumo_ui_tarn::exmem_info_view mp_export_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_mp_export_exmem_get);
        }
        /// Block of the tt export.
        lumo_ui_tarn::exmem_info_view tt_export_exmem() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_tt_export_exmem_get);
        }
        /// Number of elements in static_exmem.
        std::uint8_t num_static_exmems() const { return this->call_(lumo_tarn_lumo_info_num_static_exmems_get_value); }
        /// Static memory blocks of the processor.
        lumo_ui_tarn::array_view<static_exmem_array> static_exmem() const {
            return this->template array_<static_exmem_array>();
        }
        /// Number of elements in dyn_exmem.
        std::uint8_t num_dyn_exmems() const { return this->call_(lumo_tarn_lumo_info_num_dyn_exmems_get_value); }
        /// Dynamic memory blocks of the processor.
        lumo_ui_tarn::array_view<dyn_exmem_array> dyn_exmem() const { return this->template array_<dyn_exmem_array>(); }

        /// @cond states
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_lumo_info_display_all_state_flag_get);
        }
        std::optional<std::uint8_t> display_fdb_state() const {
            return this->state_(lumo_tarn_lumo_info_display_fdb_state_flag_get);
        }
        std::optional<std::uint8_t> display_ha_state() const {
            return this->state_(lumo_tarn_lumo_info_display_ha_state_flag_get);
        }
        std::optional<std::uint8_t> display_wexa_state() const {
            return this->state_(lumo_tarn_lumo_info_display_wexa_state_flag_get);
        }
        std::optional<std::uint8_t> display_handles_state() const {
            return this->state_(lumo_tarn_lumo_info_display_handles_state_flag_get);
        }
        std::optional<std::uint8_t> display_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_display_exmem_state_flag_get);
        }
        std::optional<std::uint8_t> display_init_state() const {
            return this->state_(lumo_tarn_lumo_info_display_init_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_lumo_info_lumo_num_state_flag_get);
        }
        std::optional<std::uint8_t> complex_num_state() const {
            return this->state_(lumo_tarn_lumo_info_complex_num_state_flag_get);
        }
        std::optional<std::uint8_t> direction_state() const {
            return this->state_(lumo_tarn_lumo_info_direction_state_flag_get);
        }
        std::optional<std::uint8_t> epoch_state() const {
            return this->state_(lumo_tarn_lumo_info_epoch_state_flag_get);
        }
        std::optional<std::uint8_t> fdb_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_fdb_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> fdb_base_state() const {
            return this->state_(lumo_tarn_lumo_info_fdb_base_state_flag_get);
        }
        std::optional<std::uint8_t> chunk_overhead_state() const {
            return this->state_(lumo_tarn_lumo_info_chunk_overhead_state_flag_get);
        }
        std::optional<std::uint8_t> flow_info_mem_size_state() const {
            return this->state_(lumo_tarn_lumo_info_flow_info_mem_size_state_flag_get);
        }
        std::optional<std::uint8_t> mp_cache_entry_size_state() const {
            return this->state_(lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_get);
        }
        std::optional<std::uint8_t> tt_cache_entry_size_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_get);
        }
        std::optional<std::uint8_t> tarn_tt_tbl_state() const {
            return this->state_(lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_get);
        }
        std::optional<std::uint8_t> tarn_debug_flags_state() const {
            return this->state_(lumo_tarn_lumo_info_tarn_debug_flags_state_flag_get);
        }
        std::optional<std::uint8_t> ha_state_state() const {
            return this->state_(lumo_tarn_lumo_info_ha_state_state_flag_get);
        }
        std::optional<std::uint8_t> ha_running_state() const {
            return this->state_(lumo_tarn_lumo_info_ha_running_state_flag_get);
        }
        std::optional<std::uint8_t> ha_enabled_state() const {
            return this->state_(lumo_tarn_lumo_info_ha_enabled_state_flag_get);
        }
        std::optional<std::uint8_t> drv_conn_h_state() const {
            return this->state_(lumo_tarn_lumo_info_drv_conn_h_state_flag_get);
        }
        std::optional<std::uint8_t> exmem_h_state() const {
            return this->state_(lumo_tarn_lumo_info_exmem_h_state_flag_get);
        }
        std::optional<std::uint8_t> wexa_num_feat_state() const {
            return this->state_(lumo_tarn_lumo_info_wexa_num_feat_state_flag_get);
        }
        std::optional<std::uint8_t> wexa_feat_size_state() const {
            return this->state_(lumo_tarn_lumo_info_wexa_feat_size_state_flag_get);
        }
        std::optional<std::uint8_t> in_wexa_h_state() const {
            return this->state_(lumo_tarn_lumo_info_in_wexa_h_state_flag_get);
        }
        std::optional<std::uint8_t> in_wexa_feat_h_state() const {
            return this->state_(lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_get);
        }
        std::optional<std::uint8_t> out_wexa_h_state() const {
            return this->state_(lumo_tarn_lumo_info_out_wexa_h_state_flag_get);
        }
        std::optional<std::uint8_t> out_wexa_feat_h_state() const {
            return this->state_(lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_get);
        }
        std::optional<std::uint8_t> dp_hash_salt_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_hash_salt_state_flag_get);
        }
        std::optional<std::uint8_t> flow_info_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_flow_info_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> dp_flow_info_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> mp_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_mp_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> dp_mp_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_mp_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> tt_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> dp_tt_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_tt_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> appl_sig_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_sig_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> dp_appl_sig_initialized_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> tt_tc_filter_list_exmem_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> tt_tc_agg_list_exmem_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> tt_tc_learn_list_exmem_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> tc_list_head_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_get);
        }
        std::optional<std::uint8_t> tc_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_tc_chunk_h_state_flag_get);
        }
        std::optional<std::uint8_t> ll_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_ll_chunk_h_state_flag_get);
        }
        std::optional<std::uint8_t> appl_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_chunk_h_state_flag_get);
        }
        std::optional<std::uint8_t> cl_appl_sig_hash_ptr_state() const {
            return this->state_(lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> dp_appl_sig_hash_h_state() const {
            return this->state_(lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_get);
        }
        std::optional<std::uint8_t> appl_sig_chunk_h_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_get);
        }
        std::optional<std::uint8_t> appl_sig_hash_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_get);
        }
        std::optional<std::uint8_t> mp_export_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_mp_export_exmem_state_flag_get);
        }
        std::optional<std::uint8_t> tt_export_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_tt_export_exmem_state_flag_get);
        }
        std::optional<std::uint8_t> static_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_static_exmem_state_flag_whole_get);
        }
        std::optional<std::uint8_t> dyn_exmem_state() const {
            return this->state_(lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_all_state_flag_set, value);
        }
        Self &set_display_fdb(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_fdb_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_fdb_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_fdb_state_flag_set, value);
        }
        Self &set_display_ha(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_ha_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_ha_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_ha_state_flag_set, value);
        }
        Self &set_display_wexa(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_wexa_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_wexa_state_flag_set, value);
        }
        Self &set_display_handles(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_handles_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_handles_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_handles_state_flag_set, value);
        }
        Self &set_display_exmem(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_exmem_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_exmem_state_flag_set, value);
        }
        Self &set_display_init(bool value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_init_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_init_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_display_init_state_flag_set, value);
        }
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_lumo_num_set_value, value);
        }
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_lumo_num_state_flag_set, value);
        }
        Self &set_complex_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_complex_num_set_value, value);
        }
        Self &set_complex_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_complex_num_state_flag_set, value);
        }
        Self &set_direction(lumo_ui_tarn::lumo_direction value) {
            return this->write_(*this, lumo_tarn_lumo_info_direction_set_value, static_cast<std::uint32_t>(value));
        }
        Self &set_direction_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_direction_state_flag_set, value);
        }
        Self &set_epoch(std::uint32_t value) { return this->write_(*this, lumo_tarn_lumo_info_epoch_set_value, value); }
        Self &set_epoch_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_epoch_state_flag_set, value);
        }
        Self &set_fdb_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_initialized_set_value, value);
        }
        Self &set_fdb_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_initialized_state_flag_set, value);
        }
        using members<Self>::fdb_base;
        lumo_ui_tarn::fdb_base_ref fdb_base() {
            return this->template nested_<lumo_ui_tarn::fdb_base_type>(lumo_tarn_lumo_info_fdb_base_get);
        }
        Self &set_fdb_base(lumo_ui_tarn::fdb_base_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_fdb_base_get, lumo_tarn_lumo_info_fdb_base_set, value);
        }
        Self &adopt_fdb_base(lumo_ui_tarn::fdb_base &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_fdb_base_get, lumo_tarn_lumo_info_fdb_base_set,
                std::move(value));
        }
        Self &set_fdb_base_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_fdb_base_state_flag_set, value);
        }
        Self &set_chunk_overhead(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_chunk_overhead_set_value, value);
        }
        Self &set_chunk_overhead_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_chunk_overhead_state_flag_set, value);
        }
        Self &set_flow_info_mem_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_mem_size_set_value, value);
        }
        Self &set_flow_info_mem_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_mem_size_state_flag_set, value);
        }
        Self &set_mp_cache_entry_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_cache_entry_size_set_value, value);
        }
        Self &set_mp_cache_entry_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_set, value);
        }
        Self &set_tt_cache_entry_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_cache_entry_size_set_value, value);
        }
        Self &set_tt_cache_entry_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_set, value);
        }
        using members<Self>::tarn_tt_tbl;
        lumo_ui_tarn::fdb_mem_info_ref tarn_tt_tbl() {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_tt_tbl_get);
        }
        Self &set_tarn_tt_tbl(lumo_ui_tarn::fdb_mem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_get, lumo_tarn_lumo_info_tarn_tt_tbl_set,
                value);
        }
        Self &adopt_tarn_tt_tbl(lumo_ui_tarn::fdb_mem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_get, lumo_tarn_lumo_info_tarn_tt_tbl_set,
                std::move(value));
        }
        Self &set_tarn_tt_tbl_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_set, value);
        }
        using members<Self>::tarn_debug_flags;
        lumo_ui_tarn::fdb_mem_info_ref tarn_debug_flags() {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_lumo_info_tarn_debug_flags_get);
        }
        Self &set_tarn_debug_flags(lumo_ui_tarn::fdb_mem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_tarn_debug_flags_get,
                lumo_tarn_lumo_info_tarn_debug_flags_set, value);
        }
        Self &adopt_tarn_debug_flags(lumo_ui_tarn::fdb_mem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_tarn_debug_flags_get,
                lumo_tarn_lumo_info_tarn_debug_flags_set, std::move(value));
        }
        Self &set_tarn_debug_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tarn_debug_flags_state_flag_set, value);
        }
        Self &set_ha_state(lumo_ui_tarn::ha_state value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_state_set_value, static_cast<std::uint32_t>(value));
        }
        Self &set_ha_state_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_state_state_flag_set, value);
        }
        Self &set_ha_running(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_running_set_value, value);
        }
        Self &set_ha_running_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_running_state_flag_set, value);
        }
        Self &set_ha_enabled(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_enabled_set_value, value);
        }
        Self &set_ha_enabled_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ha_enabled_state_flag_set, value);
        }
        Self &set_drv_conn_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_drv_conn_h_set_value, value);
        }
        Self &set_drv_conn_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_drv_conn_h_state_flag_set, value);
        }
        Self &set_exmem_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_exmem_h_set_value, value);
        }
        Self &set_exmem_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_exmem_h_state_flag_set, value);
        }
        Self &set_wexa_num_feat(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_num_feat_set_value, value);
        }
        Self &set_wexa_num_feat_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_num_feat_state_flag_set, value);
        }
        Self &set_wexa_feat_size(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_feat_size_set_value, value);
        }
        Self &set_wexa_feat_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_wexa_feat_size_state_flag_set, value);
        }
        Self &set_in_wexa_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_h_set_value, value);
        }
        Self &set_in_wexa_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_h_state_flag_set, value);
        }
        Self &set_in_wexa_feat_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_feat_h_set_value, value);
        }
        Self &set_in_wexa_feat_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_set, value);
        }
        Self &set_out_wexa_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_h_set_value, value);
        }
        Self &set_out_wexa_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_h_state_flag_set, value);
        }
        Self &set_out_wexa_feat_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_feat_h_set_value, value);
        }
        Self &set_out_wexa_feat_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_set, value);
        }
        Self &set_dp_hash_salt(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_hash_salt_set_value, value);
        }
        Self &set_dp_hash_salt_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_hash_salt_state_flag_set, value);
        }
        Self &set_flow_info_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_initialized_set_value, value);
        }
        Self &set_flow_info_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_flow_info_initialized_state_flag_set, value);
        }
        Self &set_dp_flow_info_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_flow_info_initialized_set_value, value);
        }
        Self &set_dp_flow_info_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_set, value);
        }
        Self &set_mp_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_initialized_set_value, value);
        }
        Self &set_mp_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_initialized_state_flag_set, value);
        }
        Self &set_dp_mp_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_mp_initialized_set_value, value);
        }
        Self &set_dp_mp_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_mp_initialized_state_flag_set, value);
        }
        Self &set_tt_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_initialized_set_value, value);
        }
        Self &set_tt_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_initialized_state_flag_set, value);
        }
        Self &set_dp_tt_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_tt_initialized_set_value, value);
        }
        Self &set_dp_tt_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_tt_initialized_state_flag_set, value);
        }
        Self &set_appl_sig_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_initialized_set_value, value);
        }
        Self &set_appl_sig_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_initialized_state_flag_set, value);
        }
        Self &set_dp_appl_sig_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_initialized_set_value, value);
        }
        Self &set_dp_appl_sig_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_set, value);
        }
        Self &set_tt_tc_filter_list_exmem_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set_value, value);
        }
        Self &set_tt_tc_filter_list_exmem_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_set, value);
        }
        Self &set_tt_tc_agg_list_exmem_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set_value, value);
        }
        Self &set_tt_tc_agg_list_exmem_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_set, value);
        }
        Self &set_tt_tc_learn_list_exmem_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set_value, value);
        }
        Self &set_tt_tc_learn_list_exmem_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_set, value);
        }
        Self &set_tc_list_head_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_list_head_chunk_h_set_value, value);
        }
        Self &set_tc_list_head_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_set, value);
        }
        Self &set_tc_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_chunk_h_set_value, value);
        }
        Self &set_tc_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tc_chunk_h_state_flag_set, value);
        }
        Self &set_ll_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ll_chunk_h_set_value, value);
        }
        Self &set_ll_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_ll_chunk_h_state_flag_set, value);
        }
        Self &set_appl_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_chunk_h_set_value, value);
        }
        Self &set_appl_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_chunk_h_state_flag_set, value);
        }
        Self &set_cl_appl_sig_hash_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set_value, value);
        }
        Self &set_cl_appl_sig_hash_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_set, value);
        }
        Self &set_dp_appl_sig_hash_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_hash_h_set_value, value);
        }
        Self &set_dp_appl_sig_hash_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_set, value);
        }
        Self &set_appl_sig_chunk_h(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_chunk_h_set_value, value);
        }
        Self &set_appl_sig_chunk_h_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_set, value);
        }
        using members<Self>::appl_sig_hash_exmem;
        lumo_ui_tarn::exmem_info_ref appl_sig_hash_exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_appl_sig_hash_exmem_get);
        }
        Self &set_appl_sig_hash_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_get,
                lumo_tarn_lumo_info_appl_sig_hash_exmem_set, value);
        }
        Self &adopt_appl_sig_hash_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_get,
                lumo_tarn_lumo_info_appl_sig_hash_exmem_set, std::move(value));
        }
        Self &set_appl_sig_hash_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_set, value);
        }
        using members<Self>::mp_export_exmem;
        lumo_ui_tarn::exmem_info_ref mp_export_exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_mp_export_exmem_get);
        }
        Self &set_mp_export_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_mp_export_exmem_get,
                lumo_tarn_lumo_info_mp_export_exmem_set, value);
        }
        Self &adopt_mp_export_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_mp_export_exmem_get, lumo_tarn_lumo_info_mp_export_exmem_set,
                std::move(value));
        }
        Self &set_mp_export_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_mp_export_exmem_state_flag_set, value);
        }
        using members<Self>::tt_export_exmem;
        lumo_ui_tarn::exmem_info_ref tt_export_exmem() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_lumo_info_tt_export_exmem_get);
        }
        Self &set_tt_export_exmem(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_lumo_info_tt_export_exmem_get,
                lumo_tarn_lumo_info_tt_export_exmem_set, value);
        }
        Self &adopt_tt_export_exmem(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_lumo_info_tt_export_exmem_get, lumo_tarn_lumo_info_tt_export_exmem_set,
                std::move(value));
        }
        Self &set_tt_export_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_tt_export_exmem_state_flag_set, value);
        }
        using members<Self>::static_exmem;
        lumo_ui_tarn::array_ref<static_exmem_array> static_exmem() {
            return this->template array_<static_exmem_array>();
        }
        Self &set_static_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_static_exmem_state_flag_whole_set, value);
        }
        using members<Self>::dyn_exmem;
        lumo_ui_tarn::array_ref<dyn_exmem_array> dyn_exmem() { return this->template array_<dyn_exmem_array>(); }
        Self &set_dyn_exmem_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, nullptr, &M::display_all_state, nullptr});
        visit(lumo_ui_tarn::member{"display_fdb", &M::display_fdb, nullptr, &M::display_fdb_state, nullptr});
        visit(lumo_ui_tarn::member{"display_ha", &M::display_ha, nullptr, &M::display_ha_state, nullptr});
        visit(lumo_ui_tarn::member{"display_wexa", &M::display_wexa, nullptr, &M::display_wexa_state, nullptr});
        visit(lumo_ui_tarn::member{"display_handles", &M::display_handles, nullptr, &M::display_handles_state,
            nullptr});
        visit(lumo_ui_tarn::member{"display_exmem", &M::display_exmem, nullptr, &M::display_exmem_state, nullptr});
        visit(lumo_ui_tarn::member{"display_init", &M::display_init, nullptr, &M::display_init_state, nullptr});
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, nullptr, &M::lumo_num_state, nullptr});
        visit(lumo_ui_tarn::member{"complex_num", &M::complex_num, nullptr, &M::complex_num_state, nullptr});
        visit(lumo_ui_tarn::member{"direction", &M::direction, nullptr, &M::direction_state, nullptr});
        visit(lumo_ui_tarn::member{"epoch", &M::epoch, nullptr, &M::epoch_state, nullptr});
        visit(lumo_ui_tarn::member{"fdb_initialized", &M::fdb_initialized, nullptr, &M::fdb_initialized_state,
            nullptr});
        visit(lumo_ui_tarn::member{"fdb_base", &M::fdb_base, nullptr, &M::fdb_base_state, nullptr});
        visit(lumo_ui_tarn::member{"chunk_overhead", &M::chunk_overhead, nullptr, &M::chunk_overhead_state, nullptr});
        visit(lumo_ui_tarn::member{"flow_info_mem_size", &M::flow_info_mem_size, nullptr, &M::flow_info_mem_size_state,
            nullptr});
        visit(lumo_ui_tarn::member{"mp_cache_entry_size", &M::mp_cache_entry_size, nullptr,
            &M::mp_cache_entry_size_state, nullptr});
        visit(lumo_ui_tarn::member{"tt_cache_entry_size", &M::tt_cache_entry_size, nullptr,
            &M::tt_cache_entry_size_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_tt_tbl", &M::tarn_tt_tbl, nullptr, &M::tarn_tt_tbl_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_debug_flags", &M::tarn_debug_flags, nullptr, &M::tarn_debug_flags_state,
            nullptr});
        visit(lumo_ui_tarn::member{"ha_state", &M::ha_state, nullptr, &M::ha_state_state, nullptr});
        visit(lumo_ui_tarn::member{"ha_running", &M::ha_running, nullptr, &M::ha_running_state, nullptr});
        visit(lumo_ui_tarn::member{"ha_enabled", &M::ha_enabled, nullptr, &M::ha_enabled_state, nullptr});
        visit(lumo_ui_tarn::member{"drv_conn_h", &M::drv_conn_h, nullptr, &M::drv_conn_h_state, nullptr});
        visit(lumo_ui_tarn::member{"exmem_h", &M::exmem_h, nullptr, &M::exmem_h_state, nullptr});
        visit(lumo_ui_tarn::member{"wexa_num_feat", &M::wexa_num_feat, nullptr, &M::wexa_num_feat_state, nullptr});
        visit(lumo_ui_tarn::member{"wexa_feat_size", &M::wexa_feat_size, nullptr, &M::wexa_feat_size_state, nullptr});
        visit(lumo_ui_tarn::member{"in_wexa_h", &M::in_wexa_h, nullptr, &M::in_wexa_h_state, nullptr});
        visit(lumo_ui_tarn::member{"in_wexa_feat_h", &M::in_wexa_feat_h, nullptr, &M::in_wexa_feat_h_state, nullptr});
        visit(lumo_ui_tarn::member{"out_wexa_h", &M::out_wexa_h, nullptr, &M::out_wexa_h_state, nullptr});
        visit(lumo_ui_tarn::member{"out_wexa_feat_h", &M::out_wexa_feat_h, nullptr, &M::out_wexa_feat_h_state,
            nullptr});
        visit(lumo_ui_tarn::member{"dp_hash_salt", &M::dp_hash_salt, nullptr, &M::dp_hash_salt_state, nullptr});
        visit(lumo_ui_tarn::member{"flow_info_initialized", &M::flow_info_initialized, nullptr,
            &M::flow_info_initialized_state, nullptr});
        visit(lumo_ui_tarn::member{"dp_flow_info_initialized", &M::dp_flow_info_initialized, nullptr,
            &M::dp_flow_info_initialized_state, nullptr});
        visit(lumo_ui_tarn::member{"mp_initialized", &M::mp_initialized, nullptr, &M::mp_initialized_state, nullptr});
        visit(lumo_ui_tarn::member{"dp_mp_initialized", &M::dp_mp_initialized, nullptr, &M::dp_mp_initialized_state,
            nullptr});
        visit(lumo_ui_tarn::member{"tt_initialized", &M::tt_initialized, nullptr, &M::tt_initialized_state, nullptr});
        visit(lumo_ui_tarn::member{"dp_tt_initialized", &M::dp_tt_initialized, nullptr, &M::dp_tt_initialized_state,
            nullptr});
        visit(lumo_ui_tarn::member{"appl_sig_initialized", &M::appl_sig_initialized, nullptr,
            &M::appl_sig_initialized_state, nullptr});
        visit(lumo_ui_tarn::member{"dp_appl_sig_initialized", &M::dp_appl_sig_initialized, nullptr,
            &M::dp_appl_sig_initialized_state, nullptr});
        visit(lumo_ui_tarn::member{"tt_tc_filter_list_exmem_ptr", &M::tt_tc_filter_list_exmem_ptr, nullptr,
            &M::tt_tc_filter_list_exmem_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"tt_tc_agg_list_exmem_ptr", &M::tt_tc_agg_list_exmem_ptr, nullptr,
            &M::tt_tc_agg_list_exmem_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"tt_tc_learn_list_exmem_ptr", &M::tt_tc_learn_list_exmem_ptr, nullptr,
            &M::tt_tc_learn_list_exmem_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"tc_list_head_chunk_h", &M::tc_list_head_chunk_h, nullptr,
            &M::tc_list_head_chunk_h_state, nullptr});
        visit(lumo_ui_tarn::member{"tc_chunk_h", &M::tc_chunk_h, nullptr, &M::tc_chunk_h_state, nullptr});
        visit(lumo_ui_tarn::member{"ll_chunk_h", &M::ll_chunk_h, nullptr, &M::ll_chunk_h_state, nullptr});
        visit(lumo_ui_tarn::member{"appl_chunk_h", &M::appl_chunk_h, nullptr, &M::appl_chunk_h_state, nullptr});
        visit(lumo_ui_tarn::member{"cl_appl_sig_hash_ptr", &M::cl_appl_sig_hash_ptr, nullptr,
            &M::cl_appl_sig_hash_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"dp_appl_sig_hash_h", &M::dp_appl_sig_hash_h, nullptr, &M::dp_appl_sig_hash_h_state,
            nullptr});
        visit(lumo_ui_tarn::member{"appl_sig_chunk_h", &M::appl_sig_chunk_h, nullptr, &M::appl_sig_chunk_h_state,
            nullptr});
        visit(lumo_ui_tarn::member{"appl_sig_hash_exmem", &M::appl_sig_hash_exmem, nullptr,
            &M::appl_sig_hash_exmem_state, nullptr});
        visit(lumo_ui_tarn::member{"mp_export_exmem", &M::mp_export_exmem, nullptr, &M::mp_export_exmem_state,
            nullptr});
        visit(lumo_ui_tarn::member{"tt_export_exmem", &M::tt_export_exmem, nullptr, &M::tt_export_exmem_state,
            nullptr});
        visit(lumo_ui_tarn::member{"num_static_exmems", &M::num_static_exmems, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"static_exmem", &M::static_exmem, nullptr, &M::static_exmem_state, nullptr});
        visit(lumo_ui_tarn::member{"num_dyn_exmems", &M::num_dyn_exmems, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"dyn_exmem", &M::dyn_exmem, nullptr, &M::dyn_exmem_state, nullptr});
    }
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
using lumo_info = record<lumo_info_type>;  ///< owns one
using lumo_info_ref = record_ref<lumo_info_type>;  ///< borrows one
using lumo_info_view = record_view<lumo_info_type>;  ///< borrows one to read it

/// Processors of the system. C type: lumo_tarn_lumo_info_list.
struct lumo_info_list_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_lumo_info_list);
    static constexpr bool owns_blocks = true;
    struct lumo_info_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_lumo_info_list, num_lumos, lumo_info);
        using element = lumo_ui_tarn::lumo_info_type;
        using count = std::uint32_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<lumo_info_list_type, Self> {
    public:
        using detail::operations<lumo_info_list_type, Self>::operations;

        /// Number of elements in lumo_info.
        std::uint32_t num_lumos() const { return this->call_(lumo_tarn_lumo_info_list_num_lumos_get_value); }
        /// One element for each processor.
        lumo_ui_tarn::array_view<lumo_info_array> lumo_info() const { return this->template array_<lumo_info_array>(); }

        /// @cond states
        std::optional<std::uint8_t> lumo_info_state() const {
            return this->state_(lumo_tarn_lumo_info_list_lumo_info_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::lumo_info;
        lumo_ui_tarn::array_ref<lumo_info_array> lumo_info() { return this->template array_<lumo_info_array>(); }
        Self &set_lumo_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_lumo_info_list_lumo_info_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_info", &M::lumo_info, nullptr, &M::lumo_info_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_info", detail::writable(&M::lumo_info, 0), nullptr, &M::lumo_info_state,
            &M::set_lumo_info_state});
    }
    /// @endcond
};
using lumo_info_list = record<lumo_info_list_type>;  ///< owns one
using lumo_info_list_ref = record_ref<lumo_info_list_type>;  ///< borrows one
using lumo_info_list_view = record_view<lumo_info_list_type>;  ///< borrows one to read it

/// State of the whole client process. C type: lumo_tarn_global_info.
struct global_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_global_info);
    static constexpr bool owns_blocks = true;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<global_info_type, Self> {
    public:
        using detail::operations<global_info_type, Self>::operations;

        /// Whether to show everything.
        bool display_all() const { return this->call_(lumo_tarn_global_info_display_all_get_value) != 0; }
        /// Whether to show the platform configuration.
        bool display_plat_cfg() const { return this->call_(lumo_tarn_global_info_display_plat_cfg_get_value) != 0; }
        /// Whether to show the process context.
        bool display_proc_ctx() const { return this->call_(lumo_tarn_global_info_display_proc_ctx_get_value) != 0; }
        /// Flag word, set if the platform configuration is set.
        std::uint32_t platform_cfg_set() const { return this->call_(lumo_tarn_global_info_platform_cfg_set_get_value); }
        /// Maximum number of tt cache entries.
        std::uint32_t max_tt_cache_entries() const {
            return this->call_(lumo_tarn_global_info_max_tt_cache_entries_get_value);
        }
        /// Maximum number of mp cache entries.
        std::uint32_t max_mp_cache_entries() const {
            return this->call_(lumo_tarn_global_info_max_mp_cache_entries_get_value);
        }
        /// Event context of the lumo side.
        std::uint64_t lumo_evctx_p() const { return this->call_(lumo_tarn_global_info_lumo_evctx_p_get_value); }
        /// Event context of the smc side.
        std::uint64_t smc_evctx_p() const { return this->call_(lumo_tarn_global_info_smc_evctx_p_get_value); }
        /// The listening channel.
        std::uint64_t listen_chan() const { return this->call_(lumo_tarn_global_info_listen_chan_get_value); }
        /// Flag word, set if high availability is initialized.
        std::uint32_t ha_init() const { return this->call_(lumo_tarn_global_info_ha_init_get_value); }
        /// Flag word named mdr.
        std::uint32_t mdr() const { return this->call_(lumo_tarn_global_info_mdr_get_value); }
        /// Number of processors.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_global_info_num_lumos_get_value); }
        /// Number of complexes.
        std::uint8_t num_complexes() const { return this->call_(lumo_tarn_global_info_num_complexes_get_value); }
        /// Per-processor records.
        lumo_ui_tarn::lumo_info_list_view lumo_info_list() const {
            return this->template nested_<lumo_ui_tarn::lumo_info_list_type>(lumo_tarn_global_info_lumo_info_list_get);
        }

        /// @cond states
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_global_info_display_all_state_flag_get);
        }
        std::optional<std::uint8_t> display_plat_cfg_state() const {
            return this->state_(lumo_tarn_global_info_display_plat_cfg_state_flag_get);
        }
        std::optional<std::uint8_t> display_proc_ctx_state() const {
            return this->state_(lumo_tarn_global_info_display_proc_ctx_state_flag_get);
        }
        std::optional<std::uint8_t> platform_cfg_set_state() const {
            return this->state_(lumo_tarn_global_info_platform_cfg_set_state_flag_get);
        }
        std::optional<std::uint8_t> max_tt_cache_entries_state() const {
            return this->state_(lumo_tarn_global_info_max_tt_cache_entries_state_flag_get);
        }
        std::optional<std::uint8_t> max_mp_cache_entries_state() const {
            return this->state_(lumo_tarn_global_info_max_mp_cache_entries_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_evctx_p_state() const {
            return this->state_(lumo_tarn_global_info_lumo_evctx_p_state_flag_get);
        }
        std::optional<std::uint8_t> smc_evctx_p_state() const {
            return this->state_(lumo_tarn_global_info_smc_evctx_p_state_flag_get);
        }
        std::optional<std::uint8_t> listen_chan_state() const {
            return this->state_(lumo_tarn_global_info_listen_chan_state_flag_get);
        }
        std::optional<std::uint8_t> ha_init_state() const {
            return this->state_(lumo_tarn_global_info_ha_init_state_flag_get);
        }
        std::optional<std::uint8_t> mdr_state() const { return this->state_(lumo_tarn_global_info_mdr_state_flag_get); }
        std::optional<std::uint8_t> num_lumos_state() const {
            return this->state_(lumo_tarn_global_info_num_lumos_state_flag_get);
        }
        std::optional<std::uint8_t> num_complexes_state() const {
            return this->state_(lumo_tarn_global_info_num_complexes_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_info_list_state() const {
            return this->state_(lumo_tarn_global_info_lumo_info_list_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_global_info_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_display_all_state_flag_set, value);
        }
        Self &set_display_plat_cfg(bool value) {
            return this->write_(*this, lumo_tarn_global_info_display_plat_cfg_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_display_plat_cfg_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_display_plat_cfg_state_flag_set, value);
        }
        Self &set_display_proc_ctx(bool value) {
            return this->write_(*this, lumo_tarn_global_info_display_proc_ctx_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_display_proc_ctx_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_display_proc_ctx_state_flag_set, value);
        }
        Self &set_platform_cfg_set(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_platform_cfg_set_set_value, value);
        }
        Self &set_platform_cfg_set_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_platform_cfg_set_state_flag_set, value);
        }
        Self &set_max_tt_cache_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_tt_cache_entries_set_value, value);
        }
        Self &set_max_tt_cache_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_tt_cache_entries_state_flag_set, value);
        }
        Self &set_max_mp_cache_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_mp_cache_entries_set_value, value);
        }
        Self &set_max_mp_cache_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_max_mp_cache_entries_state_flag_set, value);
        }
        Self &set_lumo_evctx_p(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_global_info_lumo_evctx_p_set_value, value);
        }
        Self &set_lumo_evctx_p_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_lumo_evctx_p_state_flag_set, value);
        }
        Self &set_smc_evctx_p(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_global_info_smc_evctx_p_set_value, value);
        }
        Self &set_smc_evctx_p_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_smc_evctx_p_state_flag_set, value);
        }
        Self &set_listen_chan(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_global_info_listen_chan_set_value, value);
        }
        Self &set_listen_chan_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_listen_chan_state_flag_set, value);
        }
        Self &set_ha_init(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_global_info_ha_init_set_value, value);
        }
        Self &set_ha_init_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_ha_init_state_flag_set, value);
        }
        Self &set_mdr(std::uint32_t value) { return this->write_(*this, lumo_tarn_global_info_mdr_set_value, value); }
        Self &set_mdr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_mdr_state_flag_set, value);
        }
        Self &set_num_lumos(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_lumos_set_value, value);
        }
        Self &set_num_lumos_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_lumos_state_flag_set, value);
        }
        Self &set_num_complexes(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_complexes_set_value, value);
        }
        Self &set_num_complexes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_num_complexes_state_flag_set, value);
        }
        using members<Self>::lumo_info_list;
        lumo_ui_tarn::lumo_info_list_ref lumo_info_list() {
            return this->template nested_<lumo_ui_tarn::lumo_info_list_type>(lumo_tarn_global_info_lumo_info_list_get);
        }
        Self &set_lumo_info_list(lumo_ui_tarn::lumo_info_list_view value) {
            return this->assign_(*this, lumo_tarn_global_info_lumo_info_list_get,
                lumo_tarn_global_info_lumo_info_list_set, value);
        }
        Self &adopt_lumo_info_list(lumo_ui_tarn::lumo_info_list &&value) {
            return this->adopt_(*this, lumo_tarn_global_info_lumo_info_list_get,
                lumo_tarn_global_info_lumo_info_list_set, std::move(value));
        }
        Self &set_lumo_info_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_global_info_lumo_info_list_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, nullptr, &M::display_all_state, nullptr});
        visit(lumo_ui_tarn::member{"display_plat_cfg", &M::display_plat_cfg, nullptr, &M::display_plat_cfg_state,
            nullptr});
        visit(lumo_ui_tarn::member{"display_proc_ctx", &M::display_proc_ctx, nullptr, &M::display_proc_ctx_state,
            nullptr});
        visit(lumo_ui_tarn::member{"platform_cfg_set", &M::platform_cfg_set, nullptr, &M::platform_cfg_set_state,
            nullptr});
        visit(lumo_ui_tarn::member{"max_tt_cache_entries", &M::max_tt_cache_entries, nullptr,
            &M::max_tt_cache_entries_state, nullptr});
        visit(lumo_ui_tarn::member{"max_mp_cache_entries", &M::max_mp_cache_entries, nullptr,
            &M::max_mp_cache_entries_state, nullptr});
        visit(lumo_ui_tarn::member{"lumo_evctx_p", &M::lumo_evctx_p, nullptr, &M::lumo_evctx_p_state, nullptr});
        visit(lumo_ui_tarn::member{"smc_evctx_p", &M::smc_evctx_p, nullptr, &M::smc_evctx_p_state, nullptr});
        visit(lumo_ui_tarn::member{"listen_chan", &M::listen_chan, nullptr, &M::listen_chan_state, nullptr});
        visit(lumo_ui_tarn::member{"ha_init", &M::ha_init, nullptr, &M::ha_init_state, nullptr});
        visit(lumo_ui_tarn::member{"mdr", &M::mdr, nullptr, &M::mdr_state, nullptr});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, &M::num_lumos_state, nullptr});
        visit(lumo_ui_tarn::member{"num_complexes", &M::num_complexes, nullptr, &M::num_complexes_state, nullptr});
        visit(lumo_ui_tarn::member{"lumo_info_list", &M::lumo_info_list, nullptr, &M::lumo_info_list_state, nullptr});
    }
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
using global_info = record<global_info_type>;  ///< owns one
using global_info_ref = record_ref<global_info_type>;  ///< borrows one
using global_info_view = record_view<global_info_type>;  ///< borrows one to read it

/// State of the client side as a whole. C type: lumo_tarn_cl_cfg_data.
struct cl_cfg_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_cl_cfg_data);
    static constexpr bool owns_blocks = true;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<cl_cfg_data_type, Self> {
    public:
        using detail::operations<cl_cfg_data_type, Self>::operations;

        /// Whether to show everything.
        bool display_all() const { return this->call_(lumo_tarn_cl_cfg_data_display_all_get_value) != 0; }
        /// Whether to show the smc part.
        bool display_smc() const { return this->call_(lumo_tarn_cl_cfg_data_display_smc_get_value) != 0; }
        /// Global record.
        lumo_ui_tarn::global_info_view global_info() const {
            return this->template nested_<lumo_ui_tarn::global_info_type>(lumo_tarn_cl_cfg_data_global_info_get);
        }
        /// Flag word, set if the smc queue is initialized.
        std::uint32_t tarn_smc_queue_initialized() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_get_value);
        }
        /// Size of the smc queue, in the unit of the client process.
        std::uint64_t tarn_smc_queue_size() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_get_value);
        }
        /// Blocked flags of the smc queue.
        std::uint32_t tarn_smc_blocked_flags() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_get_value);
        }
        /// Number of warnings on the queue's size.
        std::uint64_t tarn_smc_queue_size_warn_count() const {
            return this->call_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_get_value);
        }

        /// @cond states
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_display_all_state_flag_get);
        }
        std::optional<std::uint8_t> display_smc_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_display_smc_state_flag_get);
        }
        std::optional<std::uint8_t> global_info_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_global_info_state_flag_get);
        }
        std::optional<std::uint8_t> tarn_smc_queue_initialized_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_get);
        }
        std::optional<std::uint8_t> tarn_smc_queue_size_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_get);
        }
        std::optional<std::uint8_t> tarn_smc_blocked_flags_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_get);
        }
        std::optional<std::uint8_t> tarn_smc_queue_size_warn_count_state() const {
            return this->state_(lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_all_state_flag_set, value);
        }
        Self &set_display_smc(bool value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_smc_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_smc_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_display_smc_state_flag_set, value);
        }
        using members<Self>::global_info;
        lumo_ui_tarn::global_info_ref global_info() {
            return this->template nested_<lumo_ui_tarn::global_info_type>(lumo_tarn_cl_cfg_data_global_info_get);
        }
        Self &set_global_info(lumo_ui_tarn::global_info_view value) {
            return this->assign_(*this, lumo_tarn_cl_cfg_data_global_info_get, lumo_tarn_cl_cfg_data_global_info_set,
                value);
        }
        Self &adopt_global_info(lumo_ui_tarn::global_info &&value) {
            return this->adopt_(*this, lumo_tarn_cl_cfg_data_global_info_get, lumo_tarn_cl_cfg_data_global_info_set,
                std::move(value));
        }
        Self &set_global_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_global_info_state_flag_set, value);
        }
        Self &set_tarn_smc_queue_initialized(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_set_value, value);
        }
        Self &set_tarn_smc_queue_initialized_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_set, value);
        }
        Self &set_tarn_smc_queue_size(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_set_value, value);
        }
        Self &set_tarn_smc_queue_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_set, value);
        }
        Self &set_tarn_smc_blocked_flags(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_set_value, value);
        }
        Self &set_tarn_smc_blocked_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_set, value);
        }
        Self &set_tarn_smc_queue_size_warn_count(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_set_value, value);
        }
        Self &set_tarn_smc_queue_size_warn_count_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, nullptr, &M::display_all_state, nullptr});
        visit(lumo_ui_tarn::member{"display_smc", &M::display_smc, nullptr, &M::display_smc_state, nullptr});
        visit(lumo_ui_tarn::member{"global_info", &M::global_info, nullptr, &M::global_info_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_smc_queue_initialized", &M::tarn_smc_queue_initialized, nullptr,
            &M::tarn_smc_queue_initialized_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_smc_queue_size", &M::tarn_smc_queue_size, nullptr,
            &M::tarn_smc_queue_size_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_smc_blocked_flags", &M::tarn_smc_blocked_flags, nullptr,
            &M::tarn_smc_blocked_flags_state, nullptr});
        visit(lumo_ui_tarn::member{"tarn_smc_queue_size_warn_count", &M::tarn_smc_queue_size_warn_count, nullptr,
            &M::tarn_smc_queue_size_warn_count_state, nullptr});
    }
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
using cl_cfg_data = record<cl_cfg_data_type>;  ///< owns one
using cl_cfg_data_ref = record_ref<cl_cfg_data_type>;  ///< borrows one
using cl_cfg_data_view = record_view<cl_cfg_data_type>;  ///< borrows one to read it

/// Flags of a wexa entry. C type: lumo_tarn_dp_wexa_info.
struct dp_wexa_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_wexa_info);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_wexa_info_type, Self> {
    public:
        using detail::operations<dp_wexa_info_type, Self>::operations;

        /// Flags of the wexa entry.
        std::uint32_t flags() const { return this->call_(lumo_tarn_dp_wexa_info_flags_get_value); }

        /// @cond states
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_dp_wexa_info_flags_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_flags(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_wexa_info_flags_set_value, value);
        }
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_wexa_info_flags_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"flags", &M::flags, nullptr, &M::flags_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"flags", &M::flags, &M::set_flags, &M::flags_state, &M::set_flags_state});
    }
    /// @endcond
};
using dp_wexa_info = record<dp_wexa_info_type>;  ///< owns one
using dp_wexa_info_ref = record_ref<dp_wexa_info_type>;  ///< borrows one
using dp_wexa_info_view = record_view<dp_wexa_info_type>;  ///< borrows one to read it

/// Two wexa entries of one processor. C type: lumo_tarn_dp_lumo_wexa_info.
struct dp_lumo_wexa_info_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_lumo_wexa_info);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_lumo_wexa_info_type, Self> {
    public:
        using detail::operations<dp_lumo_wexa_info_type, Self>::operations;

        /// Number of the lumo processor.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_lumo_wexa_info_lumo_num_get_value); }
        /// Whether in_wexa holds a value.
        bool in_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_get_value) != 0;
        }
        /// Ingress entry.
        lumo_ui_tarn::dp_wexa_info_view in_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_in_wexa_get);
        }
        /// Whether out_wexa holds a value.
        bool out_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_get_value) != 0;
        }
        /// Egress entry.
        lumo_ui_tarn::dp_wexa_info_view out_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_out_wexa_get);
        }

        /// @cond states
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_lumo_num_state_flag_get);
        }
        std::optional<std::uint8_t> in_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_state_flag_get);
        }
        std::optional<std::uint8_t> in_wexa_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_in_wexa_state_flag_get);
        }
        std::optional<std::uint8_t> out_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_state_flag_get);
        }
        std::optional<std::uint8_t> out_wexa_state() const {
            return this->state_(lumo_tarn_dp_lumo_wexa_info_out_wexa_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_lumo_num_set_value, value);
        }
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_lumo_num_state_flag_set, value);
        }
        Self &set_in_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_in_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_is_valid_state_flag_set, value);
        }
        using members<Self>::in_wexa;
        lumo_ui_tarn::dp_wexa_info_ref in_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_in_wexa_get);
        }
        Self &set_in_wexa(lumo_ui_tarn::dp_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_in_wexa_set, value);
        }
        Self &adopt_in_wexa(lumo_ui_tarn::dp_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_get, lumo_tarn_dp_lumo_wexa_info_in_wexa_set,
                std::move(value));
        }
        Self &set_in_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_in_wexa_state_flag_set, value);
        }
        Self &set_out_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_out_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_state_flag_set, value);
        }
        using members<Self>::out_wexa;
        lumo_ui_tarn::dp_wexa_info_ref out_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_wexa_info_type>(lumo_tarn_dp_lumo_wexa_info_out_wexa_get);
        }
        Self &set_out_wexa(lumo_ui_tarn::dp_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_out_wexa_set, value);
        }
        Self &adopt_out_wexa(lumo_ui_tarn::dp_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_get,
                lumo_tarn_dp_lumo_wexa_info_out_wexa_set, std::move(value));
        }
        Self &set_out_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_lumo_wexa_info_out_wexa_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, nullptr, &M::lumo_num_state, nullptr});
        visit(lumo_ui_tarn::member{"in_wexa_is_valid", &M::in_wexa_is_valid, nullptr, &M::in_wexa_is_valid_state,
            nullptr});
        visit(lumo_ui_tarn::member{"in_wexa", &M::in_wexa, nullptr, &M::in_wexa_state, nullptr});
        visit(lumo_ui_tarn::member{"out_wexa_is_valid", &M::out_wexa_is_valid, nullptr, &M::out_wexa_is_valid_state,
            nullptr});
        visit(lumo_ui_tarn::member{"out_wexa", &M::out_wexa, nullptr, &M::out_wexa_state, nullptr});
    }
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
using dp_lumo_wexa_info = record<dp_lumo_wexa_info_type>;  ///< owns one
using dp_lumo_wexa_info_ref = record_ref<dp_lumo_wexa_info_type>;  ///< borrows one
using dp_lumo_wexa_info_view = record_view<dp_lumo_wexa_info_type>;  ///< borrows one to read it

/// State of the feature on one interface. C type: lumo_tarn_dp_intf_data.
struct dp_intf_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_intf_data);
    static constexpr bool owns_blocks = true;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_intf_data_type, Self> {
    public:
        using detail::operations<dp_intf_data_type, Self>::operations;

        /// Whether intf_name holds a value.
        bool intf_name_is_valid() const {
            return this->call_(lumo_tarn_dp_intf_data_intf_name_is_valid_get_value) != 0;
        }
        /// Length of intf_name in bytes.
        std::uint16_t intf_name_len() const { return this->call_(lumo_tarn_dp_intf_data_intf_name_len_get_value); }
        /// Name of the interface.
        std::string intf_name() const {
            return this->string_(lumo_tarn_dp_intf_data_intf_name_len_get_value, lumo_tarn_dp_intf_data_intf_name_get);
        }
        /// Whether in_lumo_wexa holds a value.
        bool in_lumo_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_get_value) != 0;
        }
        /// Ingress side.
        lumo_ui_tarn::dp_lumo_wexa_info_view in_lumo_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_in_lumo_wexa_get);
        }
        /// Whether out_lumo_wexa holds a value.
        bool out_lumo_wexa_is_valid() const {
            return this->call_(lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_get_value) != 0;
        }
        /// Egress side.
        lumo_ui_tarn::dp_lumo_wexa_info_view out_lumo_wexa() const {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_out_lumo_wexa_get);
        }

        /// @cond states
        std::optional<std::uint8_t> intf_name_is_valid_state() const {
            return this->state_(lumo_tarn_dp_intf_data_intf_name_is_valid_state_flag_get);
        }
        std::optional<std::uint8_t> intf_name_state() const {
            return this->state_(lumo_tarn_dp_intf_data_intf_name_state_flag_get);
        }
        std::optional<std::uint8_t> in_lumo_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_state_flag_get);
        }
        std::optional<std::uint8_t> in_lumo_wexa_state() const {
            return this->state_(lumo_tarn_dp_intf_data_in_lumo_wexa_state_flag_get);
        }
        std::optional<std::uint8_t> out_lumo_wexa_is_valid_state() const {
            return this->state_(lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_state_flag_get);
        }
        std::optional<std::uint8_t> out_lumo_wexa_state() const {
            return this->state_(lumo_tarn_dp_intf_data_out_lumo_wexa_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_intf_name_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_intf_name_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_is_valid_state_flag_set, value);
        }
        Self &set_intf_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_dp_intf_data_intf_name_set, text);
        }
        Self &set_intf_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_intf_name_state_flag_set, value);
        }
        Self &set_in_lumo_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_in_lumo_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_is_valid_state_flag_set, value);
        }
        using members<Self>::in_lumo_wexa;
        lumo_ui_tarn::dp_lumo_wexa_info_ref in_lumo_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_in_lumo_wexa_get);
        }
        Self &set_in_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_get,
                lumo_tarn_dp_intf_data_in_lumo_wexa_set, value);
        }
        Self &adopt_in_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_get, lumo_tarn_dp_intf_data_in_lumo_wexa_set,
                std::move(value));
        }
        Self &set_in_lumo_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_in_lumo_wexa_state_flag_set, value);
        }
        Self &set_out_lumo_wexa_is_valid(bool value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_out_lumo_wexa_is_valid_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_state_flag_set, value);
        }
        using members<Self>::out_lumo_wexa;
        lumo_ui_tarn::dp_lumo_wexa_info_ref out_lumo_wexa() {
            return this->template nested_<lumo_ui_tarn::dp_lumo_wexa_info_type>(lumo_tarn_dp_intf_data_out_lumo_wexa_get);
        }
        Self &set_out_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_get,
                lumo_tarn_dp_intf_data_out_lumo_wexa_set, value);
        }
        Self &adopt_out_lumo_wexa(lumo_ui_tarn::dp_lumo_wexa_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_get,
                lumo_tarn_dp_intf_data_out_lumo_wexa_set, std::move(value));
        }
        Self &set_out_lumo_wexa_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_intf_data_out_lumo_wexa_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"intf_name_is_valid", &M::intf_name_is_valid, nullptr, &M::intf_name_is_valid_state,
            nullptr});
        visit(lumo_ui_tarn::member{"intf_name_len", &M::intf_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"intf_name", &M::intf_name, nullptr, &M::intf_name_state, nullptr});
        visit(lumo_ui_tarn::member{"in_lumo_wexa_is_valid", &M::in_lumo_wexa_is_valid, nullptr,
            &M::in_lumo_wexa_is_valid_state, nullptr});
        visit(lumo_ui_tarn::member{"in_lumo_wexa", &M::in_lumo_wexa, nullptr, &M::in_lumo_wexa_state, nullptr});
        visit(lumo_ui_tarn::member{"out_lumo_wexa_is_valid", &M::out_lumo_wexa_is_valid, nullptr,
            &M::out_lumo_wexa_is_valid_state, nullptr});
        visit(lumo_ui_tarn::member{"out_lumo_wexa", &M::out_lumo_wexa, nullptr, &M::out_lumo_wexa_state, nullptr});
    }
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
using dp_intf_data = record<dp_intf_data_type>;  ///< owns one
using dp_intf_data_ref = record_ref<dp_intf_data_type>;  ///< borrows one
using dp_intf_data_view = record_view<dp_intf_data_type>;  ///< borrows one to read it

/// One signature. C type: lumo_tarn_dp_appl_sig.
struct dp_appl_sig_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_appl_sig);
    static constexpr bool owns_blocks = true;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_sig_type, Self> {
    public:
        using detail::operations<dp_appl_sig_type, Self>::operations;

        /// Location of the signature in memory.
        lumo_ui_tarn::exmem_info_view exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_sig_exmem_info_get);
        }
        /// Bucket of the signature in the data plane's hash.
        std::uint32_t dp_hash_bucket() const { return this->call_(lumo_tarn_dp_appl_sig_dp_hash_bucket_get_value); }
        /// Identifier of the signature in the adaptation layer.
        std::uint32_t pal_id() const { return this->call_(lumo_tarn_dp_appl_sig_pal_id_get_value); }
        /// Length of appl_name in bytes.
        std::uint16_t appl_name_len() const { return this->call_(lumo_tarn_dp_appl_sig_appl_name_len_get_value); }
        /// Name of the application.
        std::string appl_name() const {
            return this->string_(lumo_tarn_dp_appl_sig_appl_name_len_get_value, lumo_tarn_dp_appl_sig_appl_name_get);
        }
        /// Identifier of the application.
        std::uint16_t appl_id() const { return this->call_(lumo_tarn_dp_appl_sig_appl_id_get_value); }
        /// Protocol number to match.
        std::uint8_t protocol() const { return this->call_(lumo_tarn_dp_appl_sig_protocol_get_value); }
        /// Type-of-service value to match.
        std::uint8_t tos() const { return this->call_(lumo_tarn_dp_appl_sig_tos_get_value); }
        /// Flags of the signature.
        std::uint32_t flags() const { return this->call_(lumo_tarn_dp_appl_sig_flags_get_value); }
        /// Low end of the destination port range.
        std::uint16_t dport_min() const { return this->call_(lumo_tarn_dp_appl_sig_dport_min_get_value); }
        /// High end of the destination port range.
        std::uint16_t dport_max() const { return this->call_(lumo_tarn_dp_appl_sig_dport_max_get_value); }
        /// Low end of the source port range.
        std::uint16_t sport_min() const { return this->call_(lumo_tarn_dp_appl_sig_sport_min_get_value); }
        /// High end of the source port range.
        std::uint16_t sport_max() const { return this->call_(lumo_tarn_dp_appl_sig_sport_max_get_value); }
        /// Link to the next signature in the bucket.
        std::uint64_t next_ptr() const { return this->call_(lumo_tarn_dp_appl_sig_next_ptr_get_value); }

        /// @cond states
        std::optional<std::uint8_t> exmem_info_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_exmem_info_state_flag_get);
        }
        std::optional<std::uint8_t> dp_hash_bucket_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_get);
        }
        std::optional<std::uint8_t> pal_id_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_pal_id_state_flag_get);
        }
        std::optional<std::uint8_t> appl_name_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_appl_name_state_flag_get);
        }
        std::optional<std::uint8_t> appl_id_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_appl_id_state_flag_get);
        }
        std::optional<std::uint8_t> protocol_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_protocol_state_flag_get);
        }
        std::optional<std::uint8_t> tos_state() const { return this->state_(lumo_tarn_dp_appl_sig_tos_state_flag_get); }
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_flags_state_flag_get);
        }
        std::optional<std::uint8_t> dport_min_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_dport_min_state_flag_get);
        }
        std::optional<std::uint8_t> dport_max_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_dport_max_state_flag_get);
        }
        std::optional<std::uint8_t> sport_min_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_sport_min_state_flag_get);
        }
        std::optional<std::uint8_t> sport_max_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_sport_max_state_flag_get);
        }
        std::optional<std::uint8_t> next_ptr_state() const {
            return this->state_(lumo_tarn_dp_appl_sig_next_ptr_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        using members<Self>::exmem_info;
        lumo_ui_tarn::exmem_info_ref exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_sig_exmem_info_get);
        }
        Self &set_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_appl_sig_exmem_info_get, lumo_tarn_dp_appl_sig_exmem_info_set,
                value);
        }
        Self &adopt_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_appl_sig_exmem_info_get, lumo_tarn_dp_appl_sig_exmem_info_set,
                std::move(value));
        }
        Self &set_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_exmem_info_state_flag_set, value);
        }
        Self &set_dp_hash_bucket(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dp_hash_bucket_set_value, value);
        }
        Self &set_dp_hash_bucket_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_set, value);
        }
        Self &set_pal_id(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_pal_id_set_value, value);
        }
        Self &set_pal_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_pal_id_state_flag_set, value);
        }
        Self &set_appl_name(std::string_view text) {
            return this->write_string_(*this, lumo_tarn_dp_appl_sig_appl_name_set, text);
        }
        Self &set_appl_name_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_name_state_flag_set, value);
        }
        Self &set_appl_id(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_id_set_value, value);
        }
        Self &set_appl_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_appl_id_state_flag_set, value);
        }
        Self &set_protocol(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_protocol_set_value, value);
        }
        Self &set_protocol_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_protocol_state_flag_set, value);
        }
        Self &set_tos(std::uint8_t value) { return this->write_(*this, lumo_tarn_dp_appl_sig_tos_set_value, value); }
        Self &set_tos_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_tos_state_flag_set, value);
        }
        Self &set_flags(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_flags_set_value, value);
        }
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_flags_state_flag_set, value);
        }
        Self &set_dport_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_min_set_value, value);
        }
        Self &set_dport_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_min_state_flag_set, value);
        }
        Self &set_dport_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_max_set_value, value);
        }
        Self &set_dport_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_dport_max_state_flag_set, value);
        }
        Self &set_sport_min(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_min_set_value, value);
        }
        Self &set_sport_min_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_min_state_flag_set, value);
        }
        Self &set_sport_max(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_max_set_value, value);
        }
        Self &set_sport_max_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_sport_max_state_flag_set, value);
        }
        Self &set_next_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_next_ptr_set_value, value);
        }
        Self &set_next_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_sig_next_ptr_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"exmem_info", &M::exmem_info, nullptr, &M::exmem_info_state, nullptr});
        visit(lumo_ui_tarn::member{"dp_hash_bucket", &M::dp_hash_bucket, nullptr, &M::dp_hash_bucket_state, nullptr});
        visit(lumo_ui_tarn::member{"pal_id", &M::pal_id, nullptr, &M::pal_id_state, nullptr});
        visit(lumo_ui_tarn::member{"appl_name_len", &M::appl_name_len, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"appl_name", &M::appl_name, nullptr, &M::appl_name_state, nullptr});
        visit(lumo_ui_tarn::member{"appl_id", &M::appl_id, nullptr, &M::appl_id_state, nullptr});
        visit(lumo_ui_tarn::member{"protocol", &M::protocol, nullptr, &M::protocol_state, nullptr});
        visit(lumo_ui_tarn::member{"tos", &M::tos, nullptr, &M::tos_state, nullptr});
        visit(lumo_ui_tarn::member{"flags", &M::flags, nullptr, &M::flags_state, nullptr});
        visit(lumo_ui_tarn::member{"dport_min", &M::dport_min, nullptr, &M::dport_min_state, nullptr});
        visit(lumo_ui_tarn::member{"dport_max", &M::dport_max, nullptr, &M::dport_max_state, nullptr});
        visit(lumo_ui_tarn::member{"sport_min", &M::sport_min, nullptr, &M::sport_min_state, nullptr});
        visit(lumo_ui_tarn::member{"sport_max", &M::sport_max, nullptr, &M::sport_max_state, nullptr});
        visit(lumo_ui_tarn::member{"next_ptr", &M::next_ptr, nullptr, &M::next_ptr_state, nullptr});
    }
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
using dp_appl_sig = record<dp_appl_sig_type>;  ///< owns one
using dp_appl_sig_ref = record_ref<dp_appl_sig_type>;  ///< borrows one
using dp_appl_sig_view = record_view<dp_appl_sig_type>;  ///< borrows one to read it

/// Signatures of one processor. C type: lumo_tarn_dp_appl_cfg.
struct dp_appl_cfg_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_appl_cfg);
    static constexpr bool owns_blocks = true;
    struct sig_list_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_appl_cfg, num_sigs, sig_list);
        using element = lumo_ui_tarn::dp_appl_sig_type;
        using count = std::uint32_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_cfg_type, Self> {
    public:
        using detail::operations<dp_appl_cfg_type, Self>::operations;

        /// Whether to show the header.
        bool show_header() const { return this->call_(lumo_tarn_dp_appl_cfg_show_header_get_value) != 0; }
        /// Number of the lumo processor.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_appl_cfg_lumo_num_get_value); }
        /// Memory block of the processor's signature hash.
        lumo_ui_tarn::exmem_info_view hash_exmem_info() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_cfg_hash_exmem_info_get);
        }
        /// Number of elements in sig_list.
        std::uint32_t num_sigs() const { return this->call_(lumo_tarn_dp_appl_cfg_num_sigs_get_value); }
        /// Signatures.
        lumo_ui_tarn::array_view<sig_list_array> sig_list() const { return this->template array_<sig_list_array>(); }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_lumo_num_state_flag_get);
        }
        std::optional<std::uint8_t> hash_exmem_info_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_hash_exmem_info_state_flag_get);
        }
        std::optional<std::uint8_t> sig_list_state() const {
            return this->state_(lumo_tarn_dp_appl_cfg_sig_list_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_show_header_state_flag_set, value);
        }
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_lumo_num_set_value, value);
        }
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_lumo_num_state_flag_set, value);
        }
        using members<Self>::hash_exmem_info;
        lumo_ui_tarn::exmem_info_ref hash_exmem_info() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_appl_cfg_hash_exmem_info_get);
        }
        Self &set_hash_exmem_info(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_get,
                lumo_tarn_dp_appl_cfg_hash_exmem_info_set, value);
        }
        Self &adopt_hash_exmem_info(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_get,
                lumo_tarn_dp_appl_cfg_hash_exmem_info_set, std::move(value));
        }
        Self &set_hash_exmem_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_hash_exmem_info_state_flag_set, value);
        }
        using members<Self>::sig_list;
        lumo_ui_tarn::array_ref<sig_list_array> sig_list() { return this->template array_<sig_list_array>(); }
        Self &set_sig_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_cfg_sig_list_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, nullptr, &M::lumo_num_state, nullptr});
        visit(lumo_ui_tarn::member{"hash_exmem_info", &M::hash_exmem_info, nullptr, &M::hash_exmem_info_state,
            nullptr});
        visit(lumo_ui_tarn::member{"num_sigs", &M::num_sigs, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"sig_list", &M::sig_list, nullptr, &M::sig_list_state, nullptr});
    }
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
using dp_appl_cfg = record<dp_appl_cfg_type>;  ///< owns one
using dp_appl_cfg_ref = record_ref<dp_appl_cfg_type>;  ///< borrows one
using dp_appl_cfg_view = record_view<dp_appl_cfg_type>;  ///< borrows one to read it

/// Signature tables, one for each processor. C type: lumo_tarn_dp_appl_data.
struct dp_appl_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_appl_data);
    static constexpr bool owns_blocks = true;
    struct lumo_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_appl_data, num_lumos, lumo_data);
        using element = lumo_ui_tarn::dp_appl_cfg_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_appl_data_type, Self> {
    public:
        using detail::operations<dp_appl_data_type, Self>::operations;

        /// Whether to show the header.
        bool show_header() const { return this->call_(lumo_tarn_dp_appl_data_show_header_get_value) != 0; }
        /// Number of elements in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_appl_data_num_lumos_get_value); }
        /// One element for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_appl_data_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_appl_data_lumo_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_appl_data_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_data_show_header_state_flag_set, value);
        }
        using members<Self>::lumo_data;
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_appl_data_lumo_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", &M::lumo_data, nullptr, &M::lumo_data_state, nullptr});
    }
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
using dp_appl_data = record<dp_appl_data_type>;  ///< owns one
using dp_appl_data_ref = record_ref<dp_appl_data_type>;  ///< borrows one
using dp_appl_data_view = record_view<dp_appl_data_type>;  ///< borrows one to read it

/// One traffic table of one processor. C type: lumo_tarn_dp_tt_table.
struct dp_tt_table_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_tt_table);
    static constexpr bool owns_blocks = true;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tt_table_type, Self> {
    public:
        using detail::operations<dp_tt_table_type, Self>::operations;

        /// Whether to show the table's header.
        bool show_header() const { return this->call_(lumo_tarn_dp_tt_table_show_header_get_value) != 0; }
        /// Whether to show the aggregation class list.
        bool show_agg_list() const { return this->call_(lumo_tarn_dp_tt_table_show_agg_list_get_value) != 0; }
        /// Whether to show the filter class list.
        bool show_filter_list() const { return this->call_(lumo_tarn_dp_tt_table_show_filter_list_get_value) != 0; }
        /// Whether to show the header of the learn list.
        bool show_ll_header() const { return this->call_(lumo_tarn_dp_tt_table_show_ll_header_get_value) != 0; }
        /// Whether to show the learn list itself.
        bool show_ll_list() const { return this->call_(lumo_tarn_dp_tt_table_show_ll_list_get_value) != 0; }
        /// Whether to show everything.
        bool display_all() const { return this->call_(lumo_tarn_dp_tt_table_display_all_get_value) != 0; }
        /// Whether to show the traffic classes.
        bool display_tc() const { return this->call_(lumo_tarn_dp_tt_table_display_tc_get_value) != 0; }
        /// Whether to show the learn lists.
        bool display_ll() const { return this->call_(lumo_tarn_dp_tt_table_display_ll_get_value) != 0; }
        /// Fdb memory of the table.
        lumo_ui_tarn::fdb_mem_info_view fdb_info() const {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_dp_tt_table_fdb_info_get);
        }
        /// Number of the lumo processor that holds the table.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_tt_table_lumo_num_get_value); }
        /// State of the table: a code of the data plane.
        std::uint8_t state() const { return this->call_(lumo_tarn_dp_tt_table_state_get_value); }
        /// How the table learns: a code of the data plane.
        std::uint8_t learn_type() const { return this->call_(lumo_tarn_dp_tt_table_learn_type_get_value); }
        /// How the table aggregates: a code of the data plane.
        std::uint8_t agg_type() const { return this->call_(lumo_tarn_dp_tt_table_agg_type_get_value); }
        /// Minimum mask length.
        std::uint8_t min_mask() const { return this->call_(lumo_tarn_dp_tt_table_min_mask_get_value); }
        /// Flags of the table.
        std::uint8_t tt_bit_flags() const { return this->call_(lumo_tarn_dp_tt_table_tt_bit_flags_get_value); }
        /// How entries of the table age: a code of the data plane.
        std::uint16_t aging_type() const { return this->call_(lumo_tarn_dp_tt_table_aging_type_get_value); }
        /// Number of prefixes in the table.
        std::uint32_t num_prefixes() const { return this->call_(lumo_tarn_dp_tt_table_num_prefixes_get_value); }
        /// Duration, in the data plane's unit of time.
        std::uint32_t duration() const { return this->call_(lumo_tarn_dp_tt_table_duration_get_value); }
        /// Start time, in the data plane's unit of time.
        std::uint32_t start_time() const { return this->call_(lumo_tarn_dp_tt_table_start_time_get_value); }
        /// End time, in the data plane's unit of time.
        std::uint32_t end_time() const { return this->call_(lumo_tarn_dp_tt_table_end_time_get_value); }
        /// Location of the aggregation class list in the data plane.
        std::uint64_t agg_tc_list_ptr() const { return this->call_(lumo_tarn_dp_tt_table_agg_tc_list_ptr_get_value); }
        /// Aggregation classes.
        lumo_ui_tarn::dp_tc_list_view agg_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_agg_tc_list_get);
        }
        /// Location of the filter class list in the data plane.
        std::uint64_t filter_tc_list_ptr() const {
            return this->call_(lumo_tarn_dp_tt_table_filter_tc_list_ptr_get_value);
        }
        /// Filter classes.
        lumo_ui_tarn::dp_tc_list_view filter_tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_filter_tc_list_get);
        }
        /// Location of the learn list in the data plane.
        std::uint64_t learn_list_ptr() const { return this->call_(lumo_tarn_dp_tt_table_learn_list_ptr_get_value); }
        /// Learn list definitions of the table.
        lumo_ui_tarn::dp_learn_list_view learn_list() const {
            return this->template nested_<lumo_ui_tarn::dp_learn_list_type>(lumo_tarn_dp_tt_table_learn_list_get);
        }
        /// Mask of the table's key.
        std::uint32_t key_mask() const { return this->call_(lumo_tarn_dp_tt_table_key_mask_get_value); }
        /// Head of the throughput entries in the data plane.
        std::uint64_t thruput_head_ptr() const { return this->call_(lumo_tarn_dp_tt_table_thruput_head_ptr_get_value); }
        /// Number of throughput entries.
        std::uint32_t thruput_entries() const { return this->call_(lumo_tarn_dp_tt_table_thruput_entries_get_value); }
        /// Head of the delay entries in the data plane.
        std::uint64_t delay_head_ptr() const { return this->call_(lumo_tarn_dp_tt_table_delay_head_ptr_get_value); }
        /// Number of delay entries.
        std::uint32_t delay_entries() const { return this->call_(lumo_tarn_dp_tt_table_delay_entries_get_value); }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> show_agg_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_agg_list_state_flag_get);
        }
        std::optional<std::uint8_t> show_filter_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_filter_list_state_flag_get);
        }
        std::optional<std::uint8_t> show_ll_header_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_ll_header_state_flag_get);
        }
        std::optional<std::uint8_t> show_ll_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_show_ll_list_state_flag_get);
        }
        std::optional<std::uint8_t> display_all_state() const {
            return this->state_(lumo_tarn_dp_tt_table_display_all_state_flag_get);
        }
        std::optional<std::uint8_t> display_tc_state() const {
            return this->state_(lumo_tarn_dp_tt_table_display_tc_state_flag_get);
        }
        std::optional<std::uint8_t> display_ll_state() const {
            return this->state_(lumo_tarn_dp_tt_table_display_ll_state_flag_get);
        }
        std::optional<std::uint8_t> fdb_info_state() const {
            return this->state_(lumo_tarn_dp_tt_table_fdb_info_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_tt_table_lumo_num_state_flag_get);
        }
        std::optional<std::uint8_t> state_state() const {
            return this->state_(lumo_tarn_dp_tt_table_state_state_flag_get);
        }
        std::optional<std::uint8_t> learn_type_state() const {
            return this->state_(lumo_tarn_dp_tt_table_learn_type_state_flag_get);
        }
        std::optional<std::uint8_t> agg_type_state() const {
            return this->state_(lumo_tarn_dp_tt_table_agg_type_state_flag_get);
        }
        std::optional<std::uint8_t> min_mask_state() const {
            return this->state_(lumo_tarn_dp_tt_table_min_mask_state_flag_get);
        }
        std::optional<std::uint8_t> tt_bit_flags_state() const {
            return this->state_(lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_get);
        }
        std::optional<std::uint8_t> aging_type_state() const {
            return this->state_(lumo_tarn_dp_tt_table_aging_type_state_flag_get);
        }
        std::optional<std::uint8_t> num_prefixes_state() const {
            return this->state_(lumo_tarn_dp_tt_table_num_prefixes_state_flag_get);
        }
        std::optional<std::uint8_t> duration_state() const {
            return this->state_(lumo_tarn_dp_tt_table_duration_state_flag_get);
        }
        std::optional<std::uint8_t> start_time_state() const {
            return this->state_(lumo_tarn_dp_tt_table_start_time_state_flag_get);
        }
        std::optional<std::uint8_t> end_time_state() const {
            return this->state_(lumo_tarn_dp_tt_table_end_time_state_flag_get);
        }
        std::optional<std::uint8_t> agg_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> agg_tc_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_agg_tc_list_state_flag_get);
        }
        std::optional<std::uint8_t> filter_tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> filter_tc_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_filter_tc_list_state_flag_get);
        }
        std::optional<std::uint8_t> learn_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> learn_list_state() const {
            return this->state_(lumo_tarn_dp_tt_table_learn_list_state_flag_get);
        }
        std::optional<std::uint8_t> key_mask_state() const {
            return this->state_(lumo_tarn_dp_tt_table_key_mask_state_flag_get);
        }
        std::optional<std::uint8_t> thruput_head_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> thruput_entries_state() const {
            return this->state_(lumo_tarn_dp_tt_table_thruput_entries_state_flag_get);
        }
        std::optional<std::uint8_t> delay_head_ptr_state() const {
            return this->state_(lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_get);
        }
        std::optional<std::uint8_t> delay_entries_state() const {
            return this->state_(lumo_tarn_dp_tt_table_delay_entries_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_header_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_header_state_flag_set, value);
        }
        Self &set_show_agg_list(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_agg_list_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_show_agg_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_agg_list_state_flag_set, value);
        }
        Self &set_show_filter_list(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_filter_list_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_show_filter_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_filter_list_state_flag_set, value);
        }
        Self &set_show_ll_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_show_ll_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_header_state_flag_set, value);
        }
        Self &set_show_ll_list(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_list_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_show_ll_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_show_ll_list_state_flag_set, value);
        }
        Self &set_display_all(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_all_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_all_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_all_state_flag_set, value);
        }
        Self &set_display_tc(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_tc_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_tc_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_tc_state_flag_set, value);
        }
        Self &set_display_ll(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_ll_set_value, static_cast<std::uint8_t>(value));
        }
        Self &set_display_ll_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_display_ll_state_flag_set, value);
        }
        using members<Self>::fdb_info;
        lumo_ui_tarn::fdb_mem_info_ref fdb_info() {
            return this->template nested_<lumo_ui_tarn::fdb_mem_info_type>(lumo_tarn_dp_tt_table_fdb_info_get);
        }
        Self &set_fdb_info(lumo_ui_tarn::fdb_mem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_fdb_info_get, lumo_tarn_dp_tt_table_fdb_info_set, value);
        }
        Self &adopt_fdb_info(lumo_ui_tarn::fdb_mem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_fdb_info_get, lumo_tarn_dp_tt_table_fdb_info_set,
                std::move(value));
        }
        Self &set_fdb_info_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_fdb_info_state_flag_set, value);
        }
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_lumo_num_set_value, value);
        }
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_lumo_num_state_flag_set, value);
        }
        Self &set_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_state_set_value, value);
        }
        Self &set_state_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_state_state_flag_set, value);
        }
        Self &set_learn_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_type_set_value, value);
        }
        Self &set_learn_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_type_state_flag_set, value);
        }
        Self &set_agg_type(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_type_set_value, value);
        }
        Self &set_agg_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_type_state_flag_set, value);
        }
        Self &set_min_mask(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_min_mask_set_value, value);
        }
        Self &set_min_mask_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_min_mask_state_flag_set, value);
        }
        Self &set_tt_bit_flags(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_tt_bit_flags_set_value, value);
        }
        Self &set_tt_bit_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_set, value);
        }
        Self &set_aging_type(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_aging_type_set_value, value);
        }
        Self &set_aging_type_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_aging_type_state_flag_set, value);
        }
        Self &set_num_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_num_prefixes_set_value, value);
        }
        Self &set_num_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_num_prefixes_state_flag_set, value);
        }
        Self &set_duration(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_duration_set_value, value);
        }
        Self &set_duration_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_duration_state_flag_set, value);
        }
        Self &set_start_time(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_start_time_set_value, value);
        }
        Self &set_start_time_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_start_time_state_flag_set, value);
        }
        Self &set_end_time(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_end_time_set_value, value);
        }
        Self &set_end_time_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_end_time_state_flag_set, value);
        }
        Self &set_agg_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_ptr_set_value, value);
        }
        Self &set_agg_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_set, value);
        }
        using members<Self>::agg_tc_list;
        lumo_ui_tarn::dp_tc_list_ref agg_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_agg_tc_list_get);
        }
        Self &set_agg_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_agg_tc_list_get, lumo_tarn_dp_tt_table_agg_tc_list_set,
                value);
        }
        Self &adopt_agg_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_agg_tc_list_get, lumo_tarn_dp_tt_table_agg_tc_list_set,
                std::move(value));
        }
        Self &set_agg_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_agg_tc_list_state_flag_set, value);
        }
        Self &set_filter_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_ptr_set_value, value);
        }
        Self &set_filter_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_set, value);
        }
        using members<Self>::filter_tc_list;
        lumo_ui_tarn::dp_tc_list_ref filter_tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_tt_table_filter_tc_list_get);
        }
        Self &set_filter_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_filter_tc_list_get,
                lumo_tarn_dp_tt_table_filter_tc_list_set, value);
        }
        Self &adopt_filter_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_filter_tc_list_get,
                lumo_tarn_dp_tt_table_filter_tc_list_set, std::move(value));
        }
        Self &set_filter_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_filter_tc_list_state_flag_set, value);
        }
        Self &set_learn_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_ptr_set_value, value);
        }
        Self &set_learn_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_set, value);
        }
        using members<Self>::learn_list;
        lumo_ui_tarn::dp_learn_list_ref learn_list() {
            return this->template nested_<lumo_ui_tarn::dp_learn_list_type>(lumo_tarn_dp_tt_table_learn_list_get);
        }
        Self &set_learn_list(lumo_ui_tarn::dp_learn_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_tt_table_learn_list_get, lumo_tarn_dp_tt_table_learn_list_set,
                value);
        }
        Self &adopt_learn_list(lumo_ui_tarn::dp_learn_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_tt_table_learn_list_get, lumo_tarn_dp_tt_table_learn_list_set,
                std::move(value));
        }
        Self &set_learn_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_learn_list_state_flag_set, value);
        }
        Self &set_key_mask(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_key_mask_set_value, value);
        }
        Self &set_key_mask_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_key_mask_state_flag_set, value);
        }
        Self &set_thruput_head_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_head_ptr_set_value, value);
        }
        Self &set_thruput_head_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_set, value);
        }
        Self &set_thruput_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_entries_set_value, value);
        }
        Self &set_thruput_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_thruput_entries_state_flag_set, value);
        }
        Self &set_delay_head_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_head_ptr_set_value, value);
        }
        Self &set_delay_head_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_set, value);
        }
        Self &set_delay_entries(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_entries_set_value, value);
        }
        Self &set_delay_entries_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_delay_entries_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"show_agg_list", &M::show_agg_list, nullptr, &M::show_agg_list_state, nullptr});
        visit(lumo_ui_tarn::member{"show_filter_list", &M::show_filter_list, nullptr, &M::show_filter_list_state,
            nullptr});
        visit(lumo_ui_tarn::member{"show_ll_header", &M::show_ll_header, nullptr, &M::show_ll_header_state, nullptr});
        visit(lumo_ui_tarn::member{"show_ll_list", &M::show_ll_list, nullptr, &M::show_ll_list_state, nullptr});
        visit(lumo_ui_tarn::member{"display_all", &M::display_all, nullptr, &M::display_all_state, nullptr});
        visit(lumo_ui_tarn::member{"display_tc", &M::display_tc, nullptr, &M::display_tc_state, nullptr});
        visit(lumo_ui_tarn::member{"display_ll", &M::display_ll, nullptr, &M::display_ll_state, nullptr});
        visit(lumo_ui_tarn::member{"fdb_info", &M::fdb_info, nullptr, &M::fdb_info_state, nullptr});
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, nullptr, &M::lumo_num_state, nullptr});
        visit(lumo_ui_tarn::member{"state", &M::state, nullptr, &M::state_state, nullptr});
        visit(lumo_ui_tarn::member{"learn_type", &M::learn_type, nullptr, &M::learn_type_state, nullptr});
        visit(lumo_ui_tarn::member{"agg_type", &M::agg_type, nullptr, &M::agg_type_state, nullptr});
        visit(lumo_ui_tarn::member{"min_mask", &M::min_mask, nullptr, &M::min_mask_state, nullptr});
        visit(lumo_ui_tarn::member{"tt_bit_flags", &M::tt_bit_flags, nullptr, &M::tt_bit_flags_state, nullptr});
        visit(lumo_ui_tarn::member{"aging_type", &M::aging_type, nullptr, &M::aging_type_state, nullptr});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, &M::num_prefixes_state, nullptr});
        visit(lumo_ui_tarn::member{"duration", &M::duration, nullptr, &M::duration_state, nullptr});
        visit(lumo_ui_tarn::member{"start_time", &M::start_time, nullptr, &M::start_time_state, nullptr});
        visit(lumo_ui_tarn::member{"end_time", &M::end_time, nullptr, &M::end_time_state, nullptr});
        visit(lumo_ui_tarn::member{"agg_tc_list_ptr", &M::agg_tc_list_ptr, nullptr, &M::agg_tc_list_ptr_state,
            nullptr});
        visit(lumo_ui_tarn::member{"agg_tc_list", &M::agg_tc_list, nullptr, &M::agg_tc_list_state, nullptr});
        visit(lumo_ui_tarn::member{"filter_tc_list_ptr", &M::filter_tc_list_ptr, nullptr, &M::filter_tc_list_ptr_state,
            nullptr});
        visit(lumo_ui_tarn::member{"filter_tc_list", &M::filter_tc_list, nullptr, &M::filter_tc_list_state, nullptr});
        visit(lumo_ui_tarn::member{"learn_list_ptr", &M::learn_list_ptr, nullptr, &M::learn_list_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"learn_list", &M::learn_list, nullptr, &M::learn_list_state, nullptr});
        visit(lumo_ui_tarn::member{"key_mask", &M::key_mask, nullptr, &M::key_mask_state, nullptr});
        visit(lumo_ui_tarn::member{"thruput_head_ptr", &M::thruput_head_ptr, nullptr, &M::thruput_head_ptr_state,
            nullptr});
        visit(lumo_ui_tarn::member{"thruput_entries", &M::thruput_entries, nullptr, &M::thruput_entries_state,
            nullptr});
        visit(lumo_ui_tarn::member{"delay_head_ptr", &M::delay_head_ptr, nullptr, &M::delay_head_ptr_state, nullptr});
        visit(lumo_ui_tarn::member{"delay_entries", &M::delay_entries, nullptr, &M::delay_entries_state, nullptr});
    }
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
using dp_tt_table = record<dp_tt_table_type>;  ///< owns one
using dp_tt_table_ref = record_ref<dp_tt_table_type>;  ///< borrows one
using dp_tt_table_view = record_view<dp_tt_table_type>;  ///< borrows one to read it

/// One traffic table for each processor. C type: lumo_tarn_dp_tt_table_data.
struct dp_tt_table_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_tt_table_data);
    static constexpr bool owns_blocks = true;
    struct lumo_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_tt_table_data, num_lumos, lumo_data);
        using element = lumo_ui_tarn::dp_tt_table_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_tt_table_data_type, Self> {
    public:
        using detail::operations<dp_tt_table_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_dp_tt_table_data_show_header_get_value) != 0; }
        /// Number of elements in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_tt_table_data_num_lumos_get_value); }
        /// Tables, one for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_tt_table_data_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_tt_table_data_lumo_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_show_header_state_flag_set, value);
        }
        using members<Self>::lumo_data;
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_tt_table_data_lumo_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", &M::lumo_data, nullptr, &M::lumo_data_state, nullptr});
    }
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
using dp_tt_table_data = record<dp_tt_table_data_type>;  ///< owns one
using dp_tt_table_data_ref = record_ref<dp_tt_table_data_type>;  ///< borrows one
using dp_tt_table_data_view = record_view<dp_tt_table_data_type>;  ///< borrows one to read it

/// Traffic classes of one prefix on one processor. C type: lumo_tarn_dp_mp_tc_prefix.
struct dp_mp_tc_prefix_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_mp_tc_prefix);
    static constexpr bool owns_blocks = true;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_tc_prefix_type, Self> {
    public:
        using detail::operations<dp_mp_tc_prefix_type, Self>::operations;

        /// Number of the lumo processor that this entry describes.
        std::uint8_t lumo_num() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_lumo_num_get_value); }
        /// The entry's address on the client side.
        std::uint64_t cl_addr() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_cl_addr_get_value); }
        /// Location of the head of the class list in memory.
        lumo_ui_tarn::exmem_info_view tc_list_head() const {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_head_get);
        }
        /// Link of the list head to its successor in the data plane.
        std::uint64_t tc_list_head_next() const {
            return this->call_(lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_get_value);
        }
        /// Traffic classes.
        lumo_ui_tarn::dp_tc_list_view tc_list() const {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_get);
        }
        /// Selection flag of the show request.
        bool show_pfx_comm() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_get_value) != 0; }

        /// @cond states
        std::optional<std::uint8_t> lumo_num_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_lumo_num_state_flag_get);
        }
        std::optional<std::uint8_t> cl_addr_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_cl_addr_state_flag_get);
        }
        std::optional<std::uint8_t> tc_list_head_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_tc_list_head_state_flag_get);
        }
        std::optional<std::uint8_t> tc_list_head_next_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_state_flag_get);
        }
        std::optional<std::uint8_t> tc_list_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_tc_list_state_flag_get);
        }
        std::optional<std::uint8_t> show_pfx_comm_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_lumo_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_num_set_value, value);
        }
        Self &set_lumo_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_num_state_flag_set, value);
        }
        Self &set_cl_addr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_cl_addr_set_value, value);
        }
        Self &set_cl_addr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_cl_addr_state_flag_set, value);
        }
        using members<Self>::tc_list_head;
        lumo_ui_tarn::exmem_info_ref tc_list_head() {
            return this->template nested_<lumo_ui_tarn::exmem_info_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_head_get);
        }
        Self &set_tc_list_head(lumo_ui_tarn::exmem_info_view value) {
            return this->assign_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_get,
                lumo_tarn_dp_mp_tc_prefix_tc_list_head_set, value);
        }
        Self &adopt_tc_list_head(lumo_ui_tarn::exmem_info &&value) {
            return this->adopt_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_get,
                lumo_tarn_dp_mp_tc_prefix_tc_list_head_set, std::move(value));
        }
        Self &set_tc_list_head_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_state_flag_set, value);
        }
        Self &set_tc_list_head_next(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_set_value, value);
        }
        Self &set_tc_list_head_next_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_state_flag_set, value);
        }
        using members<Self>::tc_list;
        lumo_ui_tarn::dp_tc_list_ref tc_list() {
            return this->template nested_<lumo_ui_tarn::dp_tc_list_type>(lumo_tarn_dp_mp_tc_prefix_tc_list_get);
        }
        Self &set_tc_list(lumo_ui_tarn::dp_tc_list_view value) {
            return this->assign_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_get, lumo_tarn_dp_mp_tc_prefix_tc_list_set,
                value);
        }
        Self &adopt_tc_list(lumo_ui_tarn::dp_tc_list &&value) {
            return this->adopt_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_get, lumo_tarn_dp_mp_tc_prefix_tc_list_set,
                std::move(value));
        }
        Self &set_tc_list_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_tc_list_state_flag_set, value);
        }
        Self &set_show_pfx_comm(bool value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_show_pfx_comm_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lumo_num", &M::lumo_num, nullptr, &M::lumo_num_state, nullptr});
        visit(lumo_ui_tarn::member{"cl_addr", &M::cl_addr, nullptr, &M::cl_addr_state, nullptr});
        visit(lumo_ui_tarn::member{"tc_list_head", &M::tc_list_head, nullptr, &M::tc_list_head_state, nullptr});
        visit(lumo_ui_tarn::member{"tc_list_head_next", &M::tc_list_head_next, nullptr, &M::tc_list_head_next_state,
            nullptr});
        visit(lumo_ui_tarn::member{"tc_list", &M::tc_list, nullptr, &M::tc_list_state, nullptr});
        visit(lumo_ui_tarn::member{"show_pfx_comm", &M::show_pfx_comm, nullptr, &M::show_pfx_comm_state, nullptr});
    }
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
using dp_mp_tc_prefix = record<dp_mp_tc_prefix_type>;  ///< owns one
using dp_mp_tc_prefix_ref = record_ref<dp_mp_tc_prefix_type>;  ///< borrows one
using dp_mp_tc_prefix_view = record_view<dp_mp_tc_prefix_type>;  ///< borrows one to read it

/// One prefix with its entries. C type: lumo_tarn_dp_mp_tc_prefix_lumo_data.
struct dp_mp_tc_prefix_lumo_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_mp_tc_prefix_lumo_data);
    static constexpr bool owns_blocks = true;
    struct lumo_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_mp_tc_prefix_lumo_data, num_lumos, lumo_data);
        using element = lumo_ui_tarn::dp_mp_tc_prefix_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_tc_prefix_lumo_data_type, Self> {
    public:
        using detail::operations<dp_mp_tc_prefix_lumo_data_type, Self>::operations;

        /// Network prefix.
        lumo_ui_tarn::address prefix() const {
            return this->read_address_(lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_get);
        }
        /// Number of elements in lumo_data.
        std::uint8_t num_lumos() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_lumo_data_num_lumos_get_value); }
        /// Entries, one for each processor.
        lumo_ui_tarn::array_view<lumo_data_array> lumo_data() const { return this->template array_<lumo_data_array>(); }

        /// @cond states
        std::optional<std::uint8_t> prefix_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_state_flag_get);
        }
        std::optional<std::uint8_t> lumo_data_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_get,
                lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_set, value);
        }
        Self &set_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_prefix_state_flag_set, value);
        }
        using members<Self>::lumo_data;
        lumo_ui_tarn::array_ref<lumo_data_array> lumo_data() { return this->template array_<lumo_data_array>(); }
        Self &set_lumo_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_lumo_data_lumo_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"prefix", &M::prefix, nullptr, &M::prefix_state, nullptr});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", &M::lumo_data, nullptr, &M::lumo_data_state, nullptr});
    }
    template <class M, class Visit>
    static void visit_writable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"prefix", &M::prefix, &M::set_prefix, &M::prefix_state, &M::set_prefix_state});
        visit(lumo_ui_tarn::member{"num_lumos", &M::num_lumos, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"lumo_data", detail::writable(&M::lumo_data, 0), nullptr, &M::lumo_data_state,
            &M::set_lumo_data_state});
    }
    /// @endcond
};
using dp_mp_tc_prefix_lumo_data = record<dp_mp_tc_prefix_lumo_data_type>;  ///< owns one
using dp_mp_tc_prefix_lumo_data_ref = record_ref<dp_mp_tc_prefix_lumo_data_type>;  ///< borrows one
using dp_mp_tc_prefix_lumo_data_view = record_view<dp_mp_tc_prefix_lumo_data_type>;  ///< borrows one to read it

/// Prefixes with their traffic classes. C type: lumo_tarn_dp_mp_tc_prefix_data.
struct dp_mp_tc_prefix_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_mp_tc_prefix_data);
    static constexpr bool owns_blocks = true;
    struct prefix_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_mp_tc_prefix_data, num_prefixes, prefix_data);
        using element = lumo_ui_tarn::dp_mp_tc_prefix_lumo_data_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_tc_prefix_data_type, Self> {
    public:
        using detail::operations<dp_mp_tc_prefix_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_data_show_header_get_value) != 0; }
        /// Total number of prefixes.
        std::uint32_t total_prefixes() const {
            return this->call_(lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_get_value);
        }
        /// Number of elements in prefix_data.
        std::uint8_t num_prefixes() const { return this->call_(lumo_tarn_dp_mp_tc_prefix_data_num_prefixes_get_value); }
        /// Prefixes.
        lumo_ui_tarn::array_view<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_data_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> total_prefixes_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_state_flag_get);
        }
        std::optional<std::uint8_t> prefix_data_state() const {
            return this->state_(lumo_tarn_dp_mp_tc_prefix_data_prefix_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_show_header_state_flag_set, value);
        }
        Self &set_total_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_set_value, value);
        }
        Self &set_total_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_total_prefixes_state_flag_set, value);
        }
        using members<Self>::prefix_data;
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() { return this->template array_<prefix_data_array>(); }
        Self &set_prefix_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_tc_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"total_prefixes", &M::total_prefixes, nullptr, &M::total_prefixes_state, nullptr});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"prefix_data", &M::prefix_data, nullptr, &M::prefix_data_state, nullptr});
    }
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
using dp_mp_tc_prefix_data = record<dp_mp_tc_prefix_data_type>;  ///< owns one
using dp_mp_tc_prefix_data_ref = record_ref<dp_mp_tc_prefix_data_type>;  ///< borrows one
using dp_mp_tc_prefix_data_view = record_view<dp_mp_tc_prefix_data_type>;  ///< borrows one to read it

/// One prefix as one complex holds it. C type: lumo_tarn_dp_mp_prefix.
struct dp_mp_prefix_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_mp_prefix);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_prefix_type, Self> {
    public:
        using detail::operations<dp_mp_prefix_type, Self>::operations;

        /// Number of the complex that this entry describes.
        std::uint8_t complex_num() const { return this->call_(lumo_tarn_dp_mp_prefix_complex_num_get_value); }
        /// Prefix as the complex holds it.
        lumo_ui_tarn::address prefix() const { return this->read_address_(lumo_tarn_dp_mp_prefix_prefix_get); }
        /// Flags of the prefix, sixteen bits.
        std::uint16_t flags() const { return this->call_(lumo_tarn_dp_mp_prefix_flags_get_value); }
        /// Location of the prefix's class list in the data plane.
        std::uint64_t tc_list_ptr() const { return this->call_(lumo_tarn_dp_mp_prefix_tc_list_ptr_get_value); }

        /// @cond states
        std::optional<std::uint8_t> complex_num_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_complex_num_state_flag_get);
        }
        std::optional<std::uint8_t> prefix_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_prefix_state_flag_get);
        }
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_flags_state_flag_get);
        }
        std::optional<std::uint8_t> tc_list_ptr_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_tc_list_ptr_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_complex_num(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_num_set_value, value);
        }
        Self &set_complex_num_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_num_state_flag_set, value);
        }
        Self &set_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_mp_prefix_prefix_get, lumo_tarn_dp_mp_prefix_prefix_set,
                value);
        }
        Self &set_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_prefix_state_flag_set, value);
        }
        Self &set_flags(std::uint16_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_flags_set_value, value);
        }
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_flags_state_flag_set, value);
        }
        Self &set_tc_list_ptr(std::uint64_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_tc_list_ptr_set_value, value);
        }
        Self &set_tc_list_ptr_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_tc_list_ptr_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"complex_num", &M::complex_num, nullptr, &M::complex_num_state, nullptr});
        visit(lumo_ui_tarn::member{"prefix", &M::prefix, nullptr, &M::prefix_state, nullptr});
        visit(lumo_ui_tarn::member{"flags", &M::flags, nullptr, &M::flags_state, nullptr});
        visit(lumo_ui_tarn::member{"tc_list_ptr", &M::tc_list_ptr, nullptr, &M::tc_list_ptr_state, nullptr});
    }
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
using dp_mp_prefix = record<dp_mp_prefix_type>;  ///< owns one
using dp_mp_prefix_ref = record_ref<dp_mp_prefix_type>;  ///< borrows one
using dp_mp_prefix_view = record_view<dp_mp_prefix_type>;  ///< borrows one to read it

/// One looked-up prefix with its entries. C type: lumo_tarn_dp_mp_prefix_complex_data.
struct dp_mp_prefix_complex_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_mp_prefix_complex_data);
    static constexpr bool owns_blocks = true;
    struct complex_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_mp_prefix_complex_data, num_complexes, complex_data);
        using element = lumo_ui_tarn::dp_mp_prefix_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_prefix_complex_data_type, Self> {
    public:
        using detail::operations<dp_mp_prefix_complex_data_type, Self>::operations;

        /// Prefix that was looked up.
        lumo_ui_tarn::address lookup_prefix() const {
            return this->read_address_(lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_get);
        }
        /// Number of elements in complex_data.
        std::uint8_t num_complexes() const {
            return this->call_(lumo_tarn_dp_mp_prefix_complex_data_num_complexes_get_value);
        }
        /// Entries, one for each complex.
        lumo_ui_tarn::array_view<complex_data_array> complex_data() const {
            return this->template array_<complex_data_array>();
        }

        /// @cond states
        std::optional<std::uint8_t> lookup_prefix_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_state_flag_get);
        }
        std::optional<std::uint8_t> complex_data_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_complex_data_complex_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_lookup_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_get,
                lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_set, value);
        }
        Self &set_lookup_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_data_lookup_prefix_state_flag_set, value);
        }
        using members<Self>::complex_data;
        lumo_ui_tarn::array_ref<complex_data_array> complex_data() {
            return this->template array_<complex_data_array>();
        }
        Self &set_complex_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_complex_data_complex_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"lookup_prefix", &M::lookup_prefix, nullptr, &M::lookup_prefix_state, nullptr});
        visit(lumo_ui_tarn::member{"num_complexes", &M::num_complexes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"complex_data", &M::complex_data, nullptr, &M::complex_data_state, nullptr});
    }
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
using dp_mp_prefix_complex_data = record<dp_mp_prefix_complex_data_type>;  ///< owns one
using dp_mp_prefix_complex_data_ref = record_ref<dp_mp_prefix_complex_data_type>;  ///< borrows one
using dp_mp_prefix_complex_data_view = record_view<dp_mp_prefix_complex_data_type>;  ///< borrows one to read it

/// Looked-up prefixes. C type: lumo_tarn_dp_mp_prefix_data.
struct dp_mp_prefix_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_dp_mp_prefix_data);
    static constexpr bool owns_blocks = true;
    struct prefix_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_dp_mp_prefix_data, num_prefixes, prefix_data);
        using element = lumo_ui_tarn::dp_mp_prefix_complex_data_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<dp_mp_prefix_data_type, Self> {
    public:
        using detail::operations<dp_mp_prefix_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_dp_mp_prefix_data_show_header_get_value) != 0; }
        /// Number of elements in prefix_data.
        std::uint8_t num_prefixes() const { return this->call_(lumo_tarn_dp_mp_prefix_data_num_prefixes_get_value); }
        /// Looked-up prefixes.
        lumo_ui_tarn::array_view<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_data_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> prefix_data_state() const {
            return this->state_(lumo_tarn_dp_mp_prefix_data_prefix_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_show_header_state_flag_set, value);
        }
        using members<Self>::prefix_data;
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() { return this->template array_<prefix_data_array>(); }
        Self &set_prefix_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_dp_mp_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"prefix_data", &M::prefix_data, nullptr, &M::prefix_data_state, nullptr});
    }
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
using dp_mp_prefix_data = record<dp_mp_prefix_data_type>;  ///< owns one
using dp_mp_prefix_data_ref = record_ref<dp_mp_prefix_data_type>;  ///< borrows one
using dp_mp_prefix_data_view = record_view<dp_mp_prefix_data_type>;  ///< borrows one to read it

/// One prefix of the adaptation layer. C type: lumo_tarn_pal_mp_prefix.
struct pal_mp_prefix_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_pal_mp_prefix);
    static constexpr bool owns_blocks = false;
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<pal_mp_prefix_type, Self> {
    public:
        using detail::operations<pal_mp_prefix_type, Self>::operations;

        /// Identifier of the prefix.
        std::uint64_t id() const { return this->call_(lumo_tarn_pal_mp_prefix_id_get_value); }
        /// Flags of the prefix, eight bits: half the width of flags in lumo_tarn_dp_mp_prefix.
        std::uint8_t flags() const { return this->call_(lumo_tarn_pal_mp_prefix_flags_get_value); }
        /// Network prefix.
        lumo_ui_tarn::address prefix() const { return this->read_address_(lumo_tarn_pal_mp_prefix_prefix_get); }
        /// Size of the prefix's class list.
        std::uint32_t tc_list_size() const { return this->call_(lumo_tarn_pal_mp_prefix_tc_list_size_get_value); }

        /// @cond states
        std::optional<std::uint8_t> id_state() const { return this->state_(lumo_tarn_pal_mp_prefix_id_state_flag_get); }
        std::optional<std::uint8_t> flags_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_flags_state_flag_get);
        }
        std::optional<std::uint8_t> prefix_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_prefix_state_flag_get);
        }
        std::optional<std::uint8_t> tc_list_size_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_tc_list_size_state_flag_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_id(std::uint64_t value) { return this->write_(*this, lumo_tarn_pal_mp_prefix_id_set_value, value); }
        Self &set_id_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_id_state_flag_set, value);
        }
        Self &set_flags(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_flags_set_value, value);
        }
        Self &set_flags_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_flags_state_flag_set, value);
        }
        Self &set_prefix(const lumo_ui_tarn::address &value) {
            return this->write_address_(*this, lumo_tarn_pal_mp_prefix_prefix_get, lumo_tarn_pal_mp_prefix_prefix_set,
                value);
        }
        Self &set_prefix_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_prefix_state_flag_set, value);
        }
        Self &set_tc_list_size(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_tc_list_size_set_value, value);
        }
        Self &set_tc_list_size_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_tc_list_size_state_flag_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"id", &M::id, nullptr, &M::id_state, nullptr});
        visit(lumo_ui_tarn::member{"flags", &M::flags, nullptr, &M::flags_state, nullptr});
        visit(lumo_ui_tarn::member{"prefix", &M::prefix, nullptr, &M::prefix_state, nullptr});
        visit(lumo_ui_tarn::member{"tc_list_size", &M::tc_list_size, nullptr, &M::tc_list_size_state, nullptr});
    }
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
using pal_mp_prefix = record<pal_mp_prefix_type>;  ///< owns one
using pal_mp_prefix_ref = record_ref<pal_mp_prefix_type>;  ///< borrows one
using pal_mp_prefix_view = record_view<pal_mp_prefix_type>;  ///< borrows one to read it

/// Prefixes of the adaptation layer. C type: lumo_tarn_pal_mp_prefix_data.
struct pal_mp_prefix_data_type {
    /// @cond names
    LUMO_UI_TARN_RECORD(lumo_tarn_pal_mp_prefix_data);
    static constexpr bool owns_blocks = true;
    struct prefix_data_array {
        LUMO_UI_TARN_ARRAY(lumo_tarn_pal_mp_prefix_data, num_prefixes, prefix_data);
        using element = lumo_ui_tarn::pal_mp_prefix_type;
        using count = std::uint8_t;
    };
    /// @endcond

    /// Reads the members.
    template <class Self>
    class members : public detail::operations<pal_mp_prefix_data_type, Self> {
    public:
        using detail::operations<pal_mp_prefix_data_type, Self>::operations;

        /// Selection flag of the show request.
        bool show_header() const { return this->call_(lumo_tarn_pal_mp_prefix_data_show_header_get_value) != 0; }
        /// Total number of prefixes.
        std::uint32_t total_prefixes() const {
            return this->call_(lumo_tarn_pal_mp_prefix_data_total_prefixes_get_value);
        }
        /// Number of elements in prefix_data.
        std::uint8_t num_prefixes() const { return this->call_(lumo_tarn_pal_mp_prefix_data_num_prefixes_get_value); }
        /// Prefixes.
        lumo_ui_tarn::array_view<prefix_data_array> prefix_data() const {
            return this->template array_<prefix_data_array>();
        }

        /// @cond states
        std::optional<std::uint8_t> show_header_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_data_show_header_state_flag_get);
        }
        std::optional<std::uint8_t> total_prefixes_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_data_total_prefixes_state_flag_get);
        }
        std::optional<std::uint8_t> prefix_data_state() const {
            return this->state_(lumo_tarn_pal_mp_prefix_data_prefix_data_state_flag_whole_get);
        }
        /// @endcond
    };
    /// @cond setters, and how for_each_member finds the members
    template <class Self>
    class owner_writers : public members<Self> {
    public:
        using members<Self>::members;
        Self &set_show_header(bool value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_show_header_set_value,
                static_cast<std::uint8_t>(value));
        }
        Self &set_show_header_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_show_header_state_flag_set, value);
        }
        Self &set_total_prefixes(std::uint32_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_total_prefixes_set_value, value);
        }
        Self &set_total_prefixes_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_total_prefixes_state_flag_set, value);
        }
        using members<Self>::prefix_data;
        lumo_ui_tarn::array_ref<prefix_data_array> prefix_data() { return this->template array_<prefix_data_array>(); }
        Self &set_prefix_data_state(std::uint8_t value) {
            return this->write_(*this, lumo_tarn_pal_mp_prefix_data_prefix_data_state_flag_whole_set, value);
        }
    };
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
    static void visit_readable_(Visit &&visit) {
        visit(lumo_ui_tarn::member{"show_header", &M::show_header, nullptr, &M::show_header_state, nullptr});
        visit(lumo_ui_tarn::member{"total_prefixes", &M::total_prefixes, nullptr, &M::total_prefixes_state, nullptr});
        visit(lumo_ui_tarn::member{"num_prefixes", &M::num_prefixes, nullptr, nullptr, nullptr});
        visit(lumo_ui_tarn::member{"prefix_data", &M::prefix_data, nullptr, &M::prefix_data_state, nullptr});
    }
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
using pal_mp_prefix_data = record<pal_mp_prefix_data_type>;  ///< owns one
using pal_mp_prefix_data_ref = record_ref<pal_mp_prefix_data_type>;  ///< borrows one
using pal_mp_prefix_data_view = record_view<pal_mp_prefix_data_type>;  ///< borrows one to read it

/// lumo_tarn_debug_setting_msg carries one lumo_tarn_debug_setting.
struct debug_setting_msg_type {
    using payload = lumo_ui_tarn::debug_setting_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_debug_setting_msg, lumo_tarn_debug_setting);
};
using debug_setting_msg = message<debug_setting_msg_type>;  ///< owns one
using debug_setting_msg_ref = message_ref<debug_setting_msg_type>;  ///< borrows one
using debug_setting_msg_view = message_view<debug_setting_msg_type>;  ///< borrows one to read it

/// lumo_tarn_dp_debug_setting_msg carries one lumo_tarn_dp_debug_setting_data.
struct dp_debug_setting_msg_type {
    using payload = lumo_ui_tarn::dp_debug_setting_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_dp_debug_setting_msg, lumo_tarn_dp_debug_setting_data);
};
using dp_debug_setting_msg = message<dp_debug_setting_msg_type>;  ///< owns one
using dp_debug_setting_msg_ref = message_ref<dp_debug_setting_msg_type>;  ///< borrows one
using dp_debug_setting_msg_view = message_view<dp_debug_setting_msg_type>;  ///< borrows one to read it

/// lumo_tarn_cl_appl_msg carries one lumo_tarn_cl_appl_data.
struct cl_appl_msg_type {
    using payload = lumo_ui_tarn::cl_appl_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_cl_appl_msg, lumo_tarn_cl_appl_data);
};
using cl_appl_msg = message<cl_appl_msg_type>;  ///< owns one
using cl_appl_msg_ref = message_ref<cl_appl_msg_type>;  ///< borrows one
using cl_appl_msg_view = message_view<cl_appl_msg_type>;  ///< borrows one to read it

/// lumo_tarn_cl_cfg_msg carries one lumo_tarn_cl_cfg_data.
struct cl_cfg_msg_type {
    using payload = lumo_ui_tarn::cl_cfg_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_cl_cfg_msg, lumo_tarn_cl_cfg_data);
};
using cl_cfg_msg = message<cl_cfg_msg_type>;  ///< owns one
using cl_cfg_msg_ref = message_ref<cl_cfg_msg_type>;  ///< borrows one
using cl_cfg_msg_view = message_view<cl_cfg_msg_type>;  ///< borrows one to read it

/// lumo_tarn_dp_intf_msg carries one lumo_tarn_dp_intf_data.
struct dp_intf_msg_type {
    using payload = lumo_ui_tarn::dp_intf_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_dp_intf_msg, lumo_tarn_dp_intf_data);
};
using dp_intf_msg = message<dp_intf_msg_type>;  ///< owns one
using dp_intf_msg_ref = message_ref<dp_intf_msg_type>;  ///< borrows one
using dp_intf_msg_view = message_view<dp_intf_msg_type>;  ///< borrows one to read it

/// lumo_tarn_dp_appl_msg carries one lumo_tarn_dp_appl_data.
struct dp_appl_msg_type {
    using payload = lumo_ui_tarn::dp_appl_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_dp_appl_msg, lumo_tarn_dp_appl_data);
};
using dp_appl_msg = message<dp_appl_msg_type>;  ///< owns one
using dp_appl_msg_ref = message_ref<dp_appl_msg_type>;  ///< borrows one
using dp_appl_msg_view = message_view<dp_appl_msg_type>;  ///< borrows one to read it

/// lumo_tarn_dp_tt_msg carries one lumo_tarn_dp_tt_table_data.
struct dp_tt_msg_type {
    using payload = lumo_ui_tarn::dp_tt_table_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_dp_tt_msg, lumo_tarn_dp_tt_table_data);
};
using dp_tt_msg = message<dp_tt_msg_type>;  ///< owns one
using dp_tt_msg_ref = message_ref<dp_tt_msg_type>;  ///< borrows one
using dp_tt_msg_view = message_view<dp_tt_msg_type>;  ///< borrows one to read it

/// lumo_tarn_dp_mp_tc_msg carries one lumo_tarn_dp_mp_tc_prefix_data.
struct dp_mp_tc_msg_type {
    using payload = lumo_ui_tarn::dp_mp_tc_prefix_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_dp_mp_tc_msg, lumo_tarn_dp_mp_tc_prefix_data);
};
using dp_mp_tc_msg = message<dp_mp_tc_msg_type>;  ///< owns one
using dp_mp_tc_msg_ref = message_ref<dp_mp_tc_msg_type>;  ///< borrows one
using dp_mp_tc_msg_view = message_view<dp_mp_tc_msg_type>;  ///< borrows one to read it

/// lumo_tarn_dp_mp_prefix_msg carries one lumo_tarn_dp_mp_prefix_data.
struct dp_mp_prefix_msg_type {
    using payload = lumo_ui_tarn::dp_mp_prefix_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_dp_mp_prefix_msg, lumo_tarn_dp_mp_prefix_data);
};
using dp_mp_prefix_msg = message<dp_mp_prefix_msg_type>;  ///< owns one
using dp_mp_prefix_msg_ref = message_ref<dp_mp_prefix_msg_type>;  ///< borrows one
using dp_mp_prefix_msg_view = message_view<dp_mp_prefix_msg_type>;  ///< borrows one to read it

/// lumo_tarn_pal_mp_prefix_msg carries one lumo_tarn_pal_mp_prefix_data.
struct pal_mp_prefix_msg_type {
    using payload = lumo_ui_tarn::pal_mp_prefix_data_type;  ///< the type of its payload
    LUMO_UI_TARN_MESSAGE(lumo_tarn_pal_mp_prefix_msg, lumo_tarn_pal_mp_prefix_data);
};
using pal_mp_prefix_msg = message<pal_mp_prefix_msg_type>;  ///< owns one
using pal_mp_prefix_msg_ref = message_ref<pal_mp_prefix_msg_type>;  ///< borrows one
using pal_mp_prefix_msg_view = message_view<pal_mp_prefix_msg_type>;  ///< borrows one to read it

/// lumo_tarn_pal_debug_rsp: bundle of lumo_tarn_debug_setting_msg messages. See bundle_writer and bundle_reader.
struct pal_debug_rsp {
    using message = lumo_ui_tarn::debug_setting_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_pal_debug_rsp);
};

/// lumo_tarn_cl_debug_rsp: bundle of lumo_tarn_debug_setting_msg messages. See bundle_writer and bundle_reader.
struct cl_debug_rsp {
    using message = lumo_ui_tarn::debug_setting_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_cl_debug_rsp);
};

/// lumo_tarn_dp_debug_rsp: bundle of lumo_tarn_dp_debug_setting_msg messages. See bundle_writer and bundle_reader.
struct dp_debug_rsp {
    using message = lumo_ui_tarn::dp_debug_setting_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_dp_debug_rsp);
};

/// lumo_tarn_cl_appl_cfg_rsp: bundle of lumo_tarn_cl_appl_msg messages. See bundle_writer and bundle_reader.
struct cl_appl_cfg_rsp {
    using message = lumo_ui_tarn::cl_appl_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_cl_appl_cfg_rsp);
};

/// lumo_tarn_cl_cfg_rsp: bundle of lumo_tarn_cl_cfg_msg messages. See bundle_writer and bundle_reader.
struct cl_cfg_rsp {
    using message = lumo_ui_tarn::cl_cfg_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_cl_cfg_rsp);
};

/// lumo_tarn_dp_intf_rsp: bundle of lumo_tarn_dp_intf_msg messages. See bundle_writer and bundle_reader.
struct dp_intf_rsp {
    using message = lumo_ui_tarn::dp_intf_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_dp_intf_rsp);
};

/// lumo_tarn_dp_appl_cfg_rsp: bundle of lumo_tarn_dp_appl_msg messages. See bundle_writer and bundle_reader.
struct dp_appl_cfg_rsp {
    using message = lumo_ui_tarn::dp_appl_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_dp_appl_cfg_rsp);
};

/// lumo_tarn_dp_tt_cfg_rsp: bundle of lumo_tarn_dp_tt_msg messages. See bundle_writer and bundle_reader.
struct dp_tt_cfg_rsp {
    using message = lumo_ui_tarn::dp_tt_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_dp_tt_cfg_rsp);
};

/// lumo_tarn_dp_mp_tc_cfg_rsp: bundle of lumo_tarn_dp_mp_tc_msg messages. See bundle_writer and bundle_reader.
struct dp_mp_tc_cfg_rsp {
    using message = lumo_ui_tarn::dp_mp_tc_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_dp_mp_tc_cfg_rsp);
};

/// lumo_tarn_dp_mp_prefix_cfg_rsp: bundle of lumo_tarn_dp_mp_prefix_msg messages. See bundle_writer and bundle_reader.
struct dp_mp_prefix_cfg_rsp {
    using message = lumo_ui_tarn::dp_mp_prefix_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_dp_mp_prefix_cfg_rsp);
};

/// lumo_tarn_pal_mp_prefix_cfg_rsp: bundle of lumo_tarn_pal_mp_prefix_msg messages. See bundle_writer and bundle_reader.
struct pal_mp_prefix_cfg_rsp {
    using message = lumo_ui_tarn::pal_mp_prefix_msg_type;  ///< the type of its messages
    LUMO_UI_TARN_BUNDLE(lumo_tarn_pal_mp_prefix_cfg_rsp);
};

/// Passes a type as an argument.
template <class T>
struct kind {
    using type = T;  ///< the type
};
/// Calls visit with a kind<T> for each record, in the order of the schema.
/// T owns one, for example exmem_info.
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
/// T names its C functions, for example ha_state_type.
template <class Visit>
void for_each_enumeration(Visit &&visit) {
    visit(kind<ha_state_type>{});
    visit(kind<lumo_direction_type>{});
    visit(kind<mem_desc_type>{});
}
/// Calls visit with a kind<T> for each message, in the order of the schema.
/// T owns one, for example debug_setting_msg.
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
/// T is an argument of bundle_writer, for example pal_debug_rsp.
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

#undef LUMO_UI_TARN_ENUMERATION
#undef LUMO_UI_TARN_RECORD
#undef LUMO_UI_TARN_ARRAY
#undef LUMO_UI_TARN_MESSAGE
#undef LUMO_UI_TARN_BUNDLE

#endif
