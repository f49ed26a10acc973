#include "shell/evaluator_host.h"

#include <string_view>

#include "forms/control.h"
#include "forms/desk.h"
#include "forms/procedure.h"
#include "forms/workbench.h"

namespace tarnmill {
namespace {

constexpr std::string_view graph_window = "frmFunc";
constexpr std::string_view keypad_window = "frmTast";

class WorkbenchEvaluatorHost final : public EvaluatorHost {
 public:
  explicit WorkbenchEvaluatorHost(Workbench& bench) : bench_{bench} {}

  ExponentHint graph_hint() override { return hint_of(graph_window); }
  ExponentHint keypad_hint() override { return hint_of(keypad_window); }

  void Boje2() override { run_on_graph("Boje2"); }
  void Boje3() override { run_on_graph("Boje3"); }

  void show_message(TextView text, TextView title, Icon icon) override {
    bench_.message(
        {Text{text}, Text{title}, icon == Icon::critical ? MessageIcon::critical : MessageIcon::information});
  }

  bool keypad_visible() override { return bench_.is_visible(keypad_window); }

  void show_keypad_result(TextView text) override {
    if (!bench_.knows(keypad_window)) return;
    PropertyBase* caption = find(bench_.window(keypad_window), "lbrezultat", "Caption");
    if (caption != nullptr) caption->write(text);
  }

  float NextRandom(double x) override { return bench_.random().NextRandom(x); }
  float SecondsSinceMidnight() override { return bench_.desk().seconds_since_midnight(); }
  DateTime now() override { return bench_.desk().now(); }
  const Regional& regional() override { return bench_.desk().regional(); }

 private:
  /// The window is looked up once for all of them, since every power of every point asks.
  [[nodiscard]] ExponentHint hint_of(std::string_view name) const {
    if (!bench_.knows(name)) return {};
    const Window& window = bench_.window(name);
    return {read(window, "txtY3", "Text"), read(window, "txtImenilac", "Text"),
            read(window, "lblY3", "Caption"), read(window, "lblGot", "Caption")};
  }

  [[nodiscard]] static PropertyBase* find(const Window& window, std::string_view control,
                                          std::string_view property) {
    const Control* found = window.find_control(control);
    return found == nullptr ? nullptr : found->find_property(property);
  }

  [[nodiscard]] Text read(const Window& window, std::string_view control, std::string_view property) const {
    const PropertyBase* found = find(window, control, property);
    return found == nullptr ? Text{} : found->read().to_text(bench_.desk().regional());
  }

  void run_on_graph(std::string_view procedure) {
    if (!bench_.knows(graph_window)) return;
    const Procedure* found = bench_.window(graph_window).find_procedure(procedure);
    if (found != nullptr) (*found)({});
  }

  Workbench& bench_;
};

}  // namespace

std::unique_ptr<EvaluatorHost> make_evaluator_host(Workbench& bench) {
  return std::make_unique<WorkbenchEvaluatorHost>(bench);
}

}  // namespace tarnmill
