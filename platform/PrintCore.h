/// The handle through which a print dialog gives plug-ins access to its settings.
#ifndef IMAGEPOSITION_PLATFORM_PRINTCORE_H
#define IMAGEPOSITION_PLATFORM_PRINTCORE_H

#import <ApplicationServices/ApplicationServices.h>

#include "PrintSettingsStore.hpp"

namespace imageposition {

/// A handle for `PMPrintSettingsGetValue` and `PMPrintSettingsSetValue` to a store, which must
/// outlive it. A value that a plug-in has read stays valid until its entry changes or the handle is
/// destroyed. A store may have one handle at a time.
class __attribute__((visibility("default"))) PrintSettingsHandle {
public:
  explicit PrintSettingsHandle(PrintSettingsStore &store);
  ~PrintSettingsHandle();
  PrintSettingsHandle(const PrintSettingsHandle &) = delete;
  PrintSettingsHandle &operator=(const PrintSettingsHandle &) = delete;

  PMPrintSettings get() const noexcept { return handle_; }

private:
  PMPrintSettings handle_;
};

} // namespace imageposition

#endif
