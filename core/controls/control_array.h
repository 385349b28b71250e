// Controls that share one name and are told apart by an index: `chkSettings(0)` to
// `chkSettings(15)`.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "core/controls/control.h"

namespace zelvane::controls {

// A member of an array is found by its name followed by "_" and its index: `chkSettings_12`.
inline std::string memberName(const std::string& array, std::size_t index) {
  return array + "_" + std::to_string(index);
}

// `captionOf` is called with each index.
template <typename ControlType, std::size_t Size, typename CaptionOf>
std::array<ControlType, Size> controlArray(Page& page, const std::string& name,
                                           const CaptionOf& captionOf) {
  return [&]<std::size_t... indices>(std::index_sequence<indices...>) {
    return std::array<ControlType, Size>{
        ControlType(page, memberName(name, indices), std::string(captionOf(indices)))...};
  }
  (std::make_index_sequence<Size>());
}

}  // namespace zelvane::controls
