/// Messages about presets.
#ifndef IMAGEPOSITION_CORE_PRESETS_PRESETTEXTS_HPP
#define IMAGEPOSITION_CORE_PRESETS_PRESETTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string presetNameUnusable(const std::string &typed);
std::string presetNameTooLong(int longest);
std::string presetMissing(const std::string &printer, const std::string &name);
std::string presetExists(const std::string &printer, const std::string &name);
std::string presetIsShared(const std::string &name, const std::string &path);
std::string presetTooLarge(const std::string &name);
std::string presetsUnreadable(const std::string &path, const std::string &reason);
std::string presetsUnwritable(const std::string &path, const std::string &reason);
std::string presetCannotHold(const std::string &setting, const std::string &value);
std::string presetKeepsNoPassword(const std::string &option);

} // namespace imageposition::messages

#endif
