/// The names that the plug-in and a print dialog share: what the panel leaves in a job's settings.
///
/// String literals as macros: they serve as C strings and, after "@", as constant NSStrings.
#ifndef IMAGEPOSITION_PLATFORM_SHAREDKEYS_H
#define IMAGEPOSITION_PLATFORM_SHAREDKEYS_H

// The offsets, in tenths of a millimetre, under the printer's option keywords.
#define IPA_KEY_FRONT_LEFT_RIGHT "LeftRightMargin"
#define IPA_KEY_FRONT_TOP_BOTTOM "TopBottomMargin"
#define IPA_KEY_BACK_LEFT_RIGHT "BackLeftRightMargin"
#define IPA_KEY_BACK_TOP_BOTTOM "BackTopBottomMargin"

/// Whether the back has offsets of its own: "True" or "False".
#define IPA_KEY_ENABLE "com.morva.printsettings.19AImagePositionEnable"
#define IPA_VALUE_TRUE "True"
#define IPA_VALUE_FALSE "False"

/// The attribute of a printer's description that offers the panel, with the value "true".
#define IPA_ATTRIBUTE_SUPPORT "AdjustDuplexPositionSupport"

/// The order of the other entries of a panel's summary.
#define IPA_SUMMARY_ORDER "Summary Display Order"

#endif
