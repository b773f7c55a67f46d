/// What a panel is given: bundles, printers and foreign values, shipped ones and made-up ones.
#ifndef IMAGEPOSITION_TESTS_USE_PANELWORLD_H
#define IMAGEPOSITION_TESTS_USE_PANELWORLD_H

#include "Choices.hpp"
#include "PanelModel.hpp"
#import "TestBundle.h"
#import "TestPpd.h"

#include <memory>

namespace imageposition::test {

/// A printer description, and what a panel may find in it.
struct Printer {
  std::unique_ptr<TestPpd> ppd;
  std::shared_ptr<PrinterFacts> facts;

  /// Marks a choice of "Duplex" or "MVBannerPagePrint", if there is such an option.
  void mark(Choices &choices);
};

std::shared_ptr<Printer> drawPrinter(Choices &choices);

/// The bundle as it is shipped, from the folder of its resources: one for all uses.
NSBundle *shippedBundle();

/// A bundle with made-up definitions and rules.
std::unique_ptr<TestBundle> drawBundle(Choices &choices);

/// Reads a bundle's definitions, rules and texts into the model, with the platform's operations
/// alone.
void readBundle(NSBundle *bundle, PanelModel &model);

/// A value for the print settings, the platform's and the model's.
id drawValue(Choices &choices, StoredValue &value);

} // namespace imageposition::test

#endif
