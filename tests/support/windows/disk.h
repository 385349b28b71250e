// What tests put on a Windows disk. Any path may be long, and end in names that the system usually
// changes or takes for devices; separators are "/" or "\".
#pragma once

#include <string>

#include <windows.h>

namespace zelvane::test {

// Whatever is missing above it is made as well.
void makeFolders(const std::string& path);
void makeFile(const std::string& path, const std::string& content = "content");

// Under Wine a link of the Unix below it.
void makeLink(const std::string& path, const std::string& target);
bool isThere(const std::string& path);

// Attributes as the system counts them.
void setAttributes(const std::string& path, DWORD attributes);
DWORD attributesOf(const std::string& path);

// Nobody may do anything with it any more but give rights back.
void denyEverything(const std::string& path);

}  // namespace zelvane::test
