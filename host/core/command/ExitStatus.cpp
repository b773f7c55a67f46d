#include "ExitStatus.hpp"

#include "Phrases.hpp"

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

} // namespace imageposition
