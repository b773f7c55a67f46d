/// A user at the dialog, who only has a screen, a mouse and a keyboard.
#ifndef IMAGEPOSITION_TESTS_HABITS_PERSON_HPP
#define IMAGEPOSITION_TESTS_HABITS_PERSON_HPP

#include "Picture.hpp"
#include "PlatformDefaults.hpp"
#include "ProcessRun.hpp"
#include "Screen.hpp"
#include "Steps.hpp"
#include "TemporaryFolder.hpp"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

/// Works on the display and the CUPS server of the environment. Only looks at what a user sees, and
/// waits for it; throws `StepFailure` if it does not come.
class Person {
public:
  /// What this user can do and look for.
  std::vector<Sentence> sentences();

private:
  using Look = std::function<bool(const Screen &)>;

  void open(const std::string &words);
  void click(const Control &control, int milliseconds);
  void type(const std::string &text);
  void press(const std::string &key, int times);
  void paste(const std::string &text);
  void pointAt(const Control &control);
  void drop(const std::string &files);
  void resize(int width, int height);
  /// Of the last job.
  static void seeReceived(const std::string &name, const std::string &value);
  /// Compares what two jobs drew on a side, from files in the home folder. `distances` are
  /// millimetres to the right and downwards.
  static void seeMoved(int side, const std::string &file, const std::string &distances,
                       const std::string &other);
  void endWith(int status);

  /// The control that the user looks for, once it can be used.
  Control find(const std::string &what,
               const std::function<const Control *(const Screen &)> &search);
  Control button(const std::string &title);
  Control beside(const std::string &label, const std::string &kind);
  Control item(const std::string &title);
  Control visible(const std::string &kind, const std::string &text);
  Control frontButton(const std::string &title);
  Control frontPage();
  Screen screen() const { return Screen::read(folder_.path("screen")); }
  void see(const std::string &what, const Look &look);
  void seeValue(const std::string &value, const std::string &label);
  void seeOnDisplay(const std::string &title);
  void seeInSight(const Control &control);
  void seeTexts();
  void seeOnTop(const std::string &title);
  void seeJobs(int count, const std::string &which);
  std::string described() const;

  TemporaryFolder folder_;
  PlatformDefaults defaults_{"GSAppKitUserBundles = (\"" OBSERVER_BUNDLE "\");"};
  std::vector<std::string> environment_;
  Picture picture_;                 // that the user looked at last
  std::unique_ptr<Process> dialog_; // destroyed before the folder
  std::unique_ptr<Process> clipboard_;
};

} // namespace imageposition::test

#endif
