#include <algorithm>
#include <array>

#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "graph/zoom_factors.h"

namespace tarnmill {
namespace {

/// One zoom and its commands in the two menus.
struct Preset {
  MenuItem frmZoom::*edit;
  MenuItem frmZoom::*popup;
  TextView factor;
};

constexpr std::array<Preset, 3> presets{{
    {&frmZoom::mnuzoomin, &frmZoom::mnuzin2, zoom_in},
    {&frmZoom::mnuzoomout, &frmZoom::mnuzout2, zoom_out},
    {&frmZoom::mnudef, &frmZoom::mnudef2, default_zoom},
}};

}  // namespace

void frmZoom::connect_zoom_menus() {
  for (const Preset& preset : presets) {
    for (MenuItem frmZoom::*command : {preset.edit, preset.popup}) {
      (this->*command).Click.handle([this, &preset] { choose_zoom(preset.factor); });
    }
  }
  mnufinzoom.Click.handle([this] {
    mnifinezoom2.Checked = true;
    mnufinzoom.Checked = true;
    graph().ask_for_zoom();
  });
  mnifinezoom2.Click.handle([this] { graph().ask_for_zoom(); });
}

void frmZoom::choose_zoom(TextView factor) {
  graph().Line1.Visible = false;
  for (const Preset& preset : presets) {
    (this->*preset.edit).Checked = preset.factor == factor;
    (this->*preset.popup).Checked = preset.factor == factor;
  }
  mnufinzoom.Checked = false;
  mnifinezoom2.Checked = false;
  graph().apply_zoom_preset();
}

TextView frmZoom::settle_on_preset() {
  const auto* marked = std::find_if(presets.begin(), presets.end(),
                                    [this](const Preset& each) { return (this->*each.edit).Checked.get(); });
  const Preset& chosen = marked == presets.end() ? presets.back() : *marked;
  for (const Preset& preset : presets) (this->*preset.edit).Checked = &preset == &chosen;
  return chosen.factor;
}

void frmZoom::unmark_presets() {
  for (const Preset& preset : presets) {
    (this->*preset.edit).Checked = false;
    (this->*preset.popup).Checked = false;
  }
}

void frmZoom::mark_popup(TextView factor) {
  for (const Preset& preset : presets) (this->*preset.popup).Checked = preset.factor == factor;
  mnifinezoom2.Checked = !is_zoom_preset(factor);
}

}  // namespace tarnmill
