/// A fake CUPS server that sends prepared responses.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_ANSWERINGSERVER_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_ANSWERINGSERVER_HPP

#include "TemporaryFolder.hpp"

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace imageposition::test {

/// The response to one request. `readAnswers` parses it from lines:
///
///     answer 200 0002        HTTP status, and the IPP operation that it responds to, or 0 for any
///     header Name: value
///     ipp 0400               IPP's status instead of 0000
///     04                     a group of that tag begins
///     42 printer-name office an attribute of that tag; numbers are decimal
///     42 - lab               a further value
///     long 60000             adds that many letters to the previous value
///     times 50               repeats the previous attribute
///     body text              sends this line, and those of further "body" lines, instead of IPP
///     cut 20                 omits that many bytes at the end
///     length 5               claims that length
///     chunks 7               sends pieces of that length
///     silent                 sends nothing, and keeps the connection
struct Answer {
  std::string head; ///< Includes the headers from the lines.
  std::string body;
  unsigned operation = 0;
  bool isHonest = true; ///< Whether the client can tell where the response ends.
};

std::vector<Answer> readAnswers(const std::string &lines);

/// Listens on a Unix socket, on a thread, while the object lives.
class AnsweringServer {
public:
  /// Throws if it cannot listen.
  AnsweringServer();
  ~AnsweringServer();
  AnsweringServer(const AnsweringServer &) = delete;
  AnsweringServer &operator=(const AnsweringServer &) = delete;

  /// The value for CUPS_SERVER.
  const std::string &socket() const noexcept { return path_; }

  /// From now on, sends the answers for an operation in turn and repeats the last one. An operation
  /// without answers gets those for any operation. Closes a connection after an answer that is not
  /// honest, without an answer, or after more requests than any client sends.
  void setAnswers(std::vector<Answer> answers);

  /// The number of requests since then for an operation with answers.
  std::size_t requestCount(unsigned operation);

private:
  struct Connection {
    int descriptor;
    std::string received;
  };

  void serve();
  bool serve(Connection &connection);
  bool respond(Connection &connection, unsigned operation);
  const Answer *nextAnswer(unsigned operation);

  const TemporaryFolder folder_;
  std::string path_;
  int listener_;
  std::mutex mutex_; // guards the following
  std::vector<Answer> answers_;
  std::map<unsigned, std::size_t> used_; // by operation
  int requests_ = 0;
  std::thread thread_;
};

} // namespace imageposition::test

#endif
