#pragma once

#include <cstdint>
#include <filesystem>

#include "forms/common_dialog.h"
#include "forms/control_array.h"
#include "forms/control_field.h"
#include "forms/field.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/menu_item.h"
#include "forms/procedure.h"
#include "forms/rich_text_box.h"
#include "forms/text_box.h"
#include "forms/toolbar.h"
#include "forms/window.h"

namespace tarnmill {

/// The scratch editor: one document of rich text, its file, and what formats, prints and searches it.
class MathPad final : public Window {
 public:
  static constexpr std::string_view class_name = "MathPad";
  explicit MathPad(Workbench& workbench);

  /// The document. Its Tag is "change" or "notchange".
  RichTextBox rt1{*this, "rt1"};
  Toolbar Toolbar1;
  /// Font and size of the selection.
  ComboBox Combo1{*this, "Combo1"};
  ComboBox cmbSize{*this, "cmbSize"};

  /// The dialogs. Between operations its FileName is the path of the document.
  CommonDialog CommonDialog1{*this, "CommonDialog1"};
  /// The length of the document, and the number it is compared with to tell whether it has changed.
  Label lblchar2{*this, "lblchar2", parked};
  Label lblchar{*this, "lblchar", parked};
  /// A picture on its way to the clipboard.
  Image imubaci{*this, "imubaci", hidden};
  /// The print margins in inches.
  TextBox txtlevo{*this, "txtlevo", u"1", parked};
  TextBox txtDesno{*this, "txtDesno", u"1", parked};
  TextBox txtGore{*this, "txtGore", u"1", parked};
  TextBox txtDole{*this, "txtDole", u"1", parked};
  /// Red, green and blue of the colour last chosen or read.
  TextBox Text1{*this, "Text1", parked};
  TextBox Text2{*this, "Text2", parked};
  TextBox Text3{*this, "Text3", parked};

  MenuItem mnufile{*this, "mnufile", u"&File"};
  MenuItem mnunew{*this, mnufile, "mnunew", u"&New"};
  MenuItem mnuopen{*this, mnufile, "mnuopen", u"&Open"};
  MenuItem mnuSave{*this, mnufile, "mnuSave", u"&Save"};
  MenuItem mnuSaveas{*this, mnufile, "mnuSaveas", u"Save &As"};
  MenuItem mnuSeparator1{*this, mnufile, "mnuSeparator1", u"-"};
  MenuItem mnuprint{*this, mnufile, "mnuprint", u"&Print"};
  MenuItem mnuprintset{*this, mnufile, "mnuprintset", u"Page Se&tup..."};
  MenuItem mnuSeparator3{*this, mnufile, "mnuSeparator3", u"-"};
  MenuItem mnuexit{*this, mnufile, "mnuexit", u"Close &MathPad"};
  MenuItem mnuSeparator2{*this, mnufile, "mnuSeparator2", u"-"};
  ControlArray<MenuItem> mnuRecent{*this, "mnuRecent", 1, 5, parked};

  MenuItem mnuEdit{*this, "mnuEdit", u"&Edit"};
  MenuItem mnuEditUndo{*this, mnuEdit, "mnuEditUndo", u"&Undo"};
  MenuItem mnuEditCut{*this, mnuEdit, "mnuEditCut", u"Cu&t"};
  MenuItem mnuEditCopy{*this, mnuEdit, "mnuEditCopy", u"&Copy"};
  MenuItem mnuEditPaste{*this, mnuEdit, "mnuEditPaste", u"&Paste"};
  MenuItem mnuEditClear{*this, mnuEdit, "mnuEditClear", u"&Delete"};
  MenuItem mnuselall{*this, mnuEdit, "mnuselall", u"Select &All"};
  MenuItem mnuline{*this, mnuEdit, "mnuline", u"Select &Line"};

  MenuItem mnutools{*this, "mnutools", u"&Tools"};
  MenuItem mnuins{*this, mnutools, "mnuins", u"&Insert Graph Image"};
  MenuItem mnusymbol{*this, mnutools, "mnusymbol", u"Insert Sym&bol"};
  MenuItem mnufind{*this, mnutools, "mnufind", u"&Find..."};
  MenuItem mnunext{*this, mnutools, "mnunext", u"Find &Next"};

  MenuItem mnuformat{*this, "mnuformat", u"F&ormat"};
  MenuItem mnuselfont{*this, mnuformat, "mnuselfont", u"&Font"};
  MenuItem mnucolor{*this, mnuformat, "mnucolor", u"Font &Color"};
  MenuItem mnucase{*this, mnuformat, "mnucase", u"Chan&ge Case"};
  MenuItem mnuupper{*this, mnucase, "mnuupper", u"&UPPERCASE"};
  MenuItem mnulower{*this, mnucase, "mnulower", u"&lowercase"};
  MenuItem mnusuper{*this, mnuformat, "mnusuper", u"Su&perscript"};
  MenuItem mnusub{*this, mnuformat, "mnusub", u"Su&bscript"};

  MenuItem mnuhelp{*this, "mnuhelp", u"&Help"};
  MenuItem mnucontents{*this, mnuhelp, "mnucontents", u"&Contents..."};

  /// The margins as they are printed, in whole inches, and a number that nothing uses.
  Field<std::int16_t> LeftMargin{*this, "LeftMargin"};
  Field<std::int16_t> RightMargin{*this, "RightMargin"};
  Field<std::int16_t> TopMargin{*this, "TopMargin"};
  Field<std::int16_t> BottomMargin{*this, "BottomMargin"};
  Field<std::int16_t> SpareMargin{*this, "SpareMargin"};

  /// \name The document and its file
  ///@{
  /// Notes the line that holds the caret, from 1, as what the length is compared with.
  void get_edit_status();
  void new_document();
  void open_document();
  /// Saves under a name that the person gives.
  void save_as();
  /// Saves under the present name and reads the file again.
  void save();
  /// Saves under the present name.
  void save_current();
  /// Opens the file that the dialog's FileName names.
  void open_current();
  void insert_picture();
  ///@}

  /// \name The window's file
  ///@{
  void save_window_record();
  void load_window_record();
  void save_window_record_and_unload();
  ///@}

  /// \name Edits, by way of the box that is active
  ///@{
  void undo() { rt1.document().undo(); }
  void redo() { rt1.document().redo(); }
  void cut() { rt1.document().cut(); }
  void copy() { rt1.document().copy(); }
  void paste() { rt1.document().paste(); }
  void clear_selection() { rt1.document().replace_selection({}); }
  /// What stands for the window handle of the box: a number that no other control of the window has, not 0.
  [[nodiscard]] std::int32_t box_handle() const;
  [[nodiscard]] bool can_undo() const { return rt1.document().can_undo(); }
  [[nodiscard]] bool can_paste() const { return rt1.document().can_paste(); }
  [[nodiscard]] bool can_copy() const { return rt1.document().sel_length() >= 1; }
  /// The kind of the next undo or redo, and its name in words; empty for a kind that has none.
  [[nodiscard]] std::int32_t undo_type() const { return rt1.document().undo_kind(); }
  [[nodiscard]] std::int32_t redo_type() const { return rt1.document().redo_kind(); }
  [[nodiscard]] tarnmill::Text undo_name(std::int32_t kind) const;
  /// Enables the entries of the Edit menu by what can be done.
  void update_edit_menu();
  ///@}

  /// \name Formats
  ///@{
  void choose_font();
  void fill_fonts();
  void reset_sel_format();
  void clear_toolbar_state();
  void adjust_buttons();
  void adjust_buttons_2();
  void pick_text_color();
  void read_sel_color();
  void color_tip_from_dialog();
  void color_tip_from_selection();
  /// `text` in front with the start of `mask` to the length of `mask`, or cut to its last characters.
  [[nodiscard]] tarnmill::Text pad_left_zeros(const tarnmill::Text& text, const tarnmill::Text& mask) const;
  ///@}

  /// \name Printing
  ///@{
  /// Reads the margins into the numbers that are printed.
  void read_margins();
  void print();
  /// Prints the text of a box within margins in twips. `box` is the name of one of the window's rich text
  /// boxes, the window in front or not; anything else prints nothing.
  void print_rtf(const tarnmill::Text& box, double left, double top, double right, double bottom);
  ///@}

  Procedure GetEditStatus{*this, "GetEditStatus", &MathPad::get_edit_status};
  Procedure cmdNew{*this, "cmdNew", &MathPad::new_document};
  Procedure cmdOpen{*this, "cmdOpen", &MathPad::open_document};
  Procedure cmdsave{*this, "cmdsave", &MathPad::save_as};
  Procedure Save{*this, "mnuSave", &MathPad::save};
  Procedure SaveCurrent{*this, "SaveCurrent", &MathPad::save_current};
  Procedure OpenCurrent{*this, "OpenCurrent", &MathPad::open_current};
  Procedure cmdInsert{*this, "cmdInsert", &MathPad::insert_picture};
  Procedure SaveWindowRecord{*this, "SaveWindowRecord", &MathPad::save_window_record};
  Procedure LoadWindowRecord{*this, "LoadWindowRecord", &MathPad::load_window_record};
  Procedure SaveWindowRecordAndUnload{*this, "SaveWindowRecordAndUnload",
                                      &MathPad::save_window_record_and_unload};
  /// The box that the edits work on, and its handle.
  ControlField m_ActiveText{*this, "m_ActiveText", rt1};
  Procedure m_hWnd{*this, "m_hWnd", &MathPad::box_handle};
  ComputedProperty hWnd{rt1, "hWnd", [this] { return Variant{box_handle()}; }};
  Procedure Undo{*this, "Undo", &MathPad::undo};
  Procedure Redo{*this, "Redo", &MathPad::redo};
  Procedure Cut{*this, "Cut", &MathPad::cut};
  Procedure Copy{*this, "Copy", &MathPad::copy};
  Procedure Paste{*this, "Paste", &MathPad::paste};
  Procedure Clear{*this, "Clear", &MathPad::clear_selection};
  Procedure CanUndo{*this, "CanUndo", &MathPad::can_undo};
  Procedure CanPaste{*this, "CanPaste", &MathPad::can_paste};
  Procedure CanCopy{*this, "CanCopy", &MathPad::can_copy};
  /// The entries of the File menu are an array of the same name, `mnuRecent`.
  Procedure open_recent{*this, "mnuRecent", &MathPad::mnuRecent_Click};
  Procedure UndoType{*this, "UndoType", &MathPad::undo_type};
  Procedure RedoType{*this, "RedoType", &MathPad::redo_type};
  Procedure UndoName{*this, "UndoName", &MathPad::undo_name};
  Procedure UpdateTB{*this, "UpdateTB", &MathPad::update_edit_menu};
  Procedure cmdFont{*this, "cmdFont", &MathPad::choose_font};
  Procedure Fonte{*this, "Fonte", &MathPad::choose_font};
  Procedure dajfont{*this, "dajfont", &MathPad::fill_fonts};
  Procedure ResetSelFormat{*this, "ResetSelFormat", &MathPad::reset_sel_format};
  Procedure ClearToolbarState{*this, "ClearToolbarState", &MathPad::clear_toolbar_state};
  Procedure AdjustButtons{*this, "AdjustButtons", &MathPad::adjust_buttons};
  Procedure AdjustButtons2{*this, "AdjustButtons2", &MathPad::adjust_buttons_2};
  Procedure PickTextColor{*this, "PickTextColor", &MathPad::pick_text_color};
  Procedure ReadSelColor{*this, "ReadSelColor", &MathPad::read_sel_color};
  Procedure ColorTipFromDialog{*this, "ColorTipFromDialog", &MathPad::color_tip_from_dialog};
  Procedure ColorTipFromSelection{*this, "ColorTipFromSelection", &MathPad::color_tip_from_selection};
  Procedure PadLeftZeros{*this, "PadLeftZeros", &MathPad::pad_left_zeros};
  Procedure PrintMargine{*this, "PrintMargine", &MathPad::read_margins};
  Procedure cmdprint{*this, "cmdprint", &MathPad::print};
  Procedure PrintRTF{*this, "PrintRTF", &MathPad::print_rtf};

 private:
  void connect_document();
  void connect_menus();
  void connect_toolbar();
  void connect_formats();

  void Form_Load();
  void Form_Resize();
  void Form_QueryUnload(std::int16_t& Cancel);
  void rt1_Change();
  void rt1_SelChange();
  void mnuRecent_Click(int Index);

  /// Asks whether to save first: Yes, No or Cancel.
  [[nodiscard]] MessageResult ask_to_save(const tarnmill::Text& question);
  [[nodiscard]] bool has_name() const;
  /// Asks for a file; raises the fault of a cancelled dialog. The dialog's FileName stays the document's.
  [[nodiscard]] tarnmill::Text ask_for_file(void (CommonDialog::*dialog)(), TextView title, TextView filter);
  /// What every dialog for a document's file is told.
  void prepare_dialog();
  /// The document is the file of this name now.
  void name_document(const tarnmill::Text& path);
  /// Saves the document under the name that it has, or asks for one; gives whether it had one. Raises the
  /// fault of a file that can't be written.
  bool store();
  /// Shows the file that the person opens. Raises the fault of a file that can't be read.
  void load_opened(const tarnmill::Text& path);
  /// Shows what has just been stored, as it stands in the file. Raises as load_opened does.
  void load_stored(const tarnmill::Text& path, RichTextBox::Format format);
  void find_next();

  void show_selection_format(bool with_size);
  void show_selection_in_toolbar();
  void toggle(std::string_view key, ComputedProperty& property);
  void mark_raised();
  void apply_size();
  void raise_characters(MenuItem& chosen, MenuItem& other, double offset);
  void show_font_tip(int Button, int Shift, float X, float Y);
  void choose_color();
  void show_color(Color color);
  void show_color_tip();
};

}  // namespace tarnmill
