/// Captures what NSLog writes.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_LOGCAPTURE_H
#define IMAGEPOSITION_TESTS_SUPPORT_LOGCAPTURE_H

#import <Foundation/Foundation.h>

#include <string>
#include <vector>

namespace imageposition::test {

/// While an instance lives, nothing reaches the log; captures may be nested. The lines are in
/// order, without the time and process that NSLog adds.
class LogCapture {
public:
  LogCapture();
  ~LogCapture();
  LogCapture(const LogCapture &) = delete;
  LogCapture &operator=(const LogCapture &) = delete;

  const std::vector<std::string> &lines() const { return lines_; }
  void clear() { lines_.clear(); }

private:
  static void receive(NSString *line);

  static LogCapture *innermost_;
  LogCapture *outer_;
  NSLog_printf_handler *previousHandler_;
  std::vector<std::string> lines_;
};

} // namespace imageposition::test

#endif
