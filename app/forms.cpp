#include "app/forms.h"

#include "core/shell/login.h"
#include "core/shell/main_window.h"
#include "core/startup/flash.h"
#include "workflow/enrollment.h"

namespace ovindra {

FormList AllForms() {
  return {
      EntryFor<frmflash>("frmflash"),
      EntryFor<frmlogin>("frmlogin"),
      EntryFor<MDIForm1>("MDIForm1"),
      EntryFor<frmenroll>("frmenroll"),
  };
}

}  // namespace ovindra
