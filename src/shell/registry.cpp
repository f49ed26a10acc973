#include "shell/registry.h"

#include <initializer_list>
#include <optional>
#include <variant>

#include "forms/settings_store.h"

namespace tarnmill {
namespace {

// A hive is 32 bits wide and may come signed.
bool is_current_user(std::int64_t hive) { return (hive & 0xFFFFFFFF) == current_user_hive; }

}  // namespace

Text registry_path(TextView root, TextView section1, TextView section2) {
  Text path{root};
  for (const TextView section : {section1, section2}) {
    if (section.empty()) continue;
    if (!path.empty()) path += u'\\';
    path += section;
  }
  return path;
}

Variant GetRegistrySetting(SettingsStore& store, TextView root, TextView section1, TextView section2,
                           TextView value_name, const Variant& otherwise, std::int64_t hive) {
  if (!is_current_user(hive)) return otherwise;
  const std::optional<SettingsStore::Value> stored =
      store.read(registry_path(root, section1, section2), value_name);
  if (!stored) return otherwise;
  if (const auto* number = std::get_if<std::int32_t>(&*stored)) return Variant{*number};
  const Text& text = std::get<Text>(*stored);
  return text.empty() ? otherwise : Variant{text};
}

bool SaveRegistrySetting(SettingsStore& store, TextView root, TextView section1, TextView section2,
                         TextView value_name, TextView value, std::int64_t hive) {
  if (is_current_user(hive)) store.write(registry_path(root, section1, section2), value_name, Text{value});
  return true;
}

}  // namespace tarnmill
