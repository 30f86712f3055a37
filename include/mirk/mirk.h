/** @file
 * mirk.h - everything that a schema library asks of the runtime beneath it.
 *
 * Rules that hold for every operation unless its own comment says otherwise:
 *
 *   Handle     The first argument. It belongs to one thread at a time.
 *   ctx_id     A token that the library hands on as it came and never interprets.
 *   err        The error slot: 0, or a system error number (errno.h). Never null. With *err set an operation has no
 *              effect and returns 0 or null. An operation that fails writes the slot only; the caller tells the handle.
 *   remaining  Bytes of room or of data at `buffer`, signed. No operation goes beyond it.
 *   Ownership  Stays where it is. Nothing passed here is kept beyond the call, and no result has to be released.
 *   Calls back Only mirk_type_info_ptr_get, the two bundle list operations and
 *              mirklib_lookup_and_update_oid_ref_count may call code outside the runtime.
 */
#ifndef MIRK_MIRK_H
#define MIRK_MIRK_H

#include "mirk/errors.h"
#include "mirk/handle.h"
#include "mirk/messages.h"
#include "mirk/primitives.h"
#include "mirk/references.h"
#include "mirk/siblings.h"
#include "mirk/state.h"
#include "mirk/text.h"
#include "mirk/types.h"
#include "mirk/wire.h"

#endif
