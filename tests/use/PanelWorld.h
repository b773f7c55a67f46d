/// The environment of a panel: shipped and invented bundles, printers and values.
#ifndef IMAGEPOSITION_TESTS_USE_PANELWORLD_H
#define IMAGEPOSITION_TESTS_USE_PANELWORLD_H

#include "Choices.hpp"
#include "PanelModel.hpp"
#import "TestBundle.h"
#import "TestPpd.h"

#include <memory>

namespace imageposition::test {

/// A PPD, and what a panel reads from it.
struct Printer {
  std::unique_ptr<TestPpd> ppd;
  std::shared_ptr<PrinterFacts> facts;

  /// Marks a choice of "Duplex" or "MVBannerPagePrint", if there is such an option.
  void mark(Choices &choices);
};

std::shared_ptr<Printer> drawPrinter(Choices &choices);

/// The shipped bundle, from its resources; one for all uses.
NSBundle *shippedBundle();

/// A bundle with invented definitions and rules.
std::unique_ptr<TestBundle> drawBundle(Choices &choices);

/// Reads a bundle's definitions, rules and strings into the model, using Foundation only.
void readBundle(NSBundle *bundle, PanelModel &model);

/// Draws a value for the print settings; sets `value` to the model's form of it.
id drawValue(Choices &choices, StoredValue &value);

} // namespace imageposition::test

#endif
