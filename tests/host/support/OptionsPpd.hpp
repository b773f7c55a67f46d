/// A printer description with an option of every kind.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_OPTIONSPPD_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_OPTIONSPPD_HPP

#include "PrinterDescription.hpp"
#include "TemporaryFolder.hpp"

#include <string>

namespace imageposition::test {

inline const std::string kOptionsPpd = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "OPTIONS.PPD"
*Manufacturer: "Sample"
*Product: "(Options)"
*PSVersion: "(3010.000) 0"
*ModelName: "Options"
*ShortNickName: "Options"
*NickName: "Sample Options"
*cupsLanguages: "de"
*ColorDevice: True
*DefaultColorSpace: RGB
*UIConstraints: *Duplex *MediaType Transparency
*UIConstraints: *MediaType Transparency *Duplex
*UIConstraints: *Stapler True *MediaType Labels
*UIConstraints: *OptionalTray False *InputSlot Tray2
*UIConstraints: *Unknown *MediaType Plain
*cupsUIConstraints Three: "*Stapler True *Fold *InputSlot Tray2"
*cupsUIResolver Three: "*Fold None"
*VariablePaperSize: True
*MaxMediaWidth: "700"
*MaxMediaHeight: "1000"
*HWMargins: 10 10 10 10
*CustomPageSize True: "pop"
*ParamCustomPageSize Width: 1 points 200 700
*ParamCustomPageSize Height: 2 points 300 1000
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 3
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*PageSize A5/A5: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: ""
*PageRegion A5/A5: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "12 12 583 830"
*ImageableArea A5/A5: "12 12 407 583"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension A5/A5: "419 595"
*OpenGroup: Paper/Paper and Trays
*OpenUI *MediaType/Kind of Paper: PickOne
*DefaultMediaType: Plain
*MediaType Plain/Plain Paper: ""
*MediaType Transparency/Foil: ""
*MediaType Labels: ""
*CloseUI: *MediaType
*OpenUI *InputSlot/Tray: PickOne
*DefaultInputSlot: Tray1
*InputSlot Tray1/First Tray: ""
*InputSlot Tray2/Second Tray: ""
*CloseUI: *InputSlot
*CloseGroup: Paper
*OpenGroup: Finish/Finishing
*OpenUI *Duplex/Two-Sided: PickOne
*DefaultDuplex: None
*Duplex None/Off: ""
*Duplex DuplexNoTumble/Long Edge: ""
*Duplex DuplexTumble/Short Edge: ""
*CloseUI: *Duplex
*OpenUI *Stapler/Staple: Boolean
*DefaultStapler: False
*Stapler True/Yes: ""
*Stapler False/No: ""
*CloseUI: *Stapler
*OpenUI *Fold/Fold: PickOne
*DefaultFold: None
*Fold None/Do not fold: ""
*Fold Z/Z-fold: ""
*CloseUI: *Fold
*OpenUI *LeftRightMargin/Shift: PickOne
*DefaultLeftRightMargin: 0
*LeftRightMargin 0/None: ""
*CloseUI: *LeftRightMargin
*CustomLeftRightMargin True: "pop"
*ParamCustomLeftRightMargin Offset/Offset: 1 int -50 50
*OpenUI *Watermark/Watermark: PickOne
*DefaultWatermark: None
*Watermark None/None: ""
*Watermark Draft/Draft: ""
*CloseUI: *Watermark
*CustomWatermark True: "pop"
*ParamCustomWatermark Words/Words: 1 string 1 20
*CloseGroup: Finish
*OpenGroup: InstallableOptions/What Is Installed
*OpenUI *OptionalTray/Second Tray: Boolean
*DefaultOptionalTray: True
*OptionalTray True/Installed: ""
*OptionalTray False/Not Installed: ""
*CloseUI: *OptionalTray
*CloseGroup: InstallableOptions
*de.Translation MediaType/Papiersorte: ""
*de.MediaType Plain/Normalpapier: ""
)ppd";

/// The printer with these options. Deletes the file after reading it.
inline PrinterDescription optionsPrinter(const std::string &text = kOptionsPpd) {
  const TemporaryFolder folder;
  return PrinterDescription::fromFile(folder.write("options.ppd", text));
}

} // namespace imageposition::test

#endif
