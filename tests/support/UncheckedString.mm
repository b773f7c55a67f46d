#import "UncheckedString.h"

#include <cstdlib>
#include <cstring>

@interface UncheckedString : NSString {
@public
  unichar *units;
  NSUInteger size;
}
@end

@implementation UncheckedString
- (void)dealloc {
  std::free(units);
  [super dealloc];
}
- (NSUInteger)length {
  return size;
}
- (unichar)characterAtIndex:(NSUInteger)index {
  return units[index];
}
@end

namespace imageposition::test {

NSString *uncheckedString(const std::u16string &units) {
  UncheckedString *string = [[[UncheckedString alloc] init] autorelease];
  string->size = units.size();
  string->units = static_cast<unichar *>(std::calloc(units.size() + 1, sizeof(unichar)));
  std::memcpy(string->units, units.data(), units.size() * sizeof(unichar));
  return string;
}

} // namespace imageposition::test
