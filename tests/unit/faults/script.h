// Something that the program does, done again and again with another of its calls failing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/main_window/frm_main.h"
#include "platform/memory/faulty_desktop.h"
#include "tests/unit/faults/facts.h"

namespace zelvane::faults {

using Call = platform::Faults::Call;

// A window on a desktop of its own. A derived script brings both to where it begins, then calls
// `begin`, and does its one thing in `run`.
struct Script {
  // What is known about desktop and window now.
  Facts facts() const {
    Facts all = factsOf(desktop.memory);
    all.merge(factsOf(window));
    return all;
  }

  const std::vector<Call>& failed() const { return desktop.faults.failed(); }

  platform::FaultyDesktop desktop;
  main_window::frmMain window{desktop.ports()};

 protected:
  // From here on calls are counted.
  void begin() {
    desktop.memory.settings.forgetSaves();
    desktop.faults.startOver();
  }
};

// What a model of the program's rules asks: did this call fail?
inline bool didFail(const std::vector<Call>& failed, const std::string& name,
                    const std::string& subject, int occurrence = 1) {
  return std::ranges::count(failed, Call{name, subject, occurrence}) > 0;
}

inline std::string nameOf(const Call& call) {
  return call.name + "(" + call.subject + "), occurrence " + std::to_string(call.occurrence);
}

// Once where nothing fails, and once for each call: runs a new script in which that call alone
// fails, and lets `check` look at what became of it. It is also told what was known before.
template <typename MakeScript, typename Check>
void whicheverCallFails(const MakeScript& make, const Check& check) {
  auto good = make();
  const Facts before = good->facts();
  good->run();
  const std::size_t calls = good->desktop.faults.calls().size();
  ASSERT_GT(calls, 0U);
  check(*good, before);
  for (std::size_t number = 1; number <= calls; ++number) {
    auto script = make();
    script->desktop.faults.failCall(number);
    script->run();
    ASSERT_EQ(script->failed().size(), 1U) << number;
    SCOPED_TRACE("call " + std::to_string(number) + ": " + nameOf(script->failed().front()));
    check(*script, before);
  }
}

// The same for each pair of calls, the later one counted after the earlier one has failed.
template <typename MakeScript, typename Check>
void whicheverTwoCallsFail(const MakeScript& make, const Check& check) {
  auto good = make();
  const Facts before = good->facts();
  good->run();
  const std::size_t calls = good->desktop.faults.calls().size();
  for (std::size_t first = 1; first <= calls; ++first) {
    for (std::size_t second = first + 1; second <= calls; ++second) {
      auto script = make();
      script->desktop.faults.failCall(first);
      script->desktop.faults.failCall(second);
      script->run();
      SCOPED_TRACE("call " + std::to_string(first) + ": " + nameOf(script->failed().front()) +
                   ", and call " + std::to_string(second) + ": " + nameOf(script->failed().back()));
      check(*script, before);
    }
  }
}

}  // namespace zelvane::faults
