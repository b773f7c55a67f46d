#include "StandardInput.hpp"

#include <sys/stat.h>
#include <unistd.h>

namespace imageposition {

StandardInput::StandardInput() : start_(lseek(STDIN_FILENO, 0, SEEK_CUR)) {}

bool StandardInput::isGiven() {
  struct stat status {};
  return fstat(STDIN_FILENO, &status) == 0 && !S_ISCHR(status.st_mode);
}

void StandardInput::rewind() const {
  if (start_ >= 0)
    lseek(STDIN_FILENO, start_, SEEK_SET);
}

} // namespace imageposition
