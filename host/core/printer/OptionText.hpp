/// Job settings as "name=value" text, the form that lp and CUPS take.
#ifndef IMAGEPOSITION_HOST_OPTIONTEXT_HPP
#define IMAGEPOSITION_HOST_OPTIONTEXT_HPP

#include "PrintSettingsStore.hpp"

#include <string>
#include <string_view>

namespace imageposition {

/// One "name=value" line for each entry, in the list's order; `cupsParseOptions` reads the text
/// back to the same entries. A value that it would read differently, or that a shell would, stands
/// in double quotes: a shell that is made to read the text runs nothing that a value says.
std::string writeOptionText(const PrintSettingsStore &settings);

/// Whether `writeOptionText` may have written it.
bool isOptionText(std::string_view text);

/// "name=value" as `writeOptionText` writes it, without the line's end.
std::string writeOptionArgument(const std::string &name, const std::string &value);

/// Adds the options of a command-line argument as `lp -o` reads it: "name=value", a bare "name" for
/// "true", "noname" for "false", several separated by blanks. Throws a `Failure` with
/// `ExitCode::Usage` for what cannot be an option.
void readOptionArgument(const std::string &argument, PrintSettingsStore &settings);

} // namespace imageposition

#endif
