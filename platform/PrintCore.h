/// What a print dialog needs of this: the handle through which plug-ins see its settings.
#ifndef IMAGEPOSITION_PLATFORM_PRINTCORE_H
#define IMAGEPOSITION_PLATFORM_PRINTCORE_H

#import <ApplicationServices/ApplicationServices.h>

#include "PrintSettingsStore.hpp"

namespace imageposition {

/// A handle for `PMPrintSettingsGetValue` and `PMPrintSettingsSetValue` over a store that outlives
/// it. Values that plug-ins have read stay valid while their entry is unchanged and the handle
/// lives. A store may have one handle at a time.
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
