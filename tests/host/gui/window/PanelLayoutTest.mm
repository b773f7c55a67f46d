// The layout of the small windows in the language of this process: no text clipped, nothing
// overlapping.
#import "HelpWindow.h"
#import "KeyScrollView.h"
#import "KeyWindow.h"
#import "Labels.h"
#import "NamePanel.h"
#import "NotePanel.h"
#include "OutputName.hpp"
#import "PasswordPanel.h"
#import "Theme.h"
#import "ValuePanel.h"

#include "Language.hpp"
#include "PluginTexts.hpp"
#include "PrinterTexts.hpp"
#include "QuestionTexts.hpp"
#include "TemporaryFolder.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

using namespace imageposition;

/// Checks every modal window, confirms the first `confirmed` ones and cancels the others.
@interface ModalVisitor : NSObject {
@public
  int confirmed;
  int visited;
  NSInteger last; ///< The number of the window checked last.
}
- (void)visit:(NSTimer *)timer;
@end

namespace {

constexpr NSTimeInterval kInterval = 0.01;

bool isEditable(NSView *view) {
  return [view isKindOfClass:[NSTextField class]] && [(NSTextField *)view isEditable];
}

/// Expects the text to fit on one line, or on as many as the field has room for.
void expectWholeText(NSControl *control) {
  const NSSize size = [control frame].size;
  if ([[control cell] cellSize].width <= size.width + 0.5)
    return;
  EXPECT_TRUE([control isKindOfClass:[NSTextField class]]) << toText([control stringValue]);
  EXPECT_LE(paragraphHeight([control stringValue], [control font], size.width), size.height + 0.5)
      << toText([control stringValue]);
}

void expectLaidOut(NSView *content) {
  NSArray *const placed = [content subviews];
  for (NSUInteger i = 0; i < [placed count]; i++) {
    NSView *const one = [placed objectAtIndex:i];
    EXPECT_TRUE(NSContainsRect([content bounds], [one frame])) << toText([one description]);
    if ([one isKindOfClass:[NSControl class]] && !isEditable(one))
      expectWholeText((NSControl *)one);
    for (NSUInteger j = i + 1; j < [placed count]; j++)
      EXPECT_FALSE(NSIntersectsRect([one frame], [[placed objectAtIndex:j] frame]))
          << toText([one description]) << " " << toText([[placed objectAtIndex:j] description]);
  }
}

/// As its button does; this may ask another question, which the timer visits as well.
void confirm(NSWindow *window) {
  [(id)[window delegate] performSelector:@selector(confirm)
                              withObject:nil
                              afterDelay:0
                                 inModes:[NSArray arrayWithObject:NSModalPanelRunLoopMode]];
}

void cancel(NSWindow *window) {
  [NSApp stopModalWithCode:NSCancelButton];
  wakeModalLoop(window);
}

class PanelLayout : public testing::Test {
protected:
  static void SetUpTestSuite() { installTheme(Appearance::Light); }

  void SetUp() override {
    const auto wanted = wantedLanguages(std::getenv);
    speak(chosenLanguage(wanted, IMAGEPOSITION_CATALOGUES), IMAGEPOSITION_CATALOGUES);
    parent_ = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 800, 600)
                                          styleMask:NSTitledWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:NO];
    [parent_ setReleasedWhenClosed:NO];
    [parent_ orderFront:nil];
    visitor_ = [[ModalVisitor alloc] init];
    timer_ = [NSTimer timerWithTimeInterval:kInterval
                                     target:visitor_
                                   selector:@selector(visit:)
                                   userInfo:nil
                                    repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:timer_ forMode:NSModalPanelRunLoopMode];
  }

  void TearDown() override {
    [timer_ invalidate];
    [visitor_ release];
    [parent_ close];
    [parent_ release];
  }

  void confirmFirst() { visitor_->confirmed = 1; }
  int visited() const { return visitor_->visited; }

  NSWindow *parent_ = nil;
  ModalVisitor *visitor_ = nil;
  NSTimer *timer_ = nil; // the run loop's
};

TEST_F(PanelLayout, TheHelpHasRoomForItsText) {
  HelpWindow *const help = [[[HelpWindow alloc] init] autorelease];
  [help showBeside:parent_];
  NSView *const content = [[help window] contentView];
  expectLaidOut(content);
  for (NSUInteger i = 0; i < [[content subviews] count]; i++) {
    NSView *const view = [[content subviews] objectAtIndex:i];
    if ([view isKindOfClass:[KeyScrollView class]])
      expectLaidOut([(KeyScrollView *)view documentView]);
  }
  [help hide];
}

TEST_F(PanelLayout, TheHelpCoversNothingWhereTheScreenHasRoomForBothWindows) {
  const NSRect screen = [[parent_ screen] visibleFrame];
  HelpWindow *const help = [[[HelpWindow alloc] init] autorelease];
  const CGFloat free = NSWidth(screen) - NSWidth([parent_ frame]);
  const CGFloat needed = NSWidth([[help window] frame]);
  for (const CGFloat left : {0.0, 0.4, 0.5, 0.6, 1.0}) {
    [parent_ setFrameOrigin:NSMakePoint(NSMinX(screen) + std::floor(left * free), 100)];
    [help showBeside:parent_];
    const NSRect covered = NSIntersectionRect([[help window] frame], [parent_ frame]);
    if (free >= needed) {
      EXPECT_LE(NSWidth(covered), 0) << left;
    }
    EXPECT_TRUE(NSContainsRect(screen, [[help window] frame])) << left;
    [help hide];
  }
}

TEST_F(PanelLayout, TheRequestForANameHasRoomForItsText) {
  askForName(parent_, {messages::kPresetNameWindow, messages::kPresetNameQuestion, "draft"});
  EXPECT_EQ(visited(), 1);
}

TEST_F(PanelLayout, TheRequestForAPasswordHasRoomForItsText) {
  askForPassword(parent_, "office", {"somebody", false});
  askForPassword(parent_, "office", {"somebody", false, "print.example.com:631"});
  askForPassword(parent_, "the printer on the second floor beside the stairs", {"somebody", true});
  EXPECT_EQ(visited(), 3);
}

TEST_F(PanelLayout, TheRequestForAValueHasRoomForItsText) {
  CustomParameter side{"Width", messages::kPageWidth, CustomParameter::Kind::Length, 200, 40000,
                       false};
  CustomParameter text{"Words", "Words of the Watermark", CustomParameter::Kind::Text, 1, 100,
                       true};
  CustomParameter secret = text;
  secret.kind = CustomParameter::Kind::Password;
  for (const CustomOption &option : {CustomOption{"PageSize", true, {side, side}},
                                     CustomOption{"Watermark", false, {side, text, secret}},
                                     CustomOption{"Secret", false, {text}}})
    askForValue(parent_, "Watermark", option, "", LengthUnit::Inch);
  EXPECT_EQ(visited(), 3);
}

TEST_F(PanelLayout, TheRequestsForFilesHaveRoomForTheirText) {
  test::TemporaryFolder folder;
  folder.write("report.json", "mine");
  confirmFirst();
  askForFile(parent_,
             {messages::kSaveAsTicket, messages::kTicketQuestion, folder.path("report.json")},
             kTicketEnding);
  EXPECT_EQ(visited(), 3); // the second asks whether to replace it, and leads back to the first
  askForFile(parent_, {messages::kSaveAsPdf, messages::kPdfQuestion, "a.pdf"}, kPdfEnding);
}

TEST_F(PanelLayout, TheQuestionWhetherToPrintAnywayHasRoomForItsText) {
  isConfirmed(parent_, {messages::kPrintAnywayWindow, messages::panelNotSaved("Image Position", ""),
                        messages::kPrintAnyway, messages::kGoBack});
  EXPECT_EQ(visited(), 1);
}

} // namespace

@implementation ModalVisitor

- (void)visit:(NSTimer *)timer {
  (void)timer;
  NSWindow *const window = [NSApp modalWindow];
  if (window == nil || [window windowNumber] == last)
    return; // it was answered and is about to close
  last = [window windowNumber];
  expectLaidOut([window contentView]);
  if (visited++ < confirmed)
    confirm(window);
  else
    cancel(window);
}

@end
