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

/// The permissions of the module are not checked: a user who could replace it could replace the
/// program, too.
std::string moduleFile() {
  std::error_code ignored;
  const std::string built = besideProgram(kBesideProgram), installed = besideProgram(kInstalled);
  for (const std::string &path : {built, installed})
    if (!path.empty() && std::filesystem::exists(path, ignored))
      return path;
  refuse(messages::moduleMissing(installed));
}

} // namespace

ModuleEntry &loadGnustepModule() {
  const std::string path = moduleFile();
  if (isCutShort(path)) // the loader would end the program
    refuse(messages::moduleNotLoadable(path, messages::kCutShort));
  // Global, since plug-ins take the print-settings interface and GNUstep from the process.
  void *const module = dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL);
  void *const entry = module != nullptr ? dlsym(module, kModuleEntry) : nullptr;
  if (entry == nullptr)
    refuse(messages::moduleNotLoadable(path, dlerror()));
  return *reinterpret_cast<ModuleEntry *>(entry);
}

} // namespace imageposition
