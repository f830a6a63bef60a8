#include "app/forms.h"

#include "core/shell/login.h"
#include "core/shell/main_window.h"
#include "core/startup/flash.h"
#include "masters/centers.h"
#include "masters/diagnosis.h"
#include "masters/enrolling_places.h"
#include "masters/geography.h"
#include "masters/trained_person.h"
#include "masters/users.h"
#include "reports/child_lists.h"
#include "reports/consolidation.h"
#include "reports/defected_children.h"
#include "reports/enroll_report.h"
#include "reports/individual_children.h"
#include "reports/missed_children.h"
#include "reports/referred_children.h"
#include "reports/sankul_report.h"
#include "reports/spectacle_power.h"
#include "reports/spectacle_report.h"
#include "reports/trained_persons.h"
#include "reports/turnup_report.h"
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
      EntryFor<frmcountrymaster>("frmcountrymaster"),
      EntryFor<frmstatemaster>("frmstatemaster"),
      EntryFor<frmdistrictmaster>("frmdistrictmaster"),
      EntryFor<FRMBLOCKMASTER>("FRMBLOCKMASTER"),
      EntryFor<frmscreeningcenter>("frmscreeningcenter"),
      EntryFor<frmsankulmaster>("frmsankulmaster"),
      EntryFor<frmscmaster>("frmscmaster"),
      EntryFor<frmvcmaster>("frmvcmaster"),
      EntryFor<frmawmaster>("frmawmaster"),
      EntryFor<frmPerson>("frmPerson"),
      EntryFor<frmdiagmaster>("frmdiagmaster"),
      EntryFor<frmuser>("frmuser"),
      EntryFor<frmenrollrpt>("frmenrollrpt"),
      EntryFor<frmsankulwiserpt>("frmsankulwiserpt"),
      EntryFor<frmdefected>("frmdefected"),
      EntryFor<Form3>("Form3"),
      EntryFor<frmenrolllist>("frmenrolllist"),
      EntryFor<frmscreenedlist>("frmscreenedlist"),
      EntryFor<frmreferallist>("frmreferallist"),
      EntryFor<frmspectacle>("frmspectacle"),
      EntryFor<frmturnup>("frmturnup"),
      EntryFor<frmspectaclepwr>("frmspectaclepwr"),
      EntryFor<frmtrainedPerlist>("frmtrainedPerlist"),
      EntryFor<Form1>("Form1"),
  };
}

}  // namespace ovindra
