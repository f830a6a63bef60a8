// The pattern that all master forms follow: an add-and-look list of names. It holds the steps of the buttons
// and of the grid once; a form declares its controls, hands them over with its checks, and supplies its
// statements. Nothing here updates or deletes a row. A failing statement ends the step where it stands and
// leaves what ran before it in the database.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/form.h"
#include "base/controls/grid.h"
#include "base/controls/text_box.h"
#include "core/entry/key_filters.h"
#include "core/entry/lookups.h"
#include "core/entry/running_number.h"
#include "core/startup/module1.h"

namespace ovindra {

/// The five buttons of a master by what they do, since one form numbers them in its own way.
struct StepButtons {
  Button* add = nullptr;
  Button* save = nullptr;
  Button* cancel = nullptr;
  Button* view = nullptr;
  Button* close = nullptr;
};

/// The five buttons in the numbering that the other forms share.
struct MasterButtons {
  explicit MasterButtons(Form& owner) : form(owner) {}

  StepButtons ByStep() { return {&Command1, &Command3, &Command2, &Command4, &Command5}; }

  Form& form;
  Button Command1{form, "Command1", "&Add"};
  Button Command3{form, "Command3", "&Save", Disabled};
  Button Command2{form, "Command2", "Ca&ncel", Disabled};
  Button Command4{form, "Command4", "&View"};
  Button Command5{form, "Command5", "&Close"};
};

class MasterForm : public Form {
 protected:
  /// The entry controls that Add enables, and those that each way out of an entry disables.
  struct Entry {
    std::vector<Control*> add;
    std::vector<Control*> cancel;
    std::vector<Control*> view;
    std::vector<Control*> row;

    /// Every way out disables what Add has enabled.
    static Entry Alike(const std::vector<Control*>& controls) {
      return {controls, controls, controls, controls};
    }
  };

  /// A field that must not be empty at a save, and what is said when it is.
  struct Check {
    TextControl* field;
    std::string_view message;
  };

  /// Which steps carry the error tail.
  enum class Tail { kSave, kEveryStep };

  /// The controls that every master has.
  struct Controls {
    TextBox* code = nullptr;
    TextBox* name = nullptr;
    Grid* list = nullptr;
    StepButtons buttons{};
  };

  /// What makes one master differ.
  struct Master {
    /// Shows the third column of the row shown; none in a list of two columns.
    ComboBox* parent = nullptr;
    /// What EmptyBox clears besides the code and the name.
    std::vector<TextBox*> more_boxes{};
    std::vector<ComboBox*> combos{};
    Entry entry{};
    /// What View lists, and the fields of its columns.
    Fragment rows = "";
    std::vector<std::string_view> fields{};
    /// Finds the records of a name, which stands behind it; empty where a name may repeat.
    Fragment same_name = "";
    /// Where Add puts the focus; the name where nothing else is told.
    Control* first = nullptr;
    std::vector<Check> checks{};
    /// The counter that the code comes from, advanced once the record stands; none where the database numbers
    /// the rows.
    const RunningNumber* counter = nullptr;
    Tail tail = Tail::kSave;
  };

  MasterForm(Module1& module, std::string_view name, std::string_view caption);

  /// Takes the form's table and wires the five buttons and the grid. Called once, when all controls stand.
  void Use(const Controls& controls, Master master);

  /// The form's load step, where it has one.
  void OnLoad();

  void EmptyBox();
  void ShowRow();
  /// What a shown row ends with: the entry is over.
  void EndShownRow();

  /// What leaving the name does to it, where it does something.
  void TrimName();
  void TrimNameToCapitals();

  /// Fills the lists that an entry is picked from.
  virtual void FillLists() {}
  /// Finds the records that an entry would repeat.
  virtual SqlText SameRecords() { return sql(master_.same_name, quoted(*controls_.name)); }
  /// The statement that stores the entry, built before the question is asked.
  virtual SqlText Insert() = 0;

  Connection& database() { return module_.ScreeningConnection; }

  /// The code of the name in the control, or the given text where no row has the name.
  std::string CodeOr(std::string_view otherwise, const Lookup& lookup, const TextControl& name);

  /// A cell of the grid's current row, trimmed; valid until the grid changes.
  std::string_view RowText(int column) const;

 private:
  void Add();
  void Save();
  void ShowList();
  void View();
  void Cancel();
  bool Validation();
  bool CheckPairacy();
  void Store(const SqlText& insert);
  void EndEntry();
  /// Add enabled, Save and Cancel not.
  void OfferAdd();

  Module1& module_;
  Controls controls_;
  Master master_;
};

/// What stands in a statement for the code of a name that no row has, where the look-up says so itself.
inline constexpr std::string_view kFalse = "False";

/// The text becomes the only entry of the list, and its choice.
void ShowOnly(ComboBox& list, std::string_view text);

}  // namespace ovindra
