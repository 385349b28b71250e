#include "platform/shared/ledger.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

using Entry = Ledger::Entry;
using Kind = Ledger::Kind;

class LedgerTest : public testing::Test {
 protected:
  const Entry startup{Kind::file, "/home/ada/.config/autostart/zelvane.desktop"};
  const Entry value{Kind::registryValue, R"(HKEY_CURRENT_USER\Software\Run\Zelvane)"};

  std::optional<std::string> text;
  int writes = 0;
  Ledger ledger{[this](const Ledger::Change& change) {
    if (auto next = change(text)) {
      text = std::move(next);
      ++writes;
    }
  }};
};

TEST_F(LedgerTest, IsAListOfLinesUnderAHead) {
  ledger.note(startup);
  ledger.note(value);

  EXPECT_EQ(text,
            "Zelvane ledger 1\n"
            "file /home/ada/.config/autostart/zelvane.desktop\n"
            "value HKEY_CURRENT_USER\\Software\\Run\\Zelvane\n");
  EXPECT_EQ(ledger.entries(), (std::vector<Entry>{startup, value}));
}

TEST_F(LedgerTest, WhatIsNotedTwiceIsInItOnceAndWrittenOnce) {
  ledger.note(startup);
  ledger.note(startup);

  EXPECT_EQ(ledger.entries(), std::vector<Entry>{startup});
  EXPECT_EQ(writes, 1);
}

TEST_F(LedgerTest, WhatIsStruckOutIsGoneAndTheRestStays) {
  ledger.note(startup);
  ledger.note(value);

  ledger.strike(startup);

  EXPECT_EQ(ledger.entries(), std::vector<Entry>{value});
}

TEST_F(LedgerTest, StrikingOutWhatIsNotInItMakesNone) {
  ledger.strike(startup);

  EXPECT_EQ(text, std::nullopt);
}

TEST_F(LedgerTest, APlaceOfAnyBytesIsReadAsItWasNoted) {
  const Entry odd{Kind::file, "/tmp/a\nfile /etc/passwd\r100%\x7F \xC3\xA9\xFF"};

  ledger.note(odd);

  EXPECT_EQ(ledger.entries(), std::vector<Entry>{odd});
  EXPECT_EQ(text, "Zelvane ledger 1\nfile /tmp/a%0Afile /etc/passwd%0D100%25%7F \xC3\xA9\xFF\n");
}

TEST_F(LedgerTest, LinesOfALaterVersionStay) {
  text = "Zelvane ledger 1\nfolder /somewhere\nfile /a%ZZ%2";

  ledger.note(startup);
  ledger.strike(startup);

  EXPECT_EQ(text, "Zelvane ledger 1\nfolder /somewhere\nfile /a%ZZ%2\n");
  EXPECT_EQ(ledger.entries(), (std::vector<Entry>{{Kind::file, "/a%ZZ%2"}}));
}

TEST_F(LedgerTest, OneThatIsNotUnderstoodIsRefusedAndStaysAsItIs) {
  for (const char* foreign : {"Zelvane ledger 2\n", "file /a\n", "garbage", ""}) {
    text = foreign;

    EXPECT_THROW(ledger.note(startup), Error) << foreign;
    EXPECT_THROW(ledger.strike(startup), Error) << foreign;
    EXPECT_EQ(text, foreign);
  }
}

}  // namespace
}  // namespace zelvane::platform
