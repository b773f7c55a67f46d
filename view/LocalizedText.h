/// Localized strings for the view items.
#ifndef IMAGEPOSITION_VIEW_LOCALIZEDTEXT_H
#define IMAGEPOSITION_VIEW_LOCALIZEDTEXT_H

#import <Foundation/Foundation.h>

namespace imageposition {

/// The string for the key in the bundle's default table, or the key if there is none or `bundle` is
/// null.
inline NSString *localizedText(NSBundle *bundle, NSString *key) {
  NSString *string = [bundle localizedStringForKey:key value:nil table:nil];
  return string != nil ? string : key;
}

} // namespace imageposition

#endif
