#import "AlignPanel.h"

#include "AlignerTexts.hpp"
#include "AlignmentTexts.hpp"
#include "ExitCode.hpp"
#include "HelpTexts.hpp"
#import "Labels.h"
#import "MessageView.h"
#import "MnemonicControls.h"
#import "ModalPanel.h"
#include "Phrases.hpp"
#include "QuestionTexts.hpp"
#import "ReadingFields.h"
#import "ScaleView.h"
#import "TextBridge.h"
#import "WindowPlacement.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace imageposition;
using Step = AlignmentSteps::Step;

/// The target of the button that goes another way than on.
@interface AlignButtonTarget : NSObject {
@public
  const std::function<void()> *pressed; ///< Not owned.
}
- (void)press:(id)sender;
@end

@implementation AlignButtonTarget

- (void)press:(id)sender {
  (void)sender;
  (*pressed)();
}

@end

namespace imageposition {

namespace {

constexpr CGFloat kGap = 12;
constexpr CGFloat kColumnGap = 24;
constexpr CGFloat kWordsWidth = 440;
constexpr int kFindingLines = 5; // more of them scroll
constexpr int kFewestFindingLines = 2;

std::string paragraphs(const std::vector<std::string> &texts) {
  std::string joined;
  for (const std::string &text : texts)
    joined += (joined.empty() ? "" : "\n\n") + text;
  return joined;
}

class AlignPanel {
public:
  AlignPanel(AlignmentSteps &steps, const AlignActions &actions);
  ~AlignPanel();
  AlignPanel(const AlignPanel &) = delete;
  AlignPanel &operator=(const AlignPanel &) = delete;

  void run(NSWindow *parent);

private:
  CGFloat wordsHeight(const std::string &text) const;
  void place();
  bool confirm();
  void goElsewhere();
  void print();
  bool mayTake();
  void showStep();
  void showReading();
  void showWords(const std::string &text);

  AlignmentSteps &steps_;
  const AlignActions &actions_;
  const std::function<void()> readingChanged_ = [this] { showReading(); };
  const std::function<void()> elsewherePressed_ = [this] { goElsewhere(); };
  std::string said_;      // at the foot, until there are findings; may be empty
  ReadingFields *fields_; // owned; so below
  ScaleView *scale_;
  NSTextField *caption_;
  NSTextField *words_;
  MessageView *findings_;
  AlignButtonTarget *target_;
  NSButton *elsewhere_;
  CGFloat width_ = 0;       // of the right column
  CGFloat upperHeight_ = 0; // of what stands above the findings
  CGFloat findingsHeight_ = 0;
  std::optional<ModalPanel> panel_; // always there; made once its size is known
};

AlignPanel::AlignPanel(AlignmentSteps &steps, const AlignActions &actions)
    : steps_(steps), actions_(actions), target_([[AlignButtonTarget alloc] init]) {
  fields_ = [[ReadingFields alloc] initWithForm:steps.form() changed:readingChanged_];
  const NSSize scale = [ScaleView preferredSize];
  scale_ = [[ScaleView alloc] initWithFrame:NSMakeRect(0, 0, scale.width, scale.height)];
  caption_ = [makeLabel("Ag", true) retain];
  words_ = [makeParagraph("", kWordsWidth) retain];
  findings_ = [[MessageView alloc] initWithFrame:NSZeroRect];
  target_->pressed = &elsewherePressed_;
  elsewhere_ = [makeButton("", target_, @selector(press:)) retain];
  width_ = std::max(kWordsWidth, NSWidth([fields_ frame]));
  const CGFloat line = paragraphHeight(@"Ag", [words_ font], width_);
  const CGFloat reading = std::max(wordsHeight(messages::kHowToRead),
                                   wordsHeight(messages::kHowToReadCreases)) +
                          kGap + NSHeight([fields_ frame]) + line; // an error
  upperHeight_ = std::max(NSHeight([caption_ frame]) + 4 + scale.height, reading);
  const CGFloat room =
      roomOnScreen().height - upperHeight_ - kGap - 3 * kPanelMargin - kButtonHeight;
  findingsHeight_ = std::max(std::min(kFindingLines * line + 3, room), kFewestFindingLines * line);
  panel_.emplace(messages::kAlignWindow, 2 * kPanelMargin + scale.width + kColumnGap + width_,
                 upperHeight_ + kGap + findingsHeight_, messages::kPrintSheets, messages::kCancel);
  place();
}

AlignPanel::~AlignPanel() {
  [fields_ detach];
  [elsewhere_ setTarget:nil];
  panel_.reset();
  for (id view : {(id)fields_, (id)scale_, (id)caption_, (id)words_, (id)findings_, (id)target_,
                  (id)elsewhere_})
    [view release];
}

CGFloat AlignPanel::wordsHeight(const std::string &text) const {
  return paragraphHeight(toString(text), [words_ font], width_);
}

/// The drawing at the left, words and fields at the right, findings below both.
void AlignPanel::place() {
  for (NSView *view : {(NSView *)scale_, (NSView *)caption_, (NSView *)words_, (NSView *)fields_,
                       (NSView *)findings_, (NSView *)elsewhere_})
    panel_->add(view);
  const CGFloat top = panel_->bottom() + findingsHeight_ + kGap + upperHeight_;
  const NSSize scale = [scale_ frame].size;
  [caption_ setFrame:NSMakeRect(kPanelMargin, top - NSHeight([caption_ frame]), scale.width,
                                NSHeight([caption_ frame]))];
  [scale_ setFrameOrigin:NSMakePoint(kPanelMargin, NSMinY([caption_ frame]) - 4 - scale.height)];
  [findings_ setFrame:NSMakeRect(kPanelMargin, panel_->bottom(), scale.width + kColumnGap + width_,
                                 findingsHeight_)];
}

/// At the top of the right column; the fields follow.
void AlignPanel::showWords(const std::string &text) {
  const CGFloat left = NSMaxX([scale_ frame]) + kColumnGap, top = NSMaxY([caption_ frame]);
  const CGFloat height = wordsHeight(text);
  [words_ setStringValue:toString(text)];
  [words_ setFrame:NSMakeRect(left, top - height, width_, height)];
}

void AlignPanel::showStep() {
  const Step step = steps_.step();
  const bool isReading = step == Step::Read;
  [fields_ setHidden:!isReading];
  showWords(paragraphs(steps_.explanation()));
  switch (step) {
  case Step::Print:
    panel_->retitleButtons(messages::kPrintSheets, messages::kCancel);
    retitle(elsewhere_, messages::kReadSheets);
    [caption_ setStringValue:toString(messages::sheetExample())];
    [scale_ showPicture:vernierPicture(kFirstAcross, kExampleDisplacement)];
    break;
  case Step::Read:
    panel_->retitleButtons(messages::kTakeOffsets, messages::kCancel);
    retitle(elsewhere_, messages::kBack);
    break;
  case Step::Check:
    panel_->retitleButtons(messages::kClose, "");
    retitle(elsewhere_, messages::kPrintSheets);
    [caption_ setStringValue:toString(messages::kAsItShouldBe)];
    [scale_ showPicture:vernierPicture(kFirstAcross, {})];
    break;
  }
  [elsewhere_ setFrameOrigin:NSMakePoint(kPanelMargin, kPanelMargin)];
  std::vector<NSView *> order;
  if (isReading)
    order = [fields_ fields];
  order.push_back(elsewhere_);
  panel_->link(order);
  if (isReading) {
    showReading();
    [panel_->window() makeFirstResponder:order.front()];
  } else {
    [findings_ setStringValue:toString(said_)];
    [panel_->window() makeFirstResponder:panel_->confirmButton()];
  }
}

/// Follows every key.
void AlignPanel::showReading() {
  if (!panel_ || steps_.step() != Step::Read)
    return;
  const ReadingForm &form = steps_.form();
  const ReadingForm::Place place = [fields_ current];
  [scale_ showPicture:form.picture(place)];
  [caption_ setStringValue:toString(messages::named([fields_ nameOfCurrent],
                                                    lengthText(form.shown(place))))];
  showWords(place.row == form.creaseRow() ? messages::kHowToReadCreases : messages::kHowToRead);
  const CGFloat reserved =
      std::max(wordsHeight(messages::kHowToRead), wordsHeight(messages::kHowToReadCreases));
  [fields_
      setFrameOrigin:NSMakePoint(NSMinX([words_ frame]), NSMaxY([caption_ frame]) - reserved -
                                                             kGap - NSHeight([fields_ frame]))];
  const std::vector<std::string> findings = steps_.findings();
  const std::string shown = findings.empty() ? said_ : messages::sentences(findings);
  [findings_ setStringValue:toString(shown)];
  [[panel_->window() contentView] setNeedsDisplay:YES];
}

void AlignPanel::print() {
  try {
    if (steps_.step() == Step::Check)
      steps_.printAgain();
    said_ = actions_.print(panel_->window());
    steps_.sheetsPrinted();
    [fields_ reload];
  } catch (const Failure &failure) {
    said_ = failure.what();
  }
  showStep();
}

/// Shows what is missing at its field.
bool AlignPanel::mayTake() {
  const auto problem = steps_.form().problem();
  if (problem)
    [fields_ showProblem:*problem];
  return !problem;
}

/// Returns true to close the window.
bool AlignPanel::confirm() {
  switch (steps_.step()) {
  case Step::Print:
    print();
    return false;
  case Step::Read:
    if (!mayTake())
      return false;
    steps_.takeOffsets();
    said_ = actions_.taken();
    showStep();
    return false;
  case Step::Check:
    break;
  }
  return true;
}

void AlignPanel::goElsewhere() {
  said_.clear();
  switch (steps_.step()) {
  case Step::Print:
    steps_.read();
    showStep();
    break;
  case Step::Read:
    steps_.goBack();
    showStep();
    break;
  case Step::Check:
    print();
    break;
  }
}

void AlignPanel::run(NSWindow *parent) {
  showStep();
  panel_->run(parent, {elsewhere_}, panel_->confirmButton(), [this] { return confirm(); });
}

} // namespace

void align(NSWindow *parent, AlignmentSteps &steps, const AlignActions &actions) {
  AlignPanel(steps, actions).run(parent);
}

} // namespace imageposition
