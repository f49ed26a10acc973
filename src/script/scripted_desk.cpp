#include "script/scripted_desk.h"

#include <QPrinter>
#include <QString>
#include <utility>

#include "forms/workbench.h"

namespace tarnmill {

ScriptedDesk::ScriptedDesk(const std::filesystem::path& folder, Views views) : QtDesk{folder, views} {}

ScriptedDesk::~ScriptedDesk() = default;

void ScriptedDesk::begin(Workbench& bench) {
  bench_ = &bench;
  attach(bench);
  stop_real_time();
  pace_.restart();
}

MenuItem* ScriptedDesk::popup(Window& /*window*/, MenuItem& /*menu*/,
                              std::optional<std::pair<int, int>> /*at*/) {
  return nullptr;
}

void ScriptedDesk::run_modal(Window& /*window*/) {}

DateTime ScriptedDesk::now() { return frozen_ ? frozen_->date : QtDesk::now(); }

float ScriptedDesk::seconds_since_midnight() {
  if (!frozen_) return QtDesk::seconds_since_midnight();
  const DateTime& at = frozen_->date;
  const int whole = (at.hour * 60 + at.minute) * 60 + at.second;
  return static_cast<float>(whole + frozen_->fraction);
}

void ScriptedDesk::open_address(const Text& address) { opened_.push_back(address); }

bool ScriptedDesk::show_help(const std::filesystem::path& file, std::int32_t /*topic*/) {
  opened_.push_back(file.u16string());
  return true;
}

void ScriptedDesk::turn() {
  QtDesk::do_events();
  pace_.turn(*bench_, false);
}

void ScriptedDesk::do_events() {
  QtDesk::do_events();
  pace_.turn(*bench_, true);
  if (!on_yield || yielding_) return;
  yielding_ = true;
  // By copy, since it may set another one.
  const std::function<void()> called = on_yield;
  called();
  yielding_ = false;
}

std::unique_ptr<QPrinter> ScriptedDesk::make_printer() {
  if (!printer_) return nullptr;
  auto paper = std::make_unique<QPrinter>(QPrinter::HighResolution);
  paper->setOutputFormat(QPrinter::PdfFormat);
  paper->setOutputFileName(QString::fromStdU16String(printer_->u16string()));
  return paper;
}

}  // namespace tarnmill
