// Pieces of streams, as an input describes them: mostly whole frames, so that few bytes make a long conversation.
#pragma once

#include "fuzz.h"

namespace fuzz {

enum class PieceKind : std::uint8_t { literal, control, message, request, refusal, bundle };
constexpr std::uint8_t piece_kinds = 6;
// Bits of a piece's first byte, apart from its kind.
constexpr std::uint8_t tracked_piece = 0x20, changed_piece = 0x40, cut_piece = 0x80;

Bytes control_frame(std::size_t bundle, std::size_t kind);  // start, abort, commit
Bytes message_frame(std::size_t bundle, bool tracked);      // of the message that the bundle admits
Bytes request_frame(std::size_t bundle, bool tracked);
Bytes refusal_frame();

// The next piece: a byte with its kind and the bits above, what the kind needs, and where it is changed and cut.
Bytes piece(Input &input);

}  // namespace fuzz
