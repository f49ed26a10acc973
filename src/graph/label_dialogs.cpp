#include "engine/fault.h"
#include "graph/frm_func.h"

namespace tarnmill {
namespace {

/// Name, size, bold, italic and underline; what is struck through stays.
void take_font(FontProperties& target, const FontProperties& source) {
  target.FontName = source.FontName;
  target.FontSize = source.FontSize;
  target.FontBold = source.FontBold;
  target.FontItalic = source.FontItalic;
  target.FontUnderline = source.FontUnderline;
}

constexpr std::int32_t printer_fonts = 2;
constexpr std::int32_t full_open = 2;

}  // namespace

void frmFunc::cmdFont_Click() {
  resume_step([this] {
    CD1.CancelError = true;
    CD1.DialogTitle = u"Select font";
    CD1.Flags = printer_fonts;
    if (CD1.FontName->empty()) CD1.FontName = u"Arial";
    CD1.ShowFont();
    take_font(Text2, CD1);
    take_font(pDraw, CD1);
    take_font(picMCRBox, CD1);
  });
}

void frmFunc::cmdBoja_Click() {
  resume_step([this] {
    CD1.CancelError = true;
    CD1.DialogTitle = u"Select Font Color";
    CD1.Flags = full_open;
    CD1.ShowColor();
    const Color chosen = CD1.Color;
    Text2.ForeColor = chosen;
    pDraw.ForeColor = chosen;
    picMCRBox.ForeColor = chosen;
    LabCUL.BackColor = chosen;
    LabelColor = chosen;
  });
}

}  // namespace tarnmill
