// Which of Linux's system calls change what is on a disk.
#pragma once

#include <cstddef>
#include <span>

namespace zelvane::test {

// Where among a call's arguments a path stands, and the open folder that a relative one starts
// from. Numbers of arguments, from 0; -1 for none.
struct PathArgument {
  int path = -1;
  int folder = -1;
};

// One system call, and what it changes: an open file, or what one or two paths name.
struct DiskCall {
  long number;
  const char* name;
  int descriptor = -1;
  PathArgument first{};
  PathArgument second{};
  // The argument that holds the flags of an opening; it changes something only with some of them.
  int flags = -1;
  bool sync = false;  // makes lasting what was changed before
};

// Reading its flags takes a look into the program's memory.
inline constexpr const char* kOpenByStructure = "openat2";

std::span<const DiskCall> diskCalls();

// The flags with which an opening changes something: O_CREAT, O_TRUNC, O_TMPFILE.
unsigned changingOpenFlags();

// From now on the calling thread, its threads and its child processes stop for their tracer before
// each of the disk calls; the message of the stop is the call's place in `diskCalls()`, or
// `kForeignCall` for a call of another machine's numbering. Where `skipSyncs`, syncs are not made
// at all, and say that they were. Requests by io_uring, which make no calls, are refused as on a
// system that has none. Throws std::system_error.
void stopAtDiskCalls(bool skipSyncs);
inline constexpr std::size_t kForeignCall = 0xFFFF;

}  // namespace zelvane::test
