#include "StandardDescriptors.hpp"

#include <fcntl.h>
#include <unistd.h>

namespace imageposition {

void keepStandardDescriptors() {
  for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; descriptor++)
    if (fcntl(descriptor, F_GETFD) < 0) // open() returns the lowest free descriptor
      open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

} // namespace imageposition
