// What the parts of the popup killer tell each other.
#pragma once

namespace zelvane::popupkiller {

// The window owns the one object; whoever decides about a new window reads it.
struct Events {
  // Whether pop-up windows are stopped.
  bool gPopupKillerActive = false;
};

}  // namespace zelvane::popupkiller
