/// Checks the XML of property lists.
#ifndef IMAGEPOSITION_TESTS_RESOURCES_PROPERTYLISTFORM_H
#define IMAGEPOSITION_TESTS_RESOURCES_PROPERTYLISTFORM_H

#include <string>
#include <vector>

namespace imageposition::test {

/// Returns everything that a strict parser would reject or a lenient one would drop: a header that
/// is not a property list's, unknown or misplaced elements, text between elements, a dictionary
/// whose keys and values do not alternate, a duplicate key. Empty if there is nothing wrong.
std::vector<std::string> propertyListFaults(const std::string &bytes);

} // namespace imageposition::test

#endif
