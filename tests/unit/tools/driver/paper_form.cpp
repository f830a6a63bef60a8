#include "tests/unit/tools/driver/paper_form.h"

#include "base/controls/buttons.h"

namespace ovindra::driver {
namespace {

Workbook Sheet() {
  Workbook workbook;
  workbook.SetSheetName("Children बच्चे");
  workbook.SetText(1, 3, "Lanvik Eye Institute");
  workbook.SetText(6, 28, " आशा <&> ");
  return workbook;
}

class frmPapers : public Form {
 public:
  explicit frmPapers(Module1& module) : Form(module.machine, "frmPapers", "Papers") {
    Guarded(Export.click, &frmPapers::SaveAs);
    Guarded(Print.click, &frmPapers::Save);
    Guarded(Application.click, &frmPapers::ShowInApplication);
    Guarded(Letter.click, &frmPapers::SaveLetter);
  }

 private:
  void SaveAs() { machine().workbook_files.Write(Sheet(), machine().dialogs.AskSaveName()); }
  void Save() { machine().workbook_files.Write(Sheet(), "C:\\Enroll.xls"); }

  void ShowInApplication() {
    Workbook workbook = Sheet();
    workbook.Merge({1, 1, 1, 28});
    workbook.SetColumnWidth(7, 7'862);
    workbook.Protect("Tarn");
    machine().spreadsheet.StartSpreadsheet();
    machine().spreadsheet.ShowWorkbook(workbook);
  }

  void SaveLetter() {
    machine().word_processor.StartWordProcessor();
    machine().word_processor.SaveDocument({12, false, "first\r\n          A1          ASHA\r\n"},
                                          "c:\\worddata.doc");
  }

  Button Export{*this, "Export", "&Export"};
  Button Print{*this, "Print", "&Print"};
  Button Application{*this, "Application", "&Application"};
  Button Letter{*this, "Letter", "&Letter"};
};

}  // namespace

FormEntry PaperForm() {
  return EntryFor<frmPapers>("frmPapers");
}

}  // namespace ovindra::driver
