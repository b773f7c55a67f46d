/// Job settings as "name=value" text, which lp and CUPS accept.
#ifndef IMAGEPOSITION_CORE_PRINTER_OPTIONTEXT_HPP
#define IMAGEPOSITION_CORE_PRINTER_OPTIONTEXT_HPP

#include "PrintSettingsStore.hpp"

#include <string>
#include <string_view>

namespace imageposition {

/// One "name=value" line for each entry, in the list's order, which `cupsParseOptions` reads back
/// to the same entries. Quotes a value that it or a shell would read differently: if a shell
/// evaluates the text, it runs no command from a value.
std::string writeOptionText(const PrintSettingsStore &settings);

/// Whether `writeOptionText` could have written `text`.
bool isOptionText(std::string_view text);

/// "name=value" as `writeOptionText` writes it, without the newline.
std::string writeOptionArgument(const std::string &name, const std::string &value);

/// Adds the options of a command-line argument as `lp -o` reads it: "name=value", a bare "name" for
/// "true", "noname" for "false", several separated by blanks. Throws a `Failure` with
/// `ExitCode::Usage` for an argument that is not an option.
void readOptionArgument(const std::string &argument, PrintSettingsStore &settings);

} // namespace imageposition

#endif
