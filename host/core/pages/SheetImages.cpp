#include "SheetImages.hpp"

#include "BackgroundCall.hpp"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <system_error>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{30};
constexpr int kNeighbours = 1;   // on each side of the visible sheet: they have images, if small
constexpr double kSmall = 0.5;   // pixels per point; an enlarged side takes megabytes
constexpr int kSheetsAround = 6; // laid out once these are there
constexpr int kMostPixels = 4000;

} // namespace

/// A part of the document, or the whole of it.
struct SheetImages::LaidOut {
  Descriptor file{-1};
  int firstSide = 0;
  int sides = 0;
  bool isWhole = false;
};

/// One step towards the images: lays sheets out, if necessary, and renders sides of them.
class SheetImages::Fetch {
public:
  struct Request {
    ShownDocument document;
    std::shared_ptr<const LaidOut> laidOut; // null to lay out first
    std::string pages;                      // to lay out; empty for all
    int firstSide = 0;                      // to lay out
    int laidOutSides = 0;                   // 0 if their number is not known
    std::vector<int> sides;                 // to render
    double pixelsPerPoint = 0;
    bool rendersFirstSheet = false; // before anything is known of the sides
  };
  struct Result {
    std::shared_ptr<const LaidOut> laidOut; // null after a failure
    std::map<int, SizedImage> images;
    MoveProblem problem = MoveProblem::Fault;
  };

  Fetch(Request request, const Changed &changed)
      : call_([request = std::move(request),
               isStopped = isStopped_] { return result(request, *isStopped); },
              kPatience + std::chrono::seconds(1), changed) {}
  ~Fetch() { *isStopped_ = true; }
  Fetch(const Fetch &) = delete;
  Fetch &operator=(const Fetch &) = delete;

  bool isDone() const { return call_.isDone() || call_.isTooLate(); }
  Result take() { return call_.isTooLate() ? Result{} : call_.take(); }

private:
  static Result result(Request request, const std::atomic<bool> &isStopped) {
    const auto end = Clock::now() + kPatience;
    const auto keepWaiting = [&] { return !isStopped && Clock::now() < end; };
    Result result;
    try {
      if (request.laidOut == nullptr)
        request.laidOut = laidOut(request, keepWaiting);
      if (request.laidOut == nullptr)
        return {};
      result.laidOut = request.laidOut;
      if (request.rendersFirstSheet)
        for (int side = 0; side < std::min(2, request.laidOut->sides); side++)
          request.sides.push_back(side);
      if (!request.sides.empty())
        render(request, keepWaiting, result.images);
      return result;
    } catch (const ShiftFailure &failure) {
      return {nullptr, {}, failure.problem()};
    } catch (const std::exception &) {
      return {};
    }
  }

  static std::shared_ptr<const LaidOut> laidOut(const Request &request,
                                                const std::function<bool()> &keepWaiting) {
    auto moved = request.document.job->layOut(request.document.path, request.pages, keepWaiting);
    const bool isExpected =
        moved && (request.laidOutSides == 0 || request.laidOutSides == moved->pages);
    if (!isExpected)
      return nullptr;
    auto laidOut = std::make_shared<LaidOut>();
    laidOut->file = std::move(moved->file);
    laidOut->firstSide = request.firstSide;
    laidOut->sides = moved->pages;
    laidOut->isWhole = request.pages.empty();
    return laidOut;
  }

  static void render(const Request &request, const std::function<bool()> &keepWaiting,
                     std::map<int, SizedImage> &images) {
    RenderRequest wanted;
    wanted.pixelsPerPoint = request.pixelsPerPoint;
    wanted.mostPixels = kMostPixels;
    for (const int side : request.sides)
      wanted.pages.push_back(side - request.laidOut->firstSide);
    std::vector<RenderedPage> pages = renderPages(request.laidOut->file, wanted, keepWaiting);
    for (std::size_t i = 0; i < std::min(pages.size(), request.sides.size()); i++)
      images[request.sides[i]] = {std::make_shared<const PageInk>(inkOn(std::move(pages[i]))),
                                  request.pixelsPerPoint};
  }

  const std::shared_ptr<std::atomic<bool>> isStopped_ = std::make_shared<std::atomic<bool>>(false);
  BackgroundCall<Result> call_;
};

SheetImages::SheetImages(Changed changed) : changed_(std::move(changed)) {}

SheetImages::~SheetImages() = default;

void SheetImages::cancel() { fetch_.reset(); }

void SheetImages::show(std::optional<ShownDocument> document) {
  const std::string path = document_ ? document_->path : "";
  if (document.has_value() == document_.has_value() &&
      (!document || document->identity == document_->identity))
    return;
  cancel();
  document_ = std::move(document);
  laidOut_.reset();
  hasFailed_ = false;
  const bool isSamePath = document_ && document_->path == path;
  if (!isSamePath) {
    images_.clear();
    order_ = {};
    sheet_ = 0;
  }
  for (auto &[side, image] : images_)
    image.pixelsPerPoint = 0; // to be replaced
  if (document_ && document_->pages)
    order_ = SheetOrder(*document_->pages, document_->order);
  sheet_ = std::clamp(sheet_, 0, std::max(order_.sheets() - 1, 0));
  dropDistantImages();
  fetchNext();
}

void SheetImages::setScale(double pixelsPerPoint, Needed needed) {
  if (pixelsPerPoint_ == pixelsPerPoint && needed_ == needed)
    return;
  pixelsPerPoint_ = pixelsPerPoint;
  needed_ = needed;
  fetchNext(); // or after what is being fetched, whose layout is still right
}

void SheetImages::turnTo(int sheet) {
  const int next = std::clamp(sheet, 0, std::max(order_.sheets() - 1, 0));
  if (next == sheet_)
    return;
  sheet_ = next;
  dropDistantImages();
  const bool isWholeNeeded = laidOut_ == nullptr && !document_->pages;
  if (state() == State::Loading && !isWholeNeeded) // the visible sheet first
    cancel();
  fetchNext();
}

bool SheetImages::take() {
  if (fetch_ == nullptr || !fetch_->isDone())
    return false;
  const auto fetch = std::exchange(fetch_, nullptr);
  Fetch::Result result = fetch->take();
  if (result.laidOut == nullptr) {
    hasFailed_ = true;
    problem_ = result.problem;
    images_.clear();
    order_ = {}; // there is nothing to turn to
    return true;
  }
  laidOut_ = std::move(result.laidOut);
  if (laidOut_->isWhole && !document_->pages) {
    order_ = SheetOrder(laidOut_->sides, document_->order);
    sheet_ = std::clamp(sheet_, 0, std::max(order_.sheets() - 1, 0));
  }
  for (auto &[side, image] : result.images)
    images_[side] = std::move(image);
  dropDistantImages();
  fetchNext();
  return true;
}

SheetImages::State SheetImages::state() const noexcept {
  if (!document_)
    return State::None;
  if (hasFailed_)
    return State::Failed;
  if (order_.sheets() == 0)
    return document_->pages ? State::None : State::Loading; // the page ranges have no page
  const std::vector<int> needed = neededSides(sheet_);
  const bool isComplete =
      std::all_of(needed.begin(), needed.end(), [this](int side) { return isFetched(side); });
  return isComplete ? State::Shown : State::Loading;
}

std::vector<int> SheetImages::neededSides(int sheet) const {
  const SheetSides sides = order_.sheet(sheet);
  std::vector<int> needed;
  if (sides.front && needed_ != Needed::Back)
    needed.push_back(*sides.front);
  if (sides.back && needed_ != Needed::Front)
    needed.push_back(*sides.back);
  return needed;
}

SheetImages::Image SheetImages::imageOf(const std::optional<int> &side) const {
  const auto found = side ? images_.find(*side) : images_.end();
  return found == images_.end() || found->second.image->pixels.empty() ? nullptr
                                                                       : found->second.image;
}

/// Without an image of the right size.
std::vector<int> SheetImages::missingSides(int sheet) const {
  std::vector<int> missing;
  for (const int side : neededSides(sheet)) {
    const auto found = images_.find(side);
    if (found == images_.end() || found->second.pixelsPerPoint != pixelsPerPoint_)
      missing.push_back(side);
  }
  return missing;
}

/// Whether the sheet is laid out; there need not be such a sheet.
bool SheetImages::covers(int sheet) const {
  if (laidOut_ == nullptr)
    return false;
  const int first = order_.firstSide(sheet), end = order_.firstSide(sheet + 1);
  return first >= end ||
         (laidOut_->firstSide <= first && end <= laidOut_->firstSide + laidOut_->sides);
}

void SheetImages::dropDistantImages() {
  const int first = order_.firstSide(sheet_ - kNeighbours);
  const int end = order_.firstSide(sheet_ + kNeighbours + 1);
  for (auto image = images_.begin(); image != images_.end();)
    image = image->first < first || image->first >= end ? images_.erase(image) : std::next(image);
}

/// The visible sheet, then its neighbours if they are small, then the layout of the sheets that
/// come next.
void SheetImages::fetchNext() {
  if (!document_ || hasFailed_ || fetch_ != nullptr || pixelsPerPoint_ <= 0)
    return;
  Fetch::Request request;
  request.document = *document_;
  request.laidOut = laidOut_;
  request.pixelsPerPoint = pixelsPerPoint_;
  int wanted = sheet_;
  const int beside = pixelsPerPoint_ <= kSmall ? kNeighbours : 0;
  for (const int sheet : {sheet_, sheet_ + beside, sheet_ - beside})
    if (request.sides.empty() && sheet >= 0 && sheet < order_.sheets()) {
      request.sides = missingSides(sheet);
      wanted = sheet;
    }
  const bool isUnknown = order_.sheets() == 0 || (!document_->pages && laidOut_ == nullptr);
  if (isUnknown && (document_->pages || laidOut_ != nullptr))
    return; // nothing is printed
  const bool isNextMissing = !covers(sheet_ + 2 * kNeighbours) || !covers(sheet_ - 2 * kNeighbours);
  if (request.sides.empty() && !isUnknown && !isNextMissing)
    return;
  if (isUnknown) {
    request.sides.clear();
    request.rendersFirstSheet = true;
  } else if (request.sides.empty() || !covers(wanted)) {
    const int around = request.sides.empty() ? kSheetsAround : kNeighbours;
    const int first = order_.firstSide(std::max(sheet_ - around, 0));
    const int end = order_.firstSide(sheet_ + around + 1);
    request.laidOut.reset();
    request.firstSide = first;
    request.laidOutSides = end - first;
    request.pages = order_.pages(first, end);
  }
  try {
    fetch_ = std::make_unique<Fetch>(std::move(request), changed_);
  } catch (const std::system_error &) { // no thread is left
    hasFailed_ = true;
    problem_ = MoveProblem::Fault;
  }
}

} // namespace imageposition
