#import "Fonts.h"

#include "Language.hpp"
#include "LanguageFonts.hpp"
#import "TextBridge.h"

#import <Foundation/Foundation.h>

namespace imageposition {
namespace {

// GNUstep has a separate default for each of these roles; none falls back on another.
NSString *const kRegularRoles[] = {@"NSFont",        @"NSUserFont",     @"NSMenuFont",
                                   @"NSMenuBarFont", @"NSMessageFont",  @"NSControlContentFont",
                                   @"NSLabelFont",   @"NSToolTipsFont", @"NSPaletteFont",
                                   @"NSTitleBarFont"};

} // namespace

void chooseFontsForLanguage() {
  NSUserDefaults *const defaults = [NSUserDefaults standardUserDefaults];
  NSArray *const languages = [NSUserDefaults userLanguages];
  if ([defaults objectForKey:@"NSFont"] != nil || [languages count] == 0)
    return;
  const auto names = fontsFor(catalogueName(toText([languages objectAtIndex:0])));
  if (!names)
    return;
  NSMutableDictionary *const fonts = [NSMutableDictionary dictionaryWithObject:toString(names->bold)
                                                                        forKey:@"NSBoldFont"];
  for (NSString *const role : kRegularRoles)
    [fonts setObject:toString(names->regular) forKey:role];
  [defaults registerDefaults:fonts];
}

} // namespace imageposition
