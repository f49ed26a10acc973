#pragma once

#include <string>
#include <vector>

#include "forms/picture_box.h"
#include "graph/catalogue.h"

namespace tarnmill {

/// One line of data/curves.txt for each curve: what it is known by again. To take the curves as they are now
/// for right, after looking at the picture sheet that examples/curves.lua draws, run
///
///     TARNMILL_UPDATE_FINGERPRINTS=1 graph_tests --gtest_filter='CurveFingerprints.*'
///
/// and read the difference before it is committed.
using Fingerprints = std::vector<std::string>;

/// Procedure, zoom, a checksum of the row's texts; then of the curve's lines: how many, start of the first,
/// end of the last in pixels, and a checksum of their places to six digits and colours.
[[nodiscard]] std::string fingerprint(const Curve& curve, const std::vector<PictureBox::LineDrawn>& lines);

/// The lines of a pick that belong to its curve: those behind the grid.
[[nodiscard]] std::vector<PictureBox::LineDrawn> curve_of(const std::vector<PictureBox::LineDrawn>& lines);

[[nodiscard]] Fingerprints read_fingerprints();
void write_fingerprints(const Fingerprints& fingerprints);

/// Whether they are to be written rather than compared.
[[nodiscard]] bool updates_fingerprints();

}  // namespace tarnmill
