#include "platform/linux/trash_folder.h"

#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include <fcntl.h>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

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

struct TrashFolder::Level {
  Level(std::string folderName, std::unique_ptr<GuardedFolder> opened, Content read)
      : name(std::move(folderName)), folder(std::move(opened)), content(std::move(read)) {}

  std::string name;
  std::unique_ptr<GuardedFolder> folder;
  const Content content;
  NameList::Iterator nextFolder = content.folders.begin();
};

TrashFolder::TrashFolder(Descriptor folder, EventPump& pump)
    : pump_(pump),
      notesTrash_(Descriptor(openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)), {}),
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

TrashFolder::Content TrashFolder::contentOf(GuardedFolder& folder) {
  Content content;
  folder.read([&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) {
      (entry.kind == EntryKind::folder ? content.folders : content.others).add(entry.name);
    }
    pump_.doEvents();
  });
  return content;
}

void TrashFolder::forEachIn(GuardedFolder& folder, const Use& use) {
  const Content content = contentOf(folder);
  for (const std::string_view name : content.folders) {
    use(std::string(name), &TrashFolder::eraseTree);
  }
  for (const std::string_view name : content.others) {
    use(std::string(name), &TrashFolder::eraseFile);
  }
}

void TrashFolder::emptyFiles(GuardedFolder* notes) {
  if (!trash_.facts("files")) return;
  const std::unique_ptr<GuardedFolder> files = trash_.openSubfolder("files");
  forEachIn(*files, [&](const std::string& name, Erase erase) {
    const auto eraseNote = [&] { notes->removeFile(noteOf(name)); };
    if (!(this->*erase)(*files, name) || (notes != nullptr && !tried(eraseNote))) refused_ = true;
  });
  // Asked again and not remembered: something may have been put there meanwhile.
  forEachIn(*files, [this](const std::string& name, Erase) { keptNotes_.insert(noteOf(name)); });
}

void TrashFolder::emptyNotes(GuardedFolder& notes) {
  const std::uint64_t freedSoFar = bytesFreed_;
  forEachIn(notes, [&](const std::string& name, Erase erase) {
    if (!keptNotes_.contains(name) && !(this->*erase)(notes, name)) refused_ = true;
  });
  bytesFreed_ = freedSoFar;  // nobody deleted the notes
}

void TrashFolder::emptyExpunged() {
  if (!trash_.facts("expunged")) return;
  const std::unique_ptr<GuardedFolder> expunged = trash_.openSubfolder("expunged");
  forEachIn(*expunged, [&](const std::string& name, Erase erase) {
    if (!(this->*erase)(*expunged, name)) refused_ = true;
  });
}

bool TrashFolder::eraseFile(GuardedFolder& folder, const std::string& name) {
  const bool gone = tried([&] {
    const std::optional<EntryFacts> facts = folder.facts(name);
    folder.removeFile(name);
    if (facts && facts->kind == EntryKind::file && facts->names == 1) bytesFreed_ += facts->bytes;
  });
  pump_.doEvents();
  return gone;
}

// Without recursion, because a folder may hold more levels than a stack has room for.
bool TrashFolder::eraseTree(GuardedFolder& folder, const std::string& name) {
  std::deque<Level> levels;  // which never moves them
  const auto innermost = [&]() -> GuardedFolder& {
    return levels.empty() ? folder : *levels.back().folder;
  };
  const auto enter = [&](const std::string& below) {
    std::unique_ptr<GuardedFolder> opened = innermost().openSubfolder(below);
    Content content = contentOf(*opened);
    levels.emplace_back(below, std::move(opened), std::move(content));
  };
  bool gone = false;
  // One that cannot be read may still be empty.
  const auto leave = [&](const std::string& below) {
    gone = tried([&] { innermost().removeFolder(below); });
  };

  if (!tried([&] { enter(name); })) leave(name);
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.nextFolder != level.content.folders.end()) {
      const std::string below(*level.nextFolder++);
      if (!tried([&] { enter(below); })) leave(below);
      continue;
    }
    for (const std::string_view other : level.content.others) {
      eraseFile(*level.folder, std::string(other));
    }
    const std::string done = std::move(level.name);
    levels.pop_back();
    leave(done);
  }
  return gone;
}

}  // namespace zelvane::platform
