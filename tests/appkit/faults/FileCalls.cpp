#include "FileCalls.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace faults {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t none = 6; // no call has so many arguments

/// Where a call's arguments say which file it is on.
struct Arguments {
    unsigned number;
    const char* name;
    std::size_t descriptor; ///< of the file; or of the folder when there is a path as well
    std::size_t path;
};

constexpr Arguments fileCalls[] = {
#ifdef SYS_open // the older half, which newer machines do without
    {SYS_open, "open", none, 0},
    {SYS_creat, "creat", none, 0},
    {SYS_stat, "stat", none, 0},
    {SYS_lstat, "lstat", none, 0},
    {SYS_access, "access", none, 0},
    {SYS_rename, "rename", none, 0},
    {SYS_mkdir, "mkdir", none, 0},
    {SYS_rmdir, "rmdir", none, 0},
    {SYS_unlink, "unlink", none, 0},
    {SYS_symlink, "symlink", none, 1},
    {SYS_link, "link", none, 0},
    {SYS_readlink, "readlink", none, 0},
    {SYS_chmod, "chmod", none, 0},
    {SYS_chown, "chown", none, 0},
    {SYS_lchown, "lchown", none, 0},
    {SYS_utime, "utime", none, 0},
    {SYS_utimes, "utimes", none, 0},
#endif
    {SYS_openat, "openat", 0, 1},
    {SYS_openat2, "openat2", 0, 1},
#ifdef SYS_newfstatat
    {SYS_newfstatat, "newfstatat", 0, 1},
#else // 32-bit machines have calls with wider numbers besides the older ones
    {SYS_stat64, "stat64", none, 0},
    {SYS_lstat64, "lstat64", none, 0},
    {SYS_fstatat64, "fstatat64", 0, 1},
    {SYS_fstat64, "fstat64", 0, none},
    {SYS_truncate64, "truncate64", none, 0},
    {SYS_ftruncate64, "ftruncate64", 0, none},
    {SYS_chown32, "chown32", none, 0},
    {SYS_lchown32, "lchown32", none, 0},
    {SYS_fchown32, "fchown32", 0, none},
    {SYS_utimensat_time64, "utimensat_time64", 0, 1},
#endif
    {SYS_statx, "statx", 0, 1},
    {SYS_faccessat, "faccessat", 0, 1},
    {SYS_faccessat2, "faccessat2", 0, 1},
    {SYS_renameat, "renameat", 0, 1},
    {SYS_renameat2, "renameat2", 0, 1},
    {SYS_mkdirat, "mkdirat", 0, 1},
    {SYS_unlinkat, "unlinkat", 0, 1},
    {SYS_symlinkat, "symlinkat", 1, 2},
    {SYS_linkat, "linkat", 0, 1},
    {SYS_readlinkat, "readlinkat", 0, 1},
    {SYS_fchmodat, "fchmodat", 0, 1},
    {SYS_fchownat, "fchownat", 0, 1},
    {SYS_utimensat, "utimensat", 0, 1},
    {SYS_truncate, "truncate", none, 0},
    {SYS_chdir, "chdir", none, 0},
    {SYS_read, "read", 0, none},
    {SYS_pread64, "pread64", 0, none},
    {SYS_readv, "readv", 0, none},
    {SYS_write, "write", 0, none},
    {SYS_pwrite64, "pwrite64", 0, none},
    {SYS_writev, "writev", 0, none},
    {SYS_getdents64, "getdents64", 0, none},
    {SYS_fstat, "fstat", 0, none},
    {SYS_fsync, "fsync", 0, none},
    {SYS_fdatasync, "fdatasync", 0, none},
    {SYS_ftruncate, "ftruncate", 0, none},
    {SYS_fchmod, "fchmod", 0, none},
    {SYS_fchown, "fchown", 0, none},
    {SYS_close, "close", 0, none},
};

std::string textAt(pid_t process, std::uint64_t address) {
    std::array<char, 4096> bytes{};
    const auto page = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    std::size_t length = 0;
    // Page by page: the text may end right before memory that cannot be read.
    while (length < bytes.size() &&
           std::find(bytes.begin(), bytes.begin() + length, '\0') == bytes.begin() + length) {
        const std::uint64_t next = address + length;
        const iovec here{bytes.data() + length,
                         std::min(bytes.size() - length, static_cast<std::size_t>(page - next % page))};
        const iovec there{reinterpret_cast<void*>(static_cast<std::uintptr_t>(next)), here.iov_len};
        const auto count = process_vm_readv(process, &here, 1, &there, 1, 0);
        if (count <= 0)
            return "";
        length += static_cast<std::size_t>(count);
    }
    return bytes.data();
}

std::string linkOf(pid_t process, const std::string& name) {
    std::error_code failure;
    return fs::read_symlink("/proc/" + std::to_string(process) + "/" + name, failure);
}

std::string fileOf(pid_t process, const std::array<std::uint64_t, none>& arguments, const Arguments& call) {
    const int descriptor =
        call.descriptor == none ? AT_FDCWD : static_cast<int>(arguments.at(call.descriptor));
    const std::string path = call.path == none ? "" : textAt(process, arguments.at(call.path));
    if (fs::path(path).is_absolute())
        return path;
    const fs::path base =
        linkOf(process, descriptor == AT_FDCWD ? "cwd" : "fd/" + std::to_string(descriptor));
    return path.empty() ? base : base / path;
}

} // namespace

std::vector<unsigned> numbersOfFileCalls() {
    std::vector<unsigned> numbers;
    std::transform(std::begin(fileCalls), std::end(fileCalls), std::back_inserter(numbers),
                   [](const Arguments& call) { return call.number; });
    return numbers;
}

FileCall fileCallOf(const seccomp_notif& request) {
    const auto* const call =
        std::find_if(std::begin(fileCalls), std::end(fileCalls), [&](const Arguments& each) {
            return each.number == static_cast<unsigned>(request.data.nr);
        });
    if (call == std::end(fileCalls))
        return {};
    std::array<std::uint64_t, none> arguments{};
    std::copy(std::begin(request.data.args), std::end(request.data.args), arguments.begin());
    const auto process = static_cast<pid_t>(request.pid);
    return {process, call->name, fileOf(process, arguments, *call)};
}

} // namespace faults
