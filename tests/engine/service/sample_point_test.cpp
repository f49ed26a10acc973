#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using testing::number_of_fault;
using testing::Service;

// A service whose samples are kept.
struct Listening {
  Listening() {
    service.evaluator.SamplePoint = [this](double x, double y) { samples.emplace_back(x, y); };
  }

  Service service;
  std::vector<std::pair<double, double>> samples;
};

TEST(ServiceSamplePoint, IsRaisedForEverySampleOfAnIntegral) {
  Listening listening;
  listening.service.integral(u"x^2", 0, 2);
  EXPECT_EQ(listening.samples.size(), 3000U);
  for (const auto& [x, y] : listening.samples) EXPECT_DOUBLE_EQ(y, x * x);
}

TEST(ServiceSamplePoint, IsRaisedInEveryPart) {
  Listening listening;
  listening.service.integral(u"x", 0, 200);
  std::set<int> parts;
  for (const auto& sample : listening.samples) parts.insert(static_cast<int>(sample.first));
  EXPECT_EQ(parts.size(), 200U);
}

TEST(ServiceSamplePoint, IsRaisedForTheAverage) {
  Listening listening;
  listening.service.average(u"x", 0, 1);
  EXPECT_EQ(listening.samples.size(), 3000U);
}

TEST(ServiceSamplePoint, IsRaisedForTheSamplesOfARefinement) {
  Listening listening;
  listening.service.integral(u"sqr(x)", 0, 1);
  EXPECT_GT(listening.samples.size(), 3000U);
  EXPECT_EQ(listening.samples.size() % 30, 0U);  // two halves of fifteen samples each
}

TEST(ServiceSamplePoint, IsNotRaisedByOtherStatements) {
  Listening listening;
  listening.service.derivative(u"x^2", 1);
  listening.service.run(u"1+1");
  listening.service.run(u"PopAll()");
  EXPECT_TRUE(listening.samples.empty());
}

TEST(ServiceSamplePoint, IsNotRaisedForASampleWithoutAValue) {
  Listening listening;
  number_of_fault([&] { listening.service.integral(u"1/(x-1)", 0, 2, 1); });
  EXPECT_EQ(listening.samples.size(), 7U);
}

TEST(ServiceSamplePoint, AFaultInItStaysThere) {
  Service service;
  int calls = 0;
  service.evaluator.SamplePoint = [&calls](double, double) {
    ++calls;
    throw Fault{FaultCode::Overflow};
  };
  EXPECT_NEAR(service.integral(u"x", 0, 1), 0.5, 1e-15);
  EXPECT_EQ(calls, 3000);
}

TEST(ServiceSamplePoint, OtherExceptionsPassThrough) {
  Service service;
  service.evaluator.SamplePoint = [](double, double) { throw std::runtime_error{"ended"}; };
  EXPECT_THROW(service.integral(u"x", 0, 1), std::runtime_error);
}

TEST(ServiceSamplePoint, MayTakeItselfOff) {
  Service service;
  int calls = 0;
  service.evaluator.SamplePoint = [&](double, double) {
    ++calls;
    service.evaluator.SamplePoint = nullptr;
  };
  service.integral(u"x", 0, 1);
  EXPECT_EQ(calls, 3000);
  service.integral(u"x", 0, 1);
  EXPECT_EQ(calls, 3000);
}

}  // namespace
}  // namespace tarnmill
