/// The capabilities through which settings and the panel controller talk to view items. An item
/// implements any subset; whoever calls one asks `conformsToProtocol:` first.
#ifndef IMAGEPOSITION_SETTINGS_ITEMPROTOCOLS_H
#define IMAGEPOSITION_SETTINGS_ITEMPROTOCOLS_H

#import <Foundation/Foundation.h>

#include <cstdint>

/// An item that can be made unusable.
@protocol ViewAvailableInterface
/// True: the item is usable. False: it is not, and looks it.
- (void)setViewAvailable:(BOOL)available;
@end

/// An item that shows a localized text. Its view tag says which: see `MorvaADPViewTag`.
@protocol LocalizableInterface
/// Shows the text that `bundle` has for `key`, or the key where it has none.
- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle;
@end

/// An item on which a person acts.
@protocol ActionInterface
/// Called for each action, before the panel is refreshed.
- (void)catchEventCall;
@end

/// The entry field of a setting. Such an item also answers `getInt` and the platform's
/// `setStringValue:`, which are what a setting calls.
@protocol TextFieldInterface
- (NSString *)getString;
- (void)setString:(NSString *)string;
@end

/// An item that needs to know the range of the value.
@protocol IntegerInterface
/// The first argument is the maximum.
- (void)setRange:(int32_t)max Min:(int32_t)min;
@end

/// An item that counts steps.
@protocol StepperInterface
/// The steps taken since the previous call, downward ones negative.
- (int32_t)getSteps;
@end

/// What entry fields and range labels answer beyond the protocols.
@interface NSObject (MorvaADPItemOperations)
/// An entry field's content as a number, within 32 bits.
- (int32_t)getInt;
/// Gives a range label its finished text.
- (void)setRangeStrings:(NSString *)text;
@end

/// View tags of the two labels of a setting, as the interface file gives them.
enum MorvaADPViewTag { MorvaADPViewTagName = 0, MorvaADPViewTagRange = 1 };

#endif
