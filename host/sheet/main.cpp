/// Reads a task from standard input, and writes the PDF document to standard output.

#include "SheetDrawing.hpp"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <iterator>

int main() try {
  using imageposition::drawSheets;
  using imageposition::readSheetTask;
  const std::string text(std::istreambuf_iterator<char>(std::cin), {});
  const auto task = readSheetTask(text);
  const auto document = task ? drawSheets(*task) : std::nullopt;
  if (!document ||
      !std::cout.write(document->data(), static_cast<std::streamsize>(document->size())) ||
      !std::cout.flush())
    return EXIT_FAILURE;
  return EXIT_SUCCESS;
} catch (const std::exception &) {
  return EXIT_FAILURE;
}
