#include "forms/title_bar.h"

#include "forms/desk.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/workbench.h"

namespace tarnmill {

void connect_title_bar(Label& caption, Image& minimise, Image& close) {
  caption.MouseDown.handle([&caption](int button, int, float, float) {
    constexpr int left = 1;
    if (button == left) caption.workbench().desk().start_move(caption.window());
  });
  minimise.Click.handle([&minimise] { minimise.window().WindowState = 1; });
  close.Click.handle([&close] { close.window().Unload(); });
}

}  // namespace tarnmill
