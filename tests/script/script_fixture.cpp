#include "script/script_fixture.h"

#include "shell/evaluator_host.h"

namespace tarnmill {

void ScriptFixture::start(Workbench& bench) {
  bench.set_evaluator_host(make_evaluator_host);
  bench.add_window(Specimen::class_name, [](Workbench& owner) { return std::make_unique<Specimen>(owner); });
}

std::string ScriptFixture::error_of(const std::string& text) {
  std::string error = run(text);
  error = error.substr(0, error.find("\nstack traceback"));
  const std::string place = "script:1: ";
  return error.starts_with(place) ? error.substr(place.size()) : error;
}

}  // namespace tarnmill
