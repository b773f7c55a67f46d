/// What alignment sheets say, and messages about measuring.
#ifndef IMAGEPOSITION_CORE_ALIGNMENT_ALIGNMENTTEXTS_HPP
#define IMAGEPOSITION_CORE_ALIGNMENT_ALIGNMENTTEXTS_HPP

#include "Measurement.hpp"
#include "Text.hpp"

#include <array>
#include <string>

namespace imageposition::messages {

// The file of measurements.
std::string alignmentsUnreadable(const std::string &path, const std::string &reason);
std::string alignmentsUnwritable(const std::string &path, const std::string &reason);
extern const Text kNotAlignments; ///< A reason.
extern const Text kNoHomeForAlignments;

// Parts of sentences.
std::string turningInWords(Turning turning);
/// "right 0.5 mm, down -1 mm"
std::string offsetInWords(const Offset &offset);
/// "front: right 0 mm, down 0 mm; back: right 0.5 mm, down -1 mm"
std::string offsetsInWords(const SideOffsets &offsets);
/// A line of the list of measurements, after the queue's name.
std::string alignment(const std::string &key, const std::string &offsets, const std::string &date);
/// Where a job's offsets come from. `key` is as `keyInWords` returns it.
std::string measuredOn(const std::string &date, const std::string &key, bool isOfOtherTurning);

// What is wrong with a reader's entries.
std::string numberNotOnScale(TenthMillimetre lowest, TenthMillimetre highest);
extern const Text kSheetIncomplete;
extern const Text kCreaseIncomplete;
extern const Text kNothingRead;

// On a sheet.
extern const Text kSheetTitle;
extern const Text kFrontOfSheet;
extern const Text kBackOfSheet;
std::string sheetNumber(int number, int count);
std::string sheetPrinter(const std::string &name);
std::string sheetPaper(const std::string &paper);
std::string sheetTray(const std::string &tray);
std::string sheetTurning(Turning turning);
std::string sheetDate(const std::string &date);
std::string sheetOffsets(const Offset &offset);
std::string sheetExample();
extern const std::array<Text, 2> kFrontAdvice;
extern const std::array<Text, 4> kBackAdvice;

} // namespace imageposition::messages

#endif
