/// Property lists in XML, looked at as they are written.
#ifndef IMAGEPOSITION_TESTS_RESOURCES_PROPERTYLISTFORM_H
#define IMAGEPOSITION_TESTS_RESOURCES_PROPERTYLISTFORM_H

#include <string>
#include <vector>

namespace imageposition::test {

/// What a strict reader would refuse, and what a lenient one would lose: another beginning than
/// that of a property list, elements that one does not have or not there, text between elements, a
/// dictionary whose keys and values do not alternate, a key that comes twice. Empty when it is
/// fine.
std::vector<std::string> propertyListFaults(const std::string &bytes);

} // namespace imageposition::test

#endif
