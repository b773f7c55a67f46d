/// The names that the plug-in and a print dialog share: the panel's entries in a job's settings,
/// and the printer's options on which it depends.
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

// Settings of the printer with which the panel cannot be used.
#define IPA_OPTION_TWO_SIDED "Duplex"
#define IPA_CHOICE_ONE_SIDED "None"
#define IPA_OPTION_BANNER_PAGES "MVBannerPagePrint"
#define IPA_CHOICE_BANNER_PAGES_ON "True"

/// Another option of the printer that the panel announces as its own.
#define IPA_OPTION_ADJUST_POSITION "MVAdjustDuplexPosition"

/// The PPD attribute that enables the panel with the value "true".
#define IPA_ATTRIBUTE_SUPPORT "AdjustDuplexPositionSupport"

/// The key under which a panel's summary lists its other keys in display order.
#define IPA_SUMMARY_ORDER "Summary Display Order"

#endif
