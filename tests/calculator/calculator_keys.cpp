#include "calculator/calculator_keys.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace tarnmill {

namespace {

std::string icon_word(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::critical:
      return "critical";
    case MessageIcon::question:
      return "question";
    case MessageIcon::exclamation:
      return "exclamation";
    case MessageIcon::information:
      return "information";
    case MessageIcon::none:
      break;
  }
  return "none";
}

bool is_number(const std::string& told) { return told.find_first_not_of("0123456789.") == std::string::npos; }

}  // namespace

std::string message(const std::string& icon, const std::string& text, const std::string& title) {
  return icon + "|" + title + "|" + text;
}

Control* Calculator::find_key(const std::string& told) {
  static const std::map<std::string, std::pair<std::string_view, int>> keys{
      {".", {"Decimal", -1}},      {"+/-", {"cmdPlusMinus", -1}}, {"CE", {"CancelEntry", -1}},
      {"AC", {"cmdClearAll", -1}}, {"MS", {"cmdMemory1", -1}},    {"MR", {"cmdMemory2", -1}},
      {"MC", {"cmdMemory3", -1}},  {"n!", {"cmdfaktor", -1}},     {"1/x", {"cmdOver", -1}},
      {"/", {"Operator", 0}},      {"+", {"Operator", 1}},        {"X", {"Operator", 2}},
      {"-", {"Operator", 3}},      {"=", {"Operator", 4}},        {"Exp", {"Operator", 5}},
      {"nR", {"Operator", 6}},     {"%", {"Operator", 7}},        {"%i", {"Operator", 8}},
  };
  if (told.size() == 1 && std::isdigit(static_cast<unsigned char>(told[0])) != 0) {
    return form.find_control("Number", told[0] - '0');
  }
  const auto found = keys.find(told);
  return found == keys.end() ? form.find_control(told)
                             : form.find_control(found->second.first, found->second.second);
}

void Calculator::key(const std::string& keys) {
  std::istringstream words{keys};
  for (std::string word; words >> word;) {
    std::vector<std::string> presses{word};
    if (is_number(word)) {
      presses.clear();
      for (const char each : word) presses.emplace_back(1, each);
    }
    for (const std::string& told : presses) {
      Control* found = find_key(told);
      ASSERT_NE(found, nullptr) << "no key " << told;
      press(*found);
    }
  }
}

void Calculator::press(Control& key) {
  bench.enter([&key] { key.press(); });
}

std::string Calculator::field(std::string_view name) const {
  const auto* field = std::get_if<FieldBase*>(form.find(name));
  return field == nullptr ? "no field" : to_utf8((*field)->read().to_text(form.regional()));
}

void Calculator::set_field(std::string_view name, const Variant& value) {
  std::get<FieldBase*>(*form.find(name))->write(value);
}

std::vector<std::string> Calculator::messages() const {
  std::vector<std::string> all;
  for (const DialogShown& each : desk.dialogs()) {
    if (each.kind != DialogShown::Kind::message || each.buttons != MessageButtons::ok) continue;
    all.push_back(message(icon_word(each.icon), to_utf8(each.text), to_utf8(each.title)));
  }
  return all;
}

std::string Calculator::focus() const {
  const Control* holder = bench.focus();
  return holder == nullptr ? "" : std::string{holder->name()};
}

}  // namespace tarnmill
