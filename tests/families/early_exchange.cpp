// A complete exchange in a constructor that runs before any constructor of the library: a handle with private types and
// tracking, an instance with an array, its frame, and the reading of a frame whose flag claims an offset. Built as a
// program, and as a library that is initialized before all others.
#include <cstdint>
#include <cstdio>
#include <vector>

#include "lumo_ui_tarn.h"
#include "mirk_platform.h"

namespace {

const char *failure = "the constructor did not run";

const char *exchange() {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = MIRK_PLATFORM_TRACKING_ON;
    options.private_types = 1;
    mirk_handle *h = mirk_platform_handle_open(&options);
    if (h == nullptr) return "no handle";

    std::uint32_t err = 0;
    auto *list = lumo_tarn_dp_tc_list_create(h, 1);
    auto *element = lumo_tarn_dp_tc_create(h, 1);
    if (list == nullptr || element == nullptr) return "no instance";
    const mirk_type_info *type = reinterpret_cast<mirk_object *>(element)->tinfo;
    if (type == &_lumo_tarn_dp_tc_type_info_internal) return "the handle has no type record of its own";
    for (int variant = -128; variant <= 0; ++variant) {
        const mirk_variant_entry &copy = type->variant_info->entries[variant];
        const mirk_variant_entry &own = _lumo_tarn_dp_tc_type_info_internal.variant_info->entries[variant];
        if (own.used_length == 0 || copy.used_length != own.used_length || copy.alloc_slop != own.alloc_slop) {
            return "a length is not there yet";
        }
    }
    lumo_tarn_dp_tc_id_set_value(h, 1, element, 7, &err);
    lumo_tarn_dp_tc_list_tc_list_set(h, 1, list, 2, element, &err);
    const std::uint32_t length = lumo_tarn_dp_tc_list_len(h, 1, list);
    std::vector<std::uint8_t> frame(length + 1);
    const std::uint32_t size =
        lumo_tarn_dp_tc_list_marshal(h, 1, frame.data(), list, static_cast<std::int32_t>(length), &err);
    if (err != 0) return "an operation fails";

    constexpr std::uint8_t claims_an_offset = 0x40;
    frame[1] |= claims_an_offset;
    auto *received = lumo_tarn_dp_tc_list_create(h, 1);
    lumo_tarn_dp_tc_list_unmarshal(h, 1, frame.data(), received, size, 0, &err);
    if (err != 0) return "the frame cannot be read";
    if (lumo_tarn_dp_tc_list_compare(list, received) != 0) return "what was read differs";
    lumo_tarn_dp_tc_list_destroy(h, 1, received);
    lumo_tarn_dp_tc_list_destroy(h, 1, list);
    lumo_tarn_dp_tc_destroy(h, 1, element);
    return mirk_platform_handle_close(h) == 0 ? nullptr : "blocks are left";
}

[[gnu::constructor(101)]] void before_everything() { failure = exchange(); }

}  // namespace

extern "C" __attribute__((visibility("default"))) const char *early_exchange_failure() { return failure; }

#ifndef EARLY_EXCHANGE_LIBRARY
int main() {
    if (failure != nullptr) std::fprintf(stderr, "early exchange: %s\n", failure);
    return failure != nullptr ? 1 : 0;
}
#endif
