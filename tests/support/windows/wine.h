// Wine, under which the Windows tests run on Linux, and the Linux around it.
#pragma once

#include <string>
#include <vector>

namespace zelvane::test {

// Otherwise this is Windows itself, and nothing else here may be called.
bool runsUnderWine();

// What Linux calls a file or folder whose folder exists.
std::string unixPath(const std::string& path);

// Runs one of the usual tools and waits for its end.
void runUnixTool(const std::string& name, const std::vector<std::string>& arguments);

}  // namespace zelvane::test
