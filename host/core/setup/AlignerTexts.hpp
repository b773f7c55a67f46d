/// Messages about measuring with alignment sheets.
#ifndef IMAGEPOSITION_CORE_SETUP_ALIGNERTEXTS_HPP
#define IMAGEPOSITION_CORE_SETUP_ALIGNERTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Why no sheets are printed.
std::string paperTooSmall(const std::string &paper);
extern const Text kChooseLargerPaper; ///< On the command line.
std::string sheetProgramMissing(const std::string &program);
extern const Text kSheetsNotDrawn;
std::string sheetsNotKept(const std::string &reason);

// What the sheets show. Lengths include their unit.
/// `directions` is as "1.7 mm to the right and 0.3 mm up".
std::string displacement(const std::string &directions);
extern const Text kNotDisplaced;
std::string spread(int sheets, const std::string &right, const std::string &down);
extern const Text kOneSheetOnly;
std::string newOffsets(const std::string &offsets);
/// `angle` is in degrees, `stretch` in percent; neither has a sign.
std::string cornersApart(const std::string &angle, const std::string &stretch, bool isSmaller,
                         const std::string &left);
/// `sheet` counts from 1.
std::string readAgain(int sheet);
std::string outOfRange(const std::string &most);

// The steps. Settings are paper, tray and turning, offsets those of both sides.
std::string printsSheets(int sheets, const std::string &printer);
std::string sheetSettings(const std::string &settings);
std::string presentOffsets(const std::string &offsets);
std::string printedBefore(const std::string &offsets);
extern const Text kHowToRead;
extern const Text kHowToReadCreases;
std::string alignmentStored(const std::string &settings);

} // namespace imageposition::messages

#endif
