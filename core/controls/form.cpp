#include "core/controls/form.h"

namespace zelvane::controls {

bool Form::unload(UnloadMode mode) {
  bool cancel = false;
  queryUnload.raise(cancel, mode);
  if (cancel) {
    return false;
  }
  unloaded.raise();
  terminated.raise();
  return true;
}

}  // namespace zelvane::controls
