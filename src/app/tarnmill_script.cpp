// Runs a Lua script against the whole program: tarnmill-script FILE.lua [ARG...]

#include <QApplication>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>

#include "app/program.h"
#include "app/script_options.h"
#include "desktop/skin/skin.h"
#include "script/script.h"
#include "script/temporary_folder.h"

namespace {

constexpr int usage_status = 2;

/// Whether windows can be shown: the toolkit ends the process where there is no display.
bool has_display() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// Drops warnings: the toolkit misses a folder for sockets where nobody is logged in, which offscreen needs
/// none.
void without_warnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type != QtWarningMsg) std::cerr << message.toStdString() << '\n';
}

/// The exit status.
int run_script(const tarnmill::ScriptOptions& options) {
  std::optional<tarnmill::TemporaryFolder> temporary;
  const std::filesystem::path folder =
      options.folder ? std::filesystem::absolute(*options.folder) : temporary.emplace().path();
  const auto views = options.windows ? tarnmill::Views::eager : tarnmill::Views::on_demand;
  tarnmill::ScriptedProgram program{folder, views, tarnmill::start_program};
  const auto leave = [&] {
    program.desk().keep_settings();
    temporary.reset();
  };
  tarnmill::Script script{program, leave};
  const std::string error = script.run(options.interpreter, options.file, options.arguments);
  if (error.empty()) return EXIT_SUCCESS;
  std::cerr << "tarnmill-script: " << error << '\n';
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  const auto options = tarnmill::read_script_options({argv, argv + argc});
  if (!options) {
    std::cerr << tarnmill::script_usage;
    return usage_status;
  }
  if (options->help) {
    std::cout << tarnmill::script_usage;
    return EXIT_SUCCESS;
  }
  if (!options->windows) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(without_warnings);
  }
  if (options->windows && !has_display()) {
    std::cerr << "tarnmill-script: --windows needs a display\n";
    return usage_status;
  }
  // The script's arguments are not the toolkit's.
  int count = 1;
  QApplication application{count, argv};
  qInstallMessageHandler(nullptr);
  tarnmill::desktop::apply_skin(application);
  try {
    return run_script(*options);
  } catch (const std::exception& error) {
    std::cerr << "tarnmill-script: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
