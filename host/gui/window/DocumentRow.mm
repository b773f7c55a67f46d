#import "DocumentRow.h"

#include "DocumentNames.hpp"
#include "JobTexts.hpp"
#import "Labels.h"
#import "MnemonicControls.h"
#import "OpenPanel.h"
#include "WindowTexts.hpp"

#include <cstdlib>
#include <filesystem>
#include <utility>

using namespace imageposition;

namespace {

/// The folder of the document, or else the current one; for a program that a desktop has started in
/// the root folder, the user's home.
std::string folderToOpen(const std::vector<std::string> &documents) {
  std::error_code ignored;
  const auto current = std::filesystem::current_path(ignored);
  if (!documents.empty() && documents.front() != "-")
    return (current / documents.front()).lexically_normal().parent_path().string();
  const char *const home = std::getenv("HOME");
  return current == "/" && home != nullptr ? home : current.string();
}

} // namespace

@interface DocumentRow ()
- (std::string)text;
- (void)open:(id)sender;
@end

@implementation DocumentRow

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  label = [makeLabel("") retain];
  openButton = [makeButton(messages::kOpen, self, @selector(open:)) retain];
  return self;
}

- (void)dealloc {
  [openButton setTarget:nil];
  [openButton release];
  [label release];
  [super dealloc];
}

- (DialogRow)row {
  return {messages::kDocumentRow,
          {{openButton, false, kControlGap, messages::kOpen}, {label, true}}};
}

- (void)refresh {
  showCut(label, [self text], NSWidth([label frame]));
}

- (std::string)text {
  PrintJob &job = [dialog session].job();
  if (!job.documents().empty())
    return documentsInWords(job.documents());
  return job.hasDocument() ? messages::kStandardInput : messages::kNoDocument;
}

- (void)take:(const std::vector<std::string> &)paths {
  for (const std::string &path : paths)
    if (const std::string trouble = documentTrouble(path); !trouble.empty()) {
      [dialog say:trouble];
      return;
    }
  [dialog session].job().setDocuments(paths);
  [dialog say:""];
  [dialog refresh];
}

/// The button is drawn as pressed until this returns.
- (void)open:(id)sender {
  isAskedFor = YES;
  wakeModalLoop([sender window]);
}

- (void)askForDocument {
  if (!std::exchange(isAskedFor, NO))
    return;
  const std::string folder = folderToOpen([dialog session].job().documents());
  const auto path = imageposition::askForDocument([label window], folder);
  if (path)
    [self take:std::vector<std::string>{*path}];
  [[label window] makeFirstResponder:openButton];
}

@end
