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

// The platform's names of what it takes a font for; menus do not use the general one.
NSString *const kUses[] = {
    @"NSFont",        @"NSUserFont",    @"NSLabelFont",    @"NSMenuFont",
    @"NSMessageFont", @"NSPaletteFont", @"NSToolTipsFont", @"NSControlContentFont",
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
    NSMutableDictionary *const fonts = [NSMutableDictionary dictionary];
    for (NSString *const use : kUses)
      [fonts setObject:choice.regular forKey:use];
    [fonts setObject:choice.bold forKey:@"NSBoldFont"];
    [defaults registerDefaults:fonts];
    return;
  }
}

} // namespace imageposition
