#include "core/handler.h"

#include <exception>
#include <new>

#include "platform/dialogs.h"
#include "platform/error.h"
#include "platform/identity.h"

namespace zelvane::core {

void Handler::operator()(const std::function<void()>& body) const {
  try {
    body();
  } catch (const platform::Error& error) {
    report(error);
  } catch (const std::bad_alloc&) {
    report(platform::Error(platform::ErrorNumber::outOfMemory));
  } catch (const std::exception& unforeseen) {
    report(platform::Error(platform::ErrorNumber::internal, unforeseen.what()));
  }
}

void Handler::report(const platform::Error& error) const {
  dialogs_.show(
      {.text = "Error: " + std::to_string(static_cast<int>(error.number())) + " - " + error.text(),
       .title = identity_.version().title});
}

void ignoringErrors(const std::function<void()>& step) {
  try {
    step();
  } catch (const std::exception&) {
    // Going on is what this is for.
  }
}

}  // namespace zelvane::core
