// The single error exit of every handler of the window, and the message that it shows.
#pragma once

#include <functional>

namespace zelvane::platform {
class Dialogs;
class Error;
class Identity;
}  // namespace zelvane::platform

namespace zelvane::core {

// Wraps the body of a handler: `handler_([this] { ... })`. A failure inside shows "Error: ", its
// number, " - " and its description, titled with the program's title, and leaves the handler with
// its later steps undone. Nothing escapes but the end of the process.
class Handler {
 public:
  Handler(platform::Dialogs& dialogs, const platform::Identity& identity)
      : dialogs_(dialogs), identity_(identity) {}

  void operator()(const std::function<void()>& body) const;

 private:
  void report(const platform::Error& error) const;

  platform::Dialogs& dialogs_;
  const platform::Identity& identity_;
};

// For the few places that go on after an error on purpose: does the step, and if it fails says
// nothing and goes on. The caller's comment says why.
void ignoringErrors(const std::function<void()>& step);

}  // namespace zelvane::core
