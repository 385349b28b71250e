// What the folder of temporary files holds that is nobody's leftover.
#pragma once

#include <span>
#include <string_view>

#include "platform/linux/folder_entries.h"

namespace zelvane::platform {

// Directly in the folder of temporary files. Services meet their programs there, and a program that
// finds its place gone does not make it again before it is started anew.
struct ServiceName {
  std::string_view pattern;  // "*" stands for any part of the name
  EntryKind kind;            // a folder, or a file; of links and others the name says nothing
  std::string_view whose;    // as the documentation says it
};
std::span<const ServiceName> serviceNames();

bool isOfAService(std::string_view name, EntryKind kind);

}  // namespace zelvane::platform
