/// The names that the plug-in and a print dialog share: the panel's entries in a job's settings.
///
/// Macros, because they serve as C strings and, after "@", as constant NSStrings.
#ifndef IMAGEPOSITION_PLATFORM_SHAREDKEYS_H
#define IMAGEPOSITION_PLATFORM_SHAREDKEYS_H

// The offsets, in tenths of a millimetre, under the printer's option keywords.
#define IPA_KEY_FRONT_LEFT_RIGHT "LeftRightMargin"
#define IPA_KEY_FRONT_TOP_BOTTOM "TopBottomMargin"
#define IPA_KEY_BACK_LEFT_RIGHT "BackLeftRightMargin"
#define IPA_KEY_BACK_TOP_BOTTOM "BackTopBottomMargin"

/// Whether the back side has separate offsets: "True" or "False".
#define IPA_KEY_ENABLE "com.morva.printsettings.19AImagePositionEnable"
#define IPA_VALUE_TRUE "True"
#define IPA_VALUE_FALSE "False"

/// The PPD attribute that enables the panel with the value "true".
#define IPA_ATTRIBUTE_SUPPORT "AdjustDuplexPositionSupport"

/// The key under which a panel's summary lists its other keys in display order.
#define IPA_SUMMARY_ORDER "Summary Display Order"

#endif
