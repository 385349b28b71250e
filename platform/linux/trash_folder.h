// One trash folder as the desktops lay it out.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>

#include "platform/event_pump.h"
#include "platform/linux/guarded_folder.h"
#include "platform/name_list.h"

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
// are; mount points are refused. Waiting events are delivered after each.
class TrashFolder {
 public:
  TrashFolder(Descriptor folder, EventPump& pump);

  void empty();

  std::uint64_t bytesFreed() const { return bytesFreed_; }

  // Whether anything is still there that should be gone.
  bool refused() const { return refused_; }

 private:
  // What is in a folder at one moment.
  struct Content {
    NameList folders;
    NameList others;
  };
  // A folder on the way down into a tree, and how far it is done.
  struct Level;

  // Erases one thing of the folder; false where anything of it is still there.
  using Erase = bool (TrashFolder::*)(GuardedFolder& folder, const std::string& name);
  bool eraseFile(GuardedFolder& folder, const std::string& name);
  bool eraseTree(GuardedFolder& folder, const std::string& name);

  // Calls `use` for each thing in the folder, with the way to erase it.
  using Use = std::function<void(const std::string& name, Erase erase)>;
  void forEachIn(GuardedFolder& folder, const Use& use);

  Content contentOf(GuardedFolder& folder);
  void emptyFiles(GuardedFolder* notes);
  void emptyNotes(GuardedFolder& notes);
  void emptyExpunged();

  EventPump& pump_;
  GuardedFolder notesTrash_;  // the same folder again, for the notes next to the files
  GuardedFolder trash_;
  std::set<std::string> keptNotes_;
  std::uint64_t bytesFreed_ = 0;
  bool refused_ = false;
};

}  // namespace zelvane::platform
