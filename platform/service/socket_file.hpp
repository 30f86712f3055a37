// The file of a listening socket.
#pragma once

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <utility>

#include "platform/contract/contract.hpp"

namespace mirk {

// Several servers that start at the same time could all find a stale file, and each would remove the file of the one
// before. So a server locks a file beside the socket file. The system releases the lock when the process ends.
class SocketFile {
public:
    SocketFile() = default;
    SocketFile(const SocketFile &) = delete;
    SocketFile &operator=(const SocketFile &) = delete;
    ~SocketFile() {
        struct stat now {};
        // Another file may have replaced it.
        if (is_bound_ && ::stat(path_.c_str(), &now) == 0 && is_same(now, bound_)) ::unlink(path_.c_str());
        if (lock_ < 0) return;
        ::unlink(lock_path().c_str());
        ::close(lock_);
    }

    // Makes the path free for bind(): removes a socket file that no process listens on.
    mirk_platform_error reserve(const char *path) {
        if (std::strlen(path) >= sizeof(sockaddr_un::sun_path)) return ENAMETOOLONG;
        path_ = path;
        if (const mirk_platform_error error = lock(); error != 0) return error;
        struct stat there {};
        if (::lstat(path, &there) != 0) return errno == ENOENT ? 0 : last_error();
        if (!S_ISSOCK(there.st_mode)) return EEXIST;
        if (!is_stale()) return EADDRINUSE;
        return ::unlink(path) == 0 ? 0 : last_error();
    }

    // After bind(). Restores access rights that the umask has removed, but never follows a symbolic link that has
    // replaced the file.
    mirk_platform_error bound(mode_t mode) {
        is_bound_ = ::stat(path_.c_str(), &bound_) == 0;
        const bool has_mode = (bound_.st_mode & 07777) == mode;
        return has_mode || ::fchmodat(AT_FDCWD, path_.c_str(), mode, AT_SYMLINK_NOFOLLOW) == 0 ? 0 : last_error();
    }

private:
    static mirk_platform_error last_error() { return static_cast<mirk_platform_error>(errno); }
    static bool is_same(const struct stat &a, const struct stat &b) {
        return a.st_ino == b.st_ino && a.st_dev == b.st_dev;
    }
    std::string lock_path() const { return path_ + ".lock"; }

    mirk_platform_error lock() {
        for (;;) {
            const int file = ::open(lock_path().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
            if (file < 0) return last_error();
            const bool locked = ::flock(file, LOCK_EX | LOCK_NB) == 0;
            const mirk_platform_error error = locked ? 0 : errno == EWOULDBLOCK ? EADDRINUSE : last_error();
            // A server that has just ended may have removed the file after it was opened here.
            struct stat opened {
            }, named{};
            const bool current =
                ::fstat(file, &opened) == 0 && ::stat(lock_path().c_str(), &named) == 0 && is_same(opened, named);
            if (error == 0 && current) {
                lock_ = file;
                return 0;
            }
            ::close(file);
            if (error != 0) return error;
        }
    }

    // Does not wait: if the queue of a listening process is full, connecting fails with EAGAIN.
    bool is_stale() const {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path_.copy(address.sun_path, sizeof address.sun_path - 1);
        const int probe = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        if (probe < 0) return false;
        const bool refused = ::connect(probe, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 &&
                             errno == ECONNREFUSED;
        ::close(probe);
        return refused;
    }

    std::string path_;
    struct stat bound_ {};
    bool is_bound_ = false;
    int lock_ = -1;
};

}  // namespace mirk
