#import "PropertyListForm.h"

#import "Text.h"

#include <regex>
#include <set>

namespace imageposition::test {
namespace {

constexpr const char kBeginning[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                    "<plist version=\"1.0\">\n";

using Nodes = std::vector<NSXMLNode *>;

const std::set<std::string> kLeaves = {"string", "integer", "real", "date", "data", "key"};
const std::set<std::string> kMarks = {"true", "false"};

/// Collects the errors in one document.
class Form {
public:
  /// Checks a value: the root's, an entry's or an array's.
  void lookAtValue(NSXMLElement *element) {
    const std::string name = cxxString([element name]);
    if ([[element attributes] count] > 0)
      add("<" + name + "> has an attribute");
    const Nodes children = elementsOf(element, kLeaves.count(name) > 0);
    if (name == "dict")
      lookAtDictionary(children);
    else if (name == "array")
      lookAtValues(children);
    else if (kLeaves.count(name) + kMarks.count(name) == 0 || name == "key")
      add("<" + name + "> is not a value");
    else if (!children.empty())
      add("<" + name + "> has elements in it");
  }

  void lookAtValues(const Nodes &values) {
    for (NSXMLNode *value : values)
      lookAtValue(static_cast<NSXMLElement *>(value));
  }

  Nodes elementsOf(NSXMLElement *element, bool mayHaveText) {
    Nodes elements;
    NSArray *children = [element children];
    for (NSUInteger i = 0; i < [children count]; i++) {
      NSXMLNode *child = [children objectAtIndex:i];
      if ([child kind] == NSXMLElementKind)
        elements.push_back(child);
      else if ([child kind] == NSXMLTextKind && !mayHaveText && !isBlank([child stringValue]))
        add("there is text in <" + cxxString([element name]) + ">: " + cxxString(child));
    }
    return elements;
  }

  void add(const std::string &fault) { faults_.push_back(fault); }
  std::vector<std::string> faults() const { return faults_; }

private:
  static bool isBlank(NSString *text) {
    return [[text stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceAndNewlineCharacterSet]]
               length] == 0;
  }

  void lookAtDictionary(const Nodes &children) {
    std::set<std::string> keys;
    for (std::size_t i = 0; i < children.size(); i += 2) {
      const std::string key = cxxString([children[i] stringValue]);
      if (cxxString([children[i] name]) != "key")
        add("a dictionary has a value without a key: " + key);
      else if (!keys.insert(key).second)
        add("the key \"" + key + "\" is duplicated in one dictionary");
      if (i + 1 == children.size())
        add("the key \"" + key + "\" has no value");
      else
        lookAtValue(static_cast<NSXMLElement *>(children[i + 1]));
    }
  }

  std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> propertyListFaults(const std::string &bytes) {
  if (bytes.compare(0, sizeof kBeginning - 1, kBeginning) != 0)
    return {"it does not begin like a property list"};
  static const std::regex kOtherEntity("&(?!(?:amp|lt|gt|quot|apos);)[^;]*;?");
  std::smatch entity; // GNUstep's XML documents raise at an entity
  if (std::regex_search(bytes, entity, kOtherEntity))
    return {"it declares an entity: " + entity.str()};
  NSData *data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
  NSXMLDocument *document = [[[NSXMLDocument alloc] initWithData:data options:0
                                                           error:NULL] autorelease];
  if (document == nil)
    return {"it is not well-formed"};
  Form form;
  const auto values = form.elementsOf([document rootElement], false);
  if (values.size() != 1)
    form.add("a property list has one root value");
  form.lookAtValues(values);
  // GNUstep's reader raises at some of these errors.
  if (form.faults().empty() &&
      [NSPropertyListSerialization propertyListWithData:data
                                                options:NSPropertyListImmutable
                                                 format:NULL
                                                  error:NULL] == nil)
    form.add("Foundation cannot read it");
  return form.faults();
}

} // namespace imageposition::test
