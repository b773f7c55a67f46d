#include "FailureReport.hpp"

#include "BackgroundCall.hpp"
#include "Phrases.hpp"

#include <cstdlib>
#include <iostream>

namespace imageposition {

ExitCode exitCodeOf(const std::function<ExitCode()> &run, std::ostream &errors) {
  try {
    return run();
  } catch (const Failure &failure) {
    errors << messages::kProgram << failure.what() << '\n';
    return failure.code();
  } catch (const std::exception &exception) {
    errors << messages::kProgram << exception.what() << '\n';
    return ExitCode::Fault;
  }
}

void endIfCallsAreRunning(ExitCode code) {
  if (RunningCall::count() == 0)
    return;
  std::cout.flush();
  std::cerr.flush();
  std::_Exit(static_cast<int>(code));
}

} // namespace imageposition
