#pragma once

#include <initializer_list>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include "engine/fault.h"
#include "forms/control.h"

namespace tarnmill {

/// One name with an index: what the registry knows of a control array.
class ControlArrayBase {
 public:
  ControlArrayBase(Window& window, std::string_view name, int first);
  virtual ~ControlArrayBase();
  ControlArrayBase(const ControlArrayBase&) = delete;
  ControlArrayBase& operator=(const ControlArrayBase&) = delete;

  [[nodiscard]] std::string_view name() const { return name_; }
  [[nodiscard]] int first() const { return first_; }
  [[nodiscard]] int last() const { return first_ + size() - 1; }
  [[nodiscard]] virtual int size() const = 0;
  /// The element, or null when there is none of this index.
  [[nodiscard]] virtual Control* find(int index) const = 0;

 private:
  Window& window_;
  std::string_view name_;
  int first_;
};

/// Controls of one kind under one name, with indices from `first` to `last`. Their handlers are the
/// array's and take the index before the event's own arguments.
template <class C>
class ControlArray final : public ControlArrayBase {
 public:
  ControlArray(Window& window, std::string_view name, int first, int last, Place place = Place::on_window)
      : ControlArrayBase{window, name, first} {
    for (int i = first; i <= last; ++i) {
      elements_.push_back(std::make_unique<C>(window, name, place));
      elements_.back()->index_ = i;
    }
  }

  [[nodiscard]] int size() const override { return static_cast<int>(elements_.size()); }
  [[nodiscard]] Control* find(int index) const override {
    return index < first() || index > last() ? nullptr : element(index);
  }

  /// The element; an index outside of the array raises Invalid-argument.
  [[nodiscard]] C& operator()(int index) const {
    if (find(index) == nullptr) throw Fault{FaultCode::InvalidArgument};
    return *element(index);
  }
  [[nodiscard]] C& operator[](int index) const { return (*this)(index); }

  [[nodiscard]] auto begin() const { return elements_.begin(); }
  [[nodiscard]] auto end() const { return elements_.end(); }

  /// Gives the same handler to an event of every element: `Number.handle(&Button::Click, this,
  /// &Form1::Number_Click)`.
  template <class Owner, class Base, class... Args>
  void handle(Event<Args...> Base::*event, Owner* self, void (Owner::*member)(int, Args...)) {
    for (const auto& each : elements_) {
      const int i = each->index();
      ((*each).*event).handle([self, member, i](Args... args) { (self->*member)(i, args...); });
    }
  }

 private:
  [[nodiscard]] C* element(int index) const {
    return elements_[static_cast<std::size_t>(index - first())].get();
  }

  std::vector<std::unique_ptr<C>> elements_;
};

}  // namespace tarnmill
