#include "engine/fault.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnmill {
namespace {

struct Known {
  FaultCode code;
  int number;
  std::string words;
};

const std::vector<Known> known_faults{
    {.code = FaultCode::InvalidArgument, .number = 5, .words = "Invalid procedure call or argument"},
    {.code = FaultCode::Overflow, .number = 6, .words = "Overflow"},
    {.code = FaultCode::DivisionByZero, .number = 11, .words = "Division by zero"},
    {.code = FaultCode::TypeMismatch, .number = 13, .words = "Type mismatch"},
    {.code = FaultCode::PrinterError, .number = 482, .words = "Printer error"},
    {.code = FaultCode{77}, .number = 77, .words = "Application-defined or object-defined error"},
};

TEST(Fault, CarriesItsNumberAndTheWordsOfTheRuntime) {
  for (const Known& row : known_faults) {
    const Fault fault{row.code};
    EXPECT_EQ(fault.number(), row.number);
    EXPECT_TRUE(fault.is(row.code));
    EXPECT_EQ(to_utf8(fault.description()), row.words);
    EXPECT_EQ(std::string{fault.what()}, row.words);
  }
}

TEST(Fault, MayCarryWordsOfItsOwnThatOutliveACopy) {
  auto original = std::make_unique<Fault>(1000, u"Wrong Synt\u00E4x");
  const Fault copy = *original;
  original.reset();
  EXPECT_EQ(copy.number(), 1000);
  EXPECT_FALSE(copy.is(FaultCode::Overflow));
  EXPECT_EQ(copy.description(), u"Wrong Synt\u00E4x");
  EXPECT_EQ(std::string{copy.what()}, "Wrong Synt\xC3\xA4x");
}

TEST(ResumeNext, GoesOnWithTheStepBehindAFault) {
  int target = 1;
  bool reached = false;
  resume_next([&] { target = (throw Fault{FaultCode::TypeMismatch}, 2); }, [&] { reached = true; });
  EXPECT_EQ(target, 1);
  EXPECT_TRUE(reached);
}

TEST(ResumeNext, RunsAllStepsInOrder) {
  std::string order;
  resume_next([&] { order += 'a'; }, [&] { order += 'b'; }, [&] { order += 'c'; });
  EXPECT_EQ(order, "abc");
}

TEST(ResumeNext, LetsEveryOtherExceptionThrough) {
  bool reached = false;
  EXPECT_THROW(resume_next([] { throw std::runtime_error{"ended"}; }, [&] { reached = true; }),
               std::runtime_error);
  EXPECT_FALSE(reached);
}

}  // namespace
}  // namespace tarnmill
