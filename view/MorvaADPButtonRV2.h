/// An unused class: the panel's buttons are AppKit's.
#ifndef IMAGEPOSITION_VIEW_MORVAADPBUTTONRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPBUTTONRV2_H

#import <Foundation/Foundation.h>

/// A root class with one method, kept because it belongs to the plug-in's interface.
__attribute__((objc_root_class))
@interface MorvaADPButtonRV2
/// Sets the receiver's enabled flag to the argument's `boolValue`.
- (void)changeState:(id)state;
@end

#endif
