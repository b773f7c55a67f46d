/// What a panel of four offsets must do, written a second time and as plainly as can be, so that
/// long random uses of the real one can be compared with it.
#ifndef IMAGEPOSITION_TESTS_CONTROLLER_PANELMODEL_HPP
#define IMAGEPOSITION_TESTS_CONTROLLER_PANELMODEL_HPP

#include <array>
#include <cstdint>
#include <map>
#include <string>

namespace imageposition::test {

class PanelModel {
public:
  struct Offset {
    std::string ticketKey;
    std::int32_t value = 0;
    std::int32_t min = -20;
    std::int32_t max = 20;
    std::int32_t defaultValue = 0;
    std::string shown;
    std::int32_t steps = 0;
    bool enabled = true;
    bool fieldIsGray = false;
  };

  enum Name { FrontLRM, FrontTBM, BackLRM, BackTBM };

  std::array<Offset, 4> offsets;
  bool checked = false;
  bool allowed = true;
  bool settingsThere = true;
  bool checkEnabled = true;
  std::map<std::string, std::string> store;
  /// The n-th read or write from now fails, once.
  int failRead = 0;
  int failWrite = 0;
  bool withRules = false;

  void prepareForShow();
  void notifyUI();
  bool getTicket();
  bool saveTicket();
  void action();
  void restoreDefaults();
  void grayUI();

private:
  bool read(const std::string &key, std::string &value);
  bool write(const std::string &key, const std::string &value);
  void clamp(Offset &offset);
  void show(Offset &offset);
  void getTicket(Offset &offset);
  void setTicket(Offset &offset);
  void checkUI(Offset &offset);
  void applyRules(Name name);
};

} // namespace imageposition::test

#endif
