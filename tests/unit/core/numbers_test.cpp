#include "core/numbers.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace zelvane::core {
namespace {

using platform::ErrorNumber;

ErrorNumber errorOf(std::string_view text) {
  try {
    toInteger(text);
  } catch (const platform::Error& error) {
    return error.number();
  }
  return {};
}

TEST(Numbers, AStoredNumberMayHaveBlanksSignFractionAndExponent) {
  EXPECT_EQ(toInteger("7"), 7);
  EXPECT_EQ(toInteger("  -12 "), -12);
  EXPECT_EQ(toInteger("+3"), 3);
  EXPECT_EQ(toInteger("1e2"), 100);
  EXPECT_EQ(toInteger("2.4"), 2);
}

TEST(Numbers, HalvesRoundToTheEvenNumber) {
  EXPECT_EQ(toInteger("0.5"), 0);
  EXPECT_EQ(toInteger("1.5"), 2);
  EXPECT_EQ(toInteger("2.5"), 2);
  EXPECT_EQ(toInteger("-1.5"), -2);
  EXPECT_EQ(toInteger("-2.5"), -2);
}

TEST(Numbers, MoreThan16BitsIsOverflow) {
  EXPECT_EQ(toInteger("32767"), 32767);
  EXPECT_EQ(toInteger("-32768"), -32768);
  EXPECT_EQ(errorOf("32768"), ErrorNumber::overflow);
  EXPECT_EQ(errorOf("40000"), ErrorNumber::overflow);
  EXPECT_EQ(errorOf("1e400"), ErrorNumber::overflow);
}

TEST(Numbers, ATextThatIsNoNumberIsTypeMismatch) {
  for (const char* text : {"abc", "", "  ", "1x", "1 2", "--1", "+-1", "nan", "inf", "0x10"}) {
    EXPECT_EQ(errorOf(text), ErrorNumber::typeMismatch) << '"' << text << '"';
  }
}

}  // namespace
}  // namespace zelvane::core
