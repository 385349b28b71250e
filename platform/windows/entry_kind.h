// What an entry of a folder is, as far as an erasure treats it differently.
#pragma once

#include <windows.h>

namespace zelvane::platform {

enum class EntryKind {
  file,    //
  link,    // to a file or a folder; deleted like a file
  folder,  //
  place,   // looks like a folder and leads elsewhere: a mounted volume, a junction, another
           // program's placeholder. Neither entered nor deleted.
  other,   // a socket, pipe or device of the Linux that Windows may hold
};

// From an entry's attributes, and from its tag where these call it a reparse point.
EntryKind kindOf(DWORD attributes, DWORD reparseTag);

struct EntryFacts {
  EntryKind kind = EntryKind::other;
  DWORD attributes = 0;
};

// Of what is open, for reading attributes at least. Throws when it cannot be told.
EntryFacts factsOf(HANDLE entry);

}  // namespace zelvane::platform
