#include "platform/windows/held_folder.h"

#include <cassert>
#include <limits>
#include <utility>

#include "platform/error.h"
#include "platform/windows/deletion.h"
#include "platform/windows/long_path.h"
#include "platform/windows/open_within.h"
#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

constexpr DWORD kRead = FILE_LIST_DIRECTORY | FILE_READ_ATTRIBUTES;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kFileIsDirectory = 0x00000001;  // the native option: nothing but a folder

[[noreturn]] void throwForFolder() {
  const Error error = errorFor(GetLastError());
  throw error.number() == ErrorNumber::fileNotFound ? Error(ErrorNumber::pathNotFound) : error;
}

// A name that no file can have is the name of none.
bool saysThatNothingIsThere(DWORD code) {
  return code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND || code == ERROR_INVALID_NAME;
}

Handle openFolder(const std::wstring& path, DWORD flags) {
  Handle folder(CreateFileW(path.c_str(), kRead, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr));
  if (!folder.isOpen()) throwForFolder();
  return folder;
}

// The folder of that number on the volume on which `beside` is. Not open where it is gone, or where
// the volume cannot open by numbers.
Handle openByNumber(HANDLE beside, std::uint64_t number) {
  FILE_ID_DESCRIPTOR wanted{};
  wanted.dwSize = sizeof wanted;
  wanted.Type = FileIdType;
  wanted.FileId.QuadPart = static_cast<LONGLONG>(number);
  Handle folder(OpenFileById(beside, &wanted, kRead, kShareAll, nullptr,
                             FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT));
  if (folder.isOpen() && numberOf(folder.get()) != number) folder.close();
  return folder;
}

// The volume that is mounted in a folder: in contrast to a junction, which is marked in the same
// way, it leads to a volume's first folder.
Handle openMounted(const std::wstring& path) {
  Handle volume = openFolder(path, 0);
  if (pathOnVolume(volume.get()) != L"\\") throw Error(ErrorNumber::accessError);
  return volume;
}

}  // namespace

std::unique_ptr<HeldFolder> HeldFolder::openRoot(const std::string& path, Options options) {
  // With a separator behind its name the system would follow a link.
  const std::wstring name = longPath(withoutClosingSeparators(path));
  Handle root = openFolder(name, FILE_FLAG_OPEN_REPARSE_POINT);
  const EntryKind kind = factsOf(root.get()).kind;
  if (kind == EntryKind::place) {
    root = openMounted(name);
  } else if (kind != EntryKind::folder ||
             // The handle tells, but not under Wine: there the name does.
             (GetFileAttributesW(name.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    throw Error(ErrorNumber::accessError);
  }
  // No make_unique: the constructor is this class's own affair.
  return std::unique_ptr<HeldFolder>(new HeldFolder(std::move(root), options));
}

HeldFolder::HeldFolder(Handle root, Options options)
    : ownedWalk_(std::make_unique<Walk>()), walk_(ownedWalk_.get()), folder_(std::move(root)) {
  walk_->options = options;
}

HeldFolder::HeldFolder(Handle folder, HeldFolder& parent)
    : walk_(parent.walk_), parent_(&parent), folder_(std::move(folder)) {
  number_ = numberOf(folder_.get());
  parent.child_ = this;
  walk_->open.push_back(this);
}

HeldFolder::~HeldFolder() {
  // Destroyed out of order, say by an exception that unwinds a whole stack of folders: those below
  // go on without what is gone with this one.
  for (HeldFolder* below = child_; below != nullptr; below = below->child_) {
    if (walk_ != nullptr) std::erase(walk_->open, below);
    below->walk_ = nullptr;
  }
  if (child_ != nullptr) child_->parent_ = nullptr;
  if (parent_ != nullptr) parent_->child_ = nullptr;
  if (walk_ == nullptr) return;
  std::erase(walk_->open, this);
  if (parent_ != nullptr && folder_.isOpen()) parent_->openAgainThrough(folder_.get());
}

HANDLE HeldFolder::handle() const {
  if (!folder_.isOpen()) throw Error(ErrorNumber::pathNotFound);
  return folder_.get();
}

void HeldFolder::read(const FolderReader::Use& use) {
  const HANDLE folder = handle();
  assert(walk_ != nullptr);
  walk_->reader.read(folder, use);
}

void HeldFolder::mustBeHere(HANDLE entry, const std::wstring& name) const {
  if (walk_ == nullptr || !walk_->options.comparePaths) return;
  if (!isEntryOf(handle(), name, entry)) throw Error(ErrorNumber::accessError);
}

std::unique_ptr<HeldFolder> HeldFolder::openSubfolder(const std::string& name) {
  assert(child_ == nullptr && walk_ != nullptr);
  if (walk_->open.size() + 1 >= walk_->options.mostHandles && !walk_->open.front()->closeForNow()) {
    walk_->options.mostHandles = std::numeric_limits<std::size_t>::max();
  }
  const std::wstring single = singleName(name);
  Handle subfolder = openWithin(handle(), single, {.access = kRead, .options = kFileIsDirectory});
  if (!subfolder.isOpen()) throwForFolder();
  mustBeHere(subfolder.get(), single);
  if (factsOf(subfolder.get()).kind != EntryKind::folder) throw Error(ErrorNumber::accessError);
  // No make_unique: the constructor is this class's own affair.
  return std::unique_ptr<HeldFolder>(new HeldFolder(std::move(subfolder), *this));
}

// False, and nothing closed, where the volume would not open it again.
bool HeldFolder::closeForNow() {
  if (!openByNumber(folder_.get(), number_).isOpen()) return false;
  folder_.close();
  std::erase(walk_->open, this);
  return true;
}

void HeldFolder::openAgainThrough(HANDLE subfolder) {
  if (folder_.isOpen()) return;
  folder_ = openByNumber(subfolder, number_);
  if (folder_.isOpen()) walk_->open.push_back(this);
}

// To be deleted. Not open where there is none of that name.
Handle HeldFolder::openEntry(const std::wstring& name, DWORD share) const {
  const HANDLE folder = handle();
  Handle entry = openToDelete(
      [&](DWORD access) { return openWithin(folder, name, {.access = access, .share = share}); });
  if (!entry.isOpen() && !saysThatNothingIsThere(GetLastError())) throwSystemError();
  if (entry.isOpen()) mustBeHere(entry.get(), name);
  return entry;
}

void HeldFolder::removeFile(const std::string& name) {
  // Shared with nobody: the system refuses when any program has the file open.
  const Handle entry = openEntry(singleName(name), 0);
  if (!entry.isOpen()) return;
  const EntryFacts facts = factsOf(entry.get());
  if (facts.kind != EntryKind::file && facts.kind != EntryKind::link) {
    throw Error(ErrorNumber::accessError);
  }
  if (!deleteOpen(entry.get(), facts.attributes)) throwSystemError();
}

void HeldFolder::removeFolder(const std::string& name) {
  const Handle entry = openEntry(singleName(name), kShareAll);
  if (!entry.isOpen()) return;
  const EntryFacts facts = factsOf(entry.get());
  if (facts.kind != EntryKind::folder) throw Error(ErrorNumber::accessError);
  if (!deleteOpen(entry.get(), facts.attributes)) throwSystemError();
}

}  // namespace zelvane::platform
