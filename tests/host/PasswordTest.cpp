// A CUPS that wants a password. Whom it lets in is written in a file: its users would be the
// machine's otherwise.
#include "tests/host/WindowFixture.hpp"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace imageposition::test;

constexpr char kPolicies[] = "DefaultAuthType Basic\n<Policy asking>\n<Limit Create-Job>\nAuthType "
                             "Basic\nRequire user somebody\n</Limit>\n"
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

/// The names, passwords and services that the system knows, for programs that are started so.
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

class PasswordWindow : public Window {
protected:
  void SetUp() override {
    addOfficeQueue(cups, {"-o", "printer-op-policy=asking"});
    // On a socket the system tells CUPS who it is, and no password is wanted.
    start({"-d", "office", sample("two-sided.pdf")},
          {"CUPS_SERVER=" + address, "CUPS_SERVERROOT=" + cups.root()});
    press({"Return"});
  }

  static bool isAsked() {
    return becomesTrue([] { return isFocused("Password"); });
  }

  const std::string address = "127.0.0.1:" + freePort();
  const KnownUsers users;
  PrivateCups cups{"Listen " + address + "\n" + kPolicies, users.environment()};
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

TEST_F(PasswordWindow, TheRightNameAndPasswordPrint) {
  ASSERT_TRUE(isAsked());
  press({"shift+Tab", "ctrl+a"});
  type("somebody");
  press({"Tab"});
  type("open sesame");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(ended().output, testing::HasSubstr("request id is office-"));
  EXPECT_THAT(cups.run({"lpstat", "-W", "all", "-o"}).output, testing::HasSubstr("somebody"));
}

TEST_F(PasswordWindow, TheRightPasswordAfterAWrongOnePrints) {
  ASSERT_TRUE(isAsked());
  press({"shift+Tab", "ctrl+a"});
  type("somebody");
  press({"Tab"});
  type("wrong");
  press({"Return"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Wrong password"); }));
  type("open sesame"); // the name is still there
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(cups.run({"lpstat", "-W", "all", "-o"}).output, testing::HasSubstr("office-"));
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
