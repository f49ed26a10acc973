#pragma once

#include <array>
#include <functional>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "engine/variant.h"
#include "forms/conversion.h"
#include "forms/handler_scope.h"
#include "forms/node.h"

namespace tarnmill {

/// An event of a Node as scripts see it.
class EventBase {
 public:
  EventBase(Node& owner, std::string_view name);
  virtual ~EventBase() = default;
  EventBase(const EventBase&) = delete;
  EventBase& operator=(const EventBase&) = delete;

  [[nodiscard]] std::string_view name() const { return name_; }
  [[nodiscard]] Node& owner() const { return owner_; }

  /// Raises the event with arguments of any type; those left out are 0.
  virtual void invoke(std::span<const Variant> arguments) = 0;

 private:
  Node& owner_;
  std::string_view name_;
};

/// An event with one handler, which is the program's. Raising it runs the handler and returns when the
/// handler has; without a handler nothing happens. Argument types that are references can be changed by
/// the handler (the code of a key), and the raiser sees the change.
template <class... Args>
class Event final : public EventBase {
 public:
  using EventBase::EventBase;
  using Handler = std::function<void(Args...)>;

  void handle(Handler handler) { handler_ = std::move(handler); }
  template <class Owner>
  void handle(Owner* self, void (Owner::*member)(Args...)) {
    handler_ = [self, member](Args... args) { (self->*member)(args...); };
  }

  void raise(Args... args) {
    if (!handler_) return;
    const HandlerScope scope{owner().workbench()};
    handler_(args...);
  }

  void invoke(std::span<const Variant> arguments) override {
    invoke(arguments, std::index_sequence_for<Args...>{});
  }

 private:
  template <std::size_t... I>
  void invoke([[maybe_unused]] std::span<const Variant> arguments, std::index_sequence<I...>) {
    std::tuple<std::decay_t<Args>...> values{argument<std::decay_t<Args>>(arguments, I)...};
    raise(std::get<I>(values)...);
  }

  template <class T>
  T argument(std::span<const Variant> arguments, std::size_t index) {
    if (index >= arguments.size()) return T{};
    return from_variant<T>(arguments[index], owner().regional());
  }

  Handler handler_;
};

}  // namespace tarnmill
