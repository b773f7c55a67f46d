#include "FailureReport.hpp"

#include <gtest/gtest.h>
#include <new>
#include <sstream>

namespace {

using imageposition::ExitCode;
using imageposition::exitCodeOf;
using imageposition::Failure;

TEST(ExitCodeOf, ASuccessfulRunWritesNothing) {
  std::ostringstream errors;
  EXPECT_EQ(exitCodeOf([] { return ExitCode::Cancelled; }, errors), ExitCode::Cancelled);
  EXPECT_EQ(errors.str(), "");
}

TEST(ExitCodeOf, AFailureIsReportedAndReturnsItsCode) {
  std::ostringstream errors;
  EXPECT_EQ(exitCodeOf([]() -> ExitCode { throw Failure(ExitCode::Printer, "None."); }, errors),
            ExitCode::Printer);
  EXPECT_EQ(errors.str(), "print-dialog: None.\n");
}

TEST(ExitCodeOf, AnyOtherExceptionIsReportedAsAFault) {
  std::ostringstream errors;
  EXPECT_EQ(exitCodeOf([]() -> ExitCode { throw std::bad_alloc(); }, errors), ExitCode::Fault);
  EXPECT_EQ(errors.str(), std::string("print-dialog: ") + std::bad_alloc().what() + '\n');
}

} // namespace
