/* lumo_tarn_ha_state_e.h - high-availability state of a processor.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_ENUMERATIONS_LUMO_TARN_HA_STATE_E_H
#define LUMO_UI_TARN_ENUMERATIONS_LUMO_TARN_HA_STATE_E_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* high-availability state of a processor; an object holds one of these values. */
enum {
    LUMO_TARN_HA_INVALID_STATE = 0,
    LUMO_TARN_HA_RESET_STATE = 1,
    LUMO_TARN_HA_INIT_STATE = 2,
    LUMO_TARN_HA_ACTIVE_SOLO_STATE = 3,
    LUMO_TARN_HA_ACTIVE_REDUNDANT_STATE = 4,
    LUMO_TARN_HA_STANDBY_STATE = 5,
    LUMO_TARN_HA_HOT_STANDBY_STATE = 6,
    LUMO_TARN_HA_FAULT_RECOVERY_STATE = 7,
    LUMO_TARN_HA_QUIESCE_STATE = 8
};

typedef struct lumo_tarn_ha_state_e lumo_tarn_ha_state_e;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_ha_state_e_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_create_cr(mirk_handle *h);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance,
    mirk_type_info *type, uint32_t notify, uint32_t not_used_1, uint8_t flags, void *not_used_2, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_sizeof(void);
LUMO_UI_TARN_API int8_t lumo_tarn_ha_state_e_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_destroy_cr(mirk_handle *h, lumo_tarn_ha_state_e *instance);
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t free_it);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, void **not_used_1, uint32_t not_used_2, uint32_t *err);

/* Value */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance,
    lumo_tarn_ha_state_e *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance,
    uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_is_valid_cr(mirk_handle *h, uint32_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_map_to_user_value(uint32_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_map_to_internal_value(uint32_t value);
LUMO_UI_TARN_API int32_t lumo_tarn_ha_state_e_compare(const lumo_tarn_ha_state_e *a, const lumo_tarn_ha_state_e *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_hash(const lumo_tarn_ha_state_e *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, void *word);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_len_cr(mirk_handle *h);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_ha_state_e *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_ha_state_e *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_ha_state_e *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_print_cr(mirk_handle *h, lumo_tarn_ha_state_e *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_ha_state_e *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_toxml_cr(mirk_handle *h, lumo_tarn_ha_state_e *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_ha_state_e *instance, uint32_t *err, char *message, uint32_t message_size);

LUMO_UI_TARN_END

#endif
