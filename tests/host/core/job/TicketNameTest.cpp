#include "TicketName.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::suggestedTicket;
using imageposition::ticketPath;

TEST(TicketName, IsThatOfTheFirstDocument) {
  EXPECT_EQ(suggestedTicket({"/home/ann/report.pdf", "b.pdf"}), "report.json");
  EXPECT_EQ(suggestedTicket({"two.parts.pdf"}), "two.parts.json");
  EXPECT_EQ(suggestedTicket({"-"}), "job.json");
  EXPECT_EQ(suggestedTicket({}), "job.json");
}

TEST(TicketName, IsCompletedAsTheUserMeansIt) {
  const char *const rows[][2] = {{"job.json", "job.json"},
                                 {"  out/job  ", "out/job.json"},
                                 {"~/job", "/home/ann/job.json"},
                                 {"~job", "~job.json"},
                                 {"job.txt", "job.txt"},
                                 {"/var/", "/var/"},
                                 {"   ", ""},
                                 {"", ""}};
  for (const auto &[typed, path] : rows)
    EXPECT_EQ(ticketPath(typed, "/home/ann"), path) << typed;
}

} // namespace
