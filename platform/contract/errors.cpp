// The sticky error of a handle.
#include "platform/contract/handle.hpp"

using mirk::own;

extern "C" {

void mirk_clear_last_error(mirk_handle *h) {
    own(h)->event(MIRK_PLATFORM_TESTING_CLEAR_ERROR, nullptr, 0, 0, 0);
    h->last_error = 0;
}

void mirk_store_err(mirk_handle *h, uint32_t number) {
    own(h)->event(MIRK_PLATFORM_TESTING_STORE_ERROR, nullptr, 0, number, 0);
    h->last_error = number;
}

void mirk_store_epoch_err(mirk_handle *h, uint32_t number, uint32_t *err) {
    own(h)->event(MIRK_PLATFORM_TESTING_STORE_EPOCH, nullptr, 0, number, 0);
    const bool keep_slot = own(h)->lenient && number == EIDRM;
    if (!keep_slot || err != &h->last_error) h->last_error = number;
    if (!keep_slot) *err = number;
}

}  // extern "C"
