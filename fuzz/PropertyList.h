/// Property lists of any shape, decoded from a fuzzer's bytes.
#ifndef IMAGEPOSITION_FUZZ_PROPERTYLIST_H
#define IMAGEPOSITION_FUZZ_PROPERTYLIST_H

#include "Choices.hpp"

#import <Foundation/Foundation.h>

namespace imageposition::fuzz {

/// What a list is made of where it makes sense.
struct Vocabulary {
  std::vector<std::string> keys;
  std::vector<std::string> texts;
};

/// Mostly a dictionary of dictionaries under "0", "1", ..., whose keys and texts are those of the
/// vocabulary; now and then anything else, anywhere. The caller does not own it.
id drawPropertyList(test::Choices &choices, const Vocabulary &vocabulary);

} // namespace imageposition::fuzz

#endif
