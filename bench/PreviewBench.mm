// The picture beside the panel: from a click on a stepper to the pixels in the window.
#import "BenchHost.h"

#import "MorvaADPSettingsCollectorRV2.h"
#import "PreviewView.h"
#import "TestPool.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

using namespace imageposition;
using imageposition::bench::BenchHost;
using imageposition::test::Pool;

NSStepper *firstStepper(NSView *view) {
  if ([view isKindOfClass:[NSStepper class]])
    return static_cast<NSStepper *>(view);
  for (NSUInteger index = 0; index < [[view subviews] count]; ++index) {
    if (NSStepper *stepper = firstStepper([[view subviews] objectAtIndex:index]))
      return stepper;
  }
  return nil;
}

enum class Keyboard { Elsewhere, InAField };

/// The panel with the picture to its right, on the screen.
class PanelWithPicture {
public:
  explicit PanelWithPicture(BenchHost &host, Keyboard keyboard = Keyboard::Elsewhere)
      : host_(host), panel_(host.makePanel()) {
    NSView *const panelView = [panel_ panelView];
    const NSSize panel = [panelView frame].size;
    const NSSize picture = [PreviewView preferredSize];
    window_ =
        [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, panel.width + picture.width,
                                                         std::max(panel.height, picture.height))
                                    styleMask:NSTitledWindowMask
                                      backing:NSBackingStoreBuffered
                                        defer:NO];
    [window_ setReleasedWhenClosed:NO];
    picture_ = [[PreviewView alloc]
        initWithFrame:NSMakeRect(panel.width, 0, picture.width, picture.height)];
    [panelView setFrameOrigin:NSZeroPoint];
    [[window_ contentView] addSubview:panelView];
    [[window_ contentView] addSubview:picture_];
    [panel_ willShow];
    stepper_ = firstStepper(panelView);
    [window_ makeKeyAndOrderFront:nil];
    if (keyboard == Keyboard::Elsewhere)
      [window_ makeFirstResponder:nil];
    showPreview();
    [window_ display];
  }
  ~PanelWithPicture() {
    [window_ close];
    [window_ release];
    [picture_ release];
    [panel_ release];
  }
  PanelWithPicture(const PanelWithPicture &) = delete;
  PanelWithPicture &operator=(const PanelWithPicture &) = delete;

  /// Alternates between up and down, so that each click changes the picture.
  void click() {
    goesUp_ = !goesUp_;
    [stepper_ setIntegerValue:goesUp_ ? 1 : -1];
    [[stepper_ target] UIItemActionListener:stepper_];
  }
  void showPreview() { [picture_ showPreview:makePreview(host_.job(), host_.ppd())]; }
  /// Waits until the X server has drawn everything: it handles the read of a pixel after all
  /// drawing.
  void paint() {
    [window_ displayIfNeeded];
    [window_ flushWindow];
    [picture_ lockFocus];
    benchmark::DoNotOptimize(NSReadPixel(NSMakePoint(1, 1)));
    [picture_ unlockFocus];
  }
  void paintPictureOnly() {
    [picture_ setNeedsDisplay:YES];
    paint();
  }

private:
  BenchHost &host_;
  id panel_;
  NSWindow *window_;
  PreviewView *picture_;
  NSStepper *stepper_;
  bool goesUp_ = false;
};

void clickUntilPainted(benchmark::State &state, Keyboard keyboard) {
  const Pool pool;
  BenchHost host;
  PanelWithPicture shown(host, keyboard);
  for (auto _ : state) {
    const Pool inner;
    shown.click();
    shown.showPreview();
    shown.paint();
  }
  if (host.job().get("LeftRightMargin") == nullptr)
    state.SkipWithError("the click has not reached the job");
}

void StepperClickToPaintedPicture(benchmark::State &state) {
  clickUntilPainted(state, Keyboard::Elsewhere);
}
BENCHMARK(StepperClickToPaintedPicture)->Unit(benchmark::kMillisecond);

// Setting the field's text selects it, and a selection is announced to other programs.
void StepperClickToPaintedPictureWhileTyping(benchmark::State &state) {
  clickUntilPainted(state, Keyboard::InAField);
}
BENCHMARK(StepperClickToPaintedPictureWhileTyping)->Unit(benchmark::kMillisecond);

void PaintPicture(benchmark::State &state) {
  const Pool pool;
  BenchHost host;
  PanelWithPicture shown(host);
  for (auto _ : state) {
    const Pool inner;
    shown.paintPictureOnly();
  }
}
BENCHMARK(PaintPicture)->Unit(benchmark::kMillisecond);

void MakePreview(benchmark::State &state) {
  const Pool pool;
  BenchHost host;
  for (auto _ : state)
    benchmark::DoNotOptimize(makePreview(host.job(), host.ppd()));
}
BENCHMARK(MakePreview);

} // namespace
