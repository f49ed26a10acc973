#pragma once

#include <deque>

#include "forms/control_array.h"
#include "forms/menu_item.h"
#include "forms/procedure.h"
#include "forms/window.h"

namespace tarnmill {

class frmFunc;
struct Curve;

/// A window that never shows: it owns the menus that graph mode and the expression keypad pop up. Its
/// handlers do little more than call procedures of `frmFunc`.
class frmZoom final : public Window {
 public:
  static constexpr std::string_view class_name = "frmZoom";

  explicit frmZoom(Workbench& bench);

  /// Sends the help key to the control that has the focus; unless it is swallowed there, the help file opens.
  void press_help_key();

  /// \name The marks of the two zoom menus
  ///@{

  /// The text of the zoom that the Edit menu marks, the default without a mark; leaves it the only mark of
  /// the three there.
  [[nodiscard]] TextView settle_on_preset();
  /// Takes the marks of the three zooms from both menus.
  void unmark_presets();
  /// Marks what the popup has for the text of a zoom.
  void mark_popup(TextView factor);
  ///@}

  /// \name File
  ///@{
  MenuItem mnufile{*this, "mnufile", u"File"};
  MenuItem mnupad{*this, mnufile, "mnupad", u"MathPad"};
  MenuItem mnuadv{*this, mnufile, "mnuadv", u"Advanced Mode"};
  MenuItem mniopwith{*this, mnuadv, "mniopwith", u"Open With"};
  MenuItem mnuopenonly{*this, mnuadv, "mnuopenonly", u"Open Only"};
  MenuItem mnucomp{*this, mnufile, "mnucomp", u"Complex Mode"};
  MenuItem mnueval23{*this, mnufile, "mnueval23", u"Evaluator"};
  MenuItem mnytable{*this, mnufile, "mnytable", u"Value Table"};
  MenuItem mnusavbmp{*this, mnufile, "mnusavbmp", u"Save Graph As"};
  MenuItem mnustampaj{*this, mnufile, "mnustampaj", u"Print"};
  MenuItem mnuprint{*this, mnustampaj, "mnuprint", u"Print Graph"};
  MenuItem mnuprnthistory{*this, mnustampaj, "mnuprnthistory", u"Print Graph History"};
  MenuItem mnuprset{*this, mnustampaj, "mnuprset", u"Print Setup..."};
  MenuItem mnufanal{*this, mnufile, "mnufanal", u"Function Analyze"};
  MenuItem muiida{*this, mnufile, "muiida", u"Integral/Derivative/Average"};
  MenuItem mnuskoro{*this, mnufile, "mnuskoro", u"Recent"};
  MenuItem mnuSeparator2{*this, mnuskoro, "mnuSeparator2", u"-"};
  ControlArray<MenuItem> mnuRecent{*this, "mnuRecent", 1, 5};
  MenuItem mnuexit{*this, mnufile, "mnuexit", u"Exit"};
  ///@}

  /// \name The other fields of the recent functions: columns beside `mnuRecent`, in no menu
  ///@{
  ControlArray<MenuItem> mnuRecentX{*this, "mnuRecentX", 1, 5};
  ControlArray<MenuItem> mnuRecentY2{*this, "mnuRecentY2", 1, 5};
  ControlArray<MenuItem> mnuRecentY3{*this, "mnuRecentY3", 1, 5};
  ControlArray<MenuItem> mnuRecentIm{*this, "mnuRecentIm", 1, 5};
  ControlArray<MenuItem> mnuOK{*this, "mnuOK", 1, 5};
  ///@}

  /// \name Edit
  ///@{
  MenuItem mnuEdit{*this, "mnuEdit", u"Edit"};
  MenuItem ChCol{*this, mnuEdit, "ChCol", u"Change Colors"};
  MenuItem mnuback{*this, ChCol, "mnuback", u"Background..."};
  MenuItem colour1{*this, ChCol, "colour1", u"Grid..."};
  MenuItem colour2{*this, ChCol, "colour2", u"Axes..."};
  MenuItem colour3{*this, ChCol, "colour3", u"Graph..."};
  MenuItem mnuglavno{*this, ChCol, "mnuglavno", u"Default"};
  MenuItem mnucwg{*this, mnuEdit, "mnucwg", u"Clear without Grid"};
  MenuItem mnuredgrid{*this, mnuEdit, "mnuredgrid", u"Redraw Grid"};
  MenuItem mnuclhistory{*this, mnuEdit, "mnuclhistory", u"Clear History"};
  MenuItem mnuzoom1{*this, mnuEdit, "mnuzoom1", u"Zoom"};
  MenuItem mnuzoomin{*this, mnuzoom1, "mnuzoomin", u"Zoom In"};
  MenuItem mnuzoomout{*this, mnuzoom1, "mnuzoomout", u"Zoom Out"};
  MenuItem mnudef{*this, mnuzoom1, "mnudef", u"Default"};
  MenuItem mnufinzoom{*this, mnuzoom1, "mnufinzoom", u"Fine Zooming"};
  MenuItem mnuinsl{*this, mnuEdit, "mnuinsl", u"Insert Label"};
  ///@}

  /// The catalogue of curves.
  MenuItem mnuExamples{*this, "mnuExamples", u"Examples"};

  /// \name Help
  ///@{
  MenuItem mnuHelp{*this, "mnuHelp", u"Help"};
  MenuItem mnuhelpt{*this, mnuHelp, "mnuhelpt", u"Contents..."};
  MenuItem mnuonline{*this, mnuHelp, "mnuonline", u"Online"};
  ///@}

  /// \name The popup of the zoom key
  ///@{
  MenuItem mnuzoom{*this, "mnuzoom", u"Zoom"};
  MenuItem mnuzin2{*this, mnuzoom, "mnuzin2", u"Zoom In"};
  MenuItem mnuzout2{*this, mnuzoom, "mnuzout2", u"Zoom Out"};
  MenuItem mnudef2{*this, mnuzoom, "mnudef2", u"Default"};
  MenuItem mnifinezoom2{*this, mnuzoom, "mnifinezoom2", u"Fine Zooming"};
  ///@}

  /// \name Popups of the calculus window, of the keypad and of the label box
  ///@{
  MenuItem mnucopy{*this, "mnucopy", u"Copy"};
  MenuItem mhucopy1{*this, mnucopy, "mhucopy1", u"Copy Result for Integral or Average"};
  MenuItem mnucopy2{*this, mnucopy, "mnucopy2", u"Copy Result for Derivative"};
  MenuItem mnuPastetest{*this, "mnuPastetest", u"Paste"};
  MenuItem mnupasteex{*this, mnuPastetest, "mnupasteex", u"Paste expression"};
  MenuItem mnupastearg{*this, mnuPastetest, "mnupastearg", u"Paste argument's value"};
  MenuItem mnulabel{*this, "mnulabel", u"Label"};
  MenuItem mnudalabel{*this, mnulabel, "mnudalabel", u"Insert Label"};
  MenuItem mnunelabel{*this, mnulabel, "mnunelabel", u"Delete Label"};
  ///@}

  Procedure mimhelp{*this, "mimhelp", &frmZoom::press_help_key};

 private:
  void lay_out();
  void connect_file_menu();
  void connect_edit_menu();
  void connect_color_menu();
  void connect_help_menu();
  void connect_zoom_menus();
  void connect_examples_menu();
  void connect_copy_popup();
  void connect_paste_popup();
  void connect_label_popup();

  [[nodiscard]] bool may_erase();
  void close_for_complex_mode();
  void show_value_table();
  void mnuRecent_Click(int Index);

  void choose_zoom(TextView factor);
  void pick(const Curve& curve);

  [[nodiscard]] frmFunc& graph();

  /// The submenus of the catalogue and their items.
  std::deque<MenuItem> examples_;
};

}  // namespace tarnmill
