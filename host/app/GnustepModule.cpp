#include "GnustepModule.hpp"

#include "LibraryFile.hpp"
#include "ProgramFolder.hpp"
#include "ProgramTexts.hpp"

#include <dlfcn.h>
#include <filesystem>
#include <string>

namespace imageposition {

namespace {

constexpr const char *kBesideProgram = IMAGEPOSITION_MODULE;
constexpr const char *kInstalled = IMAGEPOSITION_MODULES_FROM_PROGRAM "/" IMAGEPOSITION_MODULE;

[[noreturn]] void refuse(const std::string &message) { throw Failure(ExitCode::Fault, message); }

std::string moduleFile() {
  std::string refused;
  std::error_code ignored;
  const std::string installed = besideProgram(kInstalled);
  for (const std::string &path : {besideProgram(kBesideProgram), installed}) {
    if (path.empty() || !std::filesystem::exists(path, ignored))
      continue;
    if (isTrustedPart(path))
      return path;
    refused = messages::moduleUntrusted(path);
  }
  refuse(refused.empty() ? messages::moduleMissing(installed) : refused);
}

} // namespace

ModuleEntry &loadGnustepModule() {
  const std::string path = moduleFile();
  if (isCutShort(path)) // dlopen would crash
    refuse(messages::moduleNotLoadable(path, messages::kCutShort));
  // Global, because plug-ins resolve the print-settings interface and GNUstep from the process.
  void *const module = dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL);
  void *const entry = module != nullptr ? dlsym(module, kModuleEntry) : nullptr;
  if (entry == nullptr)
    refuse(messages::moduleNotLoadable(path, dlerror()));
  return *reinterpret_cast<ModuleEntry *>(entry);
}

} // namespace imageposition
