#include "platform/linux/trash_folder.h"

#include <utility>
#include <vector>

#include <fcntl.h>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

// A folder on the way down, and how far its entries are done.
struct Level {
  std::string name;
  std::unique_ptr<GuardedFolder> folder;
  std::vector<Entry> entries;
  std::size_t next = 0;
};

// Does what it can; false when that failed.
template <typename Deed>
bool tried(Deed deed) {
  try {
    deed();
    return true;
  } catch (const Error&) {
    return false;  // reported for the whole bin, after the rest is done
  }
}

std::string noteOf(const std::string& name) { return name + ".trashinfo"; }

}  // namespace

TrashFolder::TrashFolder(Descriptor folder)
    : notesTrash_(Descriptor(openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)), {}),
      trash_(std::move(folder), {}) {}

void TrashFolder::empty() {
  const bool done = tried([this] {
    const std::unique_ptr<GuardedFolder> notes =
        notesTrash_.facts("info") ? notesTrash_.openSubfolder("info") : nullptr;
    emptyFiles(notes.get());
    if (notes) emptyNotes(*notes);
    emptyExpunged();
    // It says nothing that cannot be counted again, also where something stays.
    trash_.removeFile("directorysizes");
  });
  if (!done) refused_ = true;
}

void TrashFolder::emptyFiles(GuardedFolder* notes) {
  if (!trash_.facts("files")) return;
  const std::unique_ptr<GuardedFolder> files = trash_.openSubfolder("files");
  for (const Entry& entry : files->entries()) {
    const auto eraseNote = [&] { notes->removeFile(noteOf(entry.name)); };
    if (!erase(*files, entry) || (notes != nullptr && !tried(eraseNote))) refused_ = true;
  }
  // Asked again and not remembered: something may have been put there meanwhile.
  for (const Entry& entry : files->entries()) keptNotes_.insert(noteOf(entry.name));
}

void TrashFolder::emptyNotes(GuardedFolder& notes) {
  const std::uint64_t freedSoFar = bytesFreed_;
  for (const Entry& entry : notes.entries()) {
    if (!keptNotes_.contains(entry.name) && !erase(notes, entry)) refused_ = true;
  }
  bytesFreed_ = freedSoFar;  // nobody deleted the notes
}

void TrashFolder::emptyExpunged() {
  if (!trash_.facts("expunged")) return;
  const std::unique_ptr<GuardedFolder> expunged = trash_.openSubfolder("expunged");
  for (const Entry& entry : expunged->entries()) {
    if (!erase(*expunged, entry)) refused_ = true;
  }
}

bool TrashFolder::erase(GuardedFolder& folder, const Entry& entry) {
  return entry.kind == EntryKind::folder ? eraseTree(folder, entry.name)
                                         : eraseFile(folder, entry.name);
}

bool TrashFolder::eraseFile(GuardedFolder& folder, const std::string& name) {
  return tried([&] {
    const std::optional<EntryFacts> facts = folder.facts(name);
    folder.removeFile(name);
    if (facts && facts->kind == EntryKind::file && facts->names == 1) bytesFreed_ += facts->bytes;
  });
}

// Without recursion, because a folder may hold more levels than a stack has room for.
bool TrashFolder::eraseTree(GuardedFolder& folder, const std::string& name) {
  std::vector<Level> levels;
  const auto innermost = [&]() -> GuardedFolder& {
    return levels.empty() ? folder : *levels.back().folder;
  };
  const auto enter = [&](const std::string& below) {
    std::unique_ptr<GuardedFolder> opened = innermost().openSubfolder(below);
    std::vector<Entry> entries = opened->entries();
    levels.push_back({below, std::move(opened), std::move(entries)});
  };
  bool gone = false;
  // One that cannot be read may still be empty.
  const auto leave = [&](const std::string& below) {
    gone = tried([&] { innermost().removeFolder(below); });
  };

  if (!tried([&] { enter(name); })) leave(name);
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.next == level.entries.size()) {
      const std::string done = std::move(level.name);
      levels.pop_back();
      leave(done);
      continue;
    }
    const Entry entry = std::move(level.entries[level.next++]);
    if (entry.kind != EntryKind::folder) {
      eraseFile(*level.folder, entry.name);
    } else if (!tried([&] { enter(entry.name); })) {
      leave(entry.name);
    }
  }
  return gone;
}

}  // namespace zelvane::platform
