#include "PdfFile.hpp"

#include "FileReplacement.hpp"
#include "JobTexts.hpp"
#include "Phrases.hpp"
#include "PlacementTexts.hpp"

#include <cerrno>
#include <fcntl.h>

namespace imageposition {

void writePdf(const ShiftedJob &job, const std::string &document, const std::string &path,
              const ProgressCallback &progress) try {
  const PreparedJob prepared = job.move({document}, progress);
  const Descriptor result(open(prepared.documents.front().c_str(), O_RDONLY | O_CLOEXEC));
  if (!result.isOpen())
    throw FileTrouble(errno);
  const MappedFile mapped(result);
  FileReplacement(path, mapped.content()).commit();
} catch (const ShiftFailure &failure) {
  throw Failure(failure.code(), messages::sentences({failure.reason(), messages::kNoFileWritten}));
} catch (const FileTrouble &trouble) {
  throw Failure(ExitCode::Ticket, messages::fileUnwritable(path, trouble.what()));
}

} // namespace imageposition
