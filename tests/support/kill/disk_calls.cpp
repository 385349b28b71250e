#include "tests/support/kill/disk_calls.h"

#include <array>
#include <cerrno>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <stddef.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

namespace zelvane::test {
namespace {

#if defined(__x86_64__)
constexpr std::uint32_t kMachine = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t kMachine = AUDIT_ARCH_AARCH64;
#else
#error "The numbers of this machine's system calls are not known to be complete here."
#endif
constexpr std::uint32_t kOtherNumbering = 0x40000000;  // the 32-bit flavour of x86-64

// Some calls are missing on younger machines, where a call with more arguments does their work, and
// some in older headers.
const std::vector<DiskCall> kCalls = {
#ifdef SYS_open
    {.number = SYS_open, .name = "open", .first = {0}, .flags = 1},
    {.number = SYS_creat, .name = "creat", .first = {0}},
    {.number = SYS_rename, .name = "rename", .first = {0}, .second = {1}},
    {.number = SYS_link, .name = "link", .first = {0}, .second = {1}},
    {.number = SYS_unlink, .name = "unlink", .first = {0}},
    {.number = SYS_rmdir, .name = "rmdir", .first = {0}},
    {.number = SYS_mkdir, .name = "mkdir", .first = {0}},
    {.number = SYS_symlink, .name = "symlink", .first = {1}},
    {.number = SYS_mknod, .name = "mknod", .first = {0}},
    {.number = SYS_chmod, .name = "chmod", .first = {0}},
    {.number = SYS_chown, .name = "chown", .first = {0}},
    {.number = SYS_lchown, .name = "lchown", .first = {0}},
    {.number = SYS_utime, .name = "utime", .first = {0}},
    {.number = SYS_utimes, .name = "utimes", .first = {0}},
    {.number = SYS_futimesat, .name = "futimesat", .first = {1, 0}},
#endif
#ifdef SYS_renameat
    {.number = SYS_renameat, .name = "renameat", .first = {1, 0}, .second = {3, 2}},
#endif
    {.number = SYS_openat, .name = "openat", .first = {1, 0}, .flags = 2},
#ifdef SYS_openat2
    {.number = SYS_openat2, .name = kOpenByStructure, .first = {1, 0}},
#endif
    {.number = SYS_renameat2, .name = "renameat2", .first = {1, 0}, .second = {3, 2}},
    {.number = SYS_linkat, .name = "linkat", .first = {1, 0}, .second = {3, 2}},
    {.number = SYS_unlinkat, .name = "unlinkat", .first = {1, 0}},
    {.number = SYS_mkdirat, .name = "mkdirat", .first = {1, 0}},
    {.number = SYS_symlinkat, .name = "symlinkat", .first = {2, 1}},
    {.number = SYS_mknodat, .name = "mknodat", .first = {1, 0}},
    {.number = SYS_fchmodat, .name = "fchmodat", .first = {1, 0}},
#ifdef SYS_fchmodat2
    {.number = SYS_fchmodat2, .name = "fchmodat2", .first = {1, 0}},
#endif
    {.number = SYS_fchownat, .name = "fchownat", .first = {1, 0}},
    {.number = SYS_utimensat, .name = "utimensat", .first = {1, 0}},
    {.number = SYS_truncate, .name = "truncate", .first = {0}},
    {.number = SYS_setxattr, .name = "setxattr", .first = {0}},
    {.number = SYS_lsetxattr, .name = "lsetxattr", .first = {0}},
    {.number = SYS_removexattr, .name = "removexattr", .first = {0}},
    {.number = SYS_lremovexattr, .name = "lremovexattr", .first = {0}},
    {.number = SYS_write, .name = "write", .descriptor = 0},
    {.number = SYS_writev, .name = "writev", .descriptor = 0},
    {.number = SYS_pwrite64, .name = "pwrite64", .descriptor = 0},
    {.number = SYS_pwritev, .name = "pwritev", .descriptor = 0},
    {.number = SYS_pwritev2, .name = "pwritev2", .descriptor = 0},
    {.number = SYS_ftruncate, .name = "ftruncate", .descriptor = 0},
    {.number = SYS_fallocate, .name = "fallocate", .descriptor = 0},
    {.number = SYS_copy_file_range, .name = "copy_file_range", .descriptor = 2},
    {.number = SYS_sendfile, .name = "sendfile", .descriptor = 0},
    {.number = SYS_splice, .name = "splice", .descriptor = 2},
    {.number = SYS_fchmod, .name = "fchmod", .descriptor = 0},
    {.number = SYS_fchown, .name = "fchown", .descriptor = 0},
    {.number = SYS_fsetxattr, .name = "fsetxattr", .descriptor = 0},
    {.number = SYS_fremovexattr, .name = "fremovexattr", .descriptor = 0},
    {.number = SYS_fsync, .name = "fsync", .descriptor = 0, .sync = true},
    {.number = SYS_fdatasync, .name = "fdatasync", .descriptor = 0, .sync = true},
    {.number = SYS_sync_file_range, .name = "sync_file_range", .descriptor = 0, .sync = true},
    {.number = SYS_syncfs, .name = "syncfs", .descriptor = 0, .sync = true},
    {.number = SYS_sync, .name = "sync", .sync = true},
};

constexpr std::uint32_t load(std::size_t offset) { return static_cast<std::uint32_t>(offset); }

// The lower half of an argument, which holds all the flags of an opening.
constexpr std::uint32_t argument(int number) {
  return load(offsetof(seccomp_data, args) + sizeof(std::uint64_t) * static_cast<unsigned>(number));
}

constexpr std::uint32_t stopWith(std::size_t message) {
  return SECCOMP_RET_TRACE | static_cast<std::uint32_t>(message);
}

class Filter {
 public:
  void add(unsigned code, std::uint32_t operand, int whenTrue = 0, int whenFalse = 0) {
    steps_.push_back({static_cast<std::uint16_t>(code), static_cast<std::uint8_t>(whenTrue),
                      static_cast<std::uint8_t>(whenFalse), operand});
  }
  void end(std::uint32_t answer) { add(BPF_RET | BPF_K, answer); }

  void addCall(const DiskCall& call, std::size_t place, bool skipSyncs) {
    const auto number = static_cast<std::uint32_t>(call.number);
    if (call.flags >= 0) {
      add(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 4);
      add(BPF_LD | BPF_W | BPF_ABS, argument(call.flags));
      add(BPF_JMP | BPF_JSET | BPF_K, changingOpenFlags(), 0, 1);
      end(stopWith(place));
      end(SECCOMP_RET_ALLOW);
    } else {
      add(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1);
      // "Error 0" is success without the call.
      end(call.sync && skipSyncs ? std::uint32_t{SECCOMP_RET_ERRNO} : stopWith(place));
    }
  }

  void install() {
    sock_fprog program{static_cast<unsigned short>(steps_.size()), steps_.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0) {
      throw std::system_error(errno, std::generic_category(), "filter of system calls");
    }
  }

 private:
  std::vector<sock_filter> steps_;
};

}  // namespace

std::span<const DiskCall> diskCalls() { return kCalls; }

unsigned changingOpenFlags() {
  // O_TMPFILE has the bit of O_DIRECTORY, too, which changes nothing.
  constexpr unsigned kUnnamed = static_cast<unsigned>(O_TMPFILE) & ~unsigned{O_DIRECTORY};
  return unsigned{O_CREAT} | unsigned{O_TRUNC} | kUnnamed;
}

void stopAtDiskCalls(bool skipSyncs) {
  Filter filter;
  filter.add(BPF_LD | BPF_W | BPF_ABS, load(offsetof(seccomp_data, arch)));
  filter.add(BPF_JMP | BPF_JEQ | BPF_K, kMachine, 1, 0);
  filter.end(stopWith(kForeignCall));
  filter.add(BPF_LD | BPF_W | BPF_ABS, load(offsetof(seccomp_data, nr)));
  filter.add(BPF_JMP | BPF_JGE | BPF_K, kOtherNumbering, 0, 1);
  filter.end(stopWith(kForeignCall));
  filter.add(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(SYS_io_uring_setup), 0, 1);
  filter.end(SECCOMP_RET_ERRNO | ENOSYS);
  for (std::size_t place = 0; place < kCalls.size(); ++place) {
    filter.addCall(kCalls[place], place, skipSyncs);
  }
  filter.end(SECCOMP_RET_ALLOW);
  filter.install();
}

}  // namespace zelvane::test
