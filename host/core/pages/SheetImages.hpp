/// Fetches images of the job's sheets in the background.
#ifndef IMAGEPOSITION_CORE_PAGES_SHEETIMAGES_HPP
#define IMAGEPOSITION_CORE_PAGES_SHEETIMAGES_HPP

#include "PageInk.hpp"
#include "SheetOrder.hpp"
#include "ShiftedJob.hpp"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace imageposition {

/// A document as the job prints it.
struct ShownDocument {
  std::shared_ptr<const ShiftedJob> job; ///< Moves nothing.
  std::string path;
  std::string name; ///< For display, if the job has other documents, too; otherwise empty.
  /// None if its pages are only known once it is laid out.
  std::optional<DocumentPages> pages;
  SideOrder order;
  std::string identity; ///< Changes with anything that affects the laid-out pages.
};

/// The images of the visible sheet and, while they are small, its neighbours; no others are kept.
/// Only the sheets around the visible one are laid out, if the document's pages are known, so a
/// long document takes no longer than a short one.
///
/// Call all methods on one thread; none waits.
class SheetImages {
public:
  /// Called on another thread when `take` has a result.
  using Changed = std::function<void()>;
  using Image = std::shared_ptr<const PageInk>; ///< Null while there is none.

  enum class State {
    None,    ///< There is no document to show.
    Loading, ///< A side of the visible sheet that is needed is not there yet.
    Shown,
    Failed,
  };

  /// Of the visible sheet. An enlarged side takes megabytes, so the other one is not fetched.
  enum class Needed { BothSides, Front, Back };

  explicit SheetImages(Changed changed);
  /// Cancels what is under way.
  ~SheetImages();
  SheetImages(const SheetImages &) = delete;
  SheetImages &operator=(const SheetImages &) = delete;

  /// Shows another document, or the same one laid out differently. Does nothing if the identity is
  /// the same. Until there are new images, those of the same path stay.
  void show(std::optional<ShownDocument> document);
  /// The size of the images. Until there are new images, the others stay.
  void setScale(double pixelsPerPoint, Needed needed = Needed::BothSides);
  /// Turns to a sheet, or to the nearest one that exists.
  void turnTo(int sheet);
  /// Takes what was fetched; returns whether anything has changed.
  bool take();

  State state() const noexcept;
  /// Why there are no images; valid if the state is `Failed`.
  MoveProblem problem() const noexcept { return problem_; }
  /// The document's path; empty without one.
  std::string path() const { return document_ ? document_->path : ""; }
  /// The document's name if it needs one.
  std::string name() const { return document_ ? document_->name : ""; }
  int sheet() const noexcept { return sheet_; }
  const SheetOrder &order() const noexcept { return order_; }
  Image front() const { return imageOf(order_.sheets() > 0 ? sides().front : std::nullopt); }
  Image back() const { return imageOf(order_.sheets() > 0 ? sides().back : std::nullopt); }
  /// Whether `front` and `back` are known: there is an image, or none to wait for.
  bool hasFront() const { return order_.sheets() == 0 || isFetched(sides().front); }
  bool hasBack() const { return order_.sheets() == 0 || isFetched(sides().back); }

private:
  class Fetch;
  struct LaidOut;
  struct SizedImage {
    Image image;
    double pixelsPerPoint;
  };

  SheetSides sides() const { return order_.sheet(sheet_); }
  std::vector<int> neededSides(int sheet) const;
  Image imageOf(const std::optional<int> &side) const;
  bool isFetched(const std::optional<int> &side) const { return !side || images_.count(*side) > 0; }
  std::vector<int> missingSides(int sheet) const;
  bool covers(int sheet) const;
  void dropDistantImages();
  void fetchNext();
  void cancel();

  Changed changed_;
  std::optional<ShownDocument> document_;
  double pixelsPerPoint_ = 0;
  Needed needed_ = Needed::BothSides;
  int sheet_ = 0;
  SheetOrder order_;
  std::map<int, SizedImage> images_; // by printed side
  std::shared_ptr<const LaidOut> laidOut_;
  bool hasFailed_ = false;
  MoveProblem problem_ = MoveProblem::Fault;
  std::unique_ptr<Fetch> fetch_; // null if nothing is under way
};

} // namespace imageposition

#endif
