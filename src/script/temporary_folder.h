#pragma once

#include <filesystem>

namespace tarnmill {

/// A new folder among the machine's temporary files, removed with all it holds when the object goes.
class TemporaryFolder {
 public:
  /// Raises std::filesystem::filesystem_error when it can't be made.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace tarnmill
