// Initialisation files in the hands of the system, which keeps some of their sections elsewhere.
#pragma once

#include <optional>
#include <string>

namespace zelvane::platform {

// Does the system keep this section of the file, named without its folder, in the registry? Which
// ones it does, it has in a list of its own there.
bool isKeptInRegistry(const std::wstring& file, const std::string& section);

// The first 255 characters of an entry's text, or nothing where it is missing. A file named without
// its folder is one in the system's folder.
std::optional<std::string> findInSystemsProfile(const std::wstring& file,
                                                const std::string& section, const std::string& key);

// False where the system refuses.
bool writeToSystemsProfile(const std::wstring& file, const std::string& section,
                           const std::string& key, const std::string& text);

}  // namespace zelvane::platform
