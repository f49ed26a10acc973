#include "fingerprint.h"

#include "graph_fixture.h"

namespace tarnmill {
namespace {

class CurveFingerprints : public GraphTest {
 protected:
  Fingerprints draw_all() {
    Fingerprints drawn;
    for (const CurveMenu& menu : curve_catalogue()) {
      for (const Curve& curve : menu.curves) {
        const auto picked = lines([&] { menus().find_control(curve.menu_item)->press(); });
        drawn.push_back(fingerprint(curve, curve_of(picked)));
        EXPECT_TRUE(program.desk.dialogs().empty()) << curve.procedure;
        EXPECT_FALSE(curve_of(picked).empty()) << curve.procedure;
      }
    }
    return drawn;
  }
};

TEST_F(CurveFingerprints, AreThoseStored) {
  const Fingerprints drawn = draw_all();
  if (updates_fingerprints()) write_fingerprints(drawn);
  const Fingerprints stored = read_fingerprints();
  ASSERT_EQ(drawn.size(), stored.size());
  for (std::size_t i = 0; i < drawn.size(); ++i) EXPECT_EQ(drawn[i], stored[i]);
}

}  // namespace
}  // namespace tarnmill
