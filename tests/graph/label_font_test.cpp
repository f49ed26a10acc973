#include "graph/label_font.h"

#include <gtest/gtest.h>

#include "engine/fault.h"

namespace tarnmill {
namespace {

struct Row {
  const char* what;
  Font font;
  double angle;
  LogFont record;
};

class LabelFontTest : public testing::TestWithParam<Row> {};

TEST_P(LabelFontTest, FillsTheRecord) {
  EXPECT_EQ(label_font(GetParam().font, GetParam().angle), GetParam().record);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LabelFontTest,
    testing::Values(
        Row{"plain", {u"Arial", 8.25}, 0, {13, 0, 200, false, false, false, u"Arial"}},
        Row{"bold", {u"Arial", 10, true}, 0, {16, 0, 600, false, false, false, u"Arial"}},
        Row{"styled", {u"Arial", 10, false, true, true, true}, 0, {16, 0, 200, true, true, true, u"Arial"}},
        Row{"down", {u"Arial", 10}, 90, {16, -900, 200, false, false, false, u"Arial"}},
        Row{"up", {u"Arial", 10}, -90, {16, 900, 200, false, false, false, u"Arial"}},
        Row{"half to even", {u"Arial", 10}, 0.25, {16, -2, 200, false, false, false, u"Arial"}},
        Row{"height to even", {u"Arial", 7.8125}, 0, {12, 0, 200, false, false, false, u"Arial"}}),
    [](const auto& row) {
      std::string name{row.param.what};
      for (char& each : name) each = each == ' ' ? '_' : each;
      return name;
    });

TEST(LabelFont, AnAngleBeyondTheRangeOverflows) {
  EXPECT_THROW(static_cast<void>(label_font({u"Arial", 10}, 1e300)), Fault);
  EXPECT_THROW(static_cast<void>(label_font({u"Arial", 10}, 3e8)), Fault);
}

}  // namespace
}  // namespace tarnmill
