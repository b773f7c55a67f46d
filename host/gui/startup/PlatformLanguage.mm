#import "PlatformLanguage.h"

#include "Language.hpp"
#import "Pool.h"
#import "TextBridge.h"

#import <Foundation/Foundation.h>

#include <cstdlib>

namespace imageposition {

namespace {

NSString *const kLanguages = @"NSLanguages";
/// GNUstep's domain for the languages that it has determined. It takes precedence over all others.
NSString *const kPrimaryDomain = @"GSPrimaryDomain";

/// Reads only the user's default. `stringArrayForKey:` would include languages that GNUstep derived
/// from the locale.
std::vector<std::string> languagesInDefaults(NSUserDefaults *defaults) {
  NSDictionary *const domains[] = {
      [defaults persistentDomainForName:[[NSProcessInfo processInfo] processName]],
      [defaults persistentDomainForName:NSGlobalDomain],
  };
  std::vector<std::string> languages;
  for (NSDictionary *const domain : domains) {
    const id found = [domain objectForKey:kLanguages];
    if (![found isKindOfClass:[NSArray class]])
      continue;
    for (NSUInteger i = 0; i < [found count]; i++)
      if (const auto language = toOptionalText([found objectAtIndex:i]))
        languages.push_back(catalogueName(*language));
    break;
  }
  return languages;
}

} // namespace

void agreeOnLanguage() {
  const Pool pool;
  NSUserDefaults *const defaults = [NSUserDefaults standardUserDefaults];
  std::vector<std::string> wanted = languagesInDefaults(defaults);
  if (wanted.empty())
    wanted = wantedLanguages(std::getenv);
  const std::string folder = catalogueFolder();
  const std::string chosen = chosenLanguage(wanted, folder);
  speak(chosen, folder);

  NSMutableArray *const names = [NSMutableArray arrayWithObject:toString(bundleName(chosen))];
  for (const std::string &language : wanted)
    [names addObject:toString(bundleName(language))];
  [names addObject:@"English"];
  NSDictionary *const before = [defaults volatileDomainForName:kPrimaryDomain];
  NSMutableDictionary *const domain = [NSMutableDictionary dictionaryWithDictionary:before];
  [domain setObject:names forKey:kLanguages];
  [defaults removeVolatileDomainForName:kPrimaryDomain];
  [defaults setVolatileDomain:domain forName:kPrimaryDomain];
}

} // namespace imageposition
