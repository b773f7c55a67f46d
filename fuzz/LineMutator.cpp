// Mutates inputs line by line and keeps most lines intact, so that parsers get far into an input.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

using Lines = std::vector<std::string>;
using Random = std::minstd_rand;

Lines linesIn(const std::string &text) {
  Lines lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

std::string joined(const Lines &lines) {
  std::string text;
  for (const std::string &line : lines)
    text += line + '\n';
  return text;
}

std::size_t anyOf(const Lines &lines, Random &random) { return random() % lines.size(); }

/// Mostly changes the end of the line, which is a value.
void changeLine(std::string &line, Random &random) {
  const std::size_t start = line.empty() ? 0 : random() % (line.size() + 1);
  std::vector<std::uint8_t> bytes(line.begin() + static_cast<std::ptrdiff_t>(start), line.end());
  const std::size_t size = bytes.size();
  bytes.resize(size + 64);
  bytes.resize(LLVMFuzzerMutate(bytes.data(), size, bytes.size()));
  line.replace(start, line.size(), std::string(bytes.begin(), bytes.end()));
}

void changeLines(Lines &lines, Random &random) {
  const std::size_t one = anyOf(lines, random);
  const std::size_t other = anyOf(lines, random);
  const auto at = [&](std::size_t index) {
    return lines.begin() + static_cast<std::ptrdiff_t>(index);
  };
  switch (random() % 8) {
  case 0:
    lines.erase(at(one));
    break;
  case 1:
    lines.insert(at(one), std::string(lines[other]));
    break;
  case 2:
    std::swap(lines[one], lines[other]);
    break;
  case 3: // the value of another line
    lines[one].replace(std::min(lines[one].find(' '), lines[one].size()), std::string::npos,
                       lines[other].substr(std::min(lines[other].find(' '), lines[other].size())));
    break;
  default:
    changeLine(lines[one], random);
  }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  Random random(seed);
  Lines lines = linesIn(std::string(data, data + size));
  if (lines.empty())
    return LLVMFuzzerMutate(data, size, maxSize);
  do
    changeLines(lines, random);
  while (!lines.empty() && random() % 2 == 0);
  const std::string text = joined(lines).substr(0, maxSize);
  std::memcpy(data, text.data(), text.size());
  return text.size();
}
