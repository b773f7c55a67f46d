/// Reserves the descriptors of standard input, output and error.
#ifndef IMAGEPOSITION_CORE_BASE_STANDARDDESCRIPTORS_HPP
#define IMAGEPOSITION_CORE_BASE_STANDARDDESCRIPTORS_HPP

namespace imageposition {

/// Opens /dev/null on each standard descriptor that is closed. Otherwise the next file or
/// connection would get its number, and messages would go there. Reading standard input and writing
/// to the other two still fail. Call this before opening any file.
void keepStandardDescriptors();

} // namespace imageposition

#endif
