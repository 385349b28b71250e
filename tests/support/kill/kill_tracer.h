// Runs a program and kills it before or after one of the calls by which it changes the disk.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zelvane::test {

// A program is run once to count its calls, and then once for each call and side:
//
//     KillTracer tracer({.below = home});
//     const std::size_t calls = tracer.run(program).calls.size();
//     for (std::size_t n = 1; n <= calls; ++n) {
//       tracer.runUntil({KillTracer::Side::before, n}, program);
//       // what is on the disk now?
//     }
//
// Counted are the calls that make, name, move, write, cut, sync or delete regular files, folders
// and links (disk_calls.h), those of every thread, and also those that fail. Not seen are changes
// that are made through a file mapped into memory.
//
// The calling process has no other child processes meanwhile: their ends would be lost.
class KillTracer {
 public:
  struct Options {
    // Counts the calls alone that concern this folder or anything below it; empty for all.
    std::string below;
    // Counts the calls of the program's child processes, too. They are killed with it, and ended
    // when it ends, in any case.
    bool children = false;
    // Makes no syncs and counts none: without them a kill finds the same, and sooner.
    bool skipSyncs = false;
  };

  explicit KillTracer(Options options);
  KillTracer() : KillTracer(Options{}) {}

  enum class Side { before, after };
  struct Moment {
    Side side;
    std::size_t call;  // counted from 1
  };

  struct Ending {
    int status = 0;                  // as waitpid gives it
    bool killed = false;             // by this tracer
    std::vector<std::string> calls;  // each counted one: its name and its paths
  };

  // A piece of the test's own code, which a forked process runs and then ends with status 0; what
  // it throws is printed and ends it with status 70.
  using Program = std::function<void()>;

  // A program of its own: its path and its arguments.
  static Program execute(std::vector<std::string> command);

  // Both throw std::system_error where this system does not let a process be traced, and
  // std::runtime_error where the program makes calls that cannot be read.
  Ending run(const Program& program) const { return trace(std::nullopt, program); }
  // Runs to its end a program that makes fewer calls.
  Ending runUntil(const Moment& moment, const Program& program) const {
    return trace(moment, program);
  }

 private:
  Ending trace(const std::optional<Moment>& moment, const Program& program) const;

  Options options_;
};

}  // namespace zelvane::test
