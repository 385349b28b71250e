#include "tests/support/kill/kill_tracer.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>
#include <utility>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/kill/disk_calls.h"
#include "tests/support/kill/traced_call.h"

namespace zelvane::test {
namespace {

constexpr unsigned kLongestLife = 300;  // seconds, should the test itself be stopped
constexpr int kCallStop = SIGTRAP | 0x80;

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

[[noreturn]] void live(int startSignal, bool skipSyncs, const KillTracer::Program& program) {
  try {
    alarm(kLongestLife);
    char go = 0;
    if (read(startSignal, &go, 1) != 1) _exit(71);
    close(startSignal);
    stopAtDiskCalls(skipSyncs);
    program();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "traced process: %s\n", error.what());
    _exit(70);
  }
  _exit(0);
}

int eventOf(int status) { return status >> 16; }

pid_t processOf(pid_t thread) {
  std::ifstream status("/proc/" + std::to_string(thread) + "/status");
  for (std::string word; status >> word;) {
    pid_t process = 0;
    if (word == "Tgid:" && status >> process) return process;
  }
  return thread;
}

// One run of a program and all that comes of it.
class Trace {
 public:
  Trace(const KillTracer::Options& options, const std::optional<KillTracer::Moment>& moment)
      : options_(options), moment_(moment) {}
  Trace(const Trace&) = delete;
  Trace& operator=(const Trace&) = delete;
  ~Trace() {
    killAll();
    int status = 0;
    while (!living_.empty() && waitForAny(status) > 0) continue;
  }

  KillTracer::Ending run(const KillTracer::Program& program) {
    start(program);
    int status = 0;
    for (pid_t thread = waitForAny(status); thread > 0; thread = waitForAny(status)) {
      if (WIFSTOPPED(status)) onStop(thread, status);
    }
    return std::move(ending_);
  }

 private:
  void start(const KillTracer::Program& program) {
    std::array<int, 2> startSignal{};
    if (pipe(startSignal.data()) != 0) fail("pipe");
    process_ = fork();
    if (process_ < 0) fail("fork");
    if (process_ == 0) {
      close(startSignal[1]);
      live(startSignal[0], options_.skipSyncs, program);
    }
    living_.insert(process_);
    close(startSignal[0]);
    constexpr long kWatched = PTRACE_O_EXITKILL | PTRACE_O_TRACESECCOMP | PTRACE_O_TRACESYSGOOD |
                              PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK |
                              PTRACE_O_TRACEEXEC;
    const bool seized = ptrace(PTRACE_SEIZE, process_, nullptr, kWatched) == 0;
    const int why = errno;
    const bool started = seized && write(startSignal[1], "!", 1) == 1;
    close(startSignal[1]);
    errno = why;
    if (!started) fail("tracing");
  }

  // Returns a thread that stopped or ended, or nobody (-1) where none is left.
  pid_t waitForAny(int& status) {
    pid_t thread = 0;
    do {
      thread = waitpid(-1, &status, __WALL);
    } while (thread < 0 && errno == EINTR);
    if (thread > 0 && !WIFSTOPPED(status)) onEnd(thread, status);
    return thread;
  }

  void onEnd(pid_t thread, int status) {
    living_.erase(thread);
    if (thread != process_) return;
    ending_.status = status;
    killAll();  // its children
  }

  void onStop(pid_t thread, int status) {
    living_.insert(thread);
    if (dying_) {
      kill(thread, SIGKILL);
      return;
    }
    switch (eventOf(status)) {
      case 0: {
        const int signal = WSTOPSIG(status);
        return goOn(thread, signal == kCallStop ? 0 : signal);
      }
      case PTRACE_EVENT_SECCOMP:
        return onDiskCall(thread);
      case PTRACE_EVENT_STOP:
        if (WSTOPSIG(status) != SIGTRAP) {
          ptrace(PTRACE_LISTEN, thread, nullptr, nullptr);
          return;
        }
        return goOn(thread);
      case PTRACE_EVENT_EXEC: {
        // Whichever thread did it, from now on it has the number of the whole process.
        unsigned long formerThread = 0;
        ptrace(PTRACE_GETEVENTMSG, thread, nullptr, &formerThread);
        if (static_cast<pid_t>(formerThread) != thread) {
          living_.erase(static_cast<pid_t>(formerThread));
        }
        return goOn(thread);
      }
      default:
        return goOn(thread);
    }
  }

  void onDiskCall(pid_t thread) {
    const auto call = TracedCall::of(thread);
    if (!call || !isCounted(thread, *call)) return goOn(thread);
    ending_.calls.push_back(call->text());
    if (!moment_ || ending_.calls.size() != moment_->call) return goOn(thread);
    if (moment_->side == KillTracer::Side::after) finishCall(thread);
    ending_.killed = true;
    killAll();
  }

  bool isCounted(pid_t thread, const TracedCall& call) const {
    return (options_.below.empty() || call.concerns(options_.below)) &&
           (options_.children || processOf(thread) == process_);
  }

  // Meanwhile the other threads come no further than to their next disk call.
  void finishCall(pid_t thread) {
    for (int status = 0; status == 0 || (WIFSTOPPED(status) && WSTOPSIG(status) != kCallStop);) {
      if (ptrace(PTRACE_SYSCALL, thread, nullptr, nullptr) != 0) return;
      if (waitpid(thread, &status, __WALL) != thread) return;
      if (!WIFSTOPPED(status)) onEnd(thread, status);
    }
  }

  // Fails for a thread that was killed meanwhile, whose end is about to be told.
  static void goOn(pid_t thread, int signal = 0) { ptrace(PTRACE_CONT, thread, nullptr, signal); }

  void killAll() {
    dying_ = true;
    for (const pid_t thread : living_) kill(thread, SIGKILL);
  }

  const KillTracer::Options& options_;
  const std::optional<KillTracer::Moment>& moment_;
  KillTracer::Ending ending_;
  pid_t process_ = 0;
  std::set<pid_t> living_;  // threads that were seen and have not ended
  bool dying_ = false;
};

}  // namespace

KillTracer::KillTracer(Options options) : options_(std::move(options)) {
  if (!options_.below.empty()) {
    options_.below = std::filesystem::weakly_canonical(options_.below).string();
  }
}

KillTracer::Program KillTracer::execute(std::vector<std::string> command) {
  return [command = std::move(command)]() mutable {
    alarm(0);  // it may take as long as it likes
    std::vector<char*> arguments;
    for (std::string& argument : command) arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    fail(arguments.front());
  };
}

KillTracer::Ending KillTracer::trace(const std::optional<Moment>& moment,
                                     const Program& program) const {
  return Trace(options_, moment).run(program);
}

}  // namespace zelvane::test
