#include "tests/browsers/browser_bed.h"

#include "tests/browsers/profile_looks.h"

namespace zelvane::test {

std::string BrowserBed::read(const std::string& path) { return contentOf(path); }

std::string BrowserBed::filesWith(std::string_view text) const {
  return test::filesWith(text, home);
}

}  // namespace zelvane::test
