#include "StandardOutput.hpp"

#include "ExitCode.hpp"
#include "Phrases.hpp"
#include "PrintJob.hpp"
#include "SetupTexts.hpp"

#include <iostream>

namespace imageposition {

void requireOutput(const std::string &done) {
  if (!std::cout.flush())
    throw Failure(ExitCode::Ticket, messages::outputUnwritable(done));
}

void requireOutputUnlessSent(const PrintJob &job) {
  if (job.sentName().empty())
    requireOutput(job.done());
  else if (!std::cout.flush())
    std::cerr << messages::kProgram << messages::jobSentWithoutOutput(job.sentName()) << '\n';
}

} // namespace imageposition
