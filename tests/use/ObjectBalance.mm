#import "ObjectBalance.h"

#import "LiveObjects.h"

namespace imageposition::test {

ObjectBalance::ObjectBalance() : before_(LiveObjects::counts()) {}

std::string ObjectBalance::difference() const {
  std::map<std::string, int> more = LiveObjects::counts();
  for (const auto &[name, count] : before_)
    more[name] -= count;

  // GNUstep never releases the document of an interface file, its root, and the list that holds the
  // root.
  const int documents = more["NSXMLDocument"];
  for (const char *name : {"NSXMLDocument", "NSXMLDocumentInternal", "NSXMLElement",
                           "NSXMLElementInternal", "GSMutableArray"})
    more[name] -= documents;

  std::string text;
  for (const auto &[name, count] : more)
    text += count == 0 ? "" : name + (count > 0 ? " +" : " ") + std::to_string(count) + "\n";
  return text;
}

} // namespace imageposition::test
