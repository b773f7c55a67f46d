#include "RenderTask.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace imageposition {

namespace {

constexpr double kLargestPage = 1e6;     // points
constexpr double kRoundingError = 1e-6;  // pixels
constexpr double kLargestScale = 1e4;    // pixels per point
constexpr int kLastPage = 2'000'000'000; // which no document has

/// The shortest string that reads back as the same number, in any locale.
std::string textOf(double number) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
  return {text.data(), end};
}

template <typename Number> std::optional<Number> read(std::string_view text) {
  Number number{};
  const char *const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

bool isPage(int page) noexcept { return page >= 0 && page <= kLastPage; }

/// What is before the next space, which it removes with the space.
std::string_view takeWord(std::string_view &line) {
  const std::string_view word = line.substr(0, line.find(' '));
  line.remove_prefix(std::min(word.size() + 1, line.size()));
  return word;
}

int pixelsOf(Point length, double scale, int most) {
  const double pixels = std::ceil(length.count * scale - kRoundingError);
  return static_cast<int>(std::clamp(pixels, 1.0, static_cast<double>(most)));
}

} // namespace

bool isValid(const RenderRequest &request) {
  const bool isScale = request.pixelsPerPoint > 0 && request.pixelsPerPoint <= kLargestScale;
  return isScale && request.mostPixels >= 1 && request.mostPixels <= kMostPixelsOfSide &&
         !request.pages.empty() && request.pages.size() <= kMostRenderedPages &&
         std::all_of(request.pages.begin(), request.pages.end(), isPage);
}

std::size_t largestResult(const RenderRequest &request) {
  const auto most = static_cast<std::size_t>(request.mostPixels);
  return request.pages.size() * most * most * kBytesPerPixel;
}

std::vector<std::string> wordsOf(const RenderRequest &request) {
  std::vector<std::string> words{textOf(request.pixelsPerPoint),
                                 std::to_string(request.mostPixels)};
  for (const int page : request.pages)
    words.push_back(std::to_string(page));
  return words;
}

std::optional<RenderRequest> readRenderRequest(const std::vector<std::string> &words) {
  if (words.size() < 3)
    return std::nullopt;
  RenderRequest request;
  request.pixelsPerPoint = read<double>(words[0]).value_or(0);
  request.mostPixels = read<int>(words[1]).value_or(0);
  for (std::size_t i = 2; i < words.size(); i++)
    request.pages.push_back(read<int>(words[i]).value_or(-1));
  return isValid(request) ? std::optional(request) : std::nullopt;
}

bool isPageSize(Point width, Point height) noexcept {
  return width.count > 0 && width.count <= kLargestPage && height.count > 0 &&
         height.count <= kLargestPage;
}

std::string lineOf(const PageReport &report) {
  return std::to_string(report.page) + " " + textOf(report.width.count) + " " +
         textOf(report.height.count) + "\n";
}

std::optional<PageReport> readPageReport(std::string_view line) {
  if (line.empty() || line.back() != '\n')
    return std::nullopt;
  line.remove_suffix(1);
  const auto page = read<int>(takeWord(line));
  const auto width = read<double>(takeWord(line));
  const auto height = read<double>(line);
  if (!page || !isPage(*page) || !width || !height)
    return std::nullopt;
  const bool isEmpty = *width == 0 && *height == 0;
  if (!isEmpty && !isPageSize({*width}, {*height}))
    return std::nullopt;
  return PageReport{*page, {*width}, {*height}};
}

PixelSize pixelSizeOf(const PageReport &report, const RenderRequest &request) noexcept {
  if (!report.isRendered())
    return {};
  const double longest = std::max(report.width.count, report.height.count);
  const double scale = std::min(request.pixelsPerPoint, request.mostPixels / longest);
  return {pixelsOf(report.width, scale, request.mostPixels),
          pixelsOf(report.height, scale, request.mostPixels), scale};
}

} // namespace imageposition
