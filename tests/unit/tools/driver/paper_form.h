// A form that puts things on paper.
#pragma once

#include "core/startup/program.h"

namespace ovindra::driver {

/// `frmPapers`: Export asks for a name and saves a sheet, Print saves it as C:\Enroll.xls, Application hands
/// a workbook to the spreadsheet application, Document saves c:\worddata.doc. All of them carry the error
/// tail.
FormEntry PaperForm();

}  // namespace ovindra::driver
