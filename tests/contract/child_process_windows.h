// A second process in a test, which runs a piece of the test's own code.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include <windows.h>

namespace zelvane::test {

// Says a line to the test.
using Say = std::function<void(const std::string& line)>;

class ChildProcess {
 public:
  // Windows cannot fork: it starts this program anew with the present test alone. That one runs the
  // test again, up to its first second process; there it runs `body` in its stead and ends with
  // status 0. What the test did before that is done twice. What `body` throws is said and ends it
  // with status 70.
  explicit ChildProcess(const std::function<void(const Say&)>& body);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  // Waits for the next line; empty when the child has ended without another one.
  std::string hearLine();

  // Waits for the child's end; everything it said from now on, and its status.
  std::string hearAll();
  std::uint32_t wait();

  void kill();

 private:
  struct Close {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
  };
  using Handle = std::unique_ptr<HANDLE, Close>;

  void start(HANDLE mouth);

  Handle ear_;
  Handle process_;
};

// The same for the test and its second processes, and for no other test that runs now.
std::string nameOfThisTest();

// For a body: waits for the end that the test will give it.
[[noreturn]] void stayUntilKilled();

// For a body: ends this process here and now.
[[noreturn]] void endWith(std::uint32_t status);

}  // namespace zelvane::test
