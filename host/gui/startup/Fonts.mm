#import "Fonts.h"

#import <Foundation/Foundation.h>

#include <fontconfig/fontconfig.h>

namespace imageposition {
namespace {

struct Choice {
  NSString *language; // how the platform's names of the language begin
  NSString *alternativeName;
  const char *family;
  NSString *regular;
  NSString *bold;
};

// The first installed one is taken.
const Choice kChoices[] = {
    {@"ja", @"Japanese", "Noto Sans CJK JP", @"NotoSansCJKjp-Regular", @"NotoSansCJKjp-Bold"},
    {@"ja", @"Japanese", "WenQuanYi Micro Hei", @"WenQuanYiMicroHei", @"WenQuanYiMicroHei"},
    {@"zh", @"SimplifiedChinese", "Noto Sans CJK SC", @"NotoSansCJKsc-Regular",
     @"NotoSansCJKsc-Bold"},
    {@"zh", @"SimplifiedChinese", "WenQuanYi Micro Hei", @"WenQuanYiMicroHei",
     @"WenQuanYiMicroHei"},
};

// The platform keeps a font for each of these roles, and takes none of them from another.
NSString *const kRegularRoles[] = {@"NSFont",        @"NSUserFont",     @"NSMenuFont",
                                   @"NSMenuBarFont", @"NSMessageFont",  @"NSControlContentFont",
                                   @"NSLabelFont",   @"NSToolTipsFont", @"NSPaletteFont",
                                   @"NSTitleBarFont"};

bool isFor(const Choice &choice, NSString *language) {
  return [language hasPrefix:choice.language] || [language isEqualToString:choice.alternativeName];
}

// The platform knows its fonts only once the application is there, and then has chosen already.
bool isInstalled(const char *family) {
  FcPattern *const wanted = FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, family, nullptr);
  FcObjectSet *const details = FcObjectSetBuild(FC_FAMILY, nullptr);
  FcFontSet *const found = FcFontList(nullptr, wanted, details);
  const bool installed = found != nullptr && found->nfont > 0;
  if (found != nullptr)
    FcFontSetDestroy(found);
  FcObjectSetDestroy(details);
  FcPatternDestroy(wanted);
  return installed;
}

} // namespace

void chooseFontsForLanguage() {
  NSUserDefaults *const defaults = [NSUserDefaults standardUserDefaults];
  NSArray *const languages = [NSUserDefaults userLanguages];
  if ([defaults objectForKey:@"NSFont"] != nil || [languages count] == 0)
    return;
  for (const Choice &choice : kChoices) {
    if (!isFor(choice, [languages objectAtIndex:0]) || !isInstalled(choice.family))
      continue;
    NSMutableDictionary *const fonts = [NSMutableDictionary dictionaryWithObject:choice.bold
                                                                          forKey:@"NSBoldFont"];
    for (NSString *const role : kRegularRoles)
      [fonts setObject:choice.regular forKey:role];
    [defaults registerDefaults:fonts];
    return;
  }
}

} // namespace imageposition
