// as-a-person STEPS [FOLDER]: performs the steps of a file, and leaves a screenshot of each step in
// the folder. Prints the step that failed.
#include "Person.hpp"

#include <cstdio>
#include <filesystem>
#include <iostream>

using imageposition::test::Person;

namespace {

void takeScreenshot(const std::string &folder, int step) {
  char name[32];
  std::snprintf(name, sizeof name, "/%03d.png", step);
  const auto result = imageposition::test::runProcess({"import", "-window", "root", folder + name});
  if (result.status != 0)
    std::cerr << "as-a-person: " << result.errors;
}

int performFile(const std::string &path, const std::string &folder) {
  Person person;
  const auto sentences = person.sentences();
  int step = 0;
  for (const std::string &line : imageposition::test::readSteps(path)) {
    step++;
    try {
      perform(sentences, line);
    } catch (const std::exception &failure) {
      std::cerr << path << ": " << line << "\n  " << failure.what() << '\n';
      return 1;
    }
    std::cout << line << '\n';
    if (!folder.empty())
      takeScreenshot(folder, step);
  }
  return 0;
}

} // namespace

int main(int argc, char **argv) {
  if (argc < 2 || argc > 3) {
    std::cerr << "usage: as-a-person STEPS [FOLDER]\n";
    return 2;
  }
  try {
    const std::string folder = argc > 2 ? argv[2] : "";
    if (!folder.empty())
      std::filesystem::create_directories(folder);
    return performFile(argv[1], folder);
  } catch (const std::exception &failure) {
    std::cerr << argv[1] << ": " << failure.what() << '\n';
    return 1;
  }
}
