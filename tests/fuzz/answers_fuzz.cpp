// A request, and whatever a server may send as its answer.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "pieces.h"
#include "tool_target.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/service/client.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned tracked = 0, small_frames = 1, small_answers = 2, via_shift = 3;

// A socket that is listened on for as long as the process runs.
class Listener {
public:
    Listener() : path(fuzz::scratch_folder() + "/socket"), socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        require(path.size() < sizeof address.sun_path, "the path of a socket is short");
        path.copy(address.sun_path, path.size());
        require(::bind(socket_, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0, "a socket can be bound");
        require(::listen(socket_, 1) == 0, "a socket can be listened on");
    }
    int accept() const { return ::accept4(socket_, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC); }

    const std::string path;

private:
    int socket_;
};

// Takes the request, sends as much as there is space for, and hangs up.
fuzz::Bytes answer(int socket, fuzz::Input &input) {
    std::uint8_t request[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    require(::recv(socket, request, sizeof request, 0) > 0, "a client sends a request");
    fuzz::Bytes sent;
    while (!input.empty()) {
        const fuzz::Bytes piece = fuzz::piece(input);
        const ssize_t count = ::send(socket, piece.data(), piece.size(), MSG_NOSIGNAL);
        if (count > 0) sent.insert(sent.end(), piece.begin(), piece.begin() + count);
        if (count < static_cast<ssize_t>(piece.size())) break;
    }
    ::close(socket);
    return sent;
}

void check(const fuzz::Bytes &answer, const Receiver &receiver, const tarn::reflect::BundleOperations &bundle,
           const fuzz::Bytes &sent) {
    require(answer.size() <= sent.size() && std::equal(answer.begin(), answer.end(), sent.begin()),
            "frames are kept as they were sent");
    const std::vector<Frame> frames = split_frames(answer, "answer");
    for (const Frame &frame : frames) {
        const Identity &identity = frame.identity;
        require(identity.is_control() ? identity.bundle == &bundle : admits(bundle, *identity.operations),
                "an answer belongs to its bundle");
        if (identity.is_control()) continue;
        const Item item = receiver.read(frame, "answer");
        rendered(item, Style::text);
        rendered(item, Style::xml);
        rendered(item, Style::json);
    }
    require(frames.size() >= 2 && frames.front().identity.is_control() && frames.back().identity.is_control(),
            "an answer has a start and an end");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const Listener listener;
    fuzz::Input input = fuzz::tool_input(data, size);
    const std::uint8_t byte = input.u8();
    const fuzz::Choice choice(byte);
    const auto bundles = tarn::reflect::bundles();
    const auto &bundle = bundles[input.u8() % bundles.size()];
    AnswerLimits limits;
    if (choice.bit(small_frames)) limits.frame = 100;
    if (choice.bit(small_answers)) limits.answer = 400;
    Receiver receiver(choice.bit(tracked), static_cast<Via>((byte >> via_shift) % via_words().size()));
    constexpr double patience = 20;  // everything is there before it is read
    fuzz::succeeds([&] {
        Connection connection({listener.path, {}}, Deadline(patience), limits);
        const int socket = listener.accept();
        require(socket >= 0, "a client connects");
        connection.request(bundle, choice.bit(tracked));
        const fuzz::Bytes sent = answer(socket, input);
        fuzz::Bytes received;
        receive_answer(connection, receiver, bundle, [&](const Frame &frame) {
            receiver.feed(frame, connection.name());
            receiver.release();
            received.insert(received.end(), frame.bytes.begin(), frame.bytes.end());
        });
        check(received, receiver, bundle, sent);
    });
    return 0;
}
