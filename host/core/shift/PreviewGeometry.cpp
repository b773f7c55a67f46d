#include "PreviewGeometry.hpp"

#include "Phrases.hpp"
#include "SharedKeys.h"
#include "ShiftTexts.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>
#include <utility>

namespace imageposition {
namespace {

constexpr Point kA4Width = {595};
constexpr Point kA4Height = {842};

PageRectangle wholePage(const PageShape &page) { return {{0}, {0}, page.width, page.height}; }

bool isUsableLength(double points) { return std::isfinite(points) && points > 0; }

/// A PPD measures upwards from the lower-left corner.
PageShape pageShapeOf(ppd_file_t *ppd) {
  PageShape page{kA4Width, kA4Height, {}, false, false};
  const ppd_size_t *const size = ppd == nullptr ? nullptr : ppdPageSize(ppd, nullptr);
  if (size == nullptr || !isUsableLength(size->width) || !isUsableLength(size->length)) {
    page.imageable = wholePage(page);
    return page;
  }
  page.width = {size->width};
  page.height = {size->length};
  page.isSizeKnown = true;
  const double left = std::max<double>(size->left, 0);
  const double right = std::min<double>(size->right, size->width);
  const double top = std::max<double>(size->length - size->top, 0);
  const double bottom = std::min<double>(size->length - size->bottom, size->length);
  page.isImageableKnown = left < right && top < bottom; // also false for NaN
  page.imageable =
      page.isImageableKnown ? PageRectangle{{left}, {top}, {right}, {bottom}} : wholePage(page);
  return page;
}

Turning turningOf(ppd_file_t *ppd) {
  const ppd_choice_t *const choice = ppdFindMarkedChoice(ppd, "Duplex");
  if (choice == nullptr)
    return Turning::LongEdge;
  if (std::strcmp(choice->choice, "None") == 0)
    return Turning::OneSided;
  return std::strcmp(choice->choice, "DuplexTumble") == 0 ? Turning::ShortEdge : Turning::LongEdge;
}

/// Like a driver, reads digits up to the first other character and saturates.
int readTenths(const char *text) {
  const long long number = std::strtoll(text, nullptr, 10);
  return static_cast<int>(std::clamp<long long>(number, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

Offset readOffset(const PrintSettingsStore &job, const char *right, const char *down) {
  const auto read = [&job](const char *key) -> TenthMillimetre {
    const char *const text = job.get(key);
    return {text == nullptr ? 0 : readTenths(text)};
  };
  return {read(right), read(down)};
}

bool backHasItsOwn(const PrintSettingsStore &job) {
  const char *const flag = job.get(IPA_KEY_ENABLE);
  return flag != nullptr && std::strcmp(flag, IPA_VALUE_TRUE) == 0;
}

std::vector<PageRectangle> partsOutside(const PageRectangle &inner, const PageRectangle &area) {
  std::vector<PageRectangle> parts;
  const auto add = [&parts](Point left, Point top, Point right, Point bottom) {
    if (left < right && top < bottom)
      parts.push_back({left, top, right, bottom});
  };
  // The top and bottom strips include the corners.
  add(inner.left, inner.top, inner.right, std::min(inner.bottom, area.top));
  add(inner.left, std::max(inner.top, area.bottom), inner.right, inner.bottom);
  const Point top = std::max(inner.top, area.top);
  const Point bottom = std::min(inner.bottom, area.bottom);
  add(inner.left, top, std::min(inner.right, area.left), bottom);
  add(std::max(inner.left, area.right), top, inner.right, bottom);
  return parts;
}

SidePreview shiftedSide(const PageShape &page, const Offset &offset) {
  const Point right = toPoints(offset.right);
  const Point down = toPoints(offset.down);
  const PageRectangle &from = page.imageable;
  SidePreview side{offset, from, {}, {}};
  side.content = {from.left + right, from.top + down, from.right + right, from.bottom + down};
  side.lost = partsOutside(side.content, side.imageable);
  return side;
}

PageRectangle mirrored(const PageRectangle &rectangle, const PageShape &page, bool leftRight) {
  PageRectangle result = rectangle;
  if (leftRight) {
    result.left = page.width - rectangle.right;
    result.right = page.width - rectangle.left;
  } else {
    result.top = page.height - rectangle.bottom;
    result.bottom = page.height - rectangle.top;
  }
  return result;
}

SidePreview mirrored(const SidePreview &side, const PageShape &page, bool leftRight) {
  SidePreview result = side;
  if (leftRight)
    result.offset.right = -side.offset.right;
  else
    result.offset.down = -side.offset.down;
  result.imageable = mirrored(side.imageable, page, leftRight);
  result.content = mirrored(side.content, page, leftRight);
  for (PageRectangle &part : result.lost)
    part = mirrored(part, page, leftRight);
  return result;
}

std::string directions(const Offset &offset) {
  std::vector<std::string> parts;
  if (offset.right.count > 0)
    parts.push_back(messages::toTheRight(lengthText(offset.right)));
  if (offset.right.count < 0)
    parts.push_back(messages::toTheLeft(lengthText(-offset.right)));
  if (offset.down.count > 0)
    parts.push_back(messages::downwards(lengthText(offset.down)));
  if (offset.down.count < 0)
    parts.push_back(messages::upwards(lengthText(-offset.down)));
  return messages::inWords(parts);
}

/// Limits each length to the size of the content.
std::string lostEdges(const SidePreview &side) {
  const PageRectangle &content = side.content;
  const Point width = content.right - content.left;
  const Point height = content.bottom - content.top;
  std::vector<std::string> parts;
  const auto add = [&parts](Point length, Point most, std::string (*text)(const std::string &)) {
    if (const TenthMillimetre lost = toTenthMillimetres(std::min(length, most)); lost.count > 0)
      parts.push_back(text(lengthText(lost)));
  };
  add(side.imageable.left - content.left, width, messages::atTheLeft);
  add(content.right - side.imageable.right, width, messages::atTheRight);
  add(side.imageable.top - content.top, height, messages::atTheTop);
  add(content.bottom - side.imageable.bottom, height, messages::atTheBottom);
  return messages::inWords(parts);
}

bool isZero(const Offset &offset) { return offset == Offset{}; }

} // namespace

bool operator==(const Offset &a, const Offset &b) noexcept {
  return a.right == b.right && a.down == b.down;
}

bool operator==(const PageRectangle &a, const PageRectangle &b) noexcept {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

bool operator==(const SidePreview &a, const SidePreview &b) noexcept {
  return a.offset == b.offset && a.imageable == b.imageable && a.content == b.content &&
         a.lost == b.lost;
}

bool operator==(const Preview &a, const Preview &b) noexcept {
  return a.page.width == b.page.width && a.page.height == b.page.height &&
         a.page.imageable == b.page.imageable && a.page.isSizeKnown == b.page.isSizeKnown &&
         a.page.isImageableKnown == b.page.isImageableKnown && a.turning == b.turning &&
         a.availability == b.availability && a.hasLandscapePages == b.hasLandscapePages &&
         a.front == b.front && a.back == b.back && a.frontSeenThrough == b.frontSeenThrough;
}

bool turnsAboutVerticalAxis(const PageShape &page, Turning turning) noexcept {
  return (page.height < page.width) == (turning == Turning::ShortEdge);
}

PreviewRequest readPreviewRequest(const PrintSettingsStore &job, ppd_file_t *ppd) {
  PreviewRequest request;
  request.page = pageShapeOf(ppd);
  request.turning = turningOf(ppd);
  request.front = readOffset(job, IPA_KEY_FRONT_LEFT_RIGHT, IPA_KEY_FRONT_TOP_BOTTOM);
  request.back = backHasItsOwn(job)
                     ? readOffset(job, IPA_KEY_BACK_LEFT_RIGHT, IPA_KEY_BACK_TOP_BOTTOM)
                     : request.front;
  request.availability = availabilityOf(ppd);
  return request;
}

Preview makePreview(const PreviewRequest &request) {
  const bool shifts = request.availability.isAvailable();
  Preview preview;
  preview.page = request.page;
  preview.turning = request.turning;
  preview.availability = request.availability;
  preview.hasLandscapePages =
      request.hasLandscapePages && !(request.page.height < request.page.width);
  preview.front = shiftedSide(request.page, shifts ? request.front : Offset{});
  if (request.turning == Turning::OneSided)
    return preview;
  preview.back = shiftedSide(request.page, shifts ? request.back : Offset{});
  preview.frontSeenThrough =
      mirrored(preview.front, request.page, turnsAboutVerticalAxis(request.page, request.turning));
  return preview;
}

Preview makePreview(const PrintSettingsStore &job, ppd_file_t *ppd) {
  return makePreview(readPreviewRequest(job, ppd));
}

std::vector<std::string> describeOffsets(const Offset &front, const Offset &back) {
  if (isZero(front) && isZero(back))
    return {messages::kPreviewNothingMoved};
  if (front == back)
    return {messages::previewBothMoved(directions(front))};
  std::vector<std::string> sentences;
  if (!isZero(front))
    sentences.push_back(messages::previewFrontMoved(directions(front)));
  if (!isZero(back))
    sentences.push_back(messages::previewBackMoved(directions(back)));
  return sentences;
}

std::vector<std::string> describeLosses(const Preview &preview) {
  std::vector<std::string> sentences;
  if (const std::string edges = lostEdges(preview.front); !edges.empty())
    sentences.push_back(messages::previewFrontLoses(edges));
  if (const std::string edges = preview.back ? lostEdges(*preview.back) : ""; !edges.empty())
    sentences.push_back(messages::previewBackLoses(edges));
  return sentences;
}

std::vector<std::string> describePreview(const Preview &preview) {
  std::vector<std::string> sentences;
  if (!preview.page.isSizeKnown)
    sentences.emplace_back(messages::kPreviewSizeUnknown);
  else if (!preview.page.isImageableKnown)
    sentences.emplace_back(messages::kPreviewImageableUnknown);
  if (!preview.availability.isAvailable() || !preview.back) {
    sentences.push_back(reasonText(preview.availability));
    return sentences;
  }
  for (std::string &sentence : describeOffsets(preview.front.offset, preview.back->offset))
    sentences.push_back(std::move(sentence));
  const Offset apart = backAgainstFront(preview);
  if (!isZero(apart))
    sentences.push_back(messages::previewBackAgainstFront(directions(apart)));
  else if (!isZero(preview.back->offset))
    sentences.emplace_back(messages::kPreviewSidesTogether);
  for (std::string &sentence : describeLosses(preview))
    sentences.push_back(std::move(sentence));
  if (preview.hasLandscapePages)
    sentences.emplace_back(messages::kPreviewUprightSheet);
  return sentences;
}

Offset backAgainstFront(const Preview &preview) {
  if (!preview.frontSeenThrough)
    return {};
  const Offset &front = preview.frontSeenThrough->offset;
  return {preview.back->offset.right - front.right, preview.back->offset.down - front.down};
}

} // namespace imageposition
