#include "app/forms.h"

#include "core/shell/login.h"
#include "core/shell/main_window.h"
#include "core/startup/flash.h"
#include "reports/consolidation.h"
#include "workflow/attended_child.h"
#include "workflow/enrollment.h"
#include "workflow/examination.h"
#include "workflow/os_camp.h"
#include "workflow/school_register.h"
#include "workflow/screening.h"
#include "workflow/strength_entry.h"

namespace ovindra {

FormList AllForms() {
  return {
      EntryFor<frmflash>("frmflash"),
      EntryFor<frmlogin>("frmlogin"),
      EntryFor<MDIForm1>("MDIForm1"),
      EntryFor<frmenroll>("frmenroll"),
      EntryFor<frmscreened>("frmscreened"),
      EntryFor<frmchildrecord>("frmchildrecord"),
      EntryFor<Form2>("Form2"),
      EntryFor<frmattend>("frmattend"),
      EntryFor<frmschool_screening>("frmschool_screening"),
      EntryFor<frmNew>("frmNew"),
      EntryFor<frmconsolidation>("frmconsolidation"),
  };
}

}  // namespace ovindra
