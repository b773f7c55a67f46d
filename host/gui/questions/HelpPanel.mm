#import "HelpPanel.h"

#import "HelpPicture.h"
#include "HelpTexts.hpp"
#import "Labels.h"
#import "ModalPanel.h"

#include <algorithm>
#include <string>
#include <vector>

namespace imageposition {

namespace {

constexpr CGFloat kCharactersInLine = 58;
constexpr CGFloat kGap = 5;
constexpr CGFloat kSectionGap = 14;

/// A label and its distance from the upper left corner.
struct Placed {
  NSView *view;
  CGFloat left;
  CGFloat top;
};

/// Puts labels one below the other.
class Column {
public:
  explicit Column(CGFloat width)
      : width_(width), indent_(NSWidth([makeLabel("0.") frame]) + kGap) {}

  void add(const HelpSection &section) {
    height_ += height_ > 0 ? kSectionGap : 0;
    place(makeLabel(section.title, true), 0);
    int step = 0;
    for (const std::string &paragraph : section.paragraphs) {
      if (section.areSteps)
        texts_.push_back({makeLabel(std::to_string(++step) + "."), 0, height_ + kGap});
      const CGFloat indent = section.areSteps ? indent_ : 0;
      height_ += kGap;
      place(makeParagraph(paragraph, width_ - indent), indent);
    }
  }

  CGFloat height() const { return height_; }
  const std::vector<Placed> &texts() const { return texts_; }

private:
  void place(NSTextField *text, CGFloat left) {
    texts_.push_back({text, left, height_});
    height_ += NSHeight([text frame]);
  }

  CGFloat width_;
  CGFloat indent_;
  CGFloat height_ = 0;
  std::vector<Placed> texts_;
};

} // namespace

void showHelp(NSWindow *parent) {
  const CGFloat width = kCharactersInLine * [[NSFont systemFontOfSize:0] widthOfString:@"n"];
  Column column(width);
  for (const HelpSection &section : helpSections())
    column.add(section);
  const NSSize picture = [HelpPicture preferredSize];
  const CGFloat height = std::max(column.height(), picture.height);
  ModalPanel panel(messages::kHelpWindow, width + picture.width + 3 * kPanelMargin, height,
                   messages::kClose);
  const CGFloat top = panel.bottom() + height;
  for (const Placed &text : column.texts()) {
    [text.view setFrameOrigin:NSMakePoint(kPanelMargin + text.left,
                                          top - text.top - NSHeight([text.view frame]))];
    panel.add(text.view);
  }
  const NSRect frame =
      NSMakeRect(2 * kPanelMargin + width, top - picture.height, picture.width, picture.height);
  panel.add([[[HelpPicture alloc] initWithFrame:frame] autorelease]);
  panel.run(parent, {});
}

} // namespace imageposition
