// The library that the tool is linked with here was built without the new member, and building it again would take
// minutes. These keep its place, so that the tool's own work with the member can be seen.
#include <lumo_ui_tarn.h>

#define DWELL_LIMIT_OF(RECORD)                                                                                    \
    uint16_t *RECORD##_dwell_limit_get(mirk_handle *h, uint32_t ctx_id, RECORD *object, uint32_t *err) {          \
        static uint16_t place = 5;                                                                                \
        (void)h, (void)ctx_id, (void)object, (void)err;                                                           \
        return &place;                                                                                            \
    }                                                                                                             \
    uint16_t RECORD##_dwell_limit_get_value(mirk_handle *h, uint32_t ctx_id, RECORD *object, uint32_t *err) {     \
        return *RECORD##_dwell_limit_get(h, ctx_id, object, err);                                                 \
    }                                                                                                             \
    void RECORD##_dwell_limit_set(mirk_handle *h, uint32_t ctx_id, RECORD *object, const uint16_t *value,         \
                                  uint32_t *err) {                                                                \
        *RECORD##_dwell_limit_get(h, ctx_id, object, err) = *value;                                               \
    }                                                                                                             \
    void RECORD##_dwell_limit_set_value(mirk_handle *h, uint32_t ctx_id, RECORD *object, uint16_t value,          \
                                        uint32_t *err) {                                                          \
        *RECORD##_dwell_limit_get(h, ctx_id, object, err) = value;                                                \
    }                                                                                                             \
    uint8_t RECORD##_dwell_limit_state_flag_get(mirk_handle *h, uint32_t ctx_id, RECORD *object, uint32_t *err) { \
        (void)h, (void)ctx_id, (void)object, (void)err;                                                           \
        return 0;                                                                                                 \
    }                                                                                                             \
    void RECORD##_dwell_limit_state_flag_set(mirk_handle *h, uint32_t ctx_id, RECORD *object, uint8_t value,      \
                                             uint32_t *err) {                                                     \
        (void)h, (void)ctx_id, (void)object, (void)value, (void)err;                                              \
    }

DWELL_LIMIT_OF(lumo_tarn_dp_tc)
DWELL_LIMIT_OF(lumo_tarn_dp_debug_setting)
DWELL_LIMIT_OF(lumo_tarn_dp_mp_prefix_complex_data)
