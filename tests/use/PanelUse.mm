#import "PanelUse.h"

#import "Fields.h"
#import "LiveObjects.h"
#import "LogCapture.h"
#import "MorvaADPPdePluginRV2.h"
#import "ObjectBalance.h"
#import "PanelComparison.h"
#import "PanelWorld.h"
#import "RecordingHost.h"
#import "TestPool.h"
#import "Text.h"
#import "UncheckedString.h"

#include <iterator>
#include <stdexcept>

namespace imageposition::test {
namespace {

constexpr const char *kFlag = "com.morva.printsettings.19AImagePositionEnable";
constexpr const char *kPrintDialog = "BDB091F4-E57F-11D3-B5CC-0050E4603277";
constexpr const char *kKeysTrace = "supportedPPDOptionKeys:=NSArray(";

/// A difference that a step finds.
struct Difference : std::runtime_error {
  using std::runtime_error::runtime_error;
};

void expect(bool holds, const std::string &what) {
  if (!holds)
    throw Difference(what);
}

void expectNothing(const std::string &difference) { expect(difference.empty(), difference); }

/// Does what the application does after the user has operated the control.
void actOn(NSControl *control) { [control sendAction:[control action] to:[control target]]; }

std::u16string drawText(Choices &choices) {
  static const std::u16string kTexts[] = {u"0",          u"-1",  u"7",   u"-", u"-0",
                                          u"20",         u"-99", u"abc", u"",  u"250",
                                          u"3000000000", u"5-",  u"007"};
  const unsigned which = choices.below(std::size(kTexts) + 3);
  if (which < std::size(kTexts))
    return kTexts[which];
  std::u16string units; // any units, lone surrogates included
  for (unsigned count = choices.below(6); count > 0; --count)
    units += static_cast<char16_t>(choices.byte() | (choices.below(4) == 3 ? 0xD800 : 0));
  return units;
}

class Use {
public:
  explicit Use(Choices &choices) : choices_(choices) {
    if (choices_.below(2) == 0)
      made_ = drawBundle(choices_);
    bundle_ = made_ ? made_->bundle() : shippedBundle();
    plugIn_ = [MorvaADPPdePluginRV2 alloc];
    expect([plugIn_ initWithBundle:bundle_], "the plug-in does not accept its bundle");
    host_ = [[RecordingHost hostWithPpd:nullptr settings:settings_.handle()] retain];
    changePrinter(false);
  }

  ~Use() {
    [panel_ release];
    [plugIn_ release];
    [host_ release];
  }

  void run() {
    openDialog();
    for (int i = 0; i < kLongestUse && !choices_.areUsedUp(); ++i) {
      const Pool pool;
      step();
      checkAll();
    }
  }

  const std::string &steps() const { return steps_; }

private:
  void note(const std::string &step) { steps_ += step + "\n"; }
  PanelModel::Offset &drawOffset() { return model_.offsets[choices_.below(4)]; }
  std::string drawKey() {
    const unsigned which = choices_.below(5);
    return which == 4 ? kFlag : model_.offsets[which].ticketKey;
  }

  void step() {
    const unsigned which = choices_.below(24);
    if (panel_ == nil || which >= 18)
      changeWorld(choices_.below(10));
    else if (which >= 9)
      askPanel(which - 9);
    else
      actAsUser(which);
  }

  // The user can operate only enabled controls.
  void actAsUser(unsigned which) {
    if (!model_.hasView)
      return askPanel(0);
    const PanelParts parts(panel_);
    PanelModel::Offset &offset = drawOffset();
    const OffsetControls controls = parts.controls(offset.name);
    if (which == 7 && model_.checkEnabled) {
      note("click the checkbox");
      model_.clickCheckbox();
      [[parts.check() cell] setNextState];
      actOn(parts.check());
    } else if (which == 8 && model_.buttonEnabled) {
      note("click the button");
      model_.restoreDefaults();
      actOn(parts.button());
    } else if (which <= 3 && offset.enabled) {
      type(offset, controls.text);
    } else if (which <= 6 && offset.enabled) {
      clickStepper(offset, controls.stepper);
    }
  }

  void type(PanelModel::Offset &offset, NSTextField *field) {
    const std::u16string text = drawText(choices_);
    NSString *typed = uncheckedString(text);
    note("type \"" + cxxString(typed) + "\" as " + offset.name);
    model_.type(offset, text);
    [field setStringValue:typed];
    [field textDidChange:[NSNotification notificationWithName:NSTextDidChangeNotification
                                                       object:field]];
    if (choices_.below(4) == 3)
      return; // the user continues later
    model_.action();
    actOn(field);
  }

  void clickStepper(PanelModel::Offset &offset, NSStepper *stepper) {
    const int clicks = static_cast<int>(choices_.below(7)) - 3;
    note("step " + offset.name + " by " + std::to_string(clicks));
    offset.steps += clicks;
    [stepper setIntValue:[stepper intValue] + clicks];
    model_.action();
    actOn(stepper);
  }

  void askPanel(unsigned which) {
    static const char *const kNames[] = {"panelView", "willShow",  "shouldPrint",
                                         "save",      "restore",   "summary",
                                         "constants", "an action", "the controller"};
    note(kNames[which]);
    switch (which) {
    case 0:
      return askView();
    case 1:
      model_.willShow();
      return [panel_ willShow];
    case 2:
      model_.shouldPrint();
      return expect([panel_ shouldPrint], "the panel does not let the job print");
    case 3:
      model_.saveValues();
      return expect([panel_ saveValuesAndReturnError:nullptr], "the panel does not save");
    case 4:
      model_.restoreValues();
      return expect([panel_ restoreValuesAndReturnError:nullptr], "the panel does not restore");
    case 5: {
      const PanelModel::Summary expected = model_.summary();
      return expectNothing(compare([panel_ summaryInfo], expected));
    }
    case 6:
      return askConstants();
    case 7:
      model_.action();
      return [PanelParts(panel_).controller() UIItemActionListener:nil];
    default:
      return askController(choices_.below(5));
    }
  }

  void askView() {
    NSView *view = [panel_ panelView];
    expect([view isKindOfClass:[NSView class]], "the panel has no view");
    const PanelParts parts(panel_);
    expect(field<id>(parts.controller(), "ImagePositionPrintView") == view,
           "panelView is not the controller's view");
    if (model_.hasView)
      return;
    model_.loadView();
    takeControls(parts, model_);
  }

  void askConstants() {
    expect([[panel_ panelKind] isEqual:@"com.morva.print.pde.ImagePositionRV1"],
           "the kind differs");
    expect([[panel_ panelName] isEqual:[bundle_ localizedStringForKey:@"PluginName"
                                                                value:nil
                                                                table:nil]],
           "the name differs");
    expect([panel_ shouldShowHelp] && [panel_ shouldHide],
           "shouldShowHelp and shouldHide are not both true");
    NSArray *keys =
        [NSArray arrayWithObjects:@"LeftRightMargin", @"TopBottomMargin", @"BackLeftRightMargin",
                                  @"BackTopBottomMargin", @"MVAdjustDuplexPosition", nil];
    model_.log.emplace_back(kKeysTrace);
    expect([[panel_ supportedPPDOptionKeys] isEqual:keys], "the option keys differ");
  }

  void askController(unsigned which) {
    MorvaADPSettingsCollectorRV2 *controller = PanelParts(panel_).controller();
    switch (which) {
    case 0:
      return [controller clickRestore2Default:panel_];
    case 1:
      model_.checkSettingsValue();
      return [controller checkSettingsValue];
    case 2:
      model_.grayUI();
      return [controller grayUI];
    case 3:
      return expect(([controller getTicket] != NO) == model_.getTicket(), "getTicket's result");
    default:
      return expect(([controller saveTicket] != NO) == model_.saveTicket(), "saveTicket's result");
    }
  }

  void changeWorld(unsigned which) {
    switch (which) {
    case 0:
    case 1:
      return putValue();
    case 2:
      return failOnce();
    case 3:
      return failForKey();
    case 4:
      model_.settingsThere = !model_.settingsThere;
      note(model_.settingsThere ? "settings are back" : "no settings");
      host_->settings = model_.settingsThere ? settings_.handle() : nullptr;
      return;
    case 5:
      host_->failingSettingsRequest = model_.failRequest = choices_.below(4);
      return note("request " + std::to_string(model_.failRequest) + " returns null");
    case 6:
    case 7:
      note("mark another choice");
      if (panelPrinter_)
        panelPrinter_->mark(choices_);
      return;
    case 8:
      return changePrinter(choices_.below(4) == 3);
    default:
      // Creating a panel with its view is slow.
      if (panel_ == nil || choices_.below(4) == 3)
        openDialog();
    }
  }

  void putValue() {
    const std::string key = drawKey();
    if (choices_.below(6) == 5) {
      note("remove " + key);
      model_.store.erase(key);
      return settings_.remove(key);
    }
    StoredValue value;
    settings_.putObject(key, drawValue(choices_, value));
    note("store " + key + " = " + value.text);
    model_.store[key] = value;
  }

  void failOnce() {
    const int n = static_cast<int>(choices_.below(12));
    const bool reading = choices_.below(2) == 0;
    note((reading ? "fail read " : "fail write ") + std::to_string(n));
    (reading ? model_.failRead : model_.failWrite) = n;
    reading ? settings_.failRead(n) : settings_.failWrite(n);
  }

  void failForKey() {
    const std::string key = drawKey();
    const unsigned how = choices_.below(4);
    note("fail " + key + " in way " + std::to_string(how));
    if (how == 0) {
      model_.unreadable.insert(key);
      settings_.failReadsOf(key);
    } else if (how == 1) {
      model_.unwritable.insert(key);
      settings_.failWritesOf(key);
    } else if (how == 2) {
      model_.locked.insert(key);
      settings_.lock(key);
    } else {
      model_.unreadable.clear();
      model_.unwritable.clear();
      model_.failRead = model_.failWrite = 0;
      settings_.stopFailing();
    }
  }

  // An existing panel keeps the printer that it was created for.
  void changePrinter(bool toNone) {
    hostPrinter_ = toNone ? nullptr : drawPrinter(choices_);
    note(toNone ? "no printer" : "another printer");
    if (hostPrinter_)
      printers_.push_back(hostPrinter_);
    host_->ppd = hostPrinter_ ? hostPrinter_->ppd->get() : nullptr;
  }

  void openDialog() {
    const Pool pool;
    const bool otherType = choices_.below(8) == 7;
    note(otherType ? "ask for panels of another dialog" : "ask for panels");
    const bool supported = hostPrinter_ && hostPrinter_->facts->attributes.count(kSupport) != 0 &&
                           hostPrinter_->facts->attributes.at(kSupport) == "true";
    if (supported && !otherType)
      newModel();
    NSArray *panels = [plugIn_ PDEPanelsForType:otherType ? @"another" : nsString(kPrintDialog)
                                   withHostInfo:host_];
    expect(panels != nil, "the plug-in returns null");
    expect([panels count] == (supported && !otherType ? 1 : 0), "the number of panels differs");
    if ([panels count] == 0)
      return;
    [panel_ release];
    panel_ = [[panels objectAtIndex:0] retain];
    panelPrinter_ = hostPrinter_;
    checkAll();
  }

  void newModel() {
    PanelModel model;
    readBundle(bundle_, model);
    model.printer = hostPrinter_->facts;
    model.settingsThere = model_.settingsThere;
    model.store = model_.store;
    model.unreadable = model_.unreadable;
    model.unwritable = model_.unwritable;
    model.locked = model_.locked;
    model.failRead = model_.failRead;
    model.failWrite = model_.failWrite;
    model.failRequest = model_.failRequest;
    model.log = model_.log;
    model_ = model;
    model_.grayUI(); // without a view it only logs
  }

  void checkAll() {
    if (panel_ != nil)
      expectNothing(compare(PanelParts(panel_), model_));
    expectNothing(compare(settings_, model_));
    std::string is, expected;
    for (const std::string &line : log_.lines())
      is += (line.rfind(kKeysTrace, 0) == 0 ? kKeysTrace : line) + "\n";
    for (const std::string &line : model_.log)
      expected += line + "\n";
    expect(is == expected, "the log is\n" + is + "instead of\n" + expected);
    log_.clear();
    model_.log.clear();
    settings_.forgetCalls();
  }

  static constexpr const char *kSupport = "AdjustDuplexPositionSupport";

  Choices &choices_;
  std::string steps_;
  LogCapture log_;
  TestPrintSettings settings_;
  std::unique_ptr<TestBundle> made_;
  NSBundle *bundle_ = nil;
  std::vector<std::shared_ptr<Printer>> printers_; // kept while a panel may read them
  std::shared_ptr<Printer> hostPrinter_;
  std::shared_ptr<Printer> panelPrinter_;
  PanelModel model_;
  RecordingHost *host_ = nil;
  MorvaADPPdePluginRV2 *plugIn_ = nil;
  MorvaADPPdePanelRV2 *panel_ = nil;
};

std::string use(Choices &choices) {
  const Pool pool;
  Use use(choices);
  try {
    use.run();
  } catch (const Difference &difference) {
    return use.steps() + difference.what();
  }
  return {};
}

} // namespace

std::string usePanel(const std::uint8_t *bytes, std::size_t count) {
  static const LiveObjects kCounting;
  std::string left;
  // Objects that GNUstep or a constant creates only once exist after the first time; leaks recur.
  for (int times = 0; times < 2; ++times) {
    const ObjectBalance balance;
    Choices choices(bytes, count);
    const std::string difference = use(choices);
    if (!difference.empty())
      return difference;
    left = balance.difference();
    if (left.empty())
      return {};
  }
  return "left alive:\n" + left;
}

} // namespace imageposition::test
