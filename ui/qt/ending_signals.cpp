#include "ui/qt/ending_signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace zelvane::qt {

namespace {

constexpr auto kSignals = std::to_array({SIGTERM, SIGINT, SIGHUP});

// All that a signal finds of the program.
volatile std::sig_atomic_t told = -1;

// One byte; a full pipe has told already.
void tell(int) {
  const int before = errno;
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = write(told, &byte, 1);
  errno = before;
}

}  // namespace

EndingSignals::EndingSignals(std::function<void()> quit) : quit_(std::move(quit)) {
  if (pipe2(ends_, O_CLOEXEC | O_NONBLOCK) != 0) {
    throw std::system_error(errno, std::generic_category());
  }
  notifier_.emplace(ends_[0], QSocketNotifier::Read);
  connect(&*notifier_, &QSocketNotifier::activated, this, [this] {
    std::array<char, 64> bytes{};
    [[maybe_unused]] const ssize_t count = read(ends_[0], bytes.data(), bytes.size());
    quit_();
  });
  told = ends_[1];
  for (const int signal : kSignals) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) {
      continue;
    }
    action = {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
  }
}

EndingSignals::~EndingSignals() {
  for (const int signal : kSignals) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == tell) {
      action = {};
      action.sa_handler = SIG_DFL;
      sigaction(signal, &action, nullptr);
    }
  }
  told = -1;
  notifier_.reset();
  close(ends_[0]);
  close(ends_[1]);
}

}  // namespace zelvane::qt
