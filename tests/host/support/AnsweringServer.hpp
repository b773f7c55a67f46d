/// A CUPS that answers whatever it is told to.
#ifndef IMAGEPOSITION_TESTS_HOST_ANSWERINGSERVER_HPP
#define IMAGEPOSITION_TESTS_HOST_ANSWERINGSERVER_HPP

#include "TemporaryFolder.hpp"

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace imageposition::test {

/// What is sent for one request. Given as lines:
///
///     answer 200 0002        HTTP's status, and the IPP operation that it is for, or 0 for any
///     header Name: value
///     ipp 0400               IPP's status instead of 0000
///     04                     a group of that tag begins
///     42 printer-name office an attribute of that tag; numbers are decimal
///     42 - lab               a further value
///     long 60000             adds so many letters to the value before
///     times 50               repeats the attribute before
///     body text              sends this line, and those of further ones, instead of IPP
///     cut 20                 leaves out so many bytes at the end
///     length 5               claims that length
///     chunks 7               sends pieces of that length
///     silent                 sends nothing, and keeps the connection
struct Answer {
  std::string head; ///< With the headers that stand in the lines.
  std::string body;
  unsigned operation = 0;
  bool isHonest = true; ///< Whether the client can tell where it ends.
};

std::vector<Answer> readAnswers(const std::string &lines);

/// Listens on a Unix socket, on a thread, while the object lives.
class AnsweringServer {
public:
  /// Throws where the system lets it listen nowhere.
  AnsweringServer();
  ~AnsweringServer();
  AnsweringServer(const AnsweringServer &) = delete;
  AnsweringServer &operator=(const AnsweringServer &) = delete;

  /// As CUPS_SERVER names it.
  const std::string &socket() const noexcept { return path_; }

  /// From now on the answers for an operation are sent in turn, the last of them again and again,
  /// and those for any operation where there is none. A connection ends with an answer that is not
  /// honest, and without one after as many requests as no client has.
  void setAnswers(std::vector<Answer> answers);

  /// How many requests of an operation that has answers have come since.
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
  std::mutex mutex_; // of the following
  std::vector<Answer> answers_;
  std::map<unsigned, std::size_t> used_; // by operation
  int requests_ = 0;
  std::thread thread_;
};

} // namespace imageposition::test

#endif
