/// Job settings as "name=value" text, the form that lp and CUPS take.
#ifndef IMAGEPOSITION_HOST_OPTIONTEXT_HPP
#define IMAGEPOSITION_HOST_OPTIONTEXT_HPP

#include "platform/PrintSettingsStore.hpp"

#include <string>

namespace imageposition {

/// One "name=value" line for each entry, in the list's order; `cupsParseOptions` reads the text
/// back to the same entries. A value that it would read differently stands in double quotes.
std::string writeOptionText(const PrintSettingsStore &settings);

/// "name=value" as `writeOptionText` writes it, without the line's end.
std::string writeOptionArgument(const std::string &name, const std::string &value);

/// Adds the options of a command-line argument as `lp -o` reads it: "name=value", a bare "name" for
/// "true", "noname" for "false", several separated by blanks. Throws a `Failure` with
/// `ExitCode::Usage` for what cannot be an option.
void readOptionArgument(const std::string &argument, PrintSettingsStore &settings);

} // namespace imageposition

#endif
