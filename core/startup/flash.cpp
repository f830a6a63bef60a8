#include "core/startup/flash.h"

namespace ovindra {
namespace {

constexpr Twips kCreditLineStart = 225;
constexpr Twips kCreditLineStep = 100;
constexpr Twips kCreditLineEnd = 5380;

/// The first line of a text file beside the program stands in for the caption, where there is such a file.
void TakeFirstLine(const ProgramFolder& folder, std::string_view file, Label& label) {
  if (const auto line = folder.FirstLine(file)) label.SetCaption(*line);
}

}  // namespace

frmflash::frmflash(Module1& module) : Form(module.machine, "frmflash", "Ovindra Desk"), module_(module) {
  Label1.SetForeColour(kWhite);
  Plain(load, &frmflash::OnLoad);
  Plain(Timer1.timer, &frmflash::MoveCreditLine);
  Plain(Timer2.timer, &frmflash::FlipTitleColour);
  Plain(unload, &frmflash::OnUnload);
}

void frmflash::OnLoad() {
  machine().pointer.Set(PointerShape::kHourglass);
  Label2.SetLeft(kCreditLineStart);
  TakeFirstLine(machine().program_folder, "\\version.txt", Label8);
  TakeFirstLine(machine().program_folder, "\\company.txt", Label3);
}

void frmflash::MoveCreditLine() {
  Label2.SetLeft(Label2.left() + kCreditLineStep);
  if (Label2.left() >= kCreditLineEnd) Close();
}

void frmflash::FlipTitleColour() {
  Label1.SetForeColour(Label1.fore_colour() == kWhite ? kRed : kWhite);
}

void frmflash::OnUnload() {
  module_.OpenConnections();
  module_.forms.Show("frmlogin");
  machine().pointer.Set(PointerShape::kDefault);
}

}  // namespace ovindra
