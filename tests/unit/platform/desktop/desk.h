// A small program on the desktop for the binder's tests: one form with a control of every kind that has rules
// of its own, message boxes that are looked at instead of shown, and hands for keys and mouse. Offscreen.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/controls/shown.h"
#include "base/controls/text_box.h"
#include "core/entry/key_filters.h"
#include "core/startup/program.h"
#include "platform/desktop/desktop.h"

namespace ovindra::desktop {

/// Makes the QApplication at the first call.
void UseOffscreenApplication();

/// Papers that go nowhere.
class NoOffice : private WorkbookFiles, private SpreadsheetApplication, private WordProcessor {
 public:
  OfficeServices services() { return {*this, *this, *this}; }

 private:
  void Write(const Workbook&, std::string_view) override {}
  void StartSpreadsheet() override {}
  void ShowWorkbook(const Workbook&) override {}
  void CloseWorkbooks() override {}
  void StartWordProcessor() override {}
  void SaveDocument(const Document&, std::string_view) override {}
};

class frmdesk : public Form {
 public:
  explicit frmdesk(Module1& module);

  TextBox Text1{*this, "Text1", "Name", MaxLength{6}, Capitals};
  Frame Frame1{*this, "Frame1", "Details"};
  TextBox Text2{Frame1, "Text2", "Age", NumbersOnly};
  ComboBox Combo1{Frame1, "Combo1", "School", DropDownList};
  ComboBox Combo2{Frame1, "Combo2", "Power", DropDownCombo};
  OptionButton Option1{Frame1, "Option1", "&Male"};
  OptionButton Option2{Frame1, "Option2", "&Female"};
  DatePicker DTPicker1{*this, "DTPicker1", "Date"};
  Button Command1{*this, "Command1", "&Save"};
  MonthView MonthView1{*this, "MonthView1", Hidden};
  ListBox List1{*this, "List1", ""};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"Code", "Name", "Sex"}};
  CheckBox Check1{*this, "Check1", 1, "Glasses"};
  Label Label1{*this, "Label1", "nothing yet"};
  Animation Animation1{*this, "Animation1"};
  Button Command2{*this, "Command2", "&Close"};

  /// What has happened, in its order.
  std::vector<std::string> happened;
  using Form::Close;

  template <typename... Args>
  void Note(Event<Args...>& event, const std::string& what) {
    event.Handle([this, what](Args...) { happened.push_back(what); });
  }
};

/// Message boxes that nobody sees: each is noted, and looked at by whoever asks for it.
class LookedAtBox : public MessageBox {
 public:
  Answer Show(const Message& message) override;

  std::vector<std::string> texts;
  std::function<void()> look;
  std::function<void()> before;
};

class Desk {
 public:
  Desk();
  ~Desk();

  frmdesk& form() { return *form_; }
  LookedAtBox& box() { return box_; }
  FormWindow* window() { return desktop_.WindowOf(*form_); }
  QWidget& WidgetOf(Control& control);
  template <typename Kind>
  Kind& As(Control& control) {
    return dynamic_cast<Kind&>(WidgetOf(control));
  }

  /// Runs something on the form as its own code would.
  void Do(const std::function<void()>& action) { program_.Perform(action); }
  void Click(Control& control);
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Type(const QString& text);
  /// True when the control has the focus, in the form and on the screen.
  bool IsFocused(Control& control);
  bool IsOpen() { return program_.OpenForm("frmdesk") != nullptr; }

 private:
  struct NoSources : DataSources {
    std::unique_ptr<Session> Connect(std::string_view) override { return nullptr; }
  };

  LookedAtBox box_;
  NoOffice office_;
  Desktop desktop_;
  Machine machine_;
  NoSources sources_;
  Program program_;
  frmdesk* form_ = nullptr;
};

}  // namespace ovindra::desktop
