/// Compares the number of objects of every class at two points in time.
#ifndef IMAGEPOSITION_TESTS_USE_OBJECTBALANCE_H
#define IMAGEPOSITION_TESTS_USE_OBJECTBALANCE_H

#include <map>
#include <string>

namespace imageposition::test {

/// Create it before an action that should leak no object. Needs a LiveObjects that lives meanwhile.
/// Objects in an undrained autorelease pool count too.
class ObjectBalance {
public:
  ObjectBalance();

  /// Lists the classes with more or fewer objects than before, and the difference; empty if there
  /// are none. Leaves out GNUstep's own leak with each interface file.
  std::string difference() const;

private:
  std::map<std::string, int> before_;
};

} // namespace imageposition::test

#endif
