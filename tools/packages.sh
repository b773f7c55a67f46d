# The Debian packages that this project needs, for scripts to source. Each line says what they are for.
# shellcheck shell=bash disable=SC2034

build_packages=(
  g++ gobjc++ cmake ninja-build pkg-config          # the toolchain
  libgnustep-gui-dev                                # AppKit and Foundation
  libcups2-dev libfontconfig-dev libx11-dev         # printers; the list of fonts; the display
  libcli11-dev nlohmann-json3-dev                   # command line, tickets
  libqpdf-dev                                       # pages of documents
  libpoppler-cpp-dev                                # renders pages of documents for the picture
  libseccomp-dev                                    # what the process that renders may do
  libpango1.0-dev                                   # the words of alignment sheets
  libglib2.0-dev                                    # the session's bus, for the print portal
  gettext                                           # the dialog's translations
)

run_packages=(
  gnustep-back0.29-cairo                            # draws the windows
  libqpdf29                                         # reads the documents' pages
  libpoppler-cpp0v5 libseccomp2                     # render the documents' pages, in a sandbox
  poppler-data                                      # Chinese, Japanese and Korean text in them
  libpangocairo-1.0-0                               # draws alignment sheets
  libglib2.0-0                                      # serves the print portal
  cups-common                                       # words for what printers offer, in many languages
  fontconfig fonts-dejavu-core fonts-wqy-microhei   # text; Japanese and Chinese with Latin in one font
  xvfb openbox                                      # a virtual display
)

demonstration_packages=(
  xdotool imagemagick x11-utils                     # keys, clicks and screenshots
)

test_packages=(
  libgtest-dev libgmock-dev libbenchmark-dev        # test and benchmark frameworks
  clang-format clang-tidy cppcheck shellcheck       # style and static analysis
  xdotool xclip imagemagick x11-utils libxtst-dev   # a simulated user at the window
  x11-xkb-utils procps                              # keyboard layouts; which programs run
  man-db mandoc desktop-file-utils libxml2-utils    # check the man page, the desktop file, and XML
  appstream                                         # checks the description for software centres
  libarchive-tools                                  # unpacks the installer for macOS
  zsh python3                                       # completion, in the real shells
  strace util-linux                                 # kill at each system call; run as another user
  cups-client cups-daemon                           # a PPD checker; a private CUPS
  cups-ipp-utils dbus-daemon                        # a driverless printer, and its bus
  python3-dbus python3-gi                           # a service discovery that announces nothing
  libpam-wrapper                                    # users and passwords for the private CUPS
  cups-filters hp-ppd foomatic-db-compressed-ppds   # PPDs of real printers
  poppler-utils                                     # renders alignment sheets
  cups                                              # which filters lay a document out
  xdg-desktop-portal libgtk-3-dev libgtk-4-dev      # applications that print through the portal
  libglib2.0-bin                                    # calls on a bus
)

comparison_packages=(
  qt6-base-dev libgtk-3-dev                         # other print dialogs
  libxdamage-dev libxext-dev                        # watch what the dialogs draw
  cups-client cups-daemon dbus-daemon at-spi2-core  # the services that the dialogs use
)

package_packages=(
  build-essential debhelper lintian appstream       # Debian packages, and checks of them
)

coverage_packages=(
  gcovr                                             # coverage reports
)

fuzz_packages=(
  clang                                             # libFuzzer and sanitizers
)

valgrind_packages=(
  valgrind libc6-dbg                                # memory errors; symbols of the dynamic loader
)
