// What Zelvane has stored of its user's choices, and what a test stores in its stead.
#pragma once

#include <optional>
#include <string>

#include "tests/desktop/windows/registry_tree.h"

namespace zelvane::test {

std::optional<std::string> storedText(const std::string& section, const std::string& key);
void storeText(const std::string& section, const std::string& key, const std::string& text);

// The option of that index, which is stored for the folder that the program is in.
std::optional<std::string> storedOption(int index);
void storeOption(int index, const std::string& text);

// The same in any form: the number 1, say, where the program would store the text "1".
void storeOption(int index, const RegistryData& value);

// A number as the registry has it.
RegistryData number(unsigned char value);

}  // namespace zelvane::test
