#import "PropertyList.h"

#import "Text.h"

namespace imageposition::fuzz {
namespace {

using test::Choices;
using test::nsString;

std::string drawCharacters(Choices &choices) {
  std::string text;
  for (unsigned count = choices.below(12); count > 0; --count)
    text += static_cast<char>(' ' + choices.below(95));
  return text;
}

id drawAnything(Choices &choices) {
  switch (choices.below(7)) {
  case 0:
    return [NSArray arrayWithObject:nsString(drawCharacters(choices))];
  case 1:
    return [NSDictionary dictionaryWithObject:@"value" forKey:nsString(drawCharacters(choices))];
  case 2:
    return [NSNumber numberWithInt:static_cast<int>(choices.byte()) - 128];
  case 3:
    return [NSNumber numberWithDouble:(static_cast<int>(choices.byte()) - 128) * 1e9 / 7];
  case 4:
    return [NSNumber numberWithBool:choices.below(2) != 0];
  case 5:
    return [NSData dataWithBytes:"data" length:4];
  default:
    return nsString(drawCharacters(choices));
  }
}

id drawValue(Choices &choices, const Vocabulary &vocabulary) {
  if (choices.below(12) == 11)
    return drawAnything(choices);
  return nsString(choices.of(vocabulary.strings));
}

// Separate bytes say which keys are present, so that mutating one byte changes only one key.
id drawRecord(Choices &choices, const Vocabulary &vocabulary) {
  if (choices.below(32) == 31)
    return drawAnything(choices);
  NSMutableDictionary *record = [NSMutableDictionary dictionary];
  for (const std::string &key : vocabulary.keys)
    if (choices.below(16) != 15)
      [record setObject:drawValue(choices, vocabulary) forKey:nsString(key)];
  return record;
}

} // namespace

id drawPropertyList(Choices &choices, const Vocabulary &vocabulary) {
  if (choices.below(64) == 63)
    return drawAnything(choices);
  NSMutableDictionary *list = [NSMutableDictionary dictionary];
  for (unsigned i = 0; i < 40 && !choices.areUsedUp(); ++i) {
    const bool ordinary = choices.below(32) != 31;
    const std::string key = ordinary ? std::to_string(i) : drawCharacters(choices);
    [list setObject:drawRecord(choices, vocabulary) forKey:nsString(key)];
  }
  return list;
}

} // namespace imageposition::fuzz
