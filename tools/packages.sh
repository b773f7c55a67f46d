# The Debian packages that this project needs, for scripts to source. Each line says what for.
# shellcheck shell=bash disable=SC2034

build_packages=(
  g++ gobjc++ cmake ninja-build pkg-config          # the toolchain
  libgnustep-gui-dev                                # AppKit and Foundation
  libcups2-dev libfontconfig-dev libx11-dev         # printers; which fonts there are; the display
  libcli11-dev nlohmann-json3-dev                   # command line, tickets
  gettext                                           # the dialog's words in other languages
)

run_packages=(
  gnustep-back0.29-cairo                            # draws the windows
  cups-common                                       # words for what printers offer, in many languages
  fontconfig fonts-dejavu-core fonts-wqy-microhei   # text; Japanese and Chinese with Latin in one font
  xvfb openbox                                      # a display where there is none
)

demonstration_packages=(
  xdotool imagemagick x11-utils                     # keys, clicks and screenshots
)

test_packages=(
  libgtest-dev libgmock-dev libbenchmark-dev        # test and benchmark frameworks
  clang-format clang-tidy cppcheck shellcheck       # style, and faults that can be read
  xdotool xclip imagemagick x11-utils libxtst-dev   # a person at the window
  x11-xkb-utils procps                              # its keyboard; which programs run
  man-db mandoc desktop-file-utils libxml2-utils    # check the man page, the desktop file, and XML
  zsh python3                                       # completion, in the real shells
  strace util-linux                                 # kill at each system call; run as somebody else
  cups-client cups-daemon                           # checks printer descriptions; a CUPS to ask
  cups-ipp-utils dbus-daemon                        # a printer without a driver, and its bus
  python3-dbus python3-gi                           # announce that printer to nobody
  libpam-wrapper                                    # names and passwords of that CUPS's own
  cups-filters hp-ppd foomatic-db-compressed-ppds   # printer descriptions that others wrote
)

comparison_packages=(
  qt6-base-dev libgtk-3-dev                         # other print dialogs
  libxdamage-dev libxext-dev                        # what is drawn, seen from outside
  cups-client cups-daemon dbus-daemon at-spi2-core  # what they all talk to
)

coverage_packages=(
  gcovr                                             # adds up what the compiler counted
)

fuzz_packages=(
  clang                                             # its fuzzer and sanitizers
)

valgrind_packages=(
  valgrind libc6-dbg                                # memory errors; names of the loader's functions
)
