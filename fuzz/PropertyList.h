/// Property lists of any shape, decoded from a fuzzer's bytes.
#ifndef IMAGEPOSITION_FUZZ_PROPERTYLIST_H
#define IMAGEPOSITION_FUZZ_PROPERTYLIST_H

#include "Choices.hpp"

#import <Foundation/Foundation.h>

namespace imageposition::fuzz {

/// The words of meaningful parts of a list.
struct Vocabulary {
  std::vector<std::string> keys;
  std::vector<std::string> strings;
};

/// Returns an autoreleased property list: mostly a dictionary of dictionaries under "0", "1", ...,
/// with keys and strings from the vocabulary; now and then anything else, anywhere.
id drawPropertyList(test::Choices &choices, const Vocabulary &vocabulary);

} // namespace imageposition::fuzz

#endif
