// Measures what moving a document costs, beside `qpdf`, which copies it, cups-filters, which lays
// it out in any case, and other programs that move pages. One line per program and document: the
// median of the wall-clock times, and the largest memory of a run.
#include "DocumentMover.hpp"
#include "DrawnPdf.hpp"
#include "ShiftedPdf.hpp"
#include "TemporaryData.hpp"
#include "TemporaryFolder.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace imageposition;
using namespace imageposition::test;
using Clock = std::chrono::steady_clock;

constexpr int kRuns = 3;

struct Cost {
  double seconds = 0;
  double megabytes = 0;
  bool hasSucceeded = false;
};

/// Runs `work` in a process.
Cost costOf(const std::function<int()> &work) {
  const auto start = Clock::now();
  const pid_t child = fork();
  if (child == 0)
    _exit(work());
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const std::chrono::duration<double> time = Clock::now() - start;
  return {time.count(), static_cast<double>(usage.ru_maxrss) / 1024,
          WIFEXITED(status) && WEXITSTATUS(status) == 0};
}

Cost medianOf(const std::function<int()> &work) {
  std::vector<Cost> costs;
  for (int i = 0; i < kRuns; i++)
    costs.push_back(costOf(work));
  std::sort(costs.begin(), costs.end(),
            [](const Cost &one, const Cost &other) { return one.seconds < other.seconds; });
  Cost median = costs[costs.size() / 2];
  for (const Cost &cost : costs)
    median.megabytes = std::max(median.megabytes, cost.megabytes);
  return median;
}

void print(const std::string &document, const char *program, const std::function<int()> &work) {
  const Cost cost = medianOf(work);
  if (cost.hasSucceeded)
    std::printf("%-28s %-34s %8.3f s %8.1f MB\n", document.c_str(), program, cost.seconds,
                cost.megabytes);
  else
    std::printf("%-28s %-34s not available\n", document.c_str(), program);
  std::fflush(stdout);
}

int execute(const std::vector<std::string> &words) {
  std::vector<char *> pointers;
  for (const std::string &word : words)
    pointers.push_back(const_cast<char *>(word.c_str())); // execvp does not modify them
  pointers.push_back(nullptr);
  const int nothing = open("/dev/null", O_WRONLY);
  dup2(nothing, STDERR_FILENO);
  dup2(nothing, STDOUT_FILENO);
  execvp(pointers[0], pointers.data());
  return 127;
}

ShiftPlan plan() {
  ShiftPlan plan;
  plan.front = {{25}, {-7}};
  plan.back = {{-30}, {14}};
  return plan;
}

int shift(const std::string &from, const std::string &to) {
  const Descriptor input(open(from.c_str(), O_RDONLY | O_CLOEXEC));
  const Descriptor output(open(to.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
  return shiftPages(input, output, plan()) > 0 ? 0 : 1;
}

std::string descriptionOfPrinter() { return contentOf(IMAGEPOSITION_SAMPLES "/duplex-plain.ppd"); }

constexpr const char *kOptions = "OutputOrder=Normal emit-jcl=false";

int layOut(const std::string &from, const std::string &ppd, const std::string &to) {
  setenv("PPD", ppd.c_str(), 1);
  const int output = open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  const int nothing = open("/dev/null", O_WRONLY);
  dup2(nothing, STDERR_FILENO);
  dup2(output, STDOUT_FILENO);
  const std::string filter = layoutPrograms()->filters + "/pdftopdf";
  execl(filter.c_str(), filter.c_str(), "1", "me", "title", "1", kOptions, from.c_str(), nullptr);
  return 127;
}

int layOutAndShift(const std::string &from) {
  MoverTask task;
  task.plan = plan();
  task.options = kOptions;
  task.title = "title";
  task.user = "me";
  task.path = from;
  task.filters = layoutPrograms()->filters;
  task.chooser = layoutPrograms()->chooser;
  task.verdict = verdictFile();
  const Descriptor document(open(from.c_str(), O_RDONLY | O_CLOEXEC));
  return moveDocument(task, document, "document", descriptionOfPrinter(), [](int) { return true; })
             ? 0
             : 1;
}

/// Pages with this many bytes of an image each, which cannot be compressed.
std::string pdfWithImages(int pages, std::size_t bytes) {
  std::vector<std::string> objects{"<< /Type /Catalog /Pages 2 0 R >>", ""};
  std::string kids;
  std::mt19937 random(1);
  for (int i = 0; i < pages; i++) {
    std::string image(bytes, '\0');
    for (char &byte : image)
      byte = static_cast<char>(random());
    objects.push_back("<< /Type /XObject /Subtype /Image /Width 1000 /Height " +
                      std::to_string(bytes / 1000) +
                      " /ColorSpace /DeviceGray /BitsPerComponent 8 /Length " +
                      std::to_string(image.size()) + " >>\nstream\n" + image + "\nendstream");
    const std::string name = std::to_string(objects.size());
    objects.push_back(streamOf("q 500 0 0 700 40 40 cm /I Do Q"));
    const std::string contents = std::to_string(objects.size());
    objects.push_back("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents " + contents +
                      " 0 R /Resources << /XObject << /I " + name + " 0 R >> >> >>");
    kids += std::to_string(objects.size()) + " 0 R ";
  }
  objects[1] = "<< /Type /Pages /Kids [" + kids + "] /Count " + std::to_string(pages) + " >>";
  return pdfOf(objects);
}

/// Pages with about 3 kB of text each.
std::string pdfWithText(int count) {
  std::string text = "BT /F 10 Tf 72 770 Td 12 TL ";
  for (int line = 0; line < 50; line++)
    text += "(Line " + std::to_string(line) + " of a page that reads like many others.) ' ";
  std::vector<PageToDraw> pages(static_cast<std::size_t>(count));
  for (PageToDraw &page : pages)
    page.content = text + "ET";
  return pdfDrawing(pages);
}

/// The document is made in another process: a process begins with the memory of the one that starts
/// it.
void compare(const TemporaryFolder &folder, const std::string &name,
             const std::function<std::string()> &content) {
  const std::string original = folder.path("original.pdf");
  costOf([&] {
    folder.write("original.pdf", content());
    return 0;
  });
  const std::string ppd = folder.write("printer.ppd", descriptionOfPrinter());
  const std::string from = folder.path("laid-out.pdf"), to = folder.path("result.pdf");
  costOf([&] { return layOut(original, ppd, from); });
  print(name, "qpdf in out", [&] { return execute({"qpdf", from, to}); });
  print(name, "move (this project)", [&] { return shift(from, to); });
  print(name, "lay out (pdftopdf)", [&] { return layOut(original, ppd, to); });
  print(name, "lay out and move (this project)", [&] { return layOutAndShift(original); });
  print(name, "gs with /PageOffset", [&] {
    return execute({"gs", "-q", "-dNOPAUSE", "-dBATCH", "-sDEVICE=pdfwrite", "-o", to, "-c",
                    "<</PageOffset [7 2]>> setpagedevice", "-f", original});
  });
  print(name, "pdfjam --offset", [&] {
    return execute({"pdfjam", "--offset", "2.5mm 0.7mm", "-o", to, original});
  });
}

} // namespace

int main() {
  const TemporaryFolder folder;
  std::printf("%-28s %-34s %10s %11s\n", "document", "program", "time", "memory");
  compare(folder, "1 page of text", [] { return pdfWithText(1); });
  compare(folder, "100 pages of text", [] { return pdfWithText(100); });
  compare(folder, "3,000 pages of text", [] { return pdfWithText(3000); });
  compare(folder, "200 pages, 200 MB of images", [] { return pdfWithImages(200, 1'000'000); });
  return 0;
}
