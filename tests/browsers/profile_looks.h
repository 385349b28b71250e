// What is in a profile, as far as an erasure that was killed has to be told from one that was not.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::test {

// A file, or a folder that is one store: whatever happens it is as before the erasure or as after.
struct Look {
  std::string name;
  std::function<std::string()> now;
};

// At profiles that fixture_profiles.h makes. Of a database the rows, and whether it is sound.
std::vector<Look> looksAtFirefox(const std::string& profile);
std::vector<Look> looksAtChromium(const std::string& profile);

// What each of them sees.
std::vector<std::string> seenBy(const std::vector<Look>& looks);

// The names of those that see neither what they saw before nor what they saw after.
std::vector<std::string> neitherBeforeNorAfter(const std::vector<Look>& looks,
                                               const std::vector<std::string>& before,
                                               const std::vector<std::string>& after);

// Every file below the folder that holds the text, or has it in its name; one a line.
std::string filesWith(std::string_view text, const std::string& folder);

// A file's whole content.
std::string contentOf(const std::string& path);

}  // namespace zelvane::test
