/// The protocols through which settings and the panel controller use view items. An item implements
/// any subset; callers check `conformsToProtocol:` first.
#ifndef IMAGEPOSITION_SETTINGS_ITEMPROTOCOLS_H
#define IMAGEPOSITION_SETTINGS_ITEMPROTOCOLS_H

#import <Foundation/Foundation.h>

#include <cstdint>

/// An item that can be made unusable.
@protocol ViewAvailableInterface
/// Enables the item, or disables it and dims it.
- (void)setViewAvailable:(BOOL)available;
@end

/// An item that shows a localized string. Its view tag says which: see `MorvaADPViewTag`.
@protocol LocalizableInterface
/// Shows the bundle's string for `key`, or the key itself if the bundle has none.
- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle;
@end

/// An item that the user operates.
@protocol ActionInterface
/// Called for each action, before the panel is refreshed.
- (void)catchEventCall;
@end

/// The entry field of a setting. Such an item also implements `getInt` and AppKit's
/// `setStringValue:`, which are what a setting calls.
@protocol TextFieldInterface
- (NSString *)getString;
- (void)setString:(NSString *)string;
@end

/// An item that needs the range of the value.
@protocol IntegerInterface
/// The first argument is the maximum.
- (void)setRange:(int32_t)max Min:(int32_t)min;
@end

/// An item that counts steps.
@protocol StepperInterface
/// The steps since the previous call; downward steps count as negative.
- (int32_t)getSteps;
@end

/// Methods of entry fields and range labels that no protocol declares.
@interface NSObject (MorvaADPItemOperations)
/// An entry field's content as a number, within 32 bits.
- (int32_t)getInt;
/// Sets the string that a range label shows.
- (void)setRangeStrings:(NSString *)text;
@end

/// The view tags of a setting's two labels in the interface file.
enum MorvaADPViewTag { MorvaADPViewTagName = 0, MorvaADPViewTagRange = 1 };

#endif
