// One trash folder as the desktops lay it out.
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "platform/linux/guarded_folder.h"

namespace zelvane::platform {

// What lies in it:
//
//     files/NAME             what was deleted, a file, a link or a whole folder
//     info/NAME.trashinfo    where it came from
//     expunged/...           what another program could not delete when it emptied the trash
//     directorysizes         how big the folders are, so that nobody needs to count again
//
// Emptying erases each thing and then its note, then the notes that belong to nothing. What refuses
// to go keeps its note. Everything in it is deleted with force, hidden or not, links as what they
// are; mount points are refused.
class TrashFolder {
 public:
  explicit TrashFolder(Descriptor folder);

  void empty();

  std::uint64_t bytesFreed() const { return bytesFreed_; }

  // Whether anything is still there that should be gone.
  bool refused() const { return refused_; }

 private:
  void emptyFiles(GuardedFolder* notes);
  void emptyNotes(GuardedFolder& notes);
  void emptyExpunged();
  bool erase(GuardedFolder& folder, const Entry& entry);
  bool eraseFile(GuardedFolder& folder, const std::string& name);
  bool eraseTree(GuardedFolder& folder, const std::string& name);

  GuardedFolder notesTrash_;  // the same folder again, for the notes next to the files
  GuardedFolder trash_;
  std::set<std::string> keptNotes_;
  std::uint64_t bytesFreed_ = 0;
  bool refused_ = false;
};

}  // namespace zelvane::platform
