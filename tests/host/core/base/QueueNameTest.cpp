#include "QueueName.hpp"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;

TEST(QueueName, IsSplitAtTheFirstSlash) {
  const struct {
    const char *name;
    const char *printer;
    const char *instance;
  } rows[] = {{"", "", ""},
              {"office", "office", ""},
              {"office/draft", "office", "draft"},
              {"office/draft/fine", "office", "draft/fine"},
              {"office/", "office", ""},
              {"/draft", "", "draft"}};
  for (const auto &row : rows) {
    const QueueName name = QueueName::parse(row.name);
    EXPECT_EQ(name.printer, row.printer) << row.name;
    EXPECT_EQ(name.instance, row.instance) << row.name;
  }
}

TEST(QueueName, HasASlashOnlyBeforeAnInstance) {
  EXPECT_EQ((QueueName{"office", ""}.text()), "office");
  EXPECT_EQ((QueueName{"office", "draft"}.text()), "office/draft");
}

TEST(QueueName, IgnoresCaseInBothParts) {
  const QueueName name{"office", "draft"};
  EXPECT_TRUE(name == (QueueName{"OFFICE", "Draft"}));
  EXPECT_FALSE(name != (QueueName{"OFFICE", "Draft"}));
  EXPECT_TRUE(name != (QueueName{"attic", "draft"}));
  EXPECT_FALSE(name == (QueueName{"office", "fine"}));
  EXPECT_FALSE(name == (QueueName{"office", ""}));
}

} // namespace
