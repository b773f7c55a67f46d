#import "host/Fonts.h"

#import <AppKit/AppKit.h>

namespace imageposition {
namespace {

struct Choice {
  NSString *language; // how the platform's names of the language begin
  NSString *alternativeName;
  NSString *regular;
  NSString *bold;
};

// The first installed one is taken.
const Choice kChoices[] = {
    {@"ja", @"Japanese", @"NotoSansCJKjp-Regular", @"NotoSansCJKjp-Bold"},
    {@"ja", @"Japanese", @"WenQuanYiMicroHei", @"WenQuanYiMicroHei"},
    {@"zh", @"SimplifiedChinese", @"NotoSansCJKsc-Regular", @"NotoSansCJKsc-Bold"},
    {@"zh", @"SimplifiedChinese", @"WenQuanYiMicroHei", @"WenQuanYiMicroHei"},
};

bool isFor(const Choice &choice, NSString *language) {
  return [language hasPrefix:choice.language] || [language isEqualToString:choice.alternativeName];
}

} // namespace

void chooseFontsForLanguage() {
  NSUserDefaults *const defaults = [NSUserDefaults standardUserDefaults];
  NSArray *const languages = [NSUserDefaults userLanguages];
  if ([defaults objectForKey:@"NSFont"] != nil || [languages count] == 0)
    return;
  NSArray *const installed = [[NSFontManager sharedFontManager] availableFonts];
  for (const Choice &choice : kChoices) {
    if (!isFor(choice, [languages objectAtIndex:0]) || ![installed containsObject:choice.regular])
      continue;
    [defaults registerDefaults:[NSDictionary dictionaryWithObjectsAndKeys:choice.regular, @"NSFont",
                                                                          choice.bold,
                                                                          @"NSBoldFont", nil]];
    return;
  }
}

} // namespace imageposition
