#include "script/scripted_program.h"

#include <utility>

namespace tarnmill {

ScriptedProgram::ScriptedProgram(const std::filesystem::path& folder, Views views, Start start)
    : start_{std::move(start)}, desk_{folder, views} {
  restart();
}

void ScriptedProgram::restart() {
  bench_.reset();
  bench_.emplace(desk_);
  desk_.begin(*bench_);
  start_(*bench_);
}

}  // namespace tarnmill
