// A second process in a test, which runs a piece of the test's own code.
#pragma once

#include <functional>
#include <string>

#include <sys/types.h>

namespace zelvane::test {

// Says a line to the test.
using Say = std::function<void(const std::string& line)>;

class ChildProcess {
 public:
  // Forks; the child runs `body` and then ends with status 0, without leaving the test's frames.
  // What `body` throws is printed and ends it with status 70.
  explicit ChildProcess(const std::function<void(const Say&)>& body);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  // Waits for the next line; empty when the child has ended without another one.
  std::string hearLine();

  // Waits for the child's end; everything it said from now on, and the status as waitpid gives it.
  std::string hearAll();
  int wait();

  void kill();

 private:
  pid_t process_;
  int ear_ = -1;  // reading end of the pipe
  int status_ = 0;
};

// For a body: waits for the end that the test will give it.
[[noreturn]] void stayUntilKilled();

// For a body: from now on it has no right that its user's files do not give it, root's or not.
void giveUpPrivileges();

}  // namespace zelvane::test
