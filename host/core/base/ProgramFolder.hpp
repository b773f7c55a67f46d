/// Where the running program stands.
#ifndef IMAGEPOSITION_HOST_PROGRAMFOLDER_HPP
#define IMAGEPOSITION_HOST_PROGRAMFOLDER_HPP

#include <string>

namespace imageposition {

/// `name` taken from the folder of the running program, links to it followed; so what is installed
/// with it is found wherever the whole was put. Empty when the system does not say.
std::string besideProgram(const std::string &name);

} // namespace imageposition

#endif
