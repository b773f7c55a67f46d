#include "CancelJob.hpp"

#include "CupsConnection.hpp"
#include "CupsTexts.hpp"
#include "JobTexts.hpp"
#include "PasswordQuestion.hpp"
#include "Phrases.hpp"

#include <cerrno>
#include <functional>

namespace imageposition {

std::string cancelJob(const std::string &printer, int job) {
  const PasswordQuestion noPassword;
  SilenceLimit silence;
  const auto connection = CupsConnection::open(SilenceLimit::kLimit, std::ref(silence));
  if (!connection)
    return messages::jobNotCancelled(printer, job, systemReason(errno));
  switch (cupsCancelJob2(connection->http(), printer.c_str(), job, 0)) {
  case IPP_STATUS_OK:
  case IPP_STATUS_ERROR_NOT_POSSIBLE: // the job has ended
  case IPP_STATUS_ERROR_NOT_FOUND:
    return {};
  default:
    return messages::jobNotCancelled(
        printer, job, silence.isExceeded() ? messages::kNoAnswer.str() : cupsReason());
  }
}

} // namespace imageposition
