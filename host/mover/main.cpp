// print-dialog-mover: lays a document out and moves the image on its pages for print-dialog, which
// starts it with the words and the descriptors of MoverTask.hpp.
#include "ChildProgram.hpp"
#include "Children.hpp"
#include "ChosenPages.hpp"
#include "FilterChain.hpp"
#include "LayoutCheck.hpp"
#include "MoverTask.hpp"
#include "ShiftedPdf.hpp"
#include "TemporaryData.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <functional>
#include <optional>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

void tell(int output, const MoverReport &report) {
  const std::string line = lineOf(report);
  [[maybe_unused]] const ssize_t count = write(output, line.data(), line.size());
}

MoverReport failed(MoveProblem problem, const std::string &detail = {}) {
  return {MoverReport::Kind::Failed, 0, problem, detail};
}

MoveProblem problemOf(PdfTrouble::Kind kind) {
  switch (kind) {
  case PdfTrouble::Kind::Encrypted:
    return MoveProblem::Encrypted;
  case PdfTrouble::Kind::Forbidden:
    return MoveProblem::Forbidden;
  case PdfTrouble::Kind::MovedBefore:
    return MoveProblem::MovedBefore;
  case PdfTrouble::Kind::Unwritable:
    return MoveProblem::NoRoom;
  default:
    return MoveProblem::Damaged;
  }
}

/// In a separate process, like everything that reads a document.
MoverReport reportOn(const std::function<MoverReport()> &work) try {
  return work();
} catch (const PdfTrouble &trouble) {
  return failed(problemOf(trouble.kind()), trouble.what());
} catch (const std::system_error &error) {
  return failed(error.code().value() == ENOSPC || error.code().value() == EFBIG
                    ? MoveProblem::NoRoom
                    : MoveProblem::Fault,
                error.what());
} catch (const std::exception &error) {
  return failed(MoveProblem::Fault, error.what());
}

/// The last report of a process is the result; the earlier ones are passed on.
class Reports {
public:
  void add(std::string_view text) {
    for (const char c : text)
      if (c != '\n')
        line_ += c;
      else
        take(std::exchange(line_, {}));
  }
  const MoverReport &last() const noexcept { return last_; }

private:
  void take(const std::string &line) {
    const auto report = readReport(line);
    if (report && report->kind == MoverReport::Kind::Progress)
      tell(STDOUT_FILENO, *report);
    else if (report)
      last_ = *report;
  }

  std::string line_;
  MoverReport last_ = failed(MoveProblem::Fault);
};

using FileWork = std::function<MoverReport(const Descriptor &from, const Descriptor &to)>;

/// Runs `work` in a process with limits, which gets `from` and `to`.
MoverReport runLimited(Children &children, const Descriptor &from, const Descriptor &to,
                       const FileWork &work) {
  ProgramPipe pipe = newProgramPipe();
  children.start({from.get(), to.get(), pipe.writer.get()}, [&] {
    const Descriptor input(STDIN_FILENO), output(STDOUT_FILENO);
    tell(STDERR_FILENO, reportOn([&] { return work(input, output); }));
    return 0;
  });
  pipe.writer = Descriptor(-1);
  Reports reports;
  children.wait(pipe.reader.get(), [&](std::string_view text) { reports.add(text); });
  return reports.last();
}

MoverReport shift(const Descriptor &from, const Descriptor &to, const ShiftPlan &plan) {
  int told = -1;
  const auto progress = [&told](int percent) {
    if (percent != std::exchange(told, percent))
      tell(STDERR_FILENO, {MoverReport::Kind::Progress, percent, {}, {}});
  };
  return {MoverReport::Kind::Done, static_cast<int>(shiftPages(from, to, plan, progress)), {}, {}};
}

/// Why a document cannot be laid out, as far as the document tells.
MoverReport diagnose(const Descriptor &document, const Descriptor &) {
  requirePermission(document);
  return failed(MoveProblem::Layout);
}

MoverReport diagnosis(Children &children, const Descriptor &document, const std::string &error) {
  const Descriptor none(-1);
  MoverReport report = isPdf(document) ? runLimited(children, document, none, diagnose)
                                       : failed(MoveProblem::Layout);
  if (!error.empty())
    report.detail = error;
  return report;
}

/// Keeps only the pages that were requested. Returns a failure, if there is one.
std::optional<MoverReport> reduce(Descriptor &document, const std::string &pages,
                                  Children &children) {
  const PageRanges wanted = PageRanges::parse(pages);
  Descriptor reduced = temporaryFile();
  const auto choose = [&](const Descriptor &from, const Descriptor &to) {
    const auto count = static_cast<int>(choosePages(from, to, wanted));
    return MoverReport{MoverReport::Kind::Done, count, {}, {}};
  };
  MoverReport report = runLimited(children, document, reduced, choose);
  if (report.kind == MoverReport::Kind::Failed)
    return report;
  document = std::move(reduced);
  return std::nullopt;
}

MoverReport layOutAndShift(const MoverTask &task, Children &children) {
  const Descriptor description(kMoverDescription), result(kMoverResult);
  Descriptor document(kMoverDocument);
  if (!isLayoutAsExpected(task, children))
    return failed(MoveProblem::OtherLayout);
  if (!task.pages.empty() && isPdf(document))
    if (auto failure = reduce(document, task.pages, children))
      return *failure;
  const auto filters = filtersFor(task, document, children);
  if (filters.empty())
    return failed(MoveProblem::NoConversion);
  const Descriptor laidOut = temporaryFile();
  if (const auto error = runFilters(filters, task, document, description, laidOut, children))
    return diagnosis(children, document, *error);
  const auto move = [&](const Descriptor &from, const Descriptor &to) {
    return shift(from, to, task.plan);
  };
  const MoverReport report = runLimited(children, laidOut, result, move);
  const bool isUnusable =
      report.kind == MoverReport::Kind::Failed && report.problem == MoveProblem::Damaged;
  return isUnusable ? diagnosis(children, document, report.detail) : report;
}

/// Returns whether the dialog still wants the result.
bool run(const MoverTask &task) try {
  tell(STDOUT_FILENO, reportOn([&] {
         const char *const folder = std::getenv("TMPDIR");
         const TemporaryPlace place(folder != nullptr ? folder : unusedPlace());
         Children children(STDIN_FILENO);
         return layOutAndShift(task, children);
       }));
  return true;
} catch (const Abandoned &) {
  return false;
}

} // namespace

} // namespace imageposition

int main(int argc, char **argv) {
  const auto task = imageposition::readTask({argv + 1, argv + argc});
  if (!task)
    return 2;
  std::signal(SIGPIPE, SIG_IGN); // the dialog may end at any moment
  return imageposition::run(*task) ? 0 : 1;
}
