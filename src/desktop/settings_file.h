#pragma once

#include <QSettings>
#include <filesystem>

#include "forms/settings_store.h"

namespace tarnmill::desktop {

/// The per-user store in a file. A file that is damaged or missing reads as empty; one that can't be written
/// loses what is written.
class SettingsFile final : public SettingsStore {
 public:
  explicit SettingsFile(const std::filesystem::path& path);

  [[nodiscard]] std::optional<Value> read(TextView key, TextView name) override;
  void write(TextView key, TextView name, const Value& value) override;
  /// Brings everything written to the disk; it gets there by itself in the next turn of the event loop.
  void flush();

 private:
  QSettings settings_;
  bool written_ = false;
};

}  // namespace tarnmill::desktop
