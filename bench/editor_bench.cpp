// The editor on the screen with a document of ten megabytes: opening it, and a key typed into it.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTextEdit>
#include <fstream>

#include "app/program.h"
#include "mathpad/math_pad.h"
#include "offscreen.h"
#include "script/scripted_program.h"
#include "script/temporary_folder.h"

namespace {

constexpr std::size_t ten_megabytes = 10'000'000;

std::filesystem::path write_document(const std::filesystem::path& folder) {
  std::filesystem::path path = folder / "long.rtf";
  std::ofstream file{path, std::ios::binary};
  file << "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Tahoma;}}\r\n";
  while (static_cast<std::size_t>(file.tellp()) < ten_megabytes) {
    file << "\\pard\\f0\\fs20 The quick brown fox jumps over the {\\b lazy} dog, who does not care.\\par\r\n";
  }
  file << '}';
  return path;
}

/// The program with its editor shown, in a folder of its own.
struct ShownEditor {
  ShownEditor() { pad.Show(); }

  void open() {
    pad.rt1.LoadFile(document, tarnmill::RichTextBox::rtfRTF);
    QCoreApplication::processEvents();
  }
  void type(Qt::Key key, const QString& text) {
    QKeyEvent event{QEvent::KeyPress, key, Qt::NoModifier, text};
    QCoreApplication::sendEvent(&edit, &event);
    QCoreApplication::processEvents();
  }

  const tarnmill::TemporaryFolder folder;
  const std::filesystem::path document = write_document(folder.path());
  tarnmill::ScriptedProgram program{folder.path(), tarnmill::Views::eager,
                                    [](tarnmill::Workbench& bench) { tarnmill::start_program(bench); }};
  tarnmill::MathPad& pad = program.bench().window<tarnmill::MathPad>();
  QTextEdit& edit = *program.desk().view(pad).findChild<QTextEdit*>("rt1");
};

void open_ten_megabytes(benchmark::State& state) {
  ShownEditor editor;
  for ([[maybe_unused]] auto step : state) editor.open();
}

void type_into_ten_megabytes(benchmark::State& state) {
  ShownEditor editor;
  editor.open();
  for ([[maybe_unused]] auto step : state) editor.type(Qt::Key_A, "a");
}

BENCHMARK(open_ten_megabytes)->Unit(benchmark::kMillisecond);
BENCHMARK(type_into_ten_megabytes)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) { return run_benchmarks_offscreen(argc, argv); }
