#include "desktop/binder/forms.h"

#include <map>

#include "desktop/qt_text.h"
#include "desktop/skin/ground.h"
#include "ui_Form1.h"
#include "ui_MathPad.h"
#include "ui_frmAbout.h"
#include "ui_frmAnaliza.h"
#include "ui_frmComplex.h"
#include "ui_frmFind.h"
#include "ui_frmFunc.h"
#include "ui_frmIntegral.h"
#include "ui_frmPageSetup.h"
#include "ui_frmTabela.h"
#include "ui_frmTast.h"
#include "ui_frmansi.h"
#include "ui_frmunesit.h"

namespace tarnmill::desktop {

namespace {

using Builder = std::unique_ptr<QWidget> (*)();

template <class Form>
std::unique_ptr<QWidget> build() {
  auto ground = std::make_unique<Ground>();
  Form{}.setupUi(ground.get());
  if (ground->kind() != GroundKind::framed_bone) {
    ground->setWindowFlag(Qt::FramelessWindowHint);
    ground->setFixedSize(ground->size());
  }
  return ground;
}

const std::map<std::string_view, Builder>& builders() {
  static const std::map<std::string_view, Builder> known{
      {"Form1", build<Ui::Form1>},           {"frmAbout", build<Ui::frmAbout>},
      {"frmComplex", build<Ui::frmComplex>}, {"frmTast", build<Ui::frmTast>},
      {"frmAnaliza", build<Ui::frmAnaliza>}, {"frmIntegral", build<Ui::frmIntegral>},
      {"frmTabela", build<Ui::frmTabela>},   {"frmFunc", build<Ui::frmFunc>},
      {"MathPad", build<Ui::MathPad>},       {"frmFind", build<Ui::frmFind>},
      {"frmansi", build<Ui::frmansi>},       {"frmPageSetup", build<Ui::frmPageSetup>},
      {"frmunesit", build<Ui::frmunesit>},
  };
  return known;
}

}  // namespace

std::unique_ptr<QWidget> build_form(std::string_view window) {
  const auto found = builders().find(window);
  if (found != builders().end()) return found->second();
  auto empty = std::make_unique<QWidget>();
  empty->setObjectName(to_qt(window));
  return empty;
}

}  // namespace tarnmill::desktop
