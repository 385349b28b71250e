#include "tests/support/linux/child_process.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvane::test {
namespace {

constexpr unsigned kLongestLife = 120;  // seconds, should the test itself be killed

void writeLine(int pipe, const std::string& line) {
  const std::string text = line + "\n";
  if (write(pipe, text.data(), text.size()) != static_cast<ssize_t>(text.size())) _exit(71);
}

}  // namespace

ChildProcess::ChildProcess(const std::function<void(const Say&)>& body) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe");
  process_ = fork();
  if (process_ < 0) throw std::runtime_error("no second process");
  if (process_ == 0) {
    alarm(kLongestLife);
    close(ends[0]);
    try {
      body([&](const std::string& line) { writeLine(ends[1], line); });
    } catch (const std::exception& error) {
      std::fprintf(stderr, "second process: %s\n", error.what());
      _exit(70);
    }
    _exit(0);
  }
  close(ends[1]);
  ear_ = ends[0];
}

ChildProcess::~ChildProcess() {
  kill();
  close(ear_);
}

std::string ChildProcess::hearLine() {
  std::string line;
  for (char c = 0; read(ear_, &c, 1) == 1 && c != '\n';) line += c;
  return line;
}

std::string ChildProcess::hearAll() {
  std::string all;
  for (char c = 0; read(ear_, &c, 1) == 1;) all += c;
  return all;
}

int ChildProcess::wait() {
  if (process_ > 0) {
    while (waitpid(process_, &status_, 0) < 0 && errno == EINTR) continue;
    process_ = 0;
  }
  return status_;
}

void ChildProcess::kill() {
  if (process_ > 0) ::kill(process_, SIGKILL);
  wait();
}

void stayUntilKilled() {
  for (;;) pause();
}

void giveUpPrivileges() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  const __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3] = {};
  if (syscall(SYS_capset, &header, none) != 0) throw std::runtime_error("privileges stay");
}

}  // namespace zelvane::test
