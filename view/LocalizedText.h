/// Localized texts as the view items show them.
#ifndef IMAGEPOSITION_VIEW_LOCALIZEDTEXT_H
#define IMAGEPOSITION_VIEW_LOCALIZEDTEXT_H

#import <Foundation/Foundation.h>

namespace imageposition {

/// The bundle's text for the key from its default table, or the key when it has none (or is null).
inline NSString *localizedText(NSBundle *bundle, NSString *key) {
  NSString *text = [bundle localizedStringForKey:key value:nil table:nil];
  return text != nil ? text : key;
}

} // namespace imageposition

#endif
