#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <string_view>

#include "engine/evaluator.h"
#include "engine/text.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/common_dialog.h"
#include "forms/control_array.h"
#include "forms/evaluator_field.h"
#include "forms/field.h"
#include "forms/frame.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/option_button.h"
#include "forms/overlay_line.h"
#include "forms/picture_box.h"
#include "forms/procedure.h"
#include "forms/rich_text_box.h"
#include "forms/text_box.h"
#include "forms/up_down.h"
#include "forms/window.h"
#include "graph/label_font.h"
#include "graph/pen.h"
#include "graph/plane.h"

namespace tarnmill {

struct Curve;

/// Graph mode: draws curves of expressions in the parameter K into a fixed square of 400 by 400 pixels.
///
/// The plane is always centred on the surface; `PixelsPerUnit` alone decides its extent. The surface has no
/// model behind it: a curve, once drawn, is pixels. While a plot runs, `Drawing` is True and most commands do
/// nothing, since the plot gives the event loop a turn at each point.
///
/// The user never types into the two fields: keypad, function list and keys insert into them. Each change of
/// the y field runs down a chain of parked fields that rewrite powers and keep the exponent as it was typed.
class frmFunc final : public Window {
 public:
  static constexpr std::string_view class_name = "frmFunc";

  explicit frmFunc(Workbench& bench);

  /// \name What other windows call
  ///@{

  /// The value of `ExpressionY` with x, as text in brackets, in place of each K. The evaluator's error tells
  /// how it went. A fault on the way is raised with its number and the description "Wrong Syntax".
  double evaluate_y(double x);

  /// The value of `ExpressionX` with k in place of each K, then y in place of each Y. As `evaluate_y`.
  double evaluate_x(double k, double y);

  /// Draws grid and axes over what is there.
  void draw_lines();

  /// Empties the surface to its back colour, frame and tangent hidden; nothing while a plot runs.
  void clear_without_grid();

  /// The same as the grid key.
  void redraw() { cmdDrawCage_Click(); }

  /// Runs a plot.
  void plot() { cmdDraw_Click(); }

  /// Zooms to what the Edit menu marks, on an empty plane; also while a plot runs, which then goes on at the
  /// new zoom.
  void apply_zoom_preset();

  /// Asks for a zoom and takes it, on an empty plane; nothing while a plot runs.
  void ask_for_zoom();

  /// Puts a curve of the catalogue in the fields and plots it.
  void draw_curve(const Curve& curve);

  /// Empties the fields that follow an exponent.
  void forget_exponent();

  /// Shows the analysis window.
  void show_analysis() { Command1_Click(); }

  /// Makes the y field the one that takes input.
  void choose_y();

  /// Rewrites powers of K in `txtYs`, until there is none left.
  void rewrite_powers();

  /// Appends the two expressions to the history file; what fails is passed over.
  void save_to_history();

  /// Empties the history and its file, when the person agrees. A file that can't be written keeps what it
  /// has.
  void clear_history();

  /// Opens the history in the editor, when the person agrees.
  void open_history();

  /// The history file.
  [[nodiscard]] std::filesystem::path history_path();

  /// Prints the plot in its frame on the default printer. Raises the printer fault (482).
  void print_graph();

  /// Lets the person choose the printer.
  void set_up_printer();

  /// Writes the plot into a bitmap file that the person names; what fails is passed over.
  void save_graph();

  /// Whether a file of this name is there; a name that can't be looked up counts as absent.
  [[nodiscard]] bool file_exists(const Text& name) const;

  /// Asks for the text of a label, unless one waits to be stamped.
  void begin_label() { Command3_Click(); }

  /// Makes the label part of the plot, where its box stands.
  void stamp_label();

  /// Takes the label's box away.
  void drop_label();

  /// Prints a text at the current point of the plot, turned clockwise by an angle in degrees, in a lighter
  /// weight than the font's own. Overflow for an angle beyond the range.
  void print_rotated(double angle, const Text& text);

  /// Asks for the colour of the grid (0), the axes (1), the curve (2) or the background (3); nothing while a
  /// plot runs. All but that of the curve draw the grid again.
  void choose_color(std::int32_t target);

  /// Goes back to the colours of a first start, which erases the plot.
  void take_default_colors();

  /// Asks at which x a lasting tangent is wanted.
  void begin_tangent() { cmdtangenta_Click(); }

  /// Draws the tangent at the x that `frmunesit` holds.
  void draw_tangent();

  /// \name Diagnostics: nothing depends on them
  ///@{
  /// Prints the switches of the label into `picINFO`, while `Debug` is on; gives 0.
  std::int16_t print_state();
  /// Prints a point there.
  void print_point(double x, double y);
  ///@}

  /// \name The colour of the next curve: that of the axes, the chosen one, the second one
  ///@{
  void take_axis_color() { CurveColor = AxisColor.get(); }
  void take_curve_color() { CurveColor = lblBoja.BackColor.get(); }
  void take_second_color() { CurveColor = lblBoja2.BackColor.get(); }
  ///@}

  /// The field that `lblxy` names.
  [[nodiscard]] TextBox& input_field();

  /// The plane at the present zoom.
  [[nodiscard]] Plane plane();

  /// The window's expression engine, made on first use.
  [[nodiscard]] Evaluator& graph_evaluator() { return GraphEvaluator.get(); }
  ///@}

  /// \name State
  ///@{
  Field<Variant> PixelsPerUnit{*this, "PixelsPerUnit"};
  Field<float> OriginX{*this, "OriginX"};
  Field<float> OriginY{*this, "OriginY"};
  Field<Color> GridColor{*this, "GridColor"};
  Field<Color> AxisColor{*this, "AxisColor"};
  Field<Color> CurveColor{*this, "CurveColor"};
  Field<bool> Drawing{*this, "Drawing"};
  Field<bool> GraphDrawn{*this, "GraphDrawn"};
  Field<Text> ExpressionY{*this, "ExpressionY"};
  Field<Text> ExpressionX{*this, "ExpressionX"};
  Field<Variant> TangentX{*this, "TangentX"};
  Field<Variant> TangentY{*this, "TangentY"};
  Field<Variant> TangentSlope{*this, "TangentSlope"};
  Field<float> TextSW{*this, "TextSW"};
  EvaluatorField GraphEvaluator{*this, "GraphEvaluator"};
  Field<Color> LabelColor{*this, "LabelColor"};
  Field<float> LabelDragX{*this, "LabelDragX"};
  Field<float> LabelDragY{*this, "LabelDragY"};
  LogFontRecord LabelFont{*this, "LabelFont"};
  Field<bool> Debug{*this, "Debug"};
  ///@}

  /// \name Title bar and menu bar
  ///@{
  Image immini{*this, "immini", u"minimise"};
  Image imclose{*this, "imclose", u"close"};
  Image imhelp{*this, "imhelp", u"help"};
  Image imcapt{*this, "imcapt", parked};
  Label lblcap{*this, "lblcap", u"Graph Mode"};
  Label Label1{*this, "Label1", u"File"};
  Label Label4{*this, "Label4", u"Edit"};
  Label Label5{*this, "Label5", u"Examples"};
  Label Label6{*this, "Label6", u"Help"};
  ///@}

  /// \name Entry
  ///@{
  ControlArray<OptionButton> optAlign{*this, "optAlign", 0, 1};
  TextBox txtY{*this, "txtY"};
  TextBox txtX{*this, "txtX"};
  ComboBox C1{*this, "C1", u"Functions"};
  ControlArray<Button> cmdSymbol{*this, "cmdSymbol", 0, 17};
  Button cmdStepen{*this, "cmdStepen", u"^", u" Power (Key P) "};
  Button cmdbrisi{*this, "cmdbrisi", u"", u" Clear current field (Delete) "};
  ///@}

  /// \name Commands
  ///@{
  Button cmdDraw{*this, "cmdDraw", u"Draw", u" Draw Graph (Enter) "};
  Button cmdtangenta{*this, "cmdtangenta", u"", u" Draw Tangent (Key T) "};
  Button cmdClear{*this, "cmdClear", u"", u" Clear/Grid Plotting Area "};
  Button cmdZoom{*this, "cmdZoom", u"", u" Zoom Plotting Area "};
  Button Command1{*this, "Command1", u"", u" Function Analyze "};
  Button Command2{*this, "Command2", u"", u" Function Analize "};
  Button Command3{*this, "Command3", u"", u" Insert Label "};
  Button Command4{*this, "Command4", u"", u" Change Colors "};
  Button Command5{*this, "Command5", u"", u" Print "};
  Button Command6{*this, "Command6", u"", u" Save Graph As "};
  ///@}

  /// \name The plot
  ///@{
  PictureBox pDraw{*this, "pDraw", 400, 400, default_back_color};
  OverlayLine Line1{*this, pDraw, "Line1", second_color};
  OverlayLine Line2{*this, pDraw, "Line2", second_color};
  OverlayLine Line3{*this, pDraw, "Line3"};
  OverlayLine Line4{*this, pDraw, "Line4"};
  OverlayLine Line5{*this, pDraw, "Line5"};
  OverlayLine Line6{*this, pDraw, "Line6"};
  Label LblChart{*this, "LblChart"};
  Label lblPerCent{*this, "lblPerCent"};
  ///@}

  /// \name The label: the frame that asks for it, and the box that carries it over the plot
  ///@{
  Frame frmText{*this, "frmText", u" Enter Label Text "};
  TextBox Text2{*this, "Text2"};
  Label Label2{*this, "Label2", u"Rotate text (Deg)"};
  TextBox txtAngle{*this, "txtAngle", u"0"};
  UpDown VsbPtrnNo{*this, "VsbPtrnNo", -180, 180};
  Label LabCUL{*this, "LabCUL"};
  CheckBox Check1{*this, "Check1", u"&Transparent"};
  Button cmdFont{*this, "cmdFont", u"&Font"};
  Button cmdBoja{*this, "cmdBoja", u"Font &Color"};
  Button cmdLabel{*this, "cmdLabel", u"OK"};
  Button cmdTextCancel{*this, "cmdTextCancel", u"Cancel"};
  PictureBox picMCRBox{*this, "picMCRBox", 1, 1, default_back_color, SurfaceUnit::twip};
  CommonDialog CD1{*this, "CD1"};
  ///@}

  /// \name State held in controls off the window
  ///@{
  TextBox txtYs{*this, "txtYs", parked};
  TextBox txtY2{*this, "txtY2", parked};
  TextBox txtY3{*this, "txtY3", u"1", parked};
  TextBox txtImenilac{*this, "txtImenilac", u"1", parked};
  Label lblxy{*this, "lblxy", u"Y", parked};
  Label lblstepen{*this, "lblstepen", parked};
  Label lblZagrada{*this, "lblZagrada", parked};
  Label lblImenilac{*this, "lblImenilac", parked};
  Label lblY3{*this, "lblY3", u"OK", parked};
  Label lblZbir{*this, "lblZbir", parked};
  Label lblzm{*this, "lblzm", u"20", hidden};
  Label lblBoja{*this, "lblBoja", hidden};
  Label lblBoja2{*this, "lblBoja2", hidden};
  Label lblgrid{*this, "lblgrid", hidden};
  Label lblosa{*this, "lblosa", hidden};
  Label lblconv{*this, "lblconv", parked};
  Label lblUn{*this, "lblUn", parked};
  Label lbly{*this, "lbly", parked};
  TextBox Text1{*this, "Text1", parked};
  Button cmdEval{*this, "cmdEval", u"", u" Evaluate function Y(x) ", parked};
  Button cmdrad{*this, "cmdrad", u"", u" Convert Deg to Rad ", parked};
  Button cmdDrawCage{*this, "cmdDrawCage", u"&Grid", u" Show Grid ", parked};
  RichTextBox rtb{*this, "rtb", hidden};
  PictureBox picINFO{*this, "picINFO", 200, 200, default_back_color, SurfaceUnit::pixel, hidden};
  ///@}

  /// \name Procedures by name
  ///@{
  Procedure F{*this, "F", &frmFunc::evaluate_y};
  Procedure F2{*this, "F2", &frmFunc::evaluate_x};
  Procedure DrawLines{*this, "DrawLines", &frmFunc::draw_lines};
  Procedure Clearwith{*this, "Clearwith", &frmFunc::clear_without_grid};
  Procedure Redraw{*this, "Redraw", &frmFunc::redraw};
  Procedure ponovo{*this, "ponovo", &frmFunc::plot};
  Procedure cepaj{*this, "cepaj", &frmFunc::plot};
  Procedure Zumiraj{*this, "Zumiraj", &frmFunc::apply_zoom_preset};
  Procedure Zum{*this, "Zum", &frmFunc::ask_for_zoom};
  Procedure Analiza{*this, "Analiza", &frmFunc::show_analysis};
  Procedure digniga{*this, "digniga", &frmFunc::choose_y};
  Procedure Zamenisve{*this, "Zamenisve", &frmFunc::rewrite_powers};
  Procedure funcSave{*this, "funcSave", &frmFunc::save_to_history};
  Procedure ReplaceAll{*this, "ReplaceAll", &tarnmill::ReplaceAll};
  Procedure PrintLog2{*this, "PrintLog2", &frmFunc::open_history};
  Procedure Stampaj{*this, "Stampaj", &frmFunc::print_graph};
  Procedure PodesiPrnt{*this, "PodesiPrnt", &frmFunc::set_up_printer};
  Procedure Sav1{*this, "Sav1", &frmFunc::save_graph};
  Procedure FileExists{*this, "FileExists", &frmFunc::file_exists};
  Procedure inslab{*this, "inslab", &frmFunc::begin_label};
  Procedure daLabele{*this, "daLabele", &frmFunc::stamp_label};
  Procedure neLabel{*this, "neLabel", &frmFunc::drop_label};
  Procedure RotateText{*this, "RotateText", &frmFunc::print_rotated};
  Procedure crtajt{*this, "crtajt", &frmFunc::begin_tangent};
  Procedure unesix{*this, "unesix", &frmFunc::draw_tangent};
  Procedure PrintGraphState{*this, "PrintGraphState", &frmFunc::print_state};
  Procedure PrintPoint{*this, "PrintPoint", &frmFunc::print_point};
  Procedure Boje{*this, "Boje", &frmFunc::choose_color};
  Procedure Glavno{*this, "Glavno", &frmFunc::take_default_colors};
  Procedure Boje2{*this, "Boje2", &frmFunc::take_axis_color};
  Procedure Boje3{*this, "Boje3", &frmFunc::take_curve_color};
  Procedure Boje4{*this, "Boje4", &frmFunc::take_second_color};
  Procedure Boje5{*this, "Boje5", &frmFunc::take_curve_color};
  ///@}

 private:
  static constexpr Color default_back_color = 9747613;
  static constexpr Color default_curve_color = 0xFF0000;
  static constexpr Color second_color = 0x2352F1;

  // The layout, and which handler answers what.
  void lay_out();
  void lay_out_keypad() const;
  void lay_out_frame();
  void lay_out_label();
  void connect_window();
  void connect_title_bar();
  void connect_picture(Image& image);
  void connect_menu_bar();
  void connect_entry();
  void connect_exponent();
  void connect_commands();
  void connect_plot();
  void connect_output();
  void connect_label();
  void connect_label_box();
  void connect_zoom();
  void connect_catalogue();

  // Start and the window's own events.
  void Form_Load();
  void Form_Activate();
  void Form_Resize();
  void Form_Unload();
  void Form_KeyDown(int& KeyCode, int Shift);
  void Form_MouseMove(int Button, int Shift, float X, float Y);
  void load_history();
  void load_colors();
  void load_recent();
  [[nodiscard]] Color stored_color(TextView name, Color otherwise);
  [[nodiscard]] bool text_is_selected();

  // Title bar and menu bar.
  void immini_Click();
  void imclose_Click();
  void imhelp_Click();
  void lblcap_MouseDown(int Button, int Shift, float X, float Y);

  // Surface.
  void cmdDrawCage_Click();
  void cmdClear_Click();
  void pDraw_MouseDown(int Button, int Shift, float X, float Y);
  void pDraw_MouseMove(int Button, int Shift, float X, float Y);
  void pDraw_MouseUp(int Button, int Shift, float X, float Y);
  void show_coordinates(float x, float y);
  void hide_frame();
  void empty_surface();

  // Zoom.
  void cmdZoom_MouseDown(int Button, int Shift, float X, float Y);
  void zoom_to(TextView factor);
  void show_zoom(TextView factor);

  // Entry.
  void optAlign_Click(int Index);
  void cmdSymbol_Click(int Index);
  void cmdStepen_Click();
  void cmdbrisi_Click();
  void C1_Click();
  void C1_KeyDown(int& KeyCode, int Shift);
  void Command1_Click();
  void Command2_Click();
  void insert(const Text& text);
  [[nodiscard]] bool takes_input(TextView field) const { return lblxy.Caption.get() == field; }

  // The keys of the two fields.
  void field_KeyDown(int& KeyCode, int Shift);
  void run_entry_key(int key_code);
  void run_letter_key(int key_code);
  void field_Click();

  // The chain behind the y field.
  void txtY_Change();
  void txtYs_Change();
  void txtY2_Change();
  void copy_to_keypad(const Control& source, std::string_view property);

  // Plot.
  void cmdDraw_Click();
  void run_plot();
  void begin_plot();
  bool plot_points();
  bool plot_point(double k, Pen& pen);
  void draw_to(Pen& pen, double x, double y);
  void show_progress(double k);
  void finish_plot();
  void add_to_recent();

  // Label.
  void Command3_Click();
  void cmdLabel_Click();
  void cmdTextCancel_Click();
  void cmdFont_Click();
  void cmdBoja_Click();
  void Text2_Change();
  void txtAngle_Change();
  void picMCRBox_MouseDown(int Button, int Shift, float X, float Y);
  void picMCRBox_MouseMove(int Button, int Shift, float X, float Y);
  [[nodiscard]] Text proposed_label() const;
  void show_label_box();
  void keep_label_box_in_bounds();

  // Colours, tangents and output.
  void Command4_MouseDown(int Button, int Shift, float X, float Y);
  void Command5_MouseDown(int Button, int Shift, float X, float Y);
  void take_chosen_color(std::int32_t target);
  void redraw_grid();
  void store_colors();
  bool show_tangent(float x);
  void place_tangent();
  void cmdtangenta_Click();
  void ask_for_tangent();
  void ask_for_bitmap();

  // Commands without a place on the window.
  void cmdEval_Click();
  void cmdrad_Click();

  /// The catalogue's procedures.
  std::deque<Procedure> curves_;
};

}  // namespace tarnmill
