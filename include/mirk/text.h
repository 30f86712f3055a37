/** @file
 * text.h - rendered text, XML, reading from documents, and the mixer behind all hashes.
 *
 * Results are characters written, the NUL not counted. Unless said otherwise text and NUL fit whole, or nothing is
 * written and err is 90.
 */
#ifndef MIRK_TEXT_H
#define MIRK_TEXT_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Writes exactly `indent` blanks and no NUL; 28 if they do not fit. */
uint32_t mirk_print_space(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, int32_t remaining,
                          uint32_t *err);
/** Writes what fits, with a NUL; 28 if that is not all. err stands in front of the format. */
uint32_t mirk_snprintf(mirk_handle *h, uint32_t ctx_id, char *buffer, int32_t remaining, uint32_t *err,
                       const char *format, ...);

/** The opening tag, showing a nonzero state. `name` may carry attributes behind a blank. */
uint32_t start_tag(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *name, int32_t remaining, uint8_t state,
                   uint32_t *err);
/** The closing tag, which gets the word alone. */
uint32_t end_tag(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *name, int32_t remaining, uint32_t *err);
/** Writes the text as given. */
uint32_t xml_enum_print(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *text, int32_t remaining,
                        uint32_t text_length, uint32_t *err);

/** Look-ups in a parsed document, by XPath. There is no slot: the result is the error number, 22 for what is no path or
 * no document. */
uint32_t xml_get_element_nodecount(void *document, const char *path, uint32_t *count);
/** The text of the first node in document order; 2 if there is none. 28 if it does not fit with its NUL, or if `value`
 * is null and the text is not empty; nothing is written then. `length`, if not null, gets the bytes without the NUL. */
uint32_t xml_get_element_value(void *document, const char *path, char *value, uint32_t value_size, uint32_t *length);

/** A line with the string. A string is `length` characters without a NUL; `chars` may be null with length 0. */
uint32_t var_string_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name,
                          const char *chars, int32_t remaining, uint32_t length, uint32_t *err);
/** An element with the string as its text, escaped, and a nonzero state as an attribute. */
uint32_t var_string_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, const char *chars,
                           int32_t remaining, uint32_t length, uint8_t state, uint32_t *err);
/** Reads an element's text, with a NUL, into a plain buffer and not into a field. 2 absent, 28 too long. The message
 * buffer is left alone. */
void var_string_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, char *buffer, uint32_t size,
                         uint32_t *err, char *message, uint32_t message_size);

/** Mixes data into a seed. The same data, length and seed give the same result in every process. */
uint32_t SuperFastHash(const void *data, uint32_t length, uint32_t seed);

#ifdef __cplusplus
}
#endif
#endif
