// The trash folders of one user.
#pragma once

#include <string>
#include <vector>

#include "platform/linux/descriptor.h"

namespace zelvane::platform {

// Opened folders, home's first, that can be trusted to be the user's own trash: real folders, no
// links, that belong to the user. Such are
//
//     <dataHome>/Trash
//     <volume>/.Trash/<user number>   if .Trash is a real folder in which the users cannot touch
//     each
//                                     other's things (its sticky bit is set)
//     <volume>/.Trash-<user number>
//
// A place that is missing or cannot be trusted is left out.
std::vector<Descriptor> openTrashPlaces(const std::string& dataHome,
                                        const std::vector<std::string>& volumes);

}  // namespace zelvane::platform
