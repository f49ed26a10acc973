// The program as a person uses it. It reads no command line.

#include <QApplication>

#include "app/program.h"
#include "desktop/qt_desk.h"
#include "desktop/skin/skin.h"
#include "forms/workbench.h"

int main(int argc, char** argv) {
  QApplication application{argc, argv};
  tarnmill::desktop::apply_skin(application);
  tarnmill::QtDesk desk{tarnmill::QtDesk::user_folder(), tarnmill::Views::eager};
  tarnmill::Workbench bench{desk};
  desk.attach(bench);
  if (!tarnmill::start_program(bench)) return 0;
  return QApplication::exec();
}
