#import "DocumentRow.h"

#include "DocumentExaminer.hpp"
#include "DocumentNames.hpp"
#include "DocumentTexts.hpp"
#include "FileVersion.hpp"
#include "JobRequest.hpp"
#include "JobTexts.hpp"
#import "Labels.h"
#import "MnemonicControls.h"
#import "NotePanel.h"
#import "OpenPanel.h"
#include "PaperName.hpp"
#import "RunLoopWake.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <utility>

using namespace imageposition;

namespace {

/// A function, because GNU's Objective-C cannot encode the type for a method.
DocumentExaminer &examinerOf(id<DialogServices> dialog) { return [dialog session].examiner(); }

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

constexpr std::size_t kMostListed = 20;

/// A line each; the last tells how many are not listed.
std::string documentList(const std::vector<std::string> &paths) {
  const auto end = paths.begin() + static_cast<std::ptrdiff_t>(std::min(paths.size(), kMostListed));
  std::string list;
  for (auto path = paths.begin(); path != end; ++path)
    list += (list.empty() ? "" : "\n") +
            (path + 1 == end ? documentsInWords({path, paths.end()}) : documentsInWords({*path}));
  return list;
}

} // namespace

@interface DocumentRow ()
- (const std::vector<std::string> &)paths;
- (std::string)fileToExamine;
- (std::string)name;
- (std::string)remarks;
- (void)examine;
- (void)showButtons;
- (void)press:(id)sender;
- (void)open;
@end

@implementation DocumentRow

- (id)initWithDialog:(id<DialogServices>)theDialog wake:(const RunLoopWake &)wake {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  label = [makeLabel("") retain];
  openButton = [makeButton(messages::kOpen, self, @selector(press:)) retain];
  listButton = [makeButton(messages::kListDocuments, self, @selector(press:)) retain];
  examinerOf(dialog).tell(wake.signal());
  if (examinerOf(dialog).path() != [self fileToExamine])
    [self examine];
  [self showButtons];
  return self;
}

- (void)dealloc {
  examinerOf(dialog).examine(""); // nobody waits for it any more
  for (NSButton *button : {openButton, listButton}) {
    [button setTarget:nil];
    [button release];
  }
  [label release];
  [super dealloc];
}

- (DialogRow)row {
  return {messages::kDocumentRow,
          {{openButton, false, kControlGap, messages::kOpen},
           {listButton, false, kControlGap, messages::kListDocuments},
           {label, true}}};
}

- (const std::vector<std::string> &)paths {
  return [dialog session].job().documents();
}

- (std::string)fileToExamine {
  const auto &paths = [self paths];
  return paths.size() == 1 && paths.front() != "-" ? paths.front() : "";
}

- (void)examine {
  examinerOf(dialog).examine([self fileToExamine]);
}

- (void)showButtons {
  [listButton setHidden:[self paths].size() < 2];
  [openButton setHidden:[dialog session].job().isPreparing()];
}

- (void)lookAtFile {
  const bool wasGone = examinerOf(dialog).version().empty();
  if (![self isExamined] || fileVersion([self fileToExamine]) == examinerOf(dialog).version())
    return;
  [self examine];
  if (examinerOf(dialog).version().empty())
    [dialog say:documentTrouble([self paths].front())];
  else if (wasGone)
    [dialog say:""];
  [self refresh];
}

- (int)pages {
  const auto facts = examinerOf(dialog).facts();
  return facts ? facts->pages : 0;
}

- (BOOL)hasPagesOfOneSize {
  const auto facts = examinerOf(dialog).facts();
  return facts && facts->paper;
}

- (BOOL)isExamined {
  return examinerOf(dialog).isDone();
}

- (BOOL)isLandscape {
  const auto facts = examinerOf(dialog).facts();
  return facts && facts->paper && facts->paper->length < facts->paper->width;
}

- (void)refresh {
  showCut(label, [self name], NSWidth([label frame]), [self remarks]);
  if ([self paths].size() > 1)
    [label setToolTip:toString(documentList([self paths]))];
}

- (std::string)name {
  PrintJob &job = [dialog session].job();
  if (job.isPreparing())
    return messages::kDocumentOfApplication;
  if (job.documents().empty())
    return job.hasDocument() ? messages::kStandardInput : messages::kNoDocument;
  return documentsInWords(job.documents());
}

/// What is known of the document, to follow its name.
- (std::string)remarks {
  std::vector<std::string> remarks;
  const auto defect = examinerOf(dialog).defect();
  if (defect && !isRaw([dialog session].job().settings()))
    remarks.push_back(messages::defectInWords(*defect));
  if (const auto facts = examinerOf(dialog).facts()) {
    remarks.push_back(messages::pageCount(facts->pages));
    remarks.push_back(paperMismatch(*facts, [dialog session].job().printer().ppd()));
  }
  std::string text;
  for (const std::string &remark : remarks)
    if (!remark.empty())
      text += " · " + remark;
  return text;
}

- (void)take:(const std::vector<std::string> &)paths {
  for (const std::string &path : paths)
    if (const std::string trouble = documentTrouble(path); !trouble.empty()) {
      [dialog say:trouble];
      return;
    }
  [dialog session].job().setDocuments(paths);
  [self examine];
  [self showButtons];
  [dialog say:""];
  [dialog refresh];
}

/// The button is drawn as pressed until this returns.
- (void)press:(id)sender {
  pressed = sender;
  wakeModalLoop([sender window]);
}

- (void)showQuestion {
  NSButton *const button = std::exchange(pressed, nil);
  if (button == nil)
    return;
  if (button == openButton)
    [self open];
  else
    showNote([label window], messages::kDocumentsWindow, documentList([self paths]));
  [[label window] makeFirstResponder:button];
}

- (void)open {
  const auto path = askForDocument([label window], folderToOpen([self paths]));
  if (path)
    [self take:std::vector<std::string>{*path}];
}

@end
