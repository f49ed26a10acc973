#pragma once

namespace tarnmill {

class Image;
class Label;

/// Connects what stands in for a title bar on a window without a frame: the left button on the caption moves
/// the window, the one picture minimises it, the other unloads it.
void connect_title_bar(Label& caption, Image& minimise, Image& close);

}  // namespace tarnmill
