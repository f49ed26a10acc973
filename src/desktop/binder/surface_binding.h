#pragma once

#include "desktop/binder/binding.h"
#include "desktop/surface_view.h"
#include "forms/picture_box.h"

namespace tarnmill::desktop {

/// A drawing surface on its view. The mouse on it counts in the surface's unit.
class SurfaceBinding final : public Binding {
 public:
  SurfaceBinding(PictureBox& surface, SurfaceView& view_of_it, WindowView& view);
  ~SurfaceBinding() override;
  void start() override;
  void release() override;

 protected:
  void show_property(std::string_view name) override;
  [[nodiscard]] float mouse_scale() const override { return surface_.units_per_pixel(); }
  [[nodiscard]] bool uses_mouse() const override { return false; }

 private:
  void let_go();

  PictureBox& surface_;
  SurfaceView& shown_;
};

}  // namespace tarnmill::desktop
