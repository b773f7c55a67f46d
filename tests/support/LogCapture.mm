#import "LogCapture.h"

#import "Text.h"

namespace imageposition::test {

LogCapture *LogCapture::innermost_ = nullptr;

LogCapture::LogCapture() : outer_(innermost_), previousHandler_(_NSLog_printf_handler) {
  innermost_ = this;
  _NSLog_printf_handler = &LogCapture::receive;
}

LogCapture::~LogCapture() {
  innermost_ = outer_;
  _NSLog_printf_handler = previousHandler_;
}

void LogCapture::receive(NSString *line) {
  std::string text = cxxString(line);
  // "date time program[process:thread] text", with a line end that NSLog adds if there is none.
  const std::size_t prefix = text.find("] ");
  if (prefix != std::string::npos)
    text.erase(0, prefix + 2);
  if (!text.empty() && text.back() == '\n')
    text.pop_back();
  innermost_->lines_.push_back(text);
}

} // namespace imageposition::test
