#import "RecordingItems.h"

#import "Text.h"

#include <objc/runtime.h>

#include <utility>

using imageposition::test::cxxString;
using imageposition::test::Journal;

namespace {

struct State {
  Journal *journal = nullptr;
  std::string name;
  std::string text;
  std::function<void(const std::string &)> onOperation;
};

State *stateOf(RecordingItem *item) { return static_cast<State *>(item->state); }

} // namespace

namespace imageposition::test {

std::string shownBy(RecordingItem *item) { return stateOf(item)->text; }

void onEachOperationOf(RecordingItem *item, std::function<void(const std::string &)> action) {
  stateOf(item)->onOperation = std::move(action);
}

namespace {

// Conformance is a property of a class, so each combination needs a class.
Class classWith(unsigned capabilities) {
  const std::string name = "RecordingItem" + std::to_string(capabilities);
  if (Class known = objc_lookUpClass(name.c_str()))
    return known;
  Class made = objc_allocateClassPair([RecordingItem class], name.c_str(), 0);
  Protocol *const protocols[] = {
    @protocol(ViewAvailableInterface),
    @protocol(LocalizableInterface),
    @protocol(ActionInterface),
    @protocol(TextFieldInterface),
    @protocol(IntegerInterface),
    @protocol(StepperInterface)
  };
  for (unsigned i = 0; i < 6; ++i)
    if (capabilities & (1u << i))
      class_addProtocol(made, protocols[i]);
  objc_registerClassPair(made);
  return made;
}

} // namespace
} // namespace imageposition::test

@implementation RecordingItem

+ (RecordingItem *)itemNamed:(const char *)itemName
                capabilities:(unsigned)capabilities
                     journal:(Journal *)itemJournal {
  // A subclass that a test declares decides itself what it conforms to.
  Class type = self == [RecordingItem class] ? imageposition::test::classWith(capabilities) : self;
  RecordingItem *item = [[type alloc] init];
  stateOf(item)->journal = itemJournal;
  stateOf(item)->name = itemName;
  return [item autorelease];
}

- (id)init {
  if ((self = [super init]) != nil)
    state = new State;
  return self;
}

- (void)dealloc {
  delete stateOf(self);
  [super dealloc];
}

- (void)record:(const std::string &)operation {
  stateOf(self)->journal->add(stateOf(self)->name + "." + operation);
  if (stateOf(self)->onOperation)
    stateOf(self)->onOperation(operation);
}

- (int32_t)getInt {
  [self record:"getInt"];
  return number;
}

- (int32_t)getSteps {
  [self record:"getSteps"];
  const int32_t taken = steps;
  steps = 0;
  return taken;
}

- (NSInteger)tag {
  [self record:"tag"];
  return tagValue;
}

- (NSString *)getString {
  [self record:"getString"];
  return imageposition::test::nsString(stateOf(self)->text);
}

- (void)setString:(NSString *)string {
  [self record:"setString:" + cxxString(string)];
  stateOf(self)->text = cxxString(string);
}

- (void)setStringValue:(NSString *)string {
  [self record:"setStringValue:" + cxxString(string)];
  stateOf(self)->text = cxxString(string);
}

- (void)setRange:(int32_t)max Min:(int32_t)min {
  [self record:"setRange:" + std::to_string(max) + " Min:" + std::to_string(min)];
}

- (void)setViewAvailable:(BOOL)available {
  [self record:"setViewAvailable:" + std::to_string(available)];
}

- (void)setRangeStrings:(NSString *)string {
  [self record:"setRangeStrings:" + cxxString(string)];
}

- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle {
  [self record:"applyLocalizableStrings:" + cxxString(key) +
               " BundleInfo:" + cxxString([bundle bundlePath])];
}

- (void)catchEventCall {
  [self record:"catchEventCall"];
}

@end
