#include "PrivateCups.hpp"

#include "Waiting.hpp"

#include <cups/cups.h>

#include <chrono>
#include <filesystem>
#include <thread>
#include <unistd.h>

namespace imageposition::test {

PrivateCups::PrivateCups(const std::string &policies, std::vector<std::string> environment,
                         const std::string &files)
    : environment_(std::move(environment)) {
  writeConfiguration(policies, files);
  start();
}

void PrivateCups::stop() {
  server_.reset();
  isRunning_ = false;
}

void PrivateCups::start() {
  constexpr int kLongestTests = 3000; // seconds
  const std::vector<std::string> command{
      "/usr/sbin/cupsd",          "-f", "-c",
      folder_.path("cupsd.conf"), "-s", folder_.path("cups-files.conf")};
  server_ = std::make_unique<Process>(command, environment_, kLongestTests);
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (!isRunning_ && !server_->hasEnded() && std::chrono::steady_clock::now() < deadline) {
    isRunning_ = run({"lpstat", "-r"}).output.find("is running") != std::string::npos;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

ProcessResult PrivateCups::run(const std::vector<std::string> &words) const {
  return runProcess(words, environment());
}

bool PrivateCups::addDriverlessQueue(const std::string &name, const std::string &uri) const {
  run({"lpadmin", "-p", name, "-E", "-v", uri, "-m", "everywhere"});
  // CUPS writes the description after it has confirmed the queue.
  const std::string description = folder_.path("ppd/" + name + ".ppd");
  if (!becomesTrue([&] { return std::filesystem::exists(description); }))
    return false;
  return run({"lpadmin", "-p", name, "-v", uri + "?waitjob=false"}).status == 0;
}

std::string PrivateCups::jobAttribute(int job, const char *name) const {
  http_t *const http = httpConnect2(socket().c_str(), 0, nullptr, AF_UNSPEC,
                                    HTTP_ENCRYPTION_IF_REQUESTED, 1, 30000, nullptr);
  ipp_t *const request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  const std::string uri = "ipp://localhost/jobs/" + std::to_string(job);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
  // Only its owner sees a job's name.
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ipp_t *const answer = cupsDoRequest(http, request, "/jobs");
  char text[1024] = "";
  if (ipp_attribute_t *const attribute = ippFindAttribute(answer, name, IPP_TAG_ZERO))
    ippAttributeString(attribute, text, sizeof text);
  ippDelete(answer);
  httpClose(http);
  return text;
}

std::string PrivateCups::log() const {
  return contentOf(folder_.path("error_log")) + (server_ ? server_->errorsSoFar() : "");
}

void PrivateCups::writeConfiguration(const std::string &policies, const std::string &files) const {
  const std::string folder = folder_.path();
  folder_.write("cupsd.conf", "Listen " + socket() +
                                  "\n"
                                  "Browsing No\n"
                                  "DefaultAuthType None\n"
                                  "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
                                  "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n"
                                  "</Limit>\n</Policy>\n" +
                                  policies);
  // As root, cupsd requires another user for the programs that it runs.
  const std::string user = getuid() == 0 ? "User lp\nGroup lp\n" : "";
  folder_.write("cups-files.conf",
                "ServerRoot " + folder + "\nRequestRoot " + folder + "/spool\nCacheDir " + folder +
                    "/cache\nStateDir " + folder + "/state\nServerKeychain " + folder +
                    "/ssl\nAccessLog " + folder + "/access_log\nErrorLog " + folder +
                    "/error_log\nPageLog " + folder +
                    "/page_log\nFileDevice Yes\nSystemGroup root\n" + user + files);
  for (const char *name : {"spool/tmp/x", "cache/x", "state/x", "ssl/x", "ppd/x", "home/x"})
    folder_.write(name, "");
}

} // namespace imageposition::test
