/* A program of the first release, as it was then. It is compiled with that release's headers, linked against nothing
 * but that release's list of names, and run with today's library: it asks for every name, and does one piece of real
 * work. */
#include <stdio.h>
#include <string.h>

#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

#include "needed.h"

#define CHECK(condition)                                   \
    do {                                                   \
        if (!(condition)) {                                \
            printf("line %d: %s\n", __LINE__, #condition); \
            return 1;                                      \
        }                                                  \
    } while (0)

static int every_name_is_there(void) {
    for (size_t i = 0; i < needed_count; ++i) CHECK(needed[i] != NULL);
    CHECK(needed_count != 0);
    return 0;
}

/* The structures that both sides look into. */
static int layouts_are_shared(mirk_handle *h, const lumo_tarn_debug_setting *levels) {
    const mirk_object *object = (const mirk_object *)(const void *)levels;
    CHECK(object->tinfo == &_lumo_tarn_debug_setting_type_info_internal);
    CHECK(strcmp(object->tinfo->name, "lumo_tarn_debug_setting") == 0);
    CHECK(object->tinfo->variant_info->entries[0].num_live > 0);
    CHECK(h->last_error == 0);
    return 0;
}

static int a_message_goes_and_comes_back(mirk_handle *h) {
    uint32_t err = 0, size = 0;
    uint8_t frame[4096 + 1];
    char text[4096];
    lumo_tarn_debug_setting_msg *sent = lumo_tarn_debug_setting_msg_message_create(h, 1), *received = NULL;
    lumo_tarn_debug_setting *levels = lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_get(h, 1, sent, &err);
    CHECK(layouts_are_shared(h, levels) == 0);
    lumo_tarn_debug_setting_warn_enabled_set_value(h, 1, levels, 1, &err);
    size = lumo_tarn_debug_setting_msg_message_marshal(h, 1, frame, sent, 4096, &err);
    CHECK(err == 0 && size == 65 && size == lumo_tarn_debug_setting_msg_message_len(h, 1, sent));
    CHECK(memcmp(frame + 27, message_lumo_tarn_debug_setting_msg_luid, 16) == 0);

    CHECK(lumo_tarn_debug_setting_msg_message_unmarshal_only(h, 1, &received, frame, size, &err) == size);
    CHECK(err == 0 && received != NULL);
    levels = lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_get(h, 1, received, &err);
    CHECK(lumo_tarn_debug_setting_warn_enabled_get_value(h, 1, levels, &err) == 1 && err == 0);
    CHECK(lumo_tarn_debug_setting_msg_message_print(h, 1, text, received, sizeof text, &err) > 0 && err == 0);
    CHECK(strstr(text, "message@lumo_tarn_debug_setting_msg") != NULL);
    lumo_tarn_debug_setting_msg_message_destroy(h, 1, received);
    lumo_tarn_debug_setting_msg_message_destroy(h, 1, sent);
    return 0;
}

int main(void) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    mirk_handle *h = mirk_platform_handle_open(&options);
    CHECK(h != NULL);
    CHECK(every_name_is_there() == 0);
    CHECK(a_message_goes_and_comes_back(h) == 0);
    mirk_platform_handle_close(h);
    return 0;
}
