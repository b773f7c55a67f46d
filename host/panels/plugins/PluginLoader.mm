#import "PluginLoader.h"

#import "Guard.h"
#include "LibraryFile.hpp"
#include "PluginFolders.hpp"
#include "PluginLibraries.hpp"
#include "PluginTexts.hpp"

#include <dlfcn.h>
#include <filesystem>

namespace imageposition {

namespace {

/// The type with which print dialogs request panels.
NSString *const kPrintDialogType = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";

[[noreturn]] void refuse(const std::string &message) { throw Failure(ExitCode::Plugin, message); }

/// Refuses a file or bundle that another user could have modified.
void checkTrust(const std::string &path, const std::string &plugin) {
  if (const auto part = untrustedPart(path, TrustedPeople::here()))
    refuse(messages::pluginUntrusted(plugin, *part));
}

/// Refuses code that could load code of another user.
void checkLibraries(const std::string &code, const std::string &plugin) {
  const auto place = untrustedLibraryPlace(code, TrustedPeople::here());
  if (!place)
    return;
  switch (place->reason) {
  case UntrustedPlace::Reason::OthersMayChange:
    refuse(messages::pluginLoadsCode(plugin, place->library, place->place));
  case UntrustedPlace::Reason::Relative:
    refuse(messages::pluginLoadsCodeAnywhere(plugin, place->library, place->place));
  case UntrustedPlace::Reason::Unknown:
    refuse(messages::pluginUnexamined(plugin, place->place, systemReason(place->error)));
  }
}

NSBundle *bundleAt(const std::string &path) {
  std::error_code failed;
  if (!std::filesystem::exists(path, failed) && !failed)
    refuse(messages::pluginMissing(path));
  checkTrust(path, path);
  // No other user can redirect the path from here on.
  const std::string real = std::filesystem::canonical(path, failed).string();
  if (failed)
    refuse(messages::pluginUnexamined(path, path, systemReason(failed.value())));
  const bool isFolder = std::filesystem::is_directory(real, failed);
  NSBundle *const bundle = isFolder ? [NSBundle bundleWithPath:toString(real)] : nil;
  NSString *const code = [bundle executablePath];
  if (code == nil || ![[NSFileManager defaultManager] isReadableFileAtPath:code])
    refuse(messages::pluginNotBundle(path));
  checkTrust(toText(code), path); // a bundle may name code outside itself
  // For a second copy of a bundle GNUstep returns the first one.
  if (!std::filesystem::equivalent(real, toText([bundle bundlePath]), failed))
    refuse(messages::pluginClassTaken(
        path,
        toOptionalText([[bundle infoDictionary] objectForKey:@"NSPrincipalClass"]).value_or("")));
  return bundle;
}

/// GNUstep only logs the reason; loading the code again gets it from the dynamic loader.
std::string loadError(NSBundle *bundle) {
  const char *reason = nullptr;
  if (dlopen(toText([bundle executablePath]).c_str(), RTLD_NOW | RTLD_LOCAL) == nullptr)
    reason = dlerror();
  return reason != nullptr ? reason : "";
}

Class principalClassOf(NSBundle *bundle, const std::string &path) {
  const auto name = toOptionalText([[bundle infoDictionary] objectForKey:@"NSPrincipalClass"]);
  if (!name || name->empty())
    refuse(messages::pluginWithoutClass(path, ""));
  if (![bundle isLoaded] && NSClassFromString(toString(*name)) != Nil)
    refuse(messages::pluginClassTaken(path, *name));
  if (isCutShort(toText([bundle executablePath])))
    refuse(messages::pluginNotLoadable(path, messages::kCodeCutShort));
  checkLibraries(toText([bundle executablePath]), path);
  BOOL loaded = NO;
  const auto raised = whatIsRaisedBy([&] { loaded = [bundle load]; });
  if (raised)
    refuse(messages::pluginRaised(path, "load", *raised));
  if (!loaded)
    refuse(messages::pluginNotLoadable(path, loadError(bundle)));
  const Class principal = NSClassFromString(toString(*name));
  if (principal == Nil)
    refuse(messages::pluginWithoutClass(path, *name));
  return principal;
}

void checkOperations(Class principal, const std::string &path) {
  for (const char *operation : {"initWithBundle:", "PDEPanelsForType:withHostInfo:"})
    if (!class_respondsToSelector(principal, sel_registerName(operation)))
      refuse(messages::pluginWithoutOperation(path, operation));
}

} // namespace

Plugin::Plugin(const std::string &path) : path_(path) {
  NSBundle *const bundle = bundleAt(path);
  const Class principal = principalClassOf(bundle, path);
  checkOperations(principal, path);
  BOOL started = NO;
  const auto raised = whatIsRaisedBy([&] {
    plugin_ = [principal alloc];
    // Returns a one-byte boolean instead of the object.
    started = [plugin_ initWithBundle:bundle];
  });
  if (raised)
    refuse(messages::pluginRaised(path, "initWithBundle:", *raised));
  if (!started) {
    [(id)plugin_ release];
    refuse(messages::pluginRefused(path));
  }
}

Plugin::~Plugin() {
  whatIsRaisedBy([this] { [(id)plugin_ release]; });
}

std::vector<std::unique_ptr<PanelDriver>> Plugin::panels(id hostInfo) {
  id result = nil;
  const auto raised = whatIsRaisedBy(
      [&] { result = [[plugin_ PDEPanelsForType:kPrintDialogType withHostInfo:hostInfo] retain]; });
  if (raised)
    refuse(messages::pluginRaised(path_, "PDEPanelsForType:withHostInfo:", *raised));
  [result autorelease];
  if (![result isKindOfClass:[NSArray class]])
    refuse(messages::panelNotBuilt(path_));
  std::vector<std::unique_ptr<PanelDriver>> panels;
  for (NSUInteger i = 0; i < [result count]; i++)
    panels.push_back(std::make_unique<PanelDriver>([result objectAtIndex:i], path_));
  return panels;
}

Plugin &LoadedPlugins::at(const std::string &path) {
  const std::string bundle = bundleIdentity(path);
  if (const auto failure = failures_.find(bundle); failure != failures_.end())
    throw failure->second;
  std::unique_ptr<Plugin> &plugin = plugins_[bundle];
  try {
    if (!plugin)
      plugin = std::make_unique<Plugin>(path);
  } catch (const Failure &failure) {
    failures_.emplace(bundle, failure);
    throw;
  }
  return *plugin;
}

} // namespace imageposition
