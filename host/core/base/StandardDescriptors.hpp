/// The three descriptors that every program believes it has.
#ifndef IMAGEPOSITION_HOST_STANDARDDESCRIPTORS_HPP
#define IMAGEPOSITION_HOST_STANDARDDESCRIPTORS_HPP

namespace imageposition {

/// Keeps the places of standard input, output and error, where they are closed, from the next file
/// or connection that is opened: messages would go there. Reading and writing still fail. Comes
/// before anything that opens a file.
void keepStandardDescriptors();

} // namespace imageposition

#endif
