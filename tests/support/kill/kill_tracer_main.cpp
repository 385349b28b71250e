// The kill tracer as a program, for tests in other languages.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <sys/wait.h>

#include "tests/support/kill/kill_tracer.h"

namespace {

using zelvane::test::KillTracer;

constexpr const char* kUsage =
    "usage: kill_tracer [OPTION...] count -- PROGRAM [ARGUMENT...]\n"
    "       kill_tracer [OPTION...] before|after N -- PROGRAM [ARGUMENT...]\n"
    "\n"
    "count runs the program to its end; before and after kill it beside its N-th call that\n"
    "changes the disk.\n"
    "\n"
    "  --below FOLDER  count the calls alone that concern this folder or anything below it\n"
    "  --children      count the calls of the program's children, too\n"
    "  --skip-syncs    make no syncs and count none\n"
    "  --report FILE   write each counted call into this file, one a line\n"
    "\n"
    "The number of counted calls is written to the standard error. Status: that of the program "
    "for\n"
    "count (128 + signal where one ended it); 0 for before and after, 3 where the program ended\n"
    "earlier; 2 for a wrong use or a system that lets no process be traced.\n";

struct Order {
  KillTracer::Options options;
  std::string report;
  std::optional<KillTracer::Moment> moment;
  std::vector<std::string> command;
};

std::optional<std::size_t> numberIn(const std::string& text) {
  char* end = nullptr;
  const unsigned long number = std::strtoul(text.c_str(), &end, 10);
  if (*end != '\0' || number == 0) return std::nullopt;
  return number;
}

// Nothing where it makes no sense.
std::optional<Order> orderIn(const std::vector<std::string>& words) {
  Order order;
  bool said = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    const auto next = [&] { return ++i < words.size() ? words[i] : std::string(); };
    if (word == "--") {
      order.command.assign(words.begin() + static_cast<std::ptrdiff_t>(i) + 1, words.end());
      break;
    }
    if (word == "--below") {
      order.options.below = next();
    } else if (word == "--report") {
      order.report = next();
    } else if (word == "--children") {
      order.options.children = true;
    } else if (word == "--skip-syncs") {
      order.options.skipSyncs = true;
    } else if (word == "count" && !said) {
      said = true;
    } else if ((word == "before" || word == "after") && !said) {
      said = true;
      const auto call = numberIn(next());
      if (!call) return std::nullopt;
      using enum KillTracer::Side;
      order.moment = {word == "before" ? before : after, *call};
    } else {
      return std::nullopt;
    }
  }
  if (!said || order.command.empty()) return std::nullopt;
  return order;
}

void write(const std::string& report, const std::vector<std::string>& calls) {
  std::FILE* file = std::fopen(report.c_str(), "w");
  if (file == nullptr) throw std::runtime_error("cannot write " + report);
  for (const std::string& call : calls) std::fprintf(file, "%s\n", call.c_str());
  std::fclose(file);
}

int carryOut(const Order& order) {
  const KillTracer tracer(order.options);
  const KillTracer::Program program = KillTracer::execute(order.command);
  const KillTracer::Ending ending =
      order.moment ? tracer.runUntil(*order.moment, program) : tracer.run(program);
  if (!order.report.empty()) write(order.report, ending.calls);
  std::fprintf(stderr, "kill_tracer: %zu calls\n", ending.calls.size());
  if (order.moment) return ending.killed ? 0 : 3;
  return WIFSIGNALED(ending.status) ? 128 + WTERMSIG(ending.status) : WEXITSTATUS(ending.status);
}

}  // namespace

int main(int count, char** words) {
  try {
    const auto order = orderIn({words + 1, words + count});
    if (order) return carryOut(*order);
    std::fputs(kUsage, stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kill_tracer: %s\n", error.what());
  }
  return 2;
}
