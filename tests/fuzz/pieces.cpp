#include "pieces.h"

#include <array>
#include <map>
#include <utility>

namespace fuzz {

namespace {

constexpr std::uint32_t stamp = 7;

const reference::BundleTable &bundle_at(std::size_t number) {
    return reference::bundles()[number % reference::bundles().size()];
}

void append(Bytes &to, const Bytes &bytes) { to.insert(to.end(), bytes.begin(), bytes.end()); }

Bytes whole_piece(PieceKind kind, bool tracked, Input &input) {
    switch (kind) {
        case PieceKind::literal: {
            const auto bytes = input.take(input.u8());
            return {bytes.begin(), bytes.end()};
        }
        case PieceKind::control: {
            const std::uint8_t which = input.u8();
            return control_frame(which / 3U, which % 3U);
        }
        case PieceKind::message:
            return message_frame(input.u8(), tracked);
        case PieceKind::request:
            return request_frame(input.u8(), tracked);
        case PieceKind::refusal:
            return refusal_frame();
        case PieceKind::bundle:
            break;
    }
    const std::uint8_t bundle = input.u8();
    Bytes bytes = control_frame(bundle, 0);
    append(bytes, message_frame(bundle, tracked));
    append(bytes, control_frame(bundle, 2));
    return bytes;
}

}  // namespace

Bytes control_frame(std::size_t bundle, std::size_t kind) {
    constexpr const char *kinds[] = {"start", "abort", "commit"};
    return reference::control_frame(bundle_at(bundle).name, kinds[kind % std::size(kinds)], stamp);
}

Bytes message_frame(std::size_t bundle, bool tracked) {
    static std::map<std::pair<std::string, bool>, Bytes> made;
    const std::string &message = bundle_at(bundle).message;
    Bytes &frame = made[{message, tracked}];
    if (frame.empty()) {
        const std::string &payload = reference::message_table(message).payload;
        frame = reference::message_frame(message, small_value(payload), tracked, stamp);
    }
    return frame;
}

Bytes request_frame(std::size_t bundle, bool tracked) {
    Bytes frame(MIRK_PLATFORM_REQUEST_SIZE_MAX);
    frame.resize(mirk_platform_request_encode(frame.data(), MIRK_PLATFORM_REQUEST_SIZE_MAX, stamp,
                                              bundle_at(bundle).name.c_str(),
                                              tracked ? MIRK_PLATFORM_REQUEST_TRACKED : 0, nullptr));
    return frame;
}

Bytes refusal_frame() {
    Bytes frame(MIRK_PLATFORM_REQUEST_SIZE_MAX);
    frame.resize(
        mirk_platform_refusal_encode(frame.data(), MIRK_PLATFORM_REQUEST_SIZE_MAX, stamp, 2, "refused", nullptr));
    return frame;
}

Bytes piece(Input &input) {
    const std::uint8_t byte = input.u8();
    const auto kind = static_cast<PieceKind>((byte & 0x1F) % piece_kinds);
    Bytes bytes = whole_piece(kind, (byte & tracked_piece) != 0, input);
    if ((byte & changed_piece) != 0 && !bytes.empty()) {
        const std::size_t at = input.u16() % bytes.size();
        bytes[at] = input.u8();
    }
    if ((byte & cut_piece) != 0) bytes.resize(input.u16() % (bytes.size() + 1));
    return bytes;
}

}  // namespace fuzz
