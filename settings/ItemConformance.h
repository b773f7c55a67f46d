/// What view items conform to, asked often.
#ifndef IMAGEPOSITION_SETTINGS_ITEMCONFORMANCE_H
#define IMAGEPOSITION_SETTINGS_ITEMCONFORMANCE_H

#import <Foundation/Foundation.h>

#include <vector>

namespace imageposition {

/// Answers as the item's own `conformsToProtocol:` does. An item whose class inherits that
/// operation from the root class answers for its class, always the same: the platform compares the
/// names of all protocols of all its ancestors each time, which was a third of every refresh, so
/// that the answer is remembered. Any other item is asked each time.
class ItemConformance {
public:
  bool conforms(id item, Protocol *protocol);

private:
  struct Answer {
    Class type;
    Protocol *protocol;
    bool conforms;
  };
  std::vector<Answer> answers_; // a handful: looked through from the front
};

} // namespace imageposition

#endif
