// A CUPS that wants a password. It lets nobody in: its users are the machine's.
#include "tests/host/WindowFixture.hpp"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace imageposition::test;

constexpr char kPolicies[] =
    "<Policy asking>\n<Limit Create-Job>\nAuthType Basic\nRequire user somebody\n</Limit>\n"
    "<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n";

/// One that nobody listens on.
std::string freePort() {
  const int listener = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  bind(listener, reinterpret_cast<sockaddr *>(&address), size);
  getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size);
  close(listener);
  return std::to_string(ntohs(address.sin_port));
}

class PasswordWindow : public Window {
protected:
  void SetUp() override {
    ASSERT_TRUE(cups.isRunning()) << cups.log();
    const auto added = cups.run({"lpadmin", "-p", "office", "-E", "-v", "file:///dev/null", "-P",
                                 sample("duplex-shift.ppd"), "-o", "printer-op-policy=asking"});
    ASSERT_EQ(added.status, 0) << testing::PrintToString(added);
    // On a socket the system tells CUPS who it is, and no password is wanted.
    start({"-d", "office", sample("two-sided.pdf")},
          {"CUPS_SERVER=" + address, "CUPS_SERVERROOT=" + cups.root()});
    press({"Return"});
  }

  static bool isAsked() {
    return becomesTrue([] { return isFocused("Password"); });
  }

  const std::string address = "127.0.0.1:" + freePort();
  PrivateCups cups{"Listen " + address + "\n" + kPolicies};
};

TEST_F(PasswordWindow, CancelLeavesTheDialogOpenAndNothingPrinted) {
  ASSERT_TRUE(isAsked());
  press({"Escape"});
  ASSERT_TRUE(becomesTrue([] { return hasKeyboard(); }));
  ASSERT_TRUE(says("ancel"));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Return"}); // and it can be tried again
  ASSERT_TRUE(isAsked());
  press({"Escape"});
  ASSERT_TRUE(says("ancelled; nothing was printed.\nCancelled"));
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled) << testing::PrintToString(ended());
  EXPECT_EQ(cups.run({"lpstat", "-W", "all", "-o"}).output, "");
}

TEST_F(PasswordWindow, AWrongPasswordIsAskedForAgain) {
  ASSERT_TRUE(isAsked());
  type("wrong");
  press({"Return"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Wrong password"); }));
  press({"Escape"});
  ASSERT_TRUE(says("ancel"));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
}

} // namespace
