#include <QEventLoop>
#include <csignal>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ui/qt/ending_signals.h"

namespace zelvane::test {
namespace {

class EndingSignalsTest : public testing::Test {
 protected:
  // Delivers what waits; a signal to oneself has arrived when raise() returns.
  void deliver() { QEventLoop().processEvents(); }

  int told = 0;
};

TEST_F(EndingSignalsTest, EachBecomesACallInTheEventLoop) {
  qt::EndingSignals signalsHeard([this] { ++told; });

  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    std::raise(signal);
    const int before = told;
    deliver();
    EXPECT_EQ(told, before + 1) << signal;
  }
}

TEST_F(EndingSignalsTest, ManyAtOnceAreOneCall) {
  qt::EndingSignals signalsHeard([this] { ++told; });

  for (int count = 0; count < 3; ++count) {
    std::raise(SIGTERM);
  }
  deliver();
  deliver();

  EXPECT_EQ(told, 1);
}

TEST_F(EndingSignalsTest, OneThatIsIgnoredStaysIgnored) {
  std::signal(SIGHUP, SIG_IGN);
  {
    qt::EndingSignals signalsHeard([this] { ++told; });

    std::raise(SIGHUP);
    deliver();
  }

  EXPECT_EQ(told, 0);
  EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

TEST_F(EndingSignalsTest, AProgramThatIsStartedIsToldAsUsual) {
  qt::EndingSignals signalsHeard([this] { ++told; });

  const pid_t child = fork();
  if (child == 0) {
    execlp("sleep", "sleep", "60", nullptr);
    _exit(99);
  }
  // Whether it has become the other program yet or not, the signal ends it or is told by a pipe
  // that nobody reads; so it is sent until it has ended.
  int status = 0;
  while (waitpid(child, &status, WNOHANG) == 0) {
    kill(child, SIGTERM);
  }

  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

TEST_F(EndingSignalsTest, AfterItTheyAreTheSystemsAgain) {
  {
    qt::EndingSignals signalsHeard([] {});
  }

  EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL);
}

}  // namespace
}  // namespace zelvane::test
