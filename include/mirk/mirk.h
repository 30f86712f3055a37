/** @file
 * mirk.h - the contract: everything that a schema library uses of the runtime. Umbrella header.
 *
 * Rules for every function, unless its own comment says otherwise:
 *
 *   Handle     The first argument. Use each handle from one thread at a time.
 *   ctx_id     A token of the caller. The library passes it on unchanged and never interprets it.
 *   err        The error slot: 0, or an error number of errno.h. Never null. If *err is already set, a function has no
 *              effect and returns 0 or null. A function that fails writes *err only; the library writes last_error.
 *   remaining  Bytes of free space or of data at `buffer`, signed. No function accesses memory beyond it.
 *   Ownership  Arguments stay the caller's and are not used after the call. Results need not be released.
 *   Callbacks  Only mirk_type_info_ptr_get(), the two functions that destroy bundle lists, and
 *              mirklib_lookup_and_update_oid_ref_count() may call functions outside the runtime. The callbacks of the
 *              handle are not subject to this rule.
 *
 * lumo_ui_tarn/families.h explains domain, variant, body, state area, RA data, sentinel and token.
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
