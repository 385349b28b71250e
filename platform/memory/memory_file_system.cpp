#include "platform/memory/memory_file_system.h"

#include <algorithm>
#include <cassert>

namespace zelvane::platform {
namespace {

using Kind = MemoryNode::Kind;

constexpr int kMostLinks = 40;

std::string_view withoutClosingSeparators(std::string_view path) {
  while (path.ends_with('/')) path.remove_suffix(1);
  return path;
}

std::string_view lastName(std::string_view path) { return path.substr(path.rfind('/') + 1); }

std::string_view folderOf(std::string_view path) { return path.substr(0, path.rfind('/')); }

std::string pathOf(const MemoryNode& node) {
  return node.parent == nullptr ? std::string() : pathOf(*node.parent) + "/" + node.name;
}

}  // namespace

MemoryFileSystem::MemoryFileSystem() {
  nodes_.push_back(std::make_unique<MemoryNode>());
  root_ = nodes_.front().get();
}

void MemoryFileSystem::addFolder(std::string_view path, MemoryFolderTraits traits) {
  makeFolders(withoutClosingSeparators(path)).folder = traits;
}

void MemoryFileSystem::addFile(std::string_view path, std::string_view content,
                               MemoryFileTraits traits) {
  MemoryNode& node = make(path, Kind::file);
  node.content = content;
  node.file = traits;
}

void MemoryFileSystem::addLink(std::string_view path, std::string_view target) {
  make(path, Kind::link).content = target;
}

void MemoryFileSystem::addSocket(std::string_view path) { make(path, Kind::socket); }

void MemoryFileSystem::setInUse(std::string_view path, bool inUse) {
  MemoryNode* node = find(path);
  assert(node != nullptr);
  node->file.inUse = inUse;
}

void MemoryFileSystem::vanish(std::string_view path) {
  MemoryNode* node = find(path);
  assert(node != nullptr);
  detach(*node);
}

void MemoryFileSystem::rename(std::string_view from, std::string_view to) {
  MemoryNode* node = find(from);
  assert(node != nullptr && find(to) == nullptr);
  detach(*node);
  node->name = lastName(to);
  node->parent = &makeFolders(folderOf(to));
  node->parent->children.push_back(node);
}

bool MemoryFileSystem::has(std::string_view path) const { return find(path) != nullptr; }

std::optional<std::string> MemoryFileSystem::content(std::string_view path) const {
  const MemoryNode* node = findTarget(path);
  if (node == nullptr || node->kind != Kind::file) return std::nullopt;
  return node->content;
}

MemoryNode* MemoryFileSystem::find(std::string_view path) const {
  return walk(path, false, kMostLinks);
}

MemoryNode* MemoryFileSystem::findTarget(std::string_view path) const {
  return walk(path, true, kMostLinks);
}

MemoryNode* MemoryFileSystem::walk(std::string_view path, bool followLast, int linksLeft) const {
  path = withoutClosingSeparators(path);
  MemoryNode* node = root_;
  while (!path.empty()) {
    assert(path.front() == '/');
    path.remove_prefix(1);
    const std::string_view name = path.substr(0, path.find('/'));
    path.remove_prefix(name.size());
    if (node->kind != Kind::folder) return nullptr;
    node = child(*node, name);
    if (node == nullptr) return nullptr;
    if (node->kind == Kind::link && (followLast || !path.empty())) {
      if (linksLeft == 0) return nullptr;
      node = walk(node->content, true, linksLeft - 1);
      if (node == nullptr) return nullptr;
    }
  }
  return node;
}

MemoryNode* MemoryFileSystem::child(const MemoryNode& folder, std::string_view name) const {
  const auto found = std::ranges::find(folder.children, name, &MemoryNode::name);
  return found == folder.children.end() ? nullptr : *found;
}

MemoryNode& MemoryFileSystem::add(MemoryNode& folder, std::string_view name, Kind kind) {
  nodes_.push_back(std::make_unique<MemoryNode>());
  MemoryNode& node = *nodes_.back();
  node.kind = kind;
  node.name = name;
  node.parent = &folder;
  folder.children.push_back(&node);
  return node;
}

void MemoryFileSystem::remove(MemoryNode& node) {
  deleted_.push_back(pathOf(node));
  detach(node);
}

bool MemoryFileSystem::contains(const MemoryNode& node) const {
  return &node == root_ || (node.parent != nullptr && contains(*node.parent));
}

std::vector<const MemoryNode*> MemoryFileSystem::inUse() const {
  std::vector<const MemoryNode*> found;
  for (const auto& node : nodes_) {
    if (node->file.inUse) found.push_back(node.get());
  }
  return found;
}

MemoryNode& MemoryFileSystem::makeFolders(std::string_view path) {
  if (path.empty()) return *root_;
  if (MemoryNode* there = findTarget(path)) {
    assert(there->kind == Kind::folder);
    return *there;
  }
  return add(makeFolders(folderOf(path)), lastName(path), Kind::folder);
}

MemoryNode& MemoryFileSystem::make(std::string_view path, Kind kind) {
  MemoryNode& folder = makeFolders(folderOf(path));
  MemoryNode* there = child(folder, lastName(path));
  assert(there == nullptr || there->kind == kind);
  return there != nullptr ? *there : add(folder, lastName(path), kind);
}

void MemoryFileSystem::detach(MemoryNode& node) {
  if (node.parent != nullptr) std::erase(node.parent->children, &node);
  node.parent = nullptr;
}

}  // namespace zelvane::platform
