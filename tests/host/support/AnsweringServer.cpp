#include "AnsweringServer.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <poll.h>
#include <sstream>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace imageposition::test {

namespace {

constexpr int kMostRequests = 64;
constexpr std::size_t kLongest = 1 << 17;

/// Big-endian, as in IPP.
std::string bytes(std::uint32_t number, int count) {
  std::string result;
  for (int shift = 8 * (count - 1); shift >= 0; shift -= 8)
    result += static_cast<char>(number >> shift);
  return result;
}

std::string counted(const std::string &text) {
  return bytes(static_cast<std::uint32_t>(text.size()), 2) + text;
}

std::string valueFor(unsigned tag, const std::string &text) {
  const auto number = [](const std::string &digits) {
    return static_cast<std::uint32_t>(std::strtoll(digits.c_str(), nullptr, 10));
  };
  constexpr unsigned kInteger = 0x21, kBoolean = 0x22, kEnum = 0x23, kRange = 0x33;
  if (tag == kInteger || tag == kEnum)
    return bytes(number(text), 4);
  if (tag == kBoolean)
    return bytes(text == "true" ? 1 : 0, 1);
  if (tag == kRange)
    return bytes(number(text), 4) + bytes(number(text.substr(text.find('-') + 1)), 4);
  return text;
}

/// Removes and returns the first word of a string.
std::string takeWord(std::string &text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string word = text.substr(0, end);
  text.erase(0, end + 1);
  return word;
}

std::size_t sizeIn(const std::string &text) {
  return std::min<std::size_t>(std::strtoul(text.c_str(), nullptr, 10), kLongest);
}

/// Builds an answer line by line.
class Writer {
public:
  explicit Writer(std::string line) {
    const std::size_t status = sizeIn(takeWord(line));
    answer_.head = "HTTP/1.1 " + std::to_string(status) + " OK\r\n";
    answer_.operation = static_cast<unsigned>(std::strtoul(line.c_str(), nullptr, 16));
    answer_.isHonest = status >= 200; // another response would follow a 1xx status
  }

  void add(std::string line) {
    const std::string word = takeWord(line);
    if (word == "header")
      addHeader(line);
    else if (word == "ipp")
      status_ = static_cast<std::uint32_t>(std::strtoul(line.c_str(), nullptr, 16));
    else if (word == "long")
      addToValue(sizeIn(line));
    else if (word == "times")
      repeat(sizeIn(line));
    else if (word == "body")
      body_ += line + "\n";
    else if (word == "cut")
      cut_ = sizeIn(line);
    else if (word == "length")
      length_ = line;
    else if (word == "chunks")
      chunk_ = sizeIn(line);
    else if (word == "silent")
      isSilent_ = true;
    else
      addAttribute(word, line);
  }

  Answer finished() const {
    Answer answer = answer_;
    if (isSilent_) {
      answer.head.clear();
      return answer;
    }
    std::string body = body_;
    if (body.empty())
      body = std::string("\2\0", 2) + bytes(status_, 2) + bytes(1, 4) + groups_ + attribute_ + '\3';
    body.resize(body.size() - std::min(body.size(), cut_));
    if (chunk_ > 0) {
      answer.head += "Transfer-Encoding: chunked\r\n\r\n";
      answer.body = inChunks(body);
    } else {
      answer.head +=
          "Content-Length: " + (length_.empty() ? std::to_string(body.size()) : length_) +
          "\r\n\r\n";
      answer.body = body;
    }
    answer.isHonest = answer.isHonest && length_.empty();
    return answer;
  }

private:
  void addHeader(const std::string &line) {
    answer_.head += line + "\r\n";
    answer_.isHonest = false; // it may change the length
  }
  void addAttribute(const std::string &word, std::string line) {
    constexpr unsigned kFirstValueTag = 0x10;
    const auto tag = static_cast<unsigned>(std::strtoul(word.c_str(), nullptr, 16)) & 0xFF;
    groups_ += attribute_;
    attribute_.clear();
    if (tag < kFirstValueTag) {
      groups_ += static_cast<char>(tag);
      return;
    }
    const std::string name = takeWord(line);
    start_ = static_cast<char>(tag) + counted(name == "-" ? "" : name);
    value_ = valueFor(tag, line);
    attribute_ = start_ + counted(value_);
  }
  void addToValue(std::size_t count) {
    value_.append(count, 'x');
    attribute_ = start_.empty() ? "" : start_ + counted(value_);
  }
  void repeat(std::size_t times) {
    for (std::size_t i = 0; i < times && groups_.size() < kLongest; ++i)
      groups_ += attribute_;
  }
  std::string inChunks(const std::string &body) const {
    std::ostringstream chunks;
    for (std::size_t at = 0; at < body.size(); at += chunk_) {
      const std::string chunk = body.substr(at, chunk_);
      chunks << std::hex << chunk.size() << "\r\n" << chunk << "\r\n";
    }
    chunks << "0\r\n\r\n";
    return chunks.str();
  }

  Answer answer_;
  std::uint32_t status_ = 0;
  std::string groups_;
  std::string start_, value_, attribute_; // of the last attribute
  std::string body_, length_;
  std::size_t cut_ = 0, chunk_ = 0;
  bool isSilent_ = false;
};

bool sendAll(int descriptor, const std::string &text) {
  for (std::size_t at = 0; at < text.size();) {
    const ssize_t count = send(descriptor, text.data() + at, text.size() - at, MSG_NOSIGNAL);
    if (count <= 0)
      return false;
    at += static_cast<std::size_t>(count);
  }
  return true;
}

struct Request {
  std::size_t size = 0; // 0 while it is incomplete
  unsigned operation = 0;
  bool isWaiting = false; // for 100 Continue
};

/// Parses only what libcups writes.
Request requestIn(const std::string &received) {
  Request request;
  const std::size_t end = received.find("\r\n\r\n");
  if (end == std::string::npos)
    return request;
  const std::size_t start = end + 4;
  const std::string head = received.substr(0, start);
  request.isWaiting = head.find("Expect: 100-continue") != std::string::npos;
  std::size_t body = start;
  if (head.find("chunked") != std::string::npos) {
    const std::size_t last = received.find("\r\n0\r\n\r\n", end);
    request.size = last == std::string::npos ? 0 : last + 7;
    body = received.find("\r\n", start) + 2;
  } else {
    const std::size_t length = head.find("Content-Length: ");
    const std::size_t size =
        start + (length == std::string::npos ? 0 : sizeIn(head.substr(length + 16)));
    request.size = received.size() < size ? 0 : size;
  }
  if (received.size() >= body + 4)
    request.operation = (static_cast<unsigned char>(received[body + 2]) << 8) |
                        static_cast<unsigned char>(received[body + 3]);
  return request;
}

} // namespace

std::vector<Answer> readAnswers(const std::string &lines) {
  std::vector<Answer> answers;
  std::istringstream stream(lines);
  std::optional<Writer> writer;
  for (std::string line; std::getline(stream, line);) {
    if (line.compare(0, 7, "answer ") == 0) {
      if (writer)
        answers.push_back(writer->finished());
      writer.emplace(line.substr(7));
    } else if (writer && !line.empty()) {
      writer->add(line);
    }
  }
  if (writer)
    answers.push_back(writer->finished());
  return answers;
}

AnsweringServer::AnsweringServer() {
  path_ = folder_.path("socket");
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path_.copy(address.sun_path, sizeof address.sun_path - 1);
  listener_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (bind(listener_, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0 ||
      listen(listener_, 16) != 0)
    throw std::system_error(errno, std::generic_category());
  thread_ = std::thread([this] { serve(); });
}

AnsweringServer::~AnsweringServer() {
  shutdown(listener_, SHUT_RDWR); // makes `accept4` return
  thread_.join();
  close(listener_);
}

void AnsweringServer::setAnswers(std::vector<Answer> answers) {
  const std::lock_guard<std::mutex> lock(mutex_);
  answers_ = std::move(answers);
  used_.clear();
  requests_ = 0;
}

std::size_t AnsweringServer::requestCount(unsigned operation) {
  const std::lock_guard<std::mutex> lock(mutex_);
  return used_[operation];
}

const Answer *AnsweringServer::nextAnswer(unsigned operation) {
  for (const unsigned wanted : {operation, 0u}) {
    std::vector<const Answer *> fitting;
    for (const Answer &answer : answers_)
      if (answer.operation == wanted)
        fitting.push_back(&answer);
    if (!fitting.empty())
      return fitting[std::min(used_[wanted]++, fitting.size() - 1)];
  }
  return nullptr;
}

bool AnsweringServer::respond(Connection &connection, unsigned operation) {
  std::string text;
  bool isHonest = false;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    const Answer *const answer = ++requests_ > kMostRequests ? nullptr : nextAnswer(operation);
    if (answer == nullptr)
      return false;
    text = answer->head + answer->body;
    isHonest = answer->isHonest;
  }
  return sendAll(connection.descriptor, text) && isHonest;
}

/// Reads the available data; false ends the connection.
bool AnsweringServer::serve(Connection &connection) {
  char piece[65536];
  const ssize_t count = recv(connection.descriptor, piece, sizeof piece, 0);
  if (count <= 0)
    return false;
  connection.received.append(piece, static_cast<std::size_t>(count));
  if (connection.received.front() < 'A' || connection.received.front() > 'Z')
    return false; // TLS, which an answer can request
  for (;;) {
    const Request request = requestIn(connection.received);
    if (request.isWaiting) { // the client sends the body only then
      const std::size_t expectation = connection.received.find("Expect: ");
      connection.received.replace(expectation, 6, "Was-so");
      if (!sendAll(connection.descriptor, "HTTP/1.1 100 Continue\r\n\r\n"))
        return false;
      continue;
    }
    if (request.size == 0)
      return true;
    connection.received.erase(0, request.size);
    if (!respond(connection, request.operation))
      return false;
  }
}

void AnsweringServer::serve() {
  std::vector<Connection> connections;
  for (;;) {
    std::vector<pollfd> waiting{{listener_, POLLIN, 0}};
    for (const Connection &connection : connections)
      waiting.push_back({connection.descriptor, POLLIN, 0});
    poll(waiting.data(), waiting.size(), -1);
    for (std::size_t i = connections.size(); i > 0; --i)
      if (waiting[i].revents != 0 && !serve(connections[i - 1])) {
        close(connections[i - 1].descriptor);
        connections.erase(connections.begin() + static_cast<std::ptrdiff_t>(i - 1));
      }
    if (waiting[0].revents == 0)
      continue;
    const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0)
      break;
    connections.push_back({client, ""});
  }
  for (const Connection &connection : connections)
    close(connection.descriptor);
}

} // namespace imageposition::test
