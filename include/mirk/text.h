/** @file
 * text.h - printed text, XML, reading from documents, and the function behind all hashes.
 *
 * Functions return the number of characters written, without the NUL. Unless their comment says otherwise they write
 * text and NUL completely, or nothing, with EMSGSIZE. EINVAL: a required pointer is null.
 */
#ifndef MIRK_TEXT_H
#define MIRK_TEXT_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Writes `indent` spaces and no NUL. ENOSPC, with nothing written, if they do not fit. */
uint32_t mirk_print_space(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, int32_t remaining,
                          uint32_t *err);
/** Formats as printf does. ENOSPC if text and NUL do not fit: then writes as much as fits, with a NUL unless
 * `remaining` is below 1. Note that `err` precedes the format. */
uint32_t mirk_snprintf(mirk_handle *h, uint32_t ctx_id, char *buffer, int32_t remaining, uint32_t *err,
                       const char *format, ...);

/** Writes the opening tag; a nonzero `state` is written as the attribute `state`. `name` may contain further attributes
 * after a space. */
uint32_t start_tag(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *name, int32_t remaining, uint8_t state,
                   uint32_t *err);
/** Writes the closing tag. `name` must not contain attributes. */
uint32_t end_tag(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *name, int32_t remaining, uint32_t *err);
/** Writes `text_length` characters of the text unchanged. */
uint32_t xml_enum_print(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *text, int32_t remaining,
                        uint32_t text_length, uint32_t *err);

/** Writes the number of nodes at an XPath in a parsed document. There is no error slot: returns 0 or the error number.
 * EINVAL: null, or not an XPath that selects nodes. ENOMEM: allocation failed. */
uint32_t xml_get_element_nodecount(void *document, const char *path, uint32_t *count);
/** Reads the text of the first node, in document order, into `value`, with a NUL. `*length` receives its bytes without
 * the NUL; `length` may be null. There is no error slot: returns 0 or the error number.
 *
 * ENOENT: no such node. ENOSPC: text and NUL do not fit, or `value` is null and the text is not empty; `*length` is
 * written even then. EINVAL: null document or path, or not an XPath that selects nodes.
 * ENOMEM: allocation failed. */
uint32_t xml_get_element_value(void *document, const char *path, char *value, uint32_t value_size, uint32_t *length);

/** Writes a line with the name and the string, indented by `indent` spaces. `chars` has `length` characters without a
 * NUL; it may be null if `length` is 0. */
uint32_t var_string_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name,
                          const char *chars, int32_t remaining, uint32_t length, uint32_t *err);
/** Writes an element with the escaped string as its text; a nonzero `state` is written as its attribute `state`. */
uint32_t var_string_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, const char *chars,
                           int32_t remaining, uint32_t length, uint8_t state, uint32_t *err);
/** Reads the text of the first element at a path into a buffer of `size` bytes, with a NUL. ENOENT: no such element.
 * ENOSPC: text and NUL do not fit. ENOMEM: allocation failed. `message` is not written. */
void var_string_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, char *buffer, uint32_t size,
                         uint32_t *err, char *message, uint32_t message_size);

/** Mixes `length` bytes of data into a seed and returns the result. Equal arguments have equal results in every
 * process. */
uint32_t SuperFastHash(const void *data, uint32_t length, uint32_t seed);

#ifdef __cplusplus
}
#endif
#endif
