#import "OpenPanel.h"

#include "DocumentStream.hpp"
#include "FileContent.hpp"
#include "Folder.hpp"
#import "ItemList.h"
#import "KeyScrollView.h"
#import "MnemonicControls.h"
#import "ModalPanel.h"
#import "NotePanel.h"
#include "QuestionTexts.hpp"
#import "TextBridge.h"
#include "Utf.hpp"
#import "WindowPlacement.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

using namespace imageposition;

namespace {

constexpr CGFloat kWidth = 520;
constexpr CGFloat kBorder = 1;
constexpr CGFloat kListHeight = 12 * kListRowHeight + 2 * kBorder;
constexpr CGFloat kSmallestListHeight = 4 * kListRowHeight + 2 * kBorder;
constexpr CGFloat kGap = 8;
constexpr const char *kUp = ".."; // the first entry, except in the root folder

std::string inFolder(const std::string &folder, const std::string &name) {
  return (std::filesystem::path(folder) / name).string();
}

std::string parentOf(const std::string &folder) {
  return std::filesystem::path(folder).parent_path().string();
}

struct Place {
  std::string folder;
  std::vector<FolderEntry> entries;
};

/// Throws a `FileTrouble`.
Place placeAt(const std::string &folder) {
  Place place{folder, contentOfFolder(folder)};
  if (parentOf(folder) != folder)
    place.entries.insert(place.entries.begin(), {kUp, true});
  return place;
}

NSArray *titlesOf(const std::vector<FolderEntry> &entries) {
  NSMutableArray *const titles = [NSMutableArray array];
  for (const FolderEntry &entry : entries)
    [titles addObject:toString(wellFormedUtf8(entry.name) + (entry.isFolder ? "/" : ""))];
  return titles;
}

} // namespace

/// The list of the current folder, and the field with a path.
@interface DocumentChooser : NSObject <ItemListOwner> {
@public
  KeyWindow *window; ///< Not owned; so below.
  NSTextField *field;
  KeyScrollView *scroll;
  ItemList *list;
  Place *place;       ///< Owned; so below.
  std::string *shown; ///< What the field had before the user edited it.
  std::string *chosen;
}
/// Lists the folder, and highlights the entry of that name, or the first.
- (BOOL)enter:(const std::string &)folder highlight:(const std::string &)name;
- (BOOL)enterNearest:(const std::string &)folder;
- (void)leave;
/// The path in the field, or of the entry that the field shows.
- (std::string)path;
/// Enters a folder and returns false; returns true for a document.
- (BOOL)take:(const std::string &)path;
@end

@implementation DocumentChooser

- (id)init {
  if ((self = [super init]) != nil) {
    place = new Place;
    shown = new std::string;
    chosen = new std::string;
  }
  return self;
}

- (void)dealloc {
  delete place;
  delete shown;
  delete chosen;
  [super dealloc];
}

- (BOOL)enter:(const std::string &)folder highlight:(const std::string &)name {
  try {
    *place = placeAt(folder);
  } catch (const FileTrouble &) {
    return NO;
  }
  const BOOL hasFocus = list != nil && [window firstResponder] == list;
  list = [[[ItemList alloc] initWithTitles:titlesOf(place->entries)
                                      font:[NSFont systemFontOfSize:0]
                                     owner:self] autorelease];
  NSView *const after = [[scroll documentView] nextKeyView]; // of the list that goes
  [scroll showRows:list];
  [list setFrameSize:NSMakeSize([scroll contentSize].width, NSHeight([list frame]))];
  [field setNextKeyView:list];
  [list setNextKeyView:after];
  if (hasFocus)
    [window makeFirstResponder:list];
  const auto &entries = place->entries;
  const auto named = std::find_if(entries.begin(), entries.end(),
                                  [&](const FolderEntry &entry) { return entry.name == name; });
  const NSInteger first = entries.size() > 1 && entries.front().name == kUp ? 1 : 0;
  const NSInteger at = named == entries.end() ? first : named - entries.begin();
  [list show:entries.empty() ? -1 : at];
  [self itemList:list highlighted:[list highlightedItemIndex]];
  return YES;
}

- (BOOL)enterNearest:(const std::string &)folder {
  for (std::string at = folder;; at = parentOf(at))
    if ([self enter:at highlight:""] || parentOf(at) == at)
      return !place->folder.empty();
}

- (void)leave {
  const std::string parent = parentOf(place->folder);
  if (parent != place->folder)
    [self enter:parent highlight:std::filesystem::path(place->folder).filename().string()];
}

- (void)itemList:(ItemList *)theList highlighted:(NSInteger)index {
  (void)theList;
  const std::string name = index < 0 ? "" : place->entries.at(static_cast<std::size_t>(index)).name;
  *shown = wellFormedUtf8(inFolder(place->folder, name == kUp ? "" : name));
  [field setStringValue:toString(*shown)];
}

- (void)itemListChosen:(ItemList *)theList {
  (void)theList;
  [[window delegate] confirm];
}

- (void)itemListLeft:(ItemList *)theList {
  (void)theList;
  [self leave];
}

- (std::string)path {
  const std::string typed = toText([field stringValue]);
  const NSInteger index = [list highlightedItemIndex];
  if (typed == *shown && index >= 0)
    return inFolder(place->folder, place->entries.at(static_cast<std::size_t>(index)).name);
  const char *const home = std::getenv("HOME");
  return pathFrom(place->folder, typed, home != nullptr ? home : "");
}

- (BOOL)take:(const std::string &)path {
  std::error_code ignored;
  if (path.empty())
    return NO;
  if (std::filesystem::path(path).filename() == kUp) {
    [self leave];
    return NO;
  }
  if (!std::filesystem::is_directory(path, ignored)) {
    *chosen = path;
    const std::string trouble = documentTrouble(path);
    if (!trouble.empty())
      showNote(window, messages::kOpenButton, trouble);
    return trouble.empty();
  }
  [window makeFirstResponder:list]; // ends editing, before the field shows another path
  if (![self enter:path highlight:""])
    showNote(window, messages::kOpenButton, documentTrouble(path));
  return NO;
}

@end

namespace imageposition {

std::string documentTrouble(const std::string &path) {
  try {
    documentSize(path);
    return {};
  } catch (const std::system_error &error) {
    return messages::documentNotOpened(path, FileTrouble(error.code().value()).what());
  }
}

std::optional<std::string> askForDocument(NSWindow *parent, const std::string &folder) {
  NSTextField *const title = makeTitle(messages::kFileRow);
  NSTextField *const field = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  const CGFloat fieldHeight = [[field cell] cellSize].height;
  const CGFloat above = NSHeight([title frame]) + fieldHeight + 2 * kGap;
  const CGFloat buttons = kButtonHeight + 3 * kPanelMargin;
  const CGFloat list =
      std::clamp(roomOnScreen().height - above - buttons, kSmallestListHeight, kListHeight);
  ModalPanel panel(messages::kOpenWindow, kWidth, list + above, messages::kOpenButton,
                   messages::kCancel);
  const CGFloat width = kWidth - 2 * kPanelMargin;
  KeyScrollView *const scroll = [[[KeyScrollView alloc]
      initWithFrame:NSMakeRect(kPanelMargin, panel.bottom(), width, list)] autorelease];
  [scroll setBorderType:NSLineBorder];
  [field setFrame:NSMakeRect(kPanelMargin, panel.bottom() + list + kGap, width, fieldHeight)];
  [title setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom() + list + fieldHeight + 2 * kGap)];
  for (NSView *view : std::initializer_list<NSView *>{title, field, scroll})
    panel.add(view);
  [panel.window() reach:field by:messages::kFileRow];
  DocumentChooser *const chooser = [[[DocumentChooser alloc] init] autorelease];
  chooser->window = panel.window();
  chooser->field = field;
  chooser->scroll = scroll;
  [chooser enterNearest:folder];
  const bool isConfirmed = panel.run(parent, {field, chooser->list}, chooser->list,
                                     [&] { return bool([chooser take:[chooser path]]); });
  return isConfirmed ? std::optional(*chooser->chosen) : std::nullopt;
}

} // namespace imageposition
