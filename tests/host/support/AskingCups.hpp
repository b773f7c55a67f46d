/// A private CUPS server that requires a password, on an address of this machine.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_ASKINGCUPS_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_ASKINGCUPS_HPP

#include "OfficeQueue.hpp"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace imageposition::test {

/// A port of the address on which no program listens.
inline std::string freePort(const std::string &address) {
  const int listener = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_addr.s_addr = inet_addr(address.c_str());
  socklen_t size = sizeof place;
  bind(listener, reinterpret_cast<sockaddr *>(&place), size);
  getsockname(listener, reinterpret_cast<sockaddr *>(&place), &size);
  close(listener);
  return std::to_string(ntohs(place.sin_port));
}

/// The address at which other machines reach this one.
inline std::string networkAddress() {
  ifaddrs *all = nullptr;
  getifaddrs(&all);
  std::string found;
  for (const ifaddrs *each = all; each != nullptr && found.empty(); each = each->ifa_next)
    if (each->ifa_addr != nullptr && each->ifa_addr->sa_family == AF_INET &&
        (each->ifa_flags & IFF_UP) != 0 && (each->ifa_flags & IFF_LOOPBACK) == 0)
      found = inet_ntoa(reinterpret_cast<const sockaddr_in *>(each->ifa_addr)->sin_addr);
  freeifaddrs(all);
  if (found.empty())
    throw std::runtime_error("this machine has no IPv4 address but its loopback");
  return found;
}

/// Replaces the machine's users, passwords and PAM services for programs that run with this
/// environment.
class KnownUsers {
public:
  KnownUsers() {
    const std::string users = folder_.write("users", "somebody:open sesame:cups\n");
    const std::string module = PAM_MATRIX " passdb=" + users + "\n";
    folder_.write("services/cups", "auth required " + module + "account required " + module);
  }
  std::vector<std::string> environment() const {
    return {"LD_PRELOAD=" PAM_WRAPPER, "PAM_WRAPPER=1",
            "PAM_WRAPPER_SERVICE_DIR=" + folder_.path("services")};
  }

private:
  TemporaryFolder folder_;
};

/// On its queue "office", only the user "somebody" with the password "open sesame" may perform the
/// limited operations.
class AskingCups {
public:
  /// `limited` lists operations by the names that cupsd.conf uses.
  explicit AskingCups(const std::string &host, const std::string &limited = "Create-Job")
      : address_(host + ":" + freePort(host)),
        cups_("Listen " + address_ +
                  "\nDefaultAuthType Basic\nDefaultEncryption IfRequested\n<Policy asking>\n"
                  "<Limit " +
                  limited +
                  ">\nAuthType Basic\nRequire user somebody\n</Limit>\n"
                  "<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n",
              users_.environment()) {
    addOfficeQueue(cups_, {"-o", "printer-op-policy=asking"});
  }

  /// The same server on its socket, where it requires no password: the system identifies the user.
  const PrivateCups &onSocket() const noexcept { return cups_; }
  /// Variables with which a program reaches this server by its address.
  std::vector<std::string> environment() const {
    return {"CUPS_SERVER=" + address_, "CUPS_SERVERROOT=" + cups_.root()};
  }
  const std::string &address() const noexcept { return address_; }

private:
  const std::string address_;
  const KnownUsers users_;
  PrivateCups cups_;
};

} // namespace imageposition::test

#endif
