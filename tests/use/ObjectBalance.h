/// The objects of every class, at one moment and at a later one.
#ifndef IMAGEPOSITION_TESTS_USE_OBJECTBALANCE_H
#define IMAGEPOSITION_TESTS_USE_OBJECTBALANCE_H

#include <map>
#include <string>

namespace imageposition::test {

/// Made before something that is to leave no object behind. Objects count while a LiveObjects
/// lives; those in an autorelease pool that is not drained yet count too.
class ObjectBalance {
public:
  ObjectBalance();

  /// Names the classes that there are more objects of now, with how many, or fewer; empty when
  /// there are none. The platform's own loss with each interface file is left out.
  std::string difference() const;

private:
  std::map<std::string, int> before_;
};

} // namespace imageposition::test

#endif
