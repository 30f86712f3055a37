// Writes a record into a frame, reads the frame, and finds an equal record.
#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

#include <cstdio>
#include <vector>

int main() {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    if (h == nullptr) return 3;
    uint32_t err = 0;
    lumo_tarn_debug_setting *sent = lumo_tarn_debug_setting_create(h, 1);
    lumo_tarn_debug_setting *received = lumo_tarn_debug_setting_create(h, 1);
    lumo_tarn_debug_setting_warn_enabled_set_value(h, 1, sent, 1, &err);
    const bool differed = lumo_tarn_debug_setting_compare(sent, received) != 0;
    const uint32_t size = lumo_tarn_debug_setting_len(h, 1, sent);
    std::vector<char> frame(size + 1);
    lumo_tarn_debug_setting_marshal(h, 1, frame.data(), sent, static_cast<int32_t>(size), &err);
    lumo_tarn_debug_setting_unmarshal(h, 1, frame.data(), received, size, 0, &err);
    const bool equal = lumo_tarn_debug_setting_compare(sent, received) == 0;
    lumo_tarn_debug_setting_destroy(h, 1, sent);
    lumo_tarn_debug_setting_destroy(h, 1, received);
    const size_t left = mirk_platform_handle_close(h);
    std::printf("%u bytes, error %u, %zu blocks left\n", size, err, left);
    return differed && equal && err == 0 && left == 0 ? 0 : 1;
}
