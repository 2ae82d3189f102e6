#include "tests/support/memory_files.h"

#include <utility>

namespace tr7 {

class MemoryFiles::Writer : public FileWriter {
 public:
  Writer(MemoryFiles& files, std::shared_ptr<Node> node) : files_(files), node_(std::move(node)) {}

  FileFault Write(std::string_view bytes) override {
    const FileFault fault = files_.Enter();
    if (!files_.power_) return fault;
    node_->bytes += fault == FileFault::None ? bytes : bytes.substr(0, bytes.size() / 2);
    return fault;
  }
  FileFault Flush() override {
    const FileFault fault = files_.Enter();
    if (fault == FileFault::None) node_->safe = node_->bytes.size();
    return fault;
  }
  FileFault Close() override { return files_.Enter(); }

 private:
  MemoryFiles& files_;
  std::shared_ptr<Node> node_;
};

FileFault MemoryFiles::Enter() const {
  ++calls_;
  if (power_ && calls_ == power_cut_at_) {
    power_ = false;
    for (auto& [path, node] : nodes_) node->bytes.resize(node->safe);
  }
  if (!power_) return FileFault::Other;
  return calls_ == fail_at_ ? fail_with_ : FileFault::None;
}

bool MemoryFiles::Exists(const std::string& path) const { return power_ && nodes_.contains(path); }

FileFault MemoryFiles::Read(const std::string& path, std::size_t limit, std::string& bytes) const {
  const FileFault fault = Enter();
  if (fault != FileFault::None) return fault;
  const auto found = nodes_.find(path);
  if (found == nodes_.end()) return FileFault::NotFound;
  if (found->second->bytes.size() > limit) return FileFault::TooLarge;
  bytes = found->second->bytes;
  return FileFault::None;
}

std::unique_ptr<FileWriter> MemoryFiles::Create(const std::string& path, FileFault& fault) {
  fault = Enter();
  if (fault == FileFault::None && read_only) fault = FileFault::NotPermitted;
  if (fault != FileFault::None) return nullptr;
  const auto node = std::make_shared<Node>();
  nodes_[path] = node;
  return std::make_unique<Writer>(*this, node);
}

FileFault MemoryFiles::Rename(const std::string& from, const std::string& to) {
  const FileFault fault = Enter();
  if (fault != FileFault::None) return fault;
  if (read_only) return FileFault::NotPermitted;
  const auto found = nodes_.find(from);
  if (found == nodes_.end()) return FileFault::NotFound;
  const std::shared_ptr<Node> node = found->second;
  nodes_.erase(found);
  nodes_[to] = node;
  return FileFault::None;
}

FileFault MemoryFiles::Remove(const std::string& path) {
  const FileFault fault = Enter();
  if (fault != FileFault::None) return fault;
  if (read_only) return FileFault::NotPermitted;
  return nodes_.erase(path) == 1 ? FileFault::None : FileFault::NotFound;
}

void MemoryFiles::Put(const std::string& path, const std::string& bytes) {
  nodes_[path] = std::make_shared<Node>(Node{bytes, bytes.size()});
}

std::optional<std::string> MemoryFiles::Content(const std::string& path) const {
  const auto found = nodes_.find(path);
  if (found == nodes_.end()) return std::nullopt;
  return found->second->bytes;
}

std::vector<std::string> MemoryFiles::Paths() const {
  std::vector<std::string> paths;
  for (const auto& [path, node] : nodes_) paths.push_back(path);
  return paths;
}

void MemoryFiles::FailAt(int call, FileFault fault) {
  fail_at_ = calls_ + call;
  fail_with_ = fault;
}

void MemoryFiles::PowerCutAt(int call) { power_cut_at_ = calls_ + call; }

void MemoryFiles::PowerOn() {
  power_ = true;
  fail_at_ = 0;
  power_cut_at_ = 0;
}

}  // namespace tr7
