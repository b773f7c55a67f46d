/// What the dialog's window remembers between events.
#ifndef IMAGEPOSITION_HOST_DIALOGSTATE_H
#define IMAGEPOSITION_HOST_DIALOGSTATE_H

#import "ControlLock.h"
#include "Destinations.hpp"
#include "JobSubmission.hpp"
#include "OptionConflicts.hpp"
#include "Presets.hpp"

#import <AppKit/AppKit.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

@class DialogController;

namespace imageposition {

/// Redraws the picture whenever the job's settings change, in the middle of an event too.
struct PictureRedrawing final : PrintSettingsStore::Observer {
  void settingsChanged() override;
  DialogController *controller = nil; ///< Not owned.
};

struct DialogState {
  PictureRedrawing redrawing;
  Destinations destinations;
  std::vector<std::string> printers; ///< Full names, as the pop-up has them; then the ticket.
  NSTimer *timer = nil;              ///< The run loop's.
  int ticks = 0;                     ///< Of the timer.

  std::string twoSidedKeyword;
  std::vector<std::string> twoSidedChoices; ///< As the pop-up has them; so below.
  std::vector<std::string> mediaChoices;
  std::string chosenLast; ///< The option that a person changed last.
  std::optional<ConflictProposal> proposal;
  std::string optionToEnter; ///< The option that the person is about to enter a value for.

  std::vector<PresetName> presets;
  std::string preset; ///< The chosen one's name; may be empty.

  std::unique_ptr<JobSubmission> submission;
  std::unique_ptr<ControlLock> lock; ///< While there is a submission.
  NSView *focusBefore = nil;         ///< What had the focus when Print was pressed; the window's.
  std::string note;                  ///< Why CUPS does not print at once what it took.
  bool isAskingForPassword = false;
};

} // namespace imageposition

#endif
