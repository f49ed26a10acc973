#include "desktop/binder/surface_binding.h"

#include "forms/overlay_line.h"

namespace tarnmill::desktop {

SurfaceBinding::SurfaceBinding(PictureBox& surface, SurfaceView& view_of_it, WindowView& view)
    : Binding{surface, view_of_it, view}, surface_{surface}, shown_{view_of_it} {}

SurfaceBinding::~SurfaceBinding() {
  if (control() != nullptr) let_go();
}

void SurfaceBinding::start() {
  shown_.show_surface(&surface_);
  Binding::start();
  for (OverlayLine* each : surface_.overlay_lines()) {
    each->observe(this, [this](const PropertyBase&) { shown_.update_lines(); });
  }
}

void SurfaceBinding::release() {
  if (control() == nullptr) return;
  let_go();
  Binding::release();
}

void SurfaceBinding::let_go() {
  shown_.show_surface(nullptr);
  for (OverlayLine* each : surface_.overlay_lines()) each->stop_observing(this);
}

void SurfaceBinding::show_property(std::string_view name) {
  if (name == "Drawn") {
    shown_.update_drawn();
  } else {
    Binding::show_property(name);
  }
}

}  // namespace tarnmill::desktop
