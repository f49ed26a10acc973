#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "engine/fault.h"
#include "engine/variant.h"
#include "forms/conversion.h"
#include "forms/handler_scope.h"
#include "forms/window.h"

namespace tarnmill {

/// A public procedure of a window, reached by name. It is declared beside the member function that it
/// names: `Procedure Zumiraj{*this, "Zumiraj", &frmFunc::zumiraj};`
class Procedure final {
 public:
  template <class W, class R, class... Args>
  Procedure(W& window, std::string_view name, R (W::*member)(Args...))
      : Procedure{window, name, sizeof...(Args), wrap<R, Args...>(window, member)} {}
  template <class W, class R, class... Args>
  Procedure(W& window, std::string_view name, R (W::*member)(Args...) const)
      : Procedure{window, name, sizeof...(Args), wrap<R, Args...>(window, member)} {}
  /// A helper that a window offers under its own name and that knows no window.
  template <class R, class... Args>
  Procedure(Window& window, std::string_view name, R (*function)(Args...))
      : Procedure{window, name, sizeof...(Args), wrap_free(window, function)} {}
  /// One without arguments and result, for names that come from data; they must outlive it.
  Procedure(Window& window, std::string_view name, std::function<void()> action)
      : Procedure{window, name, 0, [&window, action = std::move(action)](std::span<const Variant>) {
                    const HandlerScope scope{window.bench()};
                    action();
                    return Variant{};
                  }} {}
  Procedure(const Procedure&) = delete;
  Procedure& operator=(const Procedure&) = delete;

  [[nodiscard]] std::string_view name() const { return name_; }
  /// How many arguments it needs.
  [[nodiscard]] std::size_t arity() const { return arity_; }

  /// Runs it with arguments of any type and gives its result, empty for none. Too few arguments raise
  /// Invalid-argument.
  Variant operator()(std::span<const Variant> arguments) const { return call_(arguments); }

 private:
  using Call = std::function<Variant(std::span<const Variant>)>;
  /// A view needs a text that lives as long as the call.
  template <class Arg>
  using Held = std::conditional_t<std::is_same_v<Arg, TextView>, Text, Arg>;

  Procedure(Window& window, std::string_view name, std::size_t arity, Call call)
      : name_{name}, arity_{arity}, call_{std::move(call)} {
    window.add(*this);
  }

  template <class R, class... Args, class W, class M>
  static Call wrap(W& window, M member) {
    return wrap_call<R, Args...>(window,
                                 [&window, member](auto&... args) -> R { return (window.*member)(args...); });
  }

  template <class R, class... Args>
  static Call wrap_free(Window& window, R (*function)(Args...)) {
    return wrap_call<R, Held<Args>...>(window, [function](auto&... args) -> R { return function(args...); });
  }

  template <class R, class... Args, class F>
  static Call wrap_call(Window& window, F call) {
    return [&window, call](std::span<const Variant> arguments) -> Variant {
      if (arguments.size() < sizeof...(Args)) throw Fault{FaultCode::InvalidArgument};
      auto values = convert<Args...>(arguments, window.regional(), std::index_sequence_for<Args...>{});
      const HandlerScope scope{window.bench()};
      if constexpr (std::is_void_v<R>) {
        std::apply(call, values);
        return {};
      } else {
        return to_variant(std::apply(call, values));
      }
    };
  }

  template <class... Args, std::size_t... I>
  static std::tuple<std::decay_t<Args>...> convert([[maybe_unused]] std::span<const Variant> arguments,
                                                   [[maybe_unused]] const Regional& regional,
                                                   std::index_sequence<I...>) {
    return {from_variant<std::decay_t<Args>>(arguments[I], regional)...};
  }

  std::string_view name_;
  std::size_t arity_;
  Call call_;
};

}  // namespace tarnmill
