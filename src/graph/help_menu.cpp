#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_zoom.h"
#include "shell/help.h"

namespace tarnmill {
namespace {

/// The page of the product.
constexpr TextView home_page = u"https://tarnmill.example/";

}  // namespace

void frmZoom::connect_help_menu() {
  mnuhelpt.Click.handle([this] { show_program_help(workbench().desk()); });
  mnuonline.Click.handle([this] { workbench().desk().open_address(Text{home_page}); });
}

}  // namespace tarnmill
