/// Options and exit statuses from print-dialog's help.
#ifndef IMAGEPOSITION_TESTS_HOST_INSTALL_COMMANDWORDS_HPP
#define IMAGEPOSITION_TESTS_HOST_INSTALL_COMMANDWORDS_HPP

#include <set>
#include <string>

namespace imageposition::test {

/// Every option by each of its names, "-d" and "--queue", as --help lists them.
std::set<std::string> optionsOfHelp();

/// The exit statuses that --help explains.
std::set<std::string> statusesOfHelp();

} // namespace imageposition::test

#endif
