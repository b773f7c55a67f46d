#include "StandardOutput.hpp"

#include "ExitCode.hpp"
#include "SetupTexts.hpp"

#include <iostream>

namespace imageposition {

void requireOutput(const std::string &done) {
  if (!std::cout.flush())
    throw Failure(ExitCode::Ticket, messages::outputUnwritable(done));
}

} // namespace imageposition
